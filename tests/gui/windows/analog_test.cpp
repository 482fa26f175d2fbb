// SPDX-License-Identifier: GPL-3.0-or-later
#include <QSlider>
#include <vector>

#include "panel/windows/analog_window.h"
#include "window_bed.h"

namespace tavorno {
namespace {

class Analog : public Banco_Finestre {
 public:
  Analog() { finestra.show(); }

  QSlider& Cursore(int indice) {
    return Trova<QSlider>(finestra, ("sldS(" + std::to_string(indice) + ")").c_str());
  }
  std::vector<float> Volt() const { return {plc.Volt_AI.begin(), plc.Volt_AI.end()}; }

  FrmSimAI finestra{plc};
};

using Valori = std::vector<float>;

TEST_F(Analog, WindowHasItsNameAndTitle) {
  EXPECT_EQ(finestra.objectName(), "frmSimAI");
  EXPECT_EQ(finestra.windowTitle(), "Simulatore Ingressi an.");
  EXPECT_EQ(Trova<QAbstractButton>(finestra, "opzI(0)").text(), "0-10 V");
  EXPECT_EQ(Trova<QAbstractButton>(finestra, "opzI(1)").text(), "0-20 mA");
  EXPECT_TRUE(Scelto(finestra, "opzI(0)"));
  EXPECT_EQ(Trova<QAbstractButton>(finestra, "cmdEnd").text(), "Termina");
  Prova_Finestra(finestra);
}

class Analog_Slider : public Analog, public ::testing::WithParamInterface<int> {};

TEST_P(Analog_Slider, HasItsLabelRangeAndSteps) {
  const QSlider& cursore = Cursore(GetParam());
  EXPECT_EQ(cursore.accessibleName().toStdString(), "AIW" + std::to_string(2 * GetParam()));
  EXPECT_EQ(cursore.minimum(), 0);
  EXPECT_EQ(cursore.maximum(), 10);
  EXPECT_EQ(cursore.singleStep(), 1);
  EXPECT_EQ(cursore.pageStep(), 2);
  EXPECT_EQ(cursore.value(), 0);
}

TEST_P(Analog_Slider, OneScrollTakesAllThreeValues) {
  for (int i = 0; i < 3; ++i) {
    const QSignalBlocker zitto(Cursore(i));
    Cursore(i).setValue(i + 1);
  }
  EXPECT_EQ(Volt(), (Valori{0, 0, 0}));
  QTest::keyClick(&Cursore(GetParam()), Qt::Key_PageUp);
  Valori attesi{1, 2, 3};
  attesi[static_cast<std::size_t>(GetParam())] += 2;
  EXPECT_EQ(Volt(), attesi);
}
INSTANTIATE_TEST_SUITE_P(All, Analog_Slider, ::testing::Values(0, 1, 2));

TEST_F(Analog, OpeningLeavesTheInputsAsTheyAre) {
  plc.Volt_AI[1] = 7.5F;
  const FrmSimAI seconda(plc);
  EXPECT_EQ(Volt(), (Valori{0, 7.5F, 0}));
  EXPECT_EQ(Testo(seconda, "etV(1)"), "7.5 V");
}

TEST_F(Analog, RangeOf20mAKeepsThumbAndInputUntilTheNextScroll) {
  Cursore(0).setValue(8);
  plc.Volt_AI[2] = 3;
  Premi(finestra, "opzI(1)");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Cursore(i).maximum(), 20);
  EXPECT_EQ(Cursore(0).value(), 8);
  EXPECT_EQ(Volt(), (Valori{8, 0, 3}));
  EXPECT_EQ(Testo(finestra, "etV(0)"), "8 mA");
  Cursore(0).setValue(20);
  EXPECT_EQ(Volt(), (Valori{20, 0, 0}));
}

TEST_F(Analog, BackTo10VKeepsTheInputUntilTheNextScroll) {
  Premi(finestra, "opzI(1)");
  Cursore(0).setValue(15);
  Premi(finestra, "opzI(0)");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Cursore(i).maximum(), 10);
  EXPECT_EQ(Volt(), (Valori{15, 0, 0}));
  EXPECT_EQ(Testo(finestra, "etV(0)"), "15 V");
  Cursore(1).setValue(1);
  EXPECT_EQ(Volt(), (Valori{10, 1, 0}));
}

TEST_F(Analog, RangeHereAndScaleOfThePanelAreSeparate) {
  Premi(finestra, "opzI(1)");
  EXPECT_EQ(plc.Scelte.opzAI, Scala::Volt_10);
  Cursore(0).setValue(20);
  plc.timIO.Enabled(true);
  orologio.Avanza(20);
  EXPECT_EQ(plc.Mem_AIW[0], 64000);
}

TEST_F(Analog, TerminaZeroesTheInputs) {
  for (int i = 0; i < 3; ++i) Cursore(i).setValue(5);
  Premi(finestra, "cmdEnd");
  EXPECT_EQ(Volt(), (Valori{0, 0, 0}));
  EXPECT_FALSE(finestra.isVisible());
}

TEST_F(Analog, TheCloseBoxLeavesTheInputsAsTheyWere) {
  for (int i = 0; i < 3; ++i) Cursore(i).setValue(5);
  finestra.close();
  EXPECT_EQ(Volt(), (Valori{5, 5, 5}));
}

TEST_F(Analog, ReadOutsFollowWhoeverWritesTheInputs) {
  EXPECT_EQ(Testo(finestra, "etV(2)"), "0 V");
  plc.Volt_AI[2] = 4.25F;
  finestra.Mostra_Valori();
  EXPECT_EQ(Testo(finestra, "etV(2)"), "4.25 V");
}

}  // namespace
}  // namespace tavorno
