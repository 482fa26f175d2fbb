// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/stat.h>

#include "awl/recovery_keeper.h"
#include "project_bed.h"

namespace tavorno::prova {

using RecoveryRights = Banco_Progetto;

TEST_F(RecoveryRights, CopiesAreTheUsersAlone) {
  namespace fs = std::filesystem;
  const fs::path copie = cartella / "stato" / "ripristino";
  Custode_Testi custode(progetto, copie);
  progetto.Scrivi_Main("LD I0.0");
  custode.Passo();
  int trovate = 0;
  struct stat stato {};
  for (const auto& voce : fs::recursive_directory_iterator(copie)) {
    if (voce.path().extension() != ".copia") continue;
    ++trovate;
    ASSERT_EQ(::stat(voce.path().c_str(), &stato), 0);
    EXPECT_EQ(stato.st_mode & 07777U, 0600U);
  }
  EXPECT_EQ(trovate, 1);
  ASSERT_EQ(::stat(copie.c_str(), &stato), 0);
  EXPECT_EQ(stato.st_mode & 07777U, 0700U);
}

}  // namespace tavorno::prova
