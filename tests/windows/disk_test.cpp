// SPDX-License-Identifier: GPL-3.0-or-later
// What Windows asks of a save, and other systems do not.
// clang-format off
#include <windows.h>
// clang-format on
#include "awl/disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "awl/file_io.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;
using Lista = std::vector<std::string>;

class WindowsDisk : public ::testing::Test {
 public:
  /// A path in the test's folder, UTF-8 as everywhere in the program.
  std::string Percorso(const std::string& nome) const {
    return Testo_Percorso(cartella / Percorso_Disco(nome));
  }
  Lista Nomi() const {
    Lista nomi;
    for (const auto& voce : fs::directory_iterator(cartella))
      nomi.push_back(Testo_Percorso(voce.path().filename()));
    std::ranges::sort(nomi);
    return nomi;
  }

  Cartella_Temporanea base;
  fs::path cartella = base;
};

/// A file that a program holds, and what others may do to it meanwhile.
class Tenuta {
 public:
  Tenuta(const fs::path& file, DWORD altri)
      : maniglia_(
            CreateFileW(file.c_str(), GENERIC_READ, altri, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(maniglia_, INVALID_HANDLE_VALUE);
  }
  ~Tenuta() { CloseHandle(maniglia_); }
  Tenuta(const Tenuta&) = delete;
  Tenuta& operator=(const Tenuta&) = delete;

 private:
  HANDLE maniglia_;
};

}  // namespace

TEST_F(WindowsDisk, NamesHaveTheLettersOfAllLanguages) {
  const std::string nome = "la città è più — Ωμέγα 制御.AWL";
  EXPECT_EQ(Scrivi_File(Percorso(nome), "uno"), "");
  EXPECT_EQ(Scrivi_File(Percorso(nome), "due"), "");
  EXPECT_EQ(Leggi_File(Percorso(nome)).Byte, "due");
  EXPECT_EQ(Nomi(), Lista{nome});
}

TEST_F(WindowsDisk, APathMayBeLongerThan260Letters) {
  for (int i = 0; i < 6; ++i) cartella /= std::string(80, static_cast<char>('a' + i));
  fs::create_directories(cartella);
  ASSERT_GT(Percorso("progetto.AWL").size(), 500U);
  EXPECT_EQ(Scrivi_File(Percorso("progetto.AWL"), "uno"), "");
  EXPECT_EQ(Scrivi_File(Percorso("progetto.AWL"), "due"), "");
  EXPECT_EQ(Leggi_File(Percorso("progetto.AWL")).Byte, "due");
  EXPECT_FALSE(fs::exists(cartella / ".progetto.AWL.tavorno"));
  fs::remove(cartella / "progetto.AWL");
  for (; cartella != base; cartella = cartella.parent_path()) fs::remove(cartella);
}

TEST_F(WindowsDisk, ANameAsLongAsNamesCanBeIsSaved) {
  const std::string nome = std::string(251, 'n') + ".AWL";
  EXPECT_EQ(Scrivi_File(Percorso(nome), "byte"), "");
  EXPECT_NE(Scrivi_File(Percorso('n' + nome), "byte"), "");
  EXPECT_EQ(Nomi(), Lista{nome});
}

TEST_F(WindowsDisk, NamesOfDevicesAreRefusedWithAnyExtension) {
  for (const char* nome : {"CON", "con.AWL", "Nul.AWL", "AUX .AWL", "prn.vecchio.AWL", "COM1.AWL",
                           "lpt9", "COM².AWL", "CONIN$", "conout$.AWL", "nul:flusso"}) {
    EXPECT_TRUE(Di_Sistema(Percorso_Disco(nome))) << nome;
    EXPECT_EQ(Scrivi_File(nome, "byte"), "il nome del file non è ammesso") << nome;
  }
  for (const char* nome : {"CONTO.AWL", "nulla.AWL", "COM10.AWL", "COM.AWL", "lptx.AWL", ".AWL"}) {
    EXPECT_FALSE(Di_Sistema(Percorso_Disco(nome))) << nome;
    EXPECT_EQ(Scrivi_File(Percorso(nome), "byte"), "") << nome;
    EXPECT_EQ(Leggi_File(Percorso(nome)).Byte, "byte") << nome;
  }
}

