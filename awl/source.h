// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "awl/source_line.h"

namespace tavorno {

/// One procedure of the project.
struct Riga_SBR {
  std::uint8_t Num = 0;     ///< its number plus 1: "SBR0" has 1
  std::string Nome;         ///< as written after the block keyword; the caption of its tab
  std::string Sigla;        ///< "SBR" and the number
  std::uint8_t Indice = 0;  ///< the row's own index
  std::string Testo;

  bool operator==(const Riga_SBR&) const = default;
};

inline constexpr int Procedure_Massime = 64;
inline constexpr int Righe_Massime = 301;        ///< of the program, the closing ones included
inline constexpr int Righe_File_Massime = 1001;  ///< of a project file

/// A project as text: a value that knows no file and no window. Texts are bytes of Windows-1252
/// with lines joined by CR LF.
struct Sorgente {
  std::string Main;
  std::vector<Riga_SBR> Procedure;  ///< in the order of the file, at most `Procedure_Massime`
  /// One row per instruction line of the whole project, at most `Righe_Massime`; filled by the
  /// reader only.
  std::vector<Riga_Src> Righe;
  int Righe_Lette = 0;  ///< lines of the file

  bool operator==(const Sorgente&) const = default;
};

}  // namespace tavorno
