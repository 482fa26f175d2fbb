// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/plc.h"

namespace tavorno {

/// Lets a command in that enters a run loop, Run or Cont, and comes back after its first line: from
/// then on the caller executes the lines, in its own time. Played again, the loop does.
void Avvia_Guidata(Plc& plc, Comando_Corsa comando);

}  // namespace tavorno
