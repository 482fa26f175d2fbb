// SPDX-License-Identifier: GPL-3.0-or-later
// The panel as a mirror of the CPU: reads, never commands.
#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QToolButton>
#include <utility>

#include "panel/controls/cpu_front.h"
#include "panel/panel_window.h"
#include "panel/program_list.h"
#include "panel/status_bar.h"
#include "plc/number_text.h"
#include "widgets/colours.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

void Scrivi(QLabel& etichetta, const QString& testo) {
  if (etichetta.text() != testo) etichetta.setText(testo);
}

}  // namespace

void FrmPLC::Aggiorna() {
  const unsigned segni = plc_.Prendi_Segni();
  if (segni & Segno_Comandi) Mostra_Comandi();
  if (segni & Segno_Lista) c_.listSrc->Scegli(plc_.Lista_Scelta);
  if (segni & Segno_PC) Scrivi(*c_.etPc, QString::number(plc_.etPc));
  if (segni & Segno_Tempo) Scrivi(*c_.etTime, Q(plc_.etTime));
  if (segni & Segno_Immagini) Mostra_Immagini();
  if (segni & Segno_Analogici) Mostra_Analogici();
  if (c_.chkVs->isChecked()) Mostra_Pila();
  if (c_.chkVal->isChecked()) Mostra_Valori();
  if (Durate) Mostra_Durate();
}

/// The label shows milliseconds, and most programs need less than one.
void FrmPLC::Mostra_Durate() {
  constexpr int fra_due = 250;  // ms, to be read
  if (durate_dette_.isValid() && !durate_dette_.hasExpired(fra_due)) return;
  const Tempo_Scansioni durate = Durate();
  if (durate.Quante == scansioni_dette_) return;
  durate_dette_.start();
  scansioni_dette_ = durate.Quante;
  const auto micro = [](Tempo_Scansioni::Durata durata) {
    constexpr double nanosecondi = 1000;
    return QLocale(QLocale::Italian)
        .toString(static_cast<double>(durata.count()) / nanosecondi, 'f', 1);
  };
  const QString media = micro(durate.Media());
  const QString massima = micro(durate.Massima);
  c_.etTime->setToolTip(
      durate.Quante == 0
          ? QString()
          : QStringLiteral("Ultimo ciclo: %1 µs\nMedia di %2 cicli: %3 µs\nIl più lungo: %4 µs\n"
                           "È il tempo del solo programma, senza le attese")
                .arg(micro(durate.Ultima), QLocale(QLocale::Italian).toString(durate.Quante), media,
                     massima));
  c_.etDurate->setText(durate.Quante == 0
                           ? QString()
                           : QStringLiteral("Ciclo: %1 µs, max %2 µs").arg(media, massima));
  c_.etDurate->setToolTip(c_.etTime->toolTip());
  // On a narrow panel the four need the bar; the label of the scan time has the tip.
  static_cast<Barra_Stato*>(statusBar())->Adatta();
}

void FrmPLC::Guarda_Valori(bool accesi) {
  flusso_.Dimentica();
  flusso_ritrovato_.reset();
  passo_visto_ = {plc_.Lista_Scelta, plc_.PC, plc_.N_Cicli};
  if (!accesi) return c_.listSrc->Mostra_Stati({});
  c_.listSrc->Mostra_Stati([this](int riga) {
    if (riga > plc_.NRighe) return Stato_Riga{};
    const Stato_Operandi operandi = Leggi_Operandi(plc_, plc_.Prog[riga]);
    return Stato_Riga{Q(operandi.Testo), operandi.Acceso,
                      static_cast<Stato_Riga::Flusso>(flusso_.Di(riga))};
  });
  Mostra_Valori();
}

/// The flow of a moment that nobody watched: of one in the past, of the present that was come back
/// to, of a pause in the middle of a scan. False: the CPU is at no such moment.
bool FrmPLC::Ritrova_Flusso() {
  const bool passato = plc_.Hook.Adesso == Vissuto::Passato;
  const bool tornato = std::exchange(era_passato_, passato) && !passato;
  if (!Flusso_Al_Momento || plc_.In_Giro() != Giro::Nessuno ||
      !(passato || tornato || plc_.In_Pausa())) {
    flusso_ritrovato_.reset();
    return false;
  }
  if (std::exchange(flusso_ritrovato_, plc_.Righe_Fatte) != plc_.Righe_Fatte || tornato)
    flusso_.Prendi(Flusso_Al_Momento());
  return true;
}

