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

/// Replaces a file, or writes to what is none, as a pipe; what goes wrong is thrown as
/// `std::runtime_error`, in Italian.
void Scrivi_Rapporto(const std::string& file, const std::string& testo);

}  // namespace tavorno
