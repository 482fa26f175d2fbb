// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <limits>

#include "cpu.h"

namespace tavorno::prova {

using Scan = Cpu;

// ---- the frame of one line ----------------------------------------------------------------------

TEST_F(Scan, LineZeroReadsTheInputsAndStartsTheScanClock) {
  Carica({"NOP", "NOP"});
  orologio.Avanza(7);
  Ingresso(0, 3, true);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[3], 0);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.IP_I[0].Bit_Img[3], 1);
  EXPECT_EQ(plc.T_Inizio, 7);
  orologio.Avanza(5);
  Ingresso(0, 4, true);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.IP_I[0].Bit_Img[4], 0);
  EXPECT_EQ(plc.T_Inizio, 7);
}

namespace {

struct Salto {
  const char* Nome;
  std::vector<std::string> Programma;
  int Da, A;  // PC before and after one call
};

void PrintTo(const Salto& salto, std::ostream* os) {
  *os << salto.Nome;
}

}  // namespace

class Jump : public Cpu, public ::testing::WithParamInterface<Salto> {};

TEST_P(Jump, ExecutesItsTargetInTheSameCall) {
  Carica(GetParam().Programma);
  plc.Stak[0] = 1;
  plc.Stak_Rit[0] = 3;
  plc.PC = static_cast<std::int16_t>(GetParam().Da);
  plc.CmdStep();
  EXPECT_EQ(plc.PC, GetParam().A);
  EXPECT_TRUE(avvisi.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, Jump,
    ::testing::Values(
        Salto{"JMP forward", {"NOP", "JMP 1", "NOP", "LBL 1", "NOP"}, 1, 4},
        Salto{"JMP back", {"NOP", "LBL 1", "NOP", "JMP 1", "NOP"}, 3, 2},
        Salto{"CALL", {"NOP", "CALL GIRO", "MEND", "SBR0 GIRO", "NOP", "RET"}, 1, 4},
        Salto{"RET", {"NOP", "CALL GIRO", "MEND", "NOP", "NOP", "RET"}, 5, 4},
        Salto{"CRET", {"NOP", "CALL GIRO", "MEND", "NOP", "NOP", "CRET"}, 5, 4},
        Salto{"JMP to a JMP", {"NOP", "JMP 1", "NOP", "LBL 1", "JMP 2", "NOP", "LBL 2"}, 4, 7}));

struct Fascio {
  const char* nome;
  std::vector<std::string> righe;
  int da, massimo, fatte, poi;
};

class ManyLines : public Cpu, public ::testing::WithParamInterface<Fascio> {};

TEST_P(ManyLines, EndAtTheLimitOrTheScan) {
  const auto& [nome, righe, da, massimo, fatte, poi] = GetParam();
  Carica(righe);
  plc.PC = static_cast<std::int16_t>(da);
  plc.Stak[0] = 1;
  EXPECT_EQ(plc.Esegui_Righe(massimo), fatte);
  EXPECT_EQ(plc.PC, poi);
}

// Each program ends with a MEND that `Carica` adds.
INSTANTIATE_TEST_SUITE_P(
    Programs, ManyLines,
    ::testing::Values(Fascio{"Limit", {"NOP", "NOP", "NOP"}, 0, 2, 2, 2},
                      Fascio{"AtLeastOne", {"NOP", "NOP", "NOP"}, 0, 0, 1, 1},
                      Fascio{"EndOfTheScan", {"NOP", "NOP", "NOP"}, 1, 100, 3, 0},
                      Fascio{"OnThroughAJump", {"NOP", "JMP 1", "NOP", "LBL 1", "NOP"}, 0, 3, 3, 5},
                      Fascio{"AJumpToTheEnd", {"NOP", "JMP 1", "NOP", "LBL 1"}, 0, 100, 3, 0},
                      Fascio{"LimitAtAJump", {"NOP", "JMP 1", "NOP", "LBL 1", "NOP"}, 0, 2, 2, 4}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST_F(Scan, ManyLinesEndWithTheOneThatStopsTheRun) {
  Carica({"NOP", "LDB= SMB28 +0", "NOP", "NOP"});
  plc.PLC_Acceso = -1;
  EXPECT_EQ(plc.Esegui_Righe(100), 2);
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(plc.PLC_Acceso, 0);
}

TEST_F(Scan, ManyLinesEndWhenAnOutputBringsTheRunToLeave) {
  Carica({"LD SM0.0", "=I Q0.0", "NOP", "NOP"});
  plc.Ferma = 0;
  const Iscrizione nessuno = plc.Hook.Mostra.Ascolta([](const Avviso&) { FAIL(); });
  const Iscrizione ascolto = plc.SQ[0].Change.Ascolta([this] { plc.Ferma = -1; });
  EXPECT_EQ(plc.Esegui_Righe(100), 5);  // the bars follow at the end of the scan
  plc.Ferma = -1;
  EXPECT_EQ(plc.Esegui_Righe(100), 1);
}

TEST_F(Scan, JumpToLineZeroReadsTheInputsAgain) {
  Carica({"LBL 1", "JMP 1"});
  plc.Esegui_Riga();
  orologio.Avanza(9);
  Ingresso(1, 0, true);
  plc.Stak[0] = 1;
  plc.Esegui_Riga();
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(plc.IP_I[1].Bit_Img[0], 1);
  EXPECT_EQ(plc.T_Inizio, 9);
}

class JumpChain : public Cpu {
 protected:
  /// `salti` jumps, each to the next one, and a line behind them.
  void Carica_Catena(int salti) {
    std::vector<std::string> righe(static_cast<std::size_t>(salti), "JMP 1");
    righe.emplace_back("NOP");
    Carica(righe);
    for (int i = 0; i < salti; ++i) plc.Prog[i].Salto = static_cast<std::int16_t>(i + 1);
    plc.Stak[0] = 1;
  }
};

TEST_F(JumpChain, IsFollowedToItsEndInOneCall) {
  Carica_Catena(Plc::Salti_Di_Seguito - 1);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.PC, Plc::Salti_Di_Seguito);
}

TEST_F(JumpChain, ThatIsLongerGivesWayAndGoesOnWithTheNextCall) {
  Carica_Catena(Plc::Salti_Di_Seguito + 1);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.PC, Plc::Salti_Di_Seguito);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.PC, Plc::Salti_Di_Seguito + 2);
}

