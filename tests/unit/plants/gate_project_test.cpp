// SPDX-License-Identifier: GPL-3.0-or-later
// The gate with its solved project: a passage, an obstacle, a touch of the edge, a stop.
#include "plants/gate.h"
#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

namespace {

constexpr int HL4 = 2, KM1 = 3, KM2 = 4, HL1 = 5, HL2 = 6, HL3 = 7;

class GateProject : public Banco_Risolto {
 public:
  GateProject() { Avvia(9, "us09.AWL"); }

  bool Fermo() const { return !Q(KM1) && !Q(KM2); }
  bool Aperto() { return Fermo() && Ingresso(Macchina(), 1) == '0'; }
  bool Chiuso() { return Fermo() && Ingresso(Macchina(), 3) == '0'; }
  void Apri_Del_Tutto() {
    Spingi("imgSB(0)");
    ASSERT_TRUE(Attendi([this] { return Aperto(); }, 6000));
  }
  void Fino_In_Chiusura() {
    Apri_Del_Tutto();
    ASSERT_TRUE(Attendi([this] { return Q(KM1); }, 6000));
    Passa(1500);
  }

 protected:
  void Dopo_La_Scansione() override {
    EXPECT_FALSE(Q(KM1) && Q(KM2));
    EXPECT_GE(F("imgC").Left, 1200);
    EXPECT_LE(F("imgC").Left, 3630);
    if (Q(KM1) || Q(KM2)) {
      const bool inverte = Q(KM1) ? ultimo_ == KM2 : ultimo_ == KM1;
      EXPECT_FALSE(inverte && sosta_ < 400) << "reversed without a rest";
      ultimo_ = Q(KM1) ? KM1 : KM2;
      sosta_ = 0;
    } else {
      sosta_ += Scansione;
    }
  }

 private:
  int ultimo_ = 0;
  int sosta_ = 0;
};

class GateProjectOpening : public GateProject, public ::testing::WithParamInterface<const char*> {};

TEST_P(GateProjectOpening, EachCommandOpensAndTheGateClosesByItself) {
  EXPECT_TRUE(Chiuso());
  EXPECT_TRUE(Q(HL1));
  Spingi(GetParam());
  EXPECT_TRUE(Attendi([this] { return Q(KM2); }, 1000));  // after the rest that follows Run
  ASSERT_TRUE(Attendi([this] { return Aperto(); }, 6000));
  EXPECT_TRUE(Q(HL3));
  Passa(4500);
  EXPECT_TRUE(Aperto());
  ASSERT_TRUE(Attendi([this] { return Q(KM1); }, 1000));
  ASSERT_TRUE(Attendi([this] { return Chiuso(); }, 6000));
  Passa(20000);
  EXPECT_TRUE(Chiuso());
}

INSTANTIATE_TEST_SUITE_P(All, GateProjectOpening,
                         ::testing::Values("imgSB(0)", "imgSB(2)", "etCom(2)"));

TEST_F(GateProject, TheKeyClosesBeforeTheTime) {
  Apri_Del_Tutto();
  Passa(1000);
  Spingi("etCom(1)");
  EXPECT_TRUE(Q(KM1));
  EXPECT_TRUE(Attendi([this] { return Chiuso(); }, 6000));
}

class GateProjectObstacle : public GateProject,
                            public ::testing::WithParamInterface<const char*> {};

TEST_P(GateProjectObstacle, StopsAClosingGateAndOpensItAgain) {
  Fino_In_Chiusura();
  Macchina().Premi(GetParam());
  Passa(20);
  EXPECT_TRUE(Fermo());
  Macchina().Rilascia(GetParam());
  ASSERT_TRUE(Attendi([this] { return Q(KM2); }, 1000));
  EXPECT_TRUE(Attendi([this] { return Aperto(); }, 6000));
}

TEST_P(GateProjectObstacle, KeepsTheGateOpenWhileItLasts) {
  Apri_Del_Tutto();
  Macchina().Premi(GetParam());
  Passa(20000);
  EXPECT_TRUE(Aperto());
  Spingi("etCom(1)");
  EXPECT_TRUE(Aperto());
  Macchina().Rilascia(GetParam());
  Passa(4500);
  EXPECT_TRUE(Aperto());
  EXPECT_TRUE(Attendi([this] { return Chiuso(); }, 8000));
}

INSTANTIATE_TEST_SUITE_P(All, GateProjectObstacle, ::testing::Values("picFC", "picP"));

TEST_F(GateProject, StopHaltsAndTheNextCommandGoesOn) {
  Spingi("imgSB(0)");
  Passa(1000);
  Spingi("imgSB(1)");
  EXPECT_TRUE(Fermo());
  const float qui = F("imgC").Left;
  Passa(10000);
  EXPECT_EQ(F("imgC").Left, qui);
  Spingi("imgSB(0)");
  EXPECT_TRUE(Attendi([this] { return Aperto(); }, 6000));
}

TEST_F(GateProject, ATrippedRelayHaltsAndRefusesCommands) {
  Spingi("imgSB(0)");
  Passa(1000);
  Macchina().Clic("imgM");
  Passa(20);
  EXPECT_TRUE(Fermo());
  EXPECT_TRUE(Q(HL2));
  Spingi("imgSB(0)");
  EXPECT_TRUE(Fermo());
  Macchina().Clic("imgM");
  Passa(100);
  EXPECT_TRUE(Fermo());
  EXPECT_FALSE(Q(HL2));
}

TEST_F(GateProject, TheLampFlashesOnlyWhileTheGateMoves) {
  int accesa = 0, spenta = 0;
  Spingi("imgSB(0)");
  for (int ms = 0; ms < 3000; ms += Scansione) {
    Passa(Scansione);
    ++(Q(HL4) ? accesa : spenta);
  }
  EXPECT_GT(accesa, 100);
  EXPECT_GT(spenta, 100);
  ASSERT_TRUE(Attendi([this] { return Aperto(); }, 6000));
  for (int ms = 0; ms < 3000; ms += Scansione) {
    Passa(Scansione);
    EXPECT_FALSE(Q(HL4));
  }
}

}  // namespace

}  // namespace tavorno::prova
