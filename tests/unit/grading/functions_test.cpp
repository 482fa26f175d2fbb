// SPDX-License-Identifier: GPL-3.0-or-later
// The functions that a script calls.
#include <gmock/gmock.h>

#include "grading/script_functions.h"
#include "grading_bed.h"

namespace tavorno::prova {

using ScriptFunctions = Banco_Esami;
using ::testing::AllOf;
using ::testing::HasSubstr;

const std::vector<std::string> autoritenuta = {
    "NETWORK 1", "LD I0.1", "O I0.2",    "A I0.0",   "A I0.3",
    "A I0.4",    "= Q0.0",  "NETWORK 2", "LDN I0.3", "= Q0.3",
};

TEST_F(ScriptFunctions, RunReturnsAndTimePassesOneScanPerMillisecond) {
  EXPECT_EQ(Rilievo_Di("run() attendi(5) verifica(leggi('VW0') == 6)", {"LD SM0.0", "INCW VW0"}),
            "");
  EXPECT_EQ(Rilievo_Di("run() verifica(leggi('VW0') == 1)", {"LD SM0.0", "INCW VW0"}), "");
}

TEST_F(ScriptFunctions, StopEndsTheScansAndRunStartsThemAgain) {
  EXPECT_EQ(Rilievo_Di("run() attendi(5) stop() attendi(50) verifica(leggi('VW0') == 6) "
                       "run() attendi(1) verifica(leggi('VW0') == 8)",
                       {"LD SM0.0", "INCW VW0"}),
            "");
}

TEST_F(ScriptFunctions, StopDarkensTheOutputs) {
  EXPECT_EQ(Rilievo_Di("run() verifica(leggi('Q0.0') == 1) stop() verifica(leggi('Q0.0') == 0)",
                       {"LD SM0.0", "= Q0.0"}),
            "");
}

TEST_F(ScriptFunctions, TimersCountVirtualTime) {
  EXPECT_EQ(Rilievo_Di("ingresso('I0.0', 1) run() attendi(990) verifica(leggi('T37') == 0) "
                       "verifica(leggi('T37.Val') == 9) verifica(leggi('T37.PT') == 10) "
                       "attendi(20) verifica(leggi('T37') == 1)",
                       {"LD I0.0", "TON T37 +10"}),
            "");
}

TEST_F(ScriptFunctions, AttendiFinoTellsWhetherAndWhen) {
  EXPECT_EQ(Rilievo_Di("ingresso('I0.0', 1) run() "
                       "local vero, ms = attendi_fino(function() return leggi('T37') end, 2000) "
                       "verifica(vero == true) verifica(ms == 1000, ms) "
                       "vero, ms = attendi_fino(function() return leggi('Q0.7') end, 50) "
                       "verifica(vero == false) verifica(ms == 50)",
                       {"LD I0.0", "TON T37 +10"}),
            "");
}

/// The same instants as a look at each millisecond, with far fewer looks.
TEST_F(ScriptFunctions, AttendiQuandoLooksWhereSomethingMayHaveChanged) {
  EXPECT_EQ(Rilievo_Di("ingresso('I0.0', 1) run() local volte = 0 "
                       "local vero, ms = attendi_quando(function() volte = volte + 1 "
                       "  return leggi('T37') end, 20000) "
                       "verifica(vero == true) verifica(ms == 10000, ms) "
                       "verifica(volte < 2000, volte) "
                       "local ultimo "
                       "vero, ms = attendi_quando(function(ora) ultimo = ora end, 50) "
                       "verifica(vero == false) verifica(ms == 50) verifica(ultimo == 50, ultimo)",
                       {"LD I0.0", "TON T37 +100"}),
            "");
}

TEST_F(ScriptFunctions, AttendiQuandoSeesWhatChangesAtEveryScan) {
  for (const char* riga : {"INCW VW0", "= M0.0"}) {
    EXPECT_EQ(Rilievo_Di("run() attendi(500) local prima, cambi = -1, 0 "
                         "attendi_quando(function() local ora = leggi('VW0') * 2 + leggi('M0.0') "
                         "  if ora ~= prima then prima, cambi = ora, cambi + 1 end end, 100) "
                         "verifica(cambi == 101, cambi)",
                         {riga[0] == '=' ? "LD SM0.6" : "LD SM0.0", riga}),
              "");
  }
}

TEST_F(ScriptFunctions, AttendiQuandoGoesOnWithTheCpuInStop) {
  EXPECT_EQ(Rilievo_Di("local volte = 0 local vero, ms = attendi_quando(function() "
                       "volte = volte + 1 return volte == 4 end, 50) "
                       "verifica(vero) verifica(ms == 3, ms)"),
            "");
}

TEST_F(ScriptFunctions, CicloScansOnlyWhatIsAsked) {
  EXPECT_EQ(Rilievo_Di("modo('Ciclo') run() attendi(100) verifica(leggi('VW0') == 1) "
                       "cicli(3) attendi(10) verifica(leggi('VW0') == 4)",
                       {"LD SM0.0", "INCW VW0"}),
            "");
}

// A look between two waits that say "false" would see what the last one saw.
TEST_F(ScriptFunctions, WaitingTellsWhetherSomethingMayHaveChanged) {
  EXPECT_EQ(Rilievo_Di("run() attendi(100) verifica(not attendi(50)) ingresso('I0.0', 1) "
                       "verifica(attendi(1)) attendi(100) "
                       "local prima, cambi, detti = leggi('Q0.0'), 0, 0 "
                       "for _ = 1, 300 do "
                       "  local detto, ora = attendi(10), leggi('Q0.0') "
                       "  if detto then detti = detti + 1 end "
                       "  if ora ~= prima then cambi = cambi + 1 verifica(detto) end "
                       "  prima = ora "
                       "end "
                       "verifica(cambi == 6, cambi) verifica(detti >= 6 and detti < 100, detti)",
                       {"LD I0.0", "A SM0.5", "= Q0.0"}),
            "");
}

TEST_F(ScriptFunctions, StepExecutesLineByLine) {
  EXPECT_EQ(Rilievo_Di("modo('Step') run() attendi(100) verifica(leggi('VW0') == 0) "
                       "passo() verifica(leggi('VW0') == 0) passo() verifica(leggi('VW0') == 1)",
                       {"LD SM0.0", "INCW VW0"}),
            "");
}

TEST_F(ScriptFunctions, TheModeCanBeChosenOnlyWhereThePanelAllowsIt) {
  EXPECT_THAT(Rilievo_Di("run() modo('Ciclo')"), HasSubstr("riga 2: modo: con la CPU in RUN"));
  EXPECT_EQ(Rilievo_Di("run() stop() modo('Ciclo') run() cicli(1)"), "");
}

TEST_F(ScriptFunctions, AnalogInputsAreVolts) {
  EXPECT_EQ(Rilievo_Di("analogico(1, 2.5) run() attendi(40) verifica(leggi('AIW2') == 8000)"), "");
}

TEST_F(ScriptFunctions, MessagesAreHandedOutOnce) {
  // The CPU stops itself with a box, which is a failure; the box can still be read.
  const Esito_Progetto esito = Esito({"LDB= SMB28 +0"}, R"(prova('x', function()
    run()
    local m = messaggi()
    print(#m, m[1], #messaggi())
  end))");
  EXPECT_EQ(esito.Primo_Rilievo(),
            "La CPU si è fermata alla riga 0. Run Time Error: Run Time Error! Il programma sarà "
            "terminato!");
  EXPECT_THAT(
      esito.Casi[0].Note,
      ::testing::ElementsAre("1 Run Time Error: Run Time Error! Il programma sarà terminato! 0"));
}

// ---- memory -------------------------------------------------------------------------------------

struct Cella {
  const char* Indirizzo;
  double Valore;
};
void PrintTo(const Cella& cella, std::ostream* dove) {
  *dove << cella.Indirizzo;
}

class Cells : public Banco_Esami, public ::testing::WithParamInterface<Cella> {};

TEST_P(Cells, ReadBackWhatIsWritten) {
  const std::string nome = GetParam().Indirizzo;
  const std::string valore = std::to_string(GetParam().Valore);
  EXPECT_EQ(Rilievo_Di("verifica(leggi('" + nome + "') == 0, 'prima') scrivi('" + nome + "', " +
                       valore + ") verifica(leggi('" + nome + "') == " + valore + ", 'dopo')"),
            "");
}

INSTANTIATE_TEST_SUITE_P(
    All, Cells,
    ::testing::Values(Cella{"I0.0", 1}, Cella{"I1.7", 1}, Cella{"Q0.0", 1}, Cella{"Q1.7", 1},
                      Cella{"M0.3", 1}, Cella{"M4.7", 1}, Cella{"SM1.1", 1}, Cella{"SM30.7", 1},
                      Cella{"S0.1", 1}, Cella{"S4.7", 1}, Cella{"T37", 1}, Cella{"T40.Val", 32760},
                      Cella{"T0.PT", -5}, Cella{"C5", 1}, Cella{"C20.Val", 300},
                      Cella{"C5.PV", -32768}, Cella{"IB0", 255}, Cella{"IB1", 5}, Cella{"QB0", 129},
                      Cella{"QB1", 1}, Cella{"MB4", 200}, Cella{"SMB28", 17}, Cella{"VB100", 255},
                      Cella{"VW10", -32768}, Cella{"VD100", 2147483647}, Cella{"AC1", 2.5},
                      Cella{"AIW0", 32000}, Cella{"AIW4", -1}, Cella{"AQW2", 16000},
                      Cella{"vw11", 7}));

class BadAddress : public Banco_Esami, public ::testing::WithParamInterface<const char*> {};

TEST_P(BadAddress, IsAnErrorOfTheScriptThatNamesIt) {
  EXPECT_THAT(
      Rilievo_Di("leggi('" + std::string(GetParam()) + "')"),
      ::testing::StartsWith("errore nello script: esame.lua, riga 2: leggi: l'indirizzo \"" +
                            std::string(GetParam()) + "\" non esiste; ci sono I0.0..I1.7"));
}

INSTANTIATE_TEST_SUITE_P(All, BadAddress,
                         ::testing::Values("", "Q", "Q2.0", "Q0.8", "Q0", "Q0.", "Q0.0.0", "Q-1.0",
                                           "T41", "T37.PV", "C5.PT", "C21", "AIW1", "AIW6", "AQW4",
                                           "VW101", "VW1.0", "AC5", "Z0", "0", "I0.0 ", "VW",
                                           "VW99999999999"));

struct Fuori {
  const char* Indirizzo;
  const char* Valore;
};
class BadValue : public Banco_Esami, public ::testing::WithParamInterface<Fuori> {};

TEST_P(BadValue, IsRefusedAndTheCellStays) {
  const std::string nome = GetParam().Indirizzo;
  const Esito_Progetto esito = Esito(
      {"NOP"}, "prova('x', function() scrivi('" + nome + "', " + GetParam().Valore + ") end)");
  EXPECT_THAT(esito.Primo_Rilievo(), HasSubstr("scrivi: "));
}

INSTANTIATE_TEST_SUITE_P(All, BadValue,
                         ::testing::Values(Fuori{"Q0.0", "2"}, Fuori{"IB0", "256"},
                                           Fuori{"IB0", "-1"}, Fuori{"VW0", "32768"},
                                           Fuori{"VW0", "1.5"}, Fuori{"VD0", "2147483648"},
                                           Fuori{"T37", "2"}, Fuori{"VW0", "'x'"},
                                           Fuori{"VW0", "nil"}, Fuori{"VW0", "0/0"}));

TEST_F(ScriptFunctions, AWrittenByteOfMarkersReachesItsBits) {
  EXPECT_EQ(Rilievo_Di("scrivi('MB1', 5) verifica(leggi('M1.0') == 1) "
                       "verifica(leggi('M1.1') == 0) verifica(leggi('M1.2') == 1)"),
            "");
}

// ---- the plant ----------------------------------------------------------------------------------

TEST_F(ScriptFunctions, ThePlantIsOperatedAndSeen) {
  EXPECT_EQ(Rilievo_Di(R"(
    run() verifica(elemento('imgM').Picture == 'imgMOF')
    premi('imgStart') attendi(10) rilascia('imgStart') attendi(10)
    verifica(leggi('Q0.0') == 1) verifica(leggi('I0.2') == 1)
    verifica(elemento('imgM').Picture == 'imgMON')
    clic('ImgTer') attendi(1)
    verifica(leggi('Q0.0') == 0) verifica(leggi('Q0.3') == 1)
    clic('ImgTer') clic('imgStart') attendi(1) verifica(leggi('Q0.0') == 1, 'clic su Start')
    doppio_clic('imgKM') attendi(1) verifica(leggi('Q0.0') == 0, 'KM forzato'))",
                       autoritenuta, 0),
            "");
}

