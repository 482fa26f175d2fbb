// SPDX-License-Identifier: GPL-3.0-or-later
// What the three stirred tanks have in common, line by line.
#include <gmock/gmock.h>

#include <algorithm>

#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

class StirredTank : public ::testing::TestWithParam<Prova_Linea> {
 protected:
  void Tick(int numero) { orologio.Avanza(static_cast<std::int64_t>(numero) * linea.Periodo); }
  void Tick_Scarico(int numero) {
    orologio.Avanza(static_cast<std::int64_t>(numero) * linea.Periodo_Scarico);
  }
  void Carica() { m->Stato_Q(Uscite(linea.Carico)); }
  void Scarica() { m->Stato_Q(Uscite(linea.Scarico)); }
  void Ferma() { m->Stato_Q(Uscite({})); }
  float Altezza() { return m->Disegno["shL"].Height; }
  void Porta_A(int litri) {
    Carica();
    Tick(2 * litri);
    Ferma();
    ASSERT_EQ(m->Livello(), litri);
  }

  const Prova_Linea& linea = GetParam();
  Orologio orologio;
  std::unique_ptr<Serbatoio_Agitato> m = linea.Crea(orologio);
};

TEST_P(StirredTank, StartsEmpty) {
  EXPECT_EQ(m->Stato_I(), linea.Riposo);
  EXPECT_EQ(m->Livello(), 0);
  EXPECT_EQ(m->Vasca_Vuota(), -1);
  EXPECT_EQ(Altezza(), 0);
  EXPECT_EQ(m->Disegno["shL"].Top(), linea.Fondo);
  EXPECT_EQ(Caption(*m, "etcap"), "0");
  EXPECT_EQ(Caption(*m, linea.EtP), "0");
  EXPECT_EQ(m->ME_AIW0, 0.0F);
}

TEST_P(StirredTank, NothingFlowsByItself) {
  const std::string prima = m->Stato_I();
  Ferma();
  orologio.Avanza(5000);
  EXPECT_EQ(m->Livello(), 0);
  EXPECT_EQ(Altezza(), 0);
  EXPECT_EQ(m->Stato_I(), prima);
}

TEST_P(StirredTank, EveryOutputOfTheLineIsNeeded) {
  for (const int sola : linea.Carico) {
    m->Stato_Q(Uscite({sola}));
    Tick(10);
    EXPECT_EQ(m->Livello(), 0) << sola;
    EXPECT_EQ(Ingresso(*m, linea.Impulso), '0');
  }
}

TEST_P(StirredTank, FillsALitreInTwoTicksWithOnePulse) {
  Carica();
  orologio.Avanza(linea.Periodo - 1);
  EXPECT_EQ(Altezza(), 0);
  orologio.Avanza(1);
  for (int tick = 1; tick <= 340; ++tick) {
    const int litri = (tick + 1) / 2;
    const bool alto = tick % 2 == 1;
    ASSERT_EQ(Altezza(), 5.0F * static_cast<float>(tick));
    ASSERT_EQ(m->Disegno["shL"].Top(), linea.Fondo - Altezza());
    ASSERT_EQ(m->Livello(), litri);
    ASSERT_EQ(Ingresso(*m, linea.Impulso), alto ? '1' : '0') << tick;
    ASSERT_EQ(Picture(*m, linea.imgTr), alto ? "imgTrON" : "imgTrOF");
    ASSERT_EQ(Caption(*m, linea.EtP), std::to_string(litri));
    ASSERT_EQ(Caption(*m, "etcap"), std::to_string(litri));
    ASSERT_EQ(m->ME_AIW0, static_cast<float>(litri) / 16.0F);
    Tick(1);
  }
}

TEST_P(StirredTank, ThePictureOfTheLiquidStandsOnTheBottomAndEndsAtTheTopOfThePicture) {
  const Figura& liquido = m->Disegno["imgLiquido"];
  EXPECT_EQ(liquido.Height(), 1);  // never without height
  EXPECT_EQ(liquido.Top(), linea.Fondo - 1);
  Carica();
  for (int tick = 1; tick <= 700; ++tick) {
    Tick(1);
    ASSERT_EQ(liquido.Height(), std::min(Altezza(), linea.Fondo));
    ASSERT_EQ(liquido.Top() + liquido.Height(), linea.Fondo);
  }
}

