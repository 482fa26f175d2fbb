// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// What the document about windows and screens tells, held against what the tests of the screens
// measure by the way. It has a column for each screen.
namespace tavorno {

class Finestra_Impianto;

/// Fails where the document tells something else than this window's frame; with
/// TAVORNO_MEASURES=write in the environment it writes the cell anew instead.
void Come_Nel_Documento(const QString& riga, const QWidget& finestra);
/// The same, and how large the plant's picture is drawn.
void Come_Nel_Documento(const QString& riga, Finestra_Impianto& impianto);

}  // namespace tavorno
