// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/operand.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "awl/source_line.h"

namespace tavorno {
namespace {

struct Case {
  std::string text;
  std::string area, number, bit;
  int hasBit;
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << '"' << c.text << '"';
}

class OperandText : public ::testing::TestWithParam<Case> {};

TEST_P(OperandText, IsTakenApart) {
  const Case& expected = GetParam();
  const Operando parts = Split_Operando(expected.text);
  EXPECT_EQ(parts.Area, expected.area);
  EXPECT_EQ(parts.Numero, expected.number);
  EXPECT_EQ(parts.Bit, expected.bit);
  EXPECT_EQ(parts.Ha_Bit, expected.hasBit);
}

INSTANTIATE_TEST_SUITE_P(
    Usual, OperandText,
    ::testing::Values(Case{"I0.3", "I", "0", "3", -1}, Case{"VW10", "VW", "10", "-1", 0},
                      Case{"+100", "K", "+100", "-1", 0}, Case{"100", "K", "100", "-1", 0},
                      Case{"T37", "T", "37", "-1", 0}, Case{"AC1", "AC", "1", "-1", 0},
                      Case{"SM0.5", "SM", "0", "5", -1}, Case{"SMB28", "SMB", "28", "-1", 0},
                      Case{"AIW4", "AIW", "4", "-1", 0}));

// Only the first dot separates, and what is behind it stays as it is written.
INSTANTIATE_TEST_SUITE_P(
    TheFirstDot, OperandText,
    ::testing::Values(Case{"I0.3.5", "I", "0", "3.5", -1}, Case{"I0.0.0", "I", "0", "0.0", -1},
                      Case{"I0.", "I", "0", "", -1}, Case{"I.", "", "", "", -1},
                      Case{"I.3", "", "", "3", -1}, Case{".", "", "", "", -1},
                      Case{".3", "", "", "3", -1}, Case{"..", "", "", ".", -1},
                      Case{"I0.X", "I", "0", "X", -1}, Case{"I0.-1", "I", "0", "-1", -1},
                      Case{"I0..1", "I", "0", ".1", -1}));

// A dot takes the second step away, so that what looks like a constant has no area.
INSTANTIATE_TEST_SUITE_P(AConstantWithADot, OperandText,
                         ::testing::Values(Case{"1.5", "", "1", "5", -1},
                                           Case{"+1.5", "", "+1", "5", -1},
                                           Case{"-1.5", "", "-1", "5", -1},
                                           Case{"+.5", "", "+", "5", -1},
                                           Case{"K1.5", "K", "1", "5", -1}));

INSTANTIATE_TEST_SUITE_P(
    Constants, OperandText,
    ::testing::Values(Case{"+", "K", "+", "-1", 0}, Case{"-", "K", "-", "-1", 0},
                      Case{"-5", "K", "-5", "-1", 0}, Case{"0", "K", "0", "-1", 0},
                      Case{"9", "K", "9", "-1", 0}, Case{"1/2", "K", "1/2", "-1", 0},
                      Case{"1,2", "K", "1,2", "-1", 0}, Case{"5-3", "K", "5-3", "-1", 0},
                      Case{"+-5", "K", "+-5", "-1", 0}, Case{"+I0", "K", "+I0", "-1", 0},
                      Case{"+ABC", "K", "+ABC", "-1", 0}, Case{"K1", "K", "1", "-1", 0}));

// The codes on either side of 43..57 are "*" and ":".
INSTANTIATE_TEST_SUITE_P(
    TheNumberBegins, OperandText,
    ::testing::Values(Case{"-I0", "", "-I0", "-1", 0}, Case{"1*2", "", "1*2", "-1", 0},
                      Case{"1:2", "", "1:2", "-1", 0}, Case{"*5", "*", "5", "-1", 0},
                      Case{":5", ":", "5", "-1", 0}, Case{"VW-5", "VW", "-5", "-1", 0},
                      Case{"VW+5", "VW", "+5", "-1", 0}, Case{"VW,5", "VW", ",5", "-1", 0},
                      Case{"VW/5", "VW", "/5", "-1", 0}, Case{"VW1VW2", "VW", "1VW2", "-1", 0},
                      Case{"0VW", "", "0VW", "-1", 0}, Case{"T 37", "T ", "37", "-1", 0}));

INSTANTIATE_TEST_SUITE_P(NoNumberAtAll, OperandText,
                         ::testing::Values(Case{"", "", "", "-1", 0}, Case{"VW", "", "", "-1", 0},
                                           Case{"I", "", "", "-1", 0}, Case{"*", "", "", "-1", 0},
                                           Case{":", "", "", "-1", 0},
                                           Case{"\xE0\xFF", "", "", "-1", 0},
                                           Case{"\xE0.1", "", "", "1", -1}));

// ---- numbers on the compiled line -------------------------------------------------------------

Riga_PLC Compiled(const std::string& op1, const std::string& op2 = "",
                  const std::string& op3 = "") {
  const std::uint8_t count = !op3.empty() ? 3 : !op2.empty() ? 2 : 1;
  Riga_PLC line;
  Riempi_Riga(line, {"MOVW", op1, op2, op3, count, "", ""});
  return line;
}

TEST(OperandNumber, IsTheValueOfItsLeadingDigits) {
  const std::vector<std::pair<std::string, int>> numbers = {
      {"VW10", 10}, {"VW010", 10}, {"+100", 100}, {"100", 100},  {"-5", -5},    {"VW-5", -5},
      {"VW+5", 5},  {"1/2", 1},    {"12,7", 12},  {"5-3", 5},    {"VW1E2", 1},  {"VW1D2", 1},
      {"+-5", 0},   {"+", 0},      {"-", 0},      {"+ABC", 0},   {"VW/5", 0},   {"VW", 0},
      {"XYZ", 0},   {"7X8", 7},    {"I3.1", 3},   {"VW0X10", 0}, {"+12X34", 12}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(Compiled(text).Num1, value) << text;
}

TEST(OperandNumber, HasSixteenBits) {
  EXPECT_EQ(Compiled("+32767").Num1, 32767);
  EXPECT_EQ(Compiled("-32768").Num1, -32768);
  EXPECT_EQ(Compiled("VW32767").Num1, 32767);
  EXPECT_EQ(Compiled("VW-32768").Num1, -32768);
}

// There is no right value for these; they must not come back as a small valid address.
TEST(OperandNumber, BeyondSixteenBitsDoesNotWrapAround) {
  for (const char* text : {"+32768", "+40000", "+65536", "VW65537", "+99999999999999999999"})
    EXPECT_EQ(Compiled(text).Num1, 32767) << text;
  for (const char* text : {"-32769", "VW-65536", "-99999999999999999999"})
    EXPECT_EQ(Compiled(text).Num1, -32768) << text;
}

TEST(OperandBit, IsTheValueOfItsLeadingDigits) {
  const std::vector<std::pair<std::string, int>> bits = {
      {"I0.3", 3}, {"I0.03", 3},  {"I0", -1},  {"I0.", 0},    {"I0.X", 0},   {"I0.3X", 3},
      {".7", 7},   {"I0.-1", -1}, {"I0.8", 8}, {"I0.12", 12}, {"I0.3.4", 3}, {"I0.0.0", 0}};
  for (const auto& [text, bit] : bits) EXPECT_EQ(Compiled(text).Bit1, bit) << text;
}

TEST(OperandBit, OfTheFirstOperandAloneIsFlagged) {
  EXPECT_EQ(Compiled("I0.3").Ha_Bit, -1);
  EXPECT_EQ(Compiled("I0").Ha_Bit, 0);
  EXPECT_EQ(Compiled("VW0", "I0.3").Ha_Bit, 0);
  EXPECT_EQ(Compiled("VW0", "I0.3").Bit2, 3);
  EXPECT_EQ(Compiled("I0.3", "VW0").Ha_Bit, -1);
}

// The SCR pass may end early; the rows behind keep what they had.
TEST(LineEnable, OutlivesTheFillingOfItsRow) {
  for (const bool on : {false, true}) {
    const std::int16_t enable = on ? 1 : 0;
    Riga_PLC line;
    line.Abil_SCR = enable;
    Riempi_Riga(line, {"NOT", "", "", "", 0, "", ""});
    EXPECT_EQ(line.Abil_SCR, enable);
  }
}

TEST(OperandFields, AreFilledForAsManyOperandsAsThereAre) {
  const Riga_PLC one = Compiled("VW1");
  EXPECT_EQ(one.Area1, "VW");
  EXPECT_EQ(one.Num1, 1);
  EXPECT_EQ(one.Bit1, -1);
  EXPECT_EQ(one.Area2, "");
  EXPECT_EQ(one.Num2, 0);
  EXPECT_EQ(one.Bit2, -1);

  const Riga_PLC three = Compiled("VW1", "I2.3", "M4.5");
  EXPECT_EQ(three.Area1, "VW");
  EXPECT_EQ(three.Area2, "I");
  EXPECT_EQ(three.Num2, 2);
  EXPECT_EQ(three.Bit2, 3);
  EXPECT_EQ(three.Area3, "M");
  EXPECT_EQ(three.Num3, 4);
  EXPECT_EQ(three.Bit3, 5);
}

}  // namespace
}  // namespace tavorno
