// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

struct Riga_Micro;

/// US-08: a loading tank that a valve fills, a pump that lifts into the main tank, and a valve that
/// drains it. Five level switches, most with hysteresis. Levels are heights of the liquid in twips.
class Ctr_Level0 : public Impianto {
 public:
  explicit Ctr_Level0(Orologio& orologio);

  std::int16_t Livello_Vasca() const { return livello_vasca_; }
  std::int16_t Livello_Serbatoio() const { return livello_serbatoio_; }
  /// Below its minimum, -1 or 0: nothing is pumped.
  std::int16_t Vasca_Vuota() const { return vasca_vuota_; }
  /// Below its minimum, -1 or 0: nothing is drained.
  std::int16_t Serbatoio_Vuoto() const { return serbatoio_vuoto_; }

 private:
  void Applica_Uscite() override;
  void Comanda_YV1(bool aperta);
  void Comanda_KM1(bool accesa);
  void Comanda_YV2(bool aperta);
  void Pompa();
  void Aggiorna_Vasca();
  void Aggiorna_Serbatoio();
  void Mostra_Tubi();
  void Mostra_Scarico();
  void Micro(const Riga_Micro& micro, bool azionato);

  Figura& shL1 = Disegno["shL1"];
  Figura& shL2 = Disegno["shL2"];
  Figura& shV3 = Disegno["shV3"];
  const std::int16_t fondo_vasca_, fondo_serbatoio_;
  std::int16_t livello_vasca_, livello_serbatoio_;
  std::int16_t vasca_vuota_ = 0, serbatoio_vuoto_ = 0;
  bool pompa_on_ = false, scarico_on_ = false;
  Temporizzatore timEV1_, timEV2_, timP1_;
};

}  // namespace tavorno
