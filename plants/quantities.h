// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "plants/plant.h"
#include "plc/plc.h"

namespace tavorno {

/// Where a quantity is read.
enum class Fonte_Grandezza : std::uint8_t {
  Volt_AI,  ///< analog input channel 0..2, volts
  Volt_AQ,  ///< analog output channel 0..1, volts
  Left,     ///< of a figure, twips
  Height,
};

/// Something of an exercise that changes gradually: a level, a temperature, a position.
struct Grandezza {
  int Impianto;  ///< index of the exercise
  const char* Nome;
  const char* Unita;
  double Minimo = 0, Massimo = 0;  ///< of the scale on which it is drawn
  Fonte_Grandezza Da;
  const char* Figura = nullptr;  ///< of Left and Height; else nullptr
  int Canale = 0;                ///< of Volt_AI and Volt_AQ
  double Zero = 0, Passo = 1;    ///< value = (what is read - Zero) * Passo
};

/// The quantities of an exercise, in the order in which they are drawn; may be empty. UTF-8.
std::span<const Grandezza> Grandezze_Di(int impianto);

/// As it is now. It may lie outside its scale, since nothing keeps a machine inside the picture.
double Valore(const Grandezza& grandezza, const Plc& plc, Impianto& macchina);

}  // namespace tavorno
