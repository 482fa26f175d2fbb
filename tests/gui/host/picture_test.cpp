// SPDX-License-Identifier: GPL-3.0-or-later
// Mouse and keys on a plant's picture, and what it draws.
#include <QHelpEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QToolTip>

#include "host/host_bed.h"

namespace tavorno {
namespace {

constexpr QPoint contatto_FR(5340, 675);  // of US-00, twips

struct Picture : ::testing::Test {
  Banco_Host banco{0};  // a motor with one contactor
  Quadro& quadro = banco.Disegno();

  char Ingresso(int posizione) {
    return banco.Macchina().Stato_I()[static_cast<std::size_t>(posizione - 1)];
  }
  std::string Immagine(const char* figura) { return banco.Macchina().Disegno[figura].Picture; }
};

TEST_F(Picture, AHeldButtonStaysHeld) {
  QTest::mousePress(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  EXPECT_EQ(Ingresso(2), '1');
  EXPECT_EQ(Immagine("imgStart"), "imgVON");
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "11011000");
  QTest::mouseRelease(&quadro, Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(Ingresso(2), '0') << "let go outside";
}

TEST_F(Picture, AClickTripsTheRelay) {
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, banco.Centro("ImgTer"));
  EXPECT_EQ(Ingresso(4), '0');
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, banco.Centro("ImgTer"));
  EXPECT_EQ(Ingresso(4), '1');
}

TEST_F(Picture, TheContactOfTheRelayTakesTheClickToo) {
  const QRectF figura = quadro.Posto(banco.Macchina().Disegno["ImgTer"]);
  const double twip = figura.width() / banco.Macchina().Disegno["ImgTer"].Width;
  const QPointF origine = figura.topLeft() - QPointF(banco.Macchina().Disegno["ImgTer"].Left * twip,
                                                     banco.Macchina().Disegno["ImgTer"].Top * twip);
  // Where the picture has the contact, among the inputs of the PLC.
  const QPoint contatto = (origine + QPointF(contatto_FR) * twip).toPoint();
  ASSERT_FALSE(figura.contains(contatto));
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, contatto);
  EXPECT_EQ(Ingresso(4), '0');
}

TEST_F(Picture, APressThatChangesNothingSaysSo) {
  Banco_Host ascensore{14};  // its keys act in maintenance only
  QTest::mouseClick(&ascensore.Disegno(), Qt::LeftButton, {}, ascensore.Centro("cmdSu"));
  EXPECT_TRUE(QToolTip::text().startsWith("Ora non ha effetto: Salita a mano"))
      << QToolTip::text().toStdString();
}

