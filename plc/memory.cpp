// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/memory.h"

namespace tavorno {

void Decodifica(Riga_PLC& riga) {
  const Istruzione* istruzione = Cerca_Istruzione(riga.Istr);
  riga.Esegui = istruzione ? istruzione->Esegui : Ramo_Assente();
  riga.Unione = istruzione ? istruzione->Unione : Connessione::LD;
  riga.Confronto = istruzione ? istruzione->Confronto : Relazione::Nessuna;
  riga.Codice1 = Cerca_Area(riga.Area1);
  riga.Codice2 = Cerca_Area(riga.Area2);
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
