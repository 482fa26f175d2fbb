// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/quiet_cells.h"

#include <algorithm>
#include <limits>

#include "plc/instructions.h"

namespace tavorno {

namespace {

/// The lines of contacts and outputs know the bit of a timer, and of its value only how to clear
/// it.
bool Solo_Bit(const Riga_PLC& riga) {
  const Istruzione* const istruzione = Cerca_Istruzione(riga.Istr);
  return istruzione && (istruzione->Gruppo_Manuale == Famiglia::Contatti ||
                        istruzione->Gruppo_Manuale == Famiglia::Uscite);
}

}  // namespace

bool Celle_Quiete::Sguardo::Stessa_Parte(std::int32_t uno, std::int32_t altro) const {
  return !Al_Valore && std::ranges::all_of(Soglie, [&](std::int32_t soglia) {
    return (uno < soglia) == (altro < soglia) && (uno > soglia) == (altro > soglia);
  });
}

Celle_Quiete::Sguardo* Celle_Quiete::Di(Area area, int num) {
  const auto posto = static_cast<std::size_t>(num);
  if (area == Area::T && posto < timer) return &timer_.at(posto);
  if (area == Area::AIW && posto < analogiche) return &analogiche_.at(posto);
  return nullptr;
}

void Celle_Quiete::Leggi(const Memoria& programma) {
  *this = {};
  // Beyond these a comparison fails, and whatever it compares with.
  for (Sguardo& parola : analogiche_)
    parola.Soglie = {std::numeric_limits<std::int16_t>::min(),
                     std::numeric_limits<std::int16_t>::max()};
  for (const Riga_PLC& riga : programma.Prog) Leggi_Riga(riga);
}

void Celle_Quiete::Leggi_Riga(const Riga_PLC& riga) {
  if (riga.Nel_Programma == Compito::Temporizzatore) {
    // Its own line holds the value against the preset, whatever the area of the operand.
    Sguardo* const suo = Di(Area::T, riga.Num1);
    if (suo && riga.Codice2 == Area::K)
      suo->Soglie.push_back(riga.Num2);
    else if (suo)
      suo->Al_Valore = true;
    return;
  }
  Leggi_Operando(riga, riga.Codice1, riga.Num1, riga.Bit1, riga.Codice2, riga.Num2);
  Leggi_Operando(riga, riga.Codice2, riga.Num2, riga.Bit2, riga.Codice1, riga.Num1);
  Leggi_Operando(riga, Cerca_Area(riga.Area3), riga.Num3, riga.Bit3, Area::Nessuna, 0);
}

void Celle_Quiete::Leggi_Operando(const Riga_PLC& riga, Area area, int num, int bit, Area altra,
                                  int costante) {
  if (area == Area::SMB && num == 0) bit_letti_.fill(true);
  if (area == Area::SM && num == 0) {
    if (bit >= 0 && bit < 8)
      bit_letti_.at(static_cast<std::size_t>(bit)) = true;
    else
      bit_letti_.fill(true);
  }
  Sguardo* const cella = Di(area, num);
  if (!cella) return;
  if (riga.Confronto != Relazione::Nessuna && altra == Area::K)
    cella->Soglie.push_back(costante);
  else if (area != Area::T || !Solo_Bit(riga))
    cella->Al_Valore = true;
}

void Celle_Quiete::Porta_Avanti(const Celle& ora, Celle& foto) const {
  for (std::size_t n = 0; n < timer; ++n) {
    const std::int16_t adesso = ora.Mem_T[static_cast<int>(n)].Val;
    std::int16_t& allora = foto.Mem_T[static_cast<int>(n)].Val;
    // Whatever else touches the value in a scan clears it. Where it is not zero behind one, nothing
    // did, and nothing will.
    if (adesso != allora && allora != 0 && timer_[n].Stessa_Parte(adesso, allora)) allora = adesso;
  }
  for (std::size_t n = 0; n < analogiche; ++n) {
    const std::int32_t adesso = ora.Mem_AIW[static_cast<int>(n)];
    std::int32_t& allora = foto.Mem_AIW[static_cast<int>(n)];
    if (adesso != allora && analogiche_[n].Stessa_Parte(adesso, allora)) allora = adesso;
  }
  for (const int orologio : {4, 5}) {
    if (!bit_letti_[static_cast<std::size_t>(orologio)])
      foto.Mem_SM[0].Bit[orologio] = ora.Mem_SM[0].Bit[orologio];
  }
  // No line knows the channels: their words and they are exchanged by the clock.
  foto.Volt_AI = ora.Volt_AI;
  foto.Volt_AQ = ora.Volt_AQ;
}

}  // namespace tavorno
