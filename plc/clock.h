// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <vector>

namespace tavorno {

class Temporizzatore;

/// The clock on which every timer of the CPU, the bars and the plants runs. Times are milliseconds
/// since the clock was made. Whoever owns the clock moves it: the bench by steps of virtual time,
/// the window to the present.
class Orologio {
 public:
  static constexpr std::int64_t Mai = std::numeric_limits<std::int64_t>::max();

  std::int64_t Adesso() const { return adesso_; }
  /// When the next timer is due; `Mai` when none runs.
  std::int64_t Prossimo() const { return prossimo_; }

  /// The same among those that are not in `senza`.
  std::int64_t Prossimo(std::initializer_list<const Temporizzatore*> senza) const;

  /// When each timer that runs is due, in the order of their making.
  std::vector<std::int64_t> Scadenze() const;

  /// Virtual time: lets `millisecondi` pass and runs every tick on its way, in order of time.
  /// Inside a tick it does nothing, since no tick runs inside another.
  void Avanza(std::int64_t millisecondi) {
    if (in_tick_) return;
    if (adesso_ + millisecondi < prossimo_) [[likely]]
      adesso_ += millisecondi;
    else
      Avanza_Con_Tick(adesso_ + millisecondi);
  }

  /// Puts the clock at `istante`, back too, without a tick: each timer keeps what is left to it.
  /// Not inside a tick.
  void Rimetti(std::int64_t istante);

  /// Real time: moves to `istante`, and every tick runs there. A timer that slept through several
  /// periods ticks once; an instant in the past changes nothing.
  void Porta_A(std::int64_t istante);

 private:
  friend class Temporizzatore;

  void Iscrivi(Temporizzatore* timer);
  void Cancella(Temporizzatore* timer);
  void Ricalcola();
  void Avanza_Con_Tick(std::int64_t fino_a);
  void Esegui(const Temporizzatore& timer);
  Temporizzatore* Primo() const;

  std::int64_t adesso_ = 0;
  std::int64_t prossimo_ = Mai;
  bool in_tick_ = false;
  std::vector<Temporizzatore*> timer_;  // in the order of their making
};

/// One periodic timer. It enrols with its clock when made and leaves it when destroyed, so a plant
/// carries its timers as members. Off at first.
class Temporizzatore {
 public:
  /// `intervallo` in milliseconds, at least 1 (smaller values count as 1).
  Temporizzatore(Orologio& orologio, int intervallo, std::function<void()> tick);
  ~Temporizzatore();
  Temporizzatore(const Temporizzatore&) = delete;
  Temporizzatore& operator=(const Temporizzatore&) = delete;

  int Interval() const { return intervallo_; }
  bool Enabled() const { return scadenza_ != Orologio::Mai; }

  /// When the next tick is due; `Orologio::Mai` while it is off.
  std::int64_t Scadenza() const { return scadenza_; }
  /// As it stood at another time, without a new period.
  void Rimetti(int intervallo, std::int64_t scadenza);

  /// A different interval starts a new period; the same one changes nothing.
  void Interval(int millisecondi);
  /// Switching on starts a new period; switching on what is on changes nothing.
  void Enabled(bool acceso);

 private:
  friend class Orologio;

  Orologio& orologio_;
  int intervallo_;
  std::int64_t scadenza_ = Orologio::Mai;
  std::function<void()> tick_;
};

}  // namespace tavorno
