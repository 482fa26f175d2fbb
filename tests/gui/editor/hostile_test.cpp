// SPDX-License-Identifier: GPL-3.0-or-later
// Each command on the texts where nobody expects it: on no text, at its very end, on all of it, on
// a long one, where nothing can be written.
#include <array>

#include "editor/editor_bed.h"

namespace tavorno::prova {

namespace {

struct Situazione {
  const char* Nome;
  void (*Prepara)(Banco_Editor&);
};

const std::vector<std::string> righe_main = {"//prova", "NETWORK 1", "LD I0.0",     "CALL SBR_0",
                                             "JMP 5",   "NETWORK 2", "LBL 5",       "A I0.0",
                                             "= Q0.0",  "NETWORK 3", "MOVB IB0 MB0"};

void Apri_Esempio(Banco_Editor& banco) {
  banco.Avvia_Con(Banco_Editor::Blocco_Main(righe_main) +
                  Banco_Editor::Blocco_SBR(0, {"NETWORK 1", "LD Q0.0"}));
}

void In_Fondo(Banco_Editor& banco) {
  Apri_Esempio(banco);
  banco.txtList().SendScintilla(QsciScintilla::SCI_DOCUMENTEND);
}

const std::vector<Situazione> situazioni = {
    {"Empty", [](Banco_Editor& banco) { banco.Avvia(Avvio::Vuoto); }},
    {"New", [](Banco_Editor& banco) { banco.Avvia(Avvio::Nuovo); }},
    {"AtTheStart", Apri_Esempio},
    {"AtTheEnd", In_Fondo},
    {"NoLastLineEnd",
     [](Banco_Editor& banco) {
       In_Fondo(banco);
       AwlEditor& testo = banco.txtList();
       while (testo.Byte().ends_with("\r\n")) testo.SendScintilla(QsciScintilla::SCI_DELETEBACK);
     }},
    {"OneLine",
     [](Banco_Editor& banco) {
       banco.Avvia(Avvio::Vuoto);
       Banco_Editor::Batti(banco.txtList(), "LD I0.0");
     }},
    {"AllSelected",
     [](Banco_Editor& banco) {
       Apri_Esempio(banco);
       banco.txtList().selectAll();
     }},
    {"SelectedUpwards",
     [](Banco_Editor& banco) {
       Apri_Esempio(banco);
       banco.txtList().SendScintilla(QsciScintilla::SCI_SETSEL, banco.txtList().length(), 3L);
     }},
    {"LongText",
     [](Banco_Editor& banco) {
       QString testo;  // more than a file has room for
       for (int i = 1; i <= 400; ++i)
         testo += QStringLiteral("NETWORK %1\nLD I0.0\n= Q0.%2\n").arg(i).arg(i % 8);
       QApplication::clipboard()->setText(testo);
       banco.Avvia(Avvio::Vuoto);
       banco.txtList().paste();
       ASSERT_GT(banco.txtList().lines(), 1200);
       banco.txtList().selectAll();
     }},
    {"EmptyProcedure",
     [](Banco_Editor& banco) {
       banco.Avvia_Con(Banco_Editor::Blocco_Main(righe_main));
       banco.Comanda("mnuViewC(1)");
       Banco_Editor::Batti(banco.txtP(), "A I0.0\rJMP 5\rLD I0.0");
     }},
    {"Leftover",
     [](Banco_Editor& banco) {
       Apri_Esempio(banco);
       banco.Comanda("mnuViewC(1)");
       banco.Premi("cmdSub");
       banco.Premi("cmdDelP");
     }},
    {"Listing",
     [](Banco_Editor& banco) {
       Apri_Esempio(banco);
       banco.Comanda("mnuPlcCompile");
       banco.Comanda("mnuViewC(2)");
     }},
};

class Hostile : public Banco_Editor, public testing::WithParamInterface<Situazione> {
 protected:
  AwlEditor& Davanti() const {
    const std::array testi = {&txtList(), &txtP(), &txtLst()};
    return *testi.at(static_cast<std::size_t>(SSTb2().currentIndex()));
  }
  std::string Tutto() const {
    return progetto.Testi() + '\f' + txtList().Byte() + '\f' + txtP().Byte();
  }
  std::vector<QString> Comandi() const {
    std::vector<QString> nomi;
    for (const char* menu : {"mnuCerca", "mnuVai", "mnuRighe", "mnuSchemi"})
      for (const QAction* voce : Voce(menu).menu()->actions())
        if (!voce->isSeparator()) nomi.push_back(voce->objectName());
    return nomi;
  }
};

}  // namespace

TEST_P(Hostile, EachCommandIsOneStepThatComesBackAndGoesAgain) {
  GetParam().Prepara(*this);
  const std::vector<QString> comandi = Comandi();
  ASSERT_GT(comandi.size(), 25U);
  for (const QString& comando : comandi) {
    SCOPED_TRACE(Utf8(comando));
    const int pagina = SSTb2().currentIndex();
    AwlEditor& testo = Davanti();
    const std::string prima = Tutto();
    const long da = testo.SendScintilla(QsciScintilla::SCI_GETANCHOR);
    const long a = testo.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
    Comanda(comando);
    Voce("mnuSchemi").menu()->close();
    const std::string dopo = Tutto();
    EXPECT_EQ(progetto.txtList, txtList().Byte());
    if (dopo != prima) {
      testo.undo();
      EXPECT_EQ(Tutto(), prima);
      testo.redo();
      EXPECT_EQ(Tutto(), dopo);
      testo.undo();
      EXPECT_EQ(Tutto(), prima);
    }
    for (QWidget* finestrella : finestra->findChildren<QDialog*>()) finestrella->hide();
    for (const char* barra : {"barRicerca", "barRiga"}) Trova<QWidget>(barra).hide();
    SSTb2().setCurrentIndex(pagina);
    testo.SendScintilla(QsciScintilla::SCI_SETSEL, static_cast<unsigned long>(da), a);
  }
}

INSTANTIATE_TEST_SUITE_P(Editor, Hostile, testing::ValuesIn(situazioni),
                         [](const auto& quale) { return quale.param.Nome; });

// ---- what there is nothing to do for ------------------------------------------------------------

namespace {

struct Caso_Muto {
  const char* Nome;
  const char* Comando;
  const char* Linea;  ///< of the example, where the caret goes; nullptr: the listing
  const char* Detto;  ///< how what is said begins
};

class Told : public Banco_Editor, public testing::WithParamInterface<Caso_Muto> {
 protected:
  QString Detto() const { return finestra->statusBar()->currentMessage(); }
};

}  // namespace

TEST_P(Told, ACommandWithNothingToDoSaysWhy) {
  Avvia_Con(Blocco_Main({"//prova", "NETWORK 1", "LD I0.0", "CALL SBR_9", "JMP 7", "LBL 5",
                         "MOVB IB0 MB0", "= Q0.0"}));
  const std::string prima = progetto.Testi();
  if (GetParam().Linea == nullptr) {
    Comanda("mnuViewC(2)");
  } else {
    int linea = 0;
    while (!txtList().text(linea).startsWith(GetParam().Linea)) ASSERT_LT(++linea, 20);
    txtList().setCursorPosition(linea, 0);
  }
  const AwlEditor::Punto qui = txtList().Cursore();
  EXPECT_EQ(Detto(), "");
  Comanda(GetParam().Comando);
  EXPECT_TRUE(Utf8(Detto()).starts_with(GetParam().Detto)) << Utf8(Detto());
  EXPECT_LT(finestra->fontMetrics().horizontalAdvance(Detto()), finestra->width() - 40);
  EXPECT_EQ(progetto.Testi(), prima);
  EXPECT_EQ(txtList().Cursore().Linea, qui.Linea);
  // What works takes the word away.
  Comanda("mnuViewC(0)");
  txtList().setCursorPosition(0, 0);
  Comanda("mnuVaiNetSucc");
  EXPECT_EQ(Detto(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Editor, Told,
    testing::Values(
        Caso_Muto{"UsesOnAComment", "mnuCercaUsi", "//prova", "Qui non c'è un operando"},
        Caso_Muto{"NameOnAComment", "mnuRigheNome", "//prova", "Qui non c'è un operando"},
        Caso_Muto{"UsesOfOneOfTwo", "mnuCercaUsi", "MOVB", "La riga ha più operandi"},
        Caso_Muto{"UsesOnTheListing", "mnuCercaUsi", nullptr, "Il listato"},
        Caso_Muto{"TargetOfAContact", "mnuVaiMeta", "LD", "Destinazione parte da"},
        Caso_Muto{"TargetOfTheListing", "mnuVaiMeta", nullptr, "Destinazione parte da"},
        Caso_Muto{"NoProcedure", "mnuVaiMeta", "CALL", "La procedura SBR_9 non c'è"},
        Caso_Muto{"NoLabel", "mnuVaiMeta", "JMP", "LBL 7 non c'è"},
        Caso_Muto{"NoJump", "mnuVaiMeta", "LBL", "Nessun JMP porta a LBL 5"},
        Caso_Muto{"NoWayBack", "mnuVaiIndietro", "LD", "Nessun salto da cui tornare"},
        Caso_Muto{"NoError", "mnuVaiErrSucc", "LD", "Nessuna riga è segnata"},
        Caso_Muto{"NoErrorBefore", "mnuVaiErrPrec", "LD", "Nessuna riga è segnata"},
        Caso_Muto{"LastNetwork", "mnuVaiNetSucc", "LD", "Nessun segmento dopo questa riga"},
        Caso_Muto{"FirstNetwork", "mnuVaiNetPrec", "NETWORK",
                  "Nessun segmento prima di questa riga"},
        Caso_Muto{"CommentInTheListing", "mnuRigheCom", nullptr, "Questo testo si può soltanto"},
        Caso_Muto{"SkeletonInTheListing", "mnuSchema(0)", nullptr, "Questo testo si può soltanto"},
        Caso_Muto{"SkeletonsInTheListing", "mnuSchemiQui", nullptr,
                  "Questo testo si può soltanto"}),
    [](const auto& quale) { return quale.param.Nome; });

namespace {

class Corner : public Banco_Editor {
 protected:
  void Scrivi_In(const char* campo, const QString& testo) const {
    Trova<QLineEdit>(campo).setText(testo);
  }
  std::string Rinomina(const QString& nuovo) const {
    Comanda("mnuRigheNome");
    Scrivi_In("txtNuovo", nuovo);
    Premi("cmdRinomina");
    return Etichetta("etRisposta");
  }
};

}  // namespace

TEST_F(Corner, AWordIsSeenWithoutTheStatusBarToo) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Comanda("mnuViewSTB");
  Comanda("mnuVaiErrSucc");
  EXPECT_TRUE(QToolTip::text().startsWith("Nessuna riga"));
  QToolTip::hideText();
}

TEST_F(Corner, TypingTakesTheWordAway) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Comanda("mnuVaiErrSucc");
  EXPECT_FALSE(finestra->statusBar()->currentMessage().isEmpty());
  Batti_In_Fondo(txtList(), "N");
  EXPECT_EQ(finestra->statusBar()->currentMessage(), "");
}

// A text that belongs to no procedure is not the Main.
TEST_F(Corner, ANewNameFromATextOfNoProcedureReachesTheProjectOnly) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NOT", "LD I0.0"}));
  Comanda("mnuViewC(1)");
  Batti(txtP(), "LD I0.0");
  EXPECT_EQ(Rinomina("I0.7"), "Righe cambiate: 1.");
  EXPECT_NE(progetto.txtList.find("I0.7"), std::string::npos);
  EXPECT_EQ(txtP().Byte(), "LD I0.0");
  txtP().undo();
  EXPECT_NE(progetto.txtList.find("I0.0"), std::string::npos);
  EXPECT_EQ(txtP().Byte(), "LD I0.0");
}

