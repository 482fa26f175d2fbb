// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "awl/listing.h"
#include "awl/program.h"
#include "checked_line.h"
#include "expected_rules.h"
#include "plc/instructions.h"

namespace tavorno::prova {
namespace {

struct CheckedLine : ::testing::Test, LineChecker {};

// ---- vocabulary -------------------------------------------------------------------------------

const std::vector<std::vector<std::string>> AnyOperands = {
    {}, {"I0.0"}, {"I0.9"}, {"ZZ999"}, {"AC0", "AC1"}, {"+5", "XY"}, {"VW0", "VW1", "VW2"}};

TEST_F(CheckedLine, IsAcceptedWhateverItsOperandsInTheFirstGroup) {
  std::vector<std::string> mnemonics = Words(AcceptedWithoutTest);
  ASSERT_EQ(mnemonics.size(), 13U);
  for (const char* text : {"NETWORK 1", "NETWORKX", "SBR0", "SBRX", "SBR63", "INT0", "INTEGER"})
    mnemonics.emplace_back(text);
  for (const std::string& mnemonic : mnemonics) {
    for (const auto& operands : AnyOperands)
      EXPECT_EQ(Check(Source(mnemonic, operands)), Verdict{})
          << mnemonic << " with " << operands.size() << " operands";
  }
}

TEST_F(CheckedLine, IsRefusedForAnyOperandInTheSecondGroup) {
  const std::vector<std::string> mnemonics = Words(AcceptedWithoutOperands);
  ASSERT_EQ(mnemonics.size(), 9U);
  for (const std::string& mnemonic : mnemonics) {
    for (const auto& operands : AnyOperands)
      EXPECT_EQ(Check(Source(mnemonic, operands)), operands.empty() ? Verdict{} : NoOperandsAllowed)
          << mnemonic << " with " << operands.size() << " operands";
  }
}

TEST_F(CheckedLine, IsRefusedWhateverItsOperandsInTheThirdGroup) {
  const std::vector<std::string> mnemonics = Words(Unsupported);
  ASSERT_EQ(mnemonics.size(), 92U);
  for (const std::string& mnemonic : mnemonics) {
    for (const auto& operands : AnyOperands)
      EXPECT_EQ(Check(Source(mnemonic, operands)), NotSupported)
          << mnemonic << " with " << operands.size() << " operands";
  }
}

TEST_F(CheckedLine, IsUnknownWithAnyOtherMnemonic) {
  for (const char* mnemonic :
       {"",      "FOO",   "L",    "LDX",  "ldn",   "Ld",   "NETWORK", "NETW1", "NET",
        "SB",    "IN",    "sbr0", "int0", "MEND ", " LD",  "LDB",     "LDB==", "LDB=<",
        "LDB=>", "LDB><", "LDI=", "ANB=", "ONW<",  "OLDB", "LDRR",    "AR",    "OR",
        "LDR",   "+",     "+B",   "==",   "=S",    "R0",   "TOFF",    "CTUX",  "MOV",
        "MOVBB", "INC",   "DEC",  "XOR",  "XORDD", "RETN", "MEN",     "BTIX"})
    for (const auto& operands : AnyOperands)
      EXPECT_EQ(Check(Source(mnemonic, operands)), Unknown)
          << '"' << mnemonic << "\" with " << operands.size() << " operands";
}

// The reader always gives capitals; the letters of NETWORK count in any case all the same.
TEST_F(CheckedLine, IsANetworkInSmallLettersToo) {
  EXPECT_EQ(Check(Source("network 1", {})), Verdict{});
}

TEST_F(CheckedLine, KnowsNoMnemonicBeyondTheseGroups) {
  std::set<std::string> expected;
  for (const auto& group : {Words(AcceptedWithoutTest), Words(AcceptedWithoutOperands),
                            Words(Unsupported), MnemonicsWithRules()})
    expected.insert(group.begin(), group.end());
  std::set<std::string> known;
  for (const Istruzione& instruction : Tabella_Istruzioni()) known.insert(instruction.Nome);
  EXPECT_EQ(known, expected);
  EXPECT_EQ(known.size(), 13U + 9U + 92U + 98U);
}

// ---- the order of the faults, word by word ----------------------------------------------------

TEST_F(CheckedLine, LosesTheFaultOfOp1ToThatOfOp2) {
  EXPECT_EQ(Check("MOVB VB101, VB0"), AddressOp1);
  EXPECT_EQ(Check("MOVB VB0, VB101"), AddressOp2);
  EXPECT_EQ(Check("MOVB VB101, VB101"), AddressOp2);
  EXPECT_EQ(Check("MOVB VB101, QB0"), WrongArea);
  EXPECT_EQ(Check("BIR QB0, VW0"), WrongAreaInOp2);
  EXPECT_EQ(Check("BIR QB0, VB0"), WrongArea);
  EXPECT_EQ(Check("BTI AC0, VB0"), WrongArea);
  EXPECT_EQ(Check("BTI AC0, VW0"), WrongAreaInOp1);
  EXPECT_EQ(Check("LDB= +256, VW0"), WrongAreaOp2);
  EXPECT_EQ(Check("LDB= VW0, +256"), TooLargeOp2);
  EXPECT_EQ(Check("LDB= VW0, +255"), WrongAreaOp1);
}

TEST_F(CheckedLine, OfATimerPutsTheAreaBeforeTheNumber) {
  EXPECT_EQ(Check("TON T63, +1"), Verdict{});
  EXPECT_EQ(Check("TON T64, +1"), AddressTimer);
  EXPECT_EQ(Check("TON VW64, +1"), WrongArea);
  EXPECT_EQ(Check("TON VW0, +1"), WrongArea);
  EXPECT_EQ(Check("TON T64, T1"), WrongArea);
  EXPECT_EQ(Check("TON SM63.0, VD0"), Verdict{});
  EXPECT_EQ(Check("TON I64.9, +1"), AddressTimer);
  EXPECT_EQ(Check("TON I0.9, +1"), Verdict{});
}

TEST_F(CheckedLine, PutsTheBitBeforeEveryOtherFault) {
  EXPECT_EQ(Check("LD I9.8"), WrongBit);
  EXPECT_EQ(Check("LD ZZ0.8"), WrongBit);
  EXPECT_EQ(Check("LD VW0.8"), WrongBit);
  EXPECT_EQ(Check("LD I0.8, I0.0"), WrongBit);
  EXPECT_EQ(Check("LD I0.0, I0.8"), WrongCountLd);
  EXPECT_EQ(Check("LD"), WrongCountLd);
  EXPECT_EQ(Check("S Q0.8"), WrongBit);
  EXPECT_EQ(Check("S Q0.7, Q0.9"), Verdict{});
  EXPECT_EQ(Check("R T5.8, 1"), WrongBit);
  EXPECT_EQ(Check("MOVB VB0.9, VB0"), Verdict{});
  EXPECT_EQ(Check("LD I0.40000"), WrongBit);
}

// ---- numbers that no cell holds ---------------------------------------------------------------

TEST_F(CheckedLine, IsRefusedForANumberBeyondSixteenBits) {
  EXPECT_EQ(Check("MOVW +32767, VW0"), Verdict{});
  EXPECT_EQ(Check("MOVW -32768, VW0"), Verdict{});
  for (const char* number : {"+32768", "-32769", "+40000", "65536", "99999999999"}) {
    EXPECT_EQ(Check(std::string("MOVW ") + number + ", VW0"), TooLargeOp1) << number;
    EXPECT_EQ(Check(std::string("TON T1, ") + number), TooLargeOp2) << number;
    EXPECT_EQ(Check(std::string("JMP ") + number), TooLargeOp1) << number;
    EXPECT_EQ(Check(std::string("XORD AC0, ") + number), TooLargeOp2) << number;
  }
  EXPECT_EQ(Check("MOVW VW-40000, VW0"), TooLargeOp1);
  EXPECT_EQ(Check("MOVW VW0, VW65536"), TooLargeOp2);
  EXPECT_EQ(Check("MOVW +40000, +40000"), TooLargeOp2);
  EXPECT_EQ(Check("MOVW +40000, VB0"), TooLargeOp1);
  EXPECT_EQ(Check("BIW +40000, QB0"), TooLargeOp1);
  EXPECT_EQ(Check("BIR QB0, VB40000"), TooLargeOp2);
  EXPECT_EQ(Check("S Q0.0, 40000"), TooLargeOp2);
  EXPECT_EQ(Check("LD I40000.0"), TooLargeOp1);
  EXPECT_EQ(Check("LD I40000.8"), TooLargeOp1);
  EXPECT_EQ(Check("LD ZZ40000"), TooLargeOp1);
}

TEST_F(CheckedLine, KeepsTheGraverFaultOfANumberBeyondSixteenBits) {
  EXPECT_EQ(Check("NOT +40000"), NoOperandsAllowed);
  EXPECT_EQ(Check("FOO +40000"), Unknown);
  EXPECT_EQ(Check("SIN +40000"), NotSupported);
  EXPECT_EQ(Check("MOVW +40000"), WrongCount);
  EXPECT_EQ(Check("LD I40000.0, I0.0"), WrongCountLd);
}

TEST_F(CheckedLine, TakesTheNameOfAProcedureForNoNumber) {
  for (const char* mnemonic : {"CALL", "SBR0", "INT0"})
    EXPECT_EQ(Check(Source(mnemonic, {"PUMP40000"})), Verdict{}) << mnemonic;
}

// ---- the listing ------------------------------------------------------------------------------

TEST_F(CheckedLine, IsListedByteForByte) {
  struct Listed {
    int row;
    const char* line;
    const char* text;
    int status;
    const char* listing;
  };
  const std::vector<Listed> cases = {
      {0, "LD I0.0", "LD     I0.0", 0, "0000 [Ok!   ]: LD     I0.0 "},
      {0, "NETWORK 1", "", 0, "0000 [Ok!   ]:  "},
      {0, "END", "END   ", 2, "0000 [Err. 2]: END    -> Istruzione non supportata"},
      {12, "FOO", "FOO", 3, "0012 [Err. 3]: FOO -> Istruzione non riconosciuta"},
      {12, "NOT I0.0", "NOT", 3, "0012 [Err. 3]: NOT -> Operandi non supportati"},
      {12, "MOVB VB200, AC1", "MOVB   VB200, AC1      ", 6,
       "0012 [Err. 6]: MOVB   VB200, AC1       -> Indirizzo Byte OP1 non supportato"},
      {300, "LD", "LD", 5, "0300 [Err. 5]: LD -> Numero di operandi errarto"},
      {300, "LD I0.8", "LD I0.8", 9, "0300 [Err. 9]: LD I0.8 -> Indirizzo Bit OP1 non ammesso"},
      {300, "MEND", "MEND", 0, "0300 [Ok!   ]: MEND "},
      {9, "MEND", "\xE0 ", 0, "0009 [Ok!   ]: \xE0  "},
      {100, "MEND", "MEND", 0, "0100 [Ok!   ]: MEND "},
  };
  for (const Listed& expected : cases) {
    // Rows in front of it stand in for those of a project.
    std::vector<Riga_Src> rows(static_cast<std::size_t>(expected.row) + 1, Source("MEND"));
    rows.back() = Source(expected.line);
    rows.back().Testo_CPU = expected.text;
    rows.back().Testo_Lista = "not this one";
    EXPECT_EQ(CheckRow(rows.back(), expected.row), expected.status) << expected.line;
    const Compilazione compiled = Compila_Righe(rows);
    EXPECT_EQ(compiled.Errori, expected.status == 0 ? 0 : 1);
    const std::vector<Riga_Listato> listing = Listato(rows, compiled.Rilievi);
    EXPECT_EQ(listing.back().Come_Testo(), expected.listing);
    EXPECT_EQ(listing.back().Errata, expected.status != 0);
    EXPECT_TRUE(Testo_Listato(listing).ends_with(std::string(expected.listing) + "\r\r\n"));
  }
}

TEST_F(CheckedLine, IsListedBehindTheLinesBeforeIt) {
  const std::vector<Riga_Src> rows = {Source("FOO"), Source("MEND")};
  EXPECT_EQ(Testo_Listato(Listato(rows, Compila_Righe(rows).Rilievi)),
            "0000 [Err. 3]:  -> Istruzione non riconosciuta\r\r\n0001 [Ok!   ]:  \r\r\n");
}

// ---- the table of messages --------------------------------------------------------------------

const std::vector<std::pair<Verdict, const char*>> MessageTable = {
    {{2, "-> Istruzione non supportata"}, "FOR"},
    {{3, "-> Istruzione non riconosciuta"}, "FOO"},
    {{3, "-> Operandi non supportati"}, "EU I0.0"},
    {{5, "-> Numero Operandi non supportati"}, "MOVB VB0"},
    {{5, "-> Numero di operandi errarto"}, "LD"},
    {{6, "-> Codice elemento non supportato"}, "MOVW VB0, VW0"},
    {{6, "-> Codice elemento non riconosciuto"}, "= VW0"},
    {{6, "-> Codice elemento in OP1 non supportato"}, "BTI VW0, VW0"},
    {{6, "-> Codice elemento in OP2 non supportato"}, "BIW VB0, VB0"},
    {{6, "-> Codice elemento non supportato in OP1"}, "AW= MW0, VW0"},
    {{6, "-> Codice elemento non supportato in OP2"}, "AW= VW0, MW0"},
    {{6, "-> Indirizzo non supportato"}, "LD T41"},
    {{6, "-> Indirizzo non supportato dal Timer"}, "TOF T64, +1"},
    {{6, "-> Indirizzo Byte non supportato"}, "= M5.0"},
    {{6, "-> Indirizzo Byte OP1 non supportato"}, "INCW VW101"},
    {{6, "-> Indirizzo Byte OP2 non supportato"}, "BIW VB0, QB2"},
    {{6, "-> Operando non supportato"}, "LD L0.0"},
    {{6, "-> Valore OP1 troppo Grande"}, "BIW +256, QB0"},
    {{6, "-> Valore troppo Grande in OP1"}, "MOVD +256, VD0"},
    {{6, "-> Valore troppo Grande in OP2"}, "LDB= VB0, +256"},
    {{9, "-> Indirizzo Bit OP1 non ammesso"}, "LD I0.8"},
    {{9, "-> Codice operando non riconosciuto"}, "LD VW0"},
};

TEST_F(CheckedLine, GivesEachMessageOfTheTable) {
  for (const auto& [message, line] : MessageTable) EXPECT_EQ(Check(line), message) << line;
}

// "-> Valore troppo grande in OP1" with a small g stands in the list of messages too, but no rule
// gives it.
TEST_F(CheckedLine, GivesNoMessageOutsideTheTable) {
  std::set<std::pair<int, std::string>> given;
  const auto note = [&](const std::string& mnemonic, std::vector<std::string> operands) {
    const Verdict verdict = Check(Source(mnemonic, std::move(operands)));
    if (verdict.status != 0) given.emplace(verdict.status, verdict.text);
  };
  for (const Istruzione& instruction : Tabella_Istruzioni()) {
    note(instruction.Nome, {});
    for (const std::string& area : AllAreas()) {
      for (const int number : {0, 28, 64, 300}) {
        const std::string text = Operand{area, number}.Text();
        note(instruction.Nome, {text});
        note(instruction.Nome, {text + ".8"});
        for (const char* other : {"+5", "AC0", "VW0", "VB0", "C0", "QB0"}) {
          note(instruction.Nome, {text, other});
          note(instruction.Nome, {other, text});
        }
      }
    }
  }
  note("FOO", {});
  std::set<std::pair<int, std::string>> table;
  for (const auto& [message, line] : MessageTable) table.emplace(message.status, message.text);
  EXPECT_EQ(given, table);
  EXPECT_FALSE(given.contains({6, "-> Valore troppo grande in OP1"}));
}

// ---- lines worth a name of their own ----------------------------------------------------------

TEST_F(CheckedLine, OfAContactHasBoundsForByteAndBit) {
  EXPECT_EQ(Check("LD I1.7"), Verdict{});
  EXPECT_EQ(Check("LD I2.0"), (Verdict{6, "-> Indirizzo non supportato"}));
  EXPECT_EQ(Check("LD I0.8"), (Verdict{9, "-> Indirizzo Bit OP1 non ammesso"}));
}

TEST_F(CheckedLine, OfAContactMayLackTheDot) {
  EXPECT_EQ(Check("LD I0"), Verdict{});
}

TEST_F(CheckedLine, OfAContactTakesNoVMemoryAndNoConstant) {
  EXPECT_EQ(Check("LD V0.0"), (Verdict{6, "-> Operando non supportato"}));
  EXPECT_EQ(Check("LD K1"), (Verdict{9, "-> Codice operando non riconosciuto"}));
}

TEST_F(CheckedLine, OfAnOutputTakesNoInput) {
  EXPECT_EQ(Check("= I0.0"), (Verdict{6, "-> Codice elemento non supportato"}));
  EXPECT_EQ(Check("= Q1.0"), Verdict{});
}

TEST_F(CheckedLine, OfASetNeedsACountButDoesNotLookAtIt) {
  EXPECT_EQ(Check("S Q0.0, 1"), Verdict{});
  EXPECT_EQ(Check("S Q0.0, 9999"), Verdict{});
  EXPECT_EQ(Check("S Q0.0, ZZ9999"), Verdict{});
  EXPECT_EQ(Check("S Q0.0"), (Verdict{5, "-> Numero Operandi non supportati"}));
}

TEST_F(CheckedLine, OfATimerHasItsOwnBoundAndNoWordPreset) {
  EXPECT_EQ(Check("TON T37, +100"), Verdict{});
  EXPECT_EQ(Check("TON T64, +100"), (Verdict{6, "-> Indirizzo non supportato dal Timer"}));
  EXPECT_EQ(Check("TON T37, IW0"), (Verdict{6, "-> Codice elemento non supportato"}));
  EXPECT_EQ(Check("LD T63"), (Verdict{6, "-> Indirizzo non supportato"}));
}

TEST_F(CheckedLine, OfACounterHasABound) {
  EXPECT_EQ(Check("CTU C20, +1"), Verdict{});
  EXPECT_EQ(Check("CTU C21, +1"), (Verdict{6, "-> Indirizzo Byte non supportato"}));
}

TEST_F(CheckedLine, OfAByteMoveTakesTheListedSpecialBytesAndSmallConstants) {
  EXPECT_EQ(Check("MOVB SMB30, VB0"), (Verdict{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Check("MOVB SMB34, VB0"), Verdict{});
  EXPECT_EQ(Check("LDB= SMB34, VB0"), (Verdict{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Check("MOVB +300, VB0"), (Verdict{6, "-> Valore troppo Grande in OP1"}));
}

TEST_F(CheckedLine, OfAWordMoveTakesTheListedAnalogWords) {
  EXPECT_EQ(Check("MOVW AIW1, VW0"), (Verdict{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Check("MOVW AIW2, VW0"), Verdict{});
  EXPECT_EQ(Check("MOVW VW0, AQW2"), Verdict{});
  EXPECT_EQ(Check("MOVW VW0, AQW4"), (Verdict{6, "-> Indirizzo Byte OP2 non supportato"}));
}

TEST_F(CheckedLine, OfTheWordLogicIsAcceptedForXordAlone) {
  EXPECT_EQ(Check("XORD AC0, AC1"), Verdict{});
  EXPECT_EQ(Check("XORW AC0, AC1"), (Verdict{2, "-> Istruzione non supportata"}));
}

TEST_F(CheckedLine, IsRefusedInOneOfThreeWays) {
  EXPECT_EQ(Check("NOT I0.0"), (Verdict{3, "-> Operandi non supportati"}));
  EXPECT_EQ(Check("END"), (Verdict{2, "-> Istruzione non supportata"}));
  EXPECT_EQ(Check("FOO"), (Verdict{3, "-> Istruzione non riconosciuta"}));
}

TEST_F(CheckedLine, HasBoundsThatAreNotUniform) {
  EXPECT_EQ(Check("MOVD +255, VD0"), Verdict{});
  EXPECT_EQ(Check("MOVD +256, VD0"), (Verdict{6, "-> Valore troppo Grande in OP1"}));
  EXPECT_EQ(Check("MOVW +256, VW0"), Verdict{});
  EXPECT_EQ(Check("MOVW MW3, VW0"), Verdict{});
  EXPECT_EQ(Check("LDW= MW3, VW0"), (Verdict{6, "-> Codice elemento non supportato in OP1"}));
  EXPECT_EQ(Check("LDW= IW0, QW0"), Verdict{});
  EXPECT_EQ(Check("BTI AC0, VW0"), (Verdict{6, "-> Codice elemento in OP1 non supportato"}));
  EXPECT_EQ(Check("MOVB VB-1, VB-5"), Verdict{});
}

}  // namespace
}  // namespace tavorno::prova
