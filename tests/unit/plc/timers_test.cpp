// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <string>
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {
namespace {

class Timers : public Una_Riga {
 protected:
  /// A program of one network that starts with `LD I0.0`, in its first scan done.
  void Avvia(std::vector<std::string> righe) {
    righe.insert(righe.begin(), "LD I0.0");
    Carica(std::move(righe));
    Run_Step();
    Scansione();
  }

  void Ingresso_E_Scansione(bool acceso) {
    Ingresso(0, 0, acceso);
    Scansione();
  }

  const Riga_Timer& T5() const { return plc.Mem_T[5]; }
};

// ---- one execution of a line --------------------------------------------------------------------

struct Esecuzione {
  const char* nome;
  const char* istr;
  bool flusso;
  std::int16_t fronte;
  Riga_Timer prima;  // with a preset that the line replaces by 10
  Riga_Timer dopo;
  std::int16_t fronte_dopo;
};

const Esecuzione esecuzioni[] = {
    {"TonStartsBelowItsPreset", "TON", true, 0, {9, 99, 1, 0}, {9, 10, 0, -1}, 0},
    {"TonStartsAtItsPreset", "TON", true, 0, {10, 99, 0, 0}, {10, 10, 1, -1}, 0},
    {"TonStartsAboveItsPreset", "TON", true, 0, {11, 99, 0, 0}, {11, 10, 1, -1}, 0},
    {"TonRunsOnBelowItsPreset", "TON", true, 0, {9, 99, 0, -1}, {9, 10, 0, -1}, 0},
    {"TonRunningKeepsItsOutput", "TON", true, 0, {9, 99, 1, -1}, {9, 10, 1, -1}, 0},
    {"TonReachesItsPreset", "TON", true, 0, {10, 99, 0, -1}, {10, 10, 1, -1}, 0},
    {"TonRunsOnAboveItsPreset", "TON", true, 0, {32760, 99, 1, -1}, {32760, 10, 1, -1}, 0},
    {"TonWithoutFlowIsCleared", "TON", false, 0, {9, 99, 1, -1}, {0, 10, 0, 0}, 0},
    {"TonReachedWithoutFlowIsCleared", "TON", false, 0, {10, 99, 0, -1}, {0, 10, 0, 0}, 0},
    {"TonLeavesTheEdgeMemoryAlone", "TON", true, 1, {9, 99, 0, -1}, {9, 10, 0, -1}, 1},

    {"TofIdleStaysOff", "TOF", false, 0, {0, 99, 0, 0}, {0, 10, 0, 0}, 0},
    {"TofRisesWithItsInput", "TOF", true, 0, {0, 99, 0, 0}, {0, 10, 1, 0}, 1},
    {"TofRisesAgainAfterItsTime", "TOF", true, 0, {10, 99, 1, -1}, {0, 10, 1, 0}, 1},
    {"TofRisingWhileTimingIsCleared", "TOF", true, 0, {5, 99, 1, -1}, {0, 10, 1, 0}, 1},
    {"TofRisingWhileTimingSetsNoOutput", "TOF", true, 0, {5, 99, 0, -1}, {0, 10, 0, 0}, 1},
    {"TofHeldSetsItsOutput", "TOF", true, 1, {0, 99, 0, 0}, {0, 10, 1, 0}, 1},
    {"TofHeldKeepsItsValue", "TOF", true, 1, {12, 99, 1, 0}, {12, 10, 1, 0}, 1},
    {"TofFallingStartsToTime", "TOF", false, 1, {0, 99, 1, 0}, {0, 10, 1, -1}, 0},
    {"TofFallingAtItsPresetTimesUnlit", "TOF", false, 1, {10, 99, 1, 0}, {10, 10, 0, -1}, 0},
    {"TofTimesBelowItsPreset", "TOF", false, 0, {9, 99, 1, -1}, {9, 10, 1, -1}, 0},
    {"TofEndsAtItsPreset", "TOF", false, 0, {10, 99, 1, -1}, {10, 10, 0, 0}, 0},
    {"TofEndsAboveItsPreset", "TOF", false, 0, {11, 99, 1, -1}, {11, 10, 0, 0}, 0},

    {"TonrStartsBelowItsPreset", "TONR", true, 0, {9, 99, 1, 0}, {9, 10, 0, -1}, 0},
    {"TonrStartsAtItsPreset", "TONR", true, 0, {10, 99, 0, 0}, {10, 10, 1, -1}, 0},
    {"TonrRunsOnBelowItsPreset", "TONR", true, 0, {9, 99, 0, -1}, {9, 10, 0, -1}, 0},
    {"TonrRunningKeepsItsOutput", "TONR", true, 0, {9, 99, 1, -1}, {9, 10, 1, -1}, 0},
    {"TonrReachesItsPreset", "TONR", true, 0, {10, 99, 0, -1}, {10, 10, 1, -1}, 0},
    {"TonrWithoutFlowOnlyStops", "TONR", false, 0, {9, 99, 0, -1}, {9, 10, 0, 0}, 0},
    {"TonrWithoutFlowKeepsItsOutput", "TONR", false, 0, {9, 99, 1, -1}, {9, 10, 1, 0}, 0},
    {"TonrReachedWithoutFlowGoesOn", "TONR", false, 0, {10, 99, 0, -1}, {10, 10, 1, 0}, 0},
};

class TimerExecution : public Timers, public ::testing::WithParamInterface<Esecuzione> {};

TEST_P(TimerExecution, ChangesItsOwnTimerOnly) {
  const Esecuzione& caso = GetParam();
  const auto prova = [&](Porta porta) {
    Prepara(std::string(caso.istr) + " T5, +10", porta);
    plc.Mem_T[5] = caso.prima;
    plc.Prog[1].Fronte = caso.fronte;
    Memoria atteso = plc;
    atteso.Mem_T[5] = caso.dopo;
    atteso.Prog[1].Fronte = caso.fronte_dopo;
    Attendi(atteso);
  };
  if (caso.flusso) {
    prova(aperta);
  } else {
    for (const Porta& porta : chiuse) prova(porta);
  }
}

INSTANTIATE_TEST_SUITE_P(Line, TimerExecution, ::testing::ValuesIn(esecuzioni),
                         [](const auto& riga) { return std::string(riga.param.nome); });

// ---- presets ------------------------------------------------------------------------------------

class TimerPreset : public Timers, public ::testing::WithParamInterface<const char*> {
 protected:
  std::string Riga_Con(const std::string& preset) const {
    return std::string(GetParam()) + " T5, " + preset;
  }
};
std::string Nome(const ::testing::TestParamInfo<const char*>& istruzione) {
  return istruzione.param;
}
INSTANTIATE_TEST_SUITE_P(Every, TimerPreset, ::testing::Values("TON", "TOF", "TONR"), Nome);

TEST_P(TimerPreset, IsTakenFromConstantWordOrAccumulatorAtEveryExecution) {
  plc.Mem_VW[7] = -3;
  plc.Mem_VW[8] = 32767;
  for (const auto& [testo, numero, ac, atteso_pt] : {std::tuple{"+25", 0, 0.0F, 25},
                                                     {"-4", 0, 0.0F, -4},
                                                     {"VW7", 0, 0.0F, -3},
                                                     {"VW8", 0, 0.0F, 32767},
                                                     {"AC2", 2, 2.5F, 2},
                                                     {"AC2", 2, 3.5F, 4},
                                                     {"AC2", 2, -2.5F, -2},
                                                     {"AC2", 2, 32767.0F, 32767}}) {
    SCOPED_TRACE(testo);
    plc.Mem_AC[numero] = ac;
    Prepara(Riga_Con(testo));
    plc.Mem_T[5] = {0, 99, 0, 0};
    plc.Esegui_Riga();
    EXPECT_EQ(T5().PT, atteso_pt);
    EXPECT_TRUE(avvisi.empty());
  }
}

TEST_P(TimerPreset, IsSetWithoutPowerFlowToo) {
  for (const Porta& porta : chiuse) {
    Prepara(Riga_Con("+25"), porta);
    plc.Mem_T[5] = {0, 99, 0, 0};
    Memoria atteso = plc;
    atteso.Mem_T[5].PT = 25;
    Attendi(atteso);
  }
}

TEST_P(TimerPreset, FromAnyOtherAreaIsARunTimeError) {
  for (const char* area : {"I0.0", "Q0.0", "M0.0", "S0.0", "SM0.0", "T0", "C0", "IB0", "QB0", "MB0",
                           "SMB0", "VB0", "IW0", "QW0", "MW0", "AIW0", "AQW0", "VD0", ""}) {
    SCOPED_TRACE(area);
    Prepara(Riga_Con(area));
    Attendi_Errore();
  }
}

TEST_P(TimerPreset, BeyondItsCellIsFatal) {
  plc.Mem_AC[2] = 32768.0F;
  Prepara(Riga_Con("AC2"));
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

class TimerNumber : public Timers, public ::testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Every, TimerNumber, ::testing::Values("TON", "TOF", "TONR"), Nome);

TEST_P(TimerNumber, ReachesFromZeroToForty) {
  for (const int numero : {0, 40}) {
    Prepara(std::string(GetParam()) + " T" + std::to_string(numero) + ", +10");
    plc.Mem_T[numero] = {};
    plc.Esegui_Riga();
    EXPECT_EQ(plc.Mem_T[numero].PT, 10);
  }
  Prepara(std::string(GetParam()) + " T41, +10");
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

// ---- the tick -----------------------------------------------------------------------------------

TEST_F(Timers, TickAddsToRunningTimersOnlyAndLooksAtNothingElse) {
  Carica({"NOP"});
  Run_Step();
  plc.Mem_T[0] = {3, 0, 0, -1};   // far above its preset
  plc.Mem_T[40] = {3, 9, 1, -1};  // with its output on, and no line that names it
  plc.Mem_T[20] = {3, 9, 0, 0};
  plc.Mem_SM[0].Bit[5] = 1;
  plc.Mem_AIW[0] = plc.Mem_AQW[0] = 0;  // the analog exchange goes on meanwhile
  Memoria atteso = plc;
  atteso.Mem_T[0].Val = 4;
  atteso.Mem_T[40].Val = 4;
  orologio.Avanza(99);
  EXPECT_EQ(plc.Mem_T[0].Val, 3);
  orologio.Avanza(1);
  EXPECT_TRUE(plc == atteso);
}

TEST_F(Timers, TickStopsAtTheCeiling) {
  Carica({"NOP"});
  Run_Step();
  plc.Mem_T[1] = {32759, 0, 0, -1};
  plc.Mem_T[2] = {32760, 0, 0, -1};
  plc.Mem_T[3] = {32765, 0, 0, -1};  // arithmetic can write such a value
  plc.Mem_T[4] = {32765, 0, 0, 0};
  for (int tick = 0; tick < 3; ++tick) {
    orologio.Avanza(100);
    for (const int numero : {1, 2, 3}) EXPECT_EQ(plc.Mem_T[numero].Val, 32760);
    EXPECT_EQ(plc.Mem_T[4].Val, 32765);
  }
}

TEST_F(Timers, ShorterTickMakesEveryTimerFaster) {
  Avvia({"TON T5, +10", "LD SM0.0", "TON T37, +10"});
  Ingresso_E_Scansione(true);
  plc.T100m.Interval(10);
  orologio.Avanza(100);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{10, 10, 1, -1}));
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 10, 1, -1}));
}

