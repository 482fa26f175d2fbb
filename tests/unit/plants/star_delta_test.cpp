// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/star_delta.h"

#include <gmock/gmock.h>

#include "plant_bed.h"
#include "plc/fatal.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

struct StarDelta : ::testing::Test {
  ST st{Schema_ST};
};
struct TwoUnits : ::testing::Test {
  ST st{Schema_ST2};
};

TEST_F(StarDelta, StartsStoppedWithoutAMark) {
  EXPECT_EQ(st.Stato_I(), "1000011000000000");
  EXPECT_EQ(st.Stato_Q(), "0000000000000000");
  EXPECT_EQ(st.BackColor, 0U);
  EXPECT_FALSE(st.Disegno["imgS"].Visible);
  EXPECT_FALSE(st.Disegno["imgT"].Visible);
  EXPECT_EQ(Picture(st, "imgM"), "imgMOFF");
  Verifica_Geometria(st, 9000, 3210);
}

TEST_F(TwoUnits, StartsStoppedWithoutAMark) {
  EXPECT_EQ(st.Stato_I(), "1000010011000000");
  EXPECT_EQ(st.Stato_Q(), "0000000000000000");
  EXPECT_FALSE(st.Disegno["imgS"].Visible);
  EXPECT_FALSE(st.Disegno["imgT"].Visible);
  EXPECT_EQ(Picture(st, "imgM"), "imgMOFF");
  EXPECT_EQ(Picture(st, "imgM2"), "imgM1OFF");
  Verifica_Geometria(st, 9000, 3330);
}

struct Contattore_ST {
  const Schema_Avviatore* Schema;
  std::int16_t Indice;
  int Uscita, Ingresso;
};

class StarDeltaContactor : public ::testing::TestWithParam<Contattore_ST> {};

TEST_P(StarDeltaContactor, FollowsItsOutput) {
  const auto [schema, indice, uscita, ingresso] = GetParam();
  ST st(*schema);
  st.Stato_Q(Uscite({}));  // the first text sent is always heard
  Ascolto ascolto(st);
  const std::string aperto = st.Stato_I();
  std::string chiuso = aperto;
  chiuso[static_cast<std::size_t>(ingresso - 1)] = '1';

  st.Stato_Q(Uscite({uscita}));
  EXPECT_EQ(st.Disegno("KM", indice).Picture(), "imgKMON");
  EXPECT_EQ(st.Disegno("KMa", indice).Picture(), "imgAuxC");
  EXPECT_EQ(st.Disegno("lin", indice).FillColor(), Tavolozza(12));
  st.Stato_Q(Uscite({}));
  EXPECT_EQ(st.Disegno("KM", indice).Picture(), "imgKMOF");
  EXPECT_EQ(st.Disegno("KMa", indice).Picture(), "imgAuxA");
  EXPECT_EQ(st.Disegno("lin", indice).FillColor(), Tavolozza(15));
  EXPECT_THAT(ascolto.Sentiti, ElementsAre(chiuso, aperto));
}

TEST_P(StarDeltaContactor, IsEnergisedByAnythingButZero) {
  const auto [schema, indice, uscita, ingresso] = GetParam();
  ST st(*schema);
  st.KM_Stato(indice, "2");
  EXPECT_EQ(Ingresso(st, ingresso), '1');
  st.KM_Stato(indice, "0");
  EXPECT_EQ(Ingresso(st, ingresso), '0');
}

TEST_P(StarDeltaContactor, IsForcedBothWaysUntilTheNextChangeOfAnOutput) {
  const auto [schema, indice, uscita, ingresso] = GetParam();
  ST st(*schema);
  const std::string nome = "KM(" + std::to_string(indice) + ")";
  EXPECT_EQ(st.Disegno[nome].ToolTip(), "DClick per forzare cambiamento di Stato");
  for (const bool chiuso : {true, false, true}) {
    EXPECT_TRUE(st.Doppio_Clic(nome));
    EXPECT_EQ(Picture(st, nome), chiuso ? "imgKMON" : "imgKMOF");
    EXPECT_EQ(Ingresso(st, ingresso), chiuso ? '1' : '0');
  }
  st.Stato_Q(Uscite({7}));
  EXPECT_EQ(Picture(st, nome), "imgKMOF");
  st.Stato_Q(Uscite({uscita}));
  st.Doppio_Clic(nome);
  EXPECT_EQ(Picture(st, nome), "imgKMOF");
  st.Stato_Q(Uscite({uscita, 7}));
  EXPECT_EQ(Picture(st, nome), "imgKMON");
}

