// SPDX-License-Identifier: GPL-3.0-or-later
// Operands as values. Each width has its own list of readable areas.
#include "plc/checked.h"
#include "plc/number_text.h"
#include "plc/plc.h"

namespace tavorno {

namespace {
/// The word operands of bit areas are the reading-order text taken as a decimal number: the byte
/// with bits 2 and 0 set reads as 101.
std::int32_t Parola(const std::string& testo, const char* tabella, int riga) {
  const auto valore = Numero_Decimale(testo);
  if (!valore) [[unlikely]]
    Fatale_Testo(tabella, riga);
  return *valore;
}
}  // namespace

bool Plc::Sorgente_B(Area area, int num, std::int32_t& valore) const {
  switch (area) {
    case Area::VB:
      valore = Mem_VB[num];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[num]);
      return true;
    case Area::IB:
      valore = IP_I[num].Val_B;
      return true;
    case Area::QB:
      valore = IP_Q[num].Val_B;
      return true;
    case Area::MB:
      valore = Mem_M[num].Val_B;
      return true;
    case Area::K:
      valore = num;
      return true;
    default:
      return false;
  }
}

bool Plc::Sorgente_W(Area area, int num, std::int32_t& valore) const {
  switch (area) {
    case Area::VW:
      valore = Mem_VW[num];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[num]);
      return true;
    case Area::IW:
      valore = Parola(IP_I[num].Txt_B, "IP_I.Txt_B", num);
      return true;
    case Area::QW:
      valore = Parola(IP_Q[num].Txt_B, "IP_Q.Txt_B", num);
      return true;
    case Area::MW:
      valore = Parola(Mem_M[num].Txt_B, "Mem_M.Txt_B", num);
      return true;
    case Area::K:
      valore = num;
      return true;
    case Area::AIW:
      valore = Mem_AIW[num];
      return true;
    case Area::T:
      valore = Mem_T[num].Val;
      return true;
    case Area::C:
      valore = Mem_C[num].Val;
      return true;
    default:
      return false;
  }
}

bool Plc::Sorgente_D(Area area, int num, std::int32_t& valore) const {
  switch (area) {
    case Area::VD:
      valore = Mem_VD[num];
      return true;
    case Area::AC:
      valore = Arrotonda(Mem_AC[num]);
      return true;
    case Area::K:
      valore = num;
      return true;
    default:
      return false;
  }
}

std::int16_t Plc::Leggi_B(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Sorgente_B(area, num, valore) && valore <= 255) return A_16(valore, "Leggi_B");
  err = -1;
  return 0;
}

std::int16_t Plc::Leggi_W(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Sorgente_W(area, num, valore) && valore <= 32767) return A_16(valore, "Leggi_W");
  err = -1;
  return 0;
}

std::int32_t Plc::Leggi_D(Area area, int num, std::int16_t& err) const {
  std::int32_t valore = 0;
  if (Sorgente_D(area, num, valore)) return valore;
  err = -1;
  return 0;
}

}  // namespace tavorno
