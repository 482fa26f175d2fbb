// SPDX-License-Identifier: GPL-3.0-or-later
// The garage with its solved project: cars in and out, a full garage, tripped relays, a barrier
// that does not move.
#include "plants/garage.h"
#include "tests/unit/plants/solved_project_bed.h"

namespace tavorno::prova {

constexpr int KM1 = 1, KM2 = 2, HL1 = 3, HL2 = 4, HL3 = 5, HL4 = 6, KM4 = 7, KM3 = 8, HL5 = 9;
constexpr int HL6 = 10;

class GarageProject : public Banco_Risolto {
 public:
  GarageProject() { Avvia(11, "us11.AWL"); }

  ctr_Garage& Garage() { return static_cast<ctr_Garage&>(Macchina()); }
  bool Chiusa_I() { return Garage().Stato_I()[2] == '0' && !Q(KM2); }
  bool Chiusa_U() { return Garage().Stato_I()[10] == '0' && !Q(KM4); }

  bool Entra() {
    const int prima = Garage().Posti_Occupati;
    Macchina().Clic("cmdIng");
    Spingi("imgPSB(0)");
    return Attendi([&] { return Garage().Posti_Occupati == prima + 1 && Chiusa_I(); });
  }
  bool Esce(int posto) {
    const int prima = Garage().Posti_Occupati;
    Macchina().Clic("imgM(" + std::to_string(posto) + ")");
    if (!Attendi([&] { return Garage().Stato_I()[9] == '1'; })) return false;
    Spingi("imgPSB(1)");
    return Attendi([&] { return Garage().Posti_Occupati == prima - 1 && Chiusa_U(); });
  }

