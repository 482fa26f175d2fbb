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
  plc.Hook.Cedi = [&] {
    visti.push_back(plc.Mem_SM[0].Bit[1]);
    if (visti.size() == 6) plc.Ferma = -1;
  };
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
  plc.Hook.Cedi = [&] {
    EXPECT_EQ(plc.etTime, "0");
    orologio.Avanza(3);
  };
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

}  // namespace tavorno::prova