TEST_F(JumpChain, InACircleReturnsSoThatTheRunCanBeStopped) {
  Carica({"RET"});  // outside a procedure it returns to line 0, which is itself
  int cessioni = 0;
  const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([&] {
    if (++cessioni == 3) plc.mnuPlcStop();
  });
  plc.mnuPlcRun();
  EXPECT_EQ(cessioni, 3);
  EXPECT_EQ(plc.PC, 0);
  EXPECT_EQ(plc.N_Cicli, 0);
}

TEST_F(Scan, RunTimeErrorShowsItsBoxStopsAndStaysOnTheLine) {
  Carica({"NOP", "LD K1", "NOP"});
  Run_Step();
  plc.CmdStep();
  plc.Scelte.chkList = true;
  plc.Mem_SM[0].Bit[1] = 1;
  plc.CmdStep();
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Titolo, "Run Time Error");
  EXPECT_EQ(avvisi[0].Testo, "Run Time Error! Il programma sarà terminato!");
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  EXPECT_EQ(avvisi[0].Scelte, Tasti::Ok);
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(plc.etPc, 1);
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_NE(plc.Ferma, 0);
  EXPECT_EQ(plc.Lista_Scelta, 1);
  EXPECT_EQ(plc.Mem_SM[0].Bit[1], 1);
  EXPECT_FALSE(plc.T100m.Enabled());
}

