// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "awl/project.h"
#include "ladder/flow.h"
#include "ladder/project_ladder.h"

namespace tavorno {

/// A text of a network, ready to be painted. Lengths are pixels at 100 %, as everywhere in a sheet.
struct Scritta_Pronta {
  QPointF Posto;  ///< left end of the base line
  QString Testo;
  Stile_Scritta Stile = Stile_Scritta::Indirizzo;
  Ancora Dove = Ancora::Centro;
  double X = 0;  ///< of the anchor
  int Riquadro = -1, Operando = -1;
  double Spazio = 0;  ///< how wide an operand can be beside its neighbours; 0: as wide as it is
};

/// A network of the sheet with its drawing, from the upper left corner `X`, `Y`.
struct Rete_Foglio {
  int Testo = 0;         ///< text of the project: 0 the Main, else a row of `Tab_SBR`
  QString Intestazione;  ///< of the block, where a block begins
  QString Titolo, Commento;
  Rete_Scala Rete;
  Disegno Come;
  Tratteggio_Rete Forme;
  std::vector<Scritta_Pronta> Scritte;
  /// By symbol: its cells, and what is filled when it lets power pass.
  std::vector<QRectF> Celle, Cuori;
  QStringList Lista;  ///< of a network that stays a list: the reason, then its lines

  double Y = 0, Altezza = 0;
  double Y_Titolo = 0;   ///< base line
  double Y_Disegno = 0;  ///< upper edge of the drawing or of the list

  bool Disegnata() const { return Rete.Disegnata(); }
  const Diagramma& Schema() const { return std::get<Diagramma>(Rete.Forma); }
  int Simboli() const { return static_cast<int>(Celle.size()); }
  /// The symbol of a row of the program, or the last one before it; -1: none.
  int Simbolo_Di_Riga(int riga) const;
};

/// What is typed with: the same everywhere, whatever the desktop writes with.
QFont Carattere_Scala(Stile_Scritta stile);

/// All networks of a project, one below the other. A network that has not changed keeps its
/// drawing.
class Foglio_Scala {
 public:
  /// Takes the texts as they stand on the screen. False when nothing has changed.
  bool Componi(const Stato_Progetto& progetto, const Nome_Simbolico& nome);
  /// The names of the operands are other ones: everything is drawn anew next time.
  void Scorda_Nomi() { composto_ = false; }

  const std::vector<Rete_Foglio>& Reti() const { return reti_; }
  const std::vector<Riga_Src>& Righe() const { return righe_; }
  double Larghezza() const { return larghezza_; }
  double Altezza() const { return altezza_; }

  /// The networks that a stretch of the sheet shows: from, and behind the last.
  std::pair<std::size_t, std::size_t> Fra(double sopra, double sotto) const;
  /// The network of a row of the program; -1: none.
  int Rete_Di_Riga(int riga) const;
  /// The row of a line of the texts, or of the last row before it in that text; -1: none.
  int Riga_Di(Posto_Riga posto) const;
  /// A network reads values of the stack that an earlier one left there.
  bool Pila_Contesa() const { return pila_contesa_; }

  static constexpr double margine = 24;

 private:
  void Disegna(Rete_Foglio& rete, const Nome_Simbolico& nome) const;
  void Disponi();

  std::vector<Rete_Foglio> reti_;
  std::vector<Riga_Src> righe_;
  std::vector<std::string> testi_;  // that the sheet was made of
  double larghezza_ = 0, altezza_ = 0;
  bool pila_contesa_ = false;
  bool composto_ = false;
};

}  // namespace tavorno
