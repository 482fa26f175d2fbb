// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that moves `PC` other than by one, and the sequence control relays.
#include "plc/checked.h"
#include "plc/instructions.h"
#include "plc/plc.h"

namespace tavorno {

// Beside the branches that call it: with its code known, it is a few machine instructions.
void Memoria::Rit_Stak(Op_Ritorni codice, std::int16_t valore) {
  const auto vecchi = Stak_Rit;
  const auto vecchio = [&](int cella) { return cella == 8 ? std::int16_t{0} : vecchi[cella]; };
  switch (codice) {
    case Op_Ritorni::Azzera:
      for (std::int16_t& cella : Stak_Rit) cella = 0;
      break;
    case Op_Ritorni::Spingi:
      Stak_Rit[0] = valore;
      for (int i = 1; i <= 7; ++i) Stak_Rit[i] = vecchio(i - 1);
      break;
    case Op_Ritorni::Togli_Due:
      for (int i = 1; i <= 7; ++i) Stak_Rit[i - 1] = vecchio(i + 1);
      break;
    default:
      break;
  }
}

namespace {

Esito Istr_MEND(Plc& plc, Riga_PLC& /*riga*/) {
  plc.Setta_Uscite();
  plc.Primo_Ciclo = 0;
  plc.Mem_SM[0].Bit[6] = plc.Mem_SM[0].Bit[6] == 0 ? 1 : 0;
  plc.StopTimer();
  plc.N_Cicli = A_32(static_cast<long long>(plc.N_Cicli) + 1, "N_Cicli");
  return Esito::Fine;
}

/// Stops the timers that are not scanned in this pass; their values and outputs stay.
void Ferma_Timer(Plc& plc, const Riga_PLC& riga) {
  for (std::size_t voce = 1; voce < riga.Lista_T.size(); ++voce)
    plc.Mem_T[riga.Lista_T[voce]].Conta = 0;
}

Esito Istr_JMP(Plc& plc, Riga_PLC& riga) {
  if (plc.Stak[0] != 1) return Esito::Avanti;
  Ferma_Timer(plc, riga);
  plc.PC = riga.Salto;
  return Esito::Salto;
}

Esito Istr_CALL(Plc& plc, Riga_PLC& riga) {
  if (plc.Stak[0] != 1) {
    Ferma_Timer(plc, riga);
    return Esito::Avanti;
  }
  plc.Rit_Stak(Op_Ritorni::Spingi, A_16(plc.PC + 1, "PC"));
  plc.Stak[0] = 1;
  plc.PC = riga.Salto;
  return Esito::Salto;
}

Esito Istr_RET(Plc& plc, Riga_PLC& /*riga*/) {
  plc.PC = plc.Stak_Rit[0];
  plc.Rit_Stak(Op_Ritorni::Togli_Due);
  return Esito::Salto;
}

Esito Istr_CRET(Plc& plc, Riga_PLC& riga) {
  return plc.Stak[0] == 1 ? Istr_RET(plc, riga) : Esito::Avanti;
}

Esito Istr_LSCR(Plc& plc, Riga_PLC& riga) {
  const std::int16_t abilita = plc.Mem_S[riga.Num1].Bit[riga.Bit1];
  for (int linea = riga.SCR_Prima; linea <= riga.SCR_Ultima; ++linea)
    plc.Prog[linea].Abil_SCR = abilita;
  return Esito::Avanti;
}

}  // namespace

// ---- rows of the table -------------------------------------------------------------------------

// clang-format off
righe::Righe righe::Programma() {
  return Insieme_Di({Di(Famiglia::Programma, Gruppo::Accettata, {
      {.Nome = "NETW", .Esegui = Ramo_Nullo, .Aiuto = "Inizio di un segmento (riga NETWORK)", .Nel_Programma = Compito::Segmento, .Operandi_Liberi = "numero //titolo del segmento", .Testa = "NETWORK", .Testa_Maiuscola = true},
      {.Nome = "MEND", .Esegui = Istr_MEND, .Aiuto = "Fine del programma principale e della scansione", .Nel_Programma = Compito::Fine_Programma},
      {.Nome = "JMP", .Esegui = Istr_JMP, .Aiuto = "Salta all'etichetta LBL con lo stesso numero", .Nel_Programma = Compito::Salto, .Operandi_Liberi = "numero dell'etichetta"},
      {.Nome = "LBL", .Esegui = Ramo_Nullo, .Aiuto = "Etichetta, meta di un salto JMP", .Nel_Programma = Compito::Etichetta, .Operandi_Liberi = "numero dell'etichetta"},
      {.Nome = "CALL", .Esegui = Istr_CALL, .Aiuto = "Richiama la procedura con il nome indicato", .Nel_Programma = Compito::Chiamata, .Operandi_Liberi = "nome della procedura"},
      {.Nome = "SBR", .Esegui = Ramo_Nullo, .Aiuto = "Inizio di una procedura", .Nel_Programma = Compito::Procedura, .Operandi_Liberi = "nome della procedura", .Testa = "SBR"},
      {.Nome = "RET", .Esegui = Istr_RET, .Aiuto = "Fine della procedura: ritorna al chiamante", .Nel_Programma = Compito::Fine_Procedura},
      {.Nome = "CRET", .Esegui = Istr_CRET, .Aiuto = "Ritorna al chiamante se la cima della pila è 1"},
  }), Di(Famiglia::Sequenze, Gruppo::Accettata, {
      {.Nome = "LSCR", .Esegui = Istr_LSCR, .Aiuto = "Inizio di un passo: le uscite della sezione agiscono se il bit S è 1", .Nel_Programma = Compito::Passo, .Operandi_Liberi = "bit di S"},
      {.Nome = "SCRE", .Esegui = Ramo_Nullo, .Aiuto = "Fine della sezione di un passo", .Nel_Programma = Compito::Fine_Passo},
  })});
}
// clang-format on

}  // namespace tavorno
