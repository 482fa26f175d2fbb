// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <string>

#include "one_line.h"

namespace tavorno::prova {
namespace {

class Counters : public Una_Riga {
 protected:
  /// Inputs I0.0, I0.1 and I0.2 as given, then one scan.
  void Scansione_Con(bool i0, bool i1, bool i2 = false) {
    Ingresso(0, 0, i0);
    Ingresso(0, 1, i1);
    Ingresso(0, 2, i2);
    Scansione();
  }

  const Riga_Contatore& C5() const { return plc.Mem_C[5]; }
};

// ---- one execution of a line --------------------------------------------------------------------

struct Esecuzione {
  const char* nome;
  const char* istr;
  int preset;
  int pila[3];  // top first
  std::int16_t abilitata;
  std::uint8_t sm01;
  Riga_Contatore prima;  // with a preset that the line replaces
  Riga_Contatore dopo;
};

// CTU: reset, count. CTD: load, count. CTUD: reset, down, up.
// Counter: Val, PV, Uscita, Front_A, Front_B.
const Esecuzione esecuzioni[] = {
    {"Idle", "CTU", 4, {0, 0, 1}, 1, 0, {2, 99, 0, 0, 1}, {2, 4, 0, 0, 1}},
    {"CountsAnEdge", "CTU", 4, {0, 1, 1}, 1, 0, {2, 99, 0, 0, 1}, {3, 4, 0, 1, 1}},
    {"HeldDoesNotCount", "CTU", 4, {0, 1, 1}, 1, 0, {2, 99, 0, 1, 1}, {2, 4, 0, 1, 1}},
    {"ForgetsAFallenInput", "CTU", 4, {0, 0, 1}, 1, 0, {2, 99, 0, 1, 1}, {2, 4, 0, 0, 1}},
    {"ReachesItsPreset", "CTU", 4, {0, 1, 0}, 1, 0, {3, 99, 0, 0, 0}, {4, 4, 1, 1, 0}},
    {"CountsOnAbove", "CTU", 4, {0, 1, 0}, 1, 0, {4, 99, 1, 0, 0}, {5, 4, 1, 1, 0}},
    {"KeepsItsOutputBelow", "CTU", 4, {0, 0, 0}, 1, 0, {2, 99, 1, 0, 0}, {2, 4, 1, 0, 0}},
    {"Reset", "CTU", 4, {1, 0, 0}, 1, 0, {9, 99, 1, 1, 1}, {0, 4, 0, 0, 1}},
    {"CountsFromZeroInAReset", "CTU", 4, {1, 1, 0}, 1, 0, {9, 99, 1, 0, 0}, {1, 4, 0, 1, 0}},
    {"ResetWithAPresetOfZero", "CTU", 0, {1, 0, 0}, 1, 0, {9, 99, 1, 0, 0}, {0, 0, 1, 0, 0}},
    {"FirstScanOnlyMarksTheInput", "CTU", 4, {0, 1, 0}, 1, 1, {2, 99, 0, 0, 0}, {2, 4, 0, 1, 0}},
    {"FirstScanStillResets", "CTU", 4, {1, 0, 0}, 1, 1, {9, 99, 1, 0, 0}, {0, 4, 0, 0, 0}},
    {"DisabledIsNotReset", "CTU", 4, {1, 0, 0}, 0, 0, {9, 99, 1, 0, 0}, {9, 4, 1, 0, 0}},
    {"DisabledForgetsTheInput", "CTU", 4, {0, 1, 0}, 0, 0, {2, 99, 0, 1, 0}, {2, 4, 0, 0, 0}},
    {"DisabledStillCompares", "CTU", 4, {0, 0, 0}, 0, 0, {9, 99, 0, 0, 0}, {9, 4, 1, 0, 0}},
    {"AtTheCeiling", "CTU", 4, {0, 1, 0}, 1, 0, {32766, 99, 1, 0, 0}, {32767, 4, 1, 1, 0}},

    {"Idle", "CTD", 4, {0, 0, 1}, 1, 0, {2, 99, 0, 0, 1}, {2, 4, 0, 0, 1}},
    {"CountsAnEdge", "CTD", 4, {0, 1, 1}, 1, 0, {2, 99, 0, 0, 1}, {1, 4, 0, 1, 1}},
    {"CountsInTheFirstScan", "CTD", 4, {0, 1, 1}, 1, 1, {2, 99, 0, 0, 1}, {1, 4, 0, 1, 1}},
    {"ReachesZero", "CTD", 4, {0, 1, 1}, 1, 0, {1, 99, 0, 0, 1}, {0, 4, 1, 1, 1}},
    {"StaysAtZero", "CTD", 4, {0, 1, 1}, 1, 0, {0, 99, 0, 0, 1}, {0, 4, 1, 1, 1}},
    {"BelowZeroDoesNotCount", "CTD", 4, {0, 1, 1}, 1, 0, {-2, 99, 0, 0, 0}, {-2, 4, 0, 1, 0}},
    {"WithItsOutputOnDoesNotCount", "CTD", 4, {0, 1, 1}, 1, 0, {2, 99, 1, 0, 1}, {2, 4, 1, 1, 1}},
    {"HeldDoesNotCount", "CTD", 4, {0, 1, 1}, 1, 0, {2, 99, 0, 1, 1}, {2, 4, 0, 1, 1}},
    {"ForgetsAFallenInput", "CTD", 4, {0, 0, 1}, 1, 0, {2, 99, 0, 1, 1}, {2, 4, 0, 0, 1}},
    {"Loads", "CTD", 4, {1, 0, 0}, 1, 0, {0, 99, 1, 0, 0}, {4, 4, 0, 0, 1}},
    {"LoadHidesTheEdge", "CTD", 4, {1, 1, 0}, 1, 0, {0, 99, 1, 0, 0}, {4, 4, 0, 0, 1}},
    {"LoadKeepsAnEdgeAlreadySeen", "CTD", 4, {1, 1, 0}, 1, 0, {0, 99, 1, 1, 0}, {4, 4, 0, 1, 1}},
    {"LoadOfZeroGoesOn", "CTD", 0, {1, 0, 0}, 1, 0, {7, 99, 0, 0, 0}, {0, 0, 1, 0, 1}},
    {"LoadsAnythingButZero", "CTD", 4, {2, 0, 0}, 1, 0, {0, 99, 1, 0, 0}, {4, 4, 0, 0, 1}},
    {"DisabledDoesNotLoad", "CTD", 4, {1, 1, 0}, 0, 0, {7, 99, 1, 1, 0}, {7, 4, 1, 0, 0}},
    {"DisabledAtZeroGoesOn", "CTD", 4, {0, 1, 0}, 0, 0, {0, 99, 0, 0, 0}, {0, 4, 1, 0, 0}},

    {"IdleBelow", "CTUD", 4, {0, 0, 0}, 1, 0, {2, 99, 1, 0, 0}, {2, 4, 0, 0, 0}},
    {"IdleAtItsPreset", "CTUD", 4, {0, 0, 0}, 1, 0, {4, 99, 0, 0, 0}, {4, 4, 1, 0, 0}},
    {"CountsUp", "CTUD", 4, {0, 0, 1}, 1, 0, {3, 99, 0, 0, 0}, {4, 4, 1, 0, 1}},
    {"CountsUpInTheFirstScan", "CTUD", 4, {0, 0, 1}, 1, 1, {3, 99, 0, 0, 0}, {4, 4, 1, 0, 1}},
    {"CountsDown", "CTUD", 4, {0, 1, 0}, 1, 0, {4, 99, 1, 0, 0}, {3, 4, 0, 1, 0}},
    {"GoesNegative", "CTUD", 4, {0, 1, 0}, 1, 0, {0, 99, 0, 0, 0}, {-1, 4, 0, 1, 0}},
    {"BothWaysCancel", "CTUD", 4, {0, 1, 1}, 1, 0, {4, 99, 0, 0, 0}, {4, 4, 1, 1, 1}},
    {"HeldDoesNotCount", "CTUD", 4, {0, 1, 1}, 1, 0, {4, 99, 0, 1, 1}, {4, 4, 1, 1, 1}},
    {"ForgetsFallenInputs", "CTUD", 4, {0, 0, 0}, 1, 0, {4, 99, 0, 1, 1}, {4, 4, 1, 0, 0}},
    {"Reset", "CTUD", 4, {1, 0, 0}, 1, 0, {9, 99, 1, 0, 0}, {0, 4, 0, 0, 0}},
    {"CountsUpFromZeroInAReset", "CTUD", 4, {1, 0, 1}, 1, 0, {9, 99, 1, 0, 0}, {1, 4, 0, 0, 1}},
    {"CountsDownFromZeroInAReset", "CTUD", 4, {1, 1, 0}, 1, 0, {9, 99, 1, 0, 0}, {-1, 4, 0, 1, 0}},
    {"ResetByAnythingButZero", "CTUD", 4, {2, 0, 0}, 1, 0, {9, 99, 1, 0, 0}, {0, 4, 0, 0, 0}},
    {"OfZeroIsOnInAReset", "CTUD", 0, {1, 0, 0}, 1, 0, {9, 99, 0, 0, 0}, {0, 0, 1, 0, 0}},
    {"DisabledOnlyCompares", "CTUD", 4, {1, 1, 1}, 0, 0, {9, 99, 0, 1, 1}, {9, 4, 1, 0, 0}},
};

class CounterExecution : public Counters, public ::testing::WithParamInterface<Esecuzione> {};

TEST_P(CounterExecution, ChangesItsOwnCounterOnly) {
  const Esecuzione& caso = GetParam();
  Prepara(std::string(caso.istr) + " C5, +" + std::to_string(caso.preset));
  for (int cella = 0; cella <= 2; ++cella)
    plc.Stak[cella] = static_cast<std::int16_t>(caso.pila[cella]);
  plc.Prog[1].Abil_SCR = caso.abilitata;
  plc.Mem_SM[0].Bit[1] = caso.sm01;
  plc.Mem_C[5] = caso.prima;
  Memoria atteso = plc;
  atteso.Mem_C[5] = caso.dopo;
  Attendi(atteso);
}

INSTANTIATE_TEST_SUITE_P(Line, CounterExecution, ::testing::ValuesIn(esecuzioni),
                         [](const auto& riga) {
                           return std::string(riga.param.istr) + riga.param.nome;
                         });

// ---- presets and limits -------------------------------------------------------------------------

class EveryCounter : public Counters, public ::testing::WithParamInterface<const char*> {
 protected:
  std::string Riga_Con(const std::string& operandi) const {
    return std::string(GetParam()) + " " + operandi;
  }
};
INSTANTIATE_TEST_SUITE_P(Of, EveryCounter, ::testing::Values("CTU", "CTD", "CTUD"),
                         [](const auto& riga) { return std::string(riga.param); });

TEST_P(EveryCounter, TakesItsPresetFromAConstantOrTheContentOfAWord) {
  plc.Mem_VW[7] = -300;
  for (const auto& [testo, preset] :
       {std::pair{"C5, +25", 25}, {"C5, -4", -4}, {"C5, VW7", -300}}) {
    for (const bool abilitata : {false, true}) {
      Prepara(Riga_Con(testo));
      for (int cella = 0; cella <= 2; ++cella) plc.Stak[cella] = 0;
      plc.Prog[1].Abil_SCR = abilitata ? 1 : 0;
      plc.Mem_C[5] = {400, 99, 1, 0, 0};
      Memoria atteso = plc;
      atteso.Mem_C[5].PV = static_cast<std::int16_t>(preset);
      Attendi(atteso);
    }
  }
}

TEST_P(EveryCounter, RefusesAPresetFromAnyOtherAreaAccumulatorsAmongThem) {
  for (const char* area :
       {"AC0", "I0.0", "Q0.0", "M0.0", "S0.0", "SM0.0", "T0",   "C0",   "IB0", "QB0",
        "MB0", "SMB0", "VB0",  "IW0",  "QW0",  "MW0",   "AIW0", "AQW0", "VD0", ""}) {
    SCOPED_TRACE(area);
    Prepara(Riga_Con(std::string("C5, ") + area));
    Attendi_Errore();
  }
}

TEST_P(EveryCounter, ReachesFromZeroToTwenty) {
  for (const int numero : {0, 20}) {
    Prepara(Riga_Con("C" + std::to_string(numero) + ", +25"));
    plc.Esegui_Riga();
    EXPECT_EQ(plc.Mem_C[numero].PV, 25);
  }
  Prepara(Riga_Con("C21, +25"));
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

TEST_F(Counters, CountBeyondItsCellIsFatal) {
  struct Caso {
    const char* riga;
    std::int16_t pila[3], valore;
  };
  for (const Caso& caso :
       {Caso{"CTU C5, +4", {0, 1, 0}, 32767}, Caso{"CTUD C5, +4", {0, 0, 1}, 32767},
        Caso{"CTUD C5, +4", {0, 1, 0}, -32768}}) {
    SCOPED_TRACE(caso.riga);
    Prepara(caso.riga);
    for (int cella = 0; cella <= 2; ++cella) plc.Stak[cella] = caso.pila[cella];
    plc.Mem_C[5] = {caso.valore, 0, 0, 0, 0};
    EXPECT_THROW(plc.Esegui_Riga(), Fatale);
  }
}

TEST_F(Counters, CtdLoadedFromAWordHoldsTheNumberOfTheWordAndNotItsContent) {
  Prepara("CTD C5, VW3");
  plc.Mem_VW[3] = 500;
  plc.Stak[1] = 0;
  plc.Mem_C[5] = {0, 99, 1, 0, 0};
  Memoria atteso = plc;
  atteso.Mem_C[5] = {3, 500, 0, 0, 1};
  Attendi(atteso);
}

// ---- over several scans -------------------------------------------------------------------------

class CounterInTheFirstScan : public Counters, public ::testing::WithParamInterface<Modo> {
 protected:
  /// A run of one scan in the mode of the test; in Cont one line more is executed.
  void Una_Scansione() {
    switch (GetParam()) {
      case Modo::Cont:
        Run_Cont(1);
        break;
      case Modo::Ciclo:
        plc.Scelte.chkSol = true;
        plc.mnuPlcCiclo();
        plc.mnuPlcRun();
        break;
      case Modo::Step:
        Run_Step();
        Scansione();
        break;
    }
  }
};
std::string Nome_Modo(const ::testing::TestParamInfo<Modo>& modo) {
  return modo.param == Modo::Cont ? "Cont" : modo.param == Modo::Ciclo ? "Ciclo" : "Step";
}
INSTANTIATE_TEST_SUITE_P(Mode, CounterInTheFirstScan,
                         ::testing::Values(Modo::Cont, Modo::Ciclo, Modo::Step), Nome_Modo);

TEST_P(CounterInTheFirstScan, CtuWithItsInputOnDoesNotCount) {
  plc.Init_PLC();
  Carica({"LD I0.0", "LD I0.1", "CTU C5, +4"});
  Ingresso(0, 0, true);
  Una_Scansione();
  EXPECT_EQ(plc.N_Cicli, 1);
  EXPECT_EQ(C5(), (Riga_Contatore{0, 4, 0, 1, 0}));
  while (plc.PC != 0) plc.Esegui_Riga();
  Scansione();
  EXPECT_EQ(C5().Val, 0);  // still the same press
  Scansione_Con(false, false);
  Scansione_Con(true, false);
  EXPECT_EQ(C5(), (Riga_Contatore{1, 4, 0, 1, 0}));
}

TEST_P(CounterInTheFirstScan, CtudWithItsInputOnCounts) {
  plc.Init_PLC();
  Carica({"LD I0.0", "LD I0.1", "LD I0.2", "CTUD C5, +4"});
  Ingresso(0, 0, true);
  Una_Scansione();
  EXPECT_EQ(C5(), (Riga_Contatore{1, 4, 0, 0, 1}));
}

TEST_F(Counters, CtuCountsPressesUntilItsReset) {
  plc.Init_PLC();
  Carica({"LD I0.0", "LD I0.1", "CTU C5, +2", "LD C5", "= Q0.0"});
  Run_Step();
  Scansione();
  for (const int preme : {1, 2, 3}) {
    Scansione_Con(true, false);
    Scansione_Con(false, false);
    EXPECT_EQ(C5().Val, preme);
    EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], preme >= 2 ? 1 : 0);
  }
  Scansione_Con(false, true);
  EXPECT_EQ(C5(), (Riga_Contatore{0, 2, 0, 0, 0}));
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 0);
}

