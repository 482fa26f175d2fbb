// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ladder/diagram.h"

namespace tavorno {

/// The instructions of a diagram in canonical form: contacts joined one by one where that is
/// possible, blocks by ALD and OLD, branches behind LPS, LRD, LPP. Nothing when the logic stack is
/// too small for it. `Riga` of each is kept.
std::optional<std::vector<Passo_Scala>> Elenca(const Diagramma& diagramma);

/// An instruction as it is written: "S Q0.0 1".
std::string Come_Testo(const Passo_Scala& passo);

}  // namespace tavorno
