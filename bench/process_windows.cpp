// SPDX-License-Identifier: GPL-3.0-or-later
// The headers of the system stand on this one.
// clang-format off
#include <windows.h>
// clang-format on
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdlib>
#include <random>
#include <stdexcept>

#include "awl/disk.h"
#include "awl/file_io.h"
#include "bench/process.h"

namespace tavorno {

namespace {

UINT codici_di_prima = 0;

/// The console shows UTF-8 and lets a line be rewritten; the next program finds it as it
/// was.
void Prepara_La_Console() {
  codici_di_prima = GetConsoleOutputCP();
  if (codici_di_prima != 0 && SetConsoleOutputCP(CP_UTF8))
    std::atexit([] { SetConsoleOutputCP(codici_di_prima); });
  const HANDLE errori = GetStdHandle(STD_ERROR_HANDLE);
  DWORD modo = 0;
  if (GetConsoleMode(errori, &modo))
    SetConsoleMode(errori, modo | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace

std::vector<std::string> Prepara_Processo(int, char**) {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  Prepara_La_Console();
  // main() gets the words in the code page of the system, which has no place for most names.
  std::vector<std::string> parole;
  int quante = 0;
  wchar_t** const tutte = CommandLineToArgvW(GetCommandLineW(), &quante);
  for (int i = 1; i < quante; ++i) {
    const std::u8string parola = std::filesystem::path(tutte[i]).u8string();
    parole.emplace_back(parola.begin(), parola.end());
  }
  LocalFree(tutte);
  return parole;
}

bool Errori_Su_Terminale() {
  DWORD modo = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &modo) != 0;
}

std::filesystem::path Cartella_Di_Appoggio() {
  std::random_device caso;
  const std::filesystem::path cartella =
      std::filesystem::temp_directory_path() / ("tavorno-classe-" + std::to_string(caso()));
  if (std::filesystem::exists(cartella) || Crea_Cartella_Privata(cartella))
    throw std::runtime_error("impossibile scrivere \"" + Testo_Percorso(cartella) + "\"");
  return cartella;
}

}  // namespace tavorno
