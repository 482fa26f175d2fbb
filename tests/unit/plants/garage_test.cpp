// SPDX-License-Identifier: GPL-3.0-or-later
// The garage's outputs, barriers, relays and reset; its cars are in garage_cars_test.cpp.
#include "tests/unit/plants/garage_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

using Garage = Banco_Garage;

TEST_F(Garage, StartsEmptyAndClosed) {
  EXPECT_EQ(garage.Stato_I(), "0001000100010001");
  EXPECT_EQ(garage.Stato_Q(), "0000000000000000");
  for (const char* chiusa : {"shSQ2", "shSQ5"}) EXPECT_EQ(F(chiusa).FillColor(), Tavolozza(12));
  for (const char* aperta : {"shSQ3", "shSQ6"}) EXPECT_EQ(F(aperta).FillColor(), 32768U);
  for (int posto = 0; posto <= 6; ++posto) EXPECT_FALSE(Auto(posto).Visible()) << posto;
  EXPECT_FALSE(F("imgMOut").Visible());
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_EQ(F("shS1").Left(), 2940);
  EXPECT_EQ(Auto(0).Left(), 960);
  EXPECT_EQ(Auto(0).Top(), 4500);
  EXPECT_EQ(F("etPosti").Caption(), "6");
  EXPECT_EQ(F("EtInf").Caption(), "LIBERO");
  EXPECT_EQ(F("EtInf").ForeColor(), Tavolozza(10));
  EXPECT_EQ(F("cmdIng").Caption(), "Nuovo Ingresso");
  EXPECT_TRUE(F("cmdIng").Visible());
  EXPECT_EQ(garage.Passo_Sbarra, 100);
  EXPECT_EQ(garage.Passo_Auto, 80);
  for (const Temporizzatore* timer :
       {&garage.timSBIOpen, &garage.timSBIClose, &garage.timSBUOpen, &garage.timSBUClose,
        &garage.Timer1, &garage.Timer2, &garage.timOut0, &garage.timOut1, &garage.timOut2}) {
    EXPECT_EQ(timer->Interval(), 100);
    EXPECT_FALSE(timer->Enabled());
  }
}

struct Posto_Atteso {
  int Posto;
  float Left, Top;
};
class GarageSpace : public Banco_Garage, public ::testing::WithParamInterface<Posto_Atteso> {};

TEST_P(GarageSpace, LiesHere) {
  EXPECT_EQ(Auto(GetParam().Posto).Left(), GetParam().Left);
  EXPECT_EQ(Auto(GetParam().Posto).Top(), GetParam().Top);
}

INSTANTIATE_TEST_SUITE_P(All, GarageSpace,
                         ::testing::ValuesIn(std::vector<Posto_Atteso>{{1, 300, 1380},
                                                                       {2, 1140, 1380},
                                                                       {3, 1920, 1380},
                                                                       {4, 2760, 3300},
                                                                       {5, 3600, 3300},
                                                                       {6, 4440, 3300}}));

TEST_F(Garage, SpeedAddsToTheStepOfCars) {
  garage.Regola("ME_Speed", 80);
  EXPECT_EQ(garage.Passo_Sbarra, 80);
  EXPECT_FLOAT_EQ(garage.Passo_Auto, 80.8F);
  garage.Regola("ME_Speed", 10);
  EXPECT_FLOAT_EQ(garage.Passo_Auto, 10.8F);
}

TEST_F(Garage, EvenASpeedOfNothingIsTaken) {
  garage.Regola("ME_Speed", 0);
  EXPECT_EQ(garage.Passo_Sbarra, 0);
  EXPECT_FLOAT_EQ(garage.Passo_Auto, 0.8F);
}

TEST_F(Garage, AddressLabelsAreGreyedTogether) {
  for (int n = 0; n < 16; ++n) {
    EXPECT_EQ(garage.Disegno("etI", n).ForeColor(), 0U);
    EXPECT_EQ(garage.Disegno("etI", n).Caption(), (n < 8 ? "I0." : "I1.") + std::to_string(n % 8));
  }
  garage.Regola("ME_DisabilitaI", 0);  // whatever is written
  for (int n = 0; n < 16; ++n) EXPECT_EQ(garage.Disegno("etI", n).ForeColor(), Tavolozza(8));
}