TEST_F(ScriptFunctions, AClickHoldsAPushButtonForScansToSeeIt) {
  EXPECT_EQ(Rilievo_Di("run() clic('imgStop') verifica(leggi('VW0') == 100, leggi('VW0'))",
                       {"LDN I0.0", "INCW VW0"}, 0),
            "");
}

TEST_F(ScriptFunctions, EveryPropertyOfAFigureIsRead) {
  EXPECT_EQ(Rilievo_Di(R"(
    local km = elemento('imgKM')
    verifica(km.Left == 720) verifica(km.Top == 720) verifica(km.Width == 930)
    verifica(km.Height == 360) verifica(km.Visible == true) verifica(km.Picture == 'imgKMOF')
    verifica(km.ToolTip == 'DbClick per forzare apertura') verifica(km.FillStyle == 0)
    verifica(elemento('etM').Caption == 'M1') verifica(elemento('linKM').FillColor >= 0)
    verifica(elemento('etM').ForeColor >= 0))",
                       {"NOP"}, 0),
            "");
}

TEST_F(ScriptFunctions, SlidersMove) {
  EXPECT_EQ(Rilievo_Di("regola('SlidP', 10)", {"NOP"}, 4), "");
  EXPECT_THAT(Rilievo_Di("regola('Slid', 10)", {"NOP"}, 4),
              HasSubstr("regola: l'impianto 4 non ha \"Slid\" da regolare, ma ha: SlidP"));
}

