// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/plant.h"

#include <algorithm>

namespace tavorno {

namespace {

constexpr std::size_t lunghezza = 16;

/// Behind the inputs in `txtC`; it sets a whole message apart from the bare text of the let.
constexpr const char* zeri = "0000000000000000";

std::string Sedici(std::string_view testo) {
  std::string sedici(testo);
  sedici.resize(lunghezza, '0');
  return sedici;
}

std::size_t Posto(int posizione) {
  return static_cast<std::size_t>(posizione - 1);
}

bool Chiama(const std::function<void()>& azione) {
  if (azione) azione();
  return azione != nullptr;
}

}  // namespace

Impianto::Impianto(std::span<const Riga_Figura> figure, std::string_view stato_i, Invio invio)
    : Disegno(figure), stato_i_(Sedici(stato_i)), invio_(invio) {
  for (std::size_t n = 0; n < lunghezza; ++n) {
    fili_i_[n] = Disegno.Trova("filoI(" + std::to_string(n) + ')');
    fili_q_[n] = Disegno.Trova("filoQ(" + std::to_string(n) + ')');
  }
  Colora(fili_i_, stato_i_);
  Colora(fili_q_, stato_q_);
}

void Impianto::Colora(const Fili& fili, const std::string& stato) {
  for (std::size_t n = 0; n < lunghezza; ++n)
    if (fili[n] != nullptr) fili[n]->FillColor = Tavolozza(stato[n] == '1' ? 12 : 15);
}

void Impianto::Stato_I(std::string_view testo) {
  stato_i_ = Sedici(testo);
  Colora(fili_i_, stato_i_);
  if (invio_ == Invio::Doppio) txtC(stato_i_);
}

void Impianto::Stato_Q(std::string_view testo) {
  stato_q_ = Sedici(testo);
  Colora(fili_q_, stato_q_);
  Applica_Uscite();
}

bool Impianto::Premi(std::string_view nome) {
  const Figura* figura = Disegno.Trova(nome);
  return figura && figura->Visible && Chiama(figura->Premi);
}

bool Impianto::Rilascia(std::string_view nome) {
  const Figura* figura = Disegno.Trova(nome);
  return figura && Chiama(figura->Rilascia);
}

bool Impianto::Clic(std::string_view nome) {
  const Figura* figura = Disegno.Trova(nome);
  return figura && figura->Visible && Chiama(figura->Clic);
}

bool Impianto::Doppio_Clic(std::string_view nome) {
  const Figura* figura = Disegno.Trova(nome);
  return figura && figura->Visible && Chiama(figura->Doppio_Clic);
}

bool Impianto::Regola(std::string_view nome, double valore) {
  const auto trovato = Regolatori.find(nome);
  if (trovato == Regolatori.end()) return false;
  Regolatore& regolatore = trovato->second;
  const double tenuto = std::clamp(valore, regolatore.Minimo, regolatore.Massimo);
  if (tenuto != regolatore.Valore) {
    regolatore.Valore = tenuto;
    if (regolatore.Cambia) regolatore.Cambia(tenuto);
  }
  return true;
}

const Regolatore* Impianto::Trova_Regolatore(std::string_view nome) const {
  const auto trovato = Regolatori.find(nome);
  return trovato == Regolatori.end() ? nullptr : &trovato->second;
}

std::string_view Impianto::Uscita(int posizione) const {
  return std::string_view(stato_q_).substr(Posto(posizione), 1);
}

bool Impianto::Uscita_Cambiata(int posizione) {
  const char adesso = stato_q_.at(Posto(posizione));
  return std::exchange(viste_.at(Posto(posizione)), adesso) != adesso;
}

char Impianto::Ingresso(int posizione) const {
  return stato_i_.at(Posto(posizione));
}

void Impianto::Ingresso(int posizione, char valore) {
  stato_i_.at(Posto(posizione)) = valore;
}

void Impianto::Invia() {
  Stato_I(std::string(stato_i_));
  txtC(stato_i_ + zeri);
}

void Impianto::txtC(std::string testo) {
  if (testo == txtC_) return;
  txtC_ = std::move(testo);
  Change();
}

}  // namespace tavorno
