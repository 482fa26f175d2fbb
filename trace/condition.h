// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "trace/recording.h"

namespace tavorno {

/// One part of a condition: an edge of a cell, or its value against a number.
struct Termine {
  enum class Prova : std::uint8_t {
    Sale,
    Scende,
    Cambia,
    Uguale,
    Diverso,
    Minore,
    Maggiore,
    Minore_Uguale,
    Maggiore_Uguale
  };
  Segnale Chi;
  Prova Cosa = Prova::Uguale;
  double Numero = 0;

  bool Fronte() const { return Cosa <= Prova::Cambia; }
  /// Whether it holds when the cell had one value and has another now.
  bool Vale(double prima, double adesso) const;
};

/// All of its parts at the same time.
using Condizione = std::vector<Termine>;

/// Reads "Q0.1 sale", "KM1 scende e VW10 > 300", "T37.Val cambia", "I0.0 = 1", or a name alone,
/// which means "= 1"; decimals with a comma or a point. Names are addresses, or symbols of the
/// plant where one is given. On a mistake it is empty and `errore` says in Italian what is wrong.
std::optional<Condizione> Leggi_Condizione(const std::string& testo, Elenco_IO impianto,
                                           std::string& errore);

/// The first moment after `da` (the last one before it) at which the condition becomes true; its
/// signals must be recorded, else it is never true.
std::optional<std::int64_t> Cerca_Avanti(const Registrazione& registrazione,
                                         const Condizione& condizione, std::int64_t da);
std::optional<std::int64_t> Cerca_Indietro(const Registrazione& registrazione,
                                           const Condizione& condizione, std::int64_t da);

}  // namespace tavorno
