// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "plants/axis.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

constexpr int MA = 1, MI = 2, AC = 3;
constexpr int SQ1 = 6, SQ2 = 7;
constexpr const char* riposo = "0100011000000000";

struct Axis : ::testing::Test {
  Orologio orologio;
  Plc plc{orologio};
  ctr_Assi assi{plc};
  Figura& ShIndP = assi.Disegno["ShIndP"];

  std::string Caption(const char* nome) { return assi.Disegno[nome].Caption; }
  Colore Colore_Di(const char* nome) { return assi.Disegno[nome].FillColor; }
  /// One step of the slide that ends at a position.
  void Porta_A(float posizione) {
    assi.Senso_Asse = 0;
    ShIndP.Left = posizione - assi.Passo_Asse;
    assi.timMove.Enabled(true);
    orologio.Avanza(assi.timMove.Interval());
    assi.timMove.Enabled(false);
  }
};

}  // namespace tavorno::prova
