// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  tavorno::prova::Prova_Programma(dati, quanti);
  return 0;
}
