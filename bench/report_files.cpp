// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/report_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "awl/file_io.h"
#include "grading/hand_in_search.h"

namespace tavorno {

namespace {

namespace fs = std::filesystem;

/// Good for several reports.
bool Di_Passaggio(const std::string& file) {
  return Di_Sistema(Percorso_Disco(file));
}

/// Two names of one file, also of one that is not there yet.
bool Stesso_File(const std::string& uno, const std::string& altro) {
  std::error_code errore;
  const fs::path primo = Percorso_Disco(uno), secondo = Percorso_Disco(altro);
  if (fs::equivalent(primo, secondo, errore)) return true;
  const fs::path a = fs::weakly_canonical(primo, errore), b = fs::weakly_canonical(secondo, errore);
  return !a.empty() && a == b;
}

/// What an option's own report may be called, and no other.
std::string Estensione_Sua(const std::string& opzione) {
  return opzione == "--script" ? ".lua" : opzione == "--uscita" ? ".seduta" : "";
}

}  // namespace

void Controlla_Rapporti(const Argomenti& argomenti, const std::vector<std::string>& opzioni,
                        const std::vector<std::string>& letti) {
  std::vector<std::string> occupati = letti;
  for (const std::string& opzione : opzioni) {
    if (!argomenti.Ha(opzione)) continue;
    const std::string file = argomenti.Testo(opzione, "");
    const std::string estensione = Estensione(file);
    const bool di_lavoro = estensione == ".awl" || estensione == ".lua" || estensione == ".seduta";
    if (di_lavoro && estensione != Estensione_Sua(opzione))
      throw Uso_Errato(opzione + ": un rapporto non può chiamarsi \"" + file +
                       "\", come un progetto, uno script o una seduta");
    if (Di_Passaggio(file)) continue;
    if (std::ranges::any_of(occupati, [&](const auto& altro) { return Stesso_File(file, altro); }))
      throw Uso_Errato(opzione + ": il rapporto \"" + file +
                       "\" prenderebbe il posto di un altro file di questo comando");
    occupati.push_back(file);
  }
}

void Scrivi_Rapporto(const std::string& file, const std::string& testo) {
  std::string errore;
  if (Di_Passaggio(file)) {
    std::ofstream uscita(Percorso_Disco(file), std::ios::binary);
    if (!(uscita << testo << std::flush)) errore = "la scrittura non è riuscita";
  } else {
    errore = Scrivi_File(file, testo);
  }
  if (!errore.empty()) throw std::runtime_error("impossibile scrivere \"" + file + "\": " + errore);
}

}  // namespace tavorno
