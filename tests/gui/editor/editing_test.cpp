// SPDX-License-Identifier: GPL-3.0-or-later
// Typing, networks, procedures, and the commands on files as the window gives them.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

using Editing = Banco_Editor;
using FileCommands = Banco_Editor;
using Procedures = Banco_Editor;

using Lista = std::vector<std::string>;

}  // namespace

// ---- typing -------------------------------------------------------------------------------------

TEST_F(Editing, EachChangeOfTheMainTextIsStored) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  EXPECT_EQ(progetto.Modificato, 0);
  Batti_In_Fondo(txtList(), "NOT");
  EXPECT_EQ(progetto.txtList, "//Titolo\r\nNETWORK 1\r\nNOT");
  EXPECT_EQ(progetto.Testo_Main, progetto.txtList);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(Editing, AWrittenTextCanBeSaved) {
  Avvia(Avvio::Vuoto);
  EXPECT_FALSE(Voce("mnuFileSave").isEnabled());
  Batti(txtList(), "N");
  EXPECT_TRUE(Voce("mnuFileSave").isEnabled());
  EXPECT_TRUE(Trova<QToolButton>("tB1(Save)").isEnabled());
  EXPECT_FALSE(Voce("mnuPlcCompile").isEnabled());
}

TEST_F(Editing, EachChangeOfAProcedureIsStoredInItsRow) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}) + Blocco_SBR(1, {"NOP"}));
  Comanda("mnuViewC(1)");
  Batti_In_Fondo(txtP(), "EU");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, txtP().Byte());
  EXPECT_NE(progetto.Tab_SBR[1].Testo.find("EU"), std::string::npos);
  EXPECT_EQ(progetto.Tab_SBR[2].Testo.find("EU"), std::string::npos);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(Editing, WithoutProceduresTheirTextIsStoredNowhere) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Comanda("mnuViewC(1)");
  Batti(txtP(), "NOT");
  EXPECT_EQ(progetto.txtP, "NOT");
  EXPECT_EQ(progetto.Modificato, 0);
}

TEST_F(Editing, MerelySelectingAProcedureCountsAsAChange) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}) + Blocco_SBR(1, {"NOP"}));
  Comanda("mnuViewC(1)");
  EXPECT_EQ(progetto.Modificato, 0);
  Clicca_Scheda(1);
  EXPECT_EQ(txtP().Byte(), progetto.Tab_SBR[2].Testo);
  EXPECT_NE(txtP().Byte().find("NOP"), std::string::npos);
  EXPECT_EQ(progetto.Scheda, 2);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(Editing, CharactersOfTheCodePageComeThroughAndOthersDoNot) {
  Avvia(Avvio::Nuovo);
  txtList().selectAll();
  txtList().replaceSelectedText(QStringLiteral("//perché €"));
  EXPECT_EQ(progetto.txtList, "//perch\xE9 \x80");
  txtList().selectAll();
  txtList().replaceSelectedText(QStringLiteral("//→"));
  EXPECT_EQ(progetto.txtList, "//?");
  Premi("CmdNet(0)");  // from the next command on the screen shows what is stored
  EXPECT_EQ(txtList().text(0), "//?NETWORK 1       //TITOLO DEL SEGMENTO (una riga)\r\n");
}

TEST_F(Editing, PastedLinesGetTheLineEndsOfTheFile) {
  Avvia(Avvio::Vuoto);
  QApplication::clipboard()->setText("NOT\nNOP\n");
  txtList().paste();
  EXPECT_EQ(progetto.txtList, "NOT\r\nNOP\r\n");
}

TEST_F(Editing, TheTabKeyTypesATab) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}));
  for (const int pagina : {0, 1}) {
    SSTb2().setCurrentIndex(pagina);
    AwlEditor& testo = pagina == 0 ? txtList() : txtP();
    testo.Vai_In_Fondo();
    const std::string prima = testo.Byte();
    QTest::keyClick(&testo, Qt::Key_Tab);
    EXPECT_EQ(testo.Byte(), prima + "\t");
    testo.Vai_A(0);
    QTest::keyClick(&testo, Qt::Key_Tab);
    EXPECT_EQ(testo.Byte(), "\t" + prima + "\t");
    EXPECT_EQ(finestra->focusWidget(), &testo);
  }
}

