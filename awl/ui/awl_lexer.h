// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "awl/listing.h"
#include "awl/ui/scintilla.h"
#include "plc/instructions.h"

namespace tavorno {

/// Looks of a piece of text, as the numbers that the editor component stores with each character.
namespace stile {
enum : int {
  Normale,
  Commento,
  Rete,         ///< "NETWORK 1"
  Titolo_Rete,  ///< the comment on such a line
  Operando,
  Costante,
  Non_Supportata,  ///< a mnemonic that the compiler knows and refuses
  Sconosciuta,     ///< a mnemonic that nobody knows
  Numero_Listato,
  Esito_Buono,
  Esito_Errato,
  Messaggio,            ///< an error's text
  Prima_Famiglia = 16,  ///< the mnemonics, one look for each `Famiglia`
};
/// The look of an accepted mnemonic.
constexpr int Di(Famiglia famiglia) {
  return Prima_Famiglia + static_cast<int>(famiglia);
}
}  // namespace stile

enum class Genere_Testo { Programma, Listato };

/// Takes a line apart into pieces of one look: `pezzo(length in bytes, look)` is called from left
/// to right and covers the whole line.
void Colora_Linea(std::string_view linea, const std::function<void(int, int)>& pezzo);
/// The same for a line of the compile listing, as it is shown in UTF-8.
void Colora_Linea(const Riga_Listato& riga, const std::function<void(int, int)>& pezzo);

/// Colours a text by the table of instructions.
class AwlLexer : public QsciLexerCustom {
 public:
  AwlLexer(Genere_Testo genere, QsciScintilla* editor);

  const char* language() const override { return "AWL"; }
  QString description(int numero) const override;
  QColor defaultColor(int numero) const override;
  QColor defaultPaper(int numero) const override;
  QFont defaultFont(int numero) const override;
  void styleText(int inizio, int fine) override;

  /// Every look on grey ground, or each on its own.
  void Spegni(bool spento);
  /// The colours as the desktop and the user want them now.
  void Ritingi();

  /// What the lines of a listing are made of, one for each from the first; others are plain.
  std::vector<Riga_Listato> Righe_Listato;

 private:
  Genere_Testo genere_;
  bool spento_ = false;
};

}  // namespace tavorno
