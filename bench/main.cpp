// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <exception>
#include <iostream>

#include "bench/class_command.h"
#include "bench/commands.h"
#include "bench/grade_command.h"

namespace {

/// A standard stream that is closed would give its number to the next file, and the output would go
/// into that. Opened for reading, so that what is written there still fails.
void Occupa_I_Flussi_Chiusi() {
  for (const int flusso : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(flusso, F_GETFD) == -1) ::open("/dev/null", O_RDONLY);
  }
}

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
  Occupa_I_Flussi_Chiusi();
  std::signal(SIGPIPE, SIG_IGN);  // a reader that has gone is told like a full disk
  const int stato = Esegui({argv + 1, argv + argc});
  std::cout.flush();
  if (std::cout) return stato;
  std::cerr << "tavorno-banco: l'uscita è andata persa: il disco è pieno o il file è chiuso\n";
  return tavorno::Uscita_Errori;
}
