// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/rest.h"

#include <algorithm>

namespace tavorno {

namespace {

/// A program that never rests is looked at once in so many scans: its price.
constexpr int pausa_massima = 64;

/// The bit that toggles at each scan.
std::uint8_t& SM06(Celle& celle) {
  return celle.Mem_SM[0].Bit[6];
}

}  // namespace

void Riposo::Fotografa() {
  foto_.Memoria = plc_;
  foto_.Righe.clear();
  for (const Riga_PLC& riga : plc_.Prog) foto_.Righe.emplace_back(riga.Fronte, riga.Abil_SCR);
  for (std::size_t n = 0; n < 2; ++n) {
    foto_.Ingressi[n] = plc_.SI[n].Stato_I();
    foto_.Lettura_Ingressi[n] = plc_.SI[n].Stato_BitI();
    foto_.Byte_Ingressi[n] = plc_.SI[n].Stato_IB();
    foto_.Uscite[n] = plc_.SQ[n].Stato_Q();
  }
  foto_.Scelte = plc_.Scelte;
  foto_.Modo_Run = plc_.Modo_Run;
  foto_.Tempo_Ciclo = plc_.Tempo_Ciclo;
  foto_.Primo_Ciclo = plc_.Primo_Ciclo;
}

bool Riposo::Come_Allora() const {
  if (plc_.PC != 0 || plc_.Ferma || !plc_.PLC_Acceso || plc_.Tempo_Ciclo != foto_.Tempo_Ciclo ||
      plc_.Primo_Ciclo != foto_.Primo_Ciclo || plc_.Modo_Run != foto_.Modo_Run ||
      !(plc_.Scelte == foto_.Scelte))
    return false;
  for (std::size_t n = 0; n < 2; ++n) {
    if (!plc_.SQ[n].In_Pari() || plc_.SQ[n].Stato_Q() != foto_.Uscite[n] ||
        plc_.SI[n].Stato_I() != foto_.Ingressi[n] ||
        plc_.SI[n].Stato_IB() != foto_.Byte_Ingressi[n] ||
        plc_.SI[n].Stato_BitI() != foto_.Lettura_Ingressi[n])
      return false;
  }
  return static_cast<const Celle&>(plc_) == foto_.Memoria;
}

/// What only a scan changes.
bool Riposo::Righe_Come_Allora() const {
  return std::ranges::equal(plc_.Prog, foto_.Righe, [](const Riga_PLC& riga, const auto& allora) {
    return riga.Fronte == allora.first && riga.Abil_SCR == allora.second;
  });
}

bool Riposo::Scansione_Fatta(std::int64_t righe) {
  if (attesa_ > 0) {
    --attesa_;
    return false;
  }
  const Fase prima = fase_;
  if (prima != Fase::Ignoto) {
    SM06(foto_.Memoria) ^= 1U;  // as every scan does
    if (parte_uguale_ && (prima == Fase::Guardato || righe == righe_) && Come_Allora() &&
        Righe_Come_Allora()) {
      righe_ = righe;
      fase_ = prima == Fase::Guardato ? Fase::Fermo : Fase::Riposo;
      pausa_ = 0;
      return fase_ == Fase::Riposo;
    }
    // What rested a moment ago will soon rest again; what never does is looked at ever less.
    if (prima != Fase::Riposo) {
      pausa_ = std::clamp(2 * pausa_, 1, pausa_massima);
      attesa_ = pausa_;
      fase_ = Fase::Ignoto;
      return false;
    }
  }
  Fotografa();
  fase_ = Fase::Guardato;
  return false;
}

void Riposo::Salta(std::int64_t scansioni) {
  plc_.N_Cicli += static_cast<std::int32_t>(scansioni);
  if (scansioni % 2 != 0) {
    SM06(plc_) ^= 1U;
    SM06(foto_.Memoria) ^= 1U;
  }
  plc_.StartTimer();
  saltate_ += scansioni;
}

}  // namespace tavorno
