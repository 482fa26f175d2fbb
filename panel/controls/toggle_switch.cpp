// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/toggle_switch.h"

#include <QAccessibleActionInterface>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>

#include "panel/controls/element.h"

namespace tavorno {

namespace {

constexpr const char* gruppi[] = {"imgPOFF", "imgPON", "imgP"};
constexpr QSizeF misura(26, 36);

}  // namespace

Interruttore::Interruttore(QSvgRenderer& disegni, QWidget* sopra)
    : QWidget(sopra), disegni_(disegni) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void Interruttore::Mostra(Immagine immagine) {
  const bool girato = (immagine == Immagine::imgPON) != (mostrata_ == Immagine::imgPON);
  mostrata_ = immagine;
  update();
  if (girato) Annuncia_Spunta(*this);
}

Letto Interruttore::Leggi(int) const {
  Letto letto{.Nome = accessibleName(),
              .Aiuto = toolTip(),
              .Ruolo = QAccessible::CheckBox,
              .Azione = QAccessibleActionInterface::toggleAction()};
  letto.Stato.checkable = true;
  letto.Stato.checked = mostrata_ == Immagine::imgPON;
  letto.Stato.pressed = premuto_;
  return letto;
}

void Interruttore::Esegui(int) {
  Premi();
  Lascia();
}

void Interruttore::Premi() {
  if (premuto_) return;
  premuto_ = true;
  prima_ = mostrata_;
  Mostra(Immagine::imgP);
}

void Interruttore::Lascia() {
  if (!premuto_) return;
  premuto_ = false;
  if (Rilasciato) Rilasciato();
}

// A hand that is taken away without letting go, as when the keyboard goes to another window.
void Interruttore::Rinuncia() {
  if (!premuto_) return;
  premuto_ = false;
  Mostra(prima_);
}

void Interruttore::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.scale(width() / misura.width(), height() / misura.height());
  const auto quale = static_cast<std::size_t>(mostrata_);
  disegni_.render(&pennello, gruppi[quale], QRectF(QPointF(0, 0), misura));
  if (hasFocus()) Disegna_Fuoco(pennello, QRectF(QPointF(0, 0), misura).adjusted(1.5, 1, -1.5, -1));
}

void Interruttore::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton) Premi();
}

void Interruttore::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton) Lascia();
}

void Interruttore::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Space)
    QWidget::keyPressEvent(evento);
  else if (!evento->isAutoRepeat())
    Premi();
}

void Interruttore::keyReleaseEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Space)
    QWidget::keyReleaseEvent(evento);
  else if (!evento->isAutoRepeat())
    Lascia();
}

void Interruttore::focusOutEvent(QFocusEvent* evento) {
  Rinuncia();
  QWidget::focusOutEvent(evento);
}

void Interruttore::hideEvent(QHideEvent*) {
  Rinuncia();
}

}  // namespace tavorno
