// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "awl/project.h"

namespace tavorno {

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

  /// How many rows the program will have.
  int Righe() const { return righe_; }
  /// Where a row of the program stands: MEND and RET at the end of their text, SBR at the beginning
  /// of its. Nothing for a number that no row has.
  std::optional<Posto_Riga> Posto(int numero) const;

 private:
  std::vector<std::vector<int>> testi_;
  int righe_ = 0;
};

}  // namespace tavorno
