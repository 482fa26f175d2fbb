// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside the lines of the list once "Valori" is ticked.
#include <QAccessible>
#include <QCheckBox>
#include <QImage>

#include "panel/panel_bed.h"
#include "widgets/colours.h"

namespace tavorno {
namespace {

using Flusso = Stato_Riga::Flusso;

struct Valori_In_Diretta : Banco_Pannello {
  void SetUp() override {
    Carica("LD I0.0\r\nTON T37 +50\r\nLD T37\r\n= Q0.0\r\nLD SM0.0\r\nINCW VW0\r\n");
  }
  std::string Valori() {
    std::string testi;
    for (int riga = 1; riga < c.listSrc->count(); ++riga)
      testi += "|" + c.listSrc->Stato(riga).Valore.toStdString();
    return testi;
  }
  std::string Flussi() {
    std::string testi;
    for (int riga = 1; riga < c.listSrc->count(); ++riga) {
      const Flusso flusso = c.listSrc->Stato(riga).Corrente;
      testi += flusso == Flusso::Ignoto ? '.' : flusso == Flusso::Acceso ? '1' : '0';
    }
    return testi;
  }
};

TEST_F(Valori_In_Diretta, AreNotShownAtFirst) {
  EXPECT_FALSE(c.chkVal->isChecked());
  Corri(20);
  EXPECT_EQ(Valori(), "|||||||");
  EXPECT_EQ(c.listSrc->Prossima(), -1);
  c.chkVal->setChecked(true);
  EXPECT_NE(Valori(), "|||||||");
  c.chkVal->setChecked(false);
  EXPECT_EQ(Valori(), "|||||||");
}

TEST_F(Valori_In_Diretta, ShowTheOperandsOfEachLine) {
  c.chkVal->setChecked(true);
  plc.Mem_VW[0] = 7;
  plc.Mem_T[37] = {23, 50, 0, 0};
  pannello.Aggiorna();
  EXPECT_EQ(Valori(), "|0|0  23/50|0  23/50|0|0|7|");
  plc.IP_I[0].Bit_Img[0] = 1;
  pannello.Aggiorna();
  EXPECT_EQ(Valori(), "|1|0  23/50|0  23/50|0|0|7|");
  EXPECT_TRUE(c.listSrc->Stato(1).Acceso);
}

TEST_F(Valori_In_Diretta, FollowTheFlowOfARun) {
  c.chkVal->setChecked(true);
  for (int n = 3; n < 40; ++n) Al_Ciclo[n] = [this] { pannello.Aggiorna(); };
  Al_Ciclo[41] = [this] {
    pannello.Aggiorna();
    EXPECT_EQ(Flussi(), "000011.");
  };
  Corri(60);
  EXPECT_EQ(Flussi(), ".......") << "it does not run any more";
  EXPECT_EQ(c.listSrc->Prossima(), -1);
}

TEST_F(Valori_In_Diretta, InStepEachLineShowsWhatItFoundAndTheNextOneIsMarked) {
  c.chkVal->setChecked(true);
  plc.SI[0].Stato_I("10000000");
  Scegli("mnuPlcStep");
  Scegli("mnuPlcRun");
  EXPECT_EQ(c.listSrc->Prossima(), 0);
  EXPECT_EQ(Flussi(), ".......");
  for (int n = 0; n < 3; ++n) Scegli("mnuPLCPiu");
  EXPECT_EQ(c.listSrc->currentRow(), 2) << "the line that was executed";
  EXPECT_EQ(c.listSrc->Prossima(), 3);
  EXPECT_EQ(Flussi(), "11.....");
  Scegli("mnuPLCPiu");
  EXPECT_EQ(Flussi(), "110....");
  for (int n = 0; n < 4; ++n) Scegli("mnuPLCPiu");
  EXPECT_EQ(c.listSrc->Prossima(), 0);
  EXPECT_EQ(Flussi(), "110011.");
  Scegli("mnuPLCPiu");
  EXPECT_EQ(Flussi(), ".......") << "another scan begins";
}

TEST_F(Valori_In_Diretta, AreReadAloudWithTheirLine) {
  QAccessibleInterface* lista = QAccessible::queryAccessibleInterface(c.listSrc);
  const auto letta = [&](int riga) {
    return lista->child(riga)->text(QAccessible::Name).toStdString();
  };
  EXPECT_EQ(letta(1), "Riga 1: LD I0.0");
  c.chkVal->setChecked(true);
  plc.Mem_T[37] = {23, 50, 0, 0};
  EXPECT_EQ(letta(1), "Riga 1: LD I0.0; vale 0");
  EXPECT_EQ(letta(3), "Riga 3: LD T37; vale 0 23/50");
  plc.SI[0].Stato_I("10000000");
  Scegli("mnuPlcStep");
  Scegli("mnuPlcRun");
  for (int n = 0; n < 2; ++n) Scegli("mnuPLCPiu");
  EXPECT_EQ(letta(1), "Riga 1: LD I0.0; vale 1; passa corrente");
  EXPECT_EQ(letta(2), "Riga 2: TON T37, +50; vale 0 0/0; sarà eseguita");
  c.chkVal->setChecked(false);
  EXPECT_EQ(letta(1), "Riga 1: LD I0.0");
}

TEST_F(Valori_In_Diretta, UntickedNobodyListensToTheRun) {
  cessione.Termina();
  c.chkVal->setChecked(true);
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.mnuPlcRun();
  for (int n = 0; n < 10; ++n) pannello.Aggiorna();
  c.chkVal->setChecked(false);
  EXPECT_FALSE(plc.Hook.Cedi_Ascoltato());
}

TEST_F(Valori_In_Diretta, AreDrawnInTheirColours) {
  c.chkVal->setChecked(true);
  plc.IP_I[0].Bit_Img[0] = 1;
  pannello.Aggiorna();
  c.listSrc->Scegli(-1);
  QCoreApplication::processEvents();
  const QImage immagine = c.listSrc->viewport()->grab().toImage();
  const QRect riga = c.listSrc->visualItemRect(c.listSrc->item(1));
  const auto quanti = [&](const QColor& colore) {
    int trovati = 0;
    const double scala = immagine.devicePixelRatio();
    for (int y = riga.top(); y < riga.bottom(); ++y) {
      for (int x = riga.left(); x < riga.right(); ++x)
        trovati += immagine.pixelColor(QPointF(x * scala, y * scala).toPoint()) == colore ? 1 : 0;
    }
    return trovati;
  };
  EXPECT_GT(quanti(colori::Bit_Uno.Fondo), 40);
  plc.IP_I[0].Bit_Img[0] = 0;
  pannello.Aggiorna();
  const QImage dopo = c.listSrc->viewport()->grab().toImage();
  EXPECT_NE(dopo, immagine);
}

}  // namespace
}  // namespace tavorno
