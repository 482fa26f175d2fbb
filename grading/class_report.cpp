// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/class_report.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "trace/markup.h"

namespace tavorno {

namespace {

constexpr const char* stile = R"(<style>
body { font-family: "DejaVu Sans", "Liberation Sans", sans-serif; color: #2f2c28; margin: 2em auto;
  max-width: 70em; padding: 0 1em; }
table { border-collapse: collapse; margin: 1em 0; }
th, td { border: 1px solid #dcd8cf; padding: .3em .6em; text-align: left; vertical-align: top; }
td.n { text-align: right; }
.si { color: #2c6e2f; } .no { color: #a32017; } .errore { color: #8a5a00; }
.diagramma { overflow-x: auto; border: 1px solid #dcd8cf; }
pre { background: #f5f3ee; padding: .6em; overflow-x: auto; }
.accanto { display: flex; gap: 1em; overflow-x: auto; }
</style>
)";

std::string Apri(const std::string& titolo) {
  return "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
         In_Xml(titolo) + "</title>\n" + stile + "</head>\n<body>\n<h1>" + In_Xml(titolo) +
         "</h1>\n";
}

std::string Chiudi(const Testata& testata) {
  std::string testo = "<p><small>tavorno-banco " + In_Xml(Versione());
  for (const Testata::Script& script : testata.Con)
    testo += ", " + In_Xml(script.Nome) + " " + In_Xml(script.Impronta.substr(0, 12));
  return testo + "</small></p>\n</body>\n</html>\n";
}

std::string Su_Massimo(double punti, double massimo) {
  return Testo_Punti(punti) + " su " + Testo_Punti(massimo);
}

std::string Secondi(std::int64_t ms) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%lld,%03d s", static_cast<long long>(ms / 1000),
                static_cast<int>(ms % 1000));
  return testo;
}

const char* Classe(const Caso& caso) {
  return caso.Superato() ? "si" : caso.Script_Errato ? "errore" : "no";
}

const char* Parola(const Caso& caso) {
  return caso.Superato() ? "superato" : caso.Script_Errato ? "errore dello script" : "non superato";
}

/// The names of all cases of the class, in the order in which they first appear.
std::vector<std::string> Nomi_Dei_Casi(const std::vector<Voto>& voti) {
  std::vector<std::string> nomi;
  for (const Voto& voto : voti) {
    for (const Caso& caso : voto.Esito.Casi) {
      if (std::ranges::find(nomi, caso.Nome) == nomi.end()) nomi.push_back(caso.Nome);
    }
  }
  return nomi;
}

std::vector<Gruppo_Simili> Gruppi(const std::vector<Voto>& voti) {
  std::vector<Firma> firme;
  firme.reserve(voti.size());
  for (const Voto& voto : voti) firme.push_back(voto.Impronta);
  return Consegne_Simili(firme);
}

const char* Parola(Somiglianza come) {
  switch (come) {
    case Somiglianza::Uguali:
      return "lo stesso file";
    case Somiglianza::Riordinate:
      return "uguali a parte commenti, nomi delle procedure e ordine dei segmenti";
    case Somiglianza::Rinominate:
      return "uguali anche cambiando nome a merker, temporizzatori, contatori e celle";
  }
  return "";
}

std::string Nomi(const std::vector<Voto>& voti, const std::vector<std::size_t>& quali) {
  std::string nomi;
  for (const std::size_t n : quali) nomi += (nomi.empty() ? "" : ", ") + In_Xml(voti[n].Studente);
  return nomi;
}

/// Who in a group of less alike hand-ins gave in the very same file.
std::string Gemelle(const std::vector<Voto>& voti, const Gruppo_Simili& gruppo) {
  if (gruppo.Come == Somiglianza::Uguali) return "";
  std::map<std::string, std::vector<std::size_t>> per_byte;
  for (const std::size_t n : gruppo.Quali) per_byte[voti[n].Impronta.Byte].push_back(n);
  std::vector<std::vector<std::size_t>> gemelle;
  for (const auto& [impronta, quali] : per_byte)
    if (quali.size() > 1) gemelle.push_back(quali);
  std::ranges::sort(gemelle);
  std::string testo;
  for (const std::vector<std::size_t>& quali : gemelle)
    testo += "; lo stesso file: " + Nomi(voti, quali);
  return testo;
}

const Caso* Trova(const Voto& voto, const std::string& nome) {
  const auto caso = std::ranges::find(voto.Esito.Casi, nome, &Caso::Nome);
  return caso == voto.Esito.Casi.end() ? nullptr : &*caso;
}

/// The most marks that the case gives to any hand-in.
double Massimo_Di(const std::vector<Voto>& voti, const std::string& nome) {
  double massimo = 0;
  for (const Voto& voto : voti) {
    if (const Caso* caso = Trova(voto, nome)) massimo = std::max(massimo, caso->Massimo);
  }
  return massimo;
}

}  // namespace

std::string Nome_Pagina(std::size_t posto) {
  char testo[40];
  std::snprintf(testo, sizeof testo, "studente-%03zu.html", posto + 1);
  return testo;
}

std::string Pagina_Studente(const Voto& voto, const Testata& testata) {
  const Esito_Progetto& esito = voto.Esito;
  std::string pagina = Apri(voto.Studente);
  pagina += "<p>" + In_Xml(esito.Progetto) + "</p>\n";
  if (!esito.Non_Esaminato.empty())
    return pagina + "<p class=\"no\">Non esaminato: " + In_Xml(esito.Non_Esaminato) + ".</p>\n" +
           Chiudi(testata);
  if (!esito.Compilato && !esito.Casi.empty() && !esito.Casi.front().Superato()) {
    const Caso& caso = esito.Casi.front();  // all cases say the same of it
    pagina += "<p class=\"no\">" + In_Xml(caso.Rilievi.front().Testo) + "</p>\n";
    if (!caso.Listato.empty()) pagina += "<pre>" + In_Xml(caso.Listato) + "</pre>\n";
    return pagina + "<p><b>Punti: " + Su_Massimo(esito.Punti(), esito.Massimo()) + ".</b></p>\n" +
           Chiudi(testata);
  }
  pagina += "<p><b>Punti: " + Su_Massimo(esito.Punti(), esito.Massimo()) +
            ".</b> Casi superati: " + std::to_string(esito.Superati()) + " su " +
            std::to_string(esito.Casi.size()) + ".</p>\n";
  std::string listato;  // of the case before: the same is not shown twice
  for (std::size_t n = 0; n < esito.Casi.size(); ++n) {
    const Caso& caso = esito.Casi[n];
    pagina += "<h2 class=\"" + std::string(Classe(caso)) + "\">" + In_Xml(caso.Nome) +
              "</h2>\n<p>" + Parola(caso) + ", punti " + Su_Massimo(caso.Punti, caso.Massimo) +
              "</p>\n";
    if (!caso.Rilievi.empty()) {
      pagina += "<ul>\n";
      for (const Rilievo& rilievo : caso.Rilievi)
        pagina += "<li>dopo " + Secondi(rilievo.Ms) + ": " + In_Xml(rilievo.Testo) + "</li>\n";
      pagina += "</ul>\n";
    }
    for (const std::string& nota : caso.Note) pagina += "<p>Nota: " + In_Xml(nota) + "</p>\n";
    if (!caso.Listato.empty() && caso.Listato != listato)
      pagina += "<pre>" + In_Xml(caso.Listato) + "</pre>\n";
    listato = caso.Listato;
    if (n < voto.Diagrammi.size() && !voto.Diagrammi[n].empty())
      pagina += "<div class=\"diagramma\">" + voto.Diagrammi[n] + "</div>\n";
  }
  return pagina + Chiudi(testata);
}

std::string Pagina_Docente(const std::vector<Voto>& voti, const Testata& testata) {
  const std::vector<std::string> nomi = Nomi_Dei_Casi(voti);
  std::string pagina = Apri("Esiti della classe");
  double somma = 0, massimo = 0;
  std::size_t esaminati = 0;
  std::vector<std::size_t> falliti(nomi.size());
  std::string righe;
  for (std::size_t n = 0; n < voti.size(); ++n) {
    const Esito_Progetto& esito = voti[n].Esito;
    righe += "<tr><td><a href=\"" + Nome_Pagina(n) + "\">" + In_Xml(voti[n].Studente) +
             "</a></td><td>" + In_Xml(esito.Progetto) + "</td><td>" + esito.Giudizio_In_Breve() +
             "</td>";
    if (!esito.Non_Esaminato.empty()) {
      righe += "<td colspan=\"" + std::to_string(nomi.size() + 1) + "\">" +
               In_Xml(esito.Non_Esaminato) + "</td></tr>\n";
      continue;
    }
    ++esaminati;
    somma += esito.Punti();
    massimo = std::max(massimo, esito.Massimo());
    righe += "<td class=\"n\">" + Su_Massimo(esito.Punti(), esito.Massimo()) + "</td>";
    for (std::size_t c = 0; c < nomi.size(); ++c) {
      const Caso* caso = Trova(voti[n], nomi[c]);
      if (caso && !caso->Superato()) ++falliti[c];
      righe += caso ? "<td class=\"n " + std::string(Classe(*caso)) + "\">" +
                          Testo_Punti(caso->Punti) + "</td>"
                    : "<td></td>";
    }
    righe += "</tr>\n";
  }
  pagina += "<p>Consegne: " + std::to_string(voti.size()) +
            ", esaminate: " + std::to_string(esaminati) + ".";
  if (esaminati > 0)
    pagina += " Media: " + Su_Massimo(somma / static_cast<double>(esaminati), massimo) + ".";
  const auto peggiore = std::ranges::max_element(falliti);
  if (peggiore != falliti.end() && *peggiore > 0)
    pagina += " Il caso che manca più spesso: “" +
              In_Xml(nomi[static_cast<std::size_t>(peggiore - falliti.begin())]) + "” (" +
              std::to_string(*peggiore) + ").";
  pagina += "</p>\n<table>\n<tr><th>Studente</th><th>File</th><th>Esito</th><th>Punti</th>";
  for (const std::string& nome : nomi)
    pagina += "<th>" + In_Xml(nome) + "<br>su " + Testo_Punti(Massimo_Di(voti, nome)) + "</th>";
  pagina += "</tr>\n" + righe + "</table>\n";
  const std::vector<Gruppo_Simili> gruppi = Gruppi(voti);
  if (!gruppi.empty()) {
    pagina +=
        "<h2>Consegne che si somigliano</h2>\n<p>Non tolgono punti a nessuno: un esercizio breve "
        "ha "
        "poche soluzioni. <a href=\"" +
        std::string(Nome_Pagina_Simili) + "\">I programmi uno accanto all'altro</a></p>\n<ul>\n";
    for (const Gruppo_Simili& gruppo : gruppi) {
      pagina += "<li>" + Nomi(voti, gruppo.Quali) + ": " + Parola(gruppo.Come) +
                Gemelle(voti, gruppo) + "</li>\n";
    }
    pagina += "</ul>\n";
  }
  return pagina + Chiudi(testata);
}

std::string Pagina_Simili(const std::vector<Voto>& voti, const Testata& testata) {
  std::string pagina = Apri("Consegne che si somigliano");
  const std::vector<Gruppo_Simili> gruppi = Gruppi(voti);
  if (gruppi.empty()) pagina += "<p>Nessuna.</p>\n";
  for (const Gruppo_Simili& gruppo : gruppi) {
    pagina += "<h2>" + std::to_string(gruppo.Quali.size()) + " consegne: " + Parola(gruppo.Come) +
              "</h2>\n<div class=\"accanto\">\n";
    for (const std::size_t n : gruppo.Quali)
      pagina += "<div><h3><a href=\"" + Nome_Pagina(n) + "\">" + In_Xml(voti[n].Studente) +
                "</a></h3>\n<pre>" + In_Xml(voti[n].Programma) + "</pre></div>\n";
    pagina += "</div>\n";
  }
  return pagina + Chiudi(testata);
}

std::string Tabella_Csv(const std::vector<Voto>& voti) {
  const std::vector<std::string> nomi = Nomi_Dei_Casi(voti);
  std::string csv = "\xEF\xBB\xBFstudente;file;esito;punti;massimo;data";
  for (const std::string& nome : nomi) csv += ";" + In_Csv(nome);
  csv += ";primo rilievo\r\n";
  for (const Voto& voto : voti) {
    const Esito_Progetto& esito = voto.Esito;
    csv += In_Csv(voto.Studente) + ";" + In_Csv(esito.Progetto) + ";" + esito.Giudizio_In_Breve() +
           ";" + Testo_Punti(esito.Punti()) + ";" + Testo_Punti(esito.Massimo()) + ";" + esito.Data;
    for (const std::string& nome : nomi) {
      const Caso* caso = Trova(voto, nome);
      csv += ";" + (caso ? Testo_Punti(caso->Punti) : "");
    }
    csv += ";" + In_Csv(esito.Primo_Rilievo()) + "\r\n";
  }
  return csv;
}

}  // namespace tavorno
