// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "trace/signal.h"

class QLineEdit;
class QListWidget;

namespace tavorno {

struct Esercizio;

/// Chooses signals: those of the plant and of the program first, then every cell of the CPU, found
/// by typing a part of its name or address.
class Scelta_Segnali : public QDialog {
 public:
  Scelta_Segnali(QWidget* sopra, const Esercizio* impianto, const Memoria& memoria,
                 const std::vector<Segnale>& scelti);

  /// Those that were chosen before in their order, then the others.
  std::vector<Segnale> Scelti() const;

 private:
  void Filtra(const QString& testo);

  std::vector<Segnale> tutti_;
  std::size_t propri_ = 0;  // so many of them belong to plant and program
  QLineEdit* txtFiltro_;
  QListWidget* lista_;
};

/// The dialog; false when it was cancelled.
bool Chiedi_Segnali(QWidget* sopra, const Esercizio* impianto, const Memoria& memoria,
                    std::vector<Segnale>& scelti);

}  // namespace tavorno
