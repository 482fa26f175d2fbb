// SPDX-License-Identifier: GPL-3.0-or-later
// Nothing that a command takes away is out of reach of the undo key.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

class Undo : public Banco_Editor {
 public:
  const std::string due_procedure =
      Blocco_Main({"NETWORK 1", "LD I0.0"}) + Blocco_SBR(0, {"NOT"}) + Blocco_SBR(1, {"NOP"});

  /// Two procedures that are longer than the window is high.
  void Avvia_Lunghe() {
    const Lista cento(100, "NOT");
    Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, cento) + Blocco_SBR(1, cento));
    Comanda("mnuViewC(1)");
  }
  /// Caret, beginning of the selection and scroll.
  static std::vector<long> Veduta(const AwlEditor& testo) {
    return {testo.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS),
            testo.SendScintilla(QsciScintilla::SCI_GETANCHOR),
            testo.SendScintilla(QsciScintilla::SCI_GETFIRSTVISIBLELINE)};
  }
};

}  // namespace

TEST_F(Undo, EachProcedureKeepsItsOwnHistory) {
  Avvia_Con(due_procedure);
  Comanda("mnuViewC(1)");
  const std::string prima = txtP().Byte();
  Batti_In_Fondo(txtP(), "EU");
  Clicca_Scheda(1);
  EXPECT_FALSE(txtP().isUndoAvailable());
  const std::string seconda = txtP().Byte();
  Batti_In_Fondo(txtP(), "ED");
  txtP().undo();
  EXPECT_EQ(txtP().Byte(), seconda);
  Clicca_Scheda(0);
  EXPECT_TRUE(txtP().isUndoAvailable());
  txtP().undo();
  EXPECT_EQ(txtP().Byte(), prima);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, prima);
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, seconda);
}

TEST_F(Undo, EachProcedureKeepsItsCaretSelectionAndScroll) {
  Avvia_Lunghe();
  txtP().setSelection(60, 1, 60, 3);
  txtP().setFirstVisibleLine(55);
  const std::vector<long> prima = Veduta(txtP());
  ASSERT_EQ(prima[2], 55);
  Clicca_Scheda(1);
  EXPECT_EQ(Veduta(txtP()), (std::vector<long>{0, 0, 0}));  // nobody has been there
  txtP().setCursorPosition(30, 2);
  txtP().setFirstVisibleLine(20);
  const std::vector<long> seconda = Veduta(txtP());
  Clicca_Scheda(0);
  EXPECT_EQ(Veduta(txtP()), prima);
  TabSP().setCurrentIndex(1);  // as the arrow keys do
  EXPECT_EQ(Veduta(txtP()), seconda);
  Premi("cmdSub");
  Clicca_Scheda(0);
  EXPECT_EQ(Veduta(txtP()), prima);
  Premi("cmdDelP");
  Clicca_Scheda(0);
  EXPECT_EQ(Veduta(txtP()), seconda);
}

TEST_F(Undo, WhatComesBackIsSeenAsItWas) {
  Avvia_Lunghe();
  txtP().setCursorPosition(60, 1);
  txtP().setFirstVisibleLine(55);
  const std::vector<long> prima = Veduta(txtP());
  Clicca_Scheda(1);
  txtP().setCursorPosition(30, 2);
  txtP().setFirstVisibleLine(20);
  const std::vector<long> seconda = Veduta(txtP());
  Comanda("mnuFileNew");
  txtList().undo();
  EXPECT_EQ(Veduta(txtP()), seconda);
  Clicca_Scheda(0);
  EXPECT_EQ(Veduta(txtP()), prima);
}

TEST_F(Undo, HistoriesMoveWithTheirProcedures) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}) + Blocco_SBR(0, {"NOT"}) + Blocco_SBR(2, {"NOP"}));
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  const std::string prima = txtP().Byte();
  Batti_In_Fondo(txtP(), "EU");
  Premi("cmdSub");  // SBR_1, in front of the edited one
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  Clicca_Scheda(0);
  Premi("cmdDelP");
  EXPECT_EQ(Schede(), (Lista{"SBR_1", "SBR_2"}));
  Clicca_Scheda(1);
  EXPECT_EQ(txtP().Byte(), prima + "EU");
  txtP().undo();
  EXPECT_EQ(txtP().Byte(), prima);
}

