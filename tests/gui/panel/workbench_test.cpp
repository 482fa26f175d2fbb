// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench: the views of the program as docks of one window, and back in windows of their own.
#include "panel/workbench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QWindow>
#include <set>

#include "panel/child_windows.h"
#include "panel/loan.h"
#include "panel/panel_bed.h"
#include "plants/exercises.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "support/foreign_focus.h"

namespace tavorno {
namespace {

struct Al_Tavolo : Banco_Finestre {
  Al_Tavolo() { guida = {"/guida/", "/guida/Panel/", {}}; }

  static std::set<std::string> Aperte() {
    std::set<std::string> aperte;
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->objectName().startsWith("frm") && finestra->isVisible())
        aperte.insert(finestra->objectName().toStdString());
    }
    return aperte;
  }
  void Aspetta_Posa() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
    QCoreApplication::processEvents();
  }
  void Comando(const char* voce) {
    Azione(pannello, voce).trigger();
    Aspetta_Posa();
  }
  QWidget* Docciata(Vista_Tavolo chi) {
    QDockWidget* riquadro = finestre.Al_Tavolo()->Riquadro(chi);
    return riquadro == nullptr ? nullptr : riquadro->widget();
  }
  static void A_Fuoco(QWidget& parte) {
    parte.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return parte.isActiveWindow(); }, 20000));
    parte.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == &parte; }, 20000));
  }
};

/// What must be the same behind a visit to the workbench.
struct Com_Era {
  QWidget* Finestra;
  QRect Posto;
  QString Titolo;
  QSize Minima;
  bool operator==(const Com_Era&) const = default;
};
Com_Era Adesso(QWidget* finestra) {
  return {finestra, QRect(finestra->pos(), finestra->size()), finestra->windowTitle(),
          finestra->minimumSize()};
}

TEST(WorkbenchTable, HasEachViewOnceAndTwoArrangements) {
  std::set<Vista_Tavolo> viste;
  std::set<std::string> nomi;
  for (const Riga_Tavolo& riga : Tabella_Tavolo()) {
    viste.insert(riga.Chi);
    nomi.insert(riga.Nome);
    EXPECT_TRUE(riga.Con_Impianto) << riga.Nome;
  }
  EXPECT_EQ(viste.size(), viste_del_tavolo);
  EXPECT_EQ(nomi.size(), viste_del_tavolo);
}

TEST_F(Al_Tavolo, EveryViewIsTheSameObjectInItsDockAndComesBackAsItWas) {
  Comando("mnuPrj(0)");
  Comando("mnuViewTempi");
  Comando("mnuViewOsserva");
  const char* nomi[] = {"frmPLC", "frmMA", "frmStatiL", "frmTempi", "frmOsserva"};
  Finestra("frmTempi")->setGeometry(40, 60, 700, 380);
  std::vector<Com_Era> prima;
  for (const char* nome : nomi) prima.push_back(Adesso(Finestra(nome)));
  const QRect fronte = c.Fronte->geometry(), lista = c.vistaLista->geometry();
  auto& impianto = *finestre.Impianto();

  Comando("mnuViewTavolo");
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmTavolo"});
  EXPECT_EQ(Finestra("frmTavolo")->windowTitle(), impianto.windowTitle());
  EXPECT_EQ(Docciata(Vista_Tavolo::CPU), c.Fronte);
  EXPECT_EQ(Docciata(Vista_Tavolo::Lista), c.vistaLista);
  EXPECT_EQ(Docciata(Vista_Tavolo::Stati), prima[2].Finestra);
  EXPECT_EQ(Docciata(Vista_Tavolo::Tempi), prima[3].Finestra);
  EXPECT_EQ(Docciata(Vista_Tavolo::Osserva), prima[4].Finestra);
  EXPECT_EQ(Docciata(Vista_Tavolo::Tabella_IO), &impianto.Schede());
  EXPECT_EQ(finestre.Al_Tavolo()->Finestra().centralWidget(), &impianto);
  EXPECT_TRUE(c.tB1->isVisible()) << "run and mode keys are there";

  Comando("mnuViewFinestre");
  EXPECT_EQ(finestre.Al_Tavolo(), nullptr);
  for (std::size_t n = 0; n < std::size(nomi); ++n) {
    SCOPED_TRACE(nomi[n]);
    ASSERT_NE(Finestra(nomi[n]), nullptr);
    EXPECT_EQ(Adesso(Finestra(nomi[n])), prima[n]);
  }
  EXPECT_EQ(Aperte().size(), std::size(nomi));
  EXPECT_EQ(c.Fronte->geometry(), fronte);
  EXPECT_EQ(c.vistaLista->geometry(), lista);
  EXPECT_EQ(c.tB1->window(), &pannello);
  EXPECT_TRUE(c.tB1->isVisible());
  EXPECT_FALSE(impianto.Schede().isVisible());
  impianto.close();
}

