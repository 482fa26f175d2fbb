// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "bench/arguments.h"

namespace tavorno {

/// Throws `Uso_Errato` when a report named by one of these options would replace a file of
/// `letti`, another report, or anything that is called *.AWL, *.lua or *.seduta; a script may be
/// called *.lua and a session *.seduta.
void Controlla_Rapporti(const Argomenti& argomenti, const std::vector<std::string>& opzioni,
                        const std::vector<std::string>& letti);

/// Writes a report whole or not at all; a pipe or a device is written to. Throws
/// `std::runtime_error` with an Italian message.
void Scrivi_Rapporto(const std::string& file, const std::string& testo);

}  // namespace tavorno
