// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/pages.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "HTML/generator/html_text.h"
#include "HTML/generator/instruction_page.h"
#include "HTML/generator/io_table.h"
#include "HTML/generator/ladder_pictures.h"
#include "HTML/generator/wiring_diagram.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

// For whoever writes a new exercise; not a page of the help.
constexpr const char* modello = "modello.htm";

/// The help viewer loads a style sheet only when its type is said, and stretches a picture by the
/// line height of its paragraph: pages need not know.
std::string Per_Il_Visore(const std::string& pagina) {
  return Sostituisci(Sostituisci(pagina, "<link rel=\"stylesheet\" href",
                                 "<link rel=\"stylesheet\" type=\"text/css\" href"),
                     "<p><img", "<p class=\"figura\"><img");
}

std::string Leggi(const fs::path& file) {
  std::ifstream flusso(file, std::ios::binary);
  if (!flusso) throw std::runtime_error("manca la pagina " + file.string());
  return {std::istreambuf_iterator<char>(flusso), {}};
}

void Scrivi(const fs::path& file, const std::string& testo) {
  fs::create_directories(file.parent_path());
  std::ofstream flusso(file, std::ios::binary);
  flusso << testo;
  if (!flusso.flush()) throw std::runtime_error("non si può scrivere " + file.string());
}

/// The name that the drawings of a page begin with: "SCALA.htm" has "scala-1.svg".
std::string Nome_Figure(const fs::path& pagina) {
  std::string nome = pagina.stem().string();
  std::ranges::transform(nome, nome.begin(), [](unsigned char c) { return std::tolower(c); });
  return nome;
}

/// The files of one folder that belong to the help; folders below it are not looked at. Drawings
/// of what pages tell as lists are added to `figure`.
void Copia_File(const fs::path& da, const fs::path& a, Figure_Scala& figure) {
  if (!fs::is_directory(da)) return;
  for (const fs::directory_entry& voce : fs::directory_iterator(da)) {
    const std::string tipo = voce.path().extension().string();
    const bool della_guida = tipo == ".htm" || tipo == ".css" || tipo == ".svg";
    if (!voce.is_regular_file() || !della_guida || voce.path().filename() == modello) continue;
    std::string testo = Leggi(voce.path());
    if (tipo == ".htm") testo = Affianca_Scala(testo, Nome_Figure(voce.path()), figure);
    Scrivi(a / voce.path().filename(), Per_Il_Visore(testo));
  }
}

}  // namespace

std::string File_Schema(const Pagina_Esercizio& esercizio) {
  return "pictures/" + fs::path(esercizio.Pagina).stem().string() + "-schema.svg";
}

std::string Completa_Pagina(const std::string& pagina, const Pagina_Esercizio& esercizio) {
  const std::string schema =
      "<p><img src=\"" + File_Schema(esercizio) + "\" alt=\"Schema dei collegamenti al PLC\"></p>";
  const std::string completa = Sostituisci(
      Sostituisci(pagina, segno_tabella, Tabella_IO(esercizio.Righe)), segno_schema, schema);
  return Sostituisci(completa, titolo_domande, esercizio.Controlli + titolo_domande);
}

void Scrivi_Guida(const fs::path& sorgente, const fs::path& destinazione,
                  std::span<const Pagina_Esercizio> esercizi) {
  Figure_Scala figure = Figure_Simboli();
  for (const char* cartella : {".", "pictures", "Panel", "Panel/pictures"})
    Copia_File(sorgente / cartella, destinazione / cartella, figure);
  for (const auto& [file, svg] : figure) Scrivi(destinazione / "pictures" / file, svg);
  Scrivi(destinazione / "SET_IST.htm", Pagina_Istruzioni());
  for (const Pagina_Esercizio& esercizio : esercizi) {
    const fs::path pannello = destinazione / "Panel";
    Scrivi(pannello / esercizio.Pagina,
           Per_Il_Visore(Completa_Pagina(Leggi(sorgente / "Panel" / esercizio.Pagina), esercizio)));
    Scrivi(pannello / File_Schema(esercizio),
           Schema_Collegamenti(esercizio.Righe, esercizio.Titolo));
  }
}

}  // namespace tavorno