TEST_F(Editing, AnotherKeyLeadsOutOfTheText) {
  Avvia(Avvio::Nuovo);
  Attiva();
  EXPECT_EQ(finestra->focusWidget(), &txtList());
  QTest::keyClick(&txtList(), Qt::Key_F6);
  EXPECT_NE(finestra->focusWidget(), &txtList());
  QTest::keyClick(finestra->focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(finestra->focusWidget(), &txtList());
}

// ---- networks -----------------------------------------------------------------------------------

TEST_F(Editing, ANetworkIsNumberedByThoseBeforeIt) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NETWORK 2"}));
  const std::string prima = txtList().Byte();
  Premi("CmdNet(0)");
  EXPECT_EQ(txtList().Byte(), prima + Righe({"NETWORK 3       //TITOLO DEL SEGMENTO (una riga)",
                                             "//", "//COMMENTI DEL SEGMENTO", "//"}));
  EXPECT_EQ(progetto.Testo_Main, txtList().Byte());
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), prima);
}

TEST_F(Editing, ANetworkForTheProcedure) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NETWORK 1"}));
  Comanda("mnuViewC(1)");
  Premi("CmdNet(1)");
  EXPECT_NE(txtP().Byte().find("\r\nNETWORK 2   "), std::string::npos);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, txtP().Byte());
}

TEST_F(Editing, PageTwoDecidesWhetherANetworkFitsAProcedure) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Comanda("mnuViewC(2)");
  EXPECT_FALSE(Premibile("CmdNet(1)"));
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  Comanda("mnuViewC(2)");
  EXPECT_TRUE(Premibile("CmdNet(1)"));
}

// ---- procedures ---------------------------------------------------------------------------------

TEST_F(Procedures, TheFirstOneTakesTheEmptyTab) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuViewC(1)");
  EXPECT_FALSE(Premibile("cmdDelP"));
  Premi("cmdSub");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
  EXPECT_TRUE(Premibile("cmdDelP"));
  EXPECT_EQ(finestra->focusWidget(), &txtP());
}

TEST_F(Procedures, ARemovedOneLeavesAGapThatTheNextOneTakes) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuViewC(1)");
  for (int i = 0; i < 3; ++i) Premi("cmdSub");
  Clicca_Scheda(1);
  Premi("cmdDelP");
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_2"}));
  EXPECT_EQ(progetto.Tab_SBR[1].Num, 1);
  EXPECT_EQ(progetto.Tab_SBR[2].Num, 3);
  EXPECT_EQ(txtP().text(0), "// SBR_2\r\n");
  Premi("cmdSub");
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  EXPECT_EQ(TabSP().currentIndex(), 1);
  EXPECT_EQ(txtP().text(0), "// SBR_1\r\n");
}

TEST_F(Procedures, TheLastOneRemovedStaysOnScreenUntilATabIsClicked) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  Premi("cmdSub");
  Premi("cmdDelP");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().text(0), "// SBR_1\r\n");
  Batti(txtP(), "x");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo.find('x'), std::string::npos);
  Clicca_Scheda(0);
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
}

TEST_F(Procedures, WithNoneLeftTheTextIsEmptyAndTheButtonsOff) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  Premi("cmdDelP");
  EXPECT_EQ(Schede(), Lista{""});
  EXPECT_EQ(txtP().Byte(), "");
  EXPECT_FALSE(Premibile("cmdDelP"));
  EXPECT_FALSE(Premibile("CmdNet(1)"));
}

TEST_F(Procedures, ANameWithAnAmpersandIsShownAsItIs) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) +
            "SUBROUTINE_BLOCK A&B:SBR0\r\nNOT\r\nEND_SUBROUTINE_BLOCK\r\n");
  EXPECT_EQ(TabSP().tabText(0), "A&&B");
}

// ---- files --------------------------------------------------------------------------------------

TEST_F(FileCommands, NewOnAModifiedProjectAskedAndRefusedDropsTheEdits) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NOT"}));
  Batti(txtList(), "x");
  risponditore.Risposte = {Risposta::No};
  Comanda("mnuFileNew");
  EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione!: Salvare il progetto corrente?"});
  EXPECT_EQ(risponditore.Avvisi[0].Scelte, Tasti::Si_No);
  EXPECT_EQ(txtList().text(0), "//Main Program\r\n");
  EXPECT_EQ(Etichetta("stB(1)"), "File: NoName.AWL");
}

TEST_F(FileCommands, NewInAWindowThatBeganNewNeverAsks) {
  Avvia(Avvio::Nuovo);
  Batti(txtList(), "x");
  Comanda("mnuFileNew");
  EXPECT_TRUE(risponditore.Avvisi.empty());
  EXPECT_EQ(txtList().text(0), "//Main Program\r\n");
}

TEST_F(FileCommands, NewLeavesTheOldProceduresOnScreen) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}) + Blocco_SBR(1, {"NOP"}));
  Comanda("mnuFileNew");
  EXPECT_EQ(progetto.Num_SBR, 0);
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1"}));
  EXPECT_NE(txtP().Byte().find("NOT"), std::string::npos);
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);  // belongs to no procedure any more
  EXPECT_NE(txtP().Byte().find("NOT"), std::string::npos);
  EXPECT_EQ(TabSP().currentIndex(), 0);
  Premi("cmdSub");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
}

