// SPDX-License-Identifier: GPL-3.0-or-later
// "Verifica" and "Guarda" in the real windows: the verdict, and a failed case shown by the panel
// and the plant, which are afterwards what they were.
#include "panel/verification.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>

#include "grading/ui/film_window.h"
#include "grading/ui/time_sheet.h"
#include "grading/ui/verification_window.h"
#include "panel/program_list.h"
#include "panel/session_bed.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "recorder/whole_state.h"
#include "support/command.h"

namespace tavorno::prova {

namespace {

struct Prova_Verifica : ::testing::Test, Banco_Seduta {
  Cartella_Temporanea programma;  // where the scripts lie
  Sala_Verifica sala{pannello,
                     plc,
                     seduta.progetto,
                     registratore,
                     corsa,
                     finestre,
                     QString::fromStdString(programma.string()),
                     {}};

  Prova_Verifica() {
    sala.Avvisa = [this](const QString& testo) { avvisi.push_back(testo.toStdString()); };
    std::filesystem::create_directories(programma / "examples");
    Script("us00.lua", R"(
      prova('marcia', 4, function()
        run() attendi(200) premi('imgStart') attendi(300)
        serve(leggi('Q0.0') == 1, 'premendo Start il motore deve partire')
        rilascia('imgStart') attendi(1000)
        punti(4, leggi('Q0.0') == 1, 'il motore deve restare in marcia')
      end)
      prova('fermo', 2, function() run() attendi(100) punti(2, leggi('Q0.0') == 0, 'parte') end))");
    pannello.show();
  }

  void Script(const std::string& nome, const std::string& testo) const {
    Scrivi_Byte(programma / ("examples/" + nome), testo);
  }
  /// The motor follows Start, and does not stay.
  void Senza_Autoritenuta() {
    Carica({"LD I0.1", "A I0.0", "= Q0.0", "LD SM0.0", "INCW VW0"});
    finestre.Apri_Impianto(0);
  }
  void Passa(int ms) { plc.Entra({.Che = Cosa::Presente, .Numero = plc.Tempo.Adesso() + ms}); }

  FrmVerifica& Verdetto() {
    sala.Mostra();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !sala.Finestra()->In_Corso(); }, 20000));
    return *sala.Finestra();
  }
  template <class Controllo>
  static Controllo& Uno(QWidget& finestra, const char* nome) {
    auto* controllo = finestra.findChild<Controllo*>(QString::fromUtf8(nome));
    if (controllo == nullptr) qFatal("no %s", nome);
    return *controllo;
  }
  FrmGuarda& Film(FrmVerifica& verdetto, int caso) {
    Uno<QTableWidget>(verdetto, "tabCasi").selectRow(caso);
    Uno<QPushButton>(verdetto, "cmdGuarda").click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return sala.Film() != nullptr; }));
    return *sala.Film();
  }
  static void In_Fondo(FrmGuarda& film) {
    for (int n = 0; n < 1000 && !film.In_Fondo(); ++n) film.Avanza(FrmGuarda::Periodo);
  }
  static void Chiudi(QWidget& finestra) {
    finestra.close();
    Via();
  }
  /// Closed windows go, and those that go with them.
  static void Via() {
    for (int volta = 0; volta < 3; ++volta)
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Stato_Intero Tutto() { return Elenca_Stato(plc, &finestre.Impianto()->Fili()); }
};

}  // namespace

