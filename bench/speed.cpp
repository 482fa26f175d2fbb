// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/speed.h"

#include <chrono>

#include "grading/processor_time.h"
#include "recorder/driven_run.h"

namespace tavorno {

Velocita Misura(Plc& plc, std::chrono::milliseconds durata) {
  using Orario = std::chrono::steady_clock;
  constexpr int righe_per_sguardo = 96;  // as the run in the window
  Velocita velocita;
  const auto inizio = Orario::now();
  const std::chrono::nanoseconds processore = Tempo_Del_Processo();
  plc.mnuPlcCont();
  Avvia_Guidata(plc, Comando_Corsa::Run);
  velocita.Righe = 1;
  auto passato = Orario::duration{0};
  while (passato < durata && plc.PLC_Acceso) {
    velocita.Righe += plc.Esegui_Righe(righe_per_sguardo);
    passato = Orario::now() - inizio;
    plc.Tempo.Porta_A(std::chrono::duration_cast<std::chrono::milliseconds>(passato).count());
  }
  velocita.Scansioni = plc.N_Cicli;
  velocita.Secondi_Processore =
      std::chrono::duration<double>(Tempo_Del_Processo() - processore).count();
  velocita.Secondi = std::chrono::duration<double>(passato).count();
  return velocita;
}

}  // namespace tavorno