TEST_F(Counters, CtdCountsDownToZeroAndWaitsForTheNextLoad) {
  plc.Init_PLC();
  Carica({"LD I0.0", "LD I0.1", "CTD C5, +2"});
  Run_Step();
  Scansione();
  EXPECT_EQ(C5(), (Riga_Contatore{0, 2, 1, 0, 0}));
  Scansione_Con(false, true);
  EXPECT_EQ(C5(), (Riga_Contatore{2, 2, 0, 0, 1}));
  for (const int resto : {1, 0, 0}) {
    Scansione_Con(true, false);
    Scansione_Con(false, false);
    EXPECT_EQ(C5().Val, resto);
    EXPECT_EQ(C5().Uscita, resto == 0 ? 1 : 0);
  }
}

TEST_F(Counters, CtudReadsUpThenDownThenResetFromTheProgram) {
  plc.Init_PLC();
  Carica({"LD I0.0", "LD I0.1", "LD I0.2", "CTUD C5, +2"});
  Run_Step();
  Scansione();
  Scansione_Con(true, false, false);
  Scansione_Con(false, true, false);
  Scansione_Con(false, false, false);
  Scansione_Con(false, true, false);
  EXPECT_EQ(C5().Val, -1);
  Scansione_Con(true, false, true);  // the edge counts from 0 in the scan of the reset
  EXPECT_EQ(C5(), (Riga_Contatore{1, 2, 0, 0, 1}));
}

TEST_F(Counters, RunLeavesCountersAsTheyWere) {
  Carica({"NOP"});
  const auto prima = plc.Mem_C;
  Run_Step();
  plc.mnuPlcStop();
  Run_Step();
  EXPECT_EQ(plc.Mem_C, prima);
}

TEST_F(Counters, ActivatingTheWindowInARunClearsCountersAndStopsTimers) {
  Carica({"NOP"});
  Run_Step();
  plc.Mem_T[5] = {7, 10, 1, -1};
  Memoria atteso = plc;
  for (Riga_Contatore& contatore : atteso.Mem_C) contatore = {};
  atteso.Mem_T[5].Conta = 0;
  plc.Init_PLC();
  EXPECT_TRUE(plc == atteso);
}

TEST_F(Counters, ResetInstructionLeavesThePresetAndTheEdgeMemory) {
  Prepara("R C5, 1");
  plc.Mem_C[5] = {9, 4, 1, 1, 1};
  Memoria atteso = plc;
  atteso.Mem_C[5] = {0, 4, 0, 1, 1};
  Attendi(atteso);
}

}  // namespace
}  // namespace tavorno::prova
