// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "awl/diagnostic.h"
#include "awl/source.h"

namespace tavorno {

/// A compiled and linked program: a value, until it is loaded.
struct Programma {
  std::vector<Riga_PLC> Righe;
  /// Rows whose `Abil_SCR` the compile has set; the others keep what the CPU has there.
  int Righe_Abilitate = 0;
};

/// What a compile gives.
struct Compilazione {
  Programma Prodotto;
  std::vector<Diagnosi> Rilievi;     ///< lines first, by row, then the link passes
  std::vector<Genere> Passi_Errati;  ///< link passes that reported a fault, in their order
  /// As it is told to the user: the faulty lines, and 1 in their place after a fault of the SCR
  /// sections. Faults of jumps and calls do not count.
  int Errori = 0;
};

/// Compiles, checks and links rows of source.
Compilazione Compila_Righe(std::span<const Riga_Src> righe);
inline Compilazione Compila_Sorgente(const Sorgente& sorgente) {
  return Compila_Righe(sorgente.Righe);
}

/// Puts a program into the CPU's table, whose last row it becomes. The CPU must not be running.
void Carica(const Programma& programma, Memoria& cpu);

}  // namespace tavorno
