// SPDX-License-Identifier: GPL-3.0-or-later
// Whether our own colours can be read, by the usual measure of contrast, and told apart by eyes
// that see no red or no green.
#include "widgets/colours.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>

#include "support/desktop.h"
#include "widgets/colour_pairs.h"
#include "widgets/tinting.h"

namespace tavorno {
namespace {

using colori::Contrasto;
using colori::Serie;

constexpr Serie tutte_le_serie[] = {{}, {.Scura = true}, {false, true}, {true, true}};

using Terna = std::array<double, 3>;

Terna Per_Matrice(const std::array<Terna, 3>& righe, const Terna& v) {
  Terna fatto{};
  for (std::size_t n = 0; n < 3; ++n)
    fatto[n] = righe[n][0] * v[0] + righe[n][1] * v[1] + righe[n][2] * v[2];
  return fatto;
}

/// What an eye without one kind of cones makes of a colour (Machado, Oliveira, Fernandes 2009), as
/// linear red, green and blue.
Terna Visto(const QColor& colore, bool senza_rosso) {
  constexpr std::array<Terna, 3> protano{{{0.152286, 1.052583, -0.204868},
                                          {0.114503, 0.786281, 0.099216},
                                          {-0.003882, -0.048116, 1.051998}}};
  constexpr std::array<Terna, 3> deuterano{{{0.367322, 0.860646, -0.227968},
                                            {0.280085, 0.672501, 0.047413},
                                            {-0.011820, 0.042940, 0.968881}}};
  const auto lineare = [](double parte) {
    return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
  };
  return Per_Matrice(senza_rosso ? protano : deuterano,
                     {lineare(colore.redF()), lineare(colore.greenF()), lineare(colore.blueF())});
}

/// CIE L*a*b* of linear sRGB.
Terna Lab(const Terna& rgb) {
  const Terna xyz = Per_Matrice(
      {{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}}, rgb);
  const auto f = [](double t) {
    return t > 216.0 / 24389 ? std::cbrt(std::max(t, 0.0)) : (24389.0 / 27 * t + 16) / 116;
  };
  const double x = f(xyz[0] / 0.95047), y = f(xyz[1]), z = f(xyz[2] / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Distanza(const Terna& uno, const Terna& altro) {
  return std::hypot(uno[0] - altro[0], uno[1] - altro[1], uno[2] - altro[2]);
}

TEST(Colours, TheMeasureIsTheUsualOne) {
  EXPECT_NEAR(Contrasto(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(Contrasto(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Colours, EveryTextCanBeReadOnItsGround) {
  for (const Serie serie : tutte_le_serie) {
    SCOPED_TRACE(::testing::Message() << "dark " << serie.Scura << ", eyes " << serie.Daltonici);
    for (const colori::Coppia& coppia : colori::Tutte)
      EXPECT_GE(Contrasto(coppia.Testo.Di(serie), coppia.Fondo.Di(serie)), colori::Leggibile)
          << coppia.Dove;
    for (const colori::Coppia& coppia : colori::Guida_Stile)
      EXPECT_GE(Contrasto(coppia.Testo.Di(serie), coppia.Fondo.Di(serie)), colori::Leggibile)
          << coppia.Dove;
  }
}

TEST(Colours, EveryLineThatCarriesAStateCanBeSeen) {
  for (const Serie serie : tutte_le_serie) {
    SCOPED_TRACE(::testing::Message() << "dark " << serie.Scura << ", eyes " << serie.Daltonici);
    for (const colori::Tratto& tratto : colori::Tratti)
      EXPECT_GE(Contrasto(tratto.Segno.Di(serie), tratto.Fondo.Di(serie)), colori::Visibile)
          << tratto.Dove;
  }
}

TEST(Colours, TheOtherSetIsToldApartWithoutRedOrGreen) {
  constexpr double diversi = 15;  // units of L*a*b*; neighbours differ from about 2 on
  for (const bool scura : {false, true}) {
    const Serie serie{scura, true};
    for (const bool senza_rosso : {true, false}) {
      SCOPED_TRACE(::testing::Message() << "dark " << scura << ", no red " << senza_rosso);
      for (const colori::Tratto& coppia : colori::Diversi)
        EXPECT_GE(Distanza(Lab(Visto(coppia.Segno.Di(serie), senza_rosso)),
                           Lab(Visto(coppia.Fondo.Di(serie), senza_rosso))),
                  diversi)
            << coppia.Dove;
    }
  }
  // And the measure would find what the ordinary set mixes up.
  EXPECT_LT(Distanza(Lab(Visto(colori::Figure[10].Di({}), false)),
                     Lab(Visto(colori::Figure[12].Di({}), false))),
            Distanza(Lab(Visto(colori::Figure[10].Di({false, true}), false)),
                     Lab(Visto(colori::Figure[12].Di({false, true}), false))));
}

TEST(Colours, OnAnyDesktopATextOfOursCanBeRead) {
  for (int grigio = 0; grigio < 256; grigio += 15) {
    for (const QColor& fondo :
         {QColor(grigio, grigio, grigio), QColor(grigio, 80, 20), QColor(0, 0, grigio)}) {
      for (const colori::Coppia& coppia : colori::Tutte) {
        const QColor mosso = colori::Su(coppia.Testo.Di({}), fondo);
        ASSERT_GE(Contrasto(mosso, fondo), colori::Leggibile)
            << coppia.Dove << " on " << fondo.name().toStdString();
      }
    }
  }
  EXPECT_EQ(colori::Su(Qt::blue, Qt::white), QColor(Qt::blue)) << "what can be read stays";
}

TEST(Colours, TheDesktopsPaletteChoosesTheSet) {
  const Scrivania scrivania;
  EXPECT_EQ(colori::In_Uso(), Serie{});
  scrivania.Scura();
  EXPECT_EQ(colori::In_Uso(), Serie{.Scura = true});
  colori::Per_Daltonici(true);
  EXPECT_EQ(colori::In_Uso(), (Serie{true, true}));
}

TEST(Colours, AWidgetFollowsTheDesktopAndTheChoice) {
  const Scrivania scrivania;
  QLabel etichetta;
  Tingi(etichetta, &colori::Guasto);
  const auto ha = [&etichetta](Serie serie) {
    return QTest::qWaitFor([&] {
      return etichetta.palette().color(QPalette::Window) == colori::Guasto.Fondo.Di(serie) &&
             etichetta.palette().color(QPalette::WindowText) == colori::Guasto.Testo.Di(serie);
    });
  };
  EXPECT_TRUE(ha({}));
  scrivania.Scura();
  EXPECT_TRUE(ha({.Scura = true}));
  colori::Per_Daltonici(true);
  EXPECT_TRUE(ha({true, true}));
  Tingi(etichetta, nullptr);
  EXPECT_EQ(etichetta.palette().color(QPalette::Window),
            QGuiApplication::palette().color(QPalette::Window));
}

}  // namespace
}  // namespace tavorno
