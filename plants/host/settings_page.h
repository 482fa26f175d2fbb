// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <vector>

#include "plants/link.h"

class QBoxLayout;
class QGroupBox;
class QSlider;

namespace tavorno {

/// The sliders of an exercise, each in its frame with numbers at its ticks: side by side where
/// there is room, else one above the other.
class Pagina_Impostazioni : public QScrollArea {
 public:
  /// The link must outlive it.
  explicit Pagina_Impostazioni(Collegamento& fili, QWidget* sopra = nullptr);

  /// Shows the sliders as the wires have them.
  void Specchia();

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QGroupBox* Crea_Cursore(std::size_t numero);

  Collegamento& fili_;
  QBoxLayout* posti_;
  std::vector<QSlider*> cursori_;  // in the order of the exercise's table
};

}  // namespace tavorno
