// SPDX-License-Identifier: GPL-3.0-or-later
// The crossing with its solved project.
#include <gmock/gmock.h>

#include <vector>

#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

constexpr int HL4 = 1, HL5 = 2, HL1 = 3, HL2 = 4, HL3 = 5;

class CrossingProject : public Banco_Risolto {
 public:
  CrossingProject() { Avvia(16, "us16.AWL"); }

  /// Lamps in the order of the outputs: red and green for pedestrians, red, yellow, green for cars.
  std::string Luci() const {
    std::string luci;
    for (const int uscita : {HL4, HL5, HL1, HL2, HL3}) luci += Q(uscita) ? '1' : '0';
    return luci;
  }
  /// The lights that follow each other in the coming time, and how long they last, in tenths of a
  /// second; the last one is cut.
  std::vector<std::pair<std::string, int>> Sequenza(int millisecondi) {
    std::vector<std::pair<std::string, int>> passi;
    int durata = 0;
    for (int ms = 0; ms < millisecondi; ms += Scansione) {
      if (passi.empty() || passi.back().first != Luci()) {
        if (!passi.empty()) passi.back().second = (durata + 50) / 100;
        passi.emplace_back(Luci(), 0);
        durata = 0;
      }
      Passa(Scansione);
      durata += Scansione;
    }
    return passi;
  }

 protected:
  void Dopo_La_Scansione() override {
    EXPECT_FALSE(Q(HL5) && (Q(HL3) || Q(HL2)));
    EXPECT_NE(Q(HL4), Q(HL5));
    EXPECT_EQ(Q(HL1) + Q(HL2) + Q(HL3), 1);
  }
};

constexpr const char *verde = "10001", *giallo = "10010", *sgombero = "10100", *pedoni = "01100";

TEST_F(CrossingProject, WithoutACallTheCarsHaveGreenForEver) {
  Passa(120000);
  EXPECT_EQ(Luci(), verde);
}

class CrossingProjectCall : public CrossingProject,
                            public ::testing::WithParamInterface<const char*> {};

TEST_P(CrossingProjectCall, AShortCallRunsTheWholeSequenceOnce) {
  Passa(20000);
  Spingi(GetParam());
  EXPECT_THAT(Sequenza(60000),
              ElementsAre(std::pair(giallo, 28), std::pair(sgombero, 20), std::pair(pedoni, 80),
                          std::pair(sgombero, 30), std::pair(verde, 0)));
}

INSTANTIATE_TEST_SUITE_P(All, CrossingProjectCall, ::testing::Values("imgSB(0)", "imgSB(1)"));

TEST_F(CrossingProject, ACallWaitsForTheShortestGreen) {
  Passa(1000);
  Spingi("imgSB(0)");
  Passa(8000);
  EXPECT_EQ(Luci(), verde);
  Passa(1500);
  EXPECT_EQ(Luci(), giallo);
}

TEST_F(CrossingProject, ACallDuringTheClearingIsKeptForTheNextRound) {
  Passa(20000);
  Spingi("imgSB(0)");
  ASSERT_TRUE(Attendi([this] { return Q(HL5); }, 10000));
  ASSERT_TRUE(Attendi([this] { return Q(HL4); }, 10000));
  Spingi("imgSB(1)");
  ASSERT_TRUE(Attendi([this] { return Q(HL3); }, 5000));
  Passa(9000);
  EXPECT_EQ(Luci(), verde);
  EXPECT_TRUE(Attendi([this] { return Q(HL5); }, 8000));
}

}  // namespace

}  // namespace tavorno::prova