// ---- outputs ------------------------------------------------------------------------------------

struct Contattore_Atteso {
  int Uscita, Ingresso;
  const char *Nome, *Contatto, *Motore;
  Temporizzatore ctr_Garage::*Timer;
};
class GarageContactor : public Banco_Garage,
                        public ::testing::WithParamInterface<Contattore_Atteso> {};

TEST_P(GarageContactor, RunsItsMotorAndTellsOfItselfAtOnce) {
  const Contattore_Atteso& p = GetParam();
  garage.Stato_Q(Uscite({}));
  Ascolto ascolto(garage);
  garage.Stato_Q(Uscite({p.Uscita}));
  std::string atteso = "0001000100010001";
  atteso[static_cast<std::size_t>(p.Ingresso - 1)] = '1';
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(atteso, atteso));
  EXPECT_EQ(F(p.Nome).FillColor(), Tavolozza(12));
  EXPECT_EQ(F(p.Contatto).Picture(), "imgAuxC");
  EXPECT_EQ(F(p.Motore).Picture(), "imgMON");
  EXPECT_TRUE((garage.*p.Timer).Enabled());
  garage.Stato_Q(Uscite({}));
  EXPECT_EQ(garage.Stato_I(), "0001000100010001");
  EXPECT_EQ(F(p.Nome).FillColor(), Tavolozza(15));
  EXPECT_EQ(F(p.Contatto).Picture(), "imgAuxA");
  EXPECT_EQ(F(p.Motore).Picture(), "imgMOF");
  EXPECT_FALSE((garage.*p.Timer).Enabled());
}

INSTANTIATE_TEST_SUITE_P(All, GarageContactor,
                         ::testing::ValuesIn(std::vector<Contattore_Atteso>{
                             {1, 6, "shKM(0)", "imgKMa(0)", "imgMI", &ctr_Garage::timSBIOpen},
                             {2, 7, "shKM(1)", "imgKMa(1)", "imgMI", &ctr_Garage::timSBIClose},
                             {7, 14, "shKM(3)", "imgKMa(3)", "imgMU", &ctr_Garage::timSBUClose},
                             {8, 15, "shKM(2)", "imgKMa(2)", "imgMU", &ctr_Garage::timSBUOpen},
                         }));

struct Caduta {
  int Tenuto, Caduto;  ///< outputs
  const char *Motore, *Picture;
};
class GarageTwin : public Banco_Garage, public ::testing::WithParamInterface<Caduta> {};

TEST_P(GarageTwin, OnlyKM1ShowsTheMotorAtRestWhileTheOtherHolds) {
  garage.Stato_Q(Uscite({GetParam().Tenuto, GetParam().Caduto}));
  EXPECT_EQ(F(GetParam().Motore).Picture(), "imgMON");
  garage.Stato_Q(Uscite({GetParam().Tenuto}));
  EXPECT_EQ(F(GetParam().Motore).Picture(), GetParam().Picture);
  garage.Stato_Q(Uscite({}));
  EXPECT_EQ(F(GetParam().Motore).Picture(), "imgMOF");
}

INSTANTIATE_TEST_SUITE_P(All, GarageTwin,
                         ::testing::ValuesIn(std::vector<Caduta>{
                             {2, 1, "imgMI", "imgMOF"},
                             {1, 2, "imgMI", "imgMON"},
                             {7, 8, "imgMU", "imgMON"},
                             {8, 7, "imgMU", "imgMON"},
                         }));

TEST_F(Garage, TheFirstOutputsAlreadyShowTheMotor) {
  garage.Stato_Q(Uscite({1}));
  EXPECT_EQ(F("imgMI").Picture(), "imgMON");
  EXPECT_EQ(F("imgMU").Picture(), "imgMOF");
}

struct Lampada_Garage {
  int Uscita;
  const char *Nome, *Picture;
};
class GarageLamp : public Banco_Garage, public ::testing::WithParamInterface<Lampada_Garage> {};

TEST_P(GarageLamp, IsLitByItsOutputAlone) {
  Verifica_Lampada(garage, GetParam().Uscita, GetParam().Nome, GetParam().Picture);
}

