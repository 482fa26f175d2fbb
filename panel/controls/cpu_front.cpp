// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/controls/cpu_front.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "panel/controls/compartment.h"
#include "panel/controls/element.h"
#include "plc/plc.h"
#include "widgets/colours.h"
#include "widgets/tinting.h"

namespace tavorno {

namespace {

constexpr double x_byte[] = {21, 281};  // where the terminals of byte 0 and byte 1 begin
constexpr double y_uscite = 60, y_ingressi = 180, y_simulatori = 255;
constexpr QRectF posto_spina(0, 249, 640, 61);

struct Lampada {
  QPointF Centro;
  const char* Spenta;
};
constexpr double lato_lampada = 20;
constexpr Lampada lampada_run{{35, 135.5}, "ledSV"};
constexpr Lampada lampada_scan{{35, 151}, "ledSV"};
constexpr Lampada lampada_stop{{35, 166.5}, "ledSG"};

constexpr QRectF Posto_Lampada(const QPointF& centro) {
  return {centro.x() - lato_lampada / 2, centro.y() - lato_lampada / 2, lato_lampada, lato_lampada};
}

QRectF Posto(double x, double y, const QSize& misura) {
  return {QPointF(x, y), QSizeF(misura)};
}

/// Around the LED of a point and the terminal beside it; null where there is none.
QRectF Posto_Morsetto(const QString& morsetto) {
  static const QRegularExpression punto(QStringLiteral("^([IQ])([01])\\.([0-7])$"));
  const QRegularExpressionMatch trovato = punto.match(morsetto);
  if (!trovato.hasMatch()) return {};
  constexpr double primo_led = 65, passo_led = 26, largo = 25;
  const double x =
      x_byte[trovato.captured(2).toInt()] + primo_led + passo_led * trovato.captured(3).toInt();
  const bool uscita = trovato.captured(1) == u"Q";
  return {x - largo / 2, uscita ? 10.0 : 180.0, largo, uscita ? 76.0 : 68.0};
}

// The mounting plate and the rail reach from side to side, however wide the window is.
void Disegna_Parete(QPainter& pennello, double sinistra, double destra, double alto, double basso) {
  pennello.fillRect(QRectF(QPointF(sinistra, alto), QPointF(destra, basso)), colori::Parete);
  constexpr double bordi[] = {76, 88, 91, 159, 162, 174, 178};  // of the rail's stripes
  static_assert(std::size(bordi) == std::size(colori::Rotaia) + 1);
  for (std::size_t n = 0; n < std::size(colori::Rotaia); ++n) {
    QLinearGradient tinta(0, bordi[n], 0, bordi[n + 1]);
    tinta.setColorAt(0, colori::Rotaia[n][0]);
    tinta.setColorAt(1, colori::Rotaia[n][1]);
    pennello.fillRect(QRectF(QPointF(sinistra, bordi[n]), QPointF(destra, bordi[n + 1])), tinta);
  }
}

}  // namespace

Fronte_CPU::Fronte_CPU(Plc& plc, QWidget* sopra)
    : QWidget(sopra),
      disegni_(QStringLiteral(":/panel/cpu.svg")),
      disegni_led_(QStringLiteral(":/panel/led.svg")),
      sportello_(plc.Tempo) {
  // The tab order is that of the making: cover, switches from left to right.
  for (std::size_t i = 0; i < 2; ++i) {
    const int byte = static_cast<int>(i);
    SQ_[i] = new Barra_LED(plc.SQ[i], QStringLiteral("Q%1").arg(i), this);
    SQ_[i]->setObjectName(Con_Indice("SQ", byte));
    SI_[i] = new Barra_LED(plc.SI[i], QStringLiteral("I%1").arg(i), this);
    SI_[i]->setObjectName(Con_Indice("SI", byte));
  }
  imgPL1_ = Crea_Lampada("imgPL1", "ledV2", lampada_run.Centro);
  imgPL2_ = Crea_Lampada("imgPL2", "ledV2", lampada_scan.Centro);
  imgPS_ = Crea_Lampada("imgPS", "ledG2", lampada_stop.Centro);
  imgPL1_->setAccessibleName(QStringLiteral("Spia RUN accesa"));
  imgPL2_->setAccessibleName(QStringLiteral("Spia SCAN accesa"));
  imgPS_->setAccessibleName(QStringLiteral("Spia STOP accesa"));
  setAccessibleName(QStringLiteral("CPU"));
  pic1_ = new Vano(plc, disegni_, this);
  for (std::size_t i = 0; i < 2; ++i) {
    SimI_[i] = new SimI(this);
    SimI_[i]->setObjectName(Con_Indice("SimI", static_cast<int>(i)));
    SimI_[i]->Caption(QStringLiteral("I%1").arg(i));
  }
  SimI_[0]->ForeColor(colori::Scritta_Simulatore);
  SimC_ = new SimC(this);
  SimC_->setObjectName(QStringLiteral("SimC"));
  imgN_ = new Parte(this, QStringLiteral("imgN"), posto_spina, [this](QPainter& pennello) {
    pennello.translate(-posto_spina.topLeft());
    Disegna_Gruppo(pennello, disegni_, QStringLiteral("imgN"));
  });
  imgN_->setAttribute(Qt::WA_TransparentForMouseEvents, false);  // it covers the switches

  segno_ = new Parte(this, QStringLiteral("segno"), QRectF(QPointF(0, 0), QSizeF(Misura)),
                     [this](QPainter& pennello) {
                       QColor velo = colori::Segno_Indicata;
                       pennello.setPen(QPen(velo, 2));
                       velo.setAlphaF(0.18F);
                       pennello.setBrush(velo);
                       for (const QRectF& posto : indicati_) pennello.drawRoundedRect(posto, 5, 5);
                     });
  segno_->setVisible(false);

  pic1_->Clic = [this] { sportello_.Timer1.Enabled(true); };
  sportello_.Mosso = [this] { pic1_->Muovi(sportello_.Top); };
  PLC_Sportello(Modo_Sportello::Interruttori);
  Stato(false);
  Segui_Colori(*this, [this] { Disegna_Fondo(); });
}

Parte* Fronte_CPU::Crea_Lampada(const char* nome, const char* gruppo, const QPointF& centro) {
  return new Parte(this, QString::fromLatin1(nome), Posto_Lampada(centro),
                   [this, gruppo](QPainter& pennello) {
                     disegni_led_.render(&pennello, QString::fromLatin1(gruppo),
                                         QRectF(0, 0, lato_lampada, lato_lampada));
                   });
}

void Fronte_CPU::Stato(bool run) {
  imgPL1_->setVisible(run);
  imgPL2_->setVisible(run);
  imgPS_->setVisible(!run);
  Aggiorna_Vano();
}

void Fronte_CPU::PLC_Sportello(Modo_Sportello modo) {
  const bool aperto = sportello_.Sportello_Aperto != 0;
  const bool impianto = modo == Modo_Sportello::Impianto;
  if (modo == Modo_Sportello::Apri) {
    if (!aperto) sportello_.Timer1.Enabled(true);
  } else if (modo == Modo_Sportello::Chiudi || impianto) {
    if (aperto) sportello_.Timer1.Enabled(true);
  }
  if (!impianto && modo != Modo_Sportello::Interruttori) return;
  for (SimI* interruttori : SimI_) interruttori->setVisible(!impianto);
  SimC_->setVisible(false);
  // The settings may show them again below the plug: out of reach, by keyboard too.
  for (QWidget* coperto : std::initializer_list<QWidget*>{SimI_[0], SimI_[1], SimC_})
    coperto->setEnabled(!impianto);
  pic1_->Mostra_Sportello(!impianto);
  imgN_->setVisible(impianto);
}

void Fronte_CPU::Indica(const QStringList& morsetti) {
  indicati_.clear();
  for (const QString& morsetto : morsetti) {
    const QRectF posto = Posto_Morsetto(morsetto);
    if (!posto.isNull()) indicati_.push_back(posto);
  }
  segno_->setVisible(!indicati_.empty());
  segno_->raise();
  segno_->update();
}

void Fronte_CPU::Aggiorna_Vano() {
  pic1_->update();
}

double Fronte_CPU::Fattore() const {
  const double piena = std::min(width() / static_cast<double>(Misura.width()),
                                height() / static_cast<double>(Misura.height()));
  return std::clamp(piena, Minimo, 2.0);
}

QPointF Fronte_CPU::Origine() const {
  const QSizeF resto = QSizeF(size()) - QSizeF(Misura) * Fattore();
  return {std::max(0.0, resto.width() / 2), std::max(0.0, resto.height() / 2)};
}

void Fronte_CPU::resizeEvent(QResizeEvent*) {
  const double scala = Fattore();
  const QPointF origine = Origine() / scala;
  const auto disponi = [&](QWidget& figlio, const QRectF& posto) {
    Disponi(figlio, posto.translated(origine), scala);
  };
  for (std::size_t i = 0; i < 2; ++i) {
    disponi(*SQ_[i], Posto(x_byte[i], y_uscite, Barra_LED::Misura));
    disponi(*SI_[i], Posto(x_byte[i], y_ingressi, Barra_LED::Misura));
    disponi(*SimI_[i], Posto(x_byte[i], y_simulatori, SimI::Misura));
  }
  disponi(*SimC_, Posto(x_byte[1], y_simulatori, SimC::Misura));
  disponi(*pic1_, Vano::Disegno);
  for (Parte* elemento : {imgPL1_, imgPL2_, imgPS_, imgN_, segno_})
    disponi(*elemento, elemento->Disegno());
  imgN_->resize(width() - imgN_->x(), imgN_->height());  // the cable runs on to the edge
}

void Fronte_CPU::Disegna_Fondo() {
  fondo_ = QPixmap(size() * devicePixelRatioF());
  fondo_.setDevicePixelRatio(devicePixelRatioF());
  QPainter pennello(&fondo_);
  pennello.setRenderHint(QPainter::Antialiasing);
  const double scala = Fattore();
  const QPointF origine = Origine();
  pennello.translate(origine);
  pennello.scale(scala, scala);
  Disegna_Parete(pennello, -origine.x() / scala, (width() - origine.x()) / scala,
                 -origine.y() / scala, (height() - origine.y()) / scala);
  Disegna_Gruppo(pennello, disegni_, QStringLiteral("corpo"));
  for (const Lampada& lampada : {lampada_run, lampada_scan, lampada_stop})
    disegni_led_.render(&pennello, QString::fromLatin1(lampada.Spenta),
                        Posto_Lampada(lampada.Centro));
}

void Fronte_CPU::paintEvent(QPaintEvent*) {
  const QSize punti = size() * devicePixelRatioF();
  if (fondo_.size() != punti) Disegna_Fondo();
  QPainter(this).drawPixmap(0, 0, fondo_);
}

}  // namespace tavorno