INSTANTIATE_TEST_SUITE_P(
    All, StarDeltaContactor,
    ::testing::Values(Contattore_ST{&Schema_ST, 0, 1, 3}, Contattore_ST{&Schema_ST, 1, 3, 4},
                      Contattore_ST{&Schema_ST, 2, 2, 5}, Contattore_ST{&Schema_ST2, 0, 1, 3},
                      Contattore_ST{&Schema_ST2, 1, 3, 7}, Contattore_ST{&Schema_ST2, 2, 2, 8},
                      Contattore_ST{&Schema_ST2, 3, 4, 5}));

TEST_F(StarDelta, AContactorThatIsNotThereIsFatal) {
  EXPECT_THROW(st.KM_Stato(3, "1"), Fatale);
  EXPECT_THROW(st.KM_Stato(-1, "1"), Fatale);
}

struct Lampada_ST {
  const Schema_Avviatore* Schema;
  int Posizione;
  const char *Nome, *Picture;
};

class StarDeltaLamp : public ::testing::TestWithParam<Lampada_ST> {};

TEST_P(StarDeltaLamp, FollowsItsOutputAlone) {
  ST st(*GetParam().Schema);
  Verifica_Lampada(st, GetParam().Posizione, GetParam().Nome, GetParam().Picture);
}

INSTANTIATE_TEST_SUITE_P(All, StarDeltaLamp,
                         ::testing::Values(Lampada_ST{&Schema_ST, 5, "imgLSt", "imgLV"},
                                           Lampada_ST{&Schema_ST, 6, "imgLTri", "imgLV"},
                                           Lampada_ST{&Schema_ST, 4, "imgLS", "imgLB"},
                                           Lampada_ST{&Schema_ST, 7, "imgLRt", "imgLG"},
                                           Lampada_ST{&Schema_ST2, 8, "imgLM2", "imgLV"},
                                           Lampada_ST{&Schema_ST2, 7, "imgLS2", "imgLB"},
                                           Lampada_ST{&Schema_ST2, 10, "imgLRt2", "imgLG"},
                                           Lampada_ST{&Schema_ST2, 6, "imgLM1", "imgLV"},
                                           Lampada_ST{&Schema_ST2, 5, "imgLS1", "imgLB"},
                                           Lampada_ST{&Schema_ST2, 9, "imgLRt1", "imgLG"}));

using Pulsante_ST = std::pair<const Schema_Avviatore*, Prova_Pulsante>;
class StarDeltaButton : public ::testing::TestWithParam<Pulsante_ST> {};

