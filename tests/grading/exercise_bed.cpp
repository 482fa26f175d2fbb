// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grading/exercise_bed.h"

#include <algorithm>
#include <ostream>
#include <thread>

#include "plants/exercises.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

const fs::path sorgenti = TAVORNO_SOURCES;

}  // namespace

std::string Esempio::Nome() const {
  return (Numero < 10 ? "us0" : "us") + std::to_string(Numero);
}

fs::path Esempio::Soluzione() const {
  return sorgenti / "examples" / (Nome() + ".AWL");
}

fs::path Esempio::Script() const {
  return sorgenti / "examples" / (Nome() + ".lua");
}

std::vector<std::string> Esempio::Consegne(const std::string& cartella) const {
  std::vector<std::string> consegne;
  const fs::path dove = sorgenti / "tests" / "grading" / cartella;
  if (!fs::exists(dove)) return consegne;
  for (const fs::directory_entry& voce : fs::directory_iterator(dove)) {
    if (voce.path().filename().string().starts_with(Nome() + "_"))
      consegne.push_back(voce.path().string());
  }
  std::ranges::sort(consegne);
  return consegne;
}

void PrintTo(const Esempio& esempio, std::ostream* dove) {
  *dove << esempio.Nome();
}

std::vector<Esempio> Esempi() {
  std::vector<Esempio> tutti;
  for (const Esercizio& esercizio : Tabella_Esercizi()) tutti.push_back({esercizio.Indice});
  return tutti;
}

Verifiche Con_Lo_Script(const Esempio& esempio) {
  Verifiche verifiche;
  verifiche.Script.push_back(Leggi_Sorgente(esempio.Script().string()));
  verifiche.Impianto = &Tabella_Esercizi()[static_cast<std::size_t>(esempio.Numero)];
  return verifiche;
}

std::vector<Esito_Progetto> Esamina_Insieme(const std::vector<std::string>& consegne,
                                            const Verifiche& verifiche) {
  std::vector<Esito_Progetto> esiti;
  Esamina_Tutti(consegne, verifiche, std::max(1U, std::thread::hardware_concurrency()),
                [&](const Esito_Progetto& esito) { esiti.push_back(esito); });
  return esiti;
}

double Quota(const Esito_Progetto& esito) {
  return esito.Massimo() > 0 ? esito.Punti() / esito.Massimo() : 0;
}

}  // namespace tavorno::prova
