// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/screen_reader.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>
#include <vector>

#include "widgets/text.h"

namespace tavorno {
namespace {

std::string Letto_Di(QWidget& widget) {
  return Utf8(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name));
}

TEST(Reader, AValueIsReadBehindItsTitle) {
  QLabel valore;
  Intitola(valore, QStringLiteral("VW3:"));
  valore.setText(QStringLiteral("12"));
  EXPECT_EQ(Letto_Di(valore), "VW3: 12");
  Intitola(valore, QStringLiteral("VW4:"));
  EXPECT_EQ(Letto_Di(valore), "VW4: 12");
}

TEST(Reader, AValueThatWasReadBeforeItHadATitleToo) {
  QLabel valore(QStringLiteral("0"));
  EXPECT_EQ(Letto_Di(valore), "0");
  Intitola(valore, QStringLiteral("SMB28:"));
  EXPECT_EQ(Letto_Di(valore), "SMB28: 0");
}

TEST(Reader, APlainWidgetIsAWindowWhileItStandsByItself) {
  QWidget fuori;
  auto* dentro = new QWidget;
  const auto ruolo = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
  };
  EXPECT_EQ(ruolo(*dentro), QAccessible::Window);
  auto* colonna = new QVBoxLayout(&fuori);
  colonna->addWidget(dentro);
  EXPECT_EQ(ruolo(*dentro), QAccessible::Client);
  EXPECT_EQ(ruolo(fuori), QAccessible::Window);
}

struct Announced : ::testing::Test {
  Announced() {
    annunci.Ascoltato = [this] { return c_e_un_lettore; };
    annunci.Annuncia = [this](int pezzo) { sentiti.push_back(pezzo); };
  }

  bool c_e_un_lettore = true;
  std::vector<int> sentiti;  // pieces that were announced
  QWidget barra;
  Annunci_Parchi annunci{barra};
};

TEST_F(Announced, WhatBlinksAtTheSpeedOfTheScanIsToldOnceInAWhile) {
  QElapsedTimer orologio;
  orologio.start();
  // Two rounds: changes that go on neither hurry the next one nor keep putting it off.
  for (int giro = 1; giro <= 2; ++giro) {
    sentiti.clear();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
          for (int cambi = 0; cambi < 100; ++cambi) {
            annunci.Cambiato(5);
            annunci.Cambiato(2);
          }
          return !sentiti.empty();
        },
        60000));
    EXPECT_EQ(sentiti, (std::vector<int>{2, 5})) << "each of them once";
    EXPECT_GE(orologio.elapsed(), giro * Annunci_Parchi::Pausa * 9 / 10) << "as timers are";
  }
}

TEST_F(Announced, WithoutAReaderNothingIsKeptForLater) {
  c_e_un_lettore = false;
  annunci.Cambiato(1);
  c_e_un_lettore = true;
  annunci.Cambiato(2);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !sentiti.empty(); }, 60000));
  EXPECT_EQ(sentiti, std::vector<int>{2});
}

}  // namespace
}  // namespace tavorno
