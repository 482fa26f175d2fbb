// SPDX-License-Identifier: GPL-3.0-or-later
// Every control of the window by its name and text.
#include <map>
#include <set>

#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

using Controls = Banco_Editor;

struct Caso_Voce {
  const char* titolo;  // name of the menu
  int posto;           // in it, separators included
  const char* nome;    // empty: a separator
  const char* testo;
};

class MenuEntry : public Banco_Editor, public testing::WithParamInterface<Caso_Voce> {};

}  // namespace

TEST_P(MenuEntry, StandsAtItsPlaceWithItsCaption) {
  const Caso_Voce& caso = GetParam();
  Avvia(Avvio::Nuovo);
  const QList<QAction*> voci = Voce(caso.titolo).menu()->actions();
  ASSERT_LT(caso.posto, voci.size());
  const QAction& voce = *voci[caso.posto];
  EXPECT_EQ(voce.isSeparator(), *caso.nome == '\0');
  EXPECT_EQ(Utf8(voce.objectName()), caso.nome);
  EXPECT_EQ(Utf8(voce.text()), caso.testo);
}

INSTANTIATE_TEST_SUITE_P(
    Menus, MenuEntry,
    testing::Values(
        Caso_Voce{"mnuFile", 0, "mnuFileNew", "&Nuovo File .AWL"},
        Caso_Voce{"mnuFile", 1, "mnuFileOpen", "&Apri File .AWL"},
        Caso_Voce{"mnuFile", 2, "mnuFileSave", "&Salva File .AWL"}, Caso_Voce{"mnuFile", 3, "", ""},
        Caso_Voce{"mnuFile", 4, "mnuFileTxtImp", "&Importa File TXT in finestra corrente"},
        Caso_Voce{"mnuFile", 5, "mnuFileTxtExp", "&Esporta finestra corrente Come File TXT"},
        Caso_Voce{"mnuFile", 6, "mnufiltxtT", "Salva Progetto come File T&XT"},
        Caso_Voce{"mnuFile", 7, "", ""}, Caso_Voce{"mnuFile", 8, "mnuFileStp", "Sta&mpa"},
        Caso_Voce{"mnuFile", 9, "", ""}, Caso_Voce{"mnuFile", 10, "mnuFileEnd", "&Termina"},
        Caso_Voce{"mnuPlc", 0, "mnuPlcCompile", "Compila &Progetto"},
        Caso_Voce{"mnuPlc", 1, "mnuPlcCarica", "Carica nella &CPU"},
        Caso_Voce{"mnuView", 0, "mnuViewTB", "&Tool Bar"},
        Caso_Voce{"mnuView", 1, "mnuViewSTB", "&Status Bar"}, Caso_Voce{"mnuView", 2, "", ""},
        Caso_Voce{"mnuView", 3, "mnuViewCode", "&Finestra Editor"},
        Caso_Voce{"mnuViewCode", 0, "mnuViewC(0)", "&Main"},
        Caso_Voce{"mnuViewCode", 1, "mnuViewC(1)", "&Procedure"},
        Caso_Voce{"mnuViewCode", 2, "mnuViewC(2)", "&Lista Errori Compilazione"},
        Caso_Voce{"mnuView", 4, "", ""}, Caso_Voce{"mnuView", 5, "mnuViewKOP", "Finestra Sca&laro"},
        Caso_Voce{"MnuHLP", 0, "MnuHLPIndex", "&Indice"},
        Caso_Voce{"MnuHLP", 1, "MnuHlpList", "&Lista istruzioni Supportate"},
        Caso_Voce{"MnuHLP", 2, "", ""}, Caso_Voce{"MnuHLP", 3, "MnuHLPInfo", "&About"}));

TEST_F(Controls, TheMenuBarHasItsFourTitles) {
  Avvia(Avvio::Nuovo);
  std::vector<std::string> titoli;
  for (const QAction* titolo : finestra->menuBar()->actions())
    titoli.push_back(Utf8(titolo->objectName()) + " " + Utf8(titolo->text()));
  EXPECT_EQ(titoli, (std::vector<std::string>{"mnuFile &File", "mnuPlc &PLC", "mnuView &Visualizza",
                                              "MnuHLP &Help"}));
}

