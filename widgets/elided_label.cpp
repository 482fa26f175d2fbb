// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/elided_label.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace tavorno {

namespace {

constexpr int stacco = 18;  // pixels behind a text, before what is next to it

}  // namespace

Etichetta_Accorciata::Etichetta_Accorciata(Qt::TextElideMode dove, QString sempre)
    : dove_(dove), sempre_(std::move(sempre)) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize Etichetta_Accorciata::sizeHint() const {
  const int larga = fontMetrics().horizontalAdvance(text()) + stacco;
  return {std::max(larga, minimumSizeHint().width()), QLabel::sizeHint().height()};
}

QSize Etichetta_Accorciata::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(sempre_), QLabel::minimumSizeHint().height()};
}

QString Etichetta_Accorciata::Visto() const {
  return fontMetrics().elidedText(text(), dove_, contentsRect().width());
}

void Etichetta_Accorciata::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  pittore.setPen(palette().color(foregroundRole()));
  pittore.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Visto());
}

}  // namespace tavorno
