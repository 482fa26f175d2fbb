// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/help_view.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QWheelEvent>
#include <algorithm>

#include "panel/documents/help_folder.h"
#include "panel/documents/help_notices.h"
#include "panel/documents/html_text.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr int ingrandimento_minimo = -4;
constexpr int ingrandimento_massimo = 14;

bool E_Pagina(const QUrl& url) {
  const QString tipo = QFileInfo(url.path()).suffix().toLower();
  return tipo == Q("htm") || tipo == Q("html");
}

/// A style sheet is written for a white page.
QString Con_I_Colori(QString stile) {
  const colori::Serie serie = colori::In_Uso();
  for (const colori::Coppia& coppia : colori::Guida_Stile)
    for (const colori::Tinta& tinta : {coppia.Testo, coppia.Fondo})
      stile.replace(tinta.Di(colori::Carta).name(), tinta.Di(serie).name(), Qt::CaseInsensitive);
  return stile;
}

// A frame with a cross. A refused picture must be one all the same: for a resource that is not
// there the document itself would look on the disk.
QImage Immagine_Mancante() {
  QImage immagine(48, 32, QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  QPainter penna(&immagine);
  penna.setPen(QPen(QColor(colori::Guida_Immagine), 1));
  penna.drawRect(0, 0, 47, 31);
  penna.drawLine(16, 8, 32, 24);
  penna.drawLine(32, 8, 16, 24);
  return immagine;
}

// A drawing could name pictures of its own, which its reader would fetch from anywhere; packed, it
// could hide them.
bool Autonomo(const QByteArray& disegno) {
  static const QRegularExpression immagine(Q("<([\\w.-]+:)?image\\b"));
  return !disegno.startsWith("\x1f\x8b") && !QString::fromLatin1(disegno).contains(immagine);
}

// Drawn with as many dots as the screen has for it.
QImage Disegno(QSvgRenderer& disegno, double punti) {
  QImage immagine((QSizeF(disegno.defaultSize()) * punti).toSize(),
                  QImage::Format_ARGB32_Premultiplied);
  // It is drawn for a white page.
  immagine.fill(colori::In_Uso().Scura ? QColor(colori::Bianco) : QColor(Qt::transparent));
  QPainter penna(&immagine);
  disegno.render(&penna);
  penna.end();
  immagine.setDevicePixelRatio(punti);
  return immagine;
}

}  // namespace

Vista_Aiuto::Vista_Aiuto(const Guida& guida, QWidget* sopra) : QTextBrowser(sopra), guida_(guida) {
  setOpenExternalLinks(false);
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    occupata_ = false;
    pagina_ = url;
    if (Finita) Finita(url);
  });
  Segui_Colori(*this, [this] {
    if (!pagina_.isEmpty()) reload();
  });
}

QString Vista_Aiuto::Titolo() const {
  const QString titolo = documentTitle().trimmed();
  return titolo.isEmpty() ? pagina_.fileName() : titolo;
}

void Vista_Aiuto::Ingrandisci(int passi) {
  ingrandimento_ = std::clamp(ingrandimento_ + passi, ingrandimento_minimo, ingrandimento_massimo);
  Applica_Grandezza();
}

void Vista_Aiuto::Grandezza_Normale() {
  Ingrandisci(-ingrandimento_);
}

void Vista_Aiuto::Ingrandisci_Testo(double fattore) {
  proiezione_ = fattore;
  Applica_Grandezza();
}

void Vista_Aiuto::Applica_Grandezza() {
  QFont carattere = font();
  carattere.setPointSizeF((corpo_ + ingrandimento_) * proiezione_);
  setFont(carattere);
}

QVariant Vista_Aiuto::loadResource(int tipo, const QUrl& nome) {
  const QUrl url = pagina_.resolved(nome);
  if (tipo == QTextDocument::HtmlResource) return Leggi_Pagina(url);
  if (tipo == QTextDocument::ImageResource) return Immagine(url);
  return Con_I_Colori(Decodifica_Html(Leggi(guida_, url).value_or(" ")));
}

// Whatever its name ends in, a page is shown as one.
void Vista_Aiuto::doSetSource(const QUrl& url, QTextDocument::ResourceType /*tipo*/) {
  QTextBrowser::doSetSource(pagina_.resolved(url), QTextDocument::HtmlResource);
}

void Vista_Aiuto::wheelEvent(QWheelEvent* evento) {
  if (!evento->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(evento);
  } else if (evento->angleDelta().y() != 0) {
    Ingrandisci(evento->angleDelta().y() > 0 ? 1 : -1);
    evento->accept();
  }
}

QString Vista_Aiuto::Leggi_Pagina(const QUrl& url) {
  occupata_ = true;
  pagina_ = url;
  if (Comincia) Comincia();
  if (url.scheme() == Q(Schema_Cerca)) return Pagina_Ricerca(guida_, Parole_Cercate(url));
  const auto byte = E_Pagina(url) ? Leggi(guida_, url) : std::nullopt;
  return byte ? Decodifica_Html(*byte) : Pagina_Avviso(guida_, url);
}

QVariant Vista_Aiuto::Immagine(const QUrl& url) const {
  const auto byte = Leggi(guida_, url);
  if (!byte) return Immagine_Mancante();
  if (QSvgRenderer disegno; url.path().endsWith(Q(".svg"), Qt::CaseInsensitive))
    return Autonomo(*byte) && disegno.load(*byte) ? Disegno(disegno, devicePixelRatioF())
                                                  : Immagine_Mancante();
  const QImage immagine = QImage::fromData(*byte);
  return immagine.isNull() ? Immagine_Mancante() : immagine;
}

}  // namespace tavorno
