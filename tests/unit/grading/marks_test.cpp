// SPDX-License-Identifier: GPL-3.0-or-later
// What a case is worth: premises, declared marks, and cases that went wrong.
#include <gmock/gmock.h>

#include "grading_bed.h"

namespace tavorno::prova {

using CaseMarks = Banco_Esami;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::vector<std::string> niente = {"NOP"};

/// The one case of a script whose body is this.
class One_Case : public Banco_Esami {
 public:
  Caso Di(const std::string& corpo, const std::string& dichiarati = "") {
    const Esito_Progetto esito =
        Esito(niente, "prova('x', " + dichiarati + " function()\n" + corpo + "\nend)");
    EXPECT_EQ(esito.Casi.size(), 1);
    return esito.Casi.at(0);
  }
};

// ---- premises -----------------------------------------------------------------------------------

using Premise = One_Case;

TEST_F(Premise, ThatDoesNotHoldCostsTheMarksBehindIt) {
  const Caso caso = Di(R"(
    punti(1, true, 'prima') attendi(7)
    serve(false, 'Start deve avviare')
    punti(2, true, 'dopo') punti(4, false, 'ancora'))");
  EXPECT_EQ(caso.Punti, 1);
  EXPECT_EQ(caso.Massimo, 7);
  EXPECT_EQ(caso.Rilievi, (std::vector<Rilievo>{{7, "premessa mancata: Start deve avviare"}}));
}

TEST_F(Premise, ThatHoldsCostsNothing) {
  const Caso caso = Di("verifica(serve(true, 'parte') == true) punti(2, true, 'dopo')");
  EXPECT_TRUE(caso.Superato());
  EXPECT_EQ(caso.Punti, 2);
  EXPECT_EQ(caso.Massimo, 2);
}

TEST_F(Premise, TellsTheScriptWhetherItHeld) {
  EXPECT_EQ(Di("print(serve(1, 'uno'), serve(0, 'due'))").Note,
            std::vector<std::string>{"true false"});
}

// Nothing behind it could earn any more, and the maximum is known.
TEST_F(Premise, EndsACaseThatDeclaresItsMarks) {
  const Caso caso =
      Di("attendi(5) serve(0, 'parte') attendi(9) print('mai') punti(2, true, 'dopo')", "2,");
  EXPECT_EQ(caso.Punti, 0);
  EXPECT_EQ(caso.Massimo, 2);
  EXPECT_FALSE(caso.Script_Errato);
  EXPECT_EQ(caso.Ms, 5);
  EXPECT_EQ(caso.Note.size(), 0);
  EXPECT_EQ(caso.Rilievi, (std::vector<Rilievo>{{5, "premessa mancata: parte"}}));
}

TEST_F(Premise, EndsACaseFromWithinAWait) {
  const Caso caso = Di("attendi_fino(function() serve(false, 'parte') end, 50) print('mai')", "2,");
  EXPECT_FALSE(caso.Script_Errato);
  EXPECT_EQ(caso.Note.size(), 0);
  EXPECT_EQ(caso.Rilievi.size(), 1);
}

TEST_F(Premise, IsOfItsCaseOnly) {
  const Esito_Progetto esito = Esito(niente, R"(
    prova('a', 1, function() serve(false, 'parte') punti(1, true, 'gira') end)
    prova('b', 2, function() punti(2, true, 'si ferma') end))");
  EXPECT_EQ(esito.Punti(), 2);
  EXPECT_EQ(esito.Massimo(), 3);
}

TEST_F(Premise, SilencesWhatFollowsFromIt) {
  const Caso caso = Di("serve(false, 'uno') serve(false, 'due') verifica(false, 'tre')");
  ASSERT_EQ(caso.Rilievi.size(), 1);
}

TEST_F(Premise, DoesNotHideABrokenProgram) {
  const Esito_Progetto esito =
      Esito({"LD SM0.0", "S M0.7 5"}, "prova('x', function() run() serve(false, 'parte') end)");
  ASSERT_EQ(esito.Casi[0].Rilievi.size(), 1);
  EXPECT_THAT(esito.Primo_Rilievo(), HasSubstr("Errore fatale"));
}

// ---- demands ------------------------------------------------------------------------------------

TEST_F(Premise, AndMarksAreRecordedWithTheirOutcome) {
  EXPECT_THAT(Di(R"(punti(1, true, 'uno') attendi(3) punti(2, false, 'due')
            serve(true, 'tre') serve(false, 'quattro') punti(5, true, 'cinque'))")
                  .Richieste,
              ElementsAre(Richiesta{false, 1, "uno", Esito_Richiesta::Soddisfatta, 0},
                          Richiesta{false, 2, "due", Esito_Richiesta::Mancata, 3},
                          Richiesta{true, 0, "tre", Esito_Richiesta::Soddisfatta, 3},
                          Richiesta{true, 0, "quattro", Esito_Richiesta::Mancata, 3},
                          Richiesta{false, 5, "cinque", Esito_Richiesta::Non_Giudicata, 3}));
}

TEST_F(CaseMarks, DemandsStandInTheJsonReport) {
  Prova({Progetto_Con(niente),
         File("s.lua",
              "prova('x', function() punti(1, true, 'uno') serve(false, 'due') "
              "punti(2, true, 'tre') end)"),
         "--json"});
  for (const char* parte :
       {R"("text": "uno")", R"("outcome": "met")", R"("premise": true)", R"("outcome": "missed")",
        R"("marks": 2.0)", R"("outcome": "not judged")"})
    EXPECT_THAT(out, HasSubstr(parte));
}

TEST_F(CaseMarks, DemandsAreBoundedAndStillCounted) {
  const Esito_Progetto esito =
      Esito(niente, "prova('x', function() for n = 1, 5000 do punti(1, true, 'n') end end)");
  EXPECT_EQ(esito.Casi[0].Richieste.size(), 1000);
  EXPECT_EQ(esito.Punti(), 5000);
}

// ---- failed cases -------------------------------------------------------------------------------

TEST_F(Premise, AFalseVerificaLeavesNoMarks) {
  const Caso caso = Di("punti(4, true, 'x') verifica(false, 'deve fermarsi') punti(2, true, 'y')");
  EXPECT_FALSE(caso.Superato());
  EXPECT_EQ(caso.Punti, 0);
  EXPECT_EQ(caso.Massimo, 6);
}

TEST_F(CaseMarks, AProgramThatBreaksLeavesNoMarksInItsCase) {
  const Esito_Progetto esito = Esito({"LDB= SMB28 +0"}, R"(
    prova('si rompe', function() punti(4, true, 'x') run() attendi(5) end)
    prova('sta fermo', function() punti(2, true, 'y') end))");
  EXPECT_EQ(esito.Casi[0].Punti, 0);
  EXPECT_EQ(esito.Casi[0].Massimo, 4);
  EXPECT_EQ(esito.Punti(), 2);
}

// ---- declared marks -----------------------------------------------------------------------------

struct Dichiarata {
  const char* Nome;
  const char* Corpo;  // of a case that declares 8
  double Punti;
  bool Script_Errato;
};
void PrintTo(const Dichiarata& caso, std::ostream* dove) {
  *dove << caso.Nome;
}

class DeclaredCase : public One_Case, public ::testing::WithParamInterface<Dichiarata> {};

TEST_P(DeclaredCase, AlwaysHasThatMaximum) {
  base.Limiti.Istruzioni = 1'000'000;
  base.Inizio.Ms = 10'000;
  const Caso caso = Di(GetParam().Corpo, "8,");
  EXPECT_EQ(caso.Massimo, 8);
  EXPECT_EQ(caso.Punti, GetParam().Punti);
  EXPECT_EQ(caso.Script_Errato, GetParam().Script_Errato);
  EXPECT_EQ(caso.Superato(), GetParam().Punti == 8 && !GetParam().Script_Errato);
}

INSTANTIATE_TEST_SUITE_P(
    All, DeclaredCase,
    ::testing::Values(
        Dichiarata{"all earned", "punti(3, true) punti(5, true)", 8, false},
        Dichiarata{"parts of marks", "for n = 1, 80 do punti(0.1, true) end", 8, false},
        Dichiarata{"some missed", "punti(3, true) punti(5, false)", 3, false},
        Dichiarata{"early return", "punti(3, false) do return end punti(5, true)", 0, false},
        Dichiarata{"missing premise", "punti(3, true) serve(false) punti(5, true)", 3, false},
        Dichiarata{"false verifica", "punti(3, true) verifica(false)", 0, false},
        Dichiarata{"mistake", "punti(3, true) manca() punti(5, true)", 3, true},
        Dichiarata{"limit of instructions", "punti(3, true) while true do end", 3, true},
        Dichiarata{"limit of time", "punti(3, true) attendi(20000)", 3, true},
        Dichiarata{"too few", "punti(3, true)", 3, true},
        Dichiarata{"too many", "punti(3, true) punti(6, true)", 8, true},
        Dichiarata{"too many of a failed one", "punti(3, false) punti(6, true)", 6, true}));

TEST_F(Premise, TheScriptThatDeclaresOtherMarksIsTold) {
  EXPECT_EQ(Di("punti(2.5, true)", "8,").Rilievi[0].Testo,
            "la prova dichiara 8 punti e ne assegna 2,5");
}

TEST_F(Premise, WrongDeclarationsAreRefused) {
  for (const char* dichiarati : {"-1,", "1001,", "'due',", "nil,", "0/0,"})
    EXPECT_THAT(Di("", dichiarati).Rilievi[0].Testo, HasSubstr("prova: l'argomento 2"))
        << dichiarati;
}

// The maximum of a script is that of all its cases, whatever happens in one of them.
TEST_F(CaseMarks, TheCasesBehindALimitStillCount) {
  base.Limiti.Istruzioni = 1'000'000;
  const Esito_Progetto esito = Esito(niente, R"(
    prova('a', 4, function() punti(4, true, 'x') end)
    prova('b', 3, function() while true do end end)
    prova('c', 2, function() punti(2, true, 'y') end))");
  ASSERT_EQ(esito.Casi.size(), 3);
  EXPECT_EQ(esito.Massimo(), 9);
  EXPECT_EQ(esito.Punti(), 4);
  EXPECT_EQ(esito.Casi[2].Rilievi[0].Testo,
            "prova non eseguita, perché lo script ha già superato un limite");
}

TEST_F(CaseMarks, TheCasesAroundAMistakeStillCount) {
  const Esito_Progetto esito = Esito(niente, R"(
    prova('a', 4, function() punti(4, true, 'x') end)
    manca())");
  EXPECT_EQ(esito.Massimo(), 4);
  EXPECT_EQ(esito.Punti(), 4);
  EXPECT_TRUE(esito.Casi[0].Script_Errato);
}

TEST_F(CaseMarks, LinesThatAProgramSpendsAreItsOwnFault) {
  base.Inizio.Righe = 1000;
  const Esito_Progetto esito = Esito({"NOP", "NOP"}, R"(
    prova('a', 4, function() run() attendi(10000) punti(4, true, 'x') end)
    prova('b', 3, function() run() attendi(10) punti(3, true, 'y') end))");
  EXPECT_EQ(esito.Massimo(), 7);
  EXPECT_EQ(esito.Punti(), 0);
  for (const Caso& caso : esito.Casi) {
    EXPECT_FALSE(caso.Script_Errato);
    EXPECT_EQ(caso.Rilievi.at(0).Testo, "Il programma esegue troppe righe.");
  }
}

}  // namespace tavorno::prova
