// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tavorno {

struct Progetto;

/// The text of the project for the printer: bytes of Windows-1252, lines ended by CR LF. It is not
/// the exported text: blocks have no end line here.
std::string Testo_Stampa(const Progetto& progetto, bool main, bool procedure);

}  // namespace tavorno
