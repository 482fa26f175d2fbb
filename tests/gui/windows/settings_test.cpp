// SPDX-License-Identifier: GPL-3.0-or-later
#include <QGroupBox>
#include <QRadioButton>
#include <memory>
#include <vector>

#include "panel/windows/settings_window.h"
#include "window_bed.h"

namespace tavorno {
namespace {

class Settings : public Banco_Finestre {
 public:
  std::unique_ptr<FrmSetPLC> Apri() {
    auto finestra = std::make_unique<FrmSetPLC>(
        plc, Sim_Contraves, [this](bool contraves) { scelti.push_back(contraves); });
    finestra->show();
    return finestra;
  }

  std::int16_t Sim_Contraves = 0;
  std::vector<bool> scelti;
};

TEST_F(Settings, WindowHasItsNameAndTitle) {
  const auto finestra = Apri();
  EXPECT_EQ(finestra->objectName(), "frmSetPLC");
  EXPECT_EQ(finestra->windowTitle(), "Impostazioni pannello PLC");
  EXPECT_FALSE(finestra->isModal());
  Prova_Finestra(*finestra);
}

struct Voce {
  const char* Nome;
  const char* Testo;
  const char* Riquadro;
  const char* Titolo;
  bool Scelta;  // at the first opening
};

constexpr Voce voci[] = {
    {"opzCI(0)", "V", "Frame2(1)", "Led Ingressi PLC", true},
    {"opzCI(1)", "Y", "Frame2(1)", "Led Ingressi PLC", false},
    {"opzCI(2)", "R", "Frame2(1)", "Led Ingressi PLC", false},
    {"opzTI(0)", "", "Frame2(1)", "Led Ingressi PLC", true},
    {"opzTI(1)", "", "Frame2(1)", "Led Ingressi PLC", false},
    {"opzCQ(0)", "V", "Frame2(0)", "Led Uscite PLC", true},
    {"opzCQ(1)", "Y", "Frame2(0)", "Led Uscite PLC", false},
    {"opzCQ(2)", "R", "Frame2(0)", "Led Uscite PLC", false},
    {"opzTQ(0)", "", "Frame2(0)", "Led Uscite PLC", true},
    {"opzTQ(1)", "", "Frame2(0)", "Led Uscite PLC", false},
    {"opzSim(0)", "Interuttori", "Frame3", "Simulatore Ingressi I1...", true},
    {"opzSim(1)", "Contravers BCD", "Frame3", "Simulatore Ingressi I1...", false},
    {"opzT(0)", "100 mSec", "Frame1", "Clock Temporizzatori", true},
    {"opzT(1)", "50   mSec", "Frame1", "Clock Temporizzatori", false},
    {"opzT(2)", "10   mSec", "Frame1", "Clock Temporizzatori", false},
};

class Settings_Option : public Settings, public ::testing::WithParamInterface<Voce> {};

TEST_P(Settings_Option, StandsInItsFrameWithItsCaption) {
  const Voce& voce = GetParam();
  const auto finestra = Apri();
  const auto& tasto = Trova<QRadioButton>(*finestra, voce.Nome);
  EXPECT_EQ(tasto.text(), voce.Testo);
  EXPECT_EQ(tasto.isChecked(), voce.Scelta);
  EXPECT_FALSE(tasto.toolTip().isEmpty());
  EXPECT_EQ(tasto.parentWidget()->objectName(), voce.Riquadro);
  EXPECT_EQ(Trova<QGroupBox>(*finestra, voce.Riquadro).title(), voce.Titolo);
  if (*voce.Testo == '\0') {
    EXPECT_FALSE(tasto.icon().isNull());
  }
}
INSTANTIATE_TEST_SUITE_P(All, Settings_Option, ::testing::ValuesIn(voci));

TEST_F(Settings, ButtonsHaveTheirCaptions) {
  const auto finestra = Apri();
  EXPECT_EQ(Trova<QAbstractButton>(*finestra, "cmdSet").text(), "Applica e Esci");
  EXPECT_EQ(Trova<QAbstractButton>(*finestra, "cmdEsc").text(), "Annulla e Esci");
}

struct Clock {
  std::int16_t Periodo;
  int Scelta;
  std::int16_t Applicato;
};

constexpr Clock clock_caricati[] = {{100, 0, 100}, {50, 1, 50}, {10, 2, 10}, {20, 0, 100}};

class Settings_Clock : public Settings, public ::testing::WithParamInterface<Clock> {};

TEST_P(Settings_Clock, IsSelectedFromTheVariable) {
  plc.Clock_T = GetParam().Periodo;
  const auto finestra = Apri();
  for (int k = 0; k < 3; ++k)
    EXPECT_EQ(Scelto(*finestra, ("opzT(" + std::to_string(k) + ")").c_str()),
              k == GetParam().Scelta);
  Premi(*finestra, "cmdSet");
  EXPECT_EQ(plc.Clock_T, GetParam().Applicato);
}
INSTANTIATE_TEST_SUITE_P(All, Settings_Clock, ::testing::ValuesIn(clock_caricati));

TEST_F(Settings, ClockGoesToTheVariableAndTheTimer) {
  const auto finestra = Apri();
  Premi(*finestra, "opzT(1)");
  EXPECT_EQ(plc.Clock_T, 100);
  EXPECT_EQ(plc.T100m.Interval(), 100);
  Premi(*finestra, "cmdSet");
  EXPECT_EQ(plc.Clock_T, 50);
  EXPECT_EQ(plc.T100m.Interval(), 50);
  EXPECT_FALSE(finestra->isVisible());
}

TEST_F(Settings, ClockAt10msMakesTimersRunTenTimesAsFast) {
  plc.T100m.Enabled(true);
  plc.Mem_T[37].Conta = -1;
  orologio.Avanza(1000);
  EXPECT_EQ(plc.Mem_T[37].Val, 10);
  const auto finestra = Apri();
  Premi(*finestra, "opzT(2)");
  Premi(*finestra, "cmdSet");
  orologio.Avanza(1000);
  EXPECT_EQ(plc.Mem_T[37].Val, 110);
}

TEST_F(Settings, ContraversAppliedIsSelectedAtTheNextOpening) {
  const auto finestra = Apri();
  Premi(*finestra, "opzSim(1)");
  Premi(*finestra, "cmdSet");
  EXPECT_EQ(scelti, std::vector<bool>{true});
  const auto seconda = Apri();
  EXPECT_TRUE(Scelto(*seconda, "opzSim(1)"));
  EXPECT_FALSE(Scelto(*seconda, "opzSim(0)"));
  Premi(*seconda, "opzSim(0)");
  Premi(*seconda, "cmdSet");
  EXPECT_EQ(scelti, (std::vector<bool>{true, false}));
  EXPECT_EQ(Sim_Contraves, 0);
}

TEST_F(Settings, ContraversThenCancelKeepsTheVariableAndTheSwitches) {
  const auto finestra = Apri();
  Premi(*finestra, "opzSim(1)");
  EXPECT_EQ(Sim_Contraves, -1);
  Premi(*finestra, "cmdEsc");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(Sim_Contraves, -1);
  EXPECT_TRUE(scelti.empty());
  EXPECT_TRUE(Scelto(*Apri(), "opzSim(1)"));
}

TEST_F(Settings, CancelAppliesNothing) {
  plc.SI[0].LED_Tipo(1, 1);
  const auto finestra = Apri();
  for (const char* nome : {"opzCI(2)", "opzT(2)"}) Premi(*finestra, nome);
  Premi(*finestra, "cmdEsc");
  EXPECT_EQ(plc.SI[0].Tipo(), 1);
  EXPECT_EQ(plc.SI[0].Forma(), 1);
  EXPECT_EQ(plc.Clock_T, 100);
  EXPECT_EQ(plc.T100m.Interval(), 100);
}

class Settings_Look : public Settings, public ::testing::WithParamInterface<std::pair<int, int>> {};

TEST_P(Settings_Look, GoesToBothInputBars) {
  const auto [colore, forma] = GetParam();
  for (LedI& barra : plc.SI) barra.LED_Tipo(7, 7);
  const auto finestra = Apri();
  Premi(*finestra, ("opzCI(" + std::to_string(colore) + ")").c_str());
  Premi(*finestra, ("opzTI(" + std::to_string(forma) + ")").c_str());
  Premi(*finestra, "cmdSet");
  for (const LedI& barra : plc.SI) {
    EXPECT_EQ(barra.Tipo(), colore);
    EXPECT_EQ(barra.Forma(), forma);
  }
}
INSTANTIATE_TEST_SUITE_P(All, Settings_Look,
                         ::testing::Values(std::pair{0, 0}, std::pair{0, 1}, std::pair{1, 0},
                                           std::pair{1, 1}, std::pair{2, 0}, std::pair{2, 1}));

TEST_F(Settings, OnlyTheClockChangedPutsTheInputLedsBackToGreen) {
  for (LedI& barra : plc.SI) barra.LED_Tipo(2, 1);
  const auto finestra = Apri();
  EXPECT_TRUE(Scelto(*finestra, "opzCI(0)"));
  Premi(*finestra, "opzT(1)");
  Premi(*finestra, "cmdSet");
  for (const LedI& barra : plc.SI) {
    EXPECT_EQ(barra.Tipo(), 0);
    EXPECT_EQ(barra.Forma(), 0);
  }
}

TEST_F(Settings, TheGroupOfTheOutputsHasNoEffect) {
  for (LedQ& barra : plc.SQ) barra.LED_Tipo(1, 1);
  const auto finestra = Apri();
  Premi(*finestra, "opzCQ(2)");
  Premi(*finestra, "opzTQ(1)");
  Premi(*finestra, "cmdSet");
  for (const LedQ& barra : plc.SQ) {
    EXPECT_EQ(barra.Tipo(), 1);
    EXPECT_EQ(barra.Forma(), 1);
  }
  for (const LedI& barra : plc.SI) EXPECT_EQ(barra.Tipo(), 0);
}

TEST_F(Settings, TheSampleOfTheThumbwheelTurnsAround) {
  const auto finestra = Apri();
  const auto frecce = Trova<QWidget>(*finestra, "UpD1").findChildren<QAbstractButton*>();
  ASSERT_EQ(frecce.size(), 2);
  EXPECT_EQ(Testo(*finestra, "etC1"), "0");
  frecce[1]->click();
  EXPECT_EQ(Testo(*finestra, "etC1"), "9");
  frecce[0]->click();
  frecce[0]->click();
  EXPECT_EQ(Testo(*finestra, "etC1"), "1");
  EXPECT_EQ(Sim_Contraves, 0);
}

TEST_F(Settings, TheKeyboardDoesItAll) {
  const auto finestra = Apri();
  finestra->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  auto& prima = Trova<QRadioButton>(*finestra, "opzSim(0)");
  prima.setFocus();
  QTest::keyClick(&prima, Qt::Key_Down);
  EXPECT_EQ(Sim_Contraves, -1);
  QTest::keyClick(&Trova<QAbstractButton>(*finestra, "cmdSet"), Qt::Key_Return);
  EXPECT_EQ(scelti, std::vector<bool>{true});
  EXPECT_FALSE(finestra->isVisible());
}

}  // namespace
}  // namespace tavorno
