// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/condition.h"

#include "plants/exercises.h"
#include "run_bed.h"

namespace tavorno::prova {
namespace {

class Condition : public Banco_Tracce {
 public:
  void SetUp() override {
    // M0.0: high 10-20 and 40-50; VW0: 5 from 0, 301 from 15, 299 from 42.
    for (const auto& [ms, bit, parola] : std::initializer_list<std::array<int, 3>>{{0, 0, 5},
                                                                                   {10, 1, 5},
                                                                                   {15, 1, 301},
                                                                                   {20, 0, 301},
                                                                                   {40, 1, 301},
                                                                                   {42, 1, 299},
                                                                                   {50, 0, 299}}) {
      Registra("M0.0");
      Registra("VW0");
      plc.Mem_M[0].Bit[0] = static_cast<std::uint8_t>(bit);
      plc.Mem_VW[0] = static_cast<std::int16_t>(parola);
      registrazione.Campiona(ms, plc);
    }
  }
  std::vector<std::int64_t> Avanti(const std::string& testo) {
    std::string errore;
    const auto condizione = Leggi_Condizione(testo, {}, errore);
    EXPECT_TRUE(condizione) << errore;
    std::vector<std::int64_t> trovati;
    for (auto ms = Cerca_Avanti(registrazione, *condizione, -1); ms;
         ms = Cerca_Avanti(registrazione, *condizione, *ms))
      trovati.push_back(*ms);
    std::vector<std::int64_t> indietro;
    for (auto ms = Cerca_Indietro(registrazione, *condizione, 1000); ms;
         ms = Cerca_Indietro(registrazione, *condizione, *ms))
      indietro.insert(indietro.begin(), *ms);
    EXPECT_EQ(indietro, trovati) << testo;
    return trovati;
  }
};

using Momenti = std::vector<std::int64_t>;

TEST_F(Condition, IsFoundWhereItBecomesTrue) {
  EXPECT_EQ(Avanti("M0.0 sale"), (Momenti{10, 40}));
  EXPECT_EQ(Avanti("M0.0 scende"), (Momenti{20, 50}));
  EXPECT_EQ(Avanti("m0.0 CAMBIA"), (Momenti{10, 20, 40, 50}));
  EXPECT_EQ(Avanti("M0.0"), (Momenti{10, 40}));
  EXPECT_EQ(Avanti("M0.0=0"), (Momenti{0, 20, 50}));
  EXPECT_EQ(Avanti("VW0 > 300"), (Momenti{15}));
  EXPECT_EQ(Avanti("VW0>=299"), (Momenti{15}));
  EXPECT_EQ(Avanti("VW0 <= 299"), (Momenti{0, 42}));
  EXPECT_EQ(Avanti("VW0 < 299"), (Momenti{0}));
  EXPECT_EQ(Avanti("VW0 <> 5"), (Momenti{15}));
  EXPECT_EQ(Avanti("VW0 != 301"), (Momenti{0, 42}));
  EXPECT_EQ(Avanti("VW0 == 298,5"), (Momenti{}));
  EXPECT_EQ(Avanti("M0.0 sale e VW0 > 300"), (Momenti{40}));
  EXPECT_EQ(Avanti("VW0 > 300 E M0.0"), (Momenti{15, 40}));
  EXPECT_EQ(Avanti("VW0 sale"), (Momenti{15}));
  EXPECT_EQ(Avanti("M0.1 sale"), (Momenti{})) << "it is not recorded";
}

struct Errata {
  const char* Testo;
  const char* Perche;
};
class Wrong_Condition : public ::testing::TestWithParam<Errata> {};

TEST_P(Wrong_Condition, SaysWhatIsWrong) {
  std::string errore;
  EXPECT_FALSE(Leggi_Condizione(GetParam().Testo, {}, errore));
  EXPECT_THAT(errore, ::testing::HasSubstr(GetParam().Perche));
}
INSTANTIATE_TEST_SUITE_P(All, Wrong_Condition,
                         ::testing::Values(Errata{"", "Manca la condizione"},
                                           Errata{"  ", "Manca la condizione"},
                                           Errata{"pippo sale", "\"pippo\" non è un indirizzo"},
                                           Errata{"VW500 > 1", "\"VW500\" non è un indirizzo"},
                                           Errata{"Q0.1 salta", "\"salta\" non è una prova"},
                                           Errata{"VW0 >", "ci vuole un numero"},
                                           Errata{"VW0 > tre", "ci vuole un numero"},
                                           Errata{"VW0 > 1e999", "ci vuole un numero"},
                                           Errata{"Q0.1 sale Q0.2", "può seguire soltanto \"e\""},
                                           Errata{"Q0.1 sale e", "può seguire soltanto \"e\""},
                                           Errata{"Q0.1 = = 1", "ci vuole un numero"}));

TEST(Condition_Of_A_Plant, KnowsTheSymbols) {
  const Esercizio& primo = Tabella_Esercizi()[0];
  std::string errore;
  const auto condizione = Leggi_Condizione("km sale e SB2 = 0", primo.Righe_IO, errore);
  ASSERT_TRUE(condizione) << errore;
  EXPECT_EQ((*condizione)[0].Chi.Indirizzo, "Q0.0");
  EXPECT_EQ((*condizione)[1].Chi.Indirizzo, "I0.1");
  EXPECT_EQ((*condizione)[1].Numero, 0);
}

TEST(Condition_Of_A_Plant, TheExamplesOfTheGuideCanBeRead) {
  const Esercizio& cancello = Tabella_Esercizi()[9];
  for (const char* testo : {"Q0.1 sale", "KM1 scende", "SQ1 cambia", "VW10 > 300", "T37.Val >= 20",
                            "C5.PV <> 3", "KM1 e KM2", "SB2 sale e SQ1 = 0"}) {
    std::string errore;
    EXPECT_TRUE(Leggi_Condizione(testo, cancello.Righe_IO, errore)) << testo << ": " << errore;
  }
}

}  // namespace
}  // namespace tavorno::prova
