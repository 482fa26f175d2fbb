// SPDX-License-Identifier: GPL-3.0-or-later
// A project between its file and the tables of the editor.
#include "awl/project.h"

#include <algorithm>

#include "awl/encoding.h"
#include "awl/file_io.h"
#include "awl/text.h"
#include "awl/writer.h"
#include "plc/codepage.h"
#include "plc/number_text.h"

namespace tavorno {

namespace {

/// The first word with a character above 127, for a question that shows it.
std::string Parola_Accentata(const std::string& byte) {
  constexpr std::size_t abbastanza = 24;
  const auto accento = static_cast<std::size_t>(
      std::ranges::find_if(byte,
                           [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; }) -
      byte.begin());
  constexpr const char* vuoti = " \t\r\n/";
  const std::size_t prima = byte.find_last_of(vuoti, accento);
  const std::size_t inizio = prima == std::string::npos ? 0 : prima + 1;
  const std::size_t fine = std::min(byte.find_first_of(vuoti, accento), byte.size());
  return fine - inizio > abbastanza ? byte.substr(accento, 2) : byte.substr(inizio, fine - inizio);
}

}  // namespace

std::string Testo_Base(const std::string& testo) {
  return testo.substr(0, testo.find('.'));
}

std::string Titolo_Di(const std::string& percorso) {
  const std::u8string nome = Percorso_Disco(percorso).filename().u8string();
  return {nome.begin(), nome.end()};
}

Risposta Progetto::Avvisa(const Avviso& avviso) const {
  const auto& mostra = Chiedi.Mostra ? Chiedi.Mostra : Riserva.Mostra;
  return mostra ? mostra(avviso) : Risposta::Ok;
}

// ---- texts --------------------------------------------------------------------------------------

std::string Stato_Progetto::Testi() const {
  std::string testi = txtList;
  for (int i = 1; i <= Num_SBR; ++i) testi += '\0' + Tab_SBR[i].Nome + '\0' + Tab_SBR[i].Testo;
  return testi;
}

Sorgente Stato_Progetto::Come_Sorgente(const std::string& main) const {
  Sorgente sorgente;
  sorgente.Main = main;
  for (int i = 1; i <= Num_SBR; ++i) sorgente.Procedure.push_back(Tab_SBR[i]);
  return sorgente;
}

// ---- reading ------------------------------------------------------------------------------------

void Progetto::LeggiTxt() {
  Leggi_Contenuto(Contenuto(File_Progetto));
  Mostra_Rilievi_Lettura();
}

Contenuto_File Progetto::Contenuto(const std::string& percorso) {
  Contenuto_File file = Leggi_File(percorso);
  if (!file.Errore.empty()) return file;
  Visti.Nota(percorso, file.Byte);
  Testo_Letto letto = Riconosci(file.Byte);
  if (letto.Era == Codifica::Forse_Utf8) {
    const std::string parola = Parola_Accentata(file.Byte);
    const std::string come_utf8 = A_Utf8(Da_Utf8_Senza_Segno(parola).Byte);
    const std::string come_pagina = A_Utf8(parola);
    if (Nessuno_Risponde)
      file.Nota = "Il file sembra scritto in UTF-8 e viene letto com'è: \"" + come_utf8 +
                  "\" diventa \"" + come_pagina + "\".";
    else if (Avvisa(
                 {.Titolo = "Attenzione!",
                  .Testo = "Il file sembra scritto in UTF-8. Leggerlo così?\n\nCon Sì si legge \"" +
                           come_utf8 + "\", con No \"" + come_pagina + "\".",
                  .Simbolo = Icona::Domanda,
                  .Scelte = Tasti::Si_No,
                  .Dettagli = {}}) == Risposta::Si)
      letto = Da_Utf8_Senza_Segno(file.Byte);
  }
  if (letto.Persi > 0)
    Avvisa({.Titolo = "Attenzione!",
            .Testo = "Caratteri che il programma non ha, e che diventano \"?\": " +
                     std::to_string(letto.Persi) + ".",
            .Simbolo = Icona::Nessuna,
            .Scelte = Tasti::Ok,
            .Dettagli = {}});
  file.Byte = std::move(letto.Byte);
  return file;
}

/// What there is to say of text that belongs to no block; empty when all of it does.
static std::string Detto_Di_Fuori(const Lettura& lettura) {
  if (!lettura.Riuscita() || lettura.Fuori == 0) return "";
  const std::string prima =
      "riga " + std::to_string(lettura.Prima_Fuori) + " (\"" + A_Utf8(lettura.Testo_Fuori) + "\")";
  const std::string motivo =
      " fuori dai blocchi: un programma comincia con \"ORGANIZATION_BLOCK MAIN:OB1\".";
  if (lettura.Fuori == 1) return "La " + prima + " non viene letta perché sta" + motivo;
  return "Righe che non vengono lette: " + std::to_string(lettura.Fuori) + ", dalla " + prima +
         " in poi, perché stanno" + motivo;
}

void Progetto::Leggi_Contenuto(const Contenuto_File& contenuto) {
  Nota_Lettura = contenuto.Nota;
  if (contenuto.Errore.empty()) {
    Lettura letta = Leggi_Sorgente(contenuto.Byte, chkCom, {Righe_Src.begin(), Righe_Src.end()});
    const std::string fuori = Detto_Di_Fuori(letta);
    const bool vuoto = letta.Letta.Main.empty() && letta.Letta.Procedure.empty();
    Prendi(std::move(letta));
    if (fuori.empty()) return;
    if (Nessuno_Risponde)
      Nota_Lettura += (Nota_Lettura.empty() ? "" : " ") + fuori;
    else if (vuoto)
      Avvisa({.Titolo = "Attenzione!",
              .Testo = "Il progetto è vuoto. " + fuori,
              .Simbolo = Icona::Nessuna,
              .Scelte = Tasti::Ok,
              .Dettagli = {}});
    return;
  }
  Lettura illeggibile;
  illeggibile.Rifiuto = {0, "", contenuto.Errore, Causa::Disco};
  Prendi(std::move(illeggibile));
}

void Progetto::Leggi_Byte(std::string_view byte) {
  Prendi(Leggi_Sorgente(byte, chkCom, {Righe_Src.begin(), Righe_Src.end()}));
}

void Progetto::Prendi(Lettura lettura) {
  for (int riga = 0; riga <= 10; ++riga) Tab_SBR[riga].Testo.clear();  // and no others
  std::ranges::move(lettura.Tabella, Righe_Src.begin());
  Rilievi_Lettura = std::move(lettura.Rilievi);
  Dettaglio = std::move(lettura.Rifiuto);
  if (Dettaglio.Perche != Causa::Nessuna) {
    Lettura_Fallita();
    return;
  }

  Sorgente& letta = lettura.Letta;
  Err_Lettura = 0;
  txtList = Testo_Main = std::move(letta.Main);
  Num_SBR = static_cast<std::uint8_t>(letta.Procedure.size());
  TabSP.clear();
  for (Riga_SBR& procedura : letta.Procedure) {
    TabSP.push_back(procedura.Nome);
    Tab_SBR[procedura.Indice] = std::move(procedura);
  }
  if (Num_SBR == 0) TabSP.assign(1, "");
  Scheda = Num_SBR > 0 ? 1 : 0;
  txtP = Num_SBR > 0 ? Tab_SBR[1].Testo : "";
  CPU.NRighe = static_cast<std::int16_t>(letta.Righe.size() - 1);
  CPU.Prog.Ridimensiona(CPU.NRighe + 1);
  Programma_Cambiato();
  etNR[2] = std::to_string(letta.Righe_Lette - 1);
  stB[1] = "List:" + Numero_Con_Spazio(CPU.NRighe) + "  SBR:" + Numero_Con_Spazio(Num_SBR);
  Modificato = 0;
  Testi_Salvati = Testi();
}

void Progetto::Lettura_Fallita() {
  Err_Lettura = -1;
  Num_SBR = 0;
  CPU.NRighe = 0;
  Programma_Cambiato();
  TabSP.assign(1, "");
  Scheda = 0;
  File_Progetto.clear();
  Testo_Main.clear();
  txtList.clear();
  txtP.clear();
  stB = {"File:", "List: 0   SBR: 0", "Read Error"};
  Gestione_Voci(0);
  Modificato = 0;
  Compilato = 0;  // nothing is left that could be loaded
  NRighe_Prog = 0;
  etNR[2] = "0";
}

void Progetto::Mostra_Rilievi_Lettura() const {
  for (const Diagnosi& rilievo : Rilievi_Lettura) Avvisa(Avviso_Di(rilievo));
  if (Dettaglio.Perche == Causa::Interrupt)
    Avvisa({.Titolo = "Attenzione!",
            .Testo = "Il simulatore non supporta routin di interrupt!",
            .Simbolo = Icona::Critica,
            .Scelte = Tasti::Ok,
            .Dettagli = {}});
}

void Progetto::Avvisa_Lettura_Fallita() const {
  Avvisa({.Titolo = "Errore!",
          .Testo = Dettaglio.Perche == Causa::Capienza
                       ? Dettaglio.Motivo
                       : "Impossibile Caricare il progetto per errori nel formato!",
          .Simbolo = Icona::Critica,
          .Scelte = Tasti::Ok,
          .Dettagli = Dettaglio.Come_Testo()});
}

// ---- writing ------------------------------------------------------------------------------------

bool Progetto::Crea_Progetto() {
  const Scrittura scrittura = Scrivi_Sorgente(Come_Sorgente(txtList));
  // The entry behind the last one keeps what it has, and goes out with the others.
  std::ranges::copy(scrittura.Righe, Righe_Prog.begin());
  if (!scrittura.Riuscita()) {
    Avvisa({.Titolo = "Errore!",
            .Testo = "Impossibile salvare il progetto: " + scrittura.Rifiuto.Motivo + "!\n" +
                     scrittura.Rifiuto.Testo,
            .Simbolo = Icona::Critica,
            .Scelte = Tasti::Ok,
            .Dettagli = {}});
    return false;
  }
  NRighe_Prog = static_cast<std::int16_t>(scrittura.Righe.size());
  etNR[2] = std::to_string(NRighe_Prog);
  return true;
}

bool Progetto::SalvaFile() {
  return Scrivi_Testo(
      Byte_Di(std::span(Righe_Prog.begin(), static_cast<std::size_t>(NRighe_Prog) + 1)));
}

bool Progetto::Scrivi_Testo(const std::string& testo) {
  const std::string errore = Scrivi_File(File_Salva, testo);
  if (errore.empty()) {
    Visti.Nota(File_Salva, testo);
    return true;
  }
  Avvisa({.Titolo = "Errore!",
          .Testo = "Impossibile scrivere il file \"" + File_Salva + "\": " + errore +
                   "!\nIl file precedente non è stato toccato.",
          .Simbolo = Icona::Critica,
          .Scelte = Tasti::Ok,
          .Dettagli = {}});
  return false;
}

}  // namespace tavorno
