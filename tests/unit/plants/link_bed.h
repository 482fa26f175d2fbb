// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "awl/project.h"
#include "plants/link.h"
#include "plc/plc.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

/// A CPU with a virtual clock, to which a plant can be wired and a program given.
class Banco_Impianto : public ::testing::Test {
 public:
  /// Opens an exercise as its window does.
  void Apri(int numero) { Apri(Tabella_Esercizi()[static_cast<std::size_t>(numero)]); }
  void Apri(const Esercizio& esercizio) {
    filo = std::make_unique<Collegamento>(plc, stato, esercizio, [this](Modo_Sportello modo) {
      sportello.push_back(static_cast<int>(modo));
    });
    filo->Carica();
  }

  Impianto& Macchina() { return filo->Macchina(); }

  /// I0 and I1, Q0 and Q1, in the order of a plant's texts.
  std::string Ingressi() const { return plc.SI[0].Stato_I() + plc.SI[1].Stato_I(); }
  std::string Uscite() const { return plc.SQ[0].Stato_Q() + plc.SQ[1].Stato_Q(); }

  /// Compiles these lines as a project's Main, and starts the CPU.
  void Esegui(const std::vector<std::string>& righe) {
    const Cartella_Temporanea cartella;
    const std::filesystem::path file = cartella / "prova.AWL";
    Scrivi_Byte(file, Byte_Di_Progetto(righe));
    progetto.File_Progetto = file.string();
    progetto.File_Titolo = file.filename().string();
    progetto.LeggiTxt();
    if (!progetto.Err_Lettura) progetto.Compila();
    if (!progetto.Compilato) throw std::runtime_error("the program does not compile");
    plc.mnuPlcStep();
    plc.mnuPlcRun();
  }

  /// Whole scans, a millisecond each.
  void Passa(int millisecondi) {
    for (int ms = 0; ms < millisecondi; ++ms) {
      orologio.Avanza(1);
      const auto prima = plc.N_Cicli;
      while (plc.N_Cicli == prima && plc.PLC_Acceso) plc.CmdStep();
    }
  }

  Orologio orologio;
  Plc plc{orologio};
  Progetto progetto{plc, {}};
  Stato_Impianto stato;
  std::vector<int> sportello;  ///< modes asked of the panel's door
  std::unique_ptr<Collegamento> filo;
};

}  // namespace tavorno::prova
