// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QLineEdit>

namespace tavorno {

/// Whether a key with Ctrl or Alt writes all the same: AltGr comes as both of them on Windows,
/// which gives such a combination a text for nothing else.
inline bool Di_AltGr([[maybe_unused]] const QKeyEvent& evento) {
#ifdef Q_OS_WIN
  constexpr auto altgr = Qt::ControlModifier | Qt::AltModifier;
  return (evento.modifiers() & altgr) == altgr && !evento.text().isEmpty() &&
         evento.text().front().isPrint();
#else
  return false;
#endif
}

/// Hands a key on. Where a widget has no command for a combination with Ctrl, Alt or Meta it would
/// write the letter of its key, so that it gets the key without one.
template <class Tratta>
void Senza_Lettera(QKeyEvent& evento, Tratta tratta) {
  constexpr auto comandano = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((evento.modifiers() & comandano) == 0 || Di_AltGr(evento)) return tratta(evento);
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
    Senza_Lettera(*evento, [this](QKeyEvent& tasto) { QLineEdit::keyPressEvent(&tasto); });
  }
};

}  // namespace tavorno
