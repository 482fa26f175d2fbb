// SPDX-License-Identifier: GPL-3.0-or-later
// Stops: their marks in the margin of the program list, and the table of all.
#include "panel/stop_marks.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>
#include <algorithm>

#include "panel/panel_bed.h"
#include "panel/session_bar.h"
#include "recorder/recorder.h"
#include "recorder/ui/stops_dialog.h"

namespace tavorno {
namespace {

using Forma_Segno = Segno_Fermata::Forma;

struct Segni_Di_Fermata : Banco_Pannello {
  Registratore registratore{plc};
  Guida_Corsa corsa{plc, [] {}};
  Barra_Seduta barra{pannello, plc, registratore, corsa};
  Fermate_Pannello& fermate = barra.Le_Fermate();
  QLineEdit& campo = *barra.findChild<QLineEdit*>("txtFermate");
  std::vector<std::string> avvisi;

  void SetUp() override {
    corsa.Ferma();
    corsa.Attesa = false;
    barra.Avvisa = [this](const QString& testo) { avvisi.push_back(testo.toStdString()); };
    Carica("LD I0.0\r\n= Q0.0\r\nLD SM0.0\r\nINCW VW0\r\nLD T37\r\n= Q0.1\r\n");
    QApplication::setActiveWindow(&pannello);
  }
  void Clic_Nel_Margine(int riga) {
    const QRect posto = c.listSrc->visualItemRect(c.listSrc->item(riga));
    QTest::mouseClick(c.listSrc->viewport(), Qt::LeftButton, {},
                      QPoint(posto.left() + c.listSrc->Margine() / 2, posto.center().y()));
  }
  Forma_Segno Segno(int riga) { return c.listSrc->Segno_Di(riga).Come; }
  QString Stato() { return barra.findChild<QLabel*>("etSeduta")->text(); }
  /// A run that ends at a stop; fails when it does not.
  void Corri_Fino_Alla_Fermata() {
    Al_Ciclo[500] = [this] { plc.mnuPlcStop(); };
    Scegli("mnuPlcRun");
    EXPECT_TRUE(corsa.In_Pausa());
  }
};

TEST_F(Segni_Di_Fermata, AClickInTheMarginSetsOneAndTheRunStandsBeforeThatLine) {
  Clic_Nel_Margine(4);
  EXPECT_EQ(Segno(4), Forma_Segno::Piena);
  EXPECT_EQ(c.txtStop->text(), "0") << "no click on the line";
  EXPECT_EQ(campo.text(), "riga 4");
  Corri_Fino_Alla_Fermata();
  EXPECT_EQ(plc.PC, 4);
  EXPECT_EQ(plc.Mem_VW[0], 0);
  EXPECT_EQ(c.listSrc->currentRow(), 4);
  pannello.Attivata();  // as when the user comes back from the plant
  EXPECT_EQ(c.listSrc->currentRow(), 4);
  EXPECT_EQ(Segno(4), Forma_Segno::Piena);
  EXPECT_TRUE(barra.isVisibleTo(&pannello));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Stato().contains("Fermata: riga 4"); }));
  Azione(pannello, "mnuPausa").trigger();  // on, to the next scan
  QCoreApplication::processEvents();
  EXPECT_EQ(plc.PC, 4);
  EXPECT_EQ(plc.Mem_VW[0], 1);
  Clic_Nel_Margine(4);
  EXPECT_EQ(Segno(4), Forma_Segno::Nessuna);
  EXPECT_FALSE(corsa.Fermati_Qui) << "without stops a run is asked nothing";
}

TEST_F(Segni_Di_Fermata, ThereAreAsManyAsOneLikes) {
  for (const int riga : {2, 4, 6}) Clic_Nel_Margine(riga);
  Corri_Fino_Alla_Fermata();
  for (const int riga : {4, 6, 2, 4}) {
    Azione(pannello, "mnuPausa").trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(plc.PC, riga);
  }
}

TEST_F(Segni_Di_Fermata, TheKeyWorksAtTheSelectedLine) {
  c.listSrc->setCurrentRow(3);
  EXPECT_EQ(Azione(pannello, "mnuFermata").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F9));
  Azione(pannello, "mnuFermata").trigger();
  EXPECT_EQ(Segno(3), Forma_Segno::Piena);
  EXPECT_EQ(c.listSrc->item(3)->data(Qt::AccessibleDescriptionRole).toString(), "Fermata: riga 3");
  Azione(pannello, "mnuFermata").trigger();
  EXPECT_EQ(Segno(3), Forma_Segno::Nessuna);
  EXPECT_EQ(c.listSrc->item(3)->data(Qt::AccessibleDescriptionRole).toString(), "");
}

