// SPDX-License-Identifier: GPL-3.0-or-later
#include "recorder/stops.h"

#include <algorithm>
#include <charconv>
#include <span>
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
    case Prova::Sempre:
      break;
  }
  return true;
}

/// A change comes true each time; what holds on comes true once.
bool Passeggera(Prova quando) {
  return quando == Prova::Sale || quando == Prova::Scende || quando == Prova::Cambia;
}

}  // namespace

std::string Fermata::Cosa() const {
  if (Quando == Prova::Sempre) return {};
  const auto prova = std::ranges::find(prove, Quando, &Riga_Prova::Quando);
  std::string testo = Testo_Indirizzo(Cella) + " " + std::string(prova->Parola);
  if (!prova->Con_Valore) return testo;
  char cifre[32];
  return testo + " " + std::string(cifre, std::to_chars(cifre, std::end(cifre), Valore).ptr);
}

std::string Fermata::Testo() const {
  std::string testo = Cosa();
  if (Riga != Ogni_Riga)
    testo = "riga " + std::to_string(Riga) + (testo.empty() ? "" : " se " + testo);
  return Volte == 1 ? testo : testo + " x" + std::to_string(Volte);
}

std::optional<Fermata> Leggi_Fermata(const std::string& testo, std::string& errore) {
  errore = "fermata non valida \"" + testo +
           "\": si scrive riga 12, Q0.1 sale, Q0.1 scende, T37 cambia, VW10 > 300, riga 12 se VW10 "
           "> 300; con x3 alla terza volta";
  std::istringstream flusso(testo);
  std::vector<std::string> parole;
  for (std::string parola; flusso >> parola;) parole.push_back(parola);
  Fermata fermata;
  if (!parole.empty() && parole.back().size() > 1 && parole.back()[0] == 'x') {
    if (!Numero(std::string_view(parole.back()).substr(1), fermata.Volte) || fermata.Volte < 1)
      return {};
    parole.pop_back();
  }
  std::span<const std::string> resto = parole;
  if (resto.size() >= 2 && resto[0] == "riga") {
    if (!Numero(resto[1], fermata.Riga) || fermata.Riga < 0) return {};
    resto = resto.subspan(2);
    if (!resto.empty() && (resto[0] != "se" || resto.size() == 1)) return {};
    if (!resto.empty()) resto = resto.subspan(1);
  }
  if (!resto.empty()) {
    const auto cella = Leggi_Indirizzo(resto[0]);
    if (!cella || resto.size() < 2) return {};
    const auto prova = std::ranges::find(prove, resto[1], &Riga_Prova::Parola);
    if (prova == std::end(prove) || resto.size() != (prova->Con_Valore ? 3U : 2U)) return {};
    if (prova->Con_Valore && !Numero(resto[2], fermata.Valore)) return {};
    fermata.Quando = prova->Quando;
    fermata.Cella = *cella;
  } else if (fermata.Riga == Fermata::Ogni_Riga) {
    return {};
  }
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

const Fermata* Fermate::Alla_Riga(int riga) const {
  const auto trovata = std::ranges::find(fermate_, riga, &Fermata::Riga);
  return trovata == fermate_.end() ? nullptr : &*trovata;
}

void Fermate::Alterna_Riga(int riga) {
  if (std::erase_if(fermate_, [riga](const Fermata& una) { return una.Riga == riga; }) > 0) return;
  Fermata fermata;
  fermata.Riga = riga;
  fermate_.push_back(fermata);
}

std::string Fermate::Come_Testo() const {
  std::string testo;
  for (const Fermata& fermata : fermate_) testo += (testo.empty() ? "" : "; ") + fermata.Testo();
  return testo;
}

void Fermate::Ricomincia(const Plc& plc) {
  for (Fermata& fermata : fermate_) {
    fermata.Contate = 0;
    if (fermata.Quando == Prova::Sempre) continue;
    fermata.Prima = Leggi_Cella(plc, fermata.Cella);
    fermata.Vera = !Passeggera(fermata.Quando) && Vale(fermata, fermata.Prima, fermata.Prima);
  }
}

const Fermata* Fermate::Raggiunta(const Plc& plc) {
  const Fermata* raggiunta = nullptr;
  for (Fermata& fermata : fermate_) {
    const bool sua = fermata.Riga != Fermata::Ogni_Riga;
    if (sua && plc.PC != fermata.Riga) continue;
    bool avvenuta = true;
    if (fermata.Quando != Prova::Sempre) {
      const double ora = Leggi_Cella(plc, fermata.Cella);
      const bool vale = Vale(fermata, fermata.Prima, ora);
      // What holds on comes true once, but at a line it is asked for each time.
      avvenuta = vale && (sua || !fermata.Vera);
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
