// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "grading/outcome.h"

namespace tavorno {

/// The section of an exercise's page that tells what its script asks for: every case with its
/// marks, its demands with theirs, and what must come before. `esito` is what the script says of a
/// right program. Throws std::runtime_error when that has not full marks: then the script asks for
/// something else than the page promises.
std::string Sezione_Controlli(const Esito_Progetto& esito);

}  // namespace tavorno
