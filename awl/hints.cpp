// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/hints.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include "awl/line_splitter.h"
#include "awl/operand.h"
#include "awl/text.h"
#include "awl/writer.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

/// A line that becomes a row, after a save and a read.
struct Riga_Letta {
  Posto_Riga Posto;
  std::string Scritta;  // as it stands on screen
  Riga_Src Letta;
};

bool Temporizzatore(const std::string& istr) {
  const Istruzione* istruzione = Cerca_Istruzione(istr);
  return istruzione != nullptr && istruzione->Nel_Programma == Compito::Temporizzatore;
}

class Esame {
 public:
  /// One text, line by line.
  void Leggi(const std::string& testo, int numero) {
    std::size_t inizio = 0;
    for (int linea = 0; inizio <= testo.size(); ++linea) {
      const std::size_t fine = std::min(testo.find_first_of("\r\n", inizio), testo.size());
      std::string scritta = testo.substr(inizio, fine - inizio);
      inizio = fine + (std::string_view(testo).substr(fine, 2) == CRLF ? 2 : 1);
      // The blanks in front of a whole text are not saved.
      if (linea == 0) scritta.erase(0, scritta.find_first_not_of(' '));
      Esamina(scritta, {numero, linea});
    }
  }

  /// What only the whole project shows.
  void Confronta() {
    std::map<std::string, const Riga_Letta*> scritte;
    for (const Riga_Letta& riga : righe_) {
      if (riga.Letta.Istr == "=") {
        const auto [prima, nuova] = scritte.try_emplace(riga.Letta.Op1, &riga);
        if (!nuova)
          Aggiungi(riga.Posto, riga.Scritta,
                   riga.Letta.Op1 + " è già assegnata con \"=\" più sopra (" +
                       A_Utf8(Trim(prima->second->Scritta)) +
                       "): vale solo l'ultima. Unire le condizioni con O, oppure usare S e R.");
      }
      if (Temporizzatore(riga.Letta.Istr) && !Usato(riga.Letta.Op1))
        Aggiungi(riga.Posto, riga.Scritta,
                 "Nessuno legge " + riga.Letta.Op1 +
                     ": il tempo scorre senza effetto. Usarlo come contatto, per esempio LD " +
                     riga.Letta.Op1 + ".");
    }
  }

  std::vector<Diagnosi> Trovati() {
    std::ranges::stable_sort(trovati_, {}, [](const Diagnosi& diagnosi) {
      return std::pair(diagnosi.Posto.Testo, diagnosi.Posto.Linea);
    });
    return std::move(trovati_);
  }

 private:
  void Aggiungi(Posto_Riga posto, const std::string& scritta, std::string messaggio) {
    const std::size_t primo = std::min(scritta.find_first_not_of(" \t"), scritta.size());
    const std::size_t fine = std::min(scritta.find("//", primo), scritta.size());
    const std::size_t lungo = fine == primo ? scritta.size() - primo
                                            : scritta.find_last_not_of(" \t", fine - 1) + 1 - primo;
    trovati_.push_back({.Grado = Gravita::Suggerimento,
                        .Di = Genere::Testo,
                        .Posto = posto,
                        .Colonna = static_cast<int>(primo),
                        .Lunghezza = static_cast<int>(lungo),
                        .Riga = -1,
                        .Stato = 0,
                        .Testo = A_Utf8(scritta),
                        .Messaggio = std::move(messaggio)});
  }

  void Esamina(const std::string& scritta, Posto_Riga posto) {
    std::string linea = scritta;
    std::ranges::replace(linea, '\t', ' ');
    const std::string nuda = Trim(linea);
    if (nuda.empty() || linea.starts_with("//")) return;
    const bool commento = nuda.starts_with("//");
    if (linea.starts_with(' ')) {
      Aggiungi(posto, scritta,
               std::string("Comincia con uno spazio: al salvataggio ") +
                   (commento ? "il commento si raddoppia" : "la riga si raddoppia") +
                   ". Togliere gli spazi davanti.");
      return;
    }
    if (linea.starts_with("TITLE=") || linea.starts_with("SBR") || linea.starts_with("INT"))
      return Esamina_Mnemonico(linea, scritta, posto);
    if (!linea.starts_with("NETWORK")) Esamina_Barra(linea, scritta, posto);
    Esamina_Salvata(linea, scritta, posto);
    Esamina_Mnemonico(linea, scritta, posto);
  }

  /// The writer cuts a comment at one bar, the reader at two.
  void Esamina_Barra(const std::string& linea, const std::string& scritta, Posto_Riga posto) {
    const std::size_t spazio = linea.find(' ');
    if (spazio == std::string::npos) return;
    const std::size_t barra = linea.find('/', spazio);
    if (barra == std::string::npos || linea.substr(barra, 2) == "//") return;
    Aggiungi(posto, scritta,
             "Un commento comincia con due barre: con una sola, dopo il salvataggio ciò che segue "
             "viene letto come operando. Scrivere \"//\".");
  }

  /// The line as the next read will meet it.
  void Esamina_Salvata(const std::string& linea, const std::string& scritta, Posto_Riga posto) {
    constexpr std::ptrdiff_t troppi = 4;
    Righe_Lette lettore;
    try {
      const std::string salvata = Norm_Riga(linea);
      if (!salvata.starts_with("NETWORK")) {
        const std::string istruzione = Trim(salvata.substr(0, salvata.find("//")));
        if (std::ranges::count(istruzione, ' ') == troppi)
          Aggiungi(posto, scritta,
                   "Quattro spazi tra le parole: dopo il salvataggio gli operandi non si leggono "
                   "più. Scrivere al massimo due operandi, separati da una virgola.");
      }
      lettore.Debug_Line(salvata, posto);
      if (lettore.NRighe == 1) righe_.push_back({posto, scritta, lettore.Tabella[0]});
    } catch (const Riga_Rifiutata& rifiuto) {
      Aggiungi(posto, scritta,
               "Così il progetto non si può salvare e riaprire: " + std::string(rifiuto.what()) +
                   ". Accorciare la riga.");
    }
  }

  void Esamina_Mnemonico(const std::string& linea, const std::string& scritta, Posto_Riga posto) {
    const std::string parola = Maiuscole(linea.substr(0, linea.find_first_of(" /")));
    const Istruzione* istruzione = Cerca_Istruzione(parola);
    if (istruzione == nullptr || istruzione->Trattamento == Gruppo::Non_Supportata ||
        istruzione->Esegui != Ramo_Assente())
      return;
    Aggiungi(posto, scritta,
             parola +
                 " supera la compilazione, ma la CPU non la conosce e si ferma su questa riga. "
                 "Usare un'altra istruzione.");
  }

  /// Somebody besides the timer itself names it.
  bool Usato(const std::string& timer) const {
    return std::ranges::any_of(righe_, [&](const Riga_Letta& riga) {
      const Riga_Src& letta = riga.Letta;
      if (Temporizzatore(letta.Istr)) return letta.Op2 == timer;
      if (letta.Istr == "R") return false;  // that only sets it back
      return letta.Op1 == timer || letta.Op2 == timer;
    });
  }

  std::vector<Riga_Letta> righe_;
  std::vector<Diagnosi> trovati_;
};

}  // namespace

std::vector<Diagnosi> Suggerimenti(const Sorgente& testi) {
  Esame esame;
  esame.Leggi(testi.Main, 0);
  for (std::size_t i = 0; i < testi.Procedure.size(); ++i)
    esame.Leggi(testi.Procedure[i].Testo, static_cast<int>(i) + 1);
  esame.Confronta();
  return esame.Trovati();
}

}  // namespace tavorno
