// SPDX-License-Identifier: GPL-3.0-or-later
// Flow rates of the stirred tanks, the sliders of their hosts, and what the CPU makes of their
// volts.
#include <gmock/gmock.h>

#include "link_bed.h"
#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

struct Prova_Velocita {
  const char* Nome;
  std::unique_ptr<Serbatoio_Agitato> (*Crea)(Orologio&);
  int Proprieta;   ///< its value at first
  int Intervallo;  ///< of its timer at first
  std::vector<int> Prima, Uscite;
};

// clang-format off
const std::vector<Prova_Velocita> velocita = {
    {"ME_Speed1", Crea<ctr_Misc>, 300, 300, {}, {1, 6}},
    {"ME_Speed2", Crea<ctr_Misc>, 300, 300, {}, {2, 7}},
    {"ME_SpeedS", Crea<ctr_Misc>, 100, 300, {1, 6}, {3, 8}},
    {"ME_SpedP1", Crea<ctr_Mis2>, 200, 200, {}, {1, 2}},
    {"ME_SpedP2", Crea<ctr_Mis2>, 200, 200, {}, {3, 4}},
    {"ME_SpedS",  Crea<ctr_Mis2>, 100, 100, {1, 2}, {5}},
    {"ME_SpedP",  Crea<ctr_Mis4>, 300, 300, {}, {2, 6}},
    {"ME_SpedS",  Crea<ctr_Mis4>, 200, 200, {2, 6}, {7}},
};
// clang-format on

class FlowRate : public ::testing::TestWithParam<Prova_Velocita> {
 protected:
  /// Milliseconds until the level's picture moves, from now on.
  int Attesa() {
    const float altezza = m->Disegno["shL"].Height;
    for (int ms = 1; ms <= 1000; ++ms) {
      orologio.Avanza(1);
      if (m->Disegno["shL"].Height != altezza) return ms;
    }
    return 0;
  }
  void Prepara() {
    m->Stato_Q(Uscite(riga.Prima));
    orologio.Avanza(12000);
    m->Stato_Q(Uscite(riga.Uscite));
  }

  const Prova_Velocita& riga = GetParam();
  Orologio orologio;
  std::unique_ptr<Serbatoio_Agitato> m = riga.Crea(orologio);
};

TEST_P(FlowRate, IsTheIntervalOfItsTimer) {
  Prepara();
  EXPECT_EQ(m->Velocita(riga.Nome), riga.Proprieta);
  EXPECT_EQ(Attesa(), riga.Intervallo);
  EXPECT_EQ(Attesa(), riga.Intervallo);
  for (const int ms : {600, 400, 100}) {
    ASSERT_TRUE(m->Regola(riga.Nome, ms));
    EXPECT_EQ(m->Velocita(riga.Nome), ms);
    EXPECT_EQ(Attesa(), ms);
    EXPECT_EQ(Attesa(), ms);
  }
}

TEST_P(FlowRate, TheFirstWriteCountsEvenWithTheValueOfTheProperty) {
  m->Regola(riga.Nome, riga.Proprieta);
  Prepara();
  EXPECT_EQ(Attesa(), riga.Proprieta);
}

TEST_P(FlowRate, TheFirstWriteCountsEvenWithTheIntervalInForce) {
  m->Regola(riga.Nome, riga.Intervallo);
  EXPECT_EQ(m->Velocita(riga.Nome), riga.Intervallo);
  Prepara();
  EXPECT_EQ(Attesa(), riga.Intervallo);
}

INSTANTIATE_TEST_SUITE_P(All, FlowRate, ::testing::ValuesIn(velocita));

// ---- with the host's sliders and the CPU's analog inputs ----------------------------------------

struct MixerHost : Banco_Impianto {
  int Intervallo(const std::vector<int>& uscite) {
    Macchina().Stato_Q(prova::Uscite(uscite));
    const auto altezza = [this] { return Macchina().Disegno["shL"].Height(); };
    const float prima = altezza();
    int ms = 0;
    while (altezza() == prima && ms < 1000) {
      orologio.Avanza(1);
      ++ms;
    }
    Macchina().Stato_Q(prova::Uscite({}));
    return ms;
  }
};

