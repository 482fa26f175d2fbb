// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QLineEdit>

#include "awl/ui/alt_gr.h"

namespace tavorno {

/// Hands a key on. Where a widget has no command for a combination with Ctrl, Alt or Meta it would
/// write the letter of its key, so that it gets the key without one; but for AltGr.
/// @param senza  `Senza_AltGr` of the key
template <class Tratta>
void Senza_Lettera(QKeyEvent& evento, std::optional<QChar> senza, Tratta tratta) {
  constexpr auto comandano = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((evento.modifiers() & comandano) == 0 || Di_AltGr(evento, senza)) return tratta(evento);
  QKeyEvent senza_lettera(evento.type(), evento.key(), evento.modifiers());
  tratta(senza_lettera);
  evento.setAccepted(senza_lettera.isAccepted());
}

/// A line to write in where Ctrl and Alt only command.
class Campo_Testo : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void keyPressEvent(QKeyEvent* evento) override {
    Senza_Lettera(*evento, Senza_AltGr(*evento),
                  [this](QKeyEvent& tasto) { QLineEdit::keyPressEvent(&tasto); });
  }
};

}  // namespace tavorno
