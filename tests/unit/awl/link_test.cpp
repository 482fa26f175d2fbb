// SPDX-License-Identifier: GPL-3.0-or-later
// Jump targets, timer lists and SCR sections.
#include "awl/link.h"

#include "plc/instructions.h"
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Timer = std::vector<std::int16_t>;

struct Voce {
  std::string istr;
  std::int16_t numero = 0;
  std::string area = "";
};

}  // namespace

class LinkPass : public Banco_Progetto {
 protected:
  void Programma(const std::vector<Voce>& voci) {
    plc.Prog.Ridimensiona(static_cast<int>(voci.size()));
    plc.NRighe = static_cast<std::int16_t>(voci.size() - 1);
    for (int i = 0; i <= plc.NRighe; ++i) {
      plc.Prog[i].Istr = voci[static_cast<std::size_t>(i)].istr;
      plc.Prog[i].Num1 = voci[static_cast<std::size_t>(i)].numero;
      plc.Prog[i].Area1 = voci[static_cast<std::size_t>(i)].area;
      Decodifica(plc.Prog[i]);
    }
  }
};

// ---- jumps and calls ----------------------------------------------------------------------------

struct Caso_Meta {
  std::string nome;
  std::vector<Voce> voci;
  int esito;
  std::vector<std::int16_t> salti;  ///< `Salto` of each jump or call, in row order
  std::vector<Timer> liste;         ///< `Lista_T` of each
};

class Targets : public LinkPass, public testing::WithParamInterface<Caso_Meta> {
 protected:
  void Prova(const std::string& istr, Passo (*passo)(std::span<Riga_PLC>)) {
    const Caso_Meta& caso = GetParam();
    Programma(caso.voci);
    EXPECT_EQ(passo(plc.Prog).Esito, caso.esito);
    std::vector<std::int16_t> salti;
    std::vector<Timer> liste;
    for (const Riga_PLC& riga : plc.Prog) {
      if (riga.Istr == istr) {
        salti.push_back(riga.Salto);
        liste.push_back(riga.Lista_T);
      } else {
        EXPECT_EQ(riga.Salto, 0);
        EXPECT_EQ(riga.Lista_T, Timer{});
      }
    }
    EXPECT_EQ(salti, caso.salti);
    EXPECT_EQ(liste, caso.liste);
  }
};

using JumpTargets = Targets;

TEST_P(JumpTargets, AreFound) {
  Prova("JMP", Assegna_JMP);
}

INSTANTIATE_TEST_SUITE_P(
    AllEdges, JumpTargets,
    testing::Values(
        Caso_Meta{"NoJump", {{"LBL", 1}, {"TON", 3}, {"MEND"}}, 0, {}, {}},
        Caso_Meta{"Forward", {{"NOT"}, {"JMP", 5}, {"NOT"}, {"LBL", 5}}, 0, {3}, {{0}}},
        Caso_Meta{"ForwardAcrossTwoTimers",
                  {{"TON", 31}, {"JMP", 5}, {"TON", 38}, {"TON", 37}, {"LBL", 5}, {"TON", 32}},
                  0,
                  {4},
                  {{0, 38, 37}}},
        Caso_Meta{"ForwardAcrossAllKindsOfTimers",
                  {{"JMP", 5}, {"TONR", 1}, {"TOF", 2}, {"TON", 3}, {"CTU", 4}, {"LBL", 5}},
                  0,
                  {5},
                  {{0, 1, 2, 3}}},
        Caso_Meta{"Backward", {{"LBL", 5}, {"TON", 37}, {"JMP", 5}}, 0, {0}, {{0}}},
        Caso_Meta{"WithoutLabel", {{"JMP", 5}, {"LBL", 6}}, 1, {0}, {{0}}},
        Caso_Meta{"TwoLabelsTheLastWins",
                  {{"JMP", 5}, {"LBL", 5}, {"TON", 33}, {"LBL", 5}},
                  1,
                  {3},
                  {{0, 33}}},
        Caso_Meta{"TwoJumpsToOneLabel",
                  {{"JMP", 5}, {"TON", 33}, {"JMP", 5}, {"LBL", 5}},
                  0,
                  {3, 3},
                  {{0, 33}, {0}}},
        Caso_Meta{"AMissingLabelAndADoubleOneCancelOut",
                  {{"JMP", 5}, {"JMP", 6}, {"LBL", 6}, {"LBL", 6}},
                  0,
                  {0, 3},
                  {{0}, {0}}},
        Caso_Meta{"AJumpWithoutLabelUsesTheLastTarget",
                  {{"JMP", 5}, {"JMP", 6}, {"TON", 33}, {"LBL", 5}, {"TON", 34}},
                  1,
                  {3, 0},
                  {{0, 33}, {0, 33}}},
        Caso_Meta{
            "TheRowOfALabelIsLookedAtToTheEnd", {{"JMP", 5}, {"MEND"}, {"LBL", 5}}, 0, {2}, {{0}}}),
    [](const auto& caso) { return caso.param.nome; });

class CallTargets : public Targets {};

TEST_P(CallTargets, AreFound) {
  Prova("CALL", Assegna_SBR);
}

