// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "awl/find.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace tavorno {

class AwlEditor;

/// The bar below the texts that finds and replaces. It works on the text that is in front, and
/// marks all that it finds there for as long as it is open.
class Barra_Ricerca : public QWidget {
 public:
  /// `davanti` gives the text that is looked at.
  Barra_Ricerca(std::function<AwlEditor*()> davanti, QWidget* sopra);

  /// Opens with what is selected, if that is part of one line; `sostituisci`: with its second row.
  void Apri(bool sostituisci);
  void Chiudi();
  /// Another text came to the front, or what is there has changed.
  void Aggiorna();
  /// Goes to the next place (1) or the one before (-1), around the ends; opens when closed.
  void Vai(int verso);

 private:
  void Crea_Righe();
  Ricerca Cerca() const;
  void Sostituisci();
  void Sostituisci_Tutti();
  std::size_t Dove_Siamo(const AwlEditor& testo) const;
  void Racconta(const AwlEditor& testo);

  std::function<AwlEditor*()> davanti_;
  AwlEditor* segnato_ = nullptr;  // the text that shows the marks
  std::vector<Trovato> trovati_;
  QLineEdit* txtCerca_ = nullptr;
  QLineEdit* txtSostituisci_ = nullptr;
  QWidget* seconda_ = nullptr;
  bool sostituisce_ = false;  // asked for its second row
  QCheckBox* chkParole_ = nullptr;
  QCheckBox* chkOperandi_ = nullptr;
  QLabel* etTrovati_ = nullptr;
};

}  // namespace tavorno
