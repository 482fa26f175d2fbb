// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ladder/layout.h"

// A laid-out network as strokes and texts, which paper, files and the window draw alike. Lengths
// are pixels at 100 %, from the upper left corner.
namespace tavorno {

/// A straight line; a wire or a symbol's stroke is live with its point.
struct Asta {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  Nodo_Elettrico Nodo = 0;
  int Riquadro = -1;  ///< the symbol that it belongs to, -1 for a wire
};

/// One bracket of a coil: half an ellipse that opens to the right or to the left.
struct Parentesi {
  double X = 0, Y = 0;   ///< the middle of its back
  double Larghezza = 0;  ///< negative: opens to the left
  double Altezza = 0;
  Nodo_Elettrico Nodo = 0;
  int Riquadro = -1;
};

struct Cornice {
  double X = 0, Y = 0, Larghezza = 0, Altezza = 0;
  Nodo_Elettrico Nodo = 0;
  int Riquadro = -1;
};

/// Where wires of one point cross: without it they would look as if they only passed each other.
struct Giunto {
  double X = 0, Y = 0;
  Nodo_Elettrico Nodo = 0;
};
inline constexpr double raggio_giunto = 3;

enum class Stile_Scritta { Indirizzo, Simbolo, Segno, Nome, Piedino };
enum class Ancora { Sinistra, Centro, Destra };

/// Y is the base line.
struct Scritta {
  double X = 0, Y = 0;
  std::string Testo;  ///< UTF-8
  Stile_Scritta Stile = Stile_Scritta::Indirizzo;
  Ancora Posto = Ancora::Centro;
  int Riquadro = -1;
  int Operando = -1;  ///< which of the symbol's it shows, from 0; -1: none
};

struct Tratteggio_Rete {
  double Larghezza = 0, Altezza = 0;
  std::vector<Asta> Tratti;
  std::vector<Parentesi> Curve;
  std::vector<Cornice> Cornici;
  std::vector<Giunto> Giunti;
  std::vector<Scritta> Scritte;
};

/// The cells of the grid, pixels.
inline constexpr double larghezza_cella = 96;
inline constexpr double altezza_cella = 78;
/// The wire of a row below the row's upper edge.
inline constexpr double quota_filo = 46;

/// Between the edges of a network and its rails.
inline constexpr double margine_forme = 8;

/// What a plant calls an operand ("SB1" for "I0.0"), empty where it has no name for it; UTF-8.
using Nome_Simbolico = std::function<std::string(const std::string& operando)>;

Tratteggio_Rete Traccia_Forme(const Disegno& disegno, const Nome_Simbolico& nome);

/// The same as the inside of an SVG group, with `vivi` of each point or none (all at rest).
std::string Come_Svg(const Tratteggio_Rete& forme, const std::vector<bool>& vivi);

}  // namespace tavorno
