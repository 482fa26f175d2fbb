// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "plants/io_tables.h"

namespace tavorno {

/// What the pages of the exercises are completed with.
struct Pagina_Esercizio {
  std::string Pagina;  ///< "US-00.htm"
  std::string Titolo;
  std::span<const Riga_IO> Righe;
  std::string Controlli = {};  ///< the section of what its script asks for; may be empty
};

/// The lines of a page that are replaced.
inline constexpr const char* segno_tabella = "<!-- TABELLA_IO -->";
inline constexpr const char* segno_schema = "<!-- SCHEMA -->";
/// The heading that the section of the demands comes before.
inline constexpr const char* titolo_domande = "<h2>Domande</h2>";

/// The page with its table and a reference to its diagram in the place of the two lines, and with
/// what its script asks for before the questions.
std::string Completa_Pagina(const std::string& pagina, const Pagina_Esercizio& esercizio);

/// The file of an exercise's diagram below "Panel/": "pictures/US-00-schema.svg".
std::string File_Schema(const Pagina_Esercizio& esercizio);

/// Writes the finished help: copies pages, style and pictures from `sorgente`, completes the pages
/// of the exercises, draws their diagrams and adds the page of the instruction set. Throws
/// std::runtime_error when a file is missing or cannot be written.
void Scrivi_Guida(const std::filesystem::path& sorgente, const std::filesystem::path& destinazione,
                  std::span<const Pagina_Esercizio> esercizi);

}  // namespace tavorno
