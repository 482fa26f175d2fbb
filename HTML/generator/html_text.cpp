// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/html_text.h"

#include <array>
#include <utility>

namespace tavorno {

namespace {

// The ampersand comes first, so that writing in this order and reading in the opposite one are
// inverse to each other.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> entita = {{
    {"&", "&amp;"},
    {"<", "&lt;"},
    {">", "&gt;"},
    {"\"", "&quot;"},
}};

}  // namespace

std::string Html(std::string_view testo) {
  std::string risultato(testo);
  for (const auto& [carattere, nome] : entita) risultato = Sostituisci(risultato, carattere, nome);
  return risultato;
}

std::string Da_Html(std::string_view testo) {
  std::string risultato(testo);
  for (std::size_t i = entita.size(); i-- > 0;)
    risultato = Sostituisci(risultato, entita[i].second, entita[i].first);
  return risultato;
}

std::string Sostituisci(std::string testo, std::string_view cerca, std::string_view con) {
  for (std::size_t posto = testo.find(cerca); posto != std::string::npos;
       posto = testo.find(cerca, posto + con.size()))
    testo.replace(posto, cerca.size(), con);
  return testo;
}

}  // namespace tavorno
