// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/reports.h"

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>

#include "trace/markup.h"

namespace tavorno {

namespace {

constexpr std::size_t larghezza_nome = 44;

std::string Allarga(const std::string& testo, std::size_t larghezza) {
  const std::size_t lungo = Lunghezza_Utf8(testo);
  return testo + std::string(lungo < larghezza ? larghezza - lungo : 0, ' ');
}

/// A text of others on one line of a terminal, which shall not obey it.
std::string Su_Una_Riga(std::string testo) {
  std::ranges::replace_if(
      testo, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
  return Utf8_Valido(testo);
}

std::string Su_Massimo(double punti, double massimo) {
  return Testo_Punti(punti) + "/" + Testo_Punti(massimo);
}

void Stampa_Listato(std::ostream& out, const std::string& listato) {
  std::size_t inizio = 0;
  while (inizio < listato.size()) {
    const std::size_t fine = std::min(listato.find('\n', inizio), listato.size());
    out << "                     | " << Su_Una_Riga(listato.substr(inizio, fine - inizio)) << '\n';
    inizio = fine + 1;
  }
}

}  // namespace

void Stampa_Progetto(std::ostream& out, const Esito_Progetto& esito) {
  out << Su_Una_Riga(esito.Progetto) << '\n';
  std::string listato;  // the same for all cases when the project does not compile
  for (const Caso& caso : esito.Casi) {
    out << (caso.Superato()      ? "  ok       "
            : caso.Script_Errato ? "  ERRORE   "
                                 : "  FALLITO  ")
        << Allarga(Su_Una_Riga(caso.Nome), larghezza_nome) << std::setw(9) << caso.Ms << " ms";
    if (caso.Massimo > 0) out << "   " << Su_Massimo(caso.Punti, caso.Massimo) << " punti";
    out << '\n';
    for (const Rilievo& rilievo : caso.Rilievi)
      out << std::setw(16) << rilievo.Ms << " ms: " << Su_Una_Riga(rilievo.Testo) << '\n';
    for (const std::string& nota : caso.Note)
      out << "             nota: " << Su_Una_Riga(nota) << '\n';
    if (caso.Listato != listato) Stampa_Listato(out, caso.Listato);
    listato = caso.Listato;
  }
  out << "Superati " << esito.Superati() << " casi su " << esito.Casi.size() << ".";
  if (esito.Massimo() > 0)
    out << " Punti: " << Testo_Punti(esito.Punti()) << " su " << Testo_Punti(esito.Massimo())
        << ".";
  out << '\n';
}

void Stampa_Riga(std::ostream& out, const Esito_Progetto& esito) {
  const bool giudicato = esito.Non_Esaminato.empty() && !esito.Script_Errato();
  out << (esito.Superato() ? "ok       "
          : giudicato      ? "FALLITO  "
                           : "ERRORE   ")
      << Allarga(Su_Una_Riga(esito.Progetto), larghezza_nome);
  if (!esito.Non_Esaminato.empty()) {
    out << " non esaminato: " << Su_Una_Riga(esito.Non_Esaminato) << '\n';
    return;
  }
  out << " casi " << esito.Superati() << "/" << esito.Casi.size();
  if (esito.Massimo() > 0) out << "  punti " << Su_Massimo(esito.Punti(), esito.Massimo());
  if (!esito.Superato()) out << "  " << Su_Una_Riga(esito.Primo_Rilievo());
  out << '\n';
}

const char* Versione() {
  return TAVORNO_VERSION;
}

std::string Rapporto_Csv(const std::vector<Esito_Progetto>& esiti, const Testata& testata) {
  std::string script, impronte;
  for (const Testata::Script& uno : testata.Con) {
    script += (script.empty() ? "" : " ") + uno.Nome;
    impronte += (impronte.empty() ? "" : " ") + uno.Impronta;
  }
  const std::string coda = In_Csv(script) + ";" + impronte + ";" + Versione() + "\n";
  std::string csv =
      "progetto;esito;casi superati;casi;punti;massimo;primo rilievo;data;script;impronta;"
      "versione\n";
  for (const Esito_Progetto& esito : esiti) {
    csv += In_Csv(Utf8_Valido(esito.Progetto)) + ";" + esito.Giudizio_In_Breve() + ";" +
           std::to_string(esito.Superati()) + ";" + std::to_string(esito.Casi.size()) + ";" +
           Testo_Punti(esito.Punti()) + ";" + Testo_Punti(esito.Massimo()) + ";" +
           In_Csv(esito.Primo_Rilievo()) + ";" + esito.Data + ";" + coda;
  }
  return csv;
}

namespace {

using Json = nlohmann::ordered_json;

const char* Parola(Esito_Richiesta esito) {
  switch (esito) {
    case Esito_Richiesta::Soddisfatta:
      return "met";
    case Esito_Richiesta::Mancata:
      return "missed";
    case Esito_Richiesta::Non_Giudicata:
      break;
  }
  return "not judged";
}

Json Richieste_Json(const Caso& caso) {
  Json richieste = Json::array();
  for (const Richiesta& richiesta : caso.Richieste)
    richieste.push_back({{"ms", richiesta.Ms},
                         {"text", richiesta.Testo},
                         {"premise", richiesta.Premessa},
                         {"marks", richiesta.Punti},
                         {"outcome", Parola(richiesta.Esito)}});
  return richieste;
}

}  // namespace

std::string Rapporto_Json(const std::vector<Esito_Progetto>& esiti, const Testata& testata) {
  Json progetti = Json::array();
  for (const Esito_Progetto& esito : esiti) {
    Json casi = Json::array();
    for (const Caso& caso : esito.Casi) {
      Json rilievi = Json::array();
      for (const Rilievo& rilievo : caso.Rilievi)
        rilievi.push_back({{"ms", rilievo.Ms}, {"text", rilievo.Testo}});
      casi.push_back({{"script", caso.Script},
                      {"name", caso.Nome},
                      {"passed", caso.Superato()},
                      {"script_error", caso.Script_Errato},
                      {"ms", caso.Ms},
                      {"marks", caso.Punti},
                      {"maximum", caso.Massimo},
                      {"demands", Richieste_Json(caso)},
                      {"findings", rilievi},
                      {"notes", caso.Note},
                      {"listing", caso.Listato}});
    }
    progetti.push_back({{"project", esito.Progetto},
                        {"date", esito.Data},
                        {"verdict", esito.Giudizio_In_Breve()},
                        {"not_graded", esito.Non_Esaminato},
                        {"readable", !esito.Illeggibile},
                        {"passed", esito.Superato()},
                        {"marks", esito.Punti()},
                        {"maximum", esito.Massimo()},
                        {"cases", casi}});
  }
  Json script = Json::array();
  for (const Testata::Script& uno : testata.Con)
    script.push_back({{"name", uno.Nome}, {"sha256", uno.Impronta}});
  const Json rapporto = {{"program", "tavorno-banco"},
                         {"version", Versione()},
                         {"scripts", script},
                         {"projects", progetti}};
  return rapporto.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tavorno
