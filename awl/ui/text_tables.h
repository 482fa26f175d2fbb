// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "widgets/command_tables.h"

// The commands on the texts, as entries of the menu "Visualizza" behind the given ones.
namespace tavorno {

struct Azioni_Testi {
  QAction *mnuCercaTrova, *mnuCercaSost, *mnuCercaSucc, *mnuCercaPrec, *mnuCercaUsi;
  QAction *mnuVaiRiga, *mnuVaiErrSucc, *mnuVaiErrPrec, *mnuVaiNetSucc, *mnuVaiNetPrec;
  QAction *mnuVaiMeta, *mnuVaiIndietro;
  QAction *mnuRigheCom, *mnuRigheSu, *mnuRigheGiu, *mnuRigheDoppia, *mnuRigheNome, *mnuRigheNote;
  QAction *mnuSchemi, *mnuSchemiQui;  ///< the menu of the skeletons, and its entry that opens it
};

std::vector<Voce_Menu> Menu_Testi(Azioni_Testi& azioni);

}  // namespace tavorno
