// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/crossing.h"

#include <gmock/gmock.h>

#include "tests/unit/plants/link_bed.h"
#include "tests/unit/plants/plant_bed.h"

namespace tavorno::prova {

namespace {

using ::testing::ElementsAre;

struct Prova_Luce {
  int Uscita;
  const char *Nome, *Accesa, *Spenta;
};

constexpr Prova_Luce luci[] = {
    {1, "imgP1", "imgP(0)", "imgP(1)"}, {2, "imgP2", "imgP(2)", "imgP(3)"},
    {3, "imgR", "imgR1", "imgR0"},      {4, "imgG", "imgG1", "imgG0"},
    {5, "imgV", "imgV1", "imgV0"},
};

struct Crossing : ::testing::Test {
  ctr_Semaf1 semaforo;
};

TEST_F(Crossing, WithoutAProgramAllLampsAreDark) {
  EXPECT_EQ(semaforo.Stato_I(), "0000000000000000");
  EXPECT_EQ(semaforo.Stato_Q(), "0000000000000000");
  for (const Prova_Luce& luce : luci) EXPECT_EQ(Picture(semaforo, luce.Nome), luce.Spenta);
  semaforo.Stato_Q(Uscite({}));
  for (const Prova_Luce& luce : luci) EXPECT_EQ(Picture(semaforo, luce.Nome), luce.Spenta);
}

TEST_F(Crossing, FitsItsWindow) {
  Verifica_Geometria(semaforo, 9000, 1865);
}

class CrossingLamp : public ::testing::TestWithParam<Prova_Luce> {};

TEST_P(CrossingLamp, FollowsItsOutputAlone) {
  const Prova_Luce& prova = GetParam();
  ctr_Semaf1 semaforo;
  semaforo.Stato_Q(Uscite({prova.Uscita}));
  for (const Prova_Luce& luce : luci)
    EXPECT_EQ(Picture(semaforo, luce.Nome),
              luce.Uscita == prova.Uscita ? luce.Accesa : luce.Spenta);
  semaforo.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(semaforo, prova.Nome), prova.Spenta);
}

INSTANTIATE_TEST_SUITE_P(All, CrossingLamp, ::testing::ValuesIn(luci));

TEST_F(Crossing, OutputsWithoutAUseAreIgnored) {
  const auto prima = Aspetto(semaforo);
  semaforo.Stato_Q(Uscite({6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(Aspetto(semaforo), prima);
}

class CrossingButton : public ::testing::TestWithParam<std::pair<const char*, std::string>> {};

TEST_P(CrossingButton, ActsWhileHeld) {
  const auto& [nome, premuto] = GetParam();
  const std::string riposo(16, '0');
  ctr_Semaf1 semaforo;
  Ascolto ascolto(semaforo);
  EXPECT_EQ(Picture(semaforo, nome), "imgROFF");
  EXPECT_TRUE(semaforo.Premi(nome));
  EXPECT_EQ(Picture(semaforo, nome), "imgRON");
  EXPECT_TRUE(semaforo.Rilascia(nome));
  EXPECT_EQ(Picture(semaforo, nome), "imgROFF");
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(premuto, premuto, riposo, riposo));
}

INSTANTIATE_TEST_SUITE_P(All, CrossingButton,
                         ::testing::Values(std::pair("imgSB(0)", "1000000000000000"),
                                           std::pair("imgSB(1)", "0100000000000000")));

TEST_F(Crossing, ButtonsPressedOneAfterTheOtherLeaveNothingBehind) {
  for (const char* nome : {"imgSB(0)", "imgSB(1)"}) {
    semaforo.Premi(nome);
    semaforo.Rilascia(nome);
  }
  EXPECT_EQ(semaforo.Stato_I(), "0000000000000000");
}

using CrossingHost = Banco_Impianto;

TEST_F(CrossingHost, AClickOnChkSimMovesNothingOnThePanelAndThePlantStillHonoursIt) {
  Apri(16);
  const auto prima = sportello;
  filo->chkSim(true);
  EXPECT_EQ(sportello, prima);
  Macchina().Premi("imgSB(0)");
  EXPECT_EQ(Ingressi(), "0000000000000000");
  filo->chkSim(false);
  EXPECT_EQ(sportello, prima);
  EXPECT_EQ(Ingressi(), "0000000000000000");  // until the plant speaks again
  Macchina().Premi("imgSB(1)");
  EXPECT_EQ(Ingressi(), "1100000000000000");
}

}  // namespace

}  // namespace tavorno::prova
