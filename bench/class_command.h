// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tavorno {

/// `tavorno-banco classe`: grades a whole class and writes its reports into a folder.
int Comando_Classe(const std::vector<std::string>& parole, std::ostream& out, std::ostream& err);

/// The same with the help that belongs to it.
std::string Aiuto_Classe();

}  // namespace tavorno
