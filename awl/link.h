// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/memory.h"

// The link passes: what no line knows alone. Each returns 1 when it found a fault and 0 otherwise;
// the message of a fault is the caller's business. All work on rows 0..NRighe.
namespace tavorno {

/// Targets and timer lists of the jumps. A fault: not as many labels of their numbers as jumps.
std::uint8_t Assegna_JMP(Memoria& memoria);
/// The same of the calls; names are compared without regard to capitals.
std::uint8_t Assegna_SBR(Memoria& memoria);
/// Sections of LSCR. A fault: one without its SCRE, or with a jump or label inside.
std::uint8_t Assegna_SCR(Memoria& memoria);

}  // namespace tavorno
