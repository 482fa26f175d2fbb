// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/motor_starter.h"

#include <gmock/gmock.h>

#include "plant_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct MotorStarter : ::testing::Test {
  KM km;
};

TEST_F(MotorStarter, StartsWithItsNormallyClosedContactsClosed) {
  EXPECT_EQ(km.Stato_I(), "1001100000000000");
  EXPECT_EQ(km.Stato_Q(), "0000000000000000");
  EXPECT_EQ(km.Caption(), "Nastro Due");
  EXPECT_EQ(km.BackColor, 0U);
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMOF");
  EXPECT_EQ(Picture(km, "imgM"), "imgMOF");
  EXPECT_EQ(Picture(km, "imgKMa"), "imgAuxA");
  EXPECT_EQ(Picture(km, "ImgTer"), "ImgRTOF");
  EXPECT_EQ(km.Disegno["linKM"].FillColor(), Tavolozza(15));
}

TEST_F(MotorStarter, CaptionIsTheLabelOfTheMotor) {
  km.Caption("M1");
  EXPECT_EQ(km.Caption(), "M1");
  EXPECT_EQ(km.Disegno["etM"].Caption(), "M1");
}

TEST_F(MotorStarter, FitsItsWindow) {
  Verifica_Geometria(km, 9000, 2595);
}

class MotorStarterButton : public ::testing::TestWithParam<Prova_Pulsante> {};

TEST_P(MotorStarterButton, ActsWhileHeld) {
  KM km;
  Verifica_Pulsante(km, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, MotorStarterButton,
    ::testing::Values(Prova_Pulsante{"imgStop", 1, '0', '1', "imgPGr1", "imgPGr0"},
                      Prova_Pulsante{"imgStart", 2, '1', '0', "imgVON", "imgVOFF"},
                      Prova_Pulsante{"ImgEm", 5, '0', '1', "imgRON", "imgROFF"}));

class MotorStarterLamp
    : public ::testing::TestWithParam<std::tuple<int, const char*, const char*>> {};

TEST_P(MotorStarterLamp, FollowsItsOutputAlone) {
  const auto& [posizione, nome, picture] = GetParam();
  KM km;
  Verifica_Lampada(km, posizione, nome, picture);
}

INSTANTIATE_TEST_SUITE_P(All, MotorStarterLamp,
                         ::testing::Values(std::tuple(2, "imgLA", "imgLB"),
                                           std::tuple(3, "imgLM", "imgLV"),
                                           std::tuple(4, "imgLRt", "imgLG")));

TEST_F(MotorStarter, LampProceduresCompareWithOne) {
  km.Stato_LMarcia("1");
  km.Stato_LArresto("1");
  km.Stato_LRT("1");
  EXPECT_EQ(Picture(km, "imgLM"), "imgLV");
  EXPECT_EQ(Picture(km, "imgLA"), "imgLB");
  EXPECT_EQ(Picture(km, "imgLRt"), "imgLG");
  km.Stato_LMarcia("2");
  km.Stato_LArresto("0");
  km.Stato_LRT("");
  EXPECT_EQ(Picture(km, "imgLM"), "imgLNot");
  EXPECT_EQ(Picture(km, "imgLA"), "imgLNot");
  EXPECT_EQ(Picture(km, "imgLRt"), "imgLNot");
}

TEST_F(MotorStarter, TheContactorRunsTheMotorAndClosesItsContact) {
  Ascolto ascolto(km);
  km.Stato_Q(Uscite({1}));
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMON");
  EXPECT_EQ(Picture(km, "imgM"), "imgMON");
  EXPECT_EQ(Picture(km, "imgKMa"), "imgAuxC");
  EXPECT_EQ(km.Disegno["linKM"].FillColor(), Tavolozza(12));
  EXPECT_EQ(km.Stato_I(), "1011100000000000");
  km.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMOF");
  EXPECT_EQ(Picture(km, "imgM"), "imgMOF");
  EXPECT_EQ(Picture(km, "imgKMa"), "imgAuxA");
  EXPECT_EQ(km.Disegno["linKM"].FillColor(), Tavolozza(15));
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1011100000000000", "1001100000000000"));
}

TEST_F(MotorStarter, TheContactorIsEnergisedByAnythingButZero) {
  km.KMStato("2");
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMON");
  km.KMStato("0");
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMOF");
}

TEST_F(MotorStarter, AnOutputThatChangesNoInputIsNotHeard) {
  km.Stato_Q(Uscite({1}));
  Ascolto ascolto(km);
  km.Stato_Q(Uscite({1, 2, 3, 4}));
  EXPECT_THAT(ascolto.Sentiti, IsEmpty());
}

TEST_F(MotorStarter, ASecondClickResetsTheThermalRelay) {
  Verifica_Termico(km, "ImgTer", 4);
}

TEST_F(MotorStarter, TheThermalRelayStopsNothingByItself) {
  km.Stato_Q(Uscite({1}));
  km.Clic("ImgTer");
  EXPECT_EQ(Picture(km, "imgM"), "imgMON");
  EXPECT_EQ(km.Stato_I(), "1010100000000000");
}

TEST_F(MotorStarter, ADoubleClickOpensTheContactorAndLeavesContactPictureAndWire) {
  km.Stato_Q(Uscite({1}));
  Ascolto ascolto(km);
  EXPECT_EQ(km.Disegno["imgKM"].ToolTip(), "DbClick per forzare apertura");
  EXPECT_TRUE(km.Doppio_Clic("imgKM"));
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMOF");
  EXPECT_EQ(Picture(km, "imgM"), "imgMOF");
  EXPECT_EQ(Picture(km, "imgKMa"), "imgAuxC");
  EXPECT_EQ(km.Disegno["linKM"].FillColor(), Tavolozza(12));
  EXPECT_EQ(km.Stato_Q(), Uscite({1}));
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1001100000000000"));
}

TEST_F(MotorStarter, ADoubleClickNeverClosesTheContactor) {
  const auto prima = Aspetto(km);
  km.Doppio_Clic("imgKM");
  km.Doppio_Clic("imgKM");
  EXPECT_EQ(Aspetto(km), prima);
  EXPECT_EQ(km.Stato_I(), "1001100000000000");
}

TEST_F(MotorStarter, AForcedContactorReturnsAtTheNextChangeOfAnyOutput) {
  km.Stato_Q(Uscite({1}));
  km.Doppio_Clic("imgKM");
  km.Stato_Q(Uscite({1, 4}));
  EXPECT_EQ(Picture(km, "imgKM"), "imgKMON");
  EXPECT_EQ(Picture(km, "imgM"), "imgMON");
  EXPECT_EQ(Ingresso(km, 3), '1');
}

TEST_F(MotorStarter, OutputsWithoutAUseAreIgnored) {
  km.Stato_Q(Uscite({}));
  const auto prima = Aspetto(km);
  km.Stato_Q(Uscite({5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(Aspetto(km), prima);
  EXPECT_EQ(km.Stato_I(), "1001100000000000");
}

}  // namespace tavorno::prova