TEST_F(ScriptFunctions, FaultsComeAndGoByName) {
  EXPECT_EQ(
      Rilievo_Di("run() verifica(guasto('filo(I0.0)')) attendi(2) "
                 "verifica(leggi('I0.0') == 0, 'rotto') verifica(guasto('filo(I0.0)', false)) "
                 "attendi(2) verifica(leggi('I0.0') == 1, 'riparato') "
                 "verifica(guasto('incollato(I0.1)', 1)) attendi(2) "
                 "verifica(leggi('I0.1') == 1, 'incollato') "
                 "verifica(guasto('ImgTer')) verifica(guasto('ImgTer')) attendi(2) "
                 "verifica(leggi('I0.3') == 0, 'termico') "
                 "verifica(not guasto('imgKM'), 'il contattore è aperto')",
                 {"NOP"}, 0),
      "");
}

TEST_F(ScriptFunctions, AFaultThatDoesNotExistIsAnErrorOfTheScript) {
  EXPECT_THAT(Rilievo_Di("guasto('filo(I1.7)')", {"NOP"}, 0),
              HasSubstr("guasto: l'impianto 0 non ha \"filo(I1.7)\" da guastare, ma ha: ImgTer"));
}

// ---- the hand is that of the window -------------------------------------------------------------

TEST_F(ScriptFunctions, APressAndAReleaseOverAFigureAreAClick) {
  EXPECT_EQ(Rilievo_Di("run() premi('ImgTer') attendi(10) verifica(leggi('I0.3') == 1, 'giù') "
                       "rilascia('ImgTer') attendi(10) verifica(leggi('I0.3') == 0, 'su')",
                       {"NOP"}, 0),
            "");
}

