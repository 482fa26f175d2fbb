// SPDX-License-Identifier: GPL-3.0-or-later
// US-10: what it has beyond the tank.
#include <gmock/gmock.h>

#include "mixer_bed.h"

namespace tavorno::prova {

namespace {

struct HeatedMixer : Con_Orologio<ctr_Misc> {
  std::string Gradi() { return Caption(m, "etT"); }
  void Secondi(int secondi) { orologio.Avanza(secondi * 1000); }
};

TEST_F(HeatedMixer, StartsColdWithASetPointOf50) {
  EXPECT_EQ(Gradi(), "20");
  EXPECT_EQ(Caption(m, "etSet"), "50");
  EXPECT_EQ(m.Set_Temperatura(), 50);
  EXPECT_EQ(m.ME_AIW0, 0.0F);
  EXPECT_EQ(m.ME_AIW2, 0.0F);
  EXPECT_EQ(m.ME_AIW4, 5.0F);
  EXPECT_EQ(Caption(m, "etAI(2)"), "5.0");
  EXPECT_FALSE(m.Disegno["picTr"].Visible);
  EXPECT_FALSE(m.Disegno["imgSp(0)"].Visible);
  EXPECT_FALSE(m.Disegno["imgSp(1)"].Visible);
  EXPECT_FALSE(m.Disegno["imgSp(2)"].Visible);
  Verifica_Geometria(m, 9000, 4710);
}

TEST_F(HeatedMixer, TheFirstSecondMeasuresTheTemperature) {
  Secondi(1);
  EXPECT_EQ(m.Temperatura(), 20);
  EXPECT_EQ(m.ME_AIW2, 2.0F);
  EXPECT_EQ(Caption(m, "etAI(1)"), "2.0");
}

TEST_F(HeatedMixer, BothLinesAddEachByItsOwnTimer) {
  m.Regola("ME_Speed1", 200);
  Uscite({1, 2, 6, 7});
  std::vector<std::string> visti;
  for (int ms = 0; ms < 1200; ms += 100) {
    orologio.Avanza(100);
    visti.push_back(std::string{Ingresso(1), Ingresso(2)} + " " + std::to_string(m.Livello()));
  }
  // ticks of line 1 at 200, 400, ...; of line 2 at 300, 600, ...
  EXPECT_THAT(visti, ::testing::ElementsAre("00 0", "10 1", "11 2", "01 2", "01 2", "10 3", "10 3",
                                            "00 3", "01 4", "11 5", "11 5", "00 5"));
  EXPECT_EQ(m.Disegno["shL"].Height(), 50);
  EXPECT_EQ(Caption(m, "EtP(0)"), "3");
  EXPECT_EQ(Caption(m, "EtP(1)"), "2");
}

TEST_F(HeatedMixer, BothLinesTogetherFillAtTwiceTheRate) {
  Uscite({1, 2, 6, 7});
  Tick(100, 300);
  EXPECT_EQ(m.Livello(), 100);
  EXPECT_EQ(m.Disegno["shL"].Height(), 1000);
  EXPECT_EQ(Caption(m, "EtP(0)"), "50");
  EXPECT_EQ(Caption(m, "EtP(1)"), "50");
}

TEST_F(HeatedMixer, NothingStopsItAbove160Litres) {
  Uscite({1, 2, 6, 7});
  Tick(200, 300);
  EXPECT_EQ(m.Livello(), 200);
  EXPECT_EQ(Caption(m, "etTL"), "11");
  EXPECT_EQ(m.Stato_I().substr(4, 2), "11");
  EXPECT_EQ(m.ME_AIW0, 12.5F);
  EXPECT_EQ(Caption(m, "etAI(0)"), "12.5");
}

TEST_F(HeatedMixer, AFillBeyondThe16BitsOfTheLevelStopsCounting) {
  m.Regola("ME_Speed1", 1);
  Uscite({1, 6});
  orologio.Avanza(66000);
  EXPECT_EQ(m.Livello(), 32767);
  Uscite({3, 8});
  orologio.Avanza(300);
  EXPECT_EQ(m.Livello(), 32766);
}

TEST_F(HeatedMixer, APumpWithAShutValveMovesAndCoolsNothing) {
  Uscite({4});
  Secondi(60);
  ASSERT_EQ(Gradi(), "30");
  Uscite({1, 4});
  EXPECT_EQ(Picture(m, "imgM(0)"), "imgMON");
  EXPECT_EQ(Picture(m, "imgT1"), "imgTOF");
  EXPECT_EQ(Picture(m, "imgV1"), "imgEVOF");
  for (int s = 0; s < 30; ++s) {
    Secondi(1);
    ASSERT_EQ(Ingresso(1), '0');
    ASSERT_EQ(m.Livello(), 0);
  }
  EXPECT_EQ(Gradi(), "35");
}

struct Prova_Flusso {
  int Pompa, Valvola;
  const char *Motore, *imgV, *imgT, *imgSp;
};

class HeatedMixerFlow : public HeatedMixer, public ::testing::WithParamInterface<Prova_Flusso> {};

TEST_P(HeatedMixerFlow, ShowsInPipesAndSpray) {
  const Prova_Flusso& p = GetParam();
  const auto Aspetto = [&] {
    return Picture(m, p.Motore) + " " + Picture(m, p.imgV) + " " + Picture(m, p.imgT) +
           (m.Disegno[p.imgSp].Visible ? " spray" : "");
  };
  Uscite({p.Pompa});
  EXPECT_EQ(Aspetto(), "imgMON imgEVOF imgTOF");
  Uscite({p.Pompa, p.Valvola});
  EXPECT_EQ(Aspetto(), "imgMON imgEVON imgTON spray");
  Uscite({p.Valvola});
  EXPECT_EQ(Aspetto(), "imgMOF imgEVON imgTOF");
  Uscite({p.Pompa, p.Valvola});
  Uscite({p.Pompa});
  EXPECT_EQ(Aspetto(), "imgMON imgEVOF imgTOF");
  Uscite({});
  EXPECT_EQ(Aspetto(), "imgMOF imgEVOF imgTOF");
}

INSTANTIATE_TEST_SUITE_P(
    All, HeatedMixerFlow,
    ::testing::Values(Prova_Flusso{1, 6, "imgM(0)", "imgV1", "imgT1", "imgSp(0)"},
                      Prova_Flusso{2, 7, "imgM(1)", "imgV2", "imgT2", "imgSp(1)"}));

// ---- drain --------------------------------------------------------------------------------------

TEST_F(HeatedMixer, DrainNeedsPumpAndValve) {
  Uscite({1, 6});
  Tick(20, 300);
  for (const int sola : {3, 8}) {
    Uscite({sola});
    Secondi(5);
    EXPECT_EQ(m.Livello(), 10) << sola;
    EXPECT_EQ(Picture(m, "imgT3"), "imgTOF");
  }
  Uscite({3, 8});
  EXPECT_EQ(Picture(m, "imgT3"), "imgTON");
  EXPECT_EQ(Picture(m, "imgM(2)"), "imgMON");
  EXPECT_EQ(Picture(m, "imgV3"), "imgEVON");
  Tick(4, 300);
  EXPECT_EQ(m.Livello(), 6);
  Uscite({8});
  Secondi(5);
  EXPECT_EQ(m.Livello(), 6);
}

TEST_F(HeatedMixer, DrainOfAnEmptyTankRunsAndResetsTheTemperatureAtEachTick) {
  Uscite({3, 4, 8});
  for (int tick = 1; tick <= 40; ++tick) {
    Tick(1, 300);
    // Every six seconds steam adds a degree, just behind the drain tick of the same moment.
    ASSERT_EQ(Gradi(), tick % 20 == 0 ? "21" : "20") << tick;
    ASSERT_EQ(m.Livello(), 0);
  }
  EXPECT_EQ(Picture(m, "imgM(2)"), "imgMON");
  EXPECT_EQ(Picture(m, "imgT3"), "imgTOF");
  Uscite({1, 3, 6, 8});  // the timer runs: what comes in goes out
  for (int tick = 0; tick < 20; ++tick) {
    Tick(1, 300);
    ASSERT_EQ(m.Livello(), 0);
  }
}

TEST_F(HeatedMixer, ATankThatRunsEmptyIsColdAtOnceAndAFillIsNot) {
  Uscite({1, 4, 6});
  Secondi(60);
  ASSERT_EQ(m.Livello(), 100);
  ASSERT_EQ(Gradi(), "20");  // as much steam as cold product
  Uscite({4});
  Secondi(60);
  ASSERT_EQ(Gradi(), "30");
  m.Regola("ME_SpeedS", 5);
  Uscite({3, 4, 8});
  orologio.Avanza(98 * 5);
  ASSERT_EQ(m.Livello(), 2);
  EXPECT_EQ(Gradi(), "30");
  orologio.Avanza(5);
  ASSERT_EQ(m.Livello(), 1);
  EXPECT_EQ(Gradi(), "20");
  EXPECT_EQ(m.ME_AIW2, 3.0F);  // measured at the next second
  Uscite({4});
  Secondi(1);
  EXPECT_EQ(m.ME_AIW2, 2.0F);
}

TEST_F(HeatedMixer, AFillTickOfAnEmptyTankLeavesTheTemperature) {
  Uscite({4});
  Secondi(60);
  ASSERT_EQ(Gradi(), "30");
  Uscite({1, 4, 6});
  orologio.Avanza(300);
  EXPECT_EQ(m.Livello(), 1);
  EXPECT_EQ(Gradi(), "30");
}

// ---- temperature --------------------------------------------------------------------------------

TEST_F(HeatedMixer, SteamHeatsADegreeEverySixSecondsEvenEmpty) {
  Uscite({4});
  for (int s = 1; s <= 600; ++s) {
    Secondi(1);
    ASSERT_EQ(Gradi(), std::to_string(20 + s / 6)) << s;
    ASSERT_EQ(m.Temperatura(), static_cast<float>(20 + s / 6));
  }
  EXPECT_EQ(Gradi(), "120");  // no upper limit
  EXPECT_EQ(m.ME_AIW2, 12.0F);
}

TEST_F(HeatedMixer, AirCoolsADegreeEveryElevenSecondsDownTo20) {
  Uscite({4});
  Secondi(60);
  Uscite({});
  for (int s = 1; s <= 130; ++s) {
    Secondi(1);
    ASSERT_EQ(Gradi(), std::to_string(std::max(20, 30 - s / 11))) << s;
  }
}

TEST_F(HeatedMixer, EachColdProductTakesADegreeEverySixSeconds) {
  Uscite({4});
  Secondi(240);
  ASSERT_EQ(Gradi(), "60");
  Uscite({1, 4, 6});  // steam and one product: even
  Secondi(60);
  EXPECT_EQ(Gradi(), "60");
  Uscite({1, 2, 4, 6, 7});  // steam and both: one degree less
  Secondi(60);
  EXPECT_EQ(Gradi(), "50");
  Uscite({1, 2, 6, 7});  // both, and the air
  Secondi(66);
  EXPECT_EQ(Gradi(), std::to_string(50 - 2 * 11 - 6));
}

TEST_F(HeatedMixer, ColdProductsStopAt20) {
  Uscite({1, 2, 6, 7});
  Secondi(60);
  EXPECT_EQ(Gradi(), "20");
}

TEST_F(HeatedMixer, HeatingResumesWhereItStopped) {
  Uscite({4});
  Secondi(5);
  Uscite({});
  Secondi(7);
  EXPECT_EQ(Gradi(), "20");
  Uscite({4});
  Secondi(1);
  EXPECT_EQ(Gradi(), "21");
}

TEST_F(HeatedMixer, ColdCountersKeepTheirCount) {
  Uscite({4});
  Secondi(60);
  for (const auto& linea : {std::vector<int>{1, 4, 6}, {2, 4, 7}}) {
    const int prima = std::stoi(Gradi());
    Uscite(linea);
    Secondi(5);
    Uscite({4});
    Secondi(6);  // steam: a degree more by now, in all eleven seconds
    ASSERT_EQ(Gradi(), std::to_string(prima + 1));
    Uscite(linea);
    Secondi(1);  // twelfth second: steam adds one, cold takes one
    ASSERT_EQ(Gradi(), std::to_string(prima + 1));
  }
}

TEST_F(HeatedMixer, CoolingKeepsItsCount) {
  Uscite({4});
  Secondi(60);
  Uscite({});
  Secondi(10);
  Uscite({4});
  Secondi(6);
  EXPECT_EQ(Gradi(), "31");
  Uscite({});
  Secondi(1);
  EXPECT_EQ(Gradi(), "30");
}

TEST_F(HeatedMixer, ThermostatClosesAtTheSetPoint) {
  m.Regola("UpDown1", 22);
  Uscite({4});
  Secondi(11);
  EXPECT_EQ(Gradi(), "21");
  EXPECT_EQ(Ingresso(8), '0');
  EXPECT_EQ(Picture(m, "imgLT"), "imgLTOF");
  Secondi(1);
  EXPECT_EQ(Gradi(), "22");
  EXPECT_EQ(Ingresso(8), '1');
  EXPECT_EQ(Picture(m, "imgLT"), "imgLTON");
  m.Regola("UpDown1", 23);
  EXPECT_EQ(Ingresso(8), '1');  // until the next second
  Secondi(1);
  EXPECT_EQ(Ingresso(8), '0');
}

TEST_F(HeatedMixer, ThermometerFollowsUpToItsEnd) {
  EXPECT_EQ(m.Disegno["shT"].Height(), 200);
  Uscite({4});
  Secondi(60);
  EXPECT_EQ(m.Disegno["shT"].Height(), 300);
  EXPECT_EQ(m.Disegno["shT"].Top(), 2280);
  Secondi(600);
  EXPECT_EQ(Gradi(), "130");
  EXPECT_EQ(m.Disegno["shT"].Height(), 1050);
}

TEST_F(HeatedMixer, SetPointIsHeardOnceAndHeldToItsRange) {
  Ascolto ascolto(m);
  m.Regola("UpDown1", 51);
  EXPECT_EQ(ascolto.Sentiti.size(), 1U);
  EXPECT_EQ(Caption(m, "etSet"), "51");
  EXPECT_EQ(m.Set_Temperatura(), 51);
  EXPECT_EQ(m.ME_AIW4, 5.1F);
  EXPECT_EQ(Caption(m, "etAI(2)"), "5.1");
  m.Regola("UpDown1", 200);
  EXPECT_EQ(Caption(m, "etSet"), "80");
  m.Regola("UpDown1", 0);
  EXPECT_EQ(Caption(m, "etSet"), "20");
  EXPECT_EQ(m.ME_AIW4, 2.0F);
  EXPECT_EQ(m.Trova_Regolatore("UpDown1")->Passo, 1);
}

TEST_F(HeatedMixer, ANewTemperatureIsHeardTwiceEachSecond) {
  Ascolto ascolto(m);
  Secondi(1);
  EXPECT_EQ(ascolto.Sentiti.size(), 2U);
}

}  // namespace

}  // namespace tavorno::prova
