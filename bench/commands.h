// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "bench/exit_status.h"

namespace tavorno {

/// The command line without the program's name. Output in UTF-8; what is wrong goes to `err`.
int Banco(const std::vector<std::string>& argomenti, std::ostream& out, std::ostream& err);

}  // namespace tavorno
