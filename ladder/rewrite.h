// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ladder/project_ladder.h"

namespace tavorno {

/// A text with the instructions of one of its networks changed. An instruction that stays keeps its
/// line as it was formatted, one with another operand its comment, and lines without instructions
/// their place; a new one stands in a line as the reader would write it. `rete` is the network with
/// its old instructions, `righe` the rows of the whole project (`Righe_A_Schermo`), `nuovi` the
/// instructions as `Elenca` gives them, with `Passo_Scala::Riga` of those that were there before.
/// Bytes of the code page, lines joined by CR LF.
std::string Riscrivi_Rete(std::string_view testo, const Rete_Scala& rete,
                          std::span<const Riga_Src> righe, std::span<const Passo_Scala> nuovi);

/// An instruction as the reader writes it: "TON    T37, +50".
std::string Linea_Canonica(const Passo_Scala& passo);

}  // namespace tavorno
