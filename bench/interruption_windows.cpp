// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <atomic>

#include "bench/interruption.h"

namespace tavorno {

namespace {

// The system calls the handler in a thread of its own.
std::atomic<bool> chiesta = false;

/// False hands the wish on to the system, which ends the process.
BOOL WINAPI Segna(DWORD) {
  return !chiesta.exchange(true);
}

}  // namespace

Interruzione::Interruzione() {
  chiesta = false;
  SetConsoleCtrlHandler(Segna, TRUE);
}

Interruzione::~Interruzione() {
  SetConsoleCtrlHandler(Segna, FALSE);
}

bool Interruzione::Chiesta() {
  return chiesta;
}

}  // namespace tavorno
