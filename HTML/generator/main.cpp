// SPDX-License-Identifier: GPL-3.0-or-later
// tavorno-pagine SOURCE EXAMPLES DESTINATION: writes the finished help folder. EXAMPLES holds the
// scripts and the solved projects of the exercises.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <vector>

#include "HTML/generator/demands.h"
#include "HTML/generator/pages.h"
#include "grading/grader.h"
#include "plants/exercises.h"

using namespace tavorno;

namespace {

/// What the exercise's script says of its solved project: "US-07.htm" has us07.lua and us07.AWL.
Esito_Progetto Esame_Del_Risolto(const std::filesystem::path& esempi, const Esercizio& esercizio) {
  const std::string numero = std::string(esercizio.Pagina).substr(3, 2);
  Verifiche verifiche;
  verifiche.Script.push_back(Leggi_Sorgente((esempi / ("us" + numero + ".lua")).string()));
  verifiche.Impianto = &esercizio;
  return Esamina((esempi / ("us" + numero + ".AWL")).string(), verifiche);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "uso: tavorno-pagine SORGENTE ESEMPI DESTINAZIONE\n");
    return 2;
  }
  try {
    std::vector<Pagina_Esercizio> esercizi;
    for (const Esercizio& esercizio : Tabella_Esercizi())
      esercizi.push_back({esercizio.Pagina, esercizio.Titolo, esercizio.Righe_IO,
                          Sezione_Controlli(Esame_Del_Risolto(argv[2], esercizio))});
    Scrivi_Guida(argv[1], argv[3], esercizi);
  } catch (const std::exception& errore) {
    std::fprintf(stderr, "tavorno-pagine: %s\n", errore.what());
    return 1;
  }
  return 0;
}
