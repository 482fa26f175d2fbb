// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "help_page.h"
#include "plants/exercises.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

class HelpPage : public ::testing::TestWithParam<fs::path> {
 protected:
  const std::string page = ReadFile(GetParam());

  /// The file that a link of this page means; without its anchor.
  fs::path Target(const std::string& link) const {
    const std::string file = link.substr(0, link.find('#'));
    return file.empty() ? GetParam() : GetParam().parent_path() / file;
  }
};

TEST_P(HelpPage, LinksLeadToPagesAndAnchorsThatExist) {
  for (const std::string& link : Attributes(page, "href")) {
    SCOPED_TRACE(link);
    const fs::path target = Target(link);
    ASSERT_TRUE(fs::is_regular_file(target));
    const std::size_t hash = link.find('#');
    if (hash == std::string::npos) continue;
    EXPECT_THAT(Attributes(ReadFile(target), "id"), ::testing::Contains(link.substr(hash + 1)));
  }
}

TEST_P(HelpPage, PicturesExistAndSayWhatTheyShow) {
  const std::vector<std::string> sources = Attributes(page, "src");
  for (const std::string& source : sources) {
    EXPECT_TRUE(fs::is_regular_file(Target(source))) << source;
  }
  const std::vector<std::string> texts = Attributes(page, "alt");
  EXPECT_EQ(texts.size(), sources.size());
  EXPECT_THAT(texts, ::testing::Each(::testing::Not(::testing::IsEmpty())));
}

TEST_P(HelpPage, NothingLeavesTheHelpFolder) {
  const std::string root = fs::canonical(HelpFolder()).string() + "/";
  for (const char* attribute : {"href", "src"}) {
    for (const std::string& link : Attributes(page, attribute)) {
      EXPECT_EQ(link.find(':'), std::string::npos) << link;
      EXPECT_TRUE(fs::weakly_canonical(Target(link)).string().starts_with(root)) << link;
    }
  }
}

TEST_P(HelpPage, NoAnchorStandsTwice) {
  const std::vector<std::string> anchors = Attributes(page, "id");
  EXPECT_EQ(std::set<std::string>(anchors.begin(), anchors.end()).size(), anchors.size());
}

TEST_P(HelpPage, IsItalianInUtf8WithTheCommonStyleAndWaysToTheGuides) {
  EXPECT_NE(page.find("<html lang=\"it\">"), std::string::npos);
  EXPECT_NE(page.find("<meta charset=\"utf-8\">"), std::string::npos);
  EXPECT_NE(page.find("<link rel=\"stylesheet\" type=\"text/css\""), std::string::npos);
  EXPECT_NE(page.find("<p class=\"nav\">"), std::string::npos);
  std::set<std::string> reached{GetParam().filename().string()};
  for (const std::string& link : Attributes(page, "href"))
    reached.insert(Target(link).filename().string());
  for (const char* guide : {"Index.htm", "Index-AWL.htm", "SET_IST.htm"})
    EXPECT_TRUE(reached.contains(guide)) << guide;
}

INSTANTIATE_TEST_SUITE_P(All, HelpPage, ::testing::ValuesIn(HelpPages()),
                         [](const ::testing::TestParamInfo<fs::path>& tested) {
                           std::string name = tested.param.stem().string();
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

TEST(HelpFolder, HasThePagesThatTheProgramAsksFor) {
  for (const char* page : {"Index.htm", "Index-AWL.htm", "SCALA.htm", "SET_IST.htm", "Tempi.htm",
                           "Indietro.htm", "style.css"})
    EXPECT_TRUE(fs::is_regular_file(HelpFolder() / page)) << page;
  for (const Esercizio& exercise : Tabella_Esercizi())
    EXPECT_TRUE(fs::is_regular_file(HelpFolder() / "Panel" / exercise.Pagina)) << exercise.Pagina;
}

TEST(HelpFolder, ShowsEveryPictureSomewhere) {
  std::set<fs::path> shown;
  for (const fs::path& page : HelpPages()) {
    for (const std::string& source : Attributes(ReadFile(page), "src"))
      shown.insert(fs::weakly_canonical(page.parent_path() / source));
  }
  for (const char* folder : {"pictures", "Panel/pictures"}) {
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(TAVORNO_HELP_SOURCE) / folder))
      EXPECT_TRUE(
          shown.contains(fs::weakly_canonical(HelpFolder() / folder / entry.path().filename())))
          << entry.path();
  }
}

class IndexNames : public ::testing::TestWithParam<const char*> {};

TEST_P(IndexNames, WhatAStudentMeets) {
  EXPECT_NE(ReadFile(HelpFolder() / "Index.htm").find(GetParam()), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Windows, IndexNames,
                         ::testing::Values("id=\"pannello\"", "id=\"editor\"", "id=\"stati\"",
                                           "id=\"impianti\"", "id=\"guida\"",
                                           "Finestra\nImpostazioni PLC",
                                           "Simulatore Ingressi Analogici", "Finestra Test",
                                           "Stampe Progetto", "Finestra Scalaro", "Sportello"));

INSTANTIATE_TEST_SUITE_P(
    Messages, IndexNames,
    ::testing::Values("Il progetto non è formattato correttamente!",
                      "Impossibile Caricare il progetto per errori nel formato!",
                      "-&gt; Istruzione non riconosciuta", "-&gt; Istruzione non supportata",
                      "-&gt; Indirizzo … non supportato", "-&gt; Indirizzo Bit OP1 non ammesso",
                      "-&gt; Codice …", "-&gt; Operando non supportato", "-&gt; Numero …",
                      "-&gt; Operandi non supportati", "-&gt; Valore troppo Grande",
                      "Controllo Salti / Procedure / SCR con Errori!",
                      "Run Time Error! Il programma sarà terminato!", "Errore in Esecuzione!"));

TEST(HelpFolder, TheIndexNamesEveryExercise) {
  const std::vector<std::string> links = Attributes(ReadFile(HelpFolder() / "Index.htm"), "href");
  for (const Esercizio& exercise : Tabella_Esercizi())
    EXPECT_THAT(links, ::testing::Contains(std::string("Panel/") + exercise.Pagina));
}

}  // namespace

}  // namespace tavorno::prova
