// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QSlider;

namespace tavorno {

/// The numbers under a horizontal slider, each below the place where the thumb stands for it. Both
/// have the same parent, and the slider outlives the scale.
class Scala_Cursore : public QWidget {
 public:
  /// `passo`: difference between two neighbouring numbers.
  Scala_Cursore(const QSlider& cursore, int passo);

  void Passo(int passo);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  const QSlider& cursore_;
  int passo_;
};

}  // namespace tavorno