// ---- tool bar -----------------------------------------------------------------------------------

TEST_F(Controls, TheToolBarHasItsButtonsInOrder) {
  Avvia(Avvio::Nuovo);
  const std::vector<std::string> attesi = {
      "tB1(New) Nuovo Progetto",       "tB1(Open) Apri Progetto",      "tB1(Save) Salva Progetto",
      "tB1(Compila) Compila Progetto", "tB1(Carica) Carica nella CPU", "tB1(Stampa) Stampa",
      "tB1(Centra) Centra Finestra",   "tB1(Info) Informazioni",       "tB1(Termina) Termina"};
  std::vector<std::string> trovati;
  for (const QAction* tasto : Trova<QToolBar>("tB1").actions()) {
    if (tasto->isSeparator()) continue;
    trovati.push_back(Utf8(tasto->objectName()) + " " + Utf8(tasto->toolTip()));
    EXPECT_FALSE(tasto->icon().isNull()) << trovati.back();
    EXPECT_FALSE(tasto->icon().pixmap(22).isNull()) << trovati.back();
  }
  EXPECT_EQ(trovati, attesi);
}

struct Caso_Tasto {
  const char* tasto;
  const char* voce;
};
class ToolButton : public Banco_Editor, public testing::WithParamInterface<Caso_Tasto> {};

TEST_P(ToolButton, GivesTheCommandOfItsEntry) {
  Avvia(Avvio::Nuovo);
  QAction& voce = Voce(GetParam().voce);
  auto& tasto = Trova<QToolButton>(GetParam().tasto);
  int volte = 0;
  QObject::disconnect(&voce, nullptr, finestra.get(), nullptr);  // the command itself is not wanted
  QObject::connect(&voce, &QAction::triggered, finestra.get(), [&volte] { ++volte; });
  QTest::mouseClick(&tasto, Qt::LeftButton);
  EXPECT_EQ(volte, 1);
  voce.setEnabled(!voce.isEnabled());
  EXPECT_EQ(tasto.isEnabled(), voce.isEnabled());
}

INSTANTIATE_TEST_SUITE_P(ToolBar, ToolButton,
                         testing::Values(Caso_Tasto{"tB1(New)", "mnuFileNew"},
                                         Caso_Tasto{"tB1(Open)", "mnuFileOpen"},
                                         Caso_Tasto{"tB1(Save)", "mnuFileSave"},
                                         Caso_Tasto{"tB1(Compila)", "mnuPlcCompile"},
                                         Caso_Tasto{"tB1(Carica)", "mnuPlcCarica"},
                                         Caso_Tasto{"tB1(Stampa)", "mnuFileStp"},
                                         Caso_Tasto{"tB1(Info)", "MnuHLPInfo"},
                                         Caso_Tasto{"tB1(Termina)", "mnuFileEnd"}));

TEST_F(Controls, CentraPutsTheWindowInTheMiddleOfTheScreen) {
  Avvia(Avvio::Nuovo);
  finestra->move(3, 5);
  QTest::mouseClick(&Trova<QToolButton>("tB1(Centra)"), Qt::LeftButton);
  const QPoint mezzo = finestra->screen()->availableGeometry().center();
  EXPECT_LE((finestra->frameGeometry().center() - mezzo).manhattanLength(), 2);
}

TEST_F(Controls, TheShortCutsReachTheirCommandsFromTheText) {
  Avvia(Avvio::Nuovo);
  Attiva();
  std::set<QString> date;
  int volte = 0;
  for (QAction* voce : finestra->findChildren<QAction*>()) {
    const QKeySequence tasti = voce->shortcut();
    if (tasti.isEmpty()) continue;
    EXPECT_TRUE(date.insert(tasti.toString()).second) << Utf8(tasti.toString());
    QObject::disconnect(voce, nullptr, finestra.get(), nullptr);
    QObject::connect(voce, &QAction::triggered, finestra.get(), [&volte] { ++volte; });
    volte = 0;
    QTest::keyClick(&txtList(), tasti[0].key(), tasti[0].keyboardModifiers());
    EXPECT_EQ(volte, 1) << Utf8(voce->objectName());
  }
  EXPECT_GE(date.size(), 14U);
}

