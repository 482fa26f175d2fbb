// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "panel/child_windows.h"
#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "panel/session_bar.h"
#include "panel/session_wires.h"
#include "recorder/session.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

/// The real panel with its windows, the recorder and its bar. The clock is moved by hand.
struct Banco_Seduta {
  Seduta seduta;
  Plc& plc = seduta.plc;
  Guida guida{QString(), QString(), {}};
  Registratore registratore{plc};
  Iscrizione programmi =
      seduta.progetto.Programma_Cambiato.Ascolta([this] { registratore.Programma_Nuovo(); });
  FrmPLC pannello{plc, seduta.progetto};
  Guida_Corsa corsa{plc, [] {}};
  Finestre finestre{pannello, plc, seduta.progetto, guida};
  Barra_Seduta barra{pannello, plc, registratore, corsa};
  std::vector<std::string> avvisi;

  Banco_Seduta() {
    Collega_Seduta(barra, finestre, registratore);
    corsa.Ferma();  // its clock is the real one
  }

  /// A program of these lines in the CPU, and the panel in sight.
  void Carica(const std::vector<std::string>& righe) {
    const Cartella_Temporanea cartella;
    Scrivi_Byte(cartella / "prova.AWL", Byte_Di_Progetto(righe));
    ASSERT_TRUE(seduta.Apri((cartella / "prova.AWL").string()));
    seduta.progetto.Compila();
    ASSERT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
    seduta.progetto.Consegna();
    pannello.show();
    pannello.Attivata();
  }
};

}  // namespace tavorno::prova
