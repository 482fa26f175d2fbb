// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/rest.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "cpu.h"

namespace tavorno::prova {

/// A program run in whole scans of a millisecond, each reported.
class Rest : public Cpu {
 protected:
  explicit Rest(Riposo::Per chi = Riposo::Per::Le_Righe) : riposo(plc, chi) {}

  void Avvia(const std::vector<std::string>& righe) {
    Carica(righe);
    Run_Step();
  }

  /// One scan and a millisecond; whether the next scan would change nothing.
  bool Una_Scansione() {
    riposo.Riposa();
    const auto finite = plc.N_Cicli;
    std::int64_t righe = 0;
    while (plc.N_Cicli == finite) righe += plc.Esegui_Righe(1000);
    const bool riposa = riposo.Scansione_Fatta(righe);
    orologio.Avanza(1);
    return riposa;
  }

  /// Scans until rest, -1 when there is none in a thousand.
  int Scansioni_Fino_Al_Riposo() {
    for (int n = 1; n <= 1000; ++n) {
      if (Una_Scansione()) return n;
    }
    return -1;
  }

  Riposo riposo;
};

TEST_F(Rest, ComesOnceAScanHasChangedNothing) {
  Avvia({"LD I0.0", "= Q0.0"});
  EXPECT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  EXPECT_TRUE(riposo.Riposa());
  EXPECT_EQ(riposo.Righe(5), 15);
  EXPECT_EQ(riposo.Saltabili(5), 5);
}

TEST_F(Rest, ComesOnceTwoScansHaveChangedNothingWhereTheTogglingBitIsRead) {
  for (const char* riga : {"A SM0.6", "MOVB SMB0, VB0"}) {
    SCOPED_TRACE(riga);
    riposo.Da_Capo();
    Avvia({"LD I0.0", riga, "= Q0.0"});
    EXPECT_EQ(Scansioni_Fino_Al_Riposo(), 3);
    plc.mnuPlcStop();
  }
}

TEST_F(Rest, WaitsForNoTickThatWouldChangeNothing) {
  Avvia({"LD I0.0", "TON T37, +30"});
  ASSERT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  EXPECT_EQ(riposo.Prossimo(), plc.tim1.Scadenza());
  orologio.Avanza(plc.tim1.Scadenza() - orologio.Adesso() - 1);
  EXPECT_TRUE(riposo.Riposa());
}

TEST_F(Rest, WaitsForTheTimersWhileOneCounts) {
  Avvia({"LD SM0.0", "TON T37, +30"});
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  EXPECT_EQ(riposo.Prossimo(), plc.T100m.Scadenza());
  plc.Mem_T[37].Val = 32760;
  EXPECT_EQ(riposo.Prossimo(), plc.tim1.Scadenza());
  plc.Mem_T[37].Val = 32761;  // the tick takes it back
  EXPECT_EQ(riposo.Prossimo(), plc.T100m.Scadenza());
}

TEST_F(Rest, WaitsForTheAnalogExchangeWhileItHasSomethingToDo) {
  Avvia({"LD I0.0", "= Q0.0"});
  ASSERT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  for (const float volt : {5.0F, -0.5F, 1.0e9F}) {
    plc.Volt_AI[2] = volt;
    EXPECT_EQ(riposo.Prossimo(), plc.timIO.Scadenza()) << volt;
  }
  plc.Volt_AI[2] = 5;
  orologio.Avanza(20);
  EXPECT_EQ(riposo.Prossimo(), plc.tim1.Scadenza());
  for (const std::int32_t parola : {1, INT32_MAX}) {
    plc.Mem_AQW[2] = parola;
    EXPECT_EQ(riposo.Prossimo(), plc.timIO.Scadenza()) << parola;
  }
  plc.Mem_AQW[2] = 1;
  orologio.Avanza(20);
  EXPECT_EQ(riposo.Prossimo(), plc.tim1.Scadenza());
}

TEST_F(Rest, WaitsForEachTickWhereWhatEntersIsWrittenDown) {
  Avvia({"LD I0.0", "= Q0.0"});
  ASSERT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  {
    const Iscrizione ascolto = plc.Hook.Entra.Ascolta([](const Atto&) {});
    EXPECT_EQ(riposo.Prossimo(), plc.timIO.Scadenza());
  }
  EXPECT_EQ(riposo.Prossimo(), plc.tim1.Scadenza());
}

TEST_F(Rest, NeverComesToWhatGrowsOrTogglesByItself) {
  for (const std::vector<std::string>& righe : {std::vector<std::string>{"LD SM0.0", "INCW VW0"},
                                                {"LD SM0.6", "= Q0.0"},
                                                {"LDN Q0.0", "= Q0.0"},
                                                {"LD SM0.0", "RRW VW0, +5"}}) {
    SCOPED_TRACE(righe[1]);
    riposo.Da_Capo();
    Avvia(righe);
    EXPECT_EQ(Scansioni_Fino_Al_Riposo(), -1);
    plc.mnuPlcStop();
  }
}

TEST_F(Rest, EndsWithATickAHandAndAnOption) {
  Avvia({"LD I0.0", "TON T37, +30", "LD SM0.5", "= Q0.1"});
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  Ingresso(0, 0, true);
  EXPECT_FALSE(riposo.Riposa());
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  orologio.Avanza(100);  // the timer counts
  EXPECT_FALSE(riposo.Riposa());
  Ingresso(0, 0, false);
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  orologio.Avanza(500 - orologio.Adesso() % 500);  // SM0.5
  EXPECT_FALSE(riposo.Riposa());
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  plc.Scelte.chkIP = true;
  EXPECT_FALSE(riposo.Riposa());
}

// The pulse of an edge falls in the scan behind it, and then nothing is left to do.
TEST_F(Rest, ComesThreeScansBehindAnEdge) {
  std::vector<std::string> righe = {"LD I0.0", "EU", "S M0.0, 1", "= M0.1", "LD M0.1", "INCW VW0"};
  righe.insert(righe.end(), 8, "LD SM0.0");  // nothing of the pulse is left on the stack
  Avvia(righe);
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  for (int n = 1; n <= 3; ++n) {
    Ingresso(0, 0, true);
    EXPECT_EQ(Scansioni_Fino_Al_Riposo(), 3);
    EXPECT_EQ(plc.Mem_VW[0], n);
    EXPECT_EQ(riposo.Saltabili(1), 1);
    EXPECT_TRUE(riposo.Riposa());
    Ingresso(0, 0, false);
    EXPECT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  }
}

/// What came between two scans, and a program that can or cannot tell.
struct Novita_Tra_Scansioni {
  const char* Cosa;
  std::vector<std::string> Righe;
  std::function<void(Plc&)> Succede;
  bool Riposa;
};

class RestAndChange : public Rest, public testing::WithParamInterface<Novita_Tra_Scansioni> {
 protected:
  using Rest::Rest;

