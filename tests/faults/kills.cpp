// SPDX-License-Identifier: GPL-3.0-or-later
// Kills a program at random moments of a loop that saves a project, exports it and copies the
// unsaved text, and looks at what is left: every file whole, no more than one hidden file for each,
// and the next save clears those up. Usage: kills KILLS [SEED]; prints what it found.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <set>
#include <thread>

#include "awl/recovery_keeper.h"
#include "plc/plc.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace tavorno;
namespace fs = std::filesystem;

/// A text of one letter, so that a mixture shows.
std::string Testo(int volta) {
  const char lettera = static_cast<char>('a' + volta % 26);
  std::string testo = "NETWORK 1\r\n";
  for (int riga = 0; riga < 20 + volta % 300; ++riga)
    testo += "//" + std::string(60, lettera) + "\r\n";
  return testo;
}

bool Intero(const std::string& byte) {
  std::set<char> lettere;
  for (std::size_t i = 0; i + 2 < byte.size(); ++i) {
    if (byte[i] == '/' && byte[i + 1] == '/') lettere.insert(byte[i + 2]);
  }
  return lettere.size() == 1;
}

[[noreturn]] void Salva_Per_Sempre(const fs::path& cartella, int da, int pronto) {
  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});
  std::string prossimo;
  progetto.Chiedi.Scegli_File = [&](const Richiesta_File&) {
    return File_Scelto{(cartella / prossimo).string(), prossimo};
  };
  Custode_Testi custode(progetto, cartella / "copie");
  for (int volta = da;; ++volta) {
    progetto.Scrivi_Main(Testo(volta));
    custode.Passo();
    prossimo = "a.AWL";
    progetto.mnuFileSave();
    if (progetto.Annulla != 0) ::_exit(1);
    prossimo = "a.TXT";
    progetto.mnuFileTxtExp();
    if (volta == da && ::write(pronto, "p", 1) != 1) ::_exit(1);
  }
}

int Cattivi(const fs::path& cartella) {
  int cattivi = 0;
  for (const char* nome : {"a.AWL", "a.TXT"}) {
    const std::string byte = prova::Leggi_Byte(cartella / nome);
    const char* fine = nome[2] == 'A' ? "END_ORGANIZATION_BLOCK\r\n\r\n\r\n" : "\r\n";
    if (!Intero(byte) || !byte.ends_with(fine)) {
      std::printf("broken: %s, %zu bytes\n", nome, byte.size());
      ++cattivi;
    }
  }
  const Eredita eredita(cartella / "copie");
  for (const Eredita::Voce& voce : eredita.Voci()) {
    if (voce.Copia && Intero(voce.Copia->Main)) continue;
    std::printf("broken: %s\n", voce.File.c_str());
    ++cattivi;
  }
  return cattivi;
}

int Nascosti(const fs::path& cartella) {
  int nascosti = 0;
  for (const auto& voce : fs::directory_iterator(cartella)) {
    if (voce.path().filename().string().starts_with('.')) ++nascosti;
  }
  return nascosti;
}

}  // namespace

int main(int argc, char** argv) {
  const int uccisioni = argc > 1 ? std::atoi(argv[1]) : 20;
  const auto seme = static_cast<unsigned>(argc > 2 ? std::atoi(argv[2]) : 20261122);
  if (uccisioni <= 0) return 64;
  std::mt19937 caso{seme};
  const prova::Cartella_Temporanea cartella;
  int cattivi = 0, con_resti = 0, massimo = 0;
  for (int volta = 0; volta < uccisioni; ++volta) {
    int capi[2];
    if (::pipe(capi) != 0) return 1;
    const pid_t figlio = ::fork();
    if (figlio == 0) Salva_Per_Sempre(cartella, volta * 31, capi[1]);
    ::close(capi[1]);
    char pronto = 0;
    const bool partito = ::read(capi[0], &pronto, 1) == 1;  // the first round is through
    ::close(capi[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(caso() % 30'000));
    ::kill(figlio, SIGKILL);
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    if (!partito || !WIFSIGNALED(stato)) {
      std::printf("the program ended by itself\n");
      return 1;
    }
    cattivi += Cattivi(cartella);
    const int nascosti = Nascosti(cartella);
    con_resti += nascosti > 0 ? 1 : 0;
    massimo = std::max(massimo, nascosti);
  }
  // What the last kill has left goes with the next save of each file.
  for (const char* nome : {"a.AWL", "a.TXT"}) {
    if (!Scrivi_File((cartella / nome).string(), "fine").empty()) ++cattivi;
  }
  const int alla_fine = Nascosti(cartella);
  std::printf(
      "%d kills: %d broken files, %d times a hidden file was left, %d at most at a time, %d "
      "after the next save\n",
      uccisioni, cattivi, con_resti, massimo, alla_fine);
  return cattivi == 0 && massimo <= 2 && alla_fine == 0 ? 0 : 1;
}
