// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "HTML/generator/demands.h"
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

/// "2,5"
double Marks(const std::string& text) {
  return std::stod(Sostituisci(text, ",", "."));
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

// The marks of the demands add up to those of their cases, and those to the sum that is promised.
TEST_P(ExercisePage, TellsWhatItsScriptAsksFor) {
  const std::vector<std::string> tables = Contents(page, "<table class=\"controlli\">", "</table>");
  ASSERT_EQ(tables.size(), 1U);
  EXPECT_NE(page.find("<h2>Che cosa si controlla</h2>"), std::string::npos);
  double of_cases = 0;
  double of_demands = 0;
  for (const std::string& row : Contents(tables.front(), "<tr>", "</tr>"))
    of_cases += Marks(Contents(row, "<th>", "</th>").at(1));
  for (const std::string& row : Contents(tables.front(), "<tr class=\"richiesta\">", "</tr>"))
    of_demands += Marks(Cells(row).at(1));
  EXPECT_GT(of_cases, 10);
  EXPECT_NEAR(of_cases, of_demands, 0.05);  // a third of a mark is shown with two decimals
  EXPECT_NE(page.find("assegna " + Testo_Punti(of_cases) + " punti"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, ExercisePage,
                         ::testing::Range(0, static_cast<int>(Tabella_Esercizi().size())));

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

TEST_F(Generator, TellsTheDemandsBeforeTheQuestions) {
  Write("in/Panel/US-00.htm", "prima\n<h2>Domande</h2>\ndopo\n");
  Scrivi_Guida(folder / "in", folder / "out",
               std::vector<Pagina_Esercizio>{{"US-00.htm", " Prova.", rows, "CONTROLLI\n"}});
  EXPECT_EQ(ReadFile(folder / "out/Panel/US-00.htm"), "prima\nCONTROLLI\n<h2>Domande</h2>\ndopo\n");
}

/// A right program's run: a premise, a demand, the demand of the first case as a premise of the
/// second.
Esito_Progetto RightRun() {
  const auto premise = [](const char* text) {
    Richiesta asked;
    asked.Premessa = true;
    asked.Testo = text;
    return asked;
  };
  const auto demand = [](const char* text, double marks) {
    Richiesta asked;
    asked.Testo = text;
    asked.Punti = marks;
    return asked;
  };
  Esito_Progetto run;
  run.Casi.resize(2);
  run.Casi[0].Nome = "marcia <1>";
  run.Casi[0].Punti = run.Casi[0].Massimo = 3;
  run.Casi[0].Richieste = {premise("ferma"), demand("parte", 3)};
  run.Casi[1].Nome = "arresto";
  run.Casi[1].Punti = run.Casi[1].Massimo = 2.5;
  run.Casi[1].Richieste = {premise("ferma"), premise("parte"), demand("si ferma", 2.5)};
  return run;
}

TEST(Demands, StandWithTheirMarksAndAPremiseStandsOnce) {
  const std::string section = Sezione_Controlli(RightRun());
  EXPECT_NE(section.find("assegna 5,5 punti"), std::string::npos) << section;
  const std::string table = Contents(section, "<table class=\"controlli\">", "</table>").at(0);
  EXPECT_EQ(table,
            "\n<tr><th>marcia &lt;1&gt;</th><th>3</th></tr>\n"
            "<tr class=\"premessa\"><td>ferma</td><td>prima</td></tr>\n"
            "<tr class=\"richiesta\"><td>parte</td><td>3</td></tr>\n"
            "<tr><th>arresto</th><th>2,5</th></tr>\n"
            "<tr class=\"premessa\"><td>parte</td><td>prima</td></tr>\n"
            "<tr class=\"richiesta\"><td>si ferma</td><td>2,5</td></tr>\n");
}

TEST(Demands, OfARunWithoutFullMarksAreRefused) {
  Esito_Progetto run = RightRun();
  run.Casi[0].Rilievi.push_back({0, "parte"});
  EXPECT_THROW(Sezione_Controlli(run), std::runtime_error);
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
