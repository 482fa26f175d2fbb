// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/unit/plants/gate_bed.h"
#include "tests/unit/plants/input_trace.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

TEST_F(Gate, StartsClosedWithBothTimersOff) {
  EXPECT_EQ(cancello.Stato_I(), chiuso);
  EXPECT_EQ(cancello.Stato_Q(), "0000000000000000");
  EXPECT_EQ(cancello.Termico, 0);
  EXPECT_EQ(imgC.Left, 1260);
  EXPECT_EQ(imgC.Top, 1500);
  EXPECT_FALSE(cancello.TimChiudi.Enabled());
  EXPECT_FALSE(cancello.timApri.Enabled());
  EXPECT_EQ(cancello.TimChiudi.Interval(), 50);
  EXPECT_EQ(cancello.timApri.Interval(), 50);
  EXPECT_EQ(cancello.Disegno["Label2"].Caption(), "Chiude << >> Apre");
  EXPECT_EQ(Motore(), "imgMOF");
}

TEST_F(Gate, PillarsStandWhereTheLimitsAreMeasured) {
  EXPECT_EQ(cancello.Disegno["shP1"].Left, 840);
  EXPECT_EQ(cancello.Disegno["shP1"].Width, 435);
  EXPECT_EQ(cancello.Disegno["ShP2"].Left, 3600);
}

TEST_F(Gate, TheGateIsInFrontOfThePicture) {
  const Figura* ultima = nullptr;
  for (const Figura& figura : cancello.Disegno) ultima = &figura;
  EXPECT_EQ(ultima, &imgC);
}

TEST_F(Gate, FitsItsWindow) {
  Verifica_Geometria(cancello, 9000, 2555);
}

// ---- movement -----------------------------------------------------------------------------------

TEST_F(Gate, OpensInSeventySevenSteps) {
  cancello.Stato_Q(Uscite({KM2}));
  EXPECT_THAT(Percorri(orologio, cancello, 50, 77),
              ElementsAre(Cambio{1, SQ2, '1'}, Cambio{77, SQ1, '0'}));
  EXPECT_EQ(imgC.Left, 3570);
}

TEST_F(Gate, ClosesInSeventySevenSteps) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(77 * 50);
  cancello.Stato_Q(Uscite({KM1}));
  EXPECT_THAT(Percorri(orologio, cancello, 50, 77),
              ElementsAre(Cambio{1, SQ1, '1'}, Cambio{77, SQ2, '0'}));
  EXPECT_EQ(imgC.Left, 1260);
}

TEST_F(Gate, EveryStepIsThirtyTwips) {
  cancello.Stato_Q(Uscite({KM2}));
  for (int tick = 1; tick <= 80; ++tick) {
    orologio.Avanza(49);
    ASSERT_EQ(imgC.Left, static_cast<float>(1260 + 30 * (tick - 1)));
    orologio.Avanza(1);
    ASSERT_EQ(imgC.Left, static_cast<float>(1260 + 30 * tick));
  }
}

TEST_F(Gate, TheFirstOpeningStepReleasesTheClosedLimitAndTheOpenOneWaitsFor3520) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ2), '1');
  EXPECT_EQ(Ingresso(cancello, SQ1), '1');
  imgC.Left = 3521;
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ1), '0');
}

struct Prova_Limite {
  int Contattore;
  float Prima;
  char SQ1_Dopo, SQ2_Dopo;
};

class GateLimit : public ::testing::TestWithParam<Prova_Limite> {};

TEST_P(GateLimit, IsJudgedFromThePositionBeforeTheStep) {
  const Prova_Limite& prova = GetParam();
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Stato_Q(Uscite({prova.Contattore}));
  orologio.Avanza(50);  // leaves the limit of the start
  cancello.Disegno["imgC"].Left = 2000;
  orologio.Avanza(50);
  cancello.Disegno["imgC"].Left = prova.Prima;
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ1), prova.SQ1_Dopo);
  EXPECT_EQ(Ingresso(cancello, SQ2), prova.SQ2_Dopo);
}

// Closing, the closed limit once reached is not left again, so it starts as reached.
INSTANTIATE_TEST_SUITE_P(All, GateLimit,
                         ::testing::Values(Prova_Limite{KM2, 3490, '1', '1'},
                                           Prova_Limite{KM2, 3520, '1', '1'},
                                           Prova_Limite{KM2, 3521, '0', '1'},
                                           Prova_Limite{KM2, 6000, '0', '1'}));

