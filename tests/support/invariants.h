// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "plc/plc.h"

namespace tavorno::prova {

/// What holds between any two lines of any program that the compiler accepts. Returns the first
/// breach, empty when there is none.
std::string Invarianti(const Plc& plc);

/// The fatal ends that an accepted program can meet; any other is a defect.
bool Fatale_Previsto(const Fatale& fatale);

}  // namespace tavorno::prova
