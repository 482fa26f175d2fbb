// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>

#include "bench/commands.h"
#include "tests/support/hand_in_bed.h"

namespace tavorno::prova {

/// The command line of the bench, with a folder for its files.
class Banco_Comandi : public Banco_Consegne {
 public:
  /// Runs a command; its output goes to `out` and `err`.
  int Comando(const std::vector<std::string>& parole) {
    std::ostringstream o, e;
    const int stato = Banco(parole, o, e);
    out = o.str();
    err = e.str();
    return stato;
  }
};

}  // namespace tavorno::prova
