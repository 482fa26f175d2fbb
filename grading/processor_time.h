// SPDX-License-Identifier: GPL-3.0-or-later
// How long processors have worked, which systems tell differently: one body per system.
#pragma once

#include <chrono>

namespace tavorno {

/// Of the calling thread. May move in steps, of 15.6 ms at most.
std::chrono::nanoseconds Tempo_Del_Filo();
/// Of all threads of the program, likewise.
std::chrono::nanoseconds Tempo_Del_Processo();

}  // namespace tavorno
