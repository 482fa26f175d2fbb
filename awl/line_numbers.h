// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "awl/project.h"

namespace tavorno {

/// A line of the project's texts.
struct Posto_Riga {
  int Testo = 0;  ///< 0 the Main text, else the row of the procedure in `Tab_SBR`
  int Linea = 0;  ///< from 0

  bool operator==(const Posto_Riga&) const = default;
};

/// A line of the editor becomes a row of the CPU's program when the project is saved and read.
/// `nome_vecchio` tells what `SBR` or `INT` without a blank find in their row from an earlier read.
bool Diventa_Riga(std::string_view linea, bool nome_vecchio = false);

/// The numbers that the lines of the texts will have in the CPU, without saving and reading them:
/// the Main's rows, its MEND, then for each procedure its SBR, its rows and its RET. Keywords of
/// the project file that were typed into a text have no number.
class Numerazione {
 public:
  static constexpr int Nessuno = -1;  ///< of a line that is no row

  Numerazione() = default;
  explicit Numerazione(const Progetto& progetto);

  /// One number or `Nessuno` for each line of a text: 0 the Main, else a row of `Tab_SBR`. Empty
  /// for a text that the project does not have.
  const std::vector<int>& Numeri(int testo) const;

  /// Where a row comes from. MEND and RET stand for the last line of their text and SBR for the
  /// first; none for a number that no row has.
  std::optional<Posto_Riga> Posto(int numero) const;

 private:
  std::vector<std::vector<int>> testi_;
  std::vector<Posto_Riga> righe_;
};

}  // namespace tavorno
