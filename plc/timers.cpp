// SPDX-License-Identifier: GPL-3.0-or-later
// TON, TOF, TONR. The tick of `T100m` (run_control.cpp) moves what these start and stop.
#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

namespace {

/// The timer of a line with its preset, which is taken at every execution, so one in VW or AC
/// follows its variable. None when the preset cannot be read.
[[gnu::always_inline]] inline Riga_Timer* Prendi_Timer(Plc& plc, const Riga_PLC& riga) {
  std::int32_t preset = 0;
  if (!Secondo(plc, riga, operandi::preset_timer, preset)) return nullptr;
  const std::int16_t tick = A_16(preset, "PT");
  Riga_Timer& timer = plc.Mem_T[riga.Num1];
  timer.PT = tick;
  return &timer;
}

/// TON and TONR differ in what they do without power flow.
[[gnu::always_inline]] inline Esito Ritardo_Inserzione(Plc& plc, const Riga_PLC& riga,
                                                       bool con_memoria) {
  Riga_Timer* const timer = Prendi_Timer(plc, riga);
  if (!timer) return Esito::Errore;
  if (timer->Val >= timer->PT) timer->Uscita = 1;
  if (Flusso(plc, riga)) {
    if (timer->Conta != 0) return Esito::Avanti;
    if (timer->Val < timer->PT) timer->Uscita = 0;
    timer->Conta = -1;
    return Esito::Avanti;
  }
  timer->Conta = 0;
  if (con_memoria) return Esito::Avanti;  // only R clears the time so far and the output
  timer->Uscita = 0;
  timer->Val = 0;
  return Esito::Avanti;
}

Esito Istr_TON(Plc& plc, Riga_PLC& riga) {
  return Ritardo_Inserzione(plc, riga, false);
}
Esito Istr_TONR(Plc& plc, Riga_PLC& riga) {
  return Ritardo_Inserzione(plc, riga, true);
}

Esito Istr_TOF(Plc& plc, Riga_PLC& riga) {
  Riga_Timer* const timer = Prendi_Timer(plc, riga);
  if (!timer) return Esito::Errore;
  const bool flusso = Flusso(plc, riga);
  if (timer->Val >= timer->PT) {
    timer->Conta = 0;
    timer->Uscita = 0;
  }
  if (flusso && timer->Conta == 0) timer->Uscita = 1;

  const bool era_acceso = riga.Fronte == 1;
  riga.Fronte = flusso ? 1 : 0;
  if (!flusso && era_acceso) {
    timer->Conta = -1;
  } else if (flusso && !era_acceso) {
    timer->Val = 0;
    timer->Conta = 0;
  }
  return Esito::Avanti;
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
righe::Righe righe::Temporizzatori() {
  return Di(Famiglia::Temporizzatori, Gruppo::Con_Regola, {
      {.Nome = "TON", .Operandi = &regole::Timer, .Esegui = Istr_TON, .Aiuto = "Temporizzatore con ritardo all'inserzione", .Nel_Programma = Compito::Temporizzatore},
      {.Nome = "TOF", .Operandi = &regole::Timer, .Esegui = Istr_TOF, .Aiuto = "Temporizzatore con ritardo alla disinserzione", .Nel_Programma = Compito::Temporizzatore},
      {.Nome = "TONR", .Operandi = &regole::Timer, .Esegui = Istr_TONR, .Aiuto = "Temporizzatore con ritardo all'inserzione e memoria del tempo trascorso", .Nel_Programma = Compito::Temporizzatore},
  });
}
// clang-format on

}  // namespace tavorno
