// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "plants/link.h"
#include "plc/plc.h"

namespace tavorno {

/// Lets an entry in where it belongs: the CPU, the plant (nullptr: none is open), a forced cell.
/// Opening and closing a plant and a new program are not let in here.
void Fai_Entrare(const Atto& entrata, Plc& plc, Collegamento* impianto);

/// A command that would execute lines at once, as things are.
bool Fa_Correre(const Atto& entrata, const Plc& plc);

/// Sets a cell by hand, "VW10" or "Q0.1". False, and nothing enters, for an address that there is
/// not and for a value that does not fit.
bool Forza(Plc& plc, const std::string& indirizzo, double valore);

/// What is wrong with an entry that comes from a file, in Italian; empty when it can be let in.
std::string Motivo_Di_Rifiuto(const Atto& entrata, const Collegamento* impianto);

}  // namespace tavorno