TEST_F(Picture, TheMarkOfTheHandLeavesTheLabelsAroundAButtonAlone) {
  const QPoint centro = banco.Centro("imgStart");
  const auto vista = [this] { return quadro.grab().toImage(); };
  const QImage senza = vista();
  QMouseEvent sopra(QEvent::MouseMove, centro, quadro.mapToGlobal(centro), Qt::NoButton,
                    Qt::NoButton, {});
  QCoreApplication::sendEvent(&quadro, &sopra);
  const QImage con = vista();
  QRect segno;
  for (int y = 0; y < con.height(); ++y) {
    for (int x = 0; x < con.width(); ++x) {
      if (con.pixel(x, y) != senza.pixel(x, y)) segno |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_TRUE(segno.contains(centro));
  const QRect figura = quadro.Posto(banco.Macchina().Disegno["imgStart"]).toAlignedRect();
  EXPECT_TRUE(figura.contains(segno))
      << segno.y() << ' ' << segno.height() << " of " << figura.y() << ' ' << figura.height();
}

TEST_F(Picture, ADoubleClickForcesTheContactor) {
  banco.plc.SQ[0].Stato_Q("10000000");
  EXPECT_EQ(Ingresso(3), '1');
  QTest::mouseDClick(&quadro, Qt::LeftButton, {}, banco.Centro("imgKM"));
  EXPECT_EQ(Ingresso(3), '0');
  EXPECT_EQ(Immagine("imgKM"), "imgKMOF");
}

TEST_F(Picture, TwoQuickPressesOfAButtonAreTwoPresses) {
  int volte = 0;
  const Iscrizione ascolto = banco.Macchina().Change.Ascolta([&] { volte += Ingresso(2) == '1'; });
  QTest::mousePress(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  QTest::mouseRelease(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  QTest::mouseDClick(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  QTest::mouseRelease(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  EXPECT_GE(volte, 2);
  EXPECT_EQ(Ingresso(2), '0');
}

TEST_F(Picture, TheKeyboardReachesAndWorksEverything) {
  banco.finestra->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return banco.finestra->isActiveWindow(); }, 20000));
  quadro.setFocus();
  bool premuto = false;
  for (int passo = 0; passo < 12 && !premuto; ++passo) {
    QTest::keyClick(&quadro, Qt::Key_Tab);
    QTest::keyPress(&quadro, Qt::Key_Space);
    premuto = Ingresso(2) == '1';
    QTest::keyRelease(&quadro, Qt::Key_Space);
  }
  EXPECT_TRUE(premuto) << "Start was not reached";
  EXPECT_EQ(Ingresso(2), '0');
}

TEST_F(Picture, AHandOnTheMouseAndOneOnSpaceHoldTwoButtons) {
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  QTest::keyPress(&quadro, Qt::Key_Space);
  QTest::mousePress(&quadro, Qt::LeftButton, {}, banco.Centro("imgStop"));
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "01011000");
  QTest::mouseRelease(&quadro, Qt::LeftButton, {}, banco.Centro("imgStop"));
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "11011000") << "Start is still held";
  QTest::keyRelease(&quadro, Qt::Key_Space);
  EXPECT_EQ(banco.plc.SI[0].Stato_I(), "10011000") << "no button stays down";
}

TEST_F(Picture, TheFrameOfTheFocusWaitsForAKey) {
  banco.finestra->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return quadro.hasFocus(); }, 20000));
  const auto grab = [&] { return quadro.grab().toImage(); };
  const QImage prima = grab();
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, banco.Centro("imgStart"));
  EXPECT_EQ(grab(), prima) << "a frame around what the mouse clicked";
  QTest::keyClick(&quadro, Qt::Key_Space);
  EXPECT_NE(grab(), prima);
  QTest::mouseClick(&quadro, Qt::LeftButton, {}, banco.Centro("imgStop"));
  EXPECT_EQ(grab(), prima);
}

TEST_F(Picture, EverythingWithAToolTipSaysIt) {
  const auto chiedi = [&](const char* figura) {
    QHelpEvent domanda(QEvent::ToolTip, banco.Centro(figura),
                       quadro.mapToGlobal(banco.Centro(figura)));
    QApplication::sendEvent(&quadro, &domanda);
    return QToolTip::text();
  };
  EXPECT_EQ(chiedi("imgKM"), "DbClick per forzare apertura");
  EXPECT_EQ(chiedi("ImgTer"), "Click per simulare intervento\nRelè termico FR, I0.3");
  EXPECT_EQ(chiedi("imgLA"), "Lampada blu, Q0.1");
  EXPECT_EQ(chiedi("imgKMa"), "Contatto ausiliario, I0.2");
}

TEST_F(Picture, OnlyWhatCanBeOperatedIsUnderTheHand) {
  EXPECT_EQ(quadro.Figura_A(QPointF(2, 2)), nullptr);
  ASSERT_NE(quadro.Figura_A(banco.Centro("imgStop")), nullptr);
  EXPECT_EQ(quadro.Figura_A(banco.Centro("imgStop"))->Nome, "imgStop");
  EXPECT_EQ(quadro.Figura_A(banco.Centro("imgLM")), nullptr) << "a lamp";
  QTest::mouseMove(&quadro, banco.Centro("imgStop"));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return quadro.cursor().shape() == Qt::PointingHandCursor; }, 20000));
}

TEST_F(Picture, ALampLightsUpOnTheScreen) {
  const auto grab = [&] { return quadro.grab().toImage(); };
  const QPoint punto = banco.Centro("imgLM");
  const QColor spenta = grab().pixelColor(punto);
  banco.plc.SQ[0].Stato_Q("00100000");
  const QColor accesa = grab().pixelColor(punto);
  EXPECT_GT(accesa.green(), spenta.green() + 60);
  banco.plc.SQ[0].Stato_Q("00000000");
  EXPECT_EQ(grab().pixelColor(punto), spenta);
}

/// The places of a widget that were painted.
struct Dipinto : QObject {
  QRegion Posti;
  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::Paint) Posti += static_cast<QPaintEvent*>(evento)->region();
    return false;
  }
};

