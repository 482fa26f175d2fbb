// SPDX-License-Identifier: GPL-3.0-or-later
// Integer and double arithmetic, INC and DEC. The instructions differ in what they refuse, limit
// and flag by design; each keeps its own rule.
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

// ---- flags --------------------------------------------------------------------------------------

/// Zero and negative, from the result before any limit.
void Plc::Flag_Z_N(long long risultato) {
  Mem_SM[1].Bit[0] = risultato == 0 ? 1 : 0;
  Mem_SM[1].Bit[2] = risultato < 0 ? 1 : 0;
}

/// Overflow.
void Plc::Flag_V() {
  Mem_SM[1].Bit[1] = 1;
  Mem_SM[1].Bit[0] = 0;
  Mem_SM[1].Bit[2] = 0;
}

namespace {
constexpr int massimo_16 = 32767;
bool In_16(long long valore) {
  return valore >= -32768 && valore <= massimo_16;
}
}  // namespace

// ---- operands -----------------------------------------------------------------------------------

bool Plc::Intero_OUT(const Riga_PLC& riga, std::int32_t& valore) const {
  switch (riga.Codice2) {
    case Area::VW:
      valore = Mem_VW[riga.Num2];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[riga.Num2]);
      return true;
    case Area::T:
      valore = Mem_T[riga.Num2].Val;
      return true;
    case Area::C:
      valore = Mem_C[riga.Num2].Val;
      return true;
    default:
      return false;
  }
}

bool Plc::Intero_IN(const Riga_PLC& riga, std::int32_t& valore) const {
  switch (riga.Codice1) {
    case Area::VW:
      valore = Mem_VW[riga.Num1];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[riga.Num1]);
      return true;
    case Area::K:
      valore = riga.Num1;
      return true;
    case Area::AIW:
      valore = Mem_AIW[riga.Num1];
      return true;
    case Area::T:
      valore = Mem_T[riga.Num1].Val;
      return true;
    case Area::C:
      valore = Mem_C[riga.Num1].Val;
      return true;
    default:
      return false;
  }
}

void Plc::Scrivi_Intero(const Riga_PLC& riga, std::int16_t valore) {
  switch (riga.Codice2) {
    case Area::VW:
      Mem_VW[riga.Num2] = valore;
      break;
    case Area::AC:
      Mem_AC[riga.Num2] = static_cast<float>(valore);
      break;
    case Area::T:
      Mem_T[riga.Num2].Val = valore;
      break;
    case Area::C:
      Mem_C[riga.Num2].Val = valore;
      break;
    default:
      break;
  }
}

bool Plc::Doppia_OUT(const Riga_PLC& riga, std::int32_t& valore) const {
  switch (riga.Codice2) {
    case Area::VD:
      valore = Mem_VD[riga.Num2];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[riga.Num2]);
      return true;
    default:
      return false;
  }
}

void Plc::Scrivi_Doppia(const Riga_PLC& riga, std::int32_t valore) {
  if (riga.Codice2 == Area::VD)
    Mem_VD[riga.Num2] = valore;
  else if (riga.Codice2 == Area::AC)
    Mem_AC[riga.Num2] = static_cast<float>(valore);
}

// ---- +I, -I: an overflow is flagged and not written
// ----------------------------------------------

Esito Plc::Somma_Algebrica_I(const Riga_PLC& riga, int segno, const char* nome) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Intero_IN(riga, in) || !Intero_OUT(riga, out)) return Esito::Errore;
  if (in > massimo_16 || out > massimo_16) return Esito::Errore;
  const std::int32_t risultato =
      A_32(static_cast<long long>(out) + segno * static_cast<long long>(in), nome);
  Flag_Z_N(risultato);
  if (!In_16(risultato)) {
    Flag_V();
    return Esito::Avanti;
  }
  Mem_SM[1].Bit[1] = 0;
  Scrivi_Intero(riga, static_cast<std::int16_t>(risultato));
  return Esito::Avanti;
}

Esito Plc::Istr_Somma_I(Riga_PLC& riga) {
  return Somma_Algebrica_I(riga, 1, "+I");
}
Esito Plc::Istr_Sottrai_I(Riga_PLC& riga) {
  return Somma_Algebrica_I(riga, -1, "-I");
}

// ---- *I, /I: an overflow is flagged and written as 32767, whatever its sign
// ----------------------

void Plc::Concludi_Prodotto_I(const Riga_PLC& riga, std::int32_t risultato) {
  Flag_Z_N(risultato);
  if (!In_16(risultato)) {
    Flag_V();
    Scrivi_Intero(riga, massimo_16);
    return;
  }
  Mem_SM[1].Bit[1] = 0;
  Scrivi_Intero(riga, static_cast<std::int16_t>(risultato));
}

Esito Plc::Istr_Molt_I(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Intero_IN(riga, in);  // an unknown area counts as 0
  Intero_OUT(riga, out);
  Concludi_Prodotto_I(riga, A_32(static_cast<long long>(out) * in, "*I"));
  return Esito::Avanti;
}

