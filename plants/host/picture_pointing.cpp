// SPDX-License-Identifier: GPL-3.0-or-later
// Which part of a picture stands for which terminal, and the mark around a part that is pointed at
// elsewhere.
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "plants/host/picture_widget.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

QStringList Quadro::Leggi_Morsetti(const Figura& figura) {
  static const QRegularExpression indirizzo(
      QStringLiteral("\\b(?:[IQ][01]\\.[0-7]|AIW[024]|AQW[02])\\b"));
  QStringList morsetti = Q(figura.Morsetti).split(' ', Qt::SkipEmptyParts);
  for (auto trovati = indirizzo.globalMatch(Q(figura.ToolTip())); trovati.hasNext();)
    morsetti << trovati.next().captured(0);
  morsetti.removeDuplicates();
  return morsetti;
}

QStringList Quadro::Morsetti_Di(const Figura& figura) const {
  const Vista* vista = Vista_Di(Q(figura.Nome));
  return vista == nullptr ? QStringList() : vista->Morsetti;
}

void Quadro::Indica(const QStringList& morsetti) {
  if (morsetti == indicati_) return;
  indicati_ = morsetti;
  update();
}

void Quadro::Punta(const Figura* figura) {
  const QStringList morsetti = figura == nullptr ? QStringList() : Morsetti_Di(*figura);
  if (morsetti == puntati_) return;
  puntati_ = morsetti;
  if (Indicata) Indicata(morsetti);
}

void Quadro::Segna_Guasti(const QStringList& morsetti) {
  if (morsetti == guasti_) return;
  guasti_ = morsetti;
  update();
}

namespace {

bool Uno_Di(const QStringList& morsetti, const QStringList& quali) {
  return std::ranges::any_of(
      morsetti, [&quali](const QString& morsetto) { return quali.contains(morsetto); });
}

/// A broken wire in a ring, so large at every size of the picture.
void Disegna_Filo_Rotto(QPainter& pittore, const QPointF& centro) {
  constexpr double raggio = 8;
  pittore.setPen(QPen(QColor(colori::Guasto.Testo), 1.8));
  pittore.setBrush(QColor(colori::Guasto.Fondo));
  pittore.drawEllipse(centro, raggio, raggio);
  for (const int verso : {-1, 1}) {
    pittore.drawLine(centro + QPointF(verso * 6, 0), centro + QPointF(verso * 2, 0));
    pittore.drawLine(centro + QPointF(verso * 2 - 1.5, 3.5),
                     centro + QPointF(verso * 2 + 1.5, -3.5));
  }
}

}  // namespace

bool Quadro::E_Indicata(const Vista& vista) const {
  return Uno_Di(vista.Morsetti, indicati_);
}

void Quadro::Disegna_Guasti(QPainter& pittore) {
  if (guasti_.isEmpty()) return;
  for (const Vista& vista : viste_) {
    if (!vista.Di->Visible() || !Uno_Di(vista.Morsetti, guasti_)) continue;
    const QRectF tocco = vista.Disegno == nullptr ? QRectF() : vista.Disegno->Tocco;
    const QRectF posto = tocco.isNull() ? vista.A_Riposo : tocco;
    // At the right, where no labels stand; on what is small, since its own is close by.
    constexpr double piccola = 240;  // twips
    const QPointF da_parte =
        posto.width() < piccola ? QPointF(0, -30) : QPointF(0.45 * posto.width(), 0);
    Disegna_Filo_Rotto(pittore, Origine() + (posto.center() + da_parte) * Scala());
  }
}

void Quadro::Disegna_Indicate(QPainter& pittore) {
  if (indicati_.isEmpty()) return;
  const QColor segno = colori::Segno_Indicata;
  QColor velo = segno;
  velo.setAlphaF(0.14F);
  pittore.setBrush(velo);
  pittore.setPen(QPen(segno, 2.5));
  for (const Vista& vista : viste_) {
    if (!vista.Di->Visible() || !E_Indicata(vista)) continue;
    const auto segna = [&pittore](const QRectF& posto) {
      // What is small gets a mark that can be seen all the same.
      const double manca = std::max(0.0, 14 - std::min(posto.width(), posto.height())) / 2;
      pittore.drawRoundedRect(posto.adjusted(-3 - manca, -3 - manca, 3 + manca, 3 + manca), 6, 6);
    };
    segna(Posto_Mostrato(*vista.Di));
    const QRectF tocco = vista.Disegno == nullptr ? QRectF() : vista.Disegno->Tocco;
    if (!tocco.isNull()) segna({Origine() + tocco.topLeft() * Scala(), tocco.size() * Scala()});
  }
}

}  // namespace tavorno
