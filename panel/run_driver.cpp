// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/run_driver.h"

#include <QCoreApplication>
#include <algorithm>
#include <thread>

namespace tavorno {

namespace {

constexpr std::chrono::milliseconds una_scansione{1};

std::int64_t In_Millisecondi(std::chrono::nanoseconds istante) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(istante).count();
}

}  // namespace

Guida_Corsa::Guida_Corsa(Plc& plc, std::function<void()> aggiorna) : plc_(plc) {
  cronometro_.start();
  cessione_ = plc_.Hook.Ascolta_Cedi([this] { Cedi(); }, Righe_Per_Sguardo);

  // A stopped CPU has a living plant, a cover that slides and blinking lamps: they need the clock.
  clock_a_riposo_.setTimerType(Qt::PreciseTimer);
  clock_a_riposo_.setInterval(A_Riposo);
  clock_a_riposo_.callOnTimeout([this] { Porta_Al_Presente(Adesso()); });
  clock_a_riposo_.start();

  schermo_.setTimerType(Qt::PreciseTimer);
  schermo_.setInterval(Schermo);
  schermo_.callOnTimeout(std::move(aggiorna));
  schermo_.start();
}

void Guida_Corsa::Ferma() {
  clock_a_riposo_.stop();
  schermo_.stop();
}

void Guida_Corsa::Porta_Al_Presente(Istante adesso) {
  plc_.Tempo.Porta_A(In_Millisecondi(adesso));
}

void Guida_Corsa::Cedi() {
  Istante adesso = Adesso();
  if (plc_.PC == 0) {
    adesso = Inizia_Scansione(adesso);
  } else if (adesso - eventi_ >= Eventi || plc_.Tempo.Prossimo() <= In_Millisecondi(adesso)) {
    riposo_.Da_Capo();  // something is about to happen in the middle of a scan
  }
  Porta_Al_Presente(adesso);
  if (adesso - eventi_ >= Eventi) {
    QCoreApplication::processEvents();
    eventi_ = Adesso();
  }
  if (plc_.PC == 0) riposo_.Riposa();
}

/// The scan before is done and the next one would begin. Returns the present instant.
Guida_Corsa::Istante Guida_Corsa::Inizia_Scansione(Istante adesso) {
  const bool una_in_piu = plc_.N_Cicli == cicli_visti_ + 1;
  cicli_visti_ = plc_.N_Cicli;
  if (!Attesa || plc_.Modo_Run != Modo::Cont || !una_in_piu)
    riposo_.Da_Capo();
  else if (riposo_.Scansione_Fatta(0))
    return Riposa(adesso);
  const Istante fine = scansione_ + una_scansione;
  if (Attesa && adesso < fine) {
    std::this_thread::sleep_for(fine - adesso);
    adesso = Adesso();
  }
  scansione_ = adesso;
  return adesso;
}

/// Sleeps up to the next tick or the next round of window events, again and again while neither
/// changes anything for the program, and counts the scans that would have been run meanwhile.
Guida_Corsa::Istante Guida_Corsa::Riposa(Istante adesso) {
  do {
    const Istante evento = std::chrono::milliseconds{
        std::min(plc_.Tempo.Prossimo(), In_Millisecondi(eventi_ + Eventi) + 1)};
    const Istante fine = std::max(evento, scansione_ + una_scansione);
    if (adesso < fine) std::this_thread::sleep_for(fine - adesso);
    adesso = Adesso();
    const auto scansioni = riposo_.Saltabili((adesso - scansione_) / una_scansione);
    if (scansioni < 1) break;
    scansione_ += scansioni * una_scansione;
    Porta_Al_Presente(adesso);
    riposo_.Salta(scansioni);
    cicli_visti_ = plc_.N_Cicli;
    if (adesso - eventi_ >= Eventi) {
      QCoreApplication::processEvents();
      eventi_ = adesso = Adesso();
    }
  } while (Attesa && riposo_.Riposa());
  return adesso;
}

}  // namespace tavorno
