// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/operand.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "awl/source_line.h"

namespace tavorno {
namespace {

struct Caso_Operando {
  std::string testo;
  std::string area, numero, bit;
  int ha_bit;
};

void PrintTo(const Caso_Operando& caso, std::ostream* uscita) {
  *uscita << '"' << caso.testo << '"';
}

class OperandText : public ::testing::TestWithParam<Caso_Operando> {};

TEST_P(OperandText, IsTakenApart) {
  const Caso_Operando& atteso = GetParam();
  const Operando parti = Split_Operando(atteso.testo);
  EXPECT_EQ(parti.Area, atteso.area);
  EXPECT_EQ(parti.Numero, atteso.numero);
  EXPECT_EQ(parti.Bit, atteso.bit);
  EXPECT_EQ(parti.Ha_Bit, atteso.ha_bit);
}

INSTANTIATE_TEST_SUITE_P(Usual, OperandText,
                         ::testing::Values(Caso_Operando{"I0.3", "I", "0", "3", -1},
                                           Caso_Operando{"VW10", "VW", "10", "-1", 0},
                                           Caso_Operando{"+100", "K", "+100", "-1", 0},
                                           Caso_Operando{"100", "K", "100", "-1", 0},
                                           Caso_Operando{"T37", "T", "37", "-1", 0},
                                           Caso_Operando{"AC1", "AC", "1", "-1", 0},
                                           Caso_Operando{"SM0.5", "SM", "0", "5", -1},
                                           Caso_Operando{"SMB28", "SMB", "28", "-1", 0},
                                           Caso_Operando{"AIW4", "AIW", "4", "-1", 0}));

// Only the first dot separates, and what is behind it stays as it is written.
INSTANTIATE_TEST_SUITE_P(
    TheFirstDot, OperandText,
    ::testing::Values(Caso_Operando{"I0.3.5", "I", "0", "3.5", -1},
                      Caso_Operando{"I0.0.0", "I", "0", "0.0", -1},
                      Caso_Operando{"I0.", "I", "0", "", -1}, Caso_Operando{"I.", "", "", "", -1},
                      Caso_Operando{"I.3", "", "", "3", -1}, Caso_Operando{".", "", "", "", -1},
                      Caso_Operando{".3", "", "", "3", -1}, Caso_Operando{"..", "", "", ".", -1},
                      Caso_Operando{"I0.X", "I", "0", "X", -1},
                      Caso_Operando{"I0.-1", "I", "0", "-1", -1},
                      Caso_Operando{"I0..1", "I", "0", ".1", -1}));

// A dot takes the second step away, so that what looks like a constant has no area.
INSTANTIATE_TEST_SUITE_P(AConstantWithADot, OperandText,
                         ::testing::Values(Caso_Operando{"1.5", "", "1", "5", -1},
                                           Caso_Operando{"+1.5", "", "+1", "5", -1},
                                           Caso_Operando{"-1.5", "", "-1", "5", -1},
                                           Caso_Operando{"+.5", "", "+", "5", -1},
                                           Caso_Operando{"K1.5", "K", "1", "5", -1}));

INSTANTIATE_TEST_SUITE_P(
    Constants, OperandText,
    ::testing::Values(
        Caso_Operando{"+", "K", "+", "-1", 0}, Caso_Operando{"-", "K", "-", "-1", 0},
        Caso_Operando{"-5", "K", "-5", "-1", 0}, Caso_Operando{"0", "K", "0", "-1", 0},
        Caso_Operando{"9", "K", "9", "-1", 0}, Caso_Operando{"1/2", "K", "1/2", "-1", 0},
        Caso_Operando{"1,2", "K", "1,2", "-1", 0}, Caso_Operando{"5-3", "K", "5-3", "-1", 0},
        Caso_Operando{"+-5", "K", "+-5", "-1", 0}, Caso_Operando{"+I0", "K", "+I0", "-1", 0},
        Caso_Operando{"+ABC", "K", "+ABC", "-1", 0}, Caso_Operando{"K1", "K", "1", "-1", 0}));

// The codes on either side of 43..57 are "*" and ":".
INSTANTIATE_TEST_SUITE_P(
    TheNumberBegins, OperandText,
    ::testing::Values(
        Caso_Operando{"-I0", "", "-I0", "-1", 0}, Caso_Operando{"1*2", "", "1*2", "-1", 0},
        Caso_Operando{"1:2", "", "1:2", "-1", 0}, Caso_Operando{"*5", "*", "5", "-1", 0},
        Caso_Operando{":5", ":", "5", "-1", 0}, Caso_Operando{"VW-5", "VW", "-5", "-1", 0},
        Caso_Operando{"VW+5", "VW", "+5", "-1", 0}, Caso_Operando{"VW,5", "VW", ",5", "-1", 0},
        Caso_Operando{"VW/5", "VW", "/5", "-1", 0}, Caso_Operando{"VW1VW2", "VW", "1VW2", "-1", 0},
        Caso_Operando{"0VW", "", "0VW", "-1", 0}, Caso_Operando{"T 37", "T ", "37", "-1", 0}));

INSTANTIATE_TEST_SUITE_P(NoNumberAtAll, OperandText,
                         ::testing::Values(Caso_Operando{"", "", "", "-1", 0},
                                           Caso_Operando{"VW", "", "", "-1", 0},
                                           Caso_Operando{"I", "", "", "-1", 0},
                                           Caso_Operando{"*", "", "", "-1", 0},
                                           Caso_Operando{":", "", "", "-1", 0},
                                           Caso_Operando{"\xE0\xFF", "", "", "-1", 0},
                                           Caso_Operando{"\xE0.1", "", "", "1", -1}));

// ---- numbers on the compiled line -------------------------------------------------------------

Riga_PLC Compilata(const std::string& op1, const std::string& op2 = "",
                   const std::string& op3 = "") {
  const std::uint8_t quanti = !op3.empty() ? 3 : !op2.empty() ? 2 : 1;
  Riga_PLC riga;
  Riempi_Riga(riga, {"MOVW", op1, op2, op3, quanti, "", ""});
  return riga;
}

TEST(OperandNumber, IsTheValueOfItsLeadingDigits) {
  const std::vector<std::pair<std::string, int>> numeri = {
      {"VW10", 10}, {"VW010", 10}, {"+100", 100}, {"100", 100},  {"-5", -5},    {"VW-5", -5},
      {"VW+5", 5},  {"1/2", 1},    {"12,7", 12},  {"5-3", 5},    {"VW1E2", 1},  {"VW1D2", 1},
      {"+-5", 0},   {"+", 0},      {"-", 0},      {"+ABC", 0},   {"VW/5", 0},   {"VW", 0},
      {"XYZ", 0},   {"7X8", 7},    {"I3.1", 3},   {"VW0X10", 0}, {"+12X34", 12}};
  for (const auto& [testo, valore] : numeri) EXPECT_EQ(Compilata(testo).Num1, valore) << testo;
}

TEST(OperandNumber, HasSixteenBits) {
  EXPECT_EQ(Compilata("+32767").Num1, 32767);
  EXPECT_EQ(Compilata("-32768").Num1, -32768);
  EXPECT_EQ(Compilata("VW32767").Num1, 32767);
  EXPECT_EQ(Compilata("VW-32768").Num1, -32768);
}

// There is no right value for these; they must not come back as a small valid address.
TEST(OperandNumber, BeyondSixteenBitsDoesNotWrapAround) {
  for (const char* testo : {"+32768", "+40000", "+65536", "VW65537", "+99999999999999999999"})
    EXPECT_EQ(Compilata(testo).Num1, 32767) << testo;
  for (const char* testo : {"-32769", "VW-65536", "-99999999999999999999"})
    EXPECT_EQ(Compilata(testo).Num1, -32768) << testo;
}

TEST(OperandBit, IsTheValueOfItsLeadingDigits) {
  const std::vector<std::pair<std::string, int>> casi = {
      {"I0.3", 3}, {"I0.03", 3},  {"I0", -1},  {"I0.", 0},    {"I0.X", 0},   {"I0.3X", 3},
      {".7", 7},   {"I0.-1", -1}, {"I0.8", 8}, {"I0.12", 12}, {"I0.3.4", 3}, {"I0.0.0", 0}};
  for (const auto& [testo, bit] : casi) EXPECT_EQ(Compilata(testo).Bit1, bit) << testo;
}

TEST(OperandBit, OfTheFirstOperandAloneIsFlagged) {
  EXPECT_EQ(Compilata("I0.3").Ha_Bit, -1);
  EXPECT_EQ(Compilata("I0").Ha_Bit, 0);
  EXPECT_EQ(Compilata("VW0", "I0.3").Ha_Bit, 0);
  EXPECT_EQ(Compilata("VW0", "I0.3").Bit2, 3);
  EXPECT_EQ(Compilata("I0.3", "VW0").Ha_Bit, -1);
}

// The SCR pass may end early; the rows behind keep what they had.
TEST(LineEnable, OutlivesTheFillingOfItsRow) {
  for (const bool attiva : {false, true}) {
    const std::int16_t abilita = attiva ? 1 : 0;
    Riga_PLC riga;
    riga.Abil_SCR = abilita;
    Riempi_Riga(riga, {"NOT", "", "", "", 0, "", ""});
    EXPECT_EQ(riga.Abil_SCR, abilita);
  }
}

TEST(OperandFields, AreFilledForAsManyOperandsAsThereAre) {
  const Riga_PLC uno = Compilata("VW1");
  EXPECT_EQ(uno.Area1, "VW");
  EXPECT_EQ(uno.Num1, 1);
  EXPECT_EQ(uno.Bit1, -1);
  EXPECT_EQ(uno.Area2, "");
  EXPECT_EQ(uno.Num2, 0);
  EXPECT_EQ(uno.Bit2, -1);

  const Riga_PLC tre = Compilata("VW1", "I2.3", "M4.5");
  EXPECT_EQ(tre.Area1, "VW");
  EXPECT_EQ(tre.Area2, "I");
  EXPECT_EQ(tre.Num2, 2);
  EXPECT_EQ(tre.Bit2, 3);
  EXPECT_EQ(tre.Area3, "M");
  EXPECT_EQ(tre.Num3, 4);
  EXPECT_EQ(tre.Bit3, 5);
}

}  // namespace
}  // namespace tavorno