TEST_F(ScriptFunctions, WhatWasNeverPressedIsNotReleased) {
  EXPECT_EQ(
      Rilievo_Di("run() verifica(rilascia('ImgTer') == false) attendi(10) "
                 "verifica(leggi('I0.3') == 1, 'termico') "
                 "verifica(rilascia('imgStop') == false) verifica(leggi('I0.0') == 1, 'stop')",
                 {"NOP"}, 0),
      "");
}

TEST_F(ScriptFunctions, AFingerPressesAButtonOnce) {
  EXPECT_EQ(Rilievo_Di("run() premi('ImgTer') premi('ImgTer') rilascia('ImgTer') attendi(10) "
                       "verifica(leggi('I0.3') == 0) verifica(rilascia('ImgTer') == false)",
                       {"NOP"}, 0),
            "");
}

TEST_F(ScriptFunctions, BothPressesOfADoubleClickLastForScansToSeeThem) {
  EXPECT_EQ(Rilievo_Di("run() doppio_clic('imgStop') verifica(leggi('VW0') == 200, leggi('VW0')) "
                       "verifica(leggi('VW2') == 2, leggi('VW2'))",
                       {"LDN I0.0", "INCW VW0", "EU", "INCW VW2"}, 0),
            "");
}

struct Impossibile {
  const char* Regola;
  int Impianto;
  const char* Messaggio;
};
void PrintTo(const Impossibile& caso, std::ostream* dove) {
  *dove << caso.Regola;
}

