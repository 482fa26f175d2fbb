// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "plants/io_tables.h"

namespace tavorno {

/// The table of inputs and outputs of an exercise as HTML: number, symbol, address and comment,
/// inputs and outputs on their own grounds. Texts are not changed.
std::string Tabella_IO(std::span<const Riga_IO> righe);

}  // namespace tavorno
