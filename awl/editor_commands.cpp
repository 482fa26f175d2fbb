// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's file and text commands.
#include "awl/file_io.h"
#include "awl/project.h"
#include "awl/templates.h"
#include "awl/text.h"
#include "awl/writer.h"

namespace tavorno {

namespace {

constexpr const char* filtro_awl = "File AWL (*.AWL)|*.AWL";
constexpr const char* filtro_txt_scrivi = "File di testo (*.TXT)|*.TXT";
constexpr const char* filtro_txt_leggi = "File di Testo  (*.TXT)|*.TXT";

/// The lines that end in a CR and begin with NETWORK.
int Conta_Network(const std::string& testo) {
  int network = 0;
  std::size_t inizio = 0;
  for (std::size_t fine = testo.find('\r'); fine != std::string::npos;
       fine = testo.find('\r', inizio)) {
    if (testo.compare(inizio, 7, "NETWORK") == 0) ++network;
    inizio = fine + 1;
    if (inizio < testo.size() && testo[inizio] == '\n') ++inizio;
  }
  return network;
}

/// Every kind of line end becomes CR LF.
std::string Con_CRLF(const std::string& testo) {
  std::string uguale;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    if (testo[i] != '\r' && testo[i] != '\n') {
      uguale += testo[i];
      continue;
    }
    if (testo[i] == '\r' && i + 1 < testo.size() && testo[i + 1] == '\n') ++i;
    uguale += CRLF;
  }
  return uguale;
}

std::string Proposta(const std::string& titolo, const char* estensione) {
  return (titolo.empty() ? "NoName" : Testo_Base(titolo)) + estensione;
}

}  // namespace

/// The user's choice; a cancelled dialog sets `Annulla`.
std::optional<File_Scelto> Progetto::Scegli_File(const Richiesta_File& richiesta) {
  const auto& scegli = Chiedi.Scegli_File ? Chiedi.Scegli_File : Riserva.Scegli_File;
  auto scelto = scegli ? scegli(richiesta) : std::nullopt;
  if (!scelto) Annulla = -1;
  return scelto;
}

/// A file that somebody else has changed is not replaced unasked.
std::optional<File_Scelto> Progetto::Scegli_Dove_Scrivere(Richiesta_File richiesta) {
  while (auto scelto = Scegli_File(richiesta)) {
    const std::optional<Cambiamento> cambiato = Visti.Cambiato(scelto->Percorso);
    if (!cambiato || cambiato->Tolto) return scelto;
    const Avviso domanda{.Titolo = "Attenzione!",
                         .Testo = "Il file \"" + scelto->Titolo +
                                  "\" è stato cambiato da un altro programma " +
                                  Momento_Italiano(cambiato->Ora) +
                                  ", dopo che qui era stato letto o salvato.\n\nSalvare con un "
                                  "altro nome? Con No il file viene sostituito.",
                         .Simbolo = Icona::Domanda,
                         .Scelte = Tasti::Si_No,
                         .Dettagli = scelto->Percorso};
    if (Avvisa(domanda) != Risposta::Si) return scelto;
    const std::string estensione = scelto->Titolo.substr(Testo_Base(scelto->Titolo).size());
    richiesta.Proposta = Testo_Base(scelto->Titolo) + "-copia" + estensione;
  }
  return std::nullopt;
}

// ---- texts --------------------------------------------------------------------------------------

void Progetto::Scrivi_Main(std::string testo) {
  txtList = std::move(testo);
  Testo_Main = txtList;
  Modificato = -1;
}

void Progetto::Scrivi_Procedura(std::string testo) {
  txtP = std::move(testo);
  if (Num_SBR == 0 || Scheda == 0) return;
  Tab_SBR[Scheda].Testo = txtP;
  Modificato = -1;
}

void Progetto::CmdNet(int indice) {
  if (indice == 0)
    Scrivi_Main(Testo_Main + Testo_Network(Conta_Network(txtList) + 1));
  else
    Scrivi_Procedura(txtP + Testo_Network(Conta_Network(txtP) + 1));
}

void Progetto::Gestione_Voci(std::uint8_t stato) {
  if (stato > 1) return;
  Comandi_Attivi = stato == 1;
  cmdDelP = stato == 1 && Num_SBR != 0;
}

// ---- projects -----------------------------------------------------------------------------------

void Progetto::Altro_Progetto() {
  Numero = ++numeri_;
  File_Salvato.clear();
}