INSTANTIATE_TEST_SUITE_P(
    AllEdges, CallTargets,
    testing::Values(
        Caso_Meta{"NoCall", {{"MEND"}, {"SBR0", 0, "SBR_0"}, {"RET"}}, 0, {}, {}},
        Caso_Meta{"ByName",
                  {{"CALL", 0, "SBR_0"}, {"MEND"}, {"SBR0", 0, "SBR_0"}, {"RET"}},
                  0,
                  {2},
                  {{0}}},
        Caso_Meta{"NotByItsId",
                  {{"CALL", 0, "SBR0"}, {"MEND"}, {"SBR0", 0, "SBR_0"}, {"RET"}},
                  1,
                  {0},
                  {{}}},
        Caso_Meta{"InAnyCase",
                  {{"CALL", 0, "pompa \xE0"}, {"MEND"}, {"SBR0", 0, "POMPA \xC0"}, {"RET"}},
                  0,
                  {2},
                  {{0}}},
        Caso_Meta{"ListsTheTimersUpToTheFirstRet",
                  {{"CALL", 0, "A"},
                   {"TON", 31},
                   {"MEND"},
                   {"SBR0", 0, "A"},
                   {"TON", 38},
                   {"CRET"},
                   {"TOF", 37},
                   {"TONR", 1},
                   {"CTU", 2},
                   {"RET"},
                   {"SBR1", 0, "B"},
                   {"TON", 33},
                   {"RET"}},
                  0,
                  {3},
                  {{0, 38, 37, 1}}},
        Caso_Meta{"WithoutRetListsToTheLastRow",
                  {{"CALL", 0, "A"}, {"SBR0", 0, "A"}, {"TON", 38}},
                  0,
                  {1},
                  {{0, 38}}},
        Caso_Meta{
            "TwoOfOneNameTheLastWins",
            {{"CALL", 0, "A"}, {"SBR0", 0, "A"}, {"RET"}, {"SBR1", 0, "A"}, {"TON", 3}, {"RET"}},
            1,
            {3},
            {{0, 3}}},
        Caso_Meta{"FromInsideAProcedure",
                  {{"SBR0", 0, "A"}, {"CALL", 0, "A"}, {"TON", 3}, {"RET"}},
                  0,
                  {0},
                  {{0, 3}}},
        Caso_Meta{"OneMissingOfTwo",
                  {{"CALL", 0, "A"}, {"CALL", 0, "B"}, {"SBR0", 0, "B"}, {"RET"}},
                  1,
                  {0, 2},
                  {{}, {0}}}),
    [](const auto& caso) { return caso.param.nome; });

// ---- sections -----------------------------------------------------------------------------------

struct Caso_Sezione {
  std::string nome;
  std::vector<Voce> voci;
  int esito;
  std::vector<std::int16_t> prime, ultime;  ///< of each LSCR, in row order
  int abilitate;                            ///< rows whose enable was set
};

class Sections : public LinkPass, public testing::WithParamInterface<Caso_Sezione> {};

TEST_P(Sections, AreClosed) {
  const Caso_Sezione& caso = GetParam();
  Programma(caso.voci);
  for (Riga_PLC& riga : plc.Prog) riga.Abil_SCR = 0;  // as a run may leave it
  EXPECT_EQ(Assegna_SCR(plc.Prog).Esito, caso.esito);
  std::vector<std::int16_t> prime;
  std::vector<std::int16_t> ultime;
  for (int i = 0; i <= plc.NRighe; ++i) {
    EXPECT_EQ(plc.Prog[i].Abil_SCR, i < caso.abilitate ? 1 : 0) << i;
    if (plc.Prog[i].Istr != "LSCR") continue;
    prime.push_back(plc.Prog[i].SCR_Prima);
    ultime.push_back(plc.Prog[i].SCR_Ultima);
  }
  EXPECT_EQ(prime, caso.prime);
  EXPECT_EQ(ultime, caso.ultime);
}

INSTANTIATE_TEST_SUITE_P(
    AllEdges, Sections,
    testing::Values(
        Caso_Sezione{"None", {{"NOT"}, {"SCRE"}, {"MEND"}}, 0, {}, {}, 3},
        Caso_Sezione{"FromRow4ToRow9",
                     {{"NOT"},
                      {"NOT"},
                      {"NOT"},
                      {"NOT"},
                      {"LSCR"},
                      {"NOT"},
                      {"NOT"},
                      {"NOT"},
                      {"NOT"},
                      {"SCRE"},
                      {"MEND"}},
                     0,
                     {5},
                     {8},
                     11},
        Caso_Sezione{"Empty", {{"LSCR"}, {"SCRE"}}, 0, {1}, {0}, 2},
        Caso_Sezione{"TwoInARow",
                     {{"LSCR"}, {"NOT"}, {"SCRE"}, {"JMP"}, {"LBL"}, {"LSCR"}, {"SCRE"}},
                     0,
                     {1, 6},
                     {1, 5},
                     7},
        Caso_Sezione{"NestedBothEndAtTheFirstScre",
                     {{"LSCR"}, {"LSCR"}, {"NOT"}, {"SCRE"}, {"SCRE"}},
                     0,
                     {1, 2},
                     {2, 2},
                     5},
        Caso_Sezione{"Open", {{"NOT"}, {"LSCR"}, {"NOT"}, {"MEND"}}, 1, {2}, {0}, 4},
        Caso_Sezione{
            "OpenBehindAClosedOne", {{"LSCR"}, {"SCRE"}, {"LSCR"}, {"NOT"}}, 1, {1, 3}, {0, 0}, 4},
        Caso_Sezione{"JumpInsideEndsThePass",
                     {{"NOT"}, {"LSCR"}, {"JMP"}, {"SCRE"}, {"LSCR"}, {"SCRE"}},
                     1,
                     {2, 0},
                     {0, 0},
                     2},
        Caso_Sezione{
            "LabelInsideEndsThePass", {{"LSCR"}, {"NOT"}, {"LBL"}, {"SCRE"}}, 1, {1}, {0}, 1},
        Caso_Sezione{"JumpBehindAnOpenSectionEndsThePass",
                     {{"LSCR"}, {"NOT"}, {"MEND"}, {"JMP"}},
                     1,
                     {1},
                     {0},
                     1}),
    [](const auto& caso) { return caso.param.nome; });

}  // namespace tavorno::prova
