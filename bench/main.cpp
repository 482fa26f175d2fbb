// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <iostream>

#include "bench/class_command.h"
#include "bench/commands.h"
#include "bench/grade_command.h"
#include "bench/process.h"

namespace {

int Esegui(const std::vector<std::string>& parole) {
  try {
    if (!parole.empty() && parole.front() == "prova")
      return tavorno::Comando_Prova({parole.begin() + 1, parole.end()}, std::cout, std::cerr);
    if (!parole.empty() && parole.front() == "classe")
      return tavorno::Comando_Classe({parole.begin() + 1, parole.end()}, std::cout, std::cerr);
    return tavorno::Banco(parole, std::cout, std::cerr);
  } catch (const std::exception& errore) {
    std::cerr << "tavorno-banco: " << errore.what() << '\n';
    return tavorno::Uscita_Errori;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const int stato = Esegui(tavorno::Prepara_Processo(argc, argv));
  std::cout.flush();
  if (std::cout) return stato;
  std::cerr << "tavorno-banco: l'uscita è andata persa: il disco è pieno o il file è chiuso\n";
  return tavorno::Uscita_Errori;
}