TEST_F(Timers, NoTickComesOutsideARun) {
  plc.Mem_T[5] = {3, 9, 0, -1};
  orologio.Avanza(1000);
  EXPECT_EQ(T5().Val, 3);
  Avvia({"TON T5, +10"});
  Ingresso_E_Scansione(true);
  orologio.Avanza(200);
  plc.mnuPlcStop();
  orologio.Avanza(1000);
  EXPECT_EQ(T5(), (Riga_Timer{2, 10, 0, -1}));
}

TEST_F(Timers, RunClearsAllTimersAndTheEdgeMemoryOfAllLines) {
  Carica({"LD I0.0", "TOF T5, +10"});
  plc.Mem_T[40].Conta = -1;
  plc.Prog[1].Fronte = 1;
  Run_Step();
  for (const Riga_Timer& timer : plc.Mem_T) EXPECT_EQ(timer, Riga_Timer{});
  EXPECT_EQ(plc.Prog[1].Fronte, 0);
}

// ---- over several scans -------------------------------------------------------------------------

TEST_F(Timers, TonOnASteadyInputGoesOnAfterItsTimeWhenItsLineRuns) {
  Avvia({"TON T5, +10"});
  Ingresso_E_Scansione(true);
  for (int decimo = 1; decimo <= 9; ++decimo) {
    orologio.Avanza(100);
    Scansione();
    EXPECT_EQ(T5(), (Riga_Timer{static_cast<std::int16_t>(decimo), 10, 0, -1}));
  }
  orologio.Avanza(100);
  EXPECT_EQ(T5(), (Riga_Timer{10, 10, 0, -1}));  // reached, and not yet looked at
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{10, 10, 1, -1}));
  plc.Mem_T[5].Val = 32758;
  orologio.Avanza(1000);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{32760, 10, 1, -1}));
}

