// SPDX-License-Identifier: GPL-3.0-or-later
// The exercises through the menu of the panel, with all the windows that open and close with them.
#include "plants/exercises.h"

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>

#include "awl/ui/main_window.h"
#include "ladder/ui/ladder_window.h"
#include "panel/application.h"
#include "panel/panel_bed.h"
#include "panel/windows/status_window.h"
#include "recorder/ui/diagram_window.h"
#include "recorder/ui/watch_window.h"

namespace tavorno {
namespace {

struct Esercizi_Dal_Menu : Banco_Finestre {
  QString Voce(int indice) { return QStringLiteral("mnuPrj(%1)").arg(indice); }
};

TEST_F(Esercizi_Dal_Menu, EachOpensAndClosesWithItsWindows) {
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    if (esercizio.Crea == nullptr) continue;
    SCOPED_TRACE(esercizio.Titolo);
    Azione(pannello, Voce(esercizio.Indice)).trigger();
    QWidget* host = Finestra(esercizio.Host);
    QWidget* stati = Finestra("frmStatiL");
    ASSERT_NE(host, nullptr);
    ASSERT_NE(stati, nullptr);
    EXPECT_EQ(host->pos(), QPoint(0, 0));
    EXPECT_GE(stati->x(), host->width());
    EXPECT_EQ(stati->y(), 0);
    EXPECT_TRUE(Azione(pannello, Voce(esercizio.Indice)).isChecked());
    EXPECT_FALSE(Azione(pannello, Voce(0)).isEnabled());
    EXPECT_FALSE(c.Fronte->Sim_I(0).isVisibleTo(&pannello));
    EXPECT_NE(pannello.cursor().shape(), Qt::WaitCursor);

    host->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Finestra(esercizio.Host), nullptr);
    EXPECT_EQ(Finestra("frmStatiL"), nullptr);
    EXPECT_FALSE(Azione(pannello, Voce(esercizio.Indice)).isChecked());
    EXPECT_TRUE(Azione(pannello, Voce(0)).isEnabled());
    EXPECT_TRUE(c.Fronte->Sim_I(0).isVisibleTo(&pannello));
    EXPECT_FALSE(c.Fronte->Sim_C().isVisibleTo(&pannello));
  }
}

TEST_F(Esercizi_Dal_Menu, TheLadderIsOursWhereNoOtherIsInstalledAndNamesThePlantsParts) {
  const QByteArray percorsi = qgetenv("PATH");
  qputenv("PATH", "");
  Azione(pannello, "mnuViewKOP").trigger();
  qputenv("PATH", percorsi);
  EXPECT_TRUE(seduta.Avvisi.empty());
  auto* scala = dynamic_cast<FrmScala*>(Finestra("frmScala"));
  ASSERT_NE(scala, nullptr);
  progetto.Scrivi_Main("NETWORK 1\r\nLD I0.0\r\n= Q0.0\r\n");
  const auto nomi = [&] {
    scala->Aggiorna();
    QStringList simboli;
    for (const Scritta_Pronta& scritta : scala->Vista().Foglio().Reti().at(0).Scritte)
      if (scritta.Stile == Stile_Scritta::Simbolo) simboli << scritta.Testo;
    return simboli;
  };
  EXPECT_EQ(nomi(), QStringList());
  Azione(pannello, Voce(0)).trigger();
  EXPECT_EQ(nomi(), (QStringList{"SB1", "KM"}));
  Finestra("frmMA")->close();
  EXPECT_EQ(nomi(), QStringList());
  scala->close();
}

TEST_F(Esercizi_Dal_Menu, TheLadderWritesToTheEditorWhileThatIsOpen) {
  finestre.Mostra_Scala();
  auto* scala = dynamic_cast<FrmScala*>(Finestra("frmScala"));
  EXPECT_FALSE(scala->Vista().Modificabile());
  finestre.Mostra_Editor(Avvio::Nuovo);
  scala->Aggiorna();
  ASSERT_TRUE(scala->Vista().Modificabile());
  scala->Vista().Scegli(0, -1);
  scala->Vista().Metti(QStringLiteral("LD I0.3"));
  EXPECT_NE(progetto.txtList.find("LD     I0.3"), std::string::npos);
  scala->Vista().Vai_Al_Testo();
  auto* editor = dynamic_cast<FrmMain*>(Finestra("frmMain"));
  const auto posto = editor->Posto_Cursore();
  ASSERT_TRUE(posto);
  scala->Vista().Annulla(false);
  EXPECT_EQ(progetto.txtList.find("LD     I0.3"), std::string::npos);
  progetto.Testi_Salvati = progetto.Testi();
  editor->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(scala->Vista().Modificabile());
}

