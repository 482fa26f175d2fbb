// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>

#include "recorder/stops.h"

class QLabel;
class QTableWidget;

namespace tavorno {

/// All stops in a table, to be changed: line, condition, count.
class Dialogo_Fermate : public QDialog {
 public:
  /// Begins in the row of the stop at `riga`; where there is none, in a new row for it. -1: no
  /// line.
  Dialogo_Fermate(QWidget* sopra, const Fermate& fermate, int riga);

  /// As they were when OK was accepted.
  const Fermate& Scelte() const { return fermate_; }

  /// OK: keeps the dialog open, and says why, while a row cannot be read.
  void accept() override;

 private:
  void Aggiungi(const QString& riga, const QString& cosa, const QString& volte);
  void Togli();
  void Di(const QString& messaggio);
  QString Cella(int riga, int colonna) const;

  Fermate fermate_;
  QTableWidget* tabella_;
  QLabel* etAvviso_;
};

/// Opens the dialog and comes back at once, for a program may be running; `fatto` gets the stops of
/// an OK.
void Chiedi_Fermate(QWidget* sopra, const Fermate& fermate, int riga,
                    std::function<void(const Fermate&)> fatto);

}  // namespace tavorno
