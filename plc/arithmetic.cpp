// SPDX-License-Identifier: GPL-3.0-or-later
// Integer and double arithmetic, INC and DEC. The instructions differ in what they refuse, limit
// and flag by design; each keeps its own rule.
#include "plc/instructions.h"
#include "plc/operands.h"
#include "plc/plc.h"

namespace tavorno {

namespace {

// What several instructions share is inlined into each: a call would cost as much as the sum.

// ---- flags --------------------------------------------------------------------------------------

/// Zero and negative, from the result before any limit.
void Flag_Z_N(Plc& plc, long long risultato) {
  plc.Mem_SM[1].Bit[0] = risultato == 0 ? 1 : 0;
  plc.Mem_SM[1].Bit[2] = risultato < 0 ? 1 : 0;
}

/// Overflow.
void Flag_V(Plc& plc) {
  plc.Mem_SM[1].Bit[1] = 1;
  plc.Mem_SM[1].Bit[0] = 0;
  plc.Mem_SM[1].Bit[2] = 0;
}

constexpr int massimo_16 = 32767;
bool In_16(long long valore) {
  return valore >= -32768 && valore <= massimo_16;
}

// ---- +I, -I: an overflow is flagged and not written ---------------------------------------------

[[gnu::always_inline]] inline Esito Somma_Algebrica_I(Plc& plc, const Riga_PLC& riga, int segno,
                                                      const char* nome) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(plc, riga, operandi::intero_IN, in) ||
      !Secondo(plc, riga, operandi::intero_OUT, out) || in > massimo_16 || out > massimo_16)
    return Esito::Errore;
  const std::int32_t risultato =
      A_32(static_cast<long long>(out) + segno * static_cast<long long>(in), nome);
  Flag_Z_N(plc, risultato);
  if (!In_16(risultato)) {
    Flag_V(plc);
    return Esito::Avanti;
  }
  plc.Mem_SM[1].Bit[1] = 0;
  Scrivi_Secondo(plc, riga, operandi::intero_OUT, risultato);
  return Esito::Avanti;
}

Esito Istr_Somma_I(Plc& plc, Riga_PLC& riga) {
  return Somma_Algebrica_I(plc, riga, 1, "+I");
}
Esito Istr_Sottrai_I(Plc& plc, Riga_PLC& riga) {
  return Somma_Algebrica_I(plc, riga, -1, "-I");
}

// ---- *I, /I: an unknown area counts as 0, an overflow is flagged and written as 32767 -----------

[[gnu::always_inline]] inline void Concludi_Prodotto_I(Plc& plc, const Riga_PLC& riga,
                                                       std::int32_t risultato) {
  Flag_Z_N(plc, risultato);
  if (In_16(risultato)) {
    plc.Mem_SM[1].Bit[1] = 0;
  } else {
    risultato = massimo_16;
    Flag_V(plc);
  }
  Scrivi_Secondo(plc, riga, operandi::intero_OUT, risultato);
}

Esito Istr_Molt_I(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(plc, riga, operandi::intero_IN, in);
  Secondo(plc, riga, operandi::intero_OUT, out);
  Concludi_Prodotto_I(plc, riga, A_32(static_cast<long long>(out) * in, "*I"));
  return Esito::Avanti;
}

Esito Istr_Divi_I(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(plc, riga, operandi::intero_IN, in);
  Secondo(plc, riga, operandi::intero_OUT, out);
  if (in == 0)
    plc.Mem_SM[1].Bit[3] = 1;
  else
    Concludi_Prodotto_I(plc, riga, A_32(static_cast<long long>(out) / in, "/I"));
  return Esito::Avanti;
}

// ---- double words: an unknown OUT counts as 0, an unknown IN only in *D and /D ------------------

[[gnu::always_inline]] inline void Concludi_Doppia(Plc& plc, const Riga_PLC& riga,
                                                   std::int32_t risultato) {
  Flag_Z_N(plc, risultato);
  plc.Mem_SM[1].Bit[1] = 0;
  Scrivi_Secondo(plc, riga, operandi::doppia_OUT, risultato);
}

Esito Istr_Somma_D(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(plc, riga, operandi::doppia, in)) return Esito::Errore;
  Secondo(plc, riga, operandi::doppia_OUT, out);
  const std::int32_t risultato = A_32(static_cast<long long>(out) + in, "+D");
  if (risultato <= massimo_16) {
    Concludi_Doppia(plc, riga, risultato);
    return Esito::Avanti;
  }
  Flag_V(plc);  // +D alone saturates at the 16-bit limit
  Scrivi_Secondo(plc, riga, operandi::doppia_OUT, massimo_16);
  return Esito::Avanti;
}

Esito Istr_Sottrai_D(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  if (!Primo(plc, riga, operandi::doppia, in)) return Esito::Errore;
  Secondo(plc, riga, operandi::doppia_OUT, out);
  Concludi_Doppia(plc, riga, A_32(static_cast<long long>(out) - in, "-D"));
  return Esito::Avanti;
}

Esito Istr_Molt_D(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(plc, riga, operandi::doppia, in);
  Secondo(plc, riga, operandi::doppia_OUT, out);
  Concludi_Doppia(plc, riga, A_32(static_cast<long long>(out) * in, "*D"));
  return Esito::Avanti;
}

