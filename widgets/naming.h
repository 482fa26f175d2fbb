// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QObject>
#include <QString>

// What every window does to its controls.
namespace tavorno {

/// The name of a control of an array: "SimI(0)".
inline QString Con_Indice(const char* nome, int indice) {
  return QStringLiteral("%1(%2)").arg(QString::fromUtf8(nome)).arg(indice);
}

/// Gives a control its fixed name and returns it.
template <class Controllo>
Controllo* Chiama(const QString& nome, Controllo* controllo) {
  controllo->setObjectName(nome);
  return controllo;
}

inline QFont Grassetto(QFont carattere) {
  carattere.setBold(true);
  return carattere;
}

/// Figures of one width, for values that change while one looks at them.
inline QFont Carattere_Fisso(int punti = 9) {
  QFont carattere(QStringLiteral("DejaVu Sans Mono"), punti);
  carattere.setStyleHint(QFont::Monospace);
  return carattere;
}

}  // namespace tavorno
