// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/ui/diagram_canvas.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

using Quale = Diagramma_Tempi::Cursore;
using Tipo = Pezzo_Disegno::Tipo;

constexpr double presa = 6;  // pixels within which a cursor is caught, and an edge
constexpr double nomi_minimi = 150;
constexpr double un_giro = 120;  // of a wheel, in its units
constexpr double zoom_di_un_giro = 1.25;

QFont Carattere(const QFont& base, double corpo, bool grassetto) {
  QFont carattere = base;
  carattere.setPixelSize(static_cast<int>(std::lround(corpo)));
  carattere.setBold(grassetto);
  return carattere;
}

QColor Colore_Di(Tinta_Tempi tinta, colori::Serie serie) {
  return colori::Tempi[static_cast<std::size_t>(tinta)].Di(serie);
}

/// Strokes on the middle of a pixel are sharp.
QPolygonF Netti(const std::vector<Punto_Disegno>& punti) {
  QPolygonF poligono;
  poligono.reserve(static_cast<qsizetype>(punti.size()));
  for (const Punto_Disegno& punto : punti)
    poligono << QPointF(std::floor(punto.X) + 0.5, std::floor(punto.Y) + 0.5);
  return poligono;
}

void Dipingi_Testo(QPainter& pittore, const Pezzo_Disegno& pezzo, const QFont& base,
                   colori::Serie serie) {
  const QString testo = Q(pezzo.Testo);
  pittore.setFont(Carattere(base, pezzo.Corpo, pezzo.Grassetto));
  pittore.setPen(Colore_Di(pezzo.Tinta, serie));
  double x = pezzo.Punti[0].X;
  if (pezzo.Dove != Pezzo_Disegno::Ancora::Sinistra) {
    const double larga = pittore.fontMetrics().horizontalAdvance(testo);
    x -= pezzo.Dove == Pezzo_Disegno::Ancora::Mezzo ? larga / 2 : larga;
  }
  pittore.drawText(QPointF(x, pezzo.Punti[0].Y), testo);
}

}  // namespace

void Dipingi(QPainter& pittore, const Disegno_Tempi& disegno, colori::Serie serie) {
  const QFont base = pittore.font();
  for (const Pezzo_Disegno& pezzo : disegno) {
    switch (pezzo.Cosa) {
      case Tipo::Rettangoli:
        pittore.setRenderHint(QPainter::Antialiasing, false);
        for (std::size_t n = 0; n + 1 < pezzo.Punti.size(); n += 2) {
          const Punto_Disegno &uno = pezzo.Punti[n], &due = pezzo.Punti[n + 1];
          pittore.fillRect(QRectF(QPointF(uno.X, uno.Y), QPointF(due.X, due.Y)),
                           Colore_Di(pezzo.Tinta, serie));
        }
        break;
      case Tipo::Spezzata:
        pittore.setRenderHint(QPainter::Antialiasing);
        pittore.setPen(QPen(Colore_Di(pezzo.Tinta, serie), pezzo.Spessore,
                            pezzo.Tratteggio ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap,
                            Qt::RoundJoin));
        pittore.drawPolyline(Netti(pezzo.Punti));
        break;
      case Tipo::Area:
        pittore.setRenderHint(QPainter::Antialiasing);
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(Colore_Di(pezzo.Tinta, serie));
        pittore.drawPolygon(Netti(pezzo.Punti));
        break;
      case Tipo::Testo:
        Dipingi_Testo(pittore, pezzo, base, serie);
        break;
    }
  }
}

