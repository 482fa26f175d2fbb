// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grading/mutants.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <string_view>

namespace tavorno::prova {

namespace {

struct Scambio {
  std::string_view Uno, Altro;
};
constexpr Scambio scambi[] = {{"LD", "LDN"}, {"A", "AN"}, {"O", "ON"}, {"S", "R"}};

// Lines that are not instructions.
constexpr std::string_view cornice[] = {"NETWORK", "TITLE", "BEGIN", "ORGANIZATION_BLOCK",
                                        "SUBROUTINE_BLOCK"};

/// Where a word stands in a line.
struct Parola {
  std::size_t Inizio, Lunga;
};

std::vector<Parola> Parole(std::string_view riga) {
  constexpr std::string_view separatori = " \t,\r";
  std::vector<Parola> parole;
  riga = riga.substr(0, riga.find("//"));
  std::size_t inizio = riga.find_first_not_of(separatori);
  while (inizio != std::string_view::npos) {
    const std::size_t fine = std::min(riga.find_first_of(separatori, inizio), riga.size());
    parole.push_back({inizio, fine - inizio});
    inizio = riga.find_first_not_of(separatori, fine);
  }
  return parole;
}

std::string_view Testo(std::string_view riga, const Parola& parola) {
  return riga.substr(parola.Inizio, parola.Lunga);
}

bool Istruzione(std::string_view prima) {
  return !prima.starts_with("END_") && std::ranges::none_of(cornice, [&](std::string_view parola) {
    return prima.starts_with(parola);
  });
}

/// "I" of "I0.3", "T" of "T37"; empty for what has no neighbours: constants, special markers,
/// words.
std::string_view Area(std::string_view operando) {
  const std::size_t lungo = operando.find_first_of("0123456789");
  if (lungo != 1 || std::string_view("IQMSTC").find(operando[0]) == std::string_view::npos)
    return "";
  return operando.substr(0, 1);
}

/// A number with its sign, as constants are written.
bool Costante(std::string_view operando, long& valore) {
  if (operando.size() < 2 || operando[0] != '+') return false;
  const auto [fine, errore] =
      std::from_chars(operando.data() + 1, operando.data() + operando.size(), valore);
  return errore == std::errc{} && fine == operando.data() + operando.size();
}

using Vicini = std::map<std::string, std::set<std::string>, std::less<>>;

Vicini Operandi_Per_Area(const std::vector<std::string>& righe) {
  Vicini vicini;
  for (const std::string& riga : righe) {
    const std::vector<Parola> parole = Parole(riga);
    if (parole.empty() || !Istruzione(Testo(riga, parole[0]))) continue;
    for (std::size_t n = 1; n < parole.size(); ++n) {
      const std::string_view operando = Testo(riga, parole[n]);
      if (!Area(operando).empty()) vicini[std::string(Area(operando))].emplace(operando);
    }
  }
  return vicini;
}

/// What may stand in the place of this word.
std::vector<std::string> Sostituti(std::string_view parola, bool mnemonico, const Vicini& vicini) {
  std::vector<std::string> altri;
  if (mnemonico) {
    for (const Scambio& scambio : scambi) {
      if (parola == scambio.Uno) altri.emplace_back(scambio.Altro);
      if (parola == scambio.Altro) altri.emplace_back(scambio.Uno);
    }
    return altri;
  }
  if (const auto area = vicini.find(Area(parola));
      area != vicini.end() && area->second.size() > 1) {
    auto vicino = std::next(area->second.find(std::string(parola)));
    altri.push_back(vicino == area->second.end() ? *area->second.begin() : *vicino);
  }
  long valore = 0;
  if (Costante(parola, valore)) {
    altri.push_back("+" + std::to_string(valore == 0 ? 1 : 2 * valore));
    if (valore > 1) altri.push_back("+" + std::to_string(valore / 2));
  }
  return altri;
}

std::string Unisci(const std::vector<std::string>& righe, std::size_t cambiata,
                   const std::string* diventa) {
  std::string testo;
  for (std::size_t n = 0; n < righe.size(); ++n) {
    if (n != cambiata)
      testo += righe[n] + "\n";
    else if (diventa)
      testo += *diventa + "\n";
  }
  return testo;
}

std::string Senza_Fine(std::string riga) {
  while (riga.ends_with('\r') || riga.ends_with(' ')) riga.pop_back();
  return riga;
}

}  // namespace

std::vector<Mutante> Mutanti(const std::string& progetto) {
  std::vector<std::string> righe;
  for (std::size_t inizio = 0; inizio < progetto.size();) {
    const std::size_t fine = std::min(progetto.find('\n', inizio), progetto.size());
    righe.push_back(progetto.substr(inizio, fine - inizio));
    inizio = fine + 1;
  }
  const Vicini vicini = Operandi_Per_Area(righe);
  std::vector<Mutante> mutanti;
  for (std::size_t n = 0; n < righe.size(); ++n) {
    const std::vector<Parola> parole = Parole(righe[n]);
    if (parole.empty() || !Istruzione(Testo(righe[n], parole[0]))) continue;
    const int numero = static_cast<int>(n) + 1;
    mutanti.push_back({numero, Senza_Fine(righe[n]), "", Unisci(righe, n, nullptr)});
    for (std::size_t p = 0; p < parole.size(); ++p) {
      for (const std::string& altro : Sostituti(Testo(righe[n], parole[p]), p == 0, vicini)) {
        std::string riga = righe[n];
        riga.replace(parole[p].Inizio, parole[p].Lunga, altro);
        mutanti.push_back(
            {numero, Senza_Fine(righe[n]), Senza_Fine(riga), Unisci(righe, n, &riga)});
      }
    }
  }
  return mutanti;
}

}  // namespace tavorno::prova
