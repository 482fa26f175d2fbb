// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/strip.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QPolygonF>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <utility>

#include "widgets/colours.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr int larga_nomi = 190;  // pixels for names and values at the left
constexpr int alta_grandezza = 34, alta_bit = 17, alta_tempo = 18, margine = 4;
constexpr int alta_vuota = alta_tempo + margine + 24;
constexpr int alta_minima = 170;  // of a strip with more lanes than its window may have room for
constexpr int secondi_per_tacca = 10;
constexpr std::size_t bit_all_inizio = 4;

bool Lampada(const Riga_IO& riga) {
  return riga.Simbolo[0] == 'H' && riga.Simbolo[1] == 'L';
}

QString Numero(double valore) {
  const double tondo = std::round(valore * 10) / 10;
  return QString::number(tondo == 0 ? 0 : tondo, 'f', std::abs(tondo) < 10 ? 1 : 0)
      .replace('.', ',');
}

}  // namespace

Striscia::Striscia(const Storia_IO& storia, QWidget* sopra)
    : QWidget(sopra),
      storia_(storia),
      segnali_(Chiama(QStringLiteral("cmdSegnali"), new QToolButton(this))) {
  setObjectName(QStringLiteral("Striscia"));
  setAccessibleName(QStringLiteral("Andamento dell'ultimo minuto"));
  // What is worth looking at unasked: what the program moves, and not the lamps that tell of it.
  const auto righe = storia.Tabella().Righe_IO;
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (righe[n].Indirizzo[0] == 'Q' && !Lampada(righe[n]) &&
        scelti_.size() + storia.Grandezze().size() < bit_all_inizio)
      scelti_.insert(n);
  }
  segnali_->setText(QStringLiteral("Segnali"));
  segnali_->setToolTip(QStringLiteral("Sceglie gli ingressi e le uscite da disegnare"));
  segnali_->setAutoRaise(true);
  segnali_->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(segnali_);
  segnali_->setMenu(menu);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { Riempi(*menu); });
  Riempi(*menu);
}

// In the corner below the names, beside the time.
void Striscia::resizeEvent(QResizeEvent*) {
  const int alto = alta_tempo + 2;
  segnali_->setGeometry(margine, height() - alto, segnali_->sizeHint().width(), alto);
}

void Striscia::Riempi(QMenu& menu) {
  menu.clear();
  const auto righe = storia_.Tabella().Righe_IO;
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (storia_.Punto(n).Analogico) continue;
    QAction* voce =
        menu.addAction(Q(righe[n].Indirizzo) + QStringLiteral("  ") + Q(righe[n].Simbolo));
    voce->setCheckable(true);
    voce->setChecked(scelti_.contains(n));
    connect(voce, &QAction::toggled, this, [this, n](bool mostrato) { Scegli(n, mostrato); });
  }
}

void Striscia::Scegli(std::size_t riga, bool mostrato) {
  if (mostrato)
    scelti_.insert(riga);
  else
    scelti_.erase(riga);
  updateGeometry();
  update();
}

// Lower, and the names of the lanes would cut each other.
QSize Striscia::minimumSizeHint() const {
  return {larga_nomi + 160, std::min(sizeHint().height(), alta_minima)};
}

QSize Striscia::sizeHint() const {
  const auto alta = alta_tempo + 2 * margine +
                    static_cast<int>(storia_.Grandezze().size()) * alta_grandezza +
                    static_cast<int>(scelti_.size()) * alta_bit;
  return {600, std::max(alta, alta_vuota)};
}

double Striscia::X(std::int64_t ms, const QRectF& area) const {
  const double fa = static_cast<double>(storia_.Adesso() - ms) / Storia_IO::Durata;
  return area.right() - std::clamp(fa, 0.0, 1.0) * area.width();
}

void Striscia::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.fillRect(rect(), colori::Striscia.Fondo);
  const QRectF area(larga_nomi, margine, width() - larga_nomi - 2 * margine,
                    height() - alta_tempo - margine);
  Disegna_Tempo(pittore, area);
  // All lanes together fill the height that there is.
  const double voluta = sizeHint().height() - alta_tempo - 2 * margine;
  const double stira = voluta <= 0 ? 1 : (area.height() - margine) / voluta;
  double y = area.top();
  const auto corsia = [&](int alta) {
    const QRectF posto(area.left(), y, area.width(), alta * stira);
    y += alta * stira;
    return posto.adjusted(0, 2, 0, -2);
  };
  for (std::size_t n = 0; n < storia_.Grandezze().size(); ++n)
    Disegna_Grandezza(pittore, n, corsia(alta_grandezza));
  for (const std::size_t riga : scelti_) Disegna_Bit(pittore, riga, corsia(alta_bit));
  if (!storia_.Grandezze().empty() || !scelti_.empty()) return;
  pittore.setPen(colori::Striscia.Testo);
  pittore.drawText(area, Qt::AlignCenter,
                   QStringLiteral("Nessun segnale: si scelgono con «Segnali»."));
}

