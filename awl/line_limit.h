// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "awl/find.h"

namespace tavorno {

/// The ends of lines that stand beyond the columns of a project: a saved text with such a line
/// could not be read again. `testo`: the text of a block in the code page.
std::vector<Trovato> Eccedenze(std::string_view testo);

}  // namespace tavorno