 protected:
  void Dopo_La_Scansione() override {
    EXPECT_FALSE(Q(KM1) && Q(KM2));
    EXPECT_FALSE(Q(KM3) && Q(KM4));
    EXPECT_FALSE(Q(HL1) && Q(HL2));
    EXPECT_NE(Q(HL3), Q(HL4));
    // one step of the barrier beyond its ends at most
    EXPECT_GE(F("shS0").Left(), 660 - 80);
    EXPECT_LE(F("shS0").Left(), 1800 + 80);
    EXPECT_GE(F("shS1").Left(), 1740 - 80);
    EXPECT_LE(F("shS1").Left(), 2940 + 80);
  }
};

TEST_F(GarageProject, WaitsClosedWithRedLights) {
  Passa(2000);
  EXPECT_TRUE(Q(HL2));
  EXPECT_TRUE(Q(HL4));
  EXPECT_FALSE(Q(KM1) || Q(KM2) || Q(KM3) || Q(KM4) || Q(HL5) || Q(HL6));
}

TEST_F(GarageProject, LetsACarInAndClosesBehindIt) {
  Macchina().Clic("cmdIng");
  Spingi("imgPSB(0)");
  EXPECT_TRUE(Q(KM1));
  EXPECT_TRUE(Q(HL5));
  EXPECT_TRUE(Attendi([this] { return Q(HL1); }));
  EXPECT_FALSE(Q(KM1));
  EXPECT_TRUE(Attendi([this] { return Q(KM2); }));
  EXPECT_FALSE(Q(HL1));
  EXPECT_LT(F("imgM(0)").Top(), 2820);
  EXPECT_TRUE(Attendi([this] { return Chiusa_I() && Garage().Posti_Occupati == 1; }));
  Passa(30000);
  EXPECT_EQ(Garage().Posti_Occupati, 1);
}

TEST_F(GarageProject, NoCarNoBarrier) {
  Spingi("imgPSB(0)");
  Spingi("imgPSB(1)");
  Passa(3000);
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_EQ(F("shS1").Left(), 2940);
}

TEST_F(GarageProject, FillsAndEmptiesAllSixSpaces) {
  for (int posto = 1; posto <= 6; ++posto) ASSERT_TRUE(Entra()) << posto;
  EXPECT_EQ(F("EtInf").Caption(), "OCCUPATO");
  for (int posto = 6; posto >= 1; --posto) ASSERT_TRUE(Esce(posto)) << posto;
  EXPECT_EQ(Garage().Posti_Occupati, 0);
  EXPECT_EQ(F("etPosti").Caption(), "6");
  ASSERT_TRUE(Entra());
}

TEST_F(GarageProject, AFullGarageRefusesTheSeventhUntilOneLeaves) {
  for (int posto = 1; posto <= 6; ++posto) ASSERT_TRUE(Entra()) << posto;
  Macchina().Clic("cmdIng");
  Spingi("imgPSB(0)");
  Passa(3000);
  EXPECT_EQ(F("shS0").Left(), 660);
  EXPECT_EQ(Garage().Posti_Occupati, 6);
  const bool rosso = Q(HL2);
  EXPECT_TRUE(Attendi([&] { return Q(HL2) != rosso; }, 1000));

  ASSERT_TRUE(Esce(3));
  Spingi("imgPSB(0)");
  EXPECT_TRUE(Attendi([this] { return Garage().Posti_Occupati == 6 && Chiusa_I(); }));
  EXPECT_TRUE(F("imgM(3)").Visible());
}

TEST_F(GarageProject, OneComesWhileAnotherLeaves) {
  ASSERT_TRUE(Entra());
  ASSERT_TRUE(Entra());
  Macchina().Clic("imgM(1)");
  ASSERT_TRUE(Attendi([this] { return Garage().Stato_I()[9] == '1'; }));
  Macchina().Clic("cmdIng");
  Macchina().Premi("imgPSB(0)");
  Passa(20);
  Macchina().Rilascia("imgPSB(0)");
  Macchina().Clic("imgPSB(0)");
  Spingi("imgPSB(1)");
  EXPECT_TRUE(Q(KM1));
  EXPECT_TRUE(Q(KM3));
  EXPECT_TRUE(Attendi([this] {
    return Chiusa_I() && Chiusa_U() && Garage().Auto_In_Ingresso == 0 &&
           Garage().Auto_In_Uscita == 0;
  }));
  EXPECT_EQ(Garage().Posti_Occupati, 2);
  EXPECT_EQ(plc.Mem_C[0].Val, 2);
}

TEST_F(GarageProject, ATrippedRelayStopsTheBarrierUntilItIsReset) {
  Macchina().Clic("cmdIng");
  Spingi("imgPSB(0)");
  Passa(500);
  Macchina().Clic("imgMI");
  Passa(20);
  EXPECT_FALSE(Q(KM1));
  const float dove = F("shS0").Left;
  Passa(5000);
  EXPECT_EQ(F("shS0").Left(), dove);
  const bool gialla = Q(HL5);
  EXPECT_TRUE(Attendi([&] { return Q(HL5) != gialla; }, 1000));
  Macchina().Clic("imgMI");
  EXPECT_TRUE(Attendi([this] { return Garage().Posti_Occupati == 1 && Chiusa_I(); }));
}

TEST_F(GarageProject, ATrippedRelayOfTheExitLeavesTheEntranceAtWork) {
  ASSERT_TRUE(Entra());
  Macchina().Clic("imgMU");
  Macchina().Clic("imgM(1)");
  ASSERT_TRUE(Attendi([this] { return Garage().Stato_I()[9] == '1'; }));
  Spingi("imgPSB(1)");
  Passa(3000);
  EXPECT_EQ(F("shS1").Left(), 2940);
  EXPECT_TRUE(Entra());
}

TEST_F(GarageProject, ABarrierThatDoesNotMoveIsAFaultUntilBothButtons) {
  Macchina().Regola("ME_Speed", 0);
  Macchina().Clic("cmdIng");
  Spingi("imgPSB(0)");
  EXPECT_TRUE(Q(KM1));
  EXPECT_TRUE(Attendi([this] { return !Q(KM1); }, 16000));
  Macchina().Regola("ME_Speed", 80);
  Passa(3000);
  EXPECT_FALSE(Q(KM1));
  Macchina().Premi("imgPSB(0)");
  Macchina().Premi("imgPSB(1)");
  Passa(50);
  Macchina().Rilascia("imgPSB(0)");
  Macchina().Rilascia("imgPSB(1)");
  EXPECT_TRUE(Attendi([this] { return Garage().Posti_Occupati == 1 && Chiusa_I(); }));
}

TEST_F(GarageProject, WorksAtEverySpeedOfTheSlider) {
  for (const int velocita : {1, 5, 10}) {
    filo->Muovi(0, velocita);
    ASSERT_TRUE(Entra()) << velocita;
    ASSERT_TRUE(Esce(1)) << velocita;
  }
}

}  // namespace tavorno::prova
