// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

#include "ladder/diagram.h"

// Changes of a diagram, each from one diagram to another. A symbol is told by its number in the
// order in which the instructions run, which is also that of `Disegno::Riquadri`. What is not
// filled in yet has the operand "?", which the line checker refuses: a rung always has a contact
// and an output.
namespace tavorno {

/// A diagram after a change, or the old one and the reason why it cannot be changed so.
struct Modifica {
  Diagramma Nuovo;
  int Scelto = -1;     ///< the symbol that the change was about; -1: there is none any more
  std::string Motivo;  ///< Italian, UTF-8; empty: it was done

  bool Fatta() const { return Motivo.empty(); }
};

/// Where a new symbol goes.
enum class Verso : unsigned char { Prima, Dopo, Sotto };

/// Puts `passo` beside symbol `quale`, by its kind. A contact: before or behind a contact, in front
/// of an output, or below as a branch beside the symbols from `quale` to `fino`, which stand in one
/// series (of an output: beside all that stands in front of it). An output: in the place of an
/// output that is not filled in, below or before another, or below the wire behind a contact. A
/// counter takes the rung of an output that is not filled in and gives it its further wires; a line
/// that stands alone becomes a rung of its own. In an empty diagram a rung begins, whatever `quale`
/// is.
Modifica Inserisci(const Diagramma& diagramma, int quale, int fino, Verso verso,
                   const Passo_Scala& passo);

/// Another instruction in the place of symbol `quale`: a contact for a contact, an output for an
/// output. Its line, and so its comment, stays its own.
Modifica Cambia(const Diagramma& diagramma, int quale, const Passo_Scala& passo);

/// Takes a symbol away. The last contact or output of a rung leaves one that is not filled in, and
/// a rung in which nothing is filled in goes as a whole, as it does with its counter.
Modifica Cancella(const Diagramma& diagramma, int quale);

/// A rung with a contact and a coil that are not filled in, behind the one of `quale`; -1: at the
/// end. `Scelto` is the contact.
Modifica Nuovo_Piolo(const Diagramma& diagramma, int quale);

/// The whole rung of a symbol goes.
Modifica Cancella_Piolo(const Diagramma& diagramma, int quale);

bool Da_Completare(const Passo_Scala& passo);

}  // namespace tavorno
