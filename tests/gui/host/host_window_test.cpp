// SPDX-License-Identifier: GPL-3.0-or-later
// The host window of every exercise, from the table.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>

#include "host/host_bed.h"
#include "plc/number_text.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {
namespace {

struct Host : ::testing::TestWithParam<int> {
  Banco_Host banco{GetParam()};
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
};
INSTANTIATE_TEST_SUITE_P(Esercizi, Host, ::testing::ValuesIn(Con_Impianto()));

TEST_P(Host, NamesAndTextsComeFromTheTable) {
  EXPECT_EQ(banco.finestra->objectName(), esercizio.Host);
  EXPECT_EQ(banco.finestra->windowTitle(), Q(esercizio.Titolo));
  EXPECT_EQ(banco.Disegno().objectName(), esercizio.Nome);
  EXPECT_EQ(banco.Trova<QCheckBox>("chkSim").text(), "Usa Simulatore PLC per gli Ingressi");
  EXPECT_EQ(banco.Trova<QCheckBox>("chkIO").text(), Q(esercizio.Voce_IO));
  EXPECT_EQ(banco.Trova<QPushButton>("cmdSch").text(), "Info");
  EXPECT_EQ(banco.Trova<QPushButton>("cmdSch").toolTip(), "Schema Elettrico");
  EXPECT_EQ(banco.Trova<QPushButton>("cmdEnd").text(), "Chiudi");
  EXPECT_EQ(banco.Trova<QPushButton>("cmdEnd").toolTip(), "Termina");
  const auto& schede = banco.Trova<QTabWidget>("SSTab1");
  EXPECT_EQ(schede.tabText(0), " Assegnazioni I/0");
  EXPECT_EQ(schede.tabText(1), Q(esercizio.Scheda_2));
}

TEST_P(Host, TheTickShowsTheTableByTheHeightAlone) {
  EXPECT_EQ(banco.finestra->height(), Px(esercizio.Altezza_Chiusa));
  EXPECT_FALSE(banco.Trova<QTabWidget>("SSTab1").isVisible());
  const int larghezza = banco.finestra->width();
  banco.Trova<QCheckBox>("chkIO").click();
  EXPECT_EQ(banco.finestra->Altezza(), esercizio.Altezza_Aperta);
  EXPECT_NEAR(banco.finestra->height(), Px(esercizio.Altezza_Aperta), 1);
  EXPECT_TRUE(banco.Trova<QTabWidget>("SSTab1").isVisible());
  banco.Trova<QCheckBox>("chkIO").click();
  EXPECT_EQ(banco.finestra->Altezza(), esercizio.Altezza_Chiusa);
  EXPECT_NEAR(banco.finestra->height(), Px(esercizio.Altezza_Chiusa), 1);
  EXPECT_EQ(banco.finestra->width(), larghezza);
}

TEST_P(Host, TheTableStandsBesideThePictureWhereThatLeavesItLarger) {
  const auto& schede = banco.Trova<QTabWidget>("SSTab1");
  const auto scala = [this] {
    const QSizeF disegno = banco.Disegno().sizeHint();
    return std::min(banco.Disegno().width() / disegno.width(),
                    banco.Disegno().height() / disegno.height());
  };
  banco.Trova<QCheckBox>("chkIO").click();
  const QSize figura = banco.Disegno().sizeHint();
  banco.finestra->resize(figura.width() + 600, figura.height() + 60);
  EXPECT_GT(schede.x(), banco.Disegno().x());
  EXPECT_EQ(schede.y(), banco.Disegno().y());
  EXPECT_GE(scala(), 1.0);
  banco.finestra->resize(900, 1000);
  EXPECT_GT(schede.y(), banco.Disegno().y());
  EXPECT_EQ(schede.x(), 0);
}

TEST_P(Host, AnEnlargedWindowStaysOnTheScreenAndComesBack) {
  auto& chkIO = banco.Trova<QCheckBox>("chkIO");
  const int schermo = banco.finestra->screen()->availableGeometry().height();
  const QSize figura = banco.Disegno().sizeHint();
  // Beside the picture the table needs no height.
  const QSize grande(figura.width() + 600, figura.height() + 60);
  banco.finestra->resize(grande);
  chkIO.click();
  EXPECT_EQ(banco.finestra->size(), grande);
  EXPECT_GT(banco.Trova<QTabWidget>("SSTab1").x(), banco.Disegno().x());
  chkIO.click();
  EXPECT_EQ(banco.finestra->size(), grande);
  const QSize alta(figura.width(), schermo - 20);
  banco.finestra->resize(alta);
  chkIO.click();
  EXPECT_LE(banco.finestra->height(), schermo);
  chkIO.click();
  EXPECT_EQ(banco.finestra->size(), alta);
}

TEST_P(Host, TheLanesOfTheStripAreAsHighAsTheirNames) {
  banco.Trova<QCheckBox>("chkIO").click();
  banco.Trova<QCheckBox>("chkStriscia").click();
  banco.finestra->resize(600, 300);
  const auto& striscia = banco.Trova<QWidget>("Striscia");
  EXPECT_GE(striscia.height(), striscia.sizeHint().height());
}

TEST_P(Host, TheGridHoldsTheTableOfInputsAndOutputs) {
  const auto& FGr = banco.Trova<QTableWidget>("FGr");
  ASSERT_EQ(FGr.rowCount(), static_cast<int>(esercizio.Righe_IO.size()));
  ASSERT_EQ(FGr.columnCount(), 4);
  EXPECT_EQ(FGr.horizontalHeaderItem(1)->text(), "Simbolo");
  EXPECT_EQ(FGr.horizontalHeaderItem(2)->text(), "Indirizzo");
  EXPECT_EQ(FGr.horizontalHeaderItem(3)->text(), "Commento");
  for (int n = 0; n < FGr.rowCount(); ++n) {
    const Riga_IO& riga = esercizio.Righe_IO[static_cast<std::size_t>(n)];
    EXPECT_EQ(FGr.item(n, 0)->text(), Q(Numero_Con_Spazio(n + 1)));
    EXPECT_EQ(FGr.item(n, 1)->text(), Q(riga.Simbolo));
    EXPECT_EQ(FGr.item(n, 2)->text(), Q(riga.Indirizzo));
    EXPECT_EQ(FGr.item(n, 3)->text(), Q(riga.Commento));
    const bool uscita = riga.Indirizzo[0] == 'Q' || std::string_view(riga.Indirizzo, 2) == "AQ";
    const QColor fondo = FGr.item(n, 2)->background().color();
    EXPECT_EQ(fondo, FGr.item(n, 1)->background().color());
    EXPECT_EQ(fondo.blue() > fondo.green(), uscita) << "outputs are cyan, inputs green";
    EXPECT_EQ(FGr.item(n, 3)->foreground().color(),
              FGr.palette().color(QPalette::Active, QPalette::ButtonText));
  }
  EXPECT_EQ(FGr.columnWidth(0), Px(400));
  EXPECT_EQ(FGr.columnWidth(1), Px(700));
  EXPECT_EQ(FGr.columnWidth(2), Px(700));
  EXPECT_GE(FGr.columnWidth(3), Px(3300));
}

TEST_P(Host, TheSettingsMoveTheirSliders) {
  for (std::size_t n = 0; n < esercizio.Cursori.size(); ++n) {
    const Cursore& cursore = esercizio.Cursori[n];
    auto& slider = banco.Trova<QSlider>(Q(cursore.Nome));
    EXPECT_EQ(slider.minimum(), cursore.Minimo);
    EXPECT_EQ(slider.maximum(), cursore.Massimo);
    EXPECT_EQ(slider.value(), cursore.Inizio);
    slider.setValue(cursore.Massimo);
    EXPECT_EQ(banco.finestra->Fili().Valore(n), cursore.Massimo);
    const auto* cornice = qobject_cast<QGroupBox*>(slider.parentWidget());
    ASSERT_NE(cornice, nullptr);
    EXPECT_EQ(cornice->title(), Q(cursore.Cornice));
    EXPECT_EQ(cornice->objectName(), "Frame" + QString::number(n + 1));
  }
}

TEST_P(Host, TheFrameTellsAPauseFromARun) {
  const auto& etRun = banco.Trova<QLabel>("etRun");
  EXPECT_EQ(etRun.text(), "STOP");
  QString in_moto;
  {
    const Iscrizione pausa = banco.plc.Hook.Ascolta_Cedi([&] {
      banco.finestra->Aggiorna();
      in_moto = etRun.text();
      banco.plc.Entra(Comando_Corsa::Pausa);
    });
    banco.plc.Entra(Comando_Corsa::Run);
  }
  ASSERT_TRUE(banco.plc.In_Pausa());
  EXPECT_EQ(in_moto, "RUN");
  banco.finestra->Aggiorna();
  EXPECT_EQ(etRun.text(), "PAUSA");
  EXPECT_GE(etRun.width(), etRun.sizeHint().width());
  EXPECT_TRUE(etRun.toolTip().contains("pausa"));
  EXPECT_EQ(etRun.accessibleName(), etRun.toolTip());
  banco.plc.Entra(Comando_Corsa::Stop);
  banco.finestra->Aggiorna();
  EXPECT_EQ(etRun.text(), "STOP");
}

TEST_P(Host, NoHandleOfASliderIsCut) {
  banco.Trova<QCheckBox>("chkIO").click();
  auto& schede = banco.Trova<QTabWidget>("SSTab1");
  schede.setCurrentIndex(1);
  for (QSlider* slider : schede.findChildren<QSlider*>()) {
    const QImage disegno = slider->grab().toImage();
    ASSERT_FALSE(disegno.isNull());
    for (const int y : {0, disegno.height() - 1}) {
      for (int x = 0; x < disegno.width(); ++x)
        ASSERT_EQ(disegno.pixelColor(x, y), disegno.pixelColor(0, y)) << y << " at " << x;
    }
  }
}

TEST_P(Host, InfoAsksForThePageOfTheExercise) {
  QString pagina;
  banco.finestra->Mostra_Aiuto = [&](const char* chiesta) { pagina = chiesta; };
  banco.Trova<QPushButton>("cmdSch").click();
  EXPECT_EQ(pagina, Q(esercizio.Pagina));
}

TEST_P(Host, ClosingTakesTheWiresAway) {
  EXPECT_EQ(banco.stato.Impianto_Aperto, -1);
  EXPECT_EQ(banco.stato.Impianto_Nr, esercizio.Indice);
  bool chiusa = false;
  banco.finestra->Chiusa = [&] { chiusa = true; };
  banco.Trova<QPushButton>("cmdEnd").click();
  EXPECT_TRUE(chiusa);
  EXPECT_EQ(banco.stato.Impianto_Aperto, 0);
  EXPECT_EQ(banco.stato.Impianto_Nr, 0);
  EXPECT_EQ(banco.sportello, (std::vector<int>{2, 3}));
}

TEST_P(Host, TheSwitchesTakeOverWhileTheTickIsSet) {
  auto& chkSim = banco.Trova<QCheckBox>("chkSim");
  const std::string dell_impianto = banco.plc.SI[0].Stato_I();
  chkSim.click();
  EXPECT_TRUE(banco.finestra->Fili().chkSim());
  banco.plc.SI[0].Stato_I("10101010");
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "10101010");
  chkSim.click();
  EXPECT_FALSE(banco.finestra->Fili().chkSim());
  if (esercizio.Ascolta_chkSim) {
    EXPECT_EQ(banco.plc.SI[0].Stato_I(), dell_impianto);
    EXPECT_EQ(banco.sportello, (std::vector<int>{2, 3, 2}));
  } else {
    EXPECT_EQ(banco.sportello, (std::vector<int>{2})) << "nothing listens to the tick";
  }
}

}  // namespace
}  // namespace tavorno
