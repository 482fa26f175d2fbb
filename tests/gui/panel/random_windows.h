// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QSlider>
#include <QTest>
#include <random>

#include "panel/controls/cpu_front.h"
#include "panel/session_bed.h"
#include "plants/faults.h"
#include "plants/host/fault_panel.h"
#include "plants/host/host_window.h"
#include "plants/host/picture_widget.h"
#include "recorder/ui/watch_window.h"
#include "support/command.h"

namespace tavorno::prova {

/// The real windows under random hands: what one hand does next comes from a seed.
class Finestre_A_Caso : public Banco_Seduta {
 public:
  explicit Finestre_A_Caso(unsigned seme) : caso_(seme) {
    cessione_ = plc.Hook.Ascolta_Cedi_Righe([this] { return Cedi(); });
    barra.Avvisa = [this](const QString& testo) { avvisi.push_back(testo.toStdString()); };
    corsa.Attesa = false;
    registratore.Ms_Tra_Tappe = 500;
  }

  void Gioca(int mosse) {
    rimaste_ = mosse;
    while (rimaste_ > 0) {
      --rimaste_;
      Tempo();
      Mossa();
      QCoreApplication::processEvents();
      if (Nuovi_Programmi && Numero(15) == 0) seduta.progetto.Compila();
      Dopo_Una_Mossa();
    }
    barra.Al_Presente();
  }

  /// Runs so many scans without chance, from the beginning or on from a pause, to a pause.
  void Corri(int scansioni, Comando_Corsa come = Comando_Corsa::Run) {
    Senza_Caso = true;
    const Iscrizione cessione = plc.Hook.Ascolta_Cedi([this, &scansioni] {
      if (plc.Hook.Adesso == Vissuto::Presente && plc.PC == 0 && --scansioni < 0)
        plc.Entra(Comando_Corsa::Pausa);
    });
    plc.Entra(come);
    ASSERT_TRUE(plc.In_Pausa());
  }

  unsigned Numero(unsigned massimo) { return static_cast<unsigned>(caso_() % (massimo + 1)); }

  bool Nuovi_Programmi = false;                    ///< now and then one comes, in the past too
  bool Senza_Caso = false;                         ///< a run whose hands are somebody else's
  std::function<void()> Dopo_Una_Mossa = [] {};    // while the CPU stands
  int forzate = 0, guasti_messi = 0, passati = 0;  // so often it was done

  Collegamento* Fili() { return finestre.Impianto() ? &finestre.Impianto()->Fili() : nullptr; }

 private:
  void Tempo() { plc.Entra({.Che = Cosa::Presente, .Numero = plc.Tempo.Adesso() + Numero(12)}); }

  template <class T>
  T* Uno(QWidget& in, const char* nome) {
    return in.findChild<T*>(QString::fromUtf8(nome));
  }
  void Clicca(QAbstractButton* tasto) {
    if (tasto != nullptr && tasto->isEnabled()) tasto->click();
  }

  void Mossa() {
    Controlli_Pannello& c = pannello.Controlli();
    switch (Numero(20)) {
      case 18:
        Forza_A_Caso();
        break;
      case 19:
        Guasto_A_Caso();
        break;
      case 20:
        Passato_A_Caso();
        break;
      case 0:
      case 1: {
        const auto righe = c.Fronte->findChildren<QWidget*>(
            QRegularExpression(QStringLiteral("^imgI0\\(\\d\\)$")));
        if (righe.isEmpty()) break;
        QWidget* interruttore =
            righe[static_cast<int>(Numero(static_cast<unsigned>(righe.size() - 1)))];
        if (interruttore->isVisible()) QTest::mouseClick(interruttore, Qt::LeftButton);
        break;
      }
      case 2:
        c.SlidP[Numero(1)]->setValue(static_cast<int>(Numero(255)));
        break;
      case 3:
        Clicca(std::array<QCheckBox*, 4>{c.chkStop, c.chkSol, c.chkIP, c.chkList}[Numero(3)]);
        break;
      case 4:
        (Numero(1) ? c.txtStop : c.txtNC)->setText(QString::number(1 + Numero(4)));
        break;
      case 5:
        Clicca(Numero(1) ? c.opzAI[Numero(1)] : c.opzAQ[Numero(1)]);
        break;
      case 6:
        finestre.Mostra_Analogici();
        for (QWidget* finestra : QApplication::topLevelWidgets()) {
          if (finestra->objectName() != QStringLiteral("frmSimAI")) continue;
          const auto cursori = finestra->findChildren<QSlider*>();
          cursori[static_cast<int>(Numero(2))]->setValue(static_cast<int>(Numero(10)));
        }
        break;
      case 7:
        if (Numero(3) == 0) pannello.Attivata();
        break;
      case 8:
      case 9:
      case 10:
        Mano();
        break;
      case 11:
        if (Numero(5) == 0) finestre.Impianto() ? Chiudi() : Apri();
        break;
      case 12:
        if (Fili() != nullptr) {
          const auto cursori = finestre.Impianto()->findChildren<QSlider*>();
          if (!cursori.isEmpty())
            cursori[0]->setValue(cursori[0]->minimum() + static_cast<int>(Numero(10)));
          if (Numero(4) == 0) Clicca(Uno<QCheckBox>(*finestre.Impianto(), "chkSim"));
        }
        break;
      default: {
        static constexpr const char* voci[] = {"mnuPlcRun",  "mnuPlcRun",  "mnuPlcStop",
                                               "mnuPlcStep", "mnuPlcCont", "mnuPLCCiclo",
                                               "mnuPLCPiu",  "mnuPLCPiu",  "mnuPLCPiu"};
        QAction& voce = Azione(pannello, voci[Numero(std::size(voci) - 1)]);
        if (voce.isEnabled()) voce.trigger();
        if (Numero(5) == 0) Clicca(c.cmdRest);
      }
    }
  }

