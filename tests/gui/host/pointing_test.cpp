// SPDX-License-Identifier: GPL-3.0-or-later
// A row of the table, the part in the picture and the terminal point at each other.
#include <QImage>
#include <QTableWidget>

#include "host/host_bed.h"
#include "plants/host/io_table.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

struct Indicazioni : ::testing::TestWithParam<int> {
  Banco_Host banco{GetParam()};
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
};
INSTANTIATE_TEST_SUITE_P(Esercizi, Indicazioni, ::testing::ValuesIn(Con_Impianto()));

TEST_P(Indicazioni, EveryRowHasAPartThatCanBeSeenAtRest) {
  for (const Riga_IO& riga : esercizio.Righe_IO) {
    QStringList parti;
    for (const Figura& figura : banco.Macchina().Disegno) {
      if (figura.Visible() && banco.Disegno().Morsetti_Di(figura).contains(riga.Indirizzo))
        parti << Q(figura.Nome);
    }
    EXPECT_FALSE(parti.isEmpty()) << riga.Indirizzo << ' ' << riga.Simbolo << ' ' << riga.Commento;
  }
}

TEST_P(Indicazioni, EveryPartStandsForARowOfTheTable) {
  for (const Figura& figura : banco.Macchina().Disegno) {
    for (const QString& morsetto : banco.Disegno().Morsetti_Di(figura)) {
      const bool in_tabella = std::ranges::any_of(esercizio.Righe_IO, [&](const Riga_IO& riga) {
        return morsetto == QLatin1String(riga.Indirizzo);
      });
      EXPECT_TRUE(in_tabella) << figura.Nome << ' ' << morsetto.toStdString();
    }
  }
}

struct Puntata : ::testing::Test {
  Banco_Host banco{0};
  QTableWidget& FGr = banco.Trova<QTableWidget>("FGr");
  QStringList morsetti{"mai"};
  Puntata() {
    banco.finestra->Indica_Morsetti = [this](const QStringList& quali) { morsetti = quali; };
    banco.Trova<QAbstractButton>("chkIO").click();
  }
  QImage Figura() {
    QImage immagine(banco.Disegno().size(), QImage::Format_RGB32);
    banco.Disegno().render(&immagine);
    return immagine.copy(banco.Disegno()
                             .Posto(banco.Macchina().Disegno["imgLM"])
                             .toAlignedRect()
                             .adjusted(-8, -8, 8, 8));
  }
  QPoint Riga(int numero) { return FGr.visualItemRect(FGr.item(numero, 1)).center(); }
};

TEST_F(Puntata, ARowUnderThePointerLightsUpItsPartAndItsTerminal) {
  const QImage prima = Figura();
  FGr.scrollToItem(FGr.item(7, 0));
  QTest::mouseMove(FGr.viewport(), Riga(7));  // HL3
  EXPECT_EQ(morsetti, QStringList{"Q0.2"});
  EXPECT_NE(Figura(), prima);
  QEvent via(QEvent::Leave);
  QCoreApplication::sendEvent(FGr.viewport(), &via);
  EXPECT_EQ(morsetti, QStringList());
  EXPECT_EQ(Figura(), prima);
}

TEST_F(Puntata, TheContactOfTheThermalRelayLightsUpWithIt) {
  const auto contatto = [this] {
    Quadro& quadro = banco.Disegno();
    const QRectF vicino = quadro.Posto(banco.Macchina().Disegno["imgKMa"]);
    const double scala = vicino.width() / 300;  // pixels of a twip
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    return immagine.copy(vicino.translated(570 * scala, 0).toRect());
  };
  const QImage prima = contatto();
  QTest::mouseMove(FGr.viewport(), Riga(3));
  EXPECT_EQ(morsetti, QStringList{"I0.3"});
  EXPECT_NE(contatto(), prima);
}

TEST_F(Puntata, TheRowOfTheCaretDoesSoWhileTheTableHasTheKeys) {
  banco.finestra->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(banco.finestra.get()));
  FGr.setFocus();
  FGr.setCurrentCell(3, 0);
  EXPECT_EQ(morsetti, QStringList{"I0.3"});
  QTest::keyClick(&FGr, Qt::Key_Down);
  EXPECT_EQ(morsetti, QStringList{"I0.4"});
  banco.Disegno().setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(morsetti, QStringList());
}

TEST_F(Puntata, APartUnderThePointerLightsUpItsRowAndItsTerminal) {
  QTest::mouseMove(&banco.Disegno(), banco.Centro("imgStart"));
  EXPECT_EQ(morsetti, QStringList{"I0.1"});
  EXPECT_EQ(FGr.item(1, 1)->background().color(), colori::Indicata.Fondo);
  EXPECT_NE(FGr.item(2, 1)->background().color(), colori::Indicata.Fondo);
  QTest::mouseMove(&banco.Disegno(), QPoint(1, 1));
  EXPECT_EQ(morsetti, QStringList());
  EXPECT_EQ(FGr.item(1, 1)->background().color(), colori::Ingressi.Fondo);
}

TEST_F(Puntata, ThePartOnWhichTheKeysAreDoesSoToo) {
  QTest::keyClick(&banco.Disegno(), Qt::Key_Tab);
  EXPECT_FALSE(morsetti.isEmpty());
  EXPECT_NE(morsetti, QStringList{"mai"});
}

TEST_F(Puntata, ClosingPutsTheTerminalOut) {
  QTest::mouseMove(&banco.Disegno(), banco.Centro("imgStart"));
  banco.finestra->close();
  EXPECT_EQ(morsetti, QStringList());
}

}  // namespace
}  // namespace tavorno
