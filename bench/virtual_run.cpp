// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/virtual_run.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

namespace tavorno {

namespace {

/// Takes an entry apart from the left; once something does not fit, all that follows fails too.
class Voce {
 public:
  explicit Voce(std::string_view testo) : testo_(testo) {}

  bool Inizia_Con(std::string_view segno) {
    if (!buona_ || !testo_.starts_with(segno)) return false;
    testo_.remove_prefix(segno.size());
    return true;
  }
  void Vuole(std::string_view segno) { buona_ = Inizia_Con(segno); }

  template <class T>
  T Numero(T minimo, T massimo) {
    T valore{};
    const auto [fine, errore] =
        std::from_chars(testo_.data(), testo_.data() + testo_.size(), valore);
    buona_ = buona_ && errore == std::errc{} && valore >= minimo && valore <= massimo;
    if (buona_) testo_.remove_prefix(static_cast<std::size_t>(fine - testo_.data()));
    return valore;
  }
  bool Finita_Bene() const { return buona_ && testo_.empty(); }

 private:
  std::string_view testo_;
  bool buona_ = true;
};

/// One entry of the list; empty when it is not well formed.
std::optional<Evento_Ingresso> Leggi_Ingresso(std::string_view testo) {
  Voce voce(testo);
  Evento_Ingresso evento;
  evento.Ms = voce.Numero<std::int64_t>(0, 1'000'000'000'000);
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
  std::vector<Evento_Ingresso> eventi;
  std::size_t inizio = 0;
  while (inizio <= testo.size()) {
    const std::size_t fine = std::min(testo.find(',', inizio), testo.size());
    const std::string voce = testo.substr(inizio, fine - inizio);
    const auto evento = Leggi_Ingresso(voce);
    if (!evento) {
      errore = "ingresso non valido \"" + voce + "\": si scrive 500:I0.1=1 oppure 500:AI0=2.5";
      return {};
    }
    eventi.push_back(*evento);
    inizio = fine + 1;
  }
  std::ranges::stable_sort(eventi, {}, &Evento_Ingresso::Ms);
  return eventi;
}

Corsa::Corsa(Plc& plc, Limiti limiti) : plc_(plc), limiti_(limiti) {}

void Corsa::Applica_Ingressi() {
  while (prossimo_ingresso_ < Ingressi.size() && Ingressi[prossimo_ingresso_].Ms <= Tempo()) {
    const Evento_Ingresso& evento = Ingressi[prossimo_ingresso_++];
    if (evento.Analogico) {
      plc_.Volt_AI[evento.Canale] = evento.Valore;
      continue;
    }
    LedI& barra = plc_.SI[static_cast<std::size_t>(evento.Byte)];
    std::string stato = barra.Stato_I();
    stato[static_cast<std::size_t>(evento.Bit)] = evento.Acceso ? '1' : '0';
    barra.Stato_I(stato);
  }
}

void Corsa::Prima_Della_Riga() {
  if (plc_.N_Cicli == scansioni_viste_) {
    if (++righe_ > limiti_.Righe_Scansione) {
      senza_mend_ = true;
      plc_.Ferma = -1;
    }
    return;
  }
  scansioni_viste_ = plc_.N_Cicli;
  righe_ = 0;
  plc_.Tempo.Avanza(limiti_.Scansione);
  Applica_Ingressi();
  if (Tempo() >= limiti_.Durata) plc_.Ferma = -1;
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
  // The bars raise one event each; the handlers that they have stay in front of ours.
  std::array<std::function<void()>, 2> di_i, di_q;
  for (std::size_t n = 0; n < 2; ++n) {
    di_i[n] = plc_.SI[n].Change;
    di_q[n] = plc_.SQ[n].Change;
    plc_.SI[n].Change = [this, n, prima = di_i[n]] {
      if (prima) prima();
      Confronta('I', ingressi_visti_, static_cast<int>(n), plc_.SI[n].Stato_IB());
    };
    plc_.SQ[n].Change = [this, n, prima = di_q[n]] {
      Confronta('Q', uscite_viste_, static_cast<int>(n), plc_.SQ[n].Stato_QB());
      if (prima) prima();
    };
  }
  plc_.Hook.Cedi = [this] { Prima_Della_Riga(); };
  inizio_ = plc_.Tempo.Adesso();
  Applica_Ingressi();

  Fine_Corsa fine = Fine_Corsa::Tempo;
  try {
    plc_.mnuPlcCont();
    plc_.mnuPlcRun();
    if (senza_mend_)
      fine = Fine_Corsa::Senza_MEND;
    else if (!plc_.PLC_Acceso)
      fine = Fine_Corsa::Arresto;
  } catch (const Fatale& fatale) {
    rapporto_ = Rapporto_Fatale(fatale, plc_);
    fine = Fine_Corsa::Fatale;
  }
  plc_.Hook.Cedi = nullptr;
  for (std::size_t n = 0; n < 2; ++n) {
    plc_.SI[n].Change = di_i[n];
    plc_.SQ[n].Change = di_q[n];
  }
  return fine;
}

}  // namespace tavorno
