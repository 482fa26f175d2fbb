// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/normal_form.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ladder/from_list.h"
#include "ladder/symbols.h"
#include "ladder/to_list.h"

namespace tavorno {

Elemento Contatto_Vuoto() {
  return {{"LD", {operando_mancante}, -1}, {}};
}
Nodo Uscita_Vuota() {
  return {{}, {"=", {operando_mancante}, -1}, {}};
}

namespace {

void Accoda(Serie& serie, Serie altra) {
  std::ranges::move(altra, std::back_inserter(serie));
}

/// Without empty branches, without a parallel of one branch or of nothing but another parallel.
void Riordina(Serie& serie) {
  Serie nuova;
  for (Elemento& elemento : serie) {
    if (!elemento.Parallelo()) {
      nuova.push_back(std::move(elemento));
      continue;
    }
    std::vector<Serie> rami;
    for (Serie& ramo : elemento.Rami) {
      Riordina(ramo);
      if (ramo.size() == 1 && ramo.front().Parallelo())
        std::ranges::move(ramo.front().Rami, std::back_inserter(rami));
      else if (!ramo.empty())
        rami.push_back(std::move(ramo));
    }
    if (rami.size() == 1) {
      Accoda(nuova, std::move(rami.front()));
    } else if (!rami.empty()) {
      elemento.Rami = std::move(rami);
      nuova.push_back(std::move(elemento));
    }
  }
  serie = std::move(nuova);
}

/// Without wires that lead nowhere and points with a single way on. An output stands in a node of
/// its own behind its contacts.
void Riordina(std::vector<Nodo>& nodi) {
  std::vector<Nodo> nuovi;
  for (Nodo& nodo : nodi) {
    Riordina(nodo.Condizione);
    if (!nodo.Uscita.Istr.empty()) {
      if (nodo.Condizione.empty()) {
        nuovi.push_back(std::move(nodo));
        continue;
      }
      nodo.Seguito.push_back({{}, std::exchange(nodo.Uscita, {}), {}});
    }
    Riordina(nodo.Seguito);
    if (nodo.Seguito.empty()) continue;
    if (nodo.Condizione.empty()) {
      std::ranges::move(nodo.Seguito, std::back_inserter(nuovi));
      continue;
    }
    if (nodo.Seguito.size() == 1 && !nodo.Seguito.front().Condizione.empty()) {
      Nodo solo = std::move(nodo.Seguito.front());
      Accoda(nodo.Condizione, std::move(solo.Condizione));
      nodo.Seguito = std::move(solo.Seguito);
    }
    nuovi.push_back(std::move(nodo));
  }
  nodi = std::move(nuovi);
}

bool Comincia_Male(const Serie& serie, bool inizio) {
  if (inizio && !serie.front().Parallelo() &&
      Simbolo_Di(serie.front().Passo.Istr).Cosa != Ruolo::Contatto)
    return true;
  return std::ranges::any_of(serie, [](const Elemento& elemento) {
    return std::ranges::any_of(elemento.Rami,
                               [](const Serie& ramo) { return Comincia_Male(ramo, true); });
  });
}

}  // namespace

void Riordina(Piolo& piolo) {
  if (piolo.Ingressi.empty()) return;
  for (Serie& ingresso : piolo.Ingressi) {
    Riordina(ingresso);
    if (ingresso.empty()) ingresso.push_back(Contatto_Vuoto());
  }
  if (piolo.Ingressi.size() > 1) return;
  Riordina(piolo.Seguito);
  if (piolo.Seguito.empty()) piolo.Seguito.push_back(Uscita_Vuota());
  if (piolo.Seguito.size() > 1 || piolo.Seguito.front().Condizione.empty()) return;
  Nodo solo = std::move(piolo.Seguito.front());
  Accoda(piolo.Ingressi.front(), std::move(solo.Condizione));
  piolo.Seguito = std::move(solo.Seguito);
}

std::string Impedimento(const Diagramma& diagramma) {
  for (const Piolo& piolo : diagramma) {
    for (const Serie& ingresso : piolo.Ingressi)
      if (Comincia_Male(ingresso, true))
        return "un circuito e ogni suo ramo cominciano con un contatto";
  }
  auto lista = Elenca(diagramma);
  if (!lista) return "la pila non tiene altre derivazioni una dentro l'altra";
  int riga = 0;
  for (Passo_Scala& passo : *lista) passo.Riga = riga++;
  const auto disegnata = Disegna(*lista);
  if (const auto* motivo = std::get_if<Non_Disegnabile>(&disegnata))
    return "così " + motivo->Motivo;
  if (std::get<Diagramma>(disegnata) != diagramma) return "nella lista sarebbe un altro circuito";
  return {};
}

}  // namespace tavorno
