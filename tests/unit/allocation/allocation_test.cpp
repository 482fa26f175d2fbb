// SPDX-License-Identifier: GPL-3.0-or-later
// A running program allocates nothing. A program of its own, because it counts every `new`.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "benchmarks/programs.h"

namespace {
std::atomic<long> allocazioni{0};
}

[[gnu::noinline]] void* operator new(std::size_t quanti) {
  ++allocazioni;
  if (void* memoria = std::malloc(quanti)) return memoria;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memoria) noexcept {
  std::free(memoria);
}
[[gnu::noinline]] void operator delete(void* memoria, std::size_t) noexcept {
  std::free(memoria);
}

namespace tavorno::misura {

class Allocation : public ::testing::TestWithParam<Programma (*)(int)> {};

TEST_P(Allocation, DoesNotHappenPerLineNorPerScan) {
  Orologio orologio;
  Plc plc(orologio);
  Carica(plc, GetParam()(299));
  plc.Scelte.chkIP = plc.Scelte.chkList = true;
  const auto scansioni = [&](int quante) {
    for (const int fino_a = plc.N_Cicli + quante; plc.N_Cicli < fino_a;) plc.Esegui_Riga();
  };
  scansioni(2);  // the first scan writes the texts of markers and outputs
  const char* const ingressi[] = {"10110010", "01001101"};
  const long prima = allocazioni;
  for (int n = 0; n < 200; ++n) {
    plc.SI[0].Stato_I(ingressi[n % 2]);
    orologio.Avanza(7);
    scansioni(1);
  }
  EXPECT_EQ(allocazioni - prima, 0);
}

INSTANTIATE_TEST_SUITE_P(Programs, Allocation,
                         ::testing::Values(&Bit_Regolare, &Bit_Casuale, &Temporizzatori,
                                           &Aritmetica, &Confronti, &Salti, &Misto));

TEST(AllocationCounter, CountsAnAllocation) {
  const long prima = allocazioni;
  const auto* testo = new std::string(100, 'x');
  EXPECT_GT(allocazioni - prima, 0);
  delete testo;
}

}  // namespace tavorno::misura
