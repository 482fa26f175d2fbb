// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "awl/source.h"

namespace tavorno {

/// Comments in the CPU's listing: of lines, of networks.
using Commenti_Listato = std::array<bool, 2>;

/// The table of rows while a project is read, line by line.
class Righe_Lette {
 public:
  /// `prima` is what an earlier read left in the table: `SBR` and `INT` lines without a blank find
  /// their mnemonic and operand there.
  explicit Righe_Lette(Commenti_Listato commenti = {}, std::vector<Riga_Src> prima = {})
      : Tabella(std::move(prima)), commenti_(commenti) {}

  /// Classifies one line, fills the next row if it is an instruction, and returns its canonical
  /// text. Throws as `Cerca_Com`.
  std::string Debug_Line(const std::string& riga, Posto_Riga posto = {});
  /// The same for an instruction line, without moving on to the next row. Throws `Riga_Rifiutata`
  /// for one that the table or the columns cannot take.
  std::string Cerca_Com(const std::string& riga, Posto_Riga posto = {});

  std::vector<Riga_Src> Tabella;  ///< rows 0..NRighe-1, and what stands behind them
  int NRighe = 0;                 ///< next free row
  std::vector<Diagnosi> Rilievi;  ///< on lines with more operands than there can be

 private:
  void Rileva(Genere genere, const std::string& riga, Posto_Riga posto);

  Commenti_Listato commenti_;
};

}  // namespace tavorno