TEST_F(Prova_Verifica, TheVerdictStandsInTheWindow) {
  Senza_Autoritenuta();
  Uno<QPushButton>(*finestre.Impianto(), "cmdVerifica").click();
  ASSERT_NE(sala.Finestra(), nullptr);
  FrmVerifica& verdetto = Verdetto();
  auto& casi = Uno<QTableWidget>(verdetto, "tabCasi");
  ASSERT_EQ(casi.rowCount(), 2);
  EXPECT_EQ(casi.item(0, 0)->text(), "marcia");
  EXPECT_EQ(casi.item(0, 1)->text(), "non superato");
  EXPECT_EQ(casi.item(0, 2)->text(), "0 su 4");
  EXPECT_EQ(casi.item(1, 1)->text(), "superato");
  EXPECT_EQ(Uno<QLabel>(verdetto, "etEsito").text().toStdString(),
            "Punti: 2 su 6. Casi superati: 1 su 2.");
  casi.selectRow(0);
  EXPECT_TRUE(Uno<QPlainTextEdit>(verdetto, "txtRilievi")
                  .toPlainText()
                  .contains("Dopo 1,500 s: il motore deve restare in marcia"));
  EXPECT_FALSE(Uno<Foglio_Tempi>(verdetto, "foglioTempi").Vuoto());
  EXPECT_TRUE(Uno<QPushButton>(verdetto, "cmdGuarda").isEnabled());
  // However far the times have scrolled, the names of the signals are in sight.
  auto& tempi = Uno<Foglio_Tempi>(verdetto, "foglioTempi");
  verdetto.resize(500, 600);
  QCoreApplication::processEvents();
  const QRect nomi(0, 90, 160, 60);
  tempi.horizontalScrollBar()->setValue(0);
  const QImage prima = tempi.viewport()->grab(nomi).toImage();
  ASSERT_GT(tempi.horizontalScrollBar()->maximum(), 200);
  tempi.horizontalScrollBar()->setValue(200);
  EXPECT_EQ(tempi.viewport()->grab(nomi).toImage(), prima);
  casi.selectRow(1);
  EXPECT_TRUE(Uno<Foglio_Tempi>(verdetto, "foglioTempi").Vuoto());
  EXPECT_FALSE(Uno<QPushButton>(verdetto, "cmdGuarda").isEnabled());
}

TEST_F(Prova_Verifica, WithoutAProgramItSaysSo) {
  finestre.Apri_Impianto(0);
  EXPECT_EQ(Uno<QLabel>(Verdetto(), "etEsito").text(),
            "Nella CPU non c'è un programma: prima aprirne uno e caricarlo.");
}

TEST_F(Prova_Verifica, WithoutItsScriptItSaysSo) {
  Carica({"LD I0.0", "= Q0.0"});
  finestre.Apri_Impianto(1);
  EXPECT_TRUE(Uno<QLabel>(Verdetto(), "etEsito").text().contains("script"));
}

TEST_F(Prova_Verifica, WithoutAPlantThereIsNothingToVerify) {
  QAction& voce = Azione(pannello, "mnuViewVerifica");
  EXPECT_FALSE(voce.isEnabled());
  sala.Mostra();
  EXPECT_EQ(sala.Finestra(), nullptr);
  Senza_Autoritenuta();
  EXPECT_TRUE(voce.isEnabled());
  voce.trigger();
  EXPECT_NE(sala.Finestra(), nullptr);
  Chiudi(*finestre.Impianto());
  EXPECT_EQ(sala.Finestra(), nullptr) << "its exercise is gone";
  EXPECT_FALSE(voce.isEnabled());
}

TEST_F(Prova_Verifica, ItCanBeCalledOff) {
  Script("us00.lua",
         "for n = 1, 500 do prova('caso ' .. n, 1, function() run() attendi(3600000) end) end");
  Carica({"LD SM0.6", "= Q0.0"});
  finestre.Apri_Impianto(0);
  sala.Mostra();
  FrmVerifica& verdetto = *sala.Finestra();
  EXPECT_TRUE(verdetto.In_Corso());
  verdetto.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&verdetto, 20000));
  QTest::keyClick(&verdetto, Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !verdetto.In_Corso(); }, 20000));
  EXPECT_TRUE(Uno<QLabel>(verdetto, "etEsito").text().contains("annullata"));
  EXPECT_TRUE(Uno<QPushButton>(verdetto, "cmdVerificaAncora").isEnabled());
  QTest::keyClick(&verdetto, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sala.Finestra() == nullptr; }, 20000))
      << "with nothing left to call off the key closes";
}

