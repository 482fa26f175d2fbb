// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class QPainter;
class QSvgRenderer;

namespace tavorno {

class Coperchio;
struct Plc;

/// The compartment `pic1` of the CPU with its cover `pic2`: behind the cover stand the mode
/// selector, the two analog potentiometers and the ranges of the analog channels. They show the
/// state of the CPU and cannot be turned here.
class Vano : public QWidget {
 public:
  static constexpr QRectF Disegno{141, 98, 393, 75};  ///< in the front, pixels at 100 %

  /// Both must outlive the compartment.
  Vano(const Plc& plc, QSvgRenderer& disegni, QWidget* sopra);

  std::function<void()> Clic;  ///< the cover was clicked

  /// Moves the cover; `top` in twips.
  void Muovi(int top);
  void Mostra_Sportello(bool visibile);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  double Fattore() const { return width() / Disegno.width(); }
  void Disegna_Comandi(QPainter& pennello) const;

  const Plc& plc_;
  QSvgRenderer& disegni_;
  Coperchio* pic2_;
  int top_;
};

}  // namespace tavorno
