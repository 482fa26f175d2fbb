// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tavorno {

/// Writes a picture in black lines on white, element by element. Lengths in pixels at 100 %.
class Tavola {
 public:
  enum class Ancora { Inizio, Mezzo, Fine };

  void Linea(double x1, double y1, double x2, double y2);
  void Tratteggio(double x1, double y1, double x2, double y2);
  /// `dati` as in the attribute "d" of a path.
  void Tracciato(std::string_view dati);
  void Rettangolo(double x, double y, double larghezza, double altezza);
  void Cerchio(double x, double y, double raggio);
  void Punto(double x, double y);  ///< a joint of wires
  void Testo(double x, double y, std::string_view testo, double altezza = 9.5,
             Ancora ancora = Ancora::Inizio, bool neretto = false);

  /// The finished picture of this size, as an SVG file.
  std::string Svg(double larghezza, double altezza, std::string_view titolo) const;

 private:
  std::string elementi_;
};

/// A length with at most two decimals and a decimal point, whatever the locale.
std::string Numero_Svg(double valore);

}  // namespace tavorno
