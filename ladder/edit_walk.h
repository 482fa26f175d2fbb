// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "ladder/diagram.h"

// The symbols of a diagram in the order in which the instructions run.
namespace tavorno {

/// Where a symbol stands in a diagram that can be changed.
struct Posto_Simbolo {
  std::size_t Piolo = 0;
  Serie* In_Serie = nullptr;  ///< of a contact; nullptr: it is an output
  std::size_t Indice = 0;     ///< in `In_Serie`
  bool In_Ramo = false;       ///< that series is a branch of a parallel
  /// The table with the node of an output, or of the condition that a contact stands in; nullptr
  /// for a contact on a wire from the rail.
  std::vector<Nodo>* Nodi = nullptr;
  std::size_t N_Nodo = 0;
  Serie* Davanti = nullptr;  ///< the stretch of wire that `Nodi` hangs on; of a contact no matter
};

int Quanti_Simboli(const Diagramma& diagramma);

// A number that no symbol has throws `Fatale`.
Passo_Scala Simbolo_Numero(const Diagramma& diagramma, int quale);
Posto_Simbolo Trova_Simbolo(Diagramma& diagramma, int quale);

void Per_Ogni_Simbolo(Piolo& piolo, const std::function<void(Passo_Scala&)>& fai);
void Per_Ogni_Simbolo(Diagramma& diagramma, const std::function<void(Passo_Scala&)>& fai);

}  // namespace tavorno