void Progetto::Sistemati() const {
  if (Al_Sicuro) Al_Sicuro(Numero);
}

void Progetto::mnuFileNew(bool chiedi_di_salvare) {
  if (chiedi_di_salvare && Modificato && !Chiedi_Di_Salvare()) return;  // the edits are kept
  Altro_Progetto();
  Scrivi_Main(Testo_Nuovo_Main());
  Num_SBR = 0;
  Formattato = 0;
  Gestione_Voci(1);
  File_Titolo = "NoName.AWL";
  stB[0] = "File: NoName.AWL";
  Testi_Salvati = Testi();
}

bool Progetto::Chiedi_Di_Salvare() {
  const Avviso domanda{
      "Attenzione!", "Salvare il progetto corrente?", Icona::Domanda, Tasti::Si_No, {}};
  if (Avvisa(domanda) != Risposta::Si) {
    Sistemati();
    return true;
  }
  mnuFileSave();
  return !Annulla || Vuoto();
}

std::optional<File_Scelto> Progetto::Scegli_Da_Aprire() {
  return Scegli_File({false, "", filtro_awl});
}

void Progetto::mnuFileOpen() {
  const auto scelto = Scegli_Da_Aprire();
  if (!scelto) return;
  Apri_File(*scelto, Contenuto(scelto->Percorso));
  Riferisci_Apertura();
}

void Progetto::Apri_File(const File_Scelto& scelto, const Contenuto_File& contenuto) {
  Altro_Progetto();
  File_Progetto = scelto.Percorso;
  File_Titolo = scelto.Titolo;
  stB[0] = "File: " + File_Titolo;
  Annulla = 0;
  Leggi_Contenuto(contenuto);
  if (Err_Lettura) return;
  File_Salvato = scelto.Percorso;
  Gestione_Voci(1);
  Formattato = -1;
  Compilato = 0;
}

void Progetto::Riferisci_Apertura() const {
  Mostra_Rilievi_Lettura();
  if (Err_Lettura) Avvisa_Lettura_Fallita();
}

void Progetto::mnuFileSave() {
  if (Vuoto()) {
    Avvisa({"Attenzione", "Nessuna riga di codice inserita!", Icona::Critica, Tasti::Ok, {}});
    Annulla = -1;
    return;
  }
  const auto scelto =
      Scegli_Dove_Scrivere({true, Proposta(File_Titolo, ".AWL"), filtro_awl, File_Salvato});
  if (!scelto) return;
  File_Salva = scelto->Percorso;
  stB[0] = "File: " + scelto->Titolo;
  Testo_Main = txtList + std::string(CRLF);
  Annulla = Crea_Progetto() && SalvaFile() ? 0 : -1;
  if (Annulla) return;
  Testi_Salvati = Testi();
  File_Salvato = File_Salva;
  Sistemati();
}

// ---- text files ---------------------------------------------------------------------------------

void Progetto::mnuFileTxtImp() {
  const auto scelto = Scegli_File({false, "", filtro_txt_leggi});
  if (!scelto) return;
  const Contenuto_File file = Contenuto(scelto->Percorso);
  if (!file.Errore.empty()) {
    Avvisa({"Errore!",
            "Impossibile leggere il file \"" + scelto->Percorso + "\": " + file.Errore + "!",
            Icona::Critica,
            Tasti::Ok,
            {}});
    return;
  }
  Annulla = 0;
  const std::string testo = Con_CRLF(file.Byte);
  if (Pagina == 0) {
    Scrivi_Main(testo);
  } else if (Pagina == 1) {
    const int nuova = New_SubTxt(testo);
    if (nuova != 0) Scegli_Procedura(nuova);
  }
  Formattato = 0;
  Compilato = 0;
  Gestione_Voci(1);
}

/// Asks for a name and writes one text there.
void Progetto::Esporta(const std::string& testo) {
  const auto scelto =
      Scegli_Dove_Scrivere({true, Proposta(File_Titolo, ".TXT"), filtro_txt_scrivi});
  if (!scelto) return;
  File_Salva = scelto->Percorso;
  Annulla = Scrivi_Testo(testo) ? 0 : -1;
}

void Progetto::mnuFileTxtExp() {
  Esporta(Pagina == 0 ? txtList : Pagina == 1 ? txtP : Lista_Comp);
}

void Progetto::mnufiltxtT() {
  Esporta(Testo_Progetto(Come_Sorgente(Testo_Main)) + std::string(CRLF));
}

}  // namespace tavorno
