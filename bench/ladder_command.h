// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>

#include "bench/arguments.h"

namespace tavorno {

/// `scala`: the whole project as a ladder diagram, to `out` or to a file. Returns an exit status of
/// `Stato_Uscita`; throws `Uso_Errato` for a call that is wrong.
int Comando_Scala(const Argomenti& argomenti, std::ostream& out, std::ostream& err);

}  // namespace tavorno
