// SPDX-License-Identifier: GPL-3.0-or-later
// The lift's outputs, doors and controls.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/plants/lift_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- outputs ------------------------------------------------------------------------------------

TEST_F(Lift, MotorShowsItsDirection) {
  Solo(1);
  EXPECT_EQ(ascensore.Senso_Cabina, 1);
  EXPECT_TRUE(ascensore.timCab.Enabled());
  EXPECT_EQ(F("imgM").Picture(), "imgMON");
  EXPECT_TRUE(F("imgSu").Visible());
  EXPECT_FALSE(F("imgGiu").Visible());
  EXPECT_EQ(F("cmdSu").Picture(), "imgPrem");
  ascensore.Stato_Q(Uscite({}));
  EXPECT_FALSE(ascensore.timCab.Enabled());
  EXPECT_EQ(F("imgM").Picture(), "imgMOF");
  EXPECT_FALSE(F("imgSu").Visible());
  EXPECT_EQ(F("cmdSu").Picture(), "imgRil");
  Solo(2);
  EXPECT_EQ(ascensore.Senso_Cabina, 0);
  EXPECT_TRUE(F("imgGiu").Visible());
  EXPECT_EQ(F("cmdGiu").Picture(), "imgPrem");
}

TEST_F(Lift, DoorKeysAreNamedCrosswise) {
  Solo(3);
  EXPECT_EQ(ascensore.Senso_Porte, 0);
  EXPECT_TRUE(ascensore.timP.Enabled());
  EXPECT_EQ(F("cmdOpen").Picture(), "imgPrem");
  EXPECT_EQ(F("cmdClose").Picture(), "imgRil");
  Solo(4);
  EXPECT_EQ(ascensore.Senso_Porte, 1);
  EXPECT_EQ(F("cmdOpen").Picture(), "imgRil");
  EXPECT_EQ(F("cmdClose").Picture(), "imgPrem");
  EXPECT_EQ(F("cmdOpen").Caption(), "Chiudi Porte");
  EXPECT_EQ(F("cmdClose").Caption(), "Apri Porte");
  EXPECT_EQ(F("cmdSu").Caption(), "Salita");
  EXPECT_EQ(F("cmdGiu").Caption(), "Discesa");
}

TEST_F(Lift, BothMotorsInOneScanGoDownAndEitherFallStops) {
  ascensore.Stato_Q(Uscite({1, 2}));
  Tick();
  EXPECT_EQ(F("imgC").Top(), 1040);
  ascensore.Stato_Q(Uscite({1}));
  EXPECT_FALSE(ascensore.timCab.Enabled());
  Tick(10);
  EXPECT_EQ(F("imgC").Top(), 1040);
}

TEST_F(Lift, TheMotorThatComesLastDecides) {
  ascensore.Stato_Q(Uscite({2}));
  ascensore.Stato_Q(Uscite({1, 2}));
  Tick();
  EXPECT_EQ(F("imgC").Top(), 1000);
}

TEST_F(Lift, TurningRoundInOneScanStopsWhenTheOldMotorIsHeardLast) {
  ascensore.Stato_Q(Uscite({1}));
  ascensore.Stato_Q(Uscite({2}));
  EXPECT_TRUE(ascensore.timCab.Enabled());
  ascensore.Stato_Q(Uscite({1}));
  EXPECT_FALSE(ascensore.timCab.Enabled());
  ascensore.Stato_Q(Uscite({3}));
  ascensore.Stato_Q(Uscite({4}));
  EXPECT_TRUE(ascensore.timP.Enabled());
  ascensore.Stato_Q(Uscite({3}));
  EXPECT_FALSE(ascensore.timP.Enabled());
}

TEST_F(Lift, BothDoorMotorsOpenAndEitherFallStops) {
  ascensore.Stato_Q(Uscite({3, 4}));
  Tick();
  EXPECT_EQ(F("ShP(0)").Left(), 650);
  ascensore.Stato_Q(Uscite({4}));
  Tick();
  EXPECT_EQ(F("ShP(0)").Left(), 650);
}

TEST_F(Lift, ClearingWhatIsClearRunsNothing) {
  // By hand in maintenance, with the outputs at 0 all the time: another let must not stop it.
  ascensore.Clic("imgCom");
  ascensore.Premi("cmdSu");
  ascensore.Stato_Q(Uscite({5}));
  EXPECT_TRUE(ascensore.timCab.Enabled());
  EXPECT_EQ(F("imgM").Picture(), "imgMON");
}

