// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "awl/project.h"
#include "awl/ui/start_mode.h"
#include "panel/panel_controls.h"
#include "panel/scan_clock.h"
#include "plants/cover_mode.h"
#include "plc/plc.h"
#include "trace/line_state.h"
#include "widgets/command_tables.h"

namespace tavorno {

/// A window with its entry in the menu "Visualizza".
struct Voce_Finestra {
  Voce_Menu Voce;
  std::function<void()> Apri;
};

/// How the panel reaches the other windows. A member that is empty disables its command.
struct Legami_Pannello {
  std::function<void(Avvio avvio_file)> Mostra_Editor;
  std::function<void()> Mostra_Impostazioni;
  std::function<void()> Mostra_Analogici;
  std::function<void()> Mostra_Stati;
  std::function<void()> Mostra_Scala;
  std::function<void()> Mostra_Tempi;
  std::vector<Voce_Finestra> Altre;  ///< more windows, in front of the entry for `Verifica`
  std::function<void()> Verifica;
  std::function<void()> Mostra_Info;
  std::function<void(int indice)> Mostra_Impianto;  ///< an exercise of the table
  std::function<void(const char* pagina)> Mostra_Aiuto;
  std::function<void()> Disponi_Finestre;
  std::function<void()> Mostra_Tavolo;
  std::function<void()> Separa_Finestre;
  std::function<void(int passi)> Grandezza_Testo;  ///< 0: as told
  std::function<void()> Proietta;                  ///< the window in front, or no longer
  std::function<void(bool scelti)> Colori_Daltonici;
  std::function<void(bool acceso)> Corsa_Cambiata;  ///< the CPU runs or stands still
};

/// A key of the pause that the editor has too, where F8 loads the program.
inline constexpr char Pausa_Ovunque[] = "Shift+F8";

/// The main window: the CPU with its switches and LEDs, the program list and the run commands. It
/// holds no state of the run: commands go to the CPU, and `Aggiorna` shows what the CPU has marked.
class FrmPLC : public QMainWindow {
 public:
  FrmPLC(Plc& plc, Progetto& progetto);

  /// Before the window is shown.
  void Collega_Finestre(Legami_Pannello legami);

  /// Shows options and potentiometers as the CPU has them, and the switches as they stood, after
  /// another time was put back.
  void Specchia_Scelte(const std::array<std::string, 2>& interruttori);
  /// Shows what changed in the CPU since the last call.
  void Aggiorna();

  /// What happens when the user comes to the panel from another window of the program: the list is
  /// filled again, and with a program loaded the CPU's counters and the running state of its timers
  /// are cleared.
  void Attivata();

  /// The CPU runs or stands still: lamps, and the commands that change the project.
  void PLC_Stato();
  /// Ticks and names the open exercise and locks the entries of all; -1: none is open.
  void Segna_Impianto(int indice);

  void PLC_Sportello(Modo_Sportello modo);

  Controlli_Pannello& Controlli() { return c_; }
  const Azioni_Pannello& Azioni() const { return a_; }

  /// How long the scans take, asked four times a second at most; while it is empty nothing is told.
  std::function<Tempo_Scansioni()> Durate;
  /// Where power flowed at the moment at which the CPU stands; empty: nobody knows.
  std::function<std::vector<Flusso_Riga>()> Flusso_Al_Momento;

  /// Of the session, when there is one: works by its keys from other windows of the program too.
  QAction* Pausa = nullptr;

  /// What works by its keys from other windows of the program too: the run, and the projector.
  QList<QAction*> Comandi_Ovunque() const;

  /// The same for the windows that a workbench takes in.
  QList<QAction*> Comandi_Di_Vista() const;
  /// The same for windows with a text that can be enlarged.
  QList<QAction*> Comandi_Di_Testo() const;

  /// The process is about to end: offers to save what is not. False when it was to be saved and is
  /// not, so that the process should go on.
  bool Salva_Il_Progetto();

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  void Collega_Comandi();
  void Crea_Menu_Processi();
  void Collega_Barra();
  void Collega_Controlli();
  void Al_Comando(QAction* voce, std::function<void()> comando);
  void Comando_Di_Corsa(QAction* voce, std::function<void()> comando);
  void Piu_Tardi(std::function<void()> comando);
  void Modifica();
  void Abilita_Programma(bool caricato);
  void Apri_Scalaro();
  void Premi_Tasto(QAction& voce);
  bool Si_Puo(QAction& voce) const;
  void Scrivi_Stato(const QString& lista);

  // panel_mirror.cpp
  void Mostra_Comandi();
  void Mostra_Immagini();
  void Mostra_Pila();
  void Mostra_Analogici();
  void Mostra_Modo();
  void Mostra_Tempo_Acceso();
  void Mostra_Durate();
  bool Ritrova_Flusso();
  void Mostra_Valori();
  void Guarda_Valori(bool accesi);

  Plc& plc_;
  Progetto& progetto_;
  Legami_Pannello legami_;
  Azioni_Pannello a_;
  Controlli_Pannello c_;
  std::int16_t acceso_mostrato_ = 0;

  struct Posto_CPU {
    int Eseguita = -1, Prossima = -1;
    std::int32_t Scansione = -1;
    bool operator==(const Posto_CPU&) const = default;
  };
  Flusso_Righe flusso_{plc_};
  Posto_CPU passo_visto_;
  std::optional<std::int64_t> flusso_ritrovato_;  // lines executed by the moment it was found for
  bool era_passato_ = false;
  QElapsedTimer durate_dette_;
  std::int64_t scansioni_dette_ = 0;
  int giri_di_valori_ = 0;  // refreshes since the flow was last asked for
};

}  // namespace tavorno
