// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/switch_row.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <vector>

#include "controls/controls.h"
#include "plc/byte_bar.h"

namespace tavorno {
namespace {

class SwitchRow : public ::testing::Test {
 protected:
  SwitchRow() {
    riga.resize(SimI::Misura);
    riga.Change = [this] { detti.push_back(riga.Stato_I()); };
  }
  void Clic(int n) { QTest::mouseClick(&Leva(riga, n), Qt::LeftButton); }

  SimI riga;
  std::vector<std::string> detti;
};

TEST_F(SwitchRow, HasItsDefaults) {
  EXPECT_EQ(riga.Caption(), "I0");
  EXPECT_EQ(Testo(riga, "etC"), "I0");
  EXPECT_EQ(riga.BackColor(), riga.palette().color(QPalette::Button));
  EXPECT_EQ(riga.ForeColor(), riga.palette().color(QPalette::ButtonText));
  EXPECT_EQ(riga.SIMI_Int, -1);
  EXPECT_EQ(riga.Stato_I(), "00000000");
  EXPECT_EQ(Leve(riga), "00000000");
}

TEST_F(SwitchRow, ForeColorColoursTheBitLabels) {
  riga.ForeColor(Qt::blue);
  EXPECT_EQ(riga.ForeColor(), QColor(Qt::blue));
  for (int n = 0; n < 8; ++n) {
    const auto& etichetta = Figlio_Di<QLabel>(riga, Con_Indice("etI", n));
    EXPECT_EQ(etichetta.text(), QString::number(n));
    EXPECT_EQ(etichetta.palette().color(QPalette::WindowText), QColor(Qt::blue));
  }
}

TEST_F(SwitchRow, BackColorFillsThePanelBehindTheSwitches) {
  riga.BackColor(Qt::green);
  EXPECT_EQ(riga.grab().toImage().pixelColor(40, 5), QColor(Qt::green));
}

TEST_F(SwitchRow, MouseDownOnlyShowsThePressedLook) {
  QTest::mousePress(&Leva(riga, 3), Qt::LeftButton);
  EXPECT_EQ(Leve(riga), "000P0000");
  EXPECT_EQ(riga.Stato_I(), "00000000");
  EXPECT_TRUE(detti.empty());
}

TEST_F(SwitchRow, MouseUpToggles) {
  Clic(3);
  EXPECT_EQ(Leve(riga), "00010000");
  EXPECT_EQ(riga.Stato_I(), "00010000");
  Clic(3);
  EXPECT_EQ(Leve(riga), "00000000");
  EXPECT_EQ(detti, (std::vector<std::string>{"00010000", "00000000"}));
}

TEST_F(SwitchRow, MouseUpOutsideTheSwitchTogglesToo) {
  QTest::mousePress(&Leva(riga, 3), Qt::LeftButton);
  QTest::mouseRelease(&Leva(riga, 3), Qt::LeftButton, {}, QPoint(-40, -40));
  EXPECT_EQ(riga.Stato_I(), "00010000");
}

TEST_F(SwitchRow, TheRightButtonDoesNothing) {
  QTest::mouseClick(&Leva(riga, 3), Qt::RightButton);
  EXPECT_EQ(Leve(riga), "00000000");
  EXPECT_TRUE(detti.empty());
}

class SwitchRowBit : public SwitchRow, public ::testing::WithParamInterface<int> {};

TEST_P(SwitchRowBit, StandsAtItsPositionOfTheText) {
  std::string atteso = "00000000";
  atteso[static_cast<std::size_t>(GetParam())] = '1';
  Clic(GetParam());
  EXPECT_EQ(riga.Stato_I(), atteso);
}

TEST_P(SwitchRowBit, IsToldByItsToolTip) {
  riga.Caption("I1");
  EXPECT_EQ(Leva(riga, GetParam()).toolTip(), QStringLiteral("Ingresso I1.%1").arg(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, SwitchRowBit, ::testing::Range(0, 8));

TEST_F(SwitchRow, TheSpaceBarPressesAndReleases) {
  QTest::keyPress(&Leva(riga, 6), Qt::Key_Space);
  EXPECT_EQ(Leve(riga), "000000P0");
  EXPECT_TRUE(detti.empty());
  QTest::keyRelease(&Leva(riga, 6), Qt::Key_Space);
  EXPECT_EQ(Leve(riga), "00000010");
  EXPECT_EQ(detti.size(), 1U);
}

TEST_F(SwitchRow, AHandTakenAwayLeavesTheSwitchAsItWas) {
  Clic(6);
  QTest::keyPress(&Leva(riga, 6), Qt::Key_Space);
  QFocusEvent via(QEvent::FocusOut);
  QCoreApplication::sendEvent(&Leva(riga, 6), &via);
  EXPECT_EQ(Leve(riga), "00000010");
  QTest::keyRelease(&Leva(riga, 6), Qt::Key_Space);
  EXPECT_EQ(riga.Stato_I(), "00000010");
}

TEST_F(SwitchRow, ArrowKeysGoToTheNeighbours) {
  riga.show();
  riga.activateWindow();
  Leva(riga, 2).setFocus();
  QTest::keyClick(&Leva(riga, 2), Qt::Key_Right);
  EXPECT_EQ(riga.focusWidget(), &Leva(riga, 3));
  QTest::keyClick(&Leva(riga, 3), Qt::Key_Left);
  EXPECT_EQ(riga.focusWidget(), &Leva(riga, 2));
}

TEST_F(SwitchRow, IsOneStopOfTheTabKeyAtTheSwitchUsedLast) {
  const auto con_tab = [this] {
    std::string presi;
    for (int n = 0; n < 8; ++n)
      presi += (Leva(riga, n).focusPolicy() & Qt::TabFocus) != 0 ? '1' : '0';
    return presi;
  };
  EXPECT_EQ(con_tab(), "10000000");
  riga.show();
  riga.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&riga));
  Clic(5);
  Leva(riga, 5).setFocus();
  EXPECT_EQ(con_tab(), "00000100");
  QTest::keyClick(&Leva(riga, 5), Qt::Key_End);
  EXPECT_EQ(con_tab(), "00000001");
  QTest::keyClick(&Leva(riga, 7), Qt::Key_Right);
  EXPECT_EQ(riga.focusWidget(), &Leva(riga, 7));
  QTest::keyClick(&Leva(riga, 7), Qt::Key_Home);
  QTest::keyClick(&Leva(riga, 0), Qt::Key_Left);
  EXPECT_EQ(riga.focusWidget(), &Leva(riga, 0));
}

TEST_F(SwitchRow, ADigitThrowsTheSwitchOfItsNumber) {
  riga.show();
  riga.activateWindow();
  Leva(riga, 2).setFocus();
  for (const char cifra : {'0', '7', '8', '0'}) QTest::keyClick(&Leva(riga, 2), cifra);
  EXPECT_EQ(Leve(riga), "00000001");
  EXPECT_EQ(detti, (std::vector<std::string>{"10000000", "10000001", "00000001"}));
  EXPECT_EQ(riga.focusWidget(), &Leva(riga, 2));
}

TEST_F(SwitchRow, IsReadAsAGroupOfEightThatCanBeThrown) {
  QAccessibleInterface* gruppo = QAccessible::queryAccessibleInterface(&riga);
  EXPECT_EQ(gruppo->role(), QAccessible::Grouping);
  EXPECT_EQ(gruppo->text(QAccessible::Name), "Interruttori I0");
  QAccessibleInterface* leva = QAccessible::queryAccessibleInterface(&Leva(riga, 3));
  EXPECT_EQ(leva->parent(), gruppo);
  EXPECT_EQ(leva->role(), QAccessible::CheckBox);
  EXPECT_EQ(leva->text(QAccessible::Name), "Interruttore I0.3");
  EXPECT_TRUE(leva->state().checkable);
  EXPECT_TRUE(leva->state().focusable);
  EXPECT_FALSE(leva->state().checked);
  QAccessibleActionInterface* azione = leva->actionInterface();
  ASSERT_NE(azione, nullptr);
  ASSERT_TRUE(azione->actionNames().contains(QAccessibleActionInterface::toggleAction()));
  azione->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(riga.Stato_I(), "00010000");
  EXPECT_TRUE(leva->state().checked);
}

TEST_F(SwitchRow, WithIntOffTheSwitchMovesAndNobodyIsTold) {
  riga.SIMI_Int = 0;
  Clic(0);
  EXPECT_EQ(Leve(riga), "10000000");
  EXPECT_EQ(riga.Stato_I(), "10000000");
  EXPECT_TRUE(detti.empty());
}

TEST_F(SwitchRow, ATextThatWasToldLastIsNotToldAgain) {
  Clic(0);
  riga.SIMI_Reset();
  Clic(0);
  EXPECT_EQ(riga.Stato_I(), "10000000");
  EXPECT_EQ(detti.size(), 1U);
}

TEST_F(SwitchRow, ResetClearsTheSwitchesAndTouchesNothingElse) {
  Clic(0);
  Clic(5);
  riga.SIMI_Reset();
  EXPECT_EQ(Leve(riga), "00000000");
  EXPECT_EQ(riga.Stato_I(), "10000100");
  EXPECT_EQ(detti.size(), 2U);
  Clic(1);
  EXPECT_EQ(riga.Stato_I(), "01000000");
}

TEST_F(SwitchRow, ALetMovesNoSwitchUntilTheNextPress) {
  Clic(0);
  riga.Stato_I("01100000");
  EXPECT_EQ(riga.Stato_I(), "01100000");
  EXPECT_EQ(Leve(riga), "10000000");
  EXPECT_EQ(detti.size(), 1U);
  Clic(7);
  EXPECT_EQ(riga.Stato_I(), "10000001");
}

TEST_F(SwitchRow, APressReplacesAllBitsThatAPlantHasWritten) {
  Orologio orologio;
  LedI barra(orologio);
  riga.Change = [&] { barra.Stato_I(riga.Stato_I()); };
  Clic(2);
  barra.Stato_I("11111111");
  Clic(4);
  EXPECT_EQ(barra.Stato_I(), "00101000");
  EXPECT_EQ(barra.Stato_IB(), 0x14);
}

}  // namespace
}  // namespace tavorno
