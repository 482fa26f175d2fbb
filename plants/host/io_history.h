// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "plants/link.h"
#include "plants/quantities.h"

namespace tavorno {

/// A row of the table of inputs and outputs, by its parts.
struct Punto_IO {
  char Area = 'I';  ///< 'I' or 'Q'
  bool Analogico = false;
  int Byte = 0, Bit = 0;  ///< digital
  int Canale = 0;         ///< analog

  /// Takes "I0.3", "Q1.0", "AIW2" or "AQW0" apart; empty for anything else.
  static std::optional<Punto_IO> Leggi(std::string_view indirizzo);
};

/// What the terminals of an open plant did in the last minute, by the clock of the CPU: a bit at
/// each of its changes, a quantity as often as somebody has it looked at.
class Storia_IO {
 public:
  static constexpr std::int64_t Durata = 60'000;  ///< ms that are kept

  /// From a moment on. A bit may change thousands of times in a second: what follows within
  /// `Fitto` ms is taken together.
  struct Tratto {
    std::int64_t Ms;
    double Valore;
    bool Fitto = false;
  };
  static constexpr std::int64_t Fitto = 20;

  /// The link must outlive it.
  explicit Storia_IO(Collegamento& fili);

  std::int64_t Adesso() const { return plc_.Tempo.Adesso(); }
  /// Looks at what changes gradually, and forgets what is older than a minute.
  void Guarda();

  /// Of a row of the table: a bit is 0 or 1, an analog value volts.
  double Valore(std::size_t riga) const;
  /// When it changed last; empty while it never did since the plant was opened.
  std::optional<std::int64_t> Cambiato(std::size_t riga) const { return righe_.at(riga).Cambiato; }

  /// In their order in time; the first may begin before the minute. Empty for an analog row.
  const std::deque<Tratto>& Bit(std::size_t riga) const { return righe_.at(riga).Tratti; }
  std::span<const Grandezza> Grandezze() const { return grandezze_; }
  const std::deque<Tratto>& Di_Grandezza(std::size_t numero) const { return misure_.at(numero); }

  const Esercizio& Tabella() const { return fili_.Tabella(); }
  const Punto_IO& Punto(std::size_t riga) const { return righe_.at(riga).Di; }

 private:
  struct Riga {
    Punto_IO Di;
    double Ultimo = 0;
    std::optional<std::int64_t> Cambiato;
    std::deque<Tratto> Tratti;
  };
  void Segna(char area, int byte);
  void Segna(Riga& riga, double valore);
  double Letto(const Punto_IO& punto) const;
  void Dimentica(std::deque<Tratto>& tratti) const;

  Collegamento& fili_;
  Plc& plc_;
  std::vector<Riga> righe_;
  std::span<const Grandezza> grandezze_;
  std::vector<std::deque<Tratto>> misure_;
  std::array<Iscrizione, 4> ascolti_;
};

}  // namespace tavorno
