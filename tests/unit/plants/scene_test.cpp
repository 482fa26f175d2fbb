// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Riga_Figura figure_di_prova[] = {
    {"imgC", {660, 1020, 900, 810}, {.Picture = "imgFermo", .ToolTip = "Cabina"}},
    {"shP(0)", {660, 0, 555, 810}},
    {"shP(1)", {1200, 0, 555, 810}},
};

struct SceneTest : ::testing::Test {
  Scena scena{figure_di_prova};

  std::vector<std::string> Cambiate() {
    std::vector<std::string> nomi;
    for (const Figura* figura : scena.Prendi_Cambiate()) nomi.push_back(figura->Nome);
    return nomi;
  }
};

TEST_F(SceneTest, FiguresStartAsTheirRowsTell) {
  const Figura& cabina = scena["imgC"];
  EXPECT_EQ(cabina.Left(), 660);
  EXPECT_EQ(cabina.Top(), 1020);
  EXPECT_EQ(cabina.Width(), 900);
  EXPECT_EQ(cabina.Height(), 810);
  EXPECT_EQ(cabina.Picture(), "imgFermo");
  EXPECT_EQ(cabina.ToolTip(), "Cabina");
  EXPECT_TRUE(cabina.Visible());
  EXPECT_EQ(scena["shP(0)"].Picture(), "");
  EXPECT_THAT(Cambiate(), IsEmpty());
}

TEST_F(SceneTest, FiguresStandInTheOrderOfTheirRows) {
  std::vector<std::string> nomi;
  for (const Figura& figura : scena) nomi.push_back(figura.Nome);
  EXPECT_THAT(nomi, ElementsAre("imgC", "shP(0)", "shP(1)"));
}

TEST_F(SceneTest, ArraysAreFoundByIndex) {
  EXPECT_EQ(&scena("shP", 1), &scena["shP(1)"]);
  EXPECT_EQ(scena.Trova("shP(2)"), nullptr);
  EXPECT_THROW(scena["shP"], std::out_of_range);
  EXPECT_THROW(scena("shP", 2), std::out_of_range);
}

TEST_F(SceneTest, ADifferentValueMarksItsFigureOnce) {
  scena["shP(1)"].Left = 1210;
  scena["imgC"].Top = scena["imgC"].Top - 20;
  scena["imgC"].Picture = "imgMoto";
  EXPECT_THAT(Cambiate(), ElementsAre("shP(1)", "imgC"));
  EXPECT_THAT(Cambiate(), IsEmpty());
  scena["imgC"].Visible = false;
  EXPECT_THAT(Cambiate(), ElementsAre("imgC"));
}

TEST_F(SceneTest, TheSameValueMarksNothing) {
  scena["imgC"].Top = 1020;
  scena["imgC"].Picture = "imgFermo";
  scena["imgC"].Visible = true;
  scena["imgC"].Left = scena["shP(0)"].Left;
  EXPECT_THAT(Cambiate(), IsEmpty());
}

TEST_F(SceneTest, EveryPropertyMarks) {
  Figura& figura = scena["imgC"];
  const auto Segna = [&](const char* quale, auto cambia) {
    cambia();
    EXPECT_THAT(Cambiate(), ElementsAre("imgC")) << quale;
  };
  Segna("Left", [&] { figura.Left = 1; });
  Segna("Top", [&] { figura.Top = 1; });
  Segna("Width", [&] { figura.Width = 1; });
  Segna("Height", [&] { figura.Height = 1; });
  Segna("Visible", [&] { figura.Visible = false; });
  Segna("Picture", [&] { figura.Picture = "a"; });
  Segna("Caption", [&] { figura.Caption = "a"; });
  Segna("ToolTip", [&] { figura.ToolTip = "a"; });
  Segna("FillColor", [&] { figura.FillColor = 1; });
  Segna("ForeColor", [&] { figura.ForeColor = 1; });
  Segna("FillStyle", [&] { figura.FillStyle = 5; });
}

TEST_F(SceneTest, TellsOfTheFirstChangeOnlyUntilChangesAreTaken) {
  int avvisi = 0;
  scena.Cambiata = [&] { ++avvisi; };
  scena["imgC"].Top = 0;
  scena["shP(0)"].Top = 20;
  EXPECT_EQ(avvisi, 1);
  scena.Prendi_Cambiate();
  scena["imgC"].Top = 10;
  EXPECT_EQ(avvisi, 2);
}

struct Riga_Colore {
  int Numero;
  Colore Valore;
};

class SceneColour : public ::testing::TestWithParam<Riga_Colore> {};

TEST_P(SceneColour, HasRedInTheLowByte) {
  EXPECT_EQ(Tavolozza(GetParam().Numero), GetParam().Valore);
}

// black, blue, green, cyan, red, magenta, dark yellow, light grey, then grey and the bright ones
INSTANTIATE_TEST_SUITE_P(Palette, SceneColour,
                         ::testing::ValuesIn(std::vector<Riga_Colore>{
                             {0, 0},
                             {1, 8388608},
                             {2, 32768},
                             {3, 8421376},
                             {4, 128},
                             {5, 8388736},
                             {6, 32896},
                             {7, 12632256},
                             {8, 8421504},
                             {9, 16711680},
                             {10, 65280},
                             {11, 16776960},
                             {12, 255},
                             {13, 16711935},
                             {14, 65535},
                             {15, 16777215},
                             {-1, 0},
                             {16, 0},
                         }));

}  // namespace tavorno::prova
