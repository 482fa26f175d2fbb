// SPDX-License-Identifier: GPL-3.0-or-later
// Waves and scans, held against lists that are searched from end to end.
#include "trace/wave.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace tavorno {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The value at each millisecond.
struct Modello {
  std::vector<double> Valori;
  std::int64_t Inizio = 0;

  std::vector<std::int64_t> Fronti() const {
    std::vector<std::int64_t> fronti;
    for (std::size_t n = 1; n < Valori.size(); ++n) {
      if (Valori[n] != Valori[n - 1]) fronti.push_back(Inizio + static_cast<std::int64_t>(n));
    }
    return fronti;
  }
};

struct Caso_Onda {
  unsigned Seme;
  int Lunga;   // ms
  int Quiete;  // a change in so many ms
  int Valori;
};

class Random_Wave : public ::testing::TestWithParam<Caso_Onda> {
 public:
  void SetUp() override {
    std::mt19937 caso(GetParam().Seme);
    const auto fino_a = [&](int n) { return static_cast<int>(caso() % static_cast<unsigned>(n)); };
    modello.Inizio = 100;
    double valore = 0;
    for (int n = 0; n < GetParam().Lunga; ++n) {
      if (fino_a(GetParam().Quiete) == 0) valore = fino_a(GetParam().Valori) - 1;
      modello.Valori.push_back(valore);
      onda.Aggiungi(100 + n, valore);
    }
  }
  Onda onda;
  Modello modello;
};

TEST_P(Random_Wave, HasTheValueOfEachMoment) {
  EXPECT_FALSE(onda.A(99));
  for (std::size_t n = 0; n < modello.Valori.size(); ++n)
    ASSERT_EQ(onda.A(100 + static_cast<std::int64_t>(n)), modello.Valori[n]) << n;
  EXPECT_EQ(onda.A(1'000'000), modello.Valori.back());
}

TEST_P(Random_Wave, FindsTheEdgesInBothDirections) {
  const auto fronti = modello.Fronti();
  EXPECT_EQ(onda.Cambi(), fronti.size() + 1);
  const auto fine = 100 + static_cast<std::int64_t>(modello.Valori.size());
  for (std::int64_t ms = 98; ms < fine; ++ms) {
    const auto dopo = std::ranges::upper_bound(fronti, ms);
    const auto qui = std::ranges::lower_bound(fronti, ms);
    ASSERT_EQ(onda.Dopo(ms), dopo == fronti.end() ? std::nullopt : std::optional(*dopo)) << ms;
    ASSERT_EQ(onda.Prima(ms), qui == fronti.begin() ? std::nullopt : std::optional(*(qui - 1)))
        << ms;
  }
}

TEST_P(Random_Wave, KnowsTheExtremesOfEachStretch) {
  std::mt19937 caso(GetParam().Seme + 1);
  const auto quanti = static_cast<std::int64_t>(modello.Valori.size());
  const auto fronti = modello.Fronti();
  for (int volta = 0; volta < 2000; ++volta) {
    const std::int64_t da = static_cast<std::int64_t>(caso()) % quanti;
    const std::int64_t a = da + 1 + static_cast<std::int64_t>(caso()) % (quanti - da);
    const auto tratto = onda.Fra(100 + da, 100 + a);
    ASSERT_TRUE(tratto);
    const auto [minimo, massimo] =
        std::minmax_element(modello.Valori.begin() + da, modello.Valori.begin() + a);
    ASSERT_EQ(tratto->Minimo, *minimo);
    ASSERT_EQ(tratto->Massimo, *massimo);
    ASSERT_EQ(tratto->Primo, modello.Valori[static_cast<std::size_t>(da)]);
    ASSERT_EQ(tratto->Ultimo, modello.Valori[static_cast<std::size_t>(a - 1)]);
    const auto dentro = std::ranges::count_if(
        fronti, [&](std::int64_t ms) { return ms > 100 + da && ms < 100 + a; });
    ASSERT_EQ(tratto->Fronti, static_cast<std::size_t>(dentro));
  }
}

TEST_P(Random_Wave, CutAtAnyMomentIsTheWaveUpToThere) {
  const auto mezzo = static_cast<std::int64_t>(modello.Valori.size() / 2);
  onda.Taglia_Dopo(100 + mezzo);
  for (std::int64_t n = 0; n <= mezzo; ++n)
    ASSERT_EQ(onda.A(100 + n), modello.Valori[static_cast<std::size_t>(n)]);
  EXPECT_FALSE(onda.Dopo(100 + mezzo));
  onda.Aggiungi(100 + mezzo + 1, 1000);
  EXPECT_EQ(onda.Estremi().second, 1000);
  onda.Dimentica_Prima(100 + mezzo / 2);
  EXPECT_FALSE(onda.A(99));
  for (std::int64_t n = mezzo / 2; n <= mezzo; ++n)
    ASSERT_EQ(onda.A(100 + n), modello.Valori[static_cast<std::size_t>(n)]);
  EXPECT_EQ(onda.Fra(100 + mezzo, 100 + mezzo + 2)->Massimo, 1000);
}