/// In a run the flow of one scan in so many is watched; a CPU that waits is watched at each step.
void FrmPLC::Mostra_Valori() {
  if (plc_.Hook.Adesso == Vissuto::Replica) return;  // on the way to the moment that will be shown
  constexpr int giri_fra_due = 5;
  const bool aspetta = plc_.PLC_Acceso && plc_.Attivi.CmdStep;
  const Posto_CPU adesso{plc_.Lista_Scelta, plc_.PC, plc_.N_Cicli};
  const bool passato = plc_.Hook.Adesso == Vissuto::Passato;
  if (!plc_.PLC_Acceso) {
    flusso_.Dimentica();
    flusso_ritrovato_.reset();
    era_passato_ = passato;
  } else if (Ritrova_Flusso()) {
    giri_di_valori_ = 0;
  } else if (passato) {
    flusso_.Dimentica();
  } else if (aspetta) {
    flusso_.Fermo();
    // Where nothing was executed yet, the line in the list is the one that is next.
    if (adesso != passo_visto_ && plc_.Lista_Scelta != plc_.PC) flusso_.Passo();
  } else if (++giri_di_valori_ >= giri_fra_due) {
    giri_di_valori_ = 0;
    flusso_.Chiedi();
  }
  passo_visto_ = adesso;
  const bool ferma = aspetta || (plc_.PLC_Acceso && (passato || plc_.In_Pausa()));
  c_.listSrc->Aggiorna_Stati(ferma ? plc_.PC : -1);
}

void FrmPLC::Specchia_Scelte(const std::array<std::string, 2>& interruttori) {
  // Only one of the two at the second bar is in use; the other one keeps its place.
  SimC& contraves = c_.Fronte->Sim_C();
  const bool ruote = contraves.isVisibleTo(c_.Fronte);
  c_.Fronte->Sim_I(0).Mostra(interruttori[0]);
  if (ruote)
    contraves.Mostra(interruttori[1]);
  else
    c_.Fronte->Sim_I(1).Mostra(interruttori[1]);
  const Opzioni& scelte = plc_.Scelte;
  const struct {
    QAbstractButton* tasto;
    bool acceso;
  } tasti[] = {{c_.chkList, scelte.chkList},
               {c_.chkIP, scelte.chkIP},
               {c_.chkStop, scelte.chkStop},
               {c_.chkSol, scelte.chkSol},
               {c_.opzAI[0], scelte.opzAI == Scala::Volt_10},
               {c_.opzAI[1], scelte.opzAI == Scala::mA_20},
               {c_.opzAQ[0], scelte.opzAQ == Scala::Volt_10},
               {c_.opzAQ[1], scelte.opzAQ == Scala::mA_20}};
  for (const auto& riga : tasti) {
    const QSignalBlocker zitto(riga.tasto);
    riga.tasto->setChecked(riga.acceso);
  }
  c_.picII->setVisible(scelte.chkIP);
  c_.chkSol->setEnabled(!scelte.chkStop);
  c_.chkStop->setEnabled(!scelte.chkSol);
  const QSignalBlocker zitto_stop(c_.txtStop), zitto_scansioni(c_.txtNC);
  c_.txtStop->setText(QString::number(scelte.txtStop));
  c_.txtNC->setText(QString::number(scelte.txtNC));
  for (std::size_t i = 0; i < 2; ++i) {
    const QSignalBlocker zitto(c_.SlidP[i]);
    const int valore = plc_.Mem_SM[28 + static_cast<int>(i)].Val_B;
    c_.SlidP[i]->setValue(valore);
    c_.etPa[i]->setText(QString::number(valore));
  }
  c_.Fronte->Aggiorna_Vano();
}

