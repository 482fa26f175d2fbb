// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// What a compiled line holds of its instruction, so that the interpreter needs no table.
namespace tavorno {

struct Plc;
struct Riga_PLC;

/// What the interpreter does after a line's branch.
enum class Esito : std::uint8_t {
  Avanti,  ///< end of line, on to the next
  Errore,  ///< run-time error: message and Stop
  Salto,   ///< PC was changed: go on with that line at once
  Fine,    ///< MEND: end of the scan
  Ignota,  ///< the interpreter has no branch for this mnemonic
};

/// A branch of the interpreter: executes one line, which is the row of `PC`. It may throw `Fatale`.
using Ramo = Esito (*)(Plc&, Riga_PLC&);

/// What stands for a branch where there is none: the program is stopped with a message.
inline Esito Senza_Ramo(Plc& /*plc*/, Riga_PLC& /*riga*/) {
  return Esito::Ignota;
}
inline Ramo Ramo_Assente() {
  return Senza_Ramo;
}
/// The branch of a recognised line that does nothing.
inline Esito Ramo_Nullo(Plc& /*plc*/, Riga_PLC& /*riga*/) {
  return Esito::Avanti;
}

/// How a comparison contact joins the logic stack.
enum class Connessione : std::uint8_t { LD, A, O };

/// A relation as the set of outcomes for which it holds: one bit each for less, equal, greater.
enum class Relazione : std::uint8_t {
  Nessuna = 0,
  Minore = 1,
  Uguale = 2,
  Maggiore = 4,
  Minore_Uguale = Minore | Uguale,
  Maggiore_Uguale = Maggiore | Uguale,
  Diverso = Minore | Maggiore,
};

/// What a line is in the structure of a program, beside what it executes.
enum class Compito : std::uint8_t {
  Nessuno,
  Segmento,        ///< begins a network
  Temporizzatore,  ///< a timer, which a jump over it stops
  Salto,           ///< goes to the label of its number
  Etichetta,       ///< where a jump goes to
  Chiamata,        ///< goes to the procedure of its name
  Procedura,       ///< begins a procedure and names it
  Fine_Procedura,  ///< ends a procedure
  Interruzione,    ///< begins an interrupt routine and names it
  Passo,           ///< begins a section of sequence control
  Fine_Passo,      ///< ends one
  Fine_Programma,  ///< ends the main program
};

/// True where the operand is the name of a procedure or routine and no address.
constexpr bool Nomina_Procedura(Compito compito) {
  return compito == Compito::Chiamata || compito == Compito::Procedura ||
         compito == Compito::Interruzione;
}

}  // namespace tavorno
