// SPDX-License-Identifier: GPL-3.0-or-later
// Find, go to, lines, names and skeletons as the window gives them.
#include <map>
#include <set>

#include "awl/patterns.h"
#include "editor/editor_bed.h"
#include "support/desktop.h"
#include "widgets/colours.h"

namespace tavorno::prova {

namespace {

class TextCommands : public Banco_Editor {
 public:
  /// A Main of three networks that calls the second of two procedures.
  void Avvia_Esempio() {
    Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0", "CALL SBR_1", "JMP 5", "NETWORK 2", "LBL 5",
                           "A I0.0", "= Q0.0", "NETWORK 3", "NOT"}) +
              Blocco_SBR(0, {"NETWORK 1", "LD Q0.0"}) + Blocco_SBR(1, {"NETWORK 1", "LDN I0.0"}));
  }
  AwlEditor& Davanti() const { return SSTb2().currentIndex() == 0 ? txtList() : txtP(); }
  std::string Linea_Cursore() const {
    return Utf8(Davanti().text(Davanti().Cursore().Linea).trimmed());
  }
  /// The caret on the line that begins so.
  void Cursore_A(const QString& inizio, int colonna = 0) const {
    AwlEditor& testo = Davanti();
    for (int i = 0; i < testo.lines(); ++i) {
      if (!testo.text(i).startsWith(inizio)) continue;
      testo.setCursorPosition(i, colonna);
      return;
    }
    FAIL() << Utf8(inizio);
  }
  void Scrivi_In(const char* campo, const QString& testo) const {
    Trova<QLineEdit>(campo).setText(testo);
  }
  int Segnati(const AwlEditor& testo) const {
    int quanti = 0;
    bool prima = false;
    for (int i = 0; i < testo.length(); ++i) {
      const bool ora = testo.SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 9, i) != 0;
      quanti += ora && !prima ? 1 : 0;
      prima = ora;
    }
    return quanti;
  }
};

}  // namespace

TEST_F(TextCommands, HaveKeysAndToolTipsOfTheirOwn) {
  Avvia(Avvio::Nuovo);
  const std::map<QString, QString> attesi = {
      {"mnuCercaTrova", "Ctrl+F"},  {"mnuCercaSost", "Ctrl+H"},    {"mnuCercaSucc", "F3"},
      {"mnuCercaPrec", "Shift+F3"}, {"mnuCercaUsi", "Shift+F12"},  {"mnuVaiRiga", "Ctrl+G"},
      {"mnuVaiErrSucc", "F4"},      {"mnuVaiErrPrec", "Shift+F4"}, {"mnuVaiNetSucc", "Ctrl+Down"},
      {"mnuVaiNetPrec", "Ctrl+Up"}, {"mnuVaiMeta", "F12"},         {"mnuVaiIndietro", "Alt+Left"},
      {"mnuRigheCom", "Ctrl+K"},    {"mnuRigheSu", "Alt+Up"},      {"mnuRigheGiu", "Alt+Down"},
      {"mnuRigheDoppia", "Ctrl+D"}, {"mnuRigheNome", "F2"},        {"mnuRigheNote", "Ctrl+B"},
      {"mnuSchemiQui", "Ctrl+J"}};
  for (const auto& [nome, tasti] : attesi) {
    EXPECT_EQ(Voce(nome).shortcut().toString(), tasti) << Utf8(nome);
    EXPECT_NE(Voce(nome).toolTip(), Voce(nome).text().remove('&')) << Utf8(nome);
  }
}

TEST_F(TextCommands, AccessKeysNeverClashInAMenu) {
  Avvia(Avvio::Nuovo);
  for (const QMenu* menu : finestra->findChildren<QMenu*>()) {
    std::set<QChar> tasti;
    for (const QAction* voce : menu->actions()) {
      const qsizetype e = voce->text().indexOf('&');
      if (voce->isSeparator()) continue;
      ASSERT_GE(e, 0) << Utf8(voce->text());
      EXPECT_TRUE(tasti.insert(voce->text()[e + 1].toUpper()).second) << Utf8(voce->text());
    }
  }
}

// ---- find ---------------------------------------------------------------------------------------

