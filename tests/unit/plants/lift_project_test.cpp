// SPDX-License-Identifier: GPL-3.0-or-later
// The lift with its solved project: passengers, an obstructed door, too much weight, a fault.
#include <gmock/gmock.h>

#include <cmath>
#include <vector>

#include "plants/lift.h"
#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

constexpr int KM1 = 1, KM2 = 2, KM3 = 3, KM4 = 4, HL9 = 13, HL10 = 14;

class LiftProject : public Banco_Risolto {
 public:
  LiftProject() { Avvia(14, "us14.AWL"); }

  ctr_Ascensore& Lift() { return static_cast<ctr_Ascensore&>(Macchina()); }
  /// Floor where the cabin stands with its doors open, from 0; -1 for none.
  int Aperta_A() {
    if (Lift().Stato_Porte != 0 || Lift().timCab.Enabled()) return -1;
    for (int piano = 0; piano < 4; ++piano) {
      const auto centro =
          static_cast<float>(Piani_Ascensore()[static_cast<std::size_t>(piano)].Centro);
      if (std::abs(F("imgC").Top - centro) < 50) return piano;
    }
    return -1;
  }
  bool Ferma() { return Lift().Stato_I()[4] == '1' && !Q(KM1) && !Q(KM2) && !Q(KM3) && !Q(KM4); }
  /// Floors at which the doors opened in the coming time, in their order.
  std::vector<int> Fermate(int millisecondi) {
    std::vector<int> fermate;
    int prima = -1;
    for (int ms = 0; ms < millisecondi; ms += Scansione) {
      Passa(Scansione);
      const int ora = Aperta_A();
      if (ora >= 0 && prima < 0) fermate.push_back(ora);
      prima = ora;
    }
    return fermate;
  }

 protected:
  void Dopo_La_Scansione() override {
    EXPECT_FALSE(Q(KM1) && Q(KM2));
    EXPECT_FALSE(Q(KM3) && Q(KM4));
    EXPECT_FALSE((Q(KM1) || Q(KM2)) && (Q(KM3) || Q(KM4)));
    const bool chiuse = Lift().Stato_I()[4] == '1';
    EXPECT_TRUE(chiuse || !(Q(KM1) || Q(KM2))) << "moves with open doors";
    EXPECT_GT(F("imgC").Top(), 900);
    EXPECT_LT(F("imgC").Top(), 4680);
  }
};

TEST_F(LiftProject, WaitsAtRestAndShowsWhereItIs) {
  Passa(3000);
  EXPECT_TRUE(Ferma());
  EXPECT_TRUE(Q(8));
  EXPECT_FALSE(Q(5) || Q(6) || Q(7) || Q(HL9) || Q(HL10));
}

TEST_F(LiftProject, AnswersACallFromTheGroundAndClosesAgain) {
  Spingi("imgPP(3)");
  EXPECT_TRUE(Q(5));
  EXPECT_TRUE(Q(KM2));
  EXPECT_TRUE(Attendi([this] { return Aperta_A() == 0; }));
  EXPECT_FALSE(Q(8));
  EXPECT_TRUE(Attendi([this] { return Ferma(); }));
  EXPECT_EQ(F("ShP(0)").Left(), 660);
  EXPECT_TRUE(Q(5));
}

TEST_F(LiftProject, StopsInPassingAndServesThePassengersInTheOrderOfTheFloors) {
  Spingi("imgPC(0)");  // in the cabin, to the ground
  Spingi("imgPP(1)");  // on the second floor
  Spingi("imgPP(2)");  // on the first
  EXPECT_TRUE(Q(12));
  EXPECT_THAT(Fermate(45000), ElementsAre(2, 1, 0));
  EXPECT_FALSE(Q(12));
  Spingi("imgPC(2)");
  Spingi("imgPC(3)");
  Spingi("imgPP(2)");
  EXPECT_THAT(Fermate(45000), ElementsAre(1, 2, 3));
  EXPECT_TRUE(Ferma());
}

TEST_F(LiftProject, KeepsItsDirectionWhileSomeoneAsksThatWay) {
  Spingi("imgPC(1)");
  ASSERT_TRUE(Attendi([this] { return Aperta_A() == 1; }));
  Spingi("imgPP(0)");
  Spingi("imgPC(0)");
  EXPECT_THAT(Fermate(45000), ElementsAre(1, 0, 3));
}

