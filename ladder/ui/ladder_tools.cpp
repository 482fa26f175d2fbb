// SPDX-License-Identifier: GPL-3.0-or-later
// The symbols of the tool bar, drawn as in the diagram.
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <array>

#include "ladder/symbols.h"
#include "ladder/ui/ladder_window.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int larga_icona = 40, alta_icona = 26;  // of an icon, pixels
constexpr std::array tasti = {
    Simbolo_Barra{"mnuScNA", "Contatto aperto", "A "},
    Simbolo_Barra{"mnuScNC", "Contatto chiuso", "AN "},
    Simbolo_Barra{"mnuScPA", "Contatto aperto in parallelo", "O "},
    Simbolo_Barra{"mnuScPC", "Contatto chiuso in parallelo", "ON "},
    Simbolo_Barra{"mnuScConf", "Confronto", "AW>= "},
    Simbolo_Barra{"mnuScNot", "Inversione NOT", "NOT"},
    Simbolo_Barra{"mnuScEU", "Fronte di salita", "EU"},
    Simbolo_Barra{"mnuScED", "Fronte di discesa", "ED"},
    Simbolo_Barra{"mnuScBob", "Bobina", "= ", true},
    Simbolo_Barra{"mnuScSet", "Bobina S (set)", "S "},
    Simbolo_Barra{"mnuScReset", "Bobina R (reset)", "R "},
    Simbolo_Barra{"mnuScTON", "Temporizzatore TON", "TON ", true},
    Simbolo_Barra{"mnuScCTU", "Contatore CTU", "CTU "},
    Simbolo_Barra{"mnuScMov", "Trasferimento MOVW", "MOVW "},
};

void Disegna(QPainter& p, const std::string& istr) {
  const Simbolo simbolo = Simbolo_Di(istr);
  const bool accanto = simbolo.Come == Attacco::In_Parallelo;
  const double y = accanto ? 17 : 13;
  const double m = larga_icona / 2.0;
  const bool scatola = simbolo.Cosa == Ruolo::Scatola || simbolo.Cosa == Ruolo::Contatore;
  QString segno = Q(simbolo.Segno);
  const bool negato = segno.startsWith('/');
  if (negato) segno.remove(0, 1);
  if (scatola) {
    const QRectF cornice(3, 3, larga_icona - 4, alta_icona - 6);
    p.drawRect(cornice);
    p.drawLine(QPointF(0, y), QPointF(3, y));
    p.drawText(cornice, Qt::AlignCenter, segno);
    return;
  }
  const double mezzo = segno.size() > 1 ? 15 : 6;
  p.drawLine(QPointF(1, y), QPointF(m - mezzo, y));
  p.drawLine(QPointF(m + mezzo, y), QPointF(larga_icona - 1, y));
  if (accanto) {
    p.drawLine(QPointF(1, 3), QPointF(larga_icona - 1, 3));
    p.drawLine(QPointF(1, 3), QPointF(1, y));
    p.drawLine(QPointF(larga_icona - 1, 3), QPointF(larga_icona - 1, y));
  }
  if (simbolo.Cosa == Ruolo::Bobina) {
    for (const double verso : {-1.0, 1.0}) {
      QPainterPath via(QPointF(m + verso * (mezzo - 3), y - 8));
      via.quadTo(m + verso * (mezzo + 4), y, m + verso * (mezzo - 3), y + 8);
      p.drawPath(via);
    }
  } else {
    p.drawLine(QPointF(m - mezzo, y - 7), QPointF(m - mezzo, y + 7));
    p.drawLine(QPointF(m + mezzo, y - 7), QPointF(m + mezzo, y + 7));
    if (negato) p.drawLine(QPointF(m - mezzo, y + 7), QPointF(m + mezzo, y - 7));
  }
  p.drawText(QRectF(0, y - alta_icona / 2.0, larga_icona, alta_icona), Qt::AlignCenter, segno);
}

}  // namespace

std::span<const Simbolo_Barra> Simboli_Barra() {
  return tasti;
}

QIcon Icona_Simbolo(const std::string& istr) {
  QIcon icona;
  const QColor tratto =
      colori::Su(colori::Scala_Testo.Testo, QGuiApplication::palette().color(QPalette::Button));
  for (const int finezza : {1, 2, 3}) {
    QPixmap punti(larga_icona * finezza, alta_icona * finezza);
    punti.setDevicePixelRatio(finezza);
    punti.fill(Qt::transparent);
    QPainter pittore(&punti);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(tratto, 1.6));
    QFont font = Carattere_Scala(Stile_Scritta::Nome);
    const bool lunga = istr.size() > 3;
    font.setPixelSize(lunga ? (Simbolo_Di(istr).Segno.size() > 3 ? 8 : 9) : 10);
    pittore.setFont(font);
    Disegna(pittore, istr);
    pittore.end();
    icona.addPixmap(punti);
  }
  return icona;
}

}  // namespace tavorno
