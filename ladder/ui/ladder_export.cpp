// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_export.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "awl/file_io.h"
#include "ladder/ui/ladder_painter.h"
#include "widgets/colours.h"
#include "widgets/paper.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double pixel_per_pollice = 96;  // of the sheet at 100 %
constexpr double altezza_testata = 30;
constexpr double lato_massimo = 30000;  // of an image, points

void Dipingi(QPainter& pittore, const Rete_Foglio& rete, double larghezza) {
  Dipingi_Rete(pittore, rete, {}, {}, larghezza, colori::Carta);
}

/// The blocks of the sheet, a row each as the bench writes them.
std::vector<Blocco_Scala> Blocchi_Di(const Foglio_Scala& foglio) {
  return Scala_Di(foglio.Righe());
}

}  // namespace

bool Stampa_Scala(QPagedPaintDevice& carta, const Foglio_Scala& foglio, const QString& titolo) {
  QPainter pittore;
  if (!pittore.begin(&carta)) return false;
  pittore.setRenderHint(QPainter::Antialiasing);
  const double punti = carta.logicalDpiX() / pixel_per_pollice;
  const double larga = carta.width() / punti;
  const double alta = carta.height() / punti;
  const double scala = std::min(1.0, larga / foglio.Larghezza());
  const double vano = (alta - altezza_testata) / scala;  // of a page, in the sheet's pixels
  int pagina = 0;
  double y = vano;  // the first network begins a page
  const auto nuova_pagina = [&] {
    if (pagina > 0 && !carta.newPage()) return false;
    ++pagina;
    y = 0;
    pittore.resetTransform();
    pittore.scale(punti, punti);
    pittore.setPen(colori::Scala_Commento.Testo.Di(colori::Carta));
    pittore.setFont(Carattere_Scala(Stile_Scritta::Indirizzo));
    pittore.drawText(QRectF(0, 0, larga, 18), Qt::AlignLeft | Qt::AlignVCenter, titolo);
    pittore.drawText(QRectF(0, 0, larga, 18), Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("Pagina %1").arg(pagina));
    pittore.drawLine(QPointF(0, 20), QPointF(larga, 20));
    return true;
  };
  for (const Rete_Foglio& rete : foglio.Reti()) {
    if (y + rete.Altezza > vano && y > 0 && !nuova_pagina()) return false;
    // A network that is higher than a page goes on at the next one.
    for (double fatto = 0; fatto < rete.Altezza;) {
      const double pezzo = std::min(rete.Altezza - fatto, vano - y);
      pittore.resetTransform();
      pittore.scale(punti, punti);
      pittore.translate(0, altezza_testata);
      pittore.scale(scala, scala);
      pittore.translate(0, y - fatto);
      pittore.setClipRect(QRectF(0, fatto, foglio.Larghezza(), pezzo));
      Dipingi(pittore, rete, foglio.Larghezza());
      pittore.setClipping(false);
      fatto += pezzo;
      y += pezzo;
      if (fatto < rete.Altezza && !nuova_pagina()) return false;
    }
  }
  if (pagina == 0 && !nuova_pagina()) return false;
  return pittore.end();
}

QImage Immagine_Scala(const Foglio_Scala& foglio, double scala) {
  scala = std::min(scala, lato_massimo / std::max(foglio.Larghezza(), foglio.Altezza()));
  QImage immagine(static_cast<int>(std::ceil(foglio.Larghezza() * scala)),
                  static_cast<int>(std::ceil(foglio.Altezza() * scala)), QImage::Format_RGB32);
  immagine.fill(colori::Scala_Testo.Fondo.Di(colori::Carta));
  QPainter pittore(&immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.scale(scala, scala);
  for (const Rete_Foglio& rete : foglio.Reti()) {
    pittore.save();
    pittore.translate(0, rete.Y);
    Dipingi(pittore, rete, foglio.Larghezza());
    pittore.restore();
  }
  return immagine;
}

QString Salva_Scala(const QString& file, const Foglio_Scala& foglio, const QString& titolo,
                    const Nome_Simbolico& nome) {
  QByteArray byte;
  if (file.endsWith(u".svg", Qt::CaseInsensitive)) {
    byte = QByteArray::fromStdString(Documento_Svg(Blocchi_Di(foglio), Utf8(titolo), nome));
  } else if (file.endsWith(u".png", Qt::CaseInsensitive)) {
    constexpr double finezza = 2;
    QBuffer aperto(&byte);
    aperto.open(QIODevice::WriteOnly);
    if (!Immagine_Scala(foglio, finezza).save(&aperto, "PNG")) byte.clear();
  } else {
    const QPageLayout carta(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                            QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    byte = Come_Pdf(carta, titolo,
                    [&](QPagedPaintDevice& su) { return Stampa_Scala(su, foglio, titolo); });
  }
  if (byte.isEmpty()) return QStringLiteral("lo schema non si può disegnare");
  return Q(Scrivi_File(Utf8(file), {byte.data(), static_cast<std::size_t>(byte.size())}));
}

}  // namespace tavorno
