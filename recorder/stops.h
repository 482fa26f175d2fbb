// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "trace/address.h"

namespace tavorno {

/// Where a run is to stop: before a line, when something becomes true of a cell, or before a line
/// where it is.
struct Fermata {
  enum class Prova {
    Sempre,
    Sale,
    Scende,
    Cambia,
    Maggiore,
    Minore,
    Uguale,
    Diverso,
    Almeno,
    Al_Piu
  };

  static constexpr int Ogni_Riga = -1;

  int Riga = Ogni_Riga;  ///< only there; a change is then one since the last time there
  Prova Quando = Prova::Sempre;
  Indirizzo Cella;  ///< but of `Prova::Sempre`
  double Valore = 0;
  int Volte = 1;  ///< stops at every so many times that it comes true

  std::string Cosa() const;   ///< "VW10 > 300"; empty for `Prova::Sempre`
  std::string Testo() const;  ///< "riga 12 se VW10 > 300 x3"

  // While a program runs.
  int Contate = 0;
  double Prima = 0;
  bool Vera = false;
};

/// Reads "riga 12", "Q0.1 sale", "I0.0 scende", "T37 cambia", "VW10 > 300", "riga 12 se VW10 >
/// 300", each with " x3" behind it for the third time. Empty for anything else, and `errore` says
/// in Italian what is wrong.
std::optional<Fermata> Leggi_Fermata(const std::string& testo, std::string& errore);

/// All stops of a program.
class Fermate {
 public:
  /// Reads a list separated by ";". False, and nothing changes, when one of them is wrong.
  bool Leggi(const std::string& lista, std::string& errore);
  void Togli_Tutte() { fermate_.clear(); }
  /// A stop before this line: sets it, or takes away all that are there.
  void Alterna_Riga(int riga);
  /// The first one before this line, or nullptr.
  const Fermata* Alla_Riga(int riga) const;
  bool Vuote() const { return fermate_.empty(); }
  const std::vector<Fermata>& Tutte() const { return fermate_; }
  /// The list as it can be read back.
  std::string Come_Testo() const;

  /// What was true so far is known: counts begin, and nothing stops for what holds already.
  void Ricomincia(const Plc& plc);
  /// To be asked before each line: the stop that is reached, or nullptr.
  const Fermata* Raggiunta(const Plc& plc);

 private:
  std::vector<Fermata> fermate_;
};

}  // namespace tavorno
