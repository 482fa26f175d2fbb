// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "plants/plant.h"
#include "plc/clock.h"

namespace tavorno {

/// US-09: a sliding gate between two pillars, one motor with a contactor for each direction. It
/// moves as long as a contactor pushes it, past the limit switches and through whatever stands in
/// its way: photocell, safety edge and thermal relay only tell the program.
class Ctr_Canc : public Impianto {
 public:
  explicit Ctr_Canc(Orologio& orologio);

  std::int16_t Termico = 0;  ///< -1 while the user holds the thermal relay tripped

  Temporizzatore TimChiudi, timApri;

 private:
  struct Direzione;
  static const Direzione chiusura_, apertura_;

  void Applica_Uscite() override;
  void Monta_Selettore();
  void Monta_Telecomando();
  void Monta_Fotocellula();
  void Monta_Costa();
  void Monta_Termico();

  void Alimenta_Fotocellula(bool acceso);
  void Accendi_Lampeggiante(bool acceso);
  void Comanda(const Direzione& direzione, Temporizzatore& timer, bool acceso);
  void Mostra_Fine_Corsa(const Direzione& direzione, bool raggiunto);
  void Tick_TimChiudi();
  void Tick_timApri();

  Figura& imgC = Disegno["imgC"];
  Figura& imgM = Disegno["imgM"];
};

}  // namespace tavorno
