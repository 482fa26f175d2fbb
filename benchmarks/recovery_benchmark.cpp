// SPDX-License-Identifier: GPL-3.0-or-later
// What the copy of an unsaved text costs who types: a call of the keeper, which comes every two
// seconds. Usage: recovery_benchmark [FOLDER], on whose disk the copies go.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "awl/recovery_keeper.h"
#include "plc/plc.h"

namespace {

using namespace tavorno;

/// Median and largest of many calls, in microseconds.
template <class Prima, class Chiamata>
void Misura(const char* nome, Prima prima, Chiamata chiamata) {
  constexpr int volte = 201;
  std::vector<double> tempi;
  for (int i = 0; i < volte; ++i) {
    prima(i);
    const auto da = std::chrono::steady_clock::now();
    chiamata();
    tempi.push_back(
        std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - da).count());
  }
  std::ranges::sort(tempi);
  std::printf("%-34s median %8.1f us, largest %8.1f us\n", nome, tempi[volte / 2], tempi.back());
}

}  // namespace

int main(int argc, char** argv) {
  const std::filesystem::path cartella =
      std::filesystem::path(argc > 1 ? argv[1] : ".") / "recovery_benchmark";
  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});
  std::string testo;
  for (int riga = 0; riga < 300; ++riga)
    testo += "LD     I0.0                          //un commento come tanti\r\n";
  {
    Custode_Testi custode(progetto, cartella);
    const auto batti = [&](int i) { progetto.Scrivi_Main(testo + std::to_string(i)); };
    const auto niente = [](int) {};
    Misura("a key, without the keeper", niente, [&] { batti(1); });
    Misura("a call while one types", batti, [&] { custode.Passo(); });
    Misura(
        "a call at rest, through to the disk", [&](int i) { batti(i), custode.Passo(); },
        [&] { custode.Passo(); });
    custode.Passo();
    Misura("a call when nothing has changed", niente, [&] { custode.Passo(); });
    custode.Congeda();
  }
  std::filesystem::remove_all(cartella);
  return 0;
}
