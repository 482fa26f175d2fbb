// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <memory>

#include "documents/help_pages.h"
#include "panel/documents/browser_window.h"
#include "panel/documents/help_view.h"
#include "support/command.h"

namespace tavorno {
namespace {

class Browser : public Pagine_Di_Prova {
 protected:
  FrmBrowser& Apri(const QString& url = {}) {
    guida.Url_Help = url;
    finestra = std::make_unique<FrmBrowser>(guida);
    QCoreApplication::processEvents();
    return *finestra;
  }
  FrmBrowser& Apri_Indice() { return Apri(guida.Dir_Help + Q("Index.htm")); }

  template <class Tipo>
  Tipo& Controllo(const char* nome) const {
    auto* controllo = finestra->findChild<Tipo*>(Q(nome));
    if (controllo == nullptr) qFatal("No control named %s", nome);
    return *controllo;
  }
  QComboBox& Indirizzo() const { return Controllo<QComboBox>("cboAddress"); }
  Vista_Aiuto& Vista() const {
    return static_cast<Vista_Aiuto&>(Controllo<QTextBrowser>("brwWebBrowser"));
  }
  QTimer& Timer() const { return Controllo<QTimer>("timTimer"); }
  void Premi(const char* tasto) const {
    Azione(*finestra, Q("tbToolBar(%1)").arg(Q(tasto))).trigger();
  }
  void Scrivi_Indirizzo(const char* testo) const {
    Indirizzo().setEditText(Q(testo));
    QTest::keyClick(Indirizzo().lineEdit(), Qt::Key_Return);
  }
  QStringList Voci() const {
    QStringList voci;
    for (int i = 0; i < Indirizzo().count(); ++i)
      voci += Indirizzo().itemText(i).mid(guida.Dir_Help.size());
    return voci;
  }

