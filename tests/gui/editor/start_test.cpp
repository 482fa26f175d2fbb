// SPDX-License-Identifier: GPL-3.0-or-later
// Start modes, leaving, and the size of the window.
#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

using StartMode = Banco_Editor;
using Leaving = Banco_Editor;
using WindowSize = Banco_Editor;

const std::string nuovo_main = Banco_Editor::Righe(
    {"//Main Program", "//COMMENTI DEL PROGRAMMA", "//", "",
     "NETWORK 1       //TITOLO DEL SEGMENTO (una riga)", "//", "//COMMENTI DEL SEGMENTO", "//"});
const std::string messaggio_formato =
    "Errore!: Impossibile Caricare il progetto per errori nel formato!";

}  // namespace

// ---- start modes --------------------------------------------------------------------------------

TEST_F(StartMode, ANewWindowHasNothingToLoadWhateverTheLastOneCompiled) {
  progetto.Compilato = -1;
  Avvia(Avvio::Nuovo);
  Comanda("mnuPlcCarica");  // the file dialog of its save is cancelled
  EXPECT_EQ(progetto.Carica_CPU, 0);
  EXPECT_TRUE(finestra->isVisible());
}

TEST_F(StartMode, OneReadsTheLoadedProjectAgain) {
  Scrivi_File("mio.AWL", Blocco_Main({"NETWORK 1", "LD I0.0"}) + Blocco_SBR(0, {"NOT"}));
  progetto.File_Progetto = Percorso("mio.AWL");
  progetto.File_Titolo = "mio.AWL";
  progetto.Compilato = -1;
  Avvia(Avvio::Modifica);
  EXPECT_EQ(Etichetta("stB(1)"), "File: mio.AWL");
  EXPECT_EQ(Etichetta("stB(2)"), "List: 5  SBR: 1");
  EXPECT_EQ(txtList().Byte(), progetto.Testo_Main);
  EXPECT_NE(txtList().Byte().find("LD     I0.0"), std::string::npos);
  EXPECT_EQ(txtP().Byte(), progetto.Tab_SBR[1].Testo);
  EXPECT_EQ(Schede(), std::vector<std::string>{"SBR_0"});
  EXPECT_TRUE(Voce("mnuPlcCompile").isEnabled());
  EXPECT_TRUE(Premibile("cmdDelP"));
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Formattato, -1);
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(SSTb2().currentIndex(), 0);
  EXPECT_TRUE(risponditore.Richieste.empty());
  EXPECT_FALSE(txtList().isUndoAvailable());
}

TEST_F(StartMode, OneTellsOfAFailedReadAndNothingElse) {
  Scrivi_File("mio.AWL", Blocco_Main({"LD A B C D E"}));
  progetto.File_Progetto = Percorso("mio.AWL");
  progetto.File_Titolo = "mio.AWL";
  Avvia(Avvio::Modifica);
  EXPECT_EQ(Testi_Avvisi(), std::vector<std::string>{messaggio_formato});
  EXPECT_NE(risponditore.Avvisi[0].Dettagli.find("Riga 4"), std::string::npos);
  EXPECT_EQ(Etichetta("stB(1)"), "File:");
  EXPECT_EQ(Etichetta("stB(2)"), "List: 0   SBR: 0");
  EXPECT_EQ(Etichetta("stB(3)"), "Read Error");
  EXPECT_EQ(txtList().Byte(), "");
  EXPECT_FALSE(Voce("mnuPlcCompile").isEnabled());
  EXPECT_EQ(progetto.Formattato, 0);
}

TEST_F(StartMode, TwoBeginsANewProjectWithoutAQuestion) {
  progetto.New_Sub();
  progetto.Scrivi_Main("NOT");
  Avvia(Avvio::Nuovo);
  EXPECT_TRUE(risponditore.Avvisi.empty());
  EXPECT_EQ(txtList().Byte(), nuovo_main);
  EXPECT_EQ(progetto.Testo_Main, nuovo_main);
  EXPECT_EQ(txtP().Byte(), "");
  EXPECT_EQ(Schede(), std::vector<std::string>{""});
  EXPECT_EQ(progetto.Num_SBR, 0);
  EXPECT_EQ(progetto.Formattato, 0);
  EXPECT_EQ(progetto.File_Titolo, "NoName.AWL");
  EXPECT_EQ(Etichetta("stB(1)"), "File: NoName.AWL");
  EXPECT_FALSE(Premibile("CmdNet(1)"));
  EXPECT_FALSE(Premibile("cmdDelP"));
  EXPECT_TRUE(Voce("mnuFileSave").isEnabled());
  EXPECT_TRUE(Voce("mnuPlcCarica").isEnabled());
  EXPECT_EQ(SSTb2().currentIndex(), 0);
}

TEST_F(StartMode, TwoHasNothingToUndoAfterASavedProject) {
  progetto.Scrivi_Main("NOT");
  progetto.Modificato = 0;
  Avvia(Avvio::Nuovo);
  EXPECT_FALSE(txtList().isUndoAvailable());
}