TEST_F(FileCommands, OpeningASecondProjectLosesEditsSilently) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Batti(txtList(), "x");
  Scegli_Da_Aprire(Blocco_Main({"NETWORK 1", "NOP"}), "altro.AWL");
  Comanda("mnuFileOpen");
  EXPECT_TRUE(risponditore.Avvisi.empty());
  EXPECT_NE(txtList().Byte().find("NOP"), std::string::npos);
  EXPECT_EQ(Etichetta("stB(1)"), "File: altro.AWL");
}

TEST_F(FileCommands, OpenCancelledChangesNothing) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Batti(txtList(), "x");
  const std::string prima = txtList().Byte();
  Comanda("mnuFileOpen");
  EXPECT_EQ(txtList().Byte(), prima);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(FileCommands, ThePointerIsAnHourglassWhileAFileIsReadOnly) {
  Avvia(Avvio::Nuovo);
  std::vector<bool> clessidra;
  const auto guarda = [&] { clessidra.push_back(QGuiApplication::overrideCursor() != nullptr); };
  progetto.Chiedi.Scegli_File = [&](const Richiesta_File&) {
    guarda();
    return File_Scelto{Percorso("assente.AWL"), "assente.AWL"};
  };
  progetto.Chiedi.Mostra = [&](const Avviso&) {
    guarda();
    return Risposta::Ok;
  };
  Comanda("mnuFileOpen");
  EXPECT_EQ(clessidra, (std::vector<bool>{false, false}));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FileCommands, SaveAlwaysAsksForTheName) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Batti_In_Fondo(txtList(), "ld i0.0");
  Scegli("nuovo.AWL");
  Comanda("mnuFileSave");
  const Richiesta_File& richiesta = risponditore.Richieste.back();
  EXPECT_TRUE(richiesta.Salva);
  EXPECT_EQ(richiesta.Proposta, "prova.AWL");
  EXPECT_EQ(Etichetta("stB(1)"), "File: nuovo.AWL");
  EXPECT_EQ(progetto.File_Titolo, "prova.AWL");
  EXPECT_EQ(progetto.Modificato, -1);
  EXPECT_NE(Leggi_File("nuovo.AWL").find("\r\nld i0.0\r\n"), std::string::npos);
  EXPECT_NE(txtList().Byte().find("ld i0.0"), std::string::npos);
}

TEST_F(FileCommands, NothingIsSavedWhereNothingIsWritten) {
  Avvia(Avvio::Nuovo);
  txtList().selectAll();
  txtList().replaceSelectedText("");
  Comanda("mnuFileSave");
  EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione: Nessuna riga di codice inserita!"});
  EXPECT_TRUE(risponditore.Richieste.empty());
}

TEST_F(FileCommands, ImportReplacesTheMainText) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  const std::string prima = txtList().Byte();
  Scegli_Da_Aprire("NOT\nNOP", "testo.TXT");
  Comanda("mnuFileTxtImp");
  EXPECT_EQ(txtList().Byte(), "NOT\r\nNOP");
  EXPECT_EQ(progetto.Formattato, 0);
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), prima);
}

TEST_F(FileCommands, ImportOnThePageOfProceduresMakesOne) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Comanda("mnuViewC(1)");
  Scegli_Da_Aprire("NOT\r\n", "testo.TXT");
  Comanda("mnuFileTxtImp");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().Byte(), Righe({"// SBR_0", "//COMMENTI DEL SOTTOPROGRAMMA", "//", "", "NOT"}));
}

TEST_F(FileCommands, ImportAndExportGoWithEveryPageThatCanBeSeen) {
  Avvia(Avvio::Nuovo);
  for (const int pagina : {0, 1, 2, 3}) {
    SSTb2().setCurrentIndex(pagina);
    EXPECT_EQ(SSTb2().currentIndex(), std::min(pagina, 2));
    EXPECT_TRUE(Voce("mnuFileTxtImp").isEnabled());
    EXPECT_TRUE(Voce("mnuFileTxtExp").isEnabled());
  }
}

TEST_F(FileCommands, ExportWritesThePageInFront) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}));
  Comanda("mnuPlcCompile");
  const std::array<std::string, 3> attesi = {progetto.txtList, progetto.txtP, progetto.Lista_Comp};
  for (const std::size_t i : {0U, 1U, 2U}) {
    Comanda(QStringLiteral("mnuViewC(%1)").arg(i));
    Scegli("pagina.TXT");
    Comanda("mnuFileTxtExp");
    EXPECT_EQ(Leggi_File("pagina.TXT"), attesi.at(i));
  }
}

}  // namespace tavorno::prova
