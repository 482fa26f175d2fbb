// SPDX-License-Identifier: GPL-3.0-or-later
// Whole lines, found and replaced pieces, and new names.
#include "awl/text_edits.h"

#include <gtest/gtest.h>

#include "awl/find.h"
#include "awl/rename.h"
#include "plc/codepage.h"

namespace tavorno::prova {

struct Caso_Cambio_Linee {
  std::string Nome;
  Cambio_Linee (*Comando)(std::string_view, int, int);
  std::string Prima;
  int Da, A;
  std::string Dopo;
  int Scelta, Scelte;
};
class Lines : public testing::TestWithParam<Caso_Cambio_Linee> {};

TEST_P(Lines, Change) {
  const Caso_Cambio_Linee& caso = GetParam();
  const Cambio_Linee cambio = caso.Comando(caso.Prima, caso.Da, caso.A);
  EXPECT_EQ(Con_Cambio(caso.Prima, cambio), caso.Dopo);
  EXPECT_EQ(cambio.Scelta, caso.Scelta);
  EXPECT_EQ(cambio.Scelte, caso.Scelte);
  EXPECT_EQ(cambio.Vuoto(), caso.Prima == caso.Dopo);
}

namespace {
Cambio_Linee Su(std::string_view testo, int da, int a) {
  return Sposta(testo, da, a, -1);
}
Cambio_Linee Giu(std::string_view testo, int da, int a) {
  return Sposta(testo, da, a, 1);
}
}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Commands, Lines,
    testing::Values(
        Caso_Cambio_Linee{"Comment", Commenta, "NOT\r\nLD I0.0 //x", 1, 1, "NOT\r\n//LD I0.0 //x",
                          1, 1},
        Caso_Cambio_Linee{"Uncomment", Commenta, "//LD I0.0 //x\r\n", 0, 0, "LD I0.0 //x\r\n", 0,
                          1},
        Caso_Cambio_Linee{"MixedAreCommented", Commenta, "//A\r\nB", 0, 1, "////A\r\n//B", 0, 2},
        Caso_Cambio_Linee{"EmptyLinesStay", Commenta, "A\r\n\r\n  \r\nB", 0, 3,
                          "//A\r\n\r\n  \r\n//B", 0, 4},
        Caso_Cambio_Linee{"UncommentAroundEmpty", Commenta, "//A\r\n\r\n//B", 0, 2, "A\r\n\r\nB", 0,
                          3},
        Caso_Cambio_Linee{"NothingToComment", Commenta, "A\r\n\r\n", 1, 2, "A\r\n\r\n", 0, 0},
        Caso_Cambio_Linee{"Up", Su, "A\r\nB\r\nC\r\n", 1, 2, "B\r\nC\r\nA\r\n", 0, 2},
        Caso_Cambio_Linee{"UpAtTheTop", Su, "A\r\nB", 0, 0, "A\r\nB", 0, 0},
        Caso_Cambio_Linee{"Down", Giu, "A\r\nB\r\nC", 0, 1, "C\r\nA\r\nB", 1, 2},
        Caso_Cambio_Linee{"DownAtTheEnd", Giu, "A\r\nB", 1, 1, "A\r\nB", 0, 0},
        Caso_Cambio_Linee{"Double", Raddoppia, "A\r\nB\r\nC", 0, 1, "A\r\nB\r\nA\r\nB\r\nC", 2, 2},
        Caso_Cambio_Linee{"DoubleTheLast", Raddoppia, "A\r\nB", 1, 1, "A\r\nB\r\nB", 2, 1}),
    [](const auto& caso) { return caso.param.Nome; });

// ---- find and replace ---------------------------------------------------------------------------

struct Caso_Ricerca {
  std::string Nome;
  Ricerca Cerca;
  std::string Testo;
  std::vector<Trovato> Trovati;
};
class Find : public testing::TestWithParam<Caso_Ricerca> {};

