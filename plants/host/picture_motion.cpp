// SPDX-License-Identifier: GPL-3.0-or-later
// What moves in a picture: figures on their way between two ticks of the physics, and drawings that
// run for as long as they are shown.
#include <QAction>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plants/host/picture_widget.h"
#include "widgets/desktop_motion.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double salto = 900;        // twips: what goes further at once was put there
constexpr int via_breve = 40;        // ms of one way at least
constexpr int via_lunga = 250;       // and at most
constexpr int ancora_in_moto = 300;  // ms after its last change in which a figure counts as moving

QRectF Rettangolo(const Figura& figura) {
  return {figura.Left(), figura.Top(), figura.Width(), figura.Height()};
}

int Area(const QRect& rettangolo) {
  return rettangolo.width() * rettangolo.height();
}

/// Two that together are hardly smaller than what holds both become one.
void Aggiungi(std::vector<QRect>& zone, QRect nuova) {
  constexpr int costo = 2000;  // pixels that can be drawn in the time that a zone takes by itself
  for (auto zona = zone.begin(); zona != zone.end();) {
    const QRect insieme = zona->united(nuova);
    if (Area(insieme) > Area(*zona) + Area(nuova) + costo) {
      ++zona;
      continue;
    }
    nuova = insieme;
    zone.erase(zona);
    zona = zone.begin();
  }
  zone.push_back(nuova);
}

double Distanza(const QRectF& uno, const QRectF& altro) {
  return std::max({std::abs(uno.left() - altro.left()), std::abs(uno.top() - altro.top()),
                   std::abs(uno.right() - altro.right()), std::abs(uno.bottom() - altro.bottom())});
}

QRectF Tra(const QRectF& da, const QRectF& a, double parte) {
  const auto tra = [parte](double x, double y) { return x + (y - x) * parte; };
  return {tra(da.left(), a.left()), tra(da.top(), a.top()), tra(da.width(), a.width()),
          tra(da.height(), a.height())};
}

}  // namespace

void Quadro::Riduci_Animazioni(bool ridotte) {
  scelto_ = true;
  Ferma(ridotte);
}

/// Whoever has chosen here is not asked through the desktop.
void Quadro::Senti_Scrivania() {
  if (scelto_) return;
  Chiedi_Se_Fermo(*this, [this](bool fermo) {
    if (!scelto_ && fermo != ridotte_) Ferma(fermo);
  });
}

void Quadro::Ferma(bool ridotte) {
  ridotte_ = ridotte;
  riduci_->setChecked(ridotte);
  for (Vista& vista : viste_) {
    vista.Ora = Rettangolo(*vista.Di);
    vista.Trascorsi = vista.Durata = 0;
    vista.Fase = 0;
    vista.Ultimo = Occupato(vista);
  }
  Rifai({rect()});
  update();
  if (!ridotte && !ritmo_.isActive()) ritmo_.start();
}

bool Quadro::Corre(const Vista& vista) const {
  if (ridotte_ || vista.Disegno == nullptr || !vista.Disegno->Si_Muove || !vista.Di->Visible())
    return false;
  return vista.Disegno->Con.isEmpty() || std::ranges::any_of(vista.Con, [this](std::size_t altra) {
           return tempo_ - viste_[altra].Cambiata < ancora_in_moto;
         });
}

bool Quadro::Si_Muove() const {
  return std::ranges::any_of(viste_, [this](const Vista& vista) {
    return vista.Trascorsi < vista.Durata || Corre(vista);
  });
}

QRectF Quadro::Sporca(Vista& vista) {
  const QRectF prima = std::exchange(vista.Ultimo, Occupato(vista));
  return prima | vista.Ultimo;
}

/// Where the marks of hand and pointer around a figure are now; null without one.
QRectF Quadro::Segnato(const Vista& vista) {
  constexpr double attorno = 12;  // pixels that the widest of them reaches out
  const bool a_fuoco = fuoco_in_vista_ && Q(vista.Di->Nome) == fuoco_;
  if (vista.Di != sopra_ && !a_fuoco && !E_Indicata(vista)) return {};
  return Posto_Mostrato(*vista.Di).adjusted(-attorno, -attorno, attorno, attorno);
}

// A figure glides for as long as its last step took, so that steady ticks make a steady way.
void Quadro::Nota(Vista& vista) {
  vista.Cambiata = tempo_;
  Metti_Gruppo(vista);
  const QRectF meta = Rettangolo(*vista.Di);
  if (meta == vista.Ora && vista.Trascorsi >= vista.Durata) {
    Annuncia_Aspetto(vista);  // what only travels has nothing new to say
    return;
  }
  const auto passo = std::clamp<qint64>(tempo_ - vista.Mossa, via_breve, via_lunga);
  vista.Mossa = tempo_;
  if (ridotte_ || !vista.Di->Visible() || Distanza(vista.Ora, meta) > salto) {
    vista.Ora = meta;
    vista.Durata = vista.Trascorsi = 0;
  } else {
    vista.Partenza = vista.Ora;
    vista.Durata = static_cast<int>(passo);
    vista.Trascorsi = 0;
  }
}

void Quadro::Avanza(int ms) {
  tempo_ += ms;
  std::vector<QRect> sporche;
  const std::vector<Figura*> cambiate = impianto_.Disegno.Prendi_Cambiate();
  for (Vista& vista : viste_) {
    const bool cambiata = std::ranges::find(cambiate, vista.Di) != cambiate.end();
    const QRectF segno = Segnato(vista);
    if (cambiata) Nota(vista);
    const bool in_via = vista.Trascorsi < vista.Durata;
    if (in_via) {
      // A way that begins now has no part in the time before.
      vista.Trascorsi =
          std::min(vista.Trascorsi + (cambiata ? std::min(ms, Ritmo) : ms), vista.Durata);
      vista.Ora = Tra(vista.Partenza, Rettangolo(*vista.Di),
                      static_cast<double>(vista.Trascorsi) / vista.Durata);
    }
    const bool corre = Corre(vista);
    if (corre) vista.Fase = static_cast<int>(tempo_ / Ritmo % Disegni::Fasi);
    if (!cambiata && !in_via && !corre) continue;
    if (!segno.isNull()) update((segno | Segnato(vista)).toAlignedRect());
    const QRect sporca = Sporca(vista).toAlignedRect().intersected(rect());
    if (!sporca.isEmpty()) Aggiungi(sporche, sporca);
  }
  if (sporche.empty()) return;
  Rifai(sporche);
  for (const QRect& zona : sporche) update(zona);
}

void Quadro::showEvent(QShowEvent* evento) {
  QWidget::showEvent(evento);
  Senti_Scrivania();
  if (!ritmo_.isActive()) ritmo_.start();
}

// Nothing is drawn of a window that nobody sees.
void Quadro::hideEvent(QHideEvent* evento) {
  ritmo_.stop();
  QWidget::hideEvent(evento);
}

}  // namespace tavorno
