// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "plc/memory.h"

// The link passes: what no line knows alone. All work on the rows of a whole program.
namespace tavorno {

/// A row that a pass finds fault with, and why, in Italian (UTF-8).
struct Guasto {
  int Riga = 0;
  std::string Motivo;
};

/// What a pass found. The passes count openings against ends, so that faults can make up for each
/// other: then `Esito` is 0 though `Guasti` names them.
struct Passo {
  std::uint8_t Esito = 0;  ///< 1 for a fault, 0 otherwise
  std::vector<Guasto> Guasti;
  int Righe_Viste = 0;  ///< of the pass of the sections: rows whose `Abil_SCR` it has set
};

/// Targets and timer lists of the jumps. A fault: not as many labels of their numbers as jumps.
Passo Assegna_JMP(std::span<Riga_PLC> righe);
/// The same of the calls; names are compared without regard to capitals.
Passo Assegna_SBR(std::span<Riga_PLC> righe);
/// Sections of LSCR. A fault: one without its SCRE, or with a jump or label inside, which ends the
/// pass at once.
Passo Assegna_SCR(std::span<Riga_PLC> righe);

}  // namespace tavorno
