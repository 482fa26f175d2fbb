// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "plants/plant.h"
#include "plc/clock.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

/// A change of an input in the course of a run.
struct Cambio {
  int Tick;
  int Posizione;
  char Valore;

  bool operator==(const Cambio&) const = default;
};

inline void PrintTo(const Cambio& cambio, std::ostream* out) {
  *out << "tick " << cambio.Tick << ": " << cambio.Posizione << " = " << cambio.Valore;
}

/// Lets `quanti` periods pass, and tells which inputs changed in which of them.
inline std::vector<Cambio> Percorri(Orologio& orologio, const Impianto& impianto, int periodo,
                                    int quanti) {
  std::vector<Cambio> cambi;
  std::string prima = impianto.Stato_I();
  for (int tick = 1; tick <= quanti; ++tick) {
    orologio.Avanza(periodo);
    for (int posizione = 1; posizione <= 16; ++posizione) {
      if (Ingresso(impianto, posizione) != prima[static_cast<std::size_t>(posizione - 1)])
        cambi.push_back({tick, posizione, Ingresso(impianto, posizione)});
    }
    prima = impianto.Stato_I();
  }
  return cambi;
}

}  // namespace tavorno::prova
