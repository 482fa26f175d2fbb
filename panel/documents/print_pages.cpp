// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/print_pages.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>

#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int passo_tabulazione = 8;
constexpr double punti_carattere = 9.5;
constexpr double interlinea = 1.15;
constexpr int righe_intestazione = 3;  // title, rule, gap

QString Senza_Tabulazioni(const QString& riga) {
  QString estesa;
  for (const QChar carattere : riga) {
    if (carattere == '\t') {
      const auto manca = passo_tabulazione - estesa.size() % passo_tabulazione;
      estesa += QString(manca, ' ');
    } else {
      // Other control characters have no picture and would shift the columns.
      estesa += carattere.category() == QChar::Other_Control ? QChar(' ') : carattere;
    }
  }
  return estesa;
}

// Length of the first part of a line that is longer than `colonne`. A blank in its last quarter is
// a good place to break; before that too much room would be lost.
qsizetype Parte(const QString& riga, qsizetype colonne) {
  const qsizetype blank = riga.lastIndexOf(' ', colonne - 1);
  return blank >= colonne - colonne / 4 ? blank + 1 : colonne;
}

QFont Carattere() {
  QFont font(Q("DejaVu Sans Mono"));
  font.setStyleHint(QFont::Monospace, QFont::PreferMatch);
  font.setFixedPitch(true);
  font.setKerning(false);
  font.setPointSizeF(punti_carattere);
  return font;
}

struct Foglio {
  QRectF Area;  // in dots of the device, from the corner of the printable area
  double Alto_Riga;
  double Base;  // from the top of a line to its base line
};

void Intestazione(QPainter& penna, const Foglio& foglio, const QString& titolo,
                  const QString& pagina) {
  const QRectF riga(0, 0, foglio.Area.width(), foglio.Alto_Riga);
  const QFontMetricsF misure = penna.fontMetrics();
  const double spazio = riga.width() - misure.horizontalAdvance(pagina + Q("  "));
  penna.drawText(riga, Qt::AlignLeft | Qt::AlignVCenter,
                 misure.elidedText(titolo, Qt::ElideMiddle, spazio));
  penna.drawText(riga, Qt::AlignRight | Qt::AlignVCenter, pagina);
  penna.setPen(QPen(colori::Nero.Di(colori::Carta), foglio.Alto_Riga / 20));
  const double sotto = 1.3 * foglio.Alto_Riga;
  penna.drawLine(QPointF(0, sotto), QPointF(riga.width(), sotto));
}

void Disegna_Pagina(QPainter& penna, const Foglio& foglio, const QStringList& righe) {
  double alto = righe_intestazione * foglio.Alto_Riga;
  for (const QString& riga : righe) {
    if (!riga.isEmpty()) penna.drawText(QPointF(0, alto + foglio.Base), riga);
    alto += foglio.Alto_Riga;
  }
}

}  // namespace

QStringList Righe_A_Capo(const QString& testo, int colonne) {
  QString uniforme = testo;
  uniforme.replace(Q("\r\n"), Q("\n")).replace('\r', '\n');
  QStringList righe;
  for (const QString& riga : uniforme.split('\n')) {
    QString resto = Senza_Tabulazioni(riga);
    while (resto.size() > colonne) {
      const qsizetype parte = Parte(resto, colonne);
      righe += resto.left(parte);
      resto.remove(0, parte);
    }
    righe += resto;
  }
  while (!righe.isEmpty() && righe.constLast().isEmpty()) righe.removeLast();
  return righe;
}

QVector<QStringList> Impagina(const QStringList& testo, int righe) {
  QVector<QStringList> pagine;
  for (qsizetype prima = 0; prima < testo.size(); prima += righe) pagine += testo.mid(prima, righe);
  if (pagine.isEmpty()) pagine += QStringList();
  return pagine;
}

bool Stampa_Testo(QPagedPaintDevice& carta, const QString& titolo, const QString& testo) {
  QPainter penna;
  if (!penna.begin(&carta)) return false;
  penna.setFont(Carattere());
  const QFontMetricsF misure(penna.font(), &carta);
  const QRectF area(0, 0, carta.width(), carta.height());
  const Foglio foglio{area, misure.height() * interlinea, misure.ascent()};
  const int colonne = std::max(1, static_cast<int>(area.width() / misure.horizontalAdvance('0')));
  const int righe =
      std::max(1, static_cast<int>(area.height() / foglio.Alto_Riga) - righe_intestazione);
  const QVector<QStringList> pagine = Impagina(Righe_A_Capo(testo, colonne), righe);
  for (qsizetype i = 0; i < pagine.size(); ++i) {
    if (i > 0 && !carta.newPage()) return false;
    Intestazione(penna, foglio, titolo, Q("Pagina %1 di %2").arg(i + 1).arg(pagine.size()));
    Disegna_Pagina(penna, foglio, pagine[i]);
  }
  return penna.end();
}

}  // namespace tavorno
