// SPDX-License-Identifier: GPL-3.0-or-later
// Help while typing: lists of mnemonics, and tips.
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "awl/completion.h"
#include "awl/line_words.h"
#include "awl/ui/awl_editor.h"
#include "awl/ui/editor_numbers.h"
#include "widgets/colours.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

std::string Unisci(const std::string& prima, const std::string& dopo) {
  return prima.empty() || dopo.empty() ? prima + dopo : prima + "\n\n" + dopo;
}

}  // namespace

void AwlEditor::Dopo_Carattere(int carattere) {
  if (carattere == ' ' || carattere == '\t')
    Mostra_Suggerimento();
  else if (carattere != '\r' && carattere != '\n')
    Offri_Completamenti();
}

void AwlEditor::Offri_Completamenti(bool anche_vuota) {
  const long posizione = SendScintilla(SCI_GETCURRENTPOS);
  const auto linea = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, posizione));
  const std::string testo = Linea_Byte(linea);
  const auto colonna =
      static_cast<std::size_t>(posizione - SendScintilla(SCI_POSITIONFROMLINE, linea));
  const Proposte proposte = Proponi(testo, colonna, simboli_, anche_vuota);
  std::string lista;
  for (const std::string& proposta : proposte.Testi) {
    if (!lista.empty()) lista += separatore_lista;
    lista += proposta;
  }
  if (lista.empty()) {
    SendScintilla(SCI_AUTOCCANCEL);
    // Whoever has written the whole operand sees what it is.
    const std::string simbolo = Simbolo_In(testo, colonna, simboli_);
    if (!simbolo.empty()) Mostra_Aiuto(static_cast<std::uintptr_t>(posizione), linea, simbolo);
    // Behind a comment there is nothing left to help with.
    if (colonna > testo.find("//")) SendScintilla(SCI_CALLTIPCANCEL);
  } else if (!isListActive()) {
    SendScintilla(SCI_AUTOCSHOW, colonna - proposte.Inizio, lista.c_str());
  }
}

void AwlEditor::Chiudi_Aiuti() {
  cancelList();
  SendScintilla(SCI_CALLTIPCANCEL);
}

/// The component would write the remark behind a proposal as well.
void AwlEditor::Prendi_Proposta(std::string_view scelta, int posizione) {
  const std::string parola(Proposte::Da_Scrivere(scelta));
  SendScintilla(SCI_AUTOCCANCEL);
  In_Un_Passo([&] {
    SendScintilla(SCI_SETTARGETRANGE, static_cast<unsigned long>(posizione),
                  SendScintilla(SCI_GETCURRENTPOS));
    SendScintilla(SCI_REPLACETARGET, parola.size(), parola.data());
    const long fine = posizione + static_cast<long>(parola.size());
    SendScintilla(SCI_SETEMPTYSELECTION, static_cast<unsigned long>(fine));
  });
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
               muto ? "" : Unisci(Simbolo_In(testo, colonna, simboli_), Suggerimento(*istruzione)));
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
               muto ? Simbolo_In(testo, colonna, simboli_) : Suggerimento(*istruzione));
}

// ---- notes --------------------------------------------------------------------------------------

void AwlEditor::Usa_Simboli(const Simboli& simboli) {
  simboli_ = simboli;
  viewport()->update();
}

void AwlEditor::Annota_Simboli(bool annota) {
  annota_ = annota;
  viewport()->update();
}

/// The component has notes below lines only, where they would take room.
void AwlEditor::paintEvent(QPaintEvent* evento) {
  QsciScintilla::paintEvent(evento);
  if (!annota_ || simboli_.empty()) return;
  QFont carattere = lexer_->defaultFont(stile::Numero_Listato);
  carattere.setPointSizeF(carattere.pointSizeF() + static_cast<double>(SendScintilla(SCI_GETZOOM)));
  carattere.setItalic(true);
  QPainter disegno(viewport());
  disegno.setFont(carattere);
  disegno.setPen(colori::Su(colori::awl::Numero.Testo, palette().color(QPalette::Base)));
  constexpr int stacco = 3;  // letters between a line and its note
  const int distanza = stacco * disegno.fontMetrics().horizontalAdvance(' ');
  const auto prima = SendScintilla(SCI_DOCLINEFROMVISIBLE, SendScintilla(SCI_GETFIRSTVISIBLELINE));
  for (int linea = static_cast<int>(prima); linea < lines(); ++linea) {
    const long fine = SendScintilla(SCI_GETLINEENDPOSITION, linea);
    const auto y = static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, fine));
    const auto alta = static_cast<int>(SendScintilla(SCI_TEXTHEIGHT, linea));
    if (y > evento->rect().bottom()) break;
    if (y + alta < evento->rect().top()) continue;
    const std::string nota = Nota_Simboli(Linea_Byte(linea), simboli_);
    if (nota.empty()) continue;
    const auto x = static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, fine)) + distanza;
    disegno.drawText(QRect(x, y, viewport()->width() - x, alta), Qt::AlignVCenter, Q(nota));
  }
}

/// Below what there is to say of the line.
void AwlEditor::Mostra_Aiuto(std::uintptr_t posizione, int linea, std::string aiuto) {
  aiuto = Unisci(Utf8(Suggerito(linea)), aiuto);
  if (!aiuto.empty()) SendScintilla(SCI_CALLTIPSHOW, posizione, aiuto.c_str());
}

}  // namespace tavorno
