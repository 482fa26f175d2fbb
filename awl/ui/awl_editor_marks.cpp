// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers in the margin, and marks that move with their lines.
#include <algorithm>
#include <array>

#include "awl/line_numbers.h"
#include "awl/ui/awl_editor.h"
#include "awl/ui/editor_numbers.h"
#include "widgets/text.h"

namespace tavorno {

void AwlEditor::Numera(const std::vector<int>& numeri) {
  for (int linea = 0; linea < lines(); ++linea) {
    const auto indice = static_cast<std::size_t>(linea);
    const int numero = indice < numeri.size() ? numeri[indice] : Numerazione::Nessuno;
    const QString testo = numero == Numerazione::Nessuno ? QString() : QString::number(numero);
    // Telling the component what it knows already would make it paint again.
    if (testo == Numero_Mostrato(linea)) continue;
    if (testo.isEmpty())
      clearMarginText(linea);
    else
      setMarginText(linea, testo, STYLE_LINENUMBER);
  }
}

QString AwlEditor::Numero_Mostrato(int linea) const {
  std::array<char, 16> cifre{};
  const long lunghezza = SendScintilla(SCI_MARGINGETTEXT, linea, static_cast<void*>(nullptr));
  if (lunghezza <= 0 || lunghezza >= static_cast<long>(cifre.size())) return {};
  SendScintilla(SCI_MARGINGETTEXT, linea, static_cast<void*>(cifre.data()));
  return QString::fromLatin1(cifre.data(), lunghezza);
}

int AwlEditor::Segui(int linea) {
  return markerAdd(linea, Segno_Invisibile);
}

int AwlEditor::Linea_Seguita(int segno) const {
  return markerLine(segno);
}

void AwlEditor::Segna(int linea, Gravita grado, const QString& messaggio) {
  if (grado == Gravita::Errore) {
    markerAdd(linea, Segno_Errore);
    markerAdd(linea, Segno_Fondo);
  } else {
    markerAdd(linea, Segno_Avvertimento);
  }
  annotate(linea, messaggio, stile::Messaggio);
}

void AwlEditor::Togli_Segni() {
  for (const int segno : {Segno_Errore, Segno_Fondo, Segno_Invisibile, Segno_Avvertimento})
    markerDeleteAll(segno);
  clearAnnotations();
}

void AwlEditor::Suggerisci(std::vector<Diagnosi> suggerimenti) {
  suggerimenti_ = std::move(suggerimenti);
  SendScintilla(SCI_SETINDICATORCURRENT, Indicatore_Suggerimento);
  SendScintilla(SCI_INDICATORCLEARRANGE, 0L, static_cast<long>(length()));
  for (const Diagnosi& suggerimento : suggerimenti_) {
    const auto [da, a] =
        Posizioni({suggerimento.Posto.Linea, suggerimento.Colonna, suggerimento.Lunghezza});
    if (a > da) SendScintilla(SCI_INDICATORFILLRANGE, da, a - da);
  }
}

QString AwlEditor::Suggerito(int linea) const {
  QString testo;
  for (const Diagnosi& suggerimento : suggerimenti_) {
    if (suggerimento.Posto.Linea != linea) continue;
    if (!testo.isEmpty()) testo += '\n';
    testo += Q(suggerimento.Messaggio);
  }
  return testo;
}

bool AwlEditor::Ha_Avvertimento(int linea) const {
  return (markersAtLine(linea) & (1U << Segno_Avvertimento)) != 0;
}

bool AwlEditor::Ha_Errore(int linea) const {
  return (markersAtLine(linea) & (1U << Segno_Errore)) != 0;
}

void AwlEditor::Vai_A(int linea) {
  const int presente = std::clamp(linea, 0, lines() - 1);
  setCursorPosition(presente, 0);
  SendScintilla(SCI_VERTICALCENTRECARET);
  setFocus(Qt::OtherFocusReason);
}

void AwlEditor::Vai_In_Fondo() {
  SendScintilla(SCI_DOCUMENTEND);
  setFocus(Qt::OtherFocusReason);
}

}  // namespace tavorno