TEST_F(Controls, ShortCuts) {
  Avvia(Avvio::Nuovo);
  const std::map<QString, QString> attesi = {
      {"mnuFileNew", "Ctrl+N"},       {"mnuFileOpen", "Ctrl+O"},    {"mnuFileSave", "Ctrl+S"},
      {"mnuFileTxtImp", "Ctrl+I"},    {"mnuFileTxtExp", "Ctrl+E"},  {"mnuFileStp", "Ctrl+P"},
      {"mnuFileEnd", "Ctrl+Q"},       {"mnuPlcCompile", "F7"},      {"mnuPlcCarica", "F8"},
      {"mnuViewC(0)", "Ctrl+1"},      {"mnuViewC(1)", "Ctrl+2"},    {"mnuViewC(2)", "Ctrl+3"},
      {"mnuViewKOP", "Ctrl+4"},       {"MnuHLPIndex", "F1"},        {"MnuHlpList", "Shift+F1"},
      {"CmdNet(0)", "Ctrl+Return"},   {"CmdNet(1)", "Ctrl+Return"}, {"cmdTest", "F9"},
      {"cmdSub", "Ctrl+Shift+Return"}};
  std::map<QString, QString> presenti;
  for (const QAction* voce : finestra->findChildren<QAction*>())
    if (!voce->shortcut().isEmpty()) presenti[voce->objectName()] = voce->shortcut().toString();
  for (const QPushButton* tasto : finestra->findChildren<QPushButton*>())
    if (!tasto->shortcut().isEmpty()) presenti[tasto->objectName()] = tasto->shortcut().toString();
  for (const auto& [nome, tasti] : attesi) EXPECT_EQ(presenti[nome], tasti) << Utf8(nome);
}

TEST_F(Controls, AShortCutGivesTheButtonOfThePageInFront) {
  Avvia(Avvio::Nuovo);
  Attiva();
  for (const int pagina : {0, 1}) {
    SSTb2().setCurrentIndex(pagina);
    auto& tasto = Trova<QPushButton>(QStringLiteral("CmdNet(%1)").arg(pagina));
    tasto.setEnabled(true);
    QTest::keyClick(pagina == 0 ? &txtList() : &txtP(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(tasto.isDown()) << pagina;  // the click follows when it comes up
  }
}

// ---- the rest -----------------------------------------------------------------------------------

TEST_F(Controls, TheWindowHasItsNameAndCaption) {
  Avvia(Avvio::Nuovo);
  EXPECT_EQ(finestra->objectName(), "frmMain");
  EXPECT_EQ(finestra->windowTitle(), " Editor AWL per Tavorno.");
  EXPECT_EQ(Trova<QWidget>("picF").width(), 901);
}

TEST_F(Controls, TheTitleTellsThatSomethingIsSavedNowhere) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  EXPECT_EQ(finestra->windowTitle(), " Editor AWL per Tavorno.");
  Batti_In_Fondo(txtList(), "NOT");
  EXPECT_EQ(finestra->windowTitle(), " Editor AWL per Tavorno. *");
  Scegli("altro.AWL");
  Comanda("mnuFileSave");
  EXPECT_EQ(finestra->windowTitle(), " Editor AWL per Tavorno.");
}

TEST_F(Controls, TheTextHasFiveMoreLinesThanTheGivenPlacesLeave) {
  Avvia(Avvio::Nuovo);
  QCoreApplication::processEvents();
  const auto visibili = [](const AwlEditor& testo) {
    return testo.SendScintilla(QsciScintilla::SCI_LINESONSCREEN);
  };
  const auto una = txtList().SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0L);
  EXPECT_GE(visibili(txtList()), 342 / (una + 1) + 5) << "pixels that they once shared";
  EXPECT_EQ(Trova<QWidget>("picF").height(), 421);
}

