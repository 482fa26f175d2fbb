// SPDX-License-Identifier: GPL-3.0-or-later
// Data moves and the one conversion. MOVB and MOVD look at the top of the stack alone and so run in
// a disabled SCR section too; the others need power flow.
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

/// The sources of MOVB and BTI: those of a byte read, and special memory.
bool Plc::Sorgente_B_SM(const Riga_PLC& riga, std::int32_t& valore) const {
  if (riga.Codice1 != Area::SMB) return Sorgente_B(riga.Codice1, riga.Num1, valore);
  valore = Mem_SM[riga.Num1].Val_B;
  return true;
}

Esito Plc::Istr_MOVB(Riga_PLC& riga) {
  if (Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Sorgente_B_SM(riga, valore) || valore > 255) return Esito::Errore;
  if (riga.Codice2 == Area::VB)
    Mem_VB[riga.Num2] = A_16(valore, "MOVB");
  else if (riga.Codice2 == Area::AC)
    Mem_AC[riga.Num2] = static_cast<float>(valore);
  return Esito::Avanti;
}

Esito Plc::Istr_MOVW(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Sorgente_W(riga.Codice1, riga.Num1, valore) || valore > 32767) return Esito::Errore;
  switch (riga.Codice2) {
    case Area::VW:
      Mem_VW[riga.Num2] = A_16(valore, "MOVW");
      break;
    case Area::AQW:
      Mem_AQW[riga.Num2] = valore;
      break;
    case Area::AC:
      Mem_AC[riga.Num2] = static_cast<float>(valore);
      break;
    default:  // T and C pass the checker and are ignored here
      break;
  }
  return Esito::Avanti;
}

Esito Plc::Istr_MOVD(Riga_PLC& riga) {
  if (Stak[0] != 1) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Sorgente_D(riga.Codice1, riga.Num1, valore)) return Esito::Errore;
  if (riga.Codice2 == Area::VD)
    Mem_VD[riga.Num2] = valore;
  else if (riga.Codice2 == Area::AC)
    Mem_AC[riga.Num2] = static_cast<float>(valore);
  return Esito::Avanti;
}

Esito Plc::Istr_BIR(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  const std::int16_t valore = IP_I[riga.Num1].Val_B;
  if (valore > 255) return Esito::Errore;
  if (riga.Codice2 == Area::VB)
    Mem_VB[riga.Num2] = valore;
  else if (riga.Codice2 == Area::AC)
    Mem_AC[riga.Num2] = static_cast<float>(valore);
  else
    return Esito::Errore;
  return Esito::Avanti;
}

Esito Plc::Istr_BIW(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Sorgente_B(riga.Codice1, riga.Num1, valore) || valore > 255) return Esito::Errore;
  if (riga.Codice2 != Area::QB) return Esito::Errore;
  IP_Q[riga.Num2].Val_B = A_16(valore, "BIW");
  Byte_Bit(valore, riga.Num2);
  return Esito::Avanti;
}

Esito Plc::Istr_BTI(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t valore = 0;
  if (!Sorgente_B_SM(riga, valore)) return Esito::Errore;
  switch (riga.Codice2) {
    case Area::VW:
      Mem_VW[riga.Num2] = A_16(valore, "BTI");
      return Esito::Avanti;
    case Area::T:
      Mem_T[riga.Num2].PT = A_16(valore, "BTI");
      return Esito::Avanti;
    case Area::C:
      Mem_C[riga.Num2].PV = A_16(valore, "BTI");
      return Esito::Avanti;
    case Area::AC:
      Mem_AC[riga.Num2] = static_cast<float>(valore);
      return Esito::Avanti;
    default:
      return Esito::Errore;
  }
}

}  // namespace tavorno
