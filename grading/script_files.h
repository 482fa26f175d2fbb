// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

namespace tavorno {

/// The text of a script and the name under which messages speak of it.
struct Sorgente_Script {
  std::string Nome;
  std::string Testo;
  std::string Cartella = {};  ///< where the files that it uses stand; empty: nowhere
  std::string Impronta = {};  ///< SHA-256 of the file
};

/// Reads a script. What goes wrong is thrown as `std::runtime_error`, in Italian.
Sorgente_Script Leggi_Sorgente(const std::string& file);

/// The script that comes with the program for an exercise, below the program's folder.
std::filesystem::path File_Esercizio(const std::filesystem::path& cartella_programma,
                                     int esercizio);

/// Reads the file that stands under this name beside a script. A script may come from anywhere, so
/// that the name must be a bare one and the file no link: nothing outside the folder is ever
/// opened.
Sorgente_Script Leggi_Vicino(const Sorgente_Script& script, const std::string& nome);

}  // namespace tavorno
