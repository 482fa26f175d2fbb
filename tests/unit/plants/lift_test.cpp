// SPDX-License-Identifier: GPL-3.0-or-later
// The lift at rest, its cabin and its floors.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/plants/lift_bed.h"

namespace tavorno::prova {

TEST(LiftAtRest, StandsAtTheThirdFloorWithClosedDoors) {
  Orologio orologio;
  ctr_Ascensore ascensore(orologio);
  Scena& scena = ascensore.Disegno;
  EXPECT_EQ(ascensore.Stato_I(), "1110100001000001");
  EXPECT_EQ(scena["imgC"].Top(), 1020);
  EXPECT_EQ(scena["imgC"].Left(), 660);
  EXPECT_EQ(scena["imgC"].Height(), 810);
  EXPECT_EQ(scena["imgP"].Top(), 4740);
  EXPECT_EQ(scena["ShP(0)"].Left(), 660);
  EXPECT_EQ(scena["ShP(1)"].Left(), 1200);
  EXPECT_EQ(scena["ShP(0)"].Width(), 555);
  EXPECT_EQ(scena["ShP(1)"].Width(), 555);
  for (const char* grigio : {"shFcP(0)", "shFcP(1)", "shFcP(2)"})
    EXPECT_EQ(scena[grigio].FillColor(), Tavolozza(8)) << grigio;
  EXPECT_EQ(scena["shFcP(3)"].FillColor(), Tavolozza(12));
  EXPECT_EQ(scena["shFcP(4)"].FillColor(), 65280U);
  EXPECT_EQ(scena["shFcP(5)"].FillColor(), 32768U);
  for (const char* spento : {"imgSC(0)", "imgSC(1)", "imgSC(2)"})
    EXPECT_EQ(scena[spento].Picture(), "spento") << spento;
  EXPECT_EQ(scena["imgSC(3)"].Picture(), "acceso");
  for (const char* nascosta : {"imgSu", "imgGiu", "imgLFC", "EtPos"})
    EXPECT_FALSE(scena[nascosta].Visible()) << nascosta;
  EXPECT_EQ(scena["EtPos"].Caption(), "2.04");
  EXPECT_EQ(scena["etIn(1)"].Caption(), "1    Ascensore in Funzione");
  EXPECT_EQ(scena["etIn(2)"].Caption(), "2    Ascensore in Manutenz.");
  EXPECT_EQ(scena["etIn(1)"].ForeColor(), 255U);
  EXPECT_EQ(scena["Label3"].Caption(), "Selettore SA1");
  EXPECT_EQ(scena["Label5"].Caption(), "Cella di Carico");
  EXPECT_EQ(ascensore.Manutenzione, 0);
  EXPECT_EQ(ascensore.Stato_Porte, 1);
  EXPECT_EQ(ascensore.Isteresi, 50);
  EXPECT_EQ(ascensore.Passo_Cabina, 20);
  EXPECT_FALSE(ascensore.timCab.Enabled());
  EXPECT_FALSE(ascensore.timP.Enabled());
  EXPECT_EQ(ascensore.timCab.Interval(), 50);
  EXPECT_EQ(ascensore.timP.Interval(), 50);
  EXPECT_EQ(ascensore.ME_AIW0, 0.0F);
  EXPECT_EQ(ascensore.ME_AIW2, 2.0F);
  EXPECT_FALSE(ascensore.ME_AIW4.has_value());
}

struct Piano_Atteso {
  int Indice, Centro, Ingresso;
  const char* EtP;
  float Volt;
};

class LiftFloor : public Lift, public ::testing::WithParamInterface<Piano_Atteso> {};

TEST_P(LiftFloor, ActsWithinItsBandAndNotOnItsEdges) {
  const auto& [indice, centro, ingresso, etichetta, volt] = GetParam();
  EXPECT_EQ(Piani_Ascensore()[static_cast<std::size_t>(indice)].Centro, centro);
  const std::string n = "(" + std::to_string(indice) + ")";
  EXPECT_EQ(F("EtP" + n).Caption(), etichetta);
  for (const auto& [scarto, dentro] :
       {std::pair{-50, false}, {-49, true}, {0, true}, {49, true}, {50, false}}) {
    Scendi_A(static_cast<float>(centro + scarto));
    EXPECT_EQ(Ingresso(ascensore, ingresso), dentro ? '0' : '1') << scarto;
    EXPECT_EQ(F("imgSC" + n).Picture(), dentro ? "acceso" : "spento") << scarto;
    EXPECT_EQ(F("shFcP" + n).FillColor(), dentro ? Tavolozza(12) : Tavolozza(8)) << scarto;
    EXPECT_EQ(F("EtP" + n).ForeColor(), dentro ? 255U : 0U) << scarto;
  }
}

TEST_P(LiftFloor, OpensNoOtherSensor) {
  Scendi_A(static_cast<float>(GetParam().Centro));
  for (int posizione = 1; posizione <= 4; ++posizione)
    EXPECT_EQ(Ingresso(ascensore, posizione), posizione == GetParam().Ingresso ? '0' : '1');
}

TEST_P(LiftFloor, IsReportedInVoltsByTheTickAfter) {
  Scendi_A(static_cast<float>(GetParam().Centro));
  Tick();
  EXPECT_FLOAT_EQ(*ascensore.ME_AIW2, GetParam().Volt);
}

INSTANTIATE_TEST_SUITE_P(All, LiftFloor,
                         ::testing::ValuesIn(std::vector<Piano_Atteso>{
                             {0, 4580, 1, "T", 9.16F},
                             {1, 3380, 2, "1", 6.76F},
                             {2, 2180, 3, "2", 4.36F},
                             {3, 1000, 4, "3", 2.0F},
                         }));

TEST_F(Lift, PositionLagsByOneStep) {
  Scendi_A(4560);  // into the ground band
  EXPECT_FLOAT_EQ(*ascensore.ME_AIW2, 4540 / 500.0F);
  EXPECT_EQ(F("EtPos").Caption(), "9.08");
  Tick();
  EXPECT_FLOAT_EQ(*ascensore.ME_AIW2, 4560 / 500.0F);
  EXPECT_EQ(F("EtPos").Caption(), "9.12");
}

TEST_F(Lift, CabinAndCounterweightMoveOppositeAndTakeRopesAndDoorsAlong) {
  Solo(2);
  Tick(10);
  EXPECT_EQ(F("imgC").Top(), 1220);
  EXPECT_EQ(F("imgP").Top(), 4540);
  EXPECT_EQ(F("lin2").Top(), 780);
  EXPECT_EQ(F("lin2").Height(), 1220 - 780);
  EXPECT_EQ(F("lin1").Height(), 4540 - 780);
  EXPECT_EQ(F("ShP(0)").Top(), F("ShP(1)").Top());
  EXPECT_EQ(F("ShP(0)").Top() - F("imgC").Top(), 120);
  Solo(1);
  Tick(10);
  EXPECT_EQ(F("imgC").Top(), 1020);
  EXPECT_EQ(F("imgP").Top(), 4740);
}

TEST_F(Lift, TakesThreeSecondsBetweenTwoLowerFloors) {
  Scendi_A(3380);
  orologio.Avanza(2999);
  EXPECT_LT(F("imgC").Top(), 4580);
  orologio.Avanza(1);
  EXPECT_EQ(F("imgC").Top(), 4580);
}

TEST_F(Lift, HasNoEndStops) {
  Solo(1);
  Tick(200);
  EXPECT_EQ(F("imgC").Top(), 1020 - 4000);
  EXPECT_EQ(F("imgP").Top(), 4740 + 4000);
  EXPECT_GT(F("lin2").Height(), 0);
  Solo(2);
  Tick(600);
  EXPECT_EQ(F("imgC").Top(), -2980 + 12000);
  EXPECT_EQ(ascensore.Stato_I().substr(0, 4), "1111");
}

TEST_F(Lift, RopeNeverLosesItsFigure) {
  ascensore.Stato_Q(Uscite({1}));
  Tick(12);
  EXPECT_EQ(F("imgC").Top(), 780);
  EXPECT_EQ(F("lin2").Height(), 1);
}

TEST_F(Lift, ANarrowBandAndALongStepCrossFloorsUnseen) {
  ascensore.Regola("ME_DeltaP", 10);
  ascensore.Regola("ME_DeltaS", 50);
  EXPECT_EQ(ascensore.Isteresi, 10);
  EXPECT_EQ(ascensore.Passo_Cabina, 50);
  ascensore.Stato_Q(Uscite({2}));
  for (int tick = 0; tick < 80; ++tick) {
    Tick();
    // 1020 + 50 n comes as near as 10 to the three lower floors, which is not near enough
    EXPECT_EQ(ascensore.Stato_I().substr(0, 4), "1111") << F("imgC").Top();
  }
  F("imgC").Top = 2139;
  Tick();
  EXPECT_EQ(F("imgC").Top(), 2189);
  EXPECT_EQ(Ingresso(ascensore, 3), '0');
}

}  // namespace tavorno::prova
