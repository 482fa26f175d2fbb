// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavorno {

/// Something that did not hold, in the student's language (UTF-8), and when.
struct Rilievo {
  std::int64_t Ms = 0;  ///< virtual time since the case began
  std::string Testo;

  bool operator==(const Rilievo&) const = default;
};

/// One `prova` of a script. What a script does outside of all is a case of its own.
struct Caso {
  std::string Script;  ///< file name
  std::string Nome;
  std::vector<Rilievo> Rilievi;   ///< empty: the case is passed
  std::vector<std::string> Note;  ///< what the script printed
  std::int64_t Ms = 0;            ///< virtual time of the case
  double Punti = 0, Massimo = 0;
  std::string Listato;  ///< the program where it went wrong, in lines; empty when it did not

  bool Superato() const { return Rilievi.empty(); }
  bool operator==(const Caso&) const = default;
};

/// What all scripts say of one project.
struct Esito_Progetto {
  std::string Progetto;  ///< path as given
  bool Illeggibile = false;
  std::vector<Caso> Casi;

  int Superati() const;
  double Punti() const;
  double Massimo() const;
  bool Superato() const { return Superati() == static_cast<int>(Casi.size()); }
  /// The first thing that did not hold; empty when all did.
  std::string Primo_Rilievo() const;
};

}  // namespace tavorno
