// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/unit/plants/axis_bed.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

TEST_F(Axis, StartsAtZeroWithItsTimersOff) {
  EXPECT_EQ(assi.Stato_I(), riposo);
  EXPECT_EQ(assi.Stato_Q(), "0000000000000000");
  EXPECT_EQ(ShIndP.Left, 1440);
  EXPECT_EQ(assi.Disegno["shC"].Left, 1320);
  EXPECT_EQ(assi.Disegno["ImgRiga"].Left, 1310);
  EXPECT_EQ(assi.Passo_Asse, 15);
  EXPECT_EQ(assi.timIO.Interval(), 20);
  EXPECT_EQ(assi.timMove.Interval(), 100);
  EXPECT_EQ(assi.timG.Interval(), 100);
  EXPECT_FALSE(assi.Enabled());
  EXPECT_FALSE(assi.timMove.Enabled());
  EXPECT_FALSE(assi.timG.Enabled());
  EXPECT_EQ(Caption("EtPos"), "0.0");
  EXPECT_EQ(plc.Volt_AI[0], 0.0F);
}

TEST_F(Axis, StartsWithReferenceAndHysteresisOfItsUpDowns) {
  EXPECT_EQ(assi.Trova_Regolatore("UpD1")->Valore, 50);
  EXPECT_EQ(assi.Trova_Regolatore("UpD2")->Valore, 5);
  EXPECT_EQ(Caption("EtRif"), "5.0");
  EXPECT_EQ(assi.Disegno["shRif"].Left, 4380);
  EXPECT_EQ(plc.Volt_AI[1], 5.0F);
  EXPECT_EQ(Caption("EtIst"), "0.005");
  EXPECT_EQ(plc.Volt_AI[2], 0.005F);
}

TEST_F(Axis, FitsItsWindow) {
  Verifica_Geometria(assi, 9000, 3095);
}

// ---- control voltage ----------------------------------------------------------------------------

struct Prova_Velocita {
  float Volt;
  float Passo;
  int Intervallo;
  int Passi_In_10s;
};

void PrintTo(const Prova_Velocita& prova, std::ostream* out) {
  *out << prova.Volt << " V";
}

constexpr Prova_Velocita velocita[] = {
    {10, 60, 100, 100}, {8, 48, 200, 50},   {6, 36, 300, 33}, {5, 10, 300, 33},
    {2, 4, 500, 20},    {0.2F, 1, 500, 20}, {0, 1, 3000, 3},
};

class AxisSpeed : public ::testing::TestWithParam<Prova_Velocita> {};

TEST_P(AxisSpeed, FollowsTheControlVoltage) {
  const Prova_Velocita& prova = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  assi.ME_VC(prova.Volt);
  EXPECT_EQ(assi.ME_VC(), prova.Volt);
  EXPECT_EQ(assi.Passo_Asse, prova.Passo);
  EXPECT_EQ(assi.timMove.Interval(), prova.Intervallo);
}

TEST_P(AxisSpeed, MovesTheSlideStepByStepForTenSeconds) {
  const Prova_Velocita& prova = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  assi.Enabled(true);
  plc.Volt_AQ[0] = prova.Volt;
  orologio.Avanza(20);
  assi.Stato_Q(Uscite({AC, MA}));
  int passi = 0;
  for (int ms = 1; ms <= 10000; ++ms) {
    orologio.Avanza(1);
    if (ms % prova.Intervallo == 0) ++passi;
    const float attesa = 1440 + static_cast<float>(passi) * prova.Passo;
    ASSERT_EQ(assi.Disegno["ShIndP"].Left, attesa) << ms << " ms";
    ASSERT_EQ(assi.Disegno["shC"].Left, attesa - 120) << ms << " ms";
  }
  EXPECT_EQ(passi, prova.Passi_In_10s);
  EXPECT_EQ(plc.Volt_AI[0], static_cast<float>(passi) * prova.Passo * 10 / 5880);
}

INSTANTIATE_TEST_SUITE_P(All, AxisSpeed, ::testing::ValuesIn(velocita));

class AxisHighVoltage : public ::testing::TestWithParam<std::pair<float, int>> {};

