// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "plc/instructions.h"

namespace tavorno {

/// The numbers of an area as a student reads them: "I0.0–I1.7", "T0–T40", "AIW0, AIW2, AIW4",
/// "K fino a 255". UTF-8.
std::string Campo(Area area, const Numeri& numeri);

/// One text per operand of the rule, in words: what may stand there, with its numbers. A rule that
/// takes the same for both of its operands has one text only.
std::vector<std::string> Operandi_In_Parole(const Regola& regola);

/// A line with the mnemonic and the simplest operands that its rule takes, in the form of the
/// editor: "TON    T0, +10". Only for mnemonics with a rule or without operands.
std::string Riga_Esempio(const Istruzione& istruzione);

}  // namespace tavorno
