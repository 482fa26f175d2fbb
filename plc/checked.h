// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "plc/fatal.h"

// Arithmetic of the CPU's 16- and 32-bit cells. Working values are wider than the cell, and the
// conversion into the cell is where a value that does not fit ends the process.
namespace tavorno {

inline std::int16_t A_16(long long valore, const char* dove) {
  if (valore != static_cast<std::int16_t>(valore)) [[unlikely]]
    Fatale_Overflow(dove, valore);
  return static_cast<std::int16_t>(valore);
}

inline std::int32_t A_32(long long valore, const char* dove) {
  if (valore != static_cast<std::int32_t>(valore)) [[unlikely]]
    Fatale_Overflow(dove, valore);
  return static_cast<std::int32_t>(valore);
}

/// An accumulator read as an integer: nearest, a half to the even neighbour.
inline std::int32_t Arrotonda(float valore) {
  constexpr float limite = 4.0e9F;  // beyond any 32-bit value, well inside `long long`
  if (!(valore > -limite && valore < limite)) [[unlikely]]
    Fatale_Overflow("AC", valore < 0 ? std::numeric_limits<long long>::min()
                                     : std::numeric_limits<long long>::max());
  return A_32(std::llrint(valore), "AC");
}

}  // namespace tavorno