TEST_P(Find, TellsEveryPlace) {
  EXPECT_EQ(Trova_Tutti(GetParam().Testo, GetParam().Cerca), GetParam().Trovati);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Find,
    testing::Values(
        Caso_Ricerca{"Anywhere",
                     {"i0.1"},
                     "LD I0.1 //i0.1\r\n= Q0.0\r\nA I0.1",
                     {{0, 3, 4}, {0, 10, 4}, {2, 2, 4}}},
        Caso_Ricerca{"Operands", {"I0.1", false, true}, "LD I0.1 //I0.1", {{0, 3, 4}}},
        Caso_Ricerca{"PartOfAnOperand", {"0", false, true}, "LD I0.0 //0", {{0, 4, 1}, {0, 6, 1}}},
        Caso_Ricerca{"NoMnemonic", {"LD", false, true}, "LD I0.1", {}},
        Caso_Ricerca{"Words", {"T3", true}, "LD T37\r\nLD T3", {{1, 3, 2}}},
        Caso_Ricerca{"PartOfAWord", {"T3"}, "LD T37", {{0, 3, 2}}},
        Caso_Ricerca{"Accents", {"\xC0"}, "//\xE0 b", {{0, 2, 1}}},
        Caso_Ricerca{"AccentsAreLetters", {"b", true}, "//b\xE0 b", {{0, 5, 1}}},
        Caso_Ricerca{"NoOverlap", {"aa"}, "aaaa", {{0, 0, 2}, {0, 2, 2}}},
        Caso_Ricerca{"Signs", {"=", true}, "= Q0.0", {{0, 0, 1}}},
        Caso_Ricerca{"Empty", {""}, "NOT", {}}, Caso_Ricerca{"Absent", {"x"}, "NOT", {}}),
    [](const auto& caso) { return caso.param.Nome; });

TEST(Replace, PutsTheNewTextInAllPlaces) {
  const std::string testo = "LD I0.1 //I0.1\r\nA I0.1\r\n";
  const Ricerca ricerca{"I0.1", false, true};
  EXPECT_EQ(Con_Ritocchi(testo, 0, Sostituzioni(testo, ricerca, "M10.1")),
            "LD M10.1 //I0.1\r\nA M10.1\r\n");
  EXPECT_EQ(Con_Ritocchi(testo, 0, Sostituzioni(testo, ricerca, "")), "LD  //I0.1\r\nA \r\n");
  EXPECT_EQ(Con_Ritocchi(testo, 1, Sostituzioni(testo, ricerca, "x")), testo);
}

// ---- new names ----------------------------------------------------------------------------------

namespace {

Sorgente Progetto_Prova() {
  Sorgente testi;
  testi.Main =
      "LD I0.0 //I0.0\r\nS Q0.0, 2\r\nCALL SBR_0\r\nJMP 1\r\nLBL 1\r\nTON T37, +5\r\n"
      "LBL 2\r\nMOVW VW0, VW2";
  testi.Procedure = {{1, "SBR_0", "SBR0", 1, "ld i0.0\r\n= Q0.1"}, {2, "ALTRA", "SBR1", 2, ""}};
  return testi;
}

}  // namespace

struct Caso_Nome_Nuovo {
  std::string Nome;
  Nominato Vecchio;
  std::string Nuovo;
  std::string Errore;  ///< its beginning, empty where there is none
  std::string Main;    ///< the changed piece of it
};
class NewName : public testing::TestWithParam<Caso_Nome_Nuovo> {};

TEST_P(NewName, IsGivenEverywhereOrRefused) {
  const Caso_Nome_Nuovo& caso = GetParam();
  const Sorgente testi = Progetto_Prova();
  const Cambio_Nome cambio = Rinomina(testi, caso.Vecchio, caso.Nuovo);
  EXPECT_EQ(cambio.Errore.substr(0, caso.Errore.size()), caso.Errore);
  EXPECT_EQ(cambio.Errore.empty(), caso.Errore.empty()) << cambio.Errore;
  const std::string main = Con_Ritocchi(testi.Main, 0, cambio.Ritocchi);
  if (caso.Errore.empty())
    EXPECT_NE(main.find(caso.Main), std::string::npos) << main;
  else
    EXPECT_EQ(main, testi.Main);
}

