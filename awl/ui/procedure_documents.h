// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "awl/ui/awl_editor.h"

namespace tavorno {

/// One text of the editor for each procedure, so that each keeps its own undo history, caret
/// and scroll. They stand in the order of `Tab_SBR` and move with its rows.
class Documenti_Procedure {
 public:
  /// As after a read: rows keep their text by place.
  void Adegua(int quante);
  void Inserisci(int riga);
  void Togli(int riga);
  void Svuota() { documenti_.clear(); }
  int Quanti() const { return static_cast<int>(documenti_.size()); }

  const Documento_Testo& Di(int riga) const;
  bool Prima_Volta(int riga);  ///< true at the first call for that text
  /// A number that stays with the text wherever it moves, from 1 and never used twice.
  int Chiave(int riga) const;
  int Riga(int chiave) const;  ///< 0 when that text is gone
  /// What was last seen of that text.
  AwlEditor::Veduta& Veduta_Di(int riga);

 private:
  struct Documento {
    Documento_Testo Testo;
    int Chiave = 0;
    bool Mostrato = false;
    AwlEditor::Veduta Veduta;
  };
  Documento Nuovo() { return {{}, ++ultima_chiave_, false, {}}; }

  std::vector<Documento> documenti_;  // row 1 is at 0
  int ultima_chiave_ = 0;
};

}  // namespace tavorno
