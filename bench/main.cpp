// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <iostream>

#include "bench/commands.h"
#include "bench/grade_command.h"

int main(int argc, char** argv) {
  try {
    const std::vector<std::string> parole(argv + 1, argv + argc);
    if (!parole.empty() && parole.front() == "prova")
      return tavorno::Comando_Prova({parole.begin() + 1, parole.end()}, std::cout, std::cerr);
    return tavorno::Banco(parole, std::cout, std::cerr);
  } catch (const std::exception& errore) {
    std::cerr << "tavorno-banco: " << errore.what() << '\n';
    return tavorno::Uscita_Errori;
  }
}