TEST_F(Scan, RunTimeErrorBoxComesBeforeTheStop) {
  Carica({"LD K1"});
  Run_Step();
  std::int16_t acceso = 0;
  const Iscrizione ascolto =
      plc.Hook.Mostra.Ascolta([&](const Avviso&) { acceso = plc.PLC_Acceso; });
  plc.CmdStep();
  EXPECT_EQ(acceso, -1);
  EXPECT_EQ(plc.PLC_Acceso, 0);
}

TEST_F(Scan, UnknownMnemonicShowsItsBoxStopsAndMovesOn) {
  Carica({"NOP", "NOP", "FOO I0.0", "NOP"});
  Run_Step();
  plc.CmdStep();
  plc.CmdStep();
  plc.CmdStep();
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Titolo, "Errore in Esecuzione!");
  EXPECT_EQ(avvisi[0].Testo,
            "Riga 2 : <FOO>--> Istruzione non riconosciuta!\nIl Programma verrà terminato.");
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  EXPECT_EQ(avvisi[0].Scelte, Tasti::Ok);
  EXPECT_EQ(plc.PC, 3);
  EXPECT_EQ(plc.etPc, 3);
  EXPECT_EQ(plc.Lista_Scelta, 2);
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_NE(plc.Ferma, 0);
}

TEST_F(Scan, MnemonicsAreComparedAsTheyStand) {
  for (const char* istr : {"ld I0.0", "LDX I0.0", "NETWORK", "SB", "XORD AC0, AC1", "RETI"}) {
    avvisi.clear();
    Esegui(istr);
    ASSERT_EQ(avvisi.size(), 1U) << istr;
    EXPECT_EQ(avvisi[0].Titolo, "Errore in Esecuzione!") << istr;
  }
}

