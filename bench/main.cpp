// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <iostream>

#include "bench/commands.h"

int main(int argc, char** argv) {
  try {
    return tavorno::Banco({argv + 1, argv + argc}, std::cout, std::cerr);
  } catch (const std::exception& errore) {
    std::cerr << "tavorno-banco: " << errore.what() << '\n';
    return tavorno::Uscita_Errori;
  }
}
