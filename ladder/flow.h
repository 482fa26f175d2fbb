// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "ladder/layout.h"
#include "plc/memory.h"

// What a network shows of a CPU, read from its memory whenever somebody looks. The CPU knows
// nothing of it, and no line of a program takes longer.
namespace tavorno {

struct Flusso_Rete {
  std::vector<bool> Vivi;  ///< by point of the circuit
  /// By symbol: a contact lets power pass (whether some arrives or not), a NOT or an edge gives
  /// some out, a coil or box acts: it gets power and its section is enabled.
  std::vector<bool> Attivi;

  bool operator==(const Flusso_Rete&) const = default;
};

/// Whether the CPU holds these instructions at their rows. Only then does `Flusso_Di` mean
/// anything.
bool In_Cpu(std::span<const Passo_Scala> passi, const Memoria& cpu);

/// Of an edge what it gave out when it was last executed; everything else as the memory stands. A
/// contact whose operand cannot be read lets nothing pass. Never throws.
Flusso_Rete Flusso_Di(const Disegno& disegno, const Memoria& cpu);

/// The present number of an operand that holds one, "" for bits, constants and names; of a box's
/// timer or counter its current value. `operando` from 0. Never throws `Fatale`.
std::string Valore_Di(const Riquadro& riquadro, std::size_t operando, const Memoria& cpu);

}  // namespace tavorno