void FrmPLC::Mostra_Comandi() {
  if (acceso_mostrato_ != plc_.PLC_Acceso) PLC_Stato();
  const Comandi& attivi = plc_.Attivi;
  a_.mnuPlcRun->setEnabled(attivi.mnuPlcRun);
  a_.mnuPlcStop->setEnabled(attivi.mnuPlcStop);
  const struct {
    QAction* voce;
    QAction* tasto;
    bool attivo;
    Modo modo;
  } modi[] = {{a_.mnuPlcCont, a_.tB1.Cont, attivi.mnuPlcCont, Modo::Cont},
              {a_.mnuPLCCiclo, a_.tB1.Ciclo, attivi.mnuPlcCiclo, Modo::Ciclo},
              {a_.mnuPlcStep, a_.tB1.Step, attivi.mnuPlcStep, Modo::Step}};
  for (const auto& riga : modi) {
    for (QAction* azione : {riga.voce, riga.tasto}) {
      azione->setEnabled(riga.attivo);
      azione->setChecked(riga.modo == plc_.Modo_Run);
    }
  }
  a_.tB1.Run->setChecked(plc_.PLC_Acceso);
  a_.tB1.Stop->setChecked(!plc_.PLC_Acceso);
  a_.mnuPLCPiu->setEnabled(attivi.CmdStep);
  c_.CmdStep->setEnabled(attivi.CmdStep);
  c_.cmdRest->setEnabled(attivi.cmdRest);
  c_.SSTb3->setCurrentIndex(attivi.SSTb3);
  c_.chkList->setChecked(plc_.Scelte.chkList);
  Mostra_Modo();
  Mostra_Tempo_Acceso();
}

void FrmPLC::PLC_Stato() {
  const bool acceso = plc_.PLC_Acceso != 0;
  acceso_mostrato_ = plc_.PLC_Acceso;
  c_.Fronte->Stato(acceso);
  if (legami_.Corsa_Cambiata) legami_.Corsa_Cambiata(acceso);
  for (QAction* azione :
       {a_.mnuFileNew, a_.mnuFileOpen, a_.mnuFileEdit, a_.tB1.New, a_.tB1.Open, a_.tB1.Save})
    azione->setEnabled(!acceso);
}

void FrmPLC::Mostra_Modo() {
  static constexpr const char* nomi[] = {"Continuo", "Step", "Singolo Ciclo"};
  Scrivi(*c_.stB[2], QStringLiteral("%1  -  %2")
                         .arg(plc_.PLC_Acceso ? QStringLiteral("RUN") : QStringLiteral("STOP"),
                              QString::fromUtf8(nomi[static_cast<int>(plc_.Modo_Run)])));
}

void FrmPLC::Mostra_Tempo_Acceso() {
  Tingi(*c_.etTime, plc_.Scelte.chkList ? &colori::Tempo_Acceso : &colori::Tempo_Spento);
}

void FrmPLC::Mostra_Immagini() {
  for (std::size_t i = 0; i < 2; ++i) {
    Scrivi(*c_.etIPI[i], Q(plc_.etIPI[i]));
    Scrivi(*c_.etIPQ[i], Q(plc_.etIPQ[i]));
  }
}

void FrmPLC::Mostra_Pila() {
  const bool accesa = c_.chkVs->isChecked();
  for (std::size_t i = 0; i < c_.etS.size(); ++i) {
    Tingi(*c_.etS[i], accesa ? &colori::Pila : &colori::Pila_Spenta);
    Scrivi(*c_.etS[i], accesa ? QString::number(plc_.Stak[static_cast<int>(i)]) : QString());
  }
}

void FrmPLC::Mostra_Analogici() {
  for (std::size_t n = 0; n < 3; ++n) {
    const int canale = static_cast<int>(n);
    Scrivi(*c_.etAI[n], QString::number(plc_.Mem_AIW[2 * canale]));
    Scrivi(*c_.etAIV[n], Q(Formato(plc_.Volt_AI[canale], "0.0#")));
  }
  for (std::size_t n = 0; n < 2; ++n) {
    const int canale = static_cast<int>(n);
    Scrivi(*c_.etAQ[n], QString::number(plc_.Mem_AQW[2 * canale]));
    Scrivi(*c_.etAQV[n], Q(Formato(plc_.Volt_AQ[canale], "0.0#")));
  }
}

}  // namespace tavorno
