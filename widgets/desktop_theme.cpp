// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/desktop_theme.h"

#include "widgets/colours.h"

namespace tavorno {

QPalette Tavolozza_Scura() {
  using P = QPalette;
  const QColor testo = colori::Scrivania_Scura_Testo;
  // The other edges of buttons and frames follow from these two.
  P tinte{colori::Scrivania_Scura_Tasto, colori::Scrivania_Scura_Finestra};
  for (const P::ColorRole ruolo : {P::WindowText, P::Text, P::ButtonText, P::ToolTipText})
    tinte.setColor(ruolo, testo);
  tinte.setColor(P::Base, QColor(colori::Foglio.Di({.Scura = true})));
  tinte.setColor(P::AlternateBase, colori::Scrivania_Scura_Finestra);
  tinte.setColor(P::ToolTipBase, colori::Scrivania_Scura_Tasto);
  tinte.setColor(P::PlaceholderText, colori::Scrivania_Scura_Spento);
  tinte.setColor(P::Highlight, colori::Scrivania_Scura_Scelta);
  tinte.setColor(P::HighlightedText, colori::Bianco);
  tinte.setColor(P::Link, colori::Guida_Legame.Testo.Di({.Scura = true}));
  tinte.setColor(P::LinkVisited, colori::Guida_Legame.Testo.Di({.Scura = true}));
  for (const P::ColorRole ruolo : {P::WindowText, P::Text, P::ButtonText, P::HighlightedText})
    tinte.setColor(P::Disabled, ruolo, colori::Scrivania_Scura_Spento);
  tinte.setColor(P::Disabled, P::Highlight, colori::Scrivania_Scura_Tasto);
  return tinte;
}

}  // namespace tavorno
