// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QPagedPaintDevice;

namespace tavorno {

/// The lines of `testo` (ended by CR LF, LF or CR) in at most `colonne` characters each, tabs
/// expanded to the next multiple of eight columns. A longer line goes on in the next one, after a
/// blank near its end where there is one: nothing is cut off and nothing is added. Empty lines at
/// the very end are left out.
QStringList Righe_A_Capo(const QString& testo, int colonne);

/// Pages of at most `righe` lines each; at least one page, which may be empty.
QVector<QStringList> Impagina(const QStringList& testo, int righe);

/// Draws in a fixed-pitch face, each page headed by `titolo` and its number. False when the device
/// cannot be opened or gives up a page.
bool Stampa_Testo(QPagedPaintDevice& carta, const QString& titolo, const QString& testo);

}  // namespace tavorno
