// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "awl/diagnostic.h"
#include "awl/source.h"

// Where the texts of a project name operands, labels and procedures, as they stand in the editor.
namespace tavorno {

struct Istruzione;

enum class Genere_Nome : std::uint8_t { Operando, Etichetta, Procedura };

/// What is named. `Nome` is its one form: an operand in capitals without leading zeros ("I0.3",
/// "T37", "VW10"), the number of a label, the name of a procedure in capitals; bytes of the code
/// page.
struct Nominato {
  Genere_Nome Genere = Genere_Nome::Operando;
  std::string Nome;

  bool operator==(const Nominato&) const = default;
};

enum class Uso : std::uint8_t {
  Lettura,      ///< of an operand; a jump to a label, a call of a procedure
  Scrittura,    ///< of an operand
  Entrambi,     ///< reads an operand and writes it
  Definizione,  ///< a label's own line
};

/// What an instruction does with its operands, as far as it has them.
struct Usi_Operandi {
  Uso Primo = Uso::Lettura;
  Uso Secondo = Uso::Entrambi;  ///< most of those without a rule compute into it
};
Usi_Operandi Usi_Istruzione(const Istruzione& istruzione);

struct Riferimento {
  Nominato Di;
  Uso Come = Uso::Lettura;
  Posto_Riga Posto;
  int Colonna = 0;    ///< of the operand, in characters from 0
  int Lunghezza = 0;  ///< in characters
  int Quanti = 1;     ///< bits or elements from the named one on that S and R write
  std::string Linea;  ///< bytes of the code page, without blanks at its ends

  bool operator==(const Riferimento&) const = default;
};

/// The one form of an operand; empty for a constant and for what is no operand of the CPU.
std::string Nome_Operando(std::string_view scritto);

/// All there are, from top to bottom, the Main first. `Sorgente::Righe` is not looked at.
std::vector<Riferimento> Riferimenti(const Sorgente& testi);

/// What the caret stands on: the name at a column (in characters) or ending there, or else the
/// only name of the line.
std::optional<Nominato> Nominato_In(std::string_view linea, int colonna);

/// Whether a line touches what is meant: by its name, as one of several bits that it writes, or
/// as a part of a byte or word of bits (IB0 of I0.3), or the other way round.
bool Tocca(const Riferimento& riferimento, const Nominato& quale);

/// Those of all references that touch it.
std::vector<Riferimento> Usi_Di(const Sorgente& testi, const Nominato& quale);

}  // namespace tavorno
