// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace/condition.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>

#include "plc/codepage.h"

namespace tavorno {

namespace {

using Prova = Termine::Prova;

struct Parola_Prova {
  const char* Testo;
  Prova Cosa;
};
constexpr std::array<Parola_Prova, 11> parole_prova = {{{"SALE", Prova::Sale},
                                                        {"SCENDE", Prova::Scende},
                                                        {"CAMBIA", Prova::Cambia},
                                                        {"=", Prova::Uguale},
                                                        {"==", Prova::Uguale},
                                                        {"<>", Prova::Diverso},
                                                        {"!=", Prova::Diverso},
                                                        {"<", Prova::Minore},
                                                        {">", Prova::Maggiore},
                                                        {"<=", Prova::Minore_Uguale},
                                                        {">=", Prova::Maggiore_Uguale}}};

/// Words; the signs of a comparison are words of their own, with or without blanks around them.
std::vector<std::string> Parole(const std::string& testo) {
  const auto segno = [](char c) { return c == '<' || c == '>' || c == '=' || c == '!'; };
  std::string spaziato;
  for (std::size_t n = 0; n < testo.size(); ++n) {
    const bool confine = n > 0 && segno(testo[n]) != segno(testo[n - 1]);
    spaziato += (confine ? " " : "") + std::string(1, testo[n]);
  }
  std::istringstream flusso(spaziato);
  std::vector<std::string> parole;
  for (std::string parola; flusso >> parola;) parole.push_back(parola);
  return parole;
}

std::optional<double> Numero_Scritto(std::string testo) {
  std::ranges::replace(testo, ',', '.');
  if (testo.starts_with("+")) testo.erase(0, 1);
  double numero = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc{} || fine != testo.data() + testo.size() || !std::isfinite(numero))
    return {};
  return numero;
}

struct Onda_Termine {
  const Termine* Cosa;
  const Onda* Quando;
};

/// Whether the condition becomes true exactly at `ms`.
bool Diventa_Vera(const std::vector<Onda_Termine>& onde, std::int64_t ms) {
  bool con_fronte = false, prima_vera = true;
  for (const auto& [termine, onda] : onde) {
    const auto adesso = onda->A(ms), prima = onda->A(ms - 1);
    if (!adesso) return false;
    if (termine->Fronte()) {
      con_fronte = true;
      if (!prima || !termine->Vale(*prima, *adesso)) return false;
    } else {
      if (!termine->Vale(*adesso, *adesso)) return false;
      prima_vera = prima_vera && prima && termine->Vale(*prima, *prima);
    }
  }
  return con_fronte || !prima_vera;
}

/// Empty when a signal is not recorded.
std::vector<Onda_Termine> Onde(const Registrazione& registrazione, const Condizione& condizione) {
  std::vector<Onda_Termine> onde;
  for (const Termine& termine : condizione) {
    const auto numero = registrazione.Cerca(termine.Chi.Indirizzo);
    if (!numero || registrazione.Quando(*numero).Vuota()) return {};
    onde.push_back({&termine, &registrazione.Quando(*numero)});
  }
  return onde;
}

}  // namespace

bool Termine::Vale(double prima, double adesso) const {
  switch (Cosa) {
    case Prova::Sale:
      return adesso > prima;
    case Prova::Scende:
      return adesso < prima;
    case Prova::Cambia:
      return adesso != prima;
    case Prova::Uguale:
      return adesso == Numero;
    case Prova::Diverso:
      return adesso != Numero;
    case Prova::Minore:
      return adesso < Numero;
    case Prova::Maggiore:
      return adesso > Numero;
    case Prova::Minore_Uguale:
      return adesso <= Numero;
    default:
      return adesso >= Numero;
  }
}

std::optional<Condizione> Leggi_Condizione(const std::string& testo, Elenco_IO impianto,
                                           std::string& errore) {
  const std::vector<std::string> parole = Parole(testo);
  Condizione condizione;
  if (parole.empty()) {
    errore = "Manca la condizione, per esempio \"Q0.1 sale\" o \"VW10 > 300\".";
    return {};
  }
  for (std::size_t n = 0; n < parole.size();) {
    const auto segnale = Cerca_Segnale(parole[n], impianto);
    if (!segnale) {
      errore = "\"" + parole[n] + "\" non è un indirizzo" +
               (!impianto.empty() ? " né un simbolo dell'impianto." : " della CPU.");
      return {};
    }
    Termine termine{*segnale, Prova::Uguale, 1};
    ++n;
    if (n < parole.size() && Maiuscole(parole[n]) != "E") {
      const std::string parola = Maiuscole(parole[n]);
      const auto* trovata = std::ranges::find(parole_prova, parola, &Parola_Prova::Testo);
      if (trovata == parole_prova.end()) {
        errore = "\"" + parole[n] +
                 "\" non è una prova: scrivi sale, scende, cambia, =, <>, <, >, <= o >=.";
        return {};
      }
      termine.Cosa = trovata->Cosa;
      ++n;
      if (!termine.Fronte()) {
        const auto numero = n < parole.size() ? Numero_Scritto(parole[n]) : std::nullopt;
        if (!numero) {
          errore = "Dopo \"" + parole[n - 1] + "\" ci vuole un numero.";
          return {};
        }
        termine.Numero = *numero;
        ++n;
      }
    }
    condizione.push_back(std::move(termine));
    if (n == parole.size()) break;
    if (Maiuscole(parole[n]) != "E" || n + 1 == parole.size()) {
      errore = "Dopo \"" + parole[n - 1] + "\" può seguire soltanto \"e\" con un'altra prova.";
      return {};
    }
    ++n;
  }
  return condizione;
}

std::optional<std::int64_t> Cerca_Avanti(const Registrazione& registrazione,
                                         const Condizione& condizione, std::int64_t da) {
  const auto onde = Onde(registrazione, condizione);
  if (onde.empty()) return {};
  // Where recording begins it may be true at once.
  std::int64_t inizio = onde.front().Quando->Inizio();
  for (const auto& onda : onde) inizio = std::max(inizio, onda.Quando->Inizio());
  if (da < inizio) {
    if (Diventa_Vera(onde, inizio)) return inizio;
    da = inizio;
  }
  for (;;) {
    std::optional<std::int64_t> prossimo;
    for (const auto& onda : onde) {
      const auto dopo = onda.Quando->Dopo(da);
      if (dopo && (!prossimo || *dopo < *prossimo)) prossimo = dopo;
    }
    if (!prossimo || Diventa_Vera(onde, *prossimo)) return prossimo;
    da = *prossimo;
  }
}

std::optional<std::int64_t> Cerca_Indietro(const Registrazione& registrazione,
                                           const Condizione& condizione, std::int64_t da) {
  const auto onde = Onde(registrazione, condizione);
  if (onde.empty()) return {};
  std::int64_t inizio = onde.front().Quando->Inizio();
  for (const auto& onda : onde) inizio = std::max(inizio, onda.Quando->Inizio());
  for (;;) {
    std::optional<std::int64_t> precedente;
    for (const auto& onda : onde) {
      const auto prima = onda.Quando->Prima(da);
      if (prima && (!precedente || *prima > *precedente)) precedente = prima;
    }
    if (!precedente || *precedente <= inizio) break;
    if (Diventa_Vera(onde, *precedente)) return precedente;
    da = *precedente;
  }
  if (inizio < da && Diventa_Vera(onde, inizio)) return inizio;
  return {};
}

}  // namespace tavorno
