// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "awl/project.h"
#include "awl/ui/awl_editor.h"
#include "awl/ui/procedure_documents.h"

namespace tavorno {

/// What the last compile said of each row, and where in the texts the rows are. A text is marked
/// when it is first shown after the compile; from then on its marks move with its lines.
class Segni_Errori {
 public:
  static constexpr int Chiave_Main = 0;

  /// To be called before anything is edited after the compile.
  void Prendi(const Progetto& progetto, const Documenti_Procedure& documenti);
  void Dimentica();

  /// Marks the text that the editor shows, once for each compile.
  void Metti(AwlEditor& editor, int chiave);

  /// The rows that have a mark, from the top.
  std::vector<int> Segnate() const;
  /// The key of the text that a row stands in; -1 for a row that no compile has seen.
  int Chiave(int riga) const;
  /// The line of a row in its text, which the editor must show; as it was at the compile for a text
  /// that none shows.
  int Linea(const AwlEditor* editor, int riga) const;

 private:
  struct Riga {
    int Chiave = -1;
    int Linea = 0;                 // at the time of the compile
    std::optional<Gravita> Grado;  // of the worst that there is to say; none for a good row
    QString Messaggio;             // all of it
    int Segno = -1;                // of the mark that follows the line
  };
  bool Nota(int riga) const { return riga >= 0 && static_cast<std::size_t>(riga) < righe_.size(); }

  std::vector<Riga> righe_;  // by row of the program
  std::set<int> segnati_;    // texts that show this compile's marks
};

}  // namespace tavorno
