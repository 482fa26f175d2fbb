// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "awl/references.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace tavorno {

/// The lines that use an operand, a label or a procedure, in groups by what they do to it, and the
/// field that gives it another name everywhere. It stays open beside the texts.
class Elenco_Usi : public QDialog {
 public:
  struct Legami {
    std::function<void(Posto_Riga)> Vai;
    /// Gives the new name, UTF-8. Returns what there is to say; nothing when all is well and the
    /// list was filled anew.
    std::function<std::string(const std::string& nuovo)> Rinomina;
  };
  Elenco_Usi(Legami legami, QWidget* sopra);

  struct Uso_Mostrato {
    Riferimento Uso;
    QString Dove;  ///< "Main, riga 12"
  };
  /// `commento`: what the plant calls it, may be empty.
  void Mostra(const Nominato& nome, const QString& commento, const std::vector<Uso_Mostrato>& usi);
  /// The keyboard to the field of the new name.
  void Chiedi_Nome();

 private:
  void Vai(const QTreeWidgetItem* voce);
  void Rinomina();

  Legami legami_;
  QLabel* etNome_;
  QTreeWidget* lstUsi_;
  QLineEdit* txtNuovo_;
  QPushButton* cmdRinomina_;
  QLabel* etRisposta_;
};

}  // namespace tavorno
