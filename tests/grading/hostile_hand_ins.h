// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tests/grading/exercise_bed.h"

namespace tavorno::prova {

/// A hand-in of somebody who did not do the exercise.
struct Ostile {
  std::string Nome;
  std::string File;
  double Limite = 0;  ///< part of the marks that it may earn
};

/// All of an exercise; those that must be written go to `cartella`.
std::vector<Ostile> Consegne_Ostili(const Esempio& esempio, const std::filesystem::path& cartella);

}  // namespace tavorno::prova
