// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/led_bar.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMetaObject>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "panel/controls/element.h"
#include "widgets/colours.h"

namespace tavorno {

namespace {

// Rows: green, yellow, red. Columns: with rays, without, dark.
constexpr const char* immagini[3][3] = {
    {"ledV", "ledV2", "ledSV"}, {"ledG", "ledG2", "ledSG"}, {"ledR", "ledR2", "ledSR"}};

constexpr int riga(std::uint8_t tipo) {
  return tipo < 2 ? tipo : 2;
}

constexpr double inizio_led = 52, passo_led = 26, lato_led = 24;

constexpr QRectF Posto_LED(int bit) {
  return {inizio_led + bit * passo_led + (passo_led - lato_led) / 2, 1, lato_led, lato_led};
}

}  // namespace

const char* Barra_LED::Immagine(std::uint8_t tipo, std::uint8_t forma) {
  return immagini[riga(tipo)][forma == 0 ? 0 : 1];
}

Barra_LED::Barra_LED(Barra& barra, const QString& caption, QWidget* sopra)
    : QWidget(sopra),
      barra_(barra),
      disegni_(QStringLiteral(":/panel/led.svg")),
      etC_(Crea_Etichetta(this, QStringLiteral("etC"))),
      annunci_(*this) {
  etC_->setFont(Grassetto(etC_->font()));
  for (int i = 0; i < 8; ++i) {
    const auto pittura = [this](QPainter& pennello) {
      disegni_.render(&pennello, Immagine(tipo_, forma_), QRectF(0, 0, lato_led, lato_led));
    };
    imgLI0_[static_cast<std::size_t>(i)] =
        new Parte(this, Con_Indice("imgLI0", i), Posto_LED(i), pittura);
  }
  Caption(caption);
  ForeColor(colori::Scritta_Led);
  Aggiorna();
  ascolto_ = barra_.Aspetto.Ascolta([this] {
    if (in_attesa_) return;
    in_attesa_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Aggiorna(); }, Qt::QueuedConnection);
  });
}

QString Barra_LED::Caption() const {
  return etC_->text();
}

void Barra_LED::Caption(const QString& testo) {
  etC_->setText(testo);
  setAccessibleName(QStringLiteral("LED %1").arg(testo));
}

void Barra_LED::ForeColor(const QColor& colore) {
  colore_ = colore;
  Colora(*etC_, colore);
}

void Barra_LED::Aggiorna() {
  in_attesa_ = false;
  for (int i = 0; i < 8; ++i)
    imgLI0_[static_cast<std::size_t>(i)]->setVisible((barra_.Accesi() >> i & 1) != 0);
  const unsigned diversi = detti_ ^ barra_.Accesi();
  detti_ = barra_.Accesi();
  for (int i = 0; i < 8; ++i)
    if ((diversi >> i & 1U) != 0) annunci_.Cambiato(i);
  if (barra_.Tipo() == tipo_ && barra_.Forma() == forma_) return;
  tipo_ = barra_.Tipo();
  forma_ = barra_.Forma();
  update();
}

Letto Barra_LED::Leggi(int pezzo) const {
  if (pezzo == Tutto)
    return {.Nome = QStringLiteral("LED %1").arg(Caption()), .Ruolo = QAccessible::Grouping};
  const bool acceso = (Accesi() >> pezzo & 1) != 0;
  return {.Nome = QStringLiteral("LED %1.%2 %3")
                      .arg(Caption())
                      .arg(pezzo)
                      .arg(acceso ? QStringLiteral("acceso") : QStringLiteral("spento")),
          .Ruolo = QAccessible::StaticText,
          .Posto = In_Scala(Posto_LED(pezzo), width() / static_cast<double>(Misura.width()))};
}

std::uint8_t Barra_LED::Accesi() const {
  unsigned accesi = 0;
  for (unsigned i = 0; i < 8; ++i) accesi |= (imgLI0_[i]->isHidden() ? 0U : 1U) << i;
  return static_cast<std::uint8_t>(accesi);
}

bool Barra_LED::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  const auto* aiuto = static_cast<const QHelpEvent*>(evento);
  const double x = aiuto->x() * Misura.width() / static_cast<double>(width());
  const int bit = static_cast<int>((x - inizio_led) / passo_led);
  if (x < inizio_led || bit > 7) {
    QToolTip::hideText();
    evento->ignore();
  } else {
    QToolTip::showText(aiuto->globalPos(), QStringLiteral("%1.%2").arg(Caption()).arg(bit), this);
  }
  return true;
}

void Barra_LED::paintEvent(QPaintEvent* evento) {
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  const double scala_x = width() / static_cast<double>(Misura.width());
  pennello.scale(scala_x, height() / static_cast<double>(Misura.height()));
  pennello.setPen(QPen(QColor(colori::Led_Bordo), 1));
  pennello.setBrush(QColor(colori::Led.Fondo));
  pennello.drawRoundedRect(QRectF(0.5, 0.5, Misura.width() - 1, Misura.height() - 1), 2, 2);
  const QString spento = QString::fromLatin1(immagini[riga(tipo_)][2]);
  for (int i = 0; i < 8; ++i) {
    if (In_Scala(Posto_LED(i), scala_x).intersects(evento->rect()))
      disegni_.render(&pennello, spento, Posto_LED(i));
  }
}

void Barra_LED::resizeEvent(QResizeEvent*) {
  const double scala = width() / static_cast<double>(Misura.width());
  Disponi(*etC_, QRectF(4, 2, 44, 22), scala, 12);
  for (Parte* led : imgLI0_) led->Ingrandisci(scala);
}

}  // namespace tavorno