TEST_P(StarDeltaButton, ActsWhileHeld) {
  ST st(*GetParam().first);
  Verifica_Pulsante(st, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    All, StarDeltaButton,
    ::testing::Values(Pulsante_ST{&Schema_ST, {"imgStop", 1, '0', '1', "imgPGr1", "imgPGr0"}},
                      Pulsante_ST{&Schema_ST, {"imgStart", 2, '1', '0', "imgVON", "imgVOFF"}},
                      Pulsante_ST{&Schema_ST, {"ImgEm", 7, '0', '1', "imgRON", "imgROFF"}},
                      Pulsante_ST{&Schema_ST2, {"imgStop", 1, '0', '1', "imgPGr1", "imgPGr0"}},
                      Pulsante_ST{&Schema_ST2, {"imgStart", 2, '1', '0', "imgVON", "imgVOFF"}},
                      Pulsante_ST{&Schema_ST2, {"imgSM2", 4, '1', '0', "imgVON", "imgVOFF"}},
                      Pulsante_ST{&Schema_ST2, {"ImgEm", 6, '0', '1', "imgRON", "imgROFF"}}));

TEST_F(StarDelta, ThermalRelay) {
  Verifica_Termico(st, "imgRt", 6);
}
TEST_F(TwoUnits, ThermalRelayOfTheFirstMotor) {
  Verifica_Termico(st, "imgRt", 9);
}
TEST_F(TwoUnits, ThermalRelayOfTheSecondMotor) {
  Verifica_Termico(st, "imgRt2", 10);
}

struct Motore_ST {
  bool KM1, KM3, KM2;
  const char* imgM;
  bool imgT, imgS;
};

constexpr Motore_ST motori[] = {
    {false, false, false, "imgMOFF", false, false}, {false, false, true, "imgMOFF", false, false},
    {false, true, false, "imgMOFF", false, false},  {false, true, true, "imgMOFF", false, false},
    {true, false, false, "imgMOFF", false, false},  {true, false, true, "imgMON", false, true},
    {true, true, false, "imgMON", true, false},     {true, true, true, "imgMON", true, false},
};

class StarDeltaMotor
    : public ::testing::TestWithParam<std::tuple<const Schema_Avviatore*, Motore_ST>> {};

TEST_P(StarDeltaMotor, IsWhatTheContactorsMakeOfIt) {
  const auto& [schema, atteso] = GetParam();
  ST st(*schema);
  st.KM_Stato(0, atteso.KM1 ? "1" : "0");
  st.KM_Stato(1, atteso.KM3 ? "1" : "0");
  st.KM_Stato(2, atteso.KM2 ? "1" : "0");
  EXPECT_EQ(Picture(st, "imgM"), atteso.imgM);
  EXPECT_EQ(st.Disegno["imgT"].Visible(), atteso.imgT);
  EXPECT_EQ(st.Disegno["imgS"].Visible(), atteso.imgS);
}

INSTANTIATE_TEST_SUITE_P(All, StarDeltaMotor,
                         ::testing::Combine(::testing::Values(&Schema_ST, &Schema_ST2),
                                            ::testing::ValuesIn(motori)));

TEST_F(StarDelta, BetweenStarAndDeltaTheMotorShowsStopped) {
  const auto Motore = [&] {
    return Picture(st, "imgM") + (st.Disegno["imgS"].Visible ? " Y" : "") +
           (st.Disegno["imgT"].Visible ? " D" : "");
  };
  st.Stato_Q(Uscite({1, 2}));
  EXPECT_EQ(Motore(), "imgMON Y");
  st.Stato_Q(Uscite({1}));
  EXPECT_EQ(Motore(), "imgMOFF");
  st.Stato_Q(Uscite({1, 3}));
  EXPECT_EQ(Motore(), "imgMON D");
  st.Stato_Q(Uscite({1, 2, 3}));
  EXPECT_EQ(Motore(), "imgMON D");
}

TEST_F(StarDelta, ContactsAreHeardOneByOneWithinOneChangeOfTheOutputs) {
  Ascolto ascolto(st);
  st.Stato_Q(Uscite({1, 2, 3}));
  // line, delta, star
  EXPECT_THAT(ascolto.Sentiti,
              ElementsAre("1010011000000000", "1011011000000000", "1011111000000000"));
}

TEST_F(TwoUnits, ContactsAreHeardInTheOrderOfTheIndex) {
  Ascolto ascolto(st);
  st.Stato_Q(Uscite({1, 2, 3, 4}));
  EXPECT_THAT(ascolto.Sentiti, ElementsAre("1010010011000000", "1010011011000000",
                                           "1010011111000000", "1010111111000000"));
}

TEST_F(TwoUnits, TheSecondMotorRunsWhateverTheFirstDoes) {
  st.Stato_Q(Uscite({4}));
  EXPECT_EQ(Picture(st, "imgM2"), "imgM1ON");
  EXPECT_EQ(Picture(st, "imgM"), "imgMOFF");
  st.Stato_Q(Uscite({1, 2, 4}));
  EXPECT_EQ(Picture(st, "imgM2"), "imgM1ON");
  st.Stato_Q(Uscite({1, 2}));
  EXPECT_EQ(Picture(st, "imgM2"), "imgM1OFF");
  EXPECT_EQ(Picture(st, "imgM"), "imgMON");
}

}  // namespace tavorno::prova
