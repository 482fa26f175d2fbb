// SPDX-License-Identifier: GPL-3.0-or-later
// The command line, its reports and its exit statuses.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "grading/reports.h"
#include "grading/sha256.h"
#include "grading_bed.h"
#include "xml_reader.h"

namespace tavorno::prova {

using GradingCommand = Banco_Esami;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Sets when a file was last changed, in seconds since 1970.
void Data_Di(const std::string& file, std::time_t quando) {
  const timespec istanti[2] = {{quando, 0}, {quando, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), istanti, 0), 0);
}

const std::vector<std::string> buono = {"LD I0.1", "= Q0.0"};
const std::vector<std::string> rovescio = {"LDN I0.1", "= Q0.0"};
constexpr const char* due_casi = R"(
prova("spento a riposo", function()
  run() attendi(20)
  punti(1, leggi("Q0.0") == 0, "Q0.0 deve restare spento")
end)
prova("segue <I0.1>", function()
  run() ingresso("I0.1", 1) attendi(30)
  punti(2.5, leggi("Q0.0") == 1, "Q0.0 deve seguire I0.1")
end))";

TEST_F(GradingCommand, PrintsEveryCaseTheSumAndTheMarks) {
  const std::string progetto = Progetto_Con(buono);
  EXPECT_EQ(Prova({progetto, File("s.lua", due_casi)}), 0);
  EXPECT_EQ(
      out,
      progetto +
          "\n"
          "  ok       spento a riposo                                    20 ms   1/1 punti\n"
          "  ok       segue <I0.1>                                       30 ms   2,5/2,5 punti\n"
          "Superati 2 casi su 2. Punti: 3,5 su 3,5.\n");
  EXPECT_EQ(err, "");
}

TEST_F(GradingCommand, ExitsWithOneAndTellsWhatDidNotHoldAndWhen) {
  EXPECT_EQ(Prova({Progetto_Con(rovescio), File("s.lua", due_casi)}), 1);
  EXPECT_THAT(out,
              HasSubstr("  FALLITO  spento a riposo                                    20 ms   "
                        "0/1 punti\n              20 ms: Q0.0 deve restare spento\n"));
  EXPECT_THAT(out, EndsWith("Superati 0 casi su 2. Punti: 0 su 3,5.\n"));
}

TEST_F(GradingCommand, RunsSeveralScriptsAndOneNamedCase) {
  const std::string altro = File("t.lua", "prova('altro', function() end)");
  EXPECT_EQ(Prova({Progetto_Con(buono), File("s.lua", due_casi), altro}), 0);
  EXPECT_THAT(out, HasSubstr("Superati 3 casi su 3."));
  EXPECT_EQ(Prova({Progetto_Con(rovescio), altro, File("s.lua", due_casi), "--caso", "altro"}), 0);
  EXPECT_THAT(out, HasSubstr("Superati 1 casi su 1."));
  EXPECT_EQ(Prova({Progetto_Con(rovescio), altro, "--caso", "manca"}), 1);
}

TEST_F(GradingCommand, OpensThePlant) {
  const std::string script =
      File("s.lua", "prova('x', function() verifica(leggi('I0.3') == 1) end)");
  EXPECT_EQ(Prova({Progetto_Con(buono), script, "--impianto", "0"}), 0);
  EXPECT_EQ(Prova({Progetto_Con(buono), script}), 1);
}

TEST_F(GradingCommand, ShowsTheListingOfACompileErrorOnce) {
  EXPECT_EQ(Prova({Progetto_Con({"FOO"}), File("s.lua", due_casi)}), 1);
  EXPECT_THAT(out, HasSubstr("0 ms: Il progetto non si compila: errori 1\n"));
  const std::size_t listato = out.find("-> Istruzione non riconosciuta");
  ASSERT_NE(listato, std::string::npos);
  EXPECT_EQ(out.find("-> Istruzione non riconosciuta", listato + 1), std::string::npos);
}

