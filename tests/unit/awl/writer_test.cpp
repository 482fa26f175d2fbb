// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/writer.h"

#include <algorithm>

#include "project_bed.h"

namespace tavorno::prova {

namespace {
using Lista = std::vector<std::string>;
const std::string vuoti_36(36, ' ');
}  // namespace

struct Caso_Testo {
  std::string nome;
  std::string da;
  std::string atteso;
};

// ---- lines --------------------------------------------------------------------------------------

class LineForms : public testing::TestWithParam<Caso_Testo> {};

TEST_P(LineForms, AreWrittenNormalised) {
  EXPECT_EQ(Norm_Riga(GetParam().da), GetParam().atteso);
}

INSTANTIATE_TEST_SUITE_P(
    AllForms, LineForms,
    testing::Values(
        Caso_Testo{"Empty", "", ""}, Caso_Testo{"Comment", "//  a, b / c ", "//  a, b / c "},
        Caso_Testo{"Title", "TITLE= a, b / c ", "TITLE= a, b / c "},
        Caso_Testo{"NetworkWithComment", "NETWORK 1       //Marcia ", "NETWORK 1 //Marcia"},
        Caso_Testo{"NetworkWithSingleSlash", "NETWORK 1/a //b", "NETWORK 1 /a //b"},
        Caso_Testo{"NetworkWithoutSlash", "NETWORK 1", "NETWORK 1 "},
        Caso_Testo{"NetworkWithTrailingBlanksGetsOneMore", "NETWORK 1  ", "NETWORK 1   "},
        Caso_Testo{"MnemonicAlone", "NOT", "NOT"},
        Caso_Testo{"MnemonicWithTrailingBlanks", "NOT   ", "NOT"},
        Caso_Testo{"MnemonicGluedToAComment", "NOT//a", "NOT//a"},
        Caso_Testo{"OneOperand", "LD     I0.0   ", "LD I0.0"},
        Caso_Testo{"TwoBlanksBehindTheMnemonic", "LD  I0.0", "LD I0.0"},
        Caso_Testo{"LowerCaseStays", "ld i0.0", "ld i0.0"},
        Caso_Testo{"TwoOperandsLoseTheirComma", "MOVW   VW0 ,  VW2", "MOVW VW0 VW2"},
        Caso_Testo{"ThreeOperandsLoseTheirCommas", "FILL VW0, VW2,3", "FILL VW0 VW2 3"},
        Caso_Testo{"OperandsWithoutCommaStay", "MOVW VW0  VW2", "MOVW VW0  VW2"},
        Caso_Testo{"FourOperandsAreLost", "MOVW VW0, VW2, VW4, VW6", "MOVW "},
        Caso_Testo{"CommentBehindOperands", "MOVW   VW0, VW2        //copia ",
                   "MOVW VW0 VW2 //copia"},
        Caso_Testo{"CommentGluedToTheOperand", "LD I0.0//a", "LD I0.0 //a"},
        Caso_Testo{"CommasOfACommentStay", "LD I0.0 //a, b,c", "LD I0.0 //a, b,c"},
        Caso_Testo{"CommentWithoutOperands", "NOT //a", "NOT  //a"},
        Caso_Testo{"LostOperandsKeepTheirComment", "MOVW 1,2,3,4 //a", "MOVW  //a"},
        Caso_Testo{"SingleSlashInTheOperandsBeginsTheComment", "LD I0.0/a, b //c",
                   "LD I0.0 /a, b //c"},
        Caso_Testo{"SlashMnemonicIsNoComment", "/I VW0, VW2", "/I VW0 VW2"},
        Caso_Testo{"IndentedLineIsDoubled", "  LD I0.0", "  LD I0.0 LD I0.0"},
        Caso_Testo{"IndentedMnemonicIsDoubled", " NOT", " NOT NOT"},
        Caso_Testo{"IndentedCommentIsDoubled", vuoti_36 + "// abc", vuoti_36 + "// abc  // abc"},
        Caso_Testo{"IndentedLineWithCommentIsDoubled", " LD I0.0 //a", " LD I0.0 //a LD I0.0 //a"},
        Caso_Testo{"BlanksAloneStay", "   ", "   "}),
    [](const auto& caso) { return caso.param.nome; });

class OperandForms : public testing::TestWithParam<Caso_Testo> {};

TEST_P(OperandForms, AreJoinedByTheirCommas) {
  EXPECT_EQ(Norm_Operandi(GetParam().da), GetParam().atteso);
}

INSTANTIATE_TEST_SUITE_P(AllCounts, OperandForms,
                         testing::Values(Caso_Testo{"None", "", ""},
                                         Caso_Testo{"NoCommaAsItIs", " a  b ", " a  b "},
                                         Caso_Testo{"OneComma", " a , b ", "a b"},
                                         Caso_Testo{"OneCommaAndNothing", ",", " "},
                                         Caso_Testo{"TwoCommas", "a,b ,  c", "a b c"},
                                         Caso_Testo{"TwoCommasAndNothingBetween", "a,,c", "a  c"},
                                         Caso_Testo{"ThreeCommas", "a,b,c,d", ""},
                                         Caso_Testo{"FourCommas", "a,b,c,d,e", ""}),
                         [](const auto& caso) { return caso.param.nome; });

// ---- blocks -------------------------------------------------------------------------------------

struct Caso_Blocco {
  std::string nome;
  std::string testo;  ///< as on screen
  Lista righe;        ///< between the block's keywords
};

class ProjectWriter : public Banco_Progetto, public testing::WithParamInterface<Caso_Blocco> {
 protected:
  /// Saves under a name and returns the bytes.
  std::string Salva(const std::string& nome = "uscita.AWL") {
    scelte.push_back(nome);
    progetto.mnuFileSave();
    return Leggi(nome);
  }
};

TEST_P(ProjectWriter, PlacesTitleAndBeginOfMain) {
  progetto.txtList = GetParam().testo;
  ASSERT_TRUE(progetto.Crea_Progetto());
  Lista attese = {"ORGANIZATION_BLOCK MAIN:OB1"};
  attese.insert(attese.end(), GetParam().righe.begin(), GetParam().righe.end());
  attese.insert(attese.end(), {"END_ORGANIZATION_BLOCK", ""});
  Lista scritte;
  for (int i = 0; i < progetto.NRighe_Prog; ++i) scritte.push_back(progetto.Righe_Prog[i]);
  EXPECT_EQ(scritte, attese);
  EXPECT_EQ(progetto.etNR[2], std::to_string(attese.size()));
}

TEST_P(ProjectWriter, PlacesTitleAndBeginOfAProcedure) {
  progetto.New_Sub();
  progetto.Scrivi_Procedura(GetParam().testo);
  Lista attese = {"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=", "",
                  "END_ORGANIZATION_BLOCK",      "",       "SUBROUTINE_BLOCK SBR_0:SBR0"};
  attese.insert(attese.end(), GetParam().righe.begin(), GetParam().righe.end());
  attese.insert(attese.end(), {"END_SUBROUTINE_BLOCK", "", ""});
  EXPECT_EQ(Salva(), Righe(attese));
}

INSTANTIATE_TEST_SUITE_P(
    AllTexts, ProjectWriter,
    testing::Values(
        Caso_Blocco{"Empty", "", {"TITLE=", ""}},
        Caso_Blocco{"TitleIsTrimmed", "//   abc  ", {"TITLE=abc"}},
        Caso_Blocco{"EmptyTitle", "//", {"TITLE="}},
        Caso_Blocco{"FirstLineIsNoComment", "LD I0.0", {"TITLE=", "LD I0.0"}},
        Caso_Blocco{"SecondCommentIsNoTitle", "//a\r\n// b", {"TITLE=a", "// b"}},
        Caso_Blocco{"BeginBeforeTheFirstNetworkOnly",
                    "//a\r\n\r\nNETWORK 1\r\nNOT\r\nNETWORK 2 //b",
                    {"TITLE=a", "", "BEGIN", "NETWORK 1 ", "NOT", "NETWORK 2 //b"}},
        Caso_Blocco{"NoNetworkNoBegin", "//a\r\nLD  I0.0\r\nNOT", {"TITLE=a", "LD I0.0", "NOT"}},
        Caso_Blocco{
            "NetworkAsFirstLineHasNoBegin", "NETWORK 1\r\nNOT", {"TITLE=", "NETWORK 1 ", "NOT"}},
        Caso_Blocco{"BeginBeforeTheSecondWhenTheFirstLineIsANetwork",
                    "NETWORK 1\r\nNETWORK 2\r\nNETWORK 3",
                    {"TITLE=", "NETWORK 1 ", "BEGIN", "NETWORK 2 ", "NETWORK 3 "}},
        Caso_Blocco{"ATypedTitleStays", "TITLE=x\r\nNOT", {"TITLE=", "TITLE=x", "NOT"}},
        Caso_Blocco{"TabsBecomeBlanks",
                    "//a\r\nLD\tI0.0\t//b\tc\r\n//d\te",
                    {"TITLE=a", "LD I0.0 //b c", "//d e"}},
        Caso_Blocco{"BlanksAtTheBeginningGo", "   LD I0.0", {"TITLE=", "LD I0.0"}},
        Caso_Blocco{"BlanksBehindTheLastInstructionGo", "LD I0.0   ", {"TITLE=", "LD I0.0"}},
        Caso_Blocco{"BlanksBehindTheLastCommentGo", "//a\r\n//b   ", {"TITLE=a", "//b"}},
        Caso_Blocco{"BlanksOnTheLastLineGo", "//a\r\nNOT\r\n   ", {"TITLE=a", "NOT", ""}},
        Caso_Blocco{
            "BlanksBehindAnEarlierCommentStay", "//a\r\n//b  \r\nNOT", {"TITLE=a", "//b  ", "NOT"}},
        Caso_Blocco{
            "AnIndentedLaterLineIsDoubled", "//a\r\n  LD I0.0", {"TITLE=a", "  LD I0.0 LD I0.0"}},
        Caso_Blocco{"ALineEndOfTheTextGivesAnEmptyLine", "//a\r\nNOT\r\n", {"TITLE=a", "NOT", ""}}),
    [](const auto& caso) { return caso.param.nome; });

// ---- the file -----------------------------------------------------------------------------------

TEST_F(ProjectWriter, WritesBlocksInOrderAndOneMoreLine) {
  progetto.txtList = "//Prova\r\nNETWORK 1\r\nMOVW   VW0, VW2      //copia";
  progetto.New_Sub();
  progetto.Scrivi_Procedura("NOT");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("//due");
  EXPECT_EQ(Salva(),
            "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\nNETWORK 1 \r\n"
            "MOVW VW0 VW2 //copia\r\nEND_ORGANIZATION_BLOCK\r\n\r\n"
            "SUBROUTINE_BLOCK SBR_0:SBR0\r\nTITLE=\r\nNOT\r\nEND_SUBROUTINE_BLOCK\r\n\r\n"
            "SUBROUTINE_BLOCK SBR_1:SBR1\r\nTITLE=due\r\nEND_SUBROUTINE_BLOCK\r\n\r\n"
            "\r\n");
  EXPECT_EQ(progetto.NRighe_Prog, 16);
  EXPECT_EQ(progetto.etNR[2], "16");
}

TEST_F(ProjectWriter, LeavesWhatALongerSaveHadInTheLastEntry) {
  progetto.txtList = "//1\r\n//2\r\n//3\r\n//4";
  Salva();
  progetto.txtList = "//1";
  EXPECT_EQ(Salva(),
            Righe({"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=1", "END_ORGANIZATION_BLOCK", "", "//4"}));
}

TEST_F(ProjectWriter, WritesEveryByteOfAComment) {
  std::string commento = "//";
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n' && byte != '\t') commento += static_cast<char>(byte);
  }
  progetto.txtList = "//a\r\n" + commento;
  EXPECT_EQ(Salva(), Righe({"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=a", commento,
                            "END_ORGANIZATION_BLOCK", "", ""}));
}

