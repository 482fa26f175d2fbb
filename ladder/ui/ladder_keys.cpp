// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard: from symbol to symbol, and typing beside one.
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <limits>

#include "ladder/ui/ladder_view.h"

namespace tavorno {

void Vista_Scala::keyPressEvent(QKeyEvent* evento) {
  if (Muovi(*evento)) return;
  const bool comando =
      (evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const QString testo = evento->text();
  switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Vai_Al_Testo();
    case Qt::Key_F2:
      return Cambia_Scelto();
    case Qt::Key_Insert:
      return evento->modifiers() & Qt::ControlModifier ? Nuova_Rete() : Nuovo_Piolo();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      return evento->modifiers() & Qt::ControlModifier ? Elimina_Piolo() : Elimina();
    default:
      break;
  }
  if (evento->matches(QKeySequence::Undo)) return Annulla(false);
  if (evento->matches(QKeySequence::Redo)) return Annulla(true);
  const bool battuta =
      !comando && !testo.isEmpty() && testo.front().isPrint() && !testo.front().isSpace();
  if (battuta)
    Comincia_Battuta(testo);
  else
    QAbstractScrollArea::keyPressEvent(evento);
}

bool Vista_Scala::Muovi(const QKeyEvent& evento) {
  const bool allunga = (evento.modifiers() & Qt::ShiftModifier) != 0;
  const bool salta = (evento.modifiers() & Qt::ControlModifier) != 0;
  if (rete_ < 0) return false;
  const int ultima_rete = static_cast<int>(foglio_.Reti().size()) - 1;
  switch (evento.key()) {
    case Qt::Key_Left:
      Muovi_Accanto(-1, 0, allunga);
      return true;
    case Qt::Key_Right:
      Muovi_Accanto(1, 0, allunga);
      return true;
    case Qt::Key_Up:
      salta ? Cambia_Rete(-1) : Muovi_Accanto(0, -1, false);
      return true;
    case Qt::Key_Down:
      salta ? Cambia_Rete(1) : Muovi_Accanto(0, 1, false);
      return true;
    case Qt::Key_Home:
      Scegli(salta ? 0 : rete_, 0);
      return true;
    case Qt::Key_End:
      Scegli(salta ? ultima_rete : rete_, std::numeric_limits<int>::max());
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
      QScrollBar& barra = *verticalScrollBar();
      const int passo = evento.key() == Qt::Key_PageUp ? -barra.pageStep() : barra.pageStep();
      const double meta = (barra.value() + passo) / zoom_;
      const auto [da, a] = foglio_.Fra(meta, meta + barra.pageStep() / zoom_);
      const int rete =
          std::clamp(passo < 0 ? static_cast<int>(da) : static_cast<int>(da) + 1, 0, ultima_rete);
      barra.setValue(barra.value() + passo);
      Scegli(passo > 0 && a == foglio_.Reti().size() ? std::max(rete, ultima_rete) : rete, 0);
      return true;
    }
    default:
      return false;
  }
}

/// The next network that has something to choose, or its title.
void Vista_Scala::Cambia_Rete(int passo) {
  const int rete = rete_ + passo;
  if (rete < 0 || rete >= static_cast<int>(foglio_.Reti().size())) return;
  Scegli(rete, 0);
}

/// The nearest symbol in a direction; above the first and below the last row the next network
/// begins.
void Vista_Scala::Muovi_Accanto(int dx, int dy, bool allunga) {
  const Rete_Foglio& rete = Rete(rete_);
  const int da = allunga ? fino_ : scelto_;
  if (da < 0 || da >= rete.Simboli()) {
    if (dy != 0) return Cambia_Rete(dy);
    return Scegli(rete_, dx > 0 ? 0 : rete.Simboli() - 1);
  }
  const QPointF qui = rete.Celle[static_cast<std::size_t>(da)].topLeft();
  int trovato = -1;
  double migliore = std::numeric_limits<double>::max();
  for (int n = 0; n < rete.Simboli(); ++n) {
    const QPointF via = rete.Celle[static_cast<std::size_t>(n)].topLeft() - qui;
    const double avanti = via.x() * dx + via.y() * dy;
    const double fianco = std::abs(via.x() * dy) + std::abs(via.y() * dx);
    // Sideways only to what stands in that row, else the eye loses the place.
    const double peso = dx != 0 ? fianco * 8 : fianco;
    if (avanti < 1 || avanti + peso >= migliore) continue;
    migliore = avanti + peso;
    trovato = n;
  }
  if (trovato < 0) {
    if (dy != 0) Cambia_Rete(dy);
    return;
  }
  if (!allunga) return Scegli(rete_, trovato);
  fino_ = trovato;
  Ridipingi(rete_);
}

}  // namespace tavorno
