// SPDX-License-Identifier: GPL-3.0-or-later
// What others do to the project's file while the editor shows it.
#include <QApplication>

#include "awl/ui/main_window.h"

namespace tavorno {

void FrmMain::Guarda_Il_Disco() {
  if (!isActiveWindow() || QApplication::activeModalWidget() != nullptr) return;
  const File_Scelto file{p_.File_Salvato, Titolo_Di(p_.File_Salvato)};
  const std::optional<Cambiamento> cambiato = p_.Visti.Cambiato_Ancora(file.Percorso);
  if (!cambiato) return;
  if (cambiato->Tolto) {
    p_.Testi_Salvati.clear();  // what is on screen is nowhere else
    p_.Chiedi.Mostra({.Titolo = "Attenzione!",
                      .Testo = "Il file \"" + file.Titolo +
                               "\" non c'è più o non si può leggere. Il testo resta qui: per "
                               "conservarlo occorre salvarlo.",
                      .Simbolo = Icona::Nessuna,
                      .Scelte = Tasti::Ok,
                      .Dettagli = file.Percorso});
    return;
  }
  std::string domanda = "Il file \"" + file.Titolo + "\" è stato cambiato da un altro programma " +
                        Momento_Italiano(cambiato->Ora) + ".\n\nLeggerlo di nuovo?";
  if (p_.Da_Salvare())
    domanda +=
        " Il testo non salvato lascia il posto al file; \"Annulla\" dell'editor (Ctrl+Z) lo "
        "riporta.";
  if (p_.Chiedi.Mostra({.Titolo = "Attenzione!",
                        .Testo = domanda,
                        .Simbolo = Icona::Domanda,
                        .Scelte = Tasti::Ok_Annulla,
                        .Dettagli = file.Percorso}) == Risposta::Ok)
    Apri(file);
}

}  // namespace tavorno
