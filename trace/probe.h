// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trace/recording.h"

namespace tavorno {

/// Records a CPU that lives: before each scan of a run, once per millisecond at most, before and
/// behind each step that is given by hand, and whenever `Guarda` is called, which a window does at
/// its rate for a CPU that stands or rests. Where the clock has gone back, what was recorded of the
/// time behind did not happen. It ends with this object, and so does what it costs.
class Sonda {
 public:
  Sonda(Plc& plc, Registrazione& registrazione);
  Sonda(const Sonda&) = delete;
  Sonda& operator=(const Sonda&) = delete;

  /// Records the present, unless a scan is under way: half of a scan is no state of the process.
  void Guarda();

  /// The clock is another one from now on, and so is what was done last.
  void Da_Capo();

  bool In_Pausa = false;  ///< nothing is recorded, as while the past is on the screen

 private:
  void In_Cessione();
  void Sta_Per_Entrare(const Atto& entrata);
  void Campiona();

  Plc& plc_;
  Registrazione& registrazione_;
  std::int64_t ultimo_ = -1;  // ms of the last sample of a run
  bool passo_ = false;        // one was given, and what it did is not recorded yet
  Iscrizione cessione_, entrate_;
};

}  // namespace tavorno
