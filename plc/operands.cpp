// SPDX-License-Identifier: GPL-3.0-or-later
// Operands as values.
#include "plc/operands.h"

#include "plc/number_text.h"

namespace tavorno {

std::int32_t Parola(const std::string& testo, const char* tabella, int riga) {
  const auto valore = Numero_Decimale(testo);
  if (!valore) [[unlikely]]
    Fatale_Testo(tabella, riga);
  return *valore;
}

std::int16_t Memoria::Leggi_B(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Leggi(*this, operandi::byte, area, num, valore) && valore <= 255)
    return A_16(valore, "Leggi_B");
  err = -1;
  return 0;
}

std::int16_t Memoria::Leggi_W(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Leggi(*this, operandi::parola, area, num, valore) && valore <= 32767)
    return A_16(valore, "Leggi_W");
  err = -1;
  return 0;
}

std::int32_t Memoria::Leggi_D(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Leggi(*this, operandi::doppia, area, num, valore)) return valore;
  err = -1;
  return 0;
}

}  // namespace tavorno
