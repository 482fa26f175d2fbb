// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/wrapping_row.h"

#include <QAction>
#include <QEvent>
#include <QToolButton>
#include <algorithm>

namespace tavorno {

namespace {

constexpr int aria = 3;     // pixels between two parts, and two lines
constexpr int stacco = 10;  // pixels of a gap

}  // namespace

Riga_A_Capo::Riga_A_Capo(QWidget* sopra) : QWidget(sopra) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Riga_A_Capo::Metti(QWidget* parte, bool allarga) {
  parte->setParent(this);
  parte->show();
  parti_.push_back({parte, allarga, stacco_});
  stacco_ = false;
  updateGeometry();
}

QToolButton* Riga_A_Capo::Metti(QAction* azione) {
  auto* tasto = new QToolButton;
  tasto->setDefaultAction(azione);
  tasto->setAutoRaise(true);
  tasto->setFocusPolicy(Qt::TabFocus);
  Metti(tasto);
  return tasto;
}

void Riga_A_Capo::Stacco() {
  stacco_ = true;
}

/// Returns the height that all lines take.
int Riga_A_Capo::Disponi(int larga, bool sposta) const {
  std::vector<const Parte*> linea;
  int x = 0, y = 0, alta = 0;
  const auto misura = [](const Parte& parte) {
    return parte.Chi->sizeHint().expandedTo(parte.Chi->minimumSize());
  };
  const auto chiudi = [&] {
    const auto larghe = std::ranges::count_if(linea, &Parte::Allarga);
    const int di_piu = larghe == 0 ? 0 : std::max(0, larga - x) / static_cast<int>(larghe);
    int dove = 0;
    for (const Parte* parte : linea) {
      if (dove > 0) dove += parte->Stacco ? stacco : aria;
      const int suo = std::min(larga, misura(*parte).width() + (parte->Allarga ? di_piu : 0));
      if (sposta) parte->Chi->setGeometry(dove, y, suo, alta);
      dove += suo;
    }
    linea.clear();
  };
  for (const Parte& parte : parti_) {
    if (parte.Chi->isHidden()) continue;
    const QSize suo = misura(parte);
    const int prima = x == 0 ? 0 : parte.Stacco ? stacco : aria;
    if (x > 0 && x + prima + suo.width() > larga) {
      chiudi();
      y += alta + aria;
      x = alta = 0;
    }
    x += (x == 0 ? 0 : prima) + suo.width();
    alta = std::max(alta, suo.height());
    linea.push_back(&parte);
  }
  chiudi();
  return y + alta;
}

QSize Riga_A_Capo::minimumSizeHint() const {
  int larga = 0;
  for (const Parte& parte : parti_) {
    if (!parte.Chi->isHidden())
      larga = std::max(larga, parte.Chi->sizeHint().expandedTo(parte.Chi->minimumSize()).width());
  }
  return {larga, Disponi(std::max(larga, width()), false)};
}

QSize Riga_A_Capo::sizeHint() const {
  return minimumSizeHint();
}

bool Riga_A_Capo::event(QEvent* evento) {
  // A part has another text, came or went.
  if (evento->type() == QEvent::LayoutRequest) Adatta();
  return QWidget::event(evento);
}

void Riga_A_Capo::resizeEvent(QResizeEvent*) {
  Adatta();
}

void Riga_A_Capo::Adatta() {
  const int alta = Disponi(width(), true);
  if (alta != minimumHeight() || alta != maximumHeight()) setFixedHeight(alta);
}

}  // namespace tavorno
