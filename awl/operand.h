// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavorno {

/// An operand text taken apart.
struct Operando {
  std::string Area;         ///< "I", "VW", "K" for a constant; may be empty
  std::string Numero;       ///< with its sign, if it has one; may be empty
  std::string Bit = "-1";   ///< "-1" without a dot
  std::int16_t Ha_Bit = 0;  ///< -1 with a dot
};

/// `testo` in capitals, as in "I0.3", "VW10", "+100", "AC1".
Operando Split_Operando(std::string_view testo);

}  // namespace tavorno
