// SPDX-License-Identifier: GPL-3.0-or-later
// What the view shows and where.
#include "ladder/ui/ladder_view.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ladder/ui/ladder_entry.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double zoom_minimo = 0.25, zoom_massimo = 4;
constexpr double passo_zoom = 1.2;
constexpr int riga_barra = 40;  // pixels of a click on a scroll bar's arrow

}  // namespace

Vista_Scala::Vista_Scala(const Plc& plc, const Stato_Progetto& progetto, Legami_Scala legami,
                         QWidget* sopra)
    : QAbstractScrollArea(sopra),
      plc_(plc),
      progetto_(progetto),
      legami_(std::move(legami)),
      campo_(new Campo_Scala(viewport())) {
  setObjectName(QStringLiteral("Vista_Scala"));
  setAccessibleName(QStringLiteral("Schema a contatti"));
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setMouseTracking(false);
  verticalScrollBar()->setSingleStep(riga_barra);
  horizontalScrollBar()->setSingleStep(riga_barra);
  campo_->Confermato = [this](const QString& testo) { Conferma(testo); };
  campo_->Lasciato = [this] {
    campo_->Chiudi();
    setFocus(Qt::OtherFocusReason);
  };
  Aggiorna();
}

// ---- what there is to see -----------------------------------------------------------------------

void Vista_Scala::Aggiorna() {
  if (foglio_.Componi(progetto_, legami_.Nome)) {
    stati_.assign(foglio_.Reti().size(), {});
    const int reti = static_cast<int>(foglio_.Reti().size());
    rete_ = std::min(rete_, reti - 1);
    if (rete_ < 0 && reti > 0) rete_ = 0;
    scelto_ = rete_ < 0 ? -1 : std::min(scelto_, Rete(rete_).Simboli() - 1);
    if (rete_ >= 0 && scelto_ < 0 && Rete(rete_).Simboli() > 0) scelto_ = 0;
    fino_ = scelto_;
    cursore_.reset();
    Regola_Barre();
    viewport()->update();
  }
  Guarda_Cursore();
  Guarda_Cpu();
}

void Vista_Scala::Nomi_Cambiati() {
  foglio_.Scorda_Nomi();
  Aggiorna();
}

void Vista_Scala::Guarda_Cursore() {
  const std::optional<Posto_Riga> posto = legami_.Cursore ? legami_.Cursore() : std::nullopt;
  if (posto == cursore_) return;
  cursore_ = posto;
  Ridipingi(rete_cursore_);
  const int riga = posto ? foglio_.Riga_Di(*posto) : -1;
  rete_cursore_ = foglio_.Rete_Di_Riga(riga);
  Ridipingi(rete_cursore_);
  // Whoever works in the diagram leads; else the caret does.
  if (rete_cursore_ < 0 || hasFocus() || campo_->Aperto()) return;
  Scegli(rete_cursore_, Rete(rete_cursore_).Simbolo_Di_Riga(riga));
}

/// Flow and numbers of what can be seen, and the present line.
void Vista_Scala::Guarda_Cpu() {
  const bool in_corsa = plc_.PLC_Acceso != 0;
  const double sopra = verticalScrollBar()->value() / zoom_;
  const auto [da, a] = foglio_.Fra(sopra, sopra + viewport()->height() / zoom_);
  for (std::size_t n = da; n < a; ++n) {
    Stato_Rete nuovo = in_corsa ? Stato_Di(foglio_.Reti()[n], plc_) : Stato_Rete{};
    if (nuovo == stati_[n]) continue;
    stati_[n] = std::move(nuovo);
    Ridipingi(static_cast<int>(n));
    if (static_cast<int>(n) == rete_ && Scelta_Cambiata) Scelta_Cambiata();
  }
  // Between two lines only: a CPU that runs on is everywhere.
  const bool ferma =
      plc_.Modo_Run == Modo::Step || (plc_.Modo_Run == Modo::Ciclo && plc_.Attivi.cmdRest);
  const int riga = in_corsa && ferma ? plc_.PC : -1;
  if (riga == riga_presente_) return;
  const int prima = foglio_.Rete_Di_Riga(riga_presente_);
  riga_presente_ = riga;
  const int ora = foglio_.Rete_Di_Riga(riga);
  Ridipingi(prima);
  Ridipingi(ora);
  if (ora >= 0) Mostra(ora, Rete(ora).Simbolo_Di_Riga(riga));
}

