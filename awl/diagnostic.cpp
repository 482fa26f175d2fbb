// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/diagnostic.h"

namespace tavorno {

std::string Senza_Freccia(const std::string& messaggio) {
  constexpr std::string_view freccia = "-> ";
  return messaggio.starts_with(freccia) ? messaggio.substr(freccia.size()) : messaggio;
}

Avviso Avviso_Di(const Diagnosi& diagnosi) {
  const bool grave = diagnosi.Grado == Gravita::Errore;
  return {.Titolo = grave ? "Errore!" : "Attenzione",
          .Testo = diagnosi.Messaggio,
          .Simbolo = Icona::Critica,
          .Scelte = Tasti::Ok,
          .Dettagli = diagnosi.Testo};
}

Avviso Avviso_Passo(Genere passo) {
  const char* testo = passo == Genere::Salti       ? "Controllo Salti con Errori!"
                      : passo == Genere::Procedure ? "Controllo Procedure con Errori!"
                                                   : "Controllo SCR con Errori!";
  return {.Titolo = "Errore!",
          .Testo = testo,
          .Simbolo = Icona::Critica,
          .Scelte = Tasti::Ok,
          .Dettagli = {}};
}

}  // namespace tavorno
