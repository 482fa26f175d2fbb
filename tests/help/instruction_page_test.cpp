// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/instruction_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "HTML/generator/html_text.h"
#include "HTML/generator/instruction_notes.h"
#include "HTML/generator/operand_words.h"
#include "help_page.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

const std::string& Page() {
  static const std::string page = ReadFile(HelpFolder() / "SET_IST.htm");
  return page;
}

class Mnemonic : public ::testing::TestWithParam<Istruzione> {
 protected:
  std::string anchor = "<b id=\"" + Ancora_Di(GetParam().Nome) + "\">";
  std::size_t row = Page().find(anchor);
};

TEST_P(Mnemonic, HasARowWithItsHelp) {
  ASSERT_NE(row, std::string::npos);
  EXPECT_EQ(
      Page().compare(row + anchor.size(), Html(GetParam().Nome).size(), Html(GetParam().Nome)), 0);
  const std::string rest = Page().substr(row, Page().find("</tr>", row) - row);
  EXPECT_NE(rest.find(Html(GetParam().Aiuto)), std::string::npos) << rest;
}

TEST_P(Mnemonic, IsReachedFromAnOverview) {
  EXPECT_NE(Page().find("<a href=\"#" + Ancora_Di(GetParam().Nome) + "\">"), std::string::npos);
}

// What the checker refuses, and what would stop the CPU.
TEST_P(Mnemonic, StandsAmongTheUnsupportedWhenItDoesNotWork) {
  const bool missing =
      GetParam().Trattamento == Gruppo::Non_Supportata || GetParam().Esegui == Ramo_Assente();
  EXPECT_EQ(row > Page().find("id=\"non-supportate\""), missing);
}

INSTANTIATE_TEST_SUITE_P(All, Mnemonic,
                         ::testing::ValuesIn(Tabella_Istruzioni().begin(),
                                             Tabella_Istruzioni().end()),
                         [](const auto& row) { return Ancora_Di(row.param.Nome).substr(2); });

TEST(InstructionPage, IsTheOneThatTheTableGives) {
  EXPECT_EQ(Page(), Pagina_Istruzioni());
}

TEST(InstructionNotes, BelongToInstructionsThatWorkOnceEach) {
  std::set<std::string> names;
  for (const Nota_Istruzione& note : Note_Istruzioni()) {
    SCOPED_TRACE(note.Nome);
    EXPECT_TRUE(names.insert(note.Nome).second);
    const Istruzione* instruction = Cerca_Istruzione(note.Nome);
    ASSERT_NE(instruction, nullptr);
    EXPECT_NE(instruction->Trattamento, Gruppo::Non_Supportata);
    EXPECT_EQ(instruction->Nome, note.Nome);
  }
}

struct Words {
  const char* name;
  std::vector<std::string> operands;
  const char* example;
};

class OperandWords : public ::testing::TestWithParam<Words> {};

TEST_P(OperandWords, SayTheRangesOfTheRule) {
  const Istruzione& instruction = *Cerca_Istruzione(GetParam().name);
  ASSERT_NE(instruction.Operandi, nullptr);
  EXPECT_EQ(Operandi_In_Parole(*instruction.Operandi), GetParam().operands);
}

TEST_P(OperandWords, GiveTheSimplestLine) {
  EXPECT_EQ(Riga_Esempio(*Cerca_Istruzione(GetParam().name)), GetParam().example);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, OperandWords,
    ::testing::Values(
        Words{"=", {"bit di Q0.0–Q1.7, M0.0–M4.7, S0.0–S2.7"}, "=      Q0.0"},
        Words{"R",
              {"bit di Q0.0–Q1.7, M0.0–M4.7, S0.0–S2.7 oppure T0–T40, C0–C20", "numero di bit"},
              "R      Q0.0, 1"},
        // The checker lets T63 pass, but the CPU has no such timer.
        Words{"TON", {"T0–T40", "tempo in K, VW0–VW100, AC0–AC3"}, "TON    T0, +10"},
        Words{"MOVB",
              {"IB0–IB1, QB0–QB1, MB0–MB4, VB0–VB100, AC0–AC3, SMB28, SMB29, SMB34, SMB35, "
               "K fino a 255",
               "destinazione VB0–VB100, AC0–AC3"},
              "MOVB   IB0, VB0"},
        Words{"MOVW",
              {"IW0, QW0, MW0–MW3, VW0–VW100, T0–T40, C0–C20, AC0–AC3, AIW0, AIW2, AIW4, K",
               "destinazione VW0–VW100, AC0–AC3, AQW0, AQW2"},
              "MOVW   IW0, VW0"},
        Words{"+I",
              {"VW0–VW100, T0–T40, C0–C20, AC0–AC3, AIW0, AIW2, AIW4, K",
               "risultato VW0–VW100, T0–T40, C0–C20, AC0–AC3"},
              "+I     VW0, VW2"},
        Words{"OB<>",
              {"due valori in IB0–IB1, QB0–QB1, MB0–MB4, VB0–VB100, AC0–AC3, K fino a 255"},
              "OB<>   IB0, +10"}),
    [](const auto& row) { return Ancora_Di(row.param.name).substr(2); });

}  // namespace

}  // namespace tavorno::prova
