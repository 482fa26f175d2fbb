// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/find.h"

#include <algorithm>
#include <cctype>

#include "awl/line_words.h"
#include "plc/codepage.h"

namespace tavorno {

namespace {

bool Di_Parola(std::string_view linea, std::size_t posto) {
  if (posto >= linea.size()) return false;
  const auto c = static_cast<unsigned char>(linea[posto]);
  return c == '_' || c >= 0xC0 || std::isalnum(c) != 0;
}

bool Intera(std::string_view linea, const Parola& parola) {
  const bool prima =
      parola.Inizio > 0 && Di_Parola(linea, parola.Inizio - 1) && Di_Parola(linea, parola.Inizio);
  const bool dopo = Di_Parola(linea, parola.Fine) && Di_Parola(linea, parola.Fine - 1);
  return !prima && !dopo;
}

bool In_Operando(const std::vector<Parola>& operandi, const Parola& parola) {
  return std::ranges::any_of(operandi, [&](const Parola& operando) {
    return parola.Inizio >= operando.Inizio && parola.Fine <= operando.Fine;
  });
}

}  // namespace

std::vector<Trovato> Trova_Tutti(std::string_view testo, const Ricerca& ricerca) {
  std::vector<Trovato> trovati;
  const std::string cercato = Maiuscole(ricerca.Cercato);
  if (cercato.empty()) return trovati;
  int numero = 0;
  for (const std::string_view linea : Linee(testo)) {
    const std::string maiuscola = Maiuscole(linea);
    const auto operandi = ricerca.Solo_Operandi ? Operandi_Di(linea) : std::vector<Parola>();
    std::size_t posto = 0;
    while ((posto = maiuscola.find(cercato, posto)) != std::string::npos) {
      const Parola parola{posto, posto + cercato.size()};
      const bool vale = (!ricerca.Parole_Intere || Intera(linea, parola)) &&
                        (!ricerca.Solo_Operandi || In_Operando(operandi, parola));
      if (vale)
        trovati.push_back({numero, static_cast<int>(posto), static_cast<int>(cercato.size())});
      posto = vale ? parola.Fine : posto + 1;
    }
    ++numero;
  }
  return trovati;
}

std::vector<Ritocco> Sostituzioni(std::string_view testo, const Ricerca& ricerca,
                                  const std::string& nuovo) {
  std::vector<Ritocco> ritocchi;
  for (const Trovato& trovato : Trova_Tutti(testo, ricerca))
    ritocchi.push_back({{0, trovato.Linea}, trovato.Colonna, trovato.Lunghezza, nuovo});
  return ritocchi;
}

}  // namespace tavorno