TEST_P(StirredTank, EachTickIsHeardTwice) {
  Carica();
  Ascolto ascolto(*m);
  orologio.Avanza(linea.Periodo);
  ASSERT_EQ(ascolto.Sentiti.size(), 2U);
  EXPECT_EQ(ascolto.Sentiti[0], ascolto.Sentiti[1]);
  EXPECT_EQ(ascolto.Sentiti[1], m->Stato_I());
}

TEST_P(StirredTank, AStopDropsThePulseAtOnceAndKeepsTheLevel) {
  Carica();
  Tick(3);
  ASSERT_EQ(Ingresso(*m, linea.Impulso), '1');
  Ascolto ascolto(*m);
  Ferma();
  EXPECT_EQ(Ingresso(*m, linea.Impulso), '0');
  EXPECT_EQ(Picture(*m, linea.imgTr), "imgTrOF");
  EXPECT_FALSE(ascolto.Sentiti.empty());
  Tick(10);
  EXPECT_EQ(m->Livello(), 2);
  EXPECT_EQ(Altezza(), 15);
}

TEST_P(StirredTank, ANewFlowCountsItsPulsesFromZeroAndGoesOnWithTheHalfLitre) {
  Carica();
  Tick(3);
  Ferma();
  Carica();
  EXPECT_EQ(Caption(*m, linea.EtP), "0");
  Tick(1);
  EXPECT_EQ(Ingresso(*m, linea.Impulso), '0');
  EXPECT_EQ(Caption(*m, linea.EtP), "0");
  EXPECT_EQ(m->Livello(), 2);
  EXPECT_EQ(Altezza(), 20);
  Tick(1);
  EXPECT_EQ(Ingresso(*m, linea.Impulso), '1');
  EXPECT_EQ(Caption(*m, linea.EtP), "1");
  EXPECT_EQ(m->Livello(), 3);
}

TEST_P(StirredTank, DrainsALitreATick) {
  Porta_A(20);
  Scarica();
  orologio.Avanza(linea.Periodo_Scarico - 1);
  EXPECT_EQ(m->Livello(), 20);
  orologio.Avanza(1);
  for (int litri = 19; litri >= 0; --litri) {
    ASSERT_EQ(m->Livello(), litri);
    ASSERT_EQ(Altezza(), 10.0F * static_cast<float>(litri));
    ASSERT_EQ(m->Disegno["shL"].Top(), linea.Fondo - Altezza());
    ASSERT_EQ(Caption(*m, "etcap"), std::to_string(litri));
    ASSERT_EQ(m->ME_AIW0, static_cast<float>(litri) / 16.0F);
    ASSERT_EQ(m->Vasca_Vuota(), litri < linea.Vuoto_Scarico ? -1 : 0) << litri;
    Tick_Scarico(1);
  }
  EXPECT_EQ(m->Livello(), 0);
  EXPECT_EQ(Altezza(), 0);
}

TEST_P(StirredTank, ADrainTickOfAnEmptyTankLeavesItEmpty) {
  Porta_A(3);
  Scarica();
  Tick_Scarico(10);
  EXPECT_EQ(m->Livello(), 0);
  EXPECT_EQ(Altezza(), 0);
  EXPECT_EQ(m->Disegno["shL"].Top(), linea.Fondo);
  EXPECT_EQ(m->Vasca_Vuota(), -1);
}

TEST_P(StirredTank, AHalfLitreOfHeightNeverMakesItNegative) {
  Carica();
  Tick(1);  // one litre counted, half of its height
  Ferma();
  Carica();
  Tick(2);
  Ferma();
  ASSERT_EQ(m->Livello(), 2);
  ASSERT_EQ(Altezza(), 15);
  Scarica();
  Tick_Scarico(5);
  EXPECT_EQ(Altezza(), 0);
  EXPECT_EQ(m->Livello(), 0);
}

TEST_P(StirredTank, AFillTickFindsTheTankEmptyBelowTwoLitres) {
  Carica();
  Tick(1);
  EXPECT_EQ(m->Vasca_Vuota(), -1);
  Tick(1);
  EXPECT_EQ(m->Vasca_Vuota(), -1);
  Tick(1);
  EXPECT_EQ(m->Livello(), 2);
  EXPECT_EQ(m->Vasca_Vuota(), 0);
}

