// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/trace_options.h"

#include <filesystem>
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
  const std::string errore = Scrivi_File(file, testo);
  if (!errore.empty()) throw std::runtime_error("impossibile scrivere \"" + file + "\": " + errore);
}

}  // namespace tavorno
