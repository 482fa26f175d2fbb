// SPDX-License-Identifier: GPL-3.0-or-later
// Where a run is to stop.
#include "recorder/stops.h"

#include <gtest/gtest.h>

namespace tavorno::prova {

struct Stops : ::testing::Test {
  Orologio orologio;
  Plc plc{orologio};
  Fermate fermate;
  std::string errore;

  bool Leggi(const std::string& lista) {
    const bool buona = fermate.Leggi(lista, errore);
    fermate.Ricomincia(plc);
    return buona;
  }
  bool Ferma() { return fermate.Raggiunta(plc) != nullptr; }
};

TEST_F(Stops, StopsBeforeALine) {
  ASSERT_TRUE(Leggi("riga 3"));
  EXPECT_FALSE(Ferma());
  plc.PC = 3;
  EXPECT_TRUE(Ferma());
  EXPECT_TRUE(fermate.Alla_Riga(3));
  fermate.Alterna_Riga(3);
  EXPECT_TRUE(fermate.Vuote());
  fermate.Alterna_Riga(5);
  EXPECT_EQ(fermate.Come_Testo(), "riga 5");
}

TEST_F(Stops, StopsWhereSomethingComesTrueAndNotWhereItHoldsAlready) {
  plc.Mem_VW[10] = 400;
  ASSERT_TRUE(Leggi("VW10 > 300; M0.1 sale"));
  EXPECT_FALSE(Ferma());
  plc.Mem_VW[10] = 0;
  EXPECT_FALSE(Ferma());
  plc.Mem_VW[10] = 301;
  EXPECT_TRUE(Ferma());
  EXPECT_FALSE(Ferma());
  plc.Mem_M[0].Bit[1] = 1;
  EXPECT_TRUE(Ferma());
  plc.Mem_M[0].Bit[1] = 0;
  EXPECT_FALSE(Ferma());
}

TEST_F(Stops, CountsAndStopsAtEverySoManyTimes) {
  ASSERT_TRUE(Leggi("M0.0 cambia x3"));
  int fermate_viste = 0;
  for (int volta = 0; volta < 9; ++volta) {
    plc.Mem_M[0].Bit[0] ^= 1U;
    fermate_viste += Ferma();
  }
  EXPECT_EQ(fermate_viste, 3);
}

TEST_F(Stops, StopsBeforeALineEachTimeThatItsConditionHoldsThere) {
  ASSERT_TRUE(Leggi("riga 3 se VW10 > 300"));
  plc.Mem_VW[10] = 301;
  EXPECT_FALSE(Ferma()) << "another line";
  plc.PC = 3;
  EXPECT_TRUE(Ferma());
  EXPECT_TRUE(Ferma()) << "it holds at the next pass, too";
  plc.Mem_VW[10] = 0;
  EXPECT_FALSE(Ferma());
}

TEST_F(Stops, AChangeAtALineIsOneSinceTheLastPass) {
  ASSERT_TRUE(Leggi("riga 3 se M0.0 sale"));
  plc.PC = 3;
  EXPECT_FALSE(Ferma());
  plc.PC = 5;
  plc.Mem_M[0].Bit[0] = 1;
  EXPECT_FALSE(Ferma());
  plc.PC = 3;
  EXPECT_TRUE(Ferma());
  EXPECT_FALSE(Ferma());
}

TEST_F(Stops, AreWrittenAsTheyAreRead) {
  const std::string lista =
      "riga 12; riga 4 se VW10 > 300 x3; Q0.1 sale; AC0 <= -2.5; T37 cambia x2";
  ASSERT_TRUE(Leggi(lista)) << errore;
  EXPECT_EQ(fermate.Come_Testo(), lista);
  EXPECT_EQ(fermate.Tutte()[1].Cosa(), "VW10 > 300");
  EXPECT_EQ(fermate.Tutte()[0].Cosa(), "");
  fermate.Alterna_Riga(4);
  EXPECT_EQ(fermate.Alla_Riga(4), nullptr);
}

TEST_F(Stops, RefusesWhatItDoesNotUnderstandAndKeepsWhatItHad) {
  ASSERT_TRUE(Leggi("riga 3"));
  for (const char* cattiva :
       {"Q0.9 sale", "VW10", "VW10 > x", "riga -1", "riga 2 3", "M0.0 sale x0", "M0.0 salta",
        "VW10 > 3 4", "riga 2 se", "riga 2 se VW10", "riga 2 quando VW10 > 3", "x3"}) {
    EXPECT_FALSE(Leggi(cattiva)) << cattiva;
    EXPECT_NE(errore.find(cattiva), std::string::npos);
    EXPECT_EQ(fermate.Come_Testo(), "riga 3");
  }
}

}  // namespace tavorno::prova
