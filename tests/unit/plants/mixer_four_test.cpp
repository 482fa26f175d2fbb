// SPDX-License-Identifier: GPL-3.0-or-later
// US-13: what it has beyond the tank.
#include <gmock/gmock.h>

#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

constexpr int KM1 = 6, YV5 = 7, BF = 13;  // outputs, input of the flow meter

struct FourProducts : Con_Orologio<ctr_Mis4> {
  /// Litres that come in during twenty ticks.
  int Flusso() {
    const int prima = m.Livello();
    Tick(20, 300);
    return m.Livello() - prima;
  }
};

TEST_F(FourProducts, StartsEmptyWithSl0Operated) {
  EXPECT_EQ(Caption(m, "etAI"), "0.00");
  EXPECT_EQ(m.Disegno["imgTL(0)"].FillColor(), 255U);
  for (int n = 0; n < 4; ++n) {
    EXPECT_EQ(Caption(m, "etGP(" + std::to_string(n) + ")"), std::string(1, "ABCD"[n]));
    EXPECT_EQ(m.Disegno("etGP", n).ForeColor(), Tavolozza(0));
  }
  EXPECT_EQ(m.ME_AIW2, std::nullopt);
  Verifica_Geometria(m, 9000, 3305);
}

class FourProductsValve : public FourProducts, public ::testing::WithParamInterface<int> {};

TEST_P(FourProductsValve, FlowsWithThePumpInEitherOrder) {
  const int yv = GetParam();
  Uscite({yv});
  EXPECT_EQ(Flusso(), 0);
  Uscite({yv, KM1});
  EXPECT_EQ(Flusso(), 10);
  Uscite({KM1});
  EXPECT_EQ(Flusso(), 0);
  Uscite({yv, KM1});
  EXPECT_EQ(Flusso(), 10);
  Uscite({yv});
  EXPECT_EQ(Flusso(), 0);
}

TEST_P(FourProductsValve, ShowsInItsOwnPipe) {
  const int yv = GetParam();
  Uscite({yv, KM1});
  for (int n = 0; n < 4; ++n) {
    EXPECT_EQ(Picture(m, "imgTG(" + std::to_string(n) + ")"), n == yv - 1 ? "imgTON" : "imgTOF");
    EXPECT_EQ(Picture(m, "imgV(" + std::to_string(n) + ")"), n == yv - 1 ? "imgEVON" : "imgEVOF");
  }
  EXPECT_EQ(Picture(m, "imgTOP"), "imgTON");
  EXPECT_EQ(Picture(m, "imgTVP"), "imgTON");
  EXPECT_TRUE(m.Disegno["imgSp"].Visible);
  Uscite({yv});
  EXPECT_EQ(Picture(m, "imgTG(" + std::to_string(yv - 1) + ")"), "imgTOF");
  EXPECT_EQ(Picture(m, "imgTOP"), "imgTOF");
  EXPECT_FALSE(m.Disegno["imgSp"].Visible);
}

TEST_P(FourProductsValve, AFallingValveStopsTheFillThoughAnotherIsOpen) {
  const int cade = GetParam();
  const int resta = cade == 1 ? 2 : 1;
  Uscite({cade, resta, KM1});
  EXPECT_EQ(Flusso(), 10);
  Uscite({resta, KM1});
  EXPECT_EQ(Picture(m, "imgM(0)"), "imgMON");
  EXPECT_EQ(Flusso(), 0);
  Uscite({cade, resta, KM1});  // raised again, it goes on
  EXPECT_EQ(Flusso(), 10);
}

INSTANTIATE_TEST_SUITE_P(All, FourProductsValve, ::testing::Values(1, 2, 3, 4));

TEST_F(FourProducts, DroppingYv2StopsTheFillThoughYv1IsOpen) {
  Uscite({1, 2, KM1});
  EXPECT_EQ(Flusso(), 10);
  Uscite({1, KM1});
  EXPECT_EQ(Flusso(), 0);
  EXPECT_EQ(Ingresso(BF), '0');
}

