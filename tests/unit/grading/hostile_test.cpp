// SPDX-License-Identifier: GPL-3.0-or-later
// Scripts and projects that would hang, exhaust or escape.
#include <gmock/gmock.h>

#include "grading/lua_messages.h"
#include "grading_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;
using ::testing::StartsWith;

struct Ostile {
  const char* Nome;
  const char* Corpo;      // of a case
  const char* Messaggio;  // what the report says
};
void PrintTo(const Ostile& ostile, std::ostream* dove) {
  *dove << ostile.Nome;
}

class HostileScript : public Banco_Esami, public ::testing::WithParamInterface<Ostile> {
 public:
  HostileScript() {
    base.Limiti.Istruzioni = 3'000'000;
    base.Limiti.Memoria = 4U * 1024 * 1024;
    base.Inizio.Ms = 100'000;
    base.Inizio.Righe = 10'000'000;
  }
};

TEST_P(HostileScript, EndsWithAMessage) {
  const Esito_Progetto esito =
      Esito({"NOP"}, std::string("prova('x', function()\n") + GetParam().Corpo + "\nend)", 0);
  ASSERT_GE(esito.Casi.size(), 1);
  EXPECT_THAT(esito.Primo_Rilievo(), HasSubstr(GetParam().Messaggio));
}

TEST_P(HostileScript, EndsOutsideACaseToo) {
  EXPECT_THAT(Esito({"NOP"}, GetParam().Corpo, 0).Primo_Rilievo(), HasSubstr(GetParam().Messaggio));
}

INSTANTIATE_TEST_SUITE_P(
    All, HostileScript,
    ::testing::Values(
        Ostile{"endless loop", "while true do end", "supera il limite di istruzioni"},
        Ostile{"endless calls", "while true do leggi('Q0.0') end", "limite di istruzioni"},
        Ostile{"memory bomb", "local t = {} while true do t[#t + 1] = {} end",
               "supera il limite di memoria"},
        Ostile{"growing text", "local s = 'x' while true do s = s .. s end", "limite di memoria"},
        Ostile{"repeated text", "return string.rep('x', 1e9)", "limite di memoria"},
        Ostile{"repeated text, as method", "return ('x'):rep(1 << 40)", "limite di memoria"},
        Ostile{"huge repeated text", "return ('xy'):rep(math.maxinteger)", "limite di memoria"},
        Ostile{"recursion through the bench", "local function f() attendi_fino(f, 1) end f()",
               "troppe chiamate"},
        Ostile{"endless wait", "attendi(100001)", "limite di tempo virtuale"},
        Ostile{"endless wait in parts", "run() while true do attendi(10) end",
               "limite di tempo virtuale"},
        Ostile{"endless scans", "run() cicli(100001)", "limite di tempo virtuale"},
        Ostile{"costly pattern", "return ('a'):rep(1000):find(('.-'):rep(20) .. 'b')",
               "troppe ripetizioni"},
        Ostile{"costly pattern, anchored",
               "return ('a'):rep(1000):match('^' .. ('a*'):rep(9) .. 'b')", "troppe ripetizioni"},
        Ostile{"costly set", "return (('a'):rep(10000)):find('[' .. ('b'):rep(1000000) .. 'a]*c')",
               "troppe ripetizioni"},
        Ostile{"costly back reference", "return (('a'):rep(5000)):find('(.*)%1%1c')",
               "troppe ripetizioni"},
        Ostile{"costly plain search",
               "return (('a'):rep(1000000)):find(('a'):rep(500000) .. 'b', 1, true)",
               "troppe ripetizioni"},
        Ostile{"costly comparisons",
               "local a, b, t = ('x'):rep(1000000) .. 'a', ('x'):rep(1000000) .. 'b', {} "
               "for n = 1, 5000 do t[n] = n % 2 == 0 and a or b end table.sort(t)",
               "i testi da ordinare sono troppo lunghi"},
        Ostile{"costly comparisons by a function of the language",
               "local a, b, t = ('x'):rep(1000000) .. 'a', ('x'):rep(1000000) .. 'b', {} "
               "for n = 1, 5000 do t[n] = n % 2 == 0 and a or b end table.sort(t, rawequal)",
               "i testi da ordinare sono troppo lunghi"},
        Ostile{"searches instead of comparisons",
               "local t = {} for n = 1, 100000 do t[n] = 'x' end table.sort(t, string.find)",
               "limite di istruzioni"},
        Ostile{"files", "io.open('/etc/passwd')", "'io' non ha campi"},
        Ostile{"processes", "os.execute('true')", "'os' non ha campi"},
        Ostile{"modules", "require('x')", "la funzione 'require' non esiste"},
        Ostile{"packages", "print(package.path)", "'package' non ha campi"},
        Ostile{"debugger", "debug.sethook()", "'debug' non ha campi"},
        Ostile{"code from text", "load('x = 1')", "la funzione 'load' non esiste"},
        Ostile{"code from a file", "dofile('x.lua')", "la funzione 'dofile' non esiste"},
        Ostile{"bytecode", "string.dump(print)", "la funzione 'dump' non esiste"},
        Ostile{"caught errors", "pcall(attendi, 1)", "la funzione 'pcall' non esiste"},
        Ostile{"metatables", "setmetatable({}, {})", "la funzione 'setmetatable' non esiste"},
        Ostile{"collector", "collectgarbage('stop')", "la funzione 'collectgarbage' non esiste"},
        Ostile{"threads", "coroutine.wrap(print)", "'coroutine' non ha campi"},
        Ostile{"seed", "math.randomseed(2)", "la funzione 'randomseed' non esiste"},
        Ostile{"huge text", "verifica(false, ('è'):rep(100000))", "è..."},
        Ostile{"no UTF-8", "verifica(false, '\\xff\\xc0')", "??"},
        Ostile{"object as error", "error({})", "errore senza messaggio"},
        Ostile{"nothing as error", "error()", "errore senza messaggio"},
        Ostile{"number as error", "error(42)", "errore nello script: 42"},
        Ostile{"zero byte in an error", "error('a\\0b')", "a\0b"},
        Ostile{"division", "return 1 // 0", "divisione per zero"}));

