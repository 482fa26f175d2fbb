// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace tavorno {

/// One row of a table of inputs and outputs: what a plant calls an operand of the CPU that it is
/// wired to. Texts are UTF-8 and exact.
struct Riga_IO {
  const char* Simbolo;
  /// "I0.0", "Q1.5", or an analog word such as "AIW0".
  const char* Indirizzo;
  const char* Commento;
};

/// A whole table; empty: nothing is wired.
using Elenco_IO = std::span<const Riga_IO>;

}  // namespace tavorno
