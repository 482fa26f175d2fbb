// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/close_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace tavorno {

namespace {

// Of the picture that it stands for, so that the title around it keeps its height.
constexpr QSize misura_sua(11, 13);
constexpr double braccio = 0.27;  // of the smaller side, from the middle
constexpr double tratto = 0.14;   // of the same

class Croce : public QIconEngine {
 public:
  void paint(QPainter* pittore, const QRect& dove, QIcon::Mode modo, QIcon::State) override {
    const QPalette::ColorGroup gruppo =
        modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const double lato = std::min(dove.width(), dove.height());
    const double lungo = lato * braccio;
    const QPointF mezzo = QRectF(dove).center();
    pittore->save();
    pittore->setRenderHint(QPainter::Antialiasing);
    pittore->setPen(QPen(QGuiApplication::palette().color(gruppo, QPalette::WindowText),
                         lato * tratto, Qt::SolidLine, Qt::RoundCap));
    pittore->drawLine(mezzo - QPointF(lungo, lungo), mezzo + QPointF(lungo, lungo));
    pittore->drawLine(mezzo - QPointF(lungo, -lungo), mezzo + QPointF(lungo, -lungo));
    pittore->restore();
  }

  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap foglio(misura);
    foglio.fill(Qt::transparent);
    QPainter pittore(&foglio);
    paint(&pittore, QRect(QPoint(), misura), modo, stato);
    return foglio;
  }

  QSize actualSize(const QSize& misura, QIcon::Mode, QIcon::State) override {
    return misura_sua.boundedTo(misura);
  }

  QIconEngine* clone() const override { return new Croce(*this); }
};

}  // namespace

QIcon Croce_Di_Chiusura() {
  return QIcon(new Croce);
}

}  // namespace tavorno
