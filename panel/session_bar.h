// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QToolBar>
#include <functional>
#include <optional>

#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "panel/stop_marks.h"
#include "recorder/recorder.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace tavorno {

class Finestra_Impianto;
class Riga_A_Capo;

/// The session of the panel: going slowly, standing still, back and forth again, and its file. A
/// tool bar of the panel with a menu of its own; the bar is hidden at first.
class Barra_Seduta : public QToolBar {
 public:
  Barra_Seduta(FrmPLC& pannello, Plc& plc, Registratore& registratore, Guida_Corsa& corsa);

  std::function<Finestra_Impianto*()> Impianto;  ///< the host window of the open plant, or nullptr
  std::function<void(int indice)> Apri_Impianto;
  /// Asks for the file of a session; an empty name is none.
  std::function<QString(bool salva)> Chiedi_File;
  /// A message of its own.
  std::function<void(const QString& testo)> Avvisa;

  Fermate_Pannello& Le_Fermate() { return fermate_; }

  /// To what the timing diagram shows at that moment of the clock.
  void Torna_A(std::int64_t ms);
  /// To the last change before it of the cell at that address, marking the line that made it.
  void Chi_E_Stato_A(std::int64_t ms, const std::string& indirizzo);
  /// Where the cursor of the open diagram stands; empty: no diagram, or no cursor.
  std::function<std::optional<std::int64_t>()> Cursore_Del_Diagramma;
  /// What became of the question who did it, for those who asked it elsewhere.
  std::function<void(const QString& messaggio)> Racconta;
  /// A session was opened in the place of the one before.
  std::function<void()> Aperta;
  /// Other windows that hold something by themselves are to show what the CPU is now.
  std::function<void()> Specchia_Altre;

  /// The bar comes, and makes the panel higher: before, and after.
  std::function<void()> Prima_Di_Crescere, Cresciuta;

  /// What a plant that comes or goes, and the editor, need first.
  void Al_Presente();

  void setVisible(bool visibile) override;

 protected:
  void showEvent(QShowEvent* evento) override;

 private:
  QAction* Comando(QMenu& menu, const char* nome, const char* testo, const char* tasto,
                   const char* suggerimento, std::function<void()> fai, bool nella_barra);
  void Crea_Comandi();
  void Crea_Lentezza();
  void Pausa_O_Continua();
  void Indietro(const std::function<bool()>& passo);
  void Con_Riguardo(const std::function<void()>& passo);
  void Chi_E_Stato();
  void Riprendi();
  void Salva();
  void Apri();
  bool Ferma_Il_Tempo();
  void Cambia_Lentezza(int scelta);
  bool Progresso(double parte);
  void Specchia();
  void Mostra_Stato();
  void Mostra_Riga(int riga);

  FrmPLC& pannello_;
  Plc& plc_;
  Registratore& registratore_;
  Guida_Corsa& corsa_;
  Riga_A_Capo* riga_;  // all of the bar, in as many lines as it needs
  Fermate_Pannello fermate_;
  QString perche_;  // why the run stands
  QLabel* stato_ = nullptr;
  QComboBox* lentezza_ = nullptr;
  QLineEdit* bit_ = nullptr;
  QAction *pausa_ = nullptr, *al_cursore_ = nullptr;
  std::vector<QAction*> solo_nel_passato_;
  QElapsedTimer da_quando_;
  bool annullato_ = false;
  std::unique_ptr<QObject> progresso_;
};

}  // namespace tavorno
