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

/// The second operand is read first; a failure of either leaves the stack alone.
template <auto Lettura>
Esito Plc::Confronto(const Riga_PLC& riga) {
  std::int16_t err = 0;
  const std::int32_t secondo = (this->*Lettura)(riga.Codice2, riga.Num2, err);
  const std::int32_t primo = (this->*Lettura)(riga.Codice1, riga.Num1, err);
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

Esito Plc::Istr_Confronto_B(Riga_PLC& riga) {
  return Confronto<&Plc::Leggi_B>(riga);
}
Esito Plc::Istr_Confronto_W(Riga_PLC& riga) {
  return Confronto<&Plc::Leggi_W>(riga);
}
Esito Plc::Istr_Confronto_D(Riga_PLC& riga) {
  return Confronto<&Plc::Leggi_D>(riga);
}

}  // namespace tavorno