TEST_F(Scan, PcPastTheLastLineIsFatal) {
  Carica({"NOP"});
  for (const std::int16_t pc : {std::int16_t{2}, std::int16_t{-1}}) {
    plc.PC = pc;
    try {
      plc.Esegui_Riga();
      ADD_FAILURE() << pc;
    } catch (const Fatale& fatale) {
      EXPECT_EQ(fatale.Tabella(), "Prog");
      EXPECT_EQ(fatale.Indice(), pc);
    }
  }
  plc.Prog[1] = Riga("NOP");  // a main program that has lost its end
  plc.PC = 1;
  plc.Esegui_Riga();
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

TEST_F(Scan, OverflowOfPcIsFatal) {
  plc.Prog.Ridimensiona(32768);
  plc.Prog[32767] = Riga("NOP");
  plc.PC = 32767;
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

TEST_F(Scan, FatalReportNamesTableIndexAndLine) {
  Carica({"NOP", "LD I0.9"});
  plc.PC = 1;
  try {
    plc.Esegui_Riga();
    ADD_FAILURE();
  } catch (const Fatale& fatale) {
    EXPECT_THAT(Rapporto_Fatale(fatale, plc),
                ::testing::AllOf(::testing::HasSubstr("Bit_Img"), ::testing::HasSubstr(": 9\n"),
                                 ::testing::HasSubstr("Riga: 1  LD I0.9")));
  }
}

// ---- end of the scan ----------------------------------------------------------------------------

TEST_F(Scan, MendWritesTheOutputsBeforeItCountsTheScan) {
  Carica({"NOP"});
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  plc.Primo_Ciclo = -1;
  plc.CmdStep();
  orologio.Avanza(12);
  plc.IP_Q[0].Bit_Img[0] = 1;
  int cambi = 0;
  const Iscrizione ascolto = plc.SQ[0].Change.Ascolta([&] {
    ++cambi;
    EXPECT_EQ(plc.N_Cicli, 0);
    EXPECT_EQ(plc.Primo_Ciclo, -1);
    EXPECT_EQ(plc.Mem_SM[0].Bit[6], 1);
    EXPECT_EQ(plc.Mem_SM[0].Bit[1], 1);
    EXPECT_EQ(plc.Tempo_Ciclo, 0);
    EXPECT_EQ(plc.PC, 1);
  });
  plc.CmdStep();
  EXPECT_EQ(cambi, 1);
  EXPECT_EQ(plc.N_Cicli, 1);
  EXPECT_EQ(plc.Primo_Ciclo, 0);
  EXPECT_EQ(plc.Mem_SM[0].Bit[6], 0);
  EXPECT_EQ(plc.Mem_SM[0].Bit[1], 0);
  EXPECT_EQ(plc.Tempo_Ciclo, 12);
  EXPECT_EQ(plc.PC, 0);
}

TEST_F(Scan, TimeOfAScanIsRightAlsoWhenTheClockOutgrowsThirtyTwoBits) {
  Carica({"NOP"});
  orologio.Avanza(std::numeric_limits<std::int32_t>::max() - 2LL);
  plc.Esegui_Riga();
  orologio.Avanza(10);
  plc.Esegui_Riga();
  EXPECT_EQ(plc.N_Cicli, 1);
  EXPECT_EQ(plc.Tempo_Ciclo, 10);
}

TEST_F(Scan, Sm06TogglesFromScanToScan) {
  Carica({"NOP"});
  Run_Step();
  for (const int valore : {1, 0, 1, 0}) {
    EXPECT_EQ(plc.Mem_SM[0].Bit[6], valore);
    Scansione();
  }
}

TEST_F(Scan, OverflowOfTheScanCountIsFatal) {
  Carica({"MEND"});
  plc.N_Cicli = std::numeric_limits<std::int32_t>::max();
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

// ---- special bits -------------------------------------------------------------------------------

TEST_F(Scan, SpecialBitsAreSetAsARowAndADiagonal) {
  for (const std::uint8_t valore : {std::uint8_t{0}, std::uint8_t{1}}) {
    for (Riga_SM& riga : plc.Mem_SM) {
      for (std::uint8_t& cella : riga.Bit) cella = valore;
      riga.Val_B = 9;
    }
    Memoria attesa = plc;
    const std::uint8_t riga_0[8] = {1, 1, 0, 0, 0, 0, 1, 0};
    for (int bit = 0; bit <= 7; ++bit) {
      attesa.Mem_SM[0].Bit[bit] = riga_0[bit];
      attesa.Mem_SM[bit + 1].Bit[bit] = 0;
    }
    plc.SM_Set();
    EXPECT_TRUE(attesa == plc);
  }
}

TEST_F(Scan, FlagsOfOverflowSignAndDivisionStayOverARun) {
  Carica({"NOP"});
  for (int bit = 0; bit <= 3; ++bit) plc.Mem_SM[1].Bit[bit] = 1;
  Run_Step();
  EXPECT_EQ(plc.Mem_SM[1].Bit[0], 0);
  for (int bit = 1; bit <= 3; ++bit) EXPECT_EQ(plc.Mem_SM[1].Bit[bit], 1) << bit;
}

// ---- labels -------------------------------------------------------------------------------------

TEST_F(Scan, TimeIsShownAtEveryLineOnlyWhileTheListIsWatched) {
  Carica({"NOP", "NOP"});
  plc.Tempo_Ciclo = 25;
  plc.Scelte.chkList = false;
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etTime, "0");
  plc.Scelte.chkList = true;
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etTime, "00025");
  plc.Tempo_Ciclo = 123456;
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etTime, "00000");  // that line was the end of the scan
}

TEST_F(Scan, PcIsShownInStepModeOnly) {
  Carica({"NOP", "NOP", "NOP"});
  plc.mnuPlcCiclo();
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etPc, 0);
  plc.mnuPlcStep();
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etPc, 2);
  plc.mnuPlcCont();
  plc.Esegui_Riga();
  EXPECT_EQ(plc.etPc, 2);
}

}  // namespace tavorno::prova
