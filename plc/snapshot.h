// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "plc/byte_bar.h"
#include "plc/memory.h"
#include "plc/panel_view.h"
#include "plc/run_state.h"

namespace tavorno {

/// All that a CPU holds between two lines, but for the text of its program.
struct Istantanea {
  /// What a line keeps from scan to scan.
  struct Riga {
    std::int16_t Fronte = 0, Abil_SCR = 1;
    bool operator==(const Riga&) const = default;
  };
  struct Timer {
    int Intervallo = 1;
    std::int64_t Scadenza = Orologio::Mai;
    bool operator==(const Timer&) const = default;
  };

  Celle Memoria;
  std::int16_t NRighe = 0, PC = 0;
  std::vector<Riga> Righe;
  Stato_Corsa Corsa;
  Giro In_Giro = Giro::Nessuno;  ///< the run loop that was at work
  Giro Sospeso = Giro::Nessuno;  ///< the one that a pause had left
  Opzioni Scelte;
  Comandi Attivi;
  std::array<Barra::Stato, 2> SI, SQ;
  std::int64_t Adesso = 0;         ///< of the clock, ms
  std::array<Timer, 4> Timer_CPU;  ///< T100m, tim1, tim2, timIO
  std::uint8_t Stato_tim1 = 0, Stato_tim2 = 0;

  // What a window shows of it.
  std::string etTime;
  std::array<std::string, 2> etIPI, etIPQ;
  int etPc = 0, Lista_Scelta = -1;
  std::int32_t Tempo_Mostrato = -1;
  bool Tempo_Alla_Fine = false;
};

}  // namespace tavorno
