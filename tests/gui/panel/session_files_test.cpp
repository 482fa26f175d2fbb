// SPDX-License-Identifier: GPL-3.0-or-later
// A session that is saved from the menu and opened again, among windows that show another one.
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "panel/random_windows.h"
#include "plants/exercises.h"
#include "recorder/session_file.h"
#include "recorder/ui/diagram_window.h"
#include "widgets/text.h"

namespace tavorno::prova {

namespace {

const std::vector<std::string> salvato = {"LD I0.0",  "O Q0.0",        "AN I0.1", "= Q0.0",
                                          "LD SM0.0", "INCW VW10",     "LD I0.2", "TON T37, 3",
                                          "LD T37",   "MOVW AIW0, VW2"};

FrmTempi* Diagramma() {
  for (QWidget* una : QApplication::topLevelWidgets()) {
    auto* questa = dynamic_cast<FrmTempi*>(una);
    if (questa != nullptr && questa->isVisible()) return questa;
  }
  return nullptr;
}

void Riempi(FrmTempi& tempi) {
  tempi.findChild<QTimer*>("timT")->stop();
  for (int volta = 0; volta < 10'000 && tempi.Si_Riempie(); ++volta) tempi.Aggiorna();
  ASSERT_FALSE(tempi.Si_Riempie());
}

/// What a diagram shows of each signal, and when.
std::string Disegno(FrmTempi& tempi) {
  std::string tutto = std::to_string(tempi.Registrati().Inizio()) + " to " +
                      std::to_string(tempi.Registrati().Fine()) + "\n";
  for (const Riga_Diagramma& riga : tempi.Dati().Righe()) {
    const Segnale* segnale = tempi.Dati().Segnale_Di(riga);
    if (segnale == nullptr) continue;
    tutto += segnale->Nome + ":";
    const Onda& onda = *tempi.Dati().Onda_Di(riga);
    for (std::size_t n = 0; n < onda.Cambi(); ++n)
      tutto += " " + std::to_string(onda.Ms(n)) + "=" + std::to_string(onda.Valore(n));
    tutto += "\n";
  }
  return tutto;
}

struct Session_File : ::testing::Test {
  Cartella_Temporanea cartella;
  QString file = QString::fromStdString((cartella / "prova.seduta").string());

  /// Plays one with a plant (-1: none) and saves it from the menu.
  void Salva_Una(unsigned seme, int impianto) {
    Finestre_A_Caso finestre(seme);
    finestre.Carica(salvato);
    if (impianto >= 0) finestre.finestre.Apri_Impianto(impianto);
    finestre.Gioca(200);
    Scegli(finestre, "mnuSalvaSeduta");
    EXPECT_EQ(finestre.avvisi, std::vector<std::string>{});
  }
  void Scegli(Finestre_A_Caso& finestre, const char* voce) const {
    finestre.barra.Chiedi_File = [this](bool) { return file; };
    auto* azione = finestre.pannello.findChild<QAction*>(voce);
    ASSERT_NE(azione, nullptr);
    azione->trigger();
  }
};
struct Other_Session : Session_File, ::testing::WithParamInterface<int> {};

}  // namespace

TEST_P(Other_Session, IsShownByADiagramThatWasOpenBefore) {
  Salva_Una(7, GetParam());
  if (HasFatalFailure()) return;

  Finestre_A_Caso finestre(8);
  finestre.Carica({"LD I0.0", "= Q0.1", "LD SM0.0", "INCW VW0"});
  finestre.finestre.Mostra_Tempi();
  FrmTempi* aperto = Diagramma();
  ASSERT_NE(aperto, nullptr);
  finestre.Senza_Caso = true;
  finestre.plc.SI[0].Stato_I("10000000");
  finestre.plc.Entra({.Che = Cosa::Presente, .Numero = finestre.plc.Tempo.Adesso() + 3'600'000});
  Riempi(*aperto);
  ASSERT_GT(aperto->Registrati().Fine(), 3'000'000) << "an hour of which nothing may stay";
  aperto->Dati().Metti(Diagramma_Tempi::Cursore::A, 3'000'000);

  Scegli(finestre, "mnuApriSeduta");
  ASSERT_EQ(finestre.avvisi, std::vector<std::string>{});
  ASSERT_TRUE(finestre.registratore.Nel_Passato());
  Riempi(*aperto);
  EXPECT_FALSE(aperto->Dati().A);
  const std::string visto = Disegno(*aperto);
  EXPECT_FALSE(aperto->Registrati().Cerca("VW0")) << "that is the other program's";
  EXPECT_TRUE(GetParam() >= 0 || aperto->Registrati().Cerca("VW10"));
  EXPECT_EQ(aperto->Registrati().Inizio(), finestre.registratore.Primo().Ms);
  EXPECT_GT(aperto->Registrati().Cambi(), 20);

  // One that is opened now knows nothing else.
  aperto->setAttribute(Qt::WA_DeleteOnClose);
  aperto->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  finestre.finestre.Mostra_Tempi();
  FrmTempi* tardi = Diagramma();
  ASSERT_NE(tardi, nullptr);
  Riempi(*tardi);
  EXPECT_EQ(visto, Disegno(*tardi));
  finestre.barra.Al_Presente();
}

TEST_F(Session_File, OnlyTheLastPlantOfASessionComesIntoItsFile) {
  {
    Finestre_A_Caso finestre(11);
    finestre.Carica(salvato);
    for (const int impianto : {0, 7, 9}) {
      finestre.finestre.Apri_Impianto(impianto);
      finestre.Senza_Caso = true;
      for (int n = 0; n < 20; ++n)
        finestre.plc.Entra({.Che = Cosa::Presente, .Numero = finestre.plc.Tempo.Adesso() + 50});
      if (impianto == 9) break;
      finestre.finestre.Impianto()->close();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Scegli(finestre, "mnuSalvaSeduta");
    ASSERT_EQ(finestre.avvisi, std::vector<std::string>{});
  }
  Finestre_A_Caso finestre(12);
  finestre.Carica({"LD I0.0", "= Q0.1"});
  Scegli(finestre, "mnuApriSeduta");
  ASSERT_EQ(finestre.avvisi, std::vector<std::string>{});
  ASSERT_NE(finestre.finestre.Impianto(), nullptr);
  EXPECT_EQ(finestre.finestre.Impianto()->Fili().Tabella().Titolo, Tabella_Esercizi()[9].Titolo);
  finestre.barra.Al_Presente();
  EXPECT_EQ(finestre.avvisi, std::vector<std::string>{});
}

TEST_F(Session_File, TheFileOfOneWhosePlantHasClosedOpensNone) {
  {
    Finestre_A_Caso finestre(13);
    finestre.Carica(salvato);
    finestre.finestre.Apri_Impianto(7);
    finestre.finestre.Impianto()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Scegli(finestre, "mnuSalvaSeduta");
  }
  Finestre_A_Caso finestre(14);
  Scegli(finestre, "mnuApriSeduta");
  EXPECT_EQ(finestre.avvisi, std::vector<std::string>{});
  EXPECT_EQ(finestre.finestre.Impianto(), nullptr);
  EXPECT_EQ(finestre.plc.NRighe + 1, static_cast<int>(salvato.size()) + 1) << "with its MEND";
}

// What ended the CPU then must not end the program that looks at it. What the windows themselves
// note of such an end is not whole, as the program ends with it.
TEST_F(Session_File, OneThatCannotBePlayedToItsEndIsShownFromItsBeginning) {
  {
    Finestre_A_Caso finestre(15);
    finestre.Carica({"LD SM0.0", "TON T37, 3", "LD T37", "S M0.7, 3"});
    finestre.Senza_Caso = true;
    bool finita = false;
    try {
      finestre.plc.mnuPlcStop();
      finestre.plc.mnuPlcCont();
      finestre.plc.mnuPlcRun();
    } catch (const Fatale&) {
      finita = true;
    }
    ASSERT_TRUE(finita);
    ASSERT_EQ(Salva_Registrazione(Utf8(file), finestre.registratore.Registrata()), "");
  }
  Finestre_A_Caso finestre(16);
  Scegli(finestre, "mnuApriSeduta");
  ASSERT_EQ(finestre.avvisi, std::vector<std::string>{});
  finestre.pannello.findChild<QAction*>("mnuSecondoAvanti")->trigger();
  ASSERT_EQ(finestre.avvisi.size(), 1U);
  EXPECT_EQ(finestre.avvisi[0].rfind("La seduta non si può rifare fin lì: ", 0), 0U)
      << finestre.avvisi[0];
  EXPECT_TRUE(finestre.registratore.Nel_Passato());
  finestre.barra.Al_Presente();
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(finestre.avvisi.size(), 2U);
}

TEST_F(Session_File, WhoGoesOnFromItHasTheProgramThatCameLast) {
  Stesura ultimo;
  {
    Finestre_A_Caso finestre(18);
    finestre.Carica({"LD I0.0", "= Q0.1"});
    finestre.finestre.Apri_Impianto(9);
    finestre.Carica(salvato);
    ultimo = Copia_Programma(finestre.plc);
    finestre.Corri(5);
    Scegli(finestre, "mnuSalvaSeduta");
    ASSERT_EQ(finestre.avvisi, std::vector<std::string>{});
  }
  Finestre_A_Caso finestre(19);
  Scegli(finestre, "mnuApriSeduta");
  ASSERT_TRUE(finestre.registratore.Vai({}));
  finestre.registratore.Riprendi_Da_Qui();
  finestre.registratore.Ms_Tra_Tappe = 0;  // the next entry notes a place to start from
  finestre.Corri(5, Comando_Corsa::Continua);
  Azione(finestre.pannello, "mnuRigaIndietro").trigger();
  ASSERT_TRUE(finestre.registratore.Nel_Passato());
  EXPECT_EQ(finestre.avvisi, std::vector<std::string>{});
  EXPECT_EQ(Copia_Programma(finestre.plc), ultimo);
}

TEST_F(Session_File, OneThatCannotEvenBeginLeavesNoPast) {
  Finestre_A_Caso finestre(17);
  finestre.Carica({"LD I0.0", "= Q0.1"});
  Seduta_Registrata rotta = finestre.registratore.Registrata();
  const Posto_Giornale fine = rotta.Voci.Fine();
  rotta.Voci = Giornale(fine.Righe, fine.Ms);
  rotta.Voci.Scrivi(fine.Righe, {.Che = Cosa::Premi, .Testo = "imgStart"});  // of no plant
  ASSERT_EQ(Salva_Registrazione(Utf8(file), rotta), "");

  Scegli(finestre, "mnuApriSeduta");
  ASSERT_EQ(finestre.avvisi.size(), 1U);
  EXPECT_EQ(finestre.avvisi[0].rfind("La seduta non si può rifare: ", 0), 0U) << finestre.avvisi[0];
  finestre.barra.Al_Presente();
  EXPECT_EQ(finestre.avvisi.size(), 2U);
  EXPECT_FALSE(finestre.registratore.Nel_Passato());
}

INSTANTIATE_TEST_SUITE_P(Plants, Other_Session, ::testing::Values(-1, 9), [](const auto& caso) {
  return caso.param < 0 ? std::string("None") : "Us" + std::to_string(caso.param);
});

}  // namespace tavorno::prova
