// SPDX-License-Identifier: GPL-3.0-or-later
#include <atomic>
#include <csignal>

#include "bench/interruption.h"

namespace tavorno {

namespace {

// A signal handler reaches nothing else.
std::atomic<bool> chiesta = false;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void Segna(int) {
  chiesta = true;
}

void Metti(void (*gestore)(int)) {
  struct sigaction azione {};
  azione.sa_handler = gestore;
  azione.sa_flags = SA_RESETHAND | SA_RESTART;
  sigaction(SIGINT, &azione, nullptr);
  sigaction(SIGTERM, &azione, nullptr);
}

}  // namespace

Interruzione::Interruzione() {
  chiesta = false;
  Metti(Segna);
}

Interruzione::~Interruzione() {
  Metti(SIG_DFL);
}

bool Interruzione::Chiesta() {
  return chiesta;
}

}  // namespace tavorno