TEST_F(LiftProject, ACallAtItsOwnFloorOpensTheDoors) {
  Spingi("imgPP(0)");
  EXPECT_TRUE(Attendi([this] { return Aperta_A() == 3; }, 3000));
  EXPECT_EQ(F("imgC").Top(), 1020);
}

TEST_F(LiftProject, SomeoneInTheDoorwayKeepsTheDoorsOpen) {
  Spingi("imgPP(0)");
  ASSERT_TRUE(Attendi([this] { return Aperta_A() == 3; }));
  ASSERT_TRUE(Macchina().Premi("imgLFC"));
  Passa(20000);
  EXPECT_EQ(Aperta_A(), 3);
  Macchina().Rilascia("imgLFC");
  EXPECT_TRUE(Attendi([this] { return Ferma(); }, 7000));
}

TEST_F(LiftProject, SomeoneBetweenClosingDoorsOpensThemAgain) {
  Spingi("imgPP(0)");
  ASSERT_TRUE(Attendi([this] { return Aperta_A() == 3; }));
  ASSERT_TRUE(Attendi([this] { return Q(KM3); }));
  Passa(1000);
  ASSERT_TRUE(Macchina().Premi("imgLFC"));
  Passa(Scansione * 3);
  EXPECT_TRUE(Q(KM4));
  EXPECT_TRUE(Attendi([this] { return Aperta_A() == 3; }, 3000));
  Macchina().Rilascia("imgLFC");
  EXPECT_TRUE(Attendi([this] { return Ferma(); }, 7000));
  EXPECT_FALSE(Q(HL10));
}

TEST_F(LiftProject, TooMuchWeightKeepsItAtTheFloor) {
  Spingi("imgPP(0)");
  ASSERT_TRUE(Attendi([this] { return Aperta_A() == 3; }));
  Macchina().Regola("UpD1", 9);
  Spingi("imgPC(0)");
  Passa(15000);
  EXPECT_TRUE(Q(HL9));
  EXPECT_EQ(Aperta_A(), 3);
  Macchina().Regola("UpD1", 8);
  EXPECT_THAT(Fermate(20000), ElementsAre(3, 0));
  EXPECT_FALSE(Q(HL9));
}

TEST_F(LiftProject, StopHaltsTheCabinAndTheNextPushMovesIt) {
  Spingi("imgPC(0)");
  Passa(2000);
  ASSERT_TRUE(Q(KM2));
  Macchina().Premi("imgPC(4)");
  Passa(20);
  EXPECT_FALSE(Q(KM2));
  const float dove = F("imgC").Top;
  Macchina().Rilascia("imgPC(4)");
  Passa(5000);
  EXPECT_EQ(F("imgC").Top(), dove);
  EXPECT_FALSE(Q(12));
  Spingi("imgPP(0)");
  EXPECT_TRUE(Attendi([this] { return Aperta_A() == 3; }));
}

TEST_F(LiftProject, ACabinThatDoesNotArriveIsAFault) {
  Macchina().Regola("ME_DeltaS", 0);
  Spingi("imgPC(0)");
  EXPECT_TRUE(Q(KM2));
  EXPECT_TRUE(Attendi([this] { return Q(HL10); }, 27000));
  EXPECT_FALSE(Q(KM2));
  Macchina().Regola("ME_DeltaS", 20);
  Spingi("imgPC(0)");
  EXPECT_FALSE(Q(KM2));
  Spingi("imgPC(4)");
  EXPECT_FALSE(Q(HL10));
  Spingi("imgPC(0)");
  EXPECT_TRUE(Attendi([this] { return Aperta_A() == 0; }));
}

TEST_F(LiftProject, DoorsThatDoNotMoveAreAFault) {
  Macchina().Regola("ME_SpedP", 5000);
  Spingi("imgPP(0)");
  EXPECT_TRUE(Attendi([this] { return Q(HL10); }, 7000));
  EXPECT_FALSE(Q(KM4));
}

TEST_F(LiftProject, WorksAtEverySpeedOfTheSlider) {
  for (const int velocita : {1, 2, 3, 4, 5}) {
    filo->Muovi(0, velocita);
    Spingi("imgPC(0)");
    EXPECT_TRUE(Attendi([this] { return Aperta_A() == 0; })) << velocita;
    Spingi("imgPC(3)");
    EXPECT_TRUE(Attendi([this] { return Aperta_A() == 3; })) << velocita;
    EXPECT_FALSE(Q(HL10)) << velocita;
  }
}

}  // namespace tavorno::prova
