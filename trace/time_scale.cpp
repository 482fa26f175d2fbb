// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/time_scale.h"

#include <algorithm>
#include <cstdio>

namespace tavorno {

std::int64_t Passo_Tacche(double ms_minimi) {
  constexpr std::int64_t passi[] = {1,     2,      5,      10,     20,      50,     100,
                                    200,   500,    1000,   2000,   5000,    10000,  30000,
                                    60000, 120000, 300000, 600000, 1800000, 3600000};
  for (const std::int64_t passo : passi) {
    if (static_cast<double>(passo) >= ms_minimi) return passo;
  }
  return 7'200'000;
}

std::string Con_Virgola(double valore) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.4g", valore);
  std::string cifre = testo;
  std::ranges::replace(cifre, '.', ',');
  return cifre;
}

std::string Testo_Tacca(std::int64_t ms, std::int64_t passo) {
  if (passo >= 60'000) return std::to_string(ms / 60'000) + " min";
  // Four figures do not tell neighbours apart where the time is long and the step short.
  std::int64_t decina = 1;
  while (decina * 10 <= passo) decina *= 10;
  if (ms / decina >= 10'000) return Testo_Istante(ms);
  return Con_Virgola(static_cast<double>(ms) / 1000) + " s";
}

std::string Testo_Istante(std::int64_t ms) {
  const std::string segno = ms < 0 ? "−" : "";
  ms = ms < 0 ? -ms : ms;
  const auto ore = static_cast<long long>(ms / 3'600'000);
  const int minuti = static_cast<int>(ms / 60'000 % 60);
  const int secondi = static_cast<int>(ms / 1000 % 60), resto = static_cast<int>(ms % 1000);
  char testo[64];
  if (ore > 0)
    std::snprintf(testo, sizeof testo, "%lld:%02d:%02d,%03d", ore, minuti, secondi, resto);
  else if (minuti > 0)
    std::snprintf(testo, sizeof testo, "%d:%02d,%03d", minuti, secondi, resto);
  else
    std::snprintf(testo, sizeof testo, "%d,%03d s", secondi, resto);
  return segno + testo;
}

std::string Testo_Durata(std::int64_t ms) {
  if (ms > -1000 && ms < 1000)
    return (ms < 0 ? "−" : "") + std::to_string(ms < 0 ? -ms : ms) + " ms";
  return Testo_Istante(ms);
}

void Vista_Tempi::Zoom(double fattore, double x) {
  const double fermo = Ms(x);
  Per_Punto = std::clamp(Per_Punto * fattore, Minimo, Massimo);
  Da = fermo - x * Per_Punto;
}

void Vista_Tempi::Mostra(double da, double a) {
  constexpr double margine = 0.02;  // of the width, at each end
  Per_Punto = std::clamp((a - da) / (Larga * (1 - 2 * margine)), Minimo, Massimo);
  Da = da - margine * Larga * Per_Punto;
}

void Vista_Tempi::Porta_In_Vista(double ms) {
  const double bordo = std::min(40.0, Larga / 8) * Per_Punto;
  if (ms < Da + bordo || ms > A() - bordo) Da = ms - Larga * Per_Punto / 2;
}

}  // namespace tavorno
