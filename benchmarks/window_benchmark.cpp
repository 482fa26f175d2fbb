// SPDX-License-Identifier: GPL-3.0-or-later
// Lines per second of a program of 300 lines, flat out, with and without the windows that look on;
// and what a run that waits at the top of its scan takes of a processor.
// Usage: window_benchmark [SECONDS] [ROUNDS]
#include <sys/resource.h>

#include <QApplication>
#include <QCheckBox>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "assets/resources.h"
#include "awl/project.h"
#include "benchmarks/programs.h"
#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"

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
  const auto fine = Orario::now() + std::chrono::duration<double>(secondi);
  const Iscrizione ascolto = cpu.plc.Hook.Ascolta_Cedi(
      [&] {
        if (Orario::now() > fine) cpu.plc.mnuPlcStop();
      },
      Guida_Corsa::Righe_Per_Sguardo);
  return Righe_Al_Secondo(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

struct Sguardi {
  bool Stati = false;     // the status window is open
  bool Spunte = false;    // stack and images are ticked
  bool Attesa = false;    // the run waits at the top of its scan
  bool Motore = false;    // the first exercise is open and wired to the measured program
  bool Impianto = false;  // four cylinders at work, with the solved project of that exercise
};

// The solved project in place of the measured one, the air on and the automatic cycle begun.
std::unique_ptr<Finestra_Impianto> Apri_Cilindri(Cpu& cpu, Stato_Impianto& stato) {
  constexpr std::size_t quattro_cilindri = 7;
  cpu.progetto.File_Progetto = TAVORNO_EXAMPLES "/us07.AWL";
  cpu.progetto.LeggiTxt();
  cpu.progetto.Compila();
  auto finestra = std::make_unique<Finestra_Impianto>(
      std::make_unique<Collegamento>(cpu.plc, stato, Tabella_Esercizi()[quattro_cilindri]));
  finestra->Fili().Carica();
  finestra->show();
  Impianto& macchina = finestra->Fili().Macchina();
  macchina.Clic("imgCom");
  QTimer::singleShot(200, finestra.get(), [&macchina] { macchina.Premi("imgSB1"); });
  QTimer::singleShot(400, finestra.get(), [&macchina] { macchina.Rilascia("imgSB1"); });
  return finestra;
}

double Con_Pannello(double secondi, Sguardi sguardi) {
  Cpu cpu;
  FrmPLC pannello(cpu.plc, cpu.progetto);
  Guida_Corsa corsa(cpu.plc, [&] { pannello.Aggiorna(); });
  corsa.Attesa = sguardi.Attesa;
  pannello.show();
  pannello.Controlli().chkIP->setChecked(sguardi.Spunte);
  pannello.Controlli().chkVs->setChecked(sguardi.Spunte);
  FrmStatiL finestra_stati(cpu.plc, nullptr);
  if (sguardi.Stati) finestra_stati.show();
  Stato_Impianto stato;
  std::unique_ptr<Finestra_Impianto> impianto;
  if (sguardi.Impianto) impianto = Apri_Cilindri(cpu, stato);
  if (sguardi.Motore) {
    impianto = std::make_unique<Finestra_Impianto>(
        std::make_unique<Collegamento>(cpu.plc, stato, Tabella_Esercizi()[0]));
    impianto->Fili().Carica();
    impianto->show();
  }
  QApplication::processEvents();
  QTimer::singleShot(static_cast<int>(secondi * 1000), &pannello, [&] { cpu.plc.mnuPlcStop(); });
  return Righe_Al_Secondo(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

double Secondi_Di_Processore() {
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  const auto secondi = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return secondi(uso.ru_utime) + secondi(uso.ru_stime);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  const double secondi = argc > 1 ? std::atof(argv[1]) : 2;
  const int giri = argc > 2 ? std::atoi(argv[2]) : 5;

  const std::vector<std::pair<const char*, std::function<double()>>> casi = {
      {"without windows", [&] { return Senza_Finestre(secondi); }},
      {"panel", [&] { return Con_Pannello(secondi, {}); }},
      {"panel, stack and images", [&] { return Con_Pannello(secondi, {.Spunte = true}); }},
      {"panel and status window", [&] { return Con_Pannello(secondi, {.Stati = true}); }},
      {"panel and open plant", [&] { return Con_Pannello(secondi, {.Motore = true}); }},
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

  const auto di_un_processore = [&](const char* nome, Sguardi sguardi) {
    const double prima = Secondi_Di_Processore();
    sguardi.Attesa = true;
    Con_Pannello(secondi, sguardi);
    std::printf("waiting at the top of the scan, %-32s %5.1f %% of a core\n", nome,
                100 * (Secondi_Di_Processore() - prima) / secondi);
  };
  di_un_processore("panel", {});
  di_un_processore("panel, stack and images", {.Spunte = true});
  di_un_processore("panel and status window", {.Stati = true});
  di_un_processore("panel and four cylinders at work", {.Impianto = true});
}
