// SPDX-License-Identifier: GPL-3.0-or-later
#include "HTML/generator/operand_words.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <optional>

namespace tavorno {

namespace {

bool E_Bit(Area area) {
  return area == Area::I || area == Area::Q || area == Area::M || area == Area::SM ||
         area == Area::S;
}

/// What the rule allows and the memory has: some rules let more numbers pass than there are cells.
Numeri Numeri_Utili(const Regola_Operando* regola, Area area) {
  Numeri numeri = Numeri_Area(area);
  if (regola == nullptr) return numeri;
  const auto ammessa = std::ranges::find(regola->Ammesse, area, &Ammessa::Codice);
  if (ammessa == regola->Ammesse.end()) return numeri;
  const Numeri& limite = ammessa->Valori;
  if (!limite.Solo.empty()) return limite;
  if (limite.Massimo && (!numeri.Massimo || *limite.Massimo < *numeri.Massimo))
    numeri.Massimo = limite.Massimo;
  return numeri;
}

/// The parts of the manual's text for a rule: one per operand.
std::vector<std::string> Parti(const std::string& aiuto) {
  std::vector<std::string> parti;
  std::size_t inizio = 0;
  while (true) {
    const std::size_t fine = aiuto.find("; ", inizio);
    parti.push_back(aiuto.substr(inizio, fine - inizio));
    if (fine == std::string::npos) return parti;
    inizio = fine + 2;
  }
}

const Regola_Operando* Regola_Numero(const Regola& regola, std::size_t operando) {
  if (operando == 0) return &regola.Op1;
  return regola.Op2 ? &*regola.Op2 : nullptr;
}

/// Copies `testo`, handing every word that names an area to `parola` for its replacement.
std::string Con_Aree(const std::string& testo, const std::function<std::string(Area)>& parola) {
  std::string risultato;
  for (std::size_t i = 0; i < testo.size();) {
    std::size_t fine = i;
    while (fine < testo.size() && std::isalpha(static_cast<unsigned char>(testo[fine]))) ++fine;
    if (fine == i) {
      risultato += testo[i++];
      continue;
    }
    const std::string nome = testo.substr(i, fine - i);
    const Area area = Cerca_Area(nome);
    risultato += area == Area::Ignota || area == Area::Nessuna ? nome : parola(area);
    i = fine;
  }
  return risultato;
}

std::vector<Area> Aree_Di(const std::string& testo) {
  std::vector<Area> aree;
  Con_Aree(testo, [&aree](Area area) {
    aree.push_back(area);
    return std::string();
  });
  return aree;
}

std::string Operando(Area area, const Numeri& numeri, int oltre) {
  if (area == Area::K) return "+10";
  const int numero = (numeri.Solo.empty() ? 0 : numeri.Solo.front()) + oltre;
  return std::string(Testo_Area(area)) + std::to_string(numero) + (E_Bit(area) ? ".0" : "");
}

}  // namespace

std::string Campo(Area area, const Numeri& numeri) {
  const std::string nome(Testo_Area(area));
  if (area == Area::K) return numeri.Massimo ? "K fino a " + std::to_string(*numeri.Massimo) : nome;
  if (!numeri.Solo.empty()) {
    std::string testo;
    for (const int numero : numeri.Solo)
      testo += (testo.empty() ? "" : ", ") + nome + std::to_string(numero);
    return testo;
  }
  const std::string ultimo = nome + std::to_string(numeri.Massimo.value_or(0));
  if (E_Bit(area)) return nome + "0.0–" + ultimo + ".7";
  return numeri.Massimo.value_or(0) == 0 ? ultimo : nome + "0–" + ultimo;
}

std::vector<std::string> Operandi_In_Parole(const Regola& regola) {
  std::vector<std::string> testi = Parti(regola.Aiuto);
  for (std::size_t i = 0; i < testi.size(); ++i) {
    const Regola_Operando* operando = Regola_Numero(regola, i);
    testi[i] = Con_Aree(
        testi[i], [operando](Area area) { return Campo(area, Numeri_Utili(operando, area)); });
  }
  return testi;
}

std::string Riga_Esempio(const Istruzione& istruzione) {
  if (istruzione.Operandi == nullptr) return istruzione.Nome;
  const Regola& regola = *istruzione.Operandi;
  const std::vector<std::string> parti = Parti(regola.Aiuto);
  std::string riga = istruzione.Nome;
  riga.resize(std::max<std::size_t>(riga.size() + 1, 7), ' ');
  Area precedente = Area::Nessuna;
  for (int i = 0; i < regola.Operandi; ++i) {
    const auto operando = static_cast<std::size_t>(i);
    const bool in_comune = operando >= parti.size();
    const std::vector<Area> aree = Aree_Di(in_comune ? parti.back() : parti[operando]);
    if (i > 0) riga += ", ";
    if (aree.empty()) {
      riga += "1";
      continue;
    }
    // Comparing a cell with a constant says more than comparing it with itself.
    const bool costante = in_comune && std::ranges::find(aree, Area::K) != aree.end();
    const Area area = costante ? Area::K : aree.front();
    const Numeri numeri = Numeri_Utili(Regola_Numero(regola, operando), area);
    riga += Operando(area, numeri, area == precedente ? 2 : 0);
    precedente = area;
  }
  return riga;
}

}  // namespace tavorno