TEST_F(GradingCommand, TwoRunsPrintTheSameBytes) {
  const std::vector<std::string> parole = {Progetto_Con({"LD SM0.5", "= Q0.0"}),
                                           File("s.lua", due_casi), "--json"};
  Prova(parole);
  const std::string prima = out;
  Prova(parole);
  EXPECT_EQ(out, prima);
}

// ---- wrong use ----------------------------------------------------------------------------------

struct Sbagliato {
  const char* Nome;
  std::vector<std::string> Parole;  // "P" is a good project, "S" a good script, "/" is the folder
  int Stato;
  const char* Messaggio;
};
void PrintTo(const Sbagliato& caso, std::ostream* dove) {
  *dove << caso.Nome;
}

class WrongUse : public Banco_Esami, public ::testing::WithParamInterface<Sbagliato> {};

TEST_P(WrongUse, IsToldOnOneLine) {
  std::vector<std::string> parole;
  const std::string progetto = Progetto_Con(buono), script = File("s.lua", due_casi);
  File("guasto.lua", "prova('x', function(");
  File("binario.lua", "\x1bLua");
  File("grande.lua", std::string(2'000'000, '-'));
  File("binario.AWL", std::string("\x7f"
                                  "ELF\0\0\1",
                                  7));
  File("grande.AWL", std::string(10'000'000, 'x'));
  File("enorme.AWL", std::string(17'000'000, 'x'));
  File("vuota/leggimi.txt", "");
  for (const std::string& parola : GetParam().Parole)
    parole.push_back(parola == "P"             ? progetto
                     : parola == "S"           ? script
                     : parola.starts_with("/") ? cartella.string() + parola
                                               : parola);
  EXPECT_EQ(Prova(parole), GetParam().Stato) << out << err;
  EXPECT_THAT(out + err, HasSubstr(GetParam().Messaggio));
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongUse,
    ::testing::Values(
        Sbagliato{"nothing", {}, 64, "manca il file del progetto"},
        Sbagliato{"no script", {"P"}, 64, "manca lo script"},
        Sbagliato{"no project", {"S"}, 64, "manca il file del progetto"},
        Sbagliato{"unknown option", {"P", "S", "--foo"}, 64, "opzione sconosciuta: --foo"},
        Sbagliato{"plant",
                  {"P", "S", "--impianto", std::to_string(Tabella_Esercizi().size())},
                  64,
                  "deve essere un numero intero tra 0 e"},
        Sbagliato{"threads", {"P", "S", "--processi", "0"}, 64, "tra 1 e 256"},
        Sbagliato{"trace of many", {"P", "P", "S", "--vcd", "x"}, 64, "vogliono un solo progetto"},
        Sbagliato{"diagram of a folder", {"/", "S", "--svg", "x"}, 64, "vogliono un solo progetto"},
        Sbagliato{"missing script", {"P", "/manca.lua"}, 2, "il file o la cartella non esiste"},
        Sbagliato{"syntax of the script",
                  {"P", "/guasto.lua"},
                  2,
                  "guasto.lua, riga 1: errore di sintassi"},
        Sbagliato{"binary script", {"P", "/binario.lua"}, 2, "lo script non è un testo"},
        Sbagliato{"huge script", {"P", "/grande.lua"}, 2, "lo script è troppo grande"},
        Sbagliato{"missing project", {"/manca.AWL", "S"}, 2, "Impossibile leggere il progetto"},
        Sbagliato{"binary project", {"/binario.AWL", "S"}, 2, "Impossibile leggere il progetto"},
        Sbagliato{"large project", {"/grande.AWL", "S"}, 2, "Impossibile leggere il progetto"},
        Sbagliato{"huge project", {"/enorme.AWL", "S"}, 2, "il file è troppo grande"},
        Sbagliato{"impossible project", {"/" + std::string(5000, 'x'), "S"}, 2, "troppo lungo"},
        Sbagliato{"impossible script",
                  {"P", "/" + std::string(5000, 'x') + ".lua"},
                  2,
                  "il nome del file è troppo lungo"},
        Sbagliato{"folder without projects", {"/vuota", "S"}, 2, "non contiene progetti .AWL"},
        Sbagliato{"report that cannot be written",
                  {"P", "S", "--junit", "/manca/x.xml"},
                  1,
                  "impossibile scrivere"}));

