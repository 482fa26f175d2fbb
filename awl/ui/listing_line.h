// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace tavorno {

/// A line of the compile listing taken apart: "0005 [Err. 3]: XYZ    I0.0  -> message".
struct Riga_Listato {
  bool Valida = false;  ///< false: not a line of the listing, all else is empty
  bool Errata = false;
  int Numero = 0;          ///< row of the program
  std::size_t Testo = 0;   ///< column of the instruction
  std::size_t Avviso = 0;  ///< column of the message, the line's length without one
};

inline Riga_Listato Leggi_Riga_Listato(std::string_view riga) {
  Riga_Listato letta;
  const std::size_t cifre = std::min(riga.find_first_not_of("0123456789"), riga.size());
  const std::size_t esito = riga.find("]: ");
  if (cifre == 0 || cifre > 5 || esito == std::string_view::npos) return letta;
  letta.Valida = true;
  letta.Errata = riga.substr(cifre).starts_with(" [Err.");
  letta.Numero = std::stoi(std::string(riga.substr(0, cifre)));
  letta.Testo = esito + 3;
  const std::size_t freccia = letta.Errata ? riga.rfind("-> ") : std::string_view::npos;
  letta.Avviso = std::min(freccia, riga.size());
  return letta;
}

}  // namespace tavorno
