// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "grading/outcome.h"
#include "grading/reports.h"

namespace tavorno {

/// One hand-in of a class as its reports show it.
struct Voto {
  std::string Studente;
  Esito_Progetto Esito;
  std::vector<std::string> Diagrammi;  ///< SVG of each case, empty for those without
};

/// The page of one student: cases, marks, messages, diagrams of the failed cases. HTML, UTF-8.
std::string Pagina_Studente(const Voto& voto, const Testata& testata);

/// The page of the teacher: a table of students and cases with links to the pages of the students.
std::string Pagina_Docente(const std::vector<Voto>& voti, const Testata& testata);

/// The name of the page of the student at this place.
std::string Nome_Pagina(std::size_t posto);

/// A row for each hand-in and a column for each case, with a mark at the beginning by which
/// spreadsheets know UTF-8.
std::string Tabella_Csv(const std::vector<Voto>& voti);

}  // namespace tavorno
