// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

#include "awl/diagnostic.h"
#include "awl/source.h"

// From one place in the texts to another that belongs to it.
namespace tavorno {

/// Where a line leads: CALL to the first line of its procedure, JMP to its LBL, and LBL back to
/// the first JMP that leads to it. Where several have the same number or name the last one counts,
/// as it does for the CPU. Nothing for other lines, and where there is no such place.
std::optional<Posto_Riga> Meta(const Sorgente& testi, Posto_Riga da);

/// The line of the next network below a line, or of the one above; -1 for none.
int Segmento_Dopo(std::string_view testo, int linea);
int Segmento_Prima(std::string_view testo, int linea);

}  // namespace tavorno
