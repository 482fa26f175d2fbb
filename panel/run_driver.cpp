// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/run_driver.h"

#include <QCoreApplication>
#include <thread>

namespace tavorno {

Guida_Corsa::Guida_Corsa(Plc& plc, std::function<void()> aggiorna) : plc_(plc) {
  cronometro_.start();
  plc_.Hook.Cedi = [this] { Cedi(); };

  // A stopped CPU has a living plant, a cover that slides and blinking lamps: they need the clock.
  riposo_.setTimerType(Qt::PreciseTimer);
  riposo_.setInterval(A_Riposo);
  riposo_.callOnTimeout([this] { Porta_Al_Presente(); });
  riposo_.start();

  schermo_.setTimerType(Qt::PreciseTimer);
  schermo_.setInterval(Schermo);
  schermo_.callOnTimeout(std::move(aggiorna));
  schermo_.start();
}

Guida_Corsa::~Guida_Corsa() {
  plc_.Hook.Cedi = nullptr;
}

void Guida_Corsa::Ferma() {
  riposo_.stop();
  schermo_.stop();
}

void Guida_Corsa::Porta_Al_Presente() {
  plc_.Tempo.Porta_A(std::chrono::duration_cast<std::chrono::milliseconds>(Adesso()).count());
}

void Guida_Corsa::Cima() {
  const Istante fine = scansione_ + std::chrono::milliseconds{1};
  if (Attesa && Adesso() < fine) std::this_thread::sleep_for(fine - Adesso());
  scansione_ = Adesso();
  Guarda();
}

void Guida_Corsa::Guarda() {
  righe_ = 0;
  Porta_Al_Presente();
  if (Adesso() - eventi_ < Eventi) return;
  QCoreApplication::processEvents();
  eventi_ = Adesso();
}

}  // namespace tavorno
