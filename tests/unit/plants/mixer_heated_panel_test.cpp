// SPDX-License-Identifier: GPL-3.0-or-later
// US-10: agitator, steam, lamps and the user's hand.
#include <gmock/gmock.h>

#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

struct HeatedMixerPanel : Con_Orologio<ctr_Misc> {};

// ---- agitator, steam, lamps ---------------------------------------------------------------------

TEST_F(HeatedMixerPanel, AgitatorIsAPictureOnly) {
  Uscite({5});
  EXPECT_EQ(Picture(m, "imgM(3)"), "imgMON");
  std::vector<int> stili;
  for (int n = 0; n < 4; ++n) {
    Tick(1, 200);
    stili.push_back(m.Disegno["ShDos"].FillStyle);
  }
  EXPECT_THAT(stili, ::testing::ElementsAre(5, 4, 5, 4));
  EXPECT_EQ(Caption(m, "etT"), "20");
  EXPECT_EQ(m.Livello(), 0);
  Uscite({});
  EXPECT_EQ(Picture(m, "imgM(3)"), "imgMOF");
  Tick(3, 200);
  EXPECT_EQ(m.Disegno["ShDos"].FillStyle(), 4);
}

TEST_F(HeatedMixerPanel, SteamShows) {
  Uscite({4});
  EXPECT_EQ(Picture(m, "imgV4"), "imgEVON");
  EXPECT_EQ(Picture(m, "imgTv"), "imgTON");
  EXPECT_TRUE(m.Disegno["imgSp(2)"].Visible);
  Uscite({});
  EXPECT_EQ(Picture(m, "imgV4"), "imgEVOF");
  EXPECT_EQ(Picture(m, "imgTv"), "imgTOF");
  EXPECT_FALSE(m.Disegno["imgSp(2)"].Visible);
}

TEST_F(HeatedMixerPanel, Lamps) {
  const char* const spie[] = {"imgLV", "imgLV", "imgLB", "imgLR",
                              "imgLG", "imgLG", "imgLG", "imgLG"};
  for (int n = 0; n < 8; ++n)
    Verifica_Lampada(m, 9 + n, "imgL(" + std::to_string(n) + ")", spie[n]);
}

// ---- the user's hand ----------------------------------------------------------------------------

struct Prova_Commutatore {
  const char* Nome;
  int Posizione;
  char Azionato;
  const char *Picture_Azionato, *Picture_Riposo;
};

class HeatedMixerToggle : public HeatedMixerPanel,
                          public ::testing::WithParamInterface<Prova_Commutatore> {};

TEST_P(HeatedMixerToggle, ChangesOverAtEachClick) {
  const Prova_Commutatore& p = GetParam();
  const std::string riposo = m.Stato_I();
  std::string azionato = riposo;
  azionato[static_cast<std::size_t>(p.Posizione - 1)] = p.Azionato;
  ASSERT_NE(azionato, riposo);
  EXPECT_EQ(Picture(m, p.Nome), p.Picture_Riposo);
  EXPECT_TRUE(m.Clic(p.Nome));
  EXPECT_EQ(m.Stato_I(), azionato);
  EXPECT_EQ(Picture(m, p.Nome), p.Picture_Azionato);
  EXPECT_TRUE(m.Clic(p.Nome));
  EXPECT_EQ(m.Stato_I(), riposo);
  EXPECT_EQ(Picture(m, p.Nome), p.Picture_Riposo);
}

INSTANTIATE_TEST_SUITE_P(
    All, HeatedMixerToggle,
    ::testing::Values(Prova_Commutatore{"imgM(0)", 3, '0', "imgFR", "imgMOF"},
                      Prova_Commutatore{"imgM(1)", 4, '0', "imgFR", "imgMOF"},
                      Prova_Commutatore{"imgM(2)", 7, '0', "imgFR", "imgMOF"},
                      Prova_Commutatore{"imgM(3)", 9, '0', "imgFR", "imgMOF"},
                      Prova_Commutatore{"imgCom(0)", 10, '1', "imgComON", "imgComOF"},
                      Prova_Commutatore{"imgCom(1)", 13, '1', "imgComON", "imgComOF"},
                      Prova_Commutatore{"imgCom(2)", 14, '1', "imgComON", "imgComOF"},
                      Prova_Commutatore{"imgCom(3)", 15, '1', "imgComON", "imgComOF"},
                      Prova_Commutatore{"imgCom(4)", 16, '1', "imgComON", "imgComOF"}));