TEST_F(FourProducts, ValvesActInTheOrderOfTheirOutputs) {
  Uscite({1, KM1});
  Uscite({2, KM1});  // 1 falls, then 2 rises
  EXPECT_EQ(Flusso(), 10);
  Uscite({1, KM1});  // 1 rises, then 2 falls
  EXPECT_EQ(Flusso(), 0);
}

TEST_F(FourProducts, ASecondValveCountsFromZeroAtTheSameRate) {
  Uscite({1, KM1});
  Tick(4, 300);
  EXPECT_EQ(Caption(m, "EtP"), "2");
  Uscite({1, 3, KM1});
  EXPECT_EQ(Caption(m, "EtP"), "0");
  EXPECT_EQ(Flusso(), 10);
}

// ---- missing product ----------------------------------------------------------------------------

TEST_F(FourProducts, AnyLetterStopsTheFlowWhateverIsOpen) {
  Uscite({1, KM1});
  m.Premi("etGP(2)");
  EXPECT_EQ(m.Disegno["etGP(2)"].ForeColor(), 255U);
  for (int tick = 0; tick < 20; ++tick) {
    Tick(1, 300);
    ASSERT_EQ(Ingresso(BF), '0');
    ASSERT_EQ(m.Livello(), 0);
    ASSERT_EQ(m.Disegno["shL"].Height(), 0);
  }
  EXPECT_EQ(Caption(m, "EtP"), "0");
  m.Rilascia("etGP(2)");
  EXPECT_EQ(m.Disegno["etGP(2)"].ForeColor(), Tavolozza(0));
  EXPECT_EQ(Flusso(), 10);
}

TEST_F(FourProducts, TheToggleTurnsOnWhileAProductIsMissing) {
  Uscite({1, KM1});
  Tick(1, 300);
  ASSERT_EQ(Ingresso(BF), '1');
  m.Premi("etGP(0)");
  EXPECT_EQ(Ingresso(BF), '1');  // until the tick
  Tick(1, 300);
  EXPECT_EQ(Ingresso(BF), '0');
  Tick(1, 300);
  EXPECT_EQ(Ingresso(BF), '0');
  m.Rilascia("etGP(0)");
  Tick(1, 300);  // the second half of a litre that was not counted
  EXPECT_EQ(Ingresso(BF), '0');
  EXPECT_EQ(m.Livello(), 1);
  EXPECT_EQ(m.Disegno["shL"].Height(), 10);
  Tick(1, 300);
  EXPECT_EQ(Ingresso(BF), '1');
  EXPECT_EQ(m.Livello(), 2);
  EXPECT_EQ(m.Disegno["shL"].Height(), 15);
  EXPECT_EQ(Caption(m, "EtP"), "2");
}

TEST_F(FourProducts, AMissingTickLosesItsHalfOfALitre) {
  Uscite({1, KM1});
  Tick(1, 300);
  m.Premi("etGP(3)");
  Tick(1, 300);
  m.Rilascia("etGP(3)");
  Tick(1, 300);  // the toggle has turned: the next litre begins
  EXPECT_EQ(Ingresso(BF), '1');
  EXPECT_EQ(m.Livello(), 2);
  EXPECT_EQ(m.Disegno["shL"].Height(), 10);
}

// ---- drain --------------------------------------------------------------------------------------

TEST_F(FourProducts, DrainIsRefusedWhenEmptyAndRunsOnWhenItRanEmpty) {
  Uscite({YV5});
  EXPECT_EQ(Picture(m, "imgV(4)"), "imgEVON");
  EXPECT_EQ(Picture(m, "imgTG(4)"), "imgTOF");
  Uscite({1, KM1, YV5});
  EXPECT_EQ(Flusso(), 10);
  Uscite({});
  Uscite({YV5});
  EXPECT_EQ(Picture(m, "imgTG(4)"), "imgTON");
  Tick(10, 200);
  EXPECT_EQ(m.Livello(), 0);
  EXPECT_EQ(Picture(m, "imgTG(4)"), "imgTOF");
  Uscite({1, KM1, YV5});
  Flusso();
  EXPECT_LE(m.Livello(), 1);
}