/// Nobody corrects it: what is put right afterwards can come too late. Run on a desktop with frames
/// too, in tests/e2e.
TEST_F(Al_Tavolo, AWindowComesBackAtOnceWithItsFrame) {
  QWidget vista;
  vista.setGeometry(120, 90, 300, 200);
  vista.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&vista, 20000));
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return !vista.windowHandle()->frameMargins().isNull(); }, 20000));
  const QRect posto = vista.geometry();
  QMainWindow ospite;
  ospite.resize(600, 400);
  ospite.show();
  for (int volta = 0; volta < 3; ++volta) {
    Prestito prestito(vista, {});
    ospite.setCentralWidget(&vista);
    vista.show();
    QCoreApplication::processEvents();
    ospite.takeCentralWidget();
    prestito.Rendi();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&vista, 20000));
    EXPECT_EQ(vista.geometry(), posto);
  }
}

TEST_F(Al_Tavolo, TheTableOfThePlantIsAsItWasToo) {
  for (const bool aperta : {false, true}) {
    Comando("mnuPrj(0)");
    auto& impianto = *finestre.Impianto();
    auto& chkIO = *impianto.findChild<QCheckBox*>("chkIO");
    chkIO.setChecked(aperta);
    Aspetta_Posa();
    const QSize prima = impianto.size();
    const QRect schede = impianto.Schede().geometry();
    Comando("mnuViewTavolo");
    EXPECT_TRUE(chkIO.isChecked());
    chkIO.click();
    EXPECT_TRUE(finestre.Al_Tavolo()->Riquadro(Vista_Tavolo::Tabella_IO)->isHidden());
    chkIO.click();
    QCoreApplication::processEvents();
    EXPECT_TRUE(impianto.Schede().isVisible()) << "in front of the other tabs";
    if (!aperta) chkIO.click();
    Comando("mnuViewFinestre");
    EXPECT_EQ(chkIO.isChecked(), aperta);
    EXPECT_EQ(impianto.Schede().isVisible(), aperta);
    EXPECT_EQ(impianto.size(), prima);
    if (aperta) {
      EXPECT_EQ(impianto.Schede().geometry(), schede);
    }
    impianto.close();
    Aspetta_Posa();
  }
}

TEST_F(Al_Tavolo, APlantThatClosesBringsTheViewsBack) {
  Aspetta_Posa();
  const Com_Era pannello_prima = Adesso(&pannello);
  for (const bool dalla_finestra : {false, true}) {
    Comando("mnuPrj(4)");
    Comando("mnuViewTempi");
    const Com_Era tempi = Adesso(Finestra("frmTempi"));
    Comando("mnuViewTavolo");
    ASSERT_NE(Finestra("frmTavolo"), nullptr);
    if (dalla_finestra)
      finestre.Al_Tavolo()->Finestra().close();
    else
      finestre.Impianto()->findChild<QPushButton*>("cmdEnd")->click();
    Aspetta_Posa();
    EXPECT_EQ(finestre.Impianto(), nullptr);
    EXPECT_EQ(Aperte(), (std::set<std::string>{"frmPLC", "frmTempi"}))
        << "the status window closes";
    EXPECT_EQ(Adesso(&pannello), pannello_prima);
    EXPECT_EQ(Adesso(Finestra("frmTempi")), tempi);
    EXPECT_TRUE(c.Fronte->isVisible());
    EXPECT_TRUE(c.listSrc->isVisible());
    EXPECT_FALSE(Azione(pannello, "mnuPrj(4)").isChecked());
    Finestra("frmTempi")->close();
    Aspetta_Posa();
  }
}

TEST_F(Al_Tavolo, APlantThatHasJustClosedIsNotTakenAnyMore) {
  Comando("mnuPrj(0)");
  const QPointer<Finestra_Impianto> prima = finestre.Impianto();
  prima->close();  // and goes when the next event is due
  ASSERT_FALSE(prima.isNull());
  EXPECT_EQ(finestre.Impianto(), nullptr);
  Azione(pannello, "mnuViewTavolo").trigger();
  EXPECT_EQ(&finestre.Al_Tavolo()->Finestra(), &pannello);
  Azione(pannello, "mnuPrj(4)").trigger();
  Aspetta_Posa();
  EXPECT_TRUE(prima.isNull());
  ASSERT_NE(finestre.Impianto(), nullptr);
  EXPECT_EQ(finestre.Al_Tavolo()->Finestra().centralWidget(), finestre.Impianto());
  finestre.Impianto()->close();
}

