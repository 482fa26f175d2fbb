// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/cover.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavorno {
namespace {

class Cover : public ::testing::Test {
 protected:
  void Tick(int volte) { orologio.Avanza(50 * volte); }
  void Apri() {
    sportello.Timer1.Enabled(true);
    Tick(17);
  }

  Orologio orologio;
  Sportello sportello{orologio};
};

TEST_F(Cover, StandsClosedAtStart) {
  EXPECT_EQ(sportello.Top, -10);
  EXPECT_EQ(sportello.Sportello_Aperto, 0);
  EXPECT_FALSE(sportello.Timer1.Enabled());
  EXPECT_EQ(sportello.Timer1.Interval(), 50);
}

TEST_F(Cover, OpensInSeventeenTicks) {
  sportello.Timer1.Enabled(true);
  Tick(1);
  EXPECT_EQ(sportello.Top, -50);
  Tick(15);
  EXPECT_EQ(sportello.Top, -650);
  EXPECT_EQ(sportello.Sportello_Aperto, 0);
  EXPECT_TRUE(sportello.Timer1.Enabled());
  Tick(1);
  EXPECT_EQ(sportello.Top, -650);
  EXPECT_EQ(sportello.Sportello_Aperto, -1);
  EXPECT_FALSE(sportello.Timer1.Enabled());
}

TEST_F(Cover, ClosesInSeventeenTicks) {
  Apri();
  sportello.Timer1.Enabled(true);
  Tick(16);
  EXPECT_EQ(sportello.Top, -10);
  EXPECT_EQ(sportello.Sportello_Aperto, -1);
  Tick(1);
  EXPECT_EQ(sportello.Top, 30);
  EXPECT_EQ(sportello.Sportello_Aperto, 0);
  EXPECT_FALSE(sportello.Timer1.Enabled());
}

TEST_F(Cover, StandsStillAtItsEnds) {
  Apri();
  Tick(100);
  EXPECT_EQ(sportello.Top, -650);
}

TEST_F(Cover, StartedAgainOnItsWayItGoesOnInTheSameDirection) {
  sportello.Timer1.Enabled(true);
  Tick(5);
  orologio.Avanza(30);
  sportello.Timer1.Enabled(true);  // the period under way is not begun anew
  orologio.Avanza(20);
  EXPECT_EQ(sportello.Top, -10 - 6 * 40);
  Tick(11);
  EXPECT_EQ(sportello.Sportello_Aperto, -1);
}

TEST_F(Cover, TellsEachMove) {
  std::vector<int> posti;
  sportello.Mosso = [&] { posti.push_back(sportello.Top); };
  sportello.Timer1.Enabled(true);
  Tick(3);
  EXPECT_EQ(posti, (std::vector<int>{-50, -90, -130}));
}

}  // namespace
}  // namespace tavorno
