// SPDX-License-Identifier: GPL-3.0-or-later
// What saving and reading again keeps, and what it changes on purpose.
#include "project_bed.h"

namespace tavorno::prova {

namespace {
using Lista = std::vector<std::string>;

std::string A36(std::string testo) {
  testo.resize(36, ' ');
  return testo;
}
}  // namespace

class RoundTrip : public Banco_Progetto {
 protected:
  std::string Salva() {
    scelte.emplace_back("giro.AWL");
    progetto.mnuFileSave();
    return Leggi("giro.AWL");
  }
  /// Saves, reads back and returns the saved bytes.
  std::string Gira() {
    const std::string byte = Salva();
    progetto.File_Progetto = progetto.File_Salva;
    progetto.LeggiTxt();
    EXPECT_EQ(progetto.Err_Lettura, 0);
    return byte;
  }
  /// The Main text after one save and read of this text.
  std::string Main_Dopo(const std::string& testo) {
    progetto.Scrivi_Main(testo);
    Gira();
    return progetto.txtList;
  }
};

TEST_F(RoundTrip, OfAWholeProjectKeepsItInCanonicalForm) {
  const Lista prima = {"ORGANIZATION_BLOCK MAIN:OB1",
                       "TITLE=Marcia e arresto",
                       "// autore \xE0",
                       "",
                       "BEGIN",
                       "NETWORK 1 //Marcia",
                       "//",
                       "// del motore",
                       "ld i0.0 //start",
                       "MOVW VW0 VW2 //copia, e basta",
                       "NOT",
                       "CALL Pompa",
                       "NETWORK 2 ",
                       "= Q0.0",
                       "END_ORGANIZATION_BLOCK",
                       "",
                       "SUBROUTINE_BLOCK Pompa:SBR2",
                       "TITLE=",
                       "BEGIN",
                       "NETWORK 1 //uno",
                       "LD\tI0.1 //a\tb",
                       "END_SUBROUTINE_BLOCK",
                       "",
                       "SUBROUTINE_BLOCK SBR_0:SBR0",
                       "TITLE=zero",
                       "// solo commenti",
                       "END_SUBROUTINE_BLOCK",
                       "",
                       ""};
  // A tab is part of the mnemonic until the first save.
  const std::string pompa = Righe({"//", "NETWORK 1       //uno", A36("LD\tI0.1") + "//a\tb"});
  const std::string main = Righe(
      {"//Marcia e arresto", "// autore \xE0", "", "NETWORK 1       //Marcia", "//",
       "// del motore", A36("LD     I0.0") + "//start", A36("MOVW   VW0, VW2") + "//copia, e basta",
       A36("NOT"), A36("CALL   POMPA"), "NETWORK 2 ", A36("=      Q0.0")});
  ASSERT_TRUE(Apri(Righe(prima)));
  EXPECT_EQ(progetto.txtList, main);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, pompa);
  EXPECT_EQ(progetto.CPU.NRighe, 13);

  // Every text ends in a line end on screen, which is saved as one more empty line.
  Lista dopo = prima;
  dopo[8] = "LD I0.0 //start";
  dopo[11] = "CALL POMPA";
  dopo[12] = "NETWORK 2  ";
  dopo[20] = "LD I0.1 //a b";
  dopo.insert(dopo.begin() + 26, "");
  dopo.insert(dopo.begin() + 21, "");
  dopo.insert(dopo.begin() + 14, "");
  EXPECT_EQ(Gira(), Righe(dopo));

  EXPECT_EQ(progetto.Num_SBR, 2);
  EXPECT_EQ(progetto.Tab_SBR[1].Num, 3);
  EXPECT_EQ(progetto.Tab_SBR[1].Nome, "Pompa");
  EXPECT_EQ(progetto.Tab_SBR[2].Num, 1);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo,
            Righe({"//", "NETWORK 1       //uno", A36("LD     I0.1") + "//a b", ""}));
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, Righe({"//zero", "// solo commenti", ""}));
  EXPECT_EQ(progetto.CPU.NRighe, 13);
}

struct Caso_Giro {
  std::string nome;
  std::string prima;
  std::string dopo;
};

class RoundTripOfText : public RoundTrip, public testing::WithParamInterface<Caso_Giro> {};

TEST_P(RoundTripOfText, GivesItsCanonicalForm) {
  EXPECT_EQ(Main_Dopo(GetParam().prima), GetParam().dopo);
}