TEST_F(TextCommands, FindMarksEveryPlaceAndGoesAround) {
  Avvia_Esempio();
  Attiva();
  Comanda("mnuCercaTrova");
  EXPECT_TRUE(Trova<QLineEdit>("txtCerca").hasFocus());
  Scrivi_In("txtCerca", "i0.0");
  EXPECT_EQ(Segnati(txtList()), 2);
  EXPECT_EQ(Etichetta("etTrovati"), "2 posti");
  QTest::keyClick(&Trova<QLineEdit>("txtCerca"), Qt::Key_Return);
  EXPECT_EQ(Etichetta("etTrovati"), "1 di 2");
  EXPECT_EQ(txtList().selectedText(), "I0.0");
  Comanda("mnuCercaSucc");
  EXPECT_TRUE(Linea_Cursore().starts_with("A "));
  Comanda("mnuCercaSucc");
  EXPECT_TRUE(Linea_Cursore().starts_with("LD"));
  Comanda("mnuCercaPrec");
  EXPECT_EQ(Etichetta("etTrovati"), "2 di 2");
  QTest::keyClick(&Trova<QLineEdit>("txtCerca"), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Etichetta("etTrovati"), "1 di 2");
  QTest::keyClick(&Trova<QLineEdit>("txtCerca"), Qt::Key_Escape);
  EXPECT_TRUE(Trova<QWidget>("barRicerca").isHidden());
  EXPECT_EQ(Segnati(txtList()), 0);
  EXPECT_TRUE(txtList().hasFocus());
}

TEST_F(TextCommands, WhatIsFoundOrTooLongCanStillBeRead) {
  const Scrivania scrivania;
  for (const bool scura : {false, true}) {
    SCOPED_TRACE(scura ? "dark" : "light");
    if (scura) scrivania.Scura();
    Avvia_Esempio();
    txtList().setReadOnly(true);
    // The letters keep their contrast to what is behind them, with a frame and without.
    const auto letture = [this] {
      QCoreApplication::processEvents();
      const auto mandato = [&](unsigned cosa, int dove) {
        return static_cast<int>(txtList().SendScintilla(cosa, 0UL, static_cast<long>(dove)));
      };
      const auto da = static_cast<int>(txtList().text().indexOf("I0.0"));
      const int a = da + 4;
      const int riga = mandato(QsciScintilla::SCI_POINTYFROMPOSITION, da);
      const QRect dove(QPoint(mandato(QsciScintilla::SCI_POINTXFROMPOSITION, da) + 1, riga + 2),
                       QPoint(mandato(QsciScintilla::SCI_POINTXFROMPOSITION, a) - 2, riga + 11));
      const QImage carta = txtList().viewport()->grab(dove).toImage();
      double migliore = 1;
      const QColor fondo = carta.pixelColor(0, 0);
      for (int y = 0; y < carta.height(); ++y)
        for (int x = 0; x < carta.width(); ++x)
          migliore = std::max(migliore, colori::Contrasto(carta.pixelColor(x, y), fondo));
      return migliore;
    };
    ASSERT_GE(letture(), colori::Leggibile);
    Comanda("mnuCercaTrova");
    Scrivi_In("txtCerca", "i0.0");
    ASSERT_EQ(Segnati(txtList()), 2);
    EXPECT_GE(letture(), colori::Leggibile) << "found";
    const QString testo = txtList().text();
    const int riga = static_cast<int>(testo.left(testo.indexOf("I0.0")).count('\n'));
    Scrivi_In("txtCerca", "");
    txtList().Segna_Eccedenze({{riga, 0, 40}});
    EXPECT_GE(letture(), colori::Leggibile) << "too long";
  }
}

TEST_F(TextCommands, FindFollowsThePageAndTheTyping) {
  Avvia_Esempio();
  Comanda("mnuCercaTrova");
  Scrivi_In("txtCerca", "q0.0");
  EXPECT_EQ(Etichetta("etTrovati"), "1 posto");
  Batti_In_Fondo(txtList(), "o q0.0");
  EXPECT_EQ(Etichetta("etTrovati"), "2 posti");
  Comanda("mnuViewC(1)");
  EXPECT_EQ(Etichetta("etTrovati"), "1 posto");
  EXPECT_EQ(Segnati(txtList()), 0);
  EXPECT_EQ(Segnati(txtP()), 1);
  Scrivi_In("txtCerca", "xyz");
  EXPECT_EQ(Etichetta("etTrovati"), "nessun posto");
  Comanda("mnuCercaSucc");
}

TEST_F(TextCommands, FindTakesTheSelectedPiece) {
  Avvia_Esempio();
  txtList().Scegli({3, 7, 5});
  const QString scelto = txtList().selectedText();
  Comanda("mnuCercaTrova");
  EXPECT_EQ(Trova<QLineEdit>("txtCerca").text(), scelto);
}

