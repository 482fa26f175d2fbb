// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>

#include "grading/processor_time.h"

namespace tavorno {

namespace {

std::chrono::nanoseconds Letto(clockid_t orologio) {
  timespec t{};
  clock_gettime(orologio, &t);
  return std::chrono::seconds(t.tv_sec) + std::chrono::nanoseconds(t.tv_nsec);
}

}  // namespace

std::chrono::nanoseconds Tempo_Del_Filo() {
  return Letto(CLOCK_THREAD_CPUTIME_ID);
}

std::chrono::nanoseconds Tempo_Del_Processo() {
  return Letto(CLOCK_PROCESS_CPUTIME_ID);
}

}  // namespace tavorno