  std::unique_ptr<FrmBrowser> finestra;
};

// ---- on load ------------------------------------------------------------------------------------

TEST_F(Browser, HasTheNamesOfItsControls) {
  Apri();
  EXPECT_EQ(finestra->objectName(), "frmBrowser");
  EXPECT_NE(finestra->findChild<QToolBar*>("tbToolBar"), nullptr);
  EXPECT_TRUE(Indirizzo().isEditable());
  EXPECT_NE(finestra->findChild<QTextBrowser*>("brwWebBrowser"), nullptr);
  EXPECT_EQ(Timer().interval(), 5);
}

TEST_F(Browser, ShowsItselfAndStaysAtRestWithoutAnAddress) {
  guida.Url_Help = QString();
  finestra = std::make_unique<FrmBrowser>(guida);
  EXPECT_TRUE(finestra->isVisible());
  EXPECT_FALSE(Timer().isActive());
  EXPECT_EQ(Indirizzo().count(), 0);
}

TEST_F(Browser, OpensTheAddressOnLoad) {
  guida.Url_Help = guida.Dir_Help + Q("Index.htm");
  finestra = std::make_unique<FrmBrowser>(guida);
  EXPECT_TRUE(Timer().isActive());
  EXPECT_EQ(Indirizzo().currentText(), guida.Url_Help);
  EXPECT_EQ(Voci(), QStringList{Q("Index.htm")});
  EXPECT_TRUE(Vista().toPlainText().contains(Q("Benvenuto, studente.")));
}

class Help_Page : public Browser, public ::testing::WithParamInterface<const char*> {};

TEST_P(Help_Page, OpensFromItsDirectory) {
  Scrivi(GetParam(), "<title>Titolo</title><p>contenuto della pagina</p>");
  Apri(Radice() + '/' + Q(GetParam()));
  EXPECT_TRUE(Vista().toPlainText().contains(Q("contenuto della pagina")));
}

INSTANTIATE_TEST_SUITE_P(Pages, Help_Page,
                         ::testing::Values("HTML/Index.htm", "HTML/SET_IST.htm",
                                           "HTML/Index-AWL.htm", "HTML/Panel/US-00.htm",
                                           "HTML/Panel/US-17.htm"));

// ---- caption and timer --------------------------------------------------------------------------

TEST_F(Browser, TheCaptionTellsOfTheWorkAndThenTheTitle) {
  Apri();
  QStringList titoli;
  QObject::connect(finestra.get(), &QWidget::windowTitleChanged,
                   [&titoli](const QString& titolo) { titoli += titolo; });
  finestra->Vai(Q("Index.htm"));
  EXPECT_EQ(titoli, QStringList({Q("Elaborazione in corso..."), Q("Indice")}));
}

TEST_F(Browser, ThePageWithoutATitleIsCalledByItsFile) {
  Apri();
  finestra->Vai(Q("Senza.htm"));
  EXPECT_EQ(finestra->windowTitle(), Q("Senza.htm"));
}

TEST_F(Browser, ATickAtRestStopsTheTimer) {
  Apri_Indice();
  Timer().start();
  finestra->setWindowTitle(Q("altro"));
  finestra->timTimer_Tick();
  EXPECT_FALSE(Timer().isActive());
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
}

// ---- history of addresses -----------------------------------------------------------------------

TEST_F(Browser, TheSamePageOpenedTwiceStandsOnceAtTheTop) {
  Apri_Indice();
  finestra->Vai(Q("US-00.htm"));
  EXPECT_EQ(Voci(), QStringList({Q("Panel/US-00.htm"), Q("Index.htm")}));
  finestra->Vai(Q("SET_IST.htm"));
  finestra->Vai(Q("Index.htm"));
  EXPECT_EQ(Voci(), QStringList({Q("Index.htm"), Q("SET_IST.htm"), Q("Panel/US-00.htm")}));
  EXPECT_EQ(Indirizzo().currentIndex(), 0);
  EXPECT_EQ(Indirizzo().currentText(), guida.Dir_Help + Q("Index.htm"));
}

TEST_F(Browser, AFileAddressOfTheSamePageIsTheSameEntry) {
  Apri_Indice();
  finestra->Vai(Q("file://") + guida.Dir_Help + Q("Panel/../Index.htm"));
  EXPECT_EQ(Voci(), QStringList{Q("Index.htm")});
}

TEST_F(Browser, ReturnInTheTextPartNavigates) {
  Apri_Indice();
  Scrivi_Indirizzo("US-00.htm");
  EXPECT_TRUE(Timer().isActive());
  EXPECT_EQ(finestra->windowTitle(), Q("00 Marcia"));
  EXPECT_EQ(Voci(), QStringList({Q("Panel/US-00.htm"), Q("Index.htm")}));
}

TEST_F(Browser, AClickOnAnEntryNavigates) {
  Apri_Indice();
  finestra->Vai(Q("US-00.htm"));
  Indirizzo().setCurrentIndex(1);
  Q_EMIT Indirizzo().activated(1);
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  EXPECT_EQ(Voci(), QStringList({Q("Index.htm"), Q("Panel/US-00.htm")}));
}

TEST_F(Browser, LeavingTheTextPartDoesNotNavigate) {
  Apri_Indice();
  finestra->Vai(Q("US-00.htm"));
  Indirizzo().setFocus();
  Indirizzo().setEditText(guida.Dir_Help + Q("Index.htm"));
  Vista().setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(finestra->windowTitle(), Q("00 Marcia"));
}

TEST_F(Browser, AnEmptyAddressDoesNothing) {
  Apri_Indice();
  Scrivi_Indirizzo("  ");
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  EXPECT_EQ(Voci(), QStringList{Q("Index.htm")});
}

TEST_F(Browser, ALinkIsFollowed) {
  Apri_Indice();
  Vista().setSource(QUrl(Q("Panel/US-00.htm")));
  EXPECT_EQ(finestra->windowTitle(), Q("00 Marcia"));
  EXPECT_EQ(Indirizzo().currentText(), guida.Dir_Panel + Q("US-00.htm"));
  Vista().setSource(QUrl(Q("../SET_IST.htm")));
  EXPECT_EQ(finestra->windowTitle(), Q("Istruzioni"));
}

// ---- tool bar -----------------------------------------------------------------------------------

struct Riga_Tasto {
  const char* Chiave;
  const char* Icona;
  bool Timer;  // on after a click
};
constexpr std::array righe_tasti{
    Riga_Tasto{"Back", "Back", true},       Riga_Tasto{"Forward", "Forward", true},
    Riga_Tasto{"Refresh", "Refresh", true}, Riga_Tasto{"Home", "Home", true},
    Riga_Tasto{"Search", "Search", true},   Riga_Tasto{"Stop", "StopLoad", false},
    Riga_Tasto{"Esci", "Esci", true},
};

class Key : public Browser, public ::testing::WithParamInterface<Riga_Tasto> {};

TEST_P(Key, HasAPictureAndATip) {
  Apri();
  QAction& azione = Azione(*finestra, Q("tbToolBar(%1)").arg(Q(GetParam().Chiave)));
  EXPECT_TRUE(QFile::exists(Q(":/icons/%1.svg").arg(Q(GetParam().Icona))));
  EXPECT_FALSE(azione.icon().isNull());
  EXPECT_FALSE(azione.toolTip().isEmpty());
  EXPECT_FALSE(azione.shortcuts().isEmpty());
}

TEST_P(Key, SwitchesTheTimerOn) {
  Apri_Indice();
  Timer().stop();
  Premi(GetParam().Chiave);
  EXPECT_EQ(Timer().isActive(), GetParam().Timer);
}

INSTANTIATE_TEST_SUITE_P(ToolBar, Key, ::testing::ValuesIn(righe_tasti),
                         [](const auto& riga) { return std::string(riga.param.Chiave); });

TEST_F(Browser, KeysStandInTheirOrder) {
  Apri();
  QStringList nomi;
  for (const QToolButton* tasto : Controllo<QToolBar>("tbToolBar").findChildren<QToolButton*>())
    if (tasto->objectName().startsWith(Q("tbToolBar("))) nomi += tasto->objectName();
  QStringList attesi;
  for (const Riga_Tasto& riga : righe_tasti) attesi += Q("tbToolBar(%1)").arg(Q(riga.Chiave));
  EXPECT_EQ(nomi, attesi);
}

TEST_F(Browser, BackAndForwardGoThroughTheHistory) {
  Apri_Indice();
  finestra->Vai(Q("US-00.htm"));
  Premi("Back");
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  EXPECT_EQ(Indirizzo().currentText(), guida.Dir_Help + Q("Index.htm"));
  Premi("Forward");
  EXPECT_EQ(finestra->windowTitle(), Q("00 Marcia"));
  EXPECT_EQ(Voci(), QStringList({Q("Panel/US-00.htm"), Q("Index.htm")}));
}

TEST_F(Browser, BackAndForwardAtTheEndsGiveNoError) {
  Apri();
  Premi("Back");
  Premi("Forward");
  finestra->Vai(Q("Index.htm"));
  for (int i = 0; i < 3; ++i) Premi("Back");
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  for (int i = 0; i < 3; ++i) Premi("Forward");
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
}

TEST_F(Browser, RefreshReadsThePageAgain) {
  Apri_Indice();
  Scrivi("HTML/Index.htm", "<title>Nuovo</title><p>cambiata</p>");
  Premi("Refresh");
  EXPECT_EQ(finestra->windowTitle(), Q("Nuovo"));
  EXPECT_EQ(Voci(), QStringList{Q("Index.htm")});
}

TEST_F(Browser, OpeningThePageOnScreenReadsItAgain) {
  Apri_Indice();
  Scrivi("HTML/Index.htm", "<title>Nuovo</title>");
  finestra->Vai(Q("Index.htm"));
  EXPECT_EQ(finestra->windowTitle(), Q("Nuovo"));
}

TEST_F(Browser, HomeIsTheIndex) {
  Apri(guida.Dir_Panel + Q("US-00.htm"));
  Premi("Home");
  EXPECT_EQ(Indirizzo().currentText(), guida.Dir_Help + Q("Index.htm"));
}

TEST_F(Browser, StopEndsTheWorkAndGivesTheAddressBack) {
  Apri_Indice();
  Timer().start();
  Indirizzo().setEditText(Q("a metà"));
  finestra->setWindowTitle(Q("altro"));
  Premi("Stop");
  EXPECT_FALSE(Timer().isActive());
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  EXPECT_EQ(Indirizzo().currentText(), guida.Dir_Help + Q("Index.htm"));
}

TEST_F(Browser, EsciClosesTheWindow) {
  Apri_Indice();
  Premi("Esci");
  EXPECT_FALSE(finestra->isVisible());
}

TEST_F(Browser, KeysWorkFromTheKeyboard) {
  Apri_Indice();
  finestra->Vai(Q("US-00.htm"));
  finestra->activateWindow();
  QCoreApplication::processEvents();
  QTest::keyClick(finestra.get(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
  QTest::keyClick(finestra.get(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(finestra->windowTitle(), Q("00 Marcia"));
  QTest::keyClick(finestra.get(), Qt::Key_Escape);
  EXPECT_TRUE(finestra->isVisible());
}

// ---- search -------------------------------------------------------------------------------------

TEST_F(Browser, SearchShowsItsLineAndFindsPages) {
  Apri_Indice();
  auto& parole = Controllo<QLineEdit>("txtCerca");
  EXPECT_FALSE(parole.isVisible());
  Premi("Search");
  EXPECT_TRUE(parole.isVisible());
  EXPECT_EQ(finestra->windowTitle(), Q("Cerca nella guida"));
  parole.setText(Q("motore"));
  QTest::keyClick(&parole, Qt::Key_Return);
  EXPECT_TRUE(Vista().toPlainText().contains(Q("00 Marcia")));
  EXPECT_EQ(Indirizzo().currentText(), Q("cerca:motore"));
  EXPECT_EQ(parole.text(), Q("motore"));
  parole.setText(Q("timer"));
  Controllo<QPushButton>("cmdCerca").click();
  EXPECT_TRUE(Vista().toPlainText().contains(Q("Istruzioni")));
  Premi("Back");
  EXPECT_EQ(parole.text(), Q("motore"));
  finestra->Vai(Q("US-00.htm"));
  EXPECT_FALSE(parole.isVisible());
}

// ---- pages that cannot be shown -----------------------------------------------------------------

TEST_F(Browser, AMissingPageIsNamed) {
  Apri(guida.Dir_Panel + Q("US-09.htm"));
  EXPECT_EQ(finestra->windowTitle(), Q("Pagina non trovata"));
  EXPECT_TRUE(Vista().toPlainText().contains(Q("US-09.htm")));
  EXPECT_EQ(Voci(), QStringList{Q("Panel/US-09.htm")});
}

TEST_F(Browser, APageOfTheNetworkIsNeverLoaded) {
  Apri_Indice();
  Vista().setSource(QUrl(Q("http://127.0.0.1/pagina.htm")));
  EXPECT_EQ(finestra->windowTitle(), Q("Pagina esterna"));
  EXPECT_TRUE(Vista().toPlainText().contains(Q("http://127.0.0.1/pagina.htm")));
  Premi("Back");
  EXPECT_EQ(finestra->windowTitle(), Q("Indice"));
}

// ---- layout and text size -----------------------------------------------------------------------

TEST_F(Browser, TheLayoutFollowsTheWindow) {
  Apri_Indice();
  for (const QSize grandezza : {QSize(860, 680), QSize(500, 400), QSize(1200, 700)}) {
    finestra->resize(grandezza);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(Indirizzo().width(), Controllo<QToolBar>("tbToolBar").width() - 160);
    EXPECT_TRUE(Indirizzo().isVisible());
    EXPECT_EQ(Vista().size(), grandezza - QSize(1, 50));
  }
}

TEST_F(Browser, TheTextGrowsAndShrinksWithinBounds) {
  Apri_Indice();
  const double normale = Vista().font().pointSizeF();
  Vista().Ingrandisci(2);
  EXPECT_EQ(Vista().font().pointSizeF(), normale + 2);
  Vista().Ingrandisci(-100);
  EXPECT_EQ(Vista().font().pointSizeF(), normale - 4);
  Vista().Ingrandisci(100);
  EXPECT_EQ(Vista().font().pointSizeF(), normale + 14);
  Vista().Grandezza_Normale();
  EXPECT_EQ(Vista().font().pointSizeF(), normale);
}

TEST_F(Browser, TheWheelChangesTheTextSizeWithControl) {
  Apri_Indice();
  const double normale = Vista().font().pointSizeF();
  QWheelEvent evento(QPointF(50, 50), Vista().mapToGlobal(QPointF(50, 50)), QPoint(),
                     QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(Vista().viewport(), &evento);
  EXPECT_EQ(Vista().font().pointSizeF(), normale + 1);
}

}  // namespace
}  // namespace tavorno