TEST_F(Esercizi_Dal_Menu, TheDefaultsOfAPlantReachTheInputsAtOnce) {
  Azione(pannello, Voce(0)).trigger();
  EXPECT_EQ(plc.SI[0].Stato_I(), "10011000");
  EXPECT_EQ(plc.SI[1].Stato_I(), "00000000");
  Finestra("frmMA")->close();
}

TEST_F(Esercizi_Dal_Menu, AThumbwheelGivesWayToTheSwitchesWhenAPlantCloses) {
  finestre.Mostra_Impostazioni();
  Finestra("frmSetPLC")->findChild<QAbstractButton*>("opzSim(1)")->click();
  Finestra("frmSetPLC")->findChild<QAbstractButton*>("cmdSet")->click();
  EXPECT_TRUE(c.Fronte->Sim_C().isVisibleTo(&pannello));
  EXPECT_EQ(finestre.Sim_Contraves, -1);
  Azione(pannello, Voce(0)).trigger();
  Finestra("frmMA")->close();
  EXPECT_FALSE(c.Fronte->Sim_C().isVisibleTo(&pannello));
  EXPECT_TRUE(c.Fronte->Sim_I(1).isVisibleTo(&pannello));
  EXPECT_EQ(finestre.Sim_Contraves, -1);
}

TEST_F(Esercizi_Dal_Menu, UnderThePlugOfAPlantNoSwitchCanBeReached) {
  Azione(pannello, Voce(0)).trigger();
  finestre.Mostra_Impostazioni();
  Finestra("frmSetPLC")->findChild<QAbstractButton*>("cmdSet")->click();
  EXPECT_TRUE(c.Fronte->Sim_I(1).isVisibleTo(&pannello)) << "the settings show it, as told";
  const std::string ingressi = plc.SI[1].Stato_I();
  auto& interruttore = *c.Fronte->Sim_I(1).findChild<QWidget*>("imgI0(2)");
  const QPoint centro = interruttore.mapTo(&pannello, interruttore.rect().center());
  QTest::mouseClick(pannello.childAt(centro), Qt::LeftButton);
  EXPECT_EQ(plc.SI[1].Stato_I(), ingressi);
  EXPECT_FALSE(interruttore.isEnabled()) << "nor by keyboard";

  Finestra("frmMA")->findChild<QAbstractButton*>("chkSim")->click();
  QTest::mouseClick(pannello.childAt(centro), Qt::LeftButton);
  EXPECT_EQ(plc.SI[1].Stato_I(), "00100000") << "the switches are back in front of the plug";
  Finestra("frmMA")->close();
}

TEST_F(Esercizi_Dal_Menu, ThePanelAndTheEditorOpenEveryOtherWindow) {
  finestre.Mostra_Analogici();
  finestre.Mostra_Stati();
  finestre.Mostra_Debug();
  finestre.Mostra_Editor(Avvio::Nuovo);
  for (const char* nome : {"frmSimAI", "frmStatiL", "frmDebug", "frmMain"})
    EXPECT_NE(Finestra(nome), nullptr) << nome;
  finestre.Mostra_Editor(Avvio::Nuovo);  // the same window comes to the front
  int quante = 0;
  for (const QWidget* finestra : QApplication::topLevelWidgets())
    quante += finestra->objectName() == "frmMain" && finestra->isVisible();
  EXPECT_EQ(quante, 1);
  pannello.hide();
  Finestra("frmMain")->close();
  EXPECT_TRUE(pannello.isVisible()) << "the editor leads back to the panel";
}

