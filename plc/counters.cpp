// SPDX-License-Identifier: GPL-3.0-or-later
// CTU, CTD, CTUD. Their differences in the first scan, in the loaded value and in the use of the
// line enable are traits of the machine and not to be unified.
#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

namespace {
/// True when `acceso` has risen since the last execution; keeps the edge memory.
bool Fronte_Salita(bool acceso, std::uint8_t& memoria) {
  const bool salita = acceso && memoria == 0;
  memoria = acceso ? 1 : 0;
  return salita;
}

/// The counter of a line with its preset, taken at every execution; none when that cannot be read.
Riga_Contatore* Prendi_Contatore(Plc& plc, const Riga_PLC& riga) {
  std::int32_t preset = 0;
  if (!Secondo(plc, riga, operandi::preset, preset)) return nullptr;
  Riga_Contatore& contatore = plc.Mem_C[riga.Num1];
  contatore.PV = static_cast<std::int16_t>(preset);  // constants and VW have 16 bits
  return &contatore;
}

Esito Istr_CTU(Plc& plc, Riga_PLC& riga) {
  Riga_Contatore* const contatore = Prendi_Contatore(plc, riga);
  if (!contatore) return Esito::Errore;
  if (Flusso(plc, riga)) {
    contatore->Uscita = 0;
    contatore->Val = 0;
  }
  // An input that is on in the first scan only marks its memory: no count is made there.
  if (Fronte_Salita((plc.Stak[1] & riga.Abil_SCR) == 1, contatore->Front_A) &&
      plc.Mem_SM[0].Bit[1] != 1)
    contatore->Val = A_16(contatore->Val + 1, "CTU");
  if (contatore->Val >= contatore->PV) contatore->Uscita = 1;
  return Esito::Avanti;
}

Esito Istr_CTD(Plc& plc, Riga_PLC& riga) {
  Riga_Contatore* const contatore = Prendi_Contatore(plc, riga);
  if (!contatore) return Esito::Errore;
  if (riga.Abil_SCR == 1 && plc.Stak[0] != 0) {
    contatore->Front_B = 1;
    contatore->Uscita = 0;
    contatore->Val = riga.Num2;  // the number written in the operand, also when it names a VW
  }
  const bool acceso = (plc.Stak[1] & riga.Abil_SCR) == 1;
  const bool carica = (plc.Stak[0] & riga.Abil_SCR) > 0;
  if (acceso && contatore->Front_A == 0 && !carica) {
    contatore->Front_A = 1;
    if (contatore->Uscita == 0 && contatore->Val > 0) --contatore->Val;
  } else {
    contatore->Front_A = acceso && contatore->Front_A == 1 ? 1 : 0;
  }
  if (contatore->Val == 0) contatore->Uscita = 1;
  return Esito::Avanti;
}

Esito Istr_CTUD(Plc& plc, Riga_PLC& riga) {
  Riga_Contatore* const contatore = Prendi_Contatore(plc, riga);
  if (!contatore) return Esito::Errore;
  if (riga.Abil_SCR == 1 && plc.Stak[0] != 0) {
    contatore->Uscita = 0;
    contatore->Val = 0;
  }
  if (Fronte_Salita((plc.Stak[2] & riga.Abil_SCR) == 1, contatore->Front_B))
    contatore->Val = A_16(contatore->Val + 1, "CTUD");
  if (Fronte_Salita((plc.Stak[1] & riga.Abil_SCR) == 1, contatore->Front_A))
    contatore->Val = A_16(contatore->Val - 1, "CTUD");
  contatore->Uscita = contatore->Val < contatore->PV ? 0 : 1;
  return Esito::Avanti;
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
righe::Righe righe::Contatori() {
  return Di(Famiglia::Contatori, Gruppo::Con_Regola, {
      {.Nome = "CTU", .Operandi = &regole::Contatore, .Esegui = Istr_CTU, .Aiuto = "Contatore in avanti: conteggio, poi reset"},
      {.Nome = "CTD", .Operandi = &regole::Contatore, .Esegui = Istr_CTD, .Aiuto = "Contatore all'indietro: conteggio, poi caricamento"},
      {.Nome = "CTUD", .Operandi = &regole::Contatore, .Esegui = Istr_CTUD, .Aiuto = "Contatore bidirezionale: avanti, indietro, poi reset"},
  });
}
// clang-format on

}  // namespace tavorno
