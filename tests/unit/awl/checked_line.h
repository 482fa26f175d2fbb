// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "awl/checker.h"
#include "plc/plc.h"

namespace tavorno::prova {

/// Status and message of a checked line; 0 and "" when it is accepted.
struct Verdetto_Riga {
  int stato = 0;
  std::string testo;

  bool operator==(const Verdetto_Riga&) const = default;
};

inline std::ostream& operator<<(std::ostream& uscita, const Verdetto_Riga& verdetto) {
  return uscita << verdetto.stato << " \"" << verdetto.testo << "\"";
}

inline std::vector<std::string> Parole(const std::string& testo) {
  std::istringstream lettore(testo);
  std::vector<std::string> parole;
  for (std::string parola; lettore >> parola;) parole.push_back(parola);
  return parole;
}

/// Every operand area that the checker can meet: those it knows, and an unknown and an empty one.
inline const std::vector<std::string>& Tutte_Le_Aree() {
  static const std::vector<std::string> aree = [] {
    std::vector<std::string> lista =
        Parole("I Q M SM S T C IB QB MB SMB VB IW QW MW VW AIW AQW VD AC K V L SMW SW LW ZZ");
    lista.emplace_back();
    return lista;
  }();
  return aree;
}

struct Operando_Scritto {
  std::string area;
  int numero = 0;
  int bit = -1;  ///< -1 without a dot

  /// As it is written on a line. A text without any digit has no area.
  std::string Come_Testo() const {
    std::string testo = area.empty() ? "XY" : area + std::to_string(numero);
    if (area == "K" && bit < 0) testo = (numero < 0 ? "" : "+") + std::to_string(numero);
    if (bit >= 0) testo += "." + std::to_string(bit);
    return testo;
  }
};

inline Riga_Src Riga_Di(const std::string& mnemonico, std::vector<std::string> operandi) {
  const auto quanti = static_cast<std::uint8_t>(operandi.size());
  operandi.resize(3);
  return {mnemonico, operandi[0], operandi[1], operandi[2], quanti, "", ""};
}

/// "MOVB SMB30, VB0" as the reader would leave it.
inline Riga_Src Riga_Di(const std::string& linea) {
  if (linea.starts_with("NETWORK")) return Riga_Di(linea, {});
  std::vector<std::string> parole = Parole(linea);
  const std::string mnemonico = parole.front();
  parole.erase(parole.begin());
  for (std::string& parola : parole) {
    if (parola.back() == ',') parola.pop_back();
  }
  return Riga_Di(mnemonico, parole);
}

/// Compiles and checks single lines, each as a row of `Prog`, the way the compile loop does.
struct Banco_Righe {
  Orologio orologio;
  Plc plc{orologio};

  Banco_Righe() { plc.Prog.Ridimensiona(301); }

  /// The row is compiled and checked.
  int Stato_Riga(const Riga_Src& sorgente, int riga = 0) {
    Riempi_Riga(plc.Prog[riga], sorgente);
    return Controlla_Riga(plc.Prog[riga], sorgente).Stato;
  }

  Verdetto_Riga Controlla(const Riga_Src& sorgente) {
    Riempi_Riga(plc.Prog[0], sorgente);
    const Esito_Riga trovato = Controlla_Riga(plc.Prog[0], sorgente);
    return {trovato.Stato, trovato.Testo};
  }
  Verdetto_Riga Controlla(const std::string& linea) { return Controlla(Riga_Di(linea)); }
};

}  // namespace tavorno::prova
