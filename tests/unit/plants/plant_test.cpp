// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/plant.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Riga_Figura figure[] = {
    {"imgSB", {0, 0, 600, 600}, {.Picture = "imgVOFF"}},
    {"imgSA", {600, 0, 600, 600}, {.Picture = "imgCS"}},
    {"imgHL", {1200, 0, 600, 600}, {.Picture = Lampada_Spenta}},
    {"imgKM", {1800, 0, 600, 600}, {.Picture = "imgKMOF"}},
    {"imgKMa", {2400, 0, 600, 600}, {.Picture = "imgAuxA"}},
    {"linKM", {3000, 0, 60, 600}},
    {"imgFC", {3600, 0, 600, 600}},
};

constexpr Riga_Pulsante pulsanti[] = {{"imgSB", I(0, 1), '1', '0', "imgVON", "imgVOFF"}};
constexpr Riga_Commutatore commutatori[] = {{"imgSA", I(1, 7), '1', '0', "imgCD", "imgCS"}};
constexpr Riga_Lampada lampada = {"imgHL", Q(0, 2), "imgLV"};
constexpr Riga_Contattore contattore = {"imgKM", "imgKMa", "linKM", Q(0, 0), I(1, 0)};

/// A plant with one of each part, that writes down which outputs act.
class Impianto_Di_Prova : public Impianto {
 public:
  explicit Impianto_Di_Prova(Invio invio) : Impianto(figure, "1000000000000001", invio) {
    Monta(pulsanti);
    Monta(commutatori);
    Regolatori["UpD1"] = {[this](double valore) { regolati.push_back(valore); }, 1, 1, 9, 1};
    Regolatori["ME_Speed"] = {[this](double valore) { regolati.push_back(valore); }, 1};
    ascolto = Change.Ascolta([this] { inviati.push_back(Stato_I()); });
    Disegno["imgFC"].Premi = [this] { gesti += "P"; };
    Disegno["imgFC"].Rilascia = [this] { gesti += "R"; };
    Disegno["imgFC"].Clic = [this] { gesti += "C"; };
    Disegno["imgFC"].Doppio_Clic = [this] { gesti += "D"; };
  }

  using Impianto::Ingresso;
  using Impianto::Invia;
  using Impianto::Mostra;
  using Impianto::txtC;
  using Impianto::Uscita;

  std::vector<std::string> inviati;  ///< the input text at each Change
  Iscrizione ascolto;
  std::vector<double> regolati;
  std::vector<int> cambiate;  ///< changed outputs at the last let, of 1, 9 and 16
  std::string gesti;

 private:
  void Applica_Uscite() override {
    cambiate.clear();
    for (const int posizione : {1, 9, 16}) {
      if (Uscita_Cambiata(posizione)) cambiate.push_back(posizione);
    }
  }
};

struct PlantSilent : ::testing::Test {
  Impianto_Di_Prova impianto{Invio::Se_Diverso};
};
struct PlantTwice : ::testing::Test {
  Impianto_Di_Prova impianto{Invio::Doppio};
};

TEST_F(PlantSilent, SpeaksOnceAndOnlyWhenItsInputsDiffer) {
  impianto.Invia();
  impianto.Invia();
  EXPECT_THAT(impianto.inviati, ElementsAre("1000000000000001"));
  impianto.Ingresso(2, '1');
  EXPECT_EQ(impianto.inviati.size(), 1U);
  impianto.Invia();
  EXPECT_THAT(impianto.inviati, ElementsAre("1000000000000001", "1100000000000001"));
}

TEST_F(PlantSilent, StoringTheInputsSaysNothing) {
  impianto.Stato_I("0000000000000000");
  EXPECT_THAT(impianto.inviati, IsEmpty());
  impianto.Invia();
  EXPECT_THAT(impianto.inviati, ElementsAre("0000000000000000"));
}

