// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/rereading.h"

#include <algorithm>

namespace tavorno {

namespace {
// A CPU that stands has no yields in which the time could be looked at.
constexpr std::int64_t tratto = 500;  // ms of the session
constexpr int almeno = 8;             // looks of a slice, so that each gets further
}  // namespace

Rilettura::Rilettura(Registratore& registratore, const std::vector<Segnale>& segnali)
    : seduta_(registratore.Dal_Primo()), da_(registratore.Primo()), a_(registratore.Presente()) {
  for (const Segnale& segnale : segnali) dati_.Aggiungi(segnale);
  Metti_Stato(plc_, *seduta_.Programma, seduta_.Stato);
  fin_qui_ = plc_.Tempo.Adesso();
  replica_.emplace(plc_, seduta_.Voci, seduta_.Voci.Inizio);
  replica_->In_Giro = seduta_.Stato.In_Giro != Giro::Nessuno;
  replica_->Guarda = [this] { return In_Corsa(); };
  entrate_ = plc_.Hook.Entra.Ascolta([this](const Atto&) { Da_Ferma(); });
}

/// As `Sonda` does it: before each scan, once per millisecond.
bool Rilettura::In_Corsa() {
  const std::int64_t ms = plc_.Tempo.Adesso();
  if (inizia_ && plc_.Righe_Fatte != inizia_->Righe) Segna_Scansione();
  const bool visto = plc_.Righe_Fatte >= da_.Righe && ms >= da_.Ms;
  if (visto && plc_.In_Giro() != Giro::Nessuno && plc_.PC == 0 && ms != ultimo_) {
    ultimo_ = ms;
    dati_.Campiona(ms, plc_);
    inizia_ = {plc_.Righe_Fatte, ms, plc_.N_Cicli};
  }
  return concesse_-- > 0 || std::chrono::steady_clock::now() < scade_;
}

void Rilettura::Segna_Scansione() {
  if (inizia_) dati_.Scansione(inizia_->Ms, inizia_->Numero);
  inizia_.reset();
}

/// What stood when something entered. Half of a scan is no state of the process.
void Rilettura::Da_Ferma() {
  const std::int64_t ms = plc_.Tempo.Adesso();
  const bool a_meta = plc_.PC != 0 && plc_.PLC_Acceso && !plc_.Attivi.CmdStep;
  if (plc_.In_Giro() != Giro::Nessuno || a_meta) return;
  if (plc_.Righe_Fatte >= da_.Righe && ms >= da_.Ms) dati_.Campiona(ms, plc_);
}

bool Rilettura::Avanti(std::chrono::nanoseconds tempo) {
  scade_ = std::chrono::steady_clock::now() + tempo;
  concesse_ = almeno;
  try {
    do {
      fin_qui_ += replica_->Fermata() ? 0 : tratto;
      finita_ = !replica_->Vai({.Ms = fin_qui_}) && !replica_->Fermata();
    } while (!finita_ && std::chrono::steady_clock::now() < scade_);
    if (finita_) {
      Segna_Scansione();
      Da_Ferma();
    }
  } catch (const Giornale_Discorde&) {
    finita_ = true;
  } catch (const Fatale&) {
    finita_ = true;
  }
  return !finita_;
}

double Rilettura::Fatta() const {
  if (finita_ || a_.Ms <= da_.Ms) return 1;
  const auto fatti = static_cast<double>(plc_.Tempo.Adesso() - da_.Ms);
  return std::clamp(fatti / static_cast<double>(a_.Ms - da_.Ms), 0.0, 1.0);
}

}  // namespace tavorno
