// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Exit statuses of `tavorno-banco`.
enum Stato_Uscita {
  Uscita_Buona = 0,
  Uscita_Errori = 1,       ///< compile errors, a run that did not reach its end, a case that failed
  Uscita_Illeggibile = 2,  ///< the project or the script cannot be read
  Uscita_Uso = 64,         ///< wrong use of the command line
};

}  // namespace tavorno
