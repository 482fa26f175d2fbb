// SPDX-License-Identifier: GPL-3.0-or-later
// Files that stand beside a script and share their functions with it.
#include <gmock/gmock.h>

#include <filesystem>

#include "awl/file_io.h"
#include "grading_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;

class SharedScripts : public Banco_Esami {
 public:
  SharedScripts() {
    File("esami/comune.lua",
         "volte = (volte or 0) + 1\n"
         "function segue(uscita) run() ingresso('I0.1', 1) attendi(30) return leggi(uscita) end\n");
  }
  /// Runs a script that stands in "esami"; its output goes to `out`.
  int Con_Script(const std::string& testo) {
    return Prova({Progetto_Con({"LD I0.1", "= Q0.0"}), File("esami/s.lua", testo)});
  }
};

TEST_F(SharedScripts, TheirFunctionsAreAtHandInEveryCase) {
  EXPECT_EQ(Con_Script("usa('comune.lua')\n"
                       "prova('a', function() punti(1, segue('Q0.0') == 1) end)\n"
                       "prova('b', function() punti(2, segue('Q0.1') == 0) end)"),
            0)
      << out;
  EXPECT_THAT(out, HasSubstr("Superati 2 casi su 2. Punti: 3 su 3."));
}

TEST_F(SharedScripts, EachRunsOnceAndMayBeUsedInsideACase) {
  File("esami/altro.lua", "usa('comune.lua') usa('altro.lua')");
  EXPECT_EQ(Con_Script("prova('a', function() usa('altro.lua') usa('comune.lua')\n"
                       "  verifica(volte == 1, volte) end)"),
            0)
      << out;
}

TEST_F(SharedScripts, CasesOfAFileBelongToTheScript) {
  File("esami/casi.lua",
       "function casi() prova('comune', function() punti(1, false, 'no') end) end");
  EXPECT_EQ(Con_Script("usa('casi.lua') casi()"), 1);
  EXPECT_THAT(out, HasSubstr("FALLITO  comune"));
}

TEST_F(SharedScripts, MistakesNameTheFileAndItsLine) {
  File("esami/errata.lua", "\n\nfunction f(");
  EXPECT_EQ(Con_Script("usa('errata.lua')"), 2);
  EXPECT_THAT(out, HasSubstr("s.lua, riga 1: usa: errata.lua, riga 3: errore di sintassi"));
  File("esami/rotta.lua", "\nmanca()");
  EXPECT_EQ(Con_Script("prova('a', function() usa('rotta.lua') end)"), 2);
  EXPECT_THAT(out, HasSubstr("rotta.lua, riga 2: la funzione 'manca' non esiste"));
  File("esami/codice.lua", "\x1bLua");
  EXPECT_EQ(Con_Script("usa('codice.lua')"), 2);
  EXPECT_THAT(out, HasSubstr("lo script non è un testo"));
  File("esami/grande.lua", std::string(2'000'000, '-'));
  EXPECT_EQ(Con_Script("usa('grande.lua')"), 2);
  EXPECT_THAT(out, HasSubstr("lo script è troppo grande"));
}

TEST_F(SharedScripts, TheLimitsHoldInsideThem) {
  base.Limiti.Istruzioni = 100'000;
  const std::string nome = File("ciclo.lua", "while true do end");
  Verifiche verifiche = base;
  verifiche.Script.push_back(Leggi_Sorgente(File("s.lua", "usa('ciclo.lua')")));
  EXPECT_THAT(Esamina(Progetto_Con({"NOP"}), verifiche).Primo_Rilievo(),
              HasSubstr("limite di istruzioni"));
  File("dentro.lua", "io.open('/etc/passwd')");
  verifiche.Script[0] = Leggi_Sorgente(File("s.lua", "usa('dentro.lua')"));
  EXPECT_THAT(Esamina(Progetto_Con({"NOP"}), verifiche).Primo_Rilievo(),
              HasSubstr("'io' non ha campi"));
}

TEST_F(SharedScripts, OneHandInLeavesNothingToTheNext) {
  File("esami/s.lua",
       "usa('comune.lua')\n"
       "prova('a', function() verifica(volte == 1, volte) verifica(not segnato) segnato = true "
       "end)");
  for (int n = 0; n < 12; ++n) Progetto_Con({"NOP"}, "classe/" + std::to_string(n) + ".AWL");
  EXPECT_EQ(Prova({(cartella / "classe").string(), (cartella / "esami/s.lua").string(),
                   "--processi", "3"}),
            0)
      << out;
  EXPECT_THAT(out, HasSubstr("Superati 12 progetti su 12."));
}

TEST_F(SharedScripts, AScriptWithoutAFolderHasNone) {
  EXPECT_THAT(Rilievo_Di("usa('comune.lua')"), HasSubstr("accanto allo script non c'è un file"));
}

TEST_F(SharedScripts, AScriptOfTheWorkingFolderFindsItsNeighbours) {
  EXPECT_EQ(Leggi_Sorgente(File("s.lua", "")).Cartella, Testo_Percorso(cartella));
  const std::filesystem::path prima = std::filesystem::current_path();
  std::filesystem::current_path(cartella);
  EXPECT_EQ(Leggi_Vicino(Leggi_Sorgente("s.lua"), "s.lua").Nome, "s.lua");
  std::filesystem::current_path(prima);
}

class WrongName : public SharedScripts, public ::testing::WithParamInterface<const char*> {};

// Behind each name there is a file that must stay unread.
TEST_P(WrongName, IsRefused) {
  const std::string spia = "verifica(false, 'letto')";
  File("fuori.lua", spia);
  File("esami/sotto/dentro.lua", spia);
  File("esami/.nascosto.lua", spia);
  File("esami/appunti.txt", spia);
  std::filesystem::create_directory(cartella / "esami/cartella.lua");
  std::string nome = GetParam();
  if (nome.starts_with("TMP")) nome.replace(0, 3, Testo_Percorso(cartella));
  EXPECT_EQ(Con_Script("usa('" + nome + "')"), 2);
  EXPECT_THAT(out, HasSubstr("errore nello script: s.lua, riga 1: usa: ")) << nome;
  EXPECT_THAT(out, ::testing::Not(HasSubstr("letto")));
}

INSTANTIATE_TEST_SUITE_P(All, WrongName,
                         ::testing::Values("", ".", "..", ".lua", "../fuori.lua", "TMP/fuori.lua",
                                           "sotto/dentro.lua", "sotto/../comune.lua",
                                           "./comune.lua", "sotto\\\\dentro.lua", "C:comune.lua",
                                           ".nascosto.lua", "appunti.txt", "comune",
                                           "comune.lua\\0.txt", "comune.lua\\0", "\\ncomune.lua",
                                           "cartella.lua", "manca.lua", "/etc/passwd",
                                           "file:comune.lua"));

}  // namespace tavorno::prova
