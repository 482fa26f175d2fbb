// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plc/instructions.h"

// What the editor offers and tells while a line is being written.
namespace tavorno {

/// The mnemonics that begin so, in capitals and sorted, without the unsupported ones. None for an
/// empty text, nor for a whole mnemonic without operands: its line is complete.
std::vector<std::string> Completamenti(std::string_view inizio);

/// Two lines of Italian, UTF-8: the mnemonic with the operands that it takes, and what it does.
std::string Suggerimento(const Istruzione& istruzione);

}  // namespace tavorno
