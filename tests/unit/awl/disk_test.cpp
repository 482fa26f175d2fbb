// SPDX-License-Identifier: GPL-3.0-or-later
// What a replaced file keeps, and what a killed replacement leaves.
#include "awl/disk.h"

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <vector>

#include "awl/file_io.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;
using Lista = std::vector<std::string>;

class Disk : public ::testing::Test {
 public:
  std::string Percorso(const std::string& nome) const { return (cartella / nome).string(); }
  Lista Nomi() const {
    Lista nomi;
    for (const auto& voce : fs::directory_iterator(cartella.string()))
      nomi.push_back(voce.path().filename().string());
    std::ranges::sort(nomi);
    return nomi;
  }
  struct stat Stato(const std::string& nome) const {
    struct stat stato {};
    EXPECT_EQ(::stat(Percorso(nome).c_str(), &stato), 0) << nome;
    return stato;
  }

  Cartella_Temporanea cartella;
};

/// A group that this user may give a file to, and that new files do not have.
gid_t Altro_Gruppo() {
  if (::geteuid() == 0) return 4711;
  std::vector<gid_t> gruppi(static_cast<std::size_t>(std::max(::getgroups(0, nullptr), 0)));
  if (::getgroups(static_cast<int>(gruppi.size()), gruppi.data()) < 0) return ::getegid();
  const auto altro = std::ranges::find_if(gruppi, [](gid_t g) { return g != ::getegid(); });
  return altro == gruppi.end() ? ::getegid() : *altro;
}

}  // namespace

// A class writes into one folder: the file stays its group's, and writable for it.
TEST_F(Disk, AReplacedFileKeepsItsGroupAndItsMode) {
  const gid_t gruppo = Altro_Gruppo();
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  ASSERT_EQ(::chown(Percorso("a.AWL").c_str(), static_cast<uid_t>(-1), gruppo), 0);
  ASSERT_EQ(::chmod(Percorso("a.AWL").c_str(), 0664), 0);
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
  EXPECT_EQ(Stato("a.AWL").st_gid, gruppo);
  EXPECT_EQ(Stato("a.AWL").st_mode & 07777U, 0664U);
}

// What an access list is on disk: a version, and rows of kind, rights and who.
struct Voce_Lista {
  std::uint16_t Genere, Diritti;
  std::uint32_t Chi;
};
struct Lista_Diritti {
  std::uint32_t Versione = 2;
  std::array<Voce_Lista, 5> Voci = {{{0x01, 6, ~0U},   // owner
                                     {0x02, 6, 4711},  // a colleague
                                     {0x04, 4, ~0U},   // group
                                     {0x10, 6, ~0U},   // mask
                                     {0x20, 0, ~0U}}};
};

TEST_F(Disk, AReplacedFileKeepsItsAccessList) {
  constexpr const char* nome = "system.posix_acl_access";
  const Lista_Diritti data;
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  if (::setxattr(Percorso("a.AWL").c_str(), nome, &data, sizeof data, 0) != 0) {
    ASSERT_EQ(errno, ENOTSUP) << "this file system has lists, and refused one";
    EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "") << "nor does a save need them";
    return;
  }
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
  Lista_Diritti letta;
  letta.Voci = {};
  ASSERT_EQ(::getxattr(Percorso("a.AWL").c_str(), nome, &letta, sizeof letta),
            static_cast<ssize_t>(sizeof letta));
  EXPECT_EQ(std::memcmp(&letta, &data, sizeof data), 0);
}

TEST_F(Disk, AFileForTheUserAloneIsThatWhateverTheMaskSays) {
  const mode_t maschera = ::umask(0);
  EXPECT_EQ(Scrivi_File(Percorso("a"), "uno", {.Solo_Utente = true}), "");
  ::umask(maschera);
  EXPECT_EQ(Stato("a").st_mode & 07777U, 0600U);
  ASSERT_EQ(::chmod(Percorso("a").c_str(), 0666), 0);
  EXPECT_EQ(Scrivi_File(Percorso("a"), "due", {.Solo_Utente = true}), "");
  EXPECT_EQ(Stato("a").st_mode & 07777U, 0600U);
}

TEST_F(Disk, AChainOfLinksIsFollowedToItsEnd) {
  fs::create_directory(cartella / "dir");
  for (const bool esiste : {false, true}) {
    const std::string coda = esiste ? "1" : "0";
    const std::string vero = "dir/vero" + coda;
    if (esiste) Scrivi_Byte(cartella / vero, "vecchio");
    fs::create_symlink("vero" + coda, cartella / ("dir/c" + coda));
    fs::create_symlink(Percorso("dir/c" + coda), cartella / ("b" + coda));
    fs::create_symlink("b" + coda, cartella / ("a" + coda));
    EXPECT_EQ(Scrivi_File(Percorso("a" + coda), "nuovo"), "") << esiste;
    EXPECT_EQ(Leggi_Byte(cartella / vero), "nuovo");
    for (const std::string anello : {"a", "b", "dir/c"})
      EXPECT_TRUE(fs::is_symlink(cartella / (anello + coda))) << anello;
    EXPECT_FALSE(fs::is_symlink(cartella / vero));
  }
}

