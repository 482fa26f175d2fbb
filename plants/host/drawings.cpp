// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/drawings.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>

#include "widgets/colours.h"

namespace tavorno {

namespace {

constexpr int memoria = 96 * 1024;  // KiB of drawings that are kept
constexpr int periodo = 180;        // twips after which running dashes repeat
constexpr int fasi_flusso = Disegni::Fasi / 2;

QString Leggi(const QString& file) {
  QFile aperto(file);
  return aperto.open(QIODevice::ReadOnly) ? QString::fromUtf8(aperto.readAll()) : QString();
}

/// Hands over every element with an id below the root (`livello` 2) or below its definitions (3).
template <class Azione>
void Per_Ogni_Elemento(const QString& testo, int livello, Azione azione) {
  QXmlStreamReader xml(testo);
  qsizetype inizio = -1;
  QString id;
  bool definizioni = false;
  for (int profondo = 0; !xml.atEnd();) {
    const auto segno = xml.readNext();
    if (segno == QXmlStreamReader::StartElement) {
      ++profondo;
      if (profondo == 2) definizioni = xml.name() == u"defs";
      if (profondo == livello && definizioni == (livello == 3)) {
        id = xml.attributes().value("id").toString();
        inizio = testo.lastIndexOf('<', xml.characterOffset() - 1);
      }
    } else if (segno == QXmlStreamReader::EndElement) {
      if (profondo-- == livello && inizio >= 0) {
        if (!id.isEmpty()) azione(id, testo.mid(inizio, xml.characterOffset() - inizio));
        inizio = -1;
      }
    }
  }
}

QString Attributo(const QString& testo, const QString& nome) {
  const QString inizio = nome + "=\"";
  const auto da = testo.indexOf(inizio);
  if (da < 0 || da > testo.indexOf('>')) return {};
  const auto dentro = da + inizio.size();
  return testo.mid(dentro, testo.indexOf('"', dentro) - dentro);
}

/// "left top width height"
QRectF Come_Rettangolo(const QString& testo) {
  const QStringList numeri = testo.split(' ', Qt::SkipEmptyParts);
  if (numeri.size() != 4) return {};
  return {numeri[0].toDouble(), numeri[1].toDouble(), numeri[2].toDouble(), numeri[3].toDouble()};
}

}  // namespace

QColor Tinta(Colore colore) {
  for (int numero = 0; numero < std::ssize(colori::Figure); ++numero)
    if (Tavolozza(numero) == colore) return colori::Figure[numero];
  return colori::Da_Numero(colore);
}

QColor Tinta_Testo(Colore colore) {
  static const std::map<Colore, const colori::Coppia*> nostre = {
      {Tavolozza(0), &colori::Scritta_Figura},  {Tavolozza(2), &colori::Scritta_Buona},
      {Tavolozza(4), &colori::Scritta_Cattiva}, {Tavolozza(8), &colori::Scritta_Spenta},
      {Tavolozza(10), &colori::Scritta_Buona},  {Tavolozza(12), &colori::Scritta_Cattiva},
  };
  const auto nostra = nostre.find(colore);
  return nostra == nostre.end() ? colori::Da_Numero(colore) : QColor(nostra->second->Testo);
}

Disegni::Disegni(const QString& file) : tenuti_(memoria) {
  QString testo = Leggi(file);
  const QString foglio = Leggi(QStringLiteral(":/plants/symbols.svg"));
  Leggi_Pezzi(testo);
  QString condivisi;
  Per_Ogni_Elemento(foglio, 3, [&](const QString& id, const QString& elemento) {
    simboli_.emplace(id, elemento);
    condivisi += elemento;
  });
  for (auto& [id, pezzo] : pezzi_) Prepara(pezzo);
  // The window library knows no references between files.
  const auto radice = testo.indexOf("<svg");
  const auto dentro = testo.indexOf('>', radice);
  if (radice >= 0 && dentro >= 0) testo.insert(dentro + 1, "<defs>" + condivisi + "</defs>");
  base_ = std::make_unique<QSvgRenderer>(testo.toUtf8());
  if (base_->isValid()) misura_ = base_->viewBoxF();
}

void Disegni::Leggi_Pezzi(const QString& testo) {
  Per_Ogni_Elemento(testo, 3, [this](const QString& id, const QString& elemento) {
    simboli_.emplace(id, elemento);
  });
  Per_Ogni_Elemento(testo, 2, [this](const QString& id, const QString& elemento) {
    Pezzo& pezzo = pezzi_[id];
    pezzo.Id = id;
    pezzo.Testo = elemento;
    pezzo.Con = Attributo(elemento, "data-con").split(' ', Qt::SkipEmptyParts);
    pezzo.Entro = Come_Rettangolo(Attributo(elemento, "data-entro"));
    pezzo.Tocco = Come_Rettangolo(Attributo(elemento, "data-tocco"));
    pezzo.Nome = Attributo(elemento, "data-nome");
    pezzo.Rifiuto = Attributo(elemento, "data-rifiuto");
  });
}

// Symbols refer to symbols; a drawing takes along those that it needs, so that it is read quickly.
void Disegni::Prepara(Pezzo& pezzo) {
  static const QRegularExpression richiamo(QStringLiteral("#([\\w-]+)[\")]"));
  static const QRegularExpression moto(
      QStringLiteral("class=\"(scorre|torna|gira|gira-indietro|volta)\""));
  std::set<QString> presi;
  QString tutto = pezzo.Testo;
  for (QString ancora = tutto; !ancora.isEmpty();) {
    QString nuovi;
    for (auto trovati = richiamo.globalMatch(ancora); trovati.hasNext();) {
      const QString id = trovati.next().captured(1);
      const auto simbolo = simboli_.find(id);
      if (simbolo != simboli_.end() && presi.insert(id).second) nuovi += simbolo->second;
    }
    // What is referred to must come first: the window library resolves it while it reads.
    pezzo.Simboli.prepend(nuovi);
    tutto += nuovi;
    ancora = nuovi;
  }
  pezzo.Colorato = tutto.contains("currentColor") || tutto.contains("class=\"solo-") ||
                   tutto.contains("class=\"non-");
  pezzo.Si_Muove = tutto.contains(moto);
}

const Disegni::Pezzo* Disegni::Trova(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? nullptr : &pezzo->second;
}

QRectF Disegni::Limiti(const Pezzo& pezzo) const {
  if (pezzo.Limiti.isNull()) pezzo.Limiti = base_->boundsOnElement(pezzo.Id);
  return pezzo.Limiti;
}

QRectF Disegni::Limiti(const QString& id) const {
  const Pezzo* pezzo = Trova(id);
  return pezzo == nullptr ? QRectF() : Limiti(*pezzo);
}

QStringList Disegni::Con_Chi(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? QStringList() : pezzo->second.Con;
}

QRectF Disegni::Entro(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? QRectF() : pezzo->second.Entro;
}

QRectF Disegni::Tocco(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? QRectF() : pezzo->second.Tocco;
}

QString Disegni::Nome(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? QString() : pezzo->second.Nome;
}

QString Disegni::Rifiuto(const QString& id) const {
  const auto pezzo = pezzi_.find(id);
  return pezzo == pezzi_.end() ? QString() : pezzo->second.Rifiuto;
}

namespace {

QString In_Posa(QString testo, Colore colore, int fase) {
  static const QRegularExpression solo(QStringLiteral("class=\"(solo|non)-(\\d+)\""));
  for (auto trovato = solo.match(testo); trovato.hasMatch(); trovato = solo.match(testo)) {
    const bool suo =
        (Tavolozza(trovato.captured(2).toInt()) == colore) == (trovato.captured(1) == u"solo");
    testo.replace(trovato.captured(0),
                  suo ? QStringLiteral("opacity=\"1\"") : QStringLiteral("display=\"none\""));
  }
  testo.replace("currentColor", Tinta(colore).name());
  if (fase == 0) return testo;
  const double scorso = static_cast<double>(periodo) * (fase % fasi_flusso) / fasi_flusso;
  testo.replace("class=\"scorre\"", QStringLiteral("stroke-dashoffset=\"%1\"").arg(-scorso));
  testo.replace("class=\"torna\"", QStringLiteral("stroke-dashoffset=\"%1\"").arg(scorso));
  const double gradi = 120.0 * fase / Disegni::Fasi;
  testo.replace("class=\"gira\"", QStringLiteral("transform=\"rotate(%1)\"").arg(gradi));
  testo.replace("class=\"gira-indietro\"", QStringLiteral("transform=\"rotate(%1)\"").arg(-gradi));
  // Seen exactly from the edge, nothing would be left to draw.
  const double largo = std::cos(std::numbers::pi * fase / Disegni::Fasi);
  const double visto = std::abs(largo) < 0.05 ? 0.05 : largo;
  testo.replace("class=\"volta\"", QStringLiteral("transform=\"scale(%1,1)\"").arg(visto));
  return testo;
}

}  // namespace

QString Disegni::Testo(const QString& id, Colore colore, int fase, QString& proprie) const {
  const Pezzo* pezzo = Trova(id);
  if (pezzo == nullptr) return {};
  QString testo = In_Posa(pezzo->Testo, colore, fase);
  QString simboli = In_Posa(pezzo->Simboli, colore, fase);
  if (simboli == pezzo->Simboli) return testo;
  static const QRegularExpression altro(QStringLiteral("[^\\w-]"));
  const QString di = '-' + QString(id).replace(altro, QStringLiteral("-"));
  for (const auto& [nome, simbolo] : simboli_) {
    if (!simboli.contains("id=\"" + nome + '"')) continue;
    simboli.replace("id=\"" + nome + '"', "id=\"" + nome + di + '"');
    for (QString* dove : {&simboli, &testo}) {
      dove->replace('#' + nome + '"', '#' + nome + di + '"');
      dove->replace('#' + nome + ')', '#' + nome + di + ')');
    }
  }
  proprie += simboli + '\n';
  return testo;
}

QString Disegni::Definizioni(const QStringList& ids) const {
  QString tutto;
  for (const QString& id : ids) {
    const auto pezzo = pezzi_.find(id);
    if (pezzo != pezzi_.end()) tutto += pezzo->second.Simboli;
  }
  QString definizioni;
  for (const auto& [id, simbolo] : simboli_) {
    if (tutto.contains("id=\"" + id + '"')) definizioni += simbolo + '\n';
  }
  return definizioni;
}

std::unique_ptr<QSvgRenderer> Disegni::Crea(const Pezzo& pezzo, Colore colore, int fase) const {
  const QString testo =
      QStringLiteral(
          "<svg xmlns=\"http://www.w3.org/2000/svg\" "
          "xmlns:xlink=\"http://www.w3.org/1999/xlink\" viewBox=\"0 0 %1 %2\"><defs>")
          .arg(misura_.width())
          .arg(misura_.height()) +
      In_Posa(pezzo.Simboli, colore, fase) + "</defs>" + In_Posa(pezzo.Testo, colore, fase) +
      "</svg>";
  return std::make_unique<QSvgRenderer>(testo.toUtf8());
}

Disegni::Tenuto Disegni::Tieni(const Pezzo& pezzo, Colore colore, int fase, double schermo) {
  const Chiave chiave{&pezzo, pezzo.Colorato ? Tinta(colore).rgb() : 0, pezzo.Colorato ? colore : 0,
                      pezzo.Si_Muove ? fase : 0};
  if (const Tenuto* tenuto = tenuti_.object(chiave)) return *tenuto;
  const auto disegno = Crea(pezzo, colore, chiave.Fase);
  const QRectF limiti = disegno->boundsOnElement(pezzo.Id);
  const QRectF posto(limiti.topLeft() * scala_tenuti_, limiti.size() * scala_tenuti_);
  // Whole pixels with a margin, so that nothing is cut and nothing is drawn between two pixels.
  const QRect intero = posto.toAlignedRect().adjusted(-1, -1, 1, 1);
  Tenuto tenuto{QPixmap(intero.size() * schermo), intero.topLeft()};
  tenuto.Immagine.setDevicePixelRatio(schermo);
  tenuto.Immagine.fill(Qt::transparent);
  QPainter dentro(&tenuto.Immagine);
  dentro.setRenderHint(QPainter::Antialiasing);
  disegno->render(&dentro, pezzo.Id, posto.translated(-tenuto.Posto));
  dentro.end();
  const double costo = intero.width() * schermo * intero.height() * schermo * 4 / 1024;
  tenuti_.insert(chiave, new Tenuto(tenuto),
                 static_cast<int>(std::clamp(costo, 1.0, memoria / 2.0)));
  return tenuto;
}

bool In_Grassetto(const QString& testo) {
  static const QRegularExpression lettere(QStringLiteral("^[A-Z]{1,2}[0-9]+$"));
  return lettere.match(testo).hasMatch();
}

void Disegni::Disegna(QPainter& pittore, const Pezzo& pezzo, Colore colore, int fase, double scala,
                      const QTransform& posa) {
  if (posa.type() > QTransform::TxTranslate) {
    Teso& teso = tesi_[&pezzo];
    const QRgb resa = Tinta(colore).rgb();
    if (!teso.Disegno || teso.Tinto != colore || teso.Resa != resa) {
      teso = {colore, resa, Crea(pezzo, colore, 0), {}};
      teso.Limiti = teso.Disegno->boundsOnElement(pezzo.Id);
    }
    const QRectF posto(teso.Limiti.topLeft() * scala, teso.Limiti.size() * scala);
    teso.Disegno->render(&pittore, pezzo.Id, posa.mapRect(posto));
    return;
  }
  const double schermo = pittore.device()->devicePixelRatioF();
  if (scala != scala_tenuti_ || schermo != schermo_tenuti_) {
    tenuti_.clear();
    scala_tenuti_ = scala;
    schermo_tenuti_ = schermo;
  }
  const Tenuto tenuto = Tieni(pezzo, colore, fase, schermo);
  const QPointF spostato = tenuto.Posto + QPointF(posa.dx(), posa.dy());
  // Whole dots of the screen keep a moving drawing sharp.
  pittore.drawPixmap(QPointF(std::round(spostato.x() * schermo) / schermo,
                             std::round(spostato.y() * schermo) / schermo),
                     tenuto.Immagine);
}

}  // namespace tavorno
