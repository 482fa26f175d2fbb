// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/unit/plants/axis_bed.h"
#include "tests/unit/plants/link_bed.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

struct Mano_Asse {
  const char* Nome;
  int Posizione;
  char Giu, Su;
};

class AxisButton : public ::testing::TestWithParam<Mano_Asse> {};

TEST_P(AxisButton, ActsWhileHeld) {
  const Mano_Asse& prova = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  std::string premuto = riposo;
  premuto[static_cast<std::size_t>(prova.Posizione - 1)] = prova.Giu;
  ASSERT_EQ(Ingresso(assi, prova.Posizione), prova.Su);
  Ascolto ascolto(assi);
  const std::string su = Picture(assi, prova.Nome);
  EXPECT_TRUE(assi.Premi(prova.Nome));
  EXPECT_NE(Picture(assi, prova.Nome), su);
  EXPECT_TRUE(assi.Rilascia(prova.Nome));
  EXPECT_EQ(Picture(assi, prova.Nome), su);
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(premuto, premuto, riposo, riposo));
}

INSTANTIATE_TEST_SUITE_P(All, AxisButton,
                         ::testing::Values(Mano_Asse{"imgP(0)", 1, '1', '0'},
                                           Mano_Asse{"imgP(1)", 2, '0', '1'},
                                           Mano_Asse{"imgP(2)", 3, '1', '0'},
                                           Mano_Asse{"imgP(3)", 4, '1', '0'}));

TEST_F(Axis, TheSelectorStaysWhereItIsPut) {
  assi.Clic("imgCom");
  EXPECT_EQ(assi.Stato_I(), "0100111000000000");
  assi.Clic("imgCom");
  EXPECT_EQ(assi.Stato_I(), riposo);
}

struct Prova_Finecorsa {
  const char *Nome, *Spia;
  const char* Premuto;
};

class AxisLimitByHand : public ::testing::TestWithParam<Prova_Finecorsa> {};

TEST_P(AxisLimitByHand, TogglesAndIsRewrittenByTheNextStep) {
  const auto& [nome, spia, premuto] = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  Ascolto ascolto(assi);
  assi.Clic(nome);
  EXPECT_EQ(assi.Disegno[spia].FillColor, Tavolozza(10));
  assi.Clic(nome);
  EXPECT_EQ(assi.Disegno[spia].FillColor, Tavolozza(2));
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(premuto, premuto, riposo, riposo));
  assi.Clic(nome);
  orologio.Avanza(1000);
  EXPECT_EQ(assi.Stato_I(), premuto);
  assi.Stato_Q(Uscite({AC, MA}));
  orologio.Avanza(100);
  EXPECT_EQ(assi.Stato_I(), riposo);
  EXPECT_EQ(assi.Disegno[spia].FillColor, Tavolozza(2));
}

INSTANTIATE_TEST_SUITE_P(All, AxisLimitByHand,
                         ::testing::Values(Prova_Finecorsa{"imgFCI", "shI", "0100001000000000"},
                                           Prova_Finecorsa{"imgFCA", "shA", "0100010000000000"}));

class AxisByHand : public ::testing::TestWithParam<std::tuple<const char*, int, float>> {};

TEST_P(AxisByHand, MovesByThirtyWithoutPowerAndWithoutReadingTheOutput) {
  const auto& [nome, senso, posizione] = GetParam();
  Orologio orologio;
  Plc plc(orologio);
  ctr_Assi assi(plc);
  assi.Enabled(true);
  plc.Volt_AQ[0] = 8;
  orologio.Avanza(20);
  assi.Premi(nome);
  EXPECT_FALSE(assi.Enabled());
  EXPECT_EQ(assi.Senso_Asse, senso);
  plc.Volt_AQ[0] = 2;
  orologio.Avanza(1000);  // at the interval that stood: 200 ms
  EXPECT_EQ(assi.Passo_Asse, 30);
  EXPECT_EQ(assi.Disegno["ShIndP"].Left, posizione);
  EXPECT_FALSE(assi.timG.Enabled());
  assi.Rilascia(nome);
  EXPECT_FALSE(assi.timMove.Enabled());
  EXPECT_TRUE(assi.Enabled());
  EXPECT_EQ(assi.Passo_Asse, 30);
  orologio.Avanza(20);
  EXPECT_EQ(assi.Passo_Asse, 4);
}

INSTANTIATE_TEST_SUITE_P(All, AxisByHand,
                         ::testing::Values(std::tuple("cmdV1", 0, 1440 + 150.0F),
                                           std::tuple("cmdV2", 1, 1440 - 150.0F)));

TEST_F(Axis, TheReleasedHandButtonStopsAnAxisThatTheProgramDrives) {
  assi.Enabled(true);
  plc.Volt_AQ[0] = 8;
  orologio.Avanza(20);
  assi.Stato_Q(Uscite({AC, MA}));
  orologio.Avanza(200);
  EXPECT_EQ(ShIndP.Left, 1488);
  assi.Premi("cmdV2");
  orologio.Avanza(200);
  EXPECT_EQ(ShIndP.Left, 1458);
  assi.Rilascia("cmdV2");
  orologio.Avanza(5000);
  EXPECT_EQ(ShIndP.Left, 1458);
  EXPECT_EQ(assi.Marcia_Avanti, -1);
}

TEST_F(Axis, ReferenceMovesItsMarkAndItsInput) {
  assi.Regola("UpD1", 73);
  EXPECT_EQ(Caption("EtRif"), "7.3");
  EXPECT_FLOAT_EQ(assi.Disegno["shRif"].Left, 1440 + 588 * 7.3F);
  EXPECT_EQ(plc.Volt_AI[1], 7.3F);
  assi.Regola("UpD1", 500);
  EXPECT_EQ(plc.Volt_AI[1], 10.0F);
  EXPECT_EQ(assi.Disegno["shRif"].Left, 7320);
  assi.Regola("UpD1", -5);
  EXPECT_EQ(plc.Volt_AI[1], 0.0F);
  EXPECT_EQ(Caption("EtRif"), "0.0");
}

TEST_F(Axis, HysteresisIsCountedInThousandths) {
  assi.Regola("UpD2", 100);
  EXPECT_EQ(Caption("EtIst"), "0.1");
  EXPECT_EQ(plc.Volt_AI[2], 0.1F);
  assi.Regola("UpD2", 23);
  EXPECT_EQ(Caption("EtIst"), "0.023");
  EXPECT_EQ(plc.Volt_AI[2], 0.023F);
}

using AxisHost = Banco_Impianto;

TEST_F(AxisHost, TheWindowEnablesTheReadingOnLoad) {
  Apri(17);
  EXPECT_TRUE(static_cast<ctr_Assi&>(Macchina()).Enabled());
}

TEST_F(AxisHost, AnalogValuesReachTheWordsOfTheProgram) {
  Apri(17);
  Esegui({"NETWORK 1", "LD SM0.0", "MOVW +25600 AQW0", "= Q0.2", "= Q0.0"});
  Passa(61);
  EXPECT_EQ(static_cast<ctr_Assi&>(Macchina()).ME_VC(), 8.0F);
  EXPECT_EQ(plc.Mem_AIW[2], 16000);
  EXPECT_NEAR(plc.Mem_AIW[4], 16, 1);
  Macchina().Regola("UpD1", 100);
  Passa(2000);
  EXPECT_EQ(plc.Mem_AIW[2], 32000);
  EXPECT_GT(plc.Mem_AIW[0], 0);
}

}  // namespace

}  // namespace tavorno::prova
