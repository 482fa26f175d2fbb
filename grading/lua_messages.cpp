// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/lua_messages.h"

#include <regex>

#include "trace/markup.h"

namespace tavorno {

namespace {

struct Traduzione {
  const char* Inglese;  // regular expression
  const char* Italiano;
};

// The first that fits a message; each is searched for in the whole text.
constexpr Traduzione traduzioni[] = {
    {R"(attempt to call a nil value \((?:global|field|method) '([^']*)'\))",
     "la funzione '$1' non esiste"},
    {R"(attempt to call an? (\w+) value.*)", "si chiama come funzione qualcosa che non lo è ($1)"},
    {R"(attempt to index an? (\w+) value \((\w+) '([^']*)'\))",
     "'$3' non ha campi, perché è di tipo $1"},
    {R"(attempt to index an? (\w+) value.*)", "si cerca un campo in un valore di tipo $1"},
    {R"(attempt to perform arithmetic on an? (\w+) value( \(\w+ '([^']*)'\))?)",
     "calcolo con un valore di tipo $1$2"},
    {R"(attempt to concatenate an? (\w+) value( \(\w+ '([^']*)'\))?)",
     "unione di testi con un valore di tipo $1$2"},
    {R"(attempt to compare two (\w+) values)", "confronto fra due valori di tipo $1"},
    {R"(attempt to compare (\w+) with (\w+))",
     "confronto fra un valore di tipo $1 e uno di tipo $2"},
    {R"(attempt to get length of an? (\w+) value.*)", "lunghezza di un valore di tipo $1"},
    {R"(attempt to load a binary chunk.*)", "lo script non è un testo"},
    {R"(attempt to (?:perform 'n//0'|divide by zero|perform 'n%%0'))", "divisione per zero"},
    {R"(C stack overflow)", "troppe chiamate una dentro l'altra"},
    {R"(stack overflow[\s\S]*)", "troppe chiamate una dentro l'altra (ricorsione senza fine)"},
    {R"(not enough memory)",
     "lo script supera il limite di memoria (troppi dati, o una funzione che richiama sé stessa "
     "senza fine)"},
    {R"(resulting string too large)", "lo script supera il limite di memoria: testo troppo lungo"},
    {R"(assertion failed!)", "assert non soddisfatto"},
    {R"(bad argument #(\d+) to '([^']*)' \(.*\))", "l'argomento $1 di '$2' non va bene"},
    {R"(number has no integer representation)", "serve un numero intero"},
    {R"('for' step is zero)", "il passo del 'for' è zero"},
    {R"('for' (?:initial|limit|step) value must be a number)",
     "i valori del 'for' devono essere numeri"},
    {R"(bad 'for' (?:initial value|limit|step) \(number expected, got (\w+)\))",
     "i valori del 'for' devono essere numeri, e non di tipo $1"},
    {R"(table index is (nil|NaN))", "l'indice di una tabella non può essere $1"},
    {R"(invalid value \((\w+)\) at index (\d+) in table for 'concat')",
     "il campo $2 della tabella non si può unire, perché è di tipo $1"},
    {R"(invalid order function for sorting)", "la funzione di confronto non ordina"},
    {R"(malformed pattern.*)", "il modello di ricerca è scritto male"},
    {R"(pattern too complex|too many captures|invalid (?:capture|pattern capture).*)",
     "il modello di ricerca non va bene"},
    {R"(invalid (?:conversion|use of '%').*)", "il formato di un numero o testo è scritto male"},
    {R"(too many results to unpack|string slice too long)", "troppi valori in una volta"},
    {R"(attempt to assign to const variable '([^']*)')", "'$1' non si può cambiare"},
    {R"(too many local variables[\s\S]*)", "troppe variabili 'local' in una funzione"},
    {R"(no visible label '([^']*)'.*)", "'goto' a un'etichetta che non c'è: '$1'"},
    {R"(break outside (?:a )?loop.*)", "'break' fuori da un ciclo"},
    {R"(unfinished long (string|comment)[\s\S]*)", "errore di sintassi: manca ']]'"},
    {R"(invalid escape sequence(?: near)? (.*))", "errore di sintassi: \\ fuori posto in $1"},
    {R"((.*) expected \(to close (.*) at line (\d+)\) near (.*))",
     "errore di sintassi: manca $1 per chiudere $2 della riga $3, vicino a $4"},
    {R"((.*) expected near (.*))", "errore di sintassi: manca $1 vicino a $2"},
    {R"(unexpected symbol near (.*))", "errore di sintassi vicino a $1"},
    {R"(syntax error near (.*))", "errore di sintassi vicino a $1"},
    {R"(unfinished string near (.*))",
     "errore di sintassi: testo senza virgolette di chiusura, $1"},
    {R"(malformed number near (.*))", "errore di sintassi: numero scritto male, $1"},
};

}  // namespace

std::string Accorcia(const std::string& testo) {
  if (testo.size() <= lunghezza_messaggio) return Utf8_Valido(testo);
  std::size_t fine = lunghezza_messaggio;
  while (fine > 0 && (static_cast<unsigned char>(testo[fine]) & 0xC0U) == 0x80) --fine;
  return Utf8_Valido(testo.substr(0, fine)) + "...";
}

std::string In_Italiano(const std::string& messaggio) {
  std::string testo = Accorcia(messaggio);
  std::string posto;
  std::smatch trovato;
  if (std::regex_search(testo, trovato, std::regex(R"(^([^:\n]*):(\d+): )"))) {
    posto = trovato[1].str() + ", riga " + trovato[2].str() + ": ";
    testo = trovato.suffix();
  }
  for (const Traduzione& traduzione : traduzioni) {
    const std::regex inglese(traduzione.Inglese);
    if (!std::regex_search(testo, trovato, inglese)) continue;
    testo = trovato.prefix().str() + trovato.format(traduzione.Italiano) + trovato.suffix().str();
    break;
  }
  return posto + testo;
}

}  // namespace tavorno
