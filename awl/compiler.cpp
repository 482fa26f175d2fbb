// SPDX-License-Identifier: GPL-3.0-or-later
// The compile driver: guards, the loop over the lines, the link passes and the report.
#include "awl/link.h"
#include "awl/project.h"
#include "awl/text.h"
#include "plc/number_text.h"

namespace tavorno {

Risposta Progetto::Avvisa(const Avviso& avviso) const {
  return Chiedi.Mostra ? Chiedi.Mostra(avviso) : Risposta::Ok;
}

void Progetto::mnuPlcCompile() {
  Annulla = 0;
  if (!Formattato) {
    Avvisa({"Attenzione!",
            "Il progetto non è formattato correttamente!\r\n"
            "Occorre salvare il file prima della compilazione.",
            Icona::Critica,
            Tasti::Ok,
            {}});
    Save_Read();
    if (Annulla) return;
    Modificato = 0;
  }
  if (Modificato) {
    const Risposta risposta = Avvisa({"Attenzione!",
                                      "Il codice è stato modificato! Occorre salvare il file prima "
                                      "della compilazione.",
                                      Icona::Nessuna,
                                      Tasti::Ok_Annulla,
                                      {}});
    if (risposta != Risposta::Ok) return;
    Save_Read();
    if (Annulla) return;
  }
  if (!Err_Lettura) Compila();  // the box of a failed read has been shown
}

void Progetto::Save_Read() {
  if (File_Titolo.empty()) File_Titolo = "NoName.AWL";
  mnuFileSave();
  if (Annulla) return;
  Testo_Main = txtList + std::string(CRLF);
  if (!Crea_Progetto() || !SalvaFile()) {
    Annulla = -1;
    return;
  }
  File_Progetto = File_Salva;
  LeggiTxt();
  if (Err_Lettura)
    Avvisa_Lettura_Fallita();
  else
    Formattato = -1;
}

void Progetto::Compila() {
  Lista_Comp.clear();
  Errori = 0;
  for (int k = 0; k <= CPU.NRighe; ++k) {
    Riempi_Riga(CPU.Prog[k], Righe_Src[k]);
    if (Controlla_Riga(k) > 0) ++Errori;
    Lista_Comp += CRLF;
  }

  // Only the last pass counts as an error, and then as the only one.
  if (Assegna_JMP(CPU) != 0)
    Avvisa({"Errore!", "Controllo Salti con Errori!", Icona::Critica, Tasti::Ok, {}});
  if (Assegna_SBR(CPU) != 0)
    Avvisa({"Errore!", "Controllo Procedure con Errori!", Icona::Critica, Tasti::Ok, {}});
  if (Assegna_SCR(CPU) != 0) {
    Avvisa({"Errore!", "Controllo SCR con Errori!", Icona::Critica, Tasti::Ok, {}});
    Errori = 1;
  }

  stB[2] = "Errori:" + Numero_Con_Spazio(Errori);
  etNR[0] = std::to_string(CPU.NRighe);
  etNR[1] = std::to_string(Errori);
  if (Errori > 0) {
    Avvisa({"Attenzione!",
            Numero_Con_Spazio(CPU.NRighe) + " Righe compilate con " + Numero_Con_Spazio(Errori) +
                " Errori!!",
            Icona::Critica,
            Tasti::Ok,
            {}});
    Compilato = 0;
    Pagina = 3;
  } else {
    Avvisa({"Attenzione!",
            Numero_Con_Spazio(CPU.NRighe) + " Righe compilate con successo!",
            Icona::Nessuna,
            Tasti::Ok,
            {}});
    Compilato = -1;
  }
}

void Progetto::mnuPlcCarica() {
  mnuPlcCompile();
  if (Compilato)
    Carica_CPU = 1;
  else
    Avvisa({"Errori!", "Impossibile caricare nella CPU", Icona::Critica, Tasti::Ok, {}});
}

}  // namespace tavorno