TEST_F(Timers, TonWithAPresetOfZeroGoesOnAtOnce) {
  Avvia({"TON T5, +0"});
  EXPECT_EQ(T5(), (Riga_Timer{0, 0, 0, 0}));
  Ingresso_E_Scansione(true);
  EXPECT_EQ(T5(), (Riga_Timer{0, 0, 1, -1}));
}

TEST_F(Timers, TonWithItsInputOffStaysAtZero) {
  Avvia({"TON T5, +10"});
  for (int i = 0; i < 5; ++i) {
    orologio.Avanza(1000);
    Scansione();
    EXPECT_EQ(T5(), (Riga_Timer{0, 10, 0, 0}));
  }
}

TEST_F(Timers, TofWithItsInputOffSinceRunNeverTimes) {
  Avvia({"TOF T5, +10"});
  for (int i = 0; i < 5; ++i) {
    orologio.Avanza(1000);
    Scansione();
    EXPECT_EQ(T5(), (Riga_Timer{0, 10, 0, 0}));
  }
  Ingresso_E_Scansione(true);
  EXPECT_EQ(T5(), (Riga_Timer{0, 10, 1, 0}));
  Ingresso_E_Scansione(false);
  EXPECT_EQ(T5(), (Riga_Timer{0, 10, 1, -1}));
  orologio.Avanza(900);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{9, 10, 1, -1}));
  orologio.Avanza(100);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{10, 10, 0, 0}));
}

