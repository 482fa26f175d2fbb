// SPDX-License-Identifier: GPL-3.0-or-later
#include <utility>

#include "awl/recovery.h"
#include "awl/ui/main_window.h"

namespace tavorno {

void FrmMain::Riprendi(const Copia_Progetto& copia) {
  Vista prima = Come_Sta();
  p_.Altro_Progetto();
  Stato_Progetto stato = Stato_Di(copia);
  stato.Numero = p_.Numero;
  static_cast<Stato_Progetto&>(p_) = std::move(stato);
  p_.Compilato = 0;
  p_.Gestione_Voci(1);
  p_.Pagina = 0;
  Sostituito(std::move(prima));
  Specchia();
}

}  // namespace tavorno
