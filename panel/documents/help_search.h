// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace tavorno {

struct Guida;

/// A page in which all the words of a search stand.
struct Trovata {
  QString File;      ///< path of the page
  QString Titolo;    ///< plain text
  QString Estratto;  ///< HTML: the words around the first hit, each hit in `<span class="trovato">`
  int Volte = 0;     ///< hits in the text; one in the title counts as twenty
};

/// Pages that hold every one of `parole` (separated by white space), the best first. Capitals and
/// accents do not matter; a word is also found inside a longer one. No words find nothing.
QVector<Trovata> Cerca(const Guida& guida, const QString& parole);

}  // namespace tavorno
