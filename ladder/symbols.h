// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavorno {

/// What a mnemonic is in a diagram.
enum class Ruolo : std::uint8_t {
  Contatto,   ///< lets the power pass while its operand says so
  Trasforma,  ///< NOT and the edges: makes new power of what arrives
  Pila,       ///< joins and splits wires; it is the shape of the diagram and no symbol in it
  Bobina,     ///< written between round brackets at the right rail
  Scatola,    ///< a box with its name and operands
  Contatore,  ///< a box with two or three wires
  Da_Solo,    ///< a line across the diagram without power: label, begin and end of a step
};

/// How a contact is joined to what stands before it.
enum class Attacco : std::uint8_t { Inizio, In_Serie, In_Parallelo };

struct Simbolo {
  Ruolo Cosa = Ruolo::Scatola;
  Attacco Come = Attacco::Inizio;  ///< contacts only
  std::string Base;                ///< contacts only: the mnemonic that begins a branch
  /// What stands between the two strokes of a contact or the brackets of a coil: "", "/", "I",
  /// "==B"; the box's name.
  std::string Segno;
  int Ingressi = 1;  ///< wires of a counter
  /// What stands on the logic stack behind it is not known: a call leaves what its procedure
  /// leaves, a label is reached from elsewhere.
  bool Lascia_Altro = false;
};

/// The symbol of a mnemonic in capitals. What nothing is told of is a box with its own name.
Simbolo Simbolo_Di(std::string_view istr);

/// The mnemonic of a contact, given as `Simbolo::Base`, joined in another way: "LDN" in series is
/// "AN".
std::string Attaccato(const std::string& base, Attacco come);

}  // namespace tavorno
