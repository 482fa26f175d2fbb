// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {
namespace {

using Comparisons = Una_Riga;

/// Off, so that a relation that holds shows on the top.
constexpr Porta spenta{0, 1};

void Spingi(Memoria& memoria, int valore) {
  for (int cella = 7; cella >= 1; --cella) memoria.Stak[cella] = memoria.Stak[cella - 1];
  memoria.Stak[0] = static_cast<std::int16_t>(valore);
}

// ---- the mnemonics ------------------------------------------------------------------------------

using Mnemonico = std::tuple<const char*, const char*, const char*>;  // connection, width, relation
class ComparisonMnemonic : public Comparisons, public ::testing::WithParamInterface<Mnemonico> {};

TEST_P(ComparisonMnemonic, JoinsTheStackWithTheRelationOfFirstToSecond) {
  static const std::map<std::string, std::function<bool(int, int)>> relazioni = {
      {"=", std::equal_to<>()},    {"<>", std::not_equal_to<>()}, {">=", std::greater_equal<>()},
      {"<=", std::less_equal<>()}, {">", std::greater<>()},       {"<", std::less<>()}};
  const auto& [connessione, larghezza, relazione] = GetParam();
  const std::string unione = connessione;
  const std::string celle = std::string("V") + larghezza;
  for (const auto& [primo, secondo] :
       {std::pair{3, 5}, {5, 5}, {5, 3}, {-5, 3}, {3, -5}, {-5, -3}, {-3, -5}, {-5, -5}, {0, 0}}) {
    for (const int cima : {0, 1}) {
      for (const int abilitata : {0, 1}) {
        SCOPED_TRACE(std::to_string(primo) + " with " + std::to_string(secondo) + ", top " +
                     std::to_string(cima));
        Prepara(unione + larghezza + relazione + " " + celle + "8, " + celle + "9",
                {cima, abilitata});  // contacts work in a disabled section too
        plc.Mem_VB[8] = plc.Mem_VW[8] = static_cast<std::int16_t>(primo);
        plc.Mem_VB[9] = plc.Mem_VW[9] = static_cast<std::int16_t>(secondo);
        plc.Mem_VD[8] = primo;
        plc.Mem_VD[9] = secondo;
        Memoria atteso = plc;
        const int r = relazioni.at(relazione)(primo, secondo) ? 1 : 0;
        if (unione == "LD")
          Spingi(atteso, r);
        else
          atteso.Stak[0] = static_cast<std::int16_t>(unione == "A" ? cima & r : cima | r);
        Attendi(atteso);
      }
    }
  }
}

std::string Nome_Mnemonico(const ::testing::TestParamInfo<Mnemonico>& mnemonico) {
  static const std::map<std::string, std::string> nomi = {{"=", "Equal"},     {"<>", "NotEqual"},
                                                          {">=", "NotBelow"}, {"<=", "NotAbove"},
                                                          {">", "Above"},     {"<", "Below"}};
  const auto& [connessione, larghezza, relazione] = mnemonico.param;
  return std::string(connessione) + larghezza + nomi.at(relazione);
}
INSTANTIATE_TEST_SUITE_P(All, ComparisonMnemonic,
                         ::testing::Combine(::testing::Values("LD", "A", "O"),
                                            ::testing::Values("B", "W", "D"),
                                            ::testing::Values("=", "<>", ">=", "<=", ">", "<")),
                         Nome_Mnemonico);

// ---- operands -----------------------------------------------------------------------------------

/// The values that the width reads; an area that is missing here is an error.
std::map<std::string, int> Valori(const Memoria& m, char larghezza) {
  const int ac = static_cast<int>(m.Mem_AC[1]);
  switch (larghezza) {
    case 'B':
      return {{"VB", m.Mem_VB[1]},      {"AC", ac},
              {"IB", m.IP_I[1].Val_B},  {"QB", m.IP_Q[1].Val_B},
              {"MB", m.Mem_M[1].Val_B}, {"K", 1}};
    case 'W':
      return {{"VW", m.Mem_VW[1]},  {"AC", ac}, {"IW", 1011},          {"QW", 1100},
              {"MW", 1101},         {"K", 1},   {"AIW", m.Mem_AIW[1]}, {"T", m.Mem_T[1].Val},
              {"C", m.Mem_C[1].Val}};
    default:
      return {{"VD", m.Mem_VD[1]}, {"AC", ac}, {"K", 1}};
  }
}

using Operando_Letto = std::tuple<char, const char*>;
class ComparisonOperand : public Comparisons,
                          public ::testing::WithParamInterface<Operando_Letto> {};

TEST_P(ComparisonOperand, IsReadInBothPlacesOrIsAnErrorThatLeavesTheStack) {
  const auto& [larghezza, area] = GetParam();
  const auto valori = Valori(plc, larghezza);
  const auto valore = valori.find(area);
  const bool letta = valore != valori.end();
  const std::string cella = std::string("V") + larghezza + "50";
  const std::string confronto = std::string("LD") + larghezza + "= ";
  plc.Mem_VB[50] = plc.Mem_VW[50] = static_cast<std::int16_t>(letta ? valore->second : 0);
  plc.Mem_VD[50] = letta ? valore->second : 0;
  for (const std::string& operandi :
       {Operando_Di(area, 1) + ", " + cella, cella + ", " + Operando_Di(area, 1)}) {
    SCOPED_TRACE(operandi);
    Prepara(confronto + operandi, spenta);
    if (!letta) {
      Attendi_Errore();
      continue;
    }
    Memoria atteso = plc;
    Spingi(atteso, 1);
    Attendi(atteso);
  }
}

INSTANTIATE_TEST_SUITE_P(Width, ComparisonOperand,
                         ::testing::Combine(::testing::Values('B', 'W', 'D'),
                                            ::testing::ValuesIn(aree)),
                         [](const auto& riga) {
                           return std::string(1, std::get<0>(riga.param)) + "From" +
                                  std::get<1>(riga.param);
                         });

struct Limite {
  char larghezza;
  const char* nome;
  const char* area;  // of the operand; its number is 1
  double valore;
  Fine fine;
  int letto;
};

const Limite limiti[] = {
    {'B', "AtTheLimit", "VB", 255, Bene, 255},
    {'B', "AboveTheLimit", "VB", 256, Errore, 0},
    {'B', "Negative", "VB", -32768, Bene, -32768},
    {'B', "RoundedUnderTheLimit", "AC", 254.5, Bene, 254},
    {'B', "RoundedOverTheLimit", "AC", 255.5, Errore, 0},
    {'B', "FarAboveTheLimit", "AC", 70000, Errore, 0},
    {'B', "AtTheBottomOfTheCell", "AC", -32768, Bene, -32768},
    {'B', "BelowTheCell", "AC", -32769, Crollo, 0},
    {'W', "AtTheLimit", "AIW", 32767, Bene, 32767},
    {'W', "AboveTheLimit", "AIW", 32768, Errore, 0},
    {'W', "Negative", "VW", -32768, Bene, -32768},
    {'W', "RoundedUnderTheLimit", "AC", 32766.5, Bene, 32766},
    {'W', "RoundedOverTheLimit", "AC", 32767.5, Errore, 0},
    {'W', "AtTheBottomOfTheCell", "AC", -32768, Bene, -32768},
    {'W', "BelowTheCell", "AC", -32769, Crollo, 0},
    {'W', "AnalogBelowTheCell", "AIW", -32769, Crollo, 0},
    {'D', "OfTheLargestValue", "VD", INT32_MAX, Bene, INT32_MAX},
    {'D', "OfTheSmallestValue", "VD", INT32_MIN, Bene, INT32_MIN},
    {'D', "RoundedToTheEvenNeighbour", "AC", 2.5, Bene, 2},
    {'D', "RoundedToTheEvenNeighbourAbove", "AC", 3.5, Bene, 4},
    {'D', "OfANegativeHalf", "AC", -2.5, Bene, -2},
    {'D', "BeyondTheCell", "AC", 2147483648.0, Crollo, 0},
};

class ComparisonLimit : public Comparisons, public ::testing::WithParamInterface<Limite> {};

TEST_P(ComparisonLimit, ReadsItsOperandAsTheRowSays) {
  const auto& [larghezza, nome, area, valore, fine, letto] = GetParam();
  const std::string testo = Operando_Di(area, 1);
  Metti(plc, area, 1, valore);
  plc.Mem_VB[50] = plc.Mem_VW[50] = static_cast<std::int16_t>(letto);
  plc.Mem_VD[50] = letto;
  const std::string cella = std::string("V") + larghezza + "50";
  for (const std::string& operandi : {testo + ", " + cella, cella + ", " + testo}) {
    SCOPED_TRACE(operandi);
    Prepara(std::string("LD") + larghezza + "= " + operandi, spenta);
    Memoria atteso = plc;
    if (fine == Bene) Spingi(atteso, 1);
    Attendi(fine, atteso);
  }
}

INSTANTIATE_TEST_SUITE_P(Operand, ComparisonLimit, ::testing::ValuesIn(limiti),
                         [](const auto& riga) {
                           return std::string(1, riga.param.larghezza) + riga.param.nome;
                         });

TEST_F(Comparisons, WordOfABitAreaAboveTheLimitIsAnErrorAndAnEmptyTextIsFatal) {
  for (const char* operando : {"IW1", "QW1", "MW1"}) {
    SCOPED_TRACE(operando);
    Prepara(std::string("LDW= ") + operando + ", +0", spenta);
    plc.IP_I[1].Txt_B = plc.IP_Q[1].Txt_B = plc.Mem_M[1].Txt_B = "10000000";
    Attendi_Errore();
    Prepara(std::string("LDW= ") + operando + ", +0", spenta);
    plc.IP_I[1].Txt_B = plc.IP_Q[1].Txt_B = plc.Mem_M[1].Txt_B = "";
    EXPECT_THROW(plc.Esegui_Riga(), Fatale);
  }
}

TEST_F(Comparisons, OneFailingOperandIsEnoughAndTwoGiveOneMessage) {
  for (const char* connessione : {"LD", "A", "O"}) {
    for (const char* operandi : {"VB7, +1", "+1, VB7", "VB7, VB7"}) {
      SCOPED_TRACE(std::string(connessione) + " " + operandi);
      plc.Mem_VB[7] = 256;
      Prepara(std::string(connessione) + "B<> " + operandi,
              connessione[0] == 'A' ? aperta : spenta);
      Attendi_Errore();
    }
  }
}

TEST_F(Comparisons, ReadersSetTheErrorFlagAndNeverClearIt) {
  std::int16_t err = 0;
  plc.Mem_VB[7] = 256;
  EXPECT_EQ(plc.Leggi_B(Area::VB, 1, err), plc.Mem_VB[1]);
  EXPECT_EQ(plc.Leggi_W(Area::VW, 1, err), plc.Mem_VW[1]);
  EXPECT_EQ(plc.Leggi_D(Area::VD, 1, err), plc.Mem_VD[1]);
  EXPECT_EQ(err, 0);
  EXPECT_EQ(plc.Leggi_B(Area::VB, 7, err), 0);
  EXPECT_EQ(err, -1);
  EXPECT_EQ(plc.Leggi_B(Area::VB, 1, err), plc.Mem_VB[1]);
  EXPECT_EQ(plc.Leggi_W(Area::VW, 1, err), plc.Mem_VW[1]);
  EXPECT_EQ(plc.Leggi_D(Area::VD, 1, err), plc.Mem_VD[1]);
  EXPECT_EQ(err, -1);
  err = 0;
  EXPECT_EQ(plc.Leggi_W(Area::AQW, 1, err), 0);
  EXPECT_EQ(err, -1);
  err = 0;
  EXPECT_EQ(plc.Leggi_D(Area::VW, 1, err), 0);
  EXPECT_EQ(err, -1);
}

// ---- in a program -------------------------------------------------------------------------------

TEST_F(Comparisons, CounterAtZeroEqualsZeroRightAfterRun) {
  plc.Mem_C[0] = {};
  Carica({"LDW= C0, +0"});
  Run_Step();
  plc.CmdStep();
  EXPECT_EQ(Pila(), (std::vector<int>{1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(Comparisons, SpecialByteCannotBeComparedAndCanBeMoved) {
  plc.Mem_SM[28].Val_B = 5;
  Carica({"LD SM0.0", "MOVB SMB28, VB0", "LDB= SMB28, +5"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.Mem_VB[0], 5);
  EXPECT_EQ(plc.PC, 2);
  EXPECT_FALSE(plc.PLC_Acceso);
  ASSERT_EQ(avvisi.size(), 1U);
}

TEST_F(Comparisons, FailingOperandLeavesTheStackAndStopsTheRun) {
  plc.Mem_VB[7] = 300;
  Carica({"LD SM0.0", "LD SM0.2", "LDB= VB7, +5", "LD SM0.0"});
  Run_Step();
  Scansione();
  EXPECT_EQ(Pila(), (std::vector<int>{0, 1, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(plc.PC, 2);
  EXPECT_FALSE(plc.PLC_Acceso);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
}

}  // namespace
}  // namespace tavorno::prova
