// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "awl/project.h"

namespace tavorno {

/// The texts of a project as they stood before a command. A read that fails empties the project;
/// this is what its undo brings back.
class Copia_Progetto {
 public:
  explicit Copia_Progetto(const Progetto& progetto);

  bool Vuota() const { return Main.empty() && procedure_.empty(); }
  /// The project as it was, edited and not yet saved.
  void Rimetti(Progetto& progetto) const;

  std::string Main;
  std::string Procedura;  ///< the text of the selected procedure

 private:
  std::vector<Riga_SBR> procedure_;
  std::vector<std::string> schede_;
  int scheda_;
  std::string titolo_;
  std::array<std::string, 3> pannelli_;
};

}  // namespace tavorno
