// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/status_bar.h"

#include <QEvent>

namespace tavorno {

void Barra_Stato::Metti(Etichetta_Accorciata& campo, bool ultimo) {
  campi_.push_back(&campo);
  addWidget(&campo, ultimo ? 1 : 0);
}

void Barra_Stato::Metti_In_Fondo(Etichetta_Accorciata& campo) {
  in_fondo_ = &campo;
  addPermanentWidget(&campo);
  campo.hide();
}

void Barra_Stato::Adatta() {
  if (in_fondo_ == nullptr) return;
  constexpr int fra_due = 8;  // pixels between two fields, and the grip in the corner
  int larga = in_fondo_->sizeHint().width() + fra_due;
  for (const Etichetta_Accorciata* campo : campi_) larga += campo->sizeHint().width() + fra_due;
  in_fondo_->setVisible(!in_fondo_->text().isEmpty() && larga + 2 * fra_due <= width());
}

bool Barra_Stato::event(QEvent* evento) {
  const bool fatto = QStatusBar::event(evento);
  if (evento->type() == QEvent::Resize || evento->type() == QEvent::LayoutRequest) Adatta();
  return fatto;
}

}  // namespace tavorno
