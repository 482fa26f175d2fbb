// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "awl/source_line.h"
#include "ladder/from_list.h"
#include "ladder/shapes.h"

namespace tavorno {

/// A network of the project, drawn or with the reason why it stays a list.
struct Rete_Scala {
  std::string Titolo;              ///< "NETWORK 3", empty in front of the first one; UTF-8
  std::string Commento;            ///< behind the title, UTF-8, without its slashes
  int Riga = 0;                    ///< row of the program where the network begins
  int Ultima = 0;                  ///< its last row
  std::vector<Passo_Scala> Passi;  ///< its instructions, each with its row of the program
  std::variant<Diagramma, Non_Disegnabile> Forma;

  bool Disegnata() const { return std::holds_alternative<Diagramma>(Forma); }
};

/// The main program or a procedure.
struct Blocco_Scala {
  std::string Nome;  ///< "MAIN", or the procedure's name; UTF-8
  std::vector<Rete_Scala> Reti;
};

/// The networks of a project that was read, row by row. Empty networks are kept.
std::vector<Blocco_Scala> Scala_Di(std::span<const Riga_Src> righe);

/// A network alone as a document, with its size in pixels.
struct Figura_Svg {
  std::string Svg;
  int Larghezza = 0, Altezza = 0;
};
Figura_Svg Rete_Svg(const Diagramma& diagramma);
/// The symbol of an instruction, as it stands in a diagram; an empty text for what has none, as
/// LPS.
Figura_Svg Simbolo_Svg(const Passo_Scala& passo);

/// All of it as a document for paper and screen.
std::string Documento_Svg(std::span<const Blocco_Scala> blocchi, const std::string& titolo,
                          const Nome_Simbolico& nome);

}  // namespace tavorno
