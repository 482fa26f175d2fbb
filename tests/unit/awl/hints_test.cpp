// SPDX-License-Identifier: GPL-3.0-or-later
// What is said of a text while it is being written, and that it comes true.
#include "awl/hints.h"

#include <gtest/gtest.h>

#include "awl/program.h"
#include "awl/reader.h"
#include "awl/writer.h"
#include "plc/instructions.h"

namespace tavorno::prova {

namespace {

Sorgente Con_Main(const std::string& testo) {
  Sorgente sorgente;
  sorgente.Main = testo;
  return sorgente;
}

/// "line: first words of the message" of each hint on a Main text.
std::vector<std::string> Detti(const Sorgente& sorgente) {
  std::vector<std::string> detti;
  for (const Diagnosi& detta : Suggerimenti(sorgente)) {
    EXPECT_EQ(detta.Grado, Gravita::Suggerimento);
    EXPECT_EQ(detta.Riga, -1);
    detti.push_back(std::to_string(detta.Posto.Testo) + "." + std::to_string(detta.Posto.Linea) +
                    " " + detta.Messaggio.substr(0, 20));
  }
  return detti;
}

using Lista = std::vector<std::string>;

}  // namespace

struct Caso_Suggerimento {
  std::string nome;
  std::string linea;
  Lista detti;  ///< on the line, which is the second of the text
};

class LineHint : public testing::TestWithParam<Caso_Suggerimento> {};

TEST_P(LineHint, IsGivenOnThatLineOnly) {
  EXPECT_EQ(Detti(Con_Main("//titolo\r\n" + GetParam().linea + "\r\nNOT\r\n")), GetParam().detti);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, LineHint,
    testing::Values(
        Caso_Suggerimento{"Good", "LD     I0.0              //marcia", {}},
        Caso_Suggerimento{"Division", "/I     VW0, VW2  //x", {}},
        Caso_Suggerimento{"Empty", "", {}}, Caso_Suggerimento{"Blanks", "    ", {}},
        Caso_Suggerimento{"Comment", "//a / b", {}},
        Caso_Suggerimento{"Network", "NETWORK 1 //a", {}},
        Caso_Suggerimento{"ThreeCommas", "MOVW VW0, VW2, VW4", {}},
        Caso_Suggerimento{"IndentedInstruction", "  LD I0.0", {"0.1 Comincia con uno spa"}},
        Caso_Suggerimento{"IndentedByATab", "\tLD I0.0", {"0.1 Comincia con uno spa"}},
        Caso_Suggerimento{"IndentedComment", " // a", {"0.1 Comincia con uno spa"}},
        Caso_Suggerimento{"FourBlanks", "A B C D E", {"0.1 Quattro spazi tra le"}},
        Caso_Suggerimento{"FiveBlanks", "A B C D E F", {"0.1 Così il progetto no"}},
        Caso_Suggerimento{"OneBar", "LD I0.0 /marcia", {"0.1 Un commento comincia"}},
        Caso_Suggerimento{"BarInAnOperand", "MOVW VW0/2, VW2", {"0.1 Un commento comincia"}},
        Caso_Suggerimento{"TwentyTwoCharacters", "MOVW VW100, VW100123", {}},
        Caso_Suggerimento{"TooLong", "MOVW VW100, VW1001234", {"0.1 Così il progetto no"}},
        Caso_Suggerimento{"LongMnemonic", "ABCDEFGH I0.0", {"0.1 Così il progetto no"}},
        Caso_Suggerimento{"LongNetwork", "NETWORK 1234567890 //a", {"0.1 Così il progetto no"}},
        Caso_Suggerimento{"FiveCommas", "MOVW 1,2,3,4,5,6", {"0.1 Così il progetto no"}},
        Caso_Suggerimento{"Xord", "xord AC0, AC1", {"0.1 XORD supera la compi"}},
        Caso_Suggerimento{"Reti", "RETI", {"0.1 RETI supera la compi"}},
        Caso_Suggerimento{"Int", "INT0 nome", {"0.1 INT0 supera la compi"}},
        Caso_Suggerimento{"Unsupported", "XORW AC0, AC1", {}},
        Caso_Suggerimento{"TimerNobodyReads", "TON T37, +100", {"0.1 Nessuno legge T37: i"}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Hints, TellColumnAndLengthOfTheInstruction) {
  const auto detti = Suggerimenti(Con_Main("//\r\n  LD I0.0  // x\r\n"));
  ASSERT_EQ(detti.size(), 1U);
  EXPECT_EQ(detti[0].Colonna, 2);
  EXPECT_EQ(detti[0].Lunghezza, 7);
}

TEST(Hints, KnowThatTheBlanksInFrontOfATextAreNotSaved) {
  EXPECT_EQ(Detti(Con_Main("  LD I0.0")), Lista{});
}

TEST(Hints, LookForTheReadersOfATimerEverywhere) {
  for (const char* lettura : {"LD T37", "AN t37", "MOVW T37, VW0", "LDW>= T37, +5", "TON T38, T37"})
    EXPECT_EQ(Detti(Con_Main("TON T37, +1\r\nLD T38\r\n" + std::string(lettura))), Lista{})
        << lettura;
  Sorgente sorgente = Con_Main("TON T37, +1");
  EXPECT_EQ(Detti(sorgente).size(), 1U);
  sorgente.Procedure.push_back({1, "SBR_0", "SBR0", 1, "LD T37"});
  EXPECT_EQ(Detti(sorgente), Lista{});
  sorgente.Procedure[0].Testo = "R T37, 1\r\nTON T37, +5";
  EXPECT_EQ(Detti(sorgente), (Lista{"0.0 Nessuno legge T37: i", "1.1 Nessuno legge T37: i"}));
}

TEST(Hints, TellOfAnOutputThatIsAssignedTwice) {
  Sorgente sorgente = Con_Main("= Q0.0\r\n= Q0.1\r\nS Q0.1, 1\r\n= q0.0 //di nuovo");
  sorgente.Procedure.push_back({1, "SBR_0", "SBR0", 1, "= Q0.1"});
  EXPECT_EQ(Detti(sorgente), (Lista{"0.3 Q0.0 è già assegna", "1.0 Q0.1 è già assegna"}));
}

// ---- what is said comes true --------------------------------------------------------------------

namespace {
Lettura Salva_E_Leggi(const std::string& main) {
  return Leggi_Sorgente(Byte_Di(Con_Main(main)));
}
}  // namespace

TEST(HintsComeTrue, AnIndentedLineIsDoubled) {
  EXPECT_EQ(Salva_E_Leggi("//\r\n  LD I0.0").Letta.Righe[0].NOp, 3);
}

TEST(HintsComeTrue, FourBlanksLoseTheOperands) {
  const Lettura lettura = Salva_E_Leggi("//\r\nA B C D E");
  ASSERT_TRUE(lettura.Riuscita());
  EXPECT_EQ(lettura.Letta.Righe[0].Op1, "");
}

TEST(HintsComeTrue, OneBarMakesAnOperand) {
  EXPECT_EQ(Salva_E_Leggi("//\r\nLD I0.0 /marcia").Letta.Righe[0].NOp, 2);
}

TEST(HintsComeTrue, ALongInstructionCannotBeReadAgain) {
  EXPECT_FALSE(Salva_E_Leggi("//\r\nMOVW VW100, VW1001234").Riuscita());
}

// Every mnemonic without a branch that the checker lets pass is told of.
TEST(HintsComeTrue, ForEveryMnemonicThatTheCpuDoesNotKnow) {
  int detti = 0;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    const bool muta =
        istruzione.Trattamento != Gruppo::Non_Supportata && istruzione.Esegui == Ramo_Assente();
    const auto trovati = Suggerimenti(Con_Main("//\r\n" + istruzione.Nome));
    const bool detto = std::ranges::any_of(trovati, [](const Diagnosi& diagnosi) {
      return diagnosi.Messaggio.find("si ferma") != std::string::npos;
    });
    EXPECT_EQ(detto, muta) << istruzione.Nome;
    detti += muta ? 1 : 0;
  }
  EXPECT_EQ(detti, 3);
}

}  // namespace tavorno::prova
