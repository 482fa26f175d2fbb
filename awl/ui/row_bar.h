// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QSpinBox;

namespace tavorno {

/// The bar below the texts that asks for the number of a row of the CPU.
class Barra_Riga : public QWidget {
 public:
  struct Legami {
    std::function<void(int)> Vai;
    std::function<void()> Chiusa;  ///< the keyboard is free
  };
  Barra_Riga(Legami legami, QWidget* sopra);

  /// Opens for rows 0 to `ultima`.
  void Apri(int ultima);

 private:
  QSpinBox* numero_;
  QLabel* fino_a_;
};

}  // namespace tavorno
