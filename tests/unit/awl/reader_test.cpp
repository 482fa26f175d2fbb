// SPDX-License-Identifier: GPL-3.0-or-later
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

std::string A36(std::string testo) {
  testo.resize(36, ' ');
  return testo;
}

const std::string apre_main = "ORGANIZATION_BLOCK MAIN:OB1";
const std::string apre_sbr0 = "SUBROUTINE_BLOCK SBR_0:SBR0";

std::string Procedura(int numero, const Lista& righe = {}) {
  const std::string n = std::to_string(numero);
  return Banco_Progetto::Righe({"SUBROUTINE_BLOCK SBR_" + n + ":SBR" + n, "TITLE=P" + n}) +
         Banco_Progetto::Righe(righe) + Banco_Progetto::Righe({"END_SUBROUTINE_BLOCK", ""});
}

}  // namespace

class ProjectReader : public Banco_Progetto {
 protected:
  Lista Mnemonici() {
    Lista istr;
    for (int i = 0; i <= progetto.CPU.NRighe; ++i) istr.push_back(progetto.Righe_Src[i].Istr);
    return istr;
  }
};

// ---- the tests on the beginning of a line -------------------------------------------------------

struct Caso_Parola {
  std::string nome;
  Lista file;
  Lista main;
  Lista sbr;
  Lista istr;
};

class KeywordTable : public ProjectReader, public testing::WithParamInterface<Caso_Parola> {};

TEST_P(KeywordTable, SortsTheLinesIntoTextsAndRows) {
  const Caso_Parola& caso = GetParam();
  ASSERT_TRUE(Apri(Righe(caso.file)));
  EXPECT_EQ(progetto.Testo_Main, Righe(caso.main));
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, Righe(caso.sbr));
  EXPECT_EQ(Mnemonici(), caso.istr);
  EXPECT_TRUE(avvisi.empty());
}

