// SPDX-License-Identifier: GPL-3.0-or-later
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

std::string A(std::size_t colonna, std::string testo) {
  testo.resize(colonna, ' ');
  return testo;
}

/// Every field of a row, readable when a comparison fails.
Lista Campi(const Riga_Src& riga) {
  return {riga.Istr,        riga.Op1,      riga.Op2, riga.Op3, std::to_string(riga.NOp),
          riga.Testo_Lista, riga.Testo_CPU};
}

const Riga_Src riga_sporca{"XX", "o1", "o2", "o3", 9, "lista", "cpu"};

}  // namespace

// ---- Debug_Line ---------------------------------------------------------------------------------

struct Caso_Riga {
  std::string nome;
  std::string riga;
  std::string risultato;
  int cresce = 0;  ///< rows added
};

class LineClasses : public Banco_Progetto, public testing::WithParamInterface<Caso_Riga> {};

TEST_P(LineClasses, GiveTheirTextAndTheirRow) {
  Righe_Lette righe;
  EXPECT_EQ(righe.Debug_Line(GetParam().riga), GetParam().risultato);
  EXPECT_EQ(righe.NRighe, GetParam().cresce);
}

INSTANTIATE_TEST_SUITE_P(
    AllRules, LineClasses,
    testing::Values(Caso_Riga{"EmptyStaysEmpty", "", ""},
                    Caso_Riga{"CommentStaysAsItIs", "//  ld i0.0 / x", "//  ld i0.0 / x"},
                    Caso_Riga{"CommentBehindOneBlankGoesToItsColumn", " // abc ",
                              A(36, "") + "// abc "},
                    Caso_Riga{"TitleBecomesAComment", "TITLE= abc", "// abc"},
                    Caso_Riga{"EmptyTitleBecomesAnEmptyComment", "TITLE=", "//"},
                    Caso_Riga{"InstructionMakesARow", "LD I0.0", A(36, "LD     I0.0"), 1},
                    Caso_Riga{"NetworkMakesARow", "NETWORK 1", "NETWORK 1", 1},
                    Caso_Riga{"SubroutineMakesARow", "SBR0 SBR_0", "SBR0 SBR_0", 1},
                    Caso_Riga{"BlanksAloneMakeNoRow", "   ", A(36, "")},
                    Caso_Riga{"CommentBehindTwoBlanksMakesNoRow", "  // abc", A(36, "") + "// abc"},
                    Caso_Riga{"SingleSlashIsAnInstruction", "/ x", A(36, "/      X"), 1},
                    Caso_Riga{"TitleInLowerCaseIsAnInstruction", "title=a", A(36, "title=a"), 1}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(LineClasses, AStaleMnemonicOfFiveBlanksKeepsTheRowFree) {
  Righe_Lette righe({}, {Riga_Src{"     x", "", "", "", 0, "", ""}});
  EXPECT_EQ(righe.Debug_Line("SBRX"), "SBRX");
  EXPECT_EQ(righe.NRighe, 0);
  righe.Tabella[0].Istr = "    x";
  righe.Debug_Line("SBRX");
  EXPECT_EQ(righe.NRighe, 1);
}

// ---- Cerca_Com ----------------------------------------------------------------------------------

struct Caso_Taglio {
  std::string nome;
  std::string riga;
  Riga_Src atteso;
  bool chk_righe = false;
  bool chk_network = false;
  std::string avviso = "";
};

class LineSplitter : public Banco_Progetto, public testing::WithParamInterface<Caso_Taglio> {};

TEST_P(LineSplitter, FillsTheWholeRow) {
  const Caso_Taglio& caso = GetParam();
  Righe_Lette righe({caso.chk_righe, caso.chk_network});
  righe.NRighe = 7;  // the row that is filled is that of the counter, which stays
  righe.Tabella.assign(8, riga_sporca);
  EXPECT_EQ(righe.Cerca_Com(caso.riga, {2, 5}), caso.atteso.Testo_Lista);
  EXPECT_EQ(Campi(righe.Tabella[7]), Campi(caso.atteso));
  EXPECT_EQ(righe.Tabella[7].Posto, (Posto_Riga{2, 5}));
  EXPECT_EQ(righe.NRighe, 7);
  ASSERT_EQ(righe.Rilievi.size(), caso.avviso.empty() ? 0U : 1U);
  if (caso.avviso.empty()) return;
  const Avviso avviso = Avviso_Di(righe.Rilievi[0]);
  EXPECT_EQ(avviso.Titolo + ": " + avviso.Testo, caso.avviso);
  EXPECT_EQ(avviso.Dettagli, caso.riga);
  EXPECT_EQ(righe.Rilievi[0].Posto, (Posto_Riga{2, 5}));
  EXPECT_EQ(righe.Rilievi[0].Riga, 7);
}

INSTANTIATE_TEST_SUITE_P(
    Networks, LineSplitter,
    testing::Values(
        Caso_Taglio{"WithoutASlashIsItsOwnText",
                    "NETWORK 1 abc  ",
                    {"NETWORK 1 ABC  ", "", "", "", 0, "NETWORK 1 abc  ", "NETWORK 1 abc"}},
        Caso_Taglio{"WithoutASlashMayBeLong",
                    "NETWORK 1 di un testo lungo",
                    {"NETWORK 1 DI UN TESTO LUNGO", "", "", "", 0, "NETWORK 1 di un testo lungo",
                     "NETWORK 1 di un testo lungo"}},
        Caso_Taglio{
            "CommentStandsAtColumn17",
            "NETWORK 1 //Marcia",
            {"NETWORK 1       //MARCIA", "", "", "", 0, "NETWORK 1       //Marcia", "NETWORK 1"}},
        Caso_Taglio{"SplitsAtTheFirstSingleSlash",
                    "NETWORK/1 //a",
                    {"NETWORK         /1 //A", "", "", "", 0, "NETWORK         /1 //a", "NETWORK"}},
        Caso_Taglio{
            "HeadOf16Characters",
            "NETWORK 12345678//a",
            {"NETWORK 12345678//A", "", "", "", 0, "NETWORK 12345678//a", "NETWORK 12345678"}},
        Caso_Taglio{"TickPutsTheCommentAtColumn13OfTheCpuText",
                    "NETWORK 1 //Marcia",
                    {"NETWORK 1       //MARCIA", "", "", "", 0, "NETWORK 1       //Marcia",
                     "NETWORK 1   //Marcia"},
                    false,
                    true},
        Caso_Taglio{
            "TickTakesAHeadOf12Characters",
            "NETWORK 1234//a",
            {"NETWORK 1234    //A", "", "", "", 0, "NETWORK 1234    //a", "NETWORK 1234//a"},
            false,
            true},
        Caso_Taglio{"TickOfTheLinesIsNotTheirs",
                    "NETWORK 1 //a",
                    {"NETWORK 1       //A", "", "", "", 0, "NETWORK 1       //a", "NETWORK 1"},
                    true,
                    false},
        Caso_Taglio{"TickWithoutASlashChangesNothing",
                    "NETWORK 1",
                    {"NETWORK 1", "", "", "", 0, "NETWORK 1", "NETWORK 1"},
                    false,
                    true}),
    [](const auto& caso) { return caso.param.nome; });

INSTANTIATE_TEST_SUITE_P(
    Blocks, LineSplitter,
    testing::Values(
        Caso_Taglio{"SubroutineKeepsTheCaseOfItsName",
                    "SBR0 Pompa Lenta ",
                    {"SBR0", "Pompa Lenta", "", "", 1, "SBR0 Pompa Lenta ", "SBR0 Pompa Lenta "}},
        Caso_Taglio{"InterruptKeepsTheCaseOfItsName",
                    "INT0  Int_0",
                    {"INT0", "Int_0", "", "", 1, "INT0  Int_0", "INT0  Int_0"}},
        Caso_Taglio{"ACommentIsPartOfTheName",
                    "SBR0 a //b",
                    {"SBR0", "a //b", "", "", 1, "SBR0 a //b", "SBR0 a //b"},
                    true},
        Caso_Taglio{
            "WithoutABlankMnemonicAndOperandStay", "SBR0", {"XX", "o1", "", "", 1, "SBR0", "SBR0"}},
        Caso_Taglio{"InLowerCaseItIsAnInstruction",
                    "sbr0 a",
                    {"SBR0", "A", "", "", 1, A(36, "SBR0   A"), A(22, "SBR0   A")}}),
    [](const auto& caso) { return caso.param.nome; });

const std::string tre_operandi =
    "Attenzione: Il simulatore non supporta istruzioni con tre operandi!";

INSTANTIATE_TEST_SUITE_P(
    Instructions, LineSplitter,
    testing::Values(
        Caso_Taglio{"NoBlanks", "NOT", {"NOT", "", "", "", 0, A(36, "NOT"), A(22, "NOT")}},
        Caso_Taglio{"NoBlanksShowsTheRestAsTyped",
                    "  not  ",
                    {"NOT", "", "", "", 0, A(36, "not"), A(22, "not")}},
        Caso_Taglio{"OneBlank",
                    "LD I0.0",
                    {"LD", "I0.0", "", "", 1, A(36, "LD     I0.0"), A(22, "LD     I0.0")}},
        Caso_Taglio{"OneBlankInLowerCase",
                    "ld i0.0",
                    {"LD", "I0.0", "", "", 1, A(36, "LD     I0.0"), A(22, "LD     I0.0")}},
        Caso_Taglio{
            "TwoBlanks",
            "MOVW VW0 VW2",
            {"MOVW", "VW0", "VW2", "", 2, A(36, "MOVW   VW0, VW2"), A(22, "MOVW   VW0, VW2")}},
        Caso_Taglio{
            "TwoBlanksInLowerCase",
            "movw vw0 vw2",
            {"MOVW", "VW0", "VW2", "", 2, A(36, "MOVW   VW0, VW2"), A(22, "MOVW   VW0, VW2")}},
        Caso_Taglio{"AccentsBecomeCapitalsOfTheCodePage",
                    "\xE0 \xE8",
                    {"\xC0", "\xC8", "", "", 1, A(36, "\xC0      \xC8"), A(22, "\xC0      \xC8")}},
        Caso_Taglio{"TwoBlanksNextToEachOtherAreTwoSeparators",
                    "LD  I0.0",
                    {"LD", "", "I0.0", "", 2, A(36, "LD     , I0.0"), A(22, "LD     , I0.0")}},
        Caso_Taglio{
            "ACommaIsNoSeparator",
            "MOVW VW0,VW2",
            {"MOVW", "VW0,VW2", "", "", 1, A(36, "MOVW   VW0,VW2"), A(22, "MOVW   VW0,VW2")}},
        Caso_Taglio{"ThreeBlanksFillTheRowAndShowABox",
                    "fill vw0 vw2 3",
                    {"FILL", "VW0", "VW2", "3", 3, A(36, "FILL   VW0, VW2, 3"),
                     A(22, "FILL   VW0, VW2, 3")},
                    false,
                    false,
                    tre_operandi},
        Caso_Taglio{"FourBlanksKeepTheTextAndShowABox",
                    "fill vw0 vw2 3 4",
                    {"FILL", "", "", "", 4, "fill vw0 vw2 3 4", "fill vw0 vw2 3 4"},
                    false,
                    false,
                    "Errore!: Errori nella lettura degli operandi!"},
        Caso_Taglio{
            "CommentStandsAtColumn37",
            "LD I0.0 //Marcia ",
            {"LD", "I0.0", "", "", 1, A(36, "LD     I0.0") + "//Marcia ", A(22, "LD     I0.0")}},
        Caso_Taglio{"TickPutsTheCommentAtColumn23OfTheCpuText",
                    "LD I0.0//Marcia",
                    {"LD", "I0.0", "", "", 1, A(36, "LD     I0.0") + "//Marcia",
                     A(22, "LD     I0.0") + "//Marcia"},
                    true},
        Caso_Taglio{"TickOfTheNetworksIsNotTheirs",
                    "NOT //x",
                    {"NOT", "", "", "", 0, A(36, "NOT") + "//x", A(22, "NOT")},
                    false,
                    true},
        Caso_Taglio{"ASingleSlashIsNoComment",
                    "/I VW0 VW2 // a / b",
                    {"/I", "VW0", "VW2", "", 2, A(36, "/I     VW0, VW2") + "// a / b",
                     A(22, "/I     VW0, VW2")}},
        Caso_Taglio{"TheFirstOfTwoCommentsCounts",
                    "NOT //a //b",
                    {"NOT", "", "", "", 0, A(36, "NOT") + "//a //b", A(22, "NOT")}},
        Caso_Taglio{"ThreeSlashesAreACommentFromTheFirst",
                    "NOT ///a",
                    {"NOT", "", "", "", 0, A(36, "NOT") + "///a", A(22, "NOT")}},
        Caso_Taglio{"ACommentAloneEmptiesTheRow",
                    "  //a",
                    {"", "", "", "", 0, A(36, "") + "//a", A(22, "")}},
        Caso_Taglio{"TwentyTwoCharactersFit",
                    "1234567890123456789012",
                    {"1234567890123456789012", "", "", "", 0, A(36, "1234567890123456789012"),
                     "1234567890123456789012"}}),
    [](const auto& caso) { return caso.param.nome; });

// ---- limits of a line ---------------------------------------------------------------------------

struct Caso_Limite {
  std::string nome;
  std::string riga;
  bool leggibile;
  bool chk_network = false;
};

class LineLimits : public Banco_Progetto, public testing::WithParamInterface<Caso_Limite> {};

TEST_P(LineLimits, DecideWhetherTheProjectCanBeRead) {
  progetto.chkCom = {false, GetParam().chk_network};
  EXPECT_EQ(Apri(File_Main({GetParam().riga})), GetParam().leggibile);
  EXPECT_EQ(progetto.Err_Lettura, GetParam().leggibile ? 0 : -1);
}

INSTANTIATE_TEST_SUITE_P(
    AllColumns, LineLimits,
    testing::Values(Caso_Limite{"Plain22", "1234567890123456789012", true},
                    Caso_Limite{"Plain23", "12345678901234567890123", false},
                    Caso_Limite{"OneOperand22", "LD 123456789012345", true},
                    Caso_Limite{"OneOperand23", "LD 1234567890123456", false},
                    Caso_Limite{"TwoOperands22", "MOVW 123456 7890123", true},
                    Caso_Limite{"TwoOperands23", "MOVW 123456 78901234", false},
                    Caso_Limite{"ThreeOperands22", "FILL 1234 5678 901", true},
                    Caso_Limite{"ThreeOperands23", "FILL 1234 5678 9012", false},
                    Caso_Limite{"Mnemonic7", "ABCDEFG 1", true},
                    Caso_Limite{"Mnemonic8", "ABCDEFGH 1", false},
                    Caso_Limite{"Mnemonic8Alone", "ABCDEFGH", true},
                    Caso_Limite{"CommentsHaveNoLimit", "LD I0.0 //" + std::string(500, 'x'), true},
                    Caso_Limite{"FourBlanks", "A B C D E", true},
                    Caso_Limite{"FiveBlanks", "A B C D E F", false},
                    Caso_Limite{"FiveBlanksInARow", "A     B", false},
                    Caso_Limite{"NetworkHead16", "NETWORK 12345678 //a", true},
                    Caso_Limite{"NetworkHead17", "NETWORK 123456789 //a", false},
                    Caso_Limite{"NetworkHead17WithoutComment", "NETWORK 123456789", true},
                    Caso_Limite{"NetworkHead12Ticked", "NETWORK 1234 //a", true, true},
                    Caso_Limite{"NetworkHead13Ticked", "NETWORK 12345 //a", false, true},
                    Caso_Limite{"NetworkHead13Unticked", "NETWORK 12345 //a", true},
                    Caso_Limite{"NetworkHead13TickedWithoutComment", "NETWORK 12345", true, true},
                    Caso_Limite{"SubroutineHasNoLimit", "SBR0 " + std::string(100, 'n'), true}),
    [](const auto& caso) { return caso.param.nome; });

}  // namespace tavorno::prova
