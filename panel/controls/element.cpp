// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/element.h"

#include <QFont>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <algorithm>
#include <utility>

#include "widgets/colours.h"

namespace tavorno {

QRect In_Scala(const QRectF& disegno, double scala) {
  const QPoint inizio(qRound(disegno.left() * scala), qRound(disegno.top() * scala));
  const QPoint fine(qRound(disegno.right() * scala), qRound(disegno.bottom() * scala));
  return {inizio, QSize(fine.x() - inizio.x(), fine.y() - inizio.y())};
}

void Disponi(QWidget& figlio, const QRectF& disegno, double scala) {
  figlio.setGeometry(In_Scala(disegno, scala));
}

void Disponi(QLabel& etichetta, const QRectF& disegno, double scala, double altezza) {
  Disponi(etichetta, disegno, scala);
  QFont carattere = etichetta.font();
  carattere.setPixelSize(std::max(6, qRound(altezza * scala)));
  etichetta.setFont(carattere);
}

QLabel* Crea_Etichetta(QWidget* sopra, const QString& nome, const QString& testo) {
  auto* etichetta = new QLabel(testo, sopra);
  etichetta->setObjectName(nome);
  etichetta->setTextFormat(Qt::PlainText);
  etichetta->setAlignment(Qt::AlignCenter);
  etichetta->setAttribute(Qt::WA_TransparentForMouseEvents);
  return etichetta;
}

void Colora(QLabel& etichetta, const QColor& colore) {
  QPalette tavolozza = etichetta.palette();
  tavolozza.setColor(QPalette::WindowText, colore);
  etichetta.setPalette(tavolozza);
}

void Disegna_Gruppo(QPainter& pennello, QSvgRenderer& disegni, const QString& gruppo) {
  disegni.render(&pennello, gruppo, disegni.boundsOnElement(gruppo));
}

void Disegna_Piastra(QPainter& pennello, const QSizeF& misura, const QColor& colore) {
  pennello.setPen(QPen(colore.darker(170), 1));
  pennello.setBrush(colore);
  pennello.drawRoundedRect(QRectF(QPointF(0.5, 0.5), misura - QSizeF(1, 1)), 3, 3);
}

void Disegna_Fuoco(QPainter& pennello, const QRectF& riquadro) {
  QColor alone = colori::Fuoco_Alone;
  alone.setAlpha(200);
  pennello.setBrush(Qt::NoBrush);
  pennello.setPen(QPen(alone, 2.5));
  pennello.drawRoundedRect(riquadro, 3, 3);
  pennello.setPen(QPen(QColor(colori::Fuoco), 1.25));
  pennello.drawRoundedRect(riquadro, 3, 3);
}

Parte::Parte(QWidget* sopra, const QString& nome, const QRectF& disegno, Pittura pittura)
    : QWidget(sopra), disegno_(disegno), pittura_(std::move(pittura)) {
  setObjectName(nome);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Parte::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  const double scala = height() / disegno_.height();
  pennello.scale(scala, scala);
  pittura_(pennello);
}

}  // namespace tavorno
