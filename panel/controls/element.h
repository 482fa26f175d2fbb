// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QWidget>
#include <functional>

#include "widgets/naming.h"

class QLabel;
class QPainter;
class QSvgRenderer;

// Controls are designed in pixels of a window at 100 % and drawn at whatever size they are given.
namespace tavorno {

/// A rectangle of the design at a scale. Neighbours stay neighbours, since edges are rounded.
QRect In_Scala(const QRectF& disegno, double scala);

/// Puts a child at its place of the design.
void Disponi(QWidget& figlio, const QRectF& disegno, double scala);

/// The same for a label, whose letters are `altezza` design pixels high.
void Disponi(QLabel& etichetta, const QRectF& disegno, double scala, double altezza);

/// A label of the given name, as an array of labels has one for each.
QLabel* Crea_Etichetta(QWidget* sopra, const QString& nome, const QString& testo = {});

void Colora(QLabel& etichetta, const QColor& colore);

/// One group of a picture, drawn where it stands in its file; the painter's units are the design's.
void Disegna_Gruppo(QPainter& pennello, QSvgRenderer& disegni, const QString& gruppo);

/// The plate that the controls of an input simulator are mounted on.
void Disegna_Piastra(QPainter& pennello, const QSizeF& misura, const QColor& colore);

/// The line around what has the keyboard.
void Disegna_Fuoco(QPainter& pennello, const QRectF& riquadro);

/// A named piece of a picture, with a way to draw it in units of its design size.
class Parte : public QWidget {
 public:
  using Pittura = std::function<void(QPainter&)>;

  /// `disegno` is the place in the design of the parent. What the mouse does passes to the parent.
  Parte(QWidget* sopra, const QString& nome, const QRectF& disegno, Pittura pittura);

  const QRectF& Disegno() const { return disegno_; }
  void Ingrandisci(double scala) { Disponi(*this, disegno_, scala); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QRectF disegno_;
  Pittura pittura_;
};

}  // namespace tavorno
