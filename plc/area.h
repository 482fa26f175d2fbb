// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// The areas of the memory: what their operands are called, how much of each the CPU has, and what
// its cells hold. Memory, line checker, traces, scripts and the status window are made from it.
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
  VW,
  VD,
  AC,
  AIW,
  AQW,  // words, double words, accumulators
  IW,
  QW,
  MW,
  K,  // words of bits, constants
  V,
  L,
  SMW,
  SW,
  LW,  // areas of the real CPU that this one lacks
};

/// What an operand of an area is.
enum class Cella : std::uint8_t {
  Assente,   ///< nothing: no area, or one that this CPU lacks
  Costante,  ///< the number itself
  Bit,       ///< one of the bits of a row
  Byte,      ///< the bits of a row together
  Testo,     ///< the reading text of a row, taken as a decimal number
  Elemento,  ///< a timer or counter: output, value and preset
  Intero,
  Reale,
};

struct Riga_Area {
  Area Codice = Area::Nessuna;
  std::string_view Nome;  ///< the operand text
  Cella Contenuto = Cella::Assente;
  int Ultima = -1;                 ///< last row of its table in the memory
  int Passo = 1;                   ///< between the numbers that mean something
  int Massimo_Ammesso = -1;        ///< last number that the line checker lets through; -1: no limit
  bool Solo_Passo = false;         ///< ... and it lets only multiples of `Passo` through
  int Bit = 0;                     ///< bits of a row that have a name, 0 where none has
  std::string_view Preset = {};    ///< elements: the name of the preset
  double Minimo = 0, Massimo = 0;  ///< values of a cell; of a timer or counter: value and preset
};

namespace dettaglio {
inline constexpr double min_16 = -32768, max_16 = 32767;
inline constexpr double min_32 = -2147483648.0, max_32 = 2147483647.0;
}  // namespace dettaglio

// clang-format off
/// In the order of the enumeration. The checker's bounds differ from the memory's by design.
inline constexpr std::array<Riga_Area, 28> tabella_aree = {{
    {.Codice = Area::Nessuna, .Nome = ""},
    {.Codice = Area::Ignota,  .Nome = ""},
    {.Codice = Area::I,   .Nome = "I",   .Contenuto = Cella::Bit, .Ultima = 1,  .Massimo_Ammesso = 1, .Bit = 8, .Massimo = 1},
    {.Codice = Area::Q,   .Nome = "Q",   .Contenuto = Cella::Bit, .Ultima = 1,  .Massimo_Ammesso = 1, .Bit = 8, .Massimo = 1},
    {.Codice = Area::M,   .Nome = "M",   .Contenuto = Cella::Bit, .Ultima = 4,  .Massimo_Ammesso = 4, .Bit = 8, .Massimo = 1},
    {.Codice = Area::SM,  .Nome = "SM",  .Contenuto = Cella::Bit, .Ultima = 30, .Massimo_Ammesso = 2, .Bit = 8, .Massimo = 1},
    {.Codice = Area::S,   .Nome = "S",   .Contenuto = Cella::Bit, .Ultima = 4,  .Massimo_Ammesso = 2, .Bit = 8, .Massimo = 1},
    {.Codice = Area::T,   .Nome = "T",   .Contenuto = Cella::Elemento, .Ultima = 40, .Massimo_Ammesso = 40, .Preset = "PT", .Minimo = dettaglio::min_16, .Massimo = dettaglio::max_16},
    {.Codice = Area::C,   .Nome = "C",   .Contenuto = Cella::Elemento, .Ultima = 20, .Massimo_Ammesso = 20, .Preset = "PV", .Minimo = dettaglio::min_16, .Massimo = dettaglio::max_16},
    {.Codice = Area::IB,  .Nome = "IB",  .Contenuto = Cella::Byte, .Ultima = 1,  .Massimo_Ammesso = 1, .Massimo = 255},
    {.Codice = Area::QB,  .Nome = "QB",  .Contenuto = Cella::Byte, .Ultima = 1,  .Massimo_Ammesso = 1, .Massimo = 255},
    {.Codice = Area::MB,  .Nome = "MB",  .Contenuto = Cella::Byte, .Ultima = 4,  .Massimo_Ammesso = 4, .Massimo = 255},
    {.Codice = Area::SMB, .Nome = "SMB", .Contenuto = Cella::Byte, .Ultima = 30, .Massimo = 255},
    {.Codice = Area::VB,  .Nome = "VB",  .Contenuto = Cella::Intero, .Ultima = 100, .Massimo_Ammesso = 100, .Minimo = dettaglio::min_16, .Massimo = dettaglio::max_16},
    {.Codice = Area::VW,  .Nome = "VW",  .Contenuto = Cella::Intero, .Ultima = 100, .Massimo_Ammesso = 100, .Minimo = dettaglio::min_16, .Massimo = dettaglio::max_16},
    {.Codice = Area::VD,  .Nome = "VD",  .Contenuto = Cella::Intero, .Ultima = 100, .Massimo_Ammesso = 100, .Minimo = dettaglio::min_32, .Massimo = dettaglio::max_32},
    {.Codice = Area::AC,  .Nome = "AC",  .Contenuto = Cella::Reale, .Ultima = 4, .Massimo_Ammesso = 3, .Minimo = dettaglio::min_32, .Massimo = dettaglio::max_32},
    {.Codice = Area::AIW, .Nome = "AIW", .Contenuto = Cella::Intero, .Ultima = 4, .Passo = 2, .Massimo_Ammesso = 4, .Solo_Passo = true, .Minimo = dettaglio::min_32, .Massimo = dettaglio::max_32},
    {.Codice = Area::AQW, .Nome = "AQW", .Contenuto = Cella::Intero, .Ultima = 2, .Passo = 2, .Massimo_Ammesso = 2, .Solo_Passo = true, .Minimo = dettaglio::min_32, .Massimo = dettaglio::max_32},
    {.Codice = Area::IW,  .Nome = "IW",  .Contenuto = Cella::Testo, .Ultima = 1, .Massimo_Ammesso = 0},
    {.Codice = Area::QW,  .Nome = "QW",  .Contenuto = Cella::Testo, .Ultima = 1, .Massimo_Ammesso = 0},
    {.Codice = Area::MW,  .Nome = "MW",  .Contenuto = Cella::Testo, .Ultima = 4, .Massimo_Ammesso = 3},
    {.Codice = Area::K,   .Nome = "K",   .Contenuto = Cella::Costante},
    {.Codice = Area::V,   .Nome = "V"},
    {.Codice = Area::L,   .Nome = "L"},
    {.Codice = Area::SMW, .Nome = "SMW"},
    {.Codice = Area::SW,  .Nome = "SW"},
    {.Codice = Area::LW,  .Nome = "LW"},
}};
// clang-format on

constexpr const Riga_Area& Riga_Di(Area area) {
  return tabella_aree[static_cast<std::size_t>(area)];
}

/// `testo` in capitals.
Area Cerca_Area(std::string_view testo);
/// The operand text; "" for `Nessuna` and `Ignota`.
constexpr std::string_view Testo_Area(Area area) {
  return Riga_Di(area).Nome;
}

}  // namespace tavorno
