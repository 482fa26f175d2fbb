// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "trace/address.h"

namespace tavorno {

/// Whether a value may be set by hand now: the CPU is off, or on and waits for the next step, in
/// Step, at a stop or in a pause. Nothing is set in the past.
bool Si_Puo_Forzare(const Plc& plc);

/// Sets a cell by hand, once: the program may write it again. The only place where somebody who
/// watches cells changes one. Empty when it was done; else it says in Italian why not, and nothing
/// is changed.
std::string Forza(Plc& plc, const Indirizzo& indirizzo, double valore);

}  // namespace tavorno
