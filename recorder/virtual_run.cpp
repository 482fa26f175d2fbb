// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/virtual_run.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "recorder/entry_reader.h"

namespace tavorno {

namespace {

/// One entry of the list; empty when it is not well formed.
std::optional<Evento_Ingresso> Leggi_Ingresso(std::string_view testo) {
  Voce voce(testo);
  Evento_Ingresso evento;
  evento.Ms = voce.Istante();
  voce.Vuole(":");
  evento.Analogico = voce.Inizia_Con("AI");
  if (evento.Analogico) {
    evento.Canale = voce.Numero(0, 2);
    voce.Vuole("=");
    evento.Valore = voce.Numero(-1000.0F, 1000.0F);
  } else {
    voce.Vuole("I");
    evento.Byte = voce.Numero(0, 1);
    voce.Vuole(".");
    evento.Bit = voce.Numero(0, 7);
    voce.Vuole("=");
    evento.Acceso = voce.Numero(0, 1) == 1;
  }
  if (!voce.Finita_Bene()) return {};
  return evento;
}

}  // namespace

std::vector<Evento_Ingresso> Leggi_Ingressi(const std::string& testo, std::string& errore) {
  std::optional<std::string> errata;
  std::vector<Evento_Ingresso> eventi = Leggi_Lista(testo, Leggi_Ingresso, errata);
  if (errata)
    errore = "ingresso non valido \"" + *errata + "\": si scrive 500:I0.1=1 oppure 500:AI0=2.5";
  return eventi;
}

Corsa::Corsa(Plc& plc, Limiti limiti) : plc_(plc), limiti_(limiti), riposo_(plc) {}

void Corsa::Applica_Eventi() {
  while (prossimo_ingresso_ < Ingressi.size() && Ingressi[prossimo_ingresso_].Ms <= Tempo()) {
    const Evento_Ingresso& evento = Ingressi[prossimo_ingresso_++];
    if (evento.Analogico) {
      plc_.Entra({.Che = Cosa::Volt_AI, .Indice = evento.Canale, .Valore = evento.Valore});
      continue;
    }
    std::string stato = plc_.SI[static_cast<std::size_t>(evento.Byte)].Stato_I();
    stato[static_cast<std::size_t>(evento.Bit)] = evento.Acceso ? '1' : '0';
    plc_.Entra(Di_Ingresso(evento.Byte, stato));
  }
  while (Impianto_Collegato && prossimo_gesto_ < Mani.size() &&
         Mani[prossimo_gesto_].Ms <= Tempo()) {
    const Gesto& gesto = Mani[prossimo_gesto_++];
    if (!Esegui_Gesto(gesto, *Impianto_Collegato) && Senza_Effetto) Senza_Effetto(Tempo(), gesto);
  }
}

void Corsa::Campiona() {
  if (Registra) Registra->Campiona(Tempo(), plc_);
}

/// Time passes for so many scans, with what is due at the last one. False when it is over.
bool Corsa::Fa_Passare(std::int64_t scansioni) {
  Campiona();
  plc_.Entra({.Che = Cosa::Passano, .Numero = scansioni * limiti_.Scansione});
  Applica_Eventi();
  Campiona();
  if (Tempo() < limiti_.Durata) return true;
  plc_.Entra(Comando_Corsa::Fine);
  return false;
}

/// How many scans lie ahead before a timer ticks, a hand moves or the time is over.
std::int64_t Corsa::Scansioni_Senza_Eventi() const {
  std::int64_t fino_a = std::min(riposo_.Prossimo(), inizio_ + limiti_.Durata);
  if (prossimo_ingresso_ < Ingressi.size())
    fino_a = std::min(fino_a, inizio_ + Ingressi[prossimo_ingresso_].Ms);
  if (Impianto_Collegato && prossimo_gesto_ < Mani.size())
    fino_a = std::min(fino_a, inizio_ + Mani[prossimo_gesto_].Ms);
  return riposo_.Saltabili((fino_a - plc_.Tempo.Adesso() - 1) / limiti_.Scansione);
}

/// The yield of the run. It comes again within a scan only when the lines of the limit are used up.
/// Scans that would change nothing pass in here: at once up to the next event, and one by one where
/// there is an event that leaves the CPU as it is.
void Corsa::Prima_Della_Scansione() {
  const bool prima = scansioni_viste_ < 0;
  if (plc_.N_Cicli == scansioni_viste_) {
    senza_mend_ = true;
    plc_.Entra(Comando_Corsa::Fine);
    return;
  }
  scansioni_viste_ = plc_.N_Cicli;
  if (prima) return;
  constexpr std::int64_t righe = 0;  // nobody counts them here
  bool riposa = !limiti_.Ogni_Scansione && riposo_.Scansione_Fatta(righe);
  for (;;) {
    const std::int64_t senza_eventi = riposa ? Scansioni_Senza_Eventi() : 0;
    if (!Fa_Passare(std::max<std::int64_t>(senza_eventi, 1))) return;
    if (senza_eventi > 0) {
      riposo_.Salta(senza_eventi);
    } else {
      riposa = !limiti_.Ogni_Scansione && riposo_.Riposa() && riposo_.Saltabili(1) > 0;
      if (!riposa) return;
      riposo_.Salta(1);
    }
    scansioni_viste_ = plc_.N_Cicli;
  }
}

void Corsa::Confronta(char area, std::array<std::uint8_t, 2>& visti, int byte,
                      std::uint8_t adesso) {
  std::uint8_t& prima = visti[static_cast<std::size_t>(byte)];
  const unsigned diversi = prima ^ adesso;
  prima = adesso;
  for (int bit = 0; bit < 8; ++bit) {
    if ((diversi >> bit & 1U) != 0 && Cambio) Cambio(Tempo(), area, byte, bit, adesso >> bit & 1U);
  }
}

Fine_Corsa Corsa::Esegui() {
  // An output is told before a plant reacts to it, and an input after the CPU has heard it.
  std::vector<Iscrizione> ascolti;
  for (std::size_t n = 0; n < 2; ++n) {
    ascolti.push_back(plc_.SI[n].Change.Ascolta([this, n] {
      Confronta('I', ingressi_visti_, static_cast<int>(n), plc_.SI[n].Stato_IB());
    }));
    ascolti.push_back(plc_.SQ[n].Change.Ascolta_Per_Primo(
        [this, n] { Confronta('Q', uscite_viste_, static_cast<int>(n), plc_.SQ[n].Stato_QB()); }));
  }
  ascolti.push_back(
      plc_.Hook.Ascolta_Cedi([this] { Prima_Della_Scansione(); }, limiti_.Righe_Scansione));
  inizio_ = plc_.Tempo.Adesso();
  if (Registra) Registra->Inizia_Caso("esecuzione");

  Fine_Corsa fine = Fine_Corsa::Tempo;
  try {
    if (Impianto_Collegato) Impianto_Collegato->Carica();
    Applica_Eventi();
    Campiona();
    plc_.Entra(Comando_Corsa::Cont);
    plc_.Entra(Comando_Corsa::Run);
    if (senza_mend_)
      fine = Fine_Corsa::Senza_MEND;
    else if (!plc_.PLC_Acceso)
      fine = Fine_Corsa::Arresto;
  } catch (const Fatale& fatale) {
    rapporto_ = Rapporto_Fatale(fatale, plc_);
    fine = Fine_Corsa::Fatale;
  }
  if (Registra) Registra->Fine_Caso(Tempo());
  return fine;
}

}  // namespace tavorno