TEST_F(TextCommands, ReplaceOneByOneAndAll) {
  Avvia_Esempio();
  Comanda("mnuCercaSost");
  Scrivi_In("txtCerca", "I0.0");
  Scrivi_In("txtSostituisci", "I0.0.0");
  Trova<QCheckBox>("chkOperandi").setChecked(true);
  txtList().setCursorPosition(0, 0);
  Premi("cmdSostituisci");  // goes to the first
  EXPECT_EQ(txtList().Byte().find("I0.0.0"), std::string::npos);
  Premi("cmdSostituisci");
  EXPECT_TRUE(txtList().text(2).startsWith("LD     I0.0.0"));
  EXPECT_TRUE(Linea_Cursore().starts_with("A ")) << "behind what was put in";
  txtList().undo();
  const std::string prima = txtList().Byte();
  Premi("cmdSostTutti");
  EXPECT_EQ(Etichetta("etTrovati"), "2 sostituiti");
  EXPECT_EQ(progetto.txtList, txtList().Byte());
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), prima);
}

// ---- go to --------------------------------------------------------------------------------------

TEST_F(TextCommands, ARowOfTheCpuIsWhereItsNumberStands) {
  Avvia_Esempio();
  Attiva();
  Comanda("mnuVaiRiga");
  auto& numero = Trova<QSpinBox>("numRiga");
  EXPECT_EQ(numero.maximum(), 18);
  numero.setValue(17);
  QTest::keyClick(&numero, Qt::Key_Return);
  EXPECT_EQ(SSTb2().currentIndex(), 1);
  EXPECT_EQ(progetto.Scheda, 2);
  EXPECT_EQ(txtP().Numero_Mostrato(txtP().Cursore().Linea), "17");
  EXPECT_TRUE(Trova<QWidget>("barRiga").isHidden());
  Comanda("mnuVaiIndietro");
  EXPECT_EQ(SSTb2().currentIndex(), 0);
}

TEST_F(TextCommands, NetworksAreVisitedInOrder) {
  Avvia_Esempio();
  txtList().setCursorPosition(0, 0);
  std::string visti;
  for (int i = 0; i < 4; ++i) {
    Comanda("mnuVaiNetSucc");
    visti += Linea_Cursore().back();
  }
  EXPECT_EQ(visti, "1233");
  Comanda("mnuVaiNetPrec");
  EXPECT_EQ(Linea_Cursore(), "NETWORK 2");
}

TEST_F(TextCommands, TheWayOfCallAndJumpAndBack) {
  Avvia_Esempio();
  Cursore_A("CALL");
  Comanda("mnuVaiMeta");
  EXPECT_EQ(SSTb2().currentIndex(), 1);
  EXPECT_EQ(progetto.Scheda, 2);
  Comanda("mnuVaiIndietro");
  EXPECT_TRUE(Linea_Cursore().starts_with("CALL"));
  Cursore_A("JMP");
  Comanda("mnuVaiMeta");
  EXPECT_TRUE(Linea_Cursore().starts_with("LBL"));
  Comanda("mnuVaiIndietro");
  EXPECT_TRUE(Linea_Cursore().starts_with("JMP"));
  Comanda("mnuVaiIndietro");  // nothing is left
  Cursore_A("NOT");
  Comanda("mnuVaiMeta");
  EXPECT_EQ(Linea_Cursore(), "NOT");
}

TEST_F(TextCommands, ErrorsAreVisitedInCircles) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I9.9", "NOT", "XYZ"}) + Blocco_SBR(0, {"LD X1"}));
  Comanda("mnuVaiErrSucc");  // nothing is marked yet
  Comanda("mnuPlcCompile");
  EXPECT_EQ(SSTb2().currentIndex(), 2);
  EXPECT_EQ(txtLst().Cursore().Linea, 1) << "the first faulty row";
  EXPECT_EQ(txtList().Cursore().Linea, 2);
  Comanda("mnuVaiErrSucc");
  EXPECT_TRUE(Linea_Cursore().starts_with("LD"));
  Comanda("mnuVaiErrSucc");
  EXPECT_TRUE(Linea_Cursore().starts_with("XYZ"));
  Comanda("mnuVaiErrSucc");
  EXPECT_EQ(SSTb2().currentIndex(), 1);
  Comanda("mnuVaiErrSucc");
  EXPECT_EQ(SSTb2().currentIndex(), 0);
  EXPECT_TRUE(Linea_Cursore().starts_with("LD"));
  Comanda("mnuVaiErrPrec");
  EXPECT_EQ(SSTb2().currentIndex(), 1);
  Comanda("mnuVaiErrPrec");
  EXPECT_TRUE(Linea_Cursore().starts_with("XYZ"));
}

