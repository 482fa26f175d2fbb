// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace tavorno {

/// What the program was started with.
struct Riga_Di_Comando {
  std::optional<int> Stato;  ///< the program ends at once, with this exit status
  std::string File;          ///< project to open; empty for none
};

/// Words in UTF-8, without the program's name and without those that the window library takes for
/// itself. Answers --help and --version on `out`, wrong use on `err`.
Riga_Di_Comando Leggi_Riga_Di_Comando(const std::vector<std::string>& parole, std::ostream& out,
                                      std::ostream& err);

/// Whether the words only ask for --help or --version, for which no screen is needed.
bool Solo_Domande(const std::vector<std::string>& parole);

}  // namespace tavorno
