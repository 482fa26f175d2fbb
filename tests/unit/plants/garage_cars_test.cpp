// SPDX-License-Identifier: GPL-3.0-or-later
// The cars of the garage, on their way in and out. Expected ticks are counted from the positions:
// a car waits at 4500, the lane is at 2340, spaces at 1380 or 3300, the exit at 1500.
#include "tests/unit/plants/garage_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

using GarageCars = Banco_Garage;

struct Viaggio {
  int Posto;
  int Entrata;      ///< ticks from the start of Timer1 to the parking
  int Corsia;       ///< ticks of timOut0
  int Alla_Sbarra;  ///< ticks of timOut1
};

class GarageJourney : public Banco_Garage, public ::testing::WithParamInterface<Viaggio> {
 public:
  /// Fills the spaces in front of the one of the parameter.
  void Riempi_Prima() {
    for (int posto = 1; posto < GetParam().Posto; ++posto) Parcheggia();
  }
};

TEST_P(GarageJourney, InWithStepEighty) {
  Riempi_Prima();
  garage.Clic("cmdIng");
  EXPECT_EQ(I(2), '1');
  EXPECT_TRUE(Auto(0).Visible());
  EXPECT_FALSE(F("cmdIng").Visible());
  Premi_E_Rilascia("imgPSB(0)");
  EXPECT_EQ(garage.Auto_In_Ingresso, -1);
  EXPECT_EQ(garage.Posto_Scelto, GetParam().Posto);

  garage.Timer1.Enabled(true);
  // 4500 - 80 n: 3700 at 10, 3300 at 15, 2820 at 21, 2260 at 28
  EXPECT_THAT(Traccia(28), ElementsAre(Cambio{10, 2, '0'}, Cambio{15, 5, '1'}, Cambio{21, 5, '0'}));
  EXPECT_EQ(Auto(0).Top(), 2260);
  EXPECT_FALSE(garage.Timer1.Enabled());
  EXPECT_TRUE(garage.Timer2.Enabled());
  Tick();
  EXPECT_EQ(Auto(0).Left(), Auto(GetParam().Posto).Left());
  Tick(GetParam().Entrata - 30);
  EXPECT_FALSE(Auto(GetParam().Posto).Visible());
  EXPECT_EQ(garage.Auto_In_Ingresso, -1);
  Tick();
  EXPECT_TRUE(Auto(GetParam().Posto).Visible());
  EXPECT_FALSE(Auto(0).Visible());
  EXPECT_EQ(Auto(0).Left(), 960);
  EXPECT_EQ(Auto(0).Top(), 4500);
  EXPECT_EQ(garage.Posto_Occupato.at(static_cast<std::size_t>(GetParam().Posto)), -1);
  EXPECT_EQ(garage.Posti_Occupati, GetParam().Posto);
  EXPECT_EQ(F("etPosti").Caption(), std::to_string(6 - GetParam().Posto));
  EXPECT_EQ(F("EtInf").Caption(), GetParam().Posto == 6 ? "OCCUPATO" : "LIBERO");
  EXPECT_EQ(F("EtInf").ForeColor(), Tavolozza(GetParam().Posto == 6 ? 12 : 10));
  EXPECT_TRUE(F("cmdIng").Visible());
  EXPECT_EQ(garage.Auto_In_Ingresso, 0);
  EXPECT_FALSE(garage.Timer2.Enabled());
}

TEST_P(GarageJourney, OutWithStepEighty) {
  Riempi_Prima();
  Parcheggia();
  const int posto = GetParam().Posto;
  EXPECT_TRUE(garage.Clic("imgM(" + std::to_string(posto) + ")"));
  EXPECT_EQ(garage.Auto_In_Uscita, -1);
  EXPECT_EQ(garage.Posto_Uscita, posto);
  EXPECT_FALSE(Auto(posto).Visible());
  EXPECT_TRUE(F("imgMOut").Visible());
  EXPECT_EQ(F("imgMOut").Left(), Auto(posto).Left());
  EXPECT_EQ(F("imgMOut").Top(), Auto(posto).Top());

  Tick(GetParam().Corsia - 1);
  EXPECT_TRUE(garage.timOut0.Enabled());
  Tick();
  EXPECT_FALSE(garage.timOut0.Enabled());
  EXPECT_THAT(Traccia(GetParam().Alla_Sbarra),
              ElementsAre(Cambio{GetParam().Alla_Sbarra, 10, '1'}));
  EXPECT_EQ(F("imgMOut").Left(), 3600);
  EXPECT_EQ(F("imgMOut").Top(), 1500);
  EXPECT_EQ(F("shU").FillColor(), Tavolozza(14));
  Tick(20);
  EXPECT_EQ(F("imgMOut").Top(), 1500);

  garage.timOut2.Enabled(true);
  // 1500 - 80 n: 780 at 9, 220 at 16, -260 at 22, -660 at 27
  EXPECT_THAT(Traccia(26),
              ElementsAre(Cambio{9, 10, '0'}, Cambio{16, 13, '1'}, Cambio{22, 13, '0'}));
  EXPECT_EQ(garage.Auto_In_Uscita, -1);
  Tick();
  EXPECT_FALSE(F("imgMOut").Visible());
  EXPECT_FALSE(garage.timOut2.Enabled());
  EXPECT_EQ(garage.Posto_Occupato.at(static_cast<std::size_t>(posto)), 0);
  EXPECT_EQ(garage.Posti_Occupati, posto - 1);
  EXPECT_EQ(F("etPosti").Caption(), std::to_string(7 - posto));
  EXPECT_EQ(F("EtInf").Caption(), "LIBERO");
  EXPECT_EQ(garage.Auto_In_Uscita, 0);
}

