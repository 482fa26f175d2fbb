// SPDX-License-Identifier: GPL-3.0-or-later
#include "invariants.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include "plc/byte_text.h"

namespace tavorno::prova {

namespace {
template <class Celle>
bool Bit_Puliti(const Celle& celle) {
  return std::ranges::all_of(celle, [](int cella) { return cella == 0 || cella == 1; });
}
}  // namespace

std::string Invarianti(const Plc& plc) {
  for (const Riga_IP& riga : plc.IP_I) {
    if (!Bit_Puliti(riga.Bit_Dir) || !Bit_Puliti(riga.Bit_Img)) return "IP_I: bit";
    if (riga.Val_B < 0 || riga.Val_B > 255) return "IP_I: Val_B";
  }
  for (const Riga_IP& riga : plc.IP_Q) {
    if (!Bit_Puliti(riga.Bit_Dir) || !Bit_Puliti(riga.Bit_Img)) return "IP_Q: bit";
  }
  for (const Riga_M& riga : plc.Mem_M) {
    if (!Bit_Puliti(riga.Bit)) return "Mem_M: bit";
    if (riga.Txt_B.empty()) continue;
    unsigned byte = 0;
    for (int bit = 0; bit < 8; ++bit) byte |= static_cast<unsigned>(riga.Bit[bit]) << bit;
    if (riga.Val_B != static_cast<int>(byte)) return "Mem_M: Val_B";
    if (riga.Txt_B != Testo_Lettura(static_cast<std::uint8_t>(byte))) return "Mem_M: Txt_B";
  }
  for (const Riga_S& riga : plc.Mem_S) {
    if (!Bit_Puliti(riga.Bit)) return "Mem_S: bit";
  }
  for (const Riga_SM& riga : plc.Mem_SM) {
    if (!Bit_Puliti(riga.Bit)) return "Mem_SM: bit";
  }
  for (const Riga_Timer& timer : plc.Mem_T) {
    if (timer.Uscita > 1 || (timer.Conta != 0 && timer.Conta != -1)) return "Mem_T";
  }
  for (const Riga_Contatore& contatore : plc.Mem_C) {
    if (contatore.Uscita > 1 || contatore.Front_A > 1 || contatore.Front_B > 1) return "Mem_C";
  }
  for (const float ac : plc.Mem_AC) {
    if (!std::isfinite(ac)) return "Mem_AC";
  }
  for (int cella = 0; cella < 8; ++cella) {
    if (plc.Stak[cella] != 0 && plc.Stak[cella] != 1) return "Stak";
  }
  for (const std::int16_t riga : plc.Stak_Rit) {
    if (riga < 0 || riga > plc.NRighe + 1) return "Stak_Rit";
  }
  if (plc.PC < 0 || plc.PC > plc.NRighe + 1) return "PC";
  if (plc.N_Cicli < 0) return "N_Cicli";
  return "";
}

bool Fatale_Previsto(const Fatale& fatale) {
  static constexpr std::string_view previsti[] = {
      // cells and rows that a checked line can still name wrongly
      "Bit_Dir", "Bit_Img", "Mem_M.Bit", "Mem_S.Bit", "Mem_SM.Bit", "IP_I", "IP_Q", "Mem_M",
      "Mem_S", "Mem_SM", "Mem_T", "Mem_C", "Mem_VB", "Mem_VW", "Mem_VD", "Mem_AC",
      // a program that runs off its end
      "Prog",
      // a word read before its text exists
      "IP_Q.Txt_B", "Mem_M.Txt_B",
      // values that do not fit their cell
      "AC", "PT", "CTU", "CTUD", "+I", "-I", "*I", "/I", "+D", "-D", "*D", "/D", "INC/DEC", "S",
      "R", "SI", "RI", "MOVB", "MOVW", "BTI", "Leggi_B", "Leggi_W",
      // an analog output far beyond its scale, in the tick of the exchange
      "Volt_AQ"};
  return std::ranges::find(previsti, fatale.Tabella()) != std::end(previsti);
}

}  // namespace tavorno::prova