class GateClosedLimit : public ::testing::TestWithParam<std::pair<float, char>> {};

TEST_P(GateClosedLimit, IsJudgedFromThePositionBeforeTheStep) {
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(50);
  cancello.Stato_Q(Uscite({KM1}));
  cancello.Disegno["imgC"].Left = GetParam().first;
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ2), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(All, GateClosedLimit,
                         ::testing::Values(std::pair(1325.0F, '1'), std::pair(1296.0F, '1'),
                                           std::pair(1295.0F, '1'), std::pair(1294.0F, '0'),
                                           std::pair(0.0F, '0')));

TEST_F(Gate, AStepWithTheGateExactlyAtALimitDoesNotReachIt) {
  cancello.Stato_Q(Uscite({KM2}));
  imgC.Left = 3600 - 50 - 30;
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ1), '1');
  cancello.Stato_Q(Uscite({KM1}));
  imgC.Left = 840 + 435 + 20;
  orologio.Avanza(50);
  EXPECT_EQ(Ingresso(cancello, SQ2), '1');
}

TEST_F(Gate, LimitsShowInTheirShades) {
  constexpr Colore vivo = 65280, scuro = 32768;
  EXPECT_EQ(Colore_Di("shC"), vivo);
  EXPECT_EQ(Colore_Di("shA"), scuro);
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(50);
  EXPECT_EQ(Colore_Di("shC"), scuro);
  EXPECT_EQ(Colore_Di("shA"), scuro);
  orologio.Avanza(76 * 50);
  EXPECT_EQ(Colore_Di("shA"), vivo);
  EXPECT_EQ(Picture(cancello, "shA"), "operato");
  cancello.Stato_Q(Uscite({KM1}));
  orologio.Avanza(50);
  EXPECT_EQ(Colore_Di("shA"), scuro);
  EXPECT_EQ(Picture(cancello, "shA"), "riposo");
}

TEST_F(Gate, GoesOnPastItsLimitsWhileTheContactorIsOn) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(10000);
  EXPECT_EQ(imgC.Left, 1260 + 200 * 30);
  cancello.Stato_Q(Uscite({KM1}));
  orologio.Avanza(20000);
  EXPECT_EQ(imgC.Left, 1260 - 200 * 30);
  EXPECT_EQ(Ingresso(cancello, SQ2), '0');
}

TEST_F(Gate, StopsWithItsContactor) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(1000);
  cancello.Stato_Q(Uscite({}));
  orologio.Avanza(1000);
  EXPECT_EQ(imgC.Left, 1260 + 20 * 30);
}

TEST_F(Gate, BothContactorsCancelEachOther) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(1000);
  const float prima = imgC.Left;
  cancello.Stato_Q(Uscite({}));
  cancello.Stato_Q(Uscite({KM1, KM2}));
  for (int tick = 0; tick < 20; ++tick) {
    orologio.Avanza(50);
    EXPECT_EQ(imgC.Left, prima);
  }
}

TEST_F(Gate, AGateThatIsFarAwayStaysWithinSixteenBits) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(100000);
  EXPECT_EQ(imgC.Left, 32767 + 30);
  cancello.Stato_Q(Uscite({KM1}));
  orologio.Avanza(50);
  EXPECT_EQ(imgC.Left, 32767 - 30);
}

TEST_F(Gate, EachStepSpeaksTwiceEvenIfNothingChanged) {
  cancello.Stato_Q(Uscite({KM2}));
  orologio.Avanza(50);
  Ascolto ascolto(cancello);
  orologio.Avanza(50);
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1010011000010000", "1010011000010000"));
}

// ---- outputs ------------------------------------------------------------------------------------

TEST_F(Gate, PhotocellPanelIsShownWhileItIsFed) {
  EXPECT_FALSE(Si_Vede("picFC"));
  cancello.Stato_Q(Uscite({VacB}));
  EXPECT_TRUE(Si_Vede("picFC"));
  cancello.Stato_Q(Uscite({}));
  EXPECT_FALSE(Si_Vede("picFC"));
}

TEST_F(Gate, FlashingLampShowsColourAndSiren) {
  EXPECT_EQ(Colore_Di("shL"), 49344U);
  EXPECT_FALSE(Si_Vede("imgSir"));
  cancello.Stato_Q(Uscite({HL4}));
  EXPECT_EQ(Colore_Di("shL"), Tavolozza(14));
  EXPECT_TRUE(Si_Vede("imgSir"));
  cancello.Stato_Q(Uscite({}));
  EXPECT_EQ(Colore_Di("shL"), 49344U);
  EXPECT_FALSE(Si_Vede("imgSir"));
}