Segni_Rete Vista_Scala::Segni(int rete) const {
  Segni_Rete segni;
  if (rete == rete_) {
    segni.Scelto = scelto_;
    segni.Fino = fino_;
    segni.Rete_Scelta = hasFocus() || campo_->Aperto();
  }
  segni.Del_Cursore = rete == rete_cursore_;
  if (riga_presente_ >= 0 && foglio_.Rete_Di_Riga(riga_presente_) == rete) {
    segni.Rete_Presente = true;
    const auto& riquadri = Rete(rete).Come.Riquadri;
    const auto suo = std::ranges::find_if(
        riquadri, [&](const Riquadro& riquadro) { return riquadro.Passo.Riga == riga_presente_; });
    if (suo != riquadri.end()) segni.Presente = static_cast<int>(suo - riquadri.begin());
  }
  return segni;
}

void Vista_Scala::paintEvent(QPaintEvent* evento) {
  QPainter pittore(viewport());
  pittore.fillRect(evento->rect(), colori::Scala_Testo.Fondo);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  pittore.scale(zoom_, zoom_);
  const double sopra = (verticalScrollBar()->value() + evento->rect().top()) / zoom_;
  const double sotto = (verticalScrollBar()->value() + evento->rect().bottom() + 1) / zoom_;
  const auto [da, a] = foglio_.Fra(sopra, sotto);
  const double larga = std::max(foglio_.Larghezza(), viewport()->width() / zoom_);
  for (std::size_t n = da; n < a; ++n) {
    const Rete_Foglio& rete = foglio_.Reti()[n];
    pittore.save();
    pittore.translate(0, rete.Y);
    Dipingi_Rete(pittore, rete, stati_[n], Segni(static_cast<int>(n)), larga, colori::In_Uso());
    pittore.restore();
  }
  if (!foglio_.Reti().empty()) return;
  pittore.setPen(colori::Scala_Commento.Testo);
  pittore.setFont(Carattere_Scala(Stile_Scritta::Indirizzo));
  pittore.drawText(QPointF(Foglio_Scala::margine, 40),
                   QStringLiteral("Il progetto non ha segmenti: premere Ctrl+Ins per il primo, "
                                  "oppure scrivere NETWORK 1 nell'editor."));
}

// ---- places -------------------------------------------------------------------------------------

