// SPDX-License-Identifier: GPL-3.0-or-later
// Measures a script: how many mutants of a solution keep full marks. Usage:
//   script_mutants N [PROJECT.AWL [SCRIPT.lua]]
#include <charconv>
#include <cstring>
#include <exception>
#include <iostream>

#include "plants/exercises.h"
#include "plc/codepage.h"
#include "tests/grading/exercise_bed.h"
#include "tests/grading/mutants.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

int Misura(const Esempio& esempio, const std::string& progetto, const std::string& script) {
  Verifiche verifiche = Con_Lo_Script(esempio);
  if (!script.empty()) verifiche.Script = {Leggi_Sorgente(script)};
  const Esito_Progetto intero = Esamina(progetto, verifiche);
  if (!intero.Superato()) {
    std::cerr << progetto << ": " << intero.Primo_Rilievo() << '\n';
    return 1;
  }
  const std::vector<Mutante> mutanti = Mutanti(Leggi_Byte(progetto));
  const Cartella_Temporanea cartella;
  std::vector<std::string> file;
  for (std::size_t n = 0; n < mutanti.size(); ++n) {
    file.push_back((cartella / (std::to_string(n) + ".AWL")).string());
    Scrivi_Byte(file.back(), mutanti[n].Testo);
  }
  verifiche.Basta_Un_Errore = true;
  const std::vector<Esito_Progetto> esiti = Esamina_Insieme(file, verifiche);
  std::size_t compilati = 0, interi = 0;
  for (std::size_t n = 0; n < esiti.size(); ++n) {
    compilati += esiti[n].Compilato ? 1 : 0;
    if (!esiti[n].Superato()) continue;
    ++interi;
    std::cout << "riga " << mutanti[n].Riga << ": " << A_Utf8(mutanti[n].Da) << " -> "
              << (mutanti[n].A.empty() ? "(tolta)" : A_Utf8(mutanti[n].A)) << '\n';
  }
  std::cout << esempio.Nome() << ": " << interi << " mutanti su " << compilati
            << " hanno tutti i punti";
  if (compilati > 0)
    std::cout << " ("
              << Testo_Punti(100.0 * static_cast<double>(interi) / static_cast<double>(compilati))
              << " %)";
  std::cout << "; " << esiti.size() - compilati << " non si compilano.\n";
  return 0;
}

}  // namespace

}  // namespace tavorno::prova

int main(int argc, char** argv) {
  using namespace tavorno::prova;
  Esempio esempio{-1};
  if (argc >= 2) std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), esempio.Numero);
  const int ultimo = static_cast<int>(tavorno::Tabella_Esercizi().size()) - 1;
  if (esempio.Numero < 0 || esempio.Numero > ultimo || argc > 4) {
    std::cerr << "Usage: script_mutants N [PROJECT.AWL [SCRIPT.lua]], N from 0 to " << ultimo
              << "\n";
    return 64;
  }
  try {
    return Misura(esempio, argc > 2 ? argv[2] : esempio.Soluzione().string(),
                  argc > 3 ? argv[3] : "");
  } catch (const std::exception& errore) {
    std::cerr << errore.what() << '\n';
    return 1;
  }
}
