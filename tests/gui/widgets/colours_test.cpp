// SPDX-License-Identifier: GPL-3.0-or-later
// Whether our own colours can be read, by the usual measure of contrast.
#include "widgets/colours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tavorno {
namespace {

double Luminanza(const QColor& colore) {
  const auto lineare = [](double parte) {
    return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
         0.0722 * lineare(colore.blueF());
}

double Contrasto(const QColor& uno, const QColor& altro) {
  const double a = Luminanza(uno);
  const double b = Luminanza(altro);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Colours, TheMeasureIsTheUsualOne) {
  EXPECT_NEAR(Contrasto(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(Contrasto(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Colours, EveryTextCanBeReadOnItsGround) {
  for (const colori::Coppia& coppia : colori::Tutte)
    EXPECT_GE(Contrasto(coppia.Testo, coppia.Fondo), 4.5) << coppia.Dove;
}

}  // namespace
}  // namespace tavorno