TEST_F(ProjectWriter, FillsTheTableToItsLastEntry) {
  // Keyword, title, end, empty line and the extra entry take 5 of the 1001.
  progetto.txtList = "//a";
  for (int i = 0; i < 996; ++i) progetto.txtList += "\r\n//";
  const std::string byte = Salva();
  EXPECT_EQ(progetto.NRighe_Prog, 1000);
  EXPECT_EQ(progetto.Annulla, 0);
  EXPECT_EQ(std::count(byte.begin(), byte.end(), '\n'), 1001);
  EXPECT_TRUE(avvisi.empty());
}

struct Caso_Rifiutato {
  std::string nome;
  std::string testo;
};

class RefusedSave : public Banco_Progetto, public testing::WithParamInterface<Caso_Rifiutato> {};

TEST_P(RefusedSave, ShowsABoxAndKeepsTheOldFile) {
  for (const bool in_procedura : {false, true}) {
    avvisi.clear();
    Scrivi("uscita.AWL", "vecchio");
    progetto.txtList = in_procedura ? "NOT" : GetParam().testo;
    if (in_procedura) {
      progetto.New_Sub();
      progetto.Scrivi_Procedura(GetParam().testo);
    }
    scelte = {"uscita.AWL"};
    progetto.mnuFileSave();
    EXPECT_EQ(progetto.Annulla, -1);
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_EQ(avvisi[0].Titolo, "Errore!");
    EXPECT_EQ(Leggi("uscita.AWL"), "vecchio");
  }
}