INSTANTIATE_TEST_SUITE_P(All, GarageLamp,
                         ::testing::ValuesIn(std::vector<Lampada_Garage>{
                             {3, "imgLSI(0)", "imgLV"},
                             {4, "imgLSI(1)", "imgLR"},
                             {5, "imgLSU(0)", "imgLV"},
                             {6, "imgLSU(1)", "imgLR"},
                         }));

TEST_F(Garage, YellowLampsAreShapes) {
  for (const auto& [uscita, nome] : {std::pair{9, "shHL5"}, {10, "shHL6"}}) {
    EXPECT_EQ(F(nome).FillColor(), 49344U);
    garage.Stato_Q(Uscite({uscita}));
    EXPECT_EQ(F(nome).FillColor(), 65535U);
    garage.Stato_Q(Uscite({}));
    EXPECT_EQ(F(nome).FillColor(), 49344U);
  }
}

TEST_F(Garage, TheOtherOutputsDoNothing) {
  garage.Stato_Q(Uscite({}));
  const auto prima = Aspetto(garage);
  garage.Stato_Q(Uscite({11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(Aspetto(garage), prima);
}

// ---- barriers -----------------------------------------------------------------------------------

TEST_F(Garage, EntranceBarrierOpensInTwelveTicksAndStartsTheCar) {
  garage.Stato_Q(Uscite({1}));
  EXPECT_THAT(Traccia(12), ElementsAre(Cambio{1, 3, '1'}, Cambio{12, 4, '0'}));
  EXPECT_EQ(F("shS0").Left(), 1860);
  EXPECT_EQ(garage.Sbarra_I_Aperta, -1);
  EXPECT_EQ(F("shSQ2").FillColor(), 32768U);
  EXPECT_EQ(F("shSQ3").FillColor(), Tavolozza(12));
  EXPECT_EQ(F("shSQ2").Picture(), "libero");
  EXPECT_EQ(F("shSQ3").Picture(), "raggiunto");
  EXPECT_TRUE(garage.Timer1.Enabled());
  EXPECT_EQ(Auto(0).Top(), 4500);
  Tick();
  EXPECT_EQ(Auto(0).Top(), 4420);
}

TEST_F(Garage, EntranceBarrierCloses) {
  garage.Stato_Q(Uscite({1}));
  Tick(12);
  garage.Timer1.Enabled(false);
  garage.Stato_Q(Uscite({2}));
  EXPECT_THAT(Traccia(12), ElementsAre(Cambio{1, 4, '1'}, Cambio{12, 3, '0'}));
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_EQ(garage.Sbarra_I_Aperta, 0);
  EXPECT_EQ(F("shSQ2").FillColor(), Tavolozza(12));
  EXPECT_EQ(F("shSQ3").FillColor(), 32768U);
  EXPECT_FALSE(garage.Timer1.Enabled());
}

TEST_F(Garage, ExitBarrierOpensTheOtherWayAndStartsTheCarThatWaits) {
  garage.Stato_Q(Uscite({8}));
  EXPECT_THAT(Traccia(12), ElementsAre(Cambio{1, 11, '1'}, Cambio{12, 12, '0'}));
  EXPECT_EQ(F("shS1").Left(), 1740);
  EXPECT_EQ(garage.Sbarra_U_Aperta, -1);
  EXPECT_EQ(F("shSQ5").FillColor(), 32768U);
  EXPECT_EQ(F("shSQ6").FillColor(), Tavolozza(12));
  EXPECT_TRUE(garage.timOut2.Enabled());
  garage.timOut2.Enabled(false);
  garage.Stato_Q(Uscite({7}));
  EXPECT_THAT(Traccia(12), ElementsAre(Cambio{1, 12, '1'}, Cambio{12, 11, '0'}));
  EXPECT_EQ(F("shS1").Left(), 2940);
  EXPECT_EQ(garage.Sbarra_U_Aperta, 0);
  EXPECT_FALSE(garage.timOut2.Enabled());
}

TEST_F(Garage, ABarrierRunsPastItsLimitAndRepeatsItsActions) {
  garage.Stato_Q(Uscite({1}));
  Tick(20);
  EXPECT_EQ(F("shS0").Left(), 2660);
  garage.Timer1.Enabled(false);
  Tick();
  EXPECT_TRUE(garage.Timer1.Enabled());
  EXPECT_EQ(I(4), '0');
}

TEST_F(Garage, BothContactorsLeaveTheBarrierWhereItIs) {
  garage.Stato_Q(Uscite({1, 2}));
  Tick(25);
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_TRUE(garage.timSBIOpen.Enabled());
  EXPECT_TRUE(garage.timSBIClose.Enabled());
  EXPECT_EQ(I(3), '0');
  EXPECT_EQ(I(4), '1');
}

TEST_F(Garage, SpeedOfTheHostMovesTheBarrierInFifteenTicks) {
  garage.Regola("ME_Speed", 80);
  garage.Stato_Q(Uscite({1}));
  EXPECT_THAT(Traccia(15), ElementsAre(Cambio{1, 3, '1'}, Cambio{15, 4, '0'}));
  EXPECT_EQ(F("shS0").Left(), 1860);
}

// ---- the user -----------------------------------------------------------------------------------

TEST_F(Garage, ButtonsActWhileHeld) {
  for (const auto& [nome, premuto] :
       {std::pair{"imgPSB(0)", "1001000100010001"}, {"imgPSB(1)", "0001000110010001"}}) {
    Ascolto ascolto(garage);
    EXPECT_EQ(F(nome).Picture(), "imgNOFF");
    garage.Premi(nome);
    EXPECT_EQ(F(nome).Picture(), "imgNON");
    garage.Rilascia(nome);
    EXPECT_EQ(F(nome).Picture(), "imgNOFF");
    EXPECT_THAT(ascolto.Sentiti,
                ElementsAre(premuto, premuto, "0001000100010001", "0001000100010001"));
  }
}

TEST_F(Garage, ThermalRelaysTripAndResetAndStopNothing) {
  garage.Stato_Q(Uscite({1, 8}));
  for (const auto& [motore, contatto, posizione] :
       {std::tuple{"imgMI", "imgFR(0)", 8}, {"imgMU", "imgFR(1)", 16}}) {
    garage.Clic(motore);
    EXPECT_EQ(I(posizione), '0') << motore;
    EXPECT_EQ(F(motore).Picture(), "imgMRT");
    EXPECT_EQ(F(contatto).Picture(), "aperto");
    const float prima = F("shS0").Left;
    Tick();
    EXPECT_NE(F("shS0").Left(), prima);
    garage.Clic(motore);
    EXPECT_EQ(I(posizione), '1') << motore;
    EXPECT_EQ(F(motore).Picture(), "imgMON");
    EXPECT_EQ(F(contatto).Picture(), "chiuso");
  }
}

TEST_F(Garage, ResetEmptiesTheGarageAndClosesIt) {
  const auto prima = Aspetto(garage);
  Parcheggia();
  Parcheggia();
  garage.Clic("imgM(1)");
  garage.Clic("cmdIng");
  garage.Clic("imgMI");
  garage.Stato_Q(Uscite({1, 3, 5, 8, 9, 10}));
  Tick(14);
  ASSERT_NE(Aspetto(garage), prima);

  garage.Clic("cmdReset");
  EXPECT_EQ(Aspetto(garage), prima);
  EXPECT_EQ(garage.Stato_I(), "0001000100010001");
  EXPECT_EQ(garage.Stato_Q(), "0000000000000000");
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_EQ(F("shS1").Left(), 2940);
  EXPECT_EQ(Auto(0).Left(), 960);
  EXPECT_EQ(Auto(0).Top(), 4500);
  EXPECT_EQ(garage.Posti_Occupati, 0);
  EXPECT_THAT(garage.Posto_Occupato, ::testing::Each(0));
  EXPECT_EQ(F("etPosti").Caption(), "6");
  EXPECT_EQ(garage.Auto_In_Ingresso, 0);
  EXPECT_EQ(garage.Auto_In_Uscita, 0);
  EXPECT_EQ(garage.Auto_Pronta, 0);
  EXPECT_EQ(garage.Sbarra_I_Aperta, 0);
  EXPECT_EQ(garage.Sbarra_U_Aperta, 0);
  Tick(50);
  EXPECT_EQ(Aspetto(garage), prima);
}

TEST_F(Garage, StandsWithinItsPicture) {
  Verifica_Geometria(garage, 9000, 5220);
}

}  // namespace tavorno::prova
