// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

/// A folder for projects and scripts, and what a command of the bench printed.
class Banco_Consegne : public ::testing::Test {
 public:
  std::string File(const std::string& nome, const std::string& byte) const {
    Scrivi_Byte(cartella / nome, byte);
    return (cartella / nome).string();
  }
  /// A project file with these lines in its Main block.
  std::string Progetto_Con(const std::vector<std::string>& righe,
                           const std::string& nome = "consegna.AWL") const {
    return File(nome, Byte_Di_Progetto(righe));
  }

  Cartella_Temporanea cartella;
  std::string out, err;
};

}  // namespace tavorno::prova
