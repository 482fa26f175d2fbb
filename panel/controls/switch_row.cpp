// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/switch_row.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include "panel/controls/element.h"
#include "panel/controls/toggle_switch.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

using Immagine = Interruttore::Immagine;

constexpr double inizio = 52, passo = 26;

}  // namespace

SimI::SimI(QWidget* sopra) : QWidget(sopra), disegni_(QStringLiteral(":/panel/switch.svg")) {
  picS0_ =
      new Parte(this, QStringLiteral("picS0"), QRectF(QPointF(0, 0), Misura),
                [this](QPainter& pennello) { Disegna_Piastra(pennello, Misura, BackColor()); });
  etC_ = Crea_Etichetta(this, QStringLiteral("etC"));
  etC_->setFont(Grassetto(etC_->font()));
  for (std::size_t i = 0; i < 8; ++i) {
    const int bit = static_cast<int>(i);
    etI_[i] = Crea_Etichetta(this, Con_Indice("etI", bit), QString::number(bit));
    imgI0_[i] = new Interruttore(disegni_, this);
    imgI0_[i]->setObjectName(Con_Indice("imgI0", bit));
    imgI0_[i]->Rilasciato = [this, i] { Rilascia(i); };
    imgI0_[i]->installEventFilter(this);
  }
  Tocca_A(0);
  Caption(QStringLiteral("I0"));
  Segui_Colori(*this, [this] { Ritingi(); });
}

QString SimI::Caption() const {
  return etC_->text();
}

void SimI::Caption(const QString& testo) {
  etC_->setText(testo);
  for (int i = 0; i < 8; ++i) {
    const QString bit = QStringLiteral("%1.%2").arg(testo).arg(i);
    QWidget& interruttore = *imgI0_[static_cast<std::size_t>(i)];
    interruttore.setToolTip(QStringLiteral("Ingresso %1").arg(bit));
    interruttore.setAccessibleName(QStringLiteral("Interruttore %1").arg(bit));
  }
}

Letto SimI::Leggi(int) const {
  return {.Nome = QStringLiteral("Interruttori %1").arg(Caption()),
          .Aiuto = QStringLiteral("Le frecce vanno da uno all'altro, una cifra da 0 a 7 lo cambia"),
          .Ruolo = QAccessible::Grouping};
}

/// Only one of them takes the Tab key.
void SimI::Tocca_A(std::size_t n) {
  tocca_a_ = n;
  for (std::size_t i = 0; i < imgI0_.size(); ++i)
    imgI0_[i]->setFocusPolicy(i == n ? Qt::StrongFocus : Qt::ClickFocus);
}

bool SimI::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn) {
    for (std::size_t i = 0; i < imgI0_.size(); ++i)
      if (imgI0_[i] == oggetto) Tocca_A(i);
  }
  return QWidget::eventFilter(oggetto, evento);
}

/// What the switch that has the keyboard leaves over.
void SimI::keyPressEvent(QKeyEvent* evento) {
  const auto vai = [this](std::size_t n) {
    Tocca_A(n);
    imgI0_[n]->setFocus(Qt::TabFocusReason);
  };
  for (std::size_t i = 0; i < imgI0_.size(); ++i)
    if (imgI0_[i] == focusWidget()) tocca_a_ = i;
  const int tasto = evento->key();
  const std::size_t ultimo = imgI0_.size() - 1;
  if (tasto == Qt::Key_Left && tocca_a_ > 0)
    vai(tocca_a_ - 1);
  else if (tasto == Qt::Key_Right && tocca_a_ < ultimo)
    vai(tocca_a_ + 1);
  else if (tasto == Qt::Key_Home)
    vai(0);
  else if (tasto == Qt::Key_End)
    vai(ultimo);
  else if (tasto >= Qt::Key_0 && tasto <= Qt::Key_7 && !evento->isAutoRepeat())
    imgI0_[static_cast<std::size_t>(tasto - Qt::Key_0)]->Esegui(Tutto);
  else if (tasto != Qt::Key_Left && tasto != Qt::Key_Right)
    return QWidget::keyPressEvent(evento);
}

QColor SimI::BackColor() const {
  return sfondo_.value_or(palette().color(QPalette::Button));
}

void SimI::BackColor(const QColor& colore) {
  sfondo_ = colore;
  Ritingi();
}

QColor SimI::ForeColor() const {
  return colore_.value_or(palette().color(QPalette::ButtonText));
}

void SimI::ForeColor(const QColor& colore) {
  colore_ = colore;
  Ritingi();
}

/// The given colours, as far as they can be read on one another.
void SimI::Ritingi() {
  picS0_->update();
  Colora(*etC_, colori::Su(palette().color(QPalette::ButtonText), BackColor()));
  for (QLabel* etichetta : etI_) Colora(*etichetta, colori::Su(ForeColor(), BackColor()));
}

void SimI::SIMI_Reset() {
  accesi_.fill(false);
  for (Interruttore* interruttore : imgI0_) interruttore->Mostra(Immagine::imgPOFF);
}

void SimI::Mostra(std::string_view testo) {
  for (std::size_t n = 0; n < 8 && n < testo.size(); ++n) {
    accesi_[n] = testo[n] == '1';
    imgI0_[n]->Mostra(accesi_[n] ? Immagine::imgPON : Immagine::imgPOFF);
  }
  stato_ = testo;
  txtI_.Scrivi(testo, {});
}

void SimI::Rilascia(std::size_t n) {
  accesi_[n] = !accesi_[n];
  imgI0_[n]->Mostra(accesi_[n] ? Immagine::imgPON : Immagine::imgPOFF);
  std::string testo;
  for (const bool acceso : accesi_) testo += acceso ? '1' : '0';
  stato_ = testo;
  if (SIMI_Int != 0) txtI_.Scrivi(testo, Change);
}

void SimI::resizeEvent(QResizeEvent*) {
  const double scala = width() / static_cast<double>(Misura.width());
  picS0_->Ingrandisci(scala);
  Disponi(*etC_, QRectF(4, 13, 44, 24), scala, 14);
  for (std::size_t i = 0; i < 8; ++i) {
    const double x = inizio + passo * static_cast<double>(i);
    Disponi(*etI_[i], QRectF(x, 2, passo, 11), scala, 9);
    Disponi(*imgI0_[i], QRectF(x, 13, passo, 36), scala);
  }
}

}  // namespace tavorno
