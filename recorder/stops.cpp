// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/stops.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace tavorno {

namespace {

using Prova = Fermata::Prova;

struct Riga_Prova {
  std::string_view Parola;
  Prova Quando;
  bool Con_Valore;
};
constexpr Riga_Prova prove[] = {
    {"sale", Prova::Sale, false},     {"scende", Prova::Scende, false},
    {"cambia", Prova::Cambia, false}, {">=", Prova::Almeno, true},
    {"<=", Prova::Al_Piu, true},      {"<>", Prova::Diverso, true},
    {">", Prova::Maggiore, true},     {"<", Prova::Minore, true},
    {"=", Prova::Uguale, true},
};

template <class T>
bool Numero(std::string_view testo, T& valore) {
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  return errore == std::errc{} && fine == testo.data() + testo.size();
}

bool Vale(const Fermata& fermata, double prima, double ora) {
  switch (fermata.Quando) {
    case Prova::Sale:
      return ora > prima;
    case Prova::Scende:
      return ora < prima;
    case Prova::Cambia:
      return ora != prima;
    case Prova::Maggiore:
      return ora > fermata.Valore;
    case Prova::Minore:
      return ora < fermata.Valore;
    case Prova::Uguale:
      return ora == fermata.Valore;
    case Prova::Diverso:
      return ora != fermata.Valore;
    case Prova::Almeno:
      return ora >= fermata.Valore;
    case Prova::Al_Piu:
      return ora <= fermata.Valore;
    case Prova::Riga:
      break;
  }
  return false;
}

/// A change comes true each time; what holds on comes true once.
bool Passeggera(Prova quando) {
  return quando == Prova::Sale || quando == Prova::Scende || quando == Prova::Cambia;
}

}  // namespace

std::optional<Fermata> Leggi_Fermata(const std::string& testo, std::string& errore) {
  errore = "fermata non valida \"" + testo +
           "\": si scrive riga 12, Q0.1 sale, Q0.1 scende, T37 cambia, VW10 > 300; con x3 alla "
           "terza volta";
  std::istringstream flusso(testo);
  std::vector<std::string> parole;
  for (std::string parola; flusso >> parola;) parole.push_back(parola);
  Fermata fermata;
  if (!parole.empty() && parole.back().size() > 1 && parole.back()[0] == 'x') {
    if (!Numero(std::string_view(parole.back()).substr(1), fermata.Volte) || fermata.Volte < 1)
      return {};
    parole.pop_back();
  }
  if (parole.size() < 2) return {};
  fermata.Testo = testo;
  if (parole[0] == "riga") {
    if (parole.size() != 2 || !Numero(parole[1], fermata.Riga) || fermata.Riga < 0) return {};
    errore.clear();
    return fermata;
  }
  const auto cella = Leggi_Indirizzo(parole[0]);
  const auto prova = std::ranges::find(prove, parole[1], &Riga_Prova::Parola);
  if (!cella || prova == std::end(prove)) return {};
  if (parole.size() != (prova->Con_Valore ? 3U : 2U)) return {};
  if (prova->Con_Valore && !Numero(parole[2], fermata.Valore)) return {};
  fermata.Quando = prova->Quando;
  fermata.Cella = *cella;
  errore.clear();
  return fermata;
}

bool Fermate::Leggi(const std::string& lista, std::string& errore) {
  std::vector<Fermata> lette;
  std::istringstream flusso(lista);
  for (std::string una; std::getline(flusso, una, ';');) {
    const std::size_t inizio = una.find_first_not_of(' ');
    if (inizio == std::string::npos) continue;
    una = una.substr(inizio, una.find_last_not_of(' ') - inizio + 1);
    const auto fermata = Leggi_Fermata(una, errore);
    if (!fermata) return false;
    lette.push_back(*fermata);
  }
  fermate_ = std::move(lette);
  return true;
}

bool Fermate::Alla_Riga(int riga) const {
  return std::ranges::any_of(fermate_, [riga](const Fermata& fermata) {
    return fermata.Quando == Prova::Riga && fermata.Riga == riga;
  });
}

void Fermate::Alterna_Riga(int riga) {
  const auto tolte = std::erase_if(fermate_, [riga](const Fermata& fermata) {
    return fermata.Quando == Prova::Riga && fermata.Riga == riga;
  });
  if (tolte > 0) return;
  Fermata fermata;
  fermata.Riga = riga;
  fermata.Testo = "riga " + std::to_string(riga);
  fermate_.push_back(std::move(fermata));
}

std::string Fermate::Come_Testo() const {
  std::string testo;
  for (const Fermata& fermata : fermate_) testo += (testo.empty() ? "" : "; ") + fermata.Testo;
  return testo;
}

void Fermate::Ricomincia(const Plc& plc) {
  for (Fermata& fermata : fermate_) {
    fermata.Contate = 0;
    if (fermata.Quando == Prova::Riga) continue;
    fermata.Prima = Leggi_Cella(plc, fermata.Cella);
    fermata.Vera = !Passeggera(fermata.Quando) && Vale(fermata, fermata.Prima, fermata.Prima);
  }
}

const Fermata* Fermate::Raggiunta(const Plc& plc) {
  const Fermata* raggiunta = nullptr;
  for (Fermata& fermata : fermate_) {
    bool avvenuta = false;
    if (fermata.Quando == Prova::Riga) {
      avvenuta = plc.PC == fermata.Riga;
    } else {
      const double ora = Leggi_Cella(plc, fermata.Cella);
      const bool vale = Vale(fermata, fermata.Prima, ora);
      avvenuta = vale && !fermata.Vera;
      fermata.Vera = vale && !Passeggera(fermata.Quando);
      fermata.Prima = ora;
    }
    if (!avvenuta || ++fermata.Contate < fermata.Volte) continue;
    fermata.Contate = 0;
    if (!raggiunta) raggiunta = &fermata;
  }
  return raggiunta;
}

}  // namespace tavorno
