// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/memory.h"

// The link passes: what no line knows alone. Each returns 1 when it found a fault and 0 otherwise;
// the message of a fault is the caller's business. All work on rows 0..NRighe.
namespace tavorno {

std::uint8_t Assegna_JMP(Memoria& memoria);
std::uint8_t Assegna_SBR(Memoria& memoria);
std::uint8_t Assegna_SCR(Memoria& memoria);

}  // namespace tavorno
