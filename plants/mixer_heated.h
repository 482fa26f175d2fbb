// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/stirred_tank.h"

namespace tavorno {

/// US-10: two products, each with pump and valve, a pump that drains, steam with a thermostat and a
/// set point. Its temperature knows nothing of its level: steam heats an empty tank.
class ctr_Misc : public Serbatoio_Agitato {
 public:
  explicit ctr_Misc(Orologio& orologio);

  float Temperatura() const { return temperatura_; }          ///< as of the last tick of `timVap`
  float Set_Temperatura() const { return set_temperatura_; }  ///< degrees, 20 to 80

 private:
  void Comanda(int uscita, bool eccitata) override;
  void Scaricato(bool vuota) override;
  void Aggiorna_Analogici() override;
  void Cambia_Set(double valore);
  void Tick_Temperatura();
  void Mostra_Temperatura(int gradi);
  void Monta_Trasduttore();

  Figura& etT = Disegno["etT"];  // its caption is the temperature
  Figura& etSet = Disegno["etSet"];
  float temperatura_ = 0;  // measured at the first tick
  float set_temperatura_ = 50;
  bool pompa_1_ = false, pompa_2_ = false, pompa_3_ = false;
  bool valvola_1_ = false, valvola_2_ = false, valvola_3_ = false, vapore_ = false;
  int conta_vapore_ = 0, conta_freddo_1_ = 0, conta_freddo_2_ = 0, conta_raffredda_ = 0;
  Temporizzatore timVap_;
};

}  // namespace tavorno
