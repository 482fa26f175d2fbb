// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <string>

#include "awl/recovery_keeper.h"
#include "panel/end_signals.h"

namespace tavorno {

class Finestre;
class FrmPLC;

/// Keeps the text that is saved nowhere through whatever ends the process: its copy follows it, is
/// brought up to date before an end that announces itself, and is offered at the next start.
class Salvaguardia : public QObject {
 public:
  Salvaguardia(Progetto& progetto, FrmPLC& pannello, Finestre& finestre,
               std::filesystem::path cartella_copie);
  ~Salvaguardia() override;

  /// What earlier programs have left, if anything. For the start, behind the panel.
  void Offri();
  /// Before an end that nobody wanted.
  void Scrivi_Ora() { custode_.Scrivi_Ora(); }
  /// The user has ended the program.
  void Congeda();

 private:
  void Passo();

  FrmPLC& pannello_;
  Finestre& finestre_;
  Progetto& progetto_;
  std::filesystem::path cartella_copie_;
  Custode_Testi custode_;
  Segnali_Di_Fine segnali_;
  QTimer ogni_tanto_;
  std::string guasto_detto_;
};

}  // namespace tavorno
