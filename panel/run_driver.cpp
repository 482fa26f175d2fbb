// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/run_driver.h"

#include <QCoreApplication>
#include <thread>

namespace tavorno {

Guida_Corsa::Guida_Corsa(Plc& plc, std::function<void()> aggiorna) : plc_(plc) {
  cronometro_.start();
  cessione_ = plc_.Hook.Ascolta_Cedi([this] { Cedi(); }, Righe_Per_Sguardo);

  // A stopped CPU has a living plant, a cover that slides and blinking lamps: they need the clock.
  riposo_.setTimerType(Qt::PreciseTimer);
  riposo_.setInterval(A_Riposo);
  riposo_.callOnTimeout([this] { Porta_Al_Presente(Adesso()); });
  riposo_.start();

  schermo_.setTimerType(Qt::PreciseTimer);
  schermo_.setInterval(Schermo);
  schermo_.callOnTimeout(std::move(aggiorna));
  schermo_.start();
}

void Guida_Corsa::Ferma() {
  riposo_.stop();
  schermo_.stop();
}

void Guida_Corsa::Porta_Al_Presente(Istante adesso) {
  plc_.Tempo.Porta_A(std::chrono::duration_cast<std::chrono::milliseconds>(adesso).count());
}

void Guida_Corsa::Cedi() {
  Istante adesso = Adesso();
  if (plc_.PC == 0) {
    const Istante fine = scansione_ + std::chrono::milliseconds{1};
    if (Attesa && adesso < fine) {
      std::this_thread::sleep_for(fine - adesso);
      adesso = Adesso();
    }
    scansione_ = adesso;
  }
  Porta_Al_Presente(adesso);
  if (adesso - eventi_ < Eventi) return;
  QCoreApplication::processEvents();
  eventi_ = Adesso();
}

}  // namespace tavorno
