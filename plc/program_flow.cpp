// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that moves `PC` other than by one, and the sequence control relays.
#include "plc/checked.h"
#include "plc/plc.h"

namespace tavorno {

/// Code 1 pushes. Code 2 removes two levels at once, so that the return from a nested call empties
/// the table: a trait of the machine.
void Plc::Rit_Stak(std::uint8_t codice, std::int16_t valore) {
  const auto vecchi = Stak_Rit;
  const auto vecchio = [&](int cella) { return cella == 8 ? std::int16_t{0} : vecchi[cella]; };
  switch (codice) {
    case 0:
      for (std::int16_t& cella : Stak_Rit) cella = 0;
      break;
    case 1:
      Stak_Rit[0] = valore;
      for (int i = 1; i <= 7; ++i) Stak_Rit[i] = vecchio(i - 1);
      break;
    case 2:
      for (int i = 1; i <= 7; ++i) Stak_Rit[i - 1] = vecchio(i + 1);
      break;
    default:
      break;
  }
}

Esito Plc::Istr_MEND(Riga_PLC& /*riga*/) {
  Setta_Uscite();
  Primo_Ciclo = 0;
  Mem_SM[0].Bit[6] = Mem_SM[0].Bit[6] == 0 ? 1 : 0;
  StopTimer();
  N_Cicli = A_32(static_cast<long long>(N_Cicli) + 1, "N_Cicli");
  return Esito::Fine;
}

/// Stops the timers that are not scanned in this pass; their values and outputs stay.
void Plc::Ferma_Timer(const Riga_PLC& riga) {
  for (std::size_t voce = 1; voce < riga.Lista_T.size(); ++voce)
    Mem_T[riga.Lista_T[voce]].Conta = 0;
}

Esito Plc::Istr_JMP(Riga_PLC& riga) {
  if (Stak[0] != 1) return Esito::Avanti;
  Ferma_Timer(riga);
  PC = riga.Salto;
  return Esito::Salto;
}

Esito Plc::Istr_CALL(Riga_PLC& riga) {
  if (Stak[0] != 1) {
    Ferma_Timer(riga);
    return Esito::Avanti;
  }
  Rit_Stak(1, A_16(PC + 1, "PC"));
  Stak[0] = 1;
  PC = riga.Salto;
  return Esito::Salto;
}

Esito Plc::Istr_RET(Riga_PLC& /*riga*/) {
  PC = Stak_Rit[0];
  Rit_Stak(2);
  return Esito::Salto;
}

Esito Plc::Istr_CRET(Riga_PLC& riga) {
  return Stak[0] == 1 ? Istr_RET(riga) : Esito::Avanti;
}

Esito Plc::Istr_LSCR(Riga_PLC& riga) {
  const std::int16_t abilita = Mem_S[riga.Num1].Bit[riga.Bit1];
  for (int linea = riga.SCR_Prima; linea <= riga.SCR_Ultima; ++linea)
    Prog[linea].Abil_SCR = abilita;
  return Esito::Avanti;
}

}  // namespace tavorno
