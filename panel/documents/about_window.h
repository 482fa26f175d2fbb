// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLayout;
class QScrollBar;
class QTimer;

namespace tavorno {

/// The about box, with a tall picture that begins to scroll by itself after two seconds.
class FrmAbaut : public QDialog {
 public:
  explicit FrmAbaut(QWidget* sopra = nullptr);

  void Tick_Timer1();  ///< one step of the scrolling; it stops 100 twips before the end
  void Tick_Timer2();  ///< the pause before it is over

 private:
  QLayout* Crea_Testata();
  QLayout* Crea_Quadro();

  QScrollBar* vsV_;  // its value counts twips of the picture
  QTimer* timer1_;
  QTimer* timer2_;
};

}  // namespace tavorno
