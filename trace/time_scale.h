// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavorno {

/// A step between two marks of a time axis, in ms, that is at least `ms_minimi`: 1, 2 or 5 times a
/// power of ten, or a full number of minutes.
std::int64_t Passo_Tacche(double ms_minimi);

/// A mark of an axis whose marks are `passo` apart: "1,5 s", "3 min".
std::string Testo_Tacca(std::int64_t ms, std::int64_t passo);

/// A number as it is written in Italian, with four figures.
std::string Con_Virgola(double valore);

/// A moment to the millisecond: "12,345 s", "2:05,300", "1:02:05,300".
std::string Testo_Istante(std::int64_t ms);
/// The time between two moments: "350 ms", "12,345 s", "2:05,300"; with its sign.
std::string Testo_Durata(std::int64_t ms);

/// The window through which a stretch of time is seen.
struct Vista_Tempi {
  double Da = 0;          ///< the moment at the left border, ms
  double Per_Punto = 10;  ///< ms of a pixel
  double Larga = 800;     ///< pixels

  double X(double ms) const { return (ms - Da) / Per_Punto; }
  double Ms(double x) const { return Da + x * Per_Punto; }
  double A() const { return Ms(Larga); }

  static constexpr double Minimo = 0.005;  ///< ms of a pixel: five thousandths, a scan is 200 wide
  static constexpr double Massimo = 10'000;  ///< an hour is 360 wide

  /// Shows `fattore` times as much; what stands at `x` stays there.
  void Zoom(double fattore, double x);
  /// From `da` to `a`, with a little room at both ends.
  void Mostra(double da, double a);
  /// Moves only as far as it must so that `ms` is seen, well inside.
  void Porta_In_Vista(double ms);
};

}  // namespace tavorno
