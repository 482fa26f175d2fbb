// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "grading/likeness.h"
#include "grading/outcome.h"
#include "grading/reports.h"

namespace tavorno {

/// One hand-in of a class as its reports show it.
struct Voto {
  std::string Studente;
  Esito_Progetto Esito;
  std::vector<std::string> Diagrammi;  ///< SVG of each case, empty for those without
  std::string Programma;               ///< its text, UTF-8; empty when it could not be read
  Firma Impronta;                      ///< what it is held against the others by
};

/// The page of one student: cases, marks, messages, diagrams of the failed cases. HTML, UTF-8.
std::string Pagina_Studente(const Voto& voto, const Testata& testata);

/// The page of the teacher: a table of students and cases with links to the pages of the students,
/// and the groups of hand-ins that are alike with a link to `Nome_Pagina_Simili`.
std::string Pagina_Docente(const std::vector<Voto>& voti, const Testata& testata);

/// The programs that are alike, each group beside each other.
std::string Pagina_Simili(const std::vector<Voto>& voti, const Testata& testata);
inline constexpr const char* Nome_Pagina_Simili = "simili.html";

/// The name of the page of the student at this place.
std::string Nome_Pagina(std::size_t posto);

/// A row for each hand-in and a column for each case, with a mark at the beginning by which
/// spreadsheets know UTF-8.
std::string Tabella_Csv(const std::vector<Voto>& voti);

}  // namespace tavorno
