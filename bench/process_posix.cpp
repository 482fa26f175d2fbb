// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "bench/process.h"

namespace tavorno {

namespace {

/// A standard stream that is closed would give its number to the next file, and the output would go
/// into that. Opened for reading, so that what is written there still fails.
void Occupa_I_Flussi_Chiusi() {
  for (const int flusso : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(flusso, F_GETFD) == -1) ::open("/dev/null", O_RDONLY);
  }
}

}  // namespace

std::vector<std::string> Prepara_Processo(int argc, char** argv) {
  Occupa_I_Flussi_Chiusi();
  std::signal(SIGPIPE, SIG_IGN);  // a reader that has gone is told like a full disk
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

bool Errori_Su_Terminale() {
  return ::isatty(STDERR_FILENO) == 1;
}

std::filesystem::path Cartella_Di_Appoggio() {
  std::string nome = (std::filesystem::temp_directory_path() / "tavorno-classe-XXXXXX").string();
  if (!::mkdtemp(nome.data())) throw std::runtime_error("impossibile scrivere \"" + nome + "\"");
  return nome;
}

}  // namespace tavorno
