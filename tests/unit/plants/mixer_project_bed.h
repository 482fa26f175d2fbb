// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

/// A solved project of a process plant, whose outputs are told by their addresses.
class Banco_Processo : public Banco_Risolto {
 public:
  /// Runs until an output has a value; false when that takes more than a minute and a half.
  bool Attendi(const char* uscita, bool valore) {
    return Banco_Risolto::Attendi([&] { return Q(uscita) == valore; });
  }

  /// An output by its address, such as "Q0.5".
  bool Q(const std::string& indirizzo) const {
    return Banco_Risolto::Q((indirizzo[1] - '0') * 8 + indirizzo[3] - '0' + 1);
  }
  /// Those of the outputs of a list that are on: "Q0.0 Q0.5".
  std::string Accese(const std::string& elenco) const {
    std::string accese;
    for (std::size_t i = 0; i + 4 <= elenco.size(); i += 5) {
      const std::string indirizzo = elenco.substr(i, 4);
      if (Q(indirizzo)) accese += (accese.empty() ? "" : " ") + indirizzo;
    }
    return accese;
  }

  std::string Scritta(const char* nome) { return F(nome).Caption; }
  int Litri() { return std::stoi(Scritta("etcap")); }
};

}  // namespace tavorno::prova
