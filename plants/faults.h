// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plants/link.h"

namespace tavorno {

/// How the hand brings a fault about.
enum class Mano_Guasto : std::uint8_t {
  Clic,    ///< a click makes it, the next one takes it away
  Doppio,  ///< the same with double clicks; the next change of an output also takes it away
  Colpo,   ///< a press makes it, and only the next change of an output takes it away
  Tieni,   ///< it lasts as long as the button is held
  Filo,    ///< in the wires, not in the plant (see `Collegamento::Guasta`)
};

/// A fault of an exercise. Texts are UTF-8, in Italian.
struct Guasto_Impianto {
  std::string Nome;         ///< of the figure that the hand is on, or of the wire: "filo(I0.3)"
  std::string Parte;        ///< device, as in the table of inputs and outputs: "FR"
  std::string Titolo;       ///< what it is: "Relè termico intervenuto"
  std::string In_Officina;  ///< what it does where the machine stands
  Mano_Guasto Come = Mano_Guasto::Filo;

  // How one sees it, where the plant has it: a figure with this picture or, with an output, one
  // whose picture does not follow the output (position from 1). Empty picture: a red letter.
  std::string Testimone, Picture;
  int Uscita = 0;
};

/// All faults of an exercise: first those of the plant itself, then those of the wires, two for
/// each input ("filo(I0.3)", "incollato(I0.3)") and one for each analog value ("filo(AIW0)").
/// `a_riposo`: the plant's inputs at rest, sixteen characters; words about buttons depend on it.
std::vector<Guasto_Impianto> Guasti_Di(const Esercizio& esercizio, std::string_view a_riposo);

/// It is there now.
bool Attivo(const Guasto_Impianto& guasto, Collegamento& impianto);

/// Brings it about or takes it away, through the hand on the plant or through the wires. False when
/// it cannot at this moment, or only the next change of an output will.
bool Metti(const Guasto_Impianto& guasto, bool attivo, Collegamento& impianto);

}  // namespace tavorno
