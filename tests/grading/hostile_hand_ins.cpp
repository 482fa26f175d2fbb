// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grading/hostile_hand_ins.h"

#include <algorithm>
#include <array>

#include "plants/exercises.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

constexpr double limite = 0.10;
constexpr double limite_dei_simili = 0.15;

// Neighbours whose plants are alike: a motor, two motors, pneumatic benches, mixers.
constexpr std::array<std::array<int, 2>, 6> simili = {
    {{0, 1}, {2, 3}, {4, 5}, {5, 6}, {6, 7}, {12, 13}}};

bool Simili(int uno, int altro) {
  return std::ranges::find(simili, std::array{std::min(uno, altro), std::max(uno, altro)}) !=
         simili.end();
}

std::string Punto(char area, int numero) {
  return std::string(1, area) + std::to_string(numero / 8) + "." + std::to_string(numero % 8);
}

/// Every output from the contact on its line.
std::vector<std::string> Su_Tutte(const std::string& contatto) {
  std::vector<std::string> righe = {"LD " + contatto};
  for (int n = 0; n < 16; ++n) righe.push_back("= " + Punto('Q', n));
  return righe;
}

}  // namespace

std::vector<Ostile> Consegne_Ostili(const Esempio& esempio, const std::filesystem::path& cartella) {
  std::vector<Ostile> consegne;
  const auto Aggiungi = [&](const std::string& nome, const std::vector<std::string>& righe) {
    const std::filesystem::path file = cartella / (nome + ".AWL");
    Scrivi_Byte(file, Byte_Di_Progetto(righe));
    consegne.push_back({nome, file.string(), limite});
  };
  Aggiungi("niente", {"NOP"});
  Aggiungi("tutto acceso", Su_Tutte("SM0.0"));
  Aggiungi("tutto lampeggia", Su_Tutte("SM0.5"));
  for (int n = 0; n < 16; ++n)
    Aggiungi("sempre " + Punto('Q', n), {"LD SM0.0", "= " + Punto('Q', n)});
  std::vector<std::string> copia;
  for (int n = 0; n < 16; ++n) {
    copia.push_back("LD " + Punto('I', n));
    copia.push_back("= " + Punto('Q', n));
  }
  Aggiungi("copia gli ingressi", copia);
  for (const int passo : {-1, 1}) {
    const int esercizi = static_cast<int>(Tabella_Esercizi().size());
    const Esempio vicino{(esempio.Numero + passo + esercizi) % esercizi};
    consegne.push_back({"soluzione di " + vicino.Nome(), vicino.Soluzione().string(),
                        Simili(esempio.Numero, vicino.Numero) ? limite_dei_simili : limite});
  }
  return consegne;
}

}  // namespace tavorno::prova
