// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "awl/symbols.h"
#include "plc/instructions.h"

// What the editor offers and tells while a line is being written.
namespace tavorno {

/// The mnemonics that begin so, in capitals and sorted, without the unsupported ones. None for an
/// empty text, nor for a whole mnemonic without operands: its line is complete.
std::vector<std::string> Completamenti(std::string_view inizio);

/// Two lines of Italian, UTF-8: the mnemonic with the operands that it takes, and what it does.
std::string Suggerimento(const Istruzione& istruzione);

/// The line checker lets it through and the CPU stops there.
bool Ferma_La_CPU(const Istruzione& istruzione);

/// What may stand in the place of a word of a line.
struct Proposte {
  std::size_t Inizio = 0;          ///< column of the word, in bytes from 0
  std::vector<std::string> Testi;  ///< sorted; the first word is what to write, the rest a remark

  static std::string_view Da_Scrivere(std::string_view testo);
};

/// Mnemonics, or operands of the plant that the instruction takes, that begin as the word does that
/// ends at `colonna`. None in a comment and none for an operand that is complete; for an empty word
/// only where an operand goes and when `anche_vuota`. UTF-8.
Proposte Proponi(std::string_view linea, std::size_t colonna, const Simboli& simboli,
                 bool anche_vuota);

/// The operand that the word at `colonna` is, with what the plant calls it, UTF-8: "I0.0  SB1
/// Pulsante"; empty for a word that the plant does not know.
std::string Simbolo_In(std::string_view linea, std::size_t colonna, const Simboli& simboli);

/// What the plant calls the operands of a line, UTF-8, for the end of that line: "SB1  Pulsante";
/// with the operands in front where there are several. Empty where it calls them nothing.
std::string Nota_Simboli(std::string_view linea, const Simboli& simboli);

}  // namespace tavorno