TEST_F(HostileScript, DeepRecursionEnds) {
  base.Limiti = {};
  const char* ricorsione = "local function f() return 1 + f() end f()";
  EXPECT_THAT(Rilievo_Di(ricorsione), HasSubstr("una funzione che richiama sé stessa senza fine"));
  base.Limiti.Memoria = 256U * 1024 * 1024;  // enough for the language's own bound
  EXPECT_THAT(Rilievo_Di(ricorsione), HasSubstr("(ricorsione senza fine)"));
}

TEST_F(HostileScript, ANoteKeepsNoMoreThanTheReportShows) {
  const Esito_Progetto esito =
      Esito({"NOP"}, "local s = ('x'):rep(1000000) print('a\\0b', s, s, s, s, s, s, s, s)");
  EXPECT_EQ(esito.Casi[0].Note[0],
            std::string("a\0b ", 4) + std::string(lunghezza_messaggio - 4, 'x') + "...");
}

TEST_F(HostileScript, TextsAreSortedAsBefore) {
  EXPECT_EQ(Rilievo_Di("local t = {'c', 'a', 'b'} table.sort(t) verifica(table.concat(t) == 'abc') "
                       "table.sort(t, function(x, y) return x > y end) "
                       "verifica(table.concat(t) == 'cba')"),
            "");
}

TEST_F(HostileScript, TheEmptyTextCanBeRepeatedForEver) {
  EXPECT_EQ(Rilievo_Di("verifica((''):rep(math.maxinteger) == '')"), "");
}

TEST_F(HostileScript, ProcessorTimeIsLimitedToo) {
  base.Limiti.Istruzioni = 1'000'000'000'000;
  base.Limiti.Processore = std::chrono::seconds(0);
  EXPECT_THAT(Rilievo_Di("while true do end"), HasSubstr("impiega troppo tempo"));
}

TEST_F(HostileScript, ALimitEndsTheWholeScriptAndNamesTheCasesBehind) {
  const Esito_Progetto esito = Esito({"NOP"}, R"(
    prova('a', function() while true do end end)
    prova('b', function() verifica(false, 'eseguita') end))");
  ASSERT_EQ(esito.Casi.size(), 2);
  EXPECT_THAT(esito.Casi[1].Rilievi[0].Testo, StartsWith("prova non eseguita"));
}

TEST_F(HostileScript, AMistakeEndsOnlyItsCase) {
  const Esito_Progetto esito = Esito({"NOP"}, R"(
    prova('a', function()
      sbagliata()
    end)
    prova('b', function() punti(1, true) end))");
  ASSERT_EQ(esito.Casi.size(), 2);
  EXPECT_EQ(esito.Primo_Rilievo(),
            "errore nello script: esame.lua, riga 3: la funzione 'sbagliata' non esiste");
  EXPECT_TRUE(esito.Casi[1].Superato());
}

TEST_F(HostileScript, TooManyCasesAreRefused) {
  const Esito_Progetto esito = Esito({"NOP"}, "for n = 1, 5000 do prova('x', function() end) end");
  EXPECT_EQ(esito.Casi.size(), 1001);
  EXPECT_THAT(esito.Primo_Rilievo(), HasSubstr("più di 1000 casi"));
}

