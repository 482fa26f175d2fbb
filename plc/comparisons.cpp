// SPDX-License-Identifier: GPL-3.0-or-later
// The 54 comparison contacts: three widths here, connection and relation on the compiled line.
#include "plc/plc.h"

namespace tavorno {

namespace {
bool Vale(Relazione relazione, std::int32_t primo, std::int32_t secondo) {
  const int confronto = (primo > secondo) - (primo < secondo);  // -1, 0, 1
  return (static_cast<unsigned>(relazione) >> (confronto + 1) & 1U) != 0;
}
}  // namespace

Esito Plc::Concludi_Confronto(const Riga_PLC& riga, std::int32_t primo, std::int32_t secondo,
                              std::int16_t err) {
  if (err) return Esito::Errore;
  const std::int16_t r = Vale(riga.Confronto, primo, secondo) ? 1 : 0;
  switch (riga.Unione) {
    case Connessione::LD:
      GestStak(1, r);
      break;
    case Connessione::A:
      Cima_E(r);
      break;
    case Connessione::O:
      Cima_O(r);
      break;
  }
  return Esito::Avanti;
}

// The second operand is read first; a failure of either leaves the stack alone.

Esito Plc::Istr_Confronto_B(Riga_PLC& riga) {
  std::int16_t err = 0;
  const std::int32_t secondo = Leggi_B(riga.Codice2, riga.Num2, err);
  const std::int32_t primo = Leggi_B(riga.Codice1, riga.Num1, err);
  return Concludi_Confronto(riga, primo, secondo, err);
}

Esito Plc::Istr_Confronto_W(Riga_PLC& riga) {
  std::int16_t err = 0;
  const std::int32_t secondo = Leggi_W(riga.Codice2, riga.Num2, err);
  const std::int32_t primo = Leggi_W(riga.Codice1, riga.Num1, err);
  return Concludi_Confronto(riga, primo, secondo, err);
}

Esito Plc::Istr_Confronto_D(Riga_PLC& riga) {
  std::int16_t err = 0;
  const std::int32_t secondo = Leggi_D(riga.Codice2, riga.Num2, err);
  const std::int32_t primo = Leggi_D(riga.Codice1, riga.Num1, err);
  return Concludi_Confronto(riga, primo, secondo, err);
}

}  // namespace tavorno