// ---- many ---------------------------------------------------------------------------------------

TEST_F(GradingCommand, GradesAFolderOnOneLineEach) {
  Progetto_Con(buono, "classe/bianchi.AWL");
  Progetto_Con(rovescio, "classe/alfa/rossi.awl");
  Progetto_Con({"LBL 1", "LD SM0.0", "JMP 1"}, "classe/senza_fine.AWL");
  Progetto_Con({"LD SM0.0", "S M0.7 5"}, "classe/fatale.AWL");
  File("classe/rotto.AWL", "niente");
  File("classe/appunti.txt", "");
  const std::string csv = (cartella / "punti.csv").string();
  EXPECT_EQ(Prova({(cartella / "classe").string(), File("s.lua", due_casi), "--csv", csv}), 1);
  std::istringstream righe(out);
  std::vector<std::string> lette;
  for (std::string riga; std::getline(righe, riga);) lette.push_back(riga);
  ASSERT_EQ(lette.size(), 6) << out;
  EXPECT_THAT(lette[0], StartsWith("FALLITO  " + (cartella / "classe/alfa/rossi.awl").string()));
  EXPECT_THAT(lette[0], EndsWith("casi 0/2  punti 0/3,5  Q0.0 deve restare spento"));
  EXPECT_THAT(lette[1], StartsWith("ok       "));
  EXPECT_THAT(lette[1], EndsWith("casi 2/2  punti 3,5/3,5"));
  EXPECT_THAT(lette[2], HasSubstr("Errore fatale del programma"));
  EXPECT_THAT(lette[3], HasSubstr("Impossibile leggere il progetto"));
  EXPECT_THAT(lette[4], HasSubstr("non raggiunge MEND"));
  EXPECT_EQ(lette[5], "Superati 1 progetti su 5.");
  EXPECT_EQ(err, "");

  const std::string tabella = Leggi_Byte(csv);
  EXPECT_THAT(tabella,
              StartsWith("progetto;esito;casi superati;casi;punti;massimo;primo rilievo;data;"
                         "script;impronta;versione\n"));
  EXPECT_THAT(tabella, HasSubstr("bianchi.AWL;superato;2;2;3,5;3,5;;"));
  EXPECT_THAT(tabella, HasSubstr("rotto.AWL;illeggibile;0;2;0;3,5;"));
}

TEST_F(GradingCommand, TheOrderDoesNotDependOnTheNumberOfThreads) {
  for (int n = 0; n < 24; ++n)
    Progetto_Con(n % 3 ? buono : rovescio, "classe/" + std::to_string(n) + ".AWL");
  const std::string cartella_classe = (cartella / "classe").string();
  const std::string script = File("s.lua", due_casi);
  Prova({cartella_classe, script, "--processi", "1"});
  const std::string uno = out;
  Prova({cartella_classe, script, "--processi", "7"});
  EXPECT_EQ(out, uno);
  EXPECT_THAT(uno, EndsWith("Superati 16 progetti su 24.\n"));
}

TEST_F(GradingCommand, OneProjectOfAFolderIsStillAFolder) {
  Progetto_Con(buono, "classe/uno.AWL");
  EXPECT_EQ(Prova({(cartella / "classe").string(), File("s.lua", due_casi)}), 0);
  EXPECT_THAT(out, EndsWith("Superati 1 progetti su 1.\n"));
}

// ---- reports ------------------------------------------------------------------------------------

