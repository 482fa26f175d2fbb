// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QPalette>
#include <QRgb>
#include <initializer_list>
#include <utility>

#include "widgets/colours.h"

namespace tavorno {

/// The desktop's colours, until the end of a test.
struct Scrivania {
  QPalette Prima = QApplication::palette();

  Scrivania() = default;
  Scrivania(const Scrivania&) = delete;
  Scrivania& operator=(const Scrivania&) = delete;
  ~Scrivania() {
    colori::Per_Daltonici(false);
    QApplication::setPalette(Prima);
  }

  static void Metti(QRgb finestra, QRgb foglio, QRgb testo) {
    QPalette tinte{QColor(finestra), QColor(finestra)};
    tinte.setColor(QPalette::Base, QColor(foglio));
    tinte.setColor(QPalette::AlternateBase, QColor(finestra));
    for (const QPalette::ColorRole ruolo :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      tinte.setColor(ruolo, QColor(testo));
    QApplication::setPalette(tinte);
  }
  void Scura() const { Metti(0x2a2e32, 0x1b1e20, 0xfcfcfc); }
  void Nera_E_Gialla() const { Metti(0x000000, 0x000000, 0xffff00); }
};

}  // namespace tavorno
