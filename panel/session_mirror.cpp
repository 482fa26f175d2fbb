// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/session_mirror.h"

#include "panel/panel_window.h"
#include "recorder/recorder.h"

namespace tavorno {

void Specchia_Salto(FrmPLC& pannello, Plc& plc, const Registratore& registratore) {
  plc.Segna(Segno_Immagini | Segno_PC | Segno_Tempo | Segno_Lista | Segno_Comandi |
            Segno_Analogici);
  pannello.Specchia_Scelte(registratore.Interruttori());
  pannello.Aggiorna();
}

}  // namespace tavorno
