// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tavorno {

/// The words behind `prova`. Returns an exit status of `Stato_Uscita`; output in UTF-8, what is
/// wrong with the call goes to `err`.
int Comando_Prova(const std::vector<std::string>& parole, std::ostream& out, std::ostream& err);

/// The help of this command.
std::string Aiuto_Prova();

}  // namespace tavorno