TEST_P(StirredTank, LabelShowsVoltsWithOneOrTwoDecimals) {
  struct {
    int Litri;
    const char* Testo;
  } const righe[] = {{1, "0.06"}, {2, "0.13"},  {8, "0.5"},
                     {16, "1.0"}, {36, "2.25"}, {160, "10.0"}};
  Carica();
  for (int tick = 1; const auto& riga : righe) {
    for (; tick <= 2 * riga.Litri; ++tick) Tick(1);
    EXPECT_EQ(Caption(*m, linea.etAI), riga.Testo) << riga.Litri;
  }
}

INSTANTIATE_TEST_SUITE_P(All, StirredTank, ::testing::ValuesIn(linee),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

// ---- levels -------------------------------------------------------------------------------------

/// What the inputs and lamps say from `Da` to `A` litres.
struct Prova_Livello {
  int Linea;  ///< index of `linee`
  std::vector<int> Ingressi;
  int Da, A;
  const char* Cifre;
  const char* Spie;  ///< imgTL(0) on: '1' is red
};

// The first row of each plant, -1, holds below the empty limit and the next one from there on; the
// limit is not the same for filling and draining.
// clang-format off
const std::vector<Prova_Livello> livelli = {
    {0, {5, 6}, -1, -1, "00", "100"},
    {0, {5, 6},  2, 79, "01", "000"},
    {0, {5, 6}, 80, 160, "10", "010"},
    {0, {5, 6}, 161, 170, "11", "001"},
    {2, {3, 4}, -1, -1, "00", "100"},
    {2, {3, 4},  2, 79, "01", "000"},
    {2, {3, 4}, 80, 160, "10", "010"},
    {2, {3, 4}, 161, 170, "11", "001"},
    {4, {7, 2, 3, 4, 5}, -1, -1, "01111", "10000"},
    {4, {7, 2, 3, 4, 5}, 2, 39, "11111", "00000"},
    {4, {7, 2, 3, 4, 5}, 40, 79, "10111", "01000"},
    {4, {7, 2, 3, 4, 5}, 80, 119, "10011", "01100"},
    {4, {7, 2, 3, 4, 5}, 120, 160, "10001", "01110"},
    {4, {7, 2, 3, 4, 5}, 161, 170, "10000", "01111"},
};
// clang-format on

class TankLevels : public ::testing::TestWithParam<Prova_Livello> {
 protected:
  void Verifica(const char* quando) {
    std::string cifre, spie;
    for (const int ingresso : riga.Ingressi) cifre += Ingresso(*m, ingresso);
    for (int n = 0; riga.Spie[n]; ++n) {
      const Colore colore = m->Disegno("imgTL", n).FillColor;
      spie += colore == 255 ? '1' : colore == 16512 ? '0' : '?';
      EXPECT_EQ(m->Disegno("imgTL", n).Picture(), spie.back() == '1' ? "accesa" : "spenta");
    }
    EXPECT_EQ(cifre, riga.Cifre) << quando << " at " << m->Livello();
    EXPECT_EQ(spie, riga.Spie) << quando << " at " << m->Livello();
    if (m->Disegno.Trova("etTL")) {
      EXPECT_EQ(Caption(*m, "etTL"), riga.Cifre);
    }
  }
  bool Mia(int litri, int vuoto) const {
    if (riga.Da < 0) return litri < vuoto;
    return litri >= (riga.Da == 2 ? vuoto : riga.Da) && litri <= riga.A;
  }

  const Prova_Livello& riga = GetParam();
  const Prova_Linea& linea = linee[static_cast<std::size_t>(riga.Linea)];
  Orologio orologio;
  std::unique_ptr<Serbatoio_Agitato> m = linea.Crea(orologio);
};

TEST_P(TankLevels, AreSaidWhileFillingAndWhileDraining) {
  if (riga.Da < 0) Verifica("new");
  m->Stato_Q(Uscite(linea.Carico));
  int viste = 0;
  for (int tick = 0; tick < 340; ++tick) {
    orologio.Avanza(linea.Periodo);
    if (!Mia(m->Livello(), 2)) continue;
    Verifica("filling");
    ++viste;
  }
  m->Stato_Q(Uscite(linea.Scarico));
  for (int tick = 0; tick < 172; ++tick) {
    orologio.Avanza(linea.Periodo_Scarico);
    if (!Mia(m->Livello(), linea.Vuoto_Scarico)) continue;
    Verifica("draining");
    ++viste;
  }
  EXPECT_GT(viste, 3);
}

INSTANTIATE_TEST_SUITE_P(All, TankLevels, ::testing::ValuesIn(livelli));

}  // namespace

}  // namespace tavorno::prova
