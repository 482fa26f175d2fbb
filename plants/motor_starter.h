// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/plant.h"

namespace tavorno {

/// US-00: a motor with its line contactor, a thermal relay, three push buttons and three lamps.
/// Procedures take the character of their output as a text.
class KM : public Impianto {
 public:
  KM();

  Colore BackColor = 0;
  /// The motor's name, shown by `etM`.
  const std::string& Caption() const { return etM.Caption; }
  void Caption(std::string_view testo) { etM.Caption = std::string(testo); }

  void KMStato(std::string_view stato);  ///< energised by anything but "0"
  void Stato_LMarcia(std::string_view stato);
  void Stato_LArresto(std::string_view stato);
  void Stato_LRT(std::string_view stato);

 private:
  void Applica_Uscite() override;

  Figura& etM = Disegno["etM"];
  Figura& imgKM = Disegno["imgKM"];
  Figura& imgM = Disegno["imgM"];
};

}  // namespace tavorno
