// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tavorno {

/// A label that shows its text in cells of equal width, one above the other in every row of the
/// same width: the digits of a byte, of which the ones stand out, or the numbers of its bits.
class Riga_Bit : public QLabel {
 public:
  enum class Contenuto { Cifre, Testata };

  /// `celle` places. Of digits each character takes one; of a heading each word between blanks.
  Riga_Bit(const QString& nome, int celle, Contenuto contenuto = Contenuto::Cifre);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  int celle_;
  Contenuto contenuto_;
};

}  // namespace tavorno
