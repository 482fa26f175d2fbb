// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "ladder/from_list.h"
#include "ladder/to_list.h"

namespace tavorno::prova {

/// Instructions from their text, a line each.
inline std::vector<Passo_Scala> Rete(const std::string& testo) {
  std::vector<Passo_Scala> rete;
  std::istringstream righe(testo);
  for (std::string riga; std::getline(righe, riga);) {
    std::istringstream parole(riga);
    Passo_Scala passo;
    if (!(parole >> passo.Istr)) continue;
    for (std::string operando; parole >> operando;) passo.Operandi.push_back(operando);
    passo.Riga = static_cast<int>(rete.size());
    rete.push_back(passo);
  }
  return rete;
}

inline std::string Testo(const std::vector<Passo_Scala>& rete) {
  std::string testo;
  for (const Passo_Scala& passo : rete) testo += Come_Testo(passo) + "\n";
  return testo;
}

/// The list that a drawn network is written as; the reason in brackets where it cannot be drawn.
inline std::string Andata_E_Ritorno(const std::string& testo) {
  const auto disegnata = Disegna(Rete(testo));
  if (const auto* motivo = std::get_if<Non_Disegnabile>(&disegnata))
    return "[" + std::to_string(motivo->Riga) + ": " + motivo->Motivo + "]";
  return Testo(*Elenca(std::get<Diagramma>(disegnata)));
}

}  // namespace tavorno::prova
