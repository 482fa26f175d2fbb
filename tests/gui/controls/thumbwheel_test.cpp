// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/thumbwheel.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <vector>

#include "controls/controls.h"
#include "panel/controls/digit_wheel.h"
#include "plc/byte_bar.h"

namespace tavorno {
namespace {

class Thumbwheel : public ::testing::Test {
 protected:
  Thumbwheel() {
    ruote.resize(SimC::Misura);
    ruote.Change = [this] { detti.push_back(ruote.SimC_Stato()); };
  }
  void Premi(const char* tasto) { Figlio_Di<QAbstractButton>(ruote, tasto).click(); }

  SimC ruote;
  std::vector<std::string> detti;
};

TEST_F(Thumbwheel, IsReadAsTwoNumbersThatCanBeSet) {
  QAccessibleInterface* decine = QAccessible::queryAccessibleInterface(&ruote.UpD1());
  EXPECT_EQ(decine->role(), QAccessible::SpinBox);
  EXPECT_EQ(decine->text(QAccessible::Name), "Decine I1");
  QAccessibleValueInterface* numero = decine->valueInterface();
  ASSERT_NE(numero, nullptr);
  EXPECT_EQ(numero->maximumValue(), 9.0);
  numero->setCurrentValue(4);
  EXPECT_EQ(numero->currentValue(), 4.0);
  EXPECT_EQ(decine->text(QAccessible::Value), "4");
  EXPECT_EQ(ruote.SimC_Stato(), "00000010");
  numero->setCurrentValue(12);
  EXPECT_EQ(numero->currentValue(), 4.0);
}

TEST_F(Thumbwheel, HasItsDefaults) {
  EXPECT_EQ(ruote.BackColor(), QApplication::palette("QMenuBar").color(QPalette::Window));
  EXPECT_EQ(ruote.Caption(), "I1");
  EXPECT_EQ(Testo(ruote, "etC"), "I1");
  EXPECT_EQ(ruote.ForeColor(), QColor(0, 0, 255));
  EXPECT_EQ(Figlio_Di<QLabel>(ruote, "etC").palette().color(QPalette::WindowText),
            QColor(0, 0, 255));
  EXPECT_EQ(ruote.SimC_Stato(), "00000000");
  EXPECT_EQ(Testo(ruote, "etC1"), "0");
  EXPECT_EQ(Testo(ruote, "etC2"), "0");
}

struct Cifra_Attesa {
  int Cifra;
  const char* Testo;
};
class ThumbwheelDigit : public Thumbwheel, public ::testing::WithParamInterface<Cifra_Attesa> {};

TEST_P(ThumbwheelDigit, OfTheUnitsFillsTheLowerBits) {
  ruote.UpD2().Value(GetParam().Cifra);
  EXPECT_EQ(Testo(ruote, "etC2"), QString::number(GetParam().Cifra));
  EXPECT_EQ(ruote.SimC_Stato(), std::string(GetParam().Testo) + "0000");
}

TEST_P(ThumbwheelDigit, OfTheTensFillsTheUpperBits) {
  ruote.UpD1().Value(GetParam().Cifra);
  EXPECT_EQ(Testo(ruote, "etC1"), QString::number(GetParam().Cifra));
  EXPECT_EQ(ruote.SimC_Stato(), "0000" + std::string(GetParam().Testo));
}

TEST_P(ThumbwheelDigit, CanBeTyped) {
  ruote.UpD2().Value(GetParam().Cifra == 5 ? 4 : 5);
  QTest::keyClick(&ruote.UpD2(), static_cast<Qt::Key>(Qt::Key_0 + GetParam().Cifra));
  EXPECT_EQ(ruote.UpD2().Value(), GetParam().Cifra);
}

INSTANTIATE_TEST_SUITE_P(All, ThumbwheelDigit,
                         ::testing::Values(Cifra_Attesa{0, "0000"}, Cifra_Attesa{1, "1000"},
                                           Cifra_Attesa{2, "0100"}, Cifra_Attesa{3, "1100"},
                                           Cifra_Attesa{4, "0010"}, Cifra_Attesa{5, "1010"},
                                           Cifra_Attesa{6, "0110"}, Cifra_Attesa{7, "1110"},
                                           Cifra_Attesa{8, "0001"}, Cifra_Attesa{9, "1001"}));

TEST_F(Thumbwheel, NineUpShowsZeroAndZeroDownShowsNineWithoutCarry) {
  ruote.UpD2().Value(4);
  ruote.UpD1().Value(9);
  Premi("UpD1.Su");
  EXPECT_EQ(Testo(ruote, "etC1"), "0");
  EXPECT_EQ(Testo(ruote, "etC2"), "4");
  Premi("UpD1.Giu");
  EXPECT_EQ(Testo(ruote, "etC1"), "9");
  EXPECT_EQ(Testo(ruote, "etC2"), "4");
  ruote.UpD2().Value(0);
  Premi("UpD2.Giu");
  EXPECT_EQ(Testo(ruote, "etC2"), "9");
  Premi("UpD2.Su");
  EXPECT_EQ(Testo(ruote, "etC2"), "0");
  EXPECT_EQ(Testo(ruote, "etC1"), "9");
}

TEST_F(Thumbwheel, TheEndsOfTheUpDownWrap) {
  ruote.UpD1().Value(-1);
  EXPECT_EQ(ruote.UpD1().Value(), 9);
  ruote.UpD1().Value(10);
  EXPECT_EQ(ruote.UpD1().Value(), 0);
}

TEST_F(Thumbwheel, ThirtySevenIsPackedBcd) {
  Orologio orologio;
  LedI barra(orologio);
  ruote.Change = [&] { barra.Stato_I(ruote.SimC_Stato()); };
  for (int i = 0; i < 3; ++i) Premi("UpD1.Su");
  for (int i = 0; i < 7; ++i) Premi("UpD2.Su");
  EXPECT_EQ(ruote.SimC_Stato(), "11101100");
  EXPECT_EQ(barra.Stato_IB(), 55);
  EXPECT_EQ(barra.Stato_BitI(), "00110111");
}

TEST_F(Thumbwheel, ArrowKeysTurnTheDigit) {
  QTest::keyClick(&ruote.UpD1(), Qt::Key_Up);
  QTest::keyClick(&ruote.UpD1(), Qt::Key_Up);
  EXPECT_EQ(ruote.UpD1().Value(), 2);
  QTest::keyClick(&ruote.UpD1(), Qt::Key_Down);
  EXPECT_EQ(ruote.UpD1().Value(), 1);
  EXPECT_EQ(ruote.UpD2().Value(), 0);
}

void Gira(QWidget& ruota, int ottavi) {
  QWheelEvent evento(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, ottavi), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&ruota, &evento);
}

TEST_F(Thumbwheel, TheMouseWheelTurnsTheDigitByWholeSteps) {
  Gira(ruote.UpD2(), 240);
  EXPECT_EQ(ruote.UpD2().Value(), 2);
  Gira(ruote.UpD2(), -60);
  EXPECT_EQ(ruote.UpD2().Value(), 2);
  Gira(ruote.UpD2(), -60);
  EXPECT_EQ(ruote.UpD2().Value(), 1);
}

TEST_F(Thumbwheel, ChangeIsRaisedForEachNewNumber) {
  Premi("UpD2.Su");
  Premi("UpD2.Su");
  EXPECT_EQ(detti, (std::vector<std::string>{"10000000", "01000000"}));
}

TEST_F(Thumbwheel, ALetIsToldOnceAndTurnsNoWheel) {
  ruote.SimC_Stato("11110000");
  ruote.SimC_Stato("11110000");
  EXPECT_EQ(detti, std::vector<std::string>{"11110000"});
  EXPECT_EQ(Testo(ruote, "etC2"), "0");
}

TEST_F(Thumbwheel, ClearTurnsBothToZeroAndTellsOnce) {
  ruote.UpD1().Value(3);
  ruote.UpD2().Value(7);
  detti.clear();
  ruote.SimC_Clear();
  EXPECT_EQ(Testo(ruote, "etC1"), "0");
  EXPECT_EQ(Testo(ruote, "etC2"), "0");
  EXPECT_EQ(ruote.SimC_Stato(), "00000000");
  EXPECT_EQ(detti, std::vector<std::string>{"00000000"});
}

TEST_F(Thumbwheel, BackColorFillsThePanelBehindTheWheels) {
  ruote.BackColor(Qt::red);
  EXPECT_EQ(ruote.grab().toImage().pixelColor(250, 25), QColor(Qt::red));
}

}  // namespace
}  // namespace tavorno