TEST_F(Undo, ANewProjectCanBeTakenBack) {
  Avvia_Con(due_procedure);
  const std::string prima = txtList().Byte();
  Comanda("mnuFileNew");
  EXPECT_NE(txtList().Byte(), prima);
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), prima);
  EXPECT_EQ(progetto.Testo_Main, prima);
}

TEST_F(Undo, TheRewritingOfACompileCanBeTakenBack) {
  Avvia_Con(due_procedure);
  txtList().Vai_In_Fondo();
  txtList().insert("ld   i0.1\r\n");
  const std::string scritto = txtList().Byte();
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_EQ(txtList().Byte().find("ld   i0.1"), std::string::npos);
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), scritto);
  txtList().redo();
  EXPECT_NE(txtList().Byte().find("LD     I0.1"), std::string::npos);
}

TEST_F(Undo, TheLastProcedureRemovedComesBackOnScreen) {
  Avvia(Avvio::Nuovo);
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  const std::string prima = txtP().Byte();
  Premi("cmdDelP");
  EXPECT_EQ(txtP().Byte(), "");
  txtP().undo();
  EXPECT_EQ(txtP().Byte(), prima);
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
}

// ---- failed reads -------------------------------------------------------------------------------

struct Caso_Perdita {
  const char* nome;
  bool compila;    // the read of a compile, else of another file
  bool procedura;  // the undo is given on the procedure's text, else on the Main's
};

class FailedRead : public Undo, public testing::WithParamInterface<Caso_Perdita> {};

TEST_P(FailedRead, ComesBackWithAllProcedures) {
  Avvia_Con(due_procedure);
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  Batti_In_Fondo(txtP(), "EU");
  if (GetParam().compila) {
    txtList().Vai_In_Fondo();
    txtList().insert("MOVW VW0,VW2 123456789012345678901234567890\r\n");
    Scegli("salvato.AWL");
    Comanda("mnuPlcCompile");
  }
  const std::string main = GetParam().compila ? "" : txtList().Byte();
  const Riga_SBR prima = progetto.Tab_SBR[1];
  if (!GetParam().compila) {
    Scegli_Da_Aprire("niente", "guasto.AWL");
    Comanda("mnuFileOpen");
  }
  EXPECT_EQ(Testi_Avvisi().back(),
            "Errore!: Impossibile Caricare il progetto per errori nel formato!");
  EXPECT_FALSE(risponditore.Avvisi.back().Dettagli.empty());
  EXPECT_EQ(txtList().Byte(), "");
  EXPECT_EQ(txtP().Byte(), "");
  EXPECT_EQ(progetto.Num_SBR, 0);
  EXPECT_EQ(Schede(), Lista{""});
  EXPECT_FALSE(Voce("mnuPlcCompile").isEnabled());

  (GetParam().procedura ? txtP() : txtList()).undo();
  if (!main.empty()) {
    EXPECT_EQ(txtList().Byte(), main);
  }
  EXPECT_FALSE(txtList().Byte().empty());
  EXPECT_NE(txtP().Byte().find("EU"), std::string::npos);
  EXPECT_EQ(progetto.Num_SBR, 2);
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, txtP().Byte());
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1"}));
  EXPECT_EQ(TabSP().currentIndex(), 1);
  EXPECT_TRUE(Voce("mnuPlcCompile").isEnabled());
  EXPECT_EQ(progetto.File_Titolo, "prova.AWL");
  EXPECT_EQ(progetto.Modificato, -1);
  Clicca_Scheda(0);
  EXPECT_NE(txtP().Byte().find("NOT"), std::string::npos);
  if (!GetParam().compila) {
    EXPECT_EQ(progetto.Tab_SBR[1], prima);
  }
  Clicca_Scheda(1);
  txtP().undo();  // the restored texts have kept what was typed before
  EXPECT_NE(txtP().Byte(), progetto.Tab_SBR[1].Testo);
}