TEST_F(Al_Tavolo, WithoutAPlantThePanelTakesTheViews) {
  Aspetta_Posa();
  const Com_Era prima = Adesso(&pannello);
  Comando("mnuViewTavolo");
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmPLC"});
  EXPECT_EQ(&finestre.Al_Tavolo()->Finestra(), &pannello);
  EXPECT_EQ(Docciata(Vista_Tavolo::Lista), c.vistaLista);
  EXPECT_EQ(Docciata(Vista_Tavolo::CPU), nullptr) << "it is in the panel";
  for (const Vista_Tavolo chi : {Vista_Tavolo::Tempi, Vista_Tavolo::Osserva, Vista_Tavolo::Stati})
    EXPECT_NE(Docciata(chi), nullptr);
  Comando("mnuViewFinestre");
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmPLC"}) << "what was opened for it is closed";
  EXPECT_EQ(Adesso(&pannello), prima);
  EXPECT_TRUE(c.listSrc->isVisible());
}

TEST_F(Al_Tavolo, AnExerciseThatIsOpenedThereGoesOnThere) {
  Comando("mnuViewTavolo");
  Comando("mnuPrj(0)");
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmTavolo"});
  EXPECT_NE(Docciata(Vista_Tavolo::Tabella_IO), nullptr);
  finestre.Impianto()->close();
  Aspetta_Posa();
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmPLC"});
}

TEST_F(Al_Tavolo, AViewThatWasClosedComesBackByItsCommandAndByTheArrangement) {
  Comando("mnuPrj(0)");
  Comando("mnuViewTavolo");
  Docciata(Vista_Tavolo::Stati)->findChild<QPushButton*>("cmdEnd")->click();
  finestre.Al_Tavolo()->Riquadro(Vista_Tavolo::Tempi)->close();
  Aspetta_Posa();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(finestre.Al_Tavolo()->Riquadro(Vista_Tavolo::Stati), nullptr);
  Comando("mnuViewTempi");
  EXPECT_TRUE(Docciata(Vista_Tavolo::Tempi)->isVisible());
  Comando("mnuViewStati");
  ASSERT_NE(Docciata(Vista_Tavolo::Stati), nullptr);
  EXPECT_TRUE(Docciata(Vista_Tavolo::Stati)->isVisible());
  for (const Riga_Tavolo& riga : Tabella_Tavolo())
    finestre.Al_Tavolo()->Riquadro(riga.Chi)->close();
  Comando("mnuViewTavolo");
  for (const Riga_Tavolo& riga : Tabella_Tavolo())
    EXPECT_FALSE(finestre.Al_Tavolo()->Riquadro(riga.Chi)->isHidden()) << riga.Nome;
  EXPECT_EQ(Aperte(), std::set<std::string>{"frmTavolo"});
  finestre.Impianto()->close();
}