// ---- motors, lamps, hand ------------------------------------------------------------------------

TEST_F(FourProducts, AgitatorIsOnTheFifthOutput) {
  Uscite({5});
  EXPECT_EQ(Picture(m, "imgM(1)"), "imgMON");
  Tick(1, 200);
  EXPECT_EQ(m.Disegno["ShDos"].FillStyle(), 5);
}

TEST_F(FourProducts, ThermalRelaysDoNotStopTheirMotors) {
  Uscite({1, 5, KM1});
  m.Clic("imgM(0)");
  EXPECT_EQ(Ingresso(9), '0');
  EXPECT_EQ(Picture(m, "imgM(0)"), "imgFR");
  m.Clic("imgM(1)");
  EXPECT_EQ(Ingresso(10), '0');
  EXPECT_EQ(Picture(m, "imgM(1)"), "imgFR");
  EXPECT_EQ(Flusso(), 10);
  Uscite({});
  for (const char* contatto : {"imgFR(0)", "imgFR(1)"}) EXPECT_EQ(Picture(m, contatto), "aperto");
  m.Clic("imgM(0)");
  EXPECT_EQ(Ingresso(9), '1');
  EXPECT_EQ(Picture(m, "imgM(0)"), "imgMOF");
  EXPECT_EQ(Picture(m, "imgFR(0)"), "chiuso");
}

struct Prova_Spia {
  int Uscita, Indice;
  const char* Picture;
};

class FourProductsLamp : public FourProducts, public ::testing::WithParamInterface<Prova_Spia> {};

TEST_P(FourProductsLamp, Lights) {
  const auto [uscita, indice, picture] = GetParam();
  Verifica_Lampada(m, uscita, "imgL(" + std::to_string(indice) + ")", picture);
}

INSTANTIATE_TEST_SUITE_P(All, FourProductsLamp,
                         ::testing::Values(Prova_Spia{8, 7, "imgLR"}, Prova_Spia{9, 8, "imgLR"},
                                           Prova_Spia{10, 0, "imgLV"}, Prova_Spia{11, 4, "imgLB"},
                                           Prova_Spia{12, 1, "imgLV"}, Prova_Spia{13, 2, "imgLV"},
                                           Prova_Spia{14, 3, "imgLV"}, Prova_Spia{15, 5, "imgLG"},
                                           Prova_Spia{16, 6, "imgLG"}));

TEST_F(FourProducts, Buttons) {
  for (const auto& [nome, posizione, giu] :
       {std::tuple{"imgSB(0)", 1, '1'}, std::tuple{"imgSB(1)", 6, '0'},
        std::tuple{"imgSB(2)", 8, '1'}}) {
    const std::string riposo = m.Stato_I();
    std::string premuto = riposo;
    premuto[static_cast<std::size_t>(posizione - 1)] = giu;
    ASSERT_NE(premuto, riposo);
    m.Premi(nome);
    EXPECT_EQ(m.Stato_I(), premuto);
    m.Rilascia(nome);
    EXPECT_EQ(m.Stato_I(), riposo);
  }
}

TEST_F(FourProducts, SelectorAndEmergency) {
  m.Clic("imgCom");
  EXPECT_EQ(Ingresso(11), '1');
  m.Clic("imgCom");
  EXPECT_EQ(Ingresso(11), '0');
  m.Premi("ImgEm");
  EXPECT_EQ(Picture(m, "ImgEm"), "imgRON");
  m.Rilascia("ImgEm");
  EXPECT_EQ(Picture(m, "ImgEm"), "imgROFF");
  m.Clic("ImgEm");
  EXPECT_EQ(Ingresso(12), '0');
  EXPECT_EQ(Picture(m, "imgCEM"), "imgCA");
  m.Clic("ImgEm");
  EXPECT_EQ(Ingresso(12), '1');
}

}  // namespace

}  // namespace tavorno::prova
