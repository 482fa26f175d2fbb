// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/colours.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tavorno::colori {

namespace {

constexpr char scelta[] = "colori_per_daltonici";  // kept by the application object

double Luminanza(const QColor& colore) {
  const auto lineare = [](double parte) {
    return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
         0.0722 * lineare(colore.blueF());
}

}  // namespace

Serie In_Uso() {
  if (qApp == nullptr) return Carta;
  const QPalette tinte = QGuiApplication::palette();
  return {.Scura = tinte.color(QPalette::WindowText).lightness() >
                   tinte.color(QPalette::Window).lightness(),
          .Daltonici = qApp->property(scelta).toBool()};
}

void Per_Daltonici(bool scelti) {
  if (In_Uso().Daltonici == scelti) return;
  qApp->setProperty(scelta, scelti);
  QEvent cambio(QEvent::ApplicationPaletteChange);
  for (QWidget* parte : QApplication::allWidgets()) {
    QCoreApplication::sendEvent(parte, &cambio);
    parte->update();
  }
}

QColor Da_Numero(unsigned numero) {
  return QColor(static_cast<int>(numero & 0xFFU), static_cast<int>(numero >> 8U & 0xFFU),
                static_cast<int>(numero >> 16U & 0xFFU));
}

double Contrasto(const QColor& uno, const QColor& altro) {
  const double a = Luminanza(uno);
  const double b = Luminanza(altro);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Su(const QColor& colore, const QColor& fondo, double contrasto) {
  if (Contrasto(colore, fondo) >= contrasto) return colore;
  const QColor verso = Contrasto(Bianco, fondo) > Contrasto(Nero, fondo) ? Bianco : Nero;
  constexpr int passi = 20;
  QColor mosso = verso;
  for (int passo = 1; passo < passi; ++passo) {
    const double parte = static_cast<double>(passo) / passi;
    const auto fra = [parte](int da, int a) {
      return static_cast<int>(std::lround(da + (a - da) * parte));
    };
    mosso = QColor(fra(colore.red(), verso.red()), fra(colore.green(), verso.green()),
                   fra(colore.blue(), verso.blue()));
    if (Contrasto(mosso, fondo) >= contrasto) return mosso;
  }
  return verso;
}

}  // namespace tavorno::colori
