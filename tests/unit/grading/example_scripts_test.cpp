// SPDX-License-Identifier: GPL-3.0-or-later
// The scripts of the exercises hold for the solved projects, and see what is broken in them.
#include <map>

#include "grading_bed.h"

namespace tavorno::prova {

const std::filesystem::path esempi = std::filesystem::path(TAVORNO_SOURCES) / "examples";

struct Esempio {
  int Numero;
  std::string Nome() const { return (Numero < 10 ? "us0" : "us") + std::to_string(Numero); }
};
void PrintTo(const Esempio& esempio, std::ostream* dove) {
  *dove << esempio.Nome();
}

Esito_Progetto Esamina_Esempio(const Esempio& esempio, const std::string& progetto,
                               bool basta_un_errore = false) {
  Verifiche verifiche;
  verifiche.Basta_Un_Errore = basta_un_errore;
  verifiche.Script.push_back(Leggi_Sorgente((esempi / (esempio.Nome() + ".lua")).string()));
  verifiche.Impianto = &Tabella_Esercizi()[static_cast<std::size_t>(esempio.Numero)];
  return Esamina(progetto, verifiche);
}

/// Every exercise that has a script.
std::vector<Esempio> Esempi() {
  std::vector<Esempio> trovati;
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    const Esempio esempio{esercizio.Indice};
    if (std::filesystem::exists(esempi / (esempio.Nome() + ".lua"))) trovati.push_back(esempio);
  }
  return trovati;
}

class SolvedProject : public Banco_Esami, public ::testing::WithParamInterface<Esempio> {};

TEST_P(SolvedProject, PassesEveryCaseWithFullMarks) {
  const Esito_Progetto esito =
      Esamina_Esempio(GetParam(), (esempi / (GetParam().Nome() + ".AWL")).string());
  EXPECT_GE(esito.Casi.size(), 3);
  for (const Caso& caso : esito.Casi) {
    EXPECT_TRUE(caso.Superato()) << caso.Nome << ": " << caso.Rilievi[0].Testo;
    EXPECT_EQ(caso.Punti, caso.Massimo) << caso.Nome;
  }
  EXPECT_GT(esito.Massimo(), 10);
}

INSTANTIATE_TEST_SUITE_P(Examples, SolvedProject, ::testing::ValuesIn(Esempi()));

/// One thing broken in a solved project: the first line that begins like this becomes another, or
/// goes.
struct Mutazione {
  Esempio Di;
  const char* Riga;
  const char* Diventa;  // "" removes the line
};
void PrintTo(const Mutazione& mutazione, std::ostream* dove) {
  *dove << mutazione.Di.Nome() << ": " << mutazione.Riga << " -> " << mutazione.Diventa;
}

class BrokenProject : public Banco_Esami, public ::testing::WithParamInterface<Mutazione> {};

TEST_P(BrokenProject, IsSeenByTheScript) {
  const Mutazione& m = GetParam();
  std::string testo = Leggi_Byte(esempi / (m.Di.Nome() + ".AWL"));
  const std::size_t inizio = testo.find(std::string("\n") + m.Riga);
  ASSERT_NE(inizio, std::string::npos) << "the solved project has no such line";
  std::size_t fine = testo.find_first_of("\r\n", inizio + 1);
  if (*m.Diventa == '\0') fine = testo.find('\n', inizio + 1);
  testo.replace(inizio + (*m.Diventa ? 1 : 0), fine - inizio - (*m.Diventa ? 1 : 0), m.Diventa);
  const Esito_Progetto esito = Esamina_Esempio(m.Di, File("mutato.AWL", testo), true);
  EXPECT_FALSE(esito.Illeggibile);
  EXPECT_FALSE(esito.Superato());
}

