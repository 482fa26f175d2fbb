// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/session_wires.h"

#include "panel/child_windows.h"
#include "panel/session_bar.h"
#include "recorder/recorder.h"
#include "recorder/rereading.h"

namespace tavorno {

void Collega_Seduta(Barra_Seduta& barra, Finestre& finestre, Registratore& registratore) {
  barra.Impianto = [&finestre] { return finestre.Impianto(); };
  barra.Apri_Impianto = [&finestre](int indice) { finestre.Apri_Impianto(indice); };
  barra.Cursore_Del_Diagramma = [&finestre] { return finestre.Cursore_Del_Diagramma(); };
  barra.Racconta = [&finestre](const QString& messaggio) {
    finestre.Racconta_Al_Diagramma(messaggio);
  };
  barra.Prima_Di_Crescere = [&finestre] { finestre.Ordine().Sta_Per_Crescere(); };
  barra.Cresciuta = [&finestre] { finestre.Ordine().Cresciuto(); };
  barra.Aperta = [&finestre] { finestre.Altra_Seduta(); };
  barra.Specchia_Altre = [&finestre] { finestre.Specchia(); };
  finestre.Torna_A = [&barra](std::int64_t ms) { barra.Torna_A(ms); };
  finestre.Chi_E_Stato = [&barra](std::int64_t ms, const std::string& indirizzo) {
    barra.Chi_E_Stato_A(ms, indirizzo);
  };
  finestre.Rileggi = [&registratore](const std::vector<Segnale>& segnali) {
    // While a film is shown, the journal is that of the film.
    return registratore.In_Proiezione() ? nullptr
                                        : std::make_unique<Rilettura>(registratore, segnali);
  };
  finestre.Al_Presente = [&barra] { barra.Al_Presente(); };
}

}  // namespace tavorno
