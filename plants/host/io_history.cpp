// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/host/io_history.h"

namespace tavorno {

std::optional<Punto_IO> Punto_IO::Leggi(std::string_view indirizzo) {
  if (indirizzo.size() != 4) return {};
  Punto_IO punto;
  if (indirizzo[0] == 'A') {
    punto.Analogico = true;
    punto.Area = indirizzo[1];
    punto.Canale = (indirizzo[3] - '0') / 2;
    if (indirizzo[2] != 'W' || punto.Canale < 0 || punto.Canale > 2) return {};
  } else {
    punto.Area = indirizzo[0];
    punto.Byte = indirizzo[1] - '0';
    punto.Bit = indirizzo[3] - '0';
    const bool dentro = punto.Byte >= 0 && punto.Byte <= 1 && punto.Bit >= 0 && punto.Bit <= 7;
    if (indirizzo[2] != '.' || !dentro) return {};
  }
  if (punto.Area != 'I' && punto.Area != 'Q') return {};
  return punto;
}

Storia_IO::Storia_IO(Collegamento& fili)
    : fili_(fili), plc_(fili.Cpu()), grandezze_(Grandezze_Di(fili.Tabella().Indice)) {
  for (const Riga_IO& riga : fili.Tabella().Righe_IO) {
    Riga nuova;
    if (const auto punto = Punto_IO::Leggi(riga.Indirizzo)) nuova.Di = *punto;
    nuova.Ultimo = Letto(nuova.Di);
    if (!nuova.Di.Analogico) nuova.Tratti.push_back({Adesso(), nuova.Ultimo});
    righe_.push_back(std::move(nuova));
  }
  misure_.resize(grandezze_.size());
  for (std::size_t n = 0; n < 2; ++n) {
    const int byte = static_cast<int>(n);
    ascolti_[n] = plc_.SI[n].Change.Ascolta([this, byte] { Segna('I', byte); });
    ascolti_[2 + n] = plc_.SQ[n].Change.Ascolta([this, byte] { Segna('Q', byte); });
  }
}

double Storia_IO::Letto(const Punto_IO& punto) const {
  const auto byte = static_cast<std::size_t>(punto.Byte);
  const auto bit = static_cast<std::size_t>(punto.Bit);
  if (punto.Analogico)
    return punto.Area == 'I' ? plc_.Volt_AI[punto.Canale] : plc_.Volt_AQ[punto.Canale];
  const std::string& testo = punto.Area == 'I' ? plc_.SI[byte].Stato_I() : plc_.SQ[byte].Stato_Q();
  return testo[bit] == '1' ? 1 : 0;
}

double Storia_IO::Valore(std::size_t riga) const {
  return Letto(righe_.at(riga).Di);
}

void Storia_IO::Segna(char area, int byte) {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  for (Riga& riga : righe_) {
    if (!riga.Di.Analogico && riga.Di.Area == area && riga.Di.Byte == byte)
      Segna(riga, Letto(riga.Di));
  }
}

void Storia_IO::Segna(Riga& riga, double valore) {
  if (valore == riga.Ultimo) return;
  riga.Ultimo = valore;
  riga.Cambiato = Adesso();
  if (riga.Di.Analogico) return;
  Tratto& ultimo = riga.Tratti.back();
  if (riga.Tratti.size() > 1 && Adesso() - ultimo.Ms < Fitto) {
    ultimo.Valore = valore;
    ultimo.Fitto = true;
  } else {
    riga.Tratti.push_back({Adesso(), valore});
  }
}

void Storia_IO::Dimentica(std::deque<Tratto>& tratti) const {
  while (tratti.size() > 1 && tratti[1].Ms <= Adesso() - Durata) tratti.pop_front();
}

void Storia_IO::Guarda() {
  for (Riga& riga : righe_) {
    if (riga.Di.Analogico) Segna(riga, Letto(riga.Di));
    Dimentica(riga.Tratti);
  }
  for (std::size_t n = 0; n < grandezze_.size(); ++n) {
    std::deque<Tratto>& tratti = misure_[n];
    const double valore = tavorno::Valore(grandezze_[n], plc_, fili_.Macchina());
    // Of what stands still only the ends are kept.
    if (tratti.size() > 1 && tratti.back().Valore == valore &&
        tratti[tratti.size() - 2].Valore == valore)
      tratti.back().Ms = Adesso();
    else if (tratti.empty() || tratti.back().Ms != Adesso())
      tratti.push_back({Adesso(), valore});
    Dimentica(tratti);
  }
}

}  // namespace tavorno
