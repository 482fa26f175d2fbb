// SPDX-License-Identifier: GPL-3.0-or-later
// Data moves and the one conversion. MOVB and MOVD look at the top of the stack alone and so run in
// a disabled SCR section too; the others need power flow. What a move cannot write it ignores;
// the byte instructions end in an error.
#include "plc/operands.h"

namespace tavorno {

Esito Plc::Istr_MOVB(Riga_PLC& riga) {
  if (Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(riga, operandi::byte_con_SM, valore) || valore > 255) return Esito::Errore;
  Scrivi_Secondo(riga, operandi::byte_OUT, valore);
  return Esito::Avanti;
}

Esito Plc::Istr_MOVW(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(riga, operandi::parola, valore) || valore > 32767) return Esito::Errore;
  Scrivi_Secondo(riga, operandi::parola_o_analogica_OUT, valore);
  return Esito::Avanti;
}

Esito Plc::Istr_MOVD(Riga_PLC& riga) {
  if (Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(riga, operandi::doppia, valore)) return Esito::Errore;
  Scrivi_Secondo(riga, operandi::doppia_OUT, valore);
  return Esito::Avanti;
}

Esito Plc::Istr_BIR(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  const std::int16_t valore = IP_I[riga.Num1].Val_B;  // whatever the area text
  if (valore > 255) return Esito::Errore;
  return Scrivi_Secondo(riga, operandi::byte_OUT, valore) ? Esito::Avanti : Esito::Errore;
}

Esito Plc::Istr_BIW(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(riga, operandi::byte, valore) || valore > 255 || riga.Codice2 != Area::QB)
    return Esito::Errore;
  IP_Q[riga.Num2].Val_B = A_16(valore, "BIW");
  Byte_Bit(valore, riga.Num2);
  return Esito::Avanti;
}

Esito Plc::Istr_BTI(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Primo(riga, operandi::byte_con_SM, valore)) return Esito::Errore;
  switch (riga.Codice2) {
    case Area::T:  // the preset and not the current value, in a counter too
      Mem_T[riga.Num2].PT = A_16(valore, "BTI");
      return Esito::Avanti;
    case Area::C:
      Mem_C[riga.Num2].PV = A_16(valore, "BTI");
      return Esito::Avanti;
    default:
      return Scrivi_Secondo(riga, operandi::parola_OUT, valore) ? Esito::Avanti : Esito::Errore;
  }
}

}  // namespace tavorno