// ---- lines --------------------------------------------------------------------------------------

TEST_F(TextCommands, LinesAreCommentedMovedAndDoubledInOneStepEach) {
  Avvia(Avvio::Vuoto);
  QApplication::clipboard()->setText("NOT\nNOP\nEU\n");
  txtList().paste();
  const std::string prima = txtList().Byte();
  const std::map<QString, std::string> attesi = {{"mnuRigheCom", "NOT\r\n//NOP\r\nEU\r\n"},
                                                 {"mnuRigheSu", "NOP\r\nNOT\r\nEU\r\n"},
                                                 {"mnuRigheGiu", "NOT\r\nEU\r\nNOP\r\n"},
                                                 {"mnuRigheDoppia", "NOT\r\nNOP\r\nNOP\r\nEU\r\n"}};
  for (const auto& [comando, dopo] : attesi) {
    txtList().setCursorPosition(1, 1);
    Comanda(comando);
    EXPECT_EQ(progetto.txtList, dopo) << Utf8(comando);
    // What is typed next must not take the line's place.
    EXPECT_FALSE(txtList().hasSelectedText()) << Utf8(comando);
    const AwlEditor::Punto qui = txtList().Cursore();
    EXPECT_EQ(txtList().text(qui.Linea).mid(qui.Colonna).trimmed(), "OP") << Utf8(comando);
    txtList().undo();
    EXPECT_EQ(progetto.txtList, prima) << Utf8(comando);
  }
}

TEST_F(TextCommands, WhatWasSelectedIsSelectedBehindACommand) {
  Avvia(Avvio::Vuoto);
  QApplication::clipboard()->setText("NOT\nNOP\nEU\n");
  txtList().paste();
  const std::map<QString, QString> attesi = {{"mnuRigheCom", "//NOP\r\n//EU\r\n"},
                                             {"mnuRigheSu", "NOP\r\nEU\r\n"},
                                             {"mnuRigheGiu", "NOP\r\nEU"},
                                             {"mnuRigheDoppia", "NOP\r\nEU\r\n"}};
  for (const auto& [comando, scelto] : attesi) {
    txtList().setSelection(1, 1, 2, 1);
    Comanda(comando);
    EXPECT_EQ(txtList().selectedText(), scelto) << Utf8(comando);
    txtList().undo();
  }
}

TEST_F(TextCommands, AMovedLineKeepsItsMark) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "XYZ", "NOT"}));
  Comanda("mnuPlcCompile");
  Comanda("mnuViewC(0)");
  txtList().setCursorPosition(2, 0);
  ASSERT_TRUE(txtList().Ha_Errore(2));
  Comanda("mnuRigheGiu");
  EXPECT_TRUE(txtList().text(3).startsWith("XYZ"));
  EXPECT_TRUE(txtList().Ha_Errore(3));
  EXPECT_FALSE(txtList().Ha_Errore(2));
}

TEST_F(TextCommands, NothingHappensToWhatCannotBeWritten) {
  Avvia_Esempio();
  Comanda("mnuViewC(2)");
  for (const char* comando : {"mnuRigheCom", "mnuRigheSu", "mnuRigheDoppia", "mnuRigheNome",
                              "mnuCercaUsi", "mnuVaiMeta", "mnuSchema(0)", "mnuVaiNetSucc"})
    Comanda(comando);
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(SSTb2().currentIndex(), 2);
}

// ---- skeletons ----------------------------------------------------------------------------------

TEST_F(TextCommands, ASkeletonGoesInBelowTheCaret) {
  Avvia_Esempio();
  Cursore_A("NOT");
  const std::string prima = txtList().Byte();
  Comanda("mnuSchema(0)");
  const std::string dopo = progetto.txtList;
  EXPECT_NE(dopo.find("NOT"), std::string::npos);
  EXPECT_NE(dopo.find("NETWORK 4       //Marcia e arresto\r\nLD     I0.1"), std::string::npos)
      << dopo;
  EXPECT_TRUE(Linea_Cursore().starts_with("LD")) << "the caret where one goes on";
  txtList().undo();
  EXPECT_EQ(txtList().Byte(), prima);
}

