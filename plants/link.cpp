// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/link.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace tavorno {

namespace {

// On a channel behind a broken wire: as good as no voltage, and yet a value that no plant writes.
constexpr float senza_filo = std::numeric_limits<float>::denorm_min();

}  // namespace

Collegamento::Collegamento(Plc& plc, Stato_Impianto& stato, const Esercizio& esercizio,
                           std::function<void(Modo_Sportello)> sportello)
    : plc_(plc), stato_(stato), esercizio_(esercizio), sportello_(std::move(sportello)) {
  if (!esercizio_.Crea) throw std::invalid_argument(std::string("no plant ") + esercizio_.Classe);
  Apri();
}

void Collegamento::Apri() {
  plc_.Hook.Entra({.Che = Cosa::Apri, .Indice = esercizio_.Indice});
  ascolto_macchina_.Termina();
  for (Iscrizione& ascolto : ascolto_uscite_) ascolto.Termina();
  macchina_.reset();
  aperto_ = true;
  chkSim_ = false;
  guasti_ = {};
  dietro_ = {};
  valori_.clear();
  for (const Cursore& cursore : esercizio_.Cursori) valori_.push_back(cursore.Inizio);

  stato_.Impianto_Nr = static_cast<std::uint8_t>(esercizio_.Indice);
  LED_Reset();  // which also lets the output bars speak
  if (sportello_) sportello_(Modo_Sportello::Impianto);
  stato_.Impianto_Aperto = -1;

  macchina_ = esercizio_.Crea(plc_);
  a_riposo_ = macchina_->Stato_I();
  for (std::size_t n = 0; n < 2; ++n) {
    ascolto_uscite_[n] = plc_.SQ[n].Change.Ascolta([this] { Uscite_Cambiate(); });
  }
}

Collegamento::~Collegamento() {
  Chiudi();
}

void Collegamento::Carica() {
  plc_.Hook.Entra({.Che = Cosa::Carica});
  ascolto_macchina_ = macchina_->Change.Ascolta([this] { Ingressi_Cambiati(); });
  if (esercizio_.Attivare) macchina_->Regola(esercizio_.Attivare, 1);
  if (std::ranges::any_of(esercizio_.Cursori, &Cursore::Al_Caricamento)) Scrivi_Cursori();
  Ingressi_Cambiati();
}

void Collegamento::Chiudi() {
  if (!aperto_) return;
  plc_.Hook.Entra({.Che = Cosa::Chiudi});
  aperto_ = false;
  LED_Reset();
  if (sportello_) sportello_(Modo_Sportello::Interruttori);
  stato_ = {};
  ascolto_macchina_.Termina();
  for (Iscrizione& ascolto : ascolto_uscite_) ascolto.Termina();
}

bool Collegamento::Entra(const Atto& entrata) {
  // A hand that lets go while the window closes comes too late: no plant is there any more.
  if (plc_.Hook.Adesso == Vissuto::Passato || !aperto_) return false;
  plc_.Hook.Entra(entrata);
  switch (entrata.Che) {
    case Cosa::Usa_Interruttori:
      chkSim(entrata.Numero != 0);
      return true;
    case Cosa::Cursore:
      Muovi(static_cast<std::size_t>(entrata.Indice), static_cast<int>(entrata.Numero));
      return true;
    case Cosa::Premi:
      return macchina_->Premi(entrata.Testo);
    case Cosa::Rilascia:
      return macchina_->Rilascia(entrata.Testo);
    case Cosa::Clic:
      return macchina_->Clic(entrata.Testo);
    case Cosa::Doppio_Clic:
      return macchina_->Doppio_Clic(entrata.Testo);
    case Cosa::Regola: {
      const bool sentito = macchina_->Regola(entrata.Testo, entrata.Valore);
      Taglia_Canali();
      return sentito;
    }
    case Cosa::Guasto:
      return Guasta(entrata.Testo, entrata.Numero != 0);
    default:
      return false;
  }
}

void Collegamento::chkSim(bool spuntato) {
  chkSim_ = spuntato;
  if (!esercizio_.Ascolta_chkSim) return;
  if (sportello_) sportello_(spuntato ? Modo_Sportello::Interruttori : Modo_Sportello::Impianto);
  if (!spuntato) Ingressi_Cambiati();
}

void Collegamento::Muovi(std::size_t numero, int valore) {
  const Cursore& cursore = esercizio_.Cursori[numero];
  valori_.at(numero) = std::clamp(valore, cursore.Minimo, cursore.Massimo);
  Scrivi_Cursori();
}

void Collegamento::Scrivi_Cursori() {
  for (std::size_t n = 0; n < valori_.size(); ++n) {
    const Cursore& cursore = esercizio_.Cursori[n];
    if (cursore.Scrive)
      macchina_->Regola(cursore.Scrive, cursore.Zero + cursore.Pendenza * valori_[n]);
  }
}

void Collegamento::Ingressi_Cambiati() {
  Taglia_Canali();
  if (chkSim_) return;
  const std::string ingressi = guasti_.Ai_Morsetti(macchina_->Stato_I());
  plc_.SI[0].Stato_I(ingressi.substr(0, 8));
  plc_.SI[1].Stato_I(ingressi.substr(8));
  if (!esercizio_.Analogici) return;
  const std::optional<float> volt[] = {macchina_->ME_AIW0, macchina_->ME_AIW2, macchina_->ME_AIW4};
  for (std::size_t canale = 0; const std::optional<float>& valore : volt) {
    if (valore) plc_.Volt_AI[static_cast<int>(canale)] = guasti_.Al_Morsetto(canale, *valore);
    ++canale;
  }
}

/// Of a plant that writes the channels itself: what it has written since the last time goes behind
/// the wires that are broken, and comes back when they are mended.
void Collegamento::Taglia_Canali() {
  if (esercizio_.Analogici) return;
  for (std::size_t canale = 0; canale < dietro_.size(); ++canale) {
    float& volt = plc_.Volt_AI[static_cast<int>(canale)];
    const bool rotto = guasti_.Attivo({.Analogico = true, .Posto = canale});
    if (rotto && volt != senza_filo)
      dietro_[canale] = std::exchange(volt, senza_filo);
    else if (!rotto && volt == senza_filo)
      volt = dietro_[canale];
  }
}

std::optional<Nome_Filo> Collegamento::Filo(std::string_view nome) const {
  const std::optional<Nome_Filo> filo = Leggi_Nome_Filo(nome);
  if (!filo) return {};
  const bool suo = std::ranges::any_of(esercizio_.Righe_IO, [&](const Riga_IO& riga) {
    return Nome_Guasto(filo->Cosa, riga.Indirizzo) == nome;
  });
  return suo ? filo : std::nullopt;
}

bool Collegamento::Guasta(std::string_view nome, bool attivo) {
  const std::optional<Nome_Filo> filo = Filo(nome);
  if (!filo) return false;
  guasti_.Metti(*filo, attivo);
  if (aperto_) Ingressi_Cambiati();
  return true;
}

bool Collegamento::Guastato(std::string_view nome) const {
  const std::optional<Nome_Filo> filo = Filo(nome);
  return filo && guasti_.Attivo(*filo);
}

void Collegamento::Uscite_Cambiate() {
  macchina_->Stato_Q(plc_.SQ[0].Stato_Q() + plc_.SQ[1].Stato_Q());
}

void Collegamento::LED_Reset() {
  for (LedI& barra : plc_.SI) barra.LED_Reset();
  for (LedQ& barra : plc_.SQ) barra.LED_Reset();
}

}  // namespace tavorno