TEST_F(HostileScript, FindingsAndNotesAreBounded) {
  const Esito_Progetto esito = Esito({"NOP"}, "for n = 1, 1000 do verifica(false, n) print(n) end");
  EXPECT_EQ(esito.Casi[0].Rilievi.size(), 100);
  EXPECT_EQ(esito.Casi[0].Note.size(), 100);
}

TEST_F(HostileScript, RandomNumbersAreTheSameEachTime) {
  const char* script = "print(math.random(1000000), math.random())";
  EXPECT_EQ(Esito({"NOP"}, script).Casi, Esito({"NOP"}, script).Casi);
}

// ---- messages of the language -------------------------------------------------------------------

struct Tradotto {
  const char* Corpo;
  const char* Italiano;
};
class Message : public Banco_Esami, public ::testing::WithParamInterface<Tradotto> {};

TEST_P(Message, IsItalianWithFileAndLine) {
  EXPECT_EQ(Rilievo_Di(GetParam().Corpo),
            std::string("errore nello script: esame.lua, riga 2: ") + GetParam().Italiano);
}

INSTANTIATE_TEST_SUITE_P(
    All, Message,
    ::testing::Values(
        Tradotto{"presmi('x')", "la funzione 'presmi' non esiste"},
        Tradotto{"local t = {} t.x.y = 1", "'x' non ha campi, perché è di tipo nil"},
        Tradotto{"return 1 + nil", "calcolo con un valore di tipo nil"},
        Tradotto{"return 1 < 'a'", "confronto fra un valore di tipo number e uno di tipo string"},
        Tradotto{"return {} < {}", "confronto fra due valori di tipo table"},
        Tradotto{"return 'a' .. {}", "unione di testi con un valore di tipo table"},
        Tradotto{"error('a modo mio')", "a modo mio"},
        Tradotto{"return 1.5 | 2", "serve un numero intero"},
        Tradotto{"for n = 1, 2, 0 do end", "il passo del 'for' è zero"},
        Tradotto{"for n = 1, {} do end",
                 "i valori del 'for' devono essere numeri, e non di tipo table"},
        Tradotto{"local t = {} t[nil] = 1", "l'indice di una tabella non può essere nil"},
        Tradotto{"return table.concat({{}})",
                 "il campo 1 della tabella non si può unire, perché è di tipo table"},
        Tradotto{"return ('a'):find('[a')", "il modello di ricerca è scritto male"},
        Tradotto{"return ('a'):find(('()'):rep(40))", "il modello di ricerca non va bene"},
        Tradotto{"return ('%y'):format(1)", "il formato di un numero o testo è scritto male"},
        Tradotto{"return table.unpack({}, 1, 1e8)", "troppi valori in una volta"},
        Tradotto{"return ('x'):rep(1.5)", "l'argomento 1 di 'rep' non va bene"},
        Tradotto{"usa()", "usa: l'argomento 1 deve essere un testo"},
        Tradotto{"premi()", "premi: l'argomento 1 deve essere un testo"},
        Tradotto{"attendi(-1)",
                 "attendi: l'argomento 1 deve essere un numero intero tra 0 e 86400000"},
        Tradotto{"attendi(1.5)",
                 "attendi: l'argomento 1 deve essere un numero intero tra 0 e 86400000"},
        Tradotto{"attendi_fino(3, 4)", "attendi_fino: l'argomento 1 deve essere una funzione"},
        Tradotto{"modo('Continuo')", "modo: i modi sono \"Cont\", \"Ciclo\" e \"Step\""},
        Tradotto{"passo()", "passo: serve la CPU in RUN nel modo Step"},
        Tradotto{"cicli(1)", "cicli: la CPU è ferma; prima run()"},
        Tradotto{"ingresso('Q0.0', 1)", "ingresso: serve un punto tra I0.0 e I1.7"},
        Tradotto{"analogico(3, 1)",
                 "analogico: l'argomento 1 deve essere un numero intero tra 0 e 2"},
        Tradotto{"punti('x', true)", "punti: l'argomento 1 deve essere un numero tra 0 e 1000"}));

TEST(LuaMessage, IsCutBetweenCharacters) {
  const std::string lungo = "x" + std::string(lunghezza_messaggio - 2, 'y') + "è";
  EXPECT_EQ(Accorcia(lungo), "x" + std::string(lunghezza_messaggio - 2, 'y') + "...");
}

// ---- projects -----------------------------------------------------------------------------------

struct Progetto_Ostile {
  const char* Nome;
  std::vector<std::string> Righe;
  const char* Messaggio;
};
void PrintTo(const Progetto_Ostile& ostile, std::ostream* dove) {
  *dove << ostile.Nome;
}

class HostileProject : public Banco_Esami, public ::testing::WithParamInterface<Progetto_Ostile> {};