TEST_F(StartMode, UndoBringsBackAProjectThatWasNeverSaved) {
  progetto.New_Sub();
  progetto.Scrivi_Main("NOT");
  const std::string procedura = progetto.Tab_SBR[1].Testo;
  Avvia(Avvio::Nuovo);
  EXPECT_EQ(progetto.Num_SBR, 0);
  txtList().undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(progetto.Testo_Main, "NOT");
  EXPECT_EQ(progetto.Num_SBR, 1);
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, procedura);
  EXPECT_EQ(Schede(), std::vector<std::string>{"SBR_0"});
}

TEST_F(StartMode, UndoBringsBackWhatWasNotSavedBeforeReadingAgain) {
  Scrivi_File("mio.AWL", Blocco_Main({"NETWORK 1", "LD I0.0"}) + Blocco_SBR(0, {"NOT"}));
  progetto.File_Progetto = Percorso("mio.AWL");
  progetto.New_Sub();
  progetto.Scrivi_Procedura("CRET");
  progetto.Scrivi_Main("NOT");
  Avvia(Avvio::Modifica);
  ASSERT_NE(txtList().Byte(), "NOT");
  txtList().undo();
  txtP().undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(progetto.Testo_Main, "NOT");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, "CRET");
}

TEST_F(StartMode, ThreeAsksForAFile) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0"}));
  ASSERT_EQ(risponditore.Richieste.size(), 1U);
  EXPECT_FALSE(risponditore.Richieste[0].Salva);
  EXPECT_EQ(risponditore.Richieste[0].Filtro, "File AWL (*.AWL)|*.AWL");
  EXPECT_EQ(Etichetta("stB(1)"), "File: prova.AWL");
  EXPECT_EQ(Etichetta("stB(2)"), "List: 2  SBR: 0");
  EXPECT_TRUE(Voce("mnuPlcCompile").isEnabled());
  EXPECT_EQ(SSTb2().currentIndex(), 0);
}

TEST_F(StartMode, ThreeCancelledChangesNothing) {
  progetto.New_Sub();
  progetto.Scrivi_Main("NOT\r\n");
  progetto.Gestione_Voci(1);
  Avvia(Avvio::Apri);
  EXPECT_EQ(txtList().Byte(), "NOT\r\n");
  EXPECT_EQ(Schede(), std::vector<std::string>{"SBR_0"});
  EXPECT_EQ(txtP().Byte(), progetto.Tab_SBR[1].Testo);
  EXPECT_TRUE(risponditore.Avvisi.empty());
}

TEST_F(StartMode, FiveShowsTheCompiledList) {
  Scrivi_File("mio.AWL", Blocco_Main({"NETWORK 1", "ld i0.0"}));
  progetto.File_Progetto = Percorso("mio.AWL");
  progetto.LeggiTxt();
  Avvia(Avvio::Lista);
  EXPECT_EQ(txtList().Byte(), "//\r\n//\r\nNETWORK 1\r\nLD     I0.0           \r\n");
  EXPECT_EQ(SSTb2().currentIndex(), 0);
}

TEST_F(StartMode, AnyOtherStartsEmpty) {
  progetto.New_Sub();
  progetto.Scrivi_Main("NOT");
  Avvia(Avvio::Vuoto);
  EXPECT_EQ(txtList().Byte(), "");
  EXPECT_EQ(Schede(), std::vector<std::string>{""});
  EXPECT_EQ(progetto.Num_SBR, 0);
  for (const char* voce : {"mnuFileSave", "mnuPlcCompile", "mnuPlcCarica", "mnuFileStp"})
    EXPECT_FALSE(Voce(voce).isEnabled()) << voce;
  for (const char* tasto : {"tB1(Save)", "tB1(Compila)", "tB1(Carica)", "tB1(Stampa)"})
    EXPECT_FALSE(Trova<QToolButton>(tasto).isEnabled()) << tasto;
  EXPECT_FALSE(Premibile("CmdNet(1)"));
  EXPECT_FALSE(Premibile("cmdDelP"));
}

TEST_F(StartMode, TheDialogsOfTheWindowAreGoneWithIt) {
  progetto.Chiedi = {};
  Avvia(Avvio::Nuovo);
  EXPECT_TRUE(progetto.Chiedi.Mostra);
  EXPECT_TRUE(progetto.Chiedi.Scegli_File);
  finestra.reset();
  EXPECT_FALSE(progetto.Chiedi.Mostra);
  EXPECT_FALSE(progetto.Chiedi.Scegli_File);
}

/// The window is not active yet when it asks for its file: a dialog over another window would leave
/// that one in front.
TEST_F(StartMode, TheQuestionForAFileStandsOverTheWindow) {
  progetto.Chiedi = {};
  QWidget altra;
  altra.show();
  altra.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&altra));
  finestra = std::make_unique<FrmMain>(progetto, plc, legami);
  const QWidget* sotto = nullptr;
  QTimer::singleShot(0, [&] {
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    sotto = dialogo->parentWidget();
    dialogo->reject();
  });
  finestra->Avvia(Avvio::Apri);
  EXPECT_EQ(sotto, finestra.get());
}