TEST_F(Timers, TofWhoseInputComesBackHoldsItsOutputAndTimesAnew) {
  Avvia({"TOF T5, +10"});
  Ingresso_E_Scansione(true);
  Ingresso_E_Scansione(false);
  orologio.Avanza(500);
  Ingresso_E_Scansione(true);
  EXPECT_EQ(T5(), (Riga_Timer{0, 10, 1, 0}));
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{0, 10, 1, 0}));
  Ingresso_E_Scansione(false);
  orologio.Avanza(900);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{9, 10, 1, -1}));
}

TEST_F(Timers, TonrInterruptedHalfwayNeedsTheOtherHalf) {
  Avvia({"TONR T5, +30"});
  Ingresso_E_Scansione(true);
  orologio.Avanza(1500);
  Ingresso_E_Scansione(false);
  orologio.Avanza(5000);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{15, 30, 0, 0}));
  Ingresso_E_Scansione(true);
  orologio.Avanza(1400);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{29, 30, 0, -1}));
  orologio.Avanza(100);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{30, 30, 1, -1}));
  Ingresso_E_Scansione(false);
  EXPECT_EQ(T5(), (Riga_Timer{30, 30, 1, 0}));
}

TEST_F(Timers, TonrIsClearedByResetAloneAndKeepsItsPreset) {
  Avvia({"TONR T5, +30", "LD I0.1", "R T5, 1"});
  Ingresso_E_Scansione(true);
  orologio.Avanza(3000);
  Ingresso_E_Scansione(false);
  EXPECT_EQ(T5(), (Riga_Timer{30, 30, 1, 0}));
  Ingresso(0, 1, true);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{0, 30, 0, 0}));
}

TEST_F(Timers, PresetInAWordFollowsItsVariableWhileTheTimerRuns) {
  plc.Mem_VW[7] = 50;
  Avvia({"TON T5, VW7"});
  Ingresso_E_Scansione(true);
  orologio.Avanza(1000);
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{10, 50, 0, -1}));
  plc.Mem_VW[7] = 10;
  Scansione();
  EXPECT_EQ(T5(), (Riga_Timer{10, 10, 1, -1}));
}

}  // namespace
}  // namespace tavorno::prova
