// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "widgets/screen_reader.h"

class QAbstractButton;
class QLabel;
class QSvgRenderer;

namespace tavorno {

/// One digit of a thumbwheel switch with its keys "NAME.Su" and "NAME.Giu". It also turns with the
/// mouse wheel, the arrow keys and the digit keys.
class Rotella : public QWidget, public Per_Lettori {
 public:
  static constexpr QSize Misura{34, 48};  ///< pixels at 100 %

  /// `nome` is its objectName, `nome_cifra` that of the label. `disegni` must outlive the wheel.
  Rotella(QSvgRenderer& disegni, const QString& nome, const QString& nome_cifra, QWidget* sopra);

  std::function<void()> Cambiata;  ///< another digit stands in the window

  int Value() const { return cifra_; }  ///< 0..9
  /// Turns to a number from -1 to 10, of which the ends wrap: 10 is 0, and -1 is 9.
  void Value(int numero);
  /// One step up (1) or down (-1).
  void Passo(int verso) { Value(cifra_ + verso); }
  /// Turns to 0 without telling.
  void Azzera();
  /// Turns to a digit without telling.
  void Mostra(int cifra);

  Letto Leggi(int pezzo) const override;
  std::optional<Numero_Letto> Leggi_Numero(int pezzo) const override;
  void Metti_Numero(int pezzo, double valore) override;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;

 private:
  QSvgRenderer& disegni_;
  QLabel* etichetta_;
  QAbstractButton* su_;
  QAbstractButton* giu_;
  int cifra_ = 0;
  int resto_ruota_ = 0;  // eighths of a degree of the mouse wheel that make no step yet
};

}  // namespace tavorno
