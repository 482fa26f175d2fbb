// SPDX-License-Identifier: GPL-3.0-or-later
// TON, TOF, TONR. The tick of `T100m` (run_control.cpp) moves what these start and stop.
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

/// The preset is taken at every execution, so one in VW or AC follows its variable.
bool Plc::Preset(const Riga_PLC& riga, std::int16_t& preset) const {
  switch (riga.Codice2) {
    case Area::K:
      preset = riga.Num2;
      return true;
    case Area::VW:
      preset = Mem_VW[riga.Num2];
      return true;
    default:
      return false;
  }
}

bool Plc::Preset_Timer(const Riga_PLC& riga, std::int16_t& preset) const {
  if (riga.Codice2 != Area::AC) return Preset(riga, preset);
  preset = A_16(Arrotonda(Mem_AC[riga.Num2]), "PT");
  return true;
}

Esito Plc::Istr_TON(Riga_PLC& riga) {
  std::int16_t preset = 0;
  if (!Preset_Timer(riga, preset)) return Esito::Errore;
  Riga_Timer& timer = Mem_T[riga.Num1];
  timer.PT = preset;
  if (timer.Val >= timer.PT) timer.Uscita = 1;
  if (!Flusso(riga)) {
    timer.Uscita = 0;
    timer.Conta = 0;
    timer.Val = 0;
  } else if (timer.Conta == 0) {
    if (timer.Val < timer.PT) timer.Uscita = 0;
    timer.Conta = -1;
  }
  return Esito::Avanti;
}

Esito Plc::Istr_TOF(Riga_PLC& riga) {
  std::int16_t preset = 0;
  if (!Preset_Timer(riga, preset)) return Esito::Errore;
  Riga_Timer& timer = Mem_T[riga.Num1];
  timer.PT = preset;
  const bool flusso = Flusso(riga);
  if (timer.Val >= timer.PT) {
    timer.Conta = 0;
    timer.Uscita = 0;
  }
  if (flusso && timer.Conta == 0) timer.Uscita = 1;

  const bool era_acceso = riga.Fronte == 1;
  riga.Fronte = flusso ? 1 : 0;
  if (!flusso && era_acceso) {
    timer.Conta = -1;
  } else if (flusso && !era_acceso) {
    timer.Val = 0;
    timer.Conta = 0;
  }
  return Esito::Avanti;
}

Esito Plc::Istr_TONR(Riga_PLC& riga) {
  std::int16_t preset = 0;
  if (!Preset_Timer(riga, preset)) return Esito::Errore;
  Riga_Timer& timer = Mem_T[riga.Num1];
  timer.PT = preset;
  if (timer.Val >= timer.PT) timer.Uscita = 1;
  if (!Flusso(riga)) {
    timer.Conta = 0;  // the time so far and the output stay: only R clears them
  } else if (timer.Conta == 0) {
    if (timer.Val < timer.PT) timer.Uscita = 0;
    timer.Conta = -1;
  }
  return Esito::Avanti;
}

}  // namespace tavorno
