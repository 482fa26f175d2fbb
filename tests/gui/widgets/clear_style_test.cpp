// SPDX-License-Identifier: GPL-3.0-or-later
// What is ticked, moved or typed into has an outline that can be seen on every desktop, measured in
// what the window library draws.
#include "widgets/clear_style.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <memory>
#include <string>

#include "support/desktop.h"
#include "widgets/colours.h"
#include "widgets/desktop_theme.h"

namespace tavorno {
namespace {

using colori::Contrasto;

enum class Desktop { Chiara, Scura, Scura_Nostra, Nera_E_Gialla, Bianca };

struct Nome_Desktop {
  template <class Caso>
  std::string operator()(const Caso& caso) const {
    constexpr const char* nomi[] = {"Light", "Dark", "DarkOfOurs", "HighContrast", "BlackOnWhite"};
    return nomi[static_cast<int>(caso.param)];
  }
};

class Contorni : public ::testing::TestWithParam<Desktop> {
 protected:
  Contorni() {
    switch (GetParam()) {
      case Desktop::Chiara:
        break;
      case Desktop::Scura:
        scrivania_.Scura();
        break;
      case Desktop::Scura_Nostra:
        QApplication::setPalette(Tavolozza_Scura());
        break;
      case Desktop::Nera_E_Gialla:
        scrivania_.Nera_E_Gialla();
        break;
      case Desktop::Bianca:
        Scrivania::Metti(0xffffff, 0xffffff, 0x000000);
        break;
    }
  }

  static QColor Fondo() { return QApplication::palette().color(QPalette::Window); }

  /// A part as it looks on a window, with a margin around it.
  static QImage Ritratto(QWidget& parte) {
    parte.setAttribute(Qt::WA_DontShowOnScreen);
    parte.setPalette(QApplication::palette());
    parte.show();
    QImage carta(parte.size(), QImage::Format_RGB32);
    carta.fill(Fondo());
    parte.render(&carta);
    return carta;
  }

  /// The best contrast to the window among `tanti` pixels from `da` on.
  static double Migliore(const QImage& carta, QPoint da, QPoint passo, int tanti) {
    double migliore = 1;
    for (int n = 0; n < tanti; ++n, da += passo)
      if (carta.rect().contains(da))
        migliore = std::max(migliore, Contrasto(carta.pixelColor(da), Fondo()));
    return migliore;
  }

  /// All four sides of a frame, looked for within a few pixels of the rectangle's edges.
  static void Ha_Cornice(const QImage& carta, const QRect& dove) {
    constexpr int vicino = 4;
    const QPoint mezzo = dove.center();
    EXPECT_GE(Migliore(carta, {dove.left(), mezzo.y()}, {1, 0}, vicino), colori::Visibile)
        << "left";
    EXPECT_GE(Migliore(carta, {dove.right(), mezzo.y()}, {-1, 0}, vicino), colori::Visibile)
        << "right";
    EXPECT_GE(Migliore(carta, {mezzo.x(), dove.top()}, {0, 1}, vicino), colori::Visibile) << "top";
    EXPECT_GE(Migliore(carta, {mezzo.x(), dove.bottom()}, {0, -1}, vicino), colori::Visibile)
        << "bottom";
  }

 private:
  Scrivania scrivania_;
};

TEST_P(Contorni, OfABoxThatIsNotTicked) {
  QCheckBox casella(QStringLiteral("Valori"));
  const QImage carta = Ritratto(casella);
  QStyleOptionButton opzioni;
  opzioni.initFrom(&casella);
  Ha_Cornice(carta,
             casella.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &opzioni, &casella));
}

TEST_P(Contorni, OfARadioButtonThatIsNotChosen) {
  QRadioButton tasto(QStringLiteral("Cont"));
  const QImage carta = Ritratto(tasto);
  QStyleOptionButton opzioni;
  opzioni.initFrom(&tasto);
  Ha_Cornice(carta,
             tasto.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &opzioni, &tasto));
}

/// It lies over sheets of its own colour.
TEST_P(Contorni, OfAMenu) {
  QMenu menu;
  menu.addAction(QStringLiteral("Nuovo circuito"));
  menu.resize(menu.sizeHint());
  const QImage carta = Ritratto(menu);
  Ha_Cornice(carta, carta.rect());
}

