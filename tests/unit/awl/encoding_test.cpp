// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/encoding.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tavorno {
inline std::ostream& operator<<(std::ostream& out, Codifica codifica) {
  return out << static_cast<int>(codifica);
}
}  // namespace tavorno

namespace tavorno::prova {

namespace {
using namespace std::string_literals;
}

struct Caso_Codifica {
  std::string nome;
  std::string byte;
  Codifica era;
  std::string letti;
  int persi = 0;
};

class Encoding : public testing::TestWithParam<Caso_Codifica> {};

TEST_P(Encoding, IsRecognised) {
  const Testo_Letto letto = Riconosci(GetParam().byte);
  EXPECT_EQ(letto.Era, GetParam().era);
  EXPECT_EQ(letto.Byte, GetParam().letti);
  EXPECT_EQ(letto.Persi, GetParam().persi);
}

INSTANTIATE_TEST_SUITE_P(
    All, Encoding,
    testing::Values(
        Caso_Codifica{"Empty", "", Codifica::Pagina, ""},
        Caso_Codifica{"Plain", "NOT\r\n", Codifica::Pagina, "NOT\r\n"},
        Caso_Codifica{"CodePage", "perch\xE9 no", Codifica::Pagina, "perch\xE9 no"},
        Caso_Codifica{"CodePageAtTheEnd", "perch\xE9", Codifica::Pagina, "perch\xE9"},
        Caso_Codifica{"Utf8WithoutAMark", "perch\xC3\xA9", Codifica::Forse_Utf8, "perch\xC3\xA9"},
        Caso_Codifica{"OneByteThatIsNone", "perch\xC3\xA9 \xE9.", Codifica::Pagina,
                      "perch\xC3\xA9 \xE9."},
        Caso_Codifica{"CutOff", "a\xE2\x82", Codifica::Pagina, "a\xE2\x82"},
        Caso_Codifica{"TooLongAForm", "\xC0\xAF", Codifica::Pagina, "\xC0\xAF"},
        Caso_Codifica{"Utf8Mark", "\xEF\xBB\xBFperch\xC3\xA9", Codifica::Utf8, "perch\xE9"},
        Caso_Codifica{"Utf8MarkAlone", "\xEF\xBB\xBF", Codifica::Utf8, ""},
        Caso_Codifica{"WhatTheCodePageLacks", "\xEF\xBB\xBF\xE2\x86\x92?", Codifica::Utf8, "??", 1},
        Caso_Codifica{"Utf16Low",
                      "\xFF\xFE"
                      "a\0\xE9\0"s,
                      Codifica::Utf16, "a\xE9"},
        Caso_Codifica{"Utf16High", "\xFE\xFF\0a\0\xE9\x20\xAC"s, Codifica::Utf16, "a\xE9\x80"},
        Caso_Codifica{"Utf16Pair", "\xFE\xFF\xD8\x3D\xDE\x00\0b"s, Codifica::Utf16, "?b", 1},
        Caso_Codifica{"Utf16Odd",
                      "\xFF\xFE"
                      "a\0b"s,
                      Codifica::Utf16, "a"}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Encoding, WithoutAMarkIsConvertedWhenItIsWanted) {
  EXPECT_EQ(Da_Utf8_Senza_Segno("perch\xC3\xA9").Byte, "perch\xE9");
}

}  // namespace tavorno::prova
