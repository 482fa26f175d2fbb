// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/line_state.h"

#include <algorithm>
#include <cstdio>

#include "plc/operands.h"

namespace tavorno {

namespace {

bool Dentro(const Riga_Area& area, int numero) {
  return area.Ultima >= 0 && numero >= 0 && numero <= area.Ultima && numero % area.Passo == 0;
}

std::string Numero(double valore) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.7g", valore);
  std::string cifre = testo;
  std::ranges::replace(cifre, '.', ',');
  return cifre;
}

template <class Elemento>
std::string Testo_Elemento(const Elemento& elemento, std::int16_t preset) {
  return std::to_string(int{elemento.Uscita}) + "  " + std::to_string(elemento.Val) + "/" +
         std::to_string(preset);
}

std::string Testo(const Plc& plc, Area codice, int numero, int bit) {
  const Riga_Area& area = Riga_Di(codice);
  if (!Dentro(area, numero)) return {};
  if (codice == Area::T) return Testo_Elemento(plc.Mem_T[numero], plc.Mem_T[numero].PT);
  if (codice == Area::C) return Testo_Elemento(plc.Mem_C[numero], plc.Mem_C[numero].PV);
  if (area.Bit > 0) {
    if (bit < 0 || bit >= area.Bit) return {};
    std::int16_t errore = 0;
    return std::to_string(plc.AC1_Bit(codice, numero, bit, errore));
  }
  if (codice == Area::AC) return Numero(plc.Mem_AC[numero]);
  static constexpr Insieme letti{Area::IB, Area::QB, Area::MB,  Area::SMB, Area::VB,
                                 Area::VW, Area::VD, Area::AIW, Area::AQW};
  std::int32_t valore = 0;
  return Leggi(plc, letti, codice, numero, valore) ? std::to_string(valore) : std::string();
}

/// Whether power means something behind such a line.
bool Ha_Flusso(const Riga_PLC& riga) {
  switch (riga.Nel_Programma) {
    case Compito::Nessuno:
    case Compito::Temporizzatore:
    case Compito::Salto:
    case Compito::Chiamata:
      return true;
    default:
      return false;
  }
}

/// The line `prima` was executed, and those to which it jumped; the CPU stands at the next one.
/// `cima_prima` is the top of the stack that it found.
void Segna_Eseguita(const Plc& plc, int prima, std::int16_t cima_prima,
                    std::vector<Flusso_Riga>& noti) {
  const auto segna = [&](int riga, std::int16_t cima) {
    if (riga < 0 || static_cast<std::size_t>(riga) >= noti.size()) return;
    const Riga_PLC& qui = plc.Prog[riga];
    if (!Ha_Flusso(qui)) return;
    noti[static_cast<std::size_t>(riga)] =
        (cima & qui.Abil_SCR) == 1 ? Flusso_Riga::Acceso : Flusso_Riga::Spento;
  };
  const int adesso = plc.PC;
  const bool saltata = adesso != prima + 1 && adesso != 0;
  segna(prima, saltata ? cima_prima : plc.Stak[0]);
  if (saltata) segna(adesso - 1, plc.Stak[0]);
}

}  // namespace

Stato_Operandi Leggi_Operandi(const Plc& plc, const Riga_PLC& riga) {
  if (Nomina_Procedura(riga.Nel_Programma)) return {};
  Stato_Operandi stato;
  stato.Testo = Testo(plc, riga.Codice1, riga.Num1, riga.Bit1);
  const Riga_Area& primo = Riga_Di(riga.Codice1);
  stato.Acceso = (primo.Bit > 0 || !primo.Preset.empty()) && stato.Testo.starts_with('1');
  const std::string secondo = Testo(plc, riga.Codice2, riga.Num2, riga.Bit2);
  if (!secondo.empty()) stato.Testo += (stato.Testo.empty() ? "" : "  ") + secondo;
  return stato;
}

// ---- power flow ---------------------------------------------------------------------------------

Flusso_Riga Flusso_Righe::Di(int riga) const {
  const auto posto = static_cast<std::size_t>(riga);
  return riga >= 0 && posto < noti_.size() ? noti_[posto] : Flusso_Riga::Ignoto;
}

void Flusso_Righe::Chiedi() {
  if (ascolta_) return;
  ascolta_ = true;
  in_scansione_ = false;
  prima_ = -1;
  nuovi_.assign(static_cast<std::size_t>(plc_.Prog.Righe()), Flusso_Riga::Ignoto);
  cessione_ = plc_.Hook.Ascolta_Cedi([this] { In_Cessione(); });
}

void Flusso_Righe::In_Cessione() {
  if (plc_.Hook.Adesso == Vissuto::Replica) return;
  const int riga = plc_.PC;
  if (in_scansione_) {
    Segna_Eseguita(plc_, prima_, cima_prima_, nuovi_);
    if (riga == 0) {
      noti_ = std::move(nuovi_);
      ascolta_ = in_scansione_ = false;
      cessione_.Termina();
      return;
    }
  }
  if (riga == 0) in_scansione_ = true;
  prima_ = riga;
  cima_prima_ = plc_.Stak[0];
}

void Flusso_Righe::Fermo() {
  if (!ascolta_) return;
  cessione_.Termina();
  ascolta_ = false;
  if (!in_scansione_) return;
  noti_.resize(nuovi_.size(), Flusso_Riga::Ignoto);
  for (std::size_t n = 0; n < nuovi_.size(); ++n) {
    if (nuovi_[n] != Flusso_Riga::Ignoto) noti_[n] = nuovi_[n];
  }
  in_scansione_ = false;
}

void Flusso_Righe::Passo() {
  const int eseguita = plc_.Lista_Scelta;
  nuovi_ = std::move(noti_);
  nuovi_.resize(static_cast<std::size_t>(plc_.Prog.Righe()), Flusso_Riga::Ignoto);
  if (eseguita == 0) nuovi_.assign(nuovi_.size(), Flusso_Riga::Ignoto);
  if (prima_ != eseguita) cima_prima_ = plc_.Stak[0];
  prima_ = eseguita;
  Segna_Eseguita(plc_, prima_, cima_prima_, nuovi_);
  noti_ = std::move(nuovi_);
  prima_ = plc_.PC;
  cima_prima_ = plc_.Stak[0];
}

void Flusso_Righe::Dimentica() {
  cessione_.Termina();
  ascolta_ = in_scansione_ = false;
  prima_ = -1;
  noti_.clear();
}

void Flusso_Righe::Prendi(std::vector<Flusso_Riga> noti) {
  Dimentica();
  noti_ = std::move(noti);
}

void Flusso_Scansione::Guarda(const Plc& plc) {
  if (plc.Righe_Fatte != righe_ && righe_ >= 0) {
    noti_.resize(static_cast<std::size_t>(plc.Prog.Righe()), Flusso_Riga::Ignoto);
    if (prima_ == 0) {
      std::ranges::fill(noti_, Flusso_Riga::Ignoto);
      intera_ = true;
    }
    Segna_Eseguita(plc, prima_, cima_prima_, noti_);
  }
  righe_ = plc.Righe_Fatte;
  prima_ = plc.PC;
  cima_prima_ = plc.Stak[0];
}

}  // namespace tavorno