TEST_F(Esercizi_Dal_Menu, DiagramAndWatchWindowHaveTheSymbolsOfTheOpenPlant) {
  Azione(pannello, "mnuViewTempi").trigger();
  Azione(pannello, "mnuViewOsserva").trigger();
  auto& tempi = dynamic_cast<FrmTempi&>(*Finestra("frmTempi"));
  auto& osserva = dynamic_cast<FrmOsserva&>(*Finestra("frmOsserva"));
  ASSERT_TRUE(osserva.Aggiungi("Q0.0"));
  const auto cella = [&] {
    return osserva.findChild<QTableWidget*>("tabOsserva")->item(0, 0)->text();
  };
  EXPECT_TRUE(tempi.Dati().Mostrati().empty()) << "no program names any";
  Azione(pannello, Voce(0)).trigger();
  EXPECT_EQ(tempi.Dati().Mostrati().size(), Tabella_Esercizi()[0].Righe_IO.size());
  EXPECT_EQ(cella(), "KM  Q0.0");
  tempi.close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Finestra("frmMA")->findChild<QAbstractButton*>("cmdTempi")->click();
  ASSERT_NE(Finestra("frmTempi"), nullptr);
  EXPECT_EQ(dynamic_cast<FrmTempi&>(*Finestra("frmTempi")).Dati().Mostrati().front().Nome,
            Tabella_Esercizi()[0].Righe_IO[0].Simbolo);
  Finestra("frmMA")->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(cella(), "Q0.0");
  EXPECT_NE(Finestra("frmTempi"), nullptr) << "it shows the CPU, and stays";
}

TEST_F(Esercizi_Dal_Menu, EveryHelpCommandOpensItsPage) {
  guida.Dir_Help = "/guida/";
  guida.Dir_Panel = "/guida/Panel/";
  const auto pagina = [] {
    return Finestra("frmBrowser")->findChild<QComboBox*>("cboAddress")->currentText();
  };
  Azione(pannello, "mnuHlpGen").trigger();
  EXPECT_EQ(pagina(), "/guida/Index.htm");
  Azione(pannello, "mnuHlpSet").trigger();
  EXPECT_EQ(pagina(), "/guida/SET_IST.htm");
  Azione(pannello, Voce(7)).trigger();
  Finestra("frm4P")->findChild<QAbstractButton*>("cmdSch")->click();
  EXPECT_EQ(pagina(), "/guida/Panel/US-07.htm");
  Finestra("frm4P")->close();
}

TEST_F(Esercizi_Dal_Menu, TheFocusFromAnotherWindowOfTheProgramActivatesThePanel) {
  Carica("LD SM0.0\r\n= Q0.0\r\n");
  QWidget estranea;
  const auto vai = [](QWidget& finestra) {
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return finestra.isActiveWindow(); }, 20000));
  };
  vai(pannello);
  plc.Mem_C[1].Val = 5;
  vai(estranea);
  vai(pannello);
  EXPECT_EQ(plc.Mem_C[1].Val, 5) << "a message box is no other window";
  finestre.Mostra_Analogici();
  vai(*Finestra("frmSimAI"));
  EXPECT_EQ(plc.Mem_C[1].Val, 5);
  vai(pannello);
  EXPECT_EQ(plc.Mem_C[1].Val, 0);
}

TEST_F(Esercizi_Dal_Menu, AFatalReadOfTheStatusWindowBlamesNoLine) {
  Carica("LD SM0.0\r\n= Q0.0\r\n");
  finestre.Mostra_Stati();
  auto& stati = dynamic_cast<FrmStatiL&>(*Finestra("frmStatiL"));
  stati.findChild<QComboBox*>("cmbVb")->setCurrentIndex(100);
  try {
    stati.Aggiorna();
    FAIL() << "no failure";
  } catch (const Fatale& fatale) {
    const std::string rapporto = Rapporto_Fine(fatale, plc);
    EXPECT_EQ(rapporto.find("Riga"), std::string::npos) << rapporto;
    EXPECT_NE(rapporto.find("Mem_VB"), std::string::npos);
    EXPECT_NE(rapporto.find("Finestra Stati Elementi"), std::string::npos);
  }
  stati.close();
  try {
    Fatale_Indice("Mem_VB", 101);
  } catch (const Fatale& fatale) {
    EXPECT_EQ(Rapporto_Fine(fatale, plc), Rapporto_Fatale(fatale, plc));
  }
}