INSTANTIATE_TEST_SUITE_P(StepEighty, GarageJourney,
                         ::testing::ValuesIn(std::vector<Viaggio>{
                             {1, 40, 13, 12},
                             {2, 40, 13, 12},
                             {3, 40, 13, 12},
                             {4, 41, 13, 10},
                             {5, 41, 13, 10},
                             {6, 41, 13, 10},
                         }));

class GarageHostSpeed : public GarageJourney {};

// The step that the host's slider gives is 80.8; only the approach to the lower spaces stays at 80.
TEST_P(GarageHostSpeed, InAndOut) {
  garage.Regola("ME_Speed", 80);
  Riempi_Prima();
  const int posto = GetParam().Posto;
  garage.Clic("cmdIng");
  Premi_E_Rilascia("imgPSB(0)");
  garage.Timer1.Enabled(true);
  // 4500 - 80.8 n: 3772.8 at 9, 3288 at 15, 2803.2 at 21, 2318.4 at 27
  EXPECT_THAT(Traccia(27), ElementsAre(Cambio{9, 2, '0'}, Cambio{15, 5, '1'}, Cambio{21, 5, '0'}));
  EXPECT_TRUE(garage.Timer2.Enabled());
  Tick(GetParam().Entrata - 28);
  EXPECT_FALSE(Auto(posto).Visible());
  Tick();
  EXPECT_TRUE(Auto(posto).Visible());

  garage.Clic("imgM(" + std::to_string(posto) + ")");
  Tick(GetParam().Corsia);
  EXPECT_FALSE(garage.timOut0.Enabled());
  EXPECT_THAT(Traccia(GetParam().Alla_Sbarra),
              ElementsAre(Cambio{GetParam().Alla_Sbarra, 10, '1'}));
  garage.timOut2.Enabled(true);
  // 1500 - 80.8 n: 772.8 at 9, 288 at 15, -277.6 at 22, -600.8 at 26
  EXPECT_THAT(Traccia(25),
              ElementsAre(Cambio{9, 10, '0'}, Cambio{15, 13, '1'}, Cambio{22, 13, '0'}));
  EXPECT_TRUE(F("imgMOut").Visible());
  Tick();
  EXPECT_FALSE(F("imgMOut").Visible());
}

INSTANTIATE_TEST_SUITE_P(StepOfTheHost, GarageHostSpeed,
                         ::testing::ValuesIn(std::vector<Viaggio>{
                             {1, 39, 12, 11},
                             {2, 39, 12, 11},
                             {3, 39, 12, 11},
                             {4, 40, 12, 11},
                             {5, 40, 12, 11},
                             {6, 40, 12, 11},
                         }));

TEST_F(GarageCars, LowerSpacesAreApproachedAtEightyWhateverTheSpeed) {
  for (int n = 0; n < 3; ++n) Parcheggia();
  garage.Clic("cmdIng");
  Premi_E_Rilascia("imgPSB(0)");
  garage.Regola("ME_Speed", 20);
  garage.Timer2.Enabled(true);
  F("imgM(0)").Top = 2300;
  Tick();
  EXPECT_EQ(Auto(0).Top(), 2380);
}

TEST_F(GarageCars, ANewCarTakesTheLowestFreeSpace) {
  for (int n = 0; n < 4; ++n) Parcheggia();
  garage.Clic("imgM(2)");
  Tick(40);
  garage.timOut2.Enabled(true);
  Tick(40);
  ASSERT_EQ(garage.Posti_Occupati, 3);
  Parcheggia();
  EXPECT_TRUE(Auto(2).Visible());
  EXPECT_FALSE(Auto(5).Visible());
}

TEST_F(GarageCars, BrokenBeamsShow) {
  garage.Clic("cmdIng");
  EXPECT_EQ(F("shI").FillColor(), Tavolozza(14));
  EXPECT_EQ(F("imgLTI").Picture(), "imgLG");
  garage.Timer1.Enabled(true);
  Tick(14);
  EXPECT_EQ(F("shI").FillColor(), Tavolozza(15));
  EXPECT_EQ(F("imgLTI").Picture(), Lampada_Spenta);
  EXPECT_EQ(F("linFC(0)").FillColor(), Tavolozza(14));
  Tick();
  EXPECT_EQ(F("linFC(0)").FillColor(), Tavolozza(1));
  EXPECT_EQ(F("imgLFC0").Picture(), "imgLG");
  garage.timOut2.Enabled(true);
  F("imgMOut").Top = 320;
  Tick();
  EXPECT_EQ(F("linFC(1)").FillColor(), Tavolozza(1));
  EXPECT_EQ(F("imgLFCU").Picture(), "imgLG");
  Tick(6);
  EXPECT_EQ(F("linFC(1)").FillColor(), Tavolozza(14));
  EXPECT_EQ(F("imgLFCU").Picture(), Lampada_Spenta);
}

