// SPDX-License-Identifier: GPL-3.0-or-later
#include "cpu.h"

namespace tavorno::prova {

using LogicStack = Cpu;

TEST_F(LogicStack, NinePushesLoseTheFirstAndAnAndPopBringsInZero) {
  for (int i = 0; i < 9; ++i) plc.GestStak(1, static_cast<std::int16_t>(i % 2 == 0 ? 1 : 0));
  EXPECT_EQ(Pila(), (std::vector<int>{1, 0, 1, 0, 1, 0, 1, 0}));
  plc.GestStak(2);
  EXPECT_EQ(Pila(), (std::vector<int>{0, 1, 0, 1, 0, 1, 0, 0}));
}

}  // namespace tavorno::prova
