// SPDX-License-Identifier: GPL-3.0-or-later
// Lines per second of a program of 300 lines, flat out, with and without the windows that look on;
// what a run that waits at the top of its scan takes of a processor, and how long the ladder of
// such a program takes to be drawn anew. Usage: window_benchmark [SECONDS] [ROUNDS]
// [PART_OF_A_NAME]
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
#include <optional>
#include <string>
#include <vector>

#include "assets/resources.h"
#include "awl/project.h"
#include "benchmarks/programs.h"
#include "ladder/ui/ladder_window.h"
#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "panel/windows/status_window.h"
#include "plants/host/host_window.h"
#include "recorder/recorder.h"
#include "recorder/ui/diagram_window.h"

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

double Secondi_Di_Processore() {
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  const auto secondi = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return secondi(uso.ru_utime) + secondi(uso.ru_stime);
}

struct Misura {
  double Righe = 0;       ///< lines per second of a processor, so that other work counts less
  double Processore = 0;  ///< part of a processor that the run took
};

Misura Misura_Corsa(Plc& plc, double secondi, const std::function<void()>& corri) {
  const auto inizio = Orario::now();
  const double processore = Secondi_Di_Processore();
  corri();
  const std::chrono::duration<double> durata = Orario::now() - inizio;
  if (durata.count() < secondi * 0.5)
    std::exit(2);  // the run ended by itself: nothing was measured
  const double preso = Secondi_Di_Processore() - processore;
  return {plc.N_Cicli * (plc.NRighe + 1.0) / preso, preso / durata.count()};
}

