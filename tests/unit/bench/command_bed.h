// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench/commands.h"

namespace tavorno::prova {

/// The command line of the bench, with a folder for its files.
class Banco_Comandi : public ::testing::Test {
 public:
  Banco_Comandi() {
    std::string nome = (std::filesystem::temp_directory_path() / "tavorno-banco-XXXXXX").string();
    cartella = ::mkdtemp(nome.data());
  }
  ~Banco_Comandi() override { std::filesystem::remove_all(cartella); }

  /// Runs a command; its output goes to `out` and `err`.
  int Comando(const std::vector<std::string>& parole) {
    std::ostringstream o, e;
    const int stato = Banco(parole, o, e);
    out = o.str();
    err = e.str();
    return stato;
  }

  /// A project file with these lines in its Main block.
  std::string Progetto_Con(const std::vector<std::string>& righe,
                           const std::string& nome = "prova.AWL") const {
    std::string testo = "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\n";
    for (const std::string& riga : righe) testo += riga + "\r\n";
    return File(nome, testo + "END_ORGANIZATION_BLOCK\r\n");
  }
  std::string File(const std::string& nome, const std::string& byte) const {
    std::ofstream(cartella / nome, std::ios::binary) << byte;
    return (cartella / nome).string();
  }

  std::filesystem::path cartella;
  std::string out, err;
};

}  // namespace tavorno::prova