  void Riposa_E_Succede(const Novita_Tra_Scansioni& riga) {
    Avvia(riga.Righe);
    ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
    plc.Mem_T[37].Val = 20;
    plc.Mem_AIW[2] = 10000;
    ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
    ASSERT_TRUE(riposo.Riposa());
    riga.Succede(plc);
  }
};

struct RestThrough : RestAndChange {};

void Conta(Plc& plc) {
  plc.Mem_T[37].Val = static_cast<std::int16_t>(plc.Mem_T[37].Val + 1);
}
void Sale(Plc& plc) {
  plc.Mem_AIW[2] = 20000;
}
void Batte(Plc& plc) {
  plc.Mem_SM[0].Bit[5] ^= 1U;
}

TEST_P(RestThrough, WhatTheProgramCannotTell) {
  ASSERT_NO_FATAL_FAILURE(Riposa_E_Succede(GetParam()));
  EXPECT_EQ(riposo.Riposa(), GetParam().Riposa);
  if (!GetParam().Riposa) return;
  // And indeed a scan finds nothing to do.
  Memoria atteso = plc;
  atteso.Mem_SM[0].Bit[6] ^= 1U;
  EXPECT_TRUE(Una_Scansione());
  EXPECT_TRUE(static_cast<const Memoria&>(plc) == atteso);
}

const Novita_Tra_Scansioni novita_tra_scansioni[] = {
    {"ATimerBelowItsPreset", {"LD SM0.0", "TON T37, +30"}, Conta, true},
    {"ATimerThatReachesItsPreset", {"LD SM0.0", "TON T37, +21"}, Conta, false},
    {"ATimerBeyondItsPreset", {"LD SM0.0", "TONR T37, +10"}, Conta, true},
    {"ATimerThatOnlyFades", {"LD I0.0", "TOF T37, +30"}, Conta, true},
    {"ATimerUnderAConstant", {"LD SM0.0", "TON T37, +99", "LDW>= T37, +22", "= Q0.0"}, Conta, true},
    {"ATimerThatMeetsAConstant",
     {"LD SM0.0", "TON T37, +99", "LDW>= T37, +21", "= Q0.0"},
     Conta,
     false},
    {"ATimerThatLeavesAConstant",
     {"LD SM0.0", "TON T37, +99", "LDW= +20, T37", "= Q0.0"},
     Conta,
     false},
    {"ATimerThatIsCopied", {"LD SM0.0", "TON T37, +99", "MOVW T37, VW0"}, Conta, false},
    {"ATimerAgainstAVariable",
     {"LD SM0.0", "TON T37, +99", "LDW< T37, VW0", "= Q0.0"},
     Conta,
     false},
    {"ATimerWithAVariablePreset", {"LD SM0.0", "MOVW +99, VW0", "TON T37, VW0"}, Conta, false},
    {"AnInputBetweenConstants",
     {"LDW> AIW2, +9999", "= Q0.0", "LDW< AIW2, +20001", "= Q0.1"},
     Sale,
     true},
    {"AnInputThatPassesAConstant", {"LDW> AIW2, +15000", "= Q0.0"}, Sale, false},
    {"AnInputThatReachesAConstant", {"LDW<= +20000, AIW2", "= Q0.0"}, Sale, false},
    {"AnInputThatIsSummed", {"LD SM0.0", "MOVW +1, VW0", "+I AIW2, VW0"}, Sale, false},
    {"AnInputBeyondAllWords",
     {"LDW> AIW2, +9999", "= Q0.0"},
     [](Plc& plc) { plc.Mem_AIW[2] = 32768; },
     false},
    {"AnInputThatNobodyReads", {"LD I0.0", "= Q0.0"}, Sale, true},
    {"AChannel", {"LDW> AIW2, +9999", "= Q0.0"}, [](Plc& plc) { plc.Volt_AI[1] = 7; }, true},
    {"AClockThatNobodyReads", {"LD SM0.4", "= Q0.0"}, Batte, true},
    {"AClock", {"LD SM0.5", "= Q0.0"}, Batte, false},
    {"AClockInItsByte", {"LD I0.0", "MOVB SMB0, VB0"}, Batte, false},
};
INSTANTIATE_TEST_SUITE_P(Cells, RestThrough, testing::ValuesIn(novita_tra_scansioni),
                         [](const auto& riga) { return std::string(riga.param.Cosa); });

// Who looks on at the top of a scan sees all of these.
struct WatchedRest : RestAndChange {
  WatchedRest() : RestAndChange(Riposo::Per::Chi_Guarda) {}
};

TEST_P(WatchedRest, EndsWithAnyChange) {
  ASSERT_NO_FATAL_FAILURE(Riposa_E_Succede(GetParam()));
  EXPECT_FALSE(riposo.Riposa());
}

INSTANTIATE_TEST_SUITE_P(Cells, WatchedRest, testing::ValuesIn(novita_tra_scansioni),
                         [](const auto& riga) { return std::string(riga.param.Cosa); });

// The timer is cleared in each scan, so its first tick is always seen.
TEST_F(Rest, EndsWithTheFirstTickOfATimer) {
  Avvia({"LD SM0.0", "R T37, 1", "TON T37, +30"});
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  Conta(plc);
  EXPECT_FALSE(riposo.Riposa());
  Una_Scansione();
  EXPECT_EQ(plc.Mem_T[37].Val, 0);
}

// A cell that a scan clears looks the same behind it: what came in between must be seen.
TEST_F(Rest, IsNotProvedByAScanThatClearsWhatCameInBetween) {
  Avvia({"LD SM0.0", "MOVW +0, VW0"});
  for (int n = 0; n < 50; ++n) {
    plc.Mem_VW[0] = 7;
    EXPECT_FALSE(Una_Scansione()) << n;
  }
}

TEST_F(Rest, WhatIsLeftOutIsCountedAndTogglesSm06) {
  Avvia({"LD I0.0", "= Q0.0"});
  ASSERT_EQ(Scansioni_Fino_Al_Riposo(), 2);
  Memoria atteso = plc;
  atteso.Mem_SM[0].Bit[6] ^= 1U;
  orologio.Avanza(4);
  riposo.Salta(5);
  EXPECT_TRUE(static_cast<const Memoria&>(plc) == atteso);
  EXPECT_EQ(plc.N_Cicli, 7);
  EXPECT_EQ(plc.T_Inizio, orologio.Adesso());
  EXPECT_EQ(riposo.Saltate(), 5);
  EXPECT_TRUE(riposo.Riposa());
  riposo.Salta(2);
  EXPECT_TRUE(static_cast<const Memoria&>(plc) == atteso);
  EXPECT_TRUE(riposo.Riposa());
  EXPECT_TRUE(Una_Scansione());  // one that is run after all leaves the rest as it is
}

TEST_F(Rest, LeavesOutTwosWhereOneScanUndoesTheOther) {
  for (const std::vector<std::string>& righe :
       {std::vector<std::string>{"LD SM0.6", "= M0.0"},
        {"LD SM0.6", "EU", "= M0.0"},
        {"LDN M0.0", "= M0.0"},
        {"LD SM0.6", "EU", "LPP"},
        {"LD SM0.6", "JMP 1", "LD SM0.0", "= M0.1", "LBL 1", "LD SM0.6", "= M0.1"}}) {
    SCOPED_TRACE(righe[0] + ", " + righe[1]);
    riposo.Da_Capo();
    Avvia(righe);
    ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
    EXPECT_EQ(riposo.Saltabili(1), 0);
    EXPECT_EQ(riposo.Saltabili(7), 6);
    const Memoria una = plc;
    const auto finite = plc.N_Cicli;
    const std::int64_t saltate = riposo.Righe(2);
    riposo.Salta(6);
    EXPECT_TRUE(static_cast<const Memoria&>(plc) == una);
    EXPECT_EQ(plc.N_Cicli, finite + 6);
    std::int64_t fatte = 0;
    for (int n = 0; n < 2; ++n) {
      EXPECT_TRUE(riposo.Riposa());
      std::int64_t di_questa = 0;
      while (plc.N_Cicli == finite + 6 + n) di_questa += plc.Esegui_Righe(1000);
      EXPECT_TRUE(riposo.Scansione_Fatta(di_questa));
      EXPECT_EQ(static_cast<const Memoria&>(plc) == una, n == 1);
      fatte += di_questa;
    }
    EXPECT_EQ(saltate, fatte);
    plc.mnuPlcStop();
  }
}

TEST_F(Rest, IsNotProvedInTwosByWhatCameInBetween) {
  Avvia({"LD SM0.6", "= M0.0", "LD SM0.0", "MOVW +0, VW0"});
  for (int n = 0; n < 50; ++n) {
    if (n % 2 == 0) plc.Mem_VW[0] = 7;
    EXPECT_FALSE(Una_Scansione()) << n;
  }
}

TEST_F(Rest, NeverFillsTheCounterOfScans) {
  Avvia({"LD I0.0", "= Q0.0"});
  ASSERT_GT(Scansioni_Fino_Al_Riposo(), 0);
  plc.N_Cicli = INT32_MAX - 3;
  EXPECT_EQ(riposo.Saltabili(100), 2);
}

}  // namespace tavorno::prova
