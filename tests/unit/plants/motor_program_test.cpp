// SPDX-License-Identifier: GPL-3.0-or-later
// Plants with a program that drives them, from the source text on.
#include <gmock/gmock.h>

#include "link_bed.h"

namespace tavorno::prova {

const std::vector<std::string> autoritenuta = {
    "NETWORK 1", "LD I0.1", "O I0.2",    "A I0.0",   "A I0.3",
    "A I0.4",    "= Q0.0",  "NETWORK 2", "LDN I0.3", "= Q0.3",
};

struct MotorProgram : Banco_Impianto {};

TEST_F(MotorProgram, AHeldStartSwitchesOnAndTheContactFollowsInTheSameScan) {
  Apri(0);
  Esegui(autoritenuta);
  Passa(3);
  EXPECT_EQ(Uscite(), "0000000000000000");
  Macchina().Premi("imgStart");
  EXPECT_EQ(Ingressi(), "1101100000000000");
  EXPECT_EQ(Uscite(), "0000000000000000");
  Passa(1);
  EXPECT_EQ(Uscite(), "1000000000000000");
  EXPECT_EQ(Ingressi(), "1111100000000000");
}

TEST_F(MotorProgram, TheReleaseOfStartKeepsTheMotorOnAndStopDropsIt) {
  Apri(0);
  Esegui(autoritenuta);
  Macchina().Premi("imgStart");
  Passa(1);
  Macchina().Rilascia("imgStart");
  Passa(10);
  EXPECT_EQ(Uscite(), "1000000000000000");
  EXPECT_EQ(Macchina().Disegno["imgM"].Picture(), "imgMON");
  Macchina().Premi("imgStop");
  Passa(1);
  EXPECT_EQ(Uscite(), "0000000000000000");
  EXPECT_EQ(Macchina().Disegno["imgM"].Picture(), "imgMOF");
  Macchina().Rilascia("imgStop");
  Passa(10);
  EXPECT_EQ(Uscite(), "0000000000000000");
  EXPECT_EQ(Ingressi(), "1001100000000000");
}

TEST_F(MotorProgram, AForcedContactorMakesTheProgramDropItsOutput) {
  Apri(0);
  Esegui(autoritenuta);
  Macchina().Premi("imgStart");
  Passa(1);
  Macchina().Rilascia("imgStart");
  Passa(1);
  ASSERT_EQ(Ingressi(), "1011100000000000");
  Macchina().Doppio_Clic("imgKM");
  EXPECT_EQ(Ingressi(), "1001100000000000");
  EXPECT_EQ(Uscite(), "1000000000000000");
  Passa(1);
  EXPECT_EQ(Uscite(), "0000000000000000");
}

TEST_F(MotorProgram, ATrippedRelayDropsTheMotorAndAResetReturnsTheContact) {
  Apri(0);
  Esegui(autoritenuta);
  Macchina().Premi("imgStart");
  Passa(1);
  Macchina().Rilascia("imgStart");
  Macchina().Clic("ImgTer");
  Passa(1);
  EXPECT_EQ(Uscite(), "0001000000000000");
  EXPECT_EQ(Macchina().Disegno["imgLRt"].Picture(), "imgLG");
  Macchina().Clic("ImgTer");
  EXPECT_EQ(Ingressi(), "1001100000000000");
  Passa(5);
  EXPECT_EQ(Uscite(), "0000000000000000");
}

TEST_F(MotorProgram, StopDropsTheContactorsOfTheOpenPlant) {
  Apri(0);
  Esegui(autoritenuta);
  Macchina().Premi("imgStart");
  Passa(1);
  plc.mnuPlcStop();
  EXPECT_EQ(Uscite(), "0000000000000000");
  EXPECT_EQ(Macchina().Disegno["imgKM"].Picture(), "imgKMOF");
  EXPECT_EQ(Ingressi(), "1101100000000000");
}

TEST_F(MotorProgram, TheSwitchesDriveTheProgramWhileChkSimIsSet) {
  Apri(0);
  Esegui(autoritenuta);
  filo->chkSim(true);
  plc.SI[0].Stato_I("11011000");
  Passa(1);
  EXPECT_EQ(Macchina().Disegno["imgM"].Picture(), "imgMON");
  EXPECT_EQ(Macchina().Stato_I(), "1011100000000000");
  EXPECT_EQ(Ingressi(), "1101100000000000");
}

TEST_F(MotorProgram, AReversalProgramThatLacksTheInterlockClosesBothContactors) {
  Apri(1);
  Esegui({"NETWORK 1", "LD I0.2", "= Q0.1", "NETWORK 2", "LD I0.3", "= Q0.0"});
  Macchina().Premi("imgStart");
  Macchina().Premi("imgInd");
  Passa(1);
  EXPECT_EQ(Ingressi(), "1111111000000000");
  EXPECT_EQ(Macchina().Disegno["imgM"].Picture(), "imgMON");
}

TEST_F(MotorProgram, AReversalProgramWithTheInterlockHeedsAForcedContactor) {
  Apri(1);
  Esegui({"NETWORK 1", "LD I0.2", "O Q0.1", "A I0.1", "AN I0.0", "= Q0.1"});
  Macchina().Premi("imgStart");
  Passa(1);
  Macchina().Rilascia("imgStart");
  Passa(1);
  ASSERT_EQ(Uscite(), "0100000000000000");
  Macchina().Doppio_Clic("imgKm1");
  Passa(1);
  EXPECT_EQ(Uscite(), "0000000000000000");
}

TEST_F(MotorProgram, StarGoesOverToDeltaAfterTheTimeOfTheProgram) {
  Apri(2);
  // line and star at once; after 2 s star falls, and delta comes when its contact has opened
  Esegui({"NETWORK 1", "LD I0.1",   "O I0.2",       "A I0.0",    "A I0.5",  "A I0.6", "= Q0.0",
          "NETWORK 2", "LD Q0.0",   "TON T37, +20", "NETWORK 3", "LD Q0.0", "AN T37", "AN I0.3",
          "= Q0.1",    "NETWORK 4", "LD Q0.0",      "A T37",     "AN I0.4", "= Q0.2"});
  const auto Motore = [&] {
    Scena& disegno = Macchina().Disegno;
    return disegno["imgM"].Picture() + (disegno["imgS"].Visible ? " Y" : "") +
           (disegno["imgT"].Visible ? " D" : "");
  };
  Macchina().Premi("imgStart");
  Passa(1);
  Macchina().Rilascia("imgStart");
  Passa(1);
  EXPECT_EQ(Motore(), "imgMON Y");
  Passa(1800);
  EXPECT_EQ(Motore(), "imgMON Y");
  std::vector<std::string> visti;
  for (int ms = 0; ms < 400; ++ms) {
    if (visti.empty() || visti.back() != Motore()) visti.push_back(Motore());
    Passa(1);
  }
  EXPECT_THAT(visti, ::testing::ElementsAre("imgMON Y", "imgMOFF", "imgMON D"));
}

TEST_F(MotorProgram, TheSecondUnitHasItsOwnCircuit) {
  Apri(3);
  Esegui({"NETWORK 1", "LD I0.3", "O I0.4", "A I0.0", "A I1.1", "= Q0.3", "NETWORK 2", "LDN I1.1",
          "= Q1.1"});
  Macchina().Premi("imgSM2");
  Passa(1);
  Macchina().Rilascia("imgSM2");
  Passa(1);
  EXPECT_EQ(Macchina().Disegno["imgM2"].Picture(), "imgM1ON");
  EXPECT_EQ(Macchina().Disegno["imgM"].Picture(), "imgMOFF");
  Macchina().Clic("imgRt2");
  Passa(1);
  EXPECT_EQ(Uscite(), "0000000001000000");
  EXPECT_EQ(Macchina().Disegno["imgM2"].Picture(), "imgM1OFF");
  EXPECT_EQ(Macchina().Disegno["imgLRt2"].Picture(), "imgLG");
}

}  // namespace tavorno::prova
