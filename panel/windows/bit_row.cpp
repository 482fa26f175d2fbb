// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/bit_row.h"

#include <QFontDatabase>
#include <QPainter>
#include <QStringList>

#include "widgets/colours.h"

namespace tavorno {

Riga_Bit::Riga_Bit(const QString& nome, int celle, Contenuto contenuto)
    : celle_(celle), contenuto_(contenuto) {
  setObjectName(nome);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  if (contenuto == Contenuto::Testata) return;
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setAttribute(Qt::WA_OpaquePaintEvent);  // the frame around it needs no drawing anew below it
}

QSize Riga_Bit::sizeHint() const {
  const QFontMetrics misura(font());
  return {celle_ * (misura.horizontalAdvance(QStringLiteral(".0")) + 6), misura.height() + 6};
}

void Riga_Bit::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  const bool cifre = contenuto_ == Contenuto::Cifre;
  const QString testo = text();
  const QStringList parole =
      cifre ? QStringList() : testo.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  QFont grassetto = font();
  grassetto.setBold(true);
  const auto bordo = [this](int k) { return k * (width() - 1) / celle_; };
  if (cifre) pittore.fillRect(rect(), palette().brush(QPalette::Mid));
  for (int k = 0; k < celle_; ++k) {
    const QRect cella(bordo(k) + 1, 1, bordo(k + 1) - bordo(k) - 1, height() - 2);
    if (!cifre) {
      pittore.drawText(cella, Qt::AlignCenter, parole.value(k));
      continue;
    }
    const QString segno = testo.mid(k, 1);
    const bool uno = segno == QLatin1String("1");
    pittore.fillRect(cella, uno ? QBrush(colori::Bit_Uno.Fondo) : palette().brush(QPalette::Base));
    pittore.setFont(uno ? grassetto : font());
    pittore.setPen(uno ? colori::Bit_Uno.Testo : palette().color(QPalette::Text));
    pittore.drawText(cella, Qt::AlignCenter, segno);
  }
}

}  // namespace tavorno
