// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tavorno {

/// A line of text that never pushes its window wider. What has no room is left out, with an
/// ellipsis; a tool tip with the whole text is the caller's.
class Etichetta_Accorciata : public QLabel {
 public:
  /// The ellipsis stands at `dove`; there is always room for `sempre`, in whatever font.
  explicit Etichetta_Accorciata(Qt::TextElideMode dove, QString sempre = {});

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// What is in sight of the text.
  QString Visto() const;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  Qt::TextElideMode dove_;
  QString sempre_;
};

}  // namespace tavorno
