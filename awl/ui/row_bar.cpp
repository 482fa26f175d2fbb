// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/row_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <utility>

#include "awl/ui/text_field.h"
#include "widgets/naming.h"

namespace tavorno {

namespace {

class Numero_Riga : public QSpinBox {
 public:
  Numero_Riga() { setLineEdit(new Campo_Testo); }
};

}  // namespace

Barra_Riga::Barra_Riga(Legami legami, QWidget* sopra)
    : QWidget(sopra),
      numero_(Chiama<QSpinBox>(QStringLiteral("numRiga"), new Numero_Riga)),
      fino_a_(Chiama(QStringLiteral("etRiga"), new QLabel)) {
  setObjectName(QStringLiteral("barRiga"));
  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(6, 2, 6, 2);
  numero_->setAccessibleName(QStringLiteral("Numero della riga della CPU"));
  numero_->setToolTip(
      QStringLiteral("Il numero che la riga ha nel margine e nella CPU. "
                     "Invio va alla riga, Esc chiude"));
  auto* tasto = Chiama(QStringLiteral("cmdRiga"), new QPushButton(QStringLiteral("Vai")));
  tasto->setToolTip(QStringLiteral("Va alla riga (Invio)"));
  riga->addWidget(new QLabel(QStringLiteral("Riga della CPU:")));
  riga->addWidget(numero_);
  riga->addWidget(fino_a_);
  riga->addWidget(tasto);
  riga->addStretch(1);
  hide();
  const auto chiudi = [this, chiusa = legami.Chiusa] {
    hide();
    chiusa();
  };
  const auto parti = [this, chiudi, vai = std::move(legami.Vai)] {
    chiudi();
    vai(numero_->value());
  };
  connect(tasto, &QPushButton::clicked, this, parti);
  const auto tasti = [this](Qt::Key quale, const std::function<void()>& comando) {
    auto* scorciatoia = new QShortcut(QKeySequence(quale), this);
    scorciatoia->setContext(Qt::WidgetWithChildrenShortcut);
    connect(scorciatoia, &QShortcut::activated, this, comando);
  };
  tasti(Qt::Key_Return, parti);
  tasti(Qt::Key_Enter, parti);
  tasti(Qt::Key_Escape, chiudi);
}

void Barra_Riga::Apri(int ultima) {
  numero_->setRange(0, ultima);
  fino_a_->setText(QStringLiteral("(da 0 a %1)").arg(ultima));
  show();
  numero_->setFocus(Qt::ShortcutFocusReason);
  numero_->selectAll();
}

}  // namespace tavorno