TEST_F(Segni_Di_Fermata, StopAllaRigaHasItsMarkAmongThem) {
  c.txtStop->setText("5");
  EXPECT_EQ(Segno(5), Forma_Segno::Nessuna);
  c.chkStop->setChecked(true);
  EXPECT_EQ(Segno(5), Forma_Segno::Vuota);
  Clic_Nel_Margine(5);
  EXPECT_FALSE(c.chkStop->isChecked());
  EXPECT_EQ(Segno(5), Forma_Segno::Nessuna);
  // It still stops Ciclo as it always did, beside the others.
  c.chkStop->setChecked(true);
  Clic_Nel_Margine(2);
  Scegli("mnuPLCCiclo");
  Corri_Fino_Alla_Fermata();
  EXPECT_EQ(plc.PC, 2);
  Azione(pannello, "mnuPausa").trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(plc.PC, 5);
  EXPECT_FALSE(corsa.In_Pausa());
  EXPECT_TRUE(plc.Attivi.cmdRest);
}

TEST_F(Segni_Di_Fermata, TheLineOfTheListAndTheListOfAllAreOne) {
  campo.setText("riga 3; Q0.0 sale; riga 5 se VW0 > 3 x2");
  Q_EMIT campo.editingFinished();
  EXPECT_EQ(Segno(3), Forma_Segno::Piena);
  EXPECT_EQ(Segno(5), Forma_Segno::Con_Condizione);
  Clic_Nel_Margine(3);
  EXPECT_EQ(campo.text(), "Q0.0 sale; riga 5 se VW0 > 3 x2");
  campo.setText("Q0.9 sale");
  Q_EMIT campo.editingFinished();
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_NE(avvisi[0].find("fermata non valida \"Q0.9 sale\""), std::string::npos) << avvisi[0];
  EXPECT_EQ(campo.text(), "Q0.0 sale; riga 5 se VW0 > 3 x2");
}

TEST_F(Segni_Di_Fermata, TheMenuOfALineOffersWhatThereIs) {
  c.listSrc->setCurrentRow(2);
  QContextMenuEvent tasto(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(c.listSrc->viewport(), &tasto);
  auto* menu = c.listSrc->findChild<QMenu*>("mnuMargine");
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 3);
  EXPECT_FALSE(menu->actions()[0]->isChecked());
  EXPECT_FALSE(menu->actions()[2]->isEnabled());
  menu->actions()[0]->trigger();
  EXPECT_EQ(Segno(2), Forma_Segno::Piena);
  menu->close();
}

TEST_F(Segni_Di_Fermata, AConditionIsWrittenIntoTheTable) {
  Clic_Nel_Margine(4);
  c.listSrc->setCurrentRow(4);
  Azione(pannello, "mnuFermate").trigger();
  auto* dialogo = dynamic_cast<Dialogo_Fermate*>(pannello.findChild<QWidget*>("frmFermate"));
  ASSERT_NE(dialogo, nullptr);
  auto& tabella = *dialogo->findChild<QTableWidget*>("tabFermate");
  ASSERT_EQ(tabella.rowCount(), 1);
  EXPECT_EQ(tabella.item(0, 0)->text(), "4");
  tabella.item(0, 1)->setText("VW0 > x");
  dialogo->accept();
  EXPECT_TRUE(dialogo->isVisible()) << "what cannot be read keeps it open";
  EXPECT_TRUE(dialogo->findChild<QLabel*>("etAvviso")->text().contains("fermata non valida"));
  tabella.item(0, 1)->setText("VW0 >= 7");
  dialogo->accept();
  EXPECT_FALSE(dialogo->isVisible());
  EXPECT_EQ(campo.text(), "riga 4 se VW0 >= 7");
  EXPECT_EQ(Segno(4), Forma_Segno::Con_Condizione);
  Corri_Fino_Alla_Fermata();
  EXPECT_EQ(plc.PC, 4);
  EXPECT_EQ(plc.Mem_VW[0], 7);
}

TEST_F(Segni_Di_Fermata, TheTableOfNoLineTakesNewOnesAndLosesOld) {
  campo.setText("Q0.0 sale; T37 cambia x2");
  Q_EMIT campo.editingFinished();
  std::string scelte;
  Dialogo_Fermate dialogo(&pannello, fermate.Tutte(), -1);
  auto& tabella = *dialogo.findChild<QTableWidget*>("tabFermate");
  ASSERT_EQ(tabella.rowCount(), 3) << "the last one is to be filled in";
  EXPECT_EQ(tabella.item(1, 2)->text(), "2");
  tabella.setCurrentCell(0, 1);
  dialogo.findChild<QPushButton*>("cmdTogli")->click();
  tabella.item(1, 0)->setText("6");
  dialogo.accept();
  EXPECT_EQ(dialogo.Scelte().Come_Testo(), "T37 cambia x2; riga 6");
}

}  // namespace
}  // namespace tavorno
