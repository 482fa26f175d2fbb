// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/trace_options.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "awl/file_io.h"

namespace tavorno {

bool Vuole_Traccia(const Argomenti& argomenti) {
  return argomenti.Ha("--vcd") || argomenti.Ha("--svg");
}

void Scrivi_Traccia(const Argomenti& argomenti, const Traccia& traccia,
                    const std::string& progetto) {
  const std::string titolo = std::filesystem::path(progetto).filename().string();
  if (argomenti.Ha("--vcd")) Scrivi_Rapporto(argomenti.Testo("--vcd", ""), Testo_Vcd(traccia));
  if (argomenti.Ha("--svg"))
    Scrivi_Rapporto(argomenti.Testo("--svg", ""), Diagramma_Svg(traccia, titolo));
}

void Scrivi_Rapporto(const std::string& file, const std::string& testo) {
  std::error_code nessuno;
  const std::filesystem::file_status stato = std::filesystem::status(file, nessuno);
  std::string errore;
  if (std::filesystem::exists(stato) && !std::filesystem::is_regular_file(stato) &&
      !std::filesystem::is_directory(stato)) {
    // A pipe, a terminal or /dev/null is written to; it must not be replaced by a file.
    std::ofstream uscita(file, std::ios::binary);
    if (!(uscita << testo << std::flush)) errore = "la scrittura non è riuscita";
  } else {
    errore = Scrivi_File(file, testo);
  }
  if (!errore.empty()) throw std::runtime_error("impossibile scrivere \"" + file + "\": " + errore);
}

}  // namespace tavorno
