// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/application.h"

#include <cstdlib>

#include "panel/windows/status_window.h"
#include "plc/plc.h"

namespace tavorno {

std::string Rapporto_Fine(const Fatale& fatale, const Plc& plc) {
  const auto* finestra = dynamic_cast<const Fatale_In_Finestra*>(&fatale);
  if (finestra == nullptr) return Rapporto_Fatale(fatale, plc);
  return fatale.Cosa() + "\nTabella: " + fatale.Tabella() +
         "\nIndice: " + std::to_string(fatale.Indice()) + "\nLetto da: " + finestra->Finestra() +
         ". Nessuna riga del programma ne è la causa.";
}

bool Applicazione::notify(QObject* oggetto, QEvent* evento) {
  try {
    return QApplication::notify(oggetto, evento);
  } catch (const Fatale& fatale) {
    // While the report is on the screen other events still come by; a second failure changes
    // nothing.
    if (finita_) return true;
    finita_ = true;
    if (Fine_Fatale) Fine_Fatale(fatale);
    // Not exit(): the call stack below is that of an interrupted run, and nothing on it may go on.
    std::_Exit(Stato_Fatale);
  }
}

}  // namespace tavorno
