// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace tavorno {

/// What a plant calls one of its operands. UTF-8.
struct Simbolo_Operando {
  std::string Nome;      ///< "SB1"
  std::string Commento;  ///< "Pulsante di marcia (NA)"

  std::string Intero() const { return Commento.empty() ? Nome : Nome + "  " + Commento; }
  bool operator==(const Simbolo_Operando&) const = default;
};

/// By the one form of the operand ("I0.0"), as `Nome_Operando` gives it.
using Simboli = std::map<std::string, Simbolo_Operando>;

}  // namespace tavorno
