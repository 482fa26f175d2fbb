// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "list_bed.h"

namespace tavorno::prova {

struct Caso_Lista {
  const char* Nome;
  const char* Lista;
};

void PrintTo(const Caso_Lista& caso, std::ostream* out) {
  *out << caso.Nome;
}

// ---- what is written as a ladder would be written comes back line for line ----------------------

class Canoniche : public testing::TestWithParam<Caso_Lista> {};

TEST_P(Canoniche, ComeBackLineForLine) {
  EXPECT_EQ(Andata_E_Ritorno(GetParam().Lista), GetParam().Lista);
}

INSTANTIATE_TEST_SUITE_P(
    Reti, Canoniche,
    testing::Values(
        Caso_Lista{"series", "LD I0.0\nA I0.1\nAN I0.2\n= Q0.0\n"},
        Caso_Lista{"parallel", "LD I0.0\nO I0.1\nON I0.2\n= Q0.0\n"},
        Caso_Lista{"self-holding", "LD I0.0\nO Q0.0\nA I0.1\n= Q0.0\n"},
        Caso_Lista{"branches in parallel",
                   "LD I0.0\nA I0.1\nLD I0.2\nA I0.3\nOLD\nLDN I0.4\nA I0.5\nOLD\n= Q0.0\n"},
        Caso_Lista{"blocks in series", "LD I0.0\nO I0.1\nLD I0.2\nO I0.3\nALD\n= Q0.0\n"},
        Caso_Lista{"block in a branch", "LD I0.0\nLD I0.1\nLD I0.2\nO I0.3\nALD\nOLD\n= Q0.0\n"},
        Caso_Lista{"coils side by side", "LD I0.0\n= Q0.0\nS M0.0 1\nR M0.1 2\n"},
        Caso_Lista{"a coil half way", "LD I0.0\n= Q0.0\nA I0.1\n= Q0.1\n"},
        Caso_Lista{"branches",
                   "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLRD\nA I0.2\n= Q0.1\nLPP\nA I0.3\n= Q0.2\n"},
        Caso_Lista{"two branches", "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\nAN I0.1\n= Q0.1\n"},
        Caso_Lista{"a coil behind a branch", "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\n= Q0.1\n"},
        Caso_Lista{"branches of a branch",
                   "LD I0.0\nLPS\nA I0.1\nLPS\nA I0.2\n= Q0.0\nLPP\nA I0.3\n= Q0.1\nLPP\nA I0.4\n"
                   "= Q0.2\n"},
        Caso_Lista{"a block behind a branch",
                   "LD I0.0\nLPS\nLD I0.1\nO I0.2\nALD\n= Q0.0\nLPP\nNOT\n= Q0.1\n"},
        Caso_Lista{"edges and NOT", "LD I0.0\nEU\nS M0.0 1\nNOT\nED\nR M0.0 1\n"},
        Caso_Lista{"an edge in a branch", "LD I0.0\nEU\nLD I0.1\nED\nOLD\nO T37\n= Q0.0\n"},
        Caso_Lista{"immediate", "LDI I0.0\nANI I0.1\nOI I0.2\n=I Q0.0\nSI Q0.1 1\nRI Q0.2 1\n"},
        Caso_Lista{"comparisons", "LDB= VB0 +1\nAW> VW0 +2\nOD<> VD0 VD1\n= Q0.0\n"},
        Caso_Lista{"timer", "LD I0.0\nTON T37 +10\nA T37\n= Q0.0\n"},
        Caso_Lista{"counter", "LD I0.0\nLD I0.1\nCTU C1 +3\n"},
        Caso_Lista{"counter with blocks",
                   "LD I0.0\nEU\nLD I0.1\nO I0.2\nLDN I0.3\nO SM0.1\nCTUD C1 +3\nLD C1\n= Q0.0\n"},
        Caso_Lista{"rungs one below the other", "LD I0.0\n= Q0.0\nLD I0.1\n= Q0.1\n"},
        Caso_Lista{"step", "LSCR S0.0\nLD SM0.0\n= Q0.0\nTON T37 +5\nA T37\nS S0.1 1\nSCRE\n"},
        Caso_Lista{"jump and label", "LD I0.0\nJMP 1\nLD I0.1\n= Q0.0\nLBL 1\n"},
        Caso_Lista{"call", "LD I0.0\nCALL LAVORO\n"},
        Caso_Lista{"moves", "LD SM0.0\nMOVW VW0 VW1\n+I +1 VW1\nINCB VB0\n"}));

// ---- other ways of writing the same come back in canonical form ---------------------------------

struct Caso_Forma {
  const char* Nome;
  const char* Lista;
  const char* Canonica;
};

void PrintTo(const Caso_Forma& caso, std::ostream* out) {
  *out << caso.Nome;
}

class Altre_Forme : public testing::TestWithParam<Caso_Forma> {};

TEST_P(Altre_Forme, AreWrittenInOneWay) {
  EXPECT_EQ(Andata_E_Ritorno(GetParam().Lista), GetParam().Canonica);
}

INSTANTIATE_TEST_SUITE_P(
    Reti, Altre_Forme,
    testing::Values(Caso_Forma{"a block of contacts in series",
                               "LD I0.0\nLD I0.1\nA I0.2\nALD\n= Q0.0\n",
                               "LD I0.0\nA I0.1\nA I0.2\n= Q0.0\n"},
                    Caso_Forma{"a single branch by OLD", "LD I0.0\nLD I0.1\nOLD\n= Q0.0\n",
                               "LD I0.0\nO I0.1\n= Q0.0\n"},
                    Caso_Forma{"a kept value that nobody needs",
                               "LD I0.0\nLPS\n= Q0.0\nLPP\n= Q0.1\n", "LD I0.0\n= Q0.0\n= Q0.1\n"},
                    Caso_Forma{"a value that is kept for ever", "LD I0.0\nLPS\nA I0.1\n= Q0.0\n",
                               "LD I0.0\nA I0.1\n= Q0.0\n"}));

// ---- what a ladder cannot say stays a list, with the reason -------------------------------------

struct Caso_Rifiuto {
  const char* Nome;
  const char* Lista;
  int Riga;
  const char* Parole;  ///< part of the reason
};

void PrintTo(const Caso_Rifiuto& caso, std::ostream* out) {
  *out << caso.Nome;
}

class Non_Disegnabili : public testing::TestWithParam<Caso_Rifiuto> {};

TEST_P(Non_Disegnabili, SayWhereAndWhy) {
  const auto disegnata = Disegna(Rete(GetParam().Lista));
  const auto* motivo = std::get_if<Non_Disegnabile>(&disegnata);
  ASSERT_TRUE(motivo);
  EXPECT_EQ(motivo->Riga, GetParam().Riga);
  EXPECT_NE(motivo->Motivo.find(GetParam().Parole), std::string::npos) << motivo->Motivo;
}

INSTANTIATE_TEST_SUITE_P(
    Reti, Non_Disegnabili,
    testing::Values(
        Caso_Rifiuto{"no LD", "= Q0.0\n", 0, "non ha caricato"},
        Caso_Rifiuto{"a counter with one wire", "LD I0.0\nCTU C1 +3\n", 1, "non ha caricato"},
        Caso_Rifiuto{"no output", "LD I0.0\nA I0.1\n", 0, "non comanda nulla"},
        Caso_Rifiuto{"no output behind a branch", "LD I0.0\n= Q0.0\nA I0.1\n", 2,
                     "senza comandare"},
        Caso_Rifiuto{"parallel to a point in use", "LD I0.0\n= Q0.0\nO I0.1\n= Q0.1\n", 2,
                     "in parallelo a un punto"},
        Caso_Rifiuto{"a NOT inside a block", "LD I0.0\nLD I0.1\nNOT\nALD\n= Q0.0\n", 3,
                     "NOT, EU o ED"},
        Caso_Rifiuto{"a block in use", "LD I0.0\nLD I0.1\n= Q0.0\nALD\n= Q0.1\n", 3,
                     "unisce un blocco"},
        Caso_Rifiuto{"behind a call", "LD I0.0\nCALL P\n= Q0.0\n", 2, "prima di una chiamata"},
        Caso_Rifiuto{"across a label", "LD I0.0\nLBL 1\n= Q0.0\n", 2, "un'etichetta"},
        Caso_Rifiuto{"behind a counter", "LD I0.0\nLD I0.1\nCTU C1 +3\n= Q0.0\n", 3,
                     "o un contatore"},
        Caso_Rifiuto{"back to an earlier point", "LD I0.0\n= Q0.0\nLD I0.1\n= Q0.1\nLPP\n= Q0.2\n",
                     5, "torna a un punto"},
        Caso_Rifiuto{"a wire that does more than count", "LD I0.0\n= Q0.0\nLD I0.1\nCTU C1 +3\n", 3,
                     "comanda anche altro"},
        // Nine values: the first has fallen out when the last ALD wants it.
        Caso_Rifiuto{"too many values",
                     "LD I0.0\nLD I0.1\nO I1.1\nLD I0.2\nO I1.2\nLD I0.3\nO I1.3\nLD I0.4\nO I1.4\n"
                     "LD I0.5\nO I1.5\nLD I0.6\nO I1.6\nLD I0.7\nO I1.7\nLD M0.0\nO M0.1\n"
                     "ALD\nALD\nALD\nALD\nALD\nALD\nALD\nALD\n= Q0.0\n",
                     24, "non ha caricato"}));

TEST(Disegna, TellsThatAnEarlierNetworkIsNeeded) {
  const auto disegnata = Disegna(Rete("LD I0.0\nOLD\n= Q0.0\n"));
  ASSERT_TRUE(std::holds_alternative<Non_Disegnabile>(disegnata));
  EXPECT_TRUE(std::get<Non_Disegnabile>(disegnata).Usa_Pila_Precedente);
}

TEST(Disegna, AnEmptyNetworkIsAnEmptyDiagram) {
  const auto disegnata = Disegna({});
  ASSERT_TRUE(std::holds_alternative<Diagramma>(disegnata));
  EXPECT_TRUE(std::get<Diagramma>(disegnata).empty());
}

}  // namespace tavorno::prova