INSTANTIATE_TEST_SUITE_P(Reads, FailedRead,
                         testing::Values(Caso_Perdita{"CompileMain", true, false},
                                         Caso_Perdita{"CompileProcedure", true, true},
                                         Caso_Perdita{"OpenMain", false, false},
                                         Caso_Perdita{"OpenProcedure", false, true}),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST_F(Undo, AFailedReadAtTheStartComesBackToo) {
  progetto.Scrivi_Main("//mio\r\nNOT\r\n");
  progetto.New_Sub();
  progetto.File_Progetto = Percorso("assente.AWL");
  Avvia(Avvio::Modifica);
  EXPECT_EQ(txtList().Byte(), "");
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), "//mio\r\nNOT\r\n");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
}

TEST_F(Undo, AFailedReadOutweighsWhatTheWindowTookAwayWhenItOpened) {
  progetto.New_Sub();
  progetto.Scrivi_Main("//mio\r\n");
  Avvia(Avvio::Nuovo);
  txtList().Vai_In_Fondo();
  txtList().insert("MOVW VW0,VW2 123456789012345678901234567890\r\n");
  const std::string nuovo = txtList().Byte();
  Scegli("salvato.AWL");
  Comanda("mnuPlcCompile");
  ASSERT_EQ(txtList().Byte(), "");
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), nuovo);
  EXPECT_TRUE(Voce("mnuPlcCompile").isEnabled());
}

TEST_F(Undo, ProceduresMadeSinceAreTakenBackFirstAndComeAgain) {
  Avvia_Con(due_procedure);
  const std::string main = txtList().Byte();
  Scegli_Da_Aprire("niente", "guasto.AWL");
  Comanda("mnuFileOpen");
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  txtList().undo();
  EXPECT_EQ(Schede(), Lista{""});
  EXPECT_EQ(txtList().Byte(), "");
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), main);
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1"}));
  txtP().redo();
  txtP().redo();
  EXPECT_EQ(txtList().Byte(), "");
  EXPECT_EQ(Schede(), Lista{"SBR_0"});
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
  EXPECT_FALSE(txtP().Ripetibile());
}

// ---- commands that take the project away --------------------------------------------------------

struct Caso_Comando {
  const char* nome;
  const char* comando;  // gives the other project
  bool procedura;       // the undo is given on the procedure's text, else on the Main's
};

class WholeProject : public Undo, public testing::WithParamInterface<Caso_Comando> {
 protected:
  AwlEditor& Testo_Scelto() const { return GetParam().procedura ? txtP() : txtList(); }
  /// All that is on screen of a project.
  Lista Schermo() const {
    Lista tutto = Schede();
    for (const auto& testo : {txtList().Byte(), txtP().Byte(), Etichetta("stB(1)"),
                              progetto.File_Titolo, std::to_string(progetto.Num_SBR)})
      tutto.push_back(testo);
    for (int i = 1; i <= progetto.Num_SBR; ++i) tutto.push_back(progetto.Tab_SBR[i].Testo);
    return tutto;
  }
};

TEST_P(WholeProject, ComesBackByOneUndoAndGoesByOneRedo) {
  Avvia(Avvio::Nuovo);  // New asks no question in this window
  Comanda("mnuViewC(1)");
  Premi("cmdSub");
  Premi("cmdSub");
  Batti_In_Fondo(txtP(), "EU");
  Batti_In_Fondo(txtList(), "ED");
  const Lista prima = Schermo();
  Scegli_Da_Aprire(due_procedure, "altro.AWL");
  Comanda(GetParam().comando);
  const Lista dopo = Schermo();
  ASSERT_NE(dopo, prima);
  EXPECT_TRUE(Testo_Scelto().Annullabile());
  Testo_Scelto().undo();
  EXPECT_EQ(Schermo(), prima);
  EXPECT_TRUE(Premibile("cmdDelP"));
  Clicca_Scheda(0);
  EXPECT_EQ(txtP().text(0), "// SBR_0\r\n");
  Clicca_Scheda(1);
  Testo_Scelto().redo();
  EXPECT_EQ(Schermo(), dopo);
  EXPECT_FALSE(Testo_Scelto().Ripetibile());
  Testo_Scelto().undo();
  EXPECT_EQ(Schermo(), prima);
  txtList().undo();  // what was typed before is still to be taken back
  EXPECT_EQ(txtList().Byte().find("ED"), std::string::npos);
}

