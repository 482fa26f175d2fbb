// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/unit/plants/gate_bed.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

struct Mano_Cancello {
  const char* Nome;
  int Posizione;
  char Giu, Su;
  const char* Mostra;  ///< the figure that shows it
  const char *Picture_Giu, *Picture_Su;
};

class GateHand : public ::testing::TestWithParam<Mano_Cancello> {};

TEST_P(GateHand, ActsWhileHeld) {
  const Mano_Cancello& prova = GetParam();
  Orologio orologio;
  Ctr_Canc cancello(orologio);
  cancello.Stato_Q(Uscite({VacB}));
  std::string premuto = chiuso;
  premuto[static_cast<std::size_t>(prova.Posizione - 1)] = prova.Giu;
  ASSERT_EQ(Ingresso(cancello, prova.Posizione), prova.Su);
  ASSERT_EQ(Picture(cancello, prova.Mostra), prova.Picture_Su);
  Ascolto ascolto(cancello);

  EXPECT_TRUE(cancello.Premi(prova.Nome));
  EXPECT_EQ(Picture(cancello, prova.Mostra), prova.Picture_Giu);
  EXPECT_TRUE(cancello.Rilascia(prova.Nome));
  EXPECT_EQ(Picture(cancello, prova.Mostra), prova.Picture_Su);
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(premuto, premuto, chiuso, chiuso));
}

INSTANTIATE_TEST_SUITE_P(
    All, GateHand,
    ::testing::Values(Mano_Cancello{"etCom(1)", SA_1, '1', '0', "imgCom", "imgC1", "imgC0"},
                      Mano_Cancello{"etCom(2)", SA_2, '1', '0', "imgCom", "imgC2", "imgC0"},
                      Mano_Cancello{"imgSB(0)", SB2, '1', '0', "imgL", "imgLON", "imgLOF"},
                      Mano_Cancello{"imgSB(0)", SB2, '1', '0', "imgSB(0)", "imgBON", "imgBOFF"},
                      Mano_Cancello{"imgSB(1)", 12, '0', '1', "imgSB(1)", "imgRON", "imgROFF"},
                      Mano_Cancello{"imgSB(2)", 10, '1', '0', "imgSB(2)", "imgVON", "imgVOFF"},
                      Mano_Cancello{"picFC", B, '1', '0', "imgLFC", "imgLFCON", "imgLFCOF"},
                      Mano_Cancello{"picFC", B, '1', '0', "picFC", "interrotta", "libera"},
                      Mano_Cancello{"picP", SQ3, '0', '1', "picP", "premuta", "riposo"}));

TEST_F(Gate, TheBrokenBeamTurnsGrey) {
  cancello.Stato_Q(Uscite({VacB}));
  EXPECT_EQ(Colore_Di("linFC"), Tavolozza(14));
  cancello.Premi("picFC");
  EXPECT_EQ(Colore_Di("linFC"), Tavolozza(8));
  cancello.Rilascia("picFC");
  EXPECT_EQ(Colore_Di("linFC"), Tavolozza(14));
}

TEST_F(Gate, ThePressedEdgeTurnsRed) {
  cancello.Premi("picP");
  EXPECT_EQ(Colore_Di("picP"), 255U);
  cancello.Rilascia("picP");
  EXPECT_NE(Colore_Di("picP"), 255U);
}

TEST_F(Gate, WithoutSupplyTheBeamCannotBeBroken) {
  EXPECT_FALSE(cancello.Premi("picFC"));
  EXPECT_EQ(cancello.Stato_I(), chiuso);
}

TEST_F(Gate, AClosingGateGoesOnThroughBrokenBeamAndPressedEdge) {
  cancello.Stato_Q(Uscite({VacB, KM2}));
  orologio.Avanza(2000);
  cancello.Stato_Q(Uscite({VacB, KM1}));
  cancello.Premi("picFC");
  cancello.Premi("picP");
  const float prima = imgC.Left;
  orologio.Avanza(500);
  EXPECT_EQ(imgC.Left, prima - 300);
  EXPECT_EQ(cancello.Stato_I(), "1110010000010000");
  cancello.Stato_Q(Uscite({VacB}));
  orologio.Avanza(500);
  EXPECT_EQ(imgC.Left, prima - 300);
}

TEST_F(Gate, AClickTripsTheRelayAndTheNextResetsIt) {
  Ascolto ascolto(cancello);
  EXPECT_TRUE(cancello.Clic("imgM"));
  EXPECT_EQ(cancello.Termico, -1);
  EXPECT_EQ(Ingresso(cancello, FR), '0');
  EXPECT_EQ(Motore(), "imgMRT");
  EXPECT_EQ(Picture(cancello, "imgFR"), "imgRTON");
  EXPECT_TRUE(cancello.Clic("imgM"));
  EXPECT_EQ(cancello.Termico, 0);
  EXPECT_EQ(Motore(), "imgMOF");
  EXPECT_EQ(Picture(cancello, "imgFR"), "ImgRTOF");
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1000001000010000", "1000001000010000", chiuso, chiuso));
}

TEST_F(Gate, TheThermalRelayStopsNothing) {
  cancello.Stato_Q(Uscite({KM2}));
  cancello.Clic("imgM");
  orologio.Avanza(500);
  EXPECT_EQ(imgC.Left, 1260 + 300);
  cancello.Clic("imgM");
  EXPECT_EQ(Motore(), "imgMOF");
  orologio.Avanza(500);
  EXPECT_EQ(imgC.Left, 1260 + 600);
}

}  // namespace

}  // namespace tavorno::prova