INSTANTIATE_TEST_SUITE_P(
    AllSentences, RoundTripOfText,
    testing::Values(Caso_Giro{"KeepsCommentsAndEmptyLines", "//a\r\n\r\n//b\r\n\r\n\r\n// c",
                              "//a\r\n\r\n//b\r\n\r\n\r\n// c\r\n"},
                    Caso_Giro{"KeepsTheTitleAsTheFirstComment", "//titolo\r\nNOT",
                              "//titolo\r\n" + A36("NOT") + "\r\n"},
                    Caso_Giro{"GivesAnEmptyTitleToAFirstLineThatIsNoComment", "NOT",
                              "//\r\n" + A36("NOT") + "\r\n"},
                    Caso_Giro{"TrimsTheTitle", "//   abc  ", "//abc\r\n"},
                    Caso_Giro{"PutsNetworkCommentsAtColumn17", "//a\r\nNETWORK 1 //b",
                              "//a\r\nNETWORK 1       //b\r\n"},
                    Caso_Giro{
                        "PadsMnemonicsTo7AndCapitalisesThem", "//a\r\nld i0.0\r\n= q0.0",
                        "//a\r\n" + A36("LD     I0.0") + "\r\n" + A36("=      Q0.0") + "\r\n"},
                    Caso_Giro{"CapitalisesTwoOperandsAndJoinsThem", "//a\r\nmovw vw0,vw2",
                              "//a\r\n" + A36("MOVW   VW0, VW2") + "\r\n"},
                    Caso_Giro{"PutsCommentsAtColumn37", "//a\r\nLD I0.0 //b",
                              "//a\r\n" + A36("LD     I0.0") + "//b\r\n"},
                    Caso_Giro{"TurnsTabsIntoBlanks", "//a\r\nLD\tI0.0\r\n//b\tc",
                              "//a\r\n" + A36("LD     I0.0") + "\r\n//b c\r\n"},
                    Caso_Giro{"DropsBlanksAtTheBeginningAndTheEnd", "   //a\r\nNOT   ",
                              "//a\r\n" + A36("NOT") + "\r\n"},
                    Caso_Giro{"NormalisesTwoBlanksOfTheEditor", "//a\r\nLD  I0.0",
                              "//a\r\n" + A36("LD     I0.0") + "\r\n"},
                    Caso_Giro{"KeepsLinesOfATextWithoutNetworks", "//a\r\nLD I0.0\r\n//b\r\nNOT",
                              "//a\r\n" + A36("LD     I0.0") + "\r\n//b\r\n" + A36("NOT") + "\r\n"},
                    Caso_Giro{"MovesTheTextBehindASingleSlash", "//a\r\nLD I0.0/x",
                              "//a\r\n" + A36("LD     I0.0, /X") + "\r\n"},
                    Caso_Giro{"LosesFourOperands", "//a\r\nMOVW VW0, VW2, VW4, VW6",
                              "//a\r\n" + A36("MOVW") + "\r\n"},
                    Caso_Giro{"KeepsBlanksAloneAsAPaddedLine", "//a\r\n \r\nNOT",
                              "//a\r\n" + A36("") + "\r\n" + A36("NOT") + "\r\n"}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(RoundTrip, OfALowerCaseLineKeepsItSoInTheFileAndShowsCapitals) {
  progetto.Scrivi_Main("//a\r\nld i0.0");
  EXPECT_EQ(Gira(), Righe({"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=a", "ld i0.0",
                           "END_ORGANIZATION_BLOCK", "", ""}));
  EXPECT_EQ(progetto.txtList, Righe({"//a", A36("LD     I0.0")}));
}

TEST_F(RoundTrip, OfTwoBlanksInAHandEditedFileKeepsAnEmptyOperand) {
  ASSERT_TRUE(Apri(File_Main({"LD  I0.0"})));
  EXPECT_EQ(progetto.Righe_Src[0].NOp, 2);
  EXPECT_EQ(progetto.Righe_Src[0].Op1, "");
  EXPECT_EQ(progetto.Righe_Src[0].Op2, "I0.0");
}

TEST_F(RoundTrip, OfACommentBehindABlankDoublesItAtEachSave) {
  const std::string uno = A36("") + "// abc";
  const std::string due = uno + "  // abc";
  const std::string quattro = due + "  // abc  // abc";
  ASSERT_TRUE(Apri(File_Main({" // abc"})));
  EXPECT_EQ(progetto.txtList, Righe({"//", uno}));
  EXPECT_EQ(Gira(), Righe({"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=", due, "",
                           "END_ORGANIZATION_BLOCK", "", ""}));
  EXPECT_EQ(progetto.txtList, Righe({"//", due, ""}));
  Gira();
  EXPECT_EQ(progetto.txtList, Righe({"//", quattro, "", ""}));
}

TEST_F(RoundTrip, OfAnIndentedLineGivesThreeOperandsAndTheirBox) {
  EXPECT_EQ(Main_Dopo("//a\r\n  LD I0.0"), Righe({"//a", A36("LD     I0.0, LD, I0.0")}));
  EXPECT_EQ(Testi_Avvisi(),
            Lista{"Attenzione: Il simulatore non supporta istruzioni con tre operandi!"});
  EXPECT_EQ(progetto.Righe_Src[0].NOp, 3);
}

TEST_F(RoundTrip, OfATitleKeepsItInTheFile) {
  const Lista file = {"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=abc", "END_ORGANIZATION_BLOCK", "", ""};
  ASSERT_TRUE(Apri(Righe(file)));
  EXPECT_EQ(progetto.txtList, "//abc\r\n");
  progetto.Scrivi_Main("//abc");
  EXPECT_EQ(Salva(), Righe(file));
}

TEST_F(RoundTrip, OfATextOf23CharactersGivesTheFormatMessage) {
  progetto.Scrivi_Main("//a\r\nMOVW 1234567, 1234567");
  Salva();
  scelte = {"giro.AWL"};
  progetto.mnuFileOpen();
  EXPECT_EQ(Testi_Avvisi(),
            Lista{"Errore!: Impossibile Caricare il progetto per errori nel formato!"});
}

TEST_F(RoundTrip, IgnoresTheLineThatALongerSaveLeft) {
  progetto.Scrivi_Main("//1\r\n//2\r\n//3\r\nNOT");
  Gira();
  progetto.Scrivi_Main("//1");
  const std::string byte = Gira();
  EXPECT_TRUE(byte.ends_with("\r\n\r\nNOT\r\n"));
  EXPECT_EQ(progetto.txtList, "//1\r\n");
  EXPECT_EQ(progetto.CPU.NRighe, 0);
}

TEST_F(RoundTrip, OfCanonicalTextChangesNothingButTheLineAtTheEnd) {
  ASSERT_TRUE(Apri(File_Main({"NETWORK 1 //a", "LD I0.0 //b", "MOVW VW0 VW2", "= Q0.0"})));
  const std::string prima = progetto.txtList;
  for (int giro = 1; giro <= 3; ++giro) {
    Gira();
    std::string attesa = prima;
    for (int i = 0; i < giro; ++i) attesa += "\r\n";
    EXPECT_EQ(progetto.txtList, attesa);
  }
}

// ---- what a longer save left in the last line ---------------------------------------------------

TEST_F(RoundTrip, ARemovedProcedureStaysAway) {
  progetto.Scrivi_Main("//a\r\nCALL SBR_1");
  progetto.New_Sub();
  progetto.New_Sub();
  Salva();
  ASSERT_EQ(progetto.Num_SBR, 2);
  progetto.Scegli_Procedura(2);
  progetto.Remove_Sub();
  const std::string byte = Gira();
  EXPECT_TRUE(byte.ends_with("\r\nSUBROUTINE_BLOCK SBR_1:SBR1\r\n")) << byte;
  EXPECT_EQ(progetto.Num_SBR, 1);
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  avvisi.clear();
  progetto.Compila();
  EXPECT_EQ(Testi_Avvisi().front(), "Errore!: Controllo Procedure con Errori!");
}

TEST_F(RoundTrip, AShorterMainHasOneMend) {
  progetto.Scrivi_Main("//a\r\nNOT\r\nNOT\r\nNOT");
  Gira();
  progetto.Scrivi_Main("//a\r\nNOT\r\nNOT");
  Gira();
  progetto.Scrivi_Main("//a");
  const std::string byte = Gira();
  EXPECT_EQ(progetto.CPU.NRighe, 0) << byte;
}

TEST_F(RoundTrip, ANewProjectDoesNotInheritAProcedure) {
  progetto.mnuFileNew(false);
  progetto.New_Sub();
  scelte = {"uno.AWL"};
  progetto.mnuFileSave();
  progetto.mnuFileNew(false);
  Gira();
  EXPECT_EQ(progetto.Num_SBR, 0);
}

}  // namespace tavorno::prova
