// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "awl/link.h"
#include "awl/source_line.h"
#include "plc/codepage.h"
#include "plc/plc.h"

namespace tavorno::prova {

/// A compiled line from its text: "LD I0.3", "MOVW VW0, VW2", "NETWORK 1", "SBR0 SBR_0". Nothing is
/// checked, so lines that the checker refuses can be tried as well.
inline Riga_PLC Riga(std::string_view testo) {
  Riga_Src sorgente;
  if (testo.starts_with("NETWORK")) {
    sorgente.Istr = testo;
  } else {
    std::string parola;
    std::vector<std::string> parole;
    for (const char c : std::string(testo) + " ") {
      if (c != ' ' && c != ',') {
        parola += c;
      } else if (!parola.empty()) {
        parole.push_back(parola);
        parola.clear();
      }
    }
    parole.resize(4);
    sorgente = {parole[0], parole[1], parole[2], parole[3], 0, "", ""};
    for (std::size_t i = 1; i <= 3; ++i) {
      if (!parole[i].empty()) ++sorgente.NOp;
    }
  }
  Riga_PLC riga;
  Riempi_Riga(riga, sorgente);
  return riga;
}

/// A CPU on a virtual clock, with a program given line by line. Message boxes are collected.
class Cpu : public ::testing::Test {
 public:
  /// Loads and links a program; a line MEND is added when there is none.
  void Carica(std::vector<std::string> righe) {
    bool finito = false;
    for (const std::string& riga : righe) finito = finito || riga == "MEND";
    if (!finito) righe.emplace_back("MEND");
    plc.Prog.Ridimensiona(static_cast<int>(righe.size()));
    plc.NRighe = static_cast<std::int16_t>(righe.size() - 1);
    for (int i = 0; i <= plc.NRighe; ++i) plc.Prog[i] = Riga(righe[static_cast<std::size_t>(i)]);
    Assegna_JMP(plc.Prog);
    Assegna_SBR(plc.Prog);
    Assegna_SCR(plc.Prog);
    plc.PC = 0;
  }

  /// Executes one line on the CPU as it stands, without Run: the line stands at row 1, so that the
  /// inputs are not read. PC is 1 before.
  void Esegui(const std::string& riga) {
    Carica({"NOP", riga});
    plc.PC = 1;
    plc.Esegui_Riga();
  }

  /// Run in mode Step, in which the first scan is not marked by `Primo_Ciclo`.
  void Run_Step() {
    plc.mnuPlcStep();
    plc.mnuPlcRun();
  }

  /// Run in mode Cont for `n` whole scans, `ms` of virtual time before each but the first.
  void Run_Cont(int n, int ms = 0) {
    const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([this, n, ms, visti = 0]() mutable {
      if (plc.N_Cicli == visti) return;
      visti = plc.N_Cicli;
      if (visti >= n)
        plc.Ferma = -1;  // the loop leaves after one more line
      else
        orologio.Avanza(ms);
    });
    plc.mnuPlcCont();
    plc.mnuPlcRun();
  }

  /// One whole scan by steps: lines up to and with MEND.
  void Scansione() {
    const auto prima = plc.N_Cicli;
    for (int i = 0; i < 10000 && plc.N_Cicli == prima && plc.PLC_Acceso; ++i) plc.CmdStep();
  }

  /// Inputs as the switches give them: "I0.3" on or off. The CPU reads them at the next line 0.
  void Ingresso(int byte, int bit, bool acceso) {
    std::string testo = plc.SI[static_cast<std::size_t>(byte)].Stato_I();
    testo[static_cast<std::size_t>(bit)] = acceso ? '1' : '0';
    plc.SI[static_cast<std::size_t>(byte)].Stato_I(testo);
  }

  /// The logic stack as eight numbers, top first.
  std::vector<int> Pila() const {
    std::vector<int> celle;
    for (int i = 0; i <= 7; ++i) celle.push_back(plc.Stak[i]);
    return celle;
  }

  Orologio orologio;
  Plc plc{orologio};
  std::vector<Avviso> avvisi;

 private:
  Iscrizione ascolto_avvisi_ =
      plc.Hook.Mostra.Ascolta([this](const Avviso& avviso) { avvisi.push_back(avviso); });
};

inline constexpr const char* Errore_Run_Time = "Run Time Error! Il programma sarà terminato!";

}  // namespace tavorno::prova
