// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/plc.h"

namespace tavorno {

/// Gives a command that enters a run loop, `mnuPlcRun` or `mnuPlcCont`, and comes back after its
/// first line: from then on the caller executes the lines, in its own time.
void Avvia_Guidata(Plc& plc, void (Plc::*comando)());

}  // namespace tavorno