TEST_F(Picture, WhatChangesIsPaintedAgainAndNothingElse) {
  ASSERT_TRUE(QTest::qWaitForWindowExposed(banco.finestra.get(), 20000));
  QCoreApplication::processEvents();
  Dipinto dipinto;
  quadro.installEventFilter(&dipinto);
  for (const char* uscite : {"00100000", "00000000"}) {
    dipinto.Posti = {};
    banco.plc.SQ[0].Stato_Q(uscite);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dipinto.Posti.isEmpty(); }, 20000));
    EXPECT_TRUE(dipinto.Posti.contains(banco.Centro("imgLM")));
    EXPECT_FALSE(dipinto.Posti.contains(banco.Centro("imgLA")));
    EXPECT_FALSE(dipinto.Posti.contains(banco.Centro("imgM")));
  }
}

TEST_F(Picture, AWireTurnsRed) {
  const auto rossi = [&] {
    const QImage immagine =
        quadro.grab(quadro.Posto(banco.Macchina().Disegno["linKM"]).toRect()).toImage();
    int quanti = 0;
    for (int y = 0; y < immagine.height(); ++y) {
      for (int x = 0; x < immagine.width(); ++x) {
        const QColor colore = immagine.pixelColor(x, y);
        quanti += colore.red() > 180 && colore.green() < 90;
      }
    }
    return quanti;
  };
  const int prima = rossi();
  banco.plc.SQ[0].Stato_Q("10000000");
  EXPECT_GT(rossi(), prima + 10);
}

/// What the widget writes is as large as what is drawn, however small the picture is.
struct Piccola : ::testing::TestWithParam<int> {};

TEST_P(Piccola, NoTextLeavesItsFigure) {
  Orologio orologio;
  Plc plc{orologio};
  const auto impianto = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())].Crea(plc);
  Quadro quadro(*impianto, QStringLiteral(":/plants/US-%1.svg").arg(GetParam(), 2, 10, QChar('0')));
  quadro.resize(quadro.sizeHint() * 2 / 5);
  const auto disegna = [&quadro] {
    QImage immagine(quadro.size(), QImage::Format_RGB32);
    quadro.render(&immagine);
    return immagine;
  };
  const QImage con = disegna();
  QRegion posti;
  for (Figura& figura : impianto->Disegno) {
    if (figura.Visible() && !figura.Caption().empty())
      posti += quadro.Posto(figura).toAlignedRect().adjusted(-1, -1, 1, 1);
    figura.Caption = "";
  }
  const QImage senza = disegna();
  for (int y = 0; y < con.height(); ++y) {
    for (int x = 0; x < con.width(); ++x) {
      if (con.pixel(x, y) != senza.pixel(x, y)) {
        ASSERT_TRUE(posti.contains(QPoint(x, y))) << "at " << x << ',' << y;
      }
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Esercizi, Piccola, ::testing::ValuesIn(Con_Impianto()));

TEST(Pictures, WhatIsWrittenGrowsWithThem) {
  Orologio orologio;
  Plc plc{orologio};
  const auto impianto = Tabella_Esercizi()[14].Crea(plc);
  Quadro quadro(*impianto, QStringLiteral(":/plants/US-14.svg"));
  Figura& scritta = impianto->Disegno["etIn(2)"];
  const std::string testo = scritta.Caption();
  /// Of its ink, in twips.
  const auto larga = [&](double ingrandita) {
    quadro.resize((QSizeF(quadro.sizeHint()) * ingrandita).toSize());
    QImage con(quadro.size(), QImage::Format_RGB32);
    QImage senza(quadro.size(), QImage::Format_RGB32);
    quadro.render(&con);
    scritta.Caption = "";
    quadro.render(&senza);
    scritta.Caption = testo;
    QRect inchiostro;
    const QRect posto = quadro.Posto(scritta).toAlignedRect();
    for (int y = posto.top(); y <= posto.bottom(); ++y) {
      for (int x = posto.left(); x <= posto.right(); ++x)
        if (con.pixel(x, y) != senza.pixel(x, y)) inchiostro |= QRect(x, y, 1, 1);
    }
    return inchiostro.width() * 10 / ingrandita;
  };
  const double grande = larga(4);
  for (const double ingrandita : {0.4, 0.5, 0.79, 1.08}) {
    EXPECT_NEAR(larga(ingrandita), grande, 0.03 * grande + 20 / ingrandita) << ingrandita;
  }
}

TEST_F(Picture, ItGrowsWithItsWindow) {
  const QRectF prima = quadro.Posto(banco.Macchina().Disegno["imgM"]);
  quadro.resize(quadro.sizeHint() * 2);
  const QRectF dopo = quadro.Posto(banco.Macchina().Disegno["imgM"]);
  EXPECT_NEAR(dopo.width(), 2 * prima.width(), 1);
}

}  // namespace
}  // namespace tavorno
