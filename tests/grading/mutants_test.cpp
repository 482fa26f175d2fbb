// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grading/mutants.h"

#include <gmock/gmock.h>

#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// "3: LD I0.0 -> LDN I0.0" of each mutant of these lines.
std::vector<std::string> Di(const std::vector<std::string>& righe) {
  std::vector<std::string> testi;
  for (const Mutante& mutante : Mutanti(Byte_Di_Progetto(righe)))
    testi.push_back(std::to_string(mutante.Riga) + ": " + mutante.Da + " -> " + mutante.A);
  return testi;
}

TEST(Mutants, ChangeEachLineInEachWay) {
  EXPECT_THAT(Di({"LD I0.0 //avvio", "AN I0.1", "S M0.0, 2", "TON T37 +50"}),
              ElementsAre("4: LD I0.0 //avvio -> ", "4: LD I0.0 //avvio -> LDN I0.0 //avvio",
                          "4: LD I0.0 //avvio -> LD I0.1 //avvio", "5: AN I0.1 -> ",
                          "5: AN I0.1 -> A I0.1", "5: AN I0.1 -> AN I0.0", "6: S M0.0, 2 -> ",
                          "6: S M0.0, 2 -> R M0.0, 2", "7: TON T37 +50 -> ",
                          "7: TON T37 +50 -> TON T37 +100", "7: TON T37 +50 -> TON T37 +25"));
}

TEST(Mutants, LeaveTheFrameAlone) {
  EXPECT_THAT(Di({"NETWORK 1 //A I0.0", "//LD I0.1", ""}), IsEmpty());
}

TEST(Mutants, KeepEveryOtherByte) {
  const std::vector<Mutante> mutanti = Mutanti(Byte_Di_Progetto({"LD I0.0", "= Q0.0"}));
  ASSERT_EQ(mutanti.size(), 3);
  EXPECT_EQ(mutanti[0].Testo, Byte_Di_Progetto({"= Q0.0"}));
  EXPECT_EQ(mutanti[1].Testo, Byte_Di_Progetto({"LDN I0.0", "= Q0.0"}));
  EXPECT_EQ(mutanti[2].Testo, Byte_Di_Progetto({"LD I0.0"}));
}

TEST(Mutants, SpecialMarkersHaveNoNeighbours) {
  EXPECT_THAT(Di({"LD SM0.0", "MOVW +0 VW0"}),
              ElementsAre("4: LD SM0.0 -> ", "4: LD SM0.0 -> LDN SM0.0", "5: MOVW +0 VW0 -> ",
                          "5: MOVW +0 VW0 -> MOVW +1 VW0"));
}

}  // namespace tavorno::prova
