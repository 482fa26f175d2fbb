// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "plants/io_tables.h"

namespace tavorno {

/// The wiring of an exercise as an SVG file, drawn from its table of inputs and outputs: the PLC
/// with its inputs fed from L+ above and its loads on M below, and a legend of the symbols used.
/// At most 670 pixels wide with sixteen terminals a side and three analog ones.
std::string Schema_Collegamenti(std::span<const Riga_IO> righe, const std::string& titolo);

}  // namespace tavorno
