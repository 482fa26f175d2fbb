// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/windows/thumbwheel_sample.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include "panel/windows/fields.h"
#include "widgets/screen_reader.h"
#include "widgets/text.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr int cifre = 10;

struct Freccia {
  Qt::ArrowType Verso;
  int Passo;
  const char* Suggerimento;
};

constexpr Freccia frecce[] = {{Qt::UpArrow, 1, "Cifra successiva"},
                              {Qt::DownArrow, -1, "Cifra precedente"}};

}  // namespace

Campione_Contraves::Campione_Contraves() : etC1_(new QLabel(Come_Testo(0))) {
  setToolTip(Q("Prova del selettore: una cifra da 0 a 9"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  etC1_->setObjectName("etC1");
  Intitola(*etC1_, Q("Cifra:"));
  etC1_->setAlignment(Qt::AlignCenter);
  QFont carattere = font();
  carattere.setPointSizeF(carattere.pointSizeF() * 1.7);
  carattere.setBold(true);
  etC1_->setFont(carattere);
  Tingi(*etC1_, &colori::Ruota);
  etC1_->setMinimumWidth(QFontMetrics(carattere).horizontalAdvance(QLatin1Char('0')) + 14);

  auto* comandi = new QWidget;
  comandi->setObjectName("UpD1");
  auto* colonna = new QVBoxLayout(comandi);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(2);
  for (const Freccia& freccia : frecce) {
    auto* tasto = new QToolButton;
    tasto->setArrowType(freccia.Verso);
    tasto->setAutoRepeat(true);
    tasto->setFocusPolicy(Qt::StrongFocus);
    tasto->setToolTip(Q(freccia.Suggerimento));
    tasto->setAccessibleName(tasto->toolTip());
    tasto->setFixedSize(26, 20);
    connect(tasto, &QToolButton::clicked, this, [this, passo = freccia.Passo] { Gira(passo); });
    colonna->addWidget(tasto);
  }

  auto* riga = new QHBoxLayout(this);
  riga->setContentsMargins(8, 7, 7, 7);
  riga->setSpacing(6);
  riga->addWidget(etC1_);
  riga->addWidget(comandi);
}

void Campione_Contraves::Gira(int passo) {
  cifra_ = (cifra_ + passo + cifre) % cifre;
  etC1_->setText(Come_Testo(cifra_));
}

void Campione_Contraves::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(QPen(QColor(colori::Ruota_Bordo), 1));
  pittore.setBrush(QColor(colori::Ruota_Cassa));
  pittore.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  // The wheel behind its window: darker towards the edges, where it turns away.
  const QRectF vetro = QRectF(etC1_->geometry());
  QLinearGradient ruota(vetro.topLeft(), vetro.bottomLeft());
  ruota.setColorAt(0, colori::Ruota_Fondo);
  ruota.setColorAt(0.5, colori::Ruota.Fondo);
  ruota.setColorAt(1, colori::Ruota_Fondo);
  pittore.setBrush(ruota);
  pittore.drawRoundedRect(vetro, 2, 2);
}

}  // namespace tavorno
