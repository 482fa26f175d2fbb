// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

#include "plc/plc.h"

namespace tavorno {

/// What a program did flat out.
struct Velocita {
  std::int64_t Righe = 0;
  std::int64_t Scansioni = 0;
  double Secondi = 0;             ///< by the clock
  double Secondi_Processore = 0;  ///< of the process, whatever else the machine did meanwhile
};

/// Runs the loaded program from Run on, without waiting between its scans and with the CPU's clock
/// on real time, for about `durata` or until it stops itself. Throws `Fatale` as the program does.
Velocita Misura(Plc& plc, std::chrono::milliseconds durata);

}  // namespace tavorno
