// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "plc/operand_rules.h"

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

/// A branch of the interpreter: executes one line, which is the row of `PC`.
using Ramo = Esito (*)(Plc&, Riga_PLC&);
/// What stands for a branch where there is none; its outcome is `Esito::Ignota`.
Ramo Ramo_Assente();

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

/// How the line checker treats a mnemonic.
enum class Gruppo : std::uint8_t {
  Accettata,       ///< operands are not looked at
  Senza_Operandi,  ///< accepted when it has no operand
  Con_Regola,      ///< accepted when the operands keep its rule
  Non_Supportata,  ///< known, but refused
};

/// Families as a student meets them, in the order of the manual.
enum class Famiglia : std::uint8_t {
  Contatti,
  Uscite,
  Pila,
  Temporizzatori,
  Contatori,
  Trasferimenti,
  Conversioni,
  Confronti,
  Aritmetica,
  Logica,
  Programma,
  Sequenze,
  Interruzioni,
};
std::string_view Nome_Famiglia(Famiglia famiglia);  ///< in Italian, UTF-8

/// One mnemonic: the single source for the checker, the interpreter, the editor's colouring and
/// completion, and the manual page of the instruction set.
struct Istruzione {
  std::string Nome;
  Famiglia Gruppo_Manuale;
  Gruppo Trattamento;
  const Regola* Operandi;                    ///< set exactly when `Trattamento` is `Con_Regola`
  Ramo Esegui;                               ///< `Ramo_Assente()` where the interpreter has none
  std::string Aiuto;                         ///< one line of Italian, UTF-8
  Connessione Unione = Connessione::LD;      ///< comparisons only
  Relazione Confronto = Relazione::Nessuna;  ///< comparisons only
};

/// All mnemonics that the checker knows, each once.
std::span<const Istruzione> Tabella_Istruzioni();

/// The row of a mnemonic as it stands in `Istr`, nullptr when it is unknown. A text longer than
/// "NETWORK" that begins so is the row "NETW"; texts longer than "SBR" or "INT" that begin so are
/// those rows.
const Istruzione* Cerca_Istruzione(std::string_view istr);

}  // namespace tavorno
