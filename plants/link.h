// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plants/cover_mode.h"
#include "plants/exercises.h"
#include "plants/wire_faults.h"

namespace tavorno {

/// What the panel knows of the open plant. At most one is open.
struct Stato_Impianto {
  std::int16_t Impianto_Aperto = 0;  ///< -1 while a plant is open
  std::uint8_t Impianto_Nr = 0;      ///< index of the open plant; 0 when none is open
};

/// One open plant and its wires to the CPU. Inputs and outputs travel on change only, inside the
/// event that caused it; a plant reaches the CPU through the bars `SI`, and hears it through `SQ`.
///
/// Opening, in order: the constructor; the ticks of `mnuPrj`; the host window with its title, the
/// status window and the I/O table; `Carica`. Closing: `Chiudi`; the ticks of `mnuPrj`; the status
/// window; then this object and its plant go, so that the next opening starts from defaults.
class Collegamento {
 public:
  /// `sportello` is the panel's `PLC_Sportello`, and may be empty where there is no panel.
  /// Throws `std::invalid_argument` for an exercise without a plant.
  Collegamento(Plc& plc, Stato_Impianto& stato, const Esercizio& esercizio,
               std::function<void(Modo_Sportello)> sportello = {});
  ~Collegamento();
  Collegamento(const Collegamento&) = delete;
  Collegamento& operator=(const Collegamento&) = delete;

  /// As the constructor does, once more: the machine is a new one, which has not spoken yet. What
  /// held the old one must have let go of it.
  void Apri();

  /// Announces an entry of the user's hand on the plant or on its window, and lets it in. False
  /// when nothing feels it, and for an entry of another kind.
  bool Entra(const Atto& entrata);

  /// Lets the plant speak: it gets the settings that the host makes on load, and its inputs as they
  /// are reach the PLC.
  void Carica();

  /// Resets the bars, with the plant still listening and heard, and takes the wires away. Once
  /// closed, it does nothing.
  void Chiudi();

  Impianto& Macchina() { return *macchina_; }
  Plc& Cpu() { return plc_; }
  const Esercizio& Tabella() const { return esercizio_; }
  /// The plant's inputs as it was made, before any hand or output.
  const std::string& Ingressi_A_Riposo() const { return a_riposo_; }

  /// "Usa Simulatore PLC per gli Ingressi": while ticked the switches drive the inputs, and the
  /// plant goes on unheard.
  bool chkSim() const { return chkSim_; }
  /// A click on it.
  void chkSim(bool spuntato);

  /// Moves slider `numero` of `Tabella().Cursori`; the value is held to its range.
  void Muovi(std::size_t numero, int valore);
  int Valore(std::size_t numero) const { return valori_.at(numero); }

  /// Breaks or mends the wire of an input, by a name such as "filo(I0.3)" (see `Guasto_Filo`). The
  /// plant does not know; what its contact says reaches the terminal as the wire lets it. False for
  /// an input that the exercise does not have.
  bool Guasta(std::string_view nome, bool attivo);
  /// The wire has that fault now.
  bool Guastato(std::string_view nome) const;

 private:
  void Ingressi_Cambiati();
  void Taglia_Canali();
  void Uscite_Cambiate();
  void Scrivi_Cursori();
  std::optional<Nome_Filo> Filo(std::string_view nome) const;
  void LED_Reset();

  Plc& plc_;
  Stato_Impianto& stato_;
  const Esercizio& esercizio_;
  std::function<void(Modo_Sportello)> sportello_;
  std::unique_ptr<Impianto> macchina_;
  Iscrizione ascolto_macchina_;
  std::array<Iscrizione, 2> ascolto_uscite_;
  bool aperto_ = true;
  bool chkSim_ = false;
  std::vector<int> valori_;  // of the sliders
  Guasti_Fili guasti_;
  std::array<float, 3> dietro_{};  // what a plant wrote on channels whose wires are broken
  std::string a_riposo_;
};

}  // namespace tavorno
