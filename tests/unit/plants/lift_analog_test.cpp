// SPDX-License-Identifier: GPL-3.0-or-later
// What the CPU sees of the lift's load cell and position transducer.
#include "plants/lift.h"
#include "tests/unit/plants/link_bed.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

struct LiftAnalog : Banco_Impianto {
  LiftAnalog() {
    Apri(14);
    Esegui({"NETWORK 1", "LD SM0.0", "= M0.0"});
    Macchina().Stato_Q(prova::Uscite({}));
  }
  /// The cabin moves on from `top`, so that `top` is what is reported.
  int Parola_A(float top) {
    Macchina().Disegno["imgC"].Top = top;
    Macchina().Stato_Q(prova::Uscite({2}));
    orologio.Avanza(50);
    Macchina().Stato_Q(prova::Uscite({}));
    orologio.Avanza(20);
    return plc.Mem_AIW[2];
  }
};

TEST_F(LiftAnalog, PositionIsNotMeasuredBeforeTheCabinMoves) {
  orologio.Avanza(100);
  EXPECT_EQ(plc.Mem_AIW[2], 6400);
  EXPECT_EQ(Parola_A(1020), 6527);
}

TEST_F(LiftAnalog, FloorsHaveTheirWords) {
  const std::pair<float, int> parole[] = {
      {4580, 29311}, {3380, 21632}, {2180, 13952}, {1000, 6400}};
  for (const auto& [top, parola] : parole) EXPECT_EQ(Parola_A(top), parola) << top;
}

TEST_F(LiftAnalog, LoadReachesTheCpuWithoutAnyOtherEvent) {
  for (int volt = 1; volt <= 10; ++volt) {
    Macchina().Regola("UpD1", volt);
    orologio.Avanza(20);
    EXPECT_EQ(plc.Mem_AIW[0], volt * 3200);
  }
}

TEST_F(LiftAnalog, NothingReachesTheCpuWhileTheSwitchesDriveIt) {
  filo->chkSim(true);
  Macchina().Regola("UpD1", 5);
  orologio.Avanza(20);
  EXPECT_EQ(plc.Mem_AIW[0], 0);
}

TEST_F(LiftAnalog, EitherSliderWritesBothProperties) {
  auto& ascensore = static_cast<ctr_Ascensore&>(Macchina());
  filo->Muovi(0, 5);
  EXPECT_EQ(ascensore.Passo_Cabina, 50);
  EXPECT_EQ(ascensore.Isteresi, 50);
  filo->Muovi(1, 20);
  EXPECT_EQ(ascensore.Passo_Cabina, 50);
  EXPECT_EQ(ascensore.Isteresi, 200);
}

}  // namespace tavorno::prova
