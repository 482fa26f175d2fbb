// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "HTML/generator/html_text.h"
#include "awl/project.h"
#include "help_page.h"
#include "plc/codepage.h"
#include "plc/plc.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

/// A program that a page shows, as a student copies it into the editor.
struct Example {
  std::string page;
  std::string main;
  std::string procedure;  ///< empty: none
};

void PrintTo(const Example& example, std::ostream* out) {
  *out << example.page << ":\n" << example.main << "\n" << example.procedure;
}

constexpr const char* openMain = "<pre class=\"awl\">";
constexpr const char* openProcedure = "<pre class=\"awl procedura\">";

std::vector<Example> Examples(const char* name) {
  const std::string page = ReadFile(HelpFolder() / name);
  std::vector<Example> examples;
  for (const std::string& text : Contents(page, openMain, "</pre>"))
    examples.push_back({name, Da_Html(text), ""});
  // A procedure belongs to the program before it.
  for (std::size_t at = page.find(openProcedure); at != std::string::npos;
       at = page.find(openProcedure, at + 1)) {
    const std::size_t before = Contents(page.substr(0, at), openMain, "</pre>").size();
    examples.at(before - 1).procedure =
        Da_Html(Contents(page.substr(at), openProcedure, "</pre>").front());
  }
  return examples;
}

std::vector<Example> AllExamples() {
  std::vector<Example> all;
  for (const char* name : {"Index.htm", "Index-AWL.htm", "SCALA.htm", "SET_IST.htm"}) {
    const std::vector<Example> examples = Examples(name);
    all.insert(all.end(), examples.begin(), examples.end());
  }
  return all;
}

/// The editor's bytes, with its line ends.
std::string Typed(const std::string& text) {
  std::istringstream lines(text);
  std::string typed;
  for (std::string line; std::getline(lines, line);) typed += Da_Utf8(line) + "\r\n";
  return typed;
}

class HelpExample : public ::testing::TestWithParam<Example> {
 protected:
  HelpExample() {
    project.Chiedi.Mostra = [this](const Avviso& box) {
      boxes.push_back(box.Testo);
      return Risposta::Ok;
    };
    project.Chiedi.Scegli_File = [this](const Richiesta_File&) {
      return std::optional(File_Scelto{(folder / "guida.AWL").string(), "guida.AWL"});
    };
  }

  Cartella_Temporanea folder;
  Orologio clock;
  Plc plc{clock};
  Progetto project{plc, {}};
  std::vector<std::string> boxes;
};

TEST_P(HelpExample, Compiles) {
  project.mnuFileNew(false);
  project.Scrivi_Main(Typed(GetParam().main));
  if (!GetParam().procedure.empty()) {
    project.New_Sub();
    project.Scrivi_Procedura(Typed(GetParam().procedure));
  }
  project.Save_Read();
  ASSERT_EQ(project.Err_Lettura, 0) << project.Dettaglio.Come_Testo();
  project.Compila();
  EXPECT_EQ(project.Errori, 0) << project.Lista_Comp;
  EXPECT_EQ(project.Compilato, -1);
  // The one box tells of the success; jumps, calls and sections have nothing to say.
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("successo")));
}

INSTANTIATE_TEST_SUITE_P(All, HelpExample, ::testing::ValuesIn(AllExamples()));

TEST(HelpExamples, AreAsManyAsTheLanguageHasChapters) {
  EXPECT_GE(Examples("Index.htm").size(), 1U);
  EXPECT_GE(Examples("Index-AWL.htm").size(), 25U);
  EXPECT_GE(Examples("SCALA.htm").size(), 14U);
  EXPECT_GE(Examples("SET_IST.htm").size(), 100U);
}

}  // namespace

}  // namespace tavorno::prova
