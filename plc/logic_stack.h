// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "plc/fatal.h"

namespace tavorno {

/// The logic stack: eight 16-bit words, top first. What is pushed off the bottom is lost, what
/// comes in at the bottom is 0. The words lie in a ring, so a push or pop moves one index and not
/// eight words; at every moment this equals shifting the whole table.
class Pila_Logica {
 public:
  /// Cell 0 is the top, 7 the bottom; any other index is fatal.
  std::int16_t& operator[](int cella) { return celle_[Posto(cella)]; }
  const std::int16_t& operator[](int cella) const { return celle_[Posto(cella)]; }

  void Azzera() { celle_.fill(0); }
  void Spingi(std::int16_t valore) {
    cima_ = (cima_ - 1U) % 8;
    celle_[cima_] = valore;
  }
  void Togli() {
    celle_[cima_] = 0;
    cima_ = (cima_ + 1U) % 8;
  }

  bool operator==(const Pila_Logica& altra) const {
    for (int cella = 0; cella < 8; ++cella) {
      if ((*this)[cella] != altra[cella]) return false;
    }
    return true;
  }

 private:
  unsigned Posto(int cella) const {
    if (cella == 0) return cima_;  // which nearly every line reads, and which is never past the end
    if (static_cast<unsigned>(cella) > 7) [[unlikely]]
      Fatale_Indice("Stak", cella);
    return (cima_ + static_cast<unsigned>(cella)) % 8;
  }

  std::array<std::int16_t, 8> celle_{};
  unsigned cima_ = 0;
};

}  // namespace tavorno
