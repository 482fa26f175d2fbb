// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of commands can be seen on a dark desktop, and are the same as ever on a light one.
#include "widgets/icons.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "support/desktop.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {
namespace {

QStringList Tutte() {
  QStringList nomi;
  for (const QFileInfo& file : QDir(QStringLiteral(":/icons")).entryInfoList())
    if (file.completeBaseName() != u"tavorno") nomi += file.completeBaseName();
  return nomi;
}

/// The part of a picture's opaque pixels that cannot be told from the window.
double Persa(const QIcon& icona) {
  const QColor fondo = QApplication::palette().color(QPalette::Window);
  const QImage carta = icona.pixmap(QSize(66, 66), 1).toImage();
  int pieni = 0, persi = 0;
  for (int y = 0; y < carta.height(); ++y) {
    for (int x = 0; x < carta.width(); ++x) {
      const QColor punto = carta.pixelColor(x, y);
      if (punto.alpha() < 255) continue;
      ++pieni;
      // A little less than of lines: where two of them meet they are blended.
      persi += colori::Contrasto(punto, fondo) < colori::Visibile - 0.2 ? 1 : 0;
    }
  }
  return pieni == 0 ? 1 : static_cast<double>(persi) / pieni;
}

TEST(Icons, NoPartOfThemIsLostOnADarkDesktop) {
  const Scrivania scrivania;
  const QStringList nomi = Tutte();
  ASSERT_GT(nomi.size(), 30);
  for (const bool gialla : {false, true}) {
    if (gialla)
      scrivania.Nera_E_Gialla();
    else
      scrivania.Scura();
    double senza = 0;
    for (const QString& nome : nomi) {
      EXPECT_LT(Persa(Icona_Di(nome)), 0.01) << Utf8(nome);
      senza = std::max(senza, Persa(QIcon(QStringLiteral(":/icons/%1.svg").arg(nome))));
    }
    EXPECT_GT(senza, 0.5) << "which the measure would find";
  }
}

TEST(Icons, AreAsDrawnOnALightDesktop) {
  const Scrivania scrivania;
  for (const QString& nome : Tutte())
    EXPECT_EQ(Icona_Di(nome).pixmap(QSize(22, 22), 1).toImage(),
              QIcon(QStringLiteral(":/icons/%1.svg").arg(nome)).pixmap(QSize(22, 22), 1).toImage())
        << Utf8(nome);
}

TEST(Icons, FollowTheDesktopWhileTheProgramRuns) {
  const Scrivania scrivania;
  QToolBar barra;
  QAction* azione = barra.addAction(QStringLiteral("Ciclo"));
  Metti_Icona(barra, *azione, QStringLiteral("Ciclo"));
  QToolButton tasto;
  Metti_Icona(tasto, QStringLiteral("Cont"));
  const auto si_vedono = [&] { return Persa(azione->icon()) < 0.01 && Persa(tasto.icon()) < 0.01; };
  EXPECT_TRUE(si_vedono());
  scrivania.Scura();
  EXPECT_FALSE(si_vedono());
  EXPECT_TRUE(QTest::qWaitFor(si_vedono));
}

}  // namespace
}  // namespace tavorno