// The run loop with a yield that only looks at the time: what the windows are compared with.
Misura Senza_Finestre(double secondi) {
  Cpu cpu;
  const auto fine = Orario::now() + std::chrono::duration<double>(secondi);
  const Iscrizione ascolto = cpu.plc.Hook.Ascolta_Cedi(
      [&] {
        if (Orario::now() > fine) cpu.plc.mnuPlcStop();
      },
      Guida_Corsa::Righe_Per_Sguardo);
  return Misura_Corsa(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

/// 300 lines in networks as exercises have them, all of which can be drawn.
std::string Progetto_A_Reti() {
  std::string testo = "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Misura\r\nBEGIN\r\n";
  int righe = 0;
  for (int n = 1; righe + 17 < 300; ++n) {
    const std::string bit = std::to_string(n % 8);
    testo += "NETWORK " + std::to_string(n) + " //Rete di misura\r\nLD I0." + bit + "\r\nO Q0." +
             bit + "\r\nAN I1." + bit + "\r\nAW> VW" + bit + " +3\r\nLPS\r\nA M0." + bit +
             "\r\n= Q0." + bit + "\r\nLPP\r\nTON T" + std::to_string(n) + " +50\r\nLD T" +
             std::to_string(n) + "\r\nEU\r\nINCW VW" + bit + "\r\nLD SM0.5\r\nLD I1.7\r\nCTU C" +
             bit + " +9\r\nLD C" + bit + "\r\nS M0." + bit + " 1\r\n";
    righe += 18;
  }
  return testo + "END_ORGANIZATION_BLOCK\r\n";
}

void Leggi_Reti(Cpu& cpu) {
  cpu.progetto.Leggi_Byte(Progetto_A_Reti());
  cpu.progetto.Compila();
  if (!cpu.progetto.Compilato) std::exit(3);
}

/// A plant at work: its exercise, what opens the air and what starts it.
struct Lavoro {
  std::size_t Esercizio;
  const char* Soluzione;
  const char* Aria;
  const char* Marcia;
};
constexpr Lavoro quattro_cilindri{7, "us07.AWL", "imgCom", "imgSB1"};
constexpr Lavoro miscelatore{13, "us13.AWL", "", "imgSB(0)"};

struct Sguardi {
  bool Reti = false;                 // the program in networks in place of the other one
  bool Scala = false;                // its ladder is open, and larger than a screen
  bool Stati = false;                // the status window is open
  bool Spunte = false;               // stack and images are ticked
  bool Attesa = false;               // the run waits at the top of its scan
  bool Tempi = false;                // the timing diagram is open, live
  bool Valori = false;               // the lines of the list show their values
  bool Giornale = false;             // what enters is written down
  bool Quiete = false;               // the solved project of the first exercise, at rest
  bool Motore = false;               // the first exercise is open and wired to the measured program
  const Lavoro* Impianto = nullptr;  // at work, with the solved project of its exercise
};

// The solved project of an exercise in place of the measured program.
void Leggi_Soluzione(Cpu& cpu, const char* file) {
  cpu.progetto.Riserva = {};  // nobody is there to answer
  cpu.progetto.File_Progetto = std::string(TAVORNO_EXAMPLES "/") + file;
  cpu.progetto.LeggiTxt();
  cpu.progetto.Compila();
}

std::unique_ptr<Finestra_Impianto> Apri_Al_Lavoro(Cpu& cpu, Stato_Impianto& stato,
                                                  const Lavoro& lavoro) {
  Leggi_Soluzione(cpu, lavoro.Soluzione);
  auto finestra = std::make_unique<Finestra_Impianto>(
      std::make_unique<Collegamento>(cpu.plc, stato, Tabella_Esercizi()[lavoro.Esercizio]));
  finestra->Fili().Carica();
  finestra->show();
  Impianto& macchina = finestra->Fili().Macchina();
  if (*lavoro.Aria != 0) macchina.Clic(lavoro.Aria);
  QTimer::singleShot(200, finestra.get(), [&macchina, &lavoro] { macchina.Premi(lavoro.Marcia); });
  QTimer::singleShot(400, finestra.get(),
                     [&macchina, &lavoro] { macchina.Rilascia(lavoro.Marcia); });
  return finestra;
}

Misura Con_Pannello(double secondi, Sguardi sguardi) {
  Cpu cpu;
  if (sguardi.Reti) Leggi_Reti(cpu);
  if (sguardi.Quiete) Leggi_Soluzione(cpu, "us00.AWL");
  std::optional<Registratore> registratore;
  if (sguardi.Giornale) registratore.emplace(cpu.plc);
  FrmPLC pannello(cpu.plc, cpu.progetto);
  Guida_Corsa corsa(cpu.plc, [&] { pannello.Aggiorna(); });
  corsa.Attesa = sguardi.Attesa;
  pannello.show();
  pannello.Controlli().chkIP->setChecked(sguardi.Spunte);
  pannello.Controlli().chkVs->setChecked(sguardi.Spunte);
  FrmStatiL finestra_stati(cpu.plc, nullptr);
  if (sguardi.Stati) finestra_stati.show();
  FrmScala scala(cpu.plc, cpu.progetto, {}, {});
  scala.resize(1366, 768);
  if (sguardi.Scala) scala.show();
  pannello.Controlli().chkVal->setChecked(sguardi.Valori);
  std::unique_ptr<FrmTempi> tempi;
  if (sguardi.Tempi) {
    tempi = std::make_unique<FrmTempi>(cpu.plc);
    tempi->show();
  }
  Stato_Impianto stato;
  std::unique_ptr<Finestra_Impianto> impianto;
  if (sguardi.Impianto != nullptr) impianto = Apri_Al_Lavoro(cpu, stato, *sguardi.Impianto);
  if (sguardi.Motore) {
    impianto = std::make_unique<Finestra_Impianto>(
        std::make_unique<Collegamento>(cpu.plc, stato, Tabella_Esercizi()[0]));
    impianto->Fili().Carica();
    impianto->show();
  }
  // What a window does only once, when it appears, does not count.
  for (const auto fine = Orario::now() + std::chrono::milliseconds(150); Orario::now() < fine;)
    QApplication::processEvents();
  QTimer::singleShot(static_cast<int>(secondi * 1000), &pannello, [&] { cpu.plc.mnuPlcStop(); });
  return Misura_Corsa(cpu.plc, secondi, [&] { cpu.plc.mnuPlcRun(); });
}

/// Milliseconds of a full redraw of the ladder, live, and of a look at the CPU: medians.
void Misura_Scala(double zoom) {
  Cpu cpu;
  Leggi_Reti(cpu);
  FrmScala scala(cpu.plc, cpu.progetto, {}, {});
  scala.resize(1366, 768);
  scala.show();
  cpu.plc.mnuPlcStep();
  cpu.plc.mnuPlcRun();
  scala.Vista().Ingrandisci(zoom);
  const auto mediana = [](const std::function<void()>& cosa) {
    std::vector<double> tempi;
    for (int n = 0; n < 41; ++n) {
      const auto inizio = Orario::now();
      cosa();
      tempi.push_back(std::chrono::duration<double, std::milli>(Orario::now() - inizio).count());
    }
    std::sort(tempi.begin(), tempi.end());
    return tempi[tempi.size() / 2];
  };
  QImage immagine(scala.Vista().viewport()->size(), QImage::Format_RGB32);
  const double disegno = mediana([&] { scala.Vista().viewport()->render(&immagine); });
  const double sguardo = mediana([&] { scala.Aggiorna(); });
  const double da_capo = mediana([&] {
    cpu.progetto.Scrivi_Main(cpu.progetto.txtList + "\r\n");
    scala.Aggiorna();
  });
  const double in_vista = scala.Vista().viewport()->height() / zoom;
  const double parte = std::min(1.0, in_vista / scala.Vista().Foglio().Altezza());
  std::printf(
      "ladder of 300 lines at %3.0f %%, %3.0f %% of it in sight: redraw %5.2f ms, look at the "
      "CPU %5.2f ms, text changed %5.2f ms\n",
      zoom * 100, parte * 100, disegno, sguardo, da_capo);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  Apri_Risorse();
  const double secondi = argc > 1 ? std::atof(argv[1]) : 2;
  const int giri = argc > 2 ? std::atoi(argv[2]) : 5;
  const std::string solo = argc > 3 ? argv[3] : "";
  const auto chiesto = [&](const char* nome) {
    return std::string(nome).find(solo) != std::string::npos;
  };

  std::vector<std::pair<const char*, std::function<Misura()>>> casi = {
      {"without windows", [&] { return Senza_Finestre(secondi); }},
      {"panel", [&] { return Con_Pannello(secondi, {}); }},
      {"panel, stack and images", [&] { return Con_Pannello(secondi, {.Spunte = true}); }},
      {"panel and status window", [&] { return Con_Pannello(secondi, {.Stati = true}); }},
      {"panel and live diagram", [&] { return Con_Pannello(secondi, {.Tempi = true}); }},
      {"panel, values in the list", [&] { return Con_Pannello(secondi, {.Valori = true}); }},
      {"panel and open plant", [&] { return Con_Pannello(secondi, {.Motore = true}); }},
      {"in networks, panel", [&] { return Con_Pannello(secondi, {.Reti = true}); }},
      {"in networks, and ladder",
       [&] { return Con_Pannello(secondi, {.Reti = true, .Scala = true}); }},
  };
  std::erase_if(casi, [&](const auto& caso) { return !chiesto(caso.first); });
  for (const double zoom : {1.0, 0.5, 0.25, 2.0}) {
    if (chiesto("ladder")) Misura_Scala(zoom);
  }
  // Round by round, so that a noisy moment of the machine meets every case.
  std::map<const char*, std::vector<double>> misure;
  for (int giro = 0; giro < giri; ++giro) {
    for (const auto& [nome, misura] : casi) misure[nome].push_back(misura().Righe);
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

  // In pairs, one right after the other.
  const auto a_coppie = [&](const char* nome, Sguardi sguardi, Sguardi altri = {}) {
    if (!chiesto(nome)) return;
    std::vector<double> costi;
    for (int giro = 0; giro < 3 * giri; ++giro) {
      const double senza = Con_Pannello(secondi / 2, altri).Righe;
      costi.push_back(100 * (1 - Con_Pannello(secondi / 2, sguardi).Righe / senza));
    }
    std::sort(costi.begin(), costi.end());
    std::printf("%-32s costs %5.1f %% of the speed (quartiles %.1f and %.1f)\n", nome,
                costi[costi.size() / 2], costi[costi.size() / 4], costi[costi.size() * 3 / 4]);
  };
  a_coppie("journal", {.Giornale = true});
  a_coppie("journal, with a plant", {.Giornale = true, .Motore = true}, {.Motore = true});
  a_coppie("live diagram", {.Tempi = true});
  a_coppie("values in the list", {.Valori = true});

  const auto di_un_processore = [&](const char* nome, Sguardi sguardi) {
    if (!chiesto(nome)) return;
    sguardi.Attesa = true;
    std::printf("%-64s %5.1f %% of a core\n", nome,
                100 * Con_Pannello(secondi, sguardi).Processore);
  };
  di_un_processore("waiting at the top of the scan, panel", {});
  di_un_processore("waiting at the top of the scan, panel and journal", {.Giornale = true});
  di_un_processore("waiting at the top of the scan, panel, stack and images", {.Spunte = true});
  di_un_processore("waiting at the top of the scan, panel and status window", {.Stati = true});
  di_un_processore("waiting at the top of the scan, panel and live diagram", {.Tempi = true});
  di_un_processore("waiting at the top of the scan, panel and four cylinders at work",
                   {.Impianto = &quattro_cilindri});
  di_un_processore("waiting at the top of the scan, panel and a mixer at work",
                   {.Impianto = &miscelatore});
  di_un_processore("waiting at the top of the scan, panel and a program at rest", {.Quiete = true});
}
