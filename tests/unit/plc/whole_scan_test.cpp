// SPDX-License-Identifier: GPL-3.0-or-later
#include "cpu.h"

namespace tavorno::prova {

using WholeScan = Cpu;

TEST_F(WholeScan, CmdStepSelectsTheLineThatItExecutes) {
  Carica({"LD SM0.0", "= Q0.0", "NOP"});
  Run_Step();
  plc.CmdStep();
  plc.CmdStep();
  EXPECT_EQ(plc.Lista_Scelta, 1);
  EXPECT_EQ(plc.PC, 2);
  EXPECT_EQ(plc.etPc, 2);
}

TEST_F(WholeScan, FirstStepReadsTheInputsAndTheFollowingOnesDoNot) {
  Carica({"LD SM0.0", "= Q0.0", "NOP"});
  Run_Step();
  Ingresso(0, 0, true);
  plc.CmdStep();
  EXPECT_EQ(plc.IP_I[0].Bit_Img[0], 1);
  for (int i = 0; i < 3; ++i) {
    Ingresso(0, 0, false);
    plc.CmdStep();
    EXPECT_EQ(plc.IP_I[0].Bit_Img[0], 1);
  }
  EXPECT_EQ(plc.PC, 0);
  plc.CmdStep();
  EXPECT_EQ(plc.IP_I[0].Bit_Img[0], 0);
}

TEST_F(WholeScan, Sm01IsOnForTheWholeFirstScanInContMode) {
  Carica({"NOP", "NOP"});
  std::vector<int> visti;
  const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([&] {
    visti.push_back(plc.Mem_SM[0].Bit[1]);
    if (visti.size() == 6) plc.Ferma = -1;
  });
  plc.mnuPlcRun();
  EXPECT_EQ(visti, (std::vector<int>{1, 1, 1, 0, 0, 0}));
}

TEST_F(WholeScan, Sm01IsOnForTheWholeFirstScanInStepMode) {
  Carica({"NOP", "NOP"});
  Run_Step();
  for (const int valore : {1, 1, 1, 0, 0, 0}) {
    EXPECT_EQ(plc.Mem_SM[0].Bit[1], valore);
    plc.CmdStep();
  }
}

TEST_F(WholeScan, TimeStaysAsItWasUntilTheEndOfTheRunWhenTheListIsOff) {
  Carica({"NOP"});
  plc.Scelte.chkList = false;
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.Scelte.txtNC = 2;
  const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([&] {
    EXPECT_EQ(plc.etTime, "0");
    orologio.Avanza(3);
  });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.Tempo_Ciclo, 3);
  EXPECT_EQ(plc.etTime, "00003");
}

TEST_F(WholeScan, StopShowsTheTimeOfTheLastScan) {
  Run_Step();
  plc.Tempo_Ciclo = 41;
  plc.mnuPlcStop();
  EXPECT_EQ(plc.etTime, "00041");
}

TEST_F(WholeScan, OutputsReachTheBarAtMendOnly) {
  Carica({"LD SM0.0", "= Q0.0", "S Q0.1, 1", "NOP"});
  Run_Step();
  for (int i = 0; i < 4; ++i) {
    plc.CmdStep();
    EXPECT_EQ(plc.SQ[0].Stato_Q(), "00000000");
    EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0] + plc.IP_Q[0].Bit_Dir[1], 0);
  }
  plc.CmdStep();
  EXPECT_EQ(plc.SQ[0].Stato_Q(), "11000000");
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0] + plc.IP_Q[0].Bit_Dir[1], 2);
}

TEST_F(WholeScan, ImmediateInstructionsReachThePointsAtOnce) {
  plc.Stak[0] = 1;
  Esegui("=I Q0.0");
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 1);
  Esegui("SI Q0.1, 0");
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[1], 1);
  Esegui("BIW 8, QB1");
  EXPECT_EQ(plc.IP_Q[1].Bit_Dir[3], 1);
}

TEST_F(WholeScan, StopPutsAllOutputsOff) {
  Carica({"LD SM0.0", "S Q0.0, 8", "S Q1.0, 8"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.SQ[1].Stato_Q(), "11111111");
  plc.mnuPlcStop();
  for (const LedQ& barra : plc.SQ) EXPECT_EQ(barra.Stato_Q(), "00000000");
  EXPECT_EQ(plc.IP_Q[0].Val_B + plc.IP_Q[1].Val_B, 0);
}

class LinesAtATime : public Cpu, public ::testing::WithParamInterface<int> {
 protected:
  /// Sixty scans and a line, in a yield that counts the inputs up and lets 40 ms pass before each.
  void Corri(Cpu& cpu, int righe) const {
    cpu.Carica({"NETWORK 1",     "LD I0.0",      "EU",        "LD I0.3",    "CTU C1, +9",
                "LD I0.1",       "TON T37, +3",  "LD T37",    "= M0.5",     "LD I0.2",
                "JMP 1",         "LD SM0.0",     "INCW VW0",  "TOF T38, 2", "LBL 1",
                "LD I0.1",       "LSCR S0.0",    "= Q0.3",    "SCRE",       "LDN S0.0",
                "= S0.0",        "LDW>= C1, +4", "CALL DUE",  "LDN M4.0",   "CALL UNO",
                "MOVW MW0, VW3", "MEND",         "SBR0 UNO",  "CALL DUE",   "S M4.0, 1",
                "RET",           "SBR1 DUE",     "S Q1.0, 2", "INCW VW1",   "RET"});
    const auto cedi = [&cpu, visti = 0]() mutable {
      if (cpu.plc.N_Cicli == visti) return;
      visti = cpu.plc.N_Cicli;
      for (int bit = 0; bit <= 3; ++bit) cpu.Ingresso(0, bit, (visti >> bit & 1) != 0);
      cpu.orologio.Avanza(40);
      if (visti == 60) cpu.plc.Ferma = -1;
    };
    const Iscrizione ascolto = cpu.plc.Hook.Ascolta_Cedi(cedi, righe);
    cpu.plc.Scelte.chkIP = true;
    cpu.plc.mnuPlcRun();
  }
};

TEST_P(LinesAtATime, LeaveWhatOneLineAtATimeLeaves) {
  struct Altra : Cpu {
    void TestBody() override {}
  } altra;
  Corri(altra, 1);
  Corri(*this, GetParam());
  EXPECT_TRUE(static_cast<const Memoria&>(plc) == altra.plc);
  EXPECT_EQ(plc.N_Cicli, 60);
  EXPECT_EQ(plc.N_Cicli, altra.plc.N_Cicli);
  EXPECT_EQ(plc.Tempo_Ciclo, altra.plc.Tempo_Ciclo);
  EXPECT_EQ(plc.etTime, altra.plc.etTime);
  EXPECT_EQ(plc.etIPQ, altra.plc.etIPQ);
  EXPECT_EQ(plc.etIPI, altra.plc.etIPI);
  EXPECT_EQ(plc.SQ[0].Stato_Q() + plc.SQ[1].Stato_Q(),
            altra.plc.SQ[0].Stato_Q() + altra.plc.SQ[1].Stato_Q());
  EXPECT_GT(plc.Mem_VW[0] * plc.Mem_VW[1] * plc.Mem_C[1].Val, 0);  // every part of it was at work
}

INSTANTIATE_TEST_SUITE_P(Some, LinesAtATime, ::testing::Values(2, 3, 7, 24, 96));

}  // namespace tavorno::prova
