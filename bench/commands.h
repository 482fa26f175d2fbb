// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tavorno {

/// Exit statuses of `tavorno-banco`.
enum Stato_Uscita {
  Uscita_Buona = 0,
  Uscita_Errori = 1,       ///< compile errors, a run that did not reach its end, a case that failed
  Uscita_Illeggibile = 2,  ///< the project or the script cannot be read
  Uscita_Uso = 64,         ///< wrong use of the command line
};

/// The command line without the program's name. Output in UTF-8; what is wrong goes to `err`.
int Banco(const std::vector<std::string>& argomenti, std::ostream& out, std::ostream& err);

}  // namespace tavorno
