// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "grading/outcome.h"

namespace tavorno {

/// One project in full: every case, what did not hold and when, the sum and the marks.
void Stampa_Progetto(std::ostream& out, const Esito_Progetto& esito);

/// One project on one line.
void Stampa_Riga(std::ostream& out, const Esito_Progetto& esito);

/// A suite for each project and a testcase for each case, as continuous-integration servers read
/// it; times are virtual.
std::string Rapporto_Junit(const std::vector<Esito_Progetto>& esiti);

/// A row for each project, separated by ";" and with decimal commas.
std::string Rapporto_Csv(const std::vector<Esito_Progetto>& esiti);

/// An array of projects with their cases.
std::string Rapporto_Json(const std::vector<Esito_Progetto>& esiti);

}  // namespace tavorno
