// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "plants/stirred_tank.h"

namespace tavorno {

/// US-13: four products through one pump, level switches, a valve that drains by gravity, and a
/// product that may be missing.
class ctr_Mis4 : public Serbatoio_Agitato {
 public:
  explicit ctr_Mis4(Orologio& orologio);

 private:
  void Comanda(int uscita, bool eccitata) override;
  void Mostra_Prodotto();
  void Comanda_Prodotto(std::size_t valvola, bool aperta);
  void Comanda_Pompa_P1(bool accesa);
  void Carica(bool attivo);
  void Monta_Mancanza();

  std::array<bool, 4> valvole_{};
  bool pompa_ = false;
};

}  // namespace tavorno
