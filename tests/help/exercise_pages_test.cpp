// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "HTML/generator/html_text.h"
#include "HTML/generator/pages.h"
#include "help_page.h"
#include "plants/exercises.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;
using Row = std::vector<std::string>;

/// The cells of a row, whatever their class.
Row Cells(const std::string& row) {
  Row cells;
  for (const std::string& cell : Contents(row, "<td", "</td>"))
    cells.push_back(Da_Html(cell.substr(cell.find('>') + 1)));
  return cells;
}

class ExercisePage : public ::testing::TestWithParam<int> {
 protected:
  const Esercizio& exercise = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  const std::string page = ReadFile(HelpFolder() / "Panel" / exercise.Pagina);
};

TEST_P(ExercisePage, ShowsTheTableOfItsInputsAndOutputs) {
  const std::vector<std::string> tables = Contents(page, "<table class=\"io\">", "</table>");
  ASSERT_EQ(tables.size(), 1U);
  std::vector<Row> shown;
  for (const std::string& row : Contents(tables.front(), "<tr>", "</tr>")) {
    if (row.find("<th") == std::string::npos) shown.push_back(Cells(row));
  }
  std::vector<Row> expected;
  for (const Riga_IO& row : exercise.Righe_IO)
    expected.push_back(
        {std::to_string(expected.size() + 1), row.Simbolo, row.Indirizzo, row.Commento});
  EXPECT_EQ(shown, expected);
}

TEST_P(ExercisePage, ShowsItsWiringDiagram) {
  const std::string file = File_Schema({exercise.Pagina, exercise.Titolo, exercise.Righe_IO});
  EXPECT_THAT(Attributes(page, "src"), ::testing::Contains(file));
  EXPECT_NE(ReadFile(HelpFolder() / "Panel" / file).find("</svg>"), std::string::npos);
}

TEST_P(ExercisePage, HasNothingLeftToReplace) {
  EXPECT_EQ(page.find(segno_tabella), std::string::npos);
  EXPECT_EQ(page.find(segno_schema), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, ExercisePage, ::testing::Range(0, 18));

/// A help folder in the making.
class Generator : public ::testing::Test {
 protected:
  Generator() {
    Write("in/Index.htm", "indice");
    Write("in/Panel/US-00.htm",
          std::string("prima\n") + segno_tabella + "\n" + segno_schema + "\ndopo\n");
  }

  void Write(const std::string& file, const std::string& text) const {
    Scrivi_Byte(folder / file, text);
  }
  void Generate() const { Scrivi_Guida(folder / "in", folder / "out", exercises); }

  Cartella_Temporanea folder;
  const std::vector<Riga_IO> rows{{"SB1", "I0.0", "Pulsante (NO) <\"A\" & B>"},
                                  {"KM1", "Q0.0", "Contattore"}};
  const std::vector<Pagina_Esercizio> exercises{{"US-00.htm", " Prova.", rows}};
};

TEST_F(Generator, CompletesThePagesOfTheExercises) {
  Generate();
  const std::string page = ReadFile(folder / "out/Panel/US-00.htm");
  EXPECT_TRUE(page.starts_with("prima\n<table class=\"io\">")) << page;
  EXPECT_TRUE(page.ends_with("</p>\ndopo\n")) << page;
  EXPECT_NE(page.find("Pulsante (NO) &lt;&quot;A&quot; &amp; B&gt;"), std::string::npos);
  EXPECT_TRUE(fs::exists(folder / "out/Panel/pictures/US-00-schema.svg"));
}

TEST_F(Generator, CopiesWhatBelongsToTheHelpAndNothingElse) {
  Write("in/style.css", "p {}");
  Write("in/pictures/a.svg", "<svg/>");
  Write("in/Panel/pictures/b.svg", "<svg/>");
  Write("in/modello.htm", "modello");
  Write("in/CMakeLists.txt", "");
  Write("in/generator/c.htm", "");
  Generate();
  for (const char* file :
       {"Index.htm", "style.css", "pictures/a.svg", "Panel/pictures/b.svg", "SET_IST.htm"})
    EXPECT_TRUE(fs::exists(folder / "out" / file)) << file;
  for (const char* file : {"modello.htm", "CMakeLists.txt", "generator/c.htm", "c.htm"})
    EXPECT_FALSE(fs::exists(folder / "out" / file)) << file;
}

TEST_F(Generator, SaysWhatTheViewerNeedsToBeTold) {
  Write("in/Index.htm", "<link rel=\"stylesheet\" href=\"style.css\"><p><img src=\"a.svg\"></p>");
  Generate();
  EXPECT_EQ(ReadFile(folder / "out/Index.htm"),
            "<link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\">"
            "<p class=\"figura\"><img src=\"a.svg\"></p>");
}

TEST_F(Generator, FailsWithoutThePageOfAnExercise) {
  fs::remove(folder / "in/Panel/US-00.htm");
  EXPECT_THROW(Generate(), std::runtime_error);
}

TEST_F(Generator, FailsWhenItCannotWrite) {
  Write("out", "a file where the folder should be");
  EXPECT_THROW(Generate(), std::exception);
}

}  // namespace

}  // namespace tavorno::prova