class NoHandSets : public Banco_Esami, public ::testing::WithParamInterface<Impossibile> {};

TEST_P(NoHandSets, IsAnErrorOfTheScript) {
  const Esito_Progetto esito =
      Esito({"NOP"}, std::string("prova('x', function() regola(") + GetParam().Regola + ") end)",
            GetParam().Impianto);
  EXPECT_THAT(esito.Primo_Rilievo(), HasSubstr(GetParam().Messaggio));
  EXPECT_TRUE(esito.Script_Errato());
}

INSTANTIATE_TEST_SUITE_P(
    All, NoHandSets,
    ::testing::Values(Impossibile{"'SlidP', 2.5", 4,
                                  "SlidP va da 1 a 10 a passi di 1, e non a 2.5"},
                      Impossibile{"'SlidP', 99", 4, "e non a 99"},
                      Impossibile{"'SlidP', 0", 4, "e non a 0"},
                      Impossibile{"'ME_Speed1', 750", 10, "Slid(0) va da 1 a 6 a passi di 1"},
                      Impossibile{"'imgM', 1", 0, "l'impianto 0 non ha niente da regolare"}));

TEST_F(ScriptFunctions, APropertyIsSetThroughTheSliderThatWritesIt) {
  EXPECT_EQ(Rilievo_Di("regola('ME_Speed1', 100) regola('Slid(0)', 1)", {"NOP"}, 10), "");
}

TEST_F(ScriptFunctions, TheScriptNamesItsPlant) {
  const char* script = "impianto(0) prova('x', function() verifica(leggi('I0.3') == 1) end)";
  EXPECT_EQ(Esito({"NOP"}, script).Primo_Rilievo(), "");
  EXPECT_EQ(Esito({"NOP"}, script, 0).Primo_Rilievo(), "");
  EXPECT_THAT(Esito({"NOP"}, script, 3).Primo_Rilievo(),
              HasSubstr("questo script è per l'impianto 0, e non per il 3"));
  EXPECT_THAT(Rilievo_Di("impianto(0)"), HasSubstr("va chiamata in testa allo script"));
  const std::size_t quanti = Tabella_Esercizi().size();
  EXPECT_THAT(Esito({"NOP"}, "impianto(" + std::to_string(quanti) + ")").Primo_Rilievo(),
              HasSubstr("tra 0 e " + std::to_string(quanti - 1)));
}

TEST_F(ScriptFunctions, WrongNamesAreListed) {
  EXPECT_THAT(Rilievo_Di("premi('imgStrat')", {"NOP"}, 0),
              HasSubstr("riga 2: l'elemento \"imgStrat\" non esiste; ci sono linKM, filoQ(0), "));
  EXPECT_THAT(Rilievo_Di("premi('imgM')", {"NOP"}, 0),
              HasSubstr("l'elemento \"imgM\" non si aziona; si azionano imgKM, ImgTer, "));
  EXPECT_THAT(Rilievo_Di("elemento('imgM').Left = 1", {"NOP"}, 0),
              HasSubstr("riga 2: le proprietà di un elemento si leggono soltanto"));
  EXPECT_THAT(Rilievo_Di("print(elemento('imgM').Sinistra)", {"NOP"}, 0),
              HasSubstr("la proprietà \"Sinistra\" non esiste"));
}

TEST_F(ScriptFunctions, WithoutAPlantTheHandHasNothingToTouch) {
  EXPECT_THAT(Rilievo_Di("premi('imgStart')"),
              AllOf(HasSubstr("nessun impianto"), HasSubstr("impianto(N)"),
                    HasSubstr("--impianto N"), HasSubstr("--esercizio N")));
}

TEST_F(ScriptFunctions, AFigureOfAFinishedCaseIsRefused) {
  const Esito_Progetto esito = Esito({"NOP"}, R"(
    local km
    prova('uno', function() km = elemento('imgKM') end)
    prova('due', function() print(km.Left) end))",
                                     0);
  EXPECT_TRUE(esito.Casi[0].Superato());
  EXPECT_THAT(esito.Casi[1].Rilievi[0].Testo, HasSubstr("appartiene a una prova già finita"));
}

