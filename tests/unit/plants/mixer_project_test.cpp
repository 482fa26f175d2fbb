// SPDX-License-Identifier: GPL-3.0-or-later
// The solved projects of the mixers, run against their tanks.
#include "mixer_project_bed.h"

namespace tavorno::prova {

namespace {

// ---- US-10: recipe by litres with heating -------------------------------------------------------

struct HeatedMixerProject : Banco_Processo {
  const std::string motori = "Q0.0 Q0.1 Q0.2 Q0.3 Q0.4 Q0.5 Q0.6 Q0.7";

  void SetUp() override { Banco_Risolto::Avvia(10, "us10.AWL"); }
  void Avvia() {
    Spingi("imgCom(0)");
    Spingi("imgSB(0)");
    ASSERT_TRUE(Q("Q1.0"));
  }
};

TEST_F(HeatedMixerProject, RestsInManual) {
  EXPECT_EQ(Accese(motori), "");
  EXPECT_TRUE(Q("Q1.1"));
  Spingi("imgSB(0)");
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(HeatedMixerProject, ABatchLoadsHeatsMixesAndDrains) {
  Macchina().Regola("UpDown1", 25);
  Avvia();
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.5");
  ASSERT_TRUE(Attendi("Q0.0", false));
  EXPECT_EQ(Litri(), 30);
  EXPECT_EQ(Accese(motori), "Q0.1 Q0.6");
  ASSERT_TRUE(Attendi("Q0.1", false));
  EXPECT_EQ(Litri(), 50);
  EXPECT_EQ(Scritta("EtP(0)"), "30");
  EXPECT_EQ(Scritta("EtP(1)"), "20");
  EXPECT_EQ(Accese(motori), "Q0.3 Q0.4");
  ASSERT_TRUE(Attendi("Q1.2", true));
  EXPECT_EQ(Scritta("etT"), "25");
  Passa(50);
  EXPECT_EQ(Accese(motori), "Q0.4");  // in temperature no steam
  EXPECT_EQ(Litri(), 50);
  ASSERT_TRUE(Attendi("Q0.2", true));
  EXPECT_EQ(Accese(motori), "Q0.2 Q0.7");
  ASSERT_TRUE(Attendi("Q1.0", false));
  EXPECT_EQ(Litri(), 0);
  EXPECT_EQ(Accese(motori), "");
  Spingi("imgSB(0)");  // and again
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.5");
}

TEST_F(HeatedMixerProject, SteamHoldsTheTemperatureWhileMixing) {
  Macchina().Regola("UpDown1", 21);
  Avvia();
  ASSERT_TRUE(Attendi("Q0.4", true));
  ASSERT_TRUE(Attendi("Q1.2", true));
  Macchina().Regola("UpDown1", 23);
  Passa(1100);
  EXPECT_EQ(Accese(motori), "Q0.3 Q0.4");
}

TEST_F(HeatedMixerProject, ATrippedPumpWaitsAndNoLitreIsLost) {
  Avvia();
  Passa(5000);
  const int litri = Litri();
  Spingi("imgM(0)");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_TRUE(Q("Q1.4"));
  EXPECT_TRUE(Q("Q1.0"));
  Passa(10000);
  EXPECT_EQ(Litri(), litri);
  Spingi("imgM(0)");
  EXPECT_FALSE(Q("Q1.4"));
  ASSERT_TRUE(Attendi("Q0.0", false));
  EXPECT_EQ(Litri(), 30);
}

TEST_F(HeatedMixerProject, EachRelayStopsItsMotorAndLightsItsLamp) {
  for (const char* selettore : {"imgCom(1)", "imgCom(2)", "imgCom(4)"}) Spingi(selettore);
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1 Q0.3 Q0.4 Q0.5 Q0.6");
  Spingi("imgM(0)");
  EXPECT_EQ(Accese(motori), "Q0.1 Q0.3 Q0.4 Q0.6");
  Spingi("imgM(1)");
  EXPECT_EQ(Accese(motori), "Q0.3 Q0.4");
  Spingi("imgM(3)");
  EXPECT_EQ(Accese(motori), "");  // no steam without the agitator
  Spingi("imgCom(3)");
  EXPECT_EQ(Accese(motori), "Q0.2 Q0.7");
  Spingi("imgM(2)");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_EQ(Accese("Q1.4 Q1.5 Q1.6 Q1.7"), "Q1.4 Q1.5 Q1.6 Q1.7");
}

TEST_F(HeatedMixerProject, AFullTankTakesNoMore) {
  Spingi("imgCom(1)");
  Spingi("imgCom(2)");
  ASSERT_TRUE(Attendi("Q1.3", true));
  const int litri = Litri();
  EXPECT_GT(litri, 160);
  EXPECT_LE(litri, 162);
  Passa(5000);
  EXPECT_EQ(Litri(), litri);
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(HeatedMixerProject, StopEndsTheCycleAndAFilledTankIsNotRestarted) {
  Avvia();
  Passa(5000);
  Spingi("imgSB(1)");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_FALSE(Q("Q1.0"));
  Spingi("imgSB(0)");
  EXPECT_FALSE(Q("Q1.0"));
  Spingi("imgCom(0)");
  Spingi("imgCom(3)");
  Passa(10000);
  EXPECT_EQ(Litri(), 0);
}

// ---- US-12: manual and automatic ----------------------------------------------------------------

struct TwoProductsProject : Banco_Processo {
  const std::string motori = "Q0.0 Q0.1 Q0.2 Q0.3 Q0.4 Q0.5 Q1.6";

  void SetUp() override { Banco_Risolto::Avvia(12, "us12.AWL"); }
  void Avvia() {
    Spingi("imgCom");
    Spingi("imgSB(0)");
    ASSERT_TRUE(Q("Q0.6"));
  }
};

TEST_F(TwoProductsProject, ABatchLoadsBothTogetherMixesAndDrains) {
  Avvia();
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1 Q0.2 Q0.3");
  EXPECT_EQ(Accese("Q1.3 Q1.4"), "Q1.4");
  ASSERT_TRUE(Attendi("Q0.2", false));
  EXPECT_EQ(Scritta("EtP(1)"), "20");
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1");
  ASSERT_TRUE(Attendi("Q0.1", false));
  EXPECT_EQ(Scritta("EtP(0)"), "40");
  EXPECT_EQ(Litri(), 60);
  EXPECT_EQ(Accese(motori), "Q0.5 Q1.6");
  Passa(4500);
  EXPECT_EQ(Accese(motori), "Q0.5 Q1.6");
  Passa(1000);
  EXPECT_EQ(Accese(motori), "Q0.4");
  ASSERT_TRUE(Attendi("Q0.6", false));
  EXPECT_EQ(Litri(), 0);
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(TwoProductsProject, EmergencyEndsEverythingUntilANewStart) {
  Avvia();
  Passa(3000);
  Spingi("ImgEm");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_TRUE(Q("Q1.5"));
  const int litri = Litri();
  ASSERT_GT(litri, 0);
  Spingi("imgSB(0)");
  EXPECT_EQ(Accese(motori), "");
  Spingi("ImgEm");
  Passa(3000);
  EXPECT_EQ(Accese(motori), "");
  EXPECT_EQ(Litri(), litri);
  Spingi("imgCom");  // to manual: drain, and start anew
  Spingi("imgSB(8)");
  EXPECT_EQ(Accese(motori), "Q0.4");
  Passa(5000);
  EXPECT_EQ(Accese(motori), "");
  EXPECT_EQ(Litri(), 0);
  Avvia();
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1 Q0.2 Q0.3");
}

TEST_F(TwoProductsProject, ManualCommandsHoldUntilTheirStop) {
  const std::tuple<const char*, const char*, const char*> comandi[] = {
      {"imgSB(2)", "imgSB(3)", "Q0.0 Q0.1"},
      {"imgSB(4)", "imgSB(5)", "Q0.2 Q0.3"},
      {"imgSB(6)", "imgSB(7)", "Q0.5 Q1.6"},
  };
  for (const auto& [start, stop, uscite] : comandi) {
    Spingi(start);
    EXPECT_EQ(Accese(motori), uscite);
    Passa(2000);
    EXPECT_EQ(Accese(motori), uscite) << start;
    Spingi(stop);
    EXPECT_EQ(Accese(motori), "") << stop;
  }
  EXPECT_TRUE(Q("Q1.3"));
}

TEST_F(TwoProductsProject, ManualDrainIsRefusedOnAnEmptyTankAndEndsByItself) {
  Spingi("imgSB(8)");
  EXPECT_EQ(Accese(motori), "");
  Spingi("imgSB(2)");
  Passa(8000);
  Spingi("imgSB(3)");
  ASSERT_GE(Litri(), 15);
  Spingi("imgSB(8)");
  EXPECT_EQ(Accese(motori), "Q0.4");
  Spingi("imgSB(9)");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_GT(Litri(), 10);
  Spingi("imgSB(8)");
  Passa(4000);
  EXPECT_EQ(Litri(), 0);
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(TwoProductsProject, ChangingTheModeEndsWhatRuns) {
  Spingi("imgSB(2)");
  Spingi("imgCom");
  EXPECT_EQ(Accese(motori), "");
  Spingi("imgCom");
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(TwoProductsProject, AFullTankTakesNoMore) {
  Spingi("imgSB(2)");
  Spingi("imgSB(4)");
  ASSERT_TRUE(Attendi("Q0.1", false));
  EXPECT_EQ(Accese(motori), "");
  EXPECT_LE(Litri(), 162);
}

// ---- US-13: four products in sequence -----------------------------------------------------------

struct FourProductsProject : Banco_Processo {
  const std::string motori = "Q0.0 Q0.1 Q0.2 Q0.3 Q0.4 Q0.5 Q0.6";

  void SetUp() override { Banco_Risolto::Avvia(13, "us13.AWL"); }
  void Avvia() {
    Spingi("imgSB(0)");
    ASSERT_EQ(Accese(motori), "Q0.0 Q0.5");
  }
};

TEST_F(FourProductsProject, ABatchTakesFourProductsMixesAndWaitsForTheDrain) {
  Avvia();
  ASSERT_TRUE(Attendi("Q0.1", true));
  EXPECT_EQ(Litri(), 40);
  EXPECT_EQ(Accese(motori), "Q0.1 Q0.5");
  ASSERT_TRUE(Attendi("Q0.2", true));
  EXPECT_EQ(Litri(), 80);
  ASSERT_TRUE(Attendi("Q0.3", true));
  EXPECT_EQ(Litri(), 120);
  ASSERT_TRUE(Attendi("Q0.4", true));
  EXPECT_EQ(Litri(), 150);
  EXPECT_EQ(Accese(motori), "Q0.4");
  EXPECT_TRUE(Q("Q1.5"));
  Passa(4500);
  EXPECT_FALSE(Q("Q1.2"));
  Passa(1000);
  EXPECT_EQ(Accese(motori), "");
  EXPECT_TRUE(Q("Q1.2"));  // ready
  Passa(10000);
  EXPECT_EQ(Litri(), 150);
  Spingi("imgCom");
  EXPECT_EQ(Accese(motori), "Q0.6");
  EXPECT_FALSE(Q("Q1.2"));
  EXPECT_TRUE(Q("Q1.3"));
  ASSERT_TRUE(Attendi("Q0.6", false));
  EXPECT_EQ(Litri(), 0);
  EXPECT_FALSE(Q("Q1.1"));
}

TEST_F(FourProductsProject, AMissingProductStopsTheLoadAndStartRetries) {
  Avvia();
  Passa(6000);
  Macchina().Premi("etGP(0)");
  Passa(2000);
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.5");
  Passa(2000);
  EXPECT_EQ(Accese(motori), "");
  std::string ciclo;
  for (int n = 0; n < 8; ++n) {
    Passa(500);
    ciclo += Q("Q1.1") ? '1' : '0';
  }
  EXPECT_TRUE(ciclo == "10101010" || ciclo == "01010101") << ciclo;
  Spingi("imgSB(0)");  // still missing
  Passa(4000);
  EXPECT_EQ(Accese(motori), "");
  Macchina().Rilascia("etGP(0)");
  const int litri = Litri();
  Spingi("imgSB(0)");
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.5");
  Passa(6000);
  EXPECT_GT(Litri(), litri + 5);
  EXPECT_TRUE(Q("Q1.1"));
}

TEST_F(FourProductsProject, ATripIsNoMissingProductAndTheLoadGoesOnAfterIt) {
  Avvia();
  Passa(6000);
  Spingi("imgM(0)");
  EXPECT_EQ(Accese(motori), "Q0.0");
  EXPECT_TRUE(Q("Q1.6"));
  Passa(10000);
  EXPECT_TRUE(Q("Q1.1"));
  EXPECT_EQ(Accese(motori), "Q0.0");
  Spingi("imgM(0)");
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.5");
  ASSERT_TRUE(Attendi("Q0.1", true));
  EXPECT_EQ(Litri(), 40);
}

TEST_F(FourProductsProject, ATrippedAgitatorStopsTheTimeOfMixing) {
  Avvia();
  ASSERT_TRUE(Attendi("Q0.4", true));
  Passa(2000);
  Spingi("imgM(1)");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_TRUE(Q("Q1.7"));
  Passa(10000);
  EXPECT_FALSE(Q("Q1.2"));
  Spingi("imgM(1)");
  EXPECT_EQ(Accese(motori), "Q0.4");
  Passa(5500);
  EXPECT_TRUE(Q("Q1.2"));
}

TEST_F(FourProductsProject, EmergencyAndStopEndTheCycle) {
  Avvia();
  Passa(3000);
  Spingi("ImgEm");
  EXPECT_EQ(Accese(motori), "");
  EXPECT_FALSE(Q("Q1.1"));
  Spingi("imgSB(0)");
  EXPECT_EQ(Accese(motori), "");
  Spingi("ImgEm");
  Passa(1000);
  EXPECT_EQ(Accese(motori), "");
}

TEST_F(FourProductsProject, MaintenanceIsDueAfterFiveStartsOfThePump) {
  Avvia();
  for (int n = 2; n <= 5; ++n) {
    EXPECT_FALSE(Q("Q0.7")) << n;
    Spingi("imgM(0)");
    Spingi("imgM(0)");
  }
  EXPECT_TRUE(Q("Q0.7"));
  EXPECT_FALSE(Q("Q1.0"));
  Spingi("imgSB(2)");
  EXPECT_FALSE(Q("Q0.7"));
}

}  // namespace

}  // namespace tavorno::prova