INSTANTIATE_TEST_SUITE_P(All, Random_Wave,
                         ::testing::Values(Caso_Onda{1, 40, 3, 2}, Caso_Onda{2, 3000, 1, 2},
                                           Caso_Onda{3, 5000, 2, 400}, Caso_Onda{4, 9000, 60, 9},
                                           Caso_Onda{5, 20, 100, 2}));

TEST(Wave, IsEmptyAtFirst) {
  const Onda onda;
  EXPECT_FALSE(onda.A(0));
  EXPECT_FALSE(onda.Dopo(0));
  EXPECT_FALSE(onda.Prima(10));
  EXPECT_FALSE(onda.Vicino(0));
  EXPECT_FALSE(onda.Fra(0, 100));
  EXPECT_EQ(onda.Estremi(), (std::pair{0.0, 0.0}));
}

TEST(Wave, ASecondValueAtTheSameTimeReplacesTheFirst) {
  Onda onda;
  onda.Aggiungi(0, 1);
  onda.Aggiungi(5, 2);
  onda.Aggiungi(5, 9);
  EXPECT_EQ(onda.Cambi(), 2U);
  EXPECT_EQ(onda.A(5), 9);
  EXPECT_EQ(onda.Estremi(), (std::pair{1.0, 9.0}));
  onda.Aggiungi(5, 1);
  EXPECT_EQ(onda.Cambi(), 1U) << "nothing happened at that time";
}

TEST(Wave, TheNearestEdgeIsFoundOnEitherSide) {
  Onda onda;
  for (const std::int64_t ms : {0, 10, 30}) onda.Aggiungi(ms, static_cast<double>(ms));
  EXPECT_EQ(onda.Vicino(0), 10);
  EXPECT_EQ(onda.Vicino(10), 10);
  EXPECT_EQ(onda.Vicino(19), 10);
  EXPECT_EQ(onda.Vicino(21), 30);
  EXPECT_EQ(onda.Vicino(500), 30);
}

TEST(Wave, StretchesBeforeTheBeginningAreEmpty) {
  Onda onda;
  onda.Aggiungi(100, 3);
  EXPECT_FALSE(onda.Fra(0, 100));
  EXPECT_EQ(onda.Fra(0, 101)->Primo, 3);
  EXPECT_EQ(onda.Fra(0, 101)->Fronti, 0U);
}

TEST(Scans, AreThoseThatWereTold) {
  Scansioni scansioni;
  for (const std::int64_t ms : {0, 1, 2, 3, 10, 12, 14, 15}) scansioni.Aggiungi(ms, 0);
  EXPECT_THAT(scansioni.Fra(0, 100, 50), ElementsAre(0, 1, 2, 3, 10, 12, 14, 15));
  EXPECT_THAT(scansioni.Fra(2, 12, 50), ElementsAre(2, 3, 10, 12));
  EXPECT_THAT(scansioni.Fra(4, 9, 50), IsEmpty());
  EXPECT_THAT(scansioni.Fra(0, 100, 7), IsEmpty()) << "too many to be told apart";
  scansioni.Taglia_Dopo(11);
  EXPECT_THAT(scansioni.Fra(0, 100, 50), ElementsAre(0, 1, 2, 3, 10));
  scansioni.Aggiungi(20, 0);
  EXPECT_THAT(scansioni.Fra(3, 100, 50), ElementsAre(3, 10, 20));
}

TEST(Scans, ThoseThatWereOnlyCountedAreThereToo) {
  Scansioni scansioni;
  scansioni.Aggiungi(0, 1);
  scansioni.Aggiungi(1, 2);
  scansioni.Aggiungi(7, 8);
  EXPECT_THAT(scansioni.Fra(0, 100, 50), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
  scansioni.Aggiungi(12, 16);  // more of them than milliseconds
  EXPECT_THAT(scansioni.Fra(7, 100, 50), ElementsAre(7, 8, 9, 10, 11, 12));
  scansioni.Taglia_Dopo(7);
  scansioni.Aggiungi(9, 1);  // a new run
  EXPECT_THAT(scansioni.Fra(7, 100, 50), ElementsAre(7, 9));
}

}  // namespace
}  // namespace tavorno