TEST_F(GradingCommand, JunitHasATestcaseForEachCase) {
  const std::string junit = (cartella / "j.xml").string();
  const std::string consegna = Progetto_Con(rovescio, "a&b.AWL");
  Data_Di(consegna, 1'772'878'320);
  Prova({consegna, File("s.lua", due_casi), "--junit", junit});
  const std::string progetto = (cartella / "a&amp;b.AWL").string();
  EXPECT_EQ(
      Leggi_Byte(junit),
      R"(<?xml version="1.0" encoding="UTF-8"?>
<testsuites name="tavorno-banco" tests="2" failures="2" errors="0" skipped="0" time="0.050">
  <testsuite name=")" +
          progetto +
          R"(" tests="2" failures="2" errors="0" skipped="0" time="0.050" timestamp="2026-03-07T10:12:00">
    <properties>
      <property name="versione" value=")" +
          Versione() + R"("/>
      <property name="script" value="s.lua"/>
      <property name="impronta" value=")" +
          Sha256(due_casi) + R"("/>
    </properties>
    <testcase classname="s.lua" name="spento a riposo" time="0.020">
      <properties>
        <property name="punti" value="0"/>
        <property name="massimo" value="1"/>
      </properties>
      <failure message="Q0.0 deve restare spento">20 ms: Q0.0 deve restare spento
</failure>
    </testcase>
    <testcase classname="s.lua" name="segue &lt;I0.1&gt;" time="0.030">
      <properties>
        <property name="punti" value="0"/>
        <property name="massimo" value="2,5"/>
      </properties>
      <failure message="Q0.0 deve seguire I0.1">30 ms: Q0.0 deve seguire I0.1
</failure>
    </testcase>
  </testsuite>
</testsuites>
)");
}

// Whatever names and messages say, the reader of the continuous integration reads it.
TEST_F(GradingCommand, ReportsOfHostileTextsAreWellFormed) {
  const std::string junit = (cartella / "j.xml").string(), svg = (cartella / "t.svg").string();
  const std::string progetto = Progetto_Con({"LD I0.1", "= Q0.0"}, "<\xff\"&'>]]>.AWL");
  EXPECT_EQ(Prova({progetto, File("s&.lua", R"(
    prova('<a b="c">&amp;]]>\1\27\xff\xc3', function()
      print('</system-out>\0\8') verifica(false, '</failure><x>\n"&\xed\xa0\x80\11') end)
    prova('buono', function() run() attendi(20) punti(2, true) end))"),
                   "--junit", junit, "--svg", svg}),
            1);
  const Elemento_Xml rapporto = Lettore_Xml(Leggi_Byte(junit)).Leggi();
  EXPECT_EQ(rapporto.Nome, "testsuites");
  EXPECT_EQ(rapporto.Attributi.at("tests"), "2");
  ASSERT_EQ(rapporto.Figli.size(), 1);
  const Elemento_Xml& suite = rapporto.Figli[0];
  EXPECT_EQ(suite.Attributi.at("name"), cartella.string() + "/<?\"&'>]]>.AWL");
  ASSERT_EQ(suite.Quanti("testcase"), 2);
  EXPECT_EQ(suite.Figli[1].Attributi.at("classname"), "s&.lua");
  EXPECT_EQ(suite.Figli[1].Attributi.at("name"), "<a b=\"c\">&amp;]]>????");
  EXPECT_EQ(suite.Figli[1].Quanti("failure"), 1);
  EXPECT_EQ(suite.Figli[1].Figli.back().Testo, "</system-out>??\n");
  EXPECT_EQ(suite.Figli[2].Quanti("failure"), 0);
  EXPECT_EQ(suite.Figli[2].Quanti("property"), 2);
  EXPECT_EQ(Lettore_Xml(Leggi_Byte(svg)).Leggi().Nome, "svg");
}

TEST_F(GradingCommand, AReportThatCannotBeWrittenDoesNotCostTheOthers) {
  const std::string csv = (cartella / "p.csv").string();
  EXPECT_EQ(Prova({Progetto_Con(buono), File("s.lua", due_casi), "--svg", cartella.string(),
                   "--junit", "/manca/x.xml", "--csv", csv}),
            1);
  EXPECT_THAT(err, HasSubstr("impossibile scrivere \"" + cartella.string() + "\""));
  EXPECT_THAT(Leggi_Byte(csv), HasSubstr(";superato;2;2;3,5;3,5;;"));
}

TEST_F(GradingCommand, AReportMayGoToWhatIsNoFile) {
  const std::string tubo = (cartella / "tubo").string();
  ASSERT_EQ(::mkfifo(tubo.c_str(), 0600), 0);
  const int lettura = ::open(tubo.c_str(), O_RDWR | O_NONBLOCK);
  EXPECT_EQ(Prova({Progetto_Con(buono), File("s.lua", due_casi), "--csv", tubo}), 0) << err;
  EXPECT_EQ(std::filesystem::status(tubo).type(), std::filesystem::file_type::fifo);
  std::string letto(4096, '\0');
  letto.resize(static_cast<std::size_t>(::read(lettura, letto.data(), letto.size())));
  EXPECT_THAT(letto, HasSubstr(";superato;2;2;3,5;3,5;;"));
  ::close(lettura);
}

TEST_F(GradingCommand, JsonHasProjectsCasesAndFindings) {
  EXPECT_EQ(Prova({Progetto_Con(rovescio), File("s.lua", due_casi), "--json"}), 1);
  for (const char* parte :
       {R"("readable": true)", R"("passed": false)", R"("maximum": 3.5)",
        R"("name": "segue <I0.1>")", R"("text": "Q0.0 deve seguire I0.1")", R"("ms": 30)"})
    EXPECT_THAT(out, HasSubstr(parte));
}

TEST_F(GradingCommand, NotesOfTheScriptAreShown) {
  EXPECT_EQ(
      Prova({Progetto_Con(buono), File("s.lua", "prova('x', function() print('a', 1, nil) end)")}),
      0);
  EXPECT_THAT(out, HasSubstr("             nota: a 1 nil\n"));
}

// ---- nothing lost, nothing silent ---------------------------------------------------------------

struct Rapporto_Vietato {
  const char* Nome;
  std::vector<std::string> Parole;  // "/" is the folder of the files
  const char* Messaggio;
};
void PrintTo(const Rapporto_Vietato& caso, std::ostream* dove) {
  *dove << caso.Nome;
}

class ForbiddenReport : public Banco_Esami,
                        public ::testing::WithParamInterface<Rapporto_Vietato> {};

TEST_P(ForbiddenReport, IsRefusedBeforeAnythingIsWritten) {
  const std::string progetto = Progetto_Con(buono), script = File("s.lua", due_casi);
  std::filesystem::create_hard_link(progetto, cartella / "altro_nome");
  std::vector<std::string> parole = {progetto, script};
  for (const std::string& parola : GetParam().Parole)
    parole.push_back(parola.starts_with("/") ? cartella.string() + parola : parola);
  EXPECT_EQ(Prova(parole), 64) << err;
  EXPECT_THAT(err, HasSubstr(GetParam().Messaggio));
  EXPECT_EQ(Leggi_Byte(progetto), Byte_Di_Progetto(buono));
  EXPECT_EQ(Leggi_Byte(script), due_casi);
  EXPECT_FALSE(std::filesystem::exists(cartella / "r"));
}

INSTANTIATE_TEST_SUITE_P(
    All, ForbiddenReport,
    ::testing::Values(
        Rapporto_Vietato{"the project", {"--csv", "/consegna.AWL"}, "non può chiamarsi"},
        Rapporto_Vietato{"the script", {"--junit", "/s.lua"}, "non può chiamarsi"},
        Rapporto_Vietato{"another project", {"--svg", "/nuovo.awl"}, "non può chiamarsi"},
        Rapporto_Vietato{"the project by another name", {"--vcd", "/altro_nome"}, "un altro file"},
        Rapporto_Vietato{"two reports", {"--csv", "/r", "--junit", "/./r"}, "un altro file"},
        Rapporto_Vietato{"an option", {"--csv", "--json"}, "manca il valore dell'opzione --csv"},
        Rapporto_Vietato{"an option behind =", {"--csv=--json"}, "manca il valore"}));

TEST_F(GradingCommand, HandInsThatAreNotGradedAreNamed) {
  Progetto_Con(buono, "classe/bianchi.AWL");
  File("classe/rossi.AWL.txt", "x");
  File("classe/verdi.zip", "x");
  File("classe/appunti.txt", "");
  std::filesystem::create_symlink("/etc/passwd", cartella / "classe/gialli.AWL");
  std::filesystem::create_directory_symlink("/", cartella / "classe/neri");
  ASSERT_EQ(::mkfifo((cartella / "classe/tubo.AWL").c_str(), 0600), 0);
  const std::string csv = (cartella / "r.csv").string(), junit = (cartella / "r.xml").string();
  EXPECT_EQ(Prova({(cartella / "classe").string(), File("s.lua", due_casi), "--csv", csv, "--junit",
                   junit}),
            1);
  EXPECT_THAT(out, HasSubstr("rossi.AWL.txt"));
  EXPECT_THAT(out, HasSubstr(" non esaminato: il nome non finisce con .AWL\n"));
  EXPECT_THAT(out, HasSubstr(" non esaminato: è un archivio"));
  EXPECT_THAT(out, HasSubstr(" non esaminato: non è un file\n"));
  EXPECT_THAT(out, EndsWith("Superati 1 progetti su 6. Non esaminati: 5.\n"));
  EXPECT_THAT(out, ::testing::Not(HasSubstr("appunti")));
  EXPECT_THAT(Leggi_Byte(csv), HasSubstr("gialli.AWL;non esaminato;0;0;0;0;è un collegamento;"));
  const Elemento_Xml rapporto = Lettore_Xml(Leggi_Byte(junit)).Leggi();
  EXPECT_EQ(rapporto.Attributi.at("errors"), "5");
  EXPECT_EQ(rapporto.Attributi.at("failures"), "0");
}

TEST_F(GradingCommand, AnInterruptedClassIsReportedAsFarAsItCame) {
  std::vector<std::string> file;
  for (int n = 0; n < 20; ++n)
    file.push_back(Progetto_Con(buono, "classe/" + std::to_string(n) + ".AWL"));
  Verifiche verifiche;
  verifiche.Script.push_back({"s.lua", due_casi});
  std::vector<Esito_Progetto> esiti;
  int finiti = 0;
  Esamina_Tutti(
      file, verifiche, 1, [&](const Esito_Progetto& esito) { esiti.push_back(esito); }, {},
      [&] { return ++finiti > 7; });
  ASSERT_EQ(esiti.size(), 20);
  for (std::size_t n = 0; n < esiti.size(); ++n) {
    EXPECT_EQ(esiti[n].Progetto, file[n]);
    EXPECT_EQ(esiti[n].Non_Esaminato, n < 7 ? "" : "esame interrotto");
    EXPECT_EQ(esiti[n].Superato(), n < 7);
  }
}

TEST_F(GradingCommand, AWrongScriptIsNobodysFailure) {
  const std::string csv = (cartella / "r.csv").string(), junit = (cartella / "r.xml").string();
  EXPECT_EQ(
      Prova({Progetto_Con(buono), File("s.lua", "prova('x', 2, function() premi('imgStrat') end)"),
             "--impianto", "0", "--csv", csv, "--junit", junit, "--json"}),
      2);
  EXPECT_THAT(out, HasSubstr(R"("verdict": "script errato")"));
  EXPECT_THAT(out, HasSubstr(R"("script_error": true)"));
  EXPECT_THAT(Leggi_Byte(csv), HasSubstr(";script errato;0;1;0;2;"));
  const Elemento_Xml rapporto = Lettore_Xml(Leggi_Byte(junit)).Leggi();
  EXPECT_EQ(rapporto.Attributi.at("errors"), "1");
  EXPECT_EQ(rapporto.Attributi.at("failures"), "0");
  EXPECT_EQ(rapporto.Figli[0].Figli.back().Quanti("error"), 1);
  Prova({Progetto_Con(buono), File("s.lua", "prova('x', 2, function() premi('imgStrat') end)"),
         "--impianto", "0"});
  EXPECT_THAT(out, HasSubstr("  ERRORE   x "));
}

}  // namespace tavorno::prova
