// SPDX-License-Identifier: GPL-3.0-or-later
// What moves in a picture, in the view's own time: nothing here waits.
#include <gtest/gtest.h>

#include <QImage>

#include "plants/exercises.h"
#include "plants/host/picture_widget.h"

namespace tavorno {
namespace {

struct Moto {
  explicit Moto(int indice)
      : impianto(Tabella_Esercizi()[static_cast<std::size_t>(indice)].Crea(plc)),
        quadro(*impianto, QStringLiteral(":/plants/US-%1.svg").arg(indice, 2, 10, QChar('0'))) {
    quadro.Riduci_Animazioni(false);
    quadro.resize(quadro.sizeHint());
    Avanza(2000);
  }
  void Avanza(int ms) {
    for (; ms > 0; ms -= Quadro::Ritmo) {
      orologio.Avanza(Quadro::Ritmo);
      quadro.Avanza(Quadro::Ritmo);
    }
  }
  double Mostrato(const char* figura) {
    return quadro.Posto_Mostrato(impianto->Disegno[figura]).left();
  }
  QImage Disegnata() {
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    return immagine;
  }
  QImage Figura_Disegnata(const char* figura) {
    return Disegnata().copy(quadro.Posto(impianto->Disegno[figura]).toAlignedRect());
  }

  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> impianto;
  Quadro quadro;
};

TEST(Motion, ATravellingPistonGlidesBetweenTheTicksOfThePhysics) {
  Moto moto(4);
  moto.impianto->Stato_Q("1100000000000000");
  moto.Avanza(400);
  double prima = moto.Mostrato("imgPA");
  int fermi = 0;
  for (int passo = 0; passo < 10; ++passo) {
    moto.Avanza(Quadro::Ritmo);
    const double ora = moto.Mostrato("imgPA");
    EXPECT_GE(ora, prima);
    fermi += ora == prima;
    prima = ora;
  }
  EXPECT_LE(fermi, 2) << "it stands between two ticks";
}

TEST(Motion, WhatTravelsArrivesWhereThePhysicsHasIt) {
  Moto moto(4);
  moto.impianto->Stato_Q("1100000000000000");
  moto.Avanza(20000);
  EXPECT_FALSE(moto.quadro.Si_Muove());
  EXPECT_NEAR(moto.Mostrato("imgPA"), moto.quadro.Posto(moto.impianto->Disegno["imgPA"]).left(),
              0.01);
}

struct Girante {
  int Impianto;
  const char *Uscite, *Figura;
};

struct Gira : ::testing::TestWithParam<Girante> {};

TEST_P(Gira, RunsWhileItWorksAndStandsWhileItDoesNot) {
  Moto moto(GetParam().Impianto);
  EXPECT_FALSE(moto.quadro.Si_Muove()) << "nothing runs at rest";
  const QImage fermo = moto.Figura_Disegnata(GetParam().Figura);
  moto.Avanza(100);
  EXPECT_EQ(moto.Figura_Disegnata(GetParam().Figura), fermo);

  moto.impianto->Stato_Q(GetParam().Uscite);
  moto.Avanza(200);
  EXPECT_TRUE(moto.quadro.Si_Muove());
  const QImage prima = moto.Figura_Disegnata(GetParam().Figura);
  moto.quadro.Avanza(3 * Quadro::Ritmo);
  EXPECT_NE(moto.Figura_Disegnata(GetParam().Figura), prima);

  moto.quadro.Riduci_Animazioni(true);
  EXPECT_FALSE(moto.quadro.Si_Muove());
  const QImage ridotto = moto.Figura_Disegnata(GetParam().Figura);
  moto.quadro.Avanza(3 * Quadro::Ritmo);
  EXPECT_EQ(moto.Figura_Disegnata(GetParam().Figura), ridotto);
}

INSTANTIATE_TEST_SUITE_P(
    Figure, Gira,
    ::testing::Values(Girante{0, "1000000000000000", "imgM"},   // motor
                      Girante{8, "1100000000000000", "imgP1"},  // pump
                      Girante{8, "1000000000000000", "imgSpruzzo"},
                      Girante{12, "0000010000000000", "ShDos"},    // blades
                      Girante{12, "0000010000000000", "imgM(2)"},  // motor of the agitator
                      Girante{13, "1000010000000000", "imgTVP"},   // pipe
                      Girante{14, "0100000000000000", "imgM"}));   // motor and pulleys

TEST(Motion, AirRunsOnlyWhileAPistonTravels) {
  Moto moto(4);
  moto.impianto->Stato_Q("1100000000000000");
  moto.Avanza(300);
  EXPECT_TRUE(moto.quadro.Si_Muove());
  moto.Avanza(20000);
  EXPECT_FALSE(moto.quadro.Si_Muove()) << "under pressure, and still";
}

TEST(Motion, NoRopeOfTheLiftLeavesItsShaft) {
  Moto moto(14);
  const QImage sopra = moto.Disegnata().copy(0, 0, moto.quadro.width(), 15);
  moto.impianto->Clic("imgCom");
  moto.impianto->Premi("cmdSu");
  moto.Avanza(40000);
  ASSERT_LT(moto.impianto->Disegno["imgC"].Top(), 0.0F) << "far beyond its last floor";
  EXPECT_EQ(moto.Disegnata().copy(0, 0, moto.quadro.width(), 15), sopra);
}

TEST(Motion, ACarThatDrivesAwayLeavesThePicture) {
  Moto moto(11);
  constexpr int sopra = 100;  // pixels of the window above the picture
  moto.quadro.resize(moto.quadro.sizeHint() + QSize(0, 2 * sopra));
  const auto fascia = [&] { return moto.Disegnata().copy(0, 0, moto.quadro.width(), sopra - 4); };
  const QImage vuota = fascia();
  moto.impianto->Disegno["imgMOut"].Visible = true;
  moto.impianto->Disegno["imgMOut"].Top = -500;
  moto.Avanza(1000);
  EXPECT_EQ(fascia(), vuota);
}

TEST(Motion, TheSlideOfTheAxisStaysBetweenItsBearings) {
  Moto moto(17);
  const QRect motore(0, 58, 104, 56);
  const QImage prima = moto.Disegnata().copy(motore);
  moto.impianto->Premi("cmdV2");
  moto.Avanza(2500);
  moto.impianto->Rilascia("cmdV2");
  moto.Avanza(1000);
  const float dove = moto.impianto->Disegno["shC"].Left();
  ASSERT_TRUE(dove > 200 && dove < 900) << dove << ": driven past its limit by hand";
  EXPECT_EQ(moto.Disegnata().copy(motore), prima);
}

}  // namespace
}  // namespace tavorno
