// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/trace.h"

#include <limits>

namespace tavorno {

Traccia::Traccia(Elenco_IO impianto) {
  if (!impianto.empty()) {
    for (const Riga_IO& riga : impianto)
      segnali_.push_back(Fai_Segnale(riga.Simbolo, riga.Indirizzo));
  } else {
    for (const char* area : {"I", "Q"}) {
      for (int punto = 0; punto < 16; ++punto) {
        const std::string nome = area + std::to_string(punto / 8) + "." + std::to_string(punto % 8);
        segnali_.push_back(Fai_Segnale(nome, nome));
      }
    }
    for (const char* nome : {"AIW0", "AIW2", "AIW4", "AQW0", "AQW2"})
      segnali_.push_back(Fai_Segnale(nome, nome));
  }
}

Traccia::Traccia(std::vector<Segnale> segnali, std::vector<Cambio_Segnale> cambi,
                 std::int64_t durata)
    : segnali_(std::move(segnali)),
      cambi_(std::move(cambi)),
      casi_{{"", 0, durata}},
      durata_(durata) {}

void Traccia::Inizia_Caso(const std::string& nome) {
  // A millisecond apart, so that the end of one case is seen.
  const std::int64_t inizio = casi_.empty() ? 0 : durata_ + 1;
  casi_.push_back({nome, inizio, inizio});
  durata_ = inizio;
  ultimi_.assign(segnali_.size(), std::numeric_limits<double>::quiet_NaN());
}

void Traccia::Campiona(std::int64_t ms, const Plc& plc) {
  durata_ = casi_.back().Inizio + ms;
  for (std::size_t n = 0; n < segnali_.size(); ++n) {
    const double valore = Valore(segnali_[n], plc);
    if (valore == ultimi_[n] || cambi_.size() >= Cambi_Massimi) continue;
    ultimi_[n] = valore;
    if (!cambi_.empty() && cambi_.back().Ms == durata_ && cambi_.back().Quale == n)
      cambi_.back().Valore = valore;
    else
      cambi_.push_back({durata_, n, valore});
  }
}

void Traccia::Fine_Caso(std::int64_t ms) {
  durata_ = casi_.back().Fine = casi_.back().Inizio + ms;
}

}  // namespace tavorno