Tela_Tempi::Tela_Tempi(Diagramma_Tempi& diagramma) : d_(diagramma) {
  setObjectName(QStringLiteral("picTempi"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setMinimumSize(320, 90);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(QStringLiteral("Diagramma dei tempi"));
}

void Tela_Tempi::Ingrandisci_Testo(double fattore) {
  if (fattore == scala_) return;
  scala_ = fattore;
  d_.Larga(Misura().Onde());
  Scorri(scorrimento_);
  Di_Mossa();
}

Misura_Disegno Tela_Tempi::Misura() const {
  const QFontMetricsF lettere(Carattere(font(), 12, false));
  return {.Larga = Larga(),
          .Alta = Alta(),
          .Nomi = std::min(nomi_, Larga() * 0.6),
          .Scorrimento = scorrimento_,
          .Per_Lettera = lettere.horizontalAdvance(QStringLiteral("0123456789,xso")) / 14};
}

double Tela_Tempi::Scorrimento_Massimo() const {
  return std::max(0.0, d_.Alto() + Misura_Disegno::Asse - Alta());
}

void Tela_Tempi::Scorri(double y) {
  scorrimento_ = std::clamp(y, 0.0, Scorrimento_Massimo());
  update();
}

void Tela_Tempi::Mostra_Scelta() {
  const auto riga = d_.Riga_Scelta();
  if (!riga) return;
  const double alta = Alta() - Misura_Disegno::Asse;
  Scorri(std::clamp(scorrimento_, riga->Y + riga->Alta - alta, riga->Y));
}

void Tela_Tempi::paintEvent(QPaintEvent*) {
  QElapsedTimer orologio;
  orologio.start();
  QPainter pittore(this);
  pittore.scale(scala_, scala_);
  Dipingi(pittore, Disegna(d_, Misura()), colori::In_Uso());
  if (d_.Gruppi().empty()) {
    pittore.setFont(Carattere(font(), 13, false));
    pittore.setPen(Colore_Di(Tinta_Tempi::Tenue, colori::In_Uso()));
    pittore.drawText(
        QRectF(20, 20, Larga() - 40, Alta() - 40), Qt::AlignCenter | Qt::TextWordWrap,
        QStringLiteral("Nessun segnale.\n\nApri un impianto, carica un programma nella "
                       "CPU, o scegli i segnali con Ins."));
  }
  costo_ = static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

void Tela_Tempi::resizeEvent(QResizeEvent*) {
  d_.Larga(Misura().Onde());
  Scorri(scorrimento_);
  Di_Mossa();
}

void Tela_Tempi::Di_Mossa() {
  update();
  if (Mossa) Mossa();
}

std::optional<Riga_Diagramma> Tela_Tempi::Riga_Sotto(double y) const {
  if (y < Misura_Disegno::Asse) return {};
  return d_.Riga_A(y - Misura_Disegno::Asse + scorrimento_);
}

std::optional<Quale> Tela_Tempi::Cursore_Sotto(double x) const {
  const double nell_onda = x - Misura().Nomi;
  for (const Quale quale : {d_.Attivo, Quale::A, Quale::B}) {
    const auto& posto = d_.Posto(quale);
    if (posto && std::abs(d_.Vista.X(static_cast<double>(*posto)) - nell_onda) <= presa)
      return quale;
  }
  return {};
}

void Tela_Tempi::Porta_Cursore(const QPointF& punto, bool libero) {
  const double x = std::clamp(punto.x() - Misura().Nomi, 0.0, d_.Vista.Larga);
  d_.Metti(d_.Attivo, d_.Aggancia(x, Riga_Sotto(punto.y()), libero ? 0 : presa));
  Di_Mossa();
}

void Tela_Tempi::Scegli_Sotto(const QPointF& punto) {
  const auto riga = Riga_Sotto(punto.y());
  if (!riga) return;
  const auto righe = d_.Righe();
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (righe[n].Gruppo == riga->Gruppo && righe[n].Voce == riga->Voce) d_.Scegli(n);
  }
}

void Tela_Tempi::mousePressEvent(QMouseEvent* evento) {
  const QPointF punto = (evento->position() / scala_);
  const bool nei_nomi = punto.x() < Misura().Nomi;
  preso_ = premuto_ = punto;
  if (std::abs(punto.x() - Misura().Nomi) <= 3) {
    trascina_ = Trascina::Colonna;
    return;
  }
  if (!nei_nomi && evento->button() != Qt::LeftButton) {
    trascina_ = Trascina::Tempo;
    setCursor(Qt::ClosedHandCursor);
    return;
  }
  if (evento->button() != Qt::LeftButton) return;
  Scegli_Sotto(punto);
  const auto riga = Riga_Sotto(punto.y());
  if (riga && riga->Titolo() && nei_nomi) {
    d_.Piega();
    Scorri(scorrimento_);
  }
  if (nei_nomi) return Di_Mossa();
  const auto preso = Cursore_Sotto(punto.x());
  const bool secondo = evento->modifiers().testFlag(Qt::ShiftModifier);
  if (secondo)
    d_.Attivo = Quale::B;
  else if (preso)
    d_.Attivo = *preso;
  else
    d_.Attivo = Quale::A;
  trascina_ = Trascina::Cursore;
  if (!preso || secondo) Porta_Cursore(punto, evento->modifiers().testFlag(Qt::AltModifier));
  Di_Mossa();
}

void Tela_Tempi::mouseMoveEvent(QMouseEvent* evento) {
  const QPointF punto = (evento->position() / scala_);
  switch (trascina_) {
    case Trascina::Cursore:
      return Porta_Cursore(punto, evento->modifiers().testFlag(Qt::AltModifier));
    case Trascina::Tempo:
      d_.Sposta(preso_.x() - punto.x());
      preso_ = punto;
      return Di_Mossa();
    case Trascina::Colonna:
      nomi_ = std::clamp(punto.x(), nomi_minimi, std::max(nomi_minimi, Larga() * 0.6));
      d_.Larga(Misura().Onde());
      return Di_Mossa();
    case Trascina::Niente:
      break;
  }
  const bool confine = std::abs(punto.x() - Misura().Nomi) <= 3;
  const bool cursore = punto.x() > Misura().Nomi && Cursore_Sotto(punto.x());
  setCursor(confine || cursore ? Qt::SplitHCursor : Qt::ArrowCursor);
}

/// The right button moves time when it is dragged, and asks for the menu when it is not.
void Tela_Tempi::mouseReleaseEvent(QMouseEvent* evento) {
  trascina_ = Trascina::Niente;
  unsetCursor();
  const QPointF punto = (evento->position() / scala_);
  const bool fermo = (punto - premuto_).manhattanLength() <= presa;
  if (evento->button() != Qt::RightButton || !fermo || !Vuole_Menu) return;
  Scegli_Sotto(punto);
  if (punto.x() >= Misura().Nomi) Porta_Cursore(punto, false);
  Di_Mossa();
  Vuole_Menu(evento->globalPosition().toPoint());
}

/// The mouse has its say above; this is the key.
void Tela_Tempi::contextMenuEvent(QContextMenuEvent* evento) {
  if (evento->reason() != QContextMenuEvent::Keyboard || !Vuole_Menu) return;
  const double x = d_.Posto(d_.Attivo) ? d_.Vista.X(static_cast<double>(*d_.Posto(d_.Attivo)))
                                       : d_.Vista.Larga / 2;
  const auto riga = d_.Riga_Scelta();
  const double y = riga ? riga->Y + riga->Alta - scorrimento_ : 0;
  Vuole_Menu(mapToGlobal((QPointF(Misura().Nomi + std::clamp(x, 0.0, d_.Vista.Larga),
                                  std::clamp(Misura_Disegno::Asse + y, 0.0, Alta())) *
                          scala_)
                             .toPoint()));
}

void Tela_Tempi::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (!Riga_Sotto((evento->position() / scala_).y()) && Vuole_Segnali) Vuole_Segnali();
}

void Tela_Tempi::wheelEvent(QWheelEvent* evento) {
  const QPoint giro = evento->angleDelta();
  const double x = (evento->position() / scala_).x() - Misura().Nomi;
  const Qt::KeyboardModifiers tasti = evento->modifiers();
  if (x < 0 || tasti.testFlag(Qt::ControlModifier)) {
    Scorri(scorrimento_ - giro.y() / un_giro * 60);
  } else if (tasti.testFlag(Qt::ShiftModifier) || giro.y() == 0) {
    const int passo = giro.y() != 0 ? giro.y() : giro.x();
    d_.Sposta(-passo / un_giro * d_.Vista.Larga / 10);
  } else {
    d_.Zoom(std::pow(zoom_di_un_giro, -giro.y() / un_giro), x);
  }
  evento->accept();
  Di_Mossa();
}

bool Tela_Tempi::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  const auto* aiuto = static_cast<QHelpEvent*>(evento);
  const auto riga = Riga_Sotto((QPointF(aiuto->pos()) / scala_).y());
  const Segnale* segnale = riga ? d_.Segnale_Di(*riga) : nullptr;
  QString testo = toolTip();
  if (segnale != nullptr && (QPointF(aiuto->pos()) / scala_).x() < Misura().Nomi) {
    testo = Q(segnale->Ha_Simbolo() ? segnale->Nome + "  " + segnale->Indirizzo : segnale->Nome);
  } else if (segnale != nullptr) {
    const auto ms = static_cast<std::int64_t>(
        std::floor(d_.Vista.Ms((QPointF(aiuto->pos()) / scala_).x() - Misura().Nomi)));
    const auto valore = d_.Onda_Di(*riga)->A(ms);
    if (valore)
      testo = Q(segnale->Nome + " = " + Testo_Valore(*segnale, *valore) + "\n" +
                Testo_Istante(ms - d_.Dati().Inizio()));
  }
  QToolTip::showText(aiuto->globalPos(), testo, this);
  return true;
}

}  // namespace tavorno
