// SPDX-License-Identifier: GPL-3.0-or-later
// Operands as values.
#include "plc/operands.h"

#include "plc/number_text.h"

namespace tavorno {

std::int32_t Parola_Scritta(const std::string& testo, const char* tabella, int riga) {
  const auto valore = Numero_Decimale(testo);
  if (!valore) [[unlikely]]
    Fatale_Testo(tabella, riga);
  return *valore;
}

std::int16_t Memoria::Leggi_B(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Operando_B(*this, area, num, valore)) return static_cast<std::int16_t>(valore);
  err = -1;
  return 0;
}

std::int16_t Memoria::Leggi_W(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Operando_W(*this, area, num, valore)) return static_cast<std::int16_t>(valore);
  err = -1;
  return 0;
}

std::int32_t Memoria::Leggi_D(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Operando_D(*this, area, num, valore)) return valore;
  err = -1;
  return 0;
}

}  // namespace tavorno