void Vista_Scala::Regola_Barre() {
  const auto pixel = [&](double lungo) { return static_cast<int>(std::ceil(lungo * zoom_)); };
  verticalScrollBar()->setRange(0, std::max(0, pixel(foglio_.Altezza()) - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  horizontalScrollBar()->setRange(0, std::max(0, pixel(foglio_.Larghezza()) - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
}

void Vista_Scala::resizeEvent(QResizeEvent* /*evento*/) {
  Regola_Barre();
}

void Vista_Scala::scrollContentsBy(int dx, int dy) {
  if (campo_->Aperto()) campo_->move(campo_->pos() + QPoint(dx, dy));
  viewport()->update();
  Guarda_Cpu();
}

void Vista_Scala::Ingrandisci(double zoom) {
  zoom = std::clamp(zoom, zoom_minimo, zoom_massimo);
  // What stands in the middle stays there.
  const double mezzo = (verticalScrollBar()->value() + viewport()->height() / 2.0) / zoom_;
  zoom_ = zoom * proiezione_;
  Regola_Barre();
  verticalScrollBar()->setValue(static_cast<int>(mezzo * zoom_ - viewport()->height() / 2.0));
  viewport()->update();
  Guarda_Cpu();
  if (Scelta_Cambiata) Scelta_Cambiata();
}

void Vista_Scala::Adatta() {
  Ingrandisci(viewport()->width() / std::max(1.0, foglio_.Larghezza()) / proiezione_);
}

void Vista_Scala::Ingrandisci_Testo(double fattore) {
  const double scelto = Ingrandimento();
  const double sopra = verticalScrollBar()->value() / zoom_;
  proiezione_ = fattore;
  Ingrandisci(scelto);
  verticalScrollBar()->setValue(static_cast<int>(std::lround(sopra * zoom_)));
}

void Vista_Scala::wheelEvent(QWheelEvent* evento) {
  if (!(evento->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(evento);
  Ingrandisci(Ingrandimento() * std::pow(passo_zoom, evento->angleDelta().y() / 120.0));
  evento->accept();
}

QRectF Vista_Scala::Posto_Foglio(int rete, int simbolo) const {
  const Rete_Foglio& questa = Rete(rete);
  if (simbolo < 0 || simbolo >= questa.Simboli())
    return {0, questa.Y_Titolo - 16, foglio_.Larghezza(), 22};
  return questa.Celle[static_cast<std::size_t>(simbolo)].translated(Foglio_Scala::margine,
                                                                    questa.Y_Disegno);
}

QRect Vista_Scala::Posto(int rete, int simbolo) const {
  const QRectF foglio = Posto_Foglio(rete, simbolo);
  return QRectF(foglio.topLeft() * zoom_, foglio.size() * zoom_)
      .translated(-horizontalScrollBar()->value(), -verticalScrollBar()->value())
      .toAlignedRect();
}

void Vista_Scala::Mostra(int rete, int simbolo) {
  QRect posto = Posto(rete, simbolo);
  // The title too, where the whole network has room.
  const int testata = Posto(rete, -1).top();
  if (posto.bottom() - testata < viewport()->height()) posto.setTop(std::min(posto.top(), testata));
  const auto porta = [](QScrollBar& barra, int da, int a, int lungo) {
    if (a > lungo) barra.setValue(barra.value() + a - lungo + 8);
    if (da < 0) barra.setValue(barra.value() + da - 8);
  };
  porta(*verticalScrollBar(), posto.top(), posto.bottom(), viewport()->height());
  if (simbolo >= 0) porta(*horizontalScrollBar(), posto.left(), posto.right(), viewport()->width());
}

void Vista_Scala::Ridipingi(int rete) {
  if (rete < 0 || rete >= static_cast<int>(foglio_.Reti().size())) return;
  const Rete_Foglio& questa = Rete(rete);
  const int sopra = static_cast<int>(questa.Y * zoom_) - verticalScrollBar()->value() - 1;
  viewport()->update(0, sopra, viewport()->width(), static_cast<int>(questa.Altezza * zoom_) + 3);
}

void Vista_Scala::Scegli(int rete, int simbolo) {
  if (rete < 0 || rete >= static_cast<int>(foglio_.Reti().size())) return;
  Ridipingi(rete_);
  rete_ = rete;
  scelto_ = fino_ = std::min(simbolo, Rete(rete).Simboli() - 1);
  Ridipingi(rete_);
  Mostra(rete_, scelto_);
  setAccessibleDescription(Descrizione());
  QAccessibleEvent qui(this, QAccessible::Focus);
  QAccessible::updateAccessibility(&qui);
  if (Scelta_Cambiata) Scelta_Cambiata();
}

// ---- mouse --------------------------------------------------------------------------------------

Vista_Scala::Punto_Colpito Vista_Scala::Colpito(const QPoint& punto) const {
  const QPointF foglio((punto.x() + horizontalScrollBar()->value()) / zoom_,
                       (punto.y() + verticalScrollBar()->value()) / zoom_);
  const auto [da, a] = foglio_.Fra(foglio.y(), foglio.y());
  if (da == a) return {};
  Punto_Colpito colpito{static_cast<int>(da), -1};
  for (int n = 0; n < foglio_.Reti()[da].Simboli(); ++n)
    if (Posto_Foglio(colpito.Rete, n).contains(foglio)) colpito.Simbolo = n;
  return colpito;
}

void Vista_Scala::mousePressEvent(QMouseEvent* evento) {
  const Punto_Colpito colpito = Colpito(evento->position().toPoint());
  if (colpito.Rete < 0) return;
  const bool allunga = (evento->modifiers() & Qt::ShiftModifier) != 0 && colpito.Rete == rete_ &&
                       colpito.Simbolo >= 0;
  if (!allunga) return Scegli(colpito.Rete, colpito.Simbolo);
  fino_ = colpito.Simbolo;
  Ridipingi(rete_);
}

void Vista_Scala::mouseDoubleClickEvent(QMouseEvent* evento) {
  mousePressEvent(evento);
  Vai_Al_Testo();
}

void Vista_Scala::contextMenuEvent(QContextMenuEvent* evento) {
  if (evento->reason() == QContextMenuEvent::Mouse) {
    const Punto_Colpito colpito = Colpito(evento->pos());
    if (colpito.Rete >= 0) Scegli(colpito.Rete, colpito.Simbolo);
  }
  const QPoint posto = evento->reason() == QContextMenuEvent::Mouse || rete_ < 0
                           ? evento->globalPos()
                           : viewport()->mapToGlobal(Posto(rete_, scelto_).bottomLeft());
  QMenu menu;
  menu.addActions(actions());
  if (!menu.isEmpty()) menu.exec(posto);
}

bool Vista_Scala::event(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip) {
    auto* aiuto = static_cast<QHelpEvent*>(evento);
    const Punto_Colpito colpito = Colpito(viewport()->mapFrom(this, aiuto->pos()));
    const QString testo =
        colpito.Simbolo < 0 ? QString() : In_Parole_Di(colpito.Rete, colpito.Simbolo);
    QToolTip::showText(aiuto->globalPos(), testo, this);
    return true;
  }
  return QAbstractScrollArea::event(evento);
}

void Vista_Scala::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  Ridipingi(rete_);
}

void Vista_Scala::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  Ridipingi(rete_);
}

void Vista_Scala::Avvisa(const QString& testo) const {
  if (Messaggio) Messaggio(testo);
}

}  // namespace tavorno
