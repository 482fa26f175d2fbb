// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plc/plc.h"

namespace tavorno {

/// A part of a timer or counter.
enum class Parte_Cella { Bit, Val, Preset };

/// A cell of the CPU's memory that exists: every area of the table but constants and the words of
/// bits (IW, QW, MW).
struct Indirizzo {
  Area Dove = Area::I;
  int Num = 0;
  int Bit = 0;                           ///< of I, Q, M, SM, S
  Parte_Cella Quale = Parte_Cella::Bit;  ///< of T and C
};

/// Reads "Q0.0", "VW10", "T37", "T37.Val", "C5.PV"; capitals do not matter. Empty when it is none,
/// or outside its table.
std::optional<Indirizzo> Leggi_Indirizzo(std::string_view testo);

/// As it is written: "Q0.0", "VW10", "T37.Val", "C5.PV".
std::string Testo_Indirizzo(const Indirizzo& indirizzo);

/// The addresses that `Leggi_Indirizzo` takes, for a message or a manual.
std::string Indirizzi_Ammessi();

/// Inputs and outputs are the physical points. Only `AC` is not whole.
double Leggi_Cella(const Plc& plc, const Indirizzo& indirizzo);

/// Whether the cell can hold the value.
bool Sta_In_Cella(const Indirizzo& indirizzo, double valore);

/// False when the value does not fit the cell, which then stays as it is. What follows from a cell,
/// as the value of a byte does, is brought up to date.
bool Scrivi_Cella(Plc& plc, const Indirizzo& indirizzo, double valore);

}  // namespace tavorno
