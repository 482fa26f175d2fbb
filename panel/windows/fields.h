// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>

#include "widgets/naming.h"

class QPushButton;
class QWidget;

// The parts that the small windows are put together from.
namespace tavorno {

/// A caption that names the value behind it; read aloud with `per` when that is given.
QLabel* Etichetta(const QString& testo, QWidget* per = nullptr);

/// A framed field that shows a value and takes none, wide enough for `caratteri` digits.
QLabel* Campo_Valore(const QString& nome, int caratteri);

/// A button that Enter presses as well as the space bar.
QPushButton* Tasto(const char* nome, const char* testo, const char* suggerimento);

/// Esc closes the window like its close box.
void Chiudi_Con_Esc(QWidget& finestra);

QString Come_Testo(std::int32_t valore);
QString Come_Testo(float valore);  ///< general format, as many digits as the type carries
QString Come_Testo(const std::string& cifre);

/// What a label shows of the memory. The value is compared before it becomes a text, so that a
/// refresh without a change costs one comparison.
template <class T>
class Visto {
 public:
  explicit Visto(QLabel* etichetta) : etichetta_(etichetta) {}

  void Mostra(const T& valore) {
    if (valore_ == valore) return;
    valore_ = valore;
    etichetta_->setText(Come_Testo(valore));
  }

 private:
  QLabel* etichetta_;
  std::optional<T> valore_;
};

}  // namespace tavorno
