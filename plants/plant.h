// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "plants/parts.h"
#include "plants/scene.h"
#include "plc/subscription.h"

namespace tavorno {

/// Value of a property that nobody has written yet. Not a number differs from every number, so that
/// no first write is taken for a repetition.
inline constexpr double Mai_Scritta = std::numeric_limits<double>::quiet_NaN();

/// A value that the user turns on the plant's face (an up/down), or that the host window sets (a
/// property such as "ME_Speed", without bounds).
struct Regolatore {
  std::function<void(double)> Cambia;  ///< called with a different value
  double Valore = 0;
  double Minimo = std::numeric_limits<double>::lowest();
  double Massimo = std::numeric_limits<double>::max();
  double Passo = 0;  ///< of an up/down; 0 for a property
};

/// When a plant speaks: `Change` follows from differences of its hidden text `txtC`.
enum class Invio {
  Se_Diverso,  ///< storing the inputs leaves `txtC` alone: an event only when they differ
  Doppio,      ///< storing them also writes `txtC`: two events each time, even with the same inputs
};

/// A plant: physics, named figures, and two texts of sixteen characters '0' and '1', one for the
/// PLC's inputs and one for its outputs. A character is the electrical state of the terminal, so a
/// normally closed contact at rest reads '1'. Figures named "filoI(0)" to "filoI(15)" and
/// "filoQ(0)" to "filoQ(15)" are wires between the machine and the PLC: colour 12 while the
/// terminal is live, else 15.
class Impianto {
 public:
  virtual ~Impianto() = default;
  Impianto(const Impianto&) = delete;
  Impianto& operator=(const Impianto&) = delete;

  /// The input text, under whatever property name (`ME_StatoI`, `MA_Stato_I`, ...).
  const std::string& Stato_I() const { return stato_i_; }
  void Stato_I(std::string_view testo);

  /// The output text. Storing it drives the plant's outputs, and nothing else does.
  const std::string& Stato_Q() const { return stato_q_; }
  void Stato_Q(std::string_view testo);

  Annuncio<> Change;  ///< the inputs may have changed

  /// The user's hand on a figure, by name. A click comes behind its press and release; where no
  /// double click is listened to, the second press of two is an ordinary one. False when nothing
  /// listens there, and for a figure that is hidden: only what was pressed before can still be
  /// released.
  bool Premi(std::string_view nome);
  bool Rilascia(std::string_view nome);
  bool Clic(std::string_view nome);
  bool Doppio_Clic(std::string_view nome);

  /// Turns an up/down or sets a property, held to its bounds. False for a name that is not known.
  bool Regola(std::string_view nome, double valore);
  /// nullptr for a name that is not known.
  const Regolatore* Trova_Regolatore(std::string_view nome) const;

  Scena Disegno;

  std::optional<float> ME_AIW0, ME_AIW2, ME_AIW4;  ///< analog values, in plants that have them

 protected:
  Impianto(std::span<const Riga_Figura> figure, std::string_view stato_i, Invio invio);

  /// Hands each character of the output text that the plant uses to its procedure, in the plant's
  /// own order.
  virtual void Applica_Uscite() = 0;

  /// The character at a position of the output text (1 to 16), as a text of one character.
  std::string_view Uscita(int posizione) const;
  /// For outputs that act only when they change: true when the character at the position differs
  /// from what it was at the last call, and at the first call.
  bool Uscita_Cambiata(int posizione);

  char Ingresso(int posizione) const;
  /// Changes one character of the input text; `Invia` tells the PLC of it.
  void Ingresso(int posizione, char valore);
  /// Stores the input text and writes it to `txtC`.
  void Invia();
  /// Any other text that makes `Change` heard.
  void txtC(std::string testo);

  // plant_parts.cpp: lets the figures of these rows answer to the mouse
  void Monta(std::span<const Riga_Pulsante> righe);
  void Monta(std::span<const Riga_Commutatore> righe);
  // plant_parts.cpp: the latching button `ImgEm` with its contact `imgCEM`, normally closed
  void Monta_Emergenza(int ingresso);
  // plant_parts.cpp: shows a lamp, lit when `stato` is "1"
  void Mostra(const Riga_Lampada& lampada, std::string_view stato);
  // plant_parts.cpp: shows a contactor with contact and wire, and sets its contact's input
  void Mostra(const Riga_Contattore& contattore, bool eccitato);

  std::map<std::string, Regolatore, std::less<>> Regolatori;

 private:
  using Fili = std::array<Figura*, 16>;
  static void Colora(const Fili& fili, const std::string& stato);

  Fili fili_i_{}, fili_q_{};  // null where the picture has no wire
  std::string stato_i_;
  std::string stato_q_ = "0000000000000000";
  std::array<char, 16> viste_{};  // output characters as `Uscita_Cambiata` last saw them
  Invio invio_;
  std::string txtC_;
};

}  // namespace tavorno
