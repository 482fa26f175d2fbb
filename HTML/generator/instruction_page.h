// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tavorno {

/// The anchor of a mnemonic in the page of the instruction set, without "#": "i-LD", "i-LDB_gt_eq".
std::string Ancora_Di(std::string_view istruzione);

/// "SET_IST.htm": every row of the table of instructions. UTF-8.
std::string Pagina_Istruzioni();

}  // namespace tavorno