TEST_F(Corner, ATextOfNoProcedureLeadsNowhere) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "JMP 5", "LBL 5"}));
  Comanda("mnuViewC(1)");
  Batti(txtP(), "NOT\rNOT\rNOT");
  txtP().setCursorPosition(2, 0);
  Comanda("mnuVaiMeta");
  EXPECT_EQ(SSTb2().currentIndex(), 1);
  Comanda("mnuVaiRiga");
  Trova<QSpinBox>("numRiga").setValue(1);
  Premi("cmdRiga");
  EXPECT_EQ(SSTb2().currentIndex(), 0);
  Comanda("mnuVaiIndietro");
  EXPECT_EQ(txtP().Byte(), "NOT\r\nNOT\r\nNOT");
}

TEST_F(Corner, TheCaretComesBackWithANameInSeveralTexts) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NOT", "LD I0.0", "NOT"}) +
            Blocco_SBR(0, {"NETWORK 1", "LD I0.0"}));
  txtList().setCursorPosition(3, 7);
  EXPECT_EQ(Rinomina("I0.7"), "Righe cambiate: 2.");
  EXPECT_EQ(txtList().Cursore().Linea, 3);
  txtList().undo();
  EXPECT_EQ(txtList().Cursore().Linea, 3);
  EXPECT_EQ(txtList().Cursore().Colonna, 7);
  txtList().redo();
  EXPECT_EQ(txtList().Cursore().Linea, 3);
}

