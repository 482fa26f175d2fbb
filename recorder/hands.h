// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "plants/link.h"

namespace tavorno {

/// What the user's hand does to a plant.
enum class Azione {
  Premi,     ///< button down on a figure
  Rilascia,  ///< button up over it, and so the click of what listens to one
  Clic,      ///< down and up within one scan
  Doppio,    ///< a click, and a second press on what listens to it
  Regola,    ///< a slider of the host window, or an up/down of the picture
  Guasto,    ///< a fault of the plant or of its wires, brought about (1) or taken away (0)
};

/// One movement of the hand.
struct Gesto {
  std::int64_t Ms = 0;  ///< since Run
  Azione Cosa = Azione::Premi;
  std::string Nome;   ///< figure, slider, up/down or fault (see `Guasti_Di`)
  double Valore = 0;  ///< of Regola and Guasto

  /// As it is written on the command line, without its time.
  std::string Come_Testo() const;
};

/// Reads "500:premi:imgStart,700:rilascia:imgStart,3000:clic:ImgTer,4000:doppio:imgKM,
/// 5000:regola:UpD1=3,6000:guasto:filo(I0.3)=1" into movements sorted by time. On a mistake the
/// list is empty and `errore` says in Italian what is wrong.
std::vector<Gesto> Leggi_Mani(const std::string& testo, std::string& errore);

/// Looks whether the plant of an exercise can feel each movement, before anything moves; `mani` is
/// sorted by time. Empty when all is well; else it says in Italian what is wrong, and what there is
/// instead.
std::string Controlla_Mani(std::span<const Gesto> mani, const Esercizio& esercizio,
                           Impianto& macchina);

/// Does it. False when nothing feels it at this moment, as with a figure that is hidden now.
bool Esegui_Gesto(const Gesto& gesto, Collegamento& impianto);

}  // namespace tavorno
