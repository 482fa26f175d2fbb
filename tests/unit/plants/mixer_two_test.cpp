// SPDX-License-Identifier: GPL-3.0-or-later
// US-12: what it has beyond the tank.
#include <gmock/gmock.h>

#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

struct TwoProducts : Con_Orologio<ctr_Mis2> {
  void Riempi(int litri) {
    Uscite({1, 2});
    Tick(2 * litri, 200);
    Uscite({});
    ASSERT_EQ(m.Livello(), litri);
  }
  std::string Parola() { return m.Stato_I().substr(2, 2); }
};

TEST_F(TwoProducts, StartsEmpty) {
  EXPECT_EQ(Caption(m, "etAI"), "0.00");
  EXPECT_FALSE(m.Disegno["etGI"].Visible);
  EXPECT_EQ(m.ME_AIW2, std::nullopt);
  EXPECT_EQ(m.ME_AIW4, std::nullopt);
  Verifica_Geometria(m, 9000, 3180);
}

TEST_F(TwoProducts, LinesAreIndependent) {
  Uscite({1, 2, 3, 4});
  Tick(100, 200);
  EXPECT_EQ(m.Livello(), 100);
  Uscite({3, 4});
  Tick(20, 200);
  EXPECT_EQ(m.Livello(), 110);
  EXPECT_EQ(Caption(m, "EtP(0)"), "50");
  EXPECT_EQ(Caption(m, "EtP(1)"), "60");
}

TEST_F(TwoProducts, OneLitreIsEmptyWhileFillingAndNotWhileDraining) {
  Uscite({1, 2});
  Tick(1, 200);
  EXPECT_EQ(m.Livello(), 1);
  EXPECT_EQ(Parola(), "00");
  Tick(2, 200);
  EXPECT_EQ(m.Livello(), 2);
  EXPECT_EQ(Parola(), "01");
  Uscite({5});
  Tick(1, 100);
  EXPECT_EQ(m.Livello(), 1);
  EXPECT_EQ(Parola(), "01");
  Tick(1, 100);
  EXPECT_EQ(m.Livello(), 0);
  EXPECT_EQ(Parola(), "00");
}

TEST_F(TwoProducts, DrainOfAnEmptyTankIsRefused) {
  Uscite({5});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  EXPECT_EQ(Picture(m, "imgT3"), "imgTOF");
  Uscite({1, 2, 5});
  Tick(40, 200);
  EXPECT_EQ(m.Livello(), 20);  // the valve stands open and drains nothing
  Uscite({});
  Uscite({5});
  Tick(5, 100);
  EXPECT_EQ(m.Livello(), 15);
}

TEST_F(TwoProducts, ATankFilledToOneLitreIsNotDrained) {
  Riempi(1);
  Uscite({5});
  Tick(10, 100);
  EXPECT_EQ(m.Livello(), 1);
}

TEST_F(TwoProducts, TheDrainTimerRunsOnOverAnEmptyTank) {
  Riempi(3);
  Uscite({5});
  EXPECT_EQ(Picture(m, "imgT3"), "imgTON");
  Tick(3, 100);
  EXPECT_EQ(m.Livello(), 0);
  EXPECT_EQ(Picture(m, "imgT3"), "imgTOF");
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  Uscite({1, 2, 5});
  for (int tick = 0; tick < 20; ++tick) {
    Tick(1, 200);  // a litre in two ticks comes in, two go out
    ASSERT_LE(m.Livello(), 1);
  }
  Uscite({1, 2});
  Tick(20, 200);
  EXPECT_GE(m.Livello(), 10);
}

TEST_F(TwoProducts, TheDrainStopsWithItsValve) {
  Riempi(20);
  Uscite({5});
  Tick(5, 100);
  Uscite({});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVOF");
  EXPECT_EQ(Picture(m, "imgT3"), "imgTOF");
  Tick(10, 100);
  EXPECT_EQ(m.Livello(), 15);
}

struct Prova_Flusso_2 {
  int Pompa, Valvola;
  const char *Motore, *imgV, *imgT, *imgSp;
};

class TwoProductsFlow : public TwoProducts, public ::testing::WithParamInterface<Prova_Flusso_2> {};

TEST_P(TwoProductsFlow, ShowsInPipesAndSpray) {
  const Prova_Flusso_2& p = GetParam();
  const auto Aspetto = [&] {
    return Picture(m, p.Motore) + " " + Picture(m, p.imgV) + " " + Picture(m, p.imgT) +
           (m.Disegno[p.imgSp].Visible ? " spray" : "");
  };
  Uscite({p.Pompa});
  EXPECT_EQ(Aspetto(), "imgMON imgEVOF imgTOF");
  Uscite({p.Pompa, p.Valvola});
  EXPECT_EQ(Aspetto(), "imgMON imgEVON imgTON spray");
  Uscite({p.Valvola});
  EXPECT_EQ(Aspetto(), "imgMOF imgEVON imgTOF");
}

