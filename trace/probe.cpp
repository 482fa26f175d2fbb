// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/probe.h"

namespace tavorno {

namespace {
constexpr int non_conta = 1'000'000;  // this listener never needs to be asked more often
}

Sonda::Sonda(Plc& plc, Registrazione& registrazione) : plc_(plc), registrazione_(registrazione) {
  cessione_ = plc_.Hook.Ascolta_Cedi([this] { In_Cessione(); }, non_conta);
}

void Sonda::In_Cessione() {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  const std::int64_t ms = plc_.Tempo.Adesso();
  if (plc_.PC != 0 || ms == ultimo_ || In_Pausa) return;
  ultimo_ = ms;
  registrazione_.Scansione(ms, plc_.N_Cicli);
  registrazione_.Campiona(ms, plc_);
}

void Sonda::Guarda() {
  if (plc_.Hook.Adesso != Vissuto::Presente) return;
  const bool a_meta = plc_.PC != 0 && plc_.PLC_Acceso && !plc_.Attivi.CmdStep;
  if (!In_Pausa && !a_meta) registrazione_.Campiona(plc_.Tempo.Adesso(), plc_);
}

}  // namespace tavorno
