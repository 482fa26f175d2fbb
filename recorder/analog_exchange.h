// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "plc/plc.h"
#include "recorder/journal.h"

// A plant that reads analog words reads what the CPU's exchange, `Tick_timIO`, made of them. For it
// to be played again without the CPU the journal tells, as outputs behind the two bars, what that
// exchange finds and when it ticks.
namespace tavorno {

/// The plant of this exercise reads more of the CPU than its output bars.
bool Legge_Analogiche(int indice);

/// Writes down what has changed of it, and only where the clock gets as far as the exchange.
class Scambio_Annotato {
 public:
  /// Right before `tempo`, which moves the clock, is written.
  void Prima_Di(const Atto& tempo, const Plc& plc, Giornale& giornale);
  /// Who reads on from here knows nothing.
  void Da_Capo() { *this = {}; }

 private:
  std::optional<std::int64_t> fase_;  // of the timer in its period, -1 while it is off
  std::array<std::optional<std::int32_t>, 2> parole_;
};

/// An output of these, and none of the bars.
bool Dello_Scambio(const Atto& uscita);
/// Empty of doubt: its numbers are such as `Scambio_Annotato` writes.
bool Scambio_Possibile(const Atto& uscita);
/// The CPU's exchange becomes what it was.
void Rifai_Scambio(const Atto& uscita, Plc& plc);

/// Whether a journal tells of the exchange; the earliest version did not.
bool Racconta_Lo_Scambio(const Giornale& giornale);

}  // namespace tavorno