TEST_F(Disk, LinksInACircleAreRefused) {
  fs::create_symlink("b", cartella / "a");
  fs::create_symlink("a", cartella / "b");
  EXPECT_EQ(Scrivi_File(Percorso("a"), "nuovo"), "i collegamenti girano in tondo");
  EXPECT_EQ(Nomi(), (Lista{"a", "b"}));
}

TEST_F(Disk, WhatAKilledSaveHasLeftIsTakenOver) {
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  Scrivi_Byte(cartella / ".a.AWL.tavorno", "mezzo");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
}

// Whoever put something there, nothing is written through it.
TEST_F(Disk, TheHiddenNameIsNoWayIntoAnotherFile) {
  Scrivi_Byte(cartella / "altro", "di altri");
  fs::create_symlink("altro", cartella / ".a.AWL.tavorno");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Leggi_Byte(cartella / "altro"), "di altri");
  fs::create_hard_link(cartella / "altro", cartella / ".a.AWL.tavorno");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Leggi_Byte(cartella / "altro"), "di altri");
  EXPECT_EQ(Nomi(), (Lista{"a.AWL", "altro"}));
}

TEST_F(Disk, ALongNameHasItsHiddenNameToo) {
  const std::string nome(255, 'n');
  EXPECT_EQ(Scrivi_File(Percorso(nome), "nuovo"), "");
  EXPECT_EQ(Nomi(), Lista{nome});
}

// Two programs that save one file at a time do not get into each other's bytes.
TEST_F(Disk, SavesOfTwoProgramsDoNotMix) {
  constexpr int volte = 100;
  const std::string uno(100'000, '1'), due(60'000, '2');
  const auto salva = [&](const std::string& byte) {
    for (int i = 0; i < volte; ++i) {
      if (!Scrivi_File(Percorso("a"), byte, {.Fino_Al_Disco = false}).empty()) return false;
    }
    return true;
  };
  const pid_t figlio = ::fork();
  if (figlio == 0) ::_exit(salva(uno) ? 0 : 1);
  EXPECT_TRUE(salva(due));
  int stato = 0;
  ASSERT_EQ(::waitpid(figlio, &stato, 0), figlio);
  EXPECT_EQ(stato, 0);
  const std::string byte = Leggi_Byte(cartella / "a");
  EXPECT_TRUE(byte == uno || byte == due) << byte.size();
  EXPECT_EQ(Nomi(), Lista{"a"});
}

TEST_F(Disk, ALockHasOneHolder) {
  std::optional<Serratura> prima = Serratura::Prendi(cartella / "lock");
  ASSERT_TRUE(prima);
  EXPECT_FALSE(Serratura::Prendi(cartella / "lock"));
  Serratura spostata = std::move(*prima);
  prima.reset();
  EXPECT_FALSE(Serratura::Prendi(cartella / "lock"));
  { const Serratura fine = std::move(spostata); }
  EXPECT_TRUE(Serratura::Prendi(cartella / "lock"));
  EXPECT_FALSE(Serratura::Prendi(cartella / "manca" / "lock"));
}

TEST_F(Disk, AKilledHolderLosesItsLock) {
  int capi[2];
  ASSERT_EQ(::pipe(capi), 0);
  const pid_t figlio = ::fork();
  if (figlio == 0) {
    const auto sua = Serratura::Prendi(cartella / "lock");
    if (::write(capi[1], sua ? "s" : "n", 1) == 1) ::pause();
    ::_exit(1);
  }
  char preso = 0;
  ASSERT_EQ(::read(capi[0], &preso, 1), 1);
  EXPECT_EQ(preso, 's');
  EXPECT_FALSE(Serratura::Prendi(cartella / "lock"));
  ::kill(figlio, SIGKILL);
  ::waitpid(figlio, nullptr, 0);
  EXPECT_TRUE(Serratura::Prendi(cartella / "lock"));
  ::close(capi[0]);
  ::close(capi[1]);
}

TEST_F(Disk, APrivateFolderIsTheUsersAlone) {
  EXPECT_FALSE(Crea_Cartella_Privata(cartella / "uno" / "due"));
  EXPECT_EQ(Stato("uno/due").st_mode & 07777U, 0700U);
  EXPECT_FALSE(Crea_Cartella_Privata(cartella / "uno" / "due"));
  Scrivi_Byte(cartella / "file", "");
  EXPECT_TRUE(Crea_Cartella_Privata(cartella / "file" / "dentro"));
}

}  // namespace tavorno::prova
