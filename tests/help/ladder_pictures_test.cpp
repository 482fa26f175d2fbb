// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/ladder_pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "help_page.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

using ::testing::HasSubstr;

TEST(LadderPictures, AListStandsBesideItsDiagram) {
  Figure_Scala figures;
  const std::string page = Affianca_Scala(
      "<p>prima</p>\n<pre class=\"scala\">LD     I0.0\nAW&gt;=   VW0, +10\n=      Q0.3</pre>\n<p>"
      "dopo</p>",
      "prova", figures);
  EXPECT_THAT(page, HasSubstr("<pre class=\"awl\">LD     I0.0\nAW&gt;=   VW0, +10\n=      "
                              "Q0.3</pre></td><td><img src=\"pictures/prova-1.svg\""));
  EXPECT_TRUE(page.starts_with("<p>prima</p>"));
  EXPECT_TRUE(page.ends_with("<p>dopo</p>"));
  ASSERT_TRUE(figures.contains("prova-1.svg"));
  for (const char* text : {">I0.0<", "&gt;=W", ">+10<", ">Q0.3<"})
    EXPECT_THAT(figures["prova-1.svg"], HasSubstr(text));
}

TEST(LadderPictures, AProgramThatCannotBeDrawnStopsTheGenerator) {
  Figure_Scala figures;
  EXPECT_THROW(Affianca_Scala("<pre class=\"scala\">=      Q0.0</pre>", "prova", figures),
               std::runtime_error);
}

TEST(LadderPictures, EveryInstructionWithASymbolHasItsPictureOnThePage) {
  const std::string page = ReadFile(HelpFolder() / "SET_IST.htm");
  int without = 0;
  for (const Istruzione& instruction : Tabella_Istruzioni()) {
    if (instruction.Trattamento == Gruppo::Non_Supportata || instruction.Esegui == Ramo_Assente())
      continue;
    const std::string reference = Richiamo_Simbolo(instruction);
    if (reference.empty()) {
      ++without;
      continue;
    }
    EXPECT_THAT(page, HasSubstr(reference)) << instruction.Nome;
  }
  // The stack is the shape of the diagram; networks, procedures and their ends are no symbols.
  EXPECT_EQ(without, 9);
}

}  // namespace

}  // namespace tavorno::prova
