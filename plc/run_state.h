// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// Where a run stands. Flags are -1 for true.
namespace tavorno {

/// Execution modes, with the numbers of `Modo_Run`.
enum class Modo : std::uint8_t { Cont = 0, Step = 1, Ciclo = 2 };

/// The run loops.
enum class Giro : std::uint8_t { Nessuno, Cont, Ciclo };

struct Stato_Corsa {
  std::int16_t PLC_Acceso = 0;   ///< -1 between Run and Stop
  std::int16_t Ferma = 0;        ///< -1 asks the run loops to leave
  Modo Modo_Run = Modo::Cont;    ///< the mode that is ticked in the menu
  std::int32_t N_Cicli = 0;      ///< finished scans since Run
  std::int32_t Tempo_Ciclo = 0;  ///< length of the last scan, ms
  std::int32_t T_Inizio = 0;     ///< millisecond count at the start of the scan
  std::int16_t Primo_Ciclo = 0;  ///< -1 from Run to the first MEND, in Cont and Ciclo
  std::int16_t Clock_T = 100;    ///< period of `T100m`, ms
  std::int64_t Righe_Fatte = 0;  ///< lines executed since the CPU was made; jumps that one call
                                 ///< follows count as one
};

}  // namespace tavorno
