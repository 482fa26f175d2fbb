// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "awl/diagnostic.h"
#include "plc/memory.h"

namespace tavorno {

/// One instruction line of the project's text, bytes of the code page.
struct Riga_Src {
  std::string Istr;  ///< mnemonic in capitals; of a NETWORK line the whole line in capitals
  std::string Op1, Op2, Op3;  ///< operands in capitals, "" when absent
  std::uint8_t NOp = 0;       ///< blanks that separated the operands
  std::string Testo_Lista;    ///< the canonical line of the editor
  std::string Testo_CPU;      ///< the short canonical line of the CPU's listing
  /// Where the row stands in the texts. MEND and RET stand behind the last line of theirs, SBR on
  /// the first.
  Posto_Riga Posto{};

  bool operator==(const Riga_Src&) const = default;
};

/// Lines whose first operand is a procedure's name, kept as it is written: SBR, INT and CALL.
bool Nomina_Procedura(const std::string& istr);

/// Clears a compiled line and fills it from its source line: texts, numbers and the decoded fields.
/// Jump targets, timer lists and SCR sections are left to the link passes (awl/link.h). A number
/// beyond 16 bits is stored as the nearest one that fits; the line checker refuses it.
void Riempi_Riga(Riga_PLC& riga, const Riga_Src& sorgente);

}  // namespace tavorno
