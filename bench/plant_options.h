// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "bench/arguments.h"
#include "plants/exercises.h"
#include "recorder/hands.h"
#include "recorder/virtual_run.h"

// What the command line says of the plant. Wrong use throws `Uso_Errato`; where an exercise is a
// pointer, nullptr means a run without a plant.
namespace tavorno {

/// An exercise whose plant can be opened; `numero` is an index of `esercizi`.
const Esercizio& Scegli_Impianto(std::span<const Esercizio> esercizi, std::size_t numero);

/// The exercise of `--impianto`, or nullptr.
const Esercizio* Impianto_Di(const Argomenti& argomenti);

/// The movements of `--mani`, tried on a plant of their own so that a wrong name shows up before
/// anything runs.
std::vector<Gesto> Mani_Di(const Argomenti& argomenti, const Esercizio* esercizio);

/// The events of `--ingressi`; only analog ones beside a plant.
std::vector<Evento_Ingresso> Ingressi_Di(const Argomenti& argomenti, const Esercizio* esercizio);

/// "I0.1", or "I0.1 SB2" where the plant's table has a symbol for it.
std::string Nome_Punto(char area, int byte, int bit, const Esercizio* esercizio);

}  // namespace tavorno
