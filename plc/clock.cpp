// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/clock.h"

#include <algorithm>
#include <utility>

namespace tavorno {

namespace {
class Dentro_Un_Tick {
 public:
  explicit Dentro_Un_Tick(bool& segno) : segno_(segno) { segno_ = true; }
  ~Dentro_Un_Tick() { segno_ = false; }
  Dentro_Un_Tick(const Dentro_Un_Tick&) = delete;
  Dentro_Un_Tick& operator=(const Dentro_Un_Tick&) = delete;

 private:
  bool& segno_;
};
}  // namespace

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

/// The timer that is due first, of which there must be one; of several the one made first.
Temporizzatore* Orologio::Primo() const {
  return *std::ranges::min_element(timer_, {}, &Temporizzatore::scadenza_);
}

/// Runs the ticks due up to `limite`, each at its own instant, and leaves the clock there.
void Orologio::Avanza_Con_Tick(std::int64_t fino_a) {
  const Dentro_Un_Tick dentro(in_tick_);
  while (prossimo_ <= fino_a) {
    Temporizzatore* const timer = Primo();
    adesso_ = std::max(adesso_, timer->scadenza_);
    timer->scadenza_ += timer->intervallo_;
    Esegui(*timer);
  }
  adesso_ = fino_a;
}

void Orologio::Porta_A(std::int64_t istante) {
  if (in_tick_ || istante <= adesso_) return;
  adesso_ = istante;
  if (istante < prossimo_) return;
  // Of the periods slept through only the last one of each timer stays.
  for (Temporizzatore* timer : timer_) {
    if (timer->scadenza_ < istante)
      timer->scadenza_ += (istante - timer->scadenza_) / timer->intervallo_ * timer->intervallo_;
  }
  Ricalcola();
  const Dentro_Un_Tick dentro(in_tick_);
  while (prossimo_ <= istante) {
    Temporizzatore* const timer = Primo();
    timer->scadenza_ += timer->intervallo_;
    Esegui(*timer);
  }
}

std::int64_t Orologio::Prossimo(std::initializer_list<const Temporizzatore*> senza) const {
  std::int64_t primo = Mai;
  for (const Temporizzatore* timer : timer_) {
    if (std::ranges::find(senza, timer) == senza.end()) primo = std::min(primo, timer->scadenza_);
  }
  return primo;
}

std::vector<std::int64_t> Orologio::Scadenze() const {
  std::vector<std::int64_t> scadenze;
  for (const Temporizzatore* timer : timer_) {
    if (timer->Enabled()) scadenze.push_back(timer->Scadenza());
  }
  return scadenze;
}

void Orologio::Rimetti(std::int64_t istante) {
  for (Temporizzatore* timer : timer_) {
    if (timer->Enabled()) timer->scadenza_ += istante - adesso_;
  }
  adesso_ = istante;
  Ricalcola();
}

/// A tick may switch, add or remove timers, itself included, so nothing is remembered across it.
void Orologio::Esegui(const Temporizzatore& timer) {
  const std::function<void()> tick = timer.tick_;
  Ricalcola();
  tick();
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

void Temporizzatore::Rimetti(int intervallo, std::int64_t scadenza) {
  intervallo_ = std::max(1, intervallo);
  scadenza_ = scadenza;
  orologio_.Ricalcola();
}

void Temporizzatore::Enabled(bool acceso) {
  if (acceso == Enabled()) return;
  scadenza_ = acceso ? orologio_.Adesso() + intervallo_ : Orologio::Mai;
  orologio_.Ricalcola();
}

}  // namespace tavorno
