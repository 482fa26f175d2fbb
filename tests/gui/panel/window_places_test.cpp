// SPDX-License-Identifier: GPL-3.0-or-later
// Where windows stand, on screens with the desktop's own bar at any edge.
#include "panel/window_places.h"

#include <gtest/gtest.h>

namespace tavorno {
namespace {

constexpr int alta_barra = 40;  // of the desktop

/// What a bar at each edge leaves of a screen.
std::vector<QRect> Liberi(const QSize& schermo) {
  const int w = schermo.width(), h = schermo.height();
  return {{0, 0, w, h},
          {0, alta_barra, w, h - alta_barra},
          {0, 0, w, h - alta_barra},
          {alta_barra, 0, w - alta_barra, h},
          {0, 0, w - alta_barra, h}};
}

struct Posti : ::testing::TestWithParam<QSize> {
  const Misura_Finestra impianto{{902, 372}, {380, 250}};
  const Misura_Finestra alto{{902, 850}, {380, 480}};  // with its table
  const Misura_Finestra stati{{702, 320}, {302, 152}};
  const Misura_Finestra pannello{{1062, 724}, {454, 342}};

  static void Bene(const QRect& schermo, const std::vector<QRect>& finestre,
                   const std::vector<QSize>& minime) {
    for (std::size_t i = 0; i < finestre.size(); ++i) {
      EXPECT_TRUE(schermo.contains(finestre[i])) << i;
      EXPECT_GE(finestre[i].width(), minime[i].width()) << i;
      EXPECT_GE(finestre[i].height(), minime[i].height()) << i;
      for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(finestre[i].intersects(finestre[k]));
    }
  }
};

TEST_P(Posti, NothingOfAnExerciseIsOutsideOrHidden) {
  for (const QRect& schermo : Liberi(GetParam())) {
    for (const Misura_Finestra& quale : {impianto, alto}) {
      for (const QPoint& panel : {QPoint(0, 0), QPoint(150, 20), schermo.bottomRight()}) {
        const Posti_Impianto posti =
            Posti_Esercizio(schermo, quale, stati, pannello, QRect(panel, pannello.Voluta));
        Bene(schermo, {posti.Impianto, posti.Stati, posti.Pannello},
             {quale.Minima, stati.Minima, pannello.Minima});
        EXPECT_EQ(posti.Impianto.topLeft(), schermo.topLeft());
        EXPECT_EQ(posti.Stati.left(), posti.Impianto.right() + 1 + Stacco_Stati);
      }
    }
  }
}

TEST_P(Posti, TheStatusWindowLeavesRoomForThePanel) {
  for (const QRect& schermo : Liberi(GetParam())) {
    const Posti_Impianto posti = Posti_Colonna(schermo, schermo.topLeft(), stati, pannello);
    Bene(schermo, {posti.Stati, posti.Pannello}, {stati.Minima, pannello.Minima});
    EXPECT_EQ(posti.Pannello.top(), posti.Stati.bottom() + 1 + Stacco_Pannello);
  }
}

TEST_P(Posti, AWindowThatSticksOutComesBackAndShrinksOnlyWhereItMust) {
  for (const QRect& schermo : Liberi(GetParam())) {
    const QRect piccola(schermo.bottomRight(), QSize(300, 200));
    EXPECT_TRUE(schermo.contains(Dentro(schermo, piccola)));
    EXPECT_EQ(Dentro(schermo, piccola).size(), piccola.size());
    const QRect enorme(-50, -50, 5000, 5000);
    EXPECT_EQ(Dentro(schermo, enorme), schermo);
    const QRect dentro(schermo.topLeft() + QPoint(5, 6), QSize(100, 100));
    EXPECT_EQ(Dentro(schermo, dentro), dentro);
  }
}

TEST_P(Posti, AFilmLeavesThePanelFree) {
  const Misura_Finestra film{{790, 130}, {430, 110}};
  for (const QRect& schermo : Liberi(GetParam())) {
    for (const Misura_Finestra& quale : {impianto, alto}) {
      const QRect panel = Posti_Esercizio(schermo, quale, stati, pannello, schermo).Pannello;
      const QRect posto = Posto_Film(schermo, panel, film);
      EXPECT_TRUE(schermo.contains(posto));
      EXPECT_FALSE(posto.intersects(panel)) << schermo.width() << 'x' << schermo.height();
      EXPECT_GE(posto.width(), film.Minima.width());
      EXPECT_EQ(posto.height(), film.Voluta.height());
    }
  }
}

TEST_P(Posti, AFilmWithoutRoomHidesAsLittleAsItCan) {
  const Misura_Finestra film{{790, 130}, {700, 110}};
  for (const QRect& schermo : Liberi(GetParam())) {
    EXPECT_EQ(Posto_Film(schermo, {}, film).bottomLeft(), schermo.bottomLeft());
    EXPECT_TRUE(schermo.contains(Posto_Film(schermo, schermo, film)));
    const QRect basso(schermo.left(), schermo.top() + 200, schermo.width(), schermo.height() - 200);
    EXPECT_EQ(Posto_Film(schermo, basso, film).topRight(), schermo.topRight());
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, Posti,
                         ::testing::Values(QSize(1366, 768), QSize(1280, 720), QSize(1536, 864),
                                           QSize(960, 600), QSize(1920, 1080)));

TEST(ToldPlaces, StayWhereTheyFit) {
  const QRect schermo(0, 0, 2560, 1440);
  const QRect panel(905, 321, 1062, 724);
  const Posti_Impianto posti =
      Posti_Esercizio(schermo, {{902, 372}, {380, 250}}, {{702, 320}, {302, 152}},
                      {{1062, 724}, {454, 342}}, panel);
  EXPECT_EQ(posti, (Posti_Impianto{{0, 0, 902, 372}, {905, 0, 702, 320}, panel}));
}

TEST(ToldPlaces, APanelInTheWayGoesBelowTheStatusWindowWithItsSize) {
  const QRect schermo(0, 0, 2560, 1440);
  const Posti_Impianto posti =
      Posti_Esercizio(schermo, {{902, 372}, {380, 250}}, {{702, 320}, {302, 152}},
                      {{1062, 724}, {454, 342}}, {100, 100, 1062, 724});
  EXPECT_EQ(posti.Pannello, QRect(905, 321, 1062, 724));
}

}  // namespace
}  // namespace tavorno