Esito Plc::Istr_Divi_I(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Intero_IN(riga, in);
  Intero_OUT(riga, out);
  if (in == 0) {
    Mem_SM[1].Bit[3] = 1;
    return Esito::Avanti;
  }
  Concludi_Prodotto_I(riga, A_32(static_cast<long long>(out) / in, "/I"));
  return Esito::Avanti;
}

// ---- double words -------------------------------------------------------------------------------

Esito Plc::Istr_Somma_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Sorgente_D(riga.Codice1, riga.Num1, in)) return Esito::Errore;
  Doppia_OUT(riga, out);
  std::int32_t risultato = A_32(static_cast<long long>(out) + in, "+D");
  Flag_Z_N(risultato);
  if (risultato > massimo_16) {  // +D alone saturates at the 16-bit limit
    risultato = massimo_16;
    Flag_V();
  } else {
    Mem_SM[1].Bit[1] = 0;
  }
  Scrivi_Doppia(riga, risultato);
  return Esito::Avanti;
}

void Plc::Concludi_Doppia(const Riga_PLC& riga, std::int32_t risultato) {
  Flag_Z_N(risultato);
  Mem_SM[1].Bit[1] = 0;
  Scrivi_Doppia(riga, risultato);
}

Esito Plc::Istr_Sottrai_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Sorgente_D(riga.Codice1, riga.Num1, in)) return Esito::Errore;
  Doppia_OUT(riga, out);
  Concludi_Doppia(riga, A_32(static_cast<long long>(out) - in, "-D"));
  return Esito::Avanti;
}

Esito Plc::Istr_Molt_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Sorgente_D(riga.Codice1, riga.Num1, in);  // an unknown area counts as 0
  Doppia_OUT(riga, out);
  Concludi_Doppia(riga, A_32(static_cast<long long>(out) * in, "*D"));
  return Esito::Avanti;
}

Esito Plc::Istr_Divi_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Sorgente_D(riga.Codice1, riga.Num1, in);
  Doppia_OUT(riga, out);
  if (in == 0) {
    Mem_SM[1].Bit[3] = 1;
    return Esito::Avanti;
  }
  Concludi_Doppia(riga, A_32(static_cast<long long>(out) / in, "/D"));
  return Esito::Avanti;
}

// ---- INC, DEC: the value is written first, and then judged
// ---------------------------------------

/// Adds `passo` (1 or -1) to the operand and flags a result outside `minimo`..`massimo`. `cella` is
/// the area with cells of its own width; the other one is AC.
template <class Cella>
Esito Plc::IncDec(const Riga_PLC& riga, Area area, Cella& tabella, int passo, long long minimo,
                  long long massimo) {
  if (!Flusso(riga)) return Esito::Avanti;
  long long risultato = 0;
  if (riga.Codice1 == area) {
    auto& cella = tabella[riga.Num1];
    risultato = static_cast<long long>(cella) + passo;
    if constexpr (sizeof(cella) == 2)
      cella = A_16(risultato, "INC/DEC");
    else
      cella = A_32(risultato, "INC/DEC");
  } else if (riga.Codice1 == Area::AC) {
    risultato = A_32(static_cast<long long>(Arrotonda(Mem_AC[riga.Num1])) + passo, "INC/DEC");
    Mem_AC[riga.Num1] = static_cast<float>(risultato);
  } else {
    return Esito::Errore;
  }
  Flag_Z_N(risultato);
  if (risultato < minimo || risultato > massimo)
    Flag_V();
  else
    Mem_SM[1].Bit[1] = 0;
  return Esito::Avanti;
}

Esito Plc::IncDec_B(const Riga_PLC& riga, int passo) {
  return IncDec(riga, Area::VB, Mem_VB, passo, -128, 127);
}
Esito Plc::IncDec_W(const Riga_PLC& riga, int passo) {
  return IncDec(riga, Area::VW, Mem_VW, passo, -32768, massimo_16);
}
Esito Plc::IncDec_D(const Riga_PLC& riga, int passo) {
  return IncDec(riga, Area::VD, Mem_VD, passo, INT32_MIN, INT32_MAX);
}

Esito Plc::Istr_INCB(Riga_PLC& riga) {
  return IncDec_B(riga, 1);
}
Esito Plc::Istr_DECB(Riga_PLC& riga) {
  return IncDec_B(riga, -1);
}
Esito Plc::Istr_INCW(Riga_PLC& riga) {
  return IncDec_W(riga, 1);
}
Esito Plc::Istr_DECW(Riga_PLC& riga) {
  return IncDec_W(riga, -1);
}
Esito Plc::Istr_INCD(Riga_PLC& riga) {
  return IncDec_D(riga, 1);
}
Esito Plc::Istr_DECD(Riga_PLC& riga) {
  return IncDec_D(riga, -1);
}

}  // namespace tavorno
