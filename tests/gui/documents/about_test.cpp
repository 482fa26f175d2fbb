// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTimer>
#include <QWheelEvent>

#include "panel/documents/about_window.h"
#include "plants/exercises.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {
namespace {

class About : public ::testing::Test {
 protected:
  About() { finestra.show(); }

  template <class Tipo>
  Tipo& Controllo(const char* nome) const {
    auto* controllo = finestra.findChild<Tipo*>(Q(nome));
    if (controllo == nullptr) qFatal("No control named %s", nome);
    return *controllo;
  }
  QScrollBar& vsV() const { return Controllo<QScrollBar>("vsV"); }
  QTimer& Timer(int numero) const { return Controllo<QTimer>(numero == 1 ? "Timer1" : "Timer2"); }

  FrmAbaut finestra;
};

TEST_F(About, HasItsCaptionsAndIsModal) {
  EXPECT_EQ(finestra.objectName(), "frmAbaut");
  EXPECT_EQ(finestra.windowTitle(), Q("Informazioni sul programma."));
  EXPECT_TRUE(finestra.isModal());
  EXPECT_EQ(Controllo<QLabel>("et1(0)").text(), Q("Tavorno "));
  EXPECT_EQ(Controllo<QLabel>("et1(1)").text(), Q("Tavorno "));
  EXPECT_EQ(Controllo<QLabel>("EtInf").text(), Q("Simulatore per micro PLC Siemens S7 200."));
  EXPECT_FALSE(Controllo<QLabel>("etver").text().isEmpty());
}

TEST_F(About, TheVersionIsThatOfTheProgram) {
  EXPECT_TRUE(QRegularExpression(Q("^Ver\\. \\d+\\.\\d+\\.\\d+   \\S"))
                  .match(Controllo<QLabel>("EtV2").text())
                  .hasMatch())
      << Utf8(Controllo<QLabel>("EtV2").text());
}

TEST_F(About, OneLabelIsTheShadowOfTheOther) {
  const auto& ombra = Controllo<QLabel>("et1(0)");
  const auto& nome = Controllo<QLabel>("et1(1)");
  EXPECT_EQ(ombra.geometry(), nome.geometry());
  EXPECT_GT(ombra.contentsMargins().left(), nome.contentsMargins().left());
  EXPECT_GT(ombra.contentsMargins().top(), nome.contentsMargins().top());
  EXPECT_EQ(nome.font().styleHint(), QFont::Serif);
}

TEST_F(About, OkCloses) {
  Controllo<QPushButton>("cmdOk").click();
  EXPECT_FALSE(finestra.isVisible());
}

TEST_F(About, TheBarCountsWhatOfThePictureIsHidden) {
  const auto& disegno = Controllo<QWidget>("imgInf");
  EXPECT_EQ(vsV().maximum(), Twip(disegno.height() - Controllo<QFrame>("picInf").height()));
  EXPECT_GT(vsV().maximum(), 2000);
  EXPECT_EQ(disegno.y(), 0);
  vsV().setValue(1370);
  EXPECT_EQ(disegno.y(), -137);
  vsV().setValue(vsV().maximum());
  EXPECT_EQ(disegno.geometry().bottom(), Controllo<QFrame>("picInf").rect().bottom());
}

TEST_F(About, ThePictureStopsAHundredUnitsBeforeItsEndAndStaysThere) {
  EXPECT_TRUE(Timer(2).isActive());
  EXPECT_EQ(Timer(2).interval(), 2000);
  EXPECT_EQ(Timer(1).interval(), 100);
  EXPECT_FALSE(Timer(1).isActive());
  finestra.Tick_Timer2();
  EXPECT_FALSE(Timer(2).isActive());
  EXPECT_TRUE(Timer(1).isActive());
  finestra.Tick_Timer1();
  EXPECT_EQ(vsV().value(), 10);
  int passi = 1;
  while (Timer(1).isActive() && passi < 10000) {
    finestra.Tick_Timer1();
    ++passi;
  }
  const int limite = vsV().maximum() - 100;
  const int fermo = limite - limite % 10 + 10;  // the first value beyond the limit
  EXPECT_EQ(vsV().value(), fermo);
  finestra.Tick_Timer1();
  EXPECT_EQ(vsV().value(), fermo);
  EXPECT_FALSE(Timer(1).isActive());
}

// Fast enough to see it move, slow enough to read what goes by.
TEST_F(About, EachStepOfTheScrollingIsOnePixel) {
  const auto& disegno = Controllo<QWidget>("imgInf");
  finestra.Tick_Timer1();
  EXPECT_EQ(disegno.y(), -1);
  finestra.Tick_Timer1();
  EXPECT_EQ(disegno.y(), -2);
}

TEST_F(About, TheUserMayMoveTheBarWhileItScrolls) {
  finestra.Tick_Timer2();
  finestra.Tick_Timer1();
  vsV().setValue(100);
  finestra.Tick_Timer1();
  EXPECT_EQ(vsV().value(), 110);
  vsV().setValue(vsV().maximum());
  finestra.Tick_Timer1();
  EXPECT_FALSE(Timer(1).isActive());
  EXPECT_EQ(vsV().value(), vsV().maximum());
}

TEST_F(About, TheWheelOverThePictureMovesTheBar) {
  auto& quadro = Controllo<QFrame>("picInf");
  QWheelEvent evento(QPointF(50, 50), quadro.mapToGlobal(QPointF(50, 50)), QPoint(),
                     QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&quadro, &evento);
  EXPECT_GT(vsV().value(), 0);
}

TEST(About_Picture, NamesTheExercises) {
  QFile file(Q(":/about/about.svg"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray disegno = file.readAll();
  EXPECT_TRUE(QSvgRenderer(disegno).isValid());
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    const QString numero = Q(">%1</text>").arg(esercizio.Indice, 2, 10, QChar('0'));
    EXPECT_EQ(QString::fromUtf8(disegno).count(numero), 1) << esercizio.Indice;
  }
}

}  // namespace
}  // namespace tavorno
