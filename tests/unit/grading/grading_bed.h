// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>

#include "bench/grade_command.h"
#include "grading/grader.h"
#include "tests/support/hand_in_bed.h"

namespace tavorno::prova {

/// The command that examines hand-ins, with a folder for them and their scripts.
class Banco_Esami : public Banco_Consegne {
 public:
  /// Runs `prova`; its output goes to `out` and `err`.
  int Prova(const std::vector<std::string>& parole) {
    std::ostringstream o, e;
    const int stato = Comando_Prova(parole, o, e);
    out = o.str();
    err = e.str();
    return stato;
  }

  /// Examines a project made of these lines with a script; exercise -1: without a plant.
  Esito_Progetto Esito(const std::vector<std::string>& righe, const std::string& script,
                       int impianto = -1) {
    Verifiche verifiche = base;
    verifiche.Script.push_back({"esame.lua", script});
    if (impianto >= 0) verifiche.Impianto = &Tabella_Esercizi()[static_cast<std::size_t>(impianto)];
    return Esamina(Progetto_Con(righe), verifiche);
  }

  /// The first thing that did not hold when these lines of a script run inside one `prova`; "" when
  /// all did.
  std::string Rilievo_Di(const std::string& corpo, const std::vector<std::string>& righe = {"NOP"},
                         int impianto = -1) {
    return Esito(righe, "prova('x', function()\n" + corpo + "\nend)", impianto).Primo_Rilievo();
  }

  Verifiche base;
};

}  // namespace tavorno::prova