// ---- leaving ------------------------------------------------------------------------------------

TEST_F(Leaving, ClosingShowsThePanelWithoutAQuestion) {
  Avvia(Avvio::Nuovo);
  Batti(txtList(), "x");
  progetto.Carica_CPU = 1;
  finestra->close();
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(pannello, 1);
  EXPECT_EQ(progetto.Carica_CPU, 1);
  EXPECT_EQ(plc.Ferma, 0);
  EXPECT_TRUE(risponditore.Avvisi.empty());
}

TEST_F(Leaving, TerminaStopsTheRunAndTakesTheProgramBack) {
  Avvia(Avvio::Nuovo);
  progetto.Carica_CPU = 1;
  Comanda("mnuFileEnd");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(pannello, 1);
  EXPECT_EQ(progetto.Carica_CPU, 0);
  EXPECT_EQ(plc.Ferma, -1);
  finestra->close();
  EXPECT_EQ(pannello, 1);  // it is closed already
}

TEST_F(Leaving, CaricaHandsTheProgramOver) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0", "= Q0.0"}));
  Comanda("mnuPlcCarica");
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(pannello, 1);
  EXPECT_EQ(progetto.Carica_CPU, 1);
}

TEST_F(Leaving, CaricaWithErrorsStays) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "XYZ"}));
  Comanda("mnuPlcCarica");
  EXPECT_TRUE(finestra->isVisible());
  EXPECT_EQ(pannello, 0);
  EXPECT_EQ(progetto.Carica_CPU, 0);
  EXPECT_EQ(Testi_Avvisi().back(), "Errori!: Impossibile caricare nella CPU");
}

// ---- size ---------------------------------------------------------------------------------------

class HeightRule : public Banco_Editor, public testing::WithParamInterface<std::pair<bool, bool>> {
 public:
  int Regola() const {
    int altezza = 68 + Trova<QWidget>("picF").height();
    for (const char* barra : {"tB1", "stB"}) {
      const auto& controllo = Trova<QWidget>(barra);
      if (controllo.isVisible()) altezza += controllo.height();
    }
    return altezza;
  }
};

TEST_P(HeightRule, HoldsOnEveryResize) {
  Avvia(Avvio::Nuovo);
  const auto [barra, stato] = GetParam();
  if (!barra) Comanda("mnuViewTB");
  if (!stato) Comanda("mnuViewSTB");
  EXPECT_EQ(Voce("mnuViewTB").isChecked(), barra);
  EXPECT_EQ(Voce("mnuViewSTB").isChecked(), stato);
  EXPECT_EQ(Trova<QToolBar>("tB1").isVisible(), barra);
  EXPECT_EQ(finestra->statusBar()->isVisible(), stato);
  for (const QSize chiesta : {QSize(1000, 900), QSize(890, 300), QSize(901, 548)}) {
    finestra->resize(chiesta);
    QCoreApplication::processEvents();
    EXPECT_EQ(finestra->width(), chiesta.width());
    EXPECT_EQ(Trova<QWidget>("picF").height(), 421);
    EXPECT_EQ(Trova<QWidget>("picF").width(), chiesta.width());
    EXPECT_EQ(finestra->height(), Regola());
  }
}

INSTANTIATE_TEST_SUITE_P(Bars, HeightRule,
                         testing::Values(std::pair{true, true}, std::pair{false, true},
                                         std::pair{true, false}, std::pair{false, false}));

TEST_F(WindowSize, WithTheBarsOffItShrinksByTheirHeight) {
  Avvia(Avvio::Nuovo);
  const int intera = finestra->height();
  const int barra = Trova<QToolBar>("tB1").height();
  const int stato = finestra->statusBar()->height();
  Comanda("mnuViewTB");
  EXPECT_EQ(finestra->height(), intera - barra);
  Comanda("mnuViewSTB");
  EXPECT_EQ(finestra->height(), intera - barra - stato);
  Comanda("mnuViewTB");
  Comanda("mnuViewSTB");
  EXPECT_EQ(finestra->height(), intera);
  // From the menu that the right button opens on the menu bar.
  const std::unique_ptr<QMenu> menu(finestra->createPopupMenu());
  menu->actions().constFirst()->trigger();
  EXPECT_FALSE(Voce("mnuViewTB").isChecked());
  EXPECT_EQ(finestra->height(), intera - barra);
  menu->actions().constFirst()->trigger();
  EXPECT_TRUE(Voce("mnuViewTB").isChecked());
  EXPECT_EQ(finestra->height(), intera);
}

TEST_F(WindowSize, MaximisedItFillsTheScreen) {
  Avvia(Avvio::Nuovo);
  const int normale = finestra->height();
  finestra->showMaximized();
  QCoreApplication::processEvents();
  EXPECT_GT(finestra->height(), normale);
  EXPECT_GT(Trova<QWidget>("picF").height(), 421);
  finestra->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(finestra->height(), normale);
}

}  // namespace tavorno::prova
