// SPDX-License-Identifier: GPL-3.0-or-later
// The solved project of the tank level, run against its tanks.
#include "mixer_project_bed.h"
#include "plants/tank_level.h"

namespace tavorno::prova {

namespace {

struct TankProject : Banco_Processo {
  const std::string motori = "Q0.0 Q0.1 Q0.2";

  void SetUp() override { Banco_Risolto::Avvia(8, "us08.AWL"); }
  Ctr_Level0& Livelli() { return dynamic_cast<Ctr_Level0&>(Macchina()); }
  void Avvia() {
    Spingi("imgCom(0)");
    Spingi("imgSB6");
    ASSERT_TRUE(Q("Q0.6"));
  }
};

TEST_F(TankProject, AutomaticFillsPumpsAndStopsAtTheTop) {
  EXPECT_EQ(Accese(motori), "");
  Avvia();
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1");
  for (int n = 0; n < 30000 && Q("Q0.1"); ++n) Passa(10);
  EXPECT_GT(Livelli().Livello_Serbatoio(), 1305);
  EXPECT_LT(Livelli().Livello_Serbatoio(), 1316);
  Passa(60000);
  EXPECT_EQ(Accese(motori), "");
  EXPECT_GE(Livelli().Livello_Vasca(), 725);
  EXPECT_LT(Livelli().Livello_Vasca(), 842);
}

TEST_F(TankProject, ThePumpStartsAgainOnlyBelowTheHalf) {
  Avvia();
  for (int n = 0; n < 30000 && Q("Q0.1"); ++n) Passa(10);
  Spingi("imgCom(2)");  // the consumer takes
  EXPECT_TRUE(Q("Q0.2"));
  int acceso_a = 0;
  for (int n = 0; n < 6000 && !acceso_a; ++n) {
    Passa(10);
    if (Q("Q0.1")) acceso_a = Livelli().Livello_Serbatoio();
  }
  EXPECT_LE(acceso_a, 700);
  EXPECT_GT(acceso_a, 680);
}

TEST_F(TankProject, ThePumpNeverRunsDry) {
  Spingi("imgCom(3)");  // pump by hand, no supply
  EXPECT_TRUE(Q("Q0.1"));
  Passa(20000);
  EXPECT_EQ(Accese(motori), "");
  EXPECT_EQ(Livelli().Vasca_Vuota(), -1);
  EXPECT_EQ(Livelli().Livello_Vasca(), 40);
  EXPECT_TRUE(Q("Q0.5"));
  Spingi("imgCom(1)");  // supply by hand
  EXPECT_EQ(Accese(motori), "Q0.0");
  Passa(4000);
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1");  // past the hysteresis of the switch
  EXPECT_FALSE(Q("Q0.5"));
}

TEST_F(TankProject, ATripStopsThePump) {
  Avvia();
  Spingi("imgP1");
  EXPECT_EQ(Accese(motori), "Q0.0");
  EXPECT_EQ(Accese("Q0.3 Q0.4"), "Q0.4");
  Spingi("imgP1");
  EXPECT_EQ(Accese(motori), "Q0.0 Q0.1");
}

TEST_F(TankProject, StopAndMainStopEndTheAutomaticMode) {
  for (const char* pulsante : {"imgAlt(0)", "imgAlt(1)"}) {
    Avvia();
    Spingi(pulsante);
    EXPECT_EQ(Accese(motori), "") << pulsante;
    EXPECT_FALSE(Q("Q0.6"));
    Spingi("imgCom(0)");
  }
}

TEST_F(TankProject, TheConsumerStopsOnAnEmptyTank) {
  Spingi("imgCom(2)");
  EXPECT_TRUE(Q("Q0.2"));
  Passa(10000);
  EXPECT_FALSE(Q("Q0.2"));
  EXPECT_EQ(Livelli().Livello_Serbatoio(), 46);
}

TEST_F(TankProject, HandCommandsStopAtTheMaxima) {
  Spingi("imgCom(1)");
  Passa(30000);
  EXPECT_FALSE(Q("Q0.0"));
  Spingi("imgCom(3)");
  for (int n = 0; n < 10; ++n) Passa(10000);
  EXPECT_FALSE(Q("Q0.1"));
  EXPECT_LT(Livelli().Livello_Serbatoio(), 1316);
}

}  // namespace

}  // namespace tavorno::prova
