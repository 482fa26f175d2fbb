// SPDX-License-Identifier: GPL-3.0-or-later
// The compile command: its guards, its order and its report.
#include "awl/project.h"
#include "awl/text.h"
#include "plc/number_text.h"

namespace tavorno {

void Progetto::mnuPlcCompile() {
  if (Prepara_Compilazione()) Compila();
}

bool Progetto::Prepara_Compilazione() {
  Annulla = 0;
  if (!Formattato) {
    Avvisa({"Attenzione!",
            "Il progetto non è formattato correttamente!\r\n"
            "Occorre salvare il file prima della compilazione.",
            Icona::Critica,
            Tasti::Ok,
            {}});
    Save_Read();
    if (Annulla) return false;
    Modificato = 0;
  }
  if (Modificato) {
    const Risposta risposta = Avvisa({"Attenzione!",
                                      "Il codice è stato modificato! Occorre salvare il file prima "
                                      "della compilazione.",
                                      Icona::Nessuna,
                                      Tasti::Ok_Annulla,
                                      {}});
    if (risposta != Risposta::Ok) return false;
    Save_Read();
    if (Annulla) return false;
  }
  return !Err_Lettura;  // the box of a failed read has been shown
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
  Compila_Righe_Lette();
  Riferisci();
}

void Progetto::Compila_Righe_Lette() {
  const std::span righe(Righe_Src.begin(), static_cast<std::size_t>(CPU.NRighe) + 1);
  Compilazione esito = Compila_Righe(righe);
  Carica(esito.Prodotto, CPU);
  Programma_Cambiato();
  Righe_Listato = Listato(righe, esito.Rilievi);
  Lista_Comp = Testo_Listato(Righe_Listato);
  Rilievi = Rilievi_Lettura;
  Rilievi.insert(Rilievi.end(), esito.Rilievi.begin(), esito.Rilievi.end());
  Passi_Errati = std::move(esito.Passi_Errati);
  Errori = esito.Errori;
  Compilato = Errori == 0 ? -1 : 0;
  stB[2] = "Errori:" + Numero_Con_Spazio(Errori);
  etNR[0] = std::to_string(CPU.NRighe);
  etNR[1] = std::to_string(Errori);
}

void Progetto::Riferisci() {
  for (const Genere passo : Passi_Errati) Avvisa(Avviso_Passo(passo));
  if (Errori > 0) {
    Avvisa({.Titolo = "Attenzione!",
            .Testo = Numero_Con_Spazio(CPU.NRighe) + " Righe compilate con " +
                     Numero_Con_Spazio(Errori) + " Errori!!",
            .Simbolo = Icona::Critica,
            .Scelte = Tasti::Ok,
            .Dettagli = {}});
    Pagina = 3;
  } else {
    Avvisa({.Titolo = "Attenzione!",
            .Testo = Numero_Con_Spazio(CPU.NRighe) + " Righe compilate con successo!",
            .Simbolo = Icona::Nessuna,
            .Scelte = Tasti::Ok,
            .Dettagli = {}});
  }
}

void Progetto::mnuPlcCarica() {
  mnuPlcCompile();
  Consegna();
}

void Progetto::Consegna() {
  if (Compilato)
    Carica_CPU = 1;
  else
    Avvisa({"Errori!", "Impossibile caricare nella CPU", Icona::Critica, Tasti::Ok, {}});
}

}  // namespace tavorno
