// SPDX-License-Identifier: GPL-3.0-or-later
// The command lines of the programs, as tables.
#pragma once

#include "manual/manual.h"

namespace tavorno {

const Manuale& Manuale_Tavorno();
const Manuale& Manuale_Banco();
const Manuale& Manuale_Prova();   ///< of the bench's command "prova"
const Manuale& Manuale_Classe();  ///< of the bench's command "classe"

/// What stands above the list of the functions that scripts call.
extern const Testo_Manuale Titolo_Funzioni;

}  // namespace tavorno