TEST(LiftAtRest, TheFirstOutputsRunEveryHandlerOnce) {
  Orologio orologio;
  ctr_Ascensore ascensore(orologio);
  // KM1 starts the cabin, and KM2, heard for the first time as off, stops it.
  ascensore.Stato_Q(Uscite({1}));
  EXPECT_FALSE(ascensore.timCab.Enabled());
  ascensore.Stato_Q(Uscite({}));
  ascensore.Stato_Q(Uscite({1}));
  EXPECT_TRUE(ascensore.timCab.Enabled());
}

TEST_F(Lift, OnlyOneIsOn) {
  ascensore.Stato_Q("2000000000000000");
  EXPECT_FALSE(ascensore.timCab.Enabled());
}

TEST_F(Lift, TheLastTwoOutputsDoNothing) {
  const auto prima = Aspetto(ascensore);
  ascensore.Stato_Q(Uscite({15, 16}));
  EXPECT_EQ(Aspetto(ascensore), prima);
}

struct Lampada_Attesa {
  int Uscita;
  const char *Nome, *Picture;
};
class LiftLamp : public Lift, public ::testing::WithParamInterface<Lampada_Attesa> {};

TEST_P(LiftLamp, IsLitByItsOutputAlone) {
  Verifica_Lampada(ascensore, GetParam().Uscita, GetParam().Nome, GetParam().Picture);
}

INSTANTIATE_TEST_SUITE_P(All, LiftLamp,
                         ::testing::ValuesIn(std::vector<Lampada_Attesa>{
                             {5, "imgLP(0)", "imgLG"},
                             {6, "imgLP(1)", "imgLG"},
                             {7, "imgLP(2)", "imgLG"},
                             {8, "imgLP(3)", "imgLG"},
                             {9, "imgLC(3)", "imgLG"},
                             {10, "imgLC(2)", "imgLG"},
                             {11, "imgLC(1)", "imgLG"},
                             {12, "imgLC(0)", "imgLG"},
                             {13, "imgLOver", "imgLR"},
                             {14, "imgLAlarm", "imgLR"},
                         }));

// ---- doors --------------------------------------------------------------------------------------

TEST_F(Lift, DoorsOpenInFortyNineTicks) {
  ascensore.Stato_Q(Uscite({4}));
  Tick();
  EXPECT_EQ(F("ShP(0)").Left(), 650);
  EXPECT_EQ(F("ShP(1)").Left(), 1210);
  EXPECT_EQ(Ingresso(ascensore, 5), '0');
  EXPECT_EQ(F("shFcP(4)").FillColor(), 32768U);
  EXPECT_EQ(F("shFcP(4)").Picture(), "spento");
  EXPECT_EQ(ascensore.Stato_Porte, 2);
  Tick(47);
  EXPECT_EQ(F("ShP(0)").Left(), 180);
  EXPECT_EQ(ascensore.Stato_Porte, 2);
  EXPECT_EQ(Ingresso(ascensore, 16), '1');
  Tick();
  EXPECT_EQ(ascensore.Stato_Porte, 0);
  EXPECT_EQ(Ingresso(ascensore, 16), '0');
  EXPECT_EQ(F("shFcP(5)").FillColor(), 65280U);
  EXPECT_EQ(F("shFcP(5)").Picture(), "acceso");
}

TEST_F(Lift, DoorsCloseAtTheirSwitchBeforeTheirState) {
  Solo(4);
  Tick(49);
  Solo(3);
  Tick();
  EXPECT_EQ(Ingresso(ascensore, 16), '1');
  Tick(47);
  EXPECT_EQ(Ingresso(ascensore, 5), '0');
  Tick();
  EXPECT_EQ(F("ShP(0)").Left(), 660);
  EXPECT_EQ(Ingresso(ascensore, 5), '1');
  EXPECT_EQ(F("shFcP(4)").FillColor(), 65280U);
  EXPECT_EQ(F("shFcP(4)").Picture(), "acceso");
  EXPECT_EQ(ascensore.Stato_Porte, 2);
  Tick();
  EXPECT_EQ(ascensore.Stato_Porte, 1);
}