INSTANTIATE_TEST_SUITE_P(
    Names, NewName,
    testing::Values(
        Caso_Nome_Nuovo{"Bit", {Genere_Nome::Operando, "I0.0"}, " i1.02 ", "", "LD I1.2 //I0.0"},
        Caso_Nome_Nuovo{"BitByWord",
                        {Genere_Nome::Operando, "I0.0"},
                        "VW0",
                        "Al posto di I0.0 ci vuole un bit",
                        ""},
        Caso_Nome_Nuovo{"NoOperand",
                        {Genere_Nome::Operando, "I0.0"},
                        "marcia",
                        "\"marcia\" non è un operando",
                        ""},
        Caso_Nome_Nuovo{
            "NotThere", {Genere_Nome::Operando, "I0.0"}, "I7.0", "La CPU non ha I7.0", ""},
        Caso_Nome_Nuovo{
            "NoSuchBit", {Genere_Nome::Operando, "I0.0"}, "I0.8", "La CPU non ha I0.8", ""},
        Caso_Nome_Nuovo{"Timer", {Genere_Nome::Operando, "T37"}, "C5", "", "TON C5, +5"},
        Caso_Nome_Nuovo{"Word", {Genere_Nome::Operando, "VW2"}, "AQW0", "", "MOVW VW0, AQW0"},
        Caso_Nome_Nuovo{"WordByByte", {Genere_Nome::Operando, "VW2"}, "VB2", "Al posto di VW2", ""},
        Caso_Nome_Nuovo{"Empty", {Genere_Nome::Operando, "VW2"}, "", "\"\" non è", ""},
        Caso_Nome_Nuovo{"Label", {Genere_Nome::Etichetta, "1"}, "07", "", "JMP 7\r\nLBL 7"},
        Caso_Nome_Nuovo{
            "LabelTaken", {Genere_Nome::Etichetta, "1"}, "2", "L'etichetta 2 è già usata", ""},
        Caso_Nome_Nuovo{
            "LabelWithLetters", {Genere_Nome::Etichetta, "1"}, "a", "Un'etichetta è un numero", ""},
        Caso_Nome_Nuovo{"Procedure", {Genere_Nome::Procedura, "SBR_0"}, "Pompa", "", "CALL Pompa"},
        Caso_Nome_Nuovo{"ProcedureTaken",
                        {Genere_Nome::Procedura, "SBR_0"},
                        "altra",
                        "Una procedura ALTRA c'è già",
                        ""},
        Caso_Nome_Nuovo{"ProcedureWithBlank",
                        {Genere_Nome::Procedura, "SBR_0"},
                        "A B",
                        "Il nome di una procedura ha soltanto",
                        ""},
        Caso_Nome_Nuovo{"ProcedureTooLong",
                        {Genere_Nome::Procedura, "SBR_0"},
                        "ABCDEFGHIJKLMNOP",
                        "Il nome di una procedura ha al massimo 15",
                        ""}),
    [](const auto& caso) { return caso.param.Nome; });

TEST(Rename, ReachesTheProcedures) {
  const Sorgente testi = Progetto_Prova();
  const Cambio_Nome cambio = Rinomina(testi, {Genere_Nome::Operando, "I0.0"}, "M0.0");
  EXPECT_EQ(cambio.Ritocchi.size(), 2U);
  EXPECT_EQ(Con_Ritocchi(testi.Procedure[0].Testo, 1, cambio.Ritocchi), "ld M0.0\r\n= Q0.1");
  EXPECT_EQ(cambio.Procedura, 0);
  EXPECT_EQ(Rinomina(testi, {Genere_Nome::Procedura, "SBR_0"}, "pompa").Procedura, 1);
}

TEST(Rename, TellsOfTheSameNameAndOfGroups) {
  const Sorgente testi = Progetto_Prova();
  const Cambio_Nome cambio = Rinomina(testi, {Genere_Nome::Operando, "Q0.1"}, "Q0.0");
  EXPECT_EQ(cambio.Gia_Usato, 1);
  EXPECT_EQ(cambio.Di_Gruppo, 1) << "S Q0.0, 2 writes it too";
  EXPECT_EQ(cambio.Ritocchi.size(), 1U);
}

}  // namespace tavorno::prova
