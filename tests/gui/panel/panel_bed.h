// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>
#include <functional>
#include <map>

#include "panel/child_windows.h"
#include "panel/controls/cpu_front.h"
#include "panel/panel_window.h"
#include "panel/program_list.h"
#include "recorder/session.h"
#include "support/command.h"

namespace tavorno {

/// A panel with its CPU on a virtual clock: a millisecond passes before each scan. A run ends when
/// `Al_Ciclo` or its bound of scans says so, since nothing else would end it.
struct Banco_Pannello : ::testing::Test {
  Seduta seduta;
  Plc& plc = seduta.plc;
  Progetto& progetto = seduta.progetto;
  FrmPLC pannello{plc, progetto};
  Controlli_Pannello& c = pannello.Controlli();

  std::map<int, std::function<void()>> Al_Ciclo;  ///< what happens before scan n of a run, from 0
  int cicli = 0;
  int righe = 0;  // yields of the run
  Iscrizione cessione;

  Banco_Pannello() {
    cessione = plc.Hook.Ascolta_Cedi([this] {
      ASSERT_LT(++righe, 100000);
      if (plc.PC != 0) return;
      seduta.orologio.Avanza(1);
      const auto azione = Al_Ciclo.find(cicli++);
      if (azione != Al_Ciclo.end()) azione->second();
    });
    pannello.show();
  }

  void Carica(const std::string& istruzioni) {
    QTemporaryDir cartella;
    const std::string percorso = cartella.filePath("PROVA.AWL").toStdString();
    std::ofstream(percorso, std::ios::binary)
        << "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\nNETWORK 1 //Prova\r\n"
        << istruzioni << "END_ORGANIZATION_BLOCK\r\n";
    ASSERT_TRUE(seduta.Apri(percorso)) << progetto.Dettaglio.Come_Testo();
    progetto.Compila();
    ASSERT_EQ(progetto.Errori, 0) << progetto.Lista_Comp;
    progetto.Consegna();
    pannello.Attivata();
    seduta.Avvisi.clear();
  }

  /// Chooses a menu entry and lets what it starts run to its end.
  void Scegli(const char* voce) {
    cicli = righe = 0;
    Azione(pannello, voce).trigger();
    QCoreApplication::processEvents();
    pannello.Aggiorna();
  }
  /// A run of so many scans, ended by Stop.
  void Corri(int scansioni) {
    Al_Ciclo[scansioni] = [this] { plc.mnuPlcStop(); };
    Scegli("mnuPlcRun");
  }
  bool Attiva(const char* voce) { return Azione(pannello, voce).isEnabled(); }
  bool Spuntata(const char* voce) { return Azione(pannello, voce).isChecked(); }
};

/// The same with the windows that the panel opens.
struct Banco_Finestre : Banco_Pannello {
  Guida guida;
  Finestre finestre{pannello, plc, progetto, guida};

  /// A window in sight by its name; none: a null pointer.
  static QWidget* Finestra(const QString& nome) {
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->objectName() == nome && finestra->isVisible()) return finestra;
    }
    return nullptr;
  }
};

}  // namespace tavorno