struct Prova_Contattore {
  int Uscita;
  const char *Contattore, *Filo;
  Temporizzatore Ctr_Canc::*Timer;
};

class GateContactor : public ::testing::TestWithParam<Prova_Contattore> {};

TEST_P(GateContactor, ShowsItselfRunsTheMotorAndItsTimer) {
  const Prova_Contattore& prova = GetParam();
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Stato_Q(Uscite({prova.Uscita}));
  EXPECT_EQ(Picture(cancello, prova.Contattore), "imgKMON");
  EXPECT_EQ(Picture(cancello, "imgM"), "imgMON");
  EXPECT_EQ(cancello.Disegno[prova.Filo].FillColor, Tavolozza(12));
  EXPECT_TRUE((cancello.*prova.Timer).Enabled());
  EXPECT_NE(cancello.TimChiudi.Enabled(), cancello.timApri.Enabled());
  cancello.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(cancello, prova.Contattore), "imgKMOF");
  EXPECT_EQ(Picture(cancello, "imgM"), "imgMOF");
  EXPECT_EQ(cancello.Disegno[prova.Filo].FillColor, Tavolozza(15));
  EXPECT_FALSE((cancello.*prova.Timer).Enabled());
}

TEST_P(GateContactor, LeavesTheMotorTrippedWhileTheRelayIs) {
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Clic("imgM");
  cancello.Stato_Q(Uscite({GetParam().Uscita}));
  EXPECT_EQ(Picture(cancello, "imgM"), "imgMON");
  cancello.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(cancello, "imgM"), "imgMRT");
}

TEST_P(GateContactor, NeverChangesItsAuxiliaryContact) {
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Stato_Q(Uscite({GetParam().Uscita}));
  EXPECT_EQ(cancello.Stato_I().substr(3, 2), "00");
  orologio.Avanza(5000);
  EXPECT_EQ(cancello.Stato_I().substr(3, 2), "00");
  cancello.Stato_Q(Uscite({}));
  EXPECT_EQ(cancello.Stato_I().substr(3, 2), "00");
}

INSTANTIATE_TEST_SUITE_P(
    All, GateContactor,
    ::testing::Values(Prova_Contattore{KM1, "imgKm1", "shKM1", &Ctr_Canc::TimChiudi},
                      Prova_Contattore{KM2, "imgKM2", "shKM2", &Ctr_Canc::timApri}));

TEST_F(Gate, AContactorThatDropsShowsTheMotorStoppedThoughTheOtherIsOn) {
  cancello.Stato_Q(Uscite({KM1, KM2}));
  EXPECT_EQ(Motore(), "imgMON");
  cancello.Stato_Q(Uscite({KM1}));
  EXPECT_EQ(Motore(), "imgMOF");
  EXPECT_TRUE(cancello.TimChiudi.Enabled());
}

TEST_F(Gate, OnlyOutputsThatChangeAct) {
  cancello.Stato_Q(Uscite({KM1}));  // the other contactor was off before and says nothing
  EXPECT_EQ(Motore(), "imgMON");
  cancello.Clic("imgM");
  cancello.Stato_Q(Uscite({KM1, HL4}));
  EXPECT_EQ(Motore(), "imgMRT");
}

class GateLamp : public ::testing::TestWithParam<std::tuple<int, const char*, const char*>> {};

TEST_P(GateLamp, FollowsItsOutputAlone) {
  const auto& [posizione, nome, picture] = GetParam();
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  Verifica_Lampada(cancello, posizione, nome, picture);
}

INSTANTIATE_TEST_SUITE_P(All, GateLamp,
                         ::testing::Values(std::tuple(5, "imgHL1", "imgLV"),
                                           std::tuple(6, "imgHL2", "imgLG"),
                                           std::tuple(7, "imgHL3", "imgLB")));

TEST_F(Gate, OutputsWithoutAUseAreIgnored) {
  const auto prima = Aspetto(cancello);
  cancello.Stato_Q(Uscite({8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(Aspetto(cancello), prima);
  EXPECT_EQ(cancello.Stato_I(), chiuso);
}

}  // namespace

}  // namespace tavorno::prova
