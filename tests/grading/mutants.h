// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tavorno::prova {

/// A project with one thing changed in one line.
struct Mutante {
  int Riga = 0;  ///< of the file, from 1
  std::string Da;
  std::string A;  ///< empty: the line is gone
  std::string Testo;
};

/// All mutants of a project file: a contact negated, a line dropped, the operand of a neighbour, S
/// for R and R for S, a constant doubled and halved. Some do not compile.
std::vector<Mutante> Mutanti(const std::string& progetto);

}  // namespace tavorno::prova