TEST_F(Al_Tavolo, TheKeysAreThoseOfTheViewThatHasTheFocus) {
  Carica("LD SM0.0\r\n= Q0.0\r\n");
  Comando("mnuPrj(9)");
  Comando("mnuViewTavolo");
  QWidget& tavolo = *Finestra("frmTavolo");
  A_Fuoco(finestre.Impianto()->Disegno());
  Al_Ciclo[2] = [&] {
    pannello.Aggiorna();
    QTest::keyClick(&tavolo, Qt::Key_F5, Qt::ShiftModifier);
    QCoreApplication::processEvents();
  };
  Al_Ciclo[50] = [&] { plc.mnuPlcStop(); };
  cicli = righe = 0;
  QTest::keyClick(&tavolo, Qt::Key_F5);
  QCoreApplication::processEvents();
  EXPECT_EQ(cicli, 3) << "Run and Stop";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_NE(Docciata(Vista_Tavolo::Stati), nullptr)
      << "Esc closes the view that has the focus alone";
  const auto pagina = [] {
    return Finestra("frmBrowser")->findChild<QComboBox*>("cboAddress")->currentText();
  };
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
  ASSERT_NE(Finestra("frmBrowser"), nullptr);
  EXPECT_EQ(pagina(), "/guida/Panel/US-09.htm");
  QWidget& tempi = *Docciata(Vista_Tavolo::Tempi)->findChild<QWidget*>("picTempi");
  A_Fuoco(tempi);
  QTest::keyClick(&tempi, Qt::Key_F1);
  EXPECT_EQ(pagina(), "/guida/Tempi.htm");
  auto& stati = *Docciata(Vista_Tavolo::Stati)->findChild<QWidget*>("cmbM1");
  finestre.Mostra_Stati();
  A_Fuoco(stati);
  QTest::keyClick(&stati, Qt::Key_F1);
  EXPECT_EQ(pagina(), "/guida/Index.htm#stati");
  QTest::keyClick(&stati, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Docciata(Vista_Tavolo::Stati), nullptr);
  A_Fuoco(finestre.Impianto()->Disegno());
  QTest::keyClick(&tavolo, Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  Aspetta_Posa();
  EXPECT_EQ(finestre.Al_Tavolo(), nullptr);
  QTest::keyClick(finestre.Impianto(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_NE(finestre.Al_Tavolo(), nullptr) << "from the plant's own window too";
  finestre.Impianto()->close();
}

TEST_F(Al_Tavolo, NoWindowGoesOnPointingToAFocusThatHasLeftIt) {
  for (const bool con_impianto : {false, true}) {
    if (con_impianto) Comando("mnuPrj(0)");
    for (const char* vista : {"mnuViewTempi", "mnuViewOsserva", "mnuViewStati"}) {
      SCOPED_TRACE(vista);
      Comando("mnuViewTavolo");
      Comando(vista);  // the view itself has the focus
      EXPECT_EQ(Con_Un_Fuoco_D_Altri(), std::vector<std::string>{});
      Comando("mnuViewFinestre");
      EXPECT_EQ(Con_Un_Fuoco_D_Altri(), std::vector<std::string>{});
    }
  }
  A_Fuoco(*c.listSrc);
  Comando("mnuViewTavolo");
  EXPECT_EQ(Con_Un_Fuoco_D_Altri(), std::vector<std::string>{});
  finestre.Impianto()->close();
}

TEST_F(Al_Tavolo, GoingToAndFroClearsNoCounter) {
  Carica("LD SM0.0\r\n= Q0.0\r\n");
  Comando("mnuPrj(0)");
  EXPECT_TRUE(QTest::qWaitFor([] { return Finestra("frmMA")->isActiveWindow(); }, 20000));
  plc.Mem_C[1].Val = 5;
  Comando("mnuViewTavolo");
  EXPECT_TRUE(QTest::qWaitFor([] { return Finestra("frmTavolo")->isActiveWindow(); }, 20000));
  Comando("mnuViewFinestre");
  EXPECT_TRUE(QTest::qWaitFor([] { return Finestra("frmMA")->isActiveWindow(); }, 20000));
  EXPECT_EQ(plc.Mem_C[1].Val, 5);
  finestre.Impianto()->close();
}

TEST_F(Al_Tavolo, TheEditorLeadsBackToIt) {
  Comando("mnuPrj(0)");
  Comando("mnuViewTavolo");
  finestre.Mostra_Editor(Avvio::Nuovo);
  progetto.Testi_Salvati = progetto.Testi();
  Finestra("frmMain")->close();
  EXPECT_FALSE(pannello.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([] { return Finestra("frmTavolo")->isActiveWindow(); }, 20000));
  finestre.Impianto()->close();
}

TEST(Loan, TakesTheFocusFromWhatLeavesAndFromNothingElse) {
  QWidget finestra;
  QWidget vista(&finestra), altra(&finestra);
  QLineEdit dentro(&vista), fuori(&altra);
  for (QWidget* a_fuoco : std::initializer_list<QWidget*>{&dentro, &vista, &fuori}) {
    a_fuoco->setFocus();
    ASSERT_EQ(finestra.focusWidget(), a_fuoco);
    Lascia_Il_Fuoco(vista);
    EXPECT_EQ(finestra.focusWidget(), a_fuoco == &fuori ? &fuori : nullptr);
    EXPECT_EQ(vista.focusWidget(), nullptr);
  }
}

TEST(Workbench, EndsWithTheProgram) {
  for (const bool con_impianto : {false, true}) {
    Seduta seduta;
    FrmPLC pannello(seduta.plc, seduta.progetto);
    Guida guida;
    auto finestre = std::make_unique<Finestre>(pannello, seduta.plc, seduta.progetto, guida);
    pannello.show();
    if (con_impianto) finestre->Apri_Impianto(0);
    finestre->Mostra_Tavolo();
    finestre.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(pannello.Controlli().Fronte->window(), &pannello);
    EXPECT_EQ(pannello.Controlli().vistaLista->window(), &pannello);
    EXPECT_EQ(pannello.Controlli().tB1->window(), &pannello);
  }
}

}  // namespace
}  // namespace tavorno
