// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/project_copy.h"

namespace tavorno {

Copia_Progetto::Copia_Progetto(const Progetto& progetto)
    : Main(progetto.txtList),
      Procedura(progetto.txtP),
      schede_(progetto.TabSP),
      scheda_(progetto.Scheda),
      titolo_(progetto.File_Titolo),
      pannelli_(progetto.stB) {
  for (int i = 1; i <= progetto.Num_SBR; ++i) procedure_.push_back(progetto.Tab_SBR[i]);
}

void Copia_Progetto::Rimetti(Progetto& progetto) const {
  progetto.Scrivi_Main(Main);
  progetto.Num_SBR = 0;
  for (const Riga_SBR& procedura : procedure_) progetto.Tab_SBR[++progetto.Num_SBR] = procedura;
  progetto.TabSP = schede_;
  progetto.Scheda = scheda_;
  progetto.txtP = Procedura;
  progetto.File_Titolo = titolo_;
  progetto.stB = pannelli_;
  progetto.Gestione_Voci(1);
}

}  // namespace tavorno
