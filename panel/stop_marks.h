// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "panel/panel_window.h"
#include "panel/program_list.h"
#include "panel/run_driver.h"
#include "recorder/stops.h"

class QLineEdit;
class QMenu;
class QPoint;

namespace tavorno {

/// The stops of the panel: their marks in the margin of the program list, the list of all as a
/// text, and the run that is halted where one is reached. "Stop alla Riga" stays what it is, and
/// has its mark among them.
class Fermate_Pannello : public QObject {
 public:
  Fermate_Pannello(FrmPLC& pannello, Plc& plc, Guida_Corsa& corsa);

  std::function<void(const QString& quale)> Fermato;  ///< a stop is reached
  std::function<void(const QString& testo)> Avvisa;   ///< a list cannot be read
  /// Asks for other stops, beginning with those of a line, and tells them later.
  std::function<void(const Fermate& fermate, int riga, std::function<void(const Fermate&)> fatto)>
      Chiedi;

  /// "riga 12; Q0.1 sale", to be written into, and for the bar.
  QLineEdit* Campo() { return txtFermate_; }
  /// Entries for the line that is selected in the list, with their keys.
  void Aggiungi_Voci(QMenu& menu);

  void Alterna(int riga);
  void Modifica(int riga);
  void Togli_Tutte();
  /// Counts begin anew, as after another moment has become the present.
  void Ricomincia() { fermate_.Ricomincia(plc_); }
  const Fermate& Tutte() const { return fermate_; }

 private:
  void Leggi_Campo();
  void Cambiate();
  void Menu_Della_Riga(int riga, const QPoint& dove);
  int Riga_Scelta() const;
  bool Stop_Alla_Riga(int riga) const;
  Segno_Fermata Segno(int riga) const;

  FrmPLC& pannello_;
  Controlli_Pannello& c_;
  Plc& plc_;
  Guida_Corsa& corsa_;
  Fermate fermate_;
  QLineEdit* txtFermate_;
};

}  // namespace tavorno
