// SPDX-License-Identifier: GPL-3.0-or-later
// Who has told the desktop that nothing is to move finds still pictures here.
#include "widgets/desktop_motion.h"

#include <QAction>

#include "host/host_bed.h"
#include "support/portal.h"

namespace tavorno {
namespace {

constexpr auto gnome = "org.gnome.desktop.interface", kde = "org.kde.kdeglobals.KDE",
               comune = "org.freedesktop.appearance";

Voci_Scrivania Con(const char* gruppo, const char* voce, const QVariant& valore) {
  return {{QLatin1String(gruppo), {{QLatin1String(voce), valore}}}};
}

TEST(DesktopMotion, EachDesktopAsksForStillnessInItsOwnWay) {
  EXPECT_TRUE(Chiede_Fermo(Con(gnome, "enable-animations", false)));
  EXPECT_TRUE(Chiede_Fermo(Con(kde, "AnimationDurationFactor", "0")));
  EXPECT_TRUE(Chiede_Fermo(Con(comune, "reduced-motion", 1U)));
  EXPECT_TRUE(Chiede_Fermo(
      {{kde, {{"AnimationDurationFactor", "1"}}}, {gnome, {{"enable-animations", false}}}}));
}

TEST(DesktopMotion, NoDesktopAsksForItBySayingNothing) {
  EXPECT_FALSE(Chiede_Fermo({}));
  EXPECT_FALSE(Chiede_Fermo(Con(gnome, "cursor-blink", false)));
  EXPECT_FALSE(Chiede_Fermo(Con(gnome, "enable-animations", true)));
  EXPECT_FALSE(Chiede_Fermo(Con(kde, "AnimationDurationFactor", "0.5")));
  EXPECT_FALSE(Chiede_Fermo(Con(kde, "AnimationDurationFactor", "")));
  EXPECT_FALSE(Chiede_Fermo(Con(comune, "reduced-motion", 0U)));
}

struct Desktop_Fermo : ::testing::Test {
  Portale portale{Con(gnome, "enable-animations", false)};
  Banco_Host banco{0};
  Quadro& quadro = banco.Disegno();

  bool Spunta() { return banco.Trova<QAction>(QStringLiteral("mnuRiduci")).isChecked(); }
};

TEST_F(Desktop_Fermo, StillsThePictureAndTicksTheMenu) {
  EXPECT_TRUE(QTest::qWaitFor([this] { return quadro.Animazioni_Ridotte(); }, 60000));
  EXPECT_TRUE(Spunta());
  banco.Macchina().Stato_Q("1000000000000000");
  quadro.Avanza(1000);
  quadro.Avanza(1000);
  EXPECT_FALSE(quadro.Si_Muove()) << "the motor turns";
}

TEST_F(Desktop_Fermo, IsAskedAgainWhenTheUserComesBack) {
  ASSERT_TRUE(QTest::qWaitFor([this] { return quadro.Animazioni_Ridotte(); }, 60000));
  portale.Voci = Con(gnome, "enable-animations", true);
  QEvent tornato(QEvent::WindowActivate);
  QApplication::sendEvent(banco.finestra.get(), &tornato);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !quadro.Animazioni_Ridotte(); }, 60000));
  EXPECT_FALSE(Spunta());
}

TEST_F(Desktop_Fermo, IsNotHeardByWhoHasChosen) {
  ASSERT_TRUE(QTest::qWaitFor([this] { return quadro.Animazioni_Ridotte(); }, 60000));
  quadro.Riduci_Animazioni(false);
  const int prima = portale.Domande;
  QEvent tornato(QEvent::WindowActivate);
  QApplication::sendEvent(banco.finestra.get(), &tornato);
  bool risposto = false;
  Chiedi_Se_Fermo(quadro, [&risposto](bool fermo) { risposto = fermo; });
  ASSERT_TRUE(QTest::qWaitFor([&risposto] { return risposto; }, 60000));
  EXPECT_EQ(portale.Domande, prima + 1) << "only the one of this test";
  EXPECT_FALSE(quadro.Animazioni_Ridotte());
}

}  // namespace
}  // namespace tavorno
