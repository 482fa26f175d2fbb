// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/file_io.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include "project_bed.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;
using Lista = std::vector<std::string>;

/// A disk that is full behind this many bytes of a file.
class Disco_Pieno {
 public:
  explicit Disco_Pieno(rlim_t byte) : vecchio_segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &vecchio_);
    const rlimit nuovo{byte, vecchio_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &nuovo);
  }
  ~Disco_Pieno() {
    ::setrlimit(RLIMIT_FSIZE, &vecchio_);
    std::signal(SIGXFSZ, vecchio_segnale_);
  }
  Disco_Pieno(const Disco_Pieno&) = delete;
  Disco_Pieno& operator=(const Disco_Pieno&) = delete;

 private:
  void (*vecchio_segnale_)(int);
  rlimit vecchio_{};
};

class Maschera {
 public:
  explicit Maschera(mode_t maschera) : vecchia_(::umask(maschera)) {}
  ~Maschera() { ::umask(vecchia_); }
  Maschera(const Maschera&) = delete;
  Maschera& operator=(const Maschera&) = delete;

 private:
  mode_t vecchia_;
};

}  // namespace

class AtomicWrite : public Banco_Progetto {
 protected:
  Lista Nomi() const {
    Lista nomi;
    for (const auto& voce : fs::directory_iterator(cartella))
      nomi.push_back(voce.path().filename().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }
  mode_t Modo(const std::string& nome) const {
    struct stat stato {};
    EXPECT_EQ(::stat(Percorso(nome).c_str(), &stato), 0);
    return stato.st_mode & 07777U;
  }
};

TEST_F(AtomicWrite, MakesANewFileWithTheseBytesOnly) {
  std::string byte;
  for (int i = 0; i < 256; ++i) byte += static_cast<char>(i);
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), byte), "");
  EXPECT_EQ(Leggi("a.AWL"), byte);
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
}

TEST_F(AtomicWrite, ReplacesALongerFile) {
  Scrivi("a.AWL", std::string(100000, 'x'));
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "corto"), "");
  EXPECT_EQ(Leggi("a.AWL"), "corto");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), ""), "");
  EXPECT_EQ(Leggi("a.AWL"), "");
  EXPECT_EQ(Nomi(), Lista{"a.AWL"});
}

// A name that is open elsewhere keeps the old bytes: the file was replaced and not overwritten.
TEST_F(AtomicWrite, LeavesTheOldFileToWhoHasItOpen) {
  Scrivi("a.AWL", "vecchio");
  std::ifstream aperto(Percorso("a.AWL"), std::ios::binary);
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(aperto), {}), "vecchio");
  EXPECT_EQ(Leggi("a.AWL"), "nuovo");
}

TEST_F(AtomicWrite, TakesARelativePath) {
  const fs::path prima = fs::current_path();
  fs::current_path(cartella);
  const std::string errore = Scrivi_File("a.AWL", "nuovo");
  fs::current_path(prima);
  EXPECT_EQ(errore, "");
  EXPECT_EQ(Leggi("a.AWL"), "nuovo");
}

TEST_F(AtomicWrite, KeepsTheOldFileWhenTheDiskIsFull) {
  Scrivi("a.AWL", "vecchio");
  for (const rlim_t spazio : {0U, 1U, 4096U, 65535U}) {
    std::string errore;
    {
      const Disco_Pieno disco(spazio);
      errore = Scrivi_File(Percorso("a.AWL"), std::string(65536, 'n'));
    }
    EXPECT_NE(errore, "") << spazio;
    EXPECT_EQ(Leggi("a.AWL"), "vecchio") << spazio;
    EXPECT_EQ(Nomi(), Lista{"a.AWL"}) << spazio;
  }
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), std::string(65536, 'n')), "");
}

TEST_F(AtomicWrite, MakesNoFileWhenTheDiskIsFull) {
  std::string errore;
  {
    const Disco_Pieno disco(10);
    errore = Scrivi_File(Percorso("a.AWL"), std::string(11, 'n'));
  }
  EXPECT_NE(errore, "");
  EXPECT_EQ(Nomi(), Lista{});
}

struct Caso_Percorso {
  std::string nome;
  std::string percorso;  ///< inside the test's folder unless it is absolute
};

class RefusedPath : public AtomicWrite, public testing::WithParamInterface<Caso_Percorso> {};

TEST_P(RefusedPath, GivesACauseAndTouchesNothing) {
  Scrivi("file", "vecchio");
  fs::create_directory(cartella / "dir");
  const std::string percorso =
      GetParam().percorso.empty() ? "" : (cartella / GetParam().percorso).string();
  EXPECT_NE(Scrivi_File(percorso, "nuovo"), "");
  EXPECT_EQ(Nomi(), (Lista{"dir", "file"}));
  EXPECT_TRUE(fs::is_empty(cartella / "dir"));
  EXPECT_EQ(Leggi("file"), "vecchio");
}

// No user, not even the superuser, can make a file under /sys/kernel.
INSTANTIATE_TEST_SUITE_P(AllCauses, RefusedPath,
                         testing::Values(Caso_Percorso{"None", ""},
                                         Caso_Percorso{"MissingFolder", "manca/a.AWL"},
                                         Caso_Percorso{"TargetIsAFolder", "dir"},
                                         Caso_Percorso{"FolderIsAFile", "file/a.AWL"},
                                         Caso_Percorso{"ReadOnlyFolder", "/sys/kernel/a.AWL"},
                                         Caso_Percorso{"LongName", std::string(300, 'n')}),
                         [](const auto& caso) { return caso.param.nome; });