std::string Righe_Commento(int quante) {
  std::string testo = "//a";
  for (int i = 1; i < quante; ++i) testo += "\r\n//";
  return testo;
}

INSTANTIATE_TEST_SUITE_P(AllCauses, RefusedSave,
                         testing::Values(Caso_Rifiutato{"OneLineTooMany", Righe_Commento(998)},
                                         Caso_Rifiutato{"ManyLinesTooMany", Righe_Commento(5000)},
                                         Caso_Rifiutato{"FiveCommas", "//a\r\nMOVW 1,2,3,4,5,6"},
                                         Caso_Rifiutato{"ManyCommas", "//a\r\nMOVW ,,,,,,,,,"}),
                         [](const auto& caso) { return caso.param.nome; });

// ---- text files ---------------------------------------------------------------------------------

TEST_F(ProjectWriter, ExportsTheWholeProjectForReading) {
  progetto.Scrivi_Main("//Prova\r\nLD     I0.0\r\n");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("//uno\r\n");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("//due");
  scelte = {"prova.TXT"};
  progetto.mnufiltxtT();
  EXPECT_EQ(Leggi("prova.TXT"),
            "----  Main Program ----\r\n"
            "//Prova\r\nLD     I0.0\r\n"
            "\r\n\r\n"
            "---- End Main Program ----\r\n\r\n"
            "--------- Procedura:SBR_0 ------------------\r\n"
            "//uno\r\n"
            "--------- END Procedura:SBR_0 --------------\r\n\r\n"
            "--------- Procedura:SBR_1 ------------------\r\n"
            "//due"
            "--------- END Procedura:SBR_1 --------------\r\n\r\n"
            "\r\n");
}

