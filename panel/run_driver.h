// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <functional>

#include "plc/rest.h"

namespace tavorno {

/// Drives the CPU in real time beside the window system, on one thread: it moves the clock to the
/// present, lets the window system process its events between two lines of a running program, and
/// has the screen refreshed.
class Guida_Corsa {
 public:
  /// Becomes the CPU's yield. `aggiorna` refreshes the screen and runs at most 50 times a second.
  Guida_Corsa(Plc& plc, std::function<void()> aggiorna);
  Guida_Corsa(const Guida_Corsa&) = delete;
  Guida_Corsa& operator=(const Guida_Corsa&) = delete;

  /// A scan shorter than a millisecond waits for the rest of it, so that a running CPU does not
  /// burn a processor, and scans that would change nothing are only counted. Off for measuring how
  /// fast a program can run.
  bool Attesa = true;

  /// No more ticks and refreshes: the process is about to end with a report.
  void Ferma();

  static constexpr int Righe_Per_Sguardo = 96;             ///< lines between two looks at the time
  static constexpr std::chrono::milliseconds Eventi{3};    ///< between two rounds of window events
  static constexpr std::chrono::milliseconds Schermo{20};  ///< between two refreshes
  static constexpr std::chrono::milliseconds A_Riposo{5};  ///< between two moves of the clock

 private:
  using Istante = std::chrono::nanoseconds;

  void Cedi();
  Istante Inizia_Scansione(Istante adesso);
  Istante Riposa(Istante adesso);
  Istante Adesso() const { return Istante{cronometro_.nsecsElapsed()}; }
  void Porta_Al_Presente(Istante adesso);

  Plc& plc_;
  Riposo riposo_{plc_};
  std::int32_t cicli_visti_ = 0;
  Iscrizione cessione_;
  QElapsedTimer cronometro_;
  QTimer clock_a_riposo_, schermo_;
  Istante scansione_{0}, eventi_{0};
};

}  // namespace tavorno
