// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/io_table.h"

#include <string_view>

#include "HTML/generator/html_text.h"

namespace tavorno {

std::string Tabella_IO(std::span<const Riga_IO> righe) {
  std::string testo =
      "<table class=\"io\">\n"
      "<tr><th></th><th>Simbolo</th><th>Indirizzo</th><th>Commento</th></tr>\n";
  int numero = 0;
  for (const Riga_IO& riga : righe) {
    const std::string_view indirizzo = riga.Indirizzo;
    const bool uscita = indirizzo.starts_with("Q") || indirizzo.starts_with("AQ");
    const std::string classe = uscita ? "uscita" : "ingresso";
    testo += "<tr><td>" + std::to_string(++numero) + "</td><td class=\"" + classe + "\">" +
             Html(riga.Simbolo) + "</td><td class=\"" + classe + "\">" + Html(indirizzo) +
             "</td><td>" + Html(riga.Commento) + "</td></tr>\n";
  }
  return testo + "</table>\n";
}

}  // namespace tavorno
