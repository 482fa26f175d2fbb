// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "plc/instructions.h"

// What the editor knows about the first word of a line. No window here.
namespace tavorno {

/// The first word of a line, by its columns: it ends at a blank, a tab or a comment. Empty when the
/// line has none.
struct Prima_Parola {
  std::size_t Inizio = 0;
  std::size_t Fine = 0;  ///< column behind it

  bool Vuota() const { return Inizio == Fine; }
};
Prima_Parola Trova_Prima_Parola(std::string_view linea);

/// The instruction that a line begins with, as the reader will see it; nullptr for a line without
/// one and for a word that nobody knows.
const Istruzione* Istruzione_Di(std::string_view linea);

/// The mnemonics that begin so, in capitals and sorted, without the unsupported ones. None for an
/// empty text, nor for a whole mnemonic without operands: its line is complete.
std::vector<std::string> Completamenti(std::string_view inizio);

/// Two lines of Italian, UTF-8: the mnemonic with the operands that it takes, and what it does.
std::string Suggerimento(const Istruzione& istruzione);

}  // namespace tavorno
