// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include "ladder/ui/ladder_sheet.h"

class QPagedPaintDevice;

namespace tavorno {

/// Paints the whole sheet on pages, each headed by `titolo` and its number, as wide as the page
/// where the sheet is wider; a network that fits a page is not cut. False when the device gives up.
bool Stampa_Scala(QPagedPaintDevice& carta, const Foglio_Scala& foglio, const QString& titolo);

/// The whole sheet as points, `scala` times its size at 100 %.
QImage Immagine_Scala(const Foglio_Scala& foglio, double scala);

/// Writes the sheet into a file of the kind that its ending tells: pdf, svg or png. Returns why it
/// could not be done; empty: it was.
QString Salva_Scala(const QString& file, const Foglio_Scala& foglio, const QString& titolo,
                    const Nome_Simbolico& nome);

}  // namespace tavorno