TEST_F(Lift, LeavesRunPastTheirLimitsAndKeepTheirState) {
  Solo(4);
  Tick(100);
  EXPECT_EQ(F("ShP(0)").Left(), 660 - 1000);
  for (int n = 0; n < 3; ++n, Tick()) EXPECT_EQ(ascensore.Stato_Porte, 0);
  Solo(3);
  Tick(200);
  EXPECT_GT(F("ShP(0)").Left(), 660);
  for (int n = 0; n < 3; ++n, Tick()) EXPECT_EQ(ascensore.Stato_Porte, 1);
}

TEST_F(Lift, PhotocellCanBeReachedOnlyBetweenOpenDoors) {
  EXPECT_FALSE(ascensore.Premi("imgLFC"));
  ascensore.Stato_Q(Uscite({4}));
  Tick(4);
  EXPECT_EQ(F("ShP(0)").Left(), 620);
  EXPECT_FALSE(F("imgLFC").Visible());
  Tick();
  EXPECT_TRUE(F("imgLFC").Visible());
  EXPECT_TRUE(ascensore.Premi("imgLFC"));
  EXPECT_EQ(Ingresso(ascensore, 15), '1');
  EXPECT_EQ(F("linFC").FillColor(), Tavolozza(14));
}

TEST_F(Lift, AHandInThePhotocellStaysUntilItsRelease) {
  Solo(4);
  Tick(6);
  ascensore.Premi("imgLFC");
  Solo(3);
  Tick(2);
  EXPECT_EQ(F("ShP(0)").Left(), 620);
  EXPECT_FALSE(F("imgLFC").Visible());
  EXPECT_EQ(Ingresso(ascensore, 15), '1');
  EXPECT_TRUE(ascensore.Rilascia("imgLFC"));
  EXPECT_EQ(Ingresso(ascensore, 15), '0');
  EXPECT_EQ(F("linFC").FillColor(), Tavolozza(0));
}

// ---- the user -----------------------------------------------------------------------------------

class LiftButton : public Lift, public ::testing::WithParamInterface<Prova_Pulsante> {};

TEST_P(LiftButton, ActsInServiceAndInMaintenance) {
  for (int giro = 0; giro < 2; ++giro) {
    std::vector<std::string> sentiti;
    const Iscrizione ascolto =
        ascensore.Change.Ascolta([&] { sentiti.push_back(ascensore.Stato_I()); });
    const Prova_Pulsante& p = GetParam();
    std::string premuto = "1110100001000001";
    premuto[static_cast<std::size_t>(p.Posizione - 1)] = p.Giu;
    EXPECT_TRUE(ascensore.Premi(p.Nome));
    EXPECT_EQ(Picture(ascensore, p.Nome), p.Picture_Giu);
    EXPECT_TRUE(ascensore.Rilascia(p.Nome));
    EXPECT_EQ(Picture(ascensore, p.Nome), p.Picture_Su);
    EXPECT_THAT(sentiti, ElementsAre(premuto, premuto, "1110100001000001", "1110100001000001"));
    ascensore.Clic("imgCom");
  }
}