TEST_P(Contorni, OfTheButtonThatClosesAView) {
  QMainWindow finestra;
  auto* riquadro = new QDockWidget(QStringLiteral("Lista"), &finestra);
  finestra.addDockWidget(Qt::RightDockWidgetArea, riquadro);
  auto* tasto = riquadro->findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
  ASSERT_NE(tasto, nullptr);
  for (const double punti : {1.0, 2.0}) {
    SCOPED_TRACE(punti);
    const QPixmap segno = tasto->icon().pixmap(QSize(11, 13), punti);
    EXPECT_EQ(segno.size(), QSize(11, 13) * punti) << "drawn for the screen, not stretched";
    QImage carta(segno.size(), QImage::Format_RGB32);
    carta.setDevicePixelRatio(punti);
    carta.fill(Fondo());
    QPainter(&carta).drawPixmap(0, 0, segno);
    // From the middle along the arms.
    const QPoint mezzo(carta.width() / 2, carta.height() / 2);
    for (const QPoint passo : {QPoint(1, 1), QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1)})
      EXPECT_GE(Contrasto(carta.pixelColor(mezzo + passo * static_cast<int>(2 * punti)), Fondo()),
                colori::Visibile);
  }
}

TEST_P(Contorni, OfFieldsAndButtons) {
  const std::unique_ptr<QWidget> parti[] = {
      std::make_unique<QSpinBox>(), std::make_unique<QDoubleSpinBox>(),
      std::make_unique<QLineEdit>(), std::make_unique<QComboBox>(),
      std::make_unique<QPushButton>(QStringLiteral("Chiudi"))};
  for (const auto& parte : parti) {
    SCOPED_TRACE(parte->metaObject()->className());
    parte->resize(120, 28);
    const QImage carta = Ritratto(*parte);
    Ha_Cornice(carta, carta.rect());
  }
}

/// A program that runs for hours has many, and only so many are kept.
TEST_P(Contorni, AfterManyPalettes) {
  const QColor prima = Fondo();
  const Scrivania scrivania;
  for (int n = 0; n < 80; ++n) {
    SCOPED_TRACE(n);
    QPalette tinte = QApplication::palette();
    tinte.setColor(QPalette::Link, QColor(n, n, n));  // each palette has a key of its own
    QApplication::setPalette(tinte);
    ASSERT_EQ(Fondo(), prima);
    QComboBox lista;
    lista.resize(120 + n, 28);  // and each size is drawn anew
    const QImage carta = Ritratto(lista);
    Ha_Cornice(carta, carta.rect());
    if (HasFailure()) break;
  }
}

TEST_P(Contorni, OfWhatTellsHowFarItIs) {
  QProgressBar barra;
  barra.setTextVisible(false);
  barra.resize(120, 24);
  const QImage carta = Ritratto(barra);
  Ha_Cornice(carta, carta.rect());
}

TEST_P(Contorni, OfASlidersGrooveAndHandle) {
  QSlider cursore(Qt::Horizontal);
  cursore.resize(200, 24);
  const QImage carta = Ritratto(cursore);
  QStyleOptionSlider opzioni;
  opzioni.initFrom(&cursore);
  opzioni.orientation = Qt::Horizontal;
  opzioni.maximum = cursore.maximum();
  opzioni.subControls = QStyle::SC_All;
  EXPECT_GE(Migliore(carta, {150, 0}, {0, 1}, carta.height()), colori::Visibile) << "groove";
  Ha_Cornice(carta, cursore.style()->subControlRect(QStyle::CC_Slider, &opzioni,
                                                    QStyle::SC_SliderHandle, &cursore));
}

TEST_P(Contorni, OfAScrollBarsHandle) {
  QScrollBar barra(Qt::Horizontal);
  barra.setRange(0, 100);
  barra.setPageStep(100);
  barra.resize(300, barra.sizeHint().height());
  const QImage carta = Ritratto(barra);
  QStyleOptionSlider opzioni;
  opzioni.initFrom(&barra);
  opzioni.state |= QStyle::State_Horizontal;
  opzioni.orientation = Qt::Horizontal;
  opzioni.maximum = barra.maximum();
  opzioni.pageStep = barra.pageStep();
  opzioni.subControls = QStyle::SC_All;
  const QRect maniglia = barra.style()->subControlRect(QStyle::CC_ScrollBar, &opzioni,
                                                       QStyle::SC_ScrollBarSlider, &barra);
  const QPoint lato(maniglia.left() - 2, maniglia.center().y());
  EXPECT_GE(Migliore(carta, lato, {1, 0}, 5), colori::Visibile);
}

