// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "plants/lift.h"
#include "tests/unit/plants/input_trace.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

struct LiftTrace : ::testing::Test {
  Orologio orologio;
  ctr_Ascensore ascensore{orologio};
  std::vector<Cambio> Tick(int quanti) { return Percorri(orologio, ascensore, 50, quanti); }
};

// At tick n the cabin stands at 1020 + 20 n; a floor is seen while it is nearer than 50 to it.
TEST_F(LiftTrace, FromTheThirdFloorToTheGroundAndThroughTheDoors) {
  ascensore.Stato_Q(Uscite({}));
  ascensore.Stato_Q(Uscite({2}));
  EXPECT_THAT(Tick(178), ElementsAre(Cambio{2, 4, '1'},     // 1060, out of the third
                                     Cambio{56, 3, '0'},    // 2140
                                     Cambio{61, 3, '1'},    // 2240
                                     Cambio{116, 2, '0'},   // 3340
                                     Cambio{121, 2, '1'},   // 3440
                                     Cambio{176, 1, '0'}))  // 4540
      << ascensore.Disegno["imgC"].Top();
  EXPECT_EQ(ascensore.Disegno["imgC"].Top(), 4580);
  EXPECT_EQ(ascensore.Disegno["imgP"].Top(), 4740 - 3560);
  ascensore.Stato_Q(Uscite({}));
  EXPECT_THAT(Tick(10), ElementsAre());
  EXPECT_FLOAT_EQ(*ascensore.ME_AIW2, 4560 / 500.0F);

  // Open: the left leaf at 660 - 10 n.
  ascensore.Stato_Q(Uscite({4}));
  EXPECT_THAT(Tick(49), ElementsAre(Cambio{1, 5, '0'}, Cambio{49, 16, '0'}));
  EXPECT_EQ(ascensore.Disegno["ShP(0)"].Left(), 170);
  EXPECT_EQ(ascensore.Disegno["ShP(1)"].Left(), 1690);
  ascensore.Stato_Q(Uscite({}));
  EXPECT_THAT(Tick(40), ElementsAre());

  ascensore.Stato_Q(Uscite({3}));
  EXPECT_THAT(Tick(49), ElementsAre(Cambio{1, 16, '1'}, Cambio{49, 5, '1'}));
  EXPECT_EQ(ascensore.Disegno["ShP(0)"].Left(), 660);
  EXPECT_EQ(ascensore.Disegno["ShP(1)"].Left(), 1200);
  ascensore.Stato_Q(Uscite({}));
  EXPECT_EQ(ascensore.Stato_I(), "0111100001000001");
}

TEST_F(LiftTrace, FromTheGroundUp) {
  ascensore.Stato_Q(Uscite({}));
  ascensore.Disegno["imgC"].Top = 4580;
  ascensore.Disegno["imgP"].Top = 1180;
  ascensore.Stato_Q(Uscite({1}));
  // 4580 - 20 n; the ground opens at the first tick, as nothing was measured before it
  EXPECT_THAT(Tick(179), ElementsAre(Cambio{1, 1, '0'}, Cambio{1, 4, '1'},  // 4560
                                     Cambio{3, 1, '1'},                     // 4520
                                     Cambio{58, 2, '0'}, Cambio{63, 2, '1'}, Cambio{118, 3, '0'},
                                     Cambio{123, 3, '1'}, Cambio{177, 4, '0'}));  // 1040
  EXPECT_EQ(ascensore.Disegno["imgC"].Top(), 1000);
}

}  // namespace tavorno::prova
