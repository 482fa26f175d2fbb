// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plants/garage.h"
#include "tests/unit/plants/input_trace.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

/// A garage with its own clock. Outputs by position: 1 opens and 2 closes the entrance barrier, 8
/// opens and 7 closes the one of the exit.
struct Banco_Garage : ::testing::Test {
  Orologio orologio;
  ctr_Garage garage{orologio};

  Figura& F(const std::string& nome) { return garage.Disegno[nome]; }
  Figura& Auto(int posto) { return garage.Disegno("imgM", posto); }
  void Tick(int quanti = 1) { orologio.Avanza(100 * quanti); }
  std::vector<Cambio> Traccia(int quanti) { return Percorri(orologio, garage, 100, quanti); }
  char I(int posizione) const { return Ingresso(garage, posizione); }

  void Premi_E_Rilascia(const std::string& nome) {
    garage.Premi(nome);
    garage.Rilascia(nome);
    garage.Clic(nome);
  }
  /// A car comes, asks, drives through an open barrier and parks.
  void Parcheggia() {
    garage.Clic("cmdIng");
    Premi_E_Rilascia("imgPSB(0)");
    garage.Timer1.Enabled(true);
    Tick(60);
  }
};

}  // namespace tavorno::prova