TEST_F(ProjectWriter, ExportsThePageInFrontAsItStands) {
  progetto.Scrivi_Main("//Main\r\n\tLD  I0.0");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("//SBR\r\n");
  scelte = {"main.TXT", "sbr.TXT"};
  progetto.mnuFileTxtExp();
  progetto.Pagina = 1;
  progetto.mnuFileTxtExp();
  EXPECT_EQ(Leggi("main.TXT"), "//Main\r\n\tLD  I0.0");
  EXPECT_EQ(Leggi("sbr.TXT"), "//SBR\r\n");
}

struct Caso_Proposta {
  std::string nome;
  std::string titolo;
  std::string base;
};

class ProposedName : public Banco_Progetto, public testing::WithParamInterface<Caso_Proposta> {};

TEST_P(ProposedName, IsTheTitleUpToItsFirstDot) {
  progetto.txtList = "NOT";
  progetto.File_Titolo = GetParam().titolo;
  progetto.mnuFileSave();
  progetto.mnuFileTxtExp();
  progetto.mnufiltxtT();
  ASSERT_EQ(richieste.size(), 3U);
  EXPECT_EQ(richieste[0].Proposta, GetParam().base + ".AWL");
  EXPECT_EQ(richieste[0].Filtro, "File AWL (*.AWL)|*.AWL");
  for (const int testo : {1, 2}) {
    EXPECT_EQ(richieste[testo].Proposta, GetParam().base + ".TXT");
    EXPECT_EQ(richieste[testo].Filtro, "File di testo (*.TXT)|*.TXT");
  }
  for (const Richiesta_File& richiesta : richieste) EXPECT_TRUE(richiesta.Salva);
}

INSTANTIATE_TEST_SUITE_P(AllTitles, ProposedName,
                         testing::Values(Caso_Proposta{"None", "", "NoName"},
                                         Caso_Proposta{"Plain", "prova.AWL", "prova"},
                                         Caso_Proposta{"TwoDots", "a.b.AWL", "a"},
                                         Caso_Proposta{"NoDot", "prova", "prova"}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(BaseName, EndsBeforeTheFirstDot) {
  EXPECT_EQ(Testo_Base("prova.AWL"), "prova");
  EXPECT_EQ(Testo_Base("a.b.c"), "a");
  EXPECT_EQ(Testo_Base("prova"), "prova");
  EXPECT_EQ(Testo_Base(".AWL"), "");
}

}  // namespace tavorno::prova
