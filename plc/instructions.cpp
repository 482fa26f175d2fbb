// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/instructions.h"

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "plc/codepage.h"
#include "plc/plc.h"

namespace tavorno {

namespace {

using enum Famiglia;
using enum Gruppo;

/// A member of the CPU as a plain function: half the size of a pointer to a member, which keeps
/// what the interpreter reads of a line within one cache line.
template <Esito (Plc::*Membro)(Riga_PLC&)>
Esito Ramo_Di(Plc& plc, Riga_PLC& riga) {
  return (plc.*Membro)(riga);
}

constexpr const char* non_eseguita = " (non disponibile nel simulatore)";

// clang-format off

// The accepted instructions.
const std::vector<Istruzione>& Accettate() {
  using namespace regole;
  static const std::vector<Istruzione> righe = {
      // Contacts
      {"LD", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_LD>, "Carica il bit in cima alla pila: contatto normalmente aperto"},
      {"LDN", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_LDN>, "Carica il bit negato: contatto normalmente chiuso"},
      {"LDI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_LDI>, "Carica subito lo stato dell'ingresso fisico"},
      {"LDNI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_LDNI>, "Carica subito lo stato negato dell'ingresso fisico"},
      {"A", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_A>, "AND del bit con la cima della pila: contatto in serie"},
      {"AN", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_AN>, "AND del bit negato: contatto chiuso in serie"},
      {"AI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_AI>, "AND con l'ingresso fisico, letto subito"},
      {"ANI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_ANI>, "AND con l'ingresso fisico negato, letto subito"},
      {"O", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_O>, "OR del bit con la cima della pila: contatto in parallelo"},
      {"ON", Contatti, Con_Regola, &Contatto, Ramo_Di<&Plc::Istr_ON>, "OR del bit negato: contatto chiuso in parallelo"},
      {"OI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_OI>, "OR con l'ingresso fisico, letto subito"},
      {"ONI", Contatti, Con_Regola, &Contatto_Immediato, Ramo_Di<&Plc::Istr_ONI>, "OR con l'ingresso fisico negato, letto subito"},
      {"NOT", Contatti, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_NOT>, "Inverte la cima della pila"},
      {"EU", Contatti, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_EU>, "Fronte di salita: vero per una scansione quando la cima passa da 0 a 1"},
      {"ED", Contatti, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_ED>, "Fronte di discesa: vero per una scansione quando la cima passa da 1 a 0"},

      // Logic stack
      {"ALD", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_ALD>, "AND dei due valori in cima alla pila: blocchi in serie"},
      {"OLD", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_OLD>, "OR dei due valori in cima alla pila: blocchi in parallelo"},
      {"LPS", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_LPS>, "Duplica la cima della pila"},
      {"LRD", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_LRD>, "Copia il secondo valore della pila in cima"},
      {"LPP", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_LPP>, "Toglie la cima della pila"},
      {"NOP", Pila, Senza_Operandi, nullptr, Ramo_Di<&Plc::Istr_Nulla>, "Nessuna operazione"},

      // Outputs
      {"=", Uscite, Con_Regola, &Uscita, Ramo_Di<&Plc::Istr_Assegna>, "Assegna la cima della pila al bit: bobina"},
      {"=I", Uscite, Con_Regola, &Uscita_Immediata, Ramo_Di<&Plc::Istr_Assegna_I>, "Assegna la cima della pila all'uscita fisica, subito"},
      {"S", Uscite, Con_Regola, &Set, Ramo_Di<&Plc::Istr_S>, "Mette a 1 N bit a partire da quello indicato"},
      {"R", Uscite, Con_Regola, &Reset, Ramo_Di<&Plc::Istr_R>, "Mette a 0 N bit a partire da quello indicato, oppure azzera un temporizzatore o un contatore"},
      {"SI", Uscite, Con_Regola, &Set_Immediato, Ramo_Di<&Plc::Istr_SI>, "Mette a 1 subito N+1 uscite fisiche"},
      {"RI", Uscite, Con_Regola, &Set_Immediato, Ramo_Di<&Plc::Istr_RI>, "Mette a 0 N+1 uscite nell'immagine"},

      // Timers and counters
      {"TON", Temporizzatori, Con_Regola, &Timer, Ramo_Di<&Plc::Istr_TON>, "Temporizzatore con ritardo all'inserzione"},
      {"TOF", Temporizzatori, Con_Regola, &Timer, Ramo_Di<&Plc::Istr_TOF>, "Temporizzatore con ritardo alla disinserzione"},
      {"TONR", Temporizzatori, Con_Regola, &Timer, Ramo_Di<&Plc::Istr_TONR>, "Temporizzatore con ritardo all'inserzione e memoria del tempo trascorso"},
      {"CTU", Contatori, Con_Regola, &Contatore, Ramo_Di<&Plc::Istr_CTU>, "Contatore in avanti: conteggio, poi reset"},
      {"CTD", Contatori, Con_Regola, &Contatore, Ramo_Di<&Plc::Istr_CTD>, "Contatore all'indietro: conteggio, poi caricamento"},
      {"CTUD", Contatori, Con_Regola, &Contatore, Ramo_Di<&Plc::Istr_CTUD>, "Contatore bidirezionale: avanti, indietro, poi reset"},

      // Moves and conversions
      {"MOVB", Trasferimenti, Con_Regola, &MOVB, Ramo_Di<&Plc::Istr_MOVB>, "Copia un byte"},
      {"MOVW", Trasferimenti, Con_Regola, &MOVW, Ramo_Di<&Plc::Istr_MOVW>, "Copia una parola"},
      {"MOVD", Trasferimenti, Con_Regola, &MOVD, Ramo_Di<&Plc::Istr_MOVD>, "Copia una doppia parola"},
      {"BIR", Trasferimenti, Con_Regola, &BIR, Ramo_Di<&Plc::Istr_BIR>, "Legge subito un byte di ingressi fisici"},
      {"BIW", Trasferimenti, Con_Regola, &BIW, Ramo_Di<&Plc::Istr_BIW>, "Scrive subito un byte di uscite fisiche"},
      {"BTI", Conversioni, Con_Regola, &BTI, Ramo_Di<&Plc::Istr_BTI>, "Converte un byte in intero; su T o C ne imposta il preset"},

      // Arithmetic
      {"+I", Aritmetica, Con_Regola, &Aritmetica_I, Ramo_Di<&Plc::Istr_Somma_I>, "Somma tra interi: OP2 = OP2 + OP1"},
      {"-I", Aritmetica, Con_Regola, &Aritmetica_I, Ramo_Di<&Plc::Istr_Sottrai_I>, "Sottrazione tra interi: OP2 = OP2 - OP1"},
      {"*I", Aritmetica, Con_Regola, &Aritmetica_I, Ramo_Di<&Plc::Istr_Molt_I>, "Moltiplicazione tra interi: OP2 = OP2 * OP1"},
      {"/I", Aritmetica, Con_Regola, &Aritmetica_I, Ramo_Di<&Plc::Istr_Divi_I>, "Divisione tra interi: OP2 = OP2 / OP1"},
      {"+D", Aritmetica, Con_Regola, &Aritmetica_D, Ramo_Di<&Plc::Istr_Somma_D>, "Somma tra doppie parole: OP2 = OP2 + OP1"},
      {"-D", Aritmetica, Con_Regola, &Aritmetica_D, Ramo_Di<&Plc::Istr_Sottrai_D>, "Sottrazione tra doppie parole: OP2 = OP2 - OP1"},
      {"*D", Aritmetica, Con_Regola, &Aritmetica_D, Ramo_Di<&Plc::Istr_Molt_D>, "Moltiplicazione tra doppie parole: OP2 = OP2 * OP1"},
      {"/D", Aritmetica, Con_Regola, &Aritmetica_D, Ramo_Di<&Plc::Istr_Divi_D>, "Divisione tra doppie parole: OP2 = OP2 / OP1"},
      {"INCB", Aritmetica, Con_Regola, &Inc_B, Ramo_Di<&Plc::Istr_INCB>, "Aumenta di 1 un byte"},
      {"DECB", Aritmetica, Con_Regola, &Inc_B, Ramo_Di<&Plc::Istr_DECB>, "Diminuisce di 1 un byte"},
      {"INCW", Aritmetica, Con_Regola, &Inc_W, Ramo_Di<&Plc::Istr_INCW>, "Aumenta di 1 una parola"},
      {"DECW", Aritmetica, Con_Regola, &Inc_W, Ramo_Di<&Plc::Istr_DECW>, "Diminuisce di 1 una parola"},
      {"INCD", Aritmetica, Con_Regola, &Inc_D, Ramo_Di<&Plc::Istr_INCD>, "Aumenta di 1 una doppia parola"},
      {"DECD", Aritmetica, Con_Regola, &Inc_D, Ramo_Di<&Plc::Istr_DECD>, "Diminuisce di 1 una doppia parola"},

      // Program flow
      {"NETW", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_Nulla>, "Inizio di un segmento (riga NETWORK)"},
      {"MEND", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_MEND>, "Fine del programma principale e della scansione"},
      {"JMP", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_JMP>, "Salta all'etichetta LBL con lo stesso numero"},
      {"LBL", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_Nulla>, "Etichetta, meta di un salto JMP"},
      {"CALL", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_CALL>, "Richiama la procedura con il nome indicato"},
      {"SBR", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_Nulla>, "Inizio di una procedura"},
      {"RET", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_RET>, "Fine della procedura: ritorna al chiamante"},
      {"CRET", Programma, Accettata, nullptr, Ramo_Di<&Plc::Istr_CRET>, "Ritorna al chiamante se la cima della pila è 1"},

      // Sequence control
      {"LSCR", Sequenze, Accettata, nullptr, Ramo_Di<&Plc::Istr_LSCR>, "Inizio di un passo: le uscite della sezione agiscono se il bit S è 1"},
      {"SCRE", Sequenze, Accettata, nullptr, Ramo_Di<&Plc::Istr_Nulla>, "Fine della sezione di un passo"},

      // Accepted by the checker, though the interpreter has no branch for them
      {"INT", Interruzioni, Accettata, nullptr, Ramo_Di<&Plc::Senza_Ramo>, "Inizio di una routine di interrupt: non eseguita, il PLC si ferma"},
      {"RETI", Interruzioni, Accettata, nullptr, Ramo_Di<&Plc::Senza_Ramo>, "Fine di una routine di interrupt: non eseguita, il PLC si ferma"},
      {"XORD", Logica, Accettata, nullptr, Ramo_Di<&Plc::Senza_Ramo>, "OR esclusivo tra doppie parole: accettata ma non eseguita, il PLC si ferma"},
  };
  return righe;
}

// clang-format on

// The 54 comparison contacts: connection, width and relation.
void Aggiungi_Confronti(std::vector<Istruzione>& tabella) {
  struct Larghezza {
    const char* lettera;
    const char* nome;
    const Regola* regola;
    Ramo ramo;
  };
  static const std::array<Larghezza, 3> larghezze = {{
      {"B", "byte", &regole::Confronto_B, Ramo_Di<&Plc::Istr_Confronto_B>},
      {"W", "parole", &regole::Confronto_W, Ramo_Di<&Plc::Istr_Confronto_W>},
      {"D", "doppie parole", &regole::Confronto_D, Ramo_Di<&Plc::Istr_Confronto_D>},
  }};
  static constexpr std::array<std::pair<const char*, Relazione>, 6> relazioni = {{
      {"=", Relazione::Uguale},
      {"<>", Relazione::Diverso},
      {">=", Relazione::Maggiore_Uguale},
      {"<=", Relazione::Minore_Uguale},
      {">", Relazione::Maggiore},
      {"<", Relazione::Minore},
  }};
  static constexpr std::array<std::pair<const char*, Connessione>, 3> connessioni = {
      {{"LD", Connessione::LD}, {"A", Connessione::A}, {"O", Connessione::O}}};
  static constexpr std::array<const char*, 3> verbi = {"Carica", "AND con", "OR con"};

  for (std::size_t c = 0; c < connessioni.size(); ++c) {
    const auto& [sigla, connessione] = connessioni[c];
    for (const Larghezza& larghezza : larghezze) {
      for (const auto& [segno, relazione] : relazioni) {
        tabella.push_back({std::string(sigla) + larghezza.lettera + segno, Confronti, Con_Regola,
                           larghezza.regola, larghezza.ramo,
                           std::string(verbi[c]) + " il confronto tra " + larghezza.nome +
                               ": OP1 " + segno + " OP2",
                           connessione, relazione});
      }
    }
    for (const auto& [segno, relazione] : relazioni) {
      tabella.push_back({std::string(sigla) + "R" + segno, Confronti, Non_Supportata, nullptr,
                         Ramo_Di<&Plc::Senza_Ramo>,
                         std::string(verbi[c]) + " il confronto tra numeri reali: OP1 " + segno +
                             " OP2" + non_eseguita});
    }
  }
}

// Known and refused. A few have a branch that a checked program never reaches.
void Aggiungi_Non_Supportate(std::vector<Istruzione>& tabella) {
  struct Riga {
    const char* nome;
    Famiglia famiglia;
    const char* aiuto;
    Ramo ramo = Ramo_Di<&Plc::Senza_Ramo>;
  };
  // clang-format off
  static const std::vector<Riga> righe = {
      {"LDS", Pila, "Copia l'ennesimo valore della pila in cima"},
      {"AENO", Pila, "AND con il bit di consenso ENO"},
      {"HDEF", Contatori, "Definisce il modo di un contatore veloce"},
      {"HSC", Contatori, "Contatore veloce"},
      {"PLS", Contatori, "Uscita a impulsi"},
      {"MOVR", Trasferimenti, "Copia un numero reale", Ramo_Di<&Plc::Istr_MOVD>},
      {"BMB", Trasferimenti, "Copia un blocco di byte"},
      {"BMW", Trasferimenti, "Copia un blocco di parole"},
      {"BMD", Trasferimenti, "Copia un blocco di doppie parole"},
      {"SWAP", Trasferimenti, "Scambia i byte di una parola"},
      {"ITB", Conversioni, "Converte un intero in byte", Ramo_Di<&Plc::Istr_Nulla>},
      {"ITD", Conversioni, "Converte un intero in doppia parola"},
      {"DTI", Conversioni, "Converte una doppia parola in intero"},
      {"DTR", Conversioni, "Converte una doppia parola in reale"},
      {"ROUND", Conversioni, "Arrotonda un reale"},
      {"TRUNC", Conversioni, "Tronca un reale"},
      {"BCDI", Conversioni, "Converte BCD in intero", Ramo_Di<&Plc::Istr_Nulla>},
      {"IBCD", Conversioni, "Converte un intero in BCD", Ramo_Di<&Plc::Istr_Nulla>},
      {"ITA", Conversioni, "Converte un intero in testo"},
      {"DTA", Conversioni, "Converte una doppia parola in testo"},
      {"RTA", Conversioni, "Converte un reale in testo"},
      {"DECO", Conversioni, "Decodifica un numero di bit"},
      {"ENCO", Conversioni, "Codifica il primo bit a 1"},
      {"ATH", Conversioni, "Converte testo in esadecimale"},
      {"HTA", Conversioni, "Converte esadecimale in testo"},
      {"SEG", Conversioni, "Codice per visualizzatore a sette segmenti"},
      {"DIV", Aritmetica, "Divisione con resto", Ramo_Di<&Plc::Istr_Nulla>},
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
      {"END", Programma, "Fine condizionata del programma", Ramo_Di<&Plc::Istr_Nulla>},
      {"STOP", Programma, "Mette la CPU in STOP", Ramo_Di<&Plc::Istr_Nulla>},
      {"WDR", Programma, "Riarma il controllo del tempo di ciclo"},
      {"SCRT", Sequenze, "Transizione al passo successivo: si usano S e R sui bit S"},
      {"CRETI", Interruzioni, "Fine condizionata di una routine di interrupt", Ramo_Di<&Plc::Istr_Nulla>},
      {"ENI", Interruzioni, "Abilita gli interrupt", Ramo_Di<&Plc::Istr_Nulla>},
      {"DISI", Interruzioni, "Disabilita gli interrupt", Ramo_Di<&Plc::Istr_Nulla>},
      {"ATCH", Interruzioni, "Collega un evento a una routine", Ramo_Di<&Plc::Istr_Nulla>},
      {"DTCH", Interruzioni, "Scollega un evento da una routine"},
  };
  // clang-format on
  for (const Riga& riga : righe)
    tabella.push_back({riga.nome, riga.famiglia, Non_Supportata, nullptr, riga.ramo,
                       std::string(riga.aiuto) + non_eseguita});
}

const std::vector<Istruzione>& Tutte() {
  static const std::vector<Istruzione> tabella = [] {
    std::vector<Istruzione> righe = Accettate();
    Aggiungi_Confronti(righe);
    Aggiungi_Non_Supportate(righe);
    return righe;
  }();
  return tabella;
}

}  // namespace

Ramo Ramo_Assente() {
  return Ramo_Di<&Plc::Senza_Ramo>;
}

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
  if (istr.size() > 7 && Maiuscole(istr.substr(0, 7)) == "NETWORK") istr = "NETW";
  if (istr.size() > 3 && (istr.starts_with("SBR") || istr.starts_with("INT")))
    istr = istr.substr(0, 3);
  const auto trovata = indice.find(istr);
  return trovata == indice.end() ? nullptr : trovata->second;
}

}  // namespace tavorno
