// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "ladder/diagram.h"

namespace tavorno {

/// Why a network stays a list. Texts are Italian, UTF-8.
struct Non_Disegnabile {
  int Riga = 0;  ///< `Passo_Scala::Riga` of the instruction where it shows
  std::string Motivo;
  /// It reads a value of the logic stack that an earlier network left there.
  bool Usa_Pila_Precedente = false;
};

/// The diagram of a network, given as its instructions without the NETWORK line; an instruction
/// has its mnemonic as the program holds it ("A", "O"), its operands, and rising lines. A diagram
/// computes what the list computes, line for line in the same order, and leaves nothing else behind
/// but other values on the logic stack.
std::variant<Diagramma, Non_Disegnabile> Disegna(std::span<const Passo_Scala> rete);

}  // namespace tavorno
