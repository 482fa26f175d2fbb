// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "awl/project.h"
#include "plc/instructions.h"
#include "plc/plc.h"

namespace tavorno::prova {

/// A number in 0..massimo, from a generator or from the bytes of a fuzzer.
using Caso = std::function<unsigned(unsigned massimo)>;

/// A line of an instruction with operands that its rule may or may not take.
Riga_Src Riga_Casuale(const Istruzione& istruzione, const Caso& caso);

/// Loads a random program of about `righe` lines, every one of which the line checker accepts, with
/// a MEND and up to two procedures, compiled and linked. Returns the lines accepted.
int Programma_Casuale(Progetto& progetto, const Caso& caso, int righe);

/// Fills memory, inputs and analog values.
void Memoria_Casuale(Plc& plc, const Caso& caso);

/// Runs the loaded program for `righe` lines with changing inputs and passing time; ends early when
/// the CPU stops or meets a fatal end that accepted programs can meet. Returns a breach of what
/// must hold, empty when there is none; adds the lines that ran to `eseguite`.
std::string Esegui_Controllando(Plc& plc, const Caso& caso, int righe, long long& eseguite);

}  // namespace tavorno::prova
