// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace tavorno::prova {

/// An empty folder of a test's own, which goes with all its files when its owner does.
class Cartella_Temporanea {
 public:
  Cartella_Temporanea() {
    std::random_device caso;
    do {
      percorso_ =
          std::filesystem::temp_directory_path() / ("tavorno-prova-" + std::to_string(caso()));
    } while (!std::filesystem::create_directory(percorso_));  // false: somebody else has it
    std::filesystem::permissions(percorso_, std::filesystem::perms::owner_all);
  }
  ~Cartella_Temporanea() {
    std::error_code nessuno;
    std::filesystem::remove_all(percorso_, nessuno);
  }
  Cartella_Temporanea(const Cartella_Temporanea&) = delete;
  Cartella_Temporanea& operator=(const Cartella_Temporanea&) = delete;

  operator const std::filesystem::path&() const { return percorso_; }
  std::filesystem::path operator/(const std::string& nome) const { return percorso_ / nome; }
  std::string string() const { return percorso_.string(); }

 private:
  std::filesystem::path percorso_;
};

/// Writes a file byte for byte, and the folders on its way.
inline void Scrivi_Byte(const std::filesystem::path& file, const std::string& byte) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << byte;
}

inline std::string Leggi_Byte(const std::filesystem::path& file) {
  std::ifstream dati(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(dati), {}};
}

/// A project file with these lines in its Main block.
inline std::string Byte_Di_Progetto(const std::vector<std::string>& righe) {
  std::string testo = "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\n";
  for (const std::string& riga : righe) testo += riga + "\r\n";
  return testo + "END_ORGANIZATION_BLOCK\r\n\r\n";
}

}  // namespace tavorno::prova
