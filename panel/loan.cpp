// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/loan.h"

#include <QLayout>

namespace tavorno {

Posto_Finestra::Posto_Finestra(const QWidget& finestra)
    : posto_(finestra.geometry()), stato_(finestra.windowState()) {
  // What is maximised goes back to the rectangle that it would go back to anyway.
  if (stato_.testFlag(Qt::WindowMaximized) || stato_.testFlag(Qt::WindowFullScreen))
    posto_ = finestra.normalGeometry();
}

void Posto_Finestra::Rimetti(QWidget& finestra) const {
  finestra.setWindowState(stato_ & ~Qt::WindowActive);
  if (stato_.testFlag(Qt::WindowMaximized) || stato_.testFlag(Qt::WindowFullScreen)) return;
  finestra.setGeometry(posto_);
}

void Lascia_Il_Fuoco(const QWidget& parte) {
  for (const QWidget* sopra = parte.parentWidget(); sopra; sopra = sopra->parentWidget()) {
    QWidget* a_fuoco = sopra->focusWidget();
    if (a_fuoco != nullptr && (a_fuoco == &parte || parte.isAncestorOf(a_fuoco)))
      a_fuoco->clearFocus();
  }
}

Prestito::Prestito(QWidget& vista, const QList<QKeySequence>& anche_qui)
    : vista_(&vista),
      era_finestra_(vista.isWindow()),
      visibile_(!vista.isHidden()),
      fatta_(vista.windowFlags()),
      stato_(vista.windowState()),
      posto_(vista.geometry()),
      minima_(vista.minimumSize()),
      massima_(vista.maximumSize()) {
  if (era_finestra_ && (vista.isMaximized() || vista.isFullScreen()))
    posto_ = vista.normalGeometry();
  if (!era_finestra_) Togli_Dal_Posto();
  Restringi_Tasti(anche_qui);
  vista.setMinimumSize(0, 0);
  vista.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  if (era_finestra_) vista.hide();
}

void Prestito::Togli_Dal_Posto() {
  Lascia_Il_Fuoco(*vista_);
  sopra_ = vista_->parentWidget();
  if (sopra_.isNull() || sopra_->layout() == nullptr) return;
  segnaposto_ = new QWidget(sopra_);
  segnaposto_->hide();
  delete sopra_->layout()->replaceWidget(vista_, segnaposto_);
}

/// In a window that it shares, a key of the view counts only where the view has the focus, and not
/// at all where the window has the same.
void Prestito::Restringi_Tasti(const QList<QKeySequence>& anche_qui) {
  for (QShortcut* tasto : vista_->findChildren<QShortcut*>()) {
    scorciatoie_.push_back({tasto, tasto->context(), tasto->isEnabled()});
    if (anche_qui.contains(tasto->key()))
      tasto->setEnabled(false);
    else if (tasto->context() == Qt::WindowShortcut)
      tasto->setContext(Qt::WidgetWithChildrenShortcut);
  }
}

void Prestito::Rendi(bool mostra) {
  for (const Scorciatoia& una : scorciatoie_) {
    if (una.Chi.isNull()) continue;
    una.Chi->setContext(una.Dove);
    una.Chi->setEnabled(una.Attiva);
  }
  if (vista_.isNull()) return;
  Lascia_Il_Fuoco(*vista_);
  vista_->setMinimumSize(minima_);
  vista_->setMaximumSize(massima_);
  if (era_finestra_) {
    vista_->setParent(nullptr, fatta_);
    // A window that has just been made has no frame yet, and one that is put by its frame's corner
    // comes back higher by it.
    vista_->setGeometry(posto_);
    if (!mostra) return;
    vista_->setWindowState(stato_ & ~Qt::WindowActive);
  } else if (segnaposto_ && sopra_ && sopra_->layout()) {
    delete sopra_->layout()->replaceWidget(segnaposto_, vista_);
    delete segnaposto_;
  } else {
    vista_->setParent(sopra_);
    vista_->setGeometry(posto_);
  }
  vista_->setVisible(visibile_);
}

}  // namespace tavorno
