// SPDX-License-Identifier: GPL-3.0-or-later
// Random sessions in the real windows: what enters does so by the door, and played again on a CPU
// of its own the session is the same, to the last figure.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>
#include <cstdlib>
#include <numeric>
#include <set>

#include "ladder/ui/ladder_window.h"
#include "panel/controls/cpu_front.h"
#include "panel/program_list.h"
#include "panel/random_windows.h"
#include "plants/host/host_window.h"
#include "recorder/session_file.h"
#include "recorder/ui/diagram_window.h"
#include "recorder/whole_state.h"
#include "support/command.h"

namespace tavorno::prova {

namespace {

const std::vector<std::string> programma = {
    "LD I0.0", "O Q0.0",    "AN I0.1",   "= Q0.0",         "LD I0.2",  "TON T37, 3",
    "LD T37",  "EU",        "INCW VW10", "LD I0.3",        "= Q0.1",   "LD SM0.5",
    "= Q0.2",  "LD Q0.0",   "A SM0.4",   "= Q0.3",         "LD I0.4",  "S M0.0, 1",
    "LD I0.5", "R M0.0, 1", "LD M0.0",   "MOVW AIW0, VW2", "LD SM0.0", "MOVW VW10, AQW0"};

/// Those that once came out otherwise, and a few more; by hand as many as TAVORNO_SESSIONI says,
/// from TAVORNO_SEME on.
std::vector<int> Semi() {
  const char* quante = std::getenv("TAVORNO_SESSIONI");
  const char* da = std::getenv("TAVORNO_SEME");
  if (!quante) return {1, 2, 3, 4, 5, 6, 5750};
  std::vector<int> semi(static_cast<std::size_t>(std::atoi(quante)));
  std::iota(semi.begin(), semi.end(), da ? std::atoi(da) : 1);
  return semi;
}

}  // namespace

class Random_Session : public ::testing::TestWithParam<bool> {};

TEST_P(Random_Session, IsTheSameWhenItIsPlayedAgain) {
  int forzate = 0, guasti = 0, passati = 0;
  for (const int seme : Semi()) {
    SCOPED_TRACE("seed " + std::to_string(seme));
    Finestre_A_Caso finestre(static_cast<unsigned>(seme));
    finestre.Nuovi_Programmi = GetParam();
    finestre.Carica(programma);
    if (::testing::Test::HasFatalFailure()) return;
    finestre.finestre.Apri_Impianto(
        seme % static_cast<int>(Tabella_Esercizi().size()));  // chance opens others later
    finestre.Gioca(400);
    forzate += finestre.forzate;
    guasti += finestre.guasti_messi;
    passati += finestre.passati;
    Stato_Intero vero = Elenca_Stato(finestre.plc, finestre.Fili());
    // By way of its file, as the bench would.
    std::string motivo;
    const auto letta = Leggi_Registrazione(Byte_Di(finestre.registratore.Registrata()), motivo);
    ASSERT_TRUE(letta) << motivo;
    Orologio orologio;
    Plc plc(orologio);
    Metti_Stato(plc, *letta->Programma, letta->Stato);
    Replica replica(plc, letta->Voci, letta->Voci.Inizio);
    try {
      replica.Vai();
    } catch (const Giornale_Discorde& discorde) {
      FAIL() << discorde.what();
    }
    Stato_Intero rifatto = Elenca_Stato(plc, replica.Impianto);
    // The cover of the panel slides on the same clock.
    for (Stato_Intero* stato : {&vero, &rifatto})
      std::erase_if(*stato, [](const auto& riga) { return riga.first == "prossimi scatti"; });
    ASSERT_EQ(Prima_Differenza(rifatto, vero), "");
  }
  EXPECT_GT(forzate, 0);
  EXPECT_GT(guasti, 0);
  EXPECT_GT(passati, 0);
}

INSTANTIATE_TEST_SUITE_P(Programs, Random_Session, ::testing::Bool(),
                         [](const auto& caso) { return caso.param ? "Several" : "One"; });

TEST(SessionInTheWindows, TheSwitchesStandWhereTheyStoodAtAPastMoment) {
  Finestre_A_Caso finestre(3);
  finestre.Carica(programma);
  finestre.plc.Entra(Comando_Corsa::Step);
  finestre.plc.Entra(Comando_Corsa::Run);
  SimI& riga = finestre.pannello.Controlli().Fronte->Sim_I(0);
  const auto passa = [&] {
    finestre.plc.Entra({.Che = Cosa::Presente, .Numero = finestre.plc.Tempo.Adesso() + 10});
    finestre.plc.Entra(Comando_Corsa::Passo);
  };
  const auto premi = [&](int bit) {
    QTest::mouseClick(riga.findChild<QWidget*>(QStringLiteral("imgI0(%1)").arg(bit)),
                      Qt::LeftButton);
    passa();
  };
  passa();
  premi(1);
  const Momento allora = finestre.registratore.Adesso();
  premi(4);
  EXPECT_EQ(riga.Stato_I(), "01001000");
  while (finestre.plc.Righe_Fatte > allora.Righe)
    Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  EXPECT_EQ(riga.Stato_I(), "01001000") << "it was pressed before the next line";
  Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  EXPECT_EQ(riga.Stato_I(), "01000000");
  Azione(finestre.pannello, "mnuPresente").trigger();
  EXPECT_EQ(riga.Stato_I(), "01001000");
  for (int volta = 0; volta < 2; ++volta) Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  Azione(finestre.pannello, "mnuRiprendiDaQui").trigger();
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(finestre.plc.SI[0].Stato_I(), "01000000");
  premi(7);
  EXPECT_EQ(finestre.plc.SI[0].Stato_I(), "01000001") << "the other switches keep their places";
}

TEST(SessionInTheWindows, GoesBackToWhatTheDiagramShowsAtItsCursor) {
  Finestre_A_Caso finestre(5);
  finestre.Carica(programma);
  finestre.finestre.Mostra_Tempi();
  FrmTempi* tempi = nullptr;
  for (QWidget* una : QApplication::topLevelWidgets()) {
    if (auto* questa = dynamic_cast<FrmTempi*>(una)) tempi = questa;
  }
  ASSERT_NE(tempi, nullptr);
  tempi->findChild<QTimer*>("timT")->stop();
  EXPECT_FALSE(Azione(finestre.pannello, "mnuAlCursore").isEnabled()) << "no cursor yet";
  finestre.Dopo_Una_Mossa = [&] { tempi->Aggiorna(); };
  finestre.Gioca(400);
  const Registrazione& dati = tempi->Registrati();
  ASSERT_GT(dati.Cambi(), 20);
  const std::int64_t da = std::max(finestre.registratore.Primo().Ms, dati.Inizio());
  int guardati = 0;
  for (std::int64_t ms = dati.Fine(); ms > da;
       ms -= std::max<std::int64_t>(1, (dati.Fine() - da) / 40)) {
    tempi->Dati().Metti(Diagramma_Tempi::Cursore::A, ms);
    QTest::keyClick(tempi, Qt::Key_V);
    ASSERT_TRUE(finestre.registratore.Nel_Passato());
    EXPECT_LE(finestre.plc.Tempo.Adesso(), ms);
    if (finestre.plc.PC != 0) continue;  // nobody samples half a scan
    for (const Riga_Diagramma& riga : tempi->Dati().Righe()) {
      const Segnale* segnale = tempi->Dati().Segnale_Di(riga);
      if (segnale == nullptr) continue;
      const auto visto = tempi->Dati().Onda_Di(riga)->A(ms);
      if (!visto) continue;
      EXPECT_EQ(Valore(*segnale, finestre.plc), *visto) << segnale->Nome << " at " << ms;
      ++guardati;
    }
  }
  EXPECT_GT(guardati, 100);
  // Who did that? From the diagram, of the signal that is selected there.
  tempi->Dati().Scegli(0);
  while (tempi->Dati().Riga_Scelta() &&
         (tempi->Dati().Segnale_Di(*tempi->Dati().Riga_Scelta()) == nullptr ||
          tempi->Dati().Segnale_Di(*tempi->Dati().Riga_Scelta())->Indirizzo != "VW10"))
    tempi->Dati().Scegli_Accanto(1);
  tempi->Dati().Metti(Diagramma_Tempi::Cursore::A, dati.Fine());
  QTest::keyClick(tempi, Qt::Key_W);
  auto& bit = *finestre.pannello.findChild<QLineEdit*>("txtBit");
  EXPECT_EQ(bit.text(), "VW10");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return finestre.pannello.findChild<QLabel*>("etSeduta")->text().contains("VW10"); }));
  // The answer stands where the question was asked, and the line where it is seen.
  const Lista_Programma& lista = *finestre.pannello.Controlli().listSrc;
  int righe_dette = 0;
  for (const QString punto : {"Q0.0", "Q0.2", "Q0.3"}) {
    SCOPED_TRACE(punto.toStdString());
    bit.setText(punto);
    Azione(finestre.pannello, "mnuPresente").trigger();
    Azione(finestre.pannello, "mnuChiEStato").trigger();
    const QString risposta = tempi->findChild<QLabel*>("etCursori")->text();
    EXPECT_TRUE(risposta.contains(punto)) << risposta.toStdString();
    if (!risposta.contains(punto + ": riga ")) continue;  // a hand or a Stop did it
    ++righe_dette;
    ASSERT_GE(lista.currentRow(), 0);
    const QListWidgetItem& riga = *lista.item(lista.currentRow());
    EXPECT_TRUE(riga.text().contains(punto)) << riga.text().toStdString();
    EXPECT_TRUE(risposta.endsWith(riga.text().simplified())) << risposta.toStdString();
    EXPECT_TRUE(lista.viewport()->visibleRegion().intersects(lista.visualItemRect(&riga)));
  }
  EXPECT_GT(righe_dette, 0);
  Azione(finestre.pannello, "mnuScansioneIndietro").trigger();
  tempi->Aggiorna();
  EXPECT_EQ(tempi->Dati().Passato, finestre.plc.Tempo.Adesso());
  const std::int64_t qui = finestre.plc.Tempo.Adesso();
  finestre.registratore.Riprendi_Da_Qui();
  tempi->Aggiorna();
  EXPECT_FALSE(tempi->Dati().Passato);
  EXPECT_LE(dati.Fine(), qui + 1) << "what came after did not happen";
}

