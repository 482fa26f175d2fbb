// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "awl/recovery.h"

namespace tavorno {

/// Keeps a copy of the project's texts for as long as they are saved nowhere. A project that
/// another one took the place of, without a question, keeps its copy until the end.
class Custode_Testi {
 public:
  static constexpr int Periodo = 2000;  ///< ms between two calls of `Passo`

  Custode_Testi(Progetto& progetto, std::filesystem::path cartella_copie);
  ~Custode_Testi();
  Custode_Testi(const Custode_Testi&) = delete;
  Custode_Testi& operator=(const Custode_Testi&) = delete;

  /// Writes what has changed since the last call, fast; a text that has not changed any more is
  /// written once more so that it outlives a power failure.
  void Passo();
  /// The same at once: the process may end with the next instruction.
  void Scrivi_Ora();
  /// The process ends as its user wants it to: no copy is left.
  void Congeda();

  /// Why the last copy could not be written, in Italian; empty when it could.
  const std::string& Errore() const { return errore_; }

 private:
  void Scrivi(bool fino_al_disco);

  Progetto& progetto_;
  Deposito deposito_;
  std::string visti_;     // texts at the last call
  std::string scritti_;   // texts of the copy
  int numero_ = -1;       // of the project it is of; -1: there is no copy
  bool fissati_ = false;  // the copy is on the disk
  std::string errore_;
};

}  // namespace tavorno
