// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/documents/print_text.h"

#include "awl/project.h"
#include "awl/text.h"

namespace tavorno {

std::string Testo_Stampa(const Progetto& progetto, bool main, bool procedure) {
  const std::string fine(CRLF);
  std::string testo;
  if (main) testo += "----  Main Program ----" + fine + progetto.Testo_Main + fine + fine;
  if (!procedure) return testo;
  for (int i = 1; i <= progetto.Num_SBR; ++i) {
    const Riga_SBR& riga = progetto.Tab_SBR[i];
    testo += "--------- Procedura:" + riga.Nome + " --------------" + fine + fine + riga.Testo;
  }
  return testo;
}

}  // namespace tavorno
