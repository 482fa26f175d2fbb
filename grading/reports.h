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

/// What a report says of itself.
struct Testata {
  struct Script {
    std::string Nome, Impronta;
  };
  std::vector<Script> Con;  ///< what was examined with
};

/// The version of the program.
const char* Versione();

/// A suite for each project and a testcase for each case, as continuous-integration servers read
/// it; times are virtual.
std::string Rapporto_Junit(const std::vector<Esito_Progetto>& esiti, const Testata& testata);

/// A row for each project, separated by ";" and with decimal commas; version, scripts and their
/// hashes stand in the last columns.
std::string Rapporto_Csv(const std::vector<Esito_Progetto>& esiti, const Testata& testata);

/// Version, scripts, and an array of projects with their cases.
std::string Rapporto_Json(const std::vector<Esito_Progetto>& esiti, const Testata& testata);

}  // namespace tavorno
