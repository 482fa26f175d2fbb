// SPDX-License-Identifier: GPL-3.0-or-later
// One text line into one row of `Righe_Src`, and its canonical look.
#include "awl/line_splitter.h"

#include <algorithm>

#include "awl/text.h"
#include "plc/codepage.h"
#include "plc/instructions.h"

namespace tavorno {

namespace {

constexpr std::size_t colonna_commento = 36;  // of an instruction in the editor
constexpr std::size_t colonna_cpu_network = 12;

void Dividi_Network(const std::string& riga, bool commento_nel_listato, Riga_Src& sorgente) {
  const std::size_t barra = riga.find('/');
  if (barra == std::string::npos) {
    sorgente.Testo_Lista = riga;
    sorgente.Testo_CPU = Trim(riga);
  } else {
    const std::string testa = Trim(riga.substr(0, barra));
    const std::string commento = riga.substr(barra);
    sorgente.Testo_Lista = Incolonna(testa, Colonna_Commento_Network) + commento;
    sorgente.Testo_CPU =
        commento_nel_listato ? Incolonna(testa, colonna_cpu_network) + commento : testa;
  }
  sorgente.Istr = Maiuscole(sorgente.Testo_Lista);
  sorgente.NOp = 0;
  sorgente.Op1 = sorgente.Op2 = sorgente.Op3 = "";
}

void Dividi_Blocco(const std::string& riga, Riga_Src& sorgente) {
  const std::size_t spazio = riga.find(' ');
  if (spazio != std::string::npos) {  // without a blank these two keep what the row held before
    sorgente.Istr = Trim(riga.substr(0, spazio));
    sorgente.Op1 = Trim(riga.substr(spazio));
  }
  sorgente.NOp = 1;
  sorgente.Op2 = sorgente.Op3 = "";
  sorgente.Testo_Lista = sorgente.Testo_CPU = riga;
}

/// The pieces between single blanks: two blanks next to each other have an empty piece between
/// them.
std::vector<std::string> Pezzi(const std::string& testo) {
  std::vector<std::string> pezzi(1);
  for (const char c : testo) {
    if (c != ' ')
      pezzi.back() += c;
    else
      pezzi.emplace_back();
  }
  return pezzi;
}

}  // namespace

/// One place for each of the two boxes that the reader can show of a line.
void Righe_Lette::Rileva(Genere genere, const std::string& riga, Posto_Riga posto) {
  const bool tre = genere == Genere::Tre_Operandi;
  Rilievi.push_back({.Grado = tre ? Gravita::Avvertimento : Gravita::Errore,
                     .Di = genere,
                     .Posto = posto,
                     .Colonna = 0,
                     .Lunghezza = static_cast<int>(Trim(riga.substr(0, riga.find("//"))).size()),
                     .Riga = NRighe,
                     .Stato = 0,
                     .Testo = A_Utf8(riga),
                     .Messaggio = tre ? "Il simulatore non supporta istruzioni con tre operandi!"
                                      : "Errori nella lettura degli operandi!"});
}

std::string Righe_Lette::Cerca_Com(const std::string& riga, Posto_Riga posto) {
  if (NRighe >= Righe_Massime)
    throw Riga_Rifiutata("Il progetto supera le 300 righe di istruzioni!", Causa::Capienza);
  const auto libera = static_cast<std::size_t>(NRighe);
  if (Tabella.size() <= libera) Tabella.resize(libera + 1);
  Riga_Src& sorgente = Tabella[libera];
  sorgente.Posto = posto;
  if (const Istruzione* intera = Cerca_Testa(riga)) {
    if (intera->Nel_Programma == Compito::Segmento)
      Dividi_Network(riga, commenti_[1], sorgente);
    else
      Dividi_Blocco(riga, sorgente);
    return sorgente.Testo_Lista;
  }

  // A single "/" is no comment: "/I" and "/D" are mnemonics.
  const std::size_t inizio_commento = std::min(riga.find("//"), riga.size());
  const std::string commento = riga.substr(inizio_commento);
  const std::string istruzione = Trim(riga.substr(0, inizio_commento));
  std::vector<std::string> pezzi = Pezzi(istruzione);
  const std::size_t spazi = pezzi.size() - 1;
  if (spazi > 4) throw Riga_Rifiutata("la riga ha troppi spazi tra gli operandi");

  pezzi.resize(4);
  sorgente.NOp = static_cast<std::uint8_t>(spazi);
  sorgente.Istr = Maiuscole(pezzi[0]);
  if (spazi == 4) {
    Rileva(Genere::Quattro_Operandi, riga, posto);
    sorgente.Op1 = sorgente.Op2 = sorgente.Op3 = "";
    sorgente.Testo_CPU = istruzione;
    sorgente.Testo_Lista = riga;
    return sorgente.Testo_Lista;
  }
  sorgente.Op1 = Maiuscole(pezzi[1]);
  sorgente.Op2 = Maiuscole(pezzi[2]);
  sorgente.Op3 = Maiuscole(pezzi[3]);

  std::string canonica = istruzione;  // as typed when it has no operands
  if (spazi >= 1) canonica = Incolonna(sorgente.Istr, Colonna_Operandi) + sorgente.Op1;
  if (spazi >= 2) canonica += ", " + sorgente.Op2;
  if (spazi >= 3) canonica += ", " + sorgente.Op3;
  sorgente.Testo_CPU = Incolonna(canonica, Colonna_CPU);
  if (commenti_[0]) sorgente.Testo_CPU += commento;
  sorgente.Testo_Lista = Incolonna(canonica, colonna_commento) + commento;
  if (spazi == 3) Rileva(Genere::Tre_Operandi, riga, posto);
  return sorgente.Testo_Lista;
}

std::string Righe_Lette::Debug_Line(const std::string& riga, Posto_Riga posto) {
  if (riga.empty() || riga.starts_with("//")) return riga;
  if (riga.starts_with(" //"))
    return std::string(colonna_commento, ' ') + riga.substr(riga.find_first_not_of(' '));
  if (riga.starts_with("TITLE=")) return "//" + riga.substr(6);
  std::string testo = Cerca_Com(riga, posto);
  const std::string& istr = Tabella[static_cast<std::size_t>(NRighe)].Istr;
  if (!istr.empty() && !istr.starts_with("     ")) ++NRighe;
  return testo;
}

}  // namespace tavorno
