// SPDX-License-Identifier: GPL-3.0-or-later
// The window of time, the cursors, search and trigger of a diagram.
#include <algorithm>
#include <cmath>

#include "trace/diagram.h"

namespace tavorno {

namespace {
constexpr double posto_presente = 0.96;  // of the width: where the present stands, live
constexpr double posto_trigger = 0.5;
}  // namespace

void Diagramma_Tempi::Segui() {
  if (trigger_) {
    if (const auto quando = Cerca_Avanti(registrazione_, trigger_->Cosa, trigger_->Da)) {
      trigger_.reset();
      Scattato = quando;
      In_Diretta = false;
      Vista.Da = static_cast<double>(*quando) - Vista.Larga * posto_trigger * Vista.Per_Punto;
    } else {
      trigger_->Da = registrazione_.Fine();
    }
  }
  if (!In_Diretta) return;
  // The first moments begin at the left border and do not run in from the right.
  const auto fine = static_cast<double>(registrazione_.Fine());
  const auto inizio = static_cast<double>(registrazione_.Inizio());
  Vista.Da = std::max(fine - Vista.Larga * posto_presente * Vista.Per_Punto,
                      inizio - Vista.Larga * 0.02 * Vista.Per_Punto);
}

void Diagramma_Tempi::Larga(double punti) {
  Vista.Larga = std::max(punti, 1.0);
  Segui();
}

void Diagramma_Tempi::Zoom(double fattore, double x) {
  Vista.Zoom(fattore, x);
  Segui();
}

void Diagramma_Tempi::Zoom(double fattore) {
  const auto& cursore = Posto(Attivo);
  double x = Vista.Larga / 2;
  if (In_Diretta)
    x = Vista.X(static_cast<double>(registrazione_.Fine()));
  else if (cursore && Vista.X(static_cast<double>(*cursore)) >= 0 &&
           Vista.X(static_cast<double>(*cursore)) <= Vista.Larga)
    x = Vista.X(static_cast<double>(*cursore));
  Zoom(fattore, x);
}

void Diagramma_Tempi::Sposta(double punti) {
  In_Diretta = false;
  Vista.Da += punti * Vista.Per_Punto;
  // Some of what was recorded stays in sight.
  const double da = static_cast<double>(registrazione_.Inizio()) - 0.9 * (Vista.A() - Vista.Da);
  const double a = static_cast<double>(registrazione_.Fine()) - 0.1 * (Vista.A() - Vista.Da);
  Vista.Da = std::clamp(Vista.Da, da, std::max(a, da));
}

void Diagramma_Tempi::Mostra_Tutto() {
  In_Diretta = false;
  Vista.Mostra(static_cast<double>(registrazione_.Inizio()),
               static_cast<double>(std::max(registrazione_.Fine(), registrazione_.Inizio() + 10)));
}

// ---- cursors ------------------------------------------------------------------------------------

void Diagramma_Tempi::Metti(Cursore quale, std::int64_t ms) {
  (quale == Cursore::A ? A : B) = std::clamp(
      ms, registrazione_.Inizio(), std::max(registrazione_.Inizio(), registrazione_.Fine()));
  Attivo = quale;
}

void Diagramma_Tempi::Metti_In_Mezzo(Cursore quale) {
  Metti(quale, static_cast<std::int64_t>(std::llround(Vista.Ms(Vista.Larga / 2))));
}

void Diagramma_Tempi::Togli_Cursori() {
  A.reset();
  B.reset();
  Trovato.reset();
  Scattato.reset();
  Attivo = Cursore::A;
}

std::int64_t Diagramma_Tempi::Aggancia(double x, const std::optional<Riga_Diagramma>& riga,
                                       double punti) const {
  const double qui = Vista.Ms(x);
  const auto ms = static_cast<std::int64_t>(std::llround(qui));
  const Onda* onda = riga ? Onda_Di(*riga) : nullptr;
  if (onda == nullptr) return ms;
  const auto vicino = onda->Vicino(ms);
  if (vicino && std::abs(Vista.X(static_cast<double>(*vicino)) - x) <= punti) return *vicino;
  return ms;
}

/// Where a search begins: the active cursor, else the border of the window.
std::int64_t Diagramma_Tempi::Punto_Di_Partenza() const {
  if (const auto& cursore = Posto(Attivo)) return *cursore;
  return In_Diretta ? registrazione_.Fine() + 1
                    : static_cast<std::int64_t>(std::floor(Vista.Da + (Vista.A() - Vista.Da) / 2));
}

void Diagramma_Tempi::Porta_A(std::int64_t ms) {
  In_Diretta = false;
  Metti(Attivo, ms);
  Vista.Porta_In_Vista(static_cast<double>(ms));
}

bool Diagramma_Tempi::Al_Fronte(int verso) {
  const auto riga = Riga_Scelta();
  const Onda* sola = riga ? Onda_Di(*riga) : nullptr;
  const std::int64_t da = Punto_Di_Partenza();
  std::optional<std::int64_t> trovato;
  const auto prova = [&](const Onda& onda) {
    const auto fronte = verso > 0 ? onda.Dopo(da) : onda.Prima(da);
    if (!fronte) return;
    trovato = !trovato    ? *fronte
              : verso > 0 ? std::min(*trovato, *fronte)
                          : std::max(*trovato, *fronte);
  };
  if (sola != nullptr) {
    prova(*sola);
  } else {
    for (const std::size_t numero : Visti()) prova(registrazione_.Quando(numero));
  }
  if (!trovato) return false;
  Porta_A(*trovato);
  return true;
}

void Diagramma_Tempi::Passo_Cursore(std::int64_t ms) {
  Porta_A(std::min(Punto_Di_Partenza(), registrazione_.Fine()) + ms);
}

std::string Diagramma_Tempi::Valore_A(const Riga_Diagramma& riga, Cursore quale) const {
  const Onda* onda = Onda_Di(riga);
  if (onda == nullptr) return {};
  const auto valore = onda->A(Posto(quale).value_or(Passato.value_or(registrazione_.Fine())));
  return valore ? Testo_Valore(*Segnale_Di(riga), *valore) : std::string();
}

// ---- search and trigger -------------------------------------------------------------------------

bool Diagramma_Tempi::Cerca(const Condizione& condizione, int verso) {
  for (const Termine& termine : condizione) {
    if (!registrazione_.Cerca(termine.Chi.Indirizzo)) Aggiungi(termine.Chi);
  }
  const std::int64_t da = Punto_Di_Partenza();
  const auto quando = verso > 0 ? Cerca_Avanti(registrazione_, condizione, da)
                                : Cerca_Indietro(registrazione_, condizione, da);
  if (!quando) return false;
  Trovato = quando;
  Porta_A(*quando);
  return true;
}

void Diagramma_Tempi::Arma(Condizione condizione) {
  for (const Termine& termine : condizione) {
    if (!registrazione_.Cerca(termine.Chi.Indirizzo)) Aggiungi(termine.Chi);
  }
  Scattato.reset();
  In_Diretta = true;
  trigger_ = Trigger{std::move(condizione), registrazione_.Fine()};
  Segui();
}

}  // namespace tavorno
