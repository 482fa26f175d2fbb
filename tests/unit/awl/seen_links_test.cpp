// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/seen_files.h"
#include "project_bed.h"

namespace tavorno::prova {

using SeenLinks = Banco_Progetto;

TEST_F(SeenLinks, AreTheFileThatTheyLeadTo) {
  File_Visti visti;
  Scrivi_Byte(cartella / "a", "uno");
  std::filesystem::create_symlink("a", cartella / "link");
  visti.Nota(Percorso("link"), "uno");
  Scrivi_Byte(cartella / "a", "un altro");
  EXPECT_TRUE(visti.Cambiato(Percorso("a")));
  EXPECT_TRUE(visti.Cambiato(Percorso("link")));
}

}  // namespace tavorno::prova
