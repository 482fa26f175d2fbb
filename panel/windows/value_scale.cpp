// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/value_scale.h"

#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tavorno {

Scala_Cursore::Scala_Cursore(const QSlider& cursore, int passo) : cursore_(cursore), passo_(passo) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Scala_Cursore::Passo(int passo) {
  passo_ = passo;
  update();
}

QSize Scala_Cursore::sizeHint() const {
  return {cursore_.sizeHint().width(), fontMetrics().height()};
}

void Scala_Cursore::paintEvent(QPaintEvent*) {
  QStyleOptionSlider aspetto;
  aspetto.initFrom(&cursore_);
  const int pollice = cursore_.style()->pixelMetric(QStyle::PM_SliderLength, &aspetto, &cursore_);
  const int corsa = cursore_.width() - pollice;
  QPainter pittore(this);
  for (int valore = cursore_.minimum(); valore <= cursore_.maximum(); valore += passo_) {
    const int x =
        cursore_.x() - this->x() + pollice / 2 +
        QStyle::sliderPositionFromValue(cursore_.minimum(), cursore_.maximum(), valore, corsa);
    const QRect posto(x - pollice, 0, 2 * pollice, height());
    pittore.drawText(posto, Qt::AlignHCenter | Qt::AlignVCenter, QString::number(valore));
  }
}

}  // namespace tavorno
