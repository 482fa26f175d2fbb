// SPDX-License-Identifier: GPL-3.0-or-later
// Data moves and the one conversion. MOVB and MOVD look at the top of the stack alone and so run in
// a disabled SCR section too; the others need power flow. What a move cannot write it ignores;
// the byte instructions end in an error.
#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

namespace {

Esito Istr_MOVB(Plc& plc, Riga_PLC& riga) {
  if (plc.Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(plc, riga, operandi::byte_con_SM, valore) || valore > 255) return Esito::Errore;
  Scrivi_Secondo(plc, riga, operandi::byte_OUT, valore);
  return Esito::Avanti;
}

Esito Istr_MOVW(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(plc, riga, operandi::parola, valore) || valore > 32767) return Esito::Errore;
  Scrivi_Secondo(plc, riga, operandi::parola_o_analogica_OUT, valore);
  return Esito::Avanti;
}

Esito Istr_MOVD(Plc& plc, Riga_PLC& riga) {
  if (plc.Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(plc, riga, operandi::doppia, valore)) return Esito::Errore;
  Scrivi_Secondo(plc, riga, operandi::doppia_OUT, valore);
  return Esito::Avanti;
}

Esito Istr_BIR(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  const std::int16_t valore = plc.IP_I[riga.Num1].Val_B;  // whatever the area text
  if (valore > 255) return Esito::Errore;
  return Scrivi_Secondo(plc, riga, operandi::byte_OUT, valore) ? Esito::Avanti : Esito::Errore;
}

Esito Istr_BIW(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(plc, riga, operandi::byte, valore) || valore > 255 || riga.Codice2 != Area::QB)
    return Esito::Errore;
  plc.IP_Q[riga.Num2].Val_B = A_16(valore, "BIW");
  plc.Byte_Bit(valore, riga.Num2);
  return Esito::Avanti;
}

Esito Istr_BTI(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(plc, riga, operandi::byte_con_SM, valore)) return Esito::Errore;
  switch (riga.Codice2) {
    case Area::T:  // the preset and not the current value, in a counter too
      plc.Mem_T[riga.Num2].PT = A_16(valore, "BTI");
      return Esito::Avanti;
    case Area::C:
      plc.Mem_C[riga.Num2].PV = A_16(valore, "BTI");
      return Esito::Avanti;
    default:
      return Scrivi_Secondo(plc, riga, operandi::parola_OUT, valore) ? Esito::Avanti
                                                                     : Esito::Errore;
  }
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
// MOVR is refused, and runs as MOVD where nothing was checked.
righe::Righe righe::Trasferimenti() {
  return Insieme_Di({Di(Famiglia::Trasferimenti, Gruppo::Con_Regola, {
      {.Nome = "MOVB", .Operandi = &regole::MOVB, .Esegui = Istr_MOVB, .Aiuto = "Copia un byte"},
      {.Nome = "MOVW", .Operandi = &regole::MOVW, .Esegui = Istr_MOVW, .Aiuto = "Copia una parola"},
      {.Nome = "MOVD", .Operandi = &regole::MOVD, .Esegui = Istr_MOVD, .Aiuto = "Copia una doppia parola"},
      {.Nome = "BIR", .Operandi = &regole::BIR, .Esegui = Istr_BIR, .Aiuto = "Legge subito un byte di ingressi fisici"},
      {.Nome = "BIW", .Operandi = &regole::BIW, .Esegui = Istr_BIW, .Aiuto = "Scrive subito un byte di uscite fisiche"},
  }), Di(Famiglia::Conversioni, Gruppo::Con_Regola, {
      {.Nome = "BTI", .Operandi = &regole::BTI, .Esegui = Istr_BTI, .Aiuto = "Converte un byte in intero; su T o C ne imposta il preset"},
  }), Di(Famiglia::Trasferimenti, Gruppo::Non_Supportata, {
      {.Nome = "MOVR", .Esegui = Istr_MOVD, .Aiuto = "Copia un numero reale"},
  })});
}
// clang-format on

}  // namespace tavorno
