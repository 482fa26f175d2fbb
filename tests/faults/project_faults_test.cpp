// SPDX-License-Identifier: GPL-3.0-or-later
// Every file that the editor writes, on a disk that fails: the user is told, the old file is whole,
// nothing else is left.
#include <algorithm>
#include <functional>

#include "awl/recovery_keeper.h"
#include "tests/faults/faults.h"
#include "tests/unit/awl/project_bed.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

struct Scritto {
  std::string Nome;  ///< of the file
  std::function<void(Progetto&)> Comando;
};

const std::vector<Scritto>& Scritti() {
  static const std::vector<Scritto> scritti = {
      {"a.AWL", [](Progetto& p) { p.mnuFileSave(); }},
      {"pagina.TXT", [](Progetto& p) { p.mnuFileTxtExp(); }},
      {"tutto.TXT", [](Progetto& p) { p.mnufiltxtT(); }},
  };
  return scritti;
}

class EditorFiles : public Banco_Progetto,
                    public testing::WithParamInterface<std::tuple<std::size_t, std::size_t>> {
 public:
  const Scritto& File() const { return Scritti()[std::get<0>(GetParam())]; }
  const Guasto& Come() const { return Guasti()[std::get<1>(GetParam())]; }
  std::vector<std::string> Nomi() const {
    std::vector<std::string> nomi;
    for (const auto& voce : fs::directory_iterator(cartella.string()))
      nomi.push_back(voce.path().filename().string());
    std::ranges::sort(nomi);
    return nomi;
  }
  /// Gives the command on the failing disk.
  void Comanda() {
    progetto.Scrivi_Main("NETWORK 1\r\n" + std::string(20'000, '/') + "\r\nNOT\r\n");
    scelte = {File().Nome};
    const Disco_Guasto guasto(Come().Come, cartella.string());
    File().Comando(progetto);
  }
  void Controlla(const std::string& vecchio) {
    if (Come().Detto.empty()) {
      EXPECT_TRUE(avvisi.empty());
      EXPECT_EQ(progetto.Annulla, 0);
      EXPECT_NE(Leggi(File().Nome).find(std::string(20'000, '/') + "\r\nNOT\r\n"),
                std::string::npos);
      return;
    }
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_EQ(avvisi[0].Titolo, "Errore!");
    EXPECT_NE(avvisi[0].Testo.find(": " + Come().Detto + "!"), std::string::npos)
        << avvisi[0].Testo;
    EXPECT_EQ(progetto.Annulla, -1);
    EXPECT_TRUE(progetto.Da_Salvare());
    if (!vecchio.empty()) {
      EXPECT_EQ(Leggi(File().Nome), vecchio);
    }
  }
};

}  // namespace

TEST(FailingDisk, IsThere) {
  ASSERT_TRUE(Disco_Guastabile()) << "the library is not preloaded, so nothing here would fail";
}

TEST_P(EditorFiles, AreReplacedWholeOrNotAtAll) {
  Scrivi(File().Nome, "vecchio");
  Comanda();
  Controlla("vecchio");
  EXPECT_EQ(Nomi(), std::vector<std::string>{File().Nome});
}

TEST_P(EditorFiles, AreMadeWholeOrNotAtAll) {
  Comanda();
  Controlla("");
  const bool fatto = Come().Detto.empty();
  EXPECT_EQ(Nomi(), fatto ? std::vector<std::string>{File().Nome} : std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(EveryFault, EditorFiles,
                         testing::Combine(testing::Range(std::size_t{0}, Scritti().size()),
                                          testing::Range(std::size_t{0}, Guasti().size())));

// The compile saves first; it does not go on with an older file.
TEST_P(EditorFiles, ACompileEndsWhenItsSaveFails) {
  if (File().Nome != "a.AWL" || Come().Detto.empty()) return;  // of the one file, where one fails
  Scrivi("a.AWL", Byte_Di_Progetto({"LD I0.0"}));
  progetto.Scrivi_Main("NETWORK 1\r\nNOT\r\n");
  scelte = {"a.AWL"};
  {
    const Disco_Guasto guasto(Come().Come, cartella.string());
    progetto.mnuPlcCompile();
  }
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(Leggi("a.AWL"), Byte_Di_Progetto({"LD I0.0"}));
}

// ---- copies of unsaved texts --------------------------------------------------------------------

class Copies : public Banco_Progetto, public testing::WithParamInterface<std::size_t> {
 public:
  std::string Copia() const {
    std::string main;
    for (const auto& voce : fs::recursive_directory_iterator(cartella / "copie")) {
      if (voce.path().extension() == ".copia") {
        EXPECT_EQ(main, "");
        const auto letta = Leggi_Copia(Leggi_Byte(voce.path()));
        EXPECT_TRUE(letta);
        if (letta) main = letta->Main;
      } else {
        EXPECT_TRUE(voce.is_directory() || voce.path().filename() == "in-uso") << voce.path();
      }
    }
    return main;
  }
};

TEST_P(Copies, StayWholeAndFollowWhenTheDiskIsWellAgain) {
  const Guasto& come = Guasti()[GetParam()];
  Custode_Testi custode(progetto, cartella / "copie");
  progetto.Scrivi_Main("primo");
  custode.Passo();
  custode.Passo();
  ASSERT_EQ(Copia(), "primo");
  progetto.Scrivi_Main("secondo");
  {
    const Disco_Guasto guasto(come.Come, cartella.string());
    custode.Passo();
    custode.Passo();  // through to the disk
  }
  EXPECT_EQ(custode.Errore(), come.Detto);
  // The fast copy needs no flush, so one that only the disk refuses is there.
  const bool scritta = come.Detto.empty() || come.Come.starts_with("fsync");
  EXPECT_EQ(Copia(), scritta ? "secondo" : "primo");
  custode.Passo();
  EXPECT_EQ(custode.Errore(), "");
  EXPECT_EQ(Copia(), "secondo");
}

INSTANTIATE_TEST_SUITE_P(EveryFault, Copies, testing::Range(std::size_t{0}, Guasti().size()));

}  // namespace tavorno::prova