TEST_P(WholeProject, StaysAwayOnceSomethingWasTypedInTheOtherText) {
  Avvia_Con(due_procedure);
  Scegli_Da_Aprire(Blocco_Main({"NOT"}) + Blocco_SBR(0, {"NOT"}), "altro.AWL");
  Comanda("mnuFileOpen");
  Comanda("mnuViewC(1)");
  AwlEditor& altro = GetParam().procedura ? txtList() : txtP();
  Batti_In_Fondo(altro, "x");
  const Lista dopo = Schermo();
  Testo_Scelto().undo();
  EXPECT_EQ(Schermo(), dopo);
  altro.undo();
  EXPECT_TRUE(Testo_Scelto().Annullabile());
  Testo_Scelto().undo();
  EXPECT_EQ(progetto.Num_SBR, 2);
}

INSTANTIATE_TEST_SUITE_P(Commands, WholeProject,
                         testing::Values(Caso_Comando{"NewMain", "mnuFileNew", false},
                                         Caso_Comando{"NewProcedure", "mnuFileNew", true},
                                         Caso_Comando{"OpenMain", "mnuFileOpen", false},
                                         Caso_Comando{"OpenProcedure", "mnuFileOpen", true}),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST_F(Undo, ARemovedProcedureComesBackWithItsPlace) {
  Avvia_Con(due_procedure);
  Comanda("mnuViewC(1)");
  const std::string prima = txtP().Byte();
  Premi("cmdDelP");
  EXPECT_EQ(Schede(), Lista{"SBR_1"});
  txtList().undo();
  EXPECT_EQ(Schede(), (Lista{"SBR_0", "SBR_1"}));
  EXPECT_EQ(txtP().Byte(), prima);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, prima);
}

// ---- texts that belong to no procedure ----------------------------------------------------------

class Leftover : public Undo, public testing::WithParamInterface<const char*> {};

TEST_P(Leftover, IsForReadingOnlyUntilATabIsChosen) {
  Avvia_Con(due_procedure);
  Comanda("mnuViewC(1)");
  Clicca_Scheda(1);
  const std::string testo = txtP().Byte();
  EXPECT_FALSE(Trova<QLabel>("etSenza_SBR").isVisible());
  Comanda(GetParam());  // the removal has no entry: its button is pressed
  if (std::string(GetParam()) == "mnuViewC(1)") Premi("cmdDelP");
  EXPECT_EQ(txtP().Byte(), testo);
  EXPECT_TRUE(txtP().isReadOnly());
  EXPECT_TRUE(Trova<QLabel>("etSenza_SBR").isVisible());
  EXPECT_FALSE(Premibile("cmdDelP"));
  EXPECT_FALSE(Premibile("CmdNet(1)"));
  Batti_In_Fondo(txtP(), "x");
  EXPECT_EQ(txtP().Byte(), testo);
  if (progetto.Num_SBR == 0)
    Premi("cmdSub");
  else
    Clicca_Scheda(0);
  EXPECT_FALSE(txtP().isReadOnly());
  EXPECT_FALSE(Trova<QLabel>("etSenza_SBR").isVisible());
  EXPECT_TRUE(Premibile("cmdDelP"));
  EXPECT_TRUE(Premibile("CmdNet(1)"));
  Batti_In_Fondo(txtP(), "x");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, txtP().Byte());
}

INSTANTIATE_TEST_SUITE_P(Causes, Leftover, testing::Values("mnuViewC(1)", "mnuFileNew"));

}  // namespace tavorno::prova