TEST_F(Prova_Verifica, AFailureIsWatchedAndThePresentComesBack) {
  Senza_Autoritenuta();
  plc.Entra(Comando_Corsa::Step);
  plc.Entra(Comando_Corsa::Run);
  for (int n = 0; n < 23; ++n) plc.Entra(Comando_Corsa::Passo);
  Passa(40);
  finestre.Impianto()->Fili().Entra({.Che = Cosa::Clic, .Testo = "ImgTer"});
  const Stato_Intero prima = Tutto();
  const QPointer<Quadro> quadro = &finestre.Impianto()->Disegno();

  FrmVerifica& verdetto = Verdetto();
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "") << "the running one is not disturbed";
  FrmGuarda& film = Film(verdetto, 0);
  EXPECT_FALSE(verdetto.isVisible());
  EXPECT_TRUE(registratore.In_Proiezione());
  EXPECT_NE(Prima_Differenza(prima, Tutto()), "");
  EXPECT_TRUE(Uno<QLabel>(film, "etRilievo").text().startsWith("Dopo 1,500 s:"));

  film.Avanza(400);  // Start is pressed from 200 to 500 ms
  EXPECT_EQ(plc.Tempo.Adesso(), 400);
  EXPECT_EQ(plc.SQ[0].Stato_QB(), 1);
  EXPECT_TRUE(finestre.Impianto()->Fili().Macchina().Disegno["imgKM"].Visible());
  In_Fondo(film);
  EXPECT_EQ(plc.Tempo.Adesso(), 1500);
  EXPECT_EQ(plc.SQ[0].Stato_QB(), 0);
  EXPECT_FALSE(film.In_Moto()) << "there it holds";
  EXPECT_TRUE(Uno<QLabel>(film, "etRilievo").text().startsWith("Qui non va: "));
  EXPECT_TRUE(quadro.isNull()) << "a plant of its own";

  Uno<QPushButton>(film, "cmdTorna").click();
  Via();
  EXPECT_FALSE(registratore.Nel_Passato());
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "");
  EXPECT_TRUE(verdetto.isVisible());
  EXPECT_EQ(sala.Film(), nullptr);
  plc.Entra(Comando_Corsa::Passo);  // and it goes on
  EXPECT_NE(Prima_Differenza(prima, Tutto()), "");
}

TEST_F(Prova_Verifica, ThePresentComesBackByEveryWay) {
  Senza_Autoritenuta();
  Passa(25);
  const Stato_Intero prima = Tutto();
  FrmVerifica& verdetto = Verdetto();

  Chiudi(Film(verdetto, 0));
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "") << "the window closes";

  Film(verdetto, 0).Avanza(300);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Azione(pannello, "mnuPresente").isEnabled(); }));
  Azione(pannello, "mnuPresente").trigger();
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "") << "the panel goes back to the present";
  EXPECT_TRUE(QTest::qWaitFor([this] { return sala.Film() == nullptr; }));

  Film(verdetto, 0).Avanza(300);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Azione(pannello, "mnuRiprendiDaQui").isEnabled(); }));
  Azione(pannello, "mnuRiprendiDaQui").trigger();
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "") << "a film is nothing to go on from";
  EXPECT_TRUE(QTest::qWaitFor([this] { return sala.Film() == nullptr; }));

  Film(verdetto, 0).Avanza(300);
  Carica({"LD I0.5", "= Q0.5"});
  EXPECT_FALSE(registratore.Nel_Passato());
  EXPECT_EQ(plc.Tempo.Adesso(), 25) << "another program is loaded into the CPU as it was";
  EXPECT_EQ(plc.NRighe, Copia_Programma(plc).NRighe);
  EXPECT_TRUE(QTest::qWaitFor([this] { return sala.Film() == nullptr; }));

  Film(Verdetto(), 0).Avanza(300);
  Chiudi(*finestre.Impianto());
  EXPECT_FALSE(registratore.Nel_Passato());
  EXPECT_EQ(finestre.Impianto(), nullptr);
  EXPECT_TRUE(QTest::qWaitFor([this] { return sala.Film() == nullptr; }));
}

TEST_F(Prova_Verifica, ARunningProgramGoesOnWhereItWas) {
  Senza_Autoritenuta();
  Verdetto();
  std::int64_t righe = 0;
  std::int16_t conto = 0;
  bool ripreso = false;
  int cessioni = 0;
  const Iscrizione pausa = plc.Hook.Entra.Ascolta([&](const Atto& atto) {
    if (plc.Hook.Adesso != Vissuto::Presente || atto != Di_Comando(Comando_Corsa::Pausa)) return;
    righe = plc.Righe_Fatte;
    conto = plc.Mem_VW[0];
  });
  const Iscrizione cessione = plc.Hook.Ascolta_Cedi([&] {
    if (plc.Hook.Adesso != Vissuto::Presente) return;
    ++cessioni;
    if (cessioni == 500) {
      Uno<QTableWidget>(*sala.Finestra(), "tabCasi").selectRow(0);
      Uno<QPushButton>(*sala.Finestra(), "cmdGuarda").click();
    }
    if (righe > 0 && plc.Righe_Fatte > righe + 100) {
      ripreso = true;
      plc.Entra(Comando_Corsa::Stop);
    }
  });
  pannello.show();
  QMetaObject::invokeMethod(
      &pannello, [this] { plc.Entra(Comando_Corsa::Run); }, Qt::QueuedConnection);
  ASSERT_TRUE(QTest::qWaitFor([this] { return sala.Film() != nullptr; }, 20000));
  EXPECT_TRUE(plc.In_Giro() == Giro::Nessuno);
  In_Fondo(*sala.Film());
  EXPECT_EQ(plc.Tempo.Adesso(), 1500);
  Uno<QPushButton>(*sala.Film(), "cmdTorna").click();
  EXPECT_EQ(plc.Righe_Fatte, righe);
  EXPECT_EQ(plc.Mem_VW[0], conto);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ripreso; }, 20000));
}

