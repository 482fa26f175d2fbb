// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/reversing_starter.h"

#include <gmock/gmock.h>

#include "plant_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

struct ReversingStarter : ::testing::Test {
  INV inv;
};

TEST_F(ReversingStarter, StartsWithItsNormallyClosedContactsClosed) {
  EXPECT_EQ(inv.Stato_I(), "0100011000000000");
  EXPECT_EQ(inv.Stato_Q(), "0000000000000000");
  EXPECT_EQ(inv.Caption(), "Nastro Due");
  EXPECT_EQ(inv.BackColor, 0U);
  EXPECT_EQ(inv.ForeColor, 0U);
  EXPECT_EQ(Picture(inv, "imgM"), "imgMOF");
}

TEST_F(ReversingStarter, CaptionIsTheLabelOfTheMotor) {
  inv.Caption("M1");
  EXPECT_EQ(inv.Disegno["etM"].Caption(), "M1");
  EXPECT_EQ(inv.Caption(), "M1");
}

TEST_F(ReversingStarter, FitsItsWindow) {
  Verifica_Geometria(inv, 9000, 3450);
}

class ReversingStarterButton : public ::testing::TestWithParam<Prova_Pulsante> {};

TEST_P(ReversingStarterButton, ActsWhileHeld) {
  INV inv;
  Verifica_Pulsante(inv, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, ReversingStarterButton,
    ::testing::Values(Prova_Pulsante{"imgStop", 2, '0', '1', "imgPGr1", "imgPGr0"},
                      Prova_Pulsante{"imgStart", 3, '1', '0', "imgVON", "imgVOFF"},
                      Prova_Pulsante{"imgInd", 4, '1', '0', "imgVON", "imgVOFF"},
                      Prova_Pulsante{"ImgEm", 7, '0', '1', "imgRON", "imgROFF"}));

struct Lampada_INV {
  int Posizione;
  void (INV::*Procedura)(std::string_view);
  const char *Nome, *Picture;
};

class ReversingStarterLamp : public ::testing::TestWithParam<Lampada_INV> {};

TEST_P(ReversingStarterLamp, FollowsItsOutputAlone) {
  INV inv;
  Verifica_Lampada(inv, GetParam().Posizione, GetParam().Nome, GetParam().Picture);
}

TEST_P(ReversingStarterLamp, ProcedureComparesWithOne) {
  INV inv;
  (inv.*GetParam().Procedura)("1");
  EXPECT_EQ(Picture(inv, GetParam().Nome), GetParam().Picture);
  (inv.*GetParam().Procedura)("2");
  EXPECT_EQ(Picture(inv, GetParam().Nome), "imgLNot");
}

INSTANTIATE_TEST_SUITE_P(All, ReversingStarterLamp,
                         ::testing::Values(Lampada_INV{5, &INV::SET_HL1, "imgLA", "imgLV"},
                                           Lampada_INV{4, &INV::SET_HL2, "imgLI", "imgLV"},
                                           Lampada_INV{3, &INV::SET_HL3, "imgLS", "imgLB"},
                                           Lampada_INV{6, &INV::SET_HL4, "imgLRt", "imgLG"},
                                           Lampada_INV{7, &INV::SET_HL5, "imgLAttesa", "imgLR"}));

struct Contattore_INV {
  int Uscita, Ingresso;
  void (INV::*Procedura)(std::string_view);
  const char *Nome, *Contatto, *Filo;
};

class ReversingStarterContactor : public ::testing::TestWithParam<Contattore_INV> {};

TEST_P(ReversingStarterContactor, FollowsItsOutput) {
  const Contattore_INV& atteso = GetParam();
  INV inv;
  inv.Stato_Q(Uscite({}));  // the first text sent is always heard
  Ascolto ascolto(inv);
  std::string chiuso = inv.Stato_I();
  chiuso[static_cast<std::size_t>(atteso.Ingresso - 1)] = '1';

  inv.Stato_Q(Uscite({atteso.Uscita}));
  EXPECT_EQ(Picture(inv, atteso.Nome), "imgKMON");
  EXPECT_EQ(Picture(inv, atteso.Contatto), "imgAuxC");
  EXPECT_EQ(inv.Disegno[atteso.Filo].FillColor(), Tavolozza(12));
  EXPECT_EQ(Picture(inv, "imgM"), "imgMON");
  inv.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(inv, atteso.Nome), "imgKMOF");
  EXPECT_EQ(Picture(inv, atteso.Contatto), "imgAuxA");
  EXPECT_EQ(inv.Disegno[atteso.Filo].FillColor(), Tavolozza(15));
  EXPECT_EQ(Picture(inv, "imgM"), "imgMOF");
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(chiuso, "0100011000000000"));
}

TEST_P(ReversingStarterContactor, IsEnergisedByAnythingButZero) {
  INV inv;
  (inv.*GetParam().Procedura)("2");
  EXPECT_EQ(Picture(inv, GetParam().Nome), "imgKMON");
  (inv.*GetParam().Procedura)("0");
  EXPECT_EQ(Picture(inv, GetParam().Nome), "imgKMOF");
}

TEST_P(ReversingStarterContactor, ADoubleClickChangesItOverWithAllThatFollows) {
  const Contattore_INV& atteso = GetParam();
  INV inv;
  EXPECT_EQ(inv.Disegno[atteso.Nome].ToolTip(), "D.Click per forzare cambiamento di stato");
  for (const bool chiuso : {true, false, true}) {
    EXPECT_TRUE(inv.Doppio_Clic(atteso.Nome));
    EXPECT_EQ(Picture(inv, atteso.Nome), chiuso ? "imgKMON" : "imgKMOF");
    EXPECT_EQ(Picture(inv, atteso.Contatto), chiuso ? "imgAuxC" : "imgAuxA");
    EXPECT_EQ(Ingresso(inv, atteso.Ingresso), chiuso ? '1' : '0');
    EXPECT_EQ(Picture(inv, "imgM"), chiuso ? "imgMON" : "imgMOF");
  }
  // closed by hand, and commanded off by the next change of any output
  inv.Stato_Q(Uscite({7}));
  EXPECT_EQ(Picture(inv, atteso.Nome), "imgKMOF");
  EXPECT_EQ(Ingresso(inv, atteso.Ingresso), '0');
}

INSTANTIATE_TEST_SUITE_P(
    All, ReversingStarterContactor,
    ::testing::Values(Contattore_INV{1, 1, &INV::KMAStato, "imgKm1", "imgKM1a", "linKM1"},
                      Contattore_INV{2, 5, &INV::KMIStato, "imgKM2", "imgKM2a", "linKM2"}));

TEST_F(ReversingStarter, BothContactorsOnAreNoFault) {
  Ascolto ascolto(inv);
  inv.Stato_Q(Uscite({1, 2}));
  EXPECT_EQ(Ingresso(inv, 1), '1');
  EXPECT_EQ(Ingresso(inv, 5), '1');
  EXPECT_EQ(Picture(inv, "imgM"), "imgMON");
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1100011000000000", "1100111000000000"));
  inv.Stato_Q(Uscite({2}));
  EXPECT_EQ(Picture(inv, "imgM"), "imgMON");
}

TEST_F(ReversingStarter, ASecondClickResetsTheThermalRelay) {
  Verifica_Termico(inv, "ImgTer", 6);
}

}  // namespace tavorno::prova
