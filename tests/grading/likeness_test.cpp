// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/likeness.h"

#include <gmock/gmock.h>

#include "tests/support/hand_in_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Coppia {
  const char* Nome;
  std::vector<std::string> Una, Altra;
  int Come;  ///< a `Somiglianza`, -1: not alike
};

const std::vector<std::string> marcia = {"NETWORK 1", "LD M0.0", "O I0.0",       "= M0.0",
                                         "NETWORK 2", "LD M0.0", "TON T37, +30", "NETWORK 3",
                                         "LD T37",    "= Q0.0"};
const std::vector<Coppia> coppie = {
    {"TheSame", marcia, marcia, 0},
    {"OtherComments",
     marcia,
     {"NETWORK 1 //marcia", "LD M0.0 //mia", "O I0.0", "= M0.0", "NETWORK 2", "LD M0.0",
      "TON T37, +30", "NETWORK 3", "LD T37", "= Q0.0"},
     1},
    {"OtherOrder",
     marcia,
     {"NETWORK 1", "LD T37", "= Q0.0", "NETWORK 2", "LD M0.0", "O I0.0", "= M0.0", "NETWORK 3",
      "LD M0.0", "TON T37, +30"},
     1},
    {"OtherMarkers",
     marcia,
     {"NETWORK 1", "LD M3.2", "O I0.0", "= M3.2", "NETWORK 2", "LD M3.2", "TON T40, +30",
      "NETWORK 3", "LD T40", "= Q0.0"},
     2},
    {"OtherMarkersInOtherOrder",
     marcia,
     {"NETWORK 1", "LD T40", "= Q0.0", "NETWORK 2", "LD M3.2", "TON T40, +30", "NETWORK 3",
      "LD M3.2", "O I0.0", "= M3.2"},
     2},
    {"OtherPreset",
     marcia,
     {"NETWORK 1", "LD M0.0", "O I0.0", "= M0.0", "NETWORK 2", "LD M0.0", "TON T37, +40",
      "NETWORK 3", "LD T37", "= Q0.0"},
     -1},
    {"OtherOutput",
     marcia,
     {"NETWORK 1", "LD M0.0", "O I0.0", "= M0.0", "NETWORK 2", "LD M0.0", "TON T37, +30",
      "NETWORK 3", "LD T37", "= Q0.1"},
     -1},
    {"TwoMarkersWhereOneWas",
     marcia,
     {"NETWORK 1", "LD M0.0", "O I0.0", "= M0.0", "NETWORK 2", "LD M0.1", "TON T37, +30",
      "NETWORK 3", "LD T37", "= Q0.0"},
     -1},
    {"SpecialBitsAreNoMarkers", {"LD SM0.5", "= Q0.0"}, {"LD SM0.4", "= Q0.0"}, -1},
    {"NothingIsLikeNothing", {}, {}, -1},
};

class Pairs : public ::testing::TestWithParam<Coppia> {};

TEST_P(Pairs, AreAlikeAsFarAsTheySay) {
  const Coppia& coppia = GetParam();
  const auto gruppi = Consegne_Simili(
      {Firma_Di(Byte_Di_Progetto(coppia.Una)), Firma_Di(Byte_Di_Progetto(coppia.Altra))});
  if (coppia.Come < 0) {
    EXPECT_THAT(gruppi, IsEmpty());
    return;
  }
  ASSERT_EQ(gruppi.size(), 1U);
  EXPECT_EQ(static_cast<int>(gruppi[0].Come), coppia.Come);
  EXPECT_THAT(gruppi[0].Quali, ElementsAre(0, 1));
}

INSTANTIATE_TEST_SUITE_P(Likeness, Pairs, ::testing::ValuesIn(coppie),
                         [](const auto& caso) { return caso.param.Nome; });

TEST(Likeness, GroupsByTheWidestAndTellsTheClosestThatHoldsForAll) {
  const Firma una = Firma_Di(Byte_Di_Progetto(coppie[0].Una));
  const Firma commentata = Firma_Di(Byte_Di_Progetto(coppie[1].Altra));
  const Firma rinominata = Firma_Di(Byte_Di_Progetto(coppie[3].Altra));
  const Firma diversa = Firma_Di(Byte_Di_Progetto({"LD I0.1", "= Q0.0"}));
  const auto gruppi = Consegne_Simili({diversa, una, commentata, {}, rinominata, diversa});
  ASSERT_EQ(gruppi.size(), 2U);
  EXPECT_THAT(gruppi[0].Quali, ElementsAre(0, 5));
  EXPECT_EQ(gruppi[0].Come, Somiglianza::Uguali);
  EXPECT_THAT(gruppi[1].Quali, ElementsAre(1, 2, 4));
  EXPECT_EQ(gruppi[1].Come, Somiglianza::Rinominate);
}

TEST(Likeness, ProceduresMayHaveAnyName) {
  const auto progetto = [](const std::string& nome) {
    return "ORGANIZATION_BLOCK MAIN:OB1\r\nBEGIN\r\nNETWORK 1\r\nLD I0.0\r\nCALL " + nome +
           "\r\nEND_ORGANIZATION_BLOCK\r\nSUBROUTINE_BLOCK " + nome +
           ":SBR0\r\nBEGIN\r\nNETWORK 1\r\nLD I0.1\r\n= Q0.0\r\nEND_SUBROUTINE_BLOCK\r\n";
  };
  const Firma una = Firma_Di(progetto("SBR_0")), altra = Firma_Di(progetto("MOTORE"));
  ASSERT_FALSE(una.Righe.empty());
  EXPECT_NE(una.Byte, altra.Byte);
  EXPECT_EQ(una.Righe, altra.Righe);
  EXPECT_THAT(Programma_In_Chiaro(progetto("MOTORE")), ::testing::HasSubstr("MOTORE\nNETWORK 1"));
}

TEST(Likeness, WhatCannotBeReadIsLikeNothing) {
  EXPECT_TRUE(Firma_Di("PK\x03\x04").Byte.empty());
  EXPECT_THAT(Consegne_Simili({Firma_Di("niente"), Firma_Di("niente")}), IsEmpty());
}

}  // namespace tavorno::prova
