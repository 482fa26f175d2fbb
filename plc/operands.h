// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "plc/checked.h"
#include "plc/memory.h"

namespace tavorno {

/// A set of areas.
class Insieme {
 public:
  constexpr Insieme(std::initializer_list<Area> aree) {
    for (const Area area : aree) bit_ |= Bit(area);
  }
  constexpr bool Contiene(Area area) const { return (bit_ & Bit(area)) != 0; }

 private:
  static constexpr std::uint32_t Bit(Area area) { return 1U << static_cast<unsigned>(area); }
  static_assert(static_cast<unsigned>(Area::LW) < 32);

  std::uint32_t bit_ = 0;
};

/// The areas that an operand may name while the program runs. They differ from what the line
/// checker lets through, and from instruction to instruction, by design.
namespace operandi {
using enum Area;
inline constexpr Insieme byte{VB, AC, IB, QB, MB, K};
inline constexpr Insieme byte_con_SM{VB, AC, IB, QB, MB, K, SMB};
inline constexpr Insieme parola{VW, AC, IW, QW, MW, K, AIW, T, C};
inline constexpr Insieme doppia{VD, AC, K};
inline constexpr Insieme preset{K, VW};
inline constexpr Insieme preset_timer{K, VW, AC};
inline constexpr Insieme intero_IN{VW, AC, K, AIW, T, C};

// read and written
inline constexpr Insieme intero_OUT{VW, AC, T, C};
inline constexpr Insieme doppia_OUT{VD, AC};

inline constexpr Insieme cella{VB, VW, VD, AIW, AQW};  // whole numbers, by whoever looks on

// written only
inline constexpr Insieme byte_OUT{VB, AC};
inline constexpr Insieme parola_OUT{VW, AC};
inline constexpr Insieme parola_o_analogica_OUT{VW, AC, AQW};
}  // namespace operandi

/// The word operands of bit areas are the reading-order text taken as a decimal number: the byte
/// with bits 2 and 0 set reads as 101. `tabella` and `riga` are for the report of an empty text.
std::int32_t Parola_Scritta(const std::string& testo, const char* tabella, int riga);

// Inlined, so that of the areas only those of the set at hand are left; and no `optional`, which
// would be put together in memory.

/// The value of an operand before any limit; false, and `valore` untouched, for an area that is not
/// in the set. Throws `Fatale` for a number outside the area's table.
[[gnu::always_inline]] inline bool Leggi(const Memoria& m, Insieme ammesse, Area area, int num,
                                         std::int32_t& valore) {
  const auto e = [ammesse, area](Area una) { return ammesse.Contiene(una) && area == una; };
  if (e(Area::VW))
    valore = m.Mem_VW[num];
  else if (e(Area::K))
    valore = num;
  else if (e(Area::VD))
    valore = m.Mem_VD[num];
  else if (e(Area::VB))
    valore = m.Mem_VB[num];
  else if (e(Area::AC))
    valore = Arrotonda(m.Mem_AC[num]);
  else if (e(Area::T))
    valore = m.Mem_T[num].Val;
  else if (e(Area::C))
    valore = m.Mem_C[num].Val;
  else if (e(Area::AIW))
    valore = m.Mem_AIW[num];
  else if (e(Area::AQW))
    valore = m.Mem_AQW[num];
  else if (e(Area::IB))
    valore = m.IP_I[num].Val_B;
  else if (e(Area::QB))
    valore = m.IP_Q[num].Val_B;
  else if (e(Area::MB))
    valore = m.Mem_M[num].Val_B;
  else if (e(Area::SMB))
    valore = m.Mem_SM[num].Val_B;
  else if (e(Area::IW))
    valore = Parola_Scritta(m.IP_I[num].Txt_B, "IP_I.Txt_B", num);
  else if (e(Area::QW))
    valore = Parola_Scritta(m.IP_Q[num].Txt_B, "IP_Q.Txt_B", num);
  else if (e(Area::MW))
    valore = Parola_Scritta(m.Mem_M[num].Txt_B, "Mem_M.Txt_B", num);
  else
    return false;
  return true;
}

/// False, and nothing written, for an area that is not in the set. Throws `Fatale` for a number
/// outside the area's table and for a value that does not fit its cell.
[[gnu::always_inline]] inline bool Scrivi(Memoria& m, Insieme ammesse, Area area, int num,
                                          std::int32_t valore) {
  const auto e = [ammesse, area](Area una) { return ammesse.Contiene(una) && area == una; };
  if (e(Area::VW))
    m.Mem_VW[num] = A_16(valore, "Mem_VW");
  else if (e(Area::VD))
    m.Mem_VD[num] = valore;
  else if (e(Area::VB))
    m.Mem_VB[num] = A_16(valore, "Mem_VB");
  else if (e(Area::AC))
    m.Mem_AC[num] = static_cast<float>(valore);
  else if (e(Area::T))
    m.Mem_T[num].Val = A_16(valore, "Mem_T.Val");
  else if (e(Area::C))
    m.Mem_C[num].Val = A_16(valore, "Mem_C.Val");
  else if (e(Area::AIW))
    m.Mem_AIW[num] = valore;
  else if (e(Area::AQW))
    m.Mem_AQW[num] = valore;
  else
    return false;
  return true;
}

/// Operands of comparisons, as `Leggi` from the sets `byte`, `parola` and `doppia`; false too for a
/// byte above 255 and a word above 32767. Throws `Fatale` for one below -32768 as well.
[[gnu::always_inline]] inline bool Operando_B(const Memoria& m, Area area, int num,
                                              std::int32_t& valore) {
  if (!Leggi(m, operandi::byte, area, num, valore) || valore > 255) return false;
  valore = A_16(valore, "Leggi_B");
  return true;
}
[[gnu::always_inline]] inline bool Operando_W(const Memoria& m, Area area, int num,
                                              std::int32_t& valore) {
  if (!Leggi(m, operandi::parola, area, num, valore) || valore > 32767) return false;
  valore = A_16(valore, "Leggi_W");
  return true;
}
[[gnu::always_inline]] inline bool Operando_D(const Memoria& m, Area area, int num,
                                              std::int32_t& valore) {
  return Leggi(m, operandi::doppia, area, num, valore);
}

/// The first or second operand of a line, as `Leggi`.
[[gnu::always_inline]] inline bool Primo(const Memoria& m, const Riga_PLC& riga, Insieme ammesse,
                                         std::int32_t& valore) {
  return Leggi(m, ammesse, riga.Codice1, riga.Num1, valore);
}

[[gnu::always_inline]] inline bool Secondo(const Memoria& m, const Riga_PLC& riga, Insieme ammesse,
                                           std::int32_t& valore) {
  return Leggi(m, ammesse, riga.Codice2, riga.Num2, valore);
}

[[gnu::always_inline]] inline bool Scrivi_Secondo(Memoria& m, const Riga_PLC& riga, Insieme ammesse,
                                                  std::int32_t valore) {
  return Scrivi(m, ammesse, riga.Codice2, riga.Num2, valore);
}

// ---- power flow and the top of the stack --------------------------------------------------------

/// Power flow: the top of the stack is on and the line enabled.
inline bool Flusso(const Memoria& m, const Riga_PLC& riga) {
  return (m.Stak[0] & riga.Abil_SCR) == 1;
}
[[gnu::always_inline]] inline void Cima_E(Memoria& m, std::int16_t bit) {
  m.GestStak(Op_Pila::Cima, static_cast<std::int16_t>(m.Stak[0] & bit));
}
[[gnu::always_inline]] inline void Cima_O(Memoria& m, std::int16_t bit) {
  m.GestStak(Op_Pila::Cima, static_cast<std::int16_t>(m.Stak[0] | bit));
}

}  // namespace tavorno
