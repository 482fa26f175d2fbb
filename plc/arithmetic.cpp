// SPDX-License-Identifier: GPL-3.0-or-later
// Integer and double arithmetic, INC and DEC. The instructions differ in what they refuse, limit
// and flag by design; each keeps its own rule.
#include "plc/operands.h"

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

// ---- +I, -I: an overflow is flagged and not written ---------------------------------------------

Esito Plc::Somma_Algebrica_I(const Riga_PLC& riga, int segno, const char* nome) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(riga, operandi::intero_IN, in) || !Secondo(riga, operandi::intero_OUT, out) ||
      in > massimo_16 || out > massimo_16)
    return Esito::Errore;
  const std::int32_t risultato =
      A_32(static_cast<long long>(out) + segno * static_cast<long long>(in), nome);
  Flag_Z_N(risultato);
  if (!In_16(risultato)) {
    Flag_V();
    return Esito::Avanti;
  }
  Mem_SM[1].Bit[1] = 0;
  Scrivi_Secondo(riga, operandi::intero_OUT, risultato);
  return Esito::Avanti;
}

Esito Plc::Istr_Somma_I(Riga_PLC& riga) {
  return Somma_Algebrica_I(riga, 1, "+I");
}
Esito Plc::Istr_Sottrai_I(Riga_PLC& riga) {
  return Somma_Algebrica_I(riga, -1, "-I");
}

// ---- *I, /I: an unknown area counts as 0, an overflow is flagged and written as 32767 -----------

void Plc::Concludi_Prodotto_I(const Riga_PLC& riga, std::int32_t risultato) {
  Flag_Z_N(risultato);
  if (In_16(risultato)) {
    Mem_SM[1].Bit[1] = 0;
  } else {
    risultato = massimo_16;
    Flag_V();
  }
  Scrivi_Secondo(riga, operandi::intero_OUT, risultato);
}

Esito Plc::Istr_Molt_I(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(riga, operandi::intero_IN, in);
  Secondo(riga, operandi::intero_OUT, out);
  Concludi_Prodotto_I(riga, A_32(static_cast<long long>(out) * in, "*I"));
  return Esito::Avanti;
}

Esito Plc::Istr_Divi_I(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(riga, operandi::intero_IN, in);
  Secondo(riga, operandi::intero_OUT, out);
  if (in == 0)
    Mem_SM[1].Bit[3] = 1;
  else
    Concludi_Prodotto_I(riga, A_32(static_cast<long long>(out) / in, "/I"));
  return Esito::Avanti;
}

// ---- double words: an unknown OUT counts as 0, an unknown IN only in *D and /D ------------------

void Plc::Concludi_Doppia(const Riga_PLC& riga, std::int32_t risultato) {
  Flag_Z_N(risultato);
  Mem_SM[1].Bit[1] = 0;
  Scrivi_Secondo(riga, operandi::doppia_OUT, risultato);
}

Esito Plc::Istr_Somma_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(riga, operandi::doppia, in)) return Esito::Errore;
  Secondo(riga, operandi::doppia_OUT, out);
  const std::int32_t risultato = A_32(static_cast<long long>(out) + in, "+D");
  if (risultato <= massimo_16) {
    Concludi_Doppia(riga, risultato);
    return Esito::Avanti;
  }
  Flag_V();  // +D alone saturates at the 16-bit limit
  Scrivi_Secondo(riga, operandi::doppia_OUT, massimo_16);
  return Esito::Avanti;
}

Esito Plc::Istr_Sottrai_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(riga, operandi::doppia, in)) return Esito::Errore;
  Secondo(riga, operandi::doppia_OUT, out);
  Concludi_Doppia(riga, A_32(static_cast<long long>(out) - in, "-D"));
  return Esito::Avanti;
}

Esito Plc::Istr_Molt_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(riga, operandi::doppia, in);
  Secondo(riga, operandi::doppia_OUT, out);
  Concludi_Doppia(riga, A_32(static_cast<long long>(out) * in, "*D"));
  return Esito::Avanti;
}

Esito Plc::Istr_Divi_D(Riga_PLC& riga) {
  if (!Flusso(riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(riga, operandi::doppia, in);
  Secondo(riga, operandi::doppia_OUT, out);
  if (in == 0)
    Mem_SM[1].Bit[3] = 1;
  else
    Concludi_Doppia(riga, A_32(static_cast<long long>(out) / in, "/D"));
  return Esito::Avanti;
}

// ---- INC, DEC: the value is written first, and then judged --------------------------------------

/// Adds `passo` (1 or -1) to the operand, a cell of `Celle` or an accumulator, and flags a result
/// outside the limits.
template <Area Celle, int Minimo, int Massimo>
Esito Plc::IncDec(const Riga_PLC& riga, int passo) {
  if (!Flusso(riga)) return Esito::Avanti;
  constexpr Insieme ammesse{Celle, Area::AC};
  std::int32_t valore = 0;
  if (!Primo(riga, ammesse, valore)) return Esito::Errore;
  const std::int32_t risultato = A_32(static_cast<long long>(valore) + passo, "INC/DEC");
  Scrivi(ammesse, riga.Codice1, riga.Num1, risultato);
  Flag_Z_N(risultato);
  if (risultato < Minimo || risultato > Massimo)
    Flag_V();
  else
    Mem_SM[1].Bit[1] = 0;
  return Esito::Avanti;
}

Esito Plc::Istr_INCB(Riga_PLC& riga) {
  return IncDec<Area::VB, -128, 127>(riga, 1);
}
Esito Plc::Istr_DECB(Riga_PLC& riga) {
  return IncDec<Area::VB, -128, 127>(riga, -1);
}
Esito Plc::Istr_INCW(Riga_PLC& riga) {
  return IncDec<Area::VW, -32768, massimo_16>(riga, 1);
}
Esito Plc::Istr_DECW(Riga_PLC& riga) {
  return IncDec<Area::VW, -32768, massimo_16>(riga, -1);
}
Esito Plc::Istr_INCD(Riga_PLC& riga) {
  return IncDec<Area::VD, INT32_MIN, INT32_MAX>(riga, 1);
}
Esito Plc::Istr_DECD(Riga_PLC& riga) {
  return IncDec<Area::VD, INT32_MIN, INT32_MAX>(riga, -1);
}

}  // namespace tavorno