INSTANTIATE_TEST_SUITE_P(
    AllRows, KeywordTable,
    testing::Values(
        Caso_Parola{"OrganizationBlockOpensMain", {apre_main, "NOT"}, {A36("NOT")}, {}, {"NOT"}},
        Caso_Parola{"OrganizationBlockIsTestedOn18Characters",
                    {"ORGANIZATION_BLOCKX", "NOT"},
                    {A36("NOT")},
                    {},
                    {"NOT"}},
        Caso_Parola{"EndOrganizationBlockClosesMainWithMend",
                    {apre_main, "NOT", "END_ORGANIZATION_BLOCKX", "NOP"},
                    {A36("NOT")},
                    {},
                    {"NOT", "MEND"}},
        Caso_Parola{
            "EndOrganizationBlockAloneMakesARow", {"END_ORGANIZATION_BLOCK"}, {}, {}, {"MEND"}},
        Caso_Parola{"SubroutineBlockOpensAProcedureWithItsOwnRow",
                    {apre_sbr0, "NOT"},
                    {},
                    {A36("NOT")},
                    {"SBR0", "NOT"}},
        Caso_Parola{"EndSubroutineBlockClosesItWithRet",
                    {apre_sbr0, "NOT", "END_SUBROUTINE_BLOCKX", "NOP"},
                    {},
                    {A36("NOT")},
                    {"SBR0", "NOT", "RET"}},
        Caso_Parola{"EndSubroutineBlockInsideMainIsAlsoText",
                    {apre_main, "END_SUBROUTINE_BLOCK"},
                    {A36("END_SUBROUTINE_BLOCK")},
                    {},
                    {"RET", "END_SUBROUTINE_BLOCK"}},
        Caso_Parola{
            "EndInterruptBlockOutsideMakesOnlyARow", {"END_INTERRUPT_BLOCKX"}, {}, {}, {"RETI"}},
        Caso_Parola{"EndInterruptBlockInsideMainIsAlsoText",
                    {apre_main, "END_INTERRUPT_BLOCK"},
                    {A36("END_INTERRUPT_BLOCK")},
                    {},
                    {"RETI", "END_INTERRUPT_BLOCK"}},
        Caso_Parola{"TitleBecomesAComment",
                    {apre_main, "TITLE= abc ", "NOT"},
                    {"// abc ", A36("NOT")},
                    {},
                    {"NOT"}},
        Caso_Parola{
            "TitleOfAProcedureBecomesAComment", {apre_sbr0, "TITLE=abc"}, {}, {"//abc"}, {"SBR0"}},
        Caso_Parola{"TitleOutsideABlockIsDropped",
                    {"TITLE=abc", apre_main, "NOT"},
                    {A36("NOT")},
                    {},
                    {"NOT"}},
        Caso_Parola{
            "BeginIsSkipped", {apre_main, "BEGIN", "BEGINNER", "NOT"}, {A36("NOT")}, {}, {"NOT"}},
        Caso_Parola{"BeginIsSkippedInAProcedure",
                    {apre_sbr0, "BEGIN", "NOT"},
                    {},
                    {A36("NOT")},
                    {"SBR0", "NOT"}},
        Caso_Parola{
            "AKeywordBehindABlankIsText", {apre_main, " BEGIN"}, {A36("BEGIN")}, {}, {"BEGIN"}},
        Caso_Parola{"AKeywordInLowerCaseIsText",
                    {apre_main, "begin", "end_organization_block"},
                    {A36("begin"), A36("end_organization_block")},
                    {},
                    {"BEGIN", "END_ORGANIZATION_BLOCK"}},
        Caso_Parola{"LinesOutsideEveryBlockAreDropped",
                    {"NOT", "// x", apre_main, "NOP", "END_ORGANIZATION_BLOCK", "NOT", "",
                     apre_sbr0, "END_SUBROUTINE_BLOCK", "// y"},
                    {A36("NOP")},
                    {},
                    {"NOP", "MEND", "SBR0", "RET"}},
        Caso_Parola{"MainTakesTheTextOfAProcedureThatOpensInsideIt",
                    {apre_main, apre_sbr0, "NOT"},
                    {A36("NOT")},
                    {},
                    {"SBR0", "NOT"}},
        Caso_Parola{"CommentsAndEmptyLinesMakeNoRows",
                    {apre_main, "", "// a", " // b", "   ", "  // c", "NOT"},
                    {"", "// a", A36("") + "// b", A36(""), A36("") + "// c", A36("NOT")},
                    {},
                    {"NOT"}}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(ProjectReader, RefusesInterruptBlocksWithABoxAndEndsThere) {
  EXPECT_FALSE(Apri(Righe({apre_main, "END_ORGANIZATION_BLOCK", "INTERRUPT_BLOCKX", "A B C D"})));
  EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione!: Il simulatore non supporta routin di interrupt!"});
}

// ---- lines of the file --------------------------------------------------------------------------

struct Caso_Byte {
  std::string nome;
  std::string byte;
  std::string etNR2;
};

class LineEnds : public ProjectReader, public testing::WithParamInterface<Caso_Byte> {};

TEST_P(LineEnds, SeparateTheSameLines) {
  ASSERT_TRUE(Apri(GetParam().byte));
  EXPECT_EQ(progetto.Testo_Main, "// a\r\n\r\n" + A36("NOT") + "\r\n");
  EXPECT_EQ(Mnemonici(), (Lista{"NOT", "MEND"}));
  EXPECT_EQ(progetto.etNR[2], GetParam().etNR2);
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, LineEnds,
    testing::Values(
        Caso_Byte{"CrLf", "ORGANIZATION_BLOCK\r\n// a\r\n\r\nNOT\r\nEND_ORGANIZATION_BLOCK\r\n",
                  "4"},
        Caso_Byte{"BareLf", "ORGANIZATION_BLOCK\n// a\n\nNOT\nEND_ORGANIZATION_BLOCK\n", "4"},
        Caso_Byte{"LoneCr", "ORGANIZATION_BLOCK\r// a\r\rNOT\rEND_ORGANIZATION_BLOCK\r", "4"},
        Caso_Byte{"NoEndAtTheLastLine",
                  "ORGANIZATION_BLOCK\r\n// a\r\n\r\nNOT\r\nEND_ORGANIZATION_BLOCK", "4"},
        Caso_Byte{"Mixed", "ORGANIZATION_BLOCK\n// a\r\n\rNOT\rEND_ORGANIZATION_BLOCK\n\r\n", "5"}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(ProjectReader, KeepsEveryByteOfAComment) {
  std::string commento = "//";
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') commento += static_cast<char>(byte);
  }
  ASSERT_TRUE(Apri(File_Main({commento, "NOT " + commento})));
  // The second line ends in a comment behind an instruction.
  EXPECT_EQ(progetto.Testo_Main, Righe({"//", commento, A36("NOT") + commento}));
}

// ---- procedures ---------------------------------------------------------------------------------

TEST_F(ProjectReader, FillsEveryFieldOfAProcedure) {
  ASSERT_TRUE(Apri(File_Main({"NOT"}) + Righe({"SUBROUTINE_BLOCK Pompa lenta:SBR3", "TITLE=abc",
                                               "BEGIN", "LD I0.0", "END_SUBROUTINE_BLOCK", ""})));
  EXPECT_EQ(progetto.Tab_SBR[1],
            (Riga_SBR{4, "Pompa lenta", "SBR3", 1, "//abc\r\n" + A36("LD     I0.0") + "\r\n"}));
  EXPECT_EQ(progetto.TabSP, Lista{"Pompa lenta"});
  EXPECT_EQ(
      progetto.Righe_Src[2],
      (Riga_Src{"SBR3", "Pompa lenta", "", "", 1, "SBR3 Pompa lenta", "SBR3 Pompa lenta", {1, 0}}));
}

TEST_F(ProjectReader, SplitsABlockLineAtItsFirstColon) {
  ASSERT_TRUE(Apri(Righe({"SUBROUTINE_BLOCK uno:SBR2:x", "END_SUBROUTINE_BLOCK"})));
  EXPECT_EQ(progetto.Tab_SBR[1], (Riga_SBR{3, "uno", "SBR2:x", 1, ""}));
}

TEST_F(ProjectReader, KeepsProceduresInTheOrderOfTheFile) {
  ASSERT_TRUE(Apri(Procedura(5) + Procedura(2, {"NOT"})));
  EXPECT_EQ(progetto.Num_SBR, 2);
  EXPECT_EQ(progetto.Tab_SBR[1], (Riga_SBR{6, "SBR_5", "SBR5", 1, "//P5\r\n"}));
  EXPECT_EQ(progetto.Tab_SBR[2], (Riga_SBR{3, "SBR_2", "SBR2", 2, Righe({"//P2", A36("NOT")})}));
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_5", "SBR_2"}));
  EXPECT_EQ(Mnemonici(), (Lista{"SBR5", "RET", "SBR2", "NOT", "RET"}));
}

TEST_F(ProjectReader, LeavesAGapInTheNumbersToTheNextNewProcedure) {
  ASSERT_TRUE(Apri(File_Main({}) + Procedura(0) + Procedura(2)));
  EXPECT_EQ(progetto.Tab_SBR[1].Num, 1);
  EXPECT_EQ(progetto.Tab_SBR[2].Num, 3);
  progetto.New_Sub();
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  EXPECT_EQ(progetto.Tab_SBR[2].Sigla, "SBR1");
}

TEST_F(ProjectReader, ReadsSixtyFourProceduresButNotOneMore) {
  std::string byte = File_Main({});
  for (int i = 0; i < 64; ++i) byte += Procedura(i);
  ASSERT_TRUE(Apri(byte));
  EXPECT_EQ(progetto.Num_SBR, 64);
  EXPECT_EQ(progetto.TabSP.size(), 64U);
  EXPECT_EQ(progetto.Tab_SBR[64], (Riga_SBR{64, "SBR_63", "SBR63", 64, "//P63\r\n"}));

  EXPECT_FALSE(Apri(byte + Procedura(64)));
  EXPECT_EQ(progetto.Num_SBR, 0);
}

TEST_F(ProjectReader, ClearsTheTextsOfTheFirstElevenRowsOnly) {
  for (int i = 0; i <= 64; ++i) progetto.Tab_SBR[i].Testo = "vecchio";
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(progetto.Tab_SBR[i].Testo, "") << i;
  for (int i = 11; i <= 64; ++i) EXPECT_EQ(progetto.Tab_SBR[i].Testo, "vecchio") << i;
}

TEST_F(ProjectReader, StartsTheTextOfAnOpenedRowEmpty) {
  progetto.Tab_SBR[12].Testo = "vecchio";
  std::string byte;
  for (int i = 0; i < 12; ++i) byte += Procedura(i);
  ASSERT_TRUE(Apri(byte));
  EXPECT_EQ(progetto.Tab_SBR[12].Testo, "//P11\r\n");
}

TEST_F(ProjectReader, LeavesStaleFieldsUnderASubroutineLineWithoutABlank) {
  ASSERT_TRUE(Apri(File_Main({"NOT", "MOVW VW0 VW2"})));
  ASSERT_TRUE(Apri(File_Main({"NOT", "SBRX"})));
  EXPECT_EQ(progetto.Righe_Src[1], (Riga_Src{"MOVW", "VW0", "", "", 1, "SBRX", "SBRX", {0, 2}}));
  EXPECT_EQ(progetto.Testo_Main, Righe({"//", A36("NOT"), "SBRX"}));
  EXPECT_EQ(progetto.CPU.NRighe, 2);
}

// ---- end of reading -----------------------------------------------------------------------------

TEST_F(ProjectReader, ShowsAProjectWithoutProcedures) {
  progetto.txtP = "vecchio";
  progetto.TabSP = {"a", "b"};
  progetto.Modificato = -1;
  ASSERT_TRUE(Apri(File_Main({"LD I0.0", "= Q0.0"})));
  EXPECT_EQ(progetto.CPU.NRighe, 2);
  EXPECT_EQ(progetto.CPU.Prog.Righe(), 3);
  EXPECT_EQ(progetto.etNR[2], "6");  // of seven lines
  EXPECT_EQ(progetto.txtList, Righe({"//", A36("LD     I0.0"), A36("=      Q0.0")}));
  EXPECT_EQ(progetto.txtList, progetto.Testo_Main);
  EXPECT_EQ(progetto.txtP, "");
  EXPECT_EQ(progetto.TabSP, Lista{""});
  EXPECT_EQ(progetto.stB[1], "List: 2  SBR: 0");
  EXPECT_EQ(progetto.Modificato, 0);
}

TEST_F(ProjectReader, ShowsTheFirstProcedure) {
  ASSERT_TRUE(Apri(File_Main({}) + Procedura(0, {"NOT"}) + Procedura(1)));
  EXPECT_EQ(progetto.txtP, Righe({"//P0", A36("NOT")}));
  EXPECT_EQ(progetto.Scheda, 1);
  EXPECT_EQ(progetto.CPU.NRighe, 5);
  EXPECT_EQ(progetto.CPU.Prog.Righe(), 6);
  EXPECT_EQ(progetto.stB[1], "List: 5  SBR: 2");
}

TEST_F(ProjectReader, FillsTheTableToItsLastRow) {
  ASSERT_TRUE(Apri(File_Main(Lista(300, "NOT"))));
  EXPECT_EQ(progetto.CPU.NRighe, 300);
  EXPECT_EQ(progetto.Righe_Src[300].Istr, "MEND");
}

TEST_F(ProjectReader, LetsCommentsStandBeforeTheFirstBlock) {
  ASSERT_TRUE(Apri("// di Anna\r\n\r\n  // terza A\r\n" + File_Main({"NOT"})));
  EXPECT_EQ(progetto.Testo_Main, Righe({"//", A36("NOT")}));
}

}  // namespace tavorno::prova