TEST_P(HostileProject, FailsTheCaseAndKeepsCountingMarks) {
  const Esito_Progetto esito = Esito(GetParam().Righe, R"(
    prova('a', function()
      run() attendi(100)
      punti(2, leggi('Q0.0') == 0, 'dopo')
      verifica(not attendi_fino(function() return leggi('I0.0') == 0 end, 1000))
    end)
    prova('b', function() run() cicli(1) punti(3, true, 'mai') end))",
                                     0);
  ASSERT_EQ(esito.Casi.size(), 2);
  EXPECT_EQ(esito.Superati(), 0);
  EXPECT_EQ(esito.Punti(), 0);
  EXPECT_EQ(esito.Massimo(), 5);
  EXPECT_EQ(esito.Casi[0].Rilievi.size(), 1);
  EXPECT_THAT(esito.Primo_Rilievo(), StartsWith(GetParam().Messaggio));
  EXPECT_EQ(esito.Casi[0].Ms, 1100);
  EXPECT_NE(esito.Casi[0].Listato, "");
}

INSTANTIATE_TEST_SUITE_P(
    All, HostileProject,
    ::testing::Values(
        Progetto_Ostile{
            "endless loop",
            {"LBL 1", "LD SM0.0", "JMP 1"},
            "Il programma non raggiunge MEND (100000 righe senza finire la scansione)."},
        Progetto_Ostile{"return at the top", {"RET"}, "Il programma non raggiunge MEND"},
        Progetto_Ostile{
            "return to the start", {"NOP", "LD SM0.0", "RET"}, "Il programma non raggiunge MEND"},
        Progetto_Ostile{"fatal",
                        {"LD SM0.0", "S M0.7 5"},
                        "Errore fatale del programma: Indice fuori dalla tabella Tabella o "
                        "operazione: Mem_M.Bit Indice o valore: 9 Riga: 1  S M0.7, 5"},
        Progetto_Ostile{"run-time error", {"LDB= SMB28 +0"}, "La CPU si è fermata alla riga 0."},
        Progetto_Ostile{"no branch", {"XORD AC0 AC1"}, "La CPU si è fermata alla riga"},
        Progetto_Ostile{"does not compile", {"FOO"}, "Il progetto non si compila: errori 1"}));

TEST_F(HostileProject, TheListingPointsAtTheLine) {
  const Esito_Progetto esito =
      Esito({"LD SM0.0", "S M0.7 5", "NOP"}, "prova('x', function() run() end)");
  EXPECT_EQ(esito.Casi[0].Listato, "  0  LD SM0.0\n> 1  S M0.7, 5\n  2  NOP\n  3  MEND\n");
  const Esito_Progetto errato = Esito({"FOO"}, "prova('x', function() end)");
  EXPECT_THAT(errato.Casi[0].Listato, HasSubstr("-> Istruzione non riconosciuta"));
}

TEST_F(HostileProject, WithoutTheEndOfTheScanItEndsFatally) {
  File("consegna.AWL", "SUBROUTINE_BLOCK A:SBR0\r\nBEGIN\r\nNOP\r\n");
  EXPECT_EQ(Prova({(cartella / "consegna.AWL").string(),
                   File("s.lua", "prova('x', function() run() attendi(5) punti(1, true) end)")}),
            1);
  EXPECT_THAT(out, HasSubstr("0 ms: Errore fatale del programma: Indice fuori dalla tabella"));
  EXPECT_THAT(out, HasSubstr("Superati 0 casi su 1. Punti: 0 su 1.\n"));
}

TEST_F(HostileProject, CannotWriteOnTheTerminalWithItsText) {
  EXPECT_EQ(Prova({Progetto_Con({"FOO\x1b[2J"}),
                   File("s.lua", "print('\\27[1m\\nb') verifica(false, 'c\\27[1m')")}),
            1);
  EXPECT_THAT(out, HasSubstr("FOO"));
  EXPECT_EQ(out.find('\x1b'), std::string::npos) << out;
}

TEST_F(HostileProject, FailsEvenAScriptThatAsksNothing) {
  EXPECT_EQ(Esito({"FOO"}, "").Superati(), 0);
  EXPECT_EQ(Esito({"FOO"}, "").Primo_Rilievo(), "Il progetto non si compila: errori 1");
  EXPECT_EQ(Esito({"NOP"}, "").Primo_Rilievo(),
            "nessuno script contiene una prova che si possa eseguire");
}

TEST_F(HostileProject, TheLinesOfAllScansAreLimited) {
  base.Inizio.Righe = 1000;
  EXPECT_THAT(Rilievo_Di("run() attendi(10000)", {"NOP", "NOP"}), HasSubstr("troppe righe"));
}

}  // namespace tavorno::prova
