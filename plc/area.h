// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace tavorno {

/// Memory areas by their operand text. `Nessuna` is the empty text, `Ignota` any text not named
/// here.
enum class Area : std::uint8_t {
  Nessuna,
  Ignota,
  I,
  Q,
  M,
  SM,
  S,
  T,
  C,  // bits and elements
  IB,
  QB,
  MB,
  SMB,
  VB,  // bytes
  IW,
  QW,
  MW,
  VW,
  AIW,
  AQW,  // words
  VD,
  AC,
  K,  // double words, accumulators, constants
  V,
  L,
  SMW,
  SW,
  LW,  // areas of the real CPU that this one lacks
};

/// `testo` in capitals.
Area Cerca_Area(std::string_view testo);
/// The operand text; "" for `Nessuna` and `Ignota`.
std::string_view Testo_Area(Area area);

}  // namespace tavorno
