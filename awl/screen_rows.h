// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "awl/project.h"

namespace tavorno {

/// The rows that the texts on screen will be once they have been saved and read: with the numbers
/// that they will have in the CPU, and their places in the texts. A line that the reader would
/// refuse is a row with nothing but its mnemonic.
std::vector<Riga_Src> Righe_A_Schermo(const Stato_Progetto& progetto);

/// One line of a text as such a row.
Riga_Src Riga_A_Schermo(std::string_view linea, Posto_Riga posto = {});

/// The text of a block as it stands on screen: 0 the Main, else a row of `Tab_SBR`.
const std::string& Testo_A_Schermo(const Stato_Progetto& progetto, int testo);

}  // namespace tavorno
