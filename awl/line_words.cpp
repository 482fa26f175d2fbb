// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/line_words.h"

#include <algorithm>

#include "plc/codepage.h"

namespace tavorno {

std::vector<std::string_view> Linee(std::string_view testo) {
  std::vector<std::string_view> linee;
  std::size_t inizio = 0;
  while (true) {
    const std::size_t fine = testo.find_first_of("\r\n", inizio);
    linee.push_back(testo.substr(inizio, fine - inizio));
    if (fine == std::string_view::npos) return linee;
    inizio = fine + (testo.substr(fine, 2) == "\r\n" ? 2 : 1);
  }
}

Parola Trova_Prima_Parola(std::string_view linea) {
  const std::size_t inizio = std::min(linea.find_first_not_of(" \t"), linea.size());
  const std::size_t vuoto = std::min(linea.find_first_of(" \t\r\n", inizio), linea.size());
  const std::size_t commento = std::min(linea.find("//", inizio), linea.size());
  return {inizio, std::min(vuoto, commento)};
}

const Istruzione* Istruzione_Di(std::string_view linea) {
  const Istruzione* intera = Cerca_Testa(linea);
  if (intera && intera->Nel_Programma == Compito::Segmento) return intera;
  return Cerca_Istruzione(Maiuscole(Trova_Prima_Parola(linea).Di(linea)));
}

std::vector<Parola> Operandi_Di(std::string_view linea) {
  constexpr std::string_view separatori = " \t,";
  std::vector<Parola> operandi;
  const Parola prima = Trova_Prima_Parola(linea);
  const Istruzione* intera = Cerca_Testa(linea);
  if (prima.Vuota() || (intera && intera->Nel_Programma == Compito::Segmento)) return operandi;
  // The writer of the file begins a comment at a single bar.
  linea = linea.substr(0, linea.find('/', prima.Fine));
  std::size_t posto = prima.Fine;
  while ((posto = linea.find_first_not_of(separatori, posto)) != std::string_view::npos) {
    const std::size_t fine = std::min(linea.find_first_of(separatori, posto), linea.size());
    operandi.push_back({posto, fine});
    posto = fine;
  }
  return operandi;
}

}  // namespace tavorno