INSTANTIATE_TEST_SUITE_P(
    All, TwoProductsFlow,
    ::testing::Values(Prova_Flusso_2{2, 1, "imgM(0)", "imgV1", "imgT1", "imgSp(0)"},
                      Prova_Flusso_2{3, 4, "imgM(1)", "imgV2", "imgT2", "imgSp(1)"}));

TEST_F(TwoProducts, SteamIsAPictureOnly) {
  Uscite({15});
  EXPECT_EQ(Picture(m, "imgV4"), "imgEVON");
  EXPECT_EQ(Picture(m, "imgT4"), "imgTON");
  EXPECT_TRUE(m.Disegno["imgSp(2)"].Visible);
  const std::string prima = m.Stato_I();
  orologio.Avanza(60000);
  EXPECT_EQ(m.Stato_I(), prima);
  EXPECT_EQ(m.ME_AIW0, 0.0F);
  Uscite({});
  EXPECT_FALSE(m.Disegno["imgSp(2)"].Visible);
}

TEST_F(TwoProducts, AgitatorIsOnTheSixthOutput) {
  Uscite({6});
  EXPECT_EQ(Picture(m, "imgM(2)"), "imgMON");
  Tick(1, 200);
  EXPECT_EQ(m.Disegno["ShDos"].FillStyle(), 5);
  Tick(1, 200);
  EXPECT_EQ(m.Disegno["ShDos"].FillStyle(), 4);
}

TEST_F(TwoProducts, Lamps) {
  const char* const spie[] = {"imgLV", "imgLV", "imgLV", "imgLV",
                              "imgLG", "imgLB", "imgLB", "imgLR"};
  for (int n = 0; n < 8; ++n)
    Verifica_Lampada(m, 7 + n, "imgL(" + std::to_string(n) + ")", spie[n]);
}

TEST_F(TwoProducts, ButtonsOfEvenIndexCloseAndOfOddIndexOpen) {
  for (int n = 0; n < 10; ++n) {
    const std::string nome = "imgSB(" + std::to_string(n) + ")";
    const int posizione = 7 + n;
    const char su = n % 2 == 0 ? '0' : '1';
    const std::string riposo = m.Stato_I();
    std::string premuto = riposo;
    premuto[static_cast<std::size_t>(posizione - 1)] = su == '0' ? '1' : '0';
    ASSERT_EQ(Ingresso(posizione), su);
    EXPECT_TRUE(m.Premi(nome));
    EXPECT_EQ(m.Stato_I(), premuto) << nome;
    EXPECT_EQ(Picture(m, nome), "imgSBON");
    EXPECT_TRUE(m.Rilascia(nome));
    EXPECT_EQ(m.Stato_I(), riposo) << nome;
    EXPECT_EQ(Picture(m, nome), "imgSBOF");
  }
}

TEST_F(TwoProducts, Selector) {
  m.Clic("imgCom");
  EXPECT_EQ(m.Stato_I(), "0000110101010101");
  EXPECT_EQ(Picture(m, "imgCom"), "imgComON");
  m.Clic("imgCom");
  EXPECT_EQ(m.Stato_I(), "0000100101010101");
}

TEST_F(TwoProducts, EmergencyLatchesAtAClickAndPressOnlySinksTheButton) {
  m.Premi("ImgEm");
  EXPECT_EQ(Picture(m, "ImgEm"), "imgRON");
  EXPECT_EQ(Ingresso(5), '1');
  m.Rilascia("ImgEm");
  EXPECT_EQ(Picture(m, "ImgEm"), "imgROFF");
  EXPECT_EQ(Ingresso(5), '1');
  m.Clic("ImgEm");
  EXPECT_EQ(Ingresso(5), '0');
  EXPECT_EQ(Picture(m, "imgCEM"), "imgCA");
  m.Clic("ImgEm");
  EXPECT_EQ(Ingresso(5), '1');
  EXPECT_EQ(Picture(m, "imgCEM"), "imgCC");
}

TEST_F(TwoProducts, TheLitresShowTheirAddressWhileHeld) {
  m.Premi("etcap");
  EXPECT_TRUE(m.Disegno["etGI"].Visible);
  m.Rilascia("etcap");
  EXPECT_FALSE(m.Disegno["etGI"].Visible);
}

}  // namespace

}  // namespace tavorno::prova
