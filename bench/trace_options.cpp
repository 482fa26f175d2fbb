// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/trace_options.h"

#include "awl/file_io.h"
#include "bench/report_files.h"

namespace tavorno {

bool Vuole_Traccia(const Argomenti& argomenti) {
  return argomenti.Ha("--vcd") || argomenti.Ha("--svg");
}

void Scrivi_Traccia(const Argomenti& argomenti, const Traccia& traccia,
                    const std::string& progetto) {
  const std::string titolo = Testo_Percorso(Percorso_Disco(progetto).filename());
  if (argomenti.Ha("--vcd")) Scrivi_Rapporto(argomenti.Testo("--vcd", ""), Testo_Vcd(traccia));
  if (argomenti.Ha("--svg"))
    Scrivi_Rapporto(argomenti.Testo("--svg", ""), Diagramma_Svg(traccia, titolo));
}

}  // namespace tavorno
