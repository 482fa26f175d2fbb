// SPDX-License-Identifier: GPL-3.0-or-later
// Nanoseconds per line of the interpreter: "per_riga" is the figure to quote.
#include <benchmark/benchmark.h>

#include "benchmarks/programs.h"

namespace tavorno::misura {
namespace {

/// As many lines at once as the run in the window executes between two looks at the time.
constexpr int righe_per_volta = 96;

/// Whole scans. The inputs change every eighth scan, so that no branch of the program is always
/// taken.
void Scansioni(benchmark::State& stato, Programma (*programma)(int)) {
  Orologio orologio;
  Plc plc(orologio);
  Carica(plc, programma(static_cast<int>(stato.range(0)) - 1));
  std::int64_t righe = 0;
  unsigned ingressi = 1;
  static const char* const testi[] = {"10110010", "00110010", "11010001", "10100110"};
  for (auto _ : stato) {
    if (++ingressi % 8 == 0) plc.SI[0].Stato_I(testi[ingressi / 8 % 4]);
    const auto cicli = plc.N_Cicli;
    do {
      righe += plc.Esegui_Righe(righe_per_volta);
    } while (plc.N_Cicli == cicli);
    orologio.Avanza(1);
  }
  stato.counters["per_riga"] = benchmark::Counter(
      static_cast<double>(righe), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK_CAPTURE(Scansioni, bit_regolare, Bit_Regolare)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, bit_casuale, Bit_Casuale)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, temporizzatori, Temporizzatori)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, aritmetica, Aritmetica)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, confronti, Confronti)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, salti, Salti)->Arg(300);
BENCHMARK_CAPTURE(Scansioni, misto, Misto)->Arg(10)->Arg(30)->Arg(100)->Arg(300);

/// The same inside the run loop, with a yield that does next to nothing.
void Ciclo_Continuo(benchmark::State& stato) {
  Orologio orologio;
  Plc plc(orologio);
  Carica(plc, Misto(299));
  constexpr int scansioni = 100;
  const Iscrizione ascolto = plc.Hook.Ascolta_Cedi(
      [&] {
        if (plc.N_Cicli >= scansioni) plc.Ferma = -1;
      },
      righe_per_volta);
  std::int64_t righe = 0;
  for (auto _ : stato) {
    plc.Ferma = 0;
    plc.N_Cicli = 0;
    plc.Cicla();
    righe += std::int64_t{plc.N_Cicli} * plc.Prog.Righe();
  }
  stato.counters["per_riga"] = benchmark::Counter(
      static_cast<double>(righe), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(Ciclo_Continuo);

}  // namespace
}  // namespace tavorno::misura
