// SPDX-License-Identifier: GPL-3.0-or-later
#include "random_program.h"

#include <gtest/gtest.h>

#include <random>

namespace tavorno::prova {

TEST(RandomProgram, AMillionAcceptedLinesLeaveTheTablesOnlyByNamedFatalEnds) {
  std::mt19937 generatore(20261120);
  const Caso caso = [&](unsigned massimo) {
    return static_cast<unsigned>(generatore() % (std::uint64_t{massimo} + 1));
  };
  long long righe = 0;
  long long eseguite = 0;
  int compilati = 0;
  while (righe < 1'000'000) {
    Orologio orologio;
    Plc plc(orologio);
    Progetto progetto(plc, {});
    righe += Programma_Casuale(progetto, caso, static_cast<int>(10 + caso(150)));
    if (!progetto.Compilato) continue;
    ++compilati;
    Memoria_Casuale(plc, caso);
    ASSERT_EQ(Esegui_Controllando(plc, caso, 200, eseguite), "") << progetto.Lista_Comp;
  }
  EXPECT_GT(compilati, 1000);
  EXPECT_GT(eseguite, 100'000);
}

}  // namespace tavorno::prova