TEST_F(AtomicWrite, DoesNotReplaceWhatIsNoFile) {
  ASSERT_EQ(::mkfifo(Percorso("tubo").c_str(), 0666), 0);
  EXPECT_EQ(Scrivi_File(Percorso("tubo"), "nuovo"), "il percorso non è un file");
  EXPECT_TRUE(fs::is_fifo(cartella / "tubo"));
  EXPECT_EQ(Nomi(), Lista{"tubo"});
}

TEST_F(AtomicWrite, WritesThroughALinkAndKeepsIt) {
  fs::create_directory(cartella / "dir");
  Scrivi("dir/vero.AWL", "vecchio");
  fs::create_symlink("dir/vero.AWL", cartella / "a.AWL");
  EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
  EXPECT_EQ(fs::read_symlink(cartella / "a.AWL"), "dir/vero.AWL");
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(cartella / "dir/vero.AWL")));
  EXPECT_EQ(Leggi("dir/vero.AWL"), "nuovo");
  EXPECT_EQ(Nomi(), (Lista{"a.AWL", "dir"}));
}

TEST_F(AtomicWrite, KeepsThePermissionsOfTheOldFile) {
  const Maschera maschera(022);
  Scrivi("a.AWL", "vecchio");
  for (const mode_t modo : {0600U, 0640U, 0666U, 0755U}) {
    ASSERT_EQ(::chmod(Percorso("a.AWL").c_str(), modo), 0);
    EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "nuovo"), "");
    EXPECT_EQ(Modo("a.AWL"), modo);
  }
}

TEST_F(AtomicWrite, GivesANewFileThePermissionsOfTheMask) {
  {
    const Maschera maschera(027);
    EXPECT_EQ(Scrivi_File(Percorso("a.AWL"), "a"), "");
  }
  {
    const Maschera maschera(022);
    EXPECT_EQ(Scrivi_File(Percorso("b.AWL"), "b"), "");
    EXPECT_EQ(::umask(022), 022U);  // the write leaves the mask alone
  }
  EXPECT_EQ(Modo("a.AWL"), 0640U);
  EXPECT_EQ(Modo("b.AWL"), 0644U);
}

TEST_F(AtomicWrite, FailingForASaveIsShownAndSetsAnnulla) {
  Scrivi("a.AWL", "vecchio");
  progetto.txtList = "NOT";
  scelte = {"a.AWL"};
  {
    const Disco_Pieno disco(3);
    progetto.mnuFileSave();
  }
  EXPECT_EQ(progetto.Annulla, -1);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Titolo, "Errore!");
  EXPECT_EQ(Leggi("a.AWL"), "vecchio");
}

TEST_F(AtomicWrite, FailingForAnExportIsShownAndSetsAnnulla) {
  progetto.Scrivi_Main("NOT");
  scelte = {"manca/a.TXT"};
  progetto.mnuFileTxtExp();
  EXPECT_EQ(progetto.Annulla, -1);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Titolo, "Errore!");
}

TEST_F(AtomicWrite, FailingForTheCompileEndsIt) {
  progetto.Scrivi_Main("NOT");
  scelte = {"manca/a.AWL"};
  progetto.mnuPlcCompile();
  EXPECT_EQ(avvisi.size(), 2U);  // the guard and the failed write
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Lista_Comp, "");
}

// ---- a kill at any moment -----------------------------------------------------------------------

/// A child that writes two contents in turn and tells through a pipe before and after each write.
class Figlio {
 public:
  Figlio(const std::string& percorso, const std::string& uno, const std::string& due) {
    int capi[2];
    if (::pipe(capi) != 0) std::abort();
    figlio_ = ::fork();
    if (figlio_ == 0) {
      ::close(capi[0]);
      for (bool primo = true;; primo = !primo) {
        if (::write(capi[1], "<", 1) != 1) ::_exit(1);
        if (!Scrivi_File(percorso, primo ? uno : due).empty()) ::_exit(2);
        if (::write(capi[1], ">", 1) != 1) ::_exit(1);
      }
    }
    ::close(capi[1]);
    capo_ = capi[0];
  }
  ~Figlio() { ::close(capo_); }
  Figlio(const Figlio&) = delete;
  Figlio& operator=(const Figlio&) = delete;

  /// Kills the child behind so many messages; true when it was still alive.
  bool Uccidi_Dopo(int messaggi) const {
    char messaggio = 0;
    for (int i = 0; i < messaggi; ++i) {
      if (::read(capo_, &messaggio, 1) != 1) break;
    }
    ::kill(figlio_, SIGKILL);
    int stato = 0;
    ::waitpid(figlio_, &stato, 0);
    return WIFSIGNALED(stato) && WTERMSIG(stato) == SIGKILL;
  }

 private:
  pid_t figlio_ = -1;
  int capo_ = -1;
};

TEST_F(AtomicWrite, KilledAtAnyMomentLeavesOneCompleteContent) {
  const std::string zero = "vecchio";
  const std::string uno(1U << 20U, 'u');
  const std::string due(1U << 19U, 'd');
  for (int messaggi = 0; messaggi <= 10; ++messaggi) {
    Scrivi("a.AWL", zero);
    const Figlio figlio(Percorso("a.AWL"), uno, due);
    ASSERT_TRUE(figlio.Uccidi_Dopo(messaggi));
    const std::string byte = Leggi("a.AWL");
    EXPECT_TRUE(byte == zero || byte == uno || byte == due)
        << byte.size() << " bytes behind " << messaggi << " messages";
    EXPECT_TRUE(messaggi < 2 || byte != zero) << "a finished write is there";
  }
}

}  // namespace tavorno::prova
