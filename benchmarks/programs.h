// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "plc/plc.h"

// The measured programs: lines of AWL without the closing MEND.
namespace tavorno::misura {

using Programma = std::vector<std::string>;

/// The same rung of eight lines again and again.
Programma Bit_Regolare(int righe);
/// Contacts, stack operations and outputs in random order and on random operands, always the same
/// for one length. A regular program flatters a branch predictor; this one does not.
Programma Bit_Casuale(int righe);
Programma Temporizzatori(int righe);
Programma Aritmetica(int righe);
Programma Confronti(int righe);
Programma Salti(int righe);
/// What a larger exercise looks like: bit logic, timers, counters, comparisons, moves, sums, jumps.
Programma Misto(int righe);

/// Compiles and links `programma` with a closing MEND, and gives Run in mode Step.
void Carica(Plc& plc, Programma programma);

}  // namespace tavorno::misura
