// SPDX-License-Identifier: GPL-3.0-or-later
// Help while typing: lists of mnemonics, and tips.
#include <algorithm>

#include "awl/completion.h"
#include "awl/line_words.h"
#include "awl/ui/awl_editor.h"
#include "widgets/text.h"

namespace tavorno {

void AwlEditor::Dopo_Carattere(int carattere) {
  if (carattere == ' ' || carattere == '\t')
    Mostra_Suggerimento();
  else if (carattere != '\r' && carattere != '\n')
    Offri_Completamenti();
}

void AwlEditor::Offri_Completamenti() {
  int linea = 0;
  int colonna = 0;
  getCursorPosition(&linea, &colonna);
  const std::string testo = Linea_Byte(linea);
  const Parola parola = Trova_Prima_Parola(testo);
  if (parola.Vuota() || parola.Fine != static_cast<std::size_t>(colonna)) return;
  const std::string fin_qui = testo.substr(parola.Inizio, parola.Fine - parola.Inizio);
  std::string lista;
  for (const std::string& nome : Completamenti(fin_qui)) {
    if (!lista.empty()) lista += ' ';
    lista += nome;
  }
  if (lista.empty())
    SendScintilla(SCI_AUTOCCANCEL);
  else if (!isListActive())
    SendScintilla(SCI_AUTOCSHOW, fin_qui.size(), lista.c_str());
}

void AwlEditor::Mostra_Suggerimento() {
  const auto posizione = static_cast<int>(SendScintilla(SCI_GETCURRENTPOS));
  const auto linea = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, posizione));
  const auto inizio = static_cast<int>(SendScintilla(SCI_POSITIONFROMLINE, linea));
  const std::string testo = Linea_Byte(linea);
  const Parola parola = Trova_Prima_Parola(testo);
  const Istruzione* istruzione = Istruzione_Di(testo);
  const auto colonna = static_cast<std::size_t>(posizione - inizio);
  // Behind a comment there is nothing left to help with.
  const bool muto = istruzione == nullptr || parola.Vuota() || colonna > testo.find("//");
  Mostra_Aiuto(static_cast<std::uintptr_t>(inizio) + parola.Inizio, linea,
               muto ? "" : Suggerimento(*istruzione));
}

void AwlEditor::Mostra_Suggerimento_A(int posizione, int, int) {
  if (posizione < 0) return;
  const auto linea = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, posizione));
  const long inizio = SendScintilla(SCI_POSITIONFROMLINE, linea);
  const std::string testo = Linea_Byte(linea);
  const Parola parola = Trova_Prima_Parola(testo);
  const Istruzione* istruzione = Istruzione_Di(testo);
  const auto colonna = static_cast<std::size_t>(posizione - inizio);
  const bool muto = istruzione == nullptr || colonna < parola.Inizio || colonna >= parola.Fine;
  Mostra_Aiuto(static_cast<std::uintptr_t>(posizione), linea,
               muto ? "" : Suggerimento(*istruzione));
}

/// What there is to say of an instruction, below what there is to say of its line.
void AwlEditor::Mostra_Aiuto(std::uintptr_t posizione, int linea, const std::string& istruzione) {
  std::string aiuto = Utf8(Suggerito(linea));
  if (!aiuto.empty() && !istruzione.empty()) aiuto += "\n\n";
  aiuto += istruzione;
  if (!aiuto.empty()) SendScintilla(SCI_CALLTIPSHOW, posizione, aiuto.c_str());
}

}  // namespace tavorno
