// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/probe.h"

namespace tavorno {

namespace {
constexpr int non_conta = 1'000'000;  // this listener never needs to be asked more often
}

Sonda::Sonda(Plc& plc, Registrazione& registrazione) : plc_(plc), registrazione_(registrazione) {
  cessione_ = plc_.Hook.Ascolta_Cedi([this] { In_Cessione(); }, non_conta);
  entrate_ = plc_.Hook.Entra.Ascolta([this](const Atto& entrata) { Sta_Per_Entrare(entrata); });
}

/// The present, which may be earlier than what is recorded: a run has gone on from its past.
void Sonda::Campiona() {
  const std::int64_t ms = plc_.Tempo.Adesso();
  if (ms < registrazione_.Fine()) registrazione_.Taglia(ms);
  registrazione_.Campiona(ms, plc_);
}

/// An entry is announced while the clock still shows when the step before it was done.
void Sonda::Sta_Per_Entrare(const Atto& entrata) {
  if (plc_.Hook.Adesso != Vissuto::Presente || In_Pausa) return;
  const bool passo = entrata == Di_Comando(Comando_Corsa::Passo);
  if (passo || passo_) Campiona();
  passo_ = passo;
}

void Sonda::In_Cessione() {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  const std::int64_t ms = plc_.Tempo.Adesso();
  if (plc_.PC != 0 || ms == ultimo_ || In_Pausa) return;
  ultimo_ = ms;
  Campiona();
  registrazione_.Scansione(ms, plc_.N_Cicli);
}

void Sonda::Da_Capo() {
  ultimo_ = -1;
  passo_ = false;
}

void Sonda::Guarda() {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  const bool a_meta = plc_.PC != 0 && plc_.PLC_Acceso && !plc_.Attivi.CmdStep;
  if (!In_Pausa && !a_meta) Campiona();
}

}  // namespace tavorno
