// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStatusBar>
#include <vector>

#include "widgets/elided_label.h"

namespace tavorno {

/// The status bar of the panel: fields from left to right, and one at the right end that is shown
/// only where the others are whole.
class Barra_Stato : public QStatusBar {
 public:
  using QStatusBar::QStatusBar;

  /// The last one takes what is left.
  void Metti(Etichetta_Accorciata& campo, bool ultimo);
  void Metti_In_Fondo(Etichetta_Accorciata& campo);
  /// After the text of the one at the end has changed; the rest is noticed.
  void Adatta();

 protected:
  bool event(QEvent* evento) override;

 private:
  std::vector<Etichetta_Accorciata*> campi_;
  Etichetta_Accorciata* in_fondo_ = nullptr;
};

}  // namespace tavorno
