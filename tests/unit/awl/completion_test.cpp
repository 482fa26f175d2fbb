// SPDX-License-Identifier: GPL-3.0-or-later
// What is offered at the caret of a line, and what is told of it.
#include "awl/completion.h"

#include <gtest/gtest.h>

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

const Simboli simboli = {{"AIW0", {"B1", "Livello"}},
                         {"I0.0", {"SB1", "Pulsante (NC) Stop"}},
                         {"I0.1", {"SB2", "Pulsante (NO) Start"}},
                         {"Q0.0", {"KM", ""}}};

}  // namespace

/// The caret stands at "|".
struct Caso_Offerta {
  std::string nome;
  std::string linea;
  Lista attese;
  bool anche_vuota = false;
};

class Offer : public testing::TestWithParam<Caso_Offerta> {};

TEST_P(Offer, IsWhatMayStandThere) {
  std::string linea = GetParam().linea;
  const std::size_t colonna = linea.find('|');
  linea.erase(colonna, 1);
  EXPECT_EQ(Proponi(linea, colonna, simboli, GetParam().anche_vuota).Testi, GetParam().attese);
}

const std::string i00 = "I0.0  SB1  Pulsante (NC) Stop";
const std::string i01 = "I0.1  SB2  Pulsante (NO) Start";
const std::string q00 = "Q0.0  KM";
const std::string aiw = "AIW0  B1  Livello";

INSTANTIATE_TEST_SUITE_P(
    Places, Offer,
    testing::Values(
        Caso_Offerta{"Mnemonic", "mov|", {"MOVB", "MOVD", "MOVW"}},
        Caso_Offerta{"StopsTheCpu", "XOR|", {"XORD  (ferma la CPU)"}},
        Caso_Offerta{"Contact", "LD i|", {i00, i01}}, Caso_Offerta{"Tab", "LD\ti0.1|", {}},
        Caso_Offerta{"Unfinished", "LD\tI0.|", {i00, i01}}, Caso_Offerta{"Whole", "LD I0.0|", {}},
        Caso_Offerta{"Unknown", "LD I7|", {}}, Caso_Offerta{"NotAsked", "LD |", {}},
        Caso_Offerta{"Asked", "LD |", {i00, i01, q00}, true},
        Caso_Offerta{"AskedForAnOutput", "=  |", {q00}, true},
        Caso_Offerta{"AnOutputIsNoInput", "= I|", {}}, Caso_Offerta{"Word", "MOVW A|", {aiw}},
        Caso_Offerta{"NoBitInAWord", "MOVW |", {aiw}, true},
        Caso_Offerta{"NotWrittenTo", "MOVW VW0, A|", {}},
        Caso_Offerta{"SecondOperand", "LDW>= VW0, A|", {aiw}},
        Caso_Offerta{"ThirdOperand", "MOVW VW0, VW2, A|", {}},
        Caso_Offerta{"InsideAWord", "LD I|0.0", {}},
        Caso_Offerta{"BeforeAComment", "LD I|//x", {i00, i01}},
        Caso_Offerta{"InAComment", "LD I0.0 //I|", {}}, Caso_Offerta{"CommentLine", "//LD I|", {}},
        Caso_Offerta{"Label", "JMP |", {}, true}, Caso_Offerta{"NoInstruction", "XYZ I|", {}},
        Caso_Offerta{"Network", "NETWORK I|", {}}, Caso_Offerta{"Empty", "|", {}, true}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Offers, TellWhereTheWordBeginsAndWhatToWrite) {
  const Proposte proposte = Proponi("LDW>=  VW0, a", 13, simboli, false);
  EXPECT_EQ(proposte.Inizio, 12U);
  ASSERT_EQ(proposte.Testi.size(), 1U);
  EXPECT_EQ(Proposte::Da_Scrivere(proposte.Testi.front()), "AIW0");
  EXPECT_EQ(Proposte::Da_Scrivere("NOT"), "NOT");
}

TEST(Symbol, IsThatOfTheOperandAtTheColumn) {
  const std::string linea = "MOVW aiw0, VW0 //I0.0";
  EXPECT_EQ(Simbolo_In(linea, 5, simboli), aiw);
  EXPECT_EQ(Simbolo_In(linea, 9, simboli), aiw);
  EXPECT_EQ(Simbolo_In(linea, 3, simboli), "");
  EXPECT_EQ(Simbolo_In(linea, 12, simboli), "");
  EXPECT_EQ(Simbolo_In(linea, 18, simboli), "");
  EXPECT_EQ(Simbolo_In("= q00.00", 5, simboli), q00);
  EXPECT_EQ(Simbolo_In("= q0.0", 5, {}), "");
}

TEST(Offers, WarnOfWhatTheHelpSaysThatItStopsTheCpu) {
  int ferme = 0;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == Gruppo::Non_Supportata) continue;
    const bool detto = istruzione.Aiuto.find("il PLC si ferma") != std::string::npos;
    EXPECT_EQ(detto, Ferma_La_CPU(istruzione)) << istruzione.Nome;
    ferme += detto ? 1 : 0;
  }
  EXPECT_GT(ferme, 0);
}

TEST(Note, NamesTheOperandsOfALineAsThePlantDoes) {
  const Simboli impianto = {
      {"I0.0", {"SB1", "Pulsante (NO)"}}, {"AIW0", {"B1", "Livello"}}, {"AIW2", {"B2", ""}}};
  EXPECT_EQ(Nota_Simboli("ld i0.00 //marcia", impianto), "SB1  Pulsante (NO)");
  EXPECT_EQ(Nota_Simboli("AW>= AIW0, AIW2", impianto), "AIW0 B1, AIW2 B2");
  EXPECT_EQ(Nota_Simboli("AW= AIW2, AIW2", impianto), "B2");
  EXPECT_EQ(Nota_Simboli("LD I0.1", impianto), "");
  EXPECT_EQ(Nota_Simboli("//LD I0.0", impianto), "");
  EXPECT_EQ(Nota_Simboli("NETWORK 1 I0.0", impianto), "");
  EXPECT_EQ(Nota_Simboli("", impianto), "");
  EXPECT_EQ(Nota_Simboli("LD I0.0", {}), "");
}

}  // namespace tavorno::prova
