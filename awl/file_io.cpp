// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/file_io.h"

#include <cerrno>
#include <fstream>

namespace tavorno {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t dimensione_massima = std::uintmax_t{16} * 1024 * 1024;
constexpr const char* non_un_file = "il percorso non è un file";

/// The file at the end of a chain of links, which need not exist.
fs::path Fine_Della_Catena(fs::path file, std::error_code& errore) {
  constexpr int anelli = 40;
  for (int i = 0; i < anelli; ++i) {
    file = fs::weakly_canonical(file, errore);
    if (errore || !fs::is_symlink(fs::symlink_status(file, errore))) {
      if (errore == std::errc::no_such_file_or_directory) errore.clear();
      return file;
    }
    file = file.parent_path() / fs::read_symlink(file, errore);
  }
  errore = std::make_error_code(std::errc::too_many_symbolic_link_levels);
  return file;
}

}  // namespace

fs::path Percorso_Disco(std::string_view utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

std::string Testo_Percorso(const fs::path& percorso) {
  const std::u8string utf8 = percorso.generic_u8string();
  return {utf8.begin(), utf8.end()};
}

std::string Causa_Disco(std::error_code errore) {
  static const struct {
    std::errc quale;
    const char* causa;
  } cause[] = {
      {std::errc::no_such_file_or_directory, "il file o la cartella non esiste"},
      {std::errc::permission_denied, "permesso negato"},
      {std::errc::operation_not_permitted, "permesso negato"},
      {std::errc::read_only_file_system, "il disco è di sola lettura"},
      {std::errc::no_space_on_device, "il disco è pieno"},
      {std::errc::file_too_large, "il file è troppo grande per il disco"},
      {std::errc::is_a_directory, "il percorso è una cartella"},
      {std::errc::not_a_directory, "una parte del percorso non è una cartella"},
      {std::errc::filename_too_long, "il nome del file è troppo lungo"},
      {std::errc::too_many_symbolic_link_levels, "i collegamenti girano in tondo"},
      {std::errc::text_file_busy, "il file è aperto in un altro programma"},
      {std::errc::invalid_argument, "il nome del file non è ammesso"},
      {std::errc::device_or_resource_busy, "un altro programma sta scrivendo lo stesso file"},
      {std::errc::io_error, "errore del disco"},
  };
  for (const auto& riga : cause) {
    if (errore == riga.quale) return riga.causa;
  }
#ifdef EDQUOT
  if (errore == std::error_code(EDQUOT, std::generic_category())) return "il disco è pieno";
#endif
  return "errore di sistema: " + errore.message();
}

Contenuto_File Leggi_File(const std::string& percorso) {
  const fs::path file = Percorso_Disco(percorso);
  std::error_code errore;
  const fs::file_status stato = fs::status(file, errore);
  if (errore) return {"", Causa_Disco(errore)};
  if (fs::is_directory(stato))
    return {"", Causa_Disco(std::make_error_code(std::errc::is_a_directory))};
  if (!fs::is_regular_file(stato)) return {"", non_un_file};
  const std::uintmax_t dimensione = fs::file_size(file, errore);
  if (errore) return {"", Causa_Disco(errore)};
  if (dimensione > dimensione_massima) return {"", "il file è troppo grande per un progetto"};
  std::ifstream aperto(file, std::ios::binary);
  std::string byte(static_cast<std::size_t>(dimensione), '\0');
  if (!aperto.read(byte.data(), static_cast<std::streamsize>(dimensione)))
    return {"", Causa_Disco({errno, std::generic_category()})};
  return {std::move(byte), ""};
}

std::string Scrivi_File(const std::string& percorso, std::string_view byte, Modo_Scrittura modo) {
  if (percorso.empty())
    return Causa_Disco(std::make_error_code(std::errc::no_such_file_or_directory));
  std::error_code errore;
  const fs::path file = Fine_Della_Catena(Percorso_Disco(percorso), errore);
  if (errore) return Causa_Disco(errore);
  const fs::file_status stato = fs::status(file, errore);
  if (fs::is_directory(stato)) return Causa_Disco(std::make_error_code(std::errc::is_a_directory));
  if (fs::exists(stato) && !fs::is_regular_file(stato)) return non_un_file;  // nor becomes one
  errore = Sostituisci(file, byte, modo);
  return errore ? Causa_Disco(errore) : "";
}

}  // namespace tavorno
