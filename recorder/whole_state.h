// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "plants/link.h"
#include "plc/plc.h"

namespace tavorno {

/// Everything that a session holds, each thing with its name: memory, program, run state, clocks
/// and bars of the CPU, every figure of the plant (nullptr: none is open) and its wires. Equal
/// lists, equal sessions.
using Stato_Intero = std::vector<std::pair<std::string, std::string>>;
Stato_Intero Elenca_Stato(const Plc& plc, Collegamento* impianto);
/// The same without names, as bytes that only tell whether two states are equal: made in a small
/// part of the time.
std::string Byte_Di_Stato(const Plc& plc, Collegamento* impianto);

/// The first thing that differs: "VW10: 3 invece di 4"; empty when nothing does.
std::string Prima_Differenza(const Stato_Intero& uno, const Stato_Intero& altro);

}  // namespace tavorno
