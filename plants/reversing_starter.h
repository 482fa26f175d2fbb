// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/plant.h"

namespace tavorno {

/// US-01: a motor with one contactor for each direction. Nothing keeps both from being energised;
/// that is the program's duty. Procedures take the character of their output as a text.
class INV : public Impianto {
 public:
  INV();

  Colore BackColor = 0;
  Colore ForeColor = 0;
  /// The motor's name, shown by `etM`.
  const std::string& Caption() const { return etM.Caption; }
  void Caption(std::string_view testo) { etM.Caption = std::string(testo); }

  void KMAStato(std::string_view stato);  ///< KM1, energised by anything but "0"
  void KMIStato(std::string_view stato);  ///< KM2, likewise
  void SET_HL1(std::string_view stato);
  void SET_HL2(std::string_view stato);
  void SET_HL3(std::string_view stato);
  void SET_HL4(std::string_view stato);
  void SET_HL5(std::string_view stato);

 private:
  void Applica_Uscite() override;
  void Concludi();

  Figura& etM = Disegno["etM"];
  bool km1_eccitato_ = false;
  bool km2_eccitato_ = false;
};

}  // namespace tavorno