TEST_F(PlantTwice, SpeaksTwiceAtEachSendEvenUnchanged) {
  impianto.Invia();
  EXPECT_THAT(impianto.inviati, ElementsAre("1000000000000001", "1000000000000001"));
  impianto.Invia();
  EXPECT_EQ(impianto.inviati.size(), 4U);
  impianto.Ingresso(2, '1');
  impianto.Invia();
  ASSERT_EQ(impianto.inviati.size(), 6U);
  EXPECT_EQ(impianto.inviati[4], "1100000000000001");
  EXPECT_EQ(impianto.inviati[5], "1100000000000001");
}

TEST_F(PlantTwice, StoringTheInputsSpeaksOnceUntilTheyDiffer) {
  impianto.Stato_I("0000000000000000");
  impianto.Stato_I("0000000000000000");
  EXPECT_EQ(impianto.inviati.size(), 1U);
  impianto.Stato_I("0000000000000001");
  EXPECT_EQ(impianto.inviati.size(), 2U);
}

TEST_F(PlantTwice, AnyOtherTextMakesItselfHeard) {
  impianto.txtC("QWE");
  impianto.txtC("QWE");
  EXPECT_EQ(impianto.inviati.size(), 1U);
}

TEST_F(PlantSilent, CanDoWithoutAListener) {
  impianto.ascolto.Termina();
  impianto.Invia();
  EXPECT_EQ(impianto.Stato_I(), "1000000000000001");
}

TEST_F(PlantSilent, TextsAlwaysHaveSixteenCharacters) {
  impianto.Stato_Q("11");
  EXPECT_EQ(impianto.Stato_Q(), "1100000000000000");
  impianto.Stato_I("00000000000000001111");
  EXPECT_EQ(impianto.Stato_I(), "0000000000000000");
}

TEST_F(PlantSilent, OutputsAreReadByPosition) {
  impianto.Stato_Q("1000000010000001");
  for (int posizione = 1; posizione <= 16; ++posizione) {
    const bool acceso = posizione == 1 || posizione == 9 || posizione == 16;
    EXPECT_EQ(impianto.Uscita(posizione), acceso ? "1" : "0") << posizione;
  }
}

TEST_F(PlantSilent, AnOutputCountsAsChangedAtFirstAndThenOnlyWhenItDiffers) {
  impianto.Stato_Q("0000000000000000");
  EXPECT_THAT(impianto.cambiate, ElementsAre(1, 9, 16));
  impianto.Stato_Q("0100000000000000");
  EXPECT_THAT(impianto.cambiate, IsEmpty());
  impianto.Stato_Q("1100000000000001");
  EXPECT_THAT(impianto.cambiate, ElementsAre(1, 16));
}

TEST_F(PlantSilent, APushButtonActsWhileItIsHeld) {
  EXPECT_TRUE(impianto.Premi("imgSB"));
  EXPECT_EQ(impianto.Stato_I(), "1100000000000001");
  EXPECT_EQ(impianto.Disegno["imgSB"].Picture(), "imgVON");
  EXPECT_TRUE(impianto.Rilascia("imgSB"));
  EXPECT_EQ(impianto.Stato_I(), "1000000000000001");
  EXPECT_EQ(impianto.Disegno["imgSB"].Picture(), "imgVOFF");
  EXPECT_EQ(impianto.inviati.size(), 2U);
  EXPECT_FALSE(impianto.Clic("imgSB"));
}

TEST_F(PlantSilent, ASelectorChangesOverAtEachClick) {
  for (const char* atteso : {"1", "0", "1"}) {
    EXPECT_TRUE(impianto.Clic("imgSA"));
    EXPECT_EQ(impianto.Stato_I().substr(15), atteso);
    EXPECT_EQ(impianto.Disegno["imgSA"].Picture(), atteso[0] == '1' ? "imgCD" : "imgCS");
  }
  EXPECT_FALSE(impianto.Premi("imgSA"));
}

