// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/html_text.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextDocumentFragment>

#include "widgets/text.h"

namespace tavorno {

QString Decodifica_Html(const QByteArray& byte) {
  QStringDecoder lettore(QStringDecoder::Utf8);
  QString testo = lettore.decode(byte);
  if (!lettore.hasError()) return testo;
  return Da_Byte({byte.constData(), static_cast<std::size_t>(byte.size())});
}

QString Titolo_Html(const QString& html) {
  static const QRegularExpression titolo(
      Q("<title[^>]*>(.*?)</title>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  return Testo_Html(titolo.match(html).captured(1));
}

QString Testo_Html(const QString& html) {
  // A fragment has no document to load pictures and style sheets for.
  QStringList paragrafi;
  for (const QString& riga : QTextDocumentFragment::fromHtml(html).toPlainText().split('\n')) {
    const QString paragrafo = riga.simplified();
    if (!paragrafo.isEmpty()) paragrafi += paragrafo;
  }
  return paragrafi.join('\n');
}

}  // namespace tavorno
