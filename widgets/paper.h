// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>
#include <functional>
#include <string>
#include <string_view>

class QPagedPaintDevice;
class QPrinter;

namespace tavorno {

/// Draws all pages on what it is given; false when that gives up.
using Disegno_Pagine = std::function<bool(QPagedPaintDevice&)>;

/// The pages as the bytes of a PDF file; empty when `disegna` gave up.
QByteArray Come_Pdf(const QPageLayout& foglio, const QString& titolo,
                    const Disegno_Pagine& disegna);

/// Writes a file, as `Scrivi_File` does: path and cause of a failure in UTF-8.
using Scrittura = std::function<std::string(const std::string& file, std::string_view byte)>;

/// Prints the pages; what a printer that is a file gets is written by `scrivi`. False when it
/// cannot be opened or written, or gives up a page.
bool Stampa_Su(QPrinter& stampante, const QString& titolo, const Disegno_Pagine& disegna,
               const Scrittura& scrivi);

}  // namespace tavorno
