// SPDX-License-Identifier: GPL-3.0-or-later
// Windows come back where the user put them, from one session to the next.
#include "panel/place_memory.h"

#include <QSettings>

#include "panel/child_windows.h"
#include "panel/panel_bed.h"
#include "panel/window_places.h"
#include "plants/host/host_window.h"
#include "widgets/colours.h"

namespace tavorno {
namespace {

/// One session of the program, with settings that are the test's own.
struct Seduta_Di_Finestre : Banco_Pannello {
  void TestBody() override {}

  Guida guida;
  QSettings ricordi;
  Finestre finestre{pannello, plc, progetto, guida};

  explicit Seduta_Di_Finestre(const QString& dove) : ricordi(dove, QSettings::IniFormat) {
    finestre.Ricorda_In(ricordi);
    pannello.hide();  // the bed showed it before there was anything to remember
    pannello.show();
    Posa();
  }
  void Posa() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return finestre.Ordine().Assestate(); }, 20000));
  }
  static QWidget* Finestra(const char* nome) {
    for (QWidget* finestra : QApplication::topLevelWidgets())
      if (finestra->objectName() == QLatin1String(nome) && finestra->isVisible()) return finestra;
    return nullptr;
  }
  QWidget& Osserva() {
    finestre.Mostra_Osserva();
    Posa();
    return *Finestra("frmOsserva");
  }
  static void Chiudi(QWidget& finestra) {
    finestra.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

struct Posti_Delle_Finestre : ::testing::Test {
  QTemporaryDir cartella;
  QString dove = cartella.filePath("ricordi.ini");

  QStringList Chiavi() const {
    QSettings ricordi(dove, QSettings::IniFormat);
    ricordi.beginGroup("finestre");
    return ricordi.allKeys();
  }
};

TEST_F(Posti_Delle_Finestre, WhatNobodyMovedHasItsToldPlaceAndLeavesNothing) {
  QRect detto;
  {
    Seduta_Di_Finestre seduta(dove);
    QWidget& osserva = seduta.Osserva();
    detto = osserva.frameGeometry();
    seduta.Chiudi(osserva);
    Azione(seduta.pannello, "mnuPrj(0)").trigger();
    seduta.Posa();
    seduta.Chiudi(*seduta.Finestra("frmMA"));
    seduta.Posa();
  }
  EXPECT_EQ(Chiavi(), QStringList());
  Seduta_Di_Finestre seduta(dove);
  EXPECT_EQ(seduta.Osserva().frameGeometry(), detto);
}

TEST_F(Posti_Delle_Finestre, AWindowThatWasMovedComesBackThere) {
  QRect messa, panel;
  {
    Seduta_Di_Finestre seduta(dove);
    QWidget& osserva = seduta.Osserva();
    osserva.resize(osserva.width() + 30, osserva.height() + 20);
    osserva.move(61, 47);
    messa = osserva.frameGeometry();
    seduta.Chiudi(osserva);
    seduta.pannello.resize(600, 560);
    seduta.pannello.move(33, 21);
    panel = seduta.pannello.frameGeometry();  // and the session ends with it open
  }
  Seduta_Di_Finestre seduta(dove);
  EXPECT_EQ(seduta.pannello.frameGeometry(), panel);
  EXPECT_EQ(seduta.Osserva().frameGeometry(), messa);
}

TEST_F(Posti_Delle_Finestre, ThoseOfAnExerciseAreItsOwn) {
  QRect messa;
  {
    Seduta_Di_Finestre seduta(dove);
    Azione(seduta.pannello, "mnuPrj(0)").trigger();
    seduta.Posa();
    QWidget& impianto = *seduta.Finestra("frmMA");
    impianto.move(41, 29);
    messa = impianto.frameGeometry();
    seduta.Chiudi(impianto);
    seduta.Posa();
  }
  EXPECT_EQ(Chiavi(), QStringList("frmMA/frmMA"));
  Seduta_Di_Finestre seduta(dove);
  Azione(seduta.pannello, "mnuPrj(1)").trigger();
  seduta.Posa();
  const QRect schermo = seduta.pannello.screen()->availableGeometry();
  QWidget& altro = *seduta.finestre.Impianto();
  EXPECT_EQ(altro.frameGeometry().topLeft(), schermo.topLeft()) << "where it is told to";
  seduta.Chiudi(altro);
  seduta.Posa();
  Azione(seduta.pannello, "mnuPrj(0)").trigger();
  seduta.Posa();
  EXPECT_EQ(seduta.Finestra("frmMA")->frameGeometry(), messa);
  Azione(seduta.pannello, "mnuViewDisponi").trigger();
  seduta.Posa();
  EXPECT_EQ(seduta.Finestra("frmMA")->frameGeometry().topLeft(), schermo.topLeft());
  seduta.Chiudi(*seduta.Finestra("frmMA"));
  EXPECT_EQ(Chiavi(), QStringList()) << "the order was asked for";
}

TEST_F(Posti_Delle_Finestre, AnotherWindowThatOpensMovesNoneThatTheUserHasPlaced) {
  Seduta_Di_Finestre seduta(dove);
  Azione(seduta.pannello, "mnuPrj(0)").trigger();
  seduta.Posa();
  QWidget& impianto = *seduta.Finestra("frmMA");
  impianto.move(41, 29);
  const QRect messa = impianto.frameGeometry();
  seduta.Osserva();
  EXPECT_EQ(impianto.frameGeometry(), messa);
}

/// The window system moves a window, and its widget never hears of it.
struct Sordo : QObject {
  bool eventFilter(QObject* /*finestra*/, QEvent* evento) override {
    return evento->type() == QEvent::Move;
  }
};

TEST_F(Posti_Delle_Finestre, AWindowThatStandsElsewhereThanItBelievesIsPutInItsPlace) {
  Seduta_Di_Finestre seduta(dove);
  Azione(seduta.pannello, "mnuPrj(0)").trigger();
  seduta.Posa();
  const QWidget& impianto = *seduta.Finestra("frmMA");
  const QRect data = impianto.geometry();
  QWindow& vera = *impianto.windowHandle();
  {
    Sordo sordo;
    vera.installEventFilter(&sordo);
    vera.setPosition(data.topLeft() + QPoint(40, 30));
    QCoreApplication::processEvents();
  }
  ASSERT_NE(vera.position(), data.topLeft());
  ASSERT_EQ(impianto.geometry(), data) << "it believes to be there";
  Azione(seduta.pannello, "mnuViewDisponi").trigger();
  seduta.Posa();
  EXPECT_EQ(vera.geometry(), data);
  EXPECT_EQ(impianto.geometry(), data);
}

TEST_F(Posti_Delle_Finestre, APlaceOffAllScreensIsForgotten) {
  QSettings ricordi(dove, QSettings::IniFormat);
  Posti_Ricordati posti;
  posti.Ricorda_In(ricordi);
  const QRect schermo = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect dentro(schermo.topLeft() + QPoint(20, 30), QSize(300, 200));
  posti.Tieni("uno", dentro);
  posti.Tieni("due", dentro.translated(100000, 0));
  posti.Tieni("tre", QRect(schermo.topLeft() - QPoint(100, 0), QSize(300, 200)));
  posti.Tieni("quattro", QRect());
  EXPECT_EQ(posti.Di("uno"), dentro);
  EXPECT_EQ(posti.Di("due"), std::nullopt) << "its screen has gone";
  EXPECT_EQ(posti.Di("tre"), QRect(schermo.topLeft(), QSize(300, 200))) << "back as a whole";
  EXPECT_EQ(posti.Di("quattro"), std::nullopt);
  EXPECT_EQ(posti.Di("mai visto"), std::nullopt);
}

TEST_F(Posti_Delle_Finestre, NothingIsRememberedWithoutAPlaceForIt) {
  Posti_Ricordati posti;
  posti.Tieni("uno", QRect(10, 10, 300, 200));
  EXPECT_EQ(posti.Di("uno"), std::nullopt);
}

TEST_F(Posti_Delle_Finestre, TheSetOfColoursIsRememberedToo) {
  {
    Seduta_Di_Finestre seduta(dove);
    EXPECT_FALSE(colori::In_Uso().Daltonici);
    Azione(seduta.pannello, "mnuViewDaltonici").trigger();
    EXPECT_TRUE(colori::In_Uso().Daltonici);
  }
  colori::Per_Daltonici(false);
  Seduta_Di_Finestre seduta(dove);
  EXPECT_TRUE(colori::In_Uso().Daltonici);
  EXPECT_TRUE(Azione(seduta.pannello, "mnuViewDaltonici").isChecked());
  Azione(seduta.pannello, "mnuViewDaltonici").trigger();
  EXPECT_FALSE(colori::In_Uso().Daltonici);
}

}  // namespace
}  // namespace tavorno
