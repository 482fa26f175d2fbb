// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/compartment.h"

#include <QAccessibleActionInterface>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>

#include "panel/controls/cover.h"
#include "panel/controls/element.h"
#include "plc/plc.h"
#include "widgets/colours.h"
#include "widgets/screen_reader.h"
#include "widgets/twips.h"

namespace tavorno {

/// The cover as something to click.
class Coperchio : public QWidget, public Per_Lettori {
 public:
  static constexpr QSizeF Misura{Px(3990), Px(770)};

  Coperchio(QSvgRenderer& disegni, QWidget* sopra) : QWidget(sopra), disegni_(disegni) {
    setObjectName(QStringLiteral("pic2"));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setToolTip(QStringLiteral("Sportello: un clic lo apre o lo chiude"));
    setAccessibleName(QStringLiteral("Sportello"));
  }

  std::function<void()> Clic;

  Letto Leggi(int /*pezzo*/) const override {
    return {.Nome = accessibleName(),
            .Aiuto = toolTip(),
            .Ruolo = QAccessible::Button,
            .Azione = QAccessibleActionInterface::pressAction()};
  }
  void Esegui(int /*pezzo*/) override { Clic(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pennello(this);
    pennello.setRenderHint(QPainter::Antialiasing);
    disegni_.render(&pennello, QStringLiteral("pic2"), QRectF(rect()));
    if (!hasFocus()) return;
    pennello.scale(width() / Misura.width(), height() / Misura.height());
    Disegna_Fuoco(pennello, QRectF(3, 65.5, 387, 6.5));
  }
  void mousePressEvent(QMouseEvent*) override {}  // the release that follows comes here
  void mouseReleaseEvent(QMouseEvent* evento) override {
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint())) Clic();
  }
  void keyPressEvent(QKeyEvent* evento) override {
    if (evento->key() == Qt::Key_Space || evento->key() == Qt::Key_Return)
      Clic();
    else
      QWidget::keyPressEvent(evento);
  }
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override { update(); }

 private:
  QSvgRenderer& disegni_;
};

namespace {

// Centres in the front, where the picture has the labels.
constexpr QPointF potenziometri[] = {{274, 137}, {338, 137}};
constexpr double leva_run = 122.5, leva_stop = 159.5;
constexpr double gamma_ai = 125.5, gamma_aq = 149.5;

void Disegna_Potenziometro(QPainter& pennello, const QPointF& centro, int valore) {
  pennello.save();
  pennello.translate(centro);
  pennello.setPen(QPen(QColor(colori::Tacca), 1));
  for (int tacca = -135; tacca <= 135; tacca += 45) {
    pennello.save();
    pennello.rotate(tacca);
    pennello.drawLine(QPointF(0, -17), QPointF(0, -14.5));
    pennello.restore();
  }
  QRadialGradient metallo(QPointF(-4, -4), 18);
  metallo.setColorAt(0, colori::Metallo_Chiaro);
  metallo.setColorAt(1, colori::Metallo_Scuro);
  pennello.setPen(QPen(QColor(colori::Led_Bordo), 1));
  pennello.setBrush(metallo);
  pennello.drawEllipse(QPointF(0, 0), 12, 12);
  pennello.rotate(-135 + valore * 270.0 / 255);
  pennello.setPen(QPen(QColor(colori::Indice), 2.5, Qt::SolidLine, Qt::RoundCap));
  pennello.drawLine(QPointF(0, -9.5), QPointF(0, 3));
  pennello.restore();
}

void Disegna_Cursore(QPainter& pennello, const QRectF& cursore) {
  QLinearGradient plastica(cursore.topLeft(), cursore.bottomLeft());
  plastica.setColorAt(0, colori::Metallo_Chiaro);
  plastica.setColorAt(1, colori::Plastica_Scura);
  pennello.setPen(QPen(QColor(colori::Led_Bordo), 0.75));
  pennello.setBrush(plastica);
  pennello.drawRoundedRect(cursore, 1.5, 1.5);
}

}  // namespace

Vano::Vano(const Plc& plc, QSvgRenderer& disegni, QWidget* sopra)
    : QWidget(sopra),
      plc_(plc),
      disegni_(disegni),
      pic2_(new Coperchio(disegni, this)),
      top_(Sportello::Chiuso) {
  setObjectName(QStringLiteral("pic1"));
  pic2_->Clic = [this] {
    if (Clic) Clic();
  };
}

void Vano::Muovi(int top) {
  top_ = top;
  Disponi(*pic2_, QRectF(QPointF(0, Px(top)), Coperchio::Misura), Fattore());
}

void Vano::Mostra_Sportello(bool visibile) {
  pic2_->setVisible(visibile);
}

void Vano::resizeEvent(QResizeEvent*) {
  Muovi(top_);
}

void Vano::paintEvent(QPaintEvent*) {
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.scale(Fattore(), Fattore());
  pennello.translate(-Disegno.topLeft());
  Disegna_Gruppo(pennello, disegni_, QStringLiteral("pic1"));
  Disegna_Comandi(pennello);
}

void Vano::Disegna_Comandi(QPainter& pennello) const {
  const double leva = plc_.PLC_Acceso != 0 ? leva_run : leva_stop;
  Disegna_Cursore(pennello, QRectF(166.5, leva - 5, 12, 10));
  for (int i = 0; i < 2; ++i)
    Disegna_Potenziometro(pennello, potenziometri[i], plc_.Mem_SM[28 + i].Val_B);
  const auto gamma = [&pennello](double y, Scala scala) {
    const double x = scala == Scala::mA_20 ? 453 : 419.5;
    Disegna_Cursore(pennello, QRectF(x, y + 1.5, 23.5, 11));
  };
  gamma(gamma_ai, plc_.Scelte.opzAI);
  gamma(gamma_aq, plc_.Scelte.opzAQ);
}

}  // namespace tavorno