  void Mano() {
    if (Fili() == nullptr) return;
    Quadro& quadro = finestre.Impianto()->Disegno();
    QTest::keyClick(&quadro, Qt::Key_Tab);
    static constexpr Qt::Key tasti[] = {Qt::Key_Return, Qt::Key_Up, Qt::Key_Down};
    if (Numero(1) == 0)
      QTest::keyClick(&quadro, tasti[Numero(2)]);
    else if (Numero(1) == 0)
      QTest::keyPress(&quadro, Qt::Key_Space);
    else
      QTest::keyRelease(&quadro, Qt::Key_Space);
  }

  /// A value by hand, as far as the watch window lets one.
  void Forza_A_Caso() {
    finestre.Mostra_Osserva();
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      auto* osserva = dynamic_cast<FrmOsserva*>(finestra);
      if (osserva == nullptr) continue;
      static constexpr const char* celle[] = {"M0.0",    "VW10", "Q0.1", "I0.0",
                                              "T37.Val", "AC0",  "VB3"};
      const auto cella = Leggi_Indirizzo(celle[Numero(std::size(celle) - 1)]);
      forzate += osserva->Forza_Cella(*cella, Numero(1)).empty();
    }
  }

  void Guasto_A_Caso() {
    if (Fili() == nullptr) return;
    auto* pannello_guasti = dynamic_cast<Pannello_Guasti*>(
        finestre.Impianto()->findChild<QWidget*>(QStringLiteral("Guasti")));
    ASSERT_NE(pannello_guasti, nullptr);
    const auto guasti = Guasti_Di(Fili()->Tabella(), Fili()->Ingressi_A_Riposo());
    const Guasto_Impianto& guasto = guasti[Numero(static_cast<unsigned>(guasti.size() - 1))];
    guasti_messi += pannello_guasti->Imposta(QString::fromStdString(guasto.Nome), Numero(1) == 0);
  }

  /// Back, forth, and on from there.
  void Passato_A_Caso() {
    static constexpr const char* voci[] = {
        "mnuRigaIndietro",    "mnuScansioneIndietro", "mnuSecondoIndietro", "mnuRigaAvanti",
        "mnuScansioneAvanti", "mnuPresente",          "mnuRiprendiDaQui",   "mnuRiprendiDaQui",
        "mnuPausa",           "mnuChiEStato"};
    QAction& voce = Azione(pannello, voci[Numero(std::size(voci) - 1)]);
    if (!voce.isEnabled()) return;
    voce.trigger();
    passati += registratore.Nel_Passato();
  }

  void Apri() {
    // Not as many as there are: with another plant a seed would no longer be the same session.
    constexpr unsigned ultimo = 17;
    finestre.Apri_Impianto(static_cast<int>(Numero(ultimo)));
  }
  void Chiudi() {
    finestre.Impianto()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  int Cedi() {
    if (plc.Hook.Adesso != Vissuto::Presente) return 1'000'000;
    Tempo();
    if (Senza_Caso) return 1;
    if (Numero(3) == 0) Mossa();
    if (--rimaste_ <= 0 || Numero(50) == 0) plc.Entra(Comando_Corsa::Pausa);
    return static_cast<int>(1 + Numero(20));
  }

  std::mt19937 caso_;
  Iscrizione cessione_;
  int rimaste_ = 0;
};

}  // namespace tavorno::prova
