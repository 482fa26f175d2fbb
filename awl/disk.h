// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

// What the program asks of a file system and systems answer differently. One body per system
// (disk_posix.cpp); what all have in common is in file_io.cpp.
namespace tavorno {

struct Modo_Scrittura {
  bool Solo_Utente = false;   ///< readable by the user alone, whatever mask and folder say
  bool Fino_Al_Disco = true;  ///< outlives a power failure, which may take a tenth of a second
};

/// Replaces a file, or makes it, in one step: whatever happens, a kill too, its name stands for the
/// old bytes or for the new ones, whole. The new bytes are gathered in the same folder under a
/// hidden name that follows from the file's; what a kill left there is taken over. Owner, group and
/// rights of the old file are kept as far as the user may give them. `file` is no link and, when it
/// exists, a regular file.
std::error_code Sostituisci(const std::filesystem::path& file, std::string_view byte,
                            Modo_Scrittura modo);

/// Whether the name is that of a device, a pipe or a terminal: written to, never replaced.
bool Di_Sistema(const std::filesystem::path& file);

/// A lock on a file, among programs and within one; it goes with its owner, or with the process,
/// however that ends.
class Serratura {
 public:
  /// Makes the file where it is missing, for the user alone. Nothing when somebody else holds the
  /// lock, or when it cannot be known.
  static std::optional<Serratura> Prendi(const std::filesystem::path& file);

  Serratura(Serratura&& altra) noexcept;
  Serratura& operator=(Serratura&& altra) noexcept;
  Serratura(const Serratura&) = delete;
  Serratura& operator=(const Serratura&) = delete;
  ~Serratura();

 private:
  explicit Serratura(std::intptr_t aperto) : aperto_(aperto) {}
  std::intptr_t aperto_;
};

/// Makes a folder for the user alone, and those on the way to it. One that is there stays as it is.
std::error_code Crea_Cartella_Privata(const std::filesystem::path& cartella);

/// Where a program keeps what should outlive it and is nobody's document. Empty when the user has
/// no such place.
std::filesystem::path Cartella_Stato_Utente();

}  // namespace tavorno
