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

std::string Conteggi(std::size_t casi, std::size_t falliti, std::int64_t ms) {
  return " tests=\"" + std::to_string(casi) + "\" failures=\"" + std::to_string(falliti) +
         "\" errors=\"0\" skipped=\"0\" time=\"" + Secondi(ms) + "\"";
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
    xml += "      <failure message=\"" + In_Xml(caso.Rilievi.front().Testo) + "\">";
    for (const Rilievo& rilievo : caso.Rilievi)
      xml += std::to_string(rilievo.Ms) + " ms: " + In_Xml(rilievo.Testo) + "\n";
    xml += In_Xml(caso.Listato) + "</failure>\n";
  }
  if (!caso.Note.empty()) {
    xml += "      <system-out>";
    for (const std::string& nota : caso.Note) xml += In_Xml(nota) + "\n";
    xml += "</system-out>\n";
  }
  return xml + "    </testcase>\n";
}

}  // namespace

std::string Rapporto_Junit(const std::vector<Esito_Progetto>& esiti) {
  std::size_t casi = 0, falliti = 0;
  std::int64_t ms = 0;
  std::string suite;
  for (const Esito_Progetto& esito : esiti) {
    const std::size_t di_questo = esito.Casi.size() - static_cast<std::size_t>(esito.Superati());
    casi += esito.Casi.size();
    falliti += di_questo;
    ms += Durata(esito);
    suite += "  <testsuite name=\"" + In_Xml(esito.Progetto) + "\"" +
             Conteggi(esito.Casi.size(), di_questo, Durata(esito)) + ">\n";
    for (const Caso& caso : esito.Casi) suite += Caso_Xml(caso);
    suite += "  </testsuite>\n";
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"tavorno-banco\"" +
         Conteggi(casi, falliti, ms) + ">\n" + suite + "</testsuites>\n";
}

}  // namespace tavorno
