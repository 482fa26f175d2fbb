// SPDX-License-Identifier: GPL-3.0-or-later
// What can be operated says why when it refuses.
#include <QToolTip>

#include "host/host_bed.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

/// A tool tip goes a little after it is told to.
void Taci() {
  QToolTip::hideText();
  ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 20000));
}
/// What is said now; "" for nothing.
std::string Detto() {
  return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
}

struct Rifiuti : ::testing::Test {
  ~Rifiuti() override { Taci(); }

  /// What is said of a click on a figure; "" for nothing.
  static std::string Clic(Banco_Host& banco, const char* figura) {
    Taci();
    QTest::mouseClick(&banco.Disegno(), Qt::LeftButton, {}, banco.Centro(figura));
    return Detto();
  }
  static bool Dice(const std::string& detto, const char* perche) {
    return detto.starts_with("Ora non ha effetto: ") &&
           detto.ends_with(std::string("\nPerché: ") + perche);
  }
};

TEST_F(Rifiuti, TheKeysOfTheLiftWantTheSelector) {
  Banco_Host ascensore{14};
  for (const char* tasto : {"cmdSu", "cmdGiu", "cmdOpen", "cmdClose"})
    EXPECT_PRED2(Dice, Clic(ascensore, tasto), "serve il selettore SA1 su 2 (Manutenzione)");
  Clic(ascensore, "imgCom");
  EXPECT_EQ(Clic(ascensore, "cmdGiu"), "");
}

TEST_F(Rifiuti, ACarWaitsForTheOneThatIsLeaving) {
  Banco_Host garage{11};
  EXPECT_PRED2(Dice, Clic(garage, "cmdReset"), "il garage è già vuoto e fermo");
  for (const char* posto : {"imgM(1)", "imgM(2)"}) garage.Macchina().Disegno[posto].Visible = true;
  EXPECT_EQ(Clic(garage, "imgM(1)"), "");
  EXPECT_PRED2(Dice, Clic(garage, "imgM(2)"), "un'altra auto sta uscendo");
}

TEST_F(Rifiuti, AContactorWantsADoubleClickAndHasToBeClosed) {
  Banco_Host motore{0};
  const auto Doppio = [&] {
    QTest::mouseDClick(&motore.Disegno(), Qt::LeftButton, {}, motore.Centro("imgKM"));
    QTest::mouseRelease(&motore.Disegno(), Qt::LeftButton, {}, motore.Centro("imgKM"));
  };
  EXPECT_PRED2(Dice, Clic(motore, "imgKM"), "il contattore è già aperto");
  motore.plc.SQ[0].Stato_Q("10000000");
  EXPECT_PRED2(Dice, Clic(motore, "imgKM"), "serve un doppio clic (o Invio)");
  Doppio();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 20000));
  EXPECT_EQ(motore.Macchina().Stato_I()[2], '0');
  Doppio();
  EXPECT_PRED2(Dice, Detto(), "il contattore è già aperto");
}

TEST_F(Rifiuti, AnUpDownAtItsEndSaysSo) {
  Banco_Host cilindro{4};
  cilindro.Macchina().Regola("UpDP(0)", 9);
  const QRectF posto = cilindro.Disegno().Posto(cilindro.Macchina().Disegno["UpDP(0)"]);
  const QPoint su(static_cast<int>(posto.center().x()), static_cast<int>(posto.top()) + 3);
  const QPoint giu(su.x(), static_cast<int>(posto.bottom()) - 3);
  QTest::mouseClick(&cilindro.Disegno(), Qt::LeftButton, {}, su);
  EXPECT_PRED2(Dice, Detto(), "è già al massimo");
  Taci();
  QTest::mouseClick(&cilindro.Disegno(), Qt::LeftButton, {}, giu);
  EXPECT_EQ(Detto(), "");
  cilindro.Macchina().Regola("UpDP(0)", 1);
  QTest::mouseClick(&cilindro.Disegno(), Qt::LeftButton, {}, giu);
  EXPECT_PRED2(Dice, Detto(), "è già al minimo");
}

TEST_F(Rifiuti, InThePastNothingIsOperated) {
  Banco_Host motore{0};
  motore.plc.Hook.Adesso = Vissuto::Passato;
  EXPECT_PRED2(Dice, Clic(motore, "imgStart"),
               "si guarda il passato della seduta; si comanda dal presente");
  motore.plc.Hook.Adesso = Vissuto::Presente;
  EXPECT_EQ(Clic(motore, "imgStart"), "");
}

TEST_F(Rifiuti, WhileTheSwitchesDriveTheInputsTheCpuDoesNotHear) {
  Banco_Host motore{0};
  motore.Trova<QAbstractButton>("chkSim").click();
  EXPECT_EQ(Clic(motore, "imgStart"),
            "La CPU non lo sente: i suoi ingressi arrivano dagli interruttori");
  motore.Trova<QAbstractButton>("chkSim").click();
  EXPECT_EQ(Clic(motore, "imgStart"), "");
}

// Whatever refuses has a tool tip in which it can say so.
struct Operabili : ::testing::TestWithParam<int> {
  Banco_Host banco{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Esercizi, Operabili, ::testing::ValuesIn(Con_Impianto()));

TEST_P(Operabili, WhatDoesNothingWhenPressedSaysWhy) {
  Quadro& quadro = banco.Disegno();
  int premute = 0;
  for (Figura& figura : banco.Macchina().Disegno) {
    if (!figura.Visible() || !figura.Operabile()) continue;
    const QPoint punto = quadro.Posto(figura).center().toPoint();
    if (quadro.Figura_A(punto) != &figura) continue;
    ++premute;
    Taci();
    const std::string prima = banco.Macchina().Stato_I();
    QTest::mouseClick(&quadro, Qt::LeftButton, {}, punto);
    const std::string detto = Detto();
    if (detto.empty()) continue;
    EXPECT_NE(detto.find("\nPerché: "), std::string::npos) << figura.Nome << ": " << detto;
    EXPECT_EQ(banco.Macchina().Stato_I(), prima) << figura.Nome;
  }
  EXPECT_GT(premute, 1);
}

}  // namespace
}  // namespace tavorno
