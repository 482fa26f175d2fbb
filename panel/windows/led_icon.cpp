// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/led_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QRadialGradient>

#include "widgets/colours.h"

namespace tavorno {

namespace {

QColor Colore(int tipo) {
  if (tipo == 0) return colori::Led_Verde;
  if (tipo == 1) return colori::Led_Giallo;
  return colori::Led_Rosso;
}

/// The square from -10 to 10 around the middle of the lamp.
void Disegna_LED(QPainter& pittore, int tipo, int forma) {
  const QColor colore = Colore(tipo);
  const bool raggi = forma == 0;
  const qreal raggio = raggi ? 5 : 6.5;
  if (raggi) {
    pittore.setPen(QPen(colore.darker(115), 1.4, Qt::SolidLine, Qt::RoundCap));
    for (int k = 0; k < 8; ++k) {
      pittore.drawLine(QPointF(0, -6.9), QPointF(0, -9.2));
      pittore.rotate(45);
    }
  }
  QRadialGradient luce(QPointF(-raggio * 0.3, -raggio * 0.35), raggio * 1.3);
  luce.setColorAt(0, colore.lighter(165));
  luce.setColorAt(0.55, colore);
  luce.setColorAt(1, colore.darker(125));
  pittore.setPen(QPen(colore.darker(190), 0.9));
  pittore.setBrush(luce);
  pittore.drawEllipse(QPointF(0, 0), raggio, raggio);
}

class Motore_LED : public QIconEngine {
 public:
  Motore_LED(int tipo, int forma) : tipo_(tipo), forma_(forma) {}

  void paint(QPainter* pittore, const QRect& area, QIcon::Mode, QIcon::State) override {
    pittore->save();
    pittore->setRenderHint(QPainter::Antialiasing);
    const qreal lato = qMin(area.width(), area.height());
    pittore->translate(QRectF(area).center());
    pittore->scale(lato / 20, lato / 20);
    Disegna_LED(*pittore, tipo_, forma_);
    pittore->restore();
  }

  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap figura(misura);
    figura.fill(Qt::transparent);
    QPainter pittore(&figura);
    paint(&pittore, figura.rect(), modo, stato);
    return figura;
  }

  QIconEngine* clone() const override { return new Motore_LED(*this); }

 private:
  int tipo_, forma_;
};

}  // namespace

QIcon Icona_LED(int tipo, int forma) {
  return QIcon(new Motore_LED(tipo, forma));
}

}  // namespace tavorno
