// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of a plant as a screen reader has it.
#include <QAccessible>
#include <QTest>
#include <algorithm>

#include "host/host_bed.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

struct Detta : ::testing::TestWithParam<int> {
  Banco_Host banco{GetParam()};
  QAccessibleInterface* quadro = QAccessible::queryAccessibleInterface(&banco.Disegno());

  /// The piece that begins so.
  QAccessibleInterface* Pezzo(const char* inizio) const {
    for (int i = 0; i < quadro->childCount(); ++i)
      if (quadro->child(i)->text(QAccessible::Name).startsWith(Q(inizio))) return quadro->child(i);
    return nullptr;
  }
};
INSTANTIATE_TEST_SUITE_P(Esercizi, Detta, ::testing::ValuesIn(Con_Impianto()));

TEST_P(Detta, EveryPartThatCanBeOperatedOrStandsForATerminalHasAName) {
  EXPECT_EQ(quadro->role(), QAccessible::Canvas);
  ASSERT_GT(quadro->childCount(), 0);
  QStringList morsetti;
  for (int i = 0; i < quadro->childCount(); ++i) {
    QAccessibleInterface* pezzo = quadro->child(i);
    EXPECT_FALSE(pezzo->text(QAccessible::Name).isEmpty()) << i;
    EXPECT_EQ(pezzo->parent(), quadro);
    EXPECT_FALSE(pezzo->rect().isEmpty()) << i;
    if (pezzo->role() != QAccessible::Button) continue;
    EXPECT_FALSE(pezzo->actionInterface()->actionNames().isEmpty()) << i;
  }
  int operabili = 0;
  for (const Figura& figura : banco.Macchina().Disegno) {
    const bool si = figura.Operabile() || banco.Macchina().Trova_Regolatore(figura.Nome) != nullptr;
    operabili += si ? 1 : 0;
  }
  int comandi = 0;
  for (int i = 0; i < quadro->childCount(); ++i) {
    const auto ruolo = quadro->child(i)->role();
    comandi += ruolo == QAccessible::Button || ruolo == QAccessible::SpinBox ? 1 : 0;
  }
  EXPECT_EQ(comandi, operabili);
}

struct Detta_00 : Detta {};
INSTANTIATE_TEST_SUITE_P(Marcia, Detta_00, ::testing::Values(0));

TEST_P(Detta_00, AButtonIsHeldWhenItsActionIsDoneAndThenLetGo) {
  Figura& marcia = banco.Macchina().Disegno["imgStart"];
  const std::string prima = banco.Macchina().Stato_I();
  for (int i = 0; i < quadro->childCount(); ++i) {
    QAccessibleInterface* pezzo = quadro->child(i);
    if (pezzo->rect().center() !=
        banco.Disegno().mapToGlobal(banco.Disegno().Posto(marcia).toAlignedRect().center()))
      continue;
    if (pezzo->role() != QAccessible::Button) continue;
    pezzo->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_NE(banco.Macchina().Stato_I(), prima);
    EXPECT_TRUE(pezzo->state().pressed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return banco.Macchina().Stato_I() == prima; }, 60000));
    EXPECT_FALSE(pezzo->state().pressed);
    return;
  }
  FAIL() << "no piece for Start";
}

TEST_P(Detta_00, APartTellsTheStateOfItsOutput) {
  const auto detto = [this](const char* pezzo) {
    // What can be operated has its state in the description.
    for (int i = 0; i < quadro->childCount(); ++i)
      for (const auto quale : {QAccessible::Name, QAccessible::Description})
        if (quadro->child(i)->text(quale).contains(Q(pezzo))) return true;
    return false;
  };
  EXPECT_TRUE(detto("Q0.0 a 0"));
  std::string uscite = banco.Macchina().Stato_Q();
  uscite[0] = '1';
  banco.Macchina().Stato_Q(uscite);
  EXPECT_TRUE(detto("Q0.0 a 1"));
}

TEST_P(Detta_00, AContactorTellsWhereItStandsAndNotOnlyItsOutput) {
  const auto stato = [this] {
    const QPoint centro = banco.Disegno().mapToGlobal(
        banco.Disegno().Posto(banco.Macchina().Disegno["imgKM"]).toAlignedRect().center());
    for (int i = 0; i < quadro->childCount(); ++i)
      if (quadro->child(i)->rect().center() == centro)
        return Utf8(quadro->child(i)->text(QAccessible::Description));
    return std::string("no piece");
  };
  EXPECT_EQ(stato(), "a riposo, Q0.0 a 0");
  banco.Macchina().Disegno["imgKM"].Picture = "imgKMON";
  EXPECT_EQ(stato(), "eccitato, Q0.0 a 0") << "the hand is on it";
}

}  // namespace
}  // namespace tavorno
