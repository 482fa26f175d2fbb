// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench/grading/command.h"
#include "bench/grading/grader.h"

namespace tavorno::prova {

/// A folder for hand-ins and scripts, and the command that examines them.
class Banco_Esami : public ::testing::Test {
 public:
  Banco_Esami() {
    std::string nome = (std::filesystem::temp_directory_path() / "tavorno-esami-XXXXXX").string();
    cartella = ::mkdtemp(nome.data());
  }
  ~Banco_Esami() override { std::filesystem::remove_all(cartella); }

  std::string File(const std::string& nome, const std::string& byte) const {
    std::filesystem::create_directories((cartella / nome).parent_path());
    std::ofstream(cartella / nome, std::ios::binary) << byte;
    return (cartella / nome).string();
  }

  /// A project file with these lines in its Main block.
  std::string Progetto_Con(const std::vector<std::string>& righe,
                           const std::string& nome = "consegna.AWL") const {
    std::string testo = "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\n";
    for (const std::string& riga : righe) testo += riga + "\r\n";
    return File(nome, testo + "END_ORGANIZATION_BLOCK\r\n");
  }

  /// Runs `prova`; its output goes to `out` and `err`.
  int Prova(const std::vector<std::string>& parole) {
    std::ostringstream o, e;
    const int stato = Comando_Prova(parole, o, e);
    out = o.str();
    err = e.str();
    return stato;
  }

  static std::string Leggi(const std::filesystem::path& file) {
    std::ifstream dati(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(dati), {}};
  }

  /// Examines a project made of these lines with a script; exercise -1: without a plant.
  Esito_Progetto Esito(const std::vector<std::string>& righe, const std::string& script,
                       int impianto = -1) {
    Verifiche verifiche = base;
    verifiche.Script.push_back({"esame.lua", script});
    if (impianto >= 0) verifiche.Impianto = &Tabella_Esercizi()[static_cast<std::size_t>(impianto)];
    return Esamina(Progetto_Con(righe), verifiche);
  }

  /// The first thing that did not hold when these lines of a script run inside one `prova`; "" when
  /// all did.
  std::string Rilievo_Di(const std::string& corpo, const std::vector<std::string>& righe = {"NOP"},
                         int impianto = -1) {
    return Esito(righe, "prova('x', function()\n" + corpo + "\nend)", impianto).Primo_Rilievo();
  }

  Verifiche base;
  std::filesystem::path cartella;
  std::string out, err;
};

}  // namespace tavorno::prova
