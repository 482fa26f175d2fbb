// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>
#include <string>

#include "panel/controls/element.h"
#include "panel/controls/toggle_switch.h"

namespace tavorno {

/// A child by its name, which must exist.
template <class Figlio = QWidget>
Figlio& Figlio_Di(const QWidget& sopra, const QString& nome) {
  auto* figlio = sopra.findChild<Figlio*>(nome);
  if (figlio == nullptr) qFatal("No child named %s", qPrintable(nome));
  return *figlio;
}

inline QString Testo(const QWidget& sopra, const QString& nome) {
  return Figlio_Di<QLabel>(sopra, nome).text();
}

/// A switch of a row. Without signals of its own, its class is known by the cast alone.
inline Interruttore& Leva(const QWidget& riga, int n) {
  return dynamic_cast<Interruttore&>(Figlio_Di<>(riga, Con_Indice("imgI0", n)));
}

/// The pictures of the eight switches as a text: 0 off, 1 on, P held down; leftmost switch 0.
inline std::string Leve(const QWidget& riga) {
  std::string testo;
  for (int n = 0; n < 8; ++n) testo += "01P"[static_cast<int>(Leva(riga, n).Mostrata())];
  return testo;
}

}  // namespace tavorno
