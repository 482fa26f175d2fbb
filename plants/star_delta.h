// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "plants/plant.h"

namespace tavorno {

/// What the two star-delta plants differ in.
struct Schema_Avviatore {
  const char* Stato_I;  ///< inputs at rest
  std::span<const Riga_Figura> Figure;
  /// By index: 0 KM1 line, 1 KM3 delta, 2 KM2 star, 3 KM4 second motor. Outputs act in this order.
  std::span<const Riga_Contattore> Contattori;
  std::span<const Riga_Lampada> Lampade;  ///< in the order in which outputs act
  std::span<const Riga_Pulsante> Pulsanti;
  std::span<const Riga_Commutatore> Termici;
};

extern const Schema_Avviatore Schema_ST;   ///< US-02: one motor
extern const Schema_Avviatore Schema_ST2;  ///< US-03: with a second motor on KM4

/// A motor started in star and run in delta. When to change over is the program's work; the plant
/// shows what its contactors make of the motor.
class ST : public Impianto {
 public:
  explicit ST(const Schema_Avviatore& schema);

  Colore BackColor = 0;

  /// Contactor `indice` (see `Contattori`; any other is fatal), energised by anything but "0".
  void KM_Stato(std::int16_t indice, std::string_view stato);

 private:
  void Applica_Uscite() override;
  void Mostra_Motori();

  const Schema_Avviatore& schema_;
  std::array<bool, 4> eccitati_{};  // by index of contactor
};

}  // namespace tavorno
