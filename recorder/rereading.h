// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "recorder/recorder.h"
#include "trace/recording.h"

namespace tavorno {

/// The signals of a session as they would have been recorded, had somebody looked on from its first
/// moment: the journal is played again on a CPU and a plant of its own, a slice at a time.
class Rilettura {
 public:
  /// What `registratore` has written down by now; what comes later is not its business.
  Rilettura(Registratore& registratore, const std::vector<Segnale>& segnali);
  Rilettura(const Rilettura&) = delete;
  Rilettura& operator=(const Rilettura&) = delete;

  /// Plays on for about that long. False: the end is reached, or as far as it can be played.
  bool Avanti(std::chrono::nanoseconds tempo);
  double Fatta() const;  ///< 0 to 1

  std::int64_t Da() const { return da_.Ms; }  ///< where it begins, ms of the clock
  const Registrazione& Dati() const { return dati_; }

 private:
  bool In_Corsa();
  void Da_Ferma();
  void Segna_Scansione();

  Seduta_Registrata seduta_;
  Momento da_, a_;
  Orologio orologio_;
  Plc plc_{orologio_};
  Registrazione dati_;
  std::optional<Replica> replica_;
  Iscrizione entrate_;
  std::chrono::steady_clock::time_point scade_;
  std::int64_t fin_qui_ = 0;
  std::int64_t ultimo_ = -1;  // ms of the last sample of a run
  /// A scan that is about to begin, unless time moves once more before its first line.
  struct Inizio_Scansione {
    std::int64_t Righe, Ms;
    std::int32_t Numero;
  };
  std::optional<Inizio_Scansione> inizia_;
  int concesse_ = 0;  // times that a slice goes on, however short it is
  bool finita_ = false;
};

}  // namespace tavorno
