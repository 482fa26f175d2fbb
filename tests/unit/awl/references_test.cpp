// SPDX-License-Identifier: GPL-3.0-or-later
// Where operands, labels and procedures are named, and the way from one place to another.
#include "awl/references.h"

#include <gtest/gtest.h>

#include "awl/navigation.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

Sorgente Testi(const std::string& main, const std::vector<std::string>& procedure = {}) {
  Sorgente testi;
  testi.Main = main;
  for (const std::string& testo : procedure) {
    const std::string n = std::to_string(testi.Procedure.size());
    testi.Procedure.push_back({0, "SBR_" + n, "SBR" + n, 0, testo});
  }
  return testi;
}

/// "L I0.0 7+4" of each: use, name, column and length, and how many where it is more than one.
std::string Detti(const std::string& linea) {
  std::string detti;
  for (const Riferimento& uso : Riferimenti(Testi(linea))) {
    if (!detti.empty()) detti += "; ";
    detti += "LSED"[static_cast<int>(uso.Come)];
    detti +=
        ' ' + uso.Di.Nome + ' ' + std::to_string(uso.Colonna) + '+' + std::to_string(uso.Lunghezza);
    if (uso.Quanti > 1) detti += '*' + std::to_string(uso.Quanti);
  }
  return detti;
}

}  // namespace

struct Caso_Riferimenti {
  std::string Nome, Linea, Detti;
};
class LineReferences : public testing::TestWithParam<Caso_Riferimenti> {};

TEST_P(LineReferences, AreReadAndWritten) {
  EXPECT_EQ(Detti(GetParam().Linea), GetParam().Detti);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineReferences,
    testing::Values(Caso_Riferimenti{"Contact", "LD     I0.0     //marcia", "L I0.0 7+4"},
                    Caso_Riferimenti{"SmallLetters", "an q0.01", "L Q0.1 3+5"},
                    Caso_Riferimenti{"Coil", "=\tM2.7", "S M2.7 2+4"},
                    Caso_Riferimenti{"Set", "S Q0.0, 3", "S Q0.0 2+4*3"},
                    Caso_Riferimenti{"SetAtOnce", "SI Q0.0,1", "S Q0.0 3+4*2"},
                    Caso_Riferimenti{"ResetWithoutCount", "R C5", "S C5 2+2"},
                    Caso_Riferimenti{"Timer", "TON T037, VW4", "S T37 4+4; L VW4 10+3"},
                    Caso_Riferimenti{"Counter", "CTU C5, +3", "S C5 4+2"},
                    Caso_Riferimenti{"Move", "MOVW VW0, AQW0", "L VW0 5+3; S AQW0 10+4"},
                    Caso_Riferimenti{"Sum", "+I VW0,AC1", "L VW0 3+3; E AC1 7+3"},
                    Caso_Riferimenti{"Increment", "INCW VW10", "E VW10 5+4"},
                    Caso_Riferimenti{"IncrementDouble", "INCD VD4", "E VD4 5+3"},
                    Caso_Riferimenti{"Comparison", "LDW>= C1, +3", "L C1 6+2"},
                    Caso_Riferimenti{"TwoCompared", "AB= VB0,VB1", "L VB0 4+3; L VB1 8+3"},
                    Caso_Riferimenti{"RefusedComparison", "LDR= AC0, AC1", "L AC0 5+3; L AC1 10+3"},
                    Caso_Riferimenti{"NotExecuted", "XORD AC0, AC1", "L AC0 5+3; E AC1 10+3"},
                    Caso_Riferimenti{"Step", "LSCR S0.1", "L S0.1 5+4"},
                    Caso_Riferimenti{"Jump", "JMP +5", "L 5 4+2"},
                    Caso_Riferimenti{"Label", "LBL 005", "D 5 4+3"},
                    Caso_Riferimenti{"Call", "CALL sbr_0", "L SBR_0 5+5"},
                    Caso_Riferimenti{"Comment", "//LD I0.0", ""},
                    Caso_Riferimenti{"Network", "NETWORK 1 //I0.0", ""},
                    Caso_Riferimenti{"Unknown", "XYZ I0.0", ""},
                    Caso_Riferimenti{"NoSuchOperand", "LD X1.2", ""},
                    Caso_Riferimenti{"BitMissing", "LD I0", ""},
                    Caso_Riferimenti{"Nothing", "", ""}),
    [](const auto& caso) { return caso.param.Nome; });

// Every instruction that executes something is told apart as its branch treats it.
TEST(References, EveryRuleReadsOrWritesAsItsHelpSays) {
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Operandi == nullptr) continue;
    const std::string& aiuto = istruzione.Operandi->Aiuto;
    const auto usi = Riferimenti(Testi(istruzione.Nome + " VW0, VW2"));
    ASSERT_EQ(usi.size(), 2U) << istruzione.Nome;
    const bool destinazione = aiuto.find("destinazione") != std::string::npos;
    const bool risultato = aiuto.find("risultato") != std::string::npos;
    EXPECT_EQ(usi[1].Come == Uso::Scrittura, destinazione) << istruzione.Nome;
    EXPECT_EQ(usi[1].Come == Uso::Entrambi, risultato) << istruzione.Nome;
    const bool confronto = istruzione.Confronto != Relazione::Nessuna;
    const bool contatto = istruzione.Gruppo_Manuale == Famiglia::Contatti;
    const bool legge = confronto || contatto || destinazione || risultato;
    EXPECT_EQ(usi[0].Come == Uso::Lettura, legge) << istruzione.Nome;
  }
}

