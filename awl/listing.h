// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "awl/diagnostic.h"
#include "awl/source.h"

namespace tavorno {

/// A line of the compile listing, in its pieces: "0005 [Err. 3]: XYZ    I0.0  -> message".
struct Riga_Listato {
  std::string Numero;  ///< of the row, at least four digits
  std::string Esito;   ///< "[Ok!   ]", "[Err. 3]"
  bool Errata = false;
  std::string Istruzione;  ///< `Testo_CPU`, bytes of the code page
  std::string Messaggio;   ///< with its arrow; empty for an accepted line

  /// The line without its end.
  std::string Come_Testo() const;
};

/// One line for each row of source, from the rows and what the line checker said of them.
std::vector<Riga_Listato> Listato(std::span<const Riga_Src> righe,
                                  std::span<const Diagnosi> rilievi);

/// The listing as text; each line ends in CR, CR, LF.
std::string Testo_Listato(std::span<const Riga_Listato> righe);

}  // namespace tavorno
