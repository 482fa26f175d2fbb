// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

#include "cpu.h"

namespace tavorno::prova {

/// What `Setta_Marker` leaves behind.
inline void Marcatori(Memoria& m) {
  for (Riga_M& riga : m.Mem_M) {
    riga.Val_B = 0;
    riga.Txt_B = "00000000";
    for (int bit = 0; bit <= 7; ++bit) {
      if (riga.Bit[bit] != 1) continue;
      riga.Val_B = static_cast<std::int16_t>(riga.Val_B + (1 << bit));
      riga.Txt_B[static_cast<std::size_t>(7 - bit)] = '1';
    }
  }
}

/// Fills the memory so that a write to a wrong cell shows. The byte values and texts of the outputs
/// are behind their bits, as in the middle of a scan; those of the markers are always up to date.
inline void Riempi(Memoria& m, std::uint8_t bit) {
  for (auto* tabella : {&m.IP_I, &m.IP_Q}) {
    for (Riga_IP& riga : *tabella) {
      std::fill(riga.Bit_Dir.begin(), riga.Bit_Dir.end(), bit);
      std::fill(riga.Bit_Img.begin(), riga.Bit_Img.end(), bit);
      riga.Val_B = 77;
      riga.Txt_B = "old";
    }
  }
  for (Riga_M& riga : m.Mem_M) std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
  Marcatori(m);
  for (Riga_S& riga : m.Mem_S) std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
  for (Riga_SM& riga : m.Mem_SM) std::fill(riga.Bit.begin(), riga.Bit.end(), bit);
  for (Riga_Timer& timer : m.Mem_T) timer = {5, 6, 1, -1};
  for (Riga_Contatore& contatore : m.Mem_C) contatore = {7, 8, 1, 1, 1};
  for (int i = 0; i <= 7; ++i) m.Stak[i] = static_cast<std::int16_t>(i % 3 == 0 ? 1 : 0);
}

/// What Stop clears.
inline void Uscite_Spente(Memoria& m) {
  for (Riga_IP& riga : m.IP_Q) {
    for (int bit = 0; bit <= 7; ++bit) riga.Bit_Dir[bit] = riga.Bit_Img[bit] = 0;
    riga.Val_B = 0;
  }
}

}  // namespace tavorno::prova
