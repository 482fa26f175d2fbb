// SPDX-License-Identifier: GPL-3.0-or-later
// tavorno-pagine SOURCE DESTINATION: writes the finished help folder.
#include <cstdio>
#include <exception>
#include <vector>

#include "HTML/generator/pages.h"
#include "plants/exercises.h"

using namespace tavorno;

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "uso: tavorno-pagine SORGENTE DESTINAZIONE\n");
    return 2;
  }
  try {
    std::vector<Pagina_Esercizio> esercizi;
    for (const Esercizio& esercizio : Tabella_Esercizi())
      esercizi.push_back({esercizio.Pagina, esercizio.Titolo, esercizio.Righe_IO});
    Scrivi_Guida(argv[1], argv[2], esercizi);
  } catch (const std::exception& errore) {
    std::fprintf(stderr, "tavorno-pagine: %s\n", errore.what());
    return 1;
  }
  return 0;
}