TEST_F(HeatedMixerPanel, ATrippedMotorGoesOnUntilItsOutputFalls) {
  Uscite({1, 6});
  m.Clic("imgM(0)");
  EXPECT_EQ(Ingresso(3), '0');
  Tick(10, 300);
  EXPECT_EQ(m.Livello(), 5);
  Uscite({});
  Tick(10, 300);
  EXPECT_EQ(m.Livello(), 5);
}

TEST_F(HeatedMixerPanel, AContactShowsTheTripAfterTheMotorStopped) {
  for (const auto& [n, uscita] :
       {std::pair{0, 1}, std::pair{1, 2}, std::pair{2, 3}, std::pair{3, 5}}) {
    const std::string motore = "imgM(" + std::to_string(n) + ")";
    const std::string contatto = "imgFR(" + std::to_string(n) + ")";
    EXPECT_EQ(Picture(m, contatto), "chiuso");
    Uscite({uscita});
    m.Clic(motore);
    EXPECT_EQ(Picture(m, motore), "imgFR");
    Uscite({});
    EXPECT_EQ(Picture(m, motore), "imgMOF");
    EXPECT_EQ(Picture(m, contatto), "aperto") << n;
    m.Clic(motore);
    EXPECT_EQ(Picture(m, contatto), "chiuso");
  }
}

TEST_F(HeatedMixerPanel, Buttons) {
  for (const auto& [nome, posizione, giu] :
       {std::tuple{"imgSB(0)", 11, '1'}, std::tuple{"imgSB(1)", 12, '0'}}) {
    const std::string riposo = m.Stato_I();
    std::string premuto = riposo;
    premuto[static_cast<std::size_t>(posizione - 1)] = giu;
    ASSERT_NE(premuto, riposo);
    Ascolto ascolto(m);
    EXPECT_TRUE(m.Premi(nome));
    EXPECT_EQ(m.Stato_I(), premuto) << nome;
    EXPECT_EQ(Picture(m, nome), "imgSBON");
    EXPECT_TRUE(m.Rilascia(nome));
    EXPECT_EQ(m.Stato_I(), riposo) << nome;
    EXPECT_EQ(Picture(m, nome), "imgSBOF");
    EXPECT_THAT(ascolto.Sentiti, ::testing::ElementsAre(premuto, premuto, riposo, riposo));
  }
}

TEST_F(HeatedMixerPanel, TransducerButtonShowsTheAddressesOfItsBitsWhileHeld) {
  Ascolto ascolto(m);
  m.Premi("sspTr");
  EXPECT_EQ(ascolto.Sentiti.size(), 2U);  // as every hand on this plant
  EXPECT_TRUE(m.Disegno["picTr"].Visible);
  EXPECT_EQ(Caption(m, "et1"), "I0.4");
  EXPECT_EQ(Caption(m, "et2"), "I0.5");
  EXPECT_TRUE(m.Disegno["et1"].Visible);
  m.Rilascia("sspTr");
  EXPECT_EQ(ascolto.Sentiti.size(), 4U);
  EXPECT_FALSE(m.Disegno["picTr"].Visible);
  EXPECT_FALSE(m.Disegno["et1"].Visible);
  EXPECT_FALSE(m.Disegno["et2"].Visible);
}

TEST_F(HeatedMixerPanel, ModoIColoursTheAddresses) {
  for (const auto& [modo, colore] : {std::pair{1, 10}, std::pair{0, 8}, std::pair{-1, 10}}) {
    EXPECT_TRUE(m.Regola("ME_ModoI", modo));
    for (int n = 0; n < 16; ++n) EXPECT_EQ(m.Disegno("etI", n).ForeColor(), Tavolozza(colore)) << n;
  }
  EXPECT_EQ(Caption(m, "etI(0)"), "I0.0");
  EXPECT_EQ(Caption(m, "etI(15)"), "I1.7");
}

TEST_F(HeatedMixerPanel, AnOutputThatDoesNotChangeDoesNothing) {
  Uscite({1, 6});
  Tick(3, 300);
  const std::string prima = Caption(m, "EtP(0)");
  Uscite({1, 6, 9});
  EXPECT_EQ(Caption(m, "EtP(0)"), prima);
  EXPECT_EQ(Ingresso(1), '1');
}

}  // namespace

}  // namespace tavorno::prova