// ---- verdicts -----------------------------------------------------------------------------------

TEST_F(ScriptFunctions, EachCaseStartsFromAFreshCpuAndPlant) {
  const Esito_Progetto esito = Esito(autoritenuta, R"(
    for n = 1, 2 do
      prova('caso ' .. n, function()
        verifica(leggi('VW7') == 0, 'memoria') verifica(leggi('I0.3') == 1, 'termico')
        scrivi('VW7', 9) clic('ImgTer') run() attendi(10)
      end)
    end)",
                                     0);
  ASSERT_EQ(esito.Casi.size(), 2);
  EXPECT_TRUE(esito.Superato()) << esito.Primo_Rilievo();
  EXPECT_EQ(esito.Casi[0].Nome, "caso 1");
  EXPECT_EQ(esito.Casi[1].Ms, 10);
}

TEST_F(ScriptFunctions, VerificaRecordsTheTimeAndGoesOn) {
  const Esito_Progetto esito = Esito({"NOP"}, R"(prova('x', function()
    run() attendi(12) verifica(false, 'prima')
    attendi(3) verifica(0, 'zero') verifica(nil)
    verifica(1, 'uno') verifica('', 'testo')
  end))");
  ASSERT_EQ(esito.Casi[0].Rilievi.size(), 3);
  EXPECT_EQ(esito.Casi[0].Rilievi[0].Ms, 12);
  EXPECT_EQ(esito.Casi[0].Rilievi[0].Testo, "prima");
  EXPECT_EQ(esito.Casi[0].Rilievi[1].Testo, "zero");
  EXPECT_EQ(esito.Casi[0].Rilievi[2].Testo, "condizione non verificata (riga 3)");
}

TEST_F(ScriptFunctions, MarksAddUpAndMissingOnesFailTheCase) {
  const Esito_Progetto esito = Esito({"NOP"}, R"(
    prova('a', function() punti(3, true, 'x') punti(2.5, false, 'manca la spia') end)
    prova('b', function() punti(4, true, 'x') end))");
  EXPECT_EQ(esito.Punti(), 7);
  EXPECT_EQ(esito.Massimo(), 9.5);
  EXPECT_EQ(esito.Superati(), 1);
  EXPECT_EQ(esito.Primo_Rilievo(), "manca la spia");
}

TEST_F(ScriptFunctions, WhatRunsOutsideAllCasesIsOneOfItsOwn) {
  const Esito_Progetto esito = Esito({"NOP"}, "run() attendi(7) verifica(false, 'fuori')");
  ASSERT_EQ(esito.Casi.size(), 1);
  EXPECT_EQ(esito.Casi[0].Nome, "esame.lua");
  EXPECT_EQ(esito.Casi[0].Ms, 7);
  EXPECT_EQ(esito.Primo_Rilievo(), "fuori");
}

TEST_F(ScriptFunctions, ACaseInsideACaseIsRefused) {
  EXPECT_THAT(Rilievo_Di("prova('y', function() end)"), HasSubstr("non può contenerne un'altra"));
}

TEST_F(ScriptFunctions, HelpNamesAllOfThem) {
  EXPECT_EQ(Prova({"--help"}), 0);
  for (const char* nome : {"run",     "stop",         "modo",           "passo",    "cicli",
                           "attendi", "attendi_fino", "attendi_quando", "premi",    "rilascia",
                           "clic",    "doppio_clic",  "regola",         "ingresso", "analogico",
                           "leggi",   "scrivi",       "elemento",       "messaggi", "verifica",
                           "serve",   "punti",        "prova",          "usa",      "impianto"})
    EXPECT_THAT(out, HasSubstr(std::string("\n  ") + nome + "(")) << nome;
  EXPECT_EQ(Funzioni_Script().size(), 27);
}

TEST_F(ScriptFunctions, TheManualHasAllOfThem) {
  const std::string pagina = Leggi_Byte(std::filesystem::path(TAVORNO_SOURCES) / "docs/banco.md");
  for (const Riga_Funzione& riga : Funzioni_Script())
    EXPECT_THAT(pagina, HasSubstr("`" + std::string(riga.Nome) + "(")) << riga.Nome;
}

}  // namespace tavorno::prova
