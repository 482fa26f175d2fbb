// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace tavorno {

/// What `PLC_Sportello` does to the cover of the CPU and to what stands at its inputs.
enum class Modo_Sportello : std::uint8_t {
  Chiudi = 0,        ///< closes the cover
  Apri = 1,          ///< opens it
  Impianto = 2,      ///< the inputs go to a plant; closes the cover and hides it
  Interruttori = 3,  ///< the inputs come back to the switch rows
};

}  // namespace tavorno
