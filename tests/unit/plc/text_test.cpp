// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "plc/byte_text.h"
#include "plc/codepage.h"
#include "plc/number_text.h"

namespace tavorno::prova {

// ---- numbers ------------------------------------------------------------------------------------

namespace {
struct Figura {
  const char* Forma;
  double Valore;
  const char* Testo;
};
void PrintTo(const Figura& figura, std::ostream* os) {
  *os << figura.Valore << " as " << figura.Forma;
}
}  // namespace

class Picture : public ::testing::TestWithParam<Figura> {};

TEST_P(Picture, WritesTheNumber) {
  EXPECT_EQ(Formato(GetParam().Valore, GetParam().Forma), GetParam().Testo);
}

INSTANTIATE_TEST_SUITE_P(ScanTime, Picture,
                         ::testing::Values(Figura{"0000#", 0, "00000"}, Figura{"0000#", 7, "00007"},
                                           Figura{"0000#", 12345, "12345"},
                                           Figura{"0000#", 123456, "123456"},
                                           Figura{"0000#", 6.5, "00007"},
                                           Figura{"0000#", -42, "-00042"}));
INSTANTIATE_TEST_SUITE_P(
    Analog, Picture,
    ::testing::Values(Figura{"0.0#", 0, "0.0"}, Figura{"0.0#", 10, "10.0"},
                      Figura{"0.0#", 2.5, "2.5"}, Figura{"0.0#", 2.25, "2.25"},
                      Figura{"0.0#", 2.256, "2.26"}, Figura{"0.0#", 0.125, "0.13"},
                      Figura{"0.0#", 2.399, "2.4"}, Figura{"0.0#", 9.999, "10.0"},
                      Figura{"0.0#", 0.05, "0.05"}, Figura{"0.0#", -1.25, "-1.25"},
                      Figura{"0.0#", -0.125, "-0.13"}, Figura{"0.0#", -3, "-3.0"}));
INSTANTIATE_TEST_SUITE_P(Position, Picture,
                         ::testing::Values(Figura{"#0.00", 0, "0.00"}, Figura{"#0.00", 7.5, "7.50"},
                                           Figura{"#0.00", 12.345678, "12.35"},
                                           Figura{"#0.00", 0.375, "0.38"},
                                           Figura{"#0.00", -2.5, "-2.50"}, Figura{"#0.0", 0, "0.0"},
                                           Figura{"#0.0", 0.25, "0.3"},
                                           Figura{"#0.0", 123.04, "123.0"},
                                           Figura{"#0.0", -0.75, "-0.8"}, Figura{"00", 0, "00"},
                                           Figura{"00", 5, "05"}, Figura{"00", 125, "125"}));

TEST(NumberText, HasABlankInThePlaceOfThePlusSign) {
  EXPECT_EQ(Numero_Con_Spazio(0), " 0");
  EXPECT_EQ(Numero_Con_Spazio(12), " 12");
  EXPECT_EQ(Numero_Con_Spazio(-3), "-3");
  EXPECT_EQ(Numero_Con_Spazio(-2147483648LL), "-2147483648");
}

namespace {
struct Lettura_16 {
  const char* Testo;
  std::optional<short> Valore;
};
void PrintTo(const Lettura_16& lettura, std::ostream* os) {
  *os << '"' << lettura.Testo << '"';
}
}  // namespace

class ShortNumber : public ::testing::TestWithParam<Lettura_16> {};

TEST_P(ShortNumber, IsReadFromTheBeginningOfItsText) {
  EXPECT_EQ(Numero_16(GetParam().Testo), GetParam().Valore);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ShortNumber,
    ::testing::Values(Lettura_16{"", 0}, Lettura_16{"   ", 0}, Lettura_16{"abc", 0},
                      Lettura_16{"-", 0}, Lettura_16{"+", 0}, Lettura_16{".", 0},
                      Lettura_16{"0", 0}, Lettura_16{"12", 12}, Lettura_16{"  12", 12},
                      Lettura_16{"+100", 100}, Lettura_16{"-1", -1}, Lettura_16{"12abc", 12},
                      Lettura_16{"007", 7}, Lettura_16{"12,7", 12}, Lettura_16{"3/4", 3}));
INSTANTIATE_TEST_SUITE_P(Rounding, ShortNumber,
                         ::testing::Values(Lettura_16{"2.4", 2}, Lettura_16{"2.5", 2},
                                           Lettura_16{"3.5", 4}, Lettura_16{"2.51", 3},
                                           Lettura_16{"-2.5", -2}, Lettura_16{"-3.5", -4},
                                           Lettura_16{".75", 1}, Lettura_16{"1.2.9", 1}));
INSTANTIATE_TEST_SUITE_P(Limits, ShortNumber,
                         ::testing::Values(Lettura_16{"32767", 32767}, Lettura_16{"32767.4", 32767},
                                           Lettura_16{"32768", {}}, Lettura_16{"+40000", {}},
                                           Lettura_16{"-32768", -32768}, Lettura_16{"-32769", {}},
                                           Lettura_16{"99999999999999999999999999", {}}));

TEST(NumberText, DecimalNumberIsTheTextAsAWhole) {
  EXPECT_EQ(Numero_Decimale("00000101"), 101);
  EXPECT_EQ(Numero_Decimale("11111111"), 11111111);
  EXPECT_EQ(Numero_Decimale("00000000"), 0);
  EXPECT_EQ(Numero_Decimale("2147483647"), 2147483647);
  for (const char* testo : {"", " 1", "1 ", "-1", "+1", "1.0", "1a", "2147483648", "old"})
    EXPECT_EQ(Numero_Decimale(testo), std::nullopt) << testo;
}

// ---- bytes --------------------------------------------------------------------------------------

class ByteText : public ::testing::TestWithParam<int> {};

TEST_P(ByteText, HasEightCharactersInItsTwoOrders) {
  const int byte = GetParam();
  std::string testo;
  for (int bit = 0; bit <= 7; ++bit) testo += (byte >> bit & 1) != 0 ? '1' : '0';
  EXPECT_EQ(Testo_Bit(static_cast<std::uint8_t>(byte)), testo);
  EXPECT_EQ(Testo_Lettura(static_cast<std::uint8_t>(byte)),
            (std::string{testo.rbegin(), testo.rend()}));
}

TEST_P(ByteText, IsGatheredFromEightCellsWhateverLiesBehindThem) {
  const int byte = GetParam();
  std::uint8_t celle[9] = {};
  for (int bit = 0; bit <= 7; ++bit) celle[bit] = static_cast<std::uint8_t>(byte >> bit & 1);
  celle[8] = 1;
  EXPECT_EQ(Byte_Di_Celle(celle), byte);
}

INSTANTIATE_TEST_SUITE_P(AllValues, ByteText, ::testing::Range(0, 256));

TEST(ByteDigit, IsZeroWhereThereIsNone) {
  EXPECT_EQ(Cifra("10", 0), 1);
  EXPECT_EQ(Cifra("10", 1), 0);
  EXPECT_EQ(Cifra("19", 1), 9);
  EXPECT_EQ(Cifra("10", 2), 0);
  EXPECT_EQ(Cifra("", 0), 0);
  EXPECT_EQ(Cifra("x/:", 0) + Cifra("x/:", 1) + Cifra("x/:", 2), 0);
}

// ---- code page ----------------------------------------------------------------------------------

class CodePage : public ::testing::TestWithParam<int> {};

TEST_P(CodePage, ByteSurvivesTheWayToUnicodeAndBack) {
  const std::string byte(1, static_cast<char>(GetParam()));
  const std::string utf8 = A_Utf8(byte);
  EXPECT_EQ(Da_Utf8(utf8), byte);
  EXPECT_EQ(utf8.size() == 1, GetParam() < 0x80);
}

INSTANTIATE_TEST_SUITE_P(AllValues, CodePage, ::testing::Range(0, 256));

TEST(CodePageText, IsWindows1252) {
  EXPECT_EQ(A_Utf8("citt\xE0 \x80 \x8C \x99 \xFF"), "città € Œ ™ ÿ");
  EXPECT_EQ(Da_Utf8("perché — “sì” ×÷ß"), "perch\xE9 \x97 \x93s\xEC\x94 \xD7\xF7\xDF");
  EXPECT_EQ(A_Utf8("\x81"), "\u0081");
  EXPECT_EQ(A_Utf8(""), "");
  EXPECT_EQ(Da_Utf8(""), "");
}

TEST(CodePageText, CharactersThatItLacksBecomeQuestionMarks) {
  EXPECT_EQ(Da_Utf8("aΩb"), "a?b");
  EXPECT_EQ(Da_Utf8("→😀∀"), "???");
  EXPECT_EQ(Da_Utf8("\u0080"), "?");  // its number belongs to another character here
}

namespace {
struct Rotto {
  const char* Utf8;
  const char* Byte;
};
}  // namespace

class BrokenUtf8 : public ::testing::TestWithParam<Rotto> {};

TEST_P(BrokenUtf8, GivesAQuestionMarkForEachByteThatIsNone) {
  EXPECT_EQ(Da_Utf8(GetParam().Utf8), GetParam().Byte);
}

INSTANTIATE_TEST_SUITE_P(Table, BrokenUtf8,
                         ::testing::Values(Rotto{"a\x80z", "a?z"},   // no beginning
                                           Rotto{"a\xC3", "a?"},     // no end
                                           Rotto{"a\xC3z", "a?z"},   // none in the middle
                                           Rotto{"\xE2\x82", "??"},  // cut off
                                           Rotto{"\xE2\x82z", "??z"}, Rotto{"\xF0\x9F\x98", "???"},
                                           Rotto{"\xC0\xAF", "??"},  // overlong
                                           Rotto{"\xC1\xBF", "??"}, Rotto{"\xE0\x80\xAF", "???"},
                                           Rotto{"\xF0\x80\x80\xAF", "????"},
                                           Rotto{"\xED\xA0\x80", "???"},       // half of a pair
                                           Rotto{"\xF4\x90\x80\x80", "????"},  // past the end
                                           Rotto{"\xF5\x80\x80\x80", "????"},
                                           Rotto{"\xFF\xFE", "??"}));

TEST(CodePageText, CapitalsIncludeTheAccentedLetters) {
  EXPECT_EQ(Maiuscole("ld i0.3"), "LD I0.3");
  EXPECT_EQ(Maiuscole(Da_Utf8("àèéìòù çñøþ ÿœšž")), Da_Utf8("ÀÈÉÌÒÙ ÇÑØÞ ŸŒŠŽ"));
}

TEST(CodePageText, CapitalsLeaveEverythingElseAsItIs) {
  for (int byte = 0; byte <= 255; ++byte) {
    const bool minuscola = (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte != 0xF7) ||
                           byte == 0x9A || byte == 0x9C || byte == 0x9E;
    const std::string testo(1, static_cast<char>(byte));
    EXPECT_EQ(Maiuscole(testo) != testo, minuscola) << byte;
    EXPECT_EQ(Maiuscole(Maiuscole(testo)), Maiuscole(testo)) << byte;
  }
}

}  // namespace tavorno::prova