TEST_F(WindowsDisk, NamesThatNoFileMayHaveAreRefused) {
  for (const char* nome : {"a?.AWL", "a*.AWL", "a|b.AWL", "a<b>.AWL", "\"a\".AWL"})
    EXPECT_NE(Scrivi_File(Percorso(nome), "byte"), "") << nome;
  EXPECT_EQ(Nomi(), Lista{});
}

TEST_F(WindowsDisk, AFileThatAnotherProgramHoldsStaysWhole) {
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  {
    const Tenuta altro(cartella / "a.AWL", FILE_SHARE_READ);
    EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "il file è aperto in un altro programma");
    EXPECT_EQ(Leggi_File(Percorso("a.AWL")).Byte, "vecchio");
  }
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
}

// A scanner or a preview looks at what has just been written, and goes.
TEST_F(WindowsDisk, AFileThatIsHeldForAMomentIsWaitedFor) {
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  std::optional<Tenuta> altro(std::in_place, cartella / "a.AWL", FILE_SHARE_READ);
  std::string errore = "non finito";
  std::thread salva([&] { errore = Scrivi_File(Percorso("a.AWL"), "nuovo"); });
  const fs::path accanto = cartella / ".a.AWL.tavorno";
  while (!fs::exists(accanto)) std::this_thread::yield();
  altro.reset();
  salva.join();
  EXPECT_EQ(errore, "");
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
}

TEST_F(WindowsDisk, AReadOnlyFileIsNotReplaced) {
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  ASSERT_TRUE(SetFileAttributesW((cartella / "a.AWL").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "permesso negato");
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "vecchio");
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
  SetFileAttributesW((cartella / "a.AWL").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsDisk, WhatAKilledSaveHasLeftIsTakenOver) {
  Scrivi_Byte(cartella / "a.AWL", "vecchio");
  Scrivi_Byte(cartella / ".a.AWL.tavorno", "mezzo, e più lungo del nuovo");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
  EXPECT_EQ(Leggi_Byte(cartella / "a.AWL"), "nuovo");
}

TEST_F(WindowsDisk, TwoSavesOfOneFileDoNotMix) {
  const std::string uno(100'000, '1'), due(60'000, '2');
  // On a slow machine the other may have the turn for longer than a save waits, and says so.
  const std::string occupato = "un altro programma sta scrivendo lo stesso file";
  const auto Salva = [&](const std::string& byte, std::string& rifiuto) {
    for (int salvati = 0; salvati < 50 && (rifiuto.empty() || rifiuto == occupato);) {
      rifiuto = Scrivi_File(Percorso("a"), byte, {.Fino_Al_Disco = false});
      if (rifiuto.empty()) ++salvati;
    }
  };
  std::string rifiuto, altro_rifiuto;
  std::thread altro([&] { Salva(due, altro_rifiuto); });
  Salva(uno, rifiuto);
  altro.join();
  EXPECT_EQ(rifiuto, "");
  EXPECT_EQ(altro_rifiuto, "");
  const std::string byte = Leggi_Byte(cartella / "a");
  EXPECT_TRUE(byte == uno || byte == due) << byte.size();
  EXPECT_EQ(Nomi(), Lista{"a"});
}

TEST_F(WindowsDisk, ALockHasOneHolder) {
  std::optional<Serratura> prima = Serratura::Prendi(cartella / "lock");
  ASSERT_TRUE(prima);
  EXPECT_FALSE(Serratura::Prendi(cartella / "lock"));
  prima.reset();
  EXPECT_TRUE(Serratura::Prendi(cartella / "lock"));
  EXPECT_FALSE(Serratura::Prendi(cartella / "manca" / "lock"));
}

TEST_F(WindowsDisk, APrivateFolderIsMadeWithThoseOnTheWay) {
  EXPECT_FALSE(Crea_Cartella_Privata(cartella / "uno" / "due"));
  EXPECT_TRUE(fs::is_directory(cartella / "uno" / "due"));
  EXPECT_FALSE(Crea_Cartella_Privata(cartella / "uno" / "due"));
  Scrivi_Byte(cartella / "file", "");
  EXPECT_TRUE(Crea_Cartella_Privata(cartella / "file" / "dentro"));
}

}  // namespace tavorno::prova
