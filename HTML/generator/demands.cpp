// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/demands.h"

#include <set>
#include <stdexcept>

#include "HTML/generator/html_text.h"

namespace tavorno {

namespace {

std::string Riga(const char* classe, const std::string& testo, const std::string& punti) {
  return "<tr class=\"" + std::string(classe) + "\"><td>" + Html(testo) + "</td><td>" + punti +
         "</td></tr>\n";
}

/// A demand stands once in its case. A premise stands where it is met first, and again where a case
/// makes a premise of what another gives marks for.
std::string Righe(const Caso& caso, std::set<std::string>& premesse) {
  std::string testo =
      "<tr><th>" + Html(caso.Nome) + "</th><th>" + Testo_Punti(caso.Massimo) + "</th></tr>\n";
  std::set<std::string> viste;
  for (const Richiesta& richiesta : caso.Richieste) {
    if (!richiesta.Premessa) {
      testo += Riga("richiesta", richiesta.Testo, Testo_Punti(richiesta.Punti));
      viste.insert(richiesta.Testo);
    } else if (!viste.contains(richiesta.Testo) && premesse.insert(richiesta.Testo).second) {
      testo += Riga("premessa", richiesta.Testo, "prima");
    }
  }
  return testo;
}

}  // namespace

std::string Sezione_Controlli(const Esito_Progetto& esito) {
  if (!esito.Superato() || esito.Punti() != esito.Massimo() || esito.Casi.empty())
    throw std::runtime_error(esito.Progetto + " non ha tutti i punti: " + esito.Primo_Rilievo());
  std::string testo = "<h2>Che cosa si controlla</h2>\n<p>Lo script di questo esercizio assegna " +
                      Testo_Punti(esito.Massimo()) +
                      " punti. Una riga con «prima» non ne vale: se quello che dice non succede, "
                      "non si guadagnano i "
                      "punti che la seguono nella sua prova. La stessa premessa è scritta soltanto "
                      "la prima volta.</p>\n"
                      "<table class=\"controlli\">\n";
  std::set<std::string> premesse;
  for (const Caso& caso : esito.Casi) testo += Righe(caso, premesse);
  return testo + "</table>\n";
}

}  // namespace tavorno