const std::vector<Mutazione> contatti = {
    {{0}, "A I0.3", "AN I0.3"},   {{0}, "A I0.0", "AN I0.0"},  {{1}, "A I0.6", "AN I0.6"},
    {{1}, "LDN I0.5", "LD I0.5"}, {{2}, "O I0.2", "ON I0.2"},  {{3}, "A I0.5", "AN I0.5"},
    {{4}, "A I0.2", "AN I0.2"},   {{5}, "A I0.7", "AN I0.7"},  {{6}, "LD I0.6", "LDN I0.6"},
    {{7}, "A I0.7", "AN I0.7"},   {{8}, "A I0.1", "AN I0.1"},  {{9}, "A I0.5", "AN I0.5"},
    {{10}, "A I0.7", "AN I0.7"},  {{11}, "A I0.1", "AN I0.1"}, {{12}, "LDN I0.4", "LD I0.4"},
    {{13}, "AN I0.2", "A I0.2"},  {{14}, "A I1.1", "AN I1.1"}, {{15}, "A I0.5", "AN I0.5"},
    {{16}, "O I0.1", "ON I0.1"},  {{17}, "A I0.1", "AN I0.1"}};
const std::vector<Mutazione> linee_rotte = {
    {{0}, "O I0.2", ""},    {{0}, "A I0.4", ""},    {{0}, "= Q0.1", ""},
    {{1}, "= Q0.1", ""},    {{2}, "A I0.5", ""},    {{3}, "A I1.1", ""},
    {{4}, "S M0.2 1", ""},  {{5}, "S M0.2 1", ""},  {{6}, "S M0.2 1", ""},
    {{7}, "S M0.2 1", ""},  {{8}, "R M0.1 1", ""},  {{8}, "A I0.2", ""},
    {{9}, "S M1.3 1", ""},  {{10}, "AN M0.0", ""},  {{11}, "AN M0.0", ""},
    {{12}, "ON I0.7", ""},  {{13}, "S M0.1 1", ""}, {{14}, "S M0.1 1", ""},
    {{15}, "S M0.2 1", ""}, {{16}, "S M0.0 1", ""}, {{17}, "-I AIW0 VW0", ""}};
const std::vector<Mutazione> tempi = {
    {{1}, "TON T37 +20", "TON T37 +2"},    {{2}, "TON T37 +50", "TON T37 +100"},
    {{3}, "TON T37 +50", "TON T37 +10"},   {{4}, "TON T37 +10", "TON T37 +30"},
    {{5}, "TON T37 +100", "TON T37 +10"},  {{6}, "TON T37 +150", "TON T37 +15"},
    {{7}, "TON T37 +300", "TON T37 +30"},  {{9}, "TON T37 +50", "TON T37 +5"},
    {{10}, "TON T37 +100", "TON T37 +10"}, {{11}, "TON T39 +200", "TON T39 +5"},
    {{12}, "CTU C1 +40", "CTU C1 +60"},    {{13}, "TON T38 +50", "TON T38 +10"},
    {{14}, "TON T38 +30", "TON T38 +3"},   {{15}, "TON T37 +150", "TON T37 +15"},
    {{16}, "TON T40 +80", "TON T40 +8"},   {{17}, "MOVW +25600 AQW0", "MOVW +3200 AQW0"}};

INSTANTIATE_TEST_SUITE_P(Contacts, BrokenProject, ::testing::ValuesIn(contatti));
INSTANTIATE_TEST_SUITE_P(Lines, BrokenProject, ::testing::ValuesIn(linee_rotte));
INSTANTIATE_TEST_SUITE_P(Times, BrokenProject, ::testing::ValuesIn(tempi));

TEST(Examples, EachExerciseHasAScriptAndThreeMutants) {
  std::map<int, int> mutanti;
  for (const auto* lista : {&contatti, &linee_rotte, &tempi})
    for (const Mutazione& mutazione : *lista) ++mutanti[mutazione.Di.Numero];
  ASSERT_EQ(Esempi().size(), Tabella_Esercizi().size());
  for (const Esempio& esempio : Esempi()) EXPECT_GE(mutanti[esempio.Numero], 3) << esempio.Nome();
}

}  // namespace tavorno::prova
