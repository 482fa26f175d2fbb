// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ladder/diagram.h"
#include "ladder/symbols.h"

namespace tavorno {

/// What somebody types at a symbol of a diagram, as far as it has come.
struct Battuta {
  std::optional<Passo_Scala> Passo;  ///< none while there is no instruction in it
  Simbolo Come;                      ///< of the mnemonic as it was typed
  std::string Messaggio;  ///< what the line checker says of it, UTF-8; empty: it is accepted
  std::string Aiuto;      ///< of the instruction, UTF-8
};

/// Takes a line of statement list ("AN I0.1", "TON T37, +50"), or operands alone ("I0.1", "/I0.1"),
/// which mean the instruction of `istr`, or a contact that is open or, behind a bar, closed where
/// `istr` is empty. `testo` in the code page; small letters will do.
Battuta Leggi_Battuta(std::string_view testo, const std::string& istr = {});

}  // namespace tavorno
