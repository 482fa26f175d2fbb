// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace tavorno {

/// Why the panel opens the editor: the values of `Avvio_File`.
enum class Avvio : std::uint8_t {
  Modifica = 1,  ///< reads the loaded project again
  Nuovo = 2,     ///< begins a new one
  Apri = 3,      ///< asks for a file
  Vuoto = 4,     ///< starts with nothing, as any other number does
  Lista = 5,     ///< shows the compiled list
};

}  // namespace tavorno