TEST_P(Contorni, OfWhatHasTheKeyboard) {
  const QRect dove(10, 10, 80, 20);
  QStyleOptionFocusRect cornice;
  cornice.palette = QApplication::palette();
  cornice.rect = dove;
  cornice.state =
      QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  QImage carta(100, 40, QImage::Format_RGB32);
  const auto disegna = [&](auto cosa, const QStyleOption& opzioni) {
    carta.fill(Fondo());
    QPainter pittore(&carta);
    QApplication::style()->drawPrimitive(cosa, &opzioni, &pittore, nullptr);
  };
  disegna(QStyle::PE_FrameFocusRect, cornice);
  Ha_Cornice(carta, dove);

  QStyleOptionButton casella;
  casella.palette = cornice.palette;
  casella.rect = QRect(10, 10, 14, 14);
  casella.state = cornice.state | QStyle::State_Off;
  disegna(QStyle::PE_IndicatorCheckBox, casella);
  Ha_Cornice(carta, casella.rect);
}

TEST_P(Contorni, LeaveTheGroundsAsTheyAre) {
  QLineEdit campo;
  campo.resize(120, 28);
  EXPECT_EQ(Ritratto(campo).pixelColor(60, 14), QApplication::palette().color(QPalette::Base));
  QCheckBox casella(QStringLiteral("Valori"));
  EXPECT_EQ(Ritratto(casella).pixelColor(casella.width() - 1, 0), Fondo());
}

INSTANTIATE_TEST_SUITE_P(Desktops, Contorni,
                         ::testing::Values(Desktop::Chiara, Desktop::Scura, Desktop::Scura_Nostra,
                                           Desktop::Nera_E_Gialla, Desktop::Bianca),
                         Nome_Desktop());

TEST(ClearStyle, OutlinesCanBeSeenOnEveryGrey) {
  for (int grigio = 0; grigio < 256; ++grigio) {
    const QColor finestra(grigio, grigio, grigio);
    const QPalette tinte = Con_Contorni_Visibili(QPalette(finestra, finestra));
    const QColor linea = tinte.color(QPalette::Window).darker(140);
    EXPECT_GE(Contrasto(linea, finestra), colori::Visibile) << finestra.name().toStdString();
  }
}

TEST(ClearStyle, AHintCanBeReadWhereTheDesktopTellsNoColourForIt) {
  QPalette scura{QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32)};
  scura.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
  scura.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  QApplication::style()->polish(scura);
  for (const QPalette::ColorGroup gruppo : {QPalette::Active, QPalette::Disabled}) {
    const QColor detta = scura.color(gruppo, QPalette::PlaceholderText);
    EXPECT_EQ(detta.alpha(), 255);
    EXPECT_GE(Contrasto(detta, scura.color(gruppo, QPalette::Base)), colori::Leggibile);
  }
  QPalette buona = scura;
  QApplication::style()->polish(buona);
  EXPECT_EQ(buona, scura) << "what can be read stays";
}

TEST(ClearStyle, AnOutlineFollowsTheDesktopWhileTheProgramRuns) {
  const Scrivania scrivania;
  const auto linea = [] {
    QStyleOptionButton casella;
    casella.palette = QApplication::palette();
    casella.rect = QRect(0, 0, 14, 14);
    casella.state = QStyle::State_Enabled | QStyle::State_Off;
    QImage carta(14, 14, QImage::Format_RGB32);
    carta.fill(casella.palette.color(QPalette::Window));
    QPainter pittore(&carta);
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &casella, &pittore);
    return carta.pixelColor(7, 0);
  };
  const QColor chiara = linea();
  scrivania.Nera_E_Gialla();
  EXPECT_NE(linea(), chiara);
  EXPECT_GE(Contrasto(linea(), colori::Nero), colori::Visibile);
}

}  // namespace
}  // namespace tavorno
