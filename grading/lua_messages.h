// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tavorno {

/// A message of the script language in Italian (UTF-8): "us00.lua, riga 3: la funzione ...". What
/// has no translation stays as it is. Cut to `lunghezza_messaggio`.
std::string In_Italiano(const std::string& messaggio);

/// Bytes of a message at most.
inline constexpr std::size_t lunghezza_messaggio = 500;

/// Cuts a text to that, not inside a character.
std::string Accorcia(const std::string& testo);

}  // namespace tavorno
