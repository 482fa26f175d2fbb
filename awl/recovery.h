// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "awl/disk.h"
#include "awl/project.h"

// Copies of texts that are saved nowhere, so that they outlive the process. Each running program
// has a folder of its own, which it holds by a lock; a folder without a holder is what a program
// has left that ended before its time.
namespace tavorno {

/// A project as it is put aside: texts in the code page, names in UTF-8.
struct Copia_Progetto {
  std::int64_t Ora = 0;      ///< of the copy, in seconds since 1970
  std::string Titolo;        ///< file name shown, maybe "NoName.AWL"
  std::string File;          ///< the project's file, empty when it has none
  std::string File_Salvato;  ///< where it was last saved, likewise
  std::string Main;
  std::vector<Riga_SBR> Procedure;
};

Copia_Progetto Copia_Di(const Stato_Progetto& stato, std::int64_t ora);
/// The project that a copy tells of, as text that was typed and not saved yet.
Stato_Progetto Stato_Di(const Copia_Progetto& copia);

std::string Byte_Di(const Copia_Progetto& copia);
/// Nothing when the bytes are not those of a whole copy.
std::optional<Copia_Progetto> Leggi_Copia(std::string_view byte);

/// The user's folder for copies; empty when there is no place for it.
std::filesystem::path Cartella_Copie();

/// The copies of this program. Its folder appears with the first of them, for the user alone.
class Deposito {
 public:
  explicit Deposito(std::filesystem::path cartella_copie) : radice_(std::move(cartella_copie)) {}
  ~Deposito();
  Deposito(const Deposito&) = delete;
  Deposito& operator=(const Deposito&) = delete;

  /// Puts a copy in the place of the one with its number. Returns the cause of a failure, in
  /// Italian.
  std::string Scrivi(int numero, std::string_view byte, bool fino_al_disco);
  void Togli(int numero);
  void Togli_Tutte();

 private:
  std::string Apri();
  std::filesystem::path File(int numero) const;

  std::filesystem::path radice_;
  std::filesystem::path cartella_;      // empty until the first copy
  std::optional<Serratura> serratura_;  // of `cartella_`
};

/// What programs have left that ended before their time. While it lives nobody else gets it.
class Eredita {
 public:
  struct Voce {
    std::filesystem::path File;
    std::string Byte;
    std::optional<Copia_Progetto> Copia;  ///< nothing when the file is damaged
  };

  /// The newest first.
  explicit Eredita(const std::filesystem::path& cartella_copie);
  ~Eredita();
  Eredita(const Eredita&) = delete;
  Eredita& operator=(const Eredita&) = delete;

  const std::vector<Voce>& Voci() const { return voci_; }
  void Butta(std::size_t indice);

 private:
  struct Lascito {
    std::filesystem::path Cartella;
    Serratura Chiusa;
  };
  std::vector<Voce> voci_;
  std::vector<Lascito> lasciti_;
};

}  // namespace tavorno
