// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "awl/text_edits.h"

namespace tavorno {

/// What to look for in a text; bytes of the code page. Capitals and small letters are the same.
struct Ricerca {
  std::string Cercato;
  bool Parole_Intere = false;  ///< no letter, digit or "_" before and behind it
  bool Solo_Operandi = false;  ///< in operands only: in no mnemonic and no comment
};

struct Trovato {
  int Linea = 0;
  int Colonna = 0;    ///< in characters from 0
  int Lunghezza = 0;  ///< in characters

  bool operator==(const Trovato&) const = default;
};

/// The places, from top to bottom, none inside another.
std::vector<Trovato> Trova_Tutti(std::string_view testo, const Ricerca& ricerca);

/// What replaces all of them.
std::vector<Ritocco> Sostituzioni(std::string_view testo, const Ricerca& ricerca,
                                  const std::string& nuovo);

}  // namespace tavorno
