// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavorno {

/// What can be wrong between a sensor and its terminal.
enum class Guasto_Filo : std::uint8_t {
  Interrotto,  ///< "filo(I0.3)": no voltage reaches the terminal; an analog one has 0 V
  Incollato,   ///< "incollato(I0.3)": the contact is welded, the terminal always has voltage
};

/// A fault by its parts.
struct Nome_Filo {
  Guasto_Filo Cosa = Guasto_Filo::Interrotto;
  bool Analogico = false;
  std::size_t Posto = 0;  ///< digital: 0..15, I0.0 to I1.7; analog: 0..2, AIW0 to AIW4
};

/// Takes "filo(I1.2)", "incollato(I1.2)" or "filo(AIW2)" apart; empty for anything else.
std::optional<Nome_Filo> Leggi_Nome_Filo(std::string_view nome);
/// The name of the fault at an address of the table of inputs.
std::string Nome_Guasto(Guasto_Filo cosa, std::string_view indirizzo);

/// The faults of the wires between a plant and the CPU. All are off at first.
class Guasti_Fili {
 public:
  void Metti(const Nome_Filo& nome, bool attivo);
  bool Attivo(const Nome_Filo& nome) const;

  /// What reaches the sixteen terminals of what the plant sends. A wire that is broken stays so
  /// whatever its contact does.
  std::string Ai_Morsetti(std::string ingressi) const;
  /// The same for analog channel 0..2.
  float Al_Morsetto(std::size_t canale, float volt) const;

 private:
  std::uint32_t interrotti_ = 0;  // bits 0..15 the digital inputs, 16..18 the analog ones
  std::uint32_t incollati_ = 0;
};

}  // namespace tavorno
