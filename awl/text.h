// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "awl/read_error.h"

namespace tavorno {

inline constexpr std::string_view CRLF = "\r\n";

/// Where the operands of an instruction begin in its canonical line, in characters from 0.
inline constexpr std::size_t Colonna_Operandi = 7;
/// What an instruction has room for in the CPU's listing.
inline constexpr std::size_t Colonna_CPU = 22;
/// Where the comment of a NETWORK line begins in the editor.
inline constexpr std::size_t Colonna_Commento_Network = 16;

/// Without the blanks at either end; other white space stays.
inline std::string Trim(std::string_view testo) {
  const std::size_t primo = testo.find_first_not_of(' ');
  if (primo == std::string_view::npos) return {};
  return std::string(testo.substr(primo, testo.find_last_not_of(' ') - primo + 1));
}

/// Padded with blanks to `colonna` characters. A longer text has no place in its column.
inline std::string Incolonna(std::string testo, std::size_t colonna) {
  if (testo.size() > colonna)
    throw Riga_Rifiutata("il testo supera i " + std::to_string(colonna) + " caratteri ammessi");
  testo.resize(colonna, ' ');
  return testo;
}

}  // namespace tavorno
