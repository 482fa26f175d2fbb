// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/operand.h"

#include <algorithm>

namespace tavorno {

namespace {
/// Digits and the characters around them in the code page: "+", ",", "-", ".", "/".
bool Numerico(char c) {
  return c >= 43 && c <= 57;
}
}  // namespace

Operando Split_Operando(std::string_view testo) {
  Operando parti;
  const std::size_t punto = testo.find('.');
  if (punto != std::string_view::npos) {
    parti.Bit = testo.substr(punto + 1);
    parti.Ha_Bit = -1;
    testo = testo.substr(0, punto);
  } else if (!testo.empty() && (testo.front() == '+' || std::ranges::all_of(testo, Numerico))) {
    parti.Area = "K";
    parti.Numero = testo;
    return parti;
  }
  const auto inizio = std::ranges::find_if(testo, Numerico);
  if (inizio == testo.end()) return parti;
  parti.Area.assign(testo.begin(), inizio);
  parti.Numero.assign(inizio, testo.end());
  return parti;
}

}  // namespace tavorno
