// SPDX-License-Identifier: GPL-3.0-or-later
// A class as learning platforms hand it out, and archives that mean harm.
#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>

#include <sstream>

#include "bench/class_command.h"
#include "grading/class_hand_ins.h"
#include "tests/support/hand_in_bed.h"

namespace tavorno::prova {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* script = R"(
prova("segue <I0.1>", 3, function()
  run() ingresso("I0.1", 1) attendi(30)
  print("letto <Q0.0>")
  punti(3, leggi("Q0.0") == 1, "Q0.0 deve seguire I0.1: perché no?")
end)
prova("a riposo", 1, function()
  run() attendi(20)
  punti(1, leggi("Q0.0") == 0, "Q0.0 deve restare spento")
end))";
const std::string buono = Byte_Di_Progetto({"LD I0.1", "= Q0.0"});
const std::string rovescio = Byte_Di_Progetto({"LDN I0.1", "= Q0.0"});

class Class : public Banco_Consegne {
 public:
  int Classe(const std::string& origine, const std::string& dove = "esiti",
             const std::vector<std::string>& altre = {}) {
    std::vector<std::string> parole = {origine, File("s.lua", script), "--uscita",
                                       (cartella / dove).string()};
    parole.insert(parole.end(), altre.begin(), altre.end());
    std::ostringstream o, e;
    const int stato = Comando_Classe(parole, o, e);
    out = o.str();
    err = e.str();
    return stato;
  }
  std::string Letto(const std::string& nome) const { return Leggi_Byte(cartella / nome); }

