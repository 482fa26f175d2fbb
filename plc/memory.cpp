// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/memory.h"

#include "plc/byte_text.h"

namespace tavorno {

void Memoria::Setta_Marker() {
  for (Riga_M& marker : Mem_M) {
    const std::uint8_t byte = Byte_Di_Celle(marker.Bit.Dati());
    marker.Val_B = byte;
    Scrivi_Lettura(marker.Txt_B, byte);
  }
}

void Memoria::Init_PLC() {
  for (Riga_Timer& timer : Mem_T) timer.Conta = 0;
  for (Riga_Contatore& contatore : Mem_C) contatore = {};
}

void Memoria::SM_Set() {
  static constexpr std::uint8_t riga_0[8] = {1, 1, 0, 0, 0, 0, 1, 0};
  for (int bit = 0; bit <= 7; ++bit) Mem_SM[0].Bit[bit] = riga_0[bit];
  // A diagonal and not the row SM1: SM1.1, SM1.2 and SM1.3 keep their values over a Run.
  for (int bit = 0; bit <= 7; ++bit) Mem_SM[bit + 1].Bit[bit] = 0;
}

namespace {
std::string Testo_Operando(const std::string& area, int numero, int bit) {
  if (area == "K") return std::to_string(numero);
  std::string testo = area + std::to_string(numero);
  if (bit >= 0) testo += "." + std::to_string(bit);
  return testo;
}
}  // namespace

std::string Testo_Riga(const Riga_PLC& riga) {
  std::string testo = riga.Istr;
  if (Cerca_Area(riga.Area1) == Area::Ignota)
    return testo + " " + riga.Area1;  // a procedure's name
  if (riga.NOper >= 1) testo += " " + Testo_Operando(riga.Area1, riga.Num1, riga.Bit1);
  if (riga.NOper >= 2) testo += ", " + Testo_Operando(riga.Area2, riga.Num2, riga.Bit2);
  return testo;
}

}  // namespace tavorno