Esito Istr_Divi_D(Plc& plc, Riga_PLC& riga) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  std::int32_t in = 0;
  std::int32_t out = 0;
  Primo(plc, riga, operandi::doppia, in);
  Secondo(plc, riga, operandi::doppia_OUT, out);
  if (in == 0)
    plc.Mem_SM[1].Bit[3] = 1;
  else
    Concludi_Doppia(plc, riga, A_32(static_cast<long long>(out) / in, "/D"));
  return Esito::Avanti;
}

// ---- INC, DEC: the value is written first, and then judged --------------------------------------

/// Adds `passo` (1 or -1) to the operand, a cell of `Celle` or an accumulator, and flags a result
/// outside the limits.
template <Area Celle, int Minimo, int Massimo>
Esito IncDec(Plc& plc, const Riga_PLC& riga, int passo) {
  if (!Flusso(plc, riga)) return Esito::Avanti;
  constexpr Insieme ammesse{Celle, Area::AC};
  std::int32_t valore = 0;
  if (!Primo(plc, riga, ammesse, valore)) return Esito::Errore;
  const std::int32_t risultato = A_32(static_cast<long long>(valore) + passo, "INC/DEC");
  Scrivi(plc, ammesse, riga.Codice1, riga.Num1, risultato);
  Flag_Z_N(plc, risultato);
  if (risultato < Minimo || risultato > Massimo)
    Flag_V(plc);
  else
    plc.Mem_SM[1].Bit[1] = 0;
  return Esito::Avanti;
}

Esito Istr_INCB(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VB, -128, 127>(plc, riga, 1);
}
Esito Istr_DECB(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VB, -128, 127>(plc, riga, -1);
}
Esito Istr_INCW(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VW, -32768, massimo_16>(plc, riga, 1);
}
Esito Istr_DECW(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VW, -32768, massimo_16>(plc, riga, -1);
}
Esito Istr_INCD(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VD, INT32_MIN, INT32_MAX>(plc, riga, 1);
}
Esito Istr_DECD(Plc& plc, Riga_PLC& riga) {
  return IncDec<Area::VD, INT32_MIN, INT32_MAX>(plc, riga, -1);
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
righe::Righe righe::Aritmetica() {
  return Di(Famiglia::Aritmetica, Gruppo::Con_Regola, {
      {.Nome = "+I", .Operandi = &regole::Aritmetica_I, .Esegui = Istr_Somma_I, .Aiuto = "Somma tra interi: OP2 = OP2 + OP1"},
      {.Nome = "-I", .Operandi = &regole::Aritmetica_I, .Esegui = Istr_Sottrai_I, .Aiuto = "Sottrazione tra interi: OP2 = OP2 - OP1"},
      {.Nome = "*I", .Operandi = &regole::Aritmetica_I, .Esegui = Istr_Molt_I, .Aiuto = "Moltiplicazione tra interi: OP2 = OP2 * OP1"},
      {.Nome = "/I", .Operandi = &regole::Aritmetica_I, .Esegui = Istr_Divi_I, .Aiuto = "Divisione tra interi: OP2 = OP2 / OP1"},
      {.Nome = "+D", .Operandi = &regole::Aritmetica_D, .Esegui = Istr_Somma_D, .Aiuto = "Somma tra doppie parole: OP2 = OP2 + OP1"},
      {.Nome = "-D", .Operandi = &regole::Aritmetica_D, .Esegui = Istr_Sottrai_D, .Aiuto = "Sottrazione tra doppie parole: OP2 = OP2 - OP1"},
      {.Nome = "*D", .Operandi = &regole::Aritmetica_D, .Esegui = Istr_Molt_D, .Aiuto = "Moltiplicazione tra doppie parole: OP2 = OP2 * OP1"},
      {.Nome = "/D", .Operandi = &regole::Aritmetica_D, .Esegui = Istr_Divi_D, .Aiuto = "Divisione tra doppie parole: OP2 = OP2 / OP1"},
      {.Nome = "INCB", .Operandi = &regole::Inc_B, .Esegui = Istr_INCB, .Aiuto = "Aumenta di 1 un byte"},
      {.Nome = "DECB", .Operandi = &regole::Inc_B, .Esegui = Istr_DECB, .Aiuto = "Diminuisce di 1 un byte"},
      {.Nome = "INCW", .Operandi = &regole::Inc_W, .Esegui = Istr_INCW, .Aiuto = "Aumenta di 1 una parola"},
      {.Nome = "DECW", .Operandi = &regole::Inc_W, .Esegui = Istr_DECW, .Aiuto = "Diminuisce di 1 una parola"},
      {.Nome = "INCD", .Operandi = &regole::Inc_D, .Esegui = Istr_INCD, .Aiuto = "Aumenta di 1 una doppia parola"},
      {.Nome = "DECD", .Operandi = &regole::Inc_D, .Esegui = Istr_DECD, .Aiuto = "Diminuisce di 1 una doppia parola"},
  });
}
// clang-format on

}  // namespace tavorno
