// SPDX-License-Identifier: GPL-3.0-or-later
// The axis with its solved project: to the reference and back, by hand, to the limit switches.
#include <cmath>

#include "plants/axis.h"
#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

namespace {

constexpr int MA = 1, MI = 2, AC = 3, HL5 = 8, HL6 = 9;

class AxisProject : public Banco_Risolto {
 public:
  AxisProject() { Avvia(17, "us17.AWL"); }

  ctr_Assi& Assi() { return static_cast<ctr_Assi&>(Macchina()); }
  bool In_Posizione() const { return Q(AC) && Q(HL5) && !Q(MA) && !Q(MI); }
  float Posizione() { return F("ShIndP").Left; }
  void Tieni(const char* nome, int millisecondi) {
    Macchina().Premi(nome);
    Passa(millisecondi);
    Macchina().Rilascia(nome);
    Passa(20);
  }

 protected:
  void Dopo_La_Scansione() override { EXPECT_FALSE(Q(MA) && Q(MI)); }
};

TEST_F(AxisProject, NothingMovesBeforeStart) {
  Passa(10000);
  EXPECT_EQ(Posizione(), 1440);
  EXPECT_FALSE(Q(AC));
}

class AxisProjectReference : public AxisProject, public ::testing::WithParamInterface<int> {};

TEST_P(AxisProjectReference, IsReachedFromBothSidesAndKept) {
  Spingi("imgP(0)");
  for (const int decimi : {GetParam(), 100 - GetParam(), GetParam()}) {
    Macchina().Regola("UpD1", decimi);
    Passa(100);
    ASSERT_TRUE(Attendi([this] { return In_Posizione(); })) << decimi;
    EXPECT_LE(std::abs(Posizione() - (1440 + 58.8F * static_cast<float>(decimi))), 4) << decimi;
    const float qui = Posizione();
    Passa(5000);
    EXPECT_EQ(Posizione(), qui);
  }
}

INSTANTIATE_TEST_SUITE_P(All, AxisProjectReference, ::testing::Values(0, 7, 20, 33, 50, 81, 100));

TEST_F(AxisProject, RunsFastFarAwayAndSlowlyNearTheReference) {
  Spingi("imgP(0)");
  Passa(1000);
  EXPECT_EQ(Assi().ME_VC(), 8);
  ASSERT_TRUE(Attendi([this] { return 4380 - Posizione() < 58; }, 20000));
  Passa(40);
  EXPECT_EQ(Assi().ME_VC(), 2);
  EXPECT_TRUE(Q(MA));
}

TEST_F(AxisProject, AWideHysteresisStopsEarlier) {
  Macchina().Regola("UpD2", 100);
  Spingi("imgP(0)");
  ASSERT_TRUE(Attendi([this] { return In_Posizione(); }, 30000));
  EXPECT_GT(4380 - Posizione(), 5);
  EXPECT_LE(4380 - Posizione(), 59);
}

TEST_F(AxisProject, StopTakesThePowerAndStartGoesOn) {
  Spingi("imgP(0)");
  Passa(3000);
  Spingi("imgP(1)");
  EXPECT_FALSE(Q(AC));
  const float qui = Posizione();
  Passa(5000);
  EXPECT_EQ(Posizione(), qui);
  Spingi("imgP(0)");
  EXPECT_TRUE(Attendi([this] { return In_Posizione(); }, 30000));
}

TEST_F(AxisProject, ByHandItMovesWhileAButtonIsHeld) {
  Macchina().Clic("imgCom");
  Spingi("imgP(0)");
  Passa(2000);
  EXPECT_EQ(Posizione(), 1440);
  Tieni("imgP(2)", 3000);
  const float avanti = Posizione();
  EXPECT_GT(avanti, 1700);
  Passa(2000);
  EXPECT_EQ(Posizione(), avanti);
  Tieni("imgP(3)", 1000);
  EXPECT_LT(Posizione(), avanti);
}

TEST_F(AxisProject, ByHandTheLimitSwitchesStopItAndLetItBack) {
  Macchina().Clic("imgCom");
  Spingi("imgP(0)");
  Tieni("imgP(3)", 10000);
  EXPECT_LT(Posizione(), 1360);
  EXPECT_GE(Posizione(), 1360 - 36);
  EXPECT_TRUE(Q(HL6));
  Tieni("imgP(2)", 70000);
  EXPECT_GT(Posizione(), 7400);
  EXPECT_LE(Posizione(), 7400 + 36);
  EXPECT_TRUE(Q(HL6));
  Tieni("imgP(3)", 2000);
  EXPECT_LT(Posizione(), 7400);
  EXPECT_FALSE(Q(HL6));
}

}  // namespace

}  // namespace tavorno::prova
