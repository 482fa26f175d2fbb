// SPDX-License-Identifier: GPL-3.0-or-later
// Undo beyond the texts: commands that replace or rearrange the project.
#include <algorithm>
#include <utility>

#include "awl/ui/main_window.h"

namespace tavorno {

FrmMain::Vista FrmMain::Come_Sta() const {
  Vista vista{p_, txtList->Documento(), documenti_, segni_, txtList->Come_Si_Vede()};
  if (const int riga = documenti_.Riga(mostrata_); riga != 0)
    vista.Procedure.Veduta_Di(riga) = txtP->Come_Si_Vede();
  return vista;
}

AwlEditor& FrmMain::Davanti() const {
  AwlEditor* const testi[] = {txtList, txtP, txtLst};
  return *testi[std::clamp(p_.Pagina, 0, Pagina_Listato)];
}

/// A command took `prima` away; the texts on screen are new ones.
void FrmMain::Sostituito(Vista prima) {
  txtList->Mostra_Documento({});
  documenti_.Svuota();
  documenti_.Adegua(p_.Num_SBR);
  mostrata_ = 0;
  residuo_ = {};
  testi_nuovi_ = true;
  segni_.Dimentica();
  if (prima.Stato.Vuoto())
    storia_.Ricomincia(p_.Testi());
  else
    storia_.Passo(std::move(prima), p_.Testi());
}

void FrmMain::Rimetti(Vista vista) {
  static_cast<Stato_Progetto&>(p_) = std::move(vista.Stato);
  p_.Modificato = -1;  // the rows that were read last are another state's
  p_.Compilato = 0;
  p_.Gestione_Voci(p_.Comandi_Attivi || !p_.Vuoto() ? 1 : 0);
  txtList->Mostra_Documento(vista.Main);
  documenti_ = std::move(vista.Procedure);
  mostrata_ = 0;
  residuo_ = {};
  segni_ = std::move(vista.Segni);
  storia_.Arrivato(p_.Testi());
  Specchia();
  txtList->Rivedi(vista.Veduta_Main);
}

void FrmMain::Collega_Storia() {
  for (AwlEditor* testo : {txtList, txtP}) {
    testo->Scritto = [this] { storia_.Scorda(); };
    testo->Oltre_Annulla = {.Possibile = [this] { return storia_.Annullabile(p_.Testi()); },
                            .Fai = [this] { Rimetti(storia_.Annulla(Come_Sta())); }};
    testo->Oltre_Ripeti = {.Possibile = [this] { return storia_.Ripetibile(p_.Testi()); },
                           .Fai = [this] { Rimetti(storia_.Ripeti(Come_Sta())); }};
  }
}

}  // namespace tavorno
