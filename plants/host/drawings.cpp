// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/drawings.h"

#include <QFile>
#include <QPainter>
#include <cmath>

namespace tavorno {

namespace {

QByteArray Leggi(const QString& file) {
  QFile aperto(file);
  return aperto.open(QIODevice::ReadOnly) ? aperto.readAll() : QByteArray();
}

// The definitions of the shared sheet, as the window library knows no references between files.
QByteArray Simboli() {
  const QByteArray foglio = Leggi(QStringLiteral(":/plants/symbols.svg"));
  const auto inizio = foglio.indexOf("<defs>");
  const auto fine = foglio.lastIndexOf("</defs>");
  return inizio < 0 || fine < 0 ? QByteArray() : foglio.mid(inizio, fine - inizio + 7);
}

QByteArray Con_Simboli(QByteArray disegno) {
  const auto radice = disegno.indexOf("<svg");
  const auto dentro = disegno.indexOf('>', radice);
  if (radice < 0 || dentro < 0) return {};
  return disegno.insert(dentro + 1, Simboli());
}

}  // namespace

QColor Tinta(Colore colore) {
  static const std::map<Colore, QColor> nostre = {
      {Tavolozza(1), QColor(0x2b, 0x4c, 0x9b)},  {Tavolozza(2), QColor(0x1f, 0x7a, 0x3c)},
      {Tavolozza(4), QColor(0xa8, 0x24, 0x24)},  {Tavolozza(8), QColor(0x6b, 0x6b, 0x66)},
      {Tavolozza(9), QColor(0x3f, 0x7f, 0xd6)},  {Tavolozza(10), QColor(0x2e, 0x9e, 0x4f)},
      {Tavolozza(11), QColor(0x5b, 0xbf, 0xd0)}, {Tavolozza(12), QColor(0xd3, 0x30, 0x2f)},
      {Tavolozza(14), QColor(0xf2, 0xc2, 0x1b)}, {Tavolozza(15), QColor(0xb9, 0xb4, 0xaa)},
  };
  const auto nostra = nostre.find(colore);
  if (nostra != nostre.end()) return nostra->second;
  return QColor(static_cast<int>(colore & 0xFFU), static_cast<int>(colore >> 8U & 0xFFU),
                static_cast<int>(colore >> 16U & 0xFFU));
}

Disegni::Disegni(const QString& file)
    : testo_(Con_Simboli(Leggi(file))), base_(std::make_unique<QSvgRenderer>(testo_)) {
  if (base_->isValid()) misura_ = base_->viewBoxF();
}

QSvgRenderer& Disegni::Di_Colore(Colore colore) {
  std::unique_ptr<QSvgRenderer>& colorato = colorati_[colore];
  if (!colorato) {
    QByteArray testo = testo_;
    testo.replace("currentColor", Tinta(colore).name().toLatin1());
    colorato = std::make_unique<QSvgRenderer>(testo);
  }
  return *colorato;
}

void Disegni::Disegna(QPainter& pittore, const QString& id, Colore colore, double scala,
                      const QTransform& posa) {
  if (!Esiste(id)) return;
  QSvgRenderer& disegno = Di_Colore(colore);
  const QRectF limiti = disegno.boundsOnElement(id);
  const QRectF posto(limiti.topLeft() * scala, limiti.size() * scala);
  if (posa.type() > QTransform::TxTranslate) {
    disegno.render(&pittore, id, posa.mapRect(posto));
    return;
  }
  const double schermo = pittore.device()->devicePixelRatioF();
  if (scala != scala_tenuti_ || schermo != schermo_tenuti_) {
    tenuti_.clear();
    scala_tenuti_ = scala;
    schermo_tenuti_ = schermo;
  }
  Tenuto& tenuto = tenuti_[{id, colore}];
  if (tenuto.Immagine.isNull()) {
    // Whole pixels with a margin, so that nothing is cut and nothing is drawn between two pixels.
    const QRect intero = posto.toAlignedRect().adjusted(-1, -1, 1, 1);
    tenuto.Posto = intero;
    tenuto.Immagine = QPixmap(intero.size() * schermo);
    tenuto.Immagine.setDevicePixelRatio(schermo);
    tenuto.Immagine.fill(Qt::transparent);
    QPainter dentro(&tenuto.Immagine);
    dentro.setRenderHint(QPainter::Antialiasing);
    disegno.render(&dentro, id, posto.translated(-tenuto.Posto.topLeft()));
  }
  const QPointF spostato = tenuto.Posto.topLeft() + QPointF(posa.dx(), posa.dy());
  // Whole dots of the screen keep a moving drawing sharp.
  pittore.drawPixmap(QPointF(std::round(spostato.x() * schermo) / schermo,
                             std::round(spostato.y() * schermo) / schermo),
                     tenuto.Immagine);
}

}  // namespace tavorno
