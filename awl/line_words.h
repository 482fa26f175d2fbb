// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "plc/instructions.h"

// A line of a text as it stands in the editor: its words by their columns.
namespace tavorno {

/// The lines of a text without their ends, CR LF, CR or LF; what stands behind the last end is a
/// line too, even when empty, as it is in an editor. Views into the text.
std::vector<std::string_view> Linee(std::string_view testo);

/// A word by its columns, in bytes from 0.
struct Parola {
  std::size_t Inizio = 0;
  std::size_t Fine = 0;  ///< column behind it

  bool Vuota() const { return Inizio == Fine; }
  std::string_view Di(std::string_view linea) const { return linea.substr(Inizio, Fine - Inizio); }
  bool operator==(const Parola&) const = default;
};

/// The first word of a line: it ends at a blank, a tab or a comment. Empty when the line has none.
Parola Trova_Prima_Parola(std::string_view linea);

/// The instruction that a line begins with, as the reader will see it; nullptr for a line without
/// one and for a word that nobody knows.
const Istruzione* Istruzione_Di(std::string_view linea);

/// The operands of an instruction line, between blanks, tabs and commas, up to the comment; none
/// for a comment or a NETWORK line.
std::vector<Parola> Operandi_Di(std::string_view linea);

}  // namespace tavorno