namespace {
FrmTempi* Diagramma_Aperto() {
  for (QWidget* una : QApplication::topLevelWidgets()) {
    if (auto* questa = dynamic_cast<FrmTempi*>(una)) return questa;
  }
  return nullptr;
}
}  // namespace

TEST(SessionInTheWindows, ADiagramThatIsOpenedLateShowsWhatWentBefore) {
  Finestre_A_Caso finestre(5);
  finestre.Carica(programma);
  finestre.Gioca(400);
  finestre.finestre.Mostra_Tempi();
  FrmTempi* tempi = Diagramma_Aperto();
  ASSERT_NE(tempi, nullptr);
  tempi->findChild<QTimer*>("timT")->stop();
  EXPECT_TRUE(tempi->Si_Riempie());
  EXPECT_TRUE(tempi->findChild<QLabel*>("etVista")->text().contains("rilegge il passato"));
  const Registrazione& dati = tempi->Registrati();
  EXPECT_EQ(dati.Inizio(), finestre.registratore.Primo().Ms);
  for (int volta = 0; volta < 10'000 && tempi->Si_Riempie(); ++volta) tempi->Aggiorna();
  ASSERT_FALSE(tempi->Si_Riempie());
  EXPECT_FALSE(tempi->findChild<QLabel*>("etVista")->text().contains("rilegge il passato"));
  ASSERT_GT(dati.Cambi(), 20);
  int guardati = 0;
  const std::int64_t da = finestre.registratore.Primo().Ms;
  for (std::int64_t ms = dati.Fine(); ms > da;
       ms -= std::max<std::int64_t>(1, (dati.Fine() - da) / 40)) {
    tempi->Dati().Metti(Diagramma_Tempi::Cursore::A, ms);
    QTest::keyClick(tempi, Qt::Key_V);
    ASSERT_TRUE(finestre.registratore.Nel_Passato());
    if (finestre.plc.PC != 0) continue;  // nobody samples half a scan
    for (const Riga_Diagramma& riga : tempi->Dati().Righe()) {
      const Segnale* segnale = tempi->Dati().Segnale_Di(riga);
      if (segnale == nullptr) continue;
      const auto visto = tempi->Dati().Onda_Di(riga)->A(ms);
      ASSERT_TRUE(visto) << segnale->Nome << " at " << ms;
      EXPECT_EQ(Valore(*segnale, finestre.plc), *visto) << segnale->Nome << " at " << ms;
      ++guardati;
    }
  }
  EXPECT_GT(guardati, 100);
  finestre.registratore.Torna_Al_Presente();
  // A signal that is added later has a past too.
  tempi->Scegli_Segnali = [](std::vector<Segnale>& scelti) {
    scelti.push_back(*Cerca_Segnale("VW2", {}));
    return true;
  };
  QTest::keyClick(tempi, Qt::Key_Insert);
  for (int volta = 0; volta < 10'000 && tempi->Si_Riempie(); ++volta) tempi->Aggiorna();
  const auto nuova = dati.Cerca("VW2");
  ASSERT_TRUE(nuova);
  EXPECT_TRUE(dati.Quando(*nuova).A(da + 1));
}

TEST(SessionInTheWindows, ThePowerBesideTheLinesIsThatOfTheMomentShown) {
  Finestre_A_Caso finestre(1);
  finestre.Carica({"LD I0.0", "= Q0.0", "LDN I0.0", "= Q0.1"});
  Controlli_Pannello& c = finestre.pannello.Controlli();
  c.chkVal->setChecked(true);
  const auto flussi = [&] {
    std::string testo;
    for (int riga = 0; riga < c.listSrc->count(); ++riga) {
      const auto flusso = c.listSrc->Stato(riga).Corrente;
      using Flusso = Stato_Riga::Flusso;
      testo += flusso == Flusso::Ignoto ? '.' : flusso == Flusso::Acceso ? '1' : '0';
    }
    return testo;
  };
  Plc& plc = finestre.plc;
  int scansioni = 0;
  const Iscrizione cessione = plc.Hook.Ascolta_Cedi([&] {
    if (plc.Hook.Adesso != Vissuto::Presente || plc.PC != 0) return;
    if (++scansioni == 40) plc.Entra(Di_Ingresso(0, "10000000"));
    if (scansioni > 60) plc.Entra(Comando_Corsa::Pausa);
    finestre.pannello.Aggiorna();
  });
  finestre.Senza_Caso = true;
  plc.Entra(Comando_Corsa::Run);
  ASSERT_TRUE(plc.In_Pausa());
  finestre.pannello.Aggiorna();
  EXPECT_EQ(flussi(), "1100.");
  std::set<std::string> visti;
  for (int volta = 0; volta < 45; ++volta) {
    Azione(finestre.pannello, "mnuScansioneIndietro").trigger();
    ASSERT_TRUE(finestre.registratore.Nel_Passato());
    if (plc.Righe_Fatte == finestre.registratore.Primo().Righe) break;
    EXPECT_EQ(flussi(), plc.IP_I[0].Bit_Img[0] != 0 ? "1100." : "0011.") << volta;
    visti.insert(flussi());
  }
  EXPECT_EQ(visti.size(), 2U);
  EXPECT_EQ(flussi(), "0011.");
  EXPECT_EQ(c.listSrc->Prossima(), 0);
  // Half a scan further: the lines to come are not said to have power.
  for (int riga = 0; riga < 3; ++riga) Azione(finestre.pannello, "mnuRigaAvanti").trigger();
  EXPECT_EQ(flussi(), "001..");
  EXPECT_EQ(c.listSrc->Prossima(), 3);
  Azione(finestre.pannello, "mnuPresente").trigger();
  EXPECT_EQ(flussi(), "1100.");
}

TEST(SessionInTheWindows, TheLadderShowsThePowerOfThePastMoment) {
  Finestre_A_Caso finestre(1);
  finestre.Carica({"LD I0.0", "= Q0.0"});
  Plc& plc = finestre.plc;
  int scansioni = 0;
  const Iscrizione cessione = plc.Hook.Ascolta_Cedi([&] {
    if (plc.Hook.Adesso != Vissuto::Presente || plc.PC != 0) return;
    if (++scansioni == 10) plc.Entra(Di_Ingresso(0, "10000000"));
    if (scansioni > 20) plc.Entra(Comando_Corsa::Pausa);
  });
  finestre.Senza_Caso = true;
  plc.Entra(Comando_Corsa::Run);
  finestre.finestre.Mostra_Scala();
  FrmScala* scala = nullptr;
  for (QWidget* una : QApplication::topLevelWidgets()) {
    if (auto* questa = dynamic_cast<FrmScala*>(una)) scala = questa;
  }
  ASSERT_NE(scala, nullptr);
  scala->Aggiorna();
  const QImage presente = scala->Vista().grab().toImage();
  for (int volta = 0; volta < 15; ++volta)
    Azione(finestre.pannello, "mnuScansioneIndietro").trigger();
  ASSERT_EQ(plc.IP_I[0].Bit_Img[0], 0);
  scala->Aggiorna();
  EXPECT_NE(scala->Vista().grab().toImage(), presente);
  Azione(finestre.pannello, "mnuPresente").trigger();
  scala->Aggiorna();
  EXPECT_EQ(scala->Vista().grab().toImage(), presente);
}

TEST(SessionInTheWindows, GoesBackAndForthAndOnFromThere) {
  Finestre_A_Caso finestre(7);
  finestre.Carica(programma);
  finestre.finestre.Apri_Impianto(9);
  finestre.Gioca(200);
  ASSERT_EQ(finestre.plc.In_Giro(), Giro::Nessuno);
  if (finestre.Fili() == nullptr) finestre.finestre.Apri_Impianto(9);
  // Nothing can be gone back to before a plant that has just come or gone.
  const auto eseguite = [&] {
    return finestre.plc.Righe_Fatte - finestre.registratore.Primo().Righe;
  };
  for (int volte = 0; volte < 100 && eseguite() == 0; ++volte) finestre.Gioca(20);
  ASSERT_GT(eseguite(), 0);
  const Stato_Intero presente = Elenca_Stato(finestre.plc, finestre.Fili());
  const std::int64_t righe = finestre.plc.Righe_Fatte;
  Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  ASSERT_TRUE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(finestre.plc.Righe_Fatte, righe - 1);
  EXPECT_TRUE(finestre.barra.isVisibleTo(&finestre.pannello));
  EXPECT_TRUE(finestre.pannello.findChild<QLabel*>("etSeduta")->text().startsWith("PASSATO"));
  // Nothing enters the past.
  Azione(finestre.pannello, "mnuPlcStop").trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(finestre.plc.Righe_Fatte, righe - 1);
  Azione(finestre.pannello, "mnuRigaAvanti").trigger();
  EXPECT_EQ(finestre.plc.Righe_Fatte, righe);
  Azione(finestre.pannello, "mnuPresente").trigger();
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(Prima_Differenza(Elenca_Stato(finestre.plc, finestre.Fili()), presente), "");
  Azione(finestre.pannello, "mnuScansioneIndietro").trigger();
  EXPECT_EQ(finestre.plc.PC, 0);
  finestre.registratore.Riprendi_Da_Qui();
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
  finestre.Gioca(60);  // goes on, and is still a session that can be played again
  const Stato_Intero dopo = Elenca_Stato(finestre.plc, finestre.Fili());
  if (finestre.registratore.Tempo_Indietro(50)) {
    finestre.registratore.Torna_Al_Presente();
    EXPECT_EQ(Prima_Differenza(Elenca_Stato(finestre.plc, finestre.Fili()), dopo), "");
  }
}

TEST(SessionInTheWindows, AProgramThatComesInThePastGoesOnFromThereWithThePlant) {
  Finestre_A_Caso finestre(7);
  finestre.Carica(programma);
  finestre.finestre.Apri_Impianto(9);
  finestre.registratore.Ms_Tra_Tappe = 3'600'000;  // what is gone back to is played from here on
  finestre.Corri(5);
  Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  ASSERT_TRUE(finestre.registratore.Nel_Passato());
  const std::int64_t qui = finestre.plc.Righe_Fatte;
  finestre.seduta.progetto.Compila();
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(finestre.plc.Righe_Fatte, qui);
  const auto guasti = Guasti_Di(finestre.Fili()->Tabella(), finestre.Fili()->Ingressi_A_Riposo());
  ASSERT_TRUE(Metti(guasti.back(), true, *finestre.Fili()));
  finestre.Corri(5, Comando_Corsa::Continua);
  ASSERT_GT(finestre.plc.Righe_Fatte, qui);
  const Stato_Intero presente = Elenca_Stato(finestre.plc, finestre.Fili());
  Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  EXPECT_TRUE(finestre.registratore.Nel_Passato());
  EXPECT_TRUE(finestre.avvisi.empty()) << finestre.avvisi[0];
  Azione(finestre.pannello, "mnuPresente").trigger();
  EXPECT_EQ(Prima_Differenza(Elenca_Stato(finestre.plc, finestre.Fili()), presente), "");
}

TEST(SessionInTheWindows, AllOfTheBarIsSeenAtEveryWidthOfThePanel) {
  Finestre_A_Caso finestre(1);
  finestre.Carica(programma);
  Azione(finestre.pannello, "mnuScansioneIndietro").trigger();
  auto& detto = *finestre.pannello.findChild<QLabel*>("etSeduta");
  ASSERT_FALSE(detto.text().isEmpty());
  ASSERT_TRUE(QTest::qWaitFor([&] { return finestre.finestre.Ordine().Assestate(); }, 20000));
  for (const int larga : {1060, 760, 460}) {
    finestre.pannello.resize(larga, 700);
    QCoreApplication::processEvents();
    ASSERT_EQ(finestre.pannello.width(), larga);
    int visti = 0;
    for (const QWidget* parte : finestre.barra.findChildren<QWidget*>()) {
      const auto* tasto = qobject_cast<const QToolButton*>(parte);
      const bool suo = parte == &detto || qobject_cast<const QComboBox*>(parte) != nullptr ||
                       qobject_cast<const QLineEdit*>(parte) != nullptr ||
                       (tasto != nullptr && !tasto->text().isEmpty());
      if (!suo) continue;
      ++visti;
      SCOPED_TRACE(std::to_string(larga) + ' ' + parte->objectName().toStdString());
      EXPECT_TRUE(parte->isVisible());
      EXPECT_GE(parte->width(), parte->minimumSizeHint().width());
      EXPECT_EQ(parte->visibleRegion().boundingRect(), parte->rect());
    }
    EXPECT_GE(visti, 14);
    if (larga == 1060) {
      EXPECT_LE(finestre.barra.height(), 70) << "two lines";
    }
  }
}

}  // namespace tavorno::prova