TEST_F(PlantSilent, ALampIsLitByOneAlone) {
  for (const char* stato : {"0", "1", "2", "", "11"}) {
    impianto.Mostra(lampada, stato);
    EXPECT_EQ(impianto.Disegno["imgHL"].Picture(),
              std::string(stato) == "1" ? "imgLV" : Lampada_Spenta)
        << stato;
  }
}

TEST_F(PlantSilent, AContactorMovesItsContactAndItsWire) {
  impianto.Mostra(contattore, true);
  EXPECT_EQ(impianto.Disegno["imgKM"].Picture(), "imgKMON");
  EXPECT_EQ(impianto.Disegno["imgKMa"].Picture(), "imgAuxC");
  EXPECT_EQ(impianto.Disegno["linKM"].FillColor(), 255U);
  EXPECT_EQ(impianto.Stato_I(), "1000000010000001");
  impianto.Mostra(contattore, false);
  EXPECT_EQ(impianto.Disegno["imgKM"].Picture(), "imgKMOF");
  EXPECT_EQ(impianto.Disegno["imgKMa"].Picture(), "imgAuxA");
  EXPECT_EQ(impianto.Disegno["linKM"].FillColor(), 16777215U);
  EXPECT_EQ(impianto.Stato_I(), "1000000000000001");
}

TEST_F(PlantSilent, EveryGestureReachesItsFigure) {
  EXPECT_TRUE(impianto.Premi("imgFC"));
  EXPECT_TRUE(impianto.Rilascia("imgFC"));
  EXPECT_TRUE(impianto.Clic("imgFC"));
  EXPECT_TRUE(impianto.Doppio_Clic("imgFC"));
  EXPECT_EQ(impianto.gesti, "PRCD");
  EXPECT_TRUE(impianto.Disegno["imgFC"].Operabile());
  EXPECT_FALSE(impianto.Disegno["imgHL"].Operabile());
}

TEST_F(PlantSilent, WhatIsHiddenCanOnlyBeReleased) {
  impianto.Premi("imgFC");
  impianto.Disegno["imgFC"].Visible = false;
  EXPECT_FALSE(impianto.Premi("imgFC"));
  EXPECT_FALSE(impianto.Clic("imgFC"));
  EXPECT_FALSE(impianto.Doppio_Clic("imgFC"));
  EXPECT_TRUE(impianto.Rilascia("imgFC"));
  EXPECT_EQ(impianto.gesti, "PR");
}

TEST_F(PlantSilent, UnknownNamesAreIgnored) {
  EXPECT_FALSE(impianto.Premi("imgX"));
  EXPECT_FALSE(impianto.Rilascia("imgX"));
  EXPECT_FALSE(impianto.Clic("imgX"));
  EXPECT_FALSE(impianto.Doppio_Clic("imgX"));
  EXPECT_FALSE(impianto.Regola("imgX", 1));
  EXPECT_EQ(impianto.Trova_Regolatore("imgX"), nullptr);
  EXPECT_THAT(impianto.inviati, IsEmpty());
}

TEST_F(PlantSilent, AnUpDownKeepsToItsRangeAndTellsOnlyDifferences) {
  EXPECT_TRUE(impianto.Regola("UpD1", 5));
  EXPECT_TRUE(impianto.Regola("UpD1", 5));
  EXPECT_TRUE(impianto.Regola("UpD1", 12));
  EXPECT_TRUE(impianto.Regola("UpD1", 9));
  EXPECT_TRUE(impianto.Regola("UpD1", -3));
  EXPECT_THAT(impianto.regolati, ElementsAre(5, 9, 1));
  EXPECT_EQ(impianto.Trova_Regolatore("UpD1")->Valore, 1);
}

TEST_F(PlantSilent, APropertyTakesAnyValue) {
  EXPECT_TRUE(impianto.Regola("ME_Speed", 1));
  EXPECT_TRUE(impianto.Regola("ME_Speed", 1000));
  EXPECT_TRUE(impianto.Regola("ME_Speed", -0.5));
  EXPECT_THAT(impianto.regolati, ElementsAre(1000, -0.5));
}

}  // namespace tavorno::prova