TEST_F(Controls, ADroppedFileOpens) {
  Avvia(Avvio::Nuovo);
  Scrivi_File("caduto.AWL", Blocco_Main({"NETWORK 1", "NOP"}));
  QMimeData dati;
  dati.setUrls({QUrl::fromLocalFile(Q(Percorso("caduto.AWL")))});
  dati.setText(Q(Percorso("caduto.AWL")));
  QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  entra.ignore();
  QApplication::sendEvent(txtList().viewport(), &entra);
  EXPECT_TRUE(entra.isAccepted()) << "by the window, since the text takes no file's name";
  QDropEvent cade(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  static_cast<QObject&>(*finestra).event(&cade);  // a drop itself needs the desktop
  EXPECT_EQ(txtList().Byte().find("NOP"), std::string::npos) << "not while the other side waits";
  QCoreApplication::processEvents();
  EXPECT_NE(txtList().Byte().find("NOP"), std::string::npos);
  EXPECT_EQ(Etichetta("stB(1)"), "File: caduto.AWL");
}

TEST_F(Controls, WhatCannotBeOpenedIsNotTakenOrIsTold) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NOP"}));
  const auto preso = [this](const QList<QUrl>& cose) {
    QMimeData dati;
    dati.setUrls(cose);
    QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    entra.ignore();
    QApplication::sendEvent(txtList().viewport(), &entra);
    return entra.isAccepted();
  };
  const QUrl file = QUrl::fromLocalFile(Q(Percorso("prova.AWL")));
  EXPECT_TRUE(preso({file}));
  EXPECT_FALSE(preso({file, file}));
  EXPECT_FALSE(preso({QUrl(QStringLiteral("http://localhost/prova.AWL"))}));
  const auto prima = risponditore.Avvisi.size();
  QMimeData dati;
  dati.setUrls({QUrl::fromLocalFile(Q(cartella.string()))});
  QDropEvent cade(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  static_cast<QObject&>(*finestra).event(&cade);
  QCoreApplication::processEvents();
  EXPECT_GT(risponditore.Avvisi.size(), prima);
  txtList().undo();
  EXPECT_NE(progetto.txtList.find("NOP"), std::string::npos);
}

TEST_F(Controls, FourPagesOfWhichTheLastIsHidden) {
  Avvia(Avvio::Nuovo);
  std::vector<std::string> pagine;
  for (int i = 0; i < SSTb2().count(); ++i) pagine.push_back(Utf8(SSTb2().tabText(i)));
  EXPECT_EQ(pagine, (std::vector<std::string>{" Main", " Procedure", " List Error", "Tab 3"}));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(SSTb2().isTabVisible(i), i < 3) << i;
  EXPECT_EQ(Trova<QTabBar>("TabS1").tabText(0), "MAIN");
  EXPECT_EQ(Schede(), std::vector<std::string>{""});
}

struct Caso_Testo {
  const char* nome;
  const char* testo;
  int pagina;  // -1: on all
};
class Caption : public Banco_Editor, public testing::WithParamInterface<Caso_Testo> {};

TEST_P(Caption, IsAsItIsWritten) {
  const Caso_Testo& caso = GetParam();
  Avvia(Avvio::Nuovo);
  auto& controllo = Trova<QWidget>(caso.nome);
  EXPECT_EQ(Utf8(controllo.property("text").toString()), caso.testo);
  for (int i = 0; i < 3; ++i) {
    SSTb2().setCurrentIndex(i);
    EXPECT_EQ(controllo.isVisible(), caso.pagina < 0 || caso.pagina == i) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Captions, Caption,
    testing::Values(
        Caso_Testo{"CmdNet(0)", "Inserisci Network", 0}, Caso_Testo{"cmdTest", "Finestra Test", 0},
        Caso_Testo{"CmdNet(1)", "Inserisci Network", 1}, Caso_Testo{"cmdSub", "Inserisci SBR", 1},
        Caso_Testo{"cmdDelP", "Rimuovi SBR", 1}, Caso_Testo{"etg(18)", "Istruzioni Compilate :", 2},
        Caso_Testo{"etg(19)", "Errori Rilevati :", 2},
        Caso_Testo{"etg(20)", "Righe Totali lette nel progetto :", 2},
        Caso_Testo{"etNR(0)", "0", 2}, Caso_Testo{"etNR(1)", "0", 2}, Caso_Testo{"etNR(2)", "0", 2},
        Caso_Testo{"chkCom(0)", "Inserisci commenti di riga nel listato CPU", -1},
        Caso_Testo{"chkCom(1)", "Inserisci commenti di Network  nel listato CPU", -1}));

TEST_F(Controls, NothingIsClipped) {
  Avvia(Avvio::Nuovo);
  finestra->resize(finestra->minimumWidth(), finestra->height());
  QCoreApplication::processEvents();
  for (int i = 0; i < 3; ++i) {
    SSTb2().setCurrentIndex(i);
    for (const QWidget* controllo : finestra->findChildren<QWidget*>()) {
      if (!controllo->isVisible() || controllo->property("text").toString().isEmpty()) continue;
      EXPECT_GE(controllo->width(), controllo->minimumSizeHint().width())
          << Utf8(controllo->objectName());
      EXPECT_GE(controllo->height(), controllo->minimumSizeHint().height())
          << Utf8(controllo->objectName());
    }
  }
}

TEST_F(Controls, TheTicksOfTheListingReachTheProject) {
  Avvia(Avvio::Nuovo);
  for (const int i : {0, 1}) {
    auto& spunta = Trova<QCheckBox>(QStringLiteral("chkCom(%1)").arg(i));
    EXPECT_TRUE(Trova<QWidget>("Frame5").isAncestorOf(&spunta));
    EXPECT_FALSE(spunta.isChecked());
    spunta.click();
    EXPECT_TRUE(progetto.chkCom[static_cast<std::size_t>(i)]);
    spunta.click();
    EXPECT_FALSE(progetto.chkCom[static_cast<std::size_t>(i)]);
  }
}

TEST_F(Controls, TheStatusBarHasFivePanels) {
  finestra = std::make_unique<FrmMain>(progetto, plc, legami);
  EXPECT_EQ(Etichetta("stB(1)"), "File:");
  EXPECT_EQ(Etichetta("stB(2)"), "");
  EXPECT_EQ(Etichetta("stB(3)"), "Errori: ----");
  EXPECT_TRUE(
      QRegularExpression("^\\d\\d/\\d\\d/\\d{4}$").match(Q(Etichetta("stB(4)"))).hasMatch());
  EXPECT_TRUE(QRegularExpression("^\\d\\d:\\d\\d$").match(Q(Etichetta("stB(5)"))).hasMatch());
  EXPECT_EQ(finestra->statusBar()->objectName(), "stB");
}

struct Caso_Finestra {
  const char* comando;
  const char* chiamato;
};
class OtherWindow : public Banco_Editor, public testing::WithParamInterface<Caso_Finestra> {
 public:
  void Da_Il_Comando() const {
    if (auto* voce = finestra->findChild<QAction*>(GetParam().comando))
      voce->trigger();
    else
      Premi(GetParam().comando);
  }
};

TEST_P(OtherWindow, IsAskedFor) {
  Avvia(Avvio::Nuovo);
  Da_Il_Comando();
  EXPECT_EQ(chiamati, GetParam().chiamato + std::string(" "));
}

TEST_P(OtherWindow, ThatDoesNotExistSwitchesItsCommandOff) {
  legami = {};
  Avvia(Avvio::Nuovo);
  Da_Il_Comando();
  const auto* voce = finestra->findChild<QAction*>(GetParam().comando);
  EXPECT_FALSE(voce != nullptr ? voce->isEnabled() : Premibile(GetParam().comando));
  finestra->close();  // and no panel either
}

INSTANTIATE_TEST_SUITE_P(Windows, OtherWindow,
                         testing::Values(Caso_Finestra{"cmdTest", "debug"},
                                         Caso_Finestra{"mnuFileStp", "stampe"},
                                         Caso_Finestra{"tB1(Stampa)", "stampe"},
                                         Caso_Finestra{"MnuHLPInfo", "info"},
                                         Caso_Finestra{"tB1(Info)", "info"},
                                         Caso_Finestra{"MnuHLPIndex", "Index-AWL.htm"},
                                         Caso_Finestra{"MnuHlpList", "SET_IST.htm"}));

}  // namespace tavorno::prova
