// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <cstdint>
#include <functional>

#include "awl/project.h"
#include "panel/panel_controls.h"
#include "plc/plc.h"

class QWindow;

namespace tavorno {

/// How the panel reaches the other windows. A member that is empty disables its command.
struct Legami_Pannello {
  std::function<void(int avvio_file)> Mostra_Editor;  ///< 1 Modifica, 2 Nuovo, 3 Apri
  std::function<void()> Mostra_Impostazioni;
  std::function<void()> Mostra_Analogici;
  std::function<void()> Mostra_Stati;
  std::function<void()> Mostra_Info;
  std::function<void(int indice)> Mostra_Impianto;  ///< an exercise of the table
  std::function<void(const char* pagina)> Mostra_Aiuto;
};

/// The main window: the CPU with its switches and LEDs, the program list and the run commands. It
/// holds no state of the run: commands go to the CPU, and `Aggiorna` shows what the CPU has marked.
class FrmPLC : public QMainWindow {
 public:
  FrmPLC(Plc& plc, Progetto& progetto);

  /// Before the window is shown.
  void Collega_Finestre(Legami_Pannello legami);

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

  /// 0 closes the cover, 1 opens it, 2 gives the inputs to a plant, 3 gives them back.
  void PLC_Sportello(std::uint8_t modo);

  Controlli_Pannello& Controlli() { return c_; }

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
  void Comando_Di_Corsa(const QString& voce, std::function<void()> comando);
  void Piu_Tardi(std::function<void()> comando);
  void Modifica();
  void Apri_Editor(int avvio_file);
  void Apri_Scalaro();
  void Premi_Tasto(const QString& voce);
  bool Si_Puo(const QString& voce) const;
  void Scrivi_Stato(const QString& lista);
  void Fuoco_A(const QWindow* finestra);

  // panel_mirror.cpp
  void Mostra_Comandi();
  void Mostra_Immagini();
  void Mostra_Pila();
  void Mostra_Analogici();
  void Mostra_Modo();
  void Mostra_Tempo_Acceso();

  Plc& plc_;
  Progetto& progetto_;
  Legami_Pannello legami_;
  Controlli_Pannello c_;
  std::int16_t acceso_mostrato_ = 0;
  const QWidget* prima_ = nullptr;  // the program's own window that had the focus last
};

}  // namespace tavorno
