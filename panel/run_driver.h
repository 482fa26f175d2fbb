// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

#include "panel/scan_clock.h"
#include "plc/rest.h"

namespace tavorno {

/// What is done at each beat of a run that goes slowly enough to be followed.
enum class Battito { Nessuno, Riga, Rete, Scansione };

/// Drives the CPU in real time beside the window system, on one thread: it moves the clock to the
/// present, lets the window system process its events between two lines of a running program, and
/// has the screen refreshed. It also lets time go slowly or not at all, for CPU and plant alike.
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

  /// No more ticks and refreshes, and real time stands still: the process is about to end with a
  /// report, or somebody else moves the clock.
  void Ferma();

  /// How long the scans of the run took, or of the last one.
  const Tempo_Scansioni& Scansioni() const { return durate_.Misurati(); }

  /// Time stands still, and a run is left before its next line. What had been frozen by a pause is
  /// let go by `Continua`, and by any command that sets the CPU going or stops it.
  void Pausa();
  bool In_Pausa() const { return congelata_; }
  /// Goes on; returns when the run that was left ends.
  void Continua();

  /// How fast time goes, above 0 and up to 1 of the real one.
  void Velocita(double parte);
  double Velocita() const { return velocita_; }

  /// At each beat one line, one network or one scan runs, and the clock moves by a millisecond for
  /// each scan. `ms` between two beats, of real time.
  void Batti(Battito battito, int ms = 500);
  Battito A_Battito() const { return battito_; }
  /// Called before a beat, with the line that comes.
  std::function<void(int riga)> Al_Battito;

  /// Asked before each line while there is one; true stops there, in a pause.
  std::function<bool()> Fermati_Qui;

  static constexpr int Righe_Per_Sguardo = 96;           ///< lines between two looks at the time
  static constexpr std::chrono::milliseconds Eventi{3};  ///< between two rounds of window events
  static constexpr std::chrono::milliseconds Eventi_A_Riposo{
      8};                                                  ///< while no scan changes anything
  static constexpr std::chrono::milliseconds Schermo{20};  ///< between two refreshes
  static constexpr std::chrono::milliseconds A_Riposo{5};  ///< between two moves of the clock

 private:
  using Istante = std::chrono::nanoseconds;

  int Cedi();
  int Guarda(Istante& vero);
  Istante Inizia_Scansione(Istante adesso);
  Istante Riposa(Istante adesso);
  Istante Vero() const { return ferma_.value_or(Istante{cronometro_.nsecsElapsed()}); }
  Istante Adesso() const { return Adesso(Vero()); }
  Istante Adesso(Istante vero) const;
  void Porta_Al_Presente(Istante adesso);
  void Tick();
  void Riparti_Da(Istante adesso);
  void Eventi_Di_Finestra();
  void Aspetta_Il_Battito();
  bool Si_Batte_Qui() const;

  Plc& plc_;
  Riposo riposo_{plc_, Riposo::Per::Chi_Guarda};  // diagram, power flow
  std::int32_t cicli_visti_ = 0;
  Cronometro_Scansioni durate_;
  Iscrizione cessione_;
  QElapsedTimer cronometro_;
  std::optional<Istante> ferma_;  // where real time stands still
  QTimer clock_a_riposo_, schermo_;
  Istante scansione_{0};  // of the CPU's time
  Istante eventi_{0};     // of the real time

  // The CPU's time is `base_` at the real instant `base_vera_`.
  Istante base_{0}, base_vera_{0};
  double velocita_ = 1;
  bool congelata_ = false;
  bool sospesa_ = false;  // there was a run to leave
  bool pausa_chiesta_ = false;
  bool altrove_ = false;  // the CPU has been in its past
  Battito battito_ = Battito::Nessuno;
  std::chrono::milliseconds passo_battito_{500};
  bool prima_riga_ = false;  // of a run that goes on: where it stopped it does not stop again
};

}  // namespace tavorno
