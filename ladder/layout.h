// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "ladder/diagram.h"
#include "ladder/symbols.h"

// A diagram on a grid. Columns run from the left rail, 0, to the right one, `Colonne`; the wire of
// a row runs along its middle. Equal diagrams give equal drawings.
namespace tavorno {

/// A point of the circuit: all wires that belong to one are live together. 0 is the left rail.
using Nodo_Elettrico = int;

/// Where a wire enters a counter's box.
struct Entrata {
  int Riga = 0;
  Nodo_Elettrico Nodo = 0;
};

/// A symbol and the cells that it covers.
struct Riquadro {
  int Colonna = 0, Riga = 0;
  int Larghezza = 1, Altezza = 1;  ///< columns, rows
  Passo_Scala Passo;
  Simbolo Come;
  /// What it hangs on; of a counter the topmost of its wires, of a line that stands alone the rail.
  Nodo_Elettrico Prima = 0;
  /// Behind a contact; 0 for what ends a wire.
  Nodo_Elettrico Dopo = 0;
  std::vector<Entrata> Entrate;  ///< of a counter, from top to bottom; else empty
};

/// A wire, along a row or between two rows at the left edge of a column.
struct Filo {
  int Colonna = 0, Riga = 0;
  int Colonna_Fine = 0, Riga_Fine = 0;
  Nodo_Elettrico Nodo = 0;
};

/// How a point gets its power: from any of `Da`, through `Elemento` where there is one.
struct Legame {
  std::vector<Nodo_Elettrico> Da;
  int Elemento = -1;  ///< index of a `Riquadro`, -1: plain wire
};

struct Disegno {
  int Colonne = 0, Righe = 0;
  std::vector<Riquadro> Riquadri;  ///< in the order in which the instructions run
  std::vector<Filo> Fili;
  std::vector<Legame> Legami;  ///< one for each point, each from points before it; of 0 it is empty
};

/// Places a network on the grid.
Disegno Impagina(const Diagramma& diagramma);

/// Which points are live. `passa` tells what leaves a contact, a NOT or an edge when `arriva` comes
/// in.
std::vector<bool> Correnti(const Disegno& disegno,
                           const std::function<bool(const Riquadro&, bool arriva)>& passa);

}  // namespace tavorno
