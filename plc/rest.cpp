// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/rest.h"

#include <algorithm>
#include <utility>

namespace tavorno {

namespace {

/// A program that never rests is looked at once in so many scans: its price.
constexpr int pausa_massima = 64;

/// The bit that toggles at each scan.
std::uint8_t& SM06(Celle& celle) {
  return celle.Mem_SM[0].Bit[6];
}

}  // namespace

void Riposo::Fotografa(std::size_t lato) {
  lato_ = lato;
  Foto& foto = foto_[lato];
  foto.Memoria = plc_;
  foto.Righe.clear();
  for (const Riga_PLC& riga : plc_.Prog) foto.Righe.emplace_back(riga.Fronte, riga.Abil_SCR);
  for (std::size_t n = 0; n < 2; ++n) {
    foto.Ingressi[n] = plc_.SI[n].Stato_I();
    foto.Lettura_Ingressi[n] = plc_.SI[n].Stato_BitI();
    foto.Byte_Ingressi[n] = plc_.SI[n].Stato_IB();
    foto.Uscite[n] = plc_.SQ[n].Stato_Q();
  }
  foto.Scelte = plc_.Scelte;
  foto.Modo_Run = plc_.Modo_Run;
  foto.Tempo_Ciclo = plc_.Tempo_Ciclo;
  foto.Primo_Ciclo = plc_.Primo_Ciclo;
}

bool Riposo::Uscite_Come_Allora() const {
  for (std::size_t n = 0; n < 2; ++n) {
    if (!plc_.SQ[n].In_Pari() || !Stesso_Byte(plc_.SQ[n].Stato_Q(), foto_[lato_].Uscite[n]))
      return false;
  }
  return true;
}

bool Riposo::Come_Allora() const {
  const Foto& foto = foto_[lato_];
  if (plc_.PC != 0 || plc_.Ferma || !plc_.PLC_Acceso || plc_.Tempo_Ciclo != foto.Tempo_Ciclo ||
      plc_.Primo_Ciclo != foto.Primo_Ciclo || plc_.Modo_Run != foto.Modo_Run ||
      !(plc_.Scelte == foto.Scelte) || !Uscite_Come_Allora())
    return false;
  for (std::size_t n = 0; n < 2; ++n) {
    if (!Stesso_Byte(plc_.SI[n].Stato_I(), foto.Ingressi[n]) ||
        plc_.SI[n].Stato_IB() != foto.Byte_Ingressi[n] ||
        !Stesso_Byte(plc_.SI[n].Stato_BitI(), foto.Lettura_Ingressi[n]))
      return false;
  }
  return static_cast<const Celle&>(plc_) == foto.Memoria;
}

/// What only a scan changes.
bool Riposo::Righe_Come_Allora() const {
  return std::ranges::equal(plc_.Prog, foto_[lato_].Righe,
                            [](const Riga_PLC& riga, const auto& allora) {
                              return riga.Fronte == allora.first && riga.Abil_SCR == allora.second;
                            });
}

/// What the scan adds to what is known; false when it belongs to no period.
bool Riposo::Ripete(std::int64_t righe) {
  if (fase_ == Fase::Ignoto || !parte_uguale_) return false;
  const std::size_t prima = lato_;
  const bool guardato = fase_ == Fase::Guardato;
  if (guardato || fase_ == Fase::Diverso) foto_[prima].Righe_Scansione = righe;
  if (foto_[prima].Righe_Scansione != righe) return false;
  if (periodo_ == 2)
    lato_ ^= 1U;
  else
    SM06(foto_[0].Memoria) ^= 1U;  // as every scan does
  if (Come_Allora() && Righe_Come_Allora()) {
    fase_ = guardato && Conta_SM06() ? Fase::Fermo : Fase::Riposo;
    return true;
  }
  if (!guardato) return Si_E_Posata();
  if (!Uscite_Come_Allora()) return false;
  SM06(foto_[0].Memoria) ^= 1U;  // two scans leave it alone
  Fotografa(1);
  periodo_ = 2;
  fase_ = Fase::Diverso;
  return true;
}

/// No period of two, but the second of its scans changed nothing: what an edge moved took a scan to
/// come to rest.
bool Riposo::Si_E_Posata() {
  if (fase_ != Fase::Diverso || Conta_SM06()) return false;
  lato_ = 1;
  SM06(foto_[1].Memoria) ^= 1U;
  if (!Come_Allora() || !Righe_Come_Allora()) return false;
  foto_[0] = foto_[1];
  lato_ = 0;
  periodo_ = 1;
  fase_ = Fase::Riposo;
  return true;
}

bool Riposo::Scansione_Fatta(std::int64_t righe) {
  if (attesa_ > 0) {
    --attesa_;
    return false;
  }
  const Fase prima = fase_;
  if (Ripete(righe)) {
    if (fase_ == Fase::Riposo) pausa_ = 0;
    return fase_ == Fase::Riposo;
  }
  // What rested a moment ago will soon rest again; what never does is looked at ever less.
  if (prima != Fase::Ignoto && prima != Fase::Riposo) {
    attesa_ = pausa_;
    pausa_ = std::clamp(2 * pausa_, 1, pausa_massima);
    fase_ = Fase::Ignoto;
    if (attesa_ > 0) return false;
  }
  if (chi_ == Per::Le_Righe && !std::exchange(letto_, true)) quiete_.Leggi(plc_);
  Fotografa(0);
  periodo_ = 1;
  fase_ = Fase::Guardato;
  return false;
}

void Riposo::Salta(std::int64_t scansioni) {
  plc_.Entra({.Che = Cosa::Salta, .Numero = scansioni});
  if (scansioni % 2 != 0) SM06(foto_[0].Memoria) ^= 1U;
  saltate_ += scansioni;
}

}  // namespace tavorno
