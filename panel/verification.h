// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>

#include "grading/verification.h"
#include "panel/child_windows.h"
#include "panel/panel_window.h"
#include "panel/run_driver.h"
#include "recorder/recorder.h"

namespace tavorno {

class FrmGuarda;
class FrmVerifica;

/// "Verifica" and "Guarda" of the open plant: the windows of grading, and what they need of the
/// panel. While a case is watched the CPU and the plant show it, and are afterwards what they were.
class Sala_Verifica : public QObject {
 public:
  /// `programma`: the folder of the running program, whose scripts are used.
  Sala_Verifica(FrmPLC& pannello, Plc& plc, Progetto& progetto, Registratore& registratore,
                Guida_Corsa& corsa, Finestre& finestre, QString programma, QString guida);
  ~Sala_Verifica() override;

  /// The window for the open plant; without one nothing happens.
  void Mostra();
  FrmVerifica* Finestra() const;
  FrmGuarda* Film() const;

  std::function<void(const QString& testo)> Avvisa;  ///< a message of its own

 private:
  std::optional<Stesura> Programma(std::string& perche) const;
  void Guarda(const Caso_Verificato& caso);
  void Proietta();
  void Metti_Film();
  void Torna();
  void Specchia(bool passo);

  FrmPLC& pannello_;
  Plc& plc_;
  Progetto& progetto_;
  Registratore& registratore_;
  Guida_Corsa& corsa_;
  Finestre& finestre_;
  QString programma_, guida_;
  QPointer<FrmVerifica> verifica_;
  QPointer<FrmGuarda> film_;
  std::optional<Caso_Verificato> da_guardare_;
  bool andava_ = false;  // the program ran when somebody began to watch
};

}  // namespace tavorno