TEST_F(GarageCars, ABarrierWithoutACarSendsTheHiddenCarToTheLastSpace) {
  Parcheggia();
  garage.Stato_Q(Uscite({1}));
  Tick(12);
  garage.Stato_Q(Uscite({}));
  EXPECT_FALSE(Auto(0).Visible());
  Tick(20);
  EXPECT_LT(Auto(0).Top(), 4500);
  EXPECT_FALSE(Auto(0).Visible());
  EXPECT_EQ(garage.Posti_Occupati, 1);
  Tick(20);
  EXPECT_EQ(garage.Posti_Occupati, 2);
  EXPECT_EQ(F("etPosti").Caption(), "4");
  EXPECT_EQ(garage.Posto_Scelto, 1);
  EXPECT_FALSE(Auto(2).Visible());
}

TEST_F(GarageCars, TheHiddenCarCountsEvenBeforeTheFirstOne) {
  garage.Timer1.Enabled(true);
  Tick(60);
  EXPECT_EQ(garage.Posti_Occupati, 1);
  for (int posto = 0; posto <= 6; ++posto) EXPECT_FALSE(Auto(posto).Visible()) << posto;
}

TEST_F(GarageCars, AnExitBarrierWithoutACarLowersTheCount) {
  garage.timOut2.Enabled(true);
  Tick(40);
  EXPECT_EQ(garage.Posti_Occupati, -1);
  EXPECT_EQ(F("etPosti").Caption(), "7");
}

TEST_F(GarageCars, AFullGarageRefusesTheButtonButItsDigitChanges) {
  for (int n = 0; n < 6; ++n) Parcheggia();
  ASSERT_EQ(F("etPosti").Caption(), "0");
  garage.Clic("cmdIng");
  garage.Premi("imgPSB(0)");
  EXPECT_EQ(I(1), '1');
  garage.Rilascia("imgPSB(0)");
  EXPECT_EQ(I(1), '0');
  garage.Clic("imgPSB(0)");
  EXPECT_EQ(garage.Auto_In_Ingresso, 0);
}

TEST_F(GarageCars, TheButtonBeforeAnyCarOnlyChangesItsDigit) {
  garage.Premi("imgPSB(0)");
  EXPECT_EQ(I(1), '1');
  garage.Rilascia("imgPSB(0)");
  garage.Clic("imgPSB(0)");
  EXPECT_EQ(garage.Auto_In_Ingresso, 0);
  EXPECT_EQ(garage.Posto_Scelto, 0);
}

TEST_F(GarageCars, ASecondPressWhileACarDrivesInIsRefused) {
  garage.Clic("cmdIng");
  Premi_E_Rilascia("imgPSB(0)");
  garage.Posto_Occupato[1] = -1;
  Premi_E_Rilascia("imgPSB(0)");
  EXPECT_EQ(garage.Posto_Scelto, 1);
}

TEST_F(GarageCars, AReadyCarStaysReadyUntilTheReset) {
  Parcheggia();
  EXPECT_EQ(garage.Auto_Pronta, -1);
  Premi_E_Rilascia("imgPSB(0)");  // accepted without a new car
  EXPECT_EQ(garage.Auto_In_Ingresso, -1);
  garage.Clic("cmdReset");
  EXPECT_EQ(garage.Auto_Pronta, 0);
}

TEST_F(GarageCars, OneCarLeavesAtATimeWhileANewOneEnters) {
  for (int n = 0; n < 3; ++n) Parcheggia();
  garage.Clic("imgM(1)");
  garage.Clic("imgM(2)");
  EXPECT_EQ(garage.Posto_Uscita, 1);
  EXPECT_TRUE(Auto(2).Visible());
  garage.Clic("cmdIng");
  Premi_E_Rilascia("imgPSB(0)");
  EXPECT_EQ(garage.Posto_Scelto, 4);
  garage.Timer1.Enabled(true);
  Tick(10);
  EXPECT_EQ(Auto(0).Top(), 4500 - 800);
  EXPECT_EQ(F("imgMOut").Top(), 1380 + 800);
}

TEST_F(GarageCars, ABarrierHeldOpenSendsOneGhostAfterTheOther) {
  garage.Clic("cmdIng");
  Premi_E_Rilascia("imgPSB(0)");
  garage.Stato_Q(Uscite({1}));
  Tick(12 + 200);
  EXPECT_GT(garage.Posti_Occupati, 1);
  EXPECT_EQ(garage.Posto_Scelto, 1);
}

}  // namespace tavorno::prova