TEST_F(MixerHost, US10RunsAt300MsUntilASliderMovesAndAt400Then) {
  Apri(10);
  EXPECT_EQ(Intervallo({1, 6}), 300);
  EXPECT_EQ(Intervallo({2, 7}), 300);
  EXPECT_EQ(Intervallo({3, 8}), 300);
  filo->Muovi(0, 4);  // the handler writes all three
  EXPECT_EQ(Intervallo({1, 6}), 300);
  EXPECT_EQ(Intervallo({2, 7}), 400);
  EXPECT_EQ(Intervallo({2, 7}), 400);
  EXPECT_EQ(Intervallo({3, 8}), 400);
}

TEST_F(MixerHost, US10DrainsAt100MsWithItsSliderAtTheTop) {
  Apri(10);
  EXPECT_EQ(Intervallo({1, 6}), 300);
  EXPECT_EQ(Intervallo({1, 6}), 300);
  filo->Muovi(2, 6);
  EXPECT_EQ(Intervallo({3, 8}), 100);
}

TEST_F(MixerHost, US12SlidersStandWhereItsTimersAre) {
  Apri(12);
  filo->Muovi(0, 5);
  EXPECT_EQ(Intervallo({1, 2}), 200);
  EXPECT_EQ(Intervallo({3, 4}), 200);
  EXPECT_EQ(Intervallo({1, 2}), 200);
  EXPECT_EQ(Intervallo({5}), 100);
}

TEST_F(MixerHost, US13SlidersTellTensOfMilliseconds) {
  Apri(13);
  EXPECT_EQ(Intervallo({1, 6}), 300);
  filo->Muovi(0, 50);
  EXPECT_EQ(Intervallo({1, 6}), 100);
  filo->Muovi(0, 10);
  EXPECT_EQ(Intervallo({1, 6}), 500);
  EXPECT_EQ(Intervallo({7}), 400);
}

struct Prova_Parola {
  int Esercizio;
  std::vector<int> Uscite;
  int Periodo;
};

class MixerWord : public MixerHost, public ::testing::WithParamInterface<Prova_Parola> {};

TEST_P(MixerWord, IsTwoHundredPerLitre) {
  Apri(GetParam().Esercizio);
  plc.timIO.Enabled(true);
  Macchina().Stato_Q(prova::Uscite(GetParam().Uscite));
  orologio.Avanza(40);
  for (int litri = 1; litri <= 170; ++litri) {
    orologio.Avanza(2 * GetParam().Periodo);
    ASSERT_EQ(plc.Volt_AI[0], static_cast<float>(litri) / 16.0F);
    ASSERT_EQ(plc.Mem_AIW[0], 200 * litri);
  }
  EXPECT_GT(plc.Volt_AI[0], 10.0F);
  EXPECT_GT(plc.Mem_AIW[0], 32000);
}

INSTANTIATE_TEST_SUITE_P(All, MixerWord,
                         ::testing::Values(Prova_Parola{10, {1, 6}, 300},
                                           Prova_Parola{12, {3, 4}, 200},
                                           Prova_Parola{13, {3, 6}, 300}));

// A tenth of a volt is no exact float, and the CPU cuts: some words are one below.
void Verifica_Gradi(int parola, float volt, int gradi) {
  ASSERT_EQ(volt, static_cast<float>(gradi) / 10.0F);
  ASSERT_LE(parola, 320 * gradi);
  ASSERT_GE(parola, 320 * gradi - 1);
}

TEST_F(MixerHost, TemperatureAndSetPointWordsAre320PerDegree) {
  Apri(10);
  plc.timIO.Enabled(true);
  for (int set = 20; set <= 80; ++set) {
    Macchina().Regola("UpDown1", set);
    orologio.Avanza(1100);
    Verifica_Gradi(plc.Mem_AIW[4], plc.Volt_AI[2], set);
  }
  ASSERT_EQ(plc.Mem_AIW[2], 320 * 20);
  Macchina().Stato_Q(prova::Uscite({4}));
  for (int gradi = 21; gradi <= 100; ++gradi) {
    orologio.Avanza(6000);
    Verifica_Gradi(plc.Mem_AIW[2], plc.Volt_AI[1], gradi);
  }
}

TEST_F(MixerHost, ASetPointTurnedTwiceWithinASecondIsHeardWithTheNextOne) {
  Apri(10);
  orologio.Avanza(1000);
  Macchina().Regola("UpDown1", 51);
  EXPECT_EQ(plc.Volt_AI[2], 5.1F);
  Macchina().Regola("UpDown1", 52);
  EXPECT_EQ(plc.Volt_AI[2], 5.1F);  // the same message again
  orologio.Avanza(1000);
  EXPECT_EQ(plc.Volt_AI[2], 5.2F);
}

}  // namespace

}  // namespace tavorno::prova
