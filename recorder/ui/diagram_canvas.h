// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "trace/drawing.h"
#include "widgets/colours.h"
#include "widgets/own_text.h"

class QPainter;

namespace tavorno {

/// Paints a drawing of `trace` as it is, in the colours of the windows.
void Dipingi(QPainter& pittore, const Disegno_Tempi& disegno, colori::Serie serie);

/// The sheet of a timing diagram: names, axis and waves. The mouse moves time and cursors here; the
/// keys are the window's.
class Tela_Tempi : public QWidget, public Testo_Proprio {
 public:
  explicit Tela_Tempi(Diagramma_Tempi& diagramma);

  std::function<void()> Mossa;          ///< time, a cursor, the selection or the rows changed
  std::function<void()> Vuole_Segnali;  ///< a double click where there is nothing
  /// A click of the right button, or the Menu key, at a point of the screen. Row and moment under
  /// the mouse are selected already.
  std::function<void(QPoint dove)> Vuole_Menu;

  Misura_Disegno Misura() const;
  /// Of the rows, pixels; held within what there is.
  void Scorri(double y);
  double Scorrimento() const { return scorrimento_; }
  double Scorrimento_Massimo() const;
  /// Scrolls so that the selected row is seen.
  void Mostra_Scelta();

  void Ingrandisci_Testo(double fattore) override;

  /// Milliseconds that the last picture took.
  double Costo() const { return costo_; }

 protected:
  bool event(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
  enum class Trascina : std::uint8_t { Niente, Cursore, Tempo, Colonna };

  std::optional<Riga_Diagramma> Riga_Sotto(double y) const;
  std::optional<Diagramma_Tempi::Cursore> Cursore_Sotto(double x) const;
  void Scegli_Sotto(const QPointF& punto);
  void Porta_Cursore(const QPointF& punto, bool libero);
  void Di_Mossa();
  double Larga() const { return width() / scala_; }
  double Alta() const { return height() / scala_; }

  Diagramma_Tempi& d_;
  double scorrimento_ = 0, nomi_ = 290;
  double costo_ = 0;
  double scala_ = 1;
  Trascina trascina_ = Trascina::Niente;
  QPointF preso_, premuto_;
};

}  // namespace tavorno
