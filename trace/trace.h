// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plc/symbol_row.h"
#include "trace/signal.h"

namespace tavorno {

struct Cambio_Segnale {
  std::int64_t Ms;
  std::size_t Quale;  ///< index of the signal
  double Valore;
};

struct Caso_Registrato {
  std::string Nome;
  std::int64_t Inizio, Fine;  ///< ms
};

/// The inputs and outputs of one or more runs, one behind the other on one line of time. Without a
/// plant's table: all 32 digital points and the five analog words.
class Traccia {
 public:
  explicit Traccia(Elenco_IO impianto);
  /// What was recorded elsewhere, as one case; `cambi` sorted by time, `durata` in ms.
  Traccia(std::vector<Segnale> segnali, std::vector<Cambio_Segnale> cambi, std::int64_t durata);

  void Inizia_Caso(const std::string& nome);
  /// Records what changed since the last call; `ms` counts from the beginning of the case.
  void Campiona(std::int64_t ms, const Plc& plc);
  void Fine_Caso(std::int64_t ms);

  const std::vector<Segnale>& Segnali() const { return segnali_; }
  const std::vector<Cambio_Segnale>& Cambi() const { return cambi_; }  ///< sorted by time
  const std::vector<Caso_Registrato>& Casi() const { return casi_; }
  std::int64_t Durata() const { return durata_; }  ///< ms
  /// Nothing more is recorded behind this number of changes.
  static constexpr std::size_t Cambi_Massimi = 5'000'000;

 private:
  std::vector<Segnale> segnali_;
  std::vector<double> ultimi_;
  std::vector<Cambio_Segnale> cambi_;
  std::vector<Caso_Registrato> casi_;
  std::int64_t durata_ = 0;
};

/// A value change dump with a time unit of a millisecond, each signal under its symbol.
std::string Testo_Vcd(const Traccia& traccia);

/// A timing diagram, `titolo` above it; a red line marks the moment `segno`, in ms, when it is not
/// negative.
std::string Diagramma_Svg(const Traccia& traccia, const std::string& titolo,
                          std::int64_t segno = -1);

}  // namespace tavorno
