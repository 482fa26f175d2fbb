// SPDX-License-Identifier: GPL-3.0-or-later
// Places in the text by line and column, and what commands change there.
#include <algorithm>

#include "awl/ui/awl_editor.h"
#include "awl/ui/editor_numbers.h"
#include "widgets/text.h"

namespace tavorno {

/// Positions count bytes.
std::pair<long, long> AwlEditor::Posizioni(const Trovato& pezzo) const {
  const long inizio = SendScintilla(SCI_POSITIONFROMLINE, pezzo.Linea);
  const long da = SendScintilla(SCI_POSITIONRELATIVE, inizio, pezzo.Colonna);
  return {da, SendScintilla(SCI_POSITIONRELATIVE, da, pezzo.Lunghezza)};
}

AwlEditor::Punto AwlEditor::Cursore() const {
  Punto punto;
  getCursorPosition(&punto.Linea, &punto.Colonna);
  return punto;
}

AwlEditor::Veduta AwlEditor::Come_Si_Vede() const {
  return {SendScintilla(SCI_GETANCHOR), SendScintilla(SCI_GETCURRENTPOS),
          SendScintilla(SCI_GETFIRSTVISIBLELINE), SendScintilla(SCI_GETXOFFSET)};
}

void AwlEditor::Rivedi(const Veduta& veduta) {
  SendScintilla(SCI_SETSEL, veduta.Ancora, veduta.Cursore);
  SendScintilla(SCI_SETFIRSTVISIBLELINE, veduta.Prima_Linea);
  SendScintilla(SCI_SETXOFFSET, veduta.Scostamento);
}

std::pair<int, int> AwlEditor::Linee_Scelte() const {
  const long inizio = SendScintilla(SCI_GETSELECTIONSTART);
  const long fine = SendScintilla(SCI_GETSELECTIONEND);
  const auto da = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, inizio));
  auto a = static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, fine));
  // A selection of whole lines ends at the beginning of the next one.
  if (a > da && SendScintilla(SCI_POSITIONFROMLINE, a) == fine) --a;
  return {da, a};
}

void AwlEditor::Scegli(const Trovato& pezzo) {
  const auto [da, a] = Posizioni(pezzo);
  SendScintilla(SCI_SETSEL, da, a);
  SendScintilla(SCI_VERTICALCENTRECARET);
}

bool AwlEditor::E_Scelto(const Trovato& pezzo) const {
  const auto [da, a] = Posizioni(pezzo);
  return SendScintilla(SCI_GETSELECTIONSTART) == da && SendScintilla(SCI_GETSELECTIONEND) == a;
}

void AwlEditor::Evidenzia(const std::vector<Trovato>& pezzi) {
  Indica(Indicatore_Trovato, pezzi);
}

void AwlEditor::Segna_Eccedenze(const std::vector<Trovato>& pezzi) {
  Indica(Indicatore_Eccedenza, pezzi);
}

void AwlEditor::Indica(int indicatore, const std::vector<Trovato>& pezzi) {
  SendScintilla(SCI_SETINDICATORCURRENT, indicatore);
  SendScintilla(SCI_INDICATORCLEARRANGE, 0L, static_cast<long>(length()));
  for (const Trovato& pezzo : pezzi) {
    const auto [da, a] = Posizioni(pezzo);
    if (a > da) SendScintilla(SCI_INDICATORFILLRANGE, da, a - da);
  }
}

/// Where lines have moved past a neighbour it is the neighbour that goes, so that marks stay with
/// the lines.
void AwlEditor::Cambia(const Cambio_Linee& cambio) {
  if (cambio.Vuoto() || isReadOnly()) return;
  const bool scelto = hasSelectedText();
  const auto fine_linea = [this](int linea) {
    return SendScintilla(SCI_GETLINEENDPOSITION, linea);
  };
  const long dalla_fine = fine_linea(Cursore().Linea) - SendScintilla(SCI_GETCURRENTPOS);
  const auto metti = [this](const Cambio_Linee& uno) {
    Sostituisci_Testo(A_Utf8(Con_Cambio(Byte(), uno)));
  };
  In_Un_Passo([&] {
    const int ultima = cambio.Prima + cambio.Quante - 1;
    if (cambio.Scelte == 0 || cambio.Scelte != cambio.Quante - 1) {
      metti(cambio);
    } else if (cambio.Scelta == cambio.Prima) {
      metti({ultima + 1, 0, {cambio.Nuove.back()}});
      metti({cambio.Prima, 1, {}});
    } else {
      metti({ultima, 1, {}});
      metti({cambio.Prima, 0, {cambio.Nuove.front()}});
    }
  });
  const auto posizione = [this](int linea) {
    return linea < lines() ? SendScintilla(SCI_POSITIONFROMLINE, linea)
                           : static_cast<long>(length());
  };
  const long inizio = posizione(cambio.Scelta);
  if (cambio.Scelte > 0 && !scelto)  // the caret stays with its letter
    SendScintilla(SCI_GOTOPOS, std::max(inizio, fine_linea(cambio.Scelta) - dalla_fine));
  else
    SendScintilla(SCI_SETSEL, cambio.Scelte > 0 ? posizione(cambio.Scelta + cambio.Scelte) : inizio,
                  inizio);
  SendScintilla(SCI_SCROLLCARET);
}

void AwlEditor::Ritocca(std::span<const Ritocco> ritocchi) {
  if (ritocchi.empty() || isReadOnly()) return;
  const int testo = ritocchi.front().Posto.Testo;
  In_Un_Passo([&] { Sostituisci_Testo(A_Utf8(Con_Ritocchi(Byte(), testo, ritocchi))); });
}

}  // namespace tavorno
