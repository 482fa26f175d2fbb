// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace tavorno {

/// What a window holds, whole as long as there is room for it: a smaller window scrolls instead of
/// cutting off.
class Area_Scorrevole : public QScrollArea {
 public:
  /// `minima`: the least that is worth seeing, pixels.
  Area_Scorrevole(QWidget* dentro, const QSize& minima) : minima_(minima) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(dentro);
    setFocusPolicy(Qt::NoFocus);
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override { return minima_; }

 private:
  QSize minima_;
};

}  // namespace tavorno
