// SPDX-License-Identifier: GPL-3.0-or-later
// Lines per second of a program of 300 lines, flat out, with and without the windows that look on.
// Usage: window_benchmark [SECONDS] [ROUNDS]
#include <QApplication>
#include <QCheckBox>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "assets/resources.h"
#include "awl/project.h"
#include "benchmarks/programs.h"
#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "panel/windows/status_window.h"

using namespace tavorno;
using Orario = std::chrono::steady_clock;

namespace {

struct Cpu {
  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  Cpu() {
    misura::Carica(plc, misura::Misto(300));
    plc.mnuPlcStop();
    plc.mnuPlcCont();
  }
};

double Righe_Al_Secondo(Plc& plc, double secondi, const std::function<void()>& corri) {
  const auto inizio = Orario::now();
  corri();
  const std::chrono::duration<double> durata = Orario::now() - inizio;
  if (durata.count() < secondi * 0.5)
    std::exit(2);  // the run ended by itself: nothing was measured
  return plc.N_Cicli * (plc.NRighe + 1.0) / durata.count();
}

// The run loop with a yield that only looks at the time: what the windows are compared with.
double Senza_Finestre(double secondi) {
  Cpu cpu;
  int righe = 0;
  const auto fine = Orario::now() + std::chrono::duration<double>(secondi);
  cpu.plc.Hook.Cedi = [&] {
    if (++righe < Guida_Corsa::Righe_Per_Sguardo) return;
    righe = 0;
    if (Orario::now() > fine) cpu.plc.mnuPlcStop();
  };
  return Righe_Al_Secondo(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

double Con_Pannello(double secondi, bool stati, bool spunte) {
  Cpu cpu;
  FrmPLC pannello(cpu.plc, cpu.progetto);
  Guida_Corsa corsa(cpu.plc, [&] { pannello.Aggiorna(); });
  corsa.Attesa = false;
  pannello.show();
  pannello.Controlli().chkIP->setChecked(spunte);
  pannello.Controlli().chkVs->setChecked(spunte);
  FrmStatiL finestra_stati(cpu.plc, nullptr);
  if (stati) finestra_stati.show();
  QApplication::processEvents();
  QTimer::singleShot(static_cast<int>(secondi * 1000), &pannello, [&] { cpu.plc.mnuPlcStop(); });
  return Righe_Al_Secondo(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

}  // namespace

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  const double secondi = argc > 1 ? std::atof(argv[1]) : 2;
  const int giri = argc > 2 ? std::atoi(argv[2]) : 5;

  const std::vector<std::pair<const char*, std::function<double()>>> casi = {
      {"without windows", [&] { return Senza_Finestre(secondi); }},
      {"panel", [&] { return Con_Pannello(secondi, false, false); }},
      {"panel, stack and images", [&] { return Con_Pannello(secondi, false, true); }},
      {"panel and status window", [&] { return Con_Pannello(secondi, true, false); }},
  };
  // Round by round, so that a noisy moment of the machine meets every case.
  std::map<const char*, std::vector<double>> misure;
  for (int giro = 0; giro < giri; ++giro) {
    for (const auto& [nome, misura] : casi) misure[nome].push_back(misura());
  }
  double primo = 0;
  for (const auto& [nome, misura] : casi) {
    std::vector<double>& valori = misure[nome];
    std::sort(valori.begin(), valori.end());
    const double mediana = valori[valori.size() / 2];
    if (primo == 0) primo = mediana;
    std::printf("%-26s %8.1f million lines/s  %5.1f ns/line  %5.1f %%\n", nome, mediana / 1e6,
                1e9 / mediana, 100 * mediana / primo);
  }
}