TEST_P(AxisHighVoltage, HoldsTheShortestInterval) {
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  assi.ME_VC(GetParam().first);
  EXPECT_EQ(assi.timMove.Interval(), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(All, AxisHighVoltage,
                         ::testing::Values(std::pair(8.01F, 100), std::pair(10.0F, 100),
                                           std::pair(10.01F, 100), std::pair(12.0F, 100),
                                           std::pair(20.0F, 100), std::pair(0.1F, 500),
                                           std::pair(0.09F, 3000), std::pair(-3.0F, 3000)));

TEST_F(Axis, AStepIsNeverShorterThanOneTwip) {
  for (const float volt : {-10.0F, 0.0F, 0.3F, 0.49F}) {
    assi.ME_VC(volt);
    EXPECT_EQ(assi.Passo_Asse, 1) << volt;
  }
  assi.ME_VC(20);
  EXPECT_EQ(assi.Passo_Asse, 120);
}

TEST_F(Axis, TheKinkIsAboveFiveVolts) {
  assi.ME_VC(5);
  EXPECT_EQ(assi.Passo_Asse, 10);
  assi.ME_VC(5.01F);
  EXPECT_FLOAT_EQ(assi.Passo_Asse, 30.06F);
}

TEST_F(Axis, ReadsTheAnalogOutputWhileEnabled) {
  plc.Volt_AQ[0] = 6.5F;
  orologio.Avanza(100);
  EXPECT_EQ(assi.ME_VC(), 0);
  EXPECT_TRUE(assi.Regola("Enabled", 1));
  EXPECT_TRUE(assi.Enabled());
  orologio.Avanza(19);
  EXPECT_EQ(assi.ME_VC(), 0);
  orologio.Avanza(1);
  EXPECT_EQ(assi.ME_VC(), 6.5F);
  EXPECT_EQ(Caption("EtVc"), "6.5");
  plc.Volt_AQ[0] = 3.256F;
  orologio.Avanza(20);
  EXPECT_EQ(Caption("EtVc"), "3.26");
  plc.Volt_AQ[0] = 10;
  orologio.Avanza(20);
  EXPECT_EQ(Caption("EtVc"), "10.0");
  assi.Regola("Enabled", 0);
  EXPECT_FALSE(assi.Enabled());
}

// ---- outputs ------------------------------------------------------------------------------------

TEST_F(Axis, PowerLightsTheAmplifierAndStartsNothing) {
  assi.Stato_Q(Uscite({AC}));
  EXPECT_EQ(assi.Potenza_On, -1);
  EXPECT_NE(Picture(assi, "imgL0"), "imgLNot");
  EXPECT_EQ(Colore_Di("shAP"), Tavolozza(10));
  EXPECT_FALSE(assi.timMove.Enabled());
  assi.Stato_Q(Uscite({}));
  EXPECT_EQ(assi.Potenza_On, 0);
  EXPECT_EQ(Picture(assi, "imgL0"), "imgLNot");
  EXPECT_NE(Colore_Di("shAP"), Tavolozza(10));
}

TEST_F(Axis, WithoutPowerTheDirectionLightsAndNothingMoves) {
  assi.Stato_Q(Uscite({MA}));
  EXPECT_EQ(assi.Marcia_Avanti, -1);
  EXPECT_NE(Picture(assi, "imgL2"), "imgLNot");
  orologio.Avanza(10000);
  EXPECT_EQ(ShIndP.Left, 1440);
}

TEST_F(Axis, MovesWithPowerAndADirectionInOneScan) {
  assi.Stato_Q(Uscite({AC, MI}));
  EXPECT_TRUE(assi.timMove.Enabled());
  EXPECT_TRUE(assi.timG.Enabled());
  EXPECT_EQ(assi.Senso_Asse, 1);
  EXPECT_EQ(assi.Marcia_Indietro, -1);
  EXPECT_NE(Picture(assi, "imgL1"), "imgLNot");
  orologio.Avanza(100);
  EXPECT_EQ(ShIndP.Left, 1425);
  assi.Stato_Q(Uscite({AC}));
  EXPECT_FALSE(assi.timMove.Enabled());
  EXPECT_FALSE(assi.timG.Enabled());
  EXPECT_EQ(Picture(assi, "imgL1"), "imgLNot");
}

TEST_F(Axis, WithBothDirectionsTheLastToRiseDecides) {
  assi.Stato_Q(Uscite({AC, MI}));
  assi.Stato_Q(Uscite({AC, MI, MA}));
  EXPECT_EQ(assi.Senso_Asse, 0);
  assi.Stato_Q(Uscite({AC, MI}));  // a falling bit turns nothing round
  EXPECT_EQ(assi.Senso_Asse, 0);
  EXPECT_TRUE(assi.timMove.Enabled());
  assi.Stato_Q(Uscite({}));
  assi.Stato_Q(Uscite({AC, MA, MI}));  // in one scan MI is the later one
  EXPECT_EQ(assi.Senso_Asse, 1);
}

TEST_F(Axis, PowerOffStopsAndPowerOnGoesOnInTheSameDirection) {
  assi.Stato_Q(Uscite({AC, MI}));
  assi.Stato_Q(Uscite({AC, MI, MA}));
  orologio.Avanza(200);
  EXPECT_EQ(ShIndP.Left, 1470);
  assi.Stato_Q(Uscite({MI, MA}));
  orologio.Avanza(1000);
  EXPECT_EQ(ShIndP.Left, 1470);
  assi.Stato_Q(Uscite({AC, MI, MA}));
  orologio.Avanza(100);
  EXPECT_EQ(ShIndP.Left, 1485);
}

TEST_F(Axis, CreepsOneTwipEveryThreeSecondsWithoutControlVoltage) {
  assi.Enabled(true);
  orologio.Avanza(20);
  assi.Stato_Q(Uscite({AC, MA}));
  orologio.Avanza(2999);
  EXPECT_EQ(ShIndP.Left, 1440);
  orologio.Avanza(1);
  EXPECT_EQ(ShIndP.Left, 1441);
  orologio.Avanza(3000);
  EXPECT_EQ(ShIndP.Left, 1442);
}

class AxisLamp : public ::testing::TestWithParam<std::tuple<int, const char*, const char*>> {};

TEST_P(AxisLamp, FollowsItsOutputAlone) {
  const auto& [posizione, nome, picture] = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  Verifica_Lampada(assi, posizione, nome, picture);
}

INSTANTIATE_TEST_SUITE_P(
    All, AxisLamp,
    ::testing::Values(std::tuple(4, "imgL(0)", "imgLN"), std::tuple(5, "imgL(1)", "imgLB"),
                      std::tuple(6, "imgL(2)", "imgLV"), std::tuple(7, "imgL(3)", "imgLV"),
                      std::tuple(8, "imgL(4)", "imgLB"), std::tuple(9, "imgL(5)", "imgLR"),
                      std::tuple(MA, "imgL2", "imgLV"), std::tuple(MI, "imgL1", "imgLV")));

TEST_F(Axis, OutputsWithoutAUseAreIgnored) {
  const auto prima = Aspetto(assi);
  assi.Stato_Q(Uscite({10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(Aspetto(assi), prima);
}

TEST_F(Axis, TheScrewTurnsBetweenTwoPatterns) {
  const int prima = assi.Disegno["ShPerno"].FillStyle;
  assi.Stato_Q(Uscite({AC, MA}));
  for (const int atteso : {prima == 4 ? 5 : 4, prima, prima == 4 ? 5 : 4}) {
    orologio.Avanza(100);
    EXPECT_EQ(assi.Disegno["ShPerno"].FillStyle, atteso);
  }
}

// ---- position and limits ------------------------------------------------------------------------

struct Prova_Posizione {
  float Posizione;
  float Volt;
  const char* EtPos;
  char SQ1_Dopo, SQ2_Dopo;
};

class AxisPosition : public ::testing::TestWithParam<Prova_Posizione> {};

TEST_P(AxisPosition, GivesItsVoltageAndLimits) {
  const Prova_Posizione& prova = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  assi.Disegno["ShIndP"].Left = prova.Posizione - 15;
  assi.Stato_Q(Uscite({AC, MA}));
  orologio.Avanza(100);
  ASSERT_EQ(assi.Disegno["ShIndP"].Left, prova.Posizione);
  EXPECT_FLOAT_EQ(plc.Volt_AI[0], prova.Volt);
  EXPECT_EQ(assi.Disegno["EtPos"].Caption(), prova.EtPos);
  EXPECT_EQ(Ingresso(assi, SQ1), prova.SQ1_Dopo);
  EXPECT_EQ(Ingresso(assi, SQ2), prova.SQ2_Dopo);
  EXPECT_EQ(assi.Disegno["shI"].FillColor, Tavolozza(prova.SQ1_Dopo == '0' ? 10 : 2));
  EXPECT_EQ(assi.Disegno["shA"].FillColor, Tavolozza(prova.SQ2_Dopo == '0' ? 10 : 2));
}

INSTANTIATE_TEST_SUITE_P(
    All, AxisPosition,
    ::testing::Values(Prova_Posizione{1440, 0, "0.00", '1', '1'},
                      Prova_Posizione{4380, 5, "5.00", '1', '1'},
                      Prova_Posizione{7320, 10, "10.00", '1', '1'},
                      Prova_Posizione{1360, -800.0F / 5880, "-0.14", '1', '1'},
                      Prova_Posizione{1359, -810.0F / 5880, "-0.14", '0', '1'},
                      Prova_Posizione{7400, 59600.0F / 5880, "10.14", '1', '1'},
                      Prova_Posizione{7401, 59610.0F / 5880, "10.14", '1', '0'},
                      Prova_Posizione{13200, 20, "20.00", '1', '0'}));

TEST_F(Axis, PositionsExactlyAtTheLimitsAreBetweenThem) {
  Porta_A(1360);
  EXPECT_EQ(assi.Stato_I(), riposo);
  Porta_A(7400);
  EXPECT_EQ(assi.Stato_I(), riposo);
}

TEST_F(Axis, BehindTheBackLimitTheForwardContactIsLeftAsItWas) {
  assi.Clic("imgFCA");
  ASSERT_EQ(Ingresso(assi, SQ2), '0');
  Porta_A(1300);
  EXPECT_EQ(Ingresso(assi, SQ1), '0');
  EXPECT_EQ(Ingresso(assi, SQ2), '0');
  EXPECT_EQ(Colore_Di("shA"), Tavolozza(2));
}

TEST_F(Axis, EveryStepSpeaks) {
  Ascolto ascolto(assi);
  Porta_A(1500);
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(riposo, riposo));
}

}  // namespace

}  // namespace tavorno::prova
