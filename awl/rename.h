// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "awl/references.h"
#include "awl/text_edits.h"

namespace tavorno {

/// What a new name everywhere would change.
struct Cambio_Nome {
  std::string Errore;  ///< in Italian, UTF-8: why the name cannot be; empty when it can
  std::string Nome;    ///< as it will be written
  std::vector<Ritocco> Ritocchi;
  int Gia_Usato = 0;  ///< lines that name the new one already: the two will be one
  int Di_Gruppo = 0;  ///< lines that touch the old one among others, and stay as they are
  int Procedura = 0;  ///< row of the procedure that gets the name, 0 for none
};

/// A bit stays a bit, a byte a byte, and so on; timers and counters are among themselves. The name
/// of a procedure has letters, digits and "_" and fits behind CALL in its column.
Cambio_Nome Rinomina(const Sorgente& testi, const Nominato& vecchio, const std::string& nuovo);

}  // namespace tavorno
