// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/tank_level.h"

#include <gmock/gmock.h>

#include "plant_bed.h"

namespace tavorno::prova {

namespace {

constexpr int YV1 = 1, KM1 = 2, YV2 = 3;  // outputs
constexpr int FR1 = 3;                    // input

struct TankLevel : ::testing::Test {
  void Tick(int numero = 1) { orologio.Avanza(200 * static_cast<std::int64_t>(numero)); }
  void Uscite(const std::vector<int>& posizioni) { m.Stato_Q(prova::Uscite(posizioni)); }
  char Ingresso(int posizione) { return prova::Ingresso(m, posizione); }
  Colore Spia(const char* nome) { return m.Disegno[nome].FillColor; }

  Orologio orologio;
  Ctr_Level0 m{orologio};
};

TEST_F(TankLevel, StartsBetweenItsSwitches) {
  EXPECT_EQ(m.Stato_I(), "1111110100010000");
  EXPECT_EQ(m.Livello_Vasca(), 465);
  EXPECT_EQ(m.Livello_Serbatoio(), 165);
  EXPECT_EQ(m.Vasca_Vuota(), 0);
  EXPECT_EQ(m.Serbatoio_Vuoto(), 0);
  EXPECT_EQ(m.Disegno["shL1"].Top(), 2400 - 465);
  EXPECT_EQ(m.Disegno["shL2"].Top(), 1935 - 165);
  EXPECT_FALSE(m.Disegno["imgSpruzzo"].Visible);
  Verifica_Geometria(m, 9000, 3060);
  orologio.Avanza(10000);
  EXPECT_EQ(m.Livello_Vasca(), 465);
  EXPECT_EQ(m.Livello_Serbatoio(), 165);
}

TEST_F(TankLevel, FillsEightTwipsATick) {
  Uscite({YV1});
  orologio.Avanza(199);
  EXPECT_EQ(m.Livello_Vasca(), 465);
  orologio.Avanza(1);
  for (int tick = 1; tick <= 60; ++tick) {
    ASSERT_EQ(m.Livello_Vasca(), 465 + 8 * tick);
    ASSERT_EQ(m.Disegno["shL1"].Height(), static_cast<float>(465 + 8 * tick));
    ASSERT_EQ(m.Disegno["shL1"].Top(), static_cast<float>(2400 - 465 - 8 * tick));
    Tick();
  }
  EXPECT_EQ(m.Livello_Serbatoio(), 165);
  Uscite({});
  const int fermo = m.Livello_Vasca();
  Tick(5);
  EXPECT_EQ(m.Livello_Vasca(), fermo);
}

TEST_F(TankLevel, PumpsFiveTwipsATick) {
  Uscite({KM1});
  for (int tick = 1; tick <= 60; ++tick) {
    Tick();
    ASSERT_EQ(m.Livello_Vasca(), 465 - 5 * tick);
    ASSERT_EQ(m.Livello_Serbatoio(), 165 + 5 * tick);
    ASSERT_EQ(m.Disegno["shL2"].Height(), static_cast<float>(165 + 5 * tick));
    ASSERT_EQ(m.Disegno["shL2"].Top(), static_cast<float>(1935 - 165 - 5 * tick));
  }
}

TEST_F(TankLevel, DrainsSevenTwipsATick) {
  Uscite({YV2});
  for (int tick = 1; tick <= 16; ++tick) {
    Tick();
    ASSERT_EQ(m.Livello_Serbatoio(), 165 - 7 * tick);
  }
  EXPECT_EQ(m.Livello_Vasca(), 465);
}

TEST_F(TankLevel, FillingAndPumpingGainsThreeTwipsATick) {
  Uscite({YV1, KM1});
  for (int tick = 1; tick <= 100; ++tick) {
    Tick();
    ASSERT_EQ(m.Livello_Vasca(), 465 + 3 * tick);
    ASSERT_EQ(m.Livello_Serbatoio(), 165 + 5 * tick);
  }
}

TEST_F(TankLevel, PumpRunsDryBelow45AndResumesAbove145) {
  Uscite({KM1});
  Tick(84);
  ASSERT_EQ(m.Livello_Vasca(), 45);
  EXPECT_EQ(m.Vasca_Vuota(), 0);
  EXPECT_EQ(Ingresso(2), '1');
  Tick();
  EXPECT_EQ(m.Livello_Vasca(), 40);
  EXPECT_EQ(m.Vasca_Vuota(), -1);
  EXPECT_EQ(Ingresso(2), '0');
  EXPECT_EQ(Spia("imgMin1"), 255U);
  EXPECT_EQ(Picture(m, "imgTubi"), "imgTOF");
  EXPECT_EQ(Picture(m, "imgP1"), "imgMON");
  const int serbatoio = m.Livello_Serbatoio();
  Tick(50);
  EXPECT_EQ(m.Livello_Vasca(), 40);
  EXPECT_EQ(m.Livello_Serbatoio(), serbatoio);
  Uscite({YV1, KM1});
  Tick(13);
  EXPECT_EQ(m.Livello_Vasca(), 144);
  EXPECT_EQ(m.Vasca_Vuota(), -1);
  EXPECT_EQ(m.Livello_Serbatoio(), serbatoio);
  Tick();
  EXPECT_EQ(Ingresso(2), '1');
  EXPECT_EQ(Spia("imgMin1"), 16512U);
  EXPECT_EQ(Picture(m, "imgTubi"), "imgTON");
  Tick();
  EXPECT_GT(m.Livello_Serbatoio(), serbatoio);
}

TEST_F(TankLevel, DrainStopsBelow50AndResumesAbove80) {
  Uscite({YV2});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  Tick(16);
  ASSERT_EQ(m.Livello_Serbatoio(), 53);
  EXPECT_EQ(Ingresso(4), '1');
  Tick();
  EXPECT_EQ(m.Livello_Serbatoio(), 46);
  EXPECT_EQ(m.Serbatoio_Vuoto(), -1);
  EXPECT_EQ(Ingresso(4), '0');
  EXPECT_EQ(Spia("imgMin2"), 255U);
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVVU");
  Tick(20);
  EXPECT_EQ(m.Livello_Serbatoio(), 46);
  Uscite({YV2, KM1});
  Tick(6);
  EXPECT_EQ(m.Livello_Serbatoio(), 76);
  EXPECT_EQ(m.Serbatoio_Vuoto(), -1);
  Tick();
  EXPECT_EQ(m.Livello_Serbatoio(), 81);
  EXPECT_EQ(m.Serbatoio_Vuoto(), 0);
  EXPECT_EQ(Ingresso(4), '1');
  EXPECT_EQ(Spia("imgMin2"), 16512U);
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  Tick();
  EXPECT_EQ(m.Livello_Serbatoio(), 79);
  Uscite({});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVOF");
}

// ---- limits -------------------------------------------------------------------------------------

struct Passo {
  std::vector<int> Uscite;
  int Tick;
};

/// Comes to a limit exactly, and goes one tick beyond.
struct Prova_Limite {
  int Ingresso;
  const char* Spia;
  std::vector<Passo> Passi;  ///< the last one ends on the limit
  int Vasca, Serbatoio;      ///< the height it ends on; 0 for the tank of no interest
  char Prima, Dopo;          ///< the input on the limit, and beyond
};

// clang-format off
const std::vector<Prova_Limite> limiti = {
    {1, "imgMax1", {{{YV1}, 45}},                              825, 0, '1', '0'},
    {1, "imgMax1", {{{YV1}, 50}, {{KM1}, 28}},                 725, 0, '0', '1'},
    {2, "imgMin1", {{{KM1}, 84}},                               45, 0, '1', '0'},
    {2, "imgMin1", {{{YV1}, 2}, {{KM1}, 88}, {{YV1}, 13}},     145, 0, '0', '1'},
    {5, "imgMed",  {{{YV1, KM1}, 107}},                          0, 700, '1', '0'},
    {6, "imgMax2", {{{YV1, KM1}, 228}},                          0, 1305, '1', '0'},
    {6, "imgMax2", {{{YV1, KM1}, 229}, {{YV2}, 15}},             0, 1205, '0', '1'},
    {4, "imgMin2", {{{KM1}, 5}, {{YV2}, 20}},                    0, 50, '1', '0'},
    {4, "imgMin2", {{{KM1}, 4}, {{YV2}, 20}, {{YV1, KM1}, 7}},   0, 80, '0', '1'},
};
// clang-format on

class TankLimit : public TankLevel, public ::testing::WithParamInterface<Prova_Limite> {};

TEST_P(TankLimit, IsStrict) {
  const Prova_Limite& p = GetParam();
  for (const Passo& passo : p.Passi) {
    Uscite(passo.Uscite);
    Tick(passo.Tick);
  }
  if (p.Vasca) {
    ASSERT_EQ(m.Livello_Vasca(), p.Vasca);
  } else {
    ASSERT_EQ(m.Livello_Serbatoio(), p.Serbatoio);
  }
  EXPECT_EQ(Ingresso(p.Ingresso), p.Prima);
  EXPECT_EQ(Spia(p.Spia), p.Prima == '0' ? 255U : 16512U);
  Tick();
  EXPECT_EQ(Ingresso(p.Ingresso), p.Dopo);
  EXPECT_EQ(Spia(p.Spia), p.Dopo == '0' ? 255U : 16512U);
  const int micro = p.Ingresso - (p.Ingresso < FR1 ? 1 : 2);  // SL1 and SL2 stand before FR1
  EXPECT_EQ(m.Disegno("imgRaggi", micro).Visible(), p.Dopo == '0');
}

INSTANTIATE_TEST_SUITE_P(All, TankLimit, ::testing::ValuesIn(limiti));

TEST_F(TankLevel, TheHalfSwitchHasNoHysteresis) {
  Uscite({YV1, KM1});
  Tick(109);
  ASSERT_EQ(m.Livello_Serbatoio(), 710);
  EXPECT_EQ(Ingresso(5), '0');
  Uscite({YV2});
  Tick();
  ASSERT_EQ(m.Livello_Serbatoio(), 703);
  EXPECT_EQ(Ingresso(5), '0');
  Tick();
  EXPECT_EQ(Ingresso(5), '1');
  EXPECT_EQ(Spia("imgMed"), 16512U);
}

TEST_F(TankLevel, NothingCapsTheLevels) {
  Uscite({YV1, KM1});
  Tick(400);
  EXPECT_EQ(m.Livello_Vasca(), 465 + 1200);
  EXPECT_EQ(m.Livello_Serbatoio(), 165 + 2000);
  EXPECT_EQ(m.Disegno["shL2"].Top(), 1935 - 2165);
}

TEST_F(TankLevel, HeightsEndAt16Bits) {
  Uscite({YV1});
  Tick(5000);
  EXPECT_EQ(m.Livello_Vasca(), 32767);
}

// ---- outputs ------------------------------------------------------------------------------------

TEST_F(TankLevel, FillValveShows) {
  Uscite({YV1});
  EXPECT_EQ(Picture(m, "imgV1"), "imgEVON");
  EXPECT_EQ(Spia("shV1"), Tavolozza(12));
  EXPECT_TRUE(m.Disegno["imgSpruzzo"].Visible);
  Uscite({});
  EXPECT_EQ(Picture(m, "imgV1"), "imgEVOF");
  EXPECT_EQ(Spia("shV1"), Tavolozza(15));
  EXPECT_FALSE(m.Disegno["imgSpruzzo"].Visible);
}

TEST_F(TankLevel, PumpShows) {
  Uscite({KM1});
  EXPECT_EQ(Picture(m, "imgP1"), "imgMON");
  EXPECT_EQ(Picture(m, "imgTubi"), "imgTON");
  Uscite({});
  EXPECT_EQ(Picture(m, "imgP1"), "imgMOF");
  EXPECT_EQ(Picture(m, "imgTubi"), "imgTOF");
}

TEST_F(TankLevel, DrainValveShows) {
  Uscite({YV2});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  EXPECT_EQ(Spia("shV3"), Tavolozza(12));
  Uscite({});
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVOF");
  EXPECT_EQ(Spia("shV3"), Tavolozza(15));
}

TEST_F(TankLevel, Lamps) {
  Verifica_Lampada(m, 4, "imgHL1", "imgLV");
  Verifica_Lampada(m, 5, "imgHL2", "imgLG");
  Verifica_Lampada(m, 6, "imgHL3", "imgLR");
  Verifica_Lampada(m, 7, "imgHL4", "imgLB");
}

// ---- the user's hand ----------------------------------------------------------------------------

TEST_F(TankLevel, ATripLeavesThePumpRunningUntilItsOutputFalls) {
  Uscite({KM1});
  m.Clic("imgP1");
  EXPECT_EQ(Ingresso(3), '0');
  EXPECT_EQ(Picture(m, "imgP1"), "imgFR");
  Tick(10);
  EXPECT_EQ(m.Livello_Vasca(), 415);
  Uscite({});
  Tick(10);
  EXPECT_EQ(m.Livello_Vasca(), 415);
  EXPECT_EQ(Picture(m, "imgFR"), "aperto");
  m.Clic("imgP1");
  EXPECT_EQ(Ingresso(3), '1');
  EXPECT_EQ(Picture(m, "imgP1"), "imgMOF");
  EXPECT_EQ(Picture(m, "imgFR"), "chiuso");
}

TEST_F(TankLevel, Selectors) {
  for (const auto& [nome, posizione] : {std::pair{"imgCom(0)", 7}, std::pair{"imgCom(1)", 9},
                                        std::pair{"imgCom(2)", 10}, std::pair{"imgCom(3)", 11}}) {
    const std::string riposo = m.Stato_I();
    std::string girato = riposo;
    girato[static_cast<std::size_t>(posizione - 1)] = '1';
    ASSERT_NE(girato, riposo);
    m.Clic(nome);
    EXPECT_EQ(m.Stato_I(), girato) << nome;
    EXPECT_EQ(Picture(m, nome), "imgComON");
    m.Clic(nome);
    EXPECT_EQ(m.Stato_I(), riposo) << nome;
    EXPECT_EQ(Picture(m, nome), "imgComOF");
  }
}

TEST_F(TankLevel, Buttons) {
  for (const auto& [nome, posizione, giu] :
       {std::tuple{"imgAlt(0)", 8, '0'}, std::tuple{"imgAlt(1)", 12, '0'},
        std::tuple{"imgSB6", 13, '1'}}) {
    const std::string riposo = m.Stato_I();
    std::string premuto = riposo;
    premuto[static_cast<std::size_t>(posizione - 1)] = giu;
    ASSERT_NE(premuto, riposo);
    m.Premi(nome);
    EXPECT_EQ(m.Stato_I(), premuto) << nome;
    m.Rilascia(nome);
    EXPECT_EQ(m.Stato_I(), riposo) << nome;
  }
}

TEST_F(TankLevel, EachTickIsHeardForEachTankTwice) {
  Uscite({KM1});
  Ascolto ascolto(m);
  Tick();
  EXPECT_EQ(ascolto.Sentiti.size(), 4U);
}

}  // namespace

}  // namespace tavorno::prova
