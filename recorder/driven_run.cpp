// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/driven_run.h"

namespace tavorno {

void Avvia_Guidata(Plc& plc, Comando_Corsa comando) {
  {
    const Iscrizione dopo_una_riga = plc.Hook.Ascolta_Cedi([&plc] { plc.Ferma = -1; });
    plc.Entra(comando);
  }
  plc.Ferma = 0;
}

}  // namespace tavorno
