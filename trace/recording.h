// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "trace/signal.h"
#include "trace/trace.h"
#include "trace/wave.h"

namespace tavorno {

/// Signals over time, as somebody looks on who may choose others meanwhile. Times are those of the
/// clock, in ms.
class Registrazione {
 public:
  /// The number of the signal, which is heard from the next sample on. One whose address is
  /// recorded already keeps number and past, and only has another name.
  std::size_t Aggiungi(const Segnale& segnale);
  /// It is recorded no longer, and what was is forgotten. Numbers do not move.
  void Togli(std::size_t numero);
  std::optional<std::size_t> Cerca(const std::string& indirizzo) const;

  /// Nobody's: those that were taken away have no name.
  std::size_t Quanti() const { return righe_.size(); }
  const Segnale& Chi(std::size_t numero) const { return righe_[numero].Chi; }
  const Onda& Quando(std::size_t numero) const { return righe_[numero].Quando; }

  void Campiona(std::int64_t ms, const Plc& plc);
  void Scansione(std::int64_t ms, std::int32_t numero) { scansioni_.Aggiungi(ms, numero); }
  const Scansioni& Inizi_Scansione() const { return scansioni_; }

  bool Vuota() const { return fine_ < inizio_; }
  std::int64_t Inizio() const { return inizio_; }  ///< 0 while it is empty
  std::int64_t Fine() const { return Vuota() ? inizio_ : fine_; }
  std::int64_t Cambi() const { return cambi_; }  ///< in all that was ever recorded

  /// It is said to begin at `ms`, of which something may be told later; not after it has begun.
  void Comincia(std::int64_t ms);
  /// What another one recorded of the same signals, by their addresses, before they were recorded
  /// here.
  void Anteponi(const Registrazione& prima);

  /// Forgets all that was recorded; the signals stay.
  void Svuota();

  /// What came after `ms` did not happen: the run goes on from there.
  void Taglia(std::int64_t ms);

  /// The stretch from `da` to `a` of these signals as one case, for a file.
  Traccia Ritaglio(const std::vector<std::size_t>& numeri, std::int64_t da, std::int64_t a) const;

  /// Changes that are kept; beyond, the busiest signal forgets its older half.
  std::size_t Cambi_Massimi = 6'000'000;

 private:
  struct Riga {
    Segnale Chi;
    Onda Quando;
    bool Viva = true;
    double Ultimo = 0;
  };
  void Fai_Posto();

  std::deque<Riga> righe_;
  Scansioni scansioni_;
  std::int64_t inizio_ = 0, fine_ = -1;
  std::int64_t cambi_ = 0;
  std::size_t tenuti_ = 0;
};

}  // namespace tavorno
