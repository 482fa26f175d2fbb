// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/instructions.h"

#include <array>
#include <unordered_map>

#include "plc/codepage.h"
#include "plc/memory.h"

namespace tavorno {

namespace righe {

Righe Insieme_Di(std::initializer_list<Righe> gruppi) {
  Righe tutte;
  for (const Righe& gruppo : gruppi) tutte.insert(tutte.end(), gruppo.begin(), gruppo.end());
  return tutte;
}

Righe Di(Famiglia famiglia, Gruppo trattamento, Righe righe) {
  for (Istruzione& riga : righe) {
    riga.Gruppo_Manuale = famiglia;
    riga.Trattamento = trattamento;
    if (trattamento == Gruppo::Non_Supportata) riga.Aiuto += " (non disponibile nel simulatore)";
  }
  return righe;
}

}  // namespace righe

// clang-format off
righe::Righe righe::Non_Eseguite() {
  return Insieme_Di({Di(Famiglia::Interruzioni, Gruppo::Accettata, {
      {.Nome = "INT", .Aiuto = "Inizio di una routine di interrupt: non eseguita, il PLC si ferma", .Nel_Programma = Compito::Interruzione, .Operandi_Liberi = "nome della routine", .Testa = "INT"},
      {.Nome = "RETI", .Aiuto = "Fine di una routine di interrupt: non eseguita, il PLC si ferma"},
  }), Di(Famiglia::Logica, Gruppo::Accettata, {
      {.Nome = "XORD", .Aiuto = "OR esclusivo tra doppie parole: accettata ma non eseguita, il PLC si ferma"},
  })});
}

// Known and refused. A few have a branch that a checked program never reaches.
righe::Righe righe::Non_Supportate() {
  using enum Famiglia;
  struct Riga {
    const char* nome;
    Famiglia famiglia;
    const char* aiuto;
    Ramo ramo = Senza_Ramo;
  };
  static constexpr Riga elenco[] = {
      {"LDS", Pila, "Copia l'ennesimo valore della pila in cima"},
      {"AENO", Pila, "AND con il bit di consenso ENO"},
      {"HDEF", Contatori, "Definisce il modo di un contatore veloce"},
      {"HSC", Contatori, "Contatore veloce"},
      {"PLS", Contatori, "Uscita a impulsi"},
      {"BMB", Trasferimenti, "Copia un blocco di byte"},
      {"BMW", Trasferimenti, "Copia un blocco di parole"},
      {"BMD", Trasferimenti, "Copia un blocco di doppie parole"},
      {"SWAP", Trasferimenti, "Scambia i byte di una parola"},
      {"ITB", Conversioni, "Converte un intero in byte", Ramo_Nullo},
      {"ITD", Conversioni, "Converte un intero in doppia parola"},
      {"DTI", Conversioni, "Converte una doppia parola in intero"},
      {"DTR", Conversioni, "Converte una doppia parola in reale"},
      {"ROUND", Conversioni, "Arrotonda un reale"},
      {"TRUNC", Conversioni, "Tronca un reale"},
      {"BCDI", Conversioni, "Converte BCD in intero", Ramo_Nullo},
      {"IBCD", Conversioni, "Converte un intero in BCD", Ramo_Nullo},
      {"ITA", Conversioni, "Converte un intero in testo"},
      {"DTA", Conversioni, "Converte una doppia parola in testo"},
      {"RTA", Conversioni, "Converte un reale in testo"},
      {"DECO", Conversioni, "Decodifica un numero di bit"},
      {"ENCO", Conversioni, "Codifica il primo bit a 1"},
      {"ATH", Conversioni, "Converte testo in esadecimale"},
      {"HTA", Conversioni, "Converte esadecimale in testo"},
      {"SEG", Conversioni, "Codice per visualizzatore a sette segmenti"},
      {"DIV", Aritmetica, "Divisione con resto", Ramo_Nullo},
      {"MUL", Aritmetica, "Moltiplicazione con risultato doppio"},
      {"+R", Aritmetica, "Somma tra reali"},
      {"-R", Aritmetica, "Sottrazione tra reali"},
      {"*R", Aritmetica, "Moltiplicazione tra reali"},
      {"/R", Aritmetica, "Divisione tra reali"},
      {"SQRT", Aritmetica, "Radice quadrata"},
      {"SIN", Aritmetica, "Seno"},
      {"COS", Aritmetica, "Coseno"},
      {"TAN", Aritmetica, "Tangente"},
      {"LN", Aritmetica, "Logaritmo naturale"},
      {"EXP", Aritmetica, "Esponenziale"},
      {"PID", Aritmetica, "Regolatore PID"},
      {"INVB", Logica, "Complemento di un byte"},
      {"INVW", Logica, "Complemento di una parola"},
      {"INVD", Logica, "Complemento di una doppia parola"},
      {"ANDB", Logica, "AND tra byte"},
      {"ANDW", Logica, "AND tra parole"},
      {"ANDD", Logica, "AND tra doppie parole"},
      {"ORB", Logica, "OR tra byte"},
      {"ORW", Logica, "OR tra parole"},
      {"ORD", Logica, "OR tra doppie parole"},
      {"XORB", Logica, "OR esclusivo tra byte"},
      {"XORW", Logica, "OR esclusivo tra parole"},
      {"SLB", Logica, "Scorre a sinistra un byte"},
      {"SLW", Logica, "Scorre a sinistra una parola"},
      {"SLD", Logica, "Scorre a sinistra una doppia parola"},
      {"SRB", Logica, "Scorre a destra un byte"},
      {"SRW", Logica, "Scorre a destra una parola"},
      {"SRD", Logica, "Scorre a destra una doppia parola"},
      {"RLB", Logica, "Ruota a sinistra un byte"},
      {"RLW", Logica, "Ruota a sinistra una parola"},
      {"RLD", Logica, "Ruota a sinistra una doppia parola"},
      {"RRB", Logica, "Ruota a destra un byte"},
      {"RRW", Logica, "Ruota a destra una parola"},
      {"RRD", Logica, "Ruota a destra una doppia parola"},
      {"SHRB", Logica, "Registro a scorrimento"},
      {"FOR", Programma, "Inizio di un ciclo FOR"},
      {"NEXT", Programma, "Fine di un ciclo FOR"},
      {"END", Programma, "Fine condizionata del programma", Ramo_Nullo},
      {"STOP", Programma, "Mette la CPU in STOP", Ramo_Nullo},
      {"WDR", Programma, "Riarma il controllo del tempo di ciclo"},
      {"SCRT", Sequenze, "Transizione al passo successivo: si usano S e R sui bit S"},
      {"CRETI", Interruzioni, "Fine condizionata di una routine di interrupt", Ramo_Nullo},
      {"ENI", Interruzioni, "Abilita gli interrupt", Ramo_Nullo},
      {"DISI", Interruzioni, "Disabilita gli interrupt", Ramo_Nullo},
      {"ATCH", Interruzioni, "Collega un evento a una routine", Ramo_Nullo},
      {"DTCH", Interruzioni, "Scollega un evento da una routine"},
  };
  // clang-format on
  Righe righe;
  for (const Riga& riga : elenco)
    righe.push_back(Di(riga.famiglia, Gruppo::Non_Supportata,
                       {{.Nome = riga.nome, .Esegui = riga.ramo, .Aiuto = riga.aiuto}})
                        .front());
  return righe;
}

namespace {

const std::vector<Istruzione>& Tutte() {
  using namespace righe;
  static const std::vector<Istruzione> tabella =
      Insieme_Di({Contatti(), Pila(), Uscite(), Temporizzatori(), Contatori(), Trasferimenti(),
                  Aritmetica(), righe::Programma(), Non_Eseguite(), Confronti(), Non_Supportate()});
  return tabella;
}

/// The rows with a `Testa`.
const std::vector<const Istruzione*>& Teste() {
  static const auto teste = [] {
    std::vector<const Istruzione*> righe;
    for (const Istruzione& istruzione : Tutte()) {
      if (!istruzione.Testa.empty()) righe.push_back(&istruzione);
    }
    return righe;
  }();
  return teste;
}

}  // namespace

std::string_view Nome_Famiglia(Famiglia famiglia) {
  static constexpr std::array<std::string_view, 13> nomi = {"Contatti",
                                                            "Uscite",
                                                            "Pila logica",
                                                            "Temporizzatori",
                                                            "Contatori",
                                                            "Trasferimenti",
                                                            "Conversioni",
                                                            "Confronti",
                                                            "Aritmetica",
                                                            "Logica e scorrimento",
                                                            "Controllo del programma",
                                                            "Controllo di sequenza",
                                                            "Interruzioni"};
  return nomi[static_cast<std::size_t>(famiglia)];
}

std::span<const Istruzione> Tabella_Istruzioni() {
  return Tutte();
}

const Istruzione* Cerca_Istruzione(std::string_view istr) {
  static const auto indice = [] {
    std::unordered_map<std::string_view, const Istruzione*> righe;
    for (const Istruzione& istruzione : Tutte()) righe.emplace(istruzione.Nome, &istruzione);
    return righe;
  }();
  for (const Istruzione* riga : Teste()) {
    const std::string_view testa = istr.substr(0, riga->Testa.size());
    if (istr.size() > testa.size() &&
        (testa == riga->Testa || (riga->Testa_Maiuscola && Maiuscole(testa) == riga->Testa)))
      return riga;
  }
  const auto trovata = indice.find(istr);
  return trovata == indice.end() ? nullptr : trovata->second;
}

const Istruzione* Cerca_Testa(std::string_view riga) {
  for (const Istruzione* istruzione : Teste()) {
    if (riga.starts_with(istruzione->Testa)) return istruzione;
  }
  return nullptr;
}

void Decodifica(Riga_PLC& riga) {
  static const Istruzione sconosciuta;
  const Istruzione* trovata = Cerca_Istruzione(riga.Istr);
  const Istruzione& istruzione = trovata ? *trovata : sconosciuta;
  riga.Unione = istruzione.Unione;
  riga.Confronto = istruzione.Confronto;
  riga.Nel_Programma = istruzione.Nel_Programma;
  riga.Codice1 = Cerca_Area(riga.Area1);
  riga.Codice2 = Cerca_Area(riga.Area2);
  riga.Esegui = istruzione.Esegui[riga.Codice1];
}

}  // namespace tavorno
