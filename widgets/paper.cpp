// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/paper.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>

#include "widgets/text.h"

namespace tavorno {

QByteArray Come_Pdf(const QPageLayout& foglio, const QString& titolo,
                    const Disegno_Pagine& disegna) {
  QBuffer byte;
  byte.open(QIODevice::WriteOnly);
  QPdfWriter carta(&byte);
  carta.setTitle(titolo);
  carta.setPageLayout(foglio);
  return disegna(carta) ? byte.data() : QByteArray();
}

bool Stampa_Su(QPrinter& stampante, const QString& titolo, const Disegno_Pagine& disegna,
               const Scrittura& scrivi) {
  if (stampante.outputFormat() != QPrinter::PdfFormat || stampante.outputFileName().isEmpty()) {
    stampante.setDocName(titolo);
    return disegna(stampante) && stampante.printerState() != QPrinter::Error;
  }
  // What writes PDF files by itself says nothing of a disk that fails.
  const QByteArray pdf = Come_Pdf(stampante.pageLayout(), titolo, disegna);
  return !pdf.isEmpty() && scrivi(Utf8(stampante.outputFileName()),
                                  {pdf.data(), static_cast<std::size_t>(pdf.size())})
                               .empty();
}

}  // namespace tavorno
