// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tavorno {

/// One file that a class handed in.
struct Consegna {
  std::string Studente;  ///< name as the learning platform tells it; UTF-8
  std::string File;      ///< path inside the folder or archive; UTF-8
  std::string Percorso;  ///< where it can be read
  std::string Motivo;    ///< why it cannot be graded; empty: it can
};

/// What a learning platform says of the student in the path of a file: "Rossi Anna" of
/// "Rossi Anna_123_assignsubmission_file_/us00.AWL"; else the first folder, or the file's own name.
std::string Nome_Studente(const std::string& percorso);

/// The hand-ins of a folder or of a zip, sorted by student and file. Of an archive only projects
/// are unpacked, into `scratch`, under names of our own and within bounds of size and number, so
/// that neither its names nor its contents reach anything else. Throws `std::runtime_error` with an
/// Italian message for what is neither.
std::vector<Consegna> Leggi_Classe(const std::string& origine,
                                   const std::filesystem::path& scratch);

inline constexpr int voci_massime = 10'000;                     ///< of an archive
inline constexpr std::size_t consegna_massima = 1024UL * 1024;  ///< bytes of a project in it

}  // namespace tavorno
