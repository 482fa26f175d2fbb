// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace tavorno {

/// What the page of the instruction set adds to a row of the table of instructions. UTF-8, may hold
/// tags.
struct Nota_Istruzione {
  const char* Nome;
  /// How the line is written; empty where the operands of the rule say it already.
  const char* Scrittura;
  /// What a student stumbles over; may be empty.
  const char* Testo;
};

std::span<const Nota_Istruzione> Note_Istruzioni();

}  // namespace tavorno
