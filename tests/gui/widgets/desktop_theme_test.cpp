// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of a dark desktop where the window library does not bring them, and what asks for
// them.
#include "widgets/desktop_theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>

#include "support/desktop.h"
#include "widgets/colours.h"
#include "widgets/dark_choice.h"

namespace tavorno {
namespace {

using P = QPalette;

TEST(DesktopTheme, OnlyAZeroThatIsThereAsksForDark) {
  EXPECT_TRUE(Vuole_Scuro({.AppsUseLightTheme = 0}));
  EXPECT_FALSE(Vuole_Scuro({.AppsUseLightTheme = 1}));
  EXPECT_FALSE(Vuole_Scuro({.AppsUseLightTheme = 2}));
  EXPECT_FALSE(Vuole_Scuro({}));
}

TEST(DesktopTheme, HighContrastKeepsItsOwnColours) {
  EXPECT_FALSE(Vuole_Scuro({.AppsUseLightTheme = 0, .Alto_Contrasto = true}));
}

TEST(DesktopTheme, TextsCanBeReadOnTheDarkDesktop) {
  constexpr struct {
    P::ColorRole Testo, Fondo;
  } coppie[] = {{P::WindowText, P::Window},
                {P::Text, P::Base},
                {P::Text, P::AlternateBase},
                {P::ButtonText, P::Button},
                {P::HighlightedText, P::Highlight},
                {P::ToolTipText, P::ToolTipBase},
                {P::Link, P::Base},
                {P::Link, P::Window},
                {P::PlaceholderText, P::Base}};
  const P tinte = Tavolozza_Scura();
  for (const P::ColorGroup gruppo : {P::Active, P::Inactive}) {
    for (const auto& [testo, fondo] : coppie) {
      SCOPED_TRACE(::testing::Message() << gruppo << ", " << testo << " on " << fondo);
      EXPECT_GE(colori::Contrasto(tinte.color(gruppo, testo), tinte.color(gruppo, fondo)),
                colori::Leggibile);
    }
  }
  // What cannot be used is seen, and not taken for what can.
  for (const P::ColorRole testo : {P::WindowText, P::ButtonText}) {
    EXPECT_GE(colori::Contrasto(tinte.color(P::Disabled, testo), tinte.color(P::Window)),
              colori::Visibile);
    EXPECT_NE(tinte.color(P::Disabled, testo), tinte.color(P::Active, testo));
  }
}

TEST(DesktopTheme, OurOwnColoursFollowItAndGoBackWithIt) {
  const Scrivania scrivania;
  const QColor chiara = colori::Scala_Testo.Testo;
  QApplication::setPalette(Tavolozza_Scura());
  EXPECT_TRUE(colori::In_Uso().Scura);
  EXPECT_NE(QColor(colori::Scala_Testo.Testo), chiara);
  const QCheckBox casella;
  EXPECT_EQ(casella.palette().color(P::Base), Tavolozza_Scura().color(P::Base));
  QApplication::setPalette(QPalette());
  EXPECT_FALSE(colori::In_Uso().Scura);
}

}  // namespace
}  // namespace tavorno