void Striscia::Disegna_Tempo(QPainter& pittore, const QRectF& area) const {
  for (int secondi = 0; secondi * 1000 <= Storia_IO::Durata; secondi += secondi_per_tacca) {
    const double x = X(storia_.Adesso() - secondi * 1000, area);
    pittore.setPen(QPen(colori::Griglia.Di(colori::In_Uso()), 1));
    pittore.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
    pittore.setPen(colori::Striscia.Testo);
    const QString testo =
        secondi == 0 ? QStringLiteral("ora") : QStringLiteral("-%1 s").arg(secondi);
    const double largo = pittore.fontMetrics().horizontalAdvance(testo);
    pittore.drawText(QPointF(std::min(x - largo / 2, area.right() - largo),
                             area.bottom() + pittore.fontMetrics().ascent() + 1),
                     testo);
  }
}

void Striscia::Scrivi(QPainter& pittore, const QRectF& corsia, const QString& nome,
                      const QString& valore) const {
  const QRectF posto(margine + 4, corsia.top(), larga_nomi - 2 * margine - 8, corsia.height());
  const double largo = pittore.fontMetrics().horizontalAdvance(valore) + 8;
  pittore.setPen(colori::Striscia.Testo);
  pittore.drawText(posto, Qt::AlignRight | Qt::AlignVCenter, valore);
  const QRectF resto = posto.adjusted(0, 0, -largo, 0);
  pittore.drawText(
      resto, Qt::AlignLeft | Qt::AlignVCenter,
      pittore.fontMetrics().elidedText(nome, Qt::ElideRight, static_cast<int>(resto.width())));
}

void Striscia::Disegna_Grandezza(QPainter& pittore, std::size_t numero,
                                 const QRectF& corsia) const {
  const Grandezza& grandezza = storia_.Grandezze()[numero];
  const auto& tratti = storia_.Di_Grandezza(numero);
  const double ora = tratti.empty() ? 0 : tratti.back().Valore;
  Scrivi(pittore, corsia, Q(grandezza.Nome), Numero(ora) + ' ' + Q(grandezza.Unita));
  pittore.setPen(QPen(colori::Griglia.Di(colori::In_Uso()), 1));
  pittore.drawLine(corsia.bottomLeft(), corsia.bottomRight());
  QPolygonF curva;
  for (const Storia_IO::Tratto& tratto : tratti) {
    const double parte =
        (tratto.Valore - grandezza.Minimo) / (grandezza.Massimo - grandezza.Minimo);
    curva << QPointF(X(tratto.Ms, corsia),
                     corsia.bottom() - std::clamp(parte, 0.0, 1.0) * corsia.height());
  }
  if (curva.isEmpty()) return;
  pittore.setBrush(Qt::NoBrush);
  pittore.setPen(QPen(colori::Curve[numero % std::size(colori::Curve)].Di(colori::In_Uso()), 1.8));
  pittore.drawPolyline(curva << QPointF(corsia.right(), curva.last().y()));
}

void Striscia::Disegna_Bit(QPainter& pittore, std::size_t riga, const QRectF& corsia) const {
  const Riga_IO& di = storia_.Tabella().Righe_IO[riga];
  Scrivi(pittore, corsia, Q(di.Indirizzo) + QStringLiteral("  ") + Q(di.Simbolo),
         QString::number(static_cast<int>(storia_.Valore(riga))));
  pittore.setPen(QPen(colori::Griglia.Di(colori::In_Uso()), 1));
  pittore.drawLine(corsia.bottomLeft(), corsia.bottomRight());
  const QColor pieno = colori::Striscia_Bit;
  const auto& tratti = storia_.Bit(riga);
  for (std::size_t n = 0; n < tratti.size(); ++n) {
    const std::int64_t fine = n + 1 < tratti.size() ? tratti[n + 1].Ms : storia_.Adesso();
    // What changed too often to be told apart is hatched.
    if (tratti[n].Valore == 0 && !tratti[n].Fitto) continue;
    const double da = X(tratti[n].Ms, corsia);
    const double a =
        X(tratti[n].Fitto ? std::min(fine, tratti[n].Ms + Storia_IO::Fitto) : fine, corsia);
    const QRectF blocco(QPointF(da, corsia.top() + 2),
                        QPointF(std::max(a, da + 1), corsia.bottom()));
    pittore.fillRect(blocco, tratti[n].Fitto ? QBrush(pieno, Qt::Dense4Pattern) : QBrush(pieno));
    if (!tratti[n].Fitto || tratti[n].Valore == 0) continue;
    pittore.fillRect(
        QRectF(QPointF(a, corsia.top() + 2), QPointF(X(fine, corsia), corsia.bottom())), pieno);
  }
}

}  // namespace tavorno
