// SPDX-License-Identifier: GPL-3.0-or-later
// A file that somebody else has changed meanwhile.
#include "awl/seen_files.h"

#include <chrono>

#include "project_bed.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

/// 2026-11-22 10:32:05 in the time of the place.
std::int64_t Momento() {
  std::tm parti{};
  parti.tm_year = 126;
  parti.tm_mon = 10;
  parti.tm_mday = 22;
  parti.tm_hour = 10;
  parti.tm_min = 32;
  parti.tm_sec = 5;
  parti.tm_isdst = -1;
  return std::mktime(&parti);
}

class SeenFiles : public Banco_Progetto {
 public:
  /// As another program does it at a known moment.
  void Cambia(const std::string& nome, const std::string& byte) const {
    Scrivi_Byte(cartella / nome, byte);
    const std::chrono::sys_seconds ora{std::chrono::seconds(Momento())};
    fs::last_write_time(cartella / nome, std::chrono::file_clock::from_sys(ora));
  }
  void Apri(const std::string& nome) {
    scelte = {nome};
    progetto.mnuFileOpen();
    ASSERT_EQ(progetto.Err_Lettura, 0);
  }
};

const std::string prima = Byte_Di_Progetto({"LD I0.0"}), dopo = Byte_Di_Progetto({"LD I0.1"});

}  // namespace

TEST_F(SeenFiles, TellWhatOthersDidAndWhen) {
  File_Visti visti;
  EXPECT_FALSE(visti.Cambiato(Percorso("a")));
  Cambia("a", "uno");
  EXPECT_FALSE(visti.Cambiato(Percorso("a"))) << "never seen";
  visti.Nota(Percorso("a"), "uno");
  EXPECT_FALSE(visti.Cambiato(Percorso("a")));
  Cambia("a", "due");
  ASSERT_TRUE(visti.Cambiato(Percorso("a")));
  EXPECT_EQ(visti.Cambiato(Percorso("a"))->Ora, Momento());
  EXPECT_FALSE(visti.Cambiato(Percorso("a"))->Tolto);
  Scrivi_Byte(cartella / "a", "uno");  // another time, the same bytes
  EXPECT_FALSE(visti.Cambiato(Percorso("a")));
  fs::remove(cartella / "a");
  ASSERT_TRUE(visti.Cambiato(Percorso("a")));
  EXPECT_TRUE(visti.Cambiato(Percorso("a"))->Tolto);
  EXPECT_EQ(Momento_Italiano(Momento()), "il 22/11/2026 alle 10:32:05");
}

TEST_F(SeenFiles, AreOneFileByWhateverWay) {
  File_Visti visti;
  Cambia("a", "uno");
  fs::create_directory(cartella / "altra");
  visti.Nota((cartella / "." / "a").string(), "uno");
  Cambia("a", "due");
  EXPECT_TRUE(visti.Cambiato(Percorso("a")));
  EXPECT_TRUE(visti.Cambiato((cartella / "altra" / ".." / "a").string()));
}

TEST_F(SeenFiles, TellEachChangeOnce) {
  File_Visti visti;
  visti.Nota(Percorso("a"), "uno");
  Cambia("a", "due");
  EXPECT_TRUE(visti.Cambiato_Ancora(Percorso("a")));
  EXPECT_FALSE(visti.Cambiato_Ancora(Percorso("a")));
  EXPECT_TRUE(visti.Cambiato(Percorso("a"))) << "a save asks all the same";
  Cambia("a", "tre");
  EXPECT_TRUE(visti.Cambiato_Ancora(Percorso("a")));
  Cambia("a", "uno");
  EXPECT_FALSE(visti.Cambiato_Ancora(Percorso("a"))) << "back to what is known";
  Cambia("a", "tre");
  EXPECT_TRUE(visti.Cambiato_Ancora(Percorso("a")));
  visti.Nota(Percorso("a"), "quattro");
  Cambia("a", "tre");
  EXPECT_TRUE(visti.Cambiato_Ancora(Percorso("a"))) << "saved over it and changed again";
}

TEST_F(SeenFiles, ASaveAsksForAnotherNameWithTheTime) {
  Scrivi("a.AWL", prima);
  Apri("a.AWL");
  Cambia("a.AWL", dopo);
  progetto.Scrivi_Main("NOT");
  richieste.clear();
  scelte = {"a.AWL", "b.AWL"};
  risposte = {Risposta::Si};
  progetto.mnuFileSave();
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Testo,
            "Il file \"a.AWL\" è stato cambiato da un altro programma il 22/11/2026 alle 10:32:05, "
            "dopo che qui era stato letto o salvato.\n\nSalvare con un altro nome? Con No il file "
            "viene sostituito.");
  ASSERT_EQ(richieste.size(), 2U);
  EXPECT_EQ(richieste[0].Ultimo, Percorso("a.AWL"));
  EXPECT_EQ(richieste[1].Proposta, "a-copia.AWL");
  EXPECT_EQ(Leggi("a.AWL"), dopo);
  EXPECT_NE(Leggi("b.AWL").find("NOT"), std::string::npos);
  EXPECT_EQ(progetto.File_Salvato, Percorso("b.AWL"));
}

TEST_F(SeenFiles, ASaveGivesWayWhenNoOtherNameIsChosen) {
  Scrivi("a.AWL", prima);
  Apri("a.AWL");
  Cambia("a.AWL", dopo);
  progetto.Scrivi_Main("NOT");
  scelte = {"a.AWL"};
  risposte = {Risposta::Si};
  progetto.mnuFileSave();
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(Leggi("a.AWL"), dopo);
  EXPECT_TRUE(progetto.Da_Salvare());
}

TEST_F(SeenFiles, ASaveReplacesKnowingly) {
  Scrivi("a.AWL", prima);
  Apri("a.AWL");
  Cambia("a.AWL", dopo);
  progetto.Scrivi_Main("NOT");
  risposte = {Risposta::No};
  for (int volta = 0; volta < 2; ++volta) {
    scelte = {"a.AWL"};
    progetto.mnuFileSave();
    EXPECT_EQ(progetto.Annulla, 0);
  }
  EXPECT_EQ(avvisi.size(), 1U) << "the second save finds what the first one wrote";
  EXPECT_NE(Leggi("a.AWL").find("NOT"), std::string::npos);
}

TEST_F(SeenFiles, ExportsAndImportsAreSeenToo) {
  progetto.Scrivi_Main("NOT");
  scelte = {"a.TXT"};
  progetto.mnuFileTxtExp();
  Cambia("a.TXT", "di un compagno");
  scelte = {"a.TXT"};
  risposte = {Risposta::Si};
  progetto.mnuFileTxtExp();
  EXPECT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(Leggi("a.TXT"), "di un compagno");
}

TEST_F(SeenFiles, TheNameLastUsedFollowsReadsAndSaves) {
  const auto offerto = [this] {
    richieste.clear();
    progetto.mnuFileSave();
    return richieste.at(0).Ultimo;
  };
  progetto.mnuFileNew(false);
  EXPECT_EQ(offerto(), "");
  scelte = {"mio.AWL"};
  EXPECT_EQ(offerto(), "");
  EXPECT_EQ(offerto(), Percorso("mio.AWL"));
  EXPECT_EQ(richieste.at(0).Proposta, "NoName.AWL") << "the offer stays";
  Scrivi("altro.AWL", prima);
  Apri("altro.AWL");
  EXPECT_EQ(offerto(), Percorso("altro.AWL"));
  progetto.mnuFileNew(false);
  EXPECT_EQ(offerto(), "");
}

}  // namespace tavorno::prova
