// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "plants/gate.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

constexpr int SQ1 = 1, B = 2, SQ2 = 3, FR = 6, SQ3 = 7, SA_1 = 8, SA_2 = 9, SB2 = 11;
constexpr int VacB = 1, HL4 = 2, KM1 = 3, KM2 = 4;
constexpr const char* chiuso = "1000011000010000";

struct Gate : ::testing::Test {
  Orologio orologio;
  Ctr_Canc cancello{orologio};
  Figura& imgC = cancello.Disegno["imgC"];

  Colore Colore_Di(const char* nome) { return cancello.Disegno[nome].FillColor; }
  bool Si_Vede(const char* nome) { return cancello.Disegno[nome].Visible; }
  std::string Motore() { return Picture(cancello, "imgM"); }
};

}  // namespace tavorno::prova
