// SPDX-License-Identifier: GPL-3.0-or-later
// Procedures come and go; `Tab_SBR` and the tabs stay sorted by number.
#include "awl/project.h"
#include "awl/templates.h"

namespace tavorno {

/// Makes room for a procedure and fills its row but for the text. Returns the row, or 0 when the
/// table is full.
int Progetto::Inserisci_Procedura() {
  if (Num_SBR == Tab_SBR.ultimo) {
    Avvisa({"Attenzione!",
            "Il progetto può contenere al massimo 64 procedure!",
            Icona::Critica,
            Tasti::Ok,
            {}});
    return 0;
  }
  if (Num_SBR == 0) TabSP.clear();  // the empty tab
  int nuova = 1;
  while (nuova <= Num_SBR && Tab_SBR[nuova].Num <= nuova) ++nuova;  // up to the gap of a removal
  ++Num_SBR;
  for (int i = Num_SBR; i > nuova; --i) Tab_SBR[i] = Tab_SBR[i - 1];

  const std::string numero = std::to_string(nuova - 1);
  Riga_SBR& procedura = Tab_SBR[nuova];
  procedura.Num = procedura.Indice = static_cast<std::uint8_t>(nuova);
  procedura.Nome = "SBR_" + numero;
  procedura.Sigla = "SBR" + numero;
  TabSP.insert(TabSP.begin() + (nuova - 1), procedura.Nome);
  return nuova;
}

void Progetto::New_Sub() {
  const int nuova = Inserisci_Procedura();
  if (nuova == 0) return;
  Scheda = nuova;
  Scrivi_Procedura(Testo_Nuova_Procedura(Tab_SBR[nuova].Nome));
  cmdDelP = true;
}

int Progetto::New_SubTxt(const std::string& testo) {
  const int nuova = Inserisci_Procedura();
  if (nuova != 0) Tab_SBR[nuova].Testo = Testa_Procedura(Tab_SBR[nuova].Nome) + testo;
  return nuova;
}

void Progetto::Remove_Sub() {
  if (Num_SBR == 0) {
    Avvisa({"Attenzione!", "Nessuna procedura inserita!", Icona::Critica, Tasti::Ok, {}});
    return;
  }
  if (Scheda == 0) return;  // the removed text is still on screen and belongs to no tab
  const int tolta = Scheda;
  for (int i = tolta; i < Num_SBR; ++i) Tab_SBR[i] = Tab_SBR[i + 1];
  TabSP.erase(TabSP.begin() + (tolta - 1));
  txtP = Tab_SBR[tolta].Testo;
  if (tolta == Num_SBR) Scheda = 0;  // its text stays on screen until another tab is chosen
  --Num_SBR;
  Modificato = -1;
  if (Num_SBR > 0) return;
  cmdDelP = false;
  CmdNet_1 = false;
  txtP.clear();
  TabSP.assign(1, "");
}

void Progetto::Scegli_Procedura(int scheda) {
  if (scheda < 1 || scheda > Num_SBR) return;
  Scheda = scheda;
  Scrivi_Procedura(Tab_SBR[scheda].Testo);
}

}  // namespace tavorno
