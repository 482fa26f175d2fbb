// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tavorno {

/// Something in a folder of hand-ins that looks like one and cannot be graded.
struct Scartata {
  std::string Percorso;
  std::string Motivo;  ///< Italian, UTF-8
};

struct Consegne_Trovate {
  std::vector<std::string> Progetti;  ///< *.AWL, in the order of their paths
  std::vector<Scartata> Scartate;     ///< in the order of their paths
};

/// Looks through a folder and its subfolders. Links are never followed, since a hand-in could lead
/// out of the folder with them. Files that nobody would take for a project are passed over.
Consegne_Trovate Cerca_Consegne(const std::string& cartella);

/// Why a file with this name is none to grade although somebody may have meant it, in Italian;
/// empty for others.
std::string Motivo_Del_Nome(const std::string& nome);

/// The extension of a file's name in small letters, ".awl".
std::string Estensione(const std::string& file);

}  // namespace tavorno