  struct Voce {
    std::string Nome, Byte;
  };
  std::string Zip(const std::vector<Voce>& voci) const {
    const std::string file = (cartella / "classe.zip").string();
    archive* zip = archive_write_new();
    archive_write_set_format_zip(zip);
    EXPECT_EQ(archive_write_open_filename(zip, file.c_str()), ARCHIVE_OK);
    for (const Voce& voce : voci) {
      archive_entry* entrata = archive_entry_new();
      archive_entry_set_pathname(entrata, voce.Nome.c_str());
      archive_entry_set_size(entrata, static_cast<la_int64_t>(voce.Byte.size()));
      archive_entry_set_filetype(entrata, AE_IFREG);
      archive_entry_set_perm(entrata, 0644);
      archive_entry_set_mtime(entrata, 1'772'878'320, 0);
      archive_write_header(zip, entrata);
      archive_write_data(zip, voce.Byte.data(), voce.Byte.size());
      archive_entry_free(entrata);
    }
    archive_write_free(zip);
    return file;
  }
};

TEST_F(Class, HandInsThatAreAlikeStandBesideEachOther) {
  const std::string zip = Zip({{"Rossi Anna_12_assignsubmission_file_/us.AWL", buono},
                               {"Bianchi Ugo_7_assignsubmission_file_/us.awl", rovescio},
                               {"Verdi <Ada>_9_assignsubmission_file_/us.AWL", buono}});
  Classe(zip);
  EXPECT_THAT(Letto("esiti/indice.html"),
              HasSubstr("<li>Rossi Anna, Verdi &lt;Ada&gt;: lo stesso file</li>"));
  const std::string simili = Letto("esiti/simili.html");
  EXPECT_THAT(simili, HasSubstr("2 consegne: lo stesso file"));
  EXPECT_THAT(simili, HasSubstr("LD     I0.1"));
  EXPECT_THAT(simili, Not(HasSubstr("Bianchi")));
  EXPECT_THAT(Letto("esiti/punti.csv"), Not(HasSubstr("stesso file")));
}

TEST_F(Class, TwinsAreToldAmongThoseThatAreOnlyAlike) {
  const std::string con_merker = Byte_Di_Progetto({"LD I0.1", "= M0.0", "LD M0.0", "= Q0.0"});
  const std::string con_altro = Byte_Di_Progetto({"LD I0.1", "= M1.3", "LD M1.3", "= Q0.0"});
  Classe(Zip({{"Anna.AWL", con_merker}, {"Bea.AWL", con_altro}, {"Carla.AWL", con_merker}}));
  EXPECT_THAT(Letto("esiti/indice.html"),
              HasSubstr("<li>Anna, Bea, Carla: uguali anche cambiando nome a merker, "
                        "temporizzatori, contatori e celle; lo stesso file: Anna, Carla</li>"));
}

TEST_F(Class, AnArchiveOfAPlatformBecomesPagesAndTables) {
  const std::string zip =
      Zip({{"Rossi Anna_12_assignsubmission_file_/us.AWL", buono},
           {"Bianchi Ugo_7_assignsubmission_file_/us.awl", rovescio},
           {"Verdi Ada_9_assignsubmission_file_/us.AWL.txt", buono},
           {"Neri Pia_8_assignsubmission_file_/us.AWL", Byte_Di_Progetto({"FOO"})}});
  EXPECT_EQ(Classe(zip), 1) << err;
  const std::string indice = Letto("esiti/indice.html");
  for (const char* parte :
       {"<a href=\"studente-001.html\">Bianchi Ugo</a>",
        "<a href=\"studente-004.html\">Verdi Ada</a>", "Consegne: 4, esaminate: 3.",
        "Media: 1,33 su 4.", "<th>segue &lt;I0.1&gt;<br>su 3</th>", "<th>a riposo<br>su 1</th>",
        "il nome non finisce con .AWL"})
    EXPECT_THAT(indice, HasSubstr(parte));
  const std::string ugo = Letto("esiti/studente-001.html");
  for (const char* parte :
       {"<h1>Bianchi Ugo</h1>", "Punti: 0 su 4", "dopo 0,030 s: Q0.0 deve seguire I0.1: perché no?",
        "<p>Nota: letto &lt;Q0.0&gt;</p>", "<svg "})
    EXPECT_THAT(ugo, HasSubstr(parte));
  const std::string pia = Letto("esiti/studente-002.html");
  EXPECT_THAT(pia, HasSubstr("Il progetto non si compila"));
  EXPECT_THAT(pia, HasSubstr("-&gt; Istruzione non riconosciuta"));
  EXPECT_THAT(pia, HasSubstr("Punti: 0 su 4"));
  EXPECT_THAT(pia, Not(HasSubstr("dopo 0,000 s")));
  EXPECT_THAT(indice, HasSubstr("us.AWL</td><td>non compilato</td>"));
  const std::string anna = Letto("esiti/studente-003.html");
  EXPECT_THAT(anna, HasSubstr("Punti: 4 su 4"));
  EXPECT_THAT(anna, Not(HasSubstr("<svg ")));
  const std::string csv = Letto("esiti/punti.csv");
  EXPECT_THAT(csv, StartsWith("\xEF\xBB\xBFstudente;file;esito;punti;massimo;data;segue <I0.1>;"
                              "a riposo;primo rilievo\r\nBianchi Ugo;"));
  EXPECT_THAT(csv, HasSubstr(";superato;4;4;2026-03-07T10:12:00Z;3;1;\r\n"));
  EXPECT_THAT(Letto("esiti/junit.xml"), HasSubstr("errors=\"1\""));
  EXPECT_THAT(Letto("esiti/esiti.json"), HasSubstr("\"verdict\": \"non esaminato\""));
}

TEST_F(Class, TheDiagramMarksTheMomentOfTheFailure) {
  EXPECT_EQ(Classe(Zip({{"a.AWL", rovescio}})), 1);
  EXPECT_THAT(Letto("esiti/studente-001.html"), HasSubstr("class=\"segno\""));
}

TEST_F(Class, IsTheSameOnEveryRunWithAnyNumberOfThreads) {
  std::vector<Voce> voci;
  for (int n = 0; n < 30; ++n)
    voci.push_back({"Alunno " + std::to_string(n) + "/x.AWL", n % 3 ? buono : rovescio});
  const std::string zip = Zip(voci);
  Classe(zip, "uno", {"--processi", "1"});
  Classe(zip, "sette", {"--processi", "7"});
  int quanti = 0;
  for (const fs::directory_entry& voce : fs::directory_iterator(cartella / "uno")) {
    const std::string nome = voce.path().filename().string();
    EXPECT_EQ(Letto("uno/" + nome), Letto("sette/" + nome)) << nome;
    ++quanti;
  }
  EXPECT_EQ(quanti, 30 + 5);
}

TEST_F(Class, AFolderNamesWhoHandedInNothing) {
  File("classe/Rossi Anna_12_assignsubmission_file_/us.AWL", buono);
  File("classe/Bianchi Ugo_7_assignsubmission_file_/relazione.pdf", "x");
  EXPECT_EQ(Classe((cartella / "classe").string()), 1);
  EXPECT_THAT(Letto("esiti/studente-001.html"),
              HasSubstr("nella cartella non c'è un progetto .AWL"));
  EXPECT_THAT(out, HasSubstr("ok       Rossi Anna"));
}

/// As most programs write it: a name that is not plain letters carries the mark of UTF-8.
TEST_F(Class, NamesWithAccentsInAnArchiveAreRead) {
  const std::string zip = Zip({{"Però Zoë_12_assignsubmission_file_/us.AWL", buono},
                               {"Rossi Anna_13_assignsubmission_file_/us.AWL", buono}});
  std::string byte = Leggi_Byte(zip);
  for (const auto& [segno, dopo] : {std::pair{"PK\3\4", 7}, std::pair{"PK\1\2", 9}})
    for (auto dove = byte.find(segno); dove != std::string::npos; dove = byte.find(segno, dove + 1))
      byte[dove + static_cast<std::size_t>(dopo)] |= 8;
  Scrivi_Byte(zip, byte);
  EXPECT_EQ(Classe(zip), 0);
  EXPECT_THAT(out, HasSubstr("ok       Però Zoë"));
  EXPECT_THAT(Letto("esiti/punti.csv"), HasSubstr("\nPerò Zoë;"));
  EXPECT_THAT(Letto("esiti/indice.html"), HasSubstr("Consegne: 2"));
}

TEST_F(Class, AnArchiveNamesWhoHandedInNoProject) {
  EXPECT_EQ(Classe(Zip({{"Rossi Anna_12_assignsubmission_file_/us.AWL", buono},
                        {"Rossi Anna_12_assignsubmission_file_/nota.txt", "x"},
                        {"Bianchi Ugo_7_assignsubmission_file_/relazione.pdf", "x"},
                        {"leggimi.txt", "x"}})),
            1);
  EXPECT_THAT(Letto("esiti/studente-001.html"),
              HasSubstr("nella cartella non c'è un progetto .AWL"));
  EXPECT_THAT(Letto("esiti/indice.html"), HasSubstr("Consegne: 2"));
}

TEST_F(Class, ReportsReplaceNothing) {
  File("esiti/appunti.txt", "miei");
  EXPECT_EQ(Classe(Zip({{"a.AWL", buono}})), 64);
  EXPECT_THAT(err, HasSubstr("non è vuota"));
  EXPECT_EQ(Letto("esiti/appunti.txt"), "miei");
}

TEST_F(Class, AnArchiveNeverReachesOutOfItsFolder) {
  EXPECT_EQ(Classe(Zip({{"../fuori.AWL", buono},
                        {"/tmp/tavorno_fuori.AWL", buono},
                        {"a/../../fuori.AWL", buono},
                        {"<b>&\x01\xff;\"'.AWL", buono}})),
            1);
  EXPECT_FALSE(fs::exists(cartella / "fuori.AWL"));
  EXPECT_FALSE(fs::exists("/tmp/tavorno_fuori.AWL"));
  const std::string indice = Letto("esiti/indice.html");
  EXPECT_THAT(indice, HasSubstr("il percorso esce dalla cartella"));
  EXPECT_THAT(indice, Not(HasSubstr("<b>&\x01")));
  EXPECT_THAT(indice, HasSubstr("Consegne: 4"));
}

TEST_F(Class, BombsAreNamedAndTheOthersGraded) {
  EXPECT_EQ(Classe(Zip({{"bomba.AWL", std::string(50'000'000, ' ')}, {"sano.AWL", buono}})), 1);
  EXPECT_THAT(out, HasSubstr("bomba.AWL"));
  EXPECT_THAT(out, HasSubstr("non esaminato: è troppo grande"));
  EXPECT_THAT(out, HasSubstr("ok       sano.AWL"));
}

TEST_F(Class, ADiskThatFailsWhileCopiesAreMadeIsNamed) {
  const std::string zip = Zip({{"rossi.AWL", buono}, {"verdi.AWL", buono}});
  fs::create_directory(cartella / "pieno");
  fs::create_symlink("/dev/full", cartella / "pieno" / "1.AWL");
  const auto meta = Leggi_Classe(zip, cartella / "pieno");
  ASSERT_EQ(meta.size(), 2U);
  EXPECT_EQ(meta[0].Motivo, "impossibile scriverne una copia di lavoro: il disco è pieno");
  EXPECT_EQ(meta[0].Percorso, "");
  EXPECT_EQ(meta[1].Motivo, "");
  for (const Consegna& consegna : Leggi_Classe(zip, cartella / "manca"))
    EXPECT_EQ(consegna.Motivo,
              "impossibile scriverne una copia di lavoro: il file o la cartella non esiste");
}

TEST_F(Class, TenThousandEntriesAreEnough) {
  std::vector<Voce> voci;
  for (int n = 0; n < voci_massime + 5; ++n) voci.push_back({std::to_string(n) + ".txt", ""});
  voci[3] = {"primo.AWL", buono};
  voci.back() = {"ultimo.AWL", buono};
  EXPECT_EQ(Classe(Zip(voci)), 1);
  EXPECT_THAT(out, HasSubstr("ok       primo.AWL"));
  EXPECT_THAT(out, HasSubstr("più di 10000 voci"));
  EXPECT_THAT(out, Not(HasSubstr("ultimo")));
}

TEST_F(Class, WhatIsNoClassIsRefused) {
  EXPECT_EQ(Classe(File("x.zip", "non uno zip")), 2);
  EXPECT_THAT(err, HasSubstr("non è un archivio zip"));
  EXPECT_EQ(Classe((cartella / "manca").string()), 2);
  fs::create_directory(cartella / "vuota");
  EXPECT_EQ(Classe((cartella / "vuota").string()), 2);
  EXPECT_FALSE(fs::exists(cartella / "esiti"));
  const std::string manca = (cartella / "manca.lua").string();
  std::ostringstream o, e;
  EXPECT_EQ(Comando_Classe({Zip({{"a.AWL", buono}}), manca}, o, e), 2);
  EXPECT_THAT(e.str(), StartsWith(manca + ": impossibile leggere lo script: "));
}

struct Nome {
  const char* Percorso;
  const char* Studente;
};
class StudentsName : public ::testing::TestWithParam<Nome> {};

TEST_P(StudentsName, ComesFromThePath) {
  EXPECT_EQ(Nome_Studente(GetParam().Percorso), GetParam().Studente);
}

INSTANTIATE_TEST_SUITE_P(
    All, StudentsName,
    ::testing::Values(Nome{"Rossi Anna_123_assignsubmission_file_/us00.AWL", "Rossi Anna"},
                      Nome{"Rossi Anna_123_assignsubmission_file_us00.AWL", "Rossi Anna"},
                      Nome{"De_Rossi Zoë_1_assignsubmission_file_/a/b.AWL", "De_Rossi Zoë"},
                      Nome{"_assignsubmission_/x.AWL", "_assignsubmission_"},
                      Nome{"Rossi/us00.AWL", "Rossi"}, Nome{"us00 - Rossi.AWL", "us00 - Rossi"}));

}  // namespace tavorno::prova