TEST_F(Prova_Verifica, AFilmGoesSlowlyBackAndStepByStep) {
  Senza_Autoritenuta();
  FrmGuarda& film = Film(Verdetto(), 0);
  auto& velocita = Uno<QComboBox>(film, "cmbVelocita");
  velocita.setCurrentIndex(velocita.findText("1/10"));
  film.Avanza(40);
  EXPECT_EQ(plc.Tempo.Adesso(), 4);
  film.Avanza(5);
  film.Avanza(5);
  EXPECT_EQ(plc.Tempo.Adesso(), 5) << "parts of a millisecond add up";

  Uno<QSlider>(film, "sldTempo").setValue(300);
  EXPECT_EQ(plc.Tempo.Adesso(), 300);
  EXPECT_EQ(plc.SQ[0].Stato_QB(), 1);
  Uno<QPushButton>(film, "cmdVai").click();
  EXPECT_FALSE(film.In_Moto());
  const std::int64_t righe = plc.Righe_Fatte;
  Uno<QPushButton>(film, "cmdRigaIndietro").click();
  EXPECT_EQ(plc.Righe_Fatte, righe - 1);
  EXPECT_EQ(pannello.Controlli().listSrc->currentRow(), plc.PC);
  Uno<QPushButton>(film, "cmdRigaAvanti").click();
  EXPECT_EQ(plc.Righe_Fatte, righe);
  Uno<QPushButton>(film, "cmdScansioneIndietro").click();
  EXPECT_LT(plc.Righe_Fatte, righe);
  EXPECT_EQ(plc.PC, 0);
  Uno<QPushButton>(film, "cmdScansioneAvanti").click();
  EXPECT_EQ(plc.PC, 0);
  Uno<QPushButton>(film, "cmdDaCapo").click();
  EXPECT_EQ(plc.Tempo.Adesso(), 0);
  EXPECT_EQ(plc.SQ[0].Stato_QB(), 0);
  Uno<QPushButton>(film, "cmdVai").click();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&film));
  QTest::keyClick(&film, Qt::Key_Escape);
  EXPECT_FALSE(registratore.In_Proiezione());
}

TEST_F(Prova_Verifica, AFilmRunsBesideThePanel) {
  Senza_Autoritenuta();
  const QRect schermo = pannello.screen()->availableGeometry();
  pannello.resize(pannello.minimumSizeHint());
  pannello.move(schermo.left(), schermo.bottom() + 1 - pannello.frameGeometry().height());
  const FrmGuarda& film = Film(Verdetto(), 0);
  EXPECT_FALSE(film.frameGeometry().intersects(pannello.frameGeometry()));
  EXPECT_TRUE(schermo.contains(film.frameGeometry()));
}

TEST_F(Prova_Verifica, AHandDoesNothingInAFilm) {
  Senza_Autoritenuta();
  FrmGuarda& film = Film(Verdetto(), 0);
  film.Avanza(100);
  const Stato_Intero prima = Tutto();
  QTest::mouseClick(&finestre.Impianto()->Disegno(), Qt::LeftButton, {},
                    finestre.Impianto()->Disegno().rect().center());
  EXPECT_FALSE(finestre.Impianto()->Fili().Entra({.Che = Cosa::Premi, .Testo = "imgStart"}));
  EXPECT_EQ(Prima_Differenza(prima, Tutto()), "");
}

TEST_F(Prova_Verifica, AProgramThatBreaksIsHeldThere) {
  Script("us00.lua", "prova('rotto', 1, function() run() attendi(5000) end)");
  Carica({"LD SM0.5", "EU", "S M0.7, 5"});
  finestre.Apri_Impianto(0);
  FrmGuarda& film = Film(Verdetto(), 0);
  In_Fondo(film);
  EXPECT_TRUE(film.In_Fondo());
  EXPECT_TRUE(Uno<QLabel>(film, "etRilievo").text().contains("fatale"));
  Chiudi(film);
  EXPECT_FALSE(registratore.Nel_Passato());
}

}  // namespace tavorno::prova
