// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// A network of instructions as a ladder diagram: a value without places on a drawing. Power comes
// from the rail at the left, runs through contacts and ends in coils and boxes.
namespace tavorno {

/// One instruction as a diagram holds it. Texts are bytes of the code page, in capitals.
struct Passo_Scala {
  /// Mnemonic. A contact has the one that begins a branch: "LD", "LDN", "LDB=".
  std::string Istr;
  std::vector<std::string> Operandi;
  /// Row of the program, or of whatever list it came from; -1 when it is new. Not part of the
  /// value.
  int Riga = -1;

  bool operator==(const Passo_Scala& altro) const {
    return Istr == altro.Istr && Operandi == altro.Operandi;
  }
};

struct Elemento;
/// Elements one behind the other; the power that leaves one enters the next.
using Serie = std::vector<Elemento>;

/// A contact, what turns the power around (NOT, EU, ED), or branches side by side.
struct Elemento {
  Passo_Scala Passo;        ///< empty for branches
  std::vector<Serie> Rami;  ///< two or more, or none

  bool Parallelo() const { return !Rami.empty(); }
  bool operator==(const Elemento&) const = default;
};

/// A point of the diagram behind some elements. Either one coil or box stands there, or the wire
/// goes on to several points, which are served from top to bottom.
struct Nodo {
  Serie Condizione;
  Passo_Scala Uscita;         ///< empty where the wire goes on
  std::vector<Nodo> Seguito;  ///< empty behind a coil or box

  bool operator==(const Nodo&) const = default;
};

/// One rung. Its wires begin at the rail: none for a line that stands alone (a label, the begin or
/// end of a step), one as a rule, two or three for the inputs of a counter, whose box is the only
/// output then.
struct Piolo {
  std::vector<Serie> Ingressi;
  std::vector<Nodo> Seguito;

  bool operator==(const Piolo&) const = default;
};

/// A whole network, rungs from top to bottom.
using Diagramma = std::vector<Piolo>;

}  // namespace tavorno
