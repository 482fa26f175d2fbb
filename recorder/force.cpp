// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/force.h"

#include "recorder/door.h"

namespace tavorno {

bool Si_Puo_Forzare(const Plc& plc) {
  return plc.Hook.Adesso == Vissuto::Presente &&
         (!plc.PLC_Acceso || plc.Attivi.CmdStep || plc.In_Pausa());
}

std::string Forza(Plc& plc, const Indirizzo& indirizzo, double valore) {
  if (plc.Hook.Adesso == Vissuto::Passato)
    return "Si vede il passato: per forzare un valore riprendi da qui, o torna al presente.";
  if (!Si_Puo_Forzare(plc))
    return "Mentre il programma gira non si può forzare: passa in Step, o fermalo.";
  if (!Forza(plc, Testo_Indirizzo(indirizzo), valore))
    return "Il valore non sta in " + Testo_Indirizzo(indirizzo) + ".";
  return {};
}

}  // namespace tavorno
