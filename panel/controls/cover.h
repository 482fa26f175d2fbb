// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "plc/clock.h"

namespace tavorno {

/// The cover of the CPU as a movement: a timer that slides it between its two ends. It turns round
/// at an end only; who starts the timer on the way changes nothing.
class Sportello {
 public:
  static constexpr int Chiuso = -10;       ///< top at start, twips
  static constexpr int Spalancato = -650;  ///< top when open, twips
  static constexpr int Passo = 40;         ///< way of one tick, twips

  explicit Sportello(Orologio& orologio) : Timer1(orologio, 50, [this] { Scorri(); }) {}

  std::function<void()> Mosso;  ///< `Top` changed

  int Top = Chiuso;                   ///< twips
  std::int16_t Sportello_Aperto = 0;  ///< -1 when it stands open
  Temporizzatore Timer1;

 private:
  void Scorri() {
    if (Sportello_Aperto != 0) {
      Top += Passo;
      if (Top >= 0) Ferma(0);
    } else {
      Top -= Passo;
      if (Top < Spalancato) {
        Top = Spalancato;
        Ferma(-1);
      }
    }
    if (Mosso) Mosso();
  }

  void Ferma(std::int16_t aperto) {
    Sportello_Aperto = aperto;
    Timer1.Enabled(false);
  }
};

}  // namespace tavorno
