// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/icons.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "widgets/colours.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

/// The drawing, with each of its colours moved towards white until it can be seen on the ground.
QByteArray Schiarito(const QString& file, const QColor& fondo) {
  QFile disegno(file);
  if (!disegno.open(QIODevice::ReadOnly)) return {};
  QString testo = QString::fromUtf8(disegno.readAll());
  static const QRegularExpression colore(QStringLiteral("(?:stroke|fill)=\"(#[0-9a-f]+)\""));
  qsizetype da = 0;
  for (auto trovato = colore.match(testo); trovato.hasMatch(); trovato = colore.match(testo, da)) {
    const QString nuovo = colori::Su(QColor(trovato.captured(1)), fondo, colori::Visibile).name();
    testo.replace(trovato.capturedStart(1), trovato.capturedLength(1), nuovo);
    da = trovato.capturedStart(1) + nuovo.size();
  }
  return testo.toUtf8();
}

}  // namespace

QIcon Icona_Di(const QString& nome) {
  const QString file = QStringLiteral(":/icons/%1.svg").arg(nome);
  if (!colori::In_Uso().Scura) return QIcon(file);
  QSvgRenderer disegno(Schiarito(file, QGuiApplication::palette().color(QPalette::Window)));
  QIcon icona;
  for (const int lato : {16, 18, 22, 32, 36, 44, 66}) {  // bars and menus, up to three dots a pixel
    QPixmap foglio(lato, lato);
    foglio.fill(Qt::transparent);
    QPainter pittore(&foglio);
    disegno.render(&pittore);
    pittore.end();
    icona.addPixmap(foglio);
  }
  return icona;
}

void Metti_Icona(QWidget& barra, QAction& azione, const QString& nome) {
  Segui_Colori(barra, [di = QPointer<QAction>(&azione), nome] {
    if (di) di->setIcon(Icona_Di(nome));
  });
}

void Metti_Icona(QAbstractButton& tasto, const QString& nome) {
  Segui_Colori(tasto, [&tasto, nome] { tasto.setIcon(Icona_Di(nome)); });
}

}  // namespace tavorno
