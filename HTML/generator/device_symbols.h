// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "HTML/generator/devices.h"
#include "HTML/generator/drawing.h"

namespace tavorno {

/// Height of every symbol: the wire arrives at (x, y) and leaves at (x, y + this).
inline constexpr double altezza_simbolo = 28;

/// Draws the symbol of IEC 60617 in the vertical wire at `x`, its operator on the left.
void Disegna_Simbolo(Tavola& disegno, const Dispositivo& dispositivo, double x, double y);

}  // namespace tavorno
