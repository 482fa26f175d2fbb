// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include "grading/reports.h"
#include "trace/markup.h"

namespace tavorno {

namespace {

std::string Secondi(std::int64_t ms) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%lld.%03d", static_cast<long long>(ms / 1000),
                static_cast<int>(ms % 1000));
  return testo;
}

std::int64_t Durata(const Esito_Progetto& esito) {
  std::int64_t ms = 0;
  for (const Caso& caso : esito.Casi) ms += caso.Ms;
  return ms;
}

struct Conti {
  std::size_t Casi = 0, Falliti = 0, Errori = 0;
  std::int64_t Ms = 0;

  std::string Attributi() const {
    return " tests=\"" + std::to_string(Casi) + "\" failures=\"" + std::to_string(Falliti) +
           "\" errors=\"" + std::to_string(Errori) + "\" skipped=\"0\" time=\"" + Secondi(Ms) +
           "\"";
  }
};

Conti Conta(const Esito_Progetto& esito) {
  Conti conti;
  conti.Ms = Durata(esito);
  conti.Casi = esito.Casi.size();
  for (const Caso& caso : esito.Casi) {
    if (!caso.Superato()) ++(caso.Script_Errato ? conti.Errori : conti.Falliti);
  }
  if (!esito.Non_Esaminato.empty()) conti.Casi = conti.Errori = 1;
  return conti;
}

std::string Proprieta(const Testata& testata) {
  std::string xml = "    <properties>\n      <property name=\"versione\" value=\"" +
                    In_Xml(Versione()) + "\"/>\n";
  for (const Testata::Script& script : testata.Con)
    xml += "      <property name=\"script\" value=\"" + In_Xml(script.Nome) +
           "\"/>\n      <property name=\"impronta\" value=\"" + script.Impronta + "\"/>\n";
  return xml + "    </properties>\n";
}

std::string Caso_Xml(const Caso& caso) {
  std::string xml = "    <testcase classname=\"" + In_Xml(caso.Script) + "\" name=\"" +
                    In_Xml(caso.Nome) + "\" time=\"" + Secondi(caso.Ms) + "\"";
  if (caso.Superato() && caso.Note.empty() && caso.Massimo == 0) return xml + "/>\n";
  xml += ">\n";
  if (caso.Massimo > 0)
    xml += "      <properties>\n        <property name=\"punti\" value=\"" +
           Testo_Punti(caso.Punti) + "\"/>\n        <property name=\"massimo\" value=\"" +
           Testo_Punti(caso.Massimo) + "\"/>\n      </properties>\n";
  if (!caso.Superato()) {
    const std::string genere = caso.Script_Errato ? "error" : "failure";
    xml += "      <" + genere + " message=\"" + In_Xml(caso.Rilievi.front().Testo) + "\">";
    for (const Rilievo& rilievo : caso.Rilievi)
      xml += std::to_string(rilievo.Ms) + " ms: " + In_Xml(rilievo.Testo) + "\n";
    xml += In_Xml(caso.Listato) + "</" + genere + ">\n";
  }
  if (!caso.Note.empty()) {
    xml += "      <system-out>";
    for (const std::string& nota : caso.Note) xml += In_Xml(nota) + "\n";
    xml += "</system-out>\n";
  }
  return xml + "    </testcase>\n";
}

}  // namespace

std::string Rapporto_Junit(const std::vector<Esito_Progetto>& esiti, const Testata& testata) {
  Conti tutti;
  std::string suite;
  for (const Esito_Progetto& esito : esiti) {
    const Conti conti = Conta(esito);
    tutti.Casi += conti.Casi;
    tutti.Falliti += conti.Falliti;
    tutti.Errori += conti.Errori;
    tutti.Ms += conti.Ms;
    suite += "  <testsuite name=\"" + In_Xml(esito.Progetto) + "\"" + conti.Attributi();
    if (!esito.Data.empty())  // without its "Z", as the readers want it
      suite += " timestamp=\"" + esito.Data.substr(0, esito.Data.size() - 1) + "\"";
    suite += ">\n" + Proprieta(testata);
    if (!esito.Non_Esaminato.empty())
      suite +=
          "    <testcase classname=\"esame\" name=\"esame\" time=\"0.000\">\n      <error "
          "message=\"" +
          In_Xml(esito.Non_Esaminato) + "\"/>\n    </testcase>\n";
    for (const Caso& caso : esito.Casi) suite += Caso_Xml(caso);
    suite += "  </testsuite>\n";
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"tavorno-banco\"" +
         tutti.Attributi() + ">\n" + suite + "</testsuites>\n";
}

}  // namespace tavorno
