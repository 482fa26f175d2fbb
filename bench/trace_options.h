// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "bench/arguments.h"
#include "trace/trace.h"

// The files that the command line asks for.
namespace tavorno {

/// Whether inputs and outputs are to be recorded, for `--vcd` or `--svg`.
bool Vuole_Traccia(const Argomenti& argomenti);

/// Writes the files of `--vcd` and `--svg`; the diagram is headed by the name of `progetto`.
void Scrivi_Traccia(const Argomenti& argomenti, const Traccia& traccia,
                    const std::string& progetto);

}  // namespace tavorno