TEST(References, AreInTheOrderOfTheTexts) {
  const auto usi = Riferimenti(Testi("NOT\r\nLD I0.0\r\n", {"", "//\r\n= Q0.0"}));
  ASSERT_EQ(usi.size(), 2U);
  EXPECT_EQ(usi[0].Posto, (Posto_Riga{0, 1}));
  EXPECT_EQ(usi[1].Posto, (Posto_Riga{2, 1}));
  EXPECT_EQ(usi[1].Linea, "= Q0.0");
}

struct Caso_Tocca {
  std::string Linea, Nome;
  bool Tocca;
};
class Touch : public testing::TestWithParam<Caso_Tocca> {};

TEST_P(Touch, CountsTheCells) {
  const auto usi = Usi_Di(Testi(GetParam().Linea), {Genere_Nome::Operando, GetParam().Nome});
  EXPECT_EQ(!usi.empty(), GetParam().Tocca) << GetParam().Linea << " " << GetParam().Nome;
}

INSTANTIATE_TEST_SUITE_P(
    Cells, Touch,
    testing::Values(Caso_Tocca{"S Q0.0, 3", "Q0.2", true}, Caso_Tocca{"S Q0.0, 3", "Q0.3", false},
                    Caso_Tocca{"R M0.6, 4", "M1.1", true}, Caso_Tocca{"R M0.6, 4", "M1.2", false},
                    Caso_Tocca{"SI Q0.0, 1", "Q0.1", true}, Caso_Tocca{"R T37, 2", "T38", true},
                    Caso_Tocca{"MOVB IB0, VB0", "I0.7", true},
                    Caso_Tocca{"MOVB IB0, VB0", "I1.0", false}, Caso_Tocca{"LD I1.3", "IB1", true},
                    Caso_Tocca{"MOVW IW0, VW0", "I0.1", true},
                    Caso_Tocca{"MOVB VB0, VB2", "VW0", false},
                    Caso_Tocca{"MOVB SMB28, VB2", "SM28.1", true},
                    Caso_Tocca{"LD M0.0", "S0.0", false}, Caso_Tocca{"LD C1", "T1", false}));

struct Caso_Cursore {
  std::string Linea;
  int Colonna;
  std::string Nome;  ///< empty: none
};
class Caret : public testing::TestWithParam<Caso_Cursore> {};

TEST_P(Caret, StandsOnAName) {
  const auto nome = Nominato_In(GetParam().Linea, GetParam().Colonna);
  EXPECT_EQ(nome ? nome->Nome : "", GetParam().Nome);
}

INSTANTIATE_TEST_SUITE_P(Columns, Caret,
                         testing::Values(Caso_Cursore{"LD I0.0", 0, "I0.0"},
                                         Caso_Cursore{"LD I0.0", 7, "I0.0"},
                                         Caso_Cursore{"MOVW VW0, VW2", 5, "VW0"},
                                         Caso_Cursore{"MOVW VW0, VW2", 13, "VW2"},
                                         Caso_Cursore{"MOVW VW0, VW2", 1, ""},
                                         Caso_Cursore{"NOT", 1, ""}, Caso_Cursore{"", 0, ""}));

// ---- navigation ---------------------------------------------------------------------------------

TEST(Destination, OfCallsAndJumps) {
  const Sorgente testi =
      Testi("CALL sbr_1\r\nJMP 3\r\nCALL SBR_9\r\nLBL 3\r\nJMP 4\r\nJMP 3\r\nLD I0.0\r\n",
            {"LBL 3", "//\r\nLBL 3\r\nCALL SBR_0"});
  const auto meta = [&](int testo, int linea) { return Meta(testi, {testo, linea}); };
  EXPECT_EQ(meta(0, 0), (Posto_Riga{2, 0}));
  EXPECT_EQ(meta(0, 1), (Posto_Riga{2, 1})) << "the last label counts for the CPU";
  EXPECT_EQ(meta(0, 2), std::nullopt);
  EXPECT_EQ(meta(0, 3), (Posto_Riga{0, 1})) << "back to its first jump";
  EXPECT_EQ(meta(0, 4), std::nullopt);
  EXPECT_EQ(meta(0, 6), std::nullopt);
  EXPECT_EQ(meta(2, 2), (Posto_Riga{1, 0}));
  EXPECT_EQ(meta(5, 0), std::nullopt);
}

TEST(References, TakeNumbersThatNoCpuHas) {
  // Its first bit counted in 32 bits would be I0.0.
  const Sorgente testi = Testi("MOVB IB536870912, QB0\r\nLD I2147483647.2147483647");
  EXPECT_EQ(Usi_Di(testi, {Genere_Nome::Operando, "I0.0"}).size(), 0U);
  EXPECT_EQ(Usi_Di(testi, {Genere_Nome::Operando, "IB536870912"}).size(), 1U);
}

TEST(Networks, AreFoundUpAndDown) {
  const std::string testo = "//a\r\nNETWORK 1\r\nNOT\r\nNETWORK 2\r\n";
  EXPECT_EQ(Segmento_Dopo(testo, 0), 1);
  EXPECT_EQ(Segmento_Dopo(testo, 1), 3);
  EXPECT_EQ(Segmento_Dopo(testo, 3), -1);
  EXPECT_EQ(Segmento_Prima(testo, 4), 3);
  EXPECT_EQ(Segmento_Prima(testo, 3), 1);
  EXPECT_EQ(Segmento_Prima(testo, 1), -1);
}

}  // namespace tavorno::prova
