// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/session.h"

#include "awl/file_io.h"

namespace tavorno {

Seduta::Seduta() : plc(orologio), progetto(plc, {}) {
  ascolto_ = plc.Hook.Mostra.Ascolta([this](const Avviso& avviso) { Avvisi.push_back(avviso); });
  progetto.Nessuno_Risponde = true;
  progetto.Chiedi.Mostra = [this](const Avviso& avviso) {
    Avvisi.push_back(avviso);
    return avviso.Scelte == Tasti::Si_No ? Risposta::Si : Risposta::Ok;
  };
}

bool Seduta::Apri(const std::string& percorso) {
  progetto.File_Progetto = percorso;
  progetto.File_Titolo = Testo_Percorso(Percorso_Disco(percorso).filename());
  progetto.LeggiTxt();
  return progetto.Err_Lettura == 0;
}

bool Seduta::Leggi(std::string_view byte) {
  progetto.Leggi_Byte(byte);
  progetto.Mostra_Rilievi_Lettura();
  return progetto.Err_Lettura == 0;
}

}  // namespace tavorno
