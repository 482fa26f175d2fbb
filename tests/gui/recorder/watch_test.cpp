// SPDX-License-Identifier: GPL-3.0-or-later
// The watch window: cells, formats, changes that light up, values set by hand.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "plants/exercises.h"
#include "recorder/ui/watch_window.h"
#include "widgets/colours.h"

namespace tavorno {
namespace {

struct Watch : ::testing::Test {
  Orologio orologio;
  Plc plc{orologio};
  FrmOsserva finestra{plc};
  QTableWidget& tabella = *finestra.findChild<QTableWidget*>("tabOsserva");
  QLineEdit& cella = *finestra.findChild<QLineEdit*>("txtCella");

  void SetUp() override {
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
  }
  void Scrivi(const char* testo) {
    cella.clear();
    QTest::keyClicks(&cella, QString::fromUtf8(testo));
    QTest::keyClick(&cella, Qt::Key_Return);
  }
  QString Testo(int riga, int colonna) { return tabella.item(riga, colonna)->text(); }
  QColor Fondo(int riga) { return tabella.item(riga, 2)->background().color(); }
  QString Avviso_Scritto() { return finestra.findChild<QLabel*>("etAvviso")->text(); }
  /// As the user types a value into the column.
  void Forza(int riga, const char* testo) {
    tabella.setCurrentCell(riga, 0);
    tabella.setFocus();
    QTest::keyClick(&tabella, Qt::Key_F2);
    const auto campi = tabella.viewport()->findChildren<QLineEdit*>();
    ASSERT_FALSE(campi.isEmpty());
    QLineEdit* campo = campi.last();  // an earlier one may not have gone yet
    campo->selectAll();
    QTest::keyClicks(campo, QString::fromUtf8(testo));
    QTest::keyClick(campo, Qt::Key_Return);
    QCoreApplication::processEvents();  // the table takes it in an event of its own
  }
  void Formato(int riga, Formato_Cella formato) {
    qobject_cast<QComboBox*>(tabella.cellWidget(riga, 1))
        ->setCurrentIndex(static_cast<int>(formato));
  }
};

TEST_F(Watch, TakesAnyCellOfTheCpuOnce) {
  EXPECT_EQ(finestra.objectName(), "frmOsserva");
  for (const char* testo : {"VW10", "q0.1", "T37.Val", "AC0", "vw10"}) Scrivi(testo);
  ASSERT_EQ(tabella.rowCount(), 4);
  EXPECT_EQ(Testo(0, 0), "VW10");
  EXPECT_EQ(Testo(1, 0), "Q0.1");
  EXPECT_EQ(tabella.currentRow(), 0) << "it stands there already";
  EXPECT_EQ(cella.text(), "");
  EXPECT_EQ(tabella.cellWidget(1, 1), nullptr) << "a bit has one format";
  Scrivi("pippo");
  EXPECT_EQ(tabella.rowCount(), 4);
  EXPECT_EQ(cella.text(), "pippo");
  EXPECT_TRUE(Avviso_Scritto().contains("\"pippo\" non è una cella"))
      << Avviso_Scritto().toStdString();
}

TEST_F(Watch, ShowsEachCellInItsFormat) {
  Scrivi("VW0");
  plc.Mem_VW[0] = -5;
  finestra.Aggiorna();
  EXPECT_EQ(Testo(0, 2), "-5");
  Formato(0, Formato_Cella::Decimale);
  EXPECT_EQ(Testo(0, 2), "65531");
  Formato(0, Formato_Cella::Esadecimale);
  EXPECT_EQ(Testo(0, 2), "16#FFFB");
  Formato(0, Formato_Cella::Binario);
  EXPECT_EQ(Testo(0, 2), "2#1111_1111_1111_1011");
}

TEST_F(Watch, WhatChangesLightsUpForAMoment) {
  Scrivi("VW0");
  Scrivi("VW1");
  finestra.Aggiorna();
  EXPECT_NE(Fondo(0), colori::Cella_Cambiata.Fondo);
  plc.Mem_VW[0] = 3;
  finestra.Aggiorna();
  EXPECT_EQ(Fondo(0), colori::Cella_Cambiata.Fondo);
  EXPECT_NE(Fondo(1), colori::Cella_Cambiata.Fondo);
  for (int n = 0; n < FrmOsserva::Luce; ++n) finestra.Aggiorna();
  EXPECT_NE(Fondo(0), colori::Cella_Cambiata.Fondo);
}

TEST_F(Watch, ForcesAValueAndShowsItUntilTheProgramWritesIt) {
  Scrivi("VW0");
  Forza(0, "300");
  EXPECT_EQ(plc.Mem_VW[0], 300);
  EXPECT_EQ(Testo(0, 2), "300");
  EXPECT_EQ(Testo(0, 3), "forzato");
  EXPECT_EQ(Fondo(0), colori::Cella_Forzata.Fondo);
  for (int n = 0; n < 20; ++n) finestra.Aggiorna();
  EXPECT_EQ(Testo(0, 3), "forzato");
  plc.Mem_VW[0] = 301;
  finestra.Aggiorna();
  EXPECT_EQ(Testo(0, 3), "");
  EXPECT_EQ(Fondo(0), colori::Cella_Cambiata.Fondo);
}

TEST_F(Watch, ForcesInTheFormatOfTheRowAndSaysWhatDoesNotFit) {
  Scrivi("VW0");
  Formato(0, Formato_Cella::Esadecimale);
  Forza(0, "FF");
  EXPECT_EQ(plc.Mem_VW[0], 255);
  Forza(0, "zz");
  EXPECT_TRUE(Avviso_Scritto().contains("\"zz\" non è un valore per VW0"))
      << Avviso_Scritto().toStdString();
  Forza(0, "16#12345");
  EXPECT_TRUE(Avviso_Scritto().contains("non sta in VW0")) << Avviso_Scritto().toStdString();
  EXPECT_EQ(plc.Mem_VW[0], 255);
}

TEST_F(Watch, SpaceTurnsABitOver) {
  Scrivi("I0.2");
  tabella.setCurrentCell(0, 0);
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(plc.SI[0].Stato_I(), "00100000");
  EXPECT_EQ(Testo(0, 2), "1");
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(plc.SI[0].Stato_I(), "00000000");
}

TEST_F(Watch, WhileTheProgramRunsNothingCanBeForced) {
  Scrivi("M0.0");
  plc.PLC_Acceso = -1;  // in a run
  finestra.Aggiorna();
  EXPECT_FALSE(tabella.item(0, 3)->flags().testFlag(Qt::ItemIsEditable));
  EXPECT_TRUE(Avviso_Scritto().contains("Il programma gira")) << Avviso_Scritto().toStdString();
  tabella.setCurrentCell(0, 0);
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 0);
  EXPECT_TRUE(Avviso_Scritto().contains("non si può forzare")) << Avviso_Scritto().toStdString();
  plc.Attivi.CmdStep = true;  // in Step
  finestra.Aggiorna();
  EXPECT_TRUE(tabella.item(0, 3)->flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(Watch, InAPauseAValueCanBeForcedAndInThePastNot) {
  Scrivi("M0.0");
  const Iscrizione pausa = plc.Hook.Ascolta_Cedi([this] { plc.Entra(Comando_Corsa::Pausa); });
  plc.Entra(Comando_Corsa::Run);
  ASSERT_TRUE(plc.In_Pausa());
  tabella.setCurrentCell(0, 0);
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 1);
  plc.Hook.Adesso = Vissuto::Passato;
  finestra.Aggiorna();
  EXPECT_TRUE(Avviso_Scritto().contains("PASSATO")) << Avviso_Scritto().toStdString();
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 1);
  EXPECT_TRUE(Avviso_Scritto().contains("riprendi da qui")) << Avviso_Scritto().toStdString();
}

TEST_F(Watch, WhatIsForcedEntersTheJournal) {
  std::vector<Atto> entrate;
  const Iscrizione ascolto =
      plc.Hook.Entra.Ascolta([&](const Atto& entrata) { entrate.push_back(entrata); });
  Scrivi("VW4");
  Forza(0, "12");
  ASSERT_EQ(entrate.size(), 1U);
  EXPECT_EQ(entrate[0].Che, Cosa::Forza);
  EXPECT_EQ(entrate[0].Valore, 12);
}

TEST_F(Watch, EveryForceGoesThroughOneDoor) {
  std::vector<std::pair<std::string, double>> passati;
  finestra.Forza_Cella = [&](const Indirizzo& cella_forzata, double valore) {
    passati.emplace_back(Testo_Indirizzo(cella_forzata), valore);
    return std::string("no");
  };
  Scrivi("VW3");
  Scrivi("Q0.1");
  Forza(0, "7");
  tabella.setCurrentCell(1, 0);
  QTest::keyClick(&tabella, Qt::Key_Space);
  EXPECT_EQ(passati, (std::vector<std::pair<std::string, double>>{{"VW3", 7}, {"Q0.1", 1}}));
  EXPECT_EQ(plc.Mem_VW[3], 0);
  EXPECT_EQ(Avviso_Scritto(), "no");
  EXPECT_EQ(Testo(0, 3), "");
}

TEST_F(Watch, RowsMoveAndGoByTheKeyboard) {
  for (const char* testo : {"VW0", "VW1", "M0.0"}) Scrivi(testo);
  tabella.setCurrentCell(2, 0);
  QTest::keyClick(&tabella, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Testo(1, 0), "M0.0");
  EXPECT_EQ(tabella.cellWidget(1, 1), nullptr);
  EXPECT_NE(tabella.cellWidget(2, 1), nullptr);
  EXPECT_EQ(tabella.currentRow(), 1);
  QTest::keyClick(&tabella, Qt::Key_Delete);
  ASSERT_EQ(tabella.rowCount(), 2);
  EXPECT_EQ(Testo(1, 0), "VW1");
  plc.Mem_VW[1] = 9;
  finestra.Aggiorna();
  EXPECT_EQ(Testo(1, 2), "9");
  QTest::keyClick(&finestra, Qt::Key_Escape);
  EXPECT_FALSE(finestra.isVisible());
  EXPECT_FALSE(finestra.findChild<QTimer*>("timO")->isActive());
}

TEST_F(Watch, APlantGivesItsSymbols) {
  Scrivi("Q0.0");
  finestra.Riparti(&Tabella_Esercizi()[0]);
  EXPECT_EQ(Testo(0, 0), "KM  Q0.0");
  Scrivi("sb2");
  EXPECT_EQ(Testo(1, 0), "SB2  I0.1");
  finestra.Riparti(nullptr);
  EXPECT_EQ(Testo(0, 0), "Q0.0");
}

}  // namespace
}  // namespace tavorno
