// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/thumbwheel.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "panel/controls/digit_wheel.h"
#include "panel/controls/element.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr double inizio_ruote = 100;

}  // namespace

SimC::SimC(QWidget* sopra) : QWidget(sopra), disegni_(QStringLiteral(":/panel/thumbwheel.svg")) {
  picS2_ =
      new Parte(this, QStringLiteral("picS2"), QRectF(QPointF(0, 0), Misura),
                [this](QPainter& pennello) { Disegna_Piastra(pennello, Misura, BackColor()); });
  etC_ = Crea_Etichetta(this, QStringLiteral("etC"));
  etC_->setFont(Grassetto(etC_->font()));
  decine_ = Crea_Etichetta(this, QStringLiteral("etDecine"));
  decine_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  unita_ = Crea_Etichetta(this, QStringLiteral("etUnita"));
  unita_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  UpD1_ = new Rotella(disegni_, QStringLiteral("UpD1"), QStringLiteral("etC1"), this);
  UpD2_ = new Rotella(disegni_, QStringLiteral("UpD2"), QStringLiteral("etC2"), this);
  for (Rotella* ruota : {UpD1_, UpD2_}) ruota->Cambiata = [this] { Gira(); };

  Caption(QStringLiteral("I1"));
  colore_ = colori::Scritta_Simulatore;
  Segui_Colori(*this, [this] { Ritingi(); });
  SimC_Clear();
}

QString SimC::Caption() const {
  return etC_->text();
}

void SimC::Caption(const QString& testo) {
  etC_->setText(testo);
  // The bits of each digit, as they are written on the terminals.
  decine_->setText(QStringLiteral("%1.4 - .7").arg(testo));
  unita_->setText(QStringLiteral("%1.0 - .3").arg(testo));
  UpD1_->setToolTip(QStringLiteral("Decine: ingressi %1.4 - %1.7").arg(testo));
  UpD2_->setToolTip(QStringLiteral("Unità: ingressi %1.0 - %1.3").arg(testo));
  UpD1_->setAccessibleName(QStringLiteral("Decine %1").arg(testo));
  UpD2_->setAccessibleName(QStringLiteral("Unità %1").arg(testo));
}

QColor SimC::BackColor() const {
  return sfondo_.value_or(QApplication::palette("QMenuBar").color(QPalette::Window));
}

void SimC::BackColor(const QColor& colore) {
  sfondo_ = colore;
  Ritingi();
}

void SimC::ForeColor(const QColor& colore) {
  colore_ = colore;
  Ritingi();
}

/// The given colours, as far as they can be read on one another.
void SimC::Ritingi() {
  picS2_->update();
  Colora(*etC_, colori::Su(colore_, BackColor()));
  for (QLabel* etichetta : {decine_, unita_})
    Colora(*etichetta, colori::Su(palette().color(QPalette::WindowText), BackColor()));
}

void SimC::SimC_Stato(std::string_view testo) {
  stato_ = testo;
  txtI_.Scrivi(stato_, Change);
}

void SimC::Mostra(std::string_view testo) {
  if (testo.size() != 8) return;
  const auto cifra = [](std::string_view una) {
    return std::ranges::find(Testi_Cifre, una) - Testi_Cifre.begin();
  };
  const auto unita = cifra(testo.substr(0, 4)), decine = cifra(testo.substr(4));
  if (unita == std::ssize(Testi_Cifre) || decine == std::ssize(Testi_Cifre)) return;
  UpD1_->Mostra(static_cast<int>(decine));
  UpD2_->Mostra(static_cast<int>(unita));
  stato_ = testo;
  txtI_.Scrivi(testo, {});
}

void SimC::SimC_Clear() {
  UpD1_->Azzera();
  UpD2_->Azzera();
  SimC_Stato("00000000");
}

void SimC::Gira() {
  const auto cifra = [](const Rotella& ruota) {
    return Testi_Cifre[static_cast<std::size_t>(ruota.Value())];
  };
  SimC_Stato(std::string(cifra(*UpD2_)).append(cifra(*UpD1_)));
}

void SimC::resizeEvent(QResizeEvent*) {
  const double scala = width() / static_cast<double>(Misura.width());
  picS2_->Ingrandisci(scala);
  Disponi(*etC_, QRectF(4, 13, 44, 24), scala, 14);
  const QSizeF ruota = Rotella::Misura;
  const double inizio_unita = inizio_ruote + ruota.width();
  Disponi(*UpD1_, QRectF(QPointF(inizio_ruote, 1), ruota), scala);
  Disponi(*UpD2_, QRectF(QPointF(inizio_unita, 1), ruota), scala);
  Disponi(*decine_, QRectF(inizio_ruote - 50, 15, 46, 20), scala, 9);
  Disponi(*unita_, QRectF(inizio_unita + ruota.width() + 4, 15, 60, 20), scala, 9);
}

}  // namespace tavorno
