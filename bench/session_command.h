// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>

#include "bench/arguments.h"

namespace tavorno {

/// `rivivi SEDUTA`: plays a session again and prints what changed, or how it differs from another.
int Comando_Rivivi(const Argomenti& argomenti, std::ostream& out);

}  // namespace tavorno