TEST_F(Corner, ReplaceEndsWhereNothingCanBeWritten) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0"}));
  Comanda("mnuPlcCompile");
  Comanda("mnuViewC(0)");
  Comanda("mnuCercaSost");
  Scrivi_In("txtCerca", "I0.0");
  auto& tutti = Trova<QPushButton>("cmdSostTutti");
  EXPECT_TRUE(tutti.isVisible());
  Comanda("mnuViewC(2)");
  EXPECT_FALSE(tutti.isVisible());
  Comanda("mnuViewC(0)");
  EXPECT_TRUE(tutti.isVisible());
  Comanda("mnuCercaTrova");
  EXPECT_FALSE(tutti.isVisible());
}

TEST_F(Corner, TheEnterKeyPressesTheButtonsOfTheSearch) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0", "A I0.0"}));
  Comanda("mnuCercaSost");
  Scrivi_In("txtCerca", "I0.0");
  Scrivi_In("txtSostituisci", "I0.1");
  QTest::keyClick(&Trova<QPushButton>("cmdSostTutti"), Qt::Key_Return);
  EXPECT_EQ(progetto.txtList.find("I0.0"), std::string::npos);
}

TEST_F(Corner, EscInTheTextClosesTheSearchButFirstTheList) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Attiva();
  Comanda("mnuCercaTrova");
  Scrivi_In("txtCerca", "NET");
  txtList().setFocus();
  Batti_In_Fondo(txtList(), "L");
  ASSERT_TRUE(txtList().isListActive());
  QTest::keyClick(&txtList(), Qt::Key_Escape);
  EXPECT_FALSE(txtList().isListActive());
  EXPECT_TRUE(Trova<QWidget>("barRicerca").isVisible());
  QTest::keyClick(&txtList(), Qt::Key_Escape);
  EXPECT_FALSE(Trova<QWidget>("barRicerca").isVisible());
  EXPECT_TRUE(txtList().hasFocus());
}