INSTANTIATE_TEST_SUITE_P(All, LiftButton,
                         ::testing::ValuesIn(std::vector<Prova_Pulsante>{
                             {"imgPP(0)", 9, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPP(1)", 8, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPP(2)", 7, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPP(3)", 6, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPC(0)", 14, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPC(1)", 13, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPC(2)", 12, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPC(3)", 11, '1', '0', "imgBON", "imgBOFF"},
                             {"imgPC(4)", 10, '0', '1', "imgRON", "imgROFF"},
                         }));

TEST_F(Lift, SelectorTogglesMaintenanceAndThePlcDoesNotSeeIt) {
  std::vector<std::string> sentiti;
  const Iscrizione ascolto =
      ascensore.Change.Ascolta([&] { sentiti.push_back(ascensore.Stato_I()); });
  ascensore.Clic("imgCom");
  EXPECT_EQ(ascensore.Manutenzione, -1);
  EXPECT_EQ(F("etIn(1)").ForeColor(), 0U);
  EXPECT_EQ(F("etIn(2)").ForeColor(), 255U);
  EXPECT_EQ(F("imgLAl").Picture(), "imgLR");
  ascensore.Clic("imgCom");
  EXPECT_EQ(ascensore.Manutenzione, 0);
  EXPECT_EQ(F("etIn(1)").ForeColor(), 255U);
  EXPECT_EQ(F("imgLAl").Picture(), Lampada_Spenta);
  EXPECT_THAT(sentiti, IsEmpty());
}

struct Manovra {
  const char* Nome;
  float Cabina, Porta;  ///< positions after three ticks
};
class LiftKey : public Lift, public ::testing::WithParamInterface<Manovra> {};

TEST_P(LiftKey, MovesInMaintenanceWhileHeld) {
  ascensore.Clic("imgCom");
  EXPECT_TRUE(ascensore.Premi(GetParam().Nome));
  Tick(3);
  EXPECT_EQ(F("imgC").Top(), GetParam().Cabina);
  EXPECT_EQ(F("ShP(0)").Left(), GetParam().Porta);
  ascensore.Rilascia(GetParam().Nome);
  Tick(3);
  EXPECT_EQ(F("imgC").Top(), GetParam().Cabina);
  EXPECT_EQ(F("ShP(0)").Left(), GetParam().Porta);
  EXPECT_EQ(F("imgM").Picture(), "imgMOF");
  EXPECT_FALSE(F("imgSu").Visible());
  EXPECT_FALSE(F("imgGiu").Visible());
  EXPECT_EQ(ascensore.Stato_Q(), Uscite({}));
}

TEST_P(LiftKey, DoesNothingInService) {
  const auto prima = Aspetto(ascensore);
  ascensore.Premi(GetParam().Nome);
  Tick(3);
  EXPECT_EQ(Aspetto(ascensore), prima);
  EXPECT_EQ(F("imgC").Top(), 1020);
  EXPECT_EQ(F("ShP(0)").Left(), 660);
  ascensore.Rilascia(GetParam().Nome);
  EXPECT_EQ(Aspetto(ascensore), prima);
}

INSTANTIATE_TEST_SUITE_P(All, LiftKey,
                         ::testing::ValuesIn(std::vector<Manovra>{
                             {"cmdSu", 960, 660},
                             {"cmdGiu", 1080, 660},
                             {"cmdOpen", 1020, 690},
                             {"cmdClose", 1020, 630},
                         }));

TEST_F(Lift, AKeyEndsWhatAnOutputBegan) {
  ascensore.Stato_Q(Uscite({2}));
  ascensore.Clic("imgCom");
  ascensore.Premi("cmdSu");
  ascensore.Rilascia("cmdSu");
  EXPECT_FALSE(ascensore.timCab.Enabled());
  ascensore.Stato_Q(Uscite({2, 5}));
  EXPECT_FALSE(ascensore.timCab.Enabled());
}

TEST_F(Lift, LoadCellGivesWholeVoltsAndIsHeardByItself) {
  int eventi = 0;
  const Iscrizione ascolto = ascensore.Change.Ascolta([&] { ++eventi; });
  for (int volt = 1; volt <= 10; ++volt) {
    ascensore.Regola("UpD1", volt);
    EXPECT_EQ(ascensore.ME_AIW0, static_cast<float>(volt));
    EXPECT_EQ(F("EtCC").Caption(), std::to_string(volt));
    EXPECT_EQ(eventi, volt);
  }
  ascensore.Regola("UpD1", 11);
  EXPECT_EQ(ascensore.ME_AIW0, 10.0F);
  EXPECT_EQ(ascensore.Trova_Regolatore("UpD1")->Passo, 1);
}

TEST_F(Lift, PropertiesAreStored) {
  ascensore.Regola("ME_SpedP", 20);
  EXPECT_EQ(ascensore.timP.Interval(), 20);
  EXPECT_EQ(ascensore.timCab.Interval(), 50);
  ascensore.Regola("ME_POS", 1);
  EXPECT_TRUE(F("EtPos").Visible());
  ascensore.Regola("ME_POS", 0);
  EXPECT_FALSE(F("EtPos").Visible());
  const std::pair<const char*, double> propri[] = {
      {"ME_DeltaS", 20}, {"ME_DeltaP", 50}, {"ME_SpedP", 20}, {"ME_POS", 0}};
  for (const auto& [nome, valore] : propri)
    EXPECT_EQ(ascensore.Trova_Regolatore(nome)->Valore, valore) << nome;
}

TEST_F(Lift, StandsWithinItsPicture) {
  Verifica_Geometria(ascensore, 9000, 5520);
}

}  // namespace tavorno::prova
