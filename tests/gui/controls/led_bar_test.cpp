// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/led_bar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <memory>

#include "controls/controls.h"

namespace tavorno {
namespace {

class LedBar : public ::testing::Test {
 protected:
  LedBar() { faccia->resize(Barra_LED::Misura); }
  bool Acceso(int bit) const { return !Figlio_Di<>(*faccia, Con_Indice("imgLI0", bit)).isHidden(); }
  QColor Centro(int bit) const {
    const QImage immagine = faccia->grab().toImage();
    return immagine.pixelColor(Figlio_Di<>(*faccia, Con_Indice("imgLI0", bit)).geometry().center());
  }

  Orologio orologio;
  LedQ barra{orologio};
  std::unique_ptr<Barra_LED> faccia = std::make_unique<Barra_LED>(barra, "Q0");
};

TEST_F(LedBar, HasItsDefaults) {
  EXPECT_EQ(faccia->Caption(), "Q0");
  EXPECT_EQ(Testo(*faccia, "etC"), "Q0");
  EXPECT_EQ(faccia->ForeColor(), QColor(255, 255, 0));
  EXPECT_EQ(Figlio_Di<QLabel>(*faccia, "etC").palette().color(QPalette::WindowText),
            QColor(255, 255, 0));
  EXPECT_EQ(faccia->Accesi(), 0);
  for (int bit = 0; bit < 8; ++bit) EXPECT_FALSE(Acceso(bit)) << bit;
}

TEST_F(LedBar, IsReadAsItsLedsInWords) {
  barra.Stato_Q("01000000");
  faccia->Aggiorna();
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(faccia.get());
  EXPECT_EQ(bar->text(QAccessible::Name), "LED Q0");
  ASSERT_EQ(bar->childCount(), 8);
  EXPECT_EQ(bar->child(0)->text(QAccessible::Name), "LED Q0.0 spento");
  EXPECT_EQ(bar->child(1)->text(QAccessible::Name), "LED Q0.1 acceso");
  EXPECT_EQ(bar->child(1)->role(), QAccessible::StaticText);
  EXPECT_EQ(bar->indexOfChild(bar->child(5)), 5);
  EXPECT_EQ(bar->child(5)->parent(), bar);
  EXPECT_EQ(bar->child(8), nullptr);
  faccia->show();
  const QPoint centro = bar->child(6)->rect().center();
  EXPECT_EQ(bar->childAt(centro.x(), centro.y()), bar->child(6));
}

class LedBarBit : public LedBar, public ::testing::WithParamInterface<int> {};

TEST_P(LedBarBit, IsVisibleWhenLit) {
  std::string testo = "00000000";
  testo[static_cast<std::size_t>(GetParam())] = '1';
  barra.Stato_Q(testo);
  faccia->Aggiorna();
  EXPECT_EQ(faccia->Accesi(), 1 << GetParam());
  for (int bit = 0; bit < 8; ++bit) EXPECT_EQ(Acceso(bit), bit == GetParam()) << bit;
}

TEST_P(LedBarBit, IsBrightWhenLitAndDarkOtherwise) {
  EXPECT_LT(Centro(GetParam()).value(), 0x60);
  barra.Stato_Q("11111111");
  faccia->Aggiorna();
  EXPECT_GT(Centro(GetParam()).value(), 0xB0);
}

INSTANTIATE_TEST_SUITE_P(All, LedBarBit, ::testing::Range(0, 8));

TEST_F(LedBar, AShortTextLeavesTheMissingLedsDark) {
  barra.Stato_Q("111");
  faccia->Aggiorna();
  EXPECT_EQ(faccia->Accesi(), 7);
}

TEST_F(LedBar, FollowsAtTheNextTurnOfTheEventLoop) {
  barra.Stato_Q("10000000");
  EXPECT_EQ(faccia->Accesi(), 0);
  barra.Stato_Q("11000000");
  QCoreApplication::processEvents();
  EXPECT_EQ(faccia->Accesi(), 3);
  barra.Stato_Q("00000001");
  QCoreApplication::processEvents();
  EXPECT_EQ(faccia->Accesi(), 0x80);
}

TEST_F(LedBar, ManyChangesAreOneTurnOfTheFace) {
  struct Spia : QObject {
    int Turni = 0;
    bool eventFilter(QObject*, QEvent* evento) override {
      if (evento->type() == QEvent::MetaCall) ++Turni;
      return false;
    }
  } spia;
  faccia->installEventFilter(&spia);
  for (int i = 0; i < 1000; ++i) barra.Stato_Q(i % 2 == 0 ? "11111111" : "00000000");
  QCoreApplication::processEvents();
  EXPECT_EQ(spia.Turni, 1);
}

TEST_F(LedBar, ResetDarkensAll) {
  barra.Stato_Q("11111111");
  barra.LED_Reset();
  faccia->Aggiorna();
  EXPECT_EQ(faccia->Accesi(), 0);
}

TEST_F(LedBar, TheChaseFillsTheRowAndDarkensIt) {
  barra.Scorri(true);
  for (int n = 1; n <= 8; ++n) {
    orologio.Avanza(80);
    faccia->Aggiorna();
    EXPECT_EQ(faccia->Accesi(), (1 << n) - 1);
  }
  orologio.Avanza(80);
  faccia->Aggiorna();
  EXPECT_EQ(faccia->Accesi(), 0);
}

TEST_F(LedBar, LeavesItsBarWhenItGoes) {
  barra.Stato_Q("11111111");
  faccia.reset();
  QCoreApplication::processEvents();
  barra.Stato_Q("00000000");
  EXPECT_FALSE(barra.Aspetto.Ascoltato());
}

TEST_F(LedBar, ANewFaceShowsWhatTheBarHolds) {
  barra.Stato_Q("01000000");
  barra.LED_Tipo(2, 1);
  faccia.reset();
  faccia = std::make_unique<Barra_LED>(barra, "Q0");
  EXPECT_EQ(faccia->Accesi(), 2);
}

struct Tipo_Atteso {
  std::uint8_t Tipo, Forma;
  const char* Immagine;
  int Tinta;  // degrees on the colour circle
};
class LedType : public LedBar, public ::testing::WithParamInterface<Tipo_Atteso> {};

TEST_P(LedType, ChoosesThePicture) {
  EXPECT_STREQ(Barra_LED::Immagine(GetParam().Tipo, GetParam().Forma), GetParam().Immagine);
}

TEST_P(LedType, ShowsItsColourAndForm) {
  barra.Stato_Q("11111111");
  barra.LED_Tipo(GetParam().Tipo, GetParam().Forma);
  faccia->Aggiorna();
  EXPECT_NEAR(Centro(4).hue(), GetParam().Tinta, 25);
  // The ray to the right of the lamp, at the edge of its cell.
  const QRect cella = Figlio_Di<>(*faccia, "imgLI0(4)").geometry();
  const QColor raggio = faccia->grab().toImage().pixelColor(cella.left() + 21, cella.top() + 12);
  EXPECT_EQ(raggio.value() > 0xA0, GetParam().Forma == 0) << raggio.value();
}

INSTANTIATE_TEST_SUITE_P(
    All, LedType,
    ::testing::Values(Tipo_Atteso{0, 0, "ledV", 137}, Tipo_Atteso{0, 1, "ledV2", 137},
                      Tipo_Atteso{0, 255, "ledV2", 137}, Tipo_Atteso{1, 0, "ledG", 43},
                      Tipo_Atteso{1, 1, "ledG2", 43}, Tipo_Atteso{2, 0, "ledR", 6},
                      Tipo_Atteso{2, 1, "ledR2", 6}, Tipo_Atteso{255, 0, "ledR", 6}));

}  // namespace
}  // namespace tavorno