TEST_F(Corner, TheRowBarGivesTheKeyboardBack) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "NOT"}));
  Attiva();
  Comanda("mnuVaiRiga");
  ASSERT_TRUE(Trova<QSpinBox>("numRiga").hasFocus());
  QTest::keyClick(&Trova<QSpinBox>("numRiga"), Qt::Key_Escape);
  EXPECT_FALSE(Trova<QWidget>("barRiga").isVisible());
  EXPECT_TRUE(txtList().hasFocus());
}

TEST_F(Corner, TheFirstSkeletonIsChosenWhereTheyAreOffered) {
  Avvia_Con(Blocco_Main({"NETWORK 1"}));
  Attiva();
  Comanda("mnuSchemiQui");
  QMenu& menu = *Voce("mnuSchemi").menu();
  ASSERT_TRUE(menu.isVisible());
  EXPECT_EQ(menu.activeAction(), &Voce("mnuSchema(0)"));
  menu.close();
}

TEST_F(Corner, NoFieldTakesALetterWithControlOrAlt) {
  Avvia_Con(Blocco_Main({"NETWORK 1", "LD I0.0"}));
  txtList().setCursorPosition(2, 0);
  Comanda("mnuRigheNome");
  Comanda("mnuCercaSost");
  Comanda("mnuVaiRiga");
  const std::vector<QLineEdit*> campi = {
      &Trova<QLineEdit>("txtCerca"), &Trova<QLineEdit>("txtSostituisci"),
      &Trova<QLineEdit>("txtNuovo"), Trova<QSpinBox>("numRiga").findChild<QLineEdit*>()};
  for (QLineEdit* campo : campi) {
    campo->setText("1");
    for (const auto modificatori :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::ControlModifier | Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier,
          Qt::AltModifier | Qt::ShiftModifier, Qt::KeyboardModifiers(Qt::MetaModifier)}) {
      for (int tasto = Qt::Key_Space; tasto <= Qt::Key_AsciiTilde; ++tasto) {
        // Cut, paste and the like are commands.
        if (modificatori == Qt::ControlModifier) continue;
        QKeyEvent evento(QEvent::KeyPress, tasto, modificatori, QString(QChar(tasto)));
        QApplication::sendEvent(campo, &evento);
        ASSERT_EQ(campo->text(), "1") << Utf8(campo->objectName()) << ' ' << tasto << " with "
                                      << static_cast<int>(modificatori);
      }
    }
    campo->selectAll();
    QTest::keyClicks(campo, "2");
    EXPECT_EQ(campo->text(), "2");
  }
}

}  // namespace tavorno::prova
