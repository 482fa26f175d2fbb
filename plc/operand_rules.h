// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "plc/area.h"

// What operands a mnemonic takes, as data. The messages are the checker's own and are used as they
// stand. The rules are deliberately not uniform.
namespace tavorno {

/// Status of a checked line and its message; 0 and "" when it is accepted.
struct Verdetto {
  std::uint8_t Stato = 0;
  const char* Testo = "";
};

/// Which numbers an area takes: up to `Massimo` (there is no lower limit), or only those in `Solo`.
struct Numeri {
  std::optional<int> Massimo;
  std::vector<int> Solo;

  bool Ammette(int numero) const;
};

/// The memory that the CPU has, by area; no limit for areas without one.
Numeri Numeri_Area(Area area);

/// An area that a rule accepts, with its numbers and the message for a number outside them.
struct Ammessa {
  Area Codice;
  Numeri Valori;
  Verdetto Fuori;
};

struct Regola_Operando {
  std::vector<Ammessa> Ammesse = {};
  std::vector<Area> Rifiutate = {};  ///< areas refused with `Se_Rifiutata`
  Verdetto Se_Rifiutata = {};
  Verdetto Altrimenti = {};  ///< any other area; accepted where this is blank

  Verdetto Controlla(Area area, int numero) const;
};

struct Regola {
  int Operandi = 0;  ///< how many, 1 or 2
  /// Another number of them.
  Verdetto Se_Diverso = {5, "-> Numero Operandi non supportati"};
  Regola_Operando Op1 = {};
  std::optional<Regola_Operando> Op2 = {};  ///< none: the second operand is not looked at
  bool Prova_Bit = false;  ///< a bit number of 8 or more in the first operand is refused
  std::string Aiuto = {};  ///< the operands as the manual writes them
};

namespace regole {
extern const Regola Contatto, Contatto_Immediato, Uscita, Uscita_Immediata, Set, Set_Immediato,
    Reset, Timer, Contatore, MOVB, MOVW, MOVD, BIR, BIW, BTI, Aritmetica_I, Aritmetica_D, Inc_B,
    Inc_W, Inc_D, Confronto_B, Confronto_W, Confronto_D;
}  // namespace regole

}  // namespace tavorno
