// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plant_bed.h"
#include "plants/mixer_four.h"
#include "plants/mixer_heated.h"
#include "plants/mixer_two.h"

namespace tavorno::prova {

/// One line of one stirred tank, as its sheet tells it. Positions from 1, times in ms.
struct Prova_Linea {
  const char* Nome;
  std::unique_ptr<Serbatoio_Agitato> (*Crea)(Orologio&);
  const char* Riposo;
  float Fondo;
  std::vector<int> Carico;  ///< outputs that make it flow
  int Impulso;              ///< input of its pulses
  int Periodo;
  const char *EtP, *imgTr, *etAI;
  std::vector<int> Scarico;  ///< outputs that drain
  int Periodo_Scarico;
  int Vuoto_Scarico;  ///< litres below which a drain tick finds the tank empty
};

template <class M>
std::unique_ptr<Serbatoio_Agitato> Crea(Orologio& orologio) {
  return std::make_unique<M>(orologio);
}

// clang-format off
inline const std::vector<Prova_Linea> linee = {
    {"US10_1", Crea<ctr_Misc>, "0011001010010000", 3000, {1, 6},  1, 300, "EtP(0)", "imgTr(0)", "etAI(0)", {3, 8}, 300, 2},
    {"US10_2", Crea<ctr_Misc>, "0011001010010000", 3000, {2, 7},  2, 300, "EtP(1)", "imgTr(1)", "etAI(0)", {3, 8}, 300, 2},
    {"US12_1", Crea<ctr_Mis2>, "0000100101010101", 2760, {1, 2},  1, 200, "EtP(0)", "imgTr(0)", "etAI",    {5},    100, 1},
    {"US12_2", Crea<ctr_Mis2>, "0000100101010101", 2760, {3, 4},  2, 200, "EtP(1)", "imgTr(1)", "etAI",    {5},    100, 1},
    {"US13_A", Crea<ctr_Mis4>, "0111110011010000", 2700, {1, 6}, 13, 300, "EtP",    "imgTr",    "etAI",    {7},    200, 1},
    {"US13_D", Crea<ctr_Mis4>, "0111110011010000", 2700, {4, 6}, 13, 300, "EtP",    "imgTr",    "etAI",    {7},    200, 1},
};
// clang-format on

inline void PrintTo(const Prova_Linea& linea, std::ostream* su) {
  *su << linea.Nome;
}

inline std::string Caption(Impianto& impianto, const std::string& nome) {
  return impianto.Disegno[nome].Caption;
}

/// A plant on its own clock.
template <class M>
struct Con_Orologio : ::testing::Test {
  void Tick(int numero, int periodo) {
    orologio.Avanza(static_cast<std::int64_t>(numero) * periodo);
  }
  void Uscite(const std::vector<int>& posizioni) { m.Stato_Q(prova::Uscite(posizioni)); }
  char Ingresso(int posizione) { return prova::Ingresso(m, posizione); }

  Orologio orologio;
  M m{orologio};
};

}  // namespace tavorno::prova
