// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavorno {

/// How the bytes of a text file are meant.
enum class Codifica : std::uint8_t {
  Pagina,      ///< in the code page, as the program itself writes them
  Utf8,        ///< with the mark of UTF-8
  Utf16,       ///< with a mark of UTF-16, of either order
  Forse_Utf8,  ///< without a mark, and all characters above 127 are valid UTF-8
};

/// A text file in the code page. Nothing was converted when `Era` is `Pagina` or `Forse_Utf8`.
struct Testo_Letto {
  std::string Byte;
  Codifica Era = Codifica::Pagina;
  int Persi = 0;  ///< characters that the code page lacks, each a "?" now
};

Testo_Letto Riconosci(std::string_view byte);
/// A text of `Forse_Utf8`, converted.
Testo_Letto Da_Utf8_Senza_Segno(std::string_view byte);

}  // namespace tavorno
