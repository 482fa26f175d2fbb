// SPDX-License-Identifier: GPL-3.0-or-later
// The present picture for a sheet of work: as vectors or as points, and the menu that offers both.
#include <QAction>
#include <QBuffer>
#include <QImage>
#include <QMessageBox>
#include <QPainter>
#include <QSettings>
#include <cmath>

#include "awl/file_io.h"
#include "plants/host/picture_widget.h"
#include "widgets/colours.h"
#include "widgets/file_choice.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

constexpr double finezza = 2;  // of a saved image, times its size at 100 %
constexpr const char* chiave_ridotte = "figure/riduci_animazioni";
constexpr const char* nome_preferenze = "tavorno";

QString Numero(double valore) {
  return QString::number(std::round(valore * 100) / 100);
}

QString Didascalia(const Figura& figura, const QRectF& posto) {
  return QStringLiteral(
             "<text x=\"%1\" y=\"%2\" font-family=\"%3\" font-size=\"120\" "
             "font-weight=\"%6\" text-anchor=\"middle\" fill=\"%4\">%5</text>\n")
      .arg(Numero(posto.center().x()), Numero(posto.center().y() + 43), Carattere_Disegni,
           Tinta_Testo(figura.ForeColor()).name(), Q(figura.Caption()).toHtmlEscaped(),
           In_Grassetto(Q(figura.Caption())) ? QStringLiteral("bold") : QStringLiteral("normal"));
}

}  // namespace

void Quadro::Ricorda_Scelta() {
  const QSettings preferenze(nome_preferenze, nome_preferenze);
  scelto_ = preferenze.contains(chiave_ridotte);
  ridotte_ = preferenze.value(chiave_ridotte).toBool();
}

QString Quadro::Come_Svg() const {
  const QSizeF misura = disegni_.Misura().size();
  QStringList gruppi{QStringLiteral("fondo")};
  QString proprie;
  QString corpo = disegni_.Testo(gruppi[0], 0, 0, proprie) + '\n';
  QString ritagli;
  for (const Vista& vista : viste_) {
    const Figura& figura = *vista.Di;
    if (!figura.Visible()) continue;
    const QString gruppo = Gruppo(figura);
    const QTransform posa = Posa(vista, 1);
    if (disegni_.Esiste(gruppo)) {
      gruppi << gruppo;
      const QString testo = disegni_.Testo(gruppo, figura.FillColor(), vista.Fase, proprie);
      const QRectF entro = disegni_.Entro(gruppo);
      QString dentro = posa.isIdentity()
                           ? testo
                           : QStringLiteral("<g transform=\"matrix(%1,0,0,%2,%3,%4)\">%5</g>")
                                 .arg(Numero(posa.m11()), Numero(posa.m22()), Numero(posa.dx()),
                                      Numero(posa.dy()), testo);
      if (!entro.isNull()) {
        ritagli += QStringLiteral(
                       "<clipPath id=\"entro-%1\"><rect x=\"%2\" y=\"%3\" width=\"%4\" "
                       "height=\"%5\"/></clipPath>\n")
                       .arg(gruppo, Numero(entro.x()), Numero(entro.y()), Numero(entro.width()),
                            Numero(entro.height()));
        dentro = QStringLiteral("<g clip-path=\"url(#entro-%1)\">%2</g>").arg(gruppo, dentro);
      }
      corpo += dentro + '\n';
    }
    if (!figura.Caption().empty()) corpo += Didascalia(figura, vista.Ora);
  }
  return QStringLiteral(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<svg xmlns=\"http://www.w3.org/2000/svg\" "
             "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"%1\" height=\"%2\" "
             "viewBox=\"0 0 %3 %4\">\n<defs>\n")
             .arg(Numero(misura.width() / Twip_Per_Pixel), Numero(misura.height() / Twip_Per_Pixel),
                  Numero(misura.width()), Numero(misura.height())) +
         disegni_.Definizioni(gruppi) + proprie + ritagli + "</defs>\n" + corpo + "</svg>\n";
}

QImage Quadro::Come_Immagine(double scala) const {
  QImage immagine((disegni_.Misura().size() * scala / Twip_Per_Pixel).toSize(),
                  QImage::Format_RGB32);
  immagine.fill(colori::Quadro_Fondo.Di(colori::Carta));
  QSvgRenderer disegno(Come_Svg().toUtf8());
  QPainter pittore(&immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  disegno.render(&pittore);
  return immagine;
}

void Quadro::Salva(const QString& tipo) {
  const QString scelto = Chiedi_File(tipo);
  if (scelto.isEmpty()) return;
  const QString file =
      scelto.endsWith('.' + tipo, Qt::CaseInsensitive) ? scelto : scelto + '.' + tipo;
  QByteArray byte;
  if (tipo == u"svg") {
    byte = Come_Svg().toUtf8();
  } else {
    QBuffer dentro(&byte);
    dentro.open(QIODevice::WriteOnly);
    Come_Immagine(finezza).save(&dentro, "PNG");
  }
  const std::string errore =
      Scrivi_File(Utf8(file), {byte.constData(), static_cast<std::size_t>(byte.size())});
  if (!errore.empty())
    QMessageBox::warning(this, QStringLiteral("Errore!"),
                         "La figura non si può salvare in\n" + file + '\n' + Q(errore));
}

QString Quadro::Chiedi_Con_Finestra(const QString& tipo) {
  return Chiedi_Dove_Salvare(this, QStringLiteral("Salva la figura"),
                             tipo == u"svg" ? QStringLiteral("Disegni (*.svg *.SVG)")
                                            : QStringLiteral("Immagini (*.png *.PNG)"));
}

void Quadro::Monta_Voci() {
  const auto voce = [this](const char* nome, const QString& testo, auto azione) {
    auto* nuova = new QAction(testo, this);
    nuova->setObjectName(QLatin1String(nome));
    connect(nuova, &QAction::triggered, this, azione);
    addAction(nuova);
    return nuova;
  };
  voce("mnuSalvaSvg", QStringLiteral("Salva la figura come SVG…"),
       [this] { Salva(QStringLiteral("svg")); });
  voce("mnuSalvaPng", QStringLiteral("Salva la figura come PNG…"),
       [this] { Salva(QStringLiteral("png")); });
  riduci_ = voce("mnuRiduci", QStringLiteral("Riduci animazioni"), [this](bool ridotte) {
    QSettings preferenze(nome_preferenze, nome_preferenze);
    preferenze.setValue(chiave_ridotte, ridotte);
    Riduci_Animazioni(ridotte);
  });
  riduci_->setCheckable(true);
  riduci_->setChecked(ridotte_);
}

}  // namespace tavorno
