// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "awl/diagnostic.h"

// What the editor does with whole lines, as values: a text comes in, a change comes out. Texts are
// bytes of the code page; lines count from 0.
namespace tavorno {

/// Lines that take the place of others.
struct Cambio_Linee {
  int Prima = 0;                        ///< the first line that goes
  int Quante = 0;                       ///< how many go; 0 to put lines in before `Prima`
  std::vector<std::string> Nuove = {};  ///< without their ends
  int Scelta = 0;                       ///< the line that the selection begins with afterwards
  int Scelte = 0;  ///< how many lines are selected; 0 to put the caret there only

  bool Vuoto() const { return Quante == 0 && Nuove.empty(); }
  bool operator==(const Cambio_Linee&) const = default;
};

/// Puts "//" before the lines `da`..`a`, or takes it away where all of them that are not empty
/// have it.
Cambio_Linee Commenta(std::string_view testo, int da, int a);

/// Moves lines up (`verso` -1) or down (1) past their neighbour; nothing at the edge of the text.
Cambio_Linee Sposta(std::string_view testo, int da, int a, int verso);

/// Puts a copy of the lines behind them.
Cambio_Linee Raddoppia(std::string_view testo, int da, int a);

/// The text after a change, its lines joined by CR LF.
std::string Con_Cambio(std::string_view testo, const Cambio_Linee& cambio);

/// A piece of a line and what takes its place; columns in characters from 0.
struct Ritocco {
  Posto_Riga Posto;
  int Colonna = 0;
  int Lunghezza = 0;
  std::string Nuovo;

  bool operator==(const Ritocco&) const = default;
};

/// The text number `testo_nr` after its touches, which stand in their order and do not overlap.
std::string Con_Ritocchi(std::string_view testo, int testo_nr, std::span<const Ritocco> ritocchi);

}  // namespace tavorno
