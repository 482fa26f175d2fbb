// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/clock.h"

#include <algorithm>
#include <utility>

namespace tavorno {

void Orologio::Iscrivi(Temporizzatore* timer) {
  timer_.push_back(timer);
}

void Orologio::Cancella(Temporizzatore* timer) {
  std::erase(timer_, timer);
  Ricalcola();
}

void Orologio::Ricalcola() {
  prossimo_ = Mai;
  for (const Temporizzatore* timer : timer_) prossimo_ = std::min(prossimo_, timer->scadenza_);
}

/// The timer that is due first, not later than `limite`; of several the one made first.
Temporizzatore* Orologio::Scaduto(std::int64_t limite) const {
  Temporizzatore* primo = nullptr;
  for (Temporizzatore* timer : timer_) {
    if (timer->scadenza_ <= limite && (!primo || timer->scadenza_ < primo->scadenza_))
      primo = timer;
  }
  return primo;
}

void Orologio::Avanza_Con_Tick(std::int64_t fino_a) {
  in_tick_ = true;
  // A tick may switch, add or remove timers, itself included, so nothing is remembered across it.
  struct Fine {
    Orologio& orologio;
    ~Fine() { orologio.in_tick_ = false; }
  } fine{*this};
  while (Temporizzatore* timer = Scaduto(fino_a)) {
    adesso_ = std::max(adesso_, timer->scadenza_);
    timer->scadenza_ += timer->intervallo_;
    const std::function<void()> tick = timer->tick_;  // the timer may not outlive its own tick
    Ricalcola();
    tick();
  }
  adesso_ = fino_a;
  Ricalcola();
}

void Orologio::Porta_A(std::int64_t istante) {
  if (in_tick_ || istante <= adesso_) return;
  // Periods slept through are dropped: of each timer only the last due instant stays.
  for (Temporizzatore* timer : timer_) {
    if (timer->scadenza_ < istante)
      timer->scadenza_ += (istante - timer->scadenza_) / timer->intervallo_ * timer->intervallo_;
  }
  Ricalcola();
  Avanza(istante - adesso_);
}

Temporizzatore::Temporizzatore(Orologio& orologio, int intervallo, std::function<void()> tick)
    : orologio_(orologio), intervallo_(std::max(1, intervallo)), tick_(std::move(tick)) {
  orologio_.Iscrivi(this);
}

Temporizzatore::~Temporizzatore() {
  orologio_.Cancella(this);
}

void Temporizzatore::Interval(int millisecondi) {
  millisecondi = std::max(1, millisecondi);
  if (millisecondi == intervallo_) return;
  intervallo_ = millisecondi;
  if (!Enabled()) return;
  scadenza_ = orologio_.Adesso() + intervallo_;
  orologio_.Ricalcola();
}

void Temporizzatore::Enabled(bool acceso) {
  if (acceso == Enabled()) return;
  scadenza_ = acceso ? orologio_.Adesso() + intervallo_ : Orologio::Mai;
  orologio_.Ricalcola();
}

}  // namespace tavorno
