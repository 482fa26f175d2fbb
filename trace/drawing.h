// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "trace/diagram.h"
#include "trace/drawing_parts.h"

// A diagram as a list of strokes, areas and texts: what the window paints is what a file holds.
namespace tavorno {

/// The measures of a drawing, in pixels.
struct Misura_Disegno {
  double Larga = 1000, Alta = 600;
  double Nomi = 300;                  ///< width of the column of names
  double Scorrimento = 0;             ///< of the rows, upwards
  double Per_Lettera = 6.9;           ///< width of a letter of 12 pixels, to know what has room
  static constexpr double Asse = 46;  ///< height of the axis at the top

  double Onde() const { return Larga - Nomi; }  ///< width of the waves
};

/// `diagramma.Vista.Larga` is that of the waves. Only what is seen is looked at: the time it takes
/// depends on the pixels, and not on how much was recorded.
Disegno_Tempi Disegna(const Diagramma_Tempi& diagramma, const Misura_Disegno& misura);

/// The drawing as a file, `titolo` above it.
std::string Come_Svg(const Disegno_Tempi& disegno, const Misura_Disegno& misura,
                     const std::string& titolo);

}  // namespace tavorno
