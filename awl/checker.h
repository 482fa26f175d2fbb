// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "awl/source_line.h"

namespace tavorno {

/// The piece of a line that a fault is in.
enum class Parte_Riga : std::uint8_t { Intera, Operando1, Operando2 };

/// What the line checker says of a compiled line; `Stato` is 0 and `Testo` "" when it is accepted.
struct Esito_Riga {
  int Stato = 0;
  const char* Testo = "";
  Parte_Riga Dove = Parte_Riga::Intera;
};

/// Judges one compiled line with the source line that it was filled from. Later faults stand for
/// earlier ones.
Esito_Riga Controlla_Riga(const Riga_PLC& riga, const Riga_Src& sorgente);

/// Columns of a piece in the canonical line (`Testo_Lista`), in characters from 0.
struct Tratto_Riga {
  int Colonna = 0;
  int Lunghezza = 0;
};
Tratto_Riga Tratto_Di(const Riga_Src& sorgente, Parte_Riga parte);

}  // namespace tavorno
