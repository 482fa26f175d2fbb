// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "grading/grader.h"

namespace tavorno::prova {

/// An exercise with its script, its solution and the hand-ins that were written for it.
struct Esempio {
  int Numero = 0;  ///< its place in the table

  std::string Nome() const;  ///< "us07"
  std::filesystem::path Soluzione() const;
  std::filesystem::path Script() const;
  /// Hand-ins of this exercise in that folder of tests/grading, sorted.
  std::vector<std::string> Consegne(const std::string& cartella) const;
};

/// What a failing test prints of it.
void PrintTo(const Esempio& esempio, std::ostream* dove);

/// All that there are.
std::vector<Esempio> Esempi();

/// What a hand-in of this exercise is examined with.
Verifiche Con_Lo_Script(const Esempio& esempio);

/// All of them, on all processors, in the order given.
std::vector<Esito_Progetto> Esamina_Insieme(const std::vector<std::string>& consegne,
                                            const Verifiche& verifiche);

/// Marks in parts of the maximum, 0 to 1.
double Quota(const Esito_Progetto& esito);

/// A part of the mark from which a hand-in passes.
inline constexpr double sufficienza = 0.6;

}  // namespace tavorno::prova
