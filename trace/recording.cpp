// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/recording.h"

#include <algorithm>

namespace tavorno {

std::optional<std::size_t> Registrazione::Cerca(const std::string& indirizzo) const {
  const auto trovata = std::ranges::find_if(
      righe_, [&](const Riga& riga) { return riga.Viva && riga.Chi.Indirizzo == indirizzo; });
  if (trovata == righe_.end()) return {};
  return static_cast<std::size_t>(trovata - righe_.begin());
}

std::size_t Registrazione::Aggiungi(const Segnale& segnale) {
  if (const auto numero = Cerca(segnale.Indirizzo)) {
    righe_[*numero].Chi = segnale;
    return *numero;
  }
  righe_.push_back({.Chi = segnale, .Quando = {}});
  return righe_.size() - 1;
}

void Registrazione::Togli(std::size_t numero) {
  tenuti_ -= righe_[numero].Quando.Cambi();
  righe_[numero] = {.Chi = {}, .Quando = {}, .Viva = false};
}

void Registrazione::Campiona(std::int64_t ms, const Plc& plc) {
  if (Vuota()) inizio_ = ms;
  fine_ = std::max(fine_, ms);
  for (Riga& riga : righe_) {
    if (!riga.Viva) continue;
    const double valore = Valore(riga.Chi, plc);
    if (valore == riga.Ultimo && !riga.Quando.Vuota()) continue;
    riga.Ultimo = valore;
    const std::size_t prima = riga.Quando.Cambi();
    riga.Quando.Aggiungi(ms, valore);
    tenuti_ += riga.Quando.Cambi() - prima;
    ++cambi_;
  }
  if (tenuti_ > Cambi_Massimi) Fai_Posto();
}

void Registrazione::Fai_Posto() {
  const auto piena =
      std::ranges::max_element(righe_, {}, [](const Riga& riga) { return riga.Quando.Cambi(); });
  Onda& onda = piena->Quando;
  const std::size_t prima = onda.Cambi();
  onda.Dimentica_Prima(onda.Ms(prima / 2));
  tenuti_ -= prima - onda.Cambi();
}

void Registrazione::Comincia(std::int64_t ms) {
  const bool vuota = Vuota();
  inizio_ = vuota ? ms : std::min(inizio_, ms);
  if (vuota) fine_ = ms;
}

void Registrazione::Anteponi(const Registrazione& prima) {
  if (prima.Vuota()) return;
  fine_ = Vuota() ? prima.fine_ : std::max(fine_, prima.fine_);
  inizio_ = std::min(inizio_, prima.inizio_);
  for (Riga& riga : righe_) {
    const auto sua = riga.Viva ? prima.Cerca(riga.Chi.Indirizzo) : std::nullopt;
    if (!sua) continue;
    const std::size_t cambi = riga.Quando.Cambi();
    riga.Quando.Anteponi(prima.Quando(*sua));
    tenuti_ += riga.Quando.Cambi() - cambi;
    cambi_ += static_cast<std::int64_t>(riga.Quando.Cambi() - cambi);
    if (cambi == 0 && !riga.Quando.Vuota())
      riga.Ultimo = riga.Quando.Valore(riga.Quando.Cambi() - 1);
  }
  scansioni_.Anteponi(prima.scansioni_);
  while (tenuti_ > Cambi_Massimi) Fai_Posto();
}

void Registrazione::Svuota() {
  for (Riga& riga : righe_) {
    riga.Quando = {};
    riga.Ultimo = 0;
  }
  scansioni_ = {};
  inizio_ = 0;
  fine_ = -1;
  tenuti_ = 0;
}

void Registrazione::Taglia(std::int64_t ms) {
  for (Riga& riga : righe_) {
    const std::size_t prima = riga.Quando.Cambi();
    riga.Quando.Taglia_Dopo(ms);
    tenuti_ -= prima - riga.Quando.Cambi();
    if (!riga.Quando.Vuota()) riga.Ultimo = riga.Quando.Valore(riga.Quando.Cambi() - 1);
  }
  scansioni_.Taglia_Dopo(ms);
  fine_ = std::min(fine_, ms);
}

Traccia Registrazione::Ritaglio(const std::vector<std::size_t>& numeri, std::int64_t da,
                                std::int64_t a) const {
  std::vector<Segnale> segnali;
  std::vector<Cambio_Segnale> cambi;
  for (const std::size_t numero : numeri) {
    const Onda& onda = Quando(numero);
    const std::size_t quale = segnali.size();
    segnali.push_back(Chi(numero));
    std::size_t cambio = 0;
    if (const auto primo = onda.Cambio_A(da)) {
      cambi.push_back({0, quale, onda.Valore(*primo)});
      cambio = *primo + 1;
    }
    for (; cambio < onda.Cambi() && onda.Ms(cambio) <= a; ++cambio)
      cambi.push_back({onda.Ms(cambio) - da, quale, onda.Valore(cambio)});
  }
  std::ranges::stable_sort(cambi, {}, &Cambio_Segnale::Ms);
  return {std::move(segnali), std::move(cambi), std::max<std::int64_t>(a - da, 0)};
}

}  // namespace tavorno