TEST_F(TextCommands, TheSkeletonsAreOfferedAtTheCaret) {
  Avvia_Esempio();
  Attiva();
  Comanda("mnuSchemiQui");
  QMenu& menu = *Voce("mnuSchemi").menu();
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(menu.actions().size(), static_cast<qsizetype>(Tabella_Schemi().size()) + 2);
  menu.close();
}

// ---- uses and names -----------------------------------------------------------------------------

TEST_F(TextCommands, TheUsesStandInGroupsAndLeadToTheirLines) {
  Avvia_Esempio();
  Cursore_A("=");
  Comanda("mnuCercaUsi");
  auto& lista = Trova<QTreeWidget>("lstUsi");
  ASSERT_EQ(lista.topLevelItemCount(), 2);
  EXPECT_EQ(lista.topLevelItem(0)->text(0), "Letto (1)");
  EXPECT_EQ(lista.topLevelItem(1)->text(0), "Scritto (1)");
  QTreeWidgetItem* letto = lista.topLevelItem(0)->child(0);
  EXPECT_TRUE(letto->text(0).startsWith("SBR_0, riga ")) << Utf8(letto->text(0));
  EXPECT_TRUE(letto->text(1).startsWith("LD"));
  Q_EMIT lista.itemActivated(letto, 0);
  EXPECT_EQ(progetto.Scheda, 1);
  EXPECT_TRUE(Linea_Cursore().starts_with("LD"));
  Comanda("mnuVaiIndietro");
  EXPECT_TRUE(Linea_Cursore().starts_with("="));
}

TEST_F(TextCommands, ANewNameReachesAllTextsAndComesBackAtOnce) {
  Avvia_Esempio();
  const std::string prima = progetto.Testi();
  Cursore_A("= ");
  Comanda("mnuRigheNome");
  Scrivi_In("txtNuovo", "q1.7");
  Premi("cmdRinomina");
  EXPECT_EQ(progetto.Testi().find("Q0.0"), std::string::npos);
  EXPECT_NE(progetto.Tab_SBR[1].Testo.find("Q1.7"), std::string::npos);
  EXPECT_EQ(Etichetta("etNome"), "Q1.7");
  EXPECT_EQ(Etichetta("etRisposta"), "Righe cambiate: 2.");
  EXPECT_TRUE(Linea_Cursore().starts_with("="));
  txtList().undo();
  EXPECT_EQ(progetto.Testi(), prima);
}

TEST_F(TextCommands, ARefusedNameSaysWhy) {
  Avvia_Esempio();
  const std::string prima = progetto.Testi();
  Cursore_A("= ");
  Comanda("mnuRigheNome");
  Scrivi_In("txtNuovo", "VW0");
  Premi("cmdRinomina");
  EXPECT_TRUE(Etichetta("etRisposta").starts_with("Al posto di Q0.0 ci vuole un bit"));
  EXPECT_EQ(progetto.Testi(), prima);
}

TEST_F(TextCommands, ANameInTheTextInFrontOnlyIsAStepOfThatText) {
  Avvia_Esempio();
  Cursore_A("JMP");
  Comanda("mnuRigheNome");
  Scrivi_In("txtNuovo", "9");
  Premi("cmdRinomina");
  EXPECT_NE(txtList().Byte().find("LBL    9"), std::string::npos);
  EXPECT_TRUE(txtList().isUndoAvailable());
}

TEST_F(TextCommands, AProcedureGetsItsNameOnItsTabAndInTheFile) {
  Avvia_Esempio();
  Cursore_A("CALL");
  Comanda("mnuRigheNome");
  Scrivi_In("txtNuovo", "Pompa");
  Premi("cmdRinomina");
  EXPECT_EQ(Schede(), (std::vector<std::string>{"SBR_0", "Pompa"}));
  EXPECT_NE(txtList().Byte().find("CALL   Pompa"), std::string::npos);
  Scegli("nuovo.AWL");
  Comanda("mnuPlcCompile");
  EXPECT_EQ(progetto.Errori, 0);
  EXPECT_TRUE(progetto.Passi_Errati.empty());
  EXPECT_NE(Leggi_File("nuovo.AWL").find("SUBROUTINE_BLOCK Pompa:SBR1"), std::string::npos);
}

}  // namespace tavorno::prova
