// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ladder/diagram.h"

// Diagrams as `Disegna` gives them, whatever a change has left behind.
namespace tavorno {

/// What stands where nothing is filled in: the line checker refuses it.
inline constexpr const char* operando_mancante = "?";

Elemento Contatto_Vuoto();
Nodo Uscita_Vuota();

/// Without empty branches, wires that lead nowhere and points with a single way on; a wire without
/// contacts and a rung without outputs get one that is not filled in.
void Riordina(Piolo& piolo);

/// Why a diagram in order cannot be written as a list and drawn again as it is, Italian, UTF-8;
/// empty: it can.
std::string Impedimento(const Diagramma& diagramma);

}  // namespace tavorno
