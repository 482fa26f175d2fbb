// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "awl/diagnostic.h"
#include "awl/source.h"

namespace tavorno {

/// What will go wrong with texts as they stand, though no compile says so or not where it is: one
/// record for each line and rule, with the line as the editor shows it, from top to bottom. Each
/// says what will happen and what to do. `Sorgente::Righe` is not looked at.
std::vector<Diagnosi> Suggerimenti(const Sorgente& testi);

}  // namespace tavorno
