// SPDX-License-Identifier: GPL-3.0-or-later
// Links beside a script are no files that it may use, wherever they lead.
#include <gmock/gmock.h>

#include <filesystem>

#include "grading_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;

class LinkedScript : public Banco_Esami, public ::testing::WithParamInterface<const char*> {};

TEST_P(LinkedScript, IsRefused) {
  File("fuori.lua", "verifica(false, 'letto')");
  File("esami/comune.lua", "verifica(false, 'letto')");
  std::filesystem::create_symlink(cartella / "fuori.lua", cartella / "esami/uscita.lua");
  std::filesystem::create_symlink("comune.lua", cartella / "esami/doppio.lua");
  std::filesystem::create_symlink("nessuno", cartella / "esami/vuoto.lua");
  const std::string nome = GetParam();
  EXPECT_EQ(
      Prova({Progetto_Con({"LD I0.1", "= Q0.0"}), File("esami/s.lua", "usa('" + nome + "')")}), 2);
  EXPECT_THAT(out, HasSubstr("errore nello script: s.lua, riga 1: usa: ")) << nome;
  EXPECT_THAT(out, ::testing::Not(HasSubstr("letto")));
}

INSTANTIATE_TEST_SUITE_P(All, LinkedScript,
                         ::testing::Values("uscita.lua", "doppio.lua", "vuoto.lua"));

}  // namespace tavorno::prova
