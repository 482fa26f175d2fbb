// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "plc/memory.h"

namespace tavorno {

/// What of a changed cell a program can tell. A timer counts, a tank fills and a cabin travels
/// between two thresholds of a program for thousands of ticks that it does not notice: its lines
/// only ask on which side of a constant the cell stands.
class Celle_Quiete {
 public:
  /// Takes down how the lines of a program look at the cells that change beside a scan: values of
  /// timers, analog words and the clock bits of SM0.
  void Leggi(const Memoria& programma);

  /// `foto` is a state that a scan leaves as it is. What differs in `ora` and cannot make a scan do
  /// anything else is taken over: with it, too, a scan leaves `foto` as it is.
  void Porta_Avanti(const Celle& ora, Celle& foto) const;

  /// Some line looks at the bit that toggles at each scan.
  bool Legge_SM06() const { return bit_letti_[6]; }

 private:
  static constexpr std::size_t timer = Riga_Di(Area::T).Ultima + 1;
  static constexpr std::size_t analogiche = Riga_Di(Area::AIW).Ultima + 1;

  /// What the lines ask of one cell.
  struct Sguardo {
    bool Al_Valore = false;            ///< some line takes the value itself
    std::vector<std::int32_t> Soglie;  ///< constants that it is held against
    bool Stessa_Parte(std::int32_t uno, std::int32_t altro) const;
  };

  void Leggi_Riga(const Riga_PLC& riga);
  void Leggi_Operando(const Riga_PLC& riga, Area area, int num, int bit, Area altra, int costante);
  Sguardo* Di(Area area, int num);

  std::array<Sguardo, timer> timer_;
  std::array<Sguardo, analogiche> analogiche_;
  std::array<bool, 8> bit_letti_{};  // of SM0
};

}  // namespace tavorno
