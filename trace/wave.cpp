// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/wave.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tavorno {

namespace {

constexpr std::size_t blocco = 16;
constexpr std::size_t serie_massime = 500'000;

bool Uguali(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

void Allarga(std::pair<double, double>& estremi, double minimo, double massimo) {
  estremi.first = std::min(estremi.first, minimo);
  estremi.second = std::max(estremi.second, massimo);
}

constexpr std::pair<double, double> nessuno{std::numeric_limits<double>::infinity(),
                                            -std::numeric_limits<double>::infinity()};

template <class T>
std::ptrdiff_t Posto(std::size_t n, const std::vector<T>&) {
  return static_cast<std::ptrdiff_t>(n);
}

}  // namespace

void Onda::Aggiungi(std::int64_t ms, double valore) {
  if (ms_.empty()) {
    ms_.push_back(ms);
    valori_.push_back(valore);
    return Rifai_Da(0);
  }
  if (Uguali(valori_.back(), valore)) return;
  if (ms > ms_.back()) {
    ms_.push_back(ms);
    valori_.push_back(valore);
  } else if (ms_.size() > 1 && Uguali(valori_[valori_.size() - 2], valore)) {
    ms_.pop_back();  // back where it was before: nothing happened at that time
    valori_.pop_back();
  } else {
    valori_.back() = valore;
  }
  Rifai_Da(ms_.size() - 1);
}

/// Brings the extremes up to date from a change on.
void Onda::Rifai_Da(std::size_t cambio) {
  std::size_t quanti = ms_.size();
  for (std::size_t livello = 0;; ++livello) {
    const std::size_t blocchi = (quanti + blocco - 1) / blocco;
    if (quanti <= blocco) {
      livelli_.resize(livello);
      return;
    }
    if (livelli_.size() <= livello) {
      livelli_.emplace_back();
      cambio = 0;
    }
    std::vector<Coppia>& qui = livelli_[livello];
    qui.resize(blocchi);
    for (std::size_t n = cambio / blocco; n < blocchi; ++n) {
      Coppia estremi = nessuno;
      for (std::size_t k = n * blocco; k < std::min((n + 1) * blocco, quanti); ++k) {
        if (livello == 0)
          Allarga(estremi, valori_[k], valori_[k]);
        else
          Allarga(estremi, livelli_[livello - 1][k].first, livelli_[livello - 1][k].second);
      }
      qui[n] = estremi;
    }
    cambio /= blocco;
    quanti = blocchi;
  }
}

Onda::Coppia Onda::Estremi(std::size_t da, std::size_t a) const {
  Coppia estremi = nessuno;
  while (da < a) {
    std::size_t livello = 0, passo = 1;
    while (livello < livelli_.size() && da % (passo * blocco) == 0 && da + passo * blocco <= a) {
      passo *= blocco;
      ++livello;
    }
    if (livello == 0) {
      Allarga(estremi, valori_[da], valori_[da]);
    } else {
      const Coppia& qui = livelli_[livello - 1][da / passo];
      Allarga(estremi, qui.first, qui.second);
    }
    da += passo;
  }
  return estremi;
}

std::pair<double, double> Onda::Estremi() const {
  return ms_.empty() ? Coppia{} : Estremi(0, ms_.size());
}

std::optional<std::size_t> Onda::Cambio_A(std::int64_t ms) const {
  const auto dopo = std::ranges::upper_bound(ms_, ms);
  if (dopo == ms_.begin()) return {};
  return static_cast<std::size_t>(dopo - ms_.begin()) - 1;
}

std::optional<double> Onda::A(std::int64_t ms) const {
  const auto cambio = Cambio_A(ms);
  if (!cambio) return {};
  return valori_[*cambio];
}

std::optional<std::int64_t> Onda::Dopo(std::int64_t ms) const {
  if (ms_.empty()) return {};
  const auto dopo = std::ranges::upper_bound(ms_.begin() + 1, ms_.end(), ms);
  if (dopo == ms_.end()) return {};
  return *dopo;
}

std::optional<std::int64_t> Onda::Prima(std::int64_t ms) const {
  if (ms_.empty()) return {};
  const auto qui = std::ranges::lower_bound(ms_.begin() + 1, ms_.end(), ms);
  if (qui == ms_.begin() + 1) return {};
  return *(qui - 1);
}

std::optional<std::int64_t> Onda::Vicino(std::int64_t ms) const {
  const auto prima = Prima(ms + 1), dopo = Dopo(ms);
  if (!prima || !dopo) return prima ? prima : dopo;
  return ms - *prima <= *dopo - ms ? prima : dopo;
}

std::optional<Onda::Tratto> Onda::Fra(std::int64_t da, std::int64_t a) const {
  const auto primo = Cambio_A(da);
  const std::size_t inizio = primo ? *primo : 0;
  const auto dopo = std::ranges::lower_bound(ms_.begin() + Posto(inizio, ms_), ms_.end(), a);
  const auto fine = static_cast<std::size_t>(dopo - ms_.begin());
  if (fine == 0 || (!primo && fine <= inizio)) return {};
  const Coppia estremi = Estremi(inizio, std::max(fine, inizio + 1));
  Tratto tratto;
  tratto.Fronti = fine > inizio ? fine - inizio - 1 : 0;
  tratto.Minimo = estremi.first;
  tratto.Massimo = estremi.second;
  tratto.Primo = valori_[inizio];
  tratto.Ultimo = valori_[std::max(fine, inizio + 1) - 1];
  return tratto;
}

void Onda::Taglia_Dopo(std::int64_t ms) {
  const auto dopo = std::ranges::upper_bound(ms_, ms);
  const auto quanti = static_cast<std::size_t>(dopo - ms_.begin());
  ms_.resize(quanti);
  valori_.resize(quanti);
  Rifai_Da(quanti == 0 ? 0 : quanti - 1);
}

void Onda::Dimentica_Prima(std::int64_t ms) {
  const auto cambio = Cambio_A(ms);
  if (!cambio || *cambio == 0) return;
  ms_.erase(ms_.begin(), ms_.begin() + Posto(*cambio, ms_));
  valori_.erase(valori_.begin(), valori_.begin() + Posto(*cambio, valori_));
  livelli_.clear();
  Rifai_Da(0);
}

void Onda::Anteponi(const Onda& prima) {
  if (Vuota()) {
    *this = prima;
    return;
  }
  if (prima.Vuota() || prima.Inizio() >= Inizio()) return;
  Onda intera = prima;
  intera.Taglia_Dopo(Inizio() - 1);
  // Where this one began there is an edge only if the value was another one.
  const std::size_t uguali = Uguali(intera.valori_.back(), valori_.front()) ? 1 : 0;
  intera.ms_.insert(intera.ms_.end(), ms_.begin() + Posto(uguali, ms_), ms_.end());
  intera.valori_.insert(intera.valori_.end(), valori_.begin() + Posto(uguali, valori_),
                        valori_.end());
  intera.livelli_.clear();
  intera.Rifai_Da(0);
  *this = std::move(intera);
}

// ---- scans --------------------------------------------------------------------------------------

void Scansioni::Una(std::int64_t ms) {
  if (serie_.empty()) {
    serie_.push_back({ms, 1, 1});
    return;
  }
  Serie& ultima = serie_.back();
  const std::int64_t passo = ms - ultima.Ultimo();
  if (passo <= 0) return;  // several within a millisecond are one mark
  if (ultima.Quante == 1) {
    ultima.Passo = passo;
    ultima.Quante = 2;
  } else if (ultima.Passo == passo) {
    ++ultima.Quante;
  } else {
    if (serie_.size() >= serie_massime)
      serie_.erase(serie_.begin(), serie_.begin() + static_cast<std::ptrdiff_t>(serie_massime / 2));
    serie_.push_back({ms, 1, 1});
  }
}

void Scansioni::Aggiungi(std::int64_t ms, std::int32_t numero) {
  const std::int64_t saltate = std::int64_t{numero} - ultimo_numero_ - 1;
  ultimo_numero_ = numero;
  if (!serie_.empty() && saltate > 0) {
    const std::int64_t prima = serie_.back().Ultimo();
    // One mark per millisecond at most, like those that were run.
    const std::int64_t segni = std::min(saltate, ms - prima - 1);
    if (segni > 0) {
      const std::int64_t passo = (ms - prima) / (segni + 1);
      serie_.push_back({prima + passo, passo, segni});
    }
  }
  Una(ms);
}

std::vector<std::int64_t> Scansioni::Fra(std::int64_t da, std::int64_t a,
                                         std::size_t massime) const {
  std::vector<std::int64_t> trovate;
  auto serie = std::ranges::lower_bound(serie_, da, {}, &Serie::Ultimo);
  for (; serie != serie_.end() && serie->Primo <= a; ++serie) {
    const std::int64_t saltate =
        serie->Primo >= da ? 0 : (da - serie->Primo + serie->Passo - 1) / serie->Passo;
    for (std::int64_t n = saltate; n < serie->Quante; ++n) {
      const std::int64_t ms = serie->Primo + n * serie->Passo;
      if (ms > a) break;
      if (trovate.size() >= massime) return {};
      trovate.push_back(ms);
    }
  }
  return trovate;
}

void Scansioni::Taglia_Dopo(std::int64_t ms) {
  while (!serie_.empty() && serie_.back().Primo > ms) serie_.pop_back();
  if (serie_.empty()) return;
  Serie& ultima = serie_.back();
  if (ultima.Ultimo() > ms) ultima.Quante = (ms - ultima.Primo) / ultima.Passo + 1;
}

void Scansioni::Anteponi(Scansioni prima) {
  if (serie_.empty()) {
    *this = std::move(prima);
    return;
  }
  prima.Taglia_Dopo(serie_.front().Primo - 1);
  serie_.insert(serie_.begin(), prima.serie_.begin(), prima.serie_.end());
}

}  // namespace tavorno
