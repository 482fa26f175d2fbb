// SPDX-License-Identifier: GPL-3.0-or-later
// What the terminals do: the history of a minute, the live columns of the table, the strip.
#include "plants/host/io_table.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QTableWidget>
#include <QToolButton>

#include "host/host_bed.h"
#include "plants/host/io_history.h"
#include "plants/host/strip.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

struct Vivi : ::testing::Test {
  Banco_Host banco{0};
  QTableWidget& vivo = banco.Trova<QTableWidget>("FGrVivo");
  Vivi() { banco.Trova<QAbstractButton>("chkIO").click(); }
  void Passa(int ms) {
    banco.orologio.Avanza(ms);
    banco.finestra->Aggiorna();
  }
  std::string Cella(int riga, int colonna) { return Utf8(vivo.item(riga, colonna)->text()); }
};

TEST_F(Vivi, TheColumnsTellTheValueAndHowLongAgoItChanged) {
  Passa(1000);
  EXPECT_EQ(Cella(0, 0), "1");  // the stop is normally closed
  EXPECT_EQ(Cella(1, 0), "0");
  EXPECT_EQ(Cella(1, 1), "mai");
  banco.Macchina().Premi("imgStart");
  Passa(300);
  EXPECT_EQ(Cella(1, 0), "1");
  EXPECT_EQ(Cella(1, 1), "0,3 s fa");
  EXPECT_EQ(vivo.item(1, 0)->background().color(), colori::Bit_Uno.Fondo);
  Passa(12'000);
  EXPECT_EQ(Cella(1, 1), "12 s fa");
  Passa(120'000);
  EXPECT_EQ(Cella(1, 1), "2 min fa");
  banco.Macchina().Rilascia("imgStart");
  Passa(0);
  EXPECT_EQ(Cella(1, 0), "0");
  EXPECT_EQ(Cella(1, 1), "0,0 s fa");
}

TEST_F(Vivi, AFaultOfAWireStandsInItsRow) {
  banco.finestra->Fili().Guasta("filo(I0.0)", true);
  Passa(100);
  EXPECT_EQ(Cella(0, 0), "0  guasto");
  EXPECT_TRUE(vivo.item(0, 0)->toolTip().contains("filo di questo ingresso"));
  EXPECT_EQ(vivo.item(0, 0)->background().color(), colori::Guasto.Fondo);
  banco.finestra->Fili().Guasta("filo(I0.0)", false);
  Passa(100);
  EXPECT_EQ(Cella(0, 0), "1");
}

TEST_F(Vivi, TheLiveColumnsScrollWithTheToldOnes) {
  auto& FGr = banco.Trova<QTableWidget>("FGr");
  ASSERT_GT(FGr.verticalScrollBar()->maximum(), 0);
  FGr.scrollToBottom();
  EXPECT_EQ(vivo.verticalScrollBar()->value(), FGr.verticalScrollBar()->value());
  vivo.scrollToTop();
  EXPECT_EQ(FGr.verticalScrollBar()->value(), 0);
  for (int riga = 0; riga < FGr.rowCount(); ++riga)
    EXPECT_EQ(FGr.rowViewportPosition(riga), vivo.rowViewportPosition(riga)) << riga;
  EXPECT_EQ(FGr.horizontalHeader()->height(), vivo.horizontalHeader()->height());
}

TEST_F(Vivi, AClickOnAValueChoosesItsRow) {
  QTest::mouseClick(vivo.viewport(), Qt::LeftButton, {},
                    vivo.visualItemRect(vivo.item(2, 0)).center());
  EXPECT_EQ(banco.Trova<QTableWidget>("FGr").currentRow(), 2);
}

TEST(Vivo, AnAnalogValueIsToldInVolts) {
  Banco_Host banco(14);
  banco.Macchina().Regola("UpD1", 7);
  banco.Trova<QAbstractButton>("chkIO").click();
  banco.finestra->Aggiorna();
  auto& vivo = banco.Trova<QTableWidget>("FGrVivo");
  auto& FGr = banco.Trova<QTableWidget>("FGr");
  for (int riga = 0; riga < FGr.rowCount(); ++riga) {
    if (FGr.item(riga, 2)->text() == "AIW0") {
      EXPECT_EQ(vivo.item(riga, 0)->text(), "7,00 V");
    }
  }
}

// ---- the history
// ---------------------------------------------------------------------------------

struct Passato : ::testing::Test {
  Banco_Host banco{0};
  Storia_IO storia{banco.finestra->Fili()};
};

TEST_F(Passato, KeepsEachChangeOfABitForAMinute) {
  EXPECT_EQ(storia.Bit(1).size(), 1U);
  banco.orologio.Avanza(500);
  banco.Macchina().Premi("imgStart");
  banco.orologio.Avanza(200);
  banco.Macchina().Rilascia("imgStart");
  ASSERT_EQ(storia.Bit(1).size(), 3U);
  EXPECT_EQ(storia.Bit(1)[1].Ms, 500);
  EXPECT_EQ(storia.Bit(1)[1].Valore, 1);
  EXPECT_EQ(storia.Bit(1)[2].Ms, 700);
  EXPECT_EQ(*storia.Cambiato(1), 700);
  EXPECT_FALSE(storia.Cambiato(0).has_value());
  banco.orologio.Avanza(Storia_IO::Durata);
  storia.Guarda();
  ASSERT_EQ(storia.Bit(1).size(), 1U) << "what it is since more than a minute";
  EXPECT_EQ(storia.Bit(1)[0].Valore, 0);
}

TEST_F(Passato, ABitThatTremblesIsTakenTogether) {
  for (int n = 0; n < 10'000; ++n) {
    banco.orologio.Avanza(1);
    banco.plc.SQ[0].Stato_Q(n % 2 == 0 ? "10000000" : "00000000");
  }
  EXPECT_LE(storia.Bit(5).size(), 10'000U / Storia_IO::Fitto + 2);
  EXPECT_TRUE(storia.Bit(5).back().Fitto);
}

TEST(Quantities, OfWhatStandsStillOnlyTheEndsAreKept) {
  Banco_Host banco(12);
  Storia_IO storia(banco.finestra->Fili());
  for (int n = 0; n < 600; ++n) {
    banco.orologio.Avanza(100);
    storia.Guarda();
  }
  EXPECT_LE(storia.Di_Grandezza(0).size(), 2U);
  banco.plc.SQ[0].Stato_Q("11000000");  // valve and pump of the first product
  for (int n = 0; n < 200; ++n) {
    banco.orologio.Avanza(100);
    storia.Guarda();
  }
  EXPECT_GT(storia.Di_Grandezza(0).size(), 20U);
  EXPECT_GT(storia.Di_Grandezza(0).back().Valore, 10);
}

struct Misurate : ::testing::TestWithParam<int> {};

TEST_P(Misurate, LieOnTheirScaleAtRest) {
  Banco_Host banco(GetParam());
  for (const Grandezza& grandezza : Grandezze_Di(GetParam())) {
    const double ora = Valore(grandezza, banco.plc, banco.Macchina());
    EXPECT_GE(ora, grandezza.Minimo) << grandezza.Nome;
    EXPECT_LE(ora, grandezza.Massimo) << grandezza.Nome;
  }
}

INSTANTIATE_TEST_SUITE_P(Esercizi, Misurate, ::testing::ValuesIn(Con_Impianto()));

TEST(Quantities, APistonGoesFromNothingToAHundred) {
  Banco_Host banco(4);
  const Grandezza& corsa = Grandezze_Di(4)[0];
  EXPECT_EQ(Valore(corsa, banco.plc, banco.Macchina()), 0);
  banco.plc.SQ[0].Stato_Q("11000000");
  banco.orologio.Avanza(20'000);
  EXPECT_NEAR(Valore(corsa, banco.plc, banco.Macchina()), 100, 0.01);
}

// ---- the strip
// -----------------------------------------------------------------------------------

struct Andamento : ::testing::Test {
  Banco_Host banco{12};
  QCheckBox& spunta = banco.Trova<QCheckBox>("chkStriscia");
  Striscia& striscia = dynamic_cast<Striscia&>(banco.Trova<QWidget>("Striscia"));
  QImage Disegno() {
    QImage immagine(striscia.size(), QImage::Format_RGB32);
    striscia.render(&immagine);
    return immagine;
  }
};

TEST_F(Andamento, TheTickMakesRoomForItBelowThePicture) {
  const QSize prima = banco.finestra->size();
  const QSize figura = banco.Disegno().size();
  EXPECT_FALSE(striscia.isVisible());
  spunta.click();
  EXPECT_TRUE(striscia.isVisible());
  EXPECT_EQ(banco.finestra->height(), prima.height() + striscia.height());
  EXPECT_EQ(banco.finestra->size(), banco.finestra->Voluta());
  EXPECT_EQ(banco.Disegno().size(), figura);
  EXPECT_EQ(striscia.geometry().top(), banco.Disegno().geometry().bottom() + 1);
  spunta.click();
  EXPECT_EQ(banco.finestra->size(), prima);
}

TEST_F(Andamento, ItDrawsWhatHappened) {
  spunta.click();
  const QImage ferma = Disegno();
  banco.plc.SQ[0].Stato_Q("11000000");
  for (int n = 0; n < 100; ++n) {
    banco.orologio.Avanza(100);
    banco.finestra->Aggiorna();
  }
  const QImage dopo = Disegno();
  EXPECT_NE(dopo, ferma);
  const auto conta = [&](const QColor& colore) {
    int quanti = 0;
    for (int y = 0; y < dopo.height(); ++y) {
      for (int x = 0; x < dopo.width(); ++x) quanti += dopo.pixelColor(x, y) == colore;
    }
    return quanti;
  };
  EXPECT_GT(conta(colori::Bit_Uno.Fondo), 500) << "the valve, for ten seconds of sixty";
  EXPECT_GT(conta(colori::Curve[0]), 20) << "the level";
}

TEST_F(Andamento, TheMenuChoosesItsBits) {
  spunta.click();
  auto* menu = banco.Trova<QToolButton>("cmdSegnali").menu();
  ASSERT_FALSE(menu->actions().isEmpty());
  const auto prima = striscia.Scelti().size();
  const QSize misura = striscia.sizeHint();
  QAction* emergenza = nullptr;
  for (QAction* voce : menu->actions()) {
    if (voce->text().startsWith("I0.4")) emergenza = voce;
    EXPECT_FALSE(voce->text().startsWith("AIW"));
  }
  ASSERT_NE(emergenza, nullptr);
  EXPECT_FALSE(emergenza->isChecked());
  emergenza->trigger();
  EXPECT_EQ(striscia.Scelti().size(), prima + 1);
  EXPECT_GT(striscia.sizeHint().height(), misura.height());
  emergenza->trigger();
  EXPECT_EQ(striscia.Scelti().size(), prima);
}

}  // namespace
}  // namespace tavorno