TEST_F(Esercizi_Dal_Menu, RunStopAndStepWorkByTheirKeysFromEveryWindow) {
  Carica("LD SM0.0\r\n= Q0.0\r\n");
  guida.Dir_Help = "/guida/";
  Azione(pannello, Voce(0)).trigger();
  EXPECT_TRUE(QTest::qWaitFor([] { return Finestra("frmMA")->isActiveWindow(); }, 20000));
  finestre.Mostra_Impostazioni();
  finestre.Mostra_Analogici();
  finestre.Mostra_Debug();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  finestre.Mostra_Aiuto("/guida/Index.htm");
  const auto& etRun = *Finestra("frmMA")->findChild<QLabel*>("etRun");
  for (const char* nome : {"frmMA", "frmStatiL", "frmSetPLC", "frmSimAI", "frmDebug", "frmTempi",
                           "frmOsserva", "frmBrowser", "frmPLC"}) {
    SCOPED_TRACE(nome);
    QWidget& finestra = *Finestra(nome);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return finestra.isActiveWindow(); }, 20000));
    cicli = righe = 0;
    QString in_corsa;
    Al_Ciclo[2] = [&] {
      pannello.Aggiorna();
      in_corsa = etRun.text();
      QTest::keyClick(&finestra, Qt::Key_F5, Qt::ShiftModifier);
      QCoreApplication::processEvents();
    };
    QTest::keyClick(&finestra, Qt::Key_F5);
    QCoreApplication::processEvents();
    EXPECT_EQ(cicli, 3);
    EXPECT_EQ(plc.PLC_Acceso, 0);
    EXPECT_EQ(in_corsa, "RUN");
    EXPECT_EQ(etRun.text(), "STOP");
    plc.mnuPlcStep();
    plc.mnuPlcRun();
    pannello.Aggiorna();
    QTest::keyClick(&finestra, Qt::Key_F10);
    QCoreApplication::processEvents();
    EXPECT_EQ(plc.PC, 1);
    plc.mnuPlcStop();
    plc.mnuPlcCont();
    pannello.Aggiorna();
    if (&finestra == &pannello || nome == std::string("frmBrowser")) continue;  // they have menus
    EXPECT_TRUE(finestra.toolTip().contains("F5 RUN"));
  }
  Finestra("frmMA")->close();
}

TEST_F(Esercizi_Dal_Menu, F1OpensThePageOfTheWindow) {
  guida.Dir_Help = "/guida/";
  guida.Dir_Panel = "/guida/Panel/";
  Azione(pannello, Voce(9)).trigger();
  finestre.Mostra_Analogici();
  finestre.Mostra_Tempi();
  finestre.Mostra_Osserva();
  const std::pair<const char*, const char*> pagine[] = {
      {"frmCancello", "/guida/Panel/US-09.htm"},
      {"frmStatiL", "/guida/Index.htm#stati"},
      {"frmSimAI", "/guida/Index.htm#pannello"},
      {"frmTempi", "/guida/Tempi.htm"},
      {"frmOsserva", "/guida/Tempi.htm#osservazione"}};
  for (const auto& [nome, pagina] : pagine) {
    QWidget& finestra = *Finestra(nome);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return finestra.isActiveWindow(); }, 20000));
    QTest::keyClick(&finestra, Qt::Key_F1);
    ASSERT_NE(Finestra("frmBrowser"), nullptr) << nome;
    EXPECT_EQ(Finestra("frmBrowser")->findChild<QComboBox*>("cboAddress")->currentText(), pagina);
  }
  Finestra("frmCancello")->close();
}

TEST_F(Esercizi_Dal_Menu, AWindowThatIsAskedForComesBackFromTheTaskBar) {
  finestre.Mostra_Stati();
  Finestra("frmStatiL")->showMinimized();
  finestre.Mostra_Stati();
  EXPECT_FALSE(Finestra("frmStatiL")->isMinimized());
  finestre.Mostra_Editor(Avvio::Nuovo);
  pannello.showMinimized();
  Finestra("frmMain")->close();
  EXPECT_FALSE(pannello.isMinimized());
}

}  // namespace
}  // namespace tavorno
