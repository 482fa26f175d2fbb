// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plc/area.h"
#include "plc/branch.h"
#include "plc/operand_rules.h"

namespace tavorno {

struct Riga_PLC;

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

/// The branches of an instruction by the area of its first operand. A branch alone is that of all.
class Rami {
 public:
  using Tutti = std::array<Ramo, tabella_aree.size()>;

  constexpr Rami(Ramo uno) { rami_.fill(uno); }
  constexpr explicit Rami(const Tutti& rami) : rami_(rami) {}

  constexpr Ramo operator[](Area area) const { return rami_[static_cast<std::size_t>(area)]; }
  bool operator==(const Rami&) const = default;

 private:
  Tutti rami_{};
};

/// A branch for each area out of one function that is told it: a line knows its area as soon as it
/// is filled, and what the function does for others is left out.
template <Esito (&istr)(Plc&, Riga_PLC&, Area)>
constexpr Rami Per_Area() {
  return []<std::size_t... n>(std::index_sequence<n...>) {
    return Rami(Rami::Tutti{
        [](Plc& plc, Riga_PLC& riga) { return istr(plc, riga, static_cast<Area>(n)); }...});
  }
  (std::make_index_sequence<tabella_aree.size()>());
}

/// One mnemonic: the single source for the checker, the interpreter, the link of jumps and
/// procedures, the editor's colouring and completion, and the manual page of the instruction set.
struct Istruzione {
  std::string Nome = {};
  Famiglia Gruppo_Manuale{};
  Gruppo Trattamento{};
  const Regola* Operandi = nullptr;          ///< set exactly when `Trattamento` is `Con_Regola`
  Rami Esegui = Senza_Ramo;                  ///< `Ramo_Assente()` where the interpreter has none
  std::string Aiuto = {};                    ///< one line of Italian, UTF-8
  Connessione Unione = Connessione::LD;      ///< comparisons only
  Relazione Confronto = Relazione::Nessuna;  ///< comparisons only
  Compito Nel_Programma = Compito::Nessuno;
  /// What the editor offers for operands that no rule checks, UTF-8; empty: there are none.
  std::string_view Operandi_Liberi = {};
  /// How a line of text begins that is this instruction as a whole, comments and blanks included;
  /// empty where a line is divided into its words.
  std::string_view Testa = {};
  bool Testa_Maiuscola = false;  ///< `Testa` counts in small letters too once it stands in `Istr`

  /// As a student writes it.
  std::string_view Nome_Scritto() const { return Testa.empty() ? std::string_view(Nome) : Testa; }
};

/// All mnemonics that the checker knows, each once.
std::span<const Istruzione> Tabella_Istruzioni();

/// The row of a mnemonic as it stands in `Istr`, nullptr when it is unknown. A text longer than a
/// row's `Testa` that begins so is that row.
const Istruzione* Cerca_Istruzione(std::string_view istr);

/// The row whose `Testa` a line of text begins with, nullptr when there is none.
const Istruzione* Cerca_Testa(std::string_view riga);

/// Fills the decoded fields from `Istr`, `Area1` and `Area2`. To be called whenever those change.
void Decodifica(Riga_PLC& riga);

// The rows of the table by family, each defined in the file of its branches.
namespace righe {
using Righe = std::vector<Istruzione>;
Righe Contatti();
Righe Pila();
Righe Uscite();
Righe Temporizzatori();
Righe Contatori();
Righe Trasferimenti();
Righe Aritmetica();
Righe Programma();
Righe Confronti();
Righe Non_Eseguite();  ///< accepted by the checker, though the interpreter has no branch for them
Righe Non_Supportate();

/// Rows of one family and treatment, which their initialisers leave out; the help of what is
/// refused says so.
Righe Di(Famiglia famiglia, Gruppo trattamento, Righe righe);
Righe Insieme_Di(std::initializer_list<Righe> gruppi);
}  // namespace righe

}  // namespace tavorno
