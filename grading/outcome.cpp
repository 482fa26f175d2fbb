// SPDX-License-Identifier: GPL-3.0-or-later
#include "grading/outcome.h"

#include <algorithm>
#include <cstdio>

namespace tavorno {

int Esito_Progetto::Superati() const {
  return static_cast<int>(std::ranges::count_if(Casi, &Caso::Superato));
}

double Esito_Progetto::Punti() const {
  double somma = 0;
  for (const Caso& caso : Casi) somma += caso.Punti;
  return somma;
}

double Esito_Progetto::Massimo() const {
  double somma = 0;
  for (const Caso& caso : Casi) somma += caso.Massimo;
  return somma;
}

bool Esito_Progetto::Script_Errato() const {
  return std::ranges::any_of(Casi, &Caso::Script_Errato);
}

const char* Esito_Progetto::Giudizio_In_Breve() const {
  if (!Non_Esaminato.empty()) return "non esaminato";
  if (Script_Errato()) return "script errato";
  if (Illeggibile) return "illeggibile";
  if (Con_Errori) return "non compilato";
  return Superato() ? "superato" : "fallito";
}

std::string Esito_Progetto::Primo_Rilievo() const {
  if (!Non_Esaminato.empty()) return Non_Esaminato;
  for (const Caso& caso : Casi) {
    if (caso.Script_Errato) return caso.Rilievi.back().Testo;
  }
  for (const Caso& caso : Casi) {
    if (!caso.Superato()) return caso.Rilievi.front().Testo;
  }
  return "";
}

std::string Testo_Punti(double punti) {
  char testo[32];
  std::snprintf(testo, sizeof testo, "%.2f", punti);
  std::string cifre = testo;
  while (cifre.ends_with('0')) cifre.pop_back();
  if (cifre.ends_with('.')) cifre.pop_back();
  std::ranges::replace(cifre, '.', ',');
  return cifre;
}

}  // namespace tavorno
