// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/link.h"

#include "plc/codepage.h"

namespace tavorno {

namespace {

bool Temporizza(const Riga_PLC& riga) {
  return riga.Istr == "TON" || riga.Istr == "TOF" || riga.Istr == "TONR";
}

/// The timers on rows `da`..`fino_a`, behind the unused entry 0.
std::vector<std::int16_t> Timer_Tra(const Memoria& memoria, int da, int fino_a) {
  std::vector<std::int16_t> lista = {0};
  for (int riga = da; riga <= fino_a; ++riga) {
    if (Temporizza(memoria.Prog[riga])) lista.push_back(memoria.Prog[riga].Num1);
  }
  return lista;
}

/// The row that closes the procedure which begins at `inizio`; the last row if none does.
int Fine_Procedura(const Memoria& memoria, int inizio) {
  int riga = inizio;
  while (riga < memoria.NRighe && memoria.Prog[riga].Istr != "RET") ++riga;
  return riga;
}

}  // namespace

std::uint8_t Assegna_JMP(Memoria& memoria) {
  int aperti = 0;
  int meta = 0;  // not reset between jumps
  for (int i = 0; i <= memoria.NRighe; ++i) {
    Riga_PLC& salto = memoria.Prog[i];
    if (salto.Istr != "JMP") continue;
    ++aperti;
    for (int j = 0; j <= memoria.NRighe; ++j) {
      const Riga_PLC& etichetta = memoria.Prog[j];
      if (etichetta.Istr != "LBL" || etichetta.Num1 != salto.Num1) continue;
      meta = j;
      salto.Salto = static_cast<std::int16_t>(j);
      --aperti;  // once for every label of this number
    }
    salto.Lista_T = Timer_Tra(memoria, i, meta);
  }
  return aperti != 0 ? 1 : 0;
}

std::uint8_t Assegna_SBR(Memoria& memoria) {
  int aperte = 0;
  for (int i = 0; i <= memoria.NRighe; ++i) {
    Riga_PLC& chiamata = memoria.Prog[i];
    if (chiamata.Istr != "CALL") continue;
    ++aperte;
    const std::string nome = Maiuscole(chiamata.Area1);
    for (int j = 0; j <= memoria.NRighe; ++j) {
      const Riga_PLC& procedura = memoria.Prog[j];
      if (!procedura.Istr.starts_with("SBR") || Maiuscole(procedura.Area1) != nome) continue;
      chiamata.Salto = static_cast<std::int16_t>(j);
      --aperte;
      chiamata.Lista_T = Timer_Tra(memoria, j, Fine_Procedura(memoria, j));
    }
  }
  return aperte != 0 ? 1 : 0;
}

std::uint8_t Assegna_SCR(Memoria& memoria) {
  int aperte = 0;
  for (int i = 0; i <= memoria.NRighe; ++i) {
    Riga_PLC& sezione = memoria.Prog[i];
    sezione.Abil_SCR = 1;
    if (sezione.Istr != "LSCR") continue;
    sezione.SCR_Prima = static_cast<std::int16_t>(i + 1);
    ++aperte;
    for (int j = i + 1; j <= memoria.NRighe; ++j) {
      const std::string& istr = memoria.Prog[j].Istr;
      if (istr == "LBL" || istr == "JMP") return 1;  // refused inside a section, at once
      if (istr != "SCRE") continue;
      sezione.SCR_Ultima = static_cast<std::int16_t>(j - 1);
      --aperte;
      break;
    }
  }
  return aperte != 0 ? 1 : 0;
}

}  // namespace tavorno
