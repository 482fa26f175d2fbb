// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "recorder/recorder.h"
#include "trace/line_state.h"

namespace tavorno {

/// Where power flowed at the moment at hand: in the scan that executed the last line, by line of
/// the program. Found by playing that scan again, so the CPU must stand. Empty, or partly unknown,
/// where the scan began before the first moment that can be gone back to.
std::vector<Flusso_Riga> Flusso_Al_Momento(Registratore& registratore);

}  // namespace tavorno
