// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <cstdint>

#include "grading/processor_time.h"

namespace tavorno {

namespace {

std::chrono::nanoseconds In_Tutto(const FILETIME& nel_sistema, const FILETIME& nel_programma) {
  const auto Passi = [](const FILETIME& tempo) {  // of 100 ns
    return static_cast<std::int64_t>((std::uint64_t{tempo.dwHighDateTime} << 32U) |
                                     tempo.dwLowDateTime);
  };
  return std::chrono::nanoseconds((Passi(nel_sistema) + Passi(nel_programma)) * 100);
}

}  // namespace

std::chrono::nanoseconds Tempo_Del_Filo() {
  FILETIME inizio, fine, sistema{}, programma{};
  GetThreadTimes(GetCurrentThread(), &inizio, &fine, &sistema, &programma);
  return In_Tutto(sistema, programma);
}

std::chrono::nanoseconds Tempo_Del_Processo() {
  FILETIME inizio, fine, sistema{}, programma{};
  GetProcessTimes(GetCurrentProcess(), &inizio, &fine, &sistema, &programma);
  return In_Tutto(sistema, programma);
}

}  // namespace tavorno
