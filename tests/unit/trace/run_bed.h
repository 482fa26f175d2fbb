// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "recorder/session.h"
#include "trace/diagram.h"
#include "trace/probe.h"

namespace tavorno::prova {

/// A project that runs on a virtual clock while somebody looks on: a millisecond for each scan.
struct Banco_Tracce : ::testing::Test {
  Seduta seduta;
  Plc& plc = seduta.plc;
  Registrazione registrazione;

  void Carica(const std::vector<std::string>& righe) {
    std::string byte =
        "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\nNETWORK 1 //Prova\r\n";
    for (const std::string& riga : righe) byte += riga + "\r\n";
    ASSERT_TRUE(seduta.Leggi(byte + "END_ORGANIZATION_BLOCK\r\n"));
    seduta.progetto.Compila();
    ASSERT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
  }

  std::size_t Registra(const std::string& indirizzo) {
    return registrazione.Aggiungi(Fai_Segnale(indirizzo, indirizzo));
  }
  /// Time and value of each change, the first one included.
  std::vector<std::pair<std::int64_t, double>> Cambi(const std::string& indirizzo) {
    const auto numero = registrazione.Cerca(indirizzo);
    std::vector<std::pair<std::int64_t, double>> cambi;
    if (!numero) return cambi;
    const Onda& onda = registrazione.Quando(*numero);
    for (std::size_t n = 0; n < onda.Cambi(); ++n) cambi.emplace_back(onda.Ms(n), onda.Valore(n));
    return cambi;
  }

  /// A wave made by hand: a value from each time on.
  std::size_t Disegna_Onda(const std::string& indirizzo,
                           const std::vector<std::pair<std::int64_t, double>>& cambi) {
    const std::size_t numero = Registra(indirizzo);
    const auto letto = *Leggi_Indirizzo(indirizzo);
    for (const auto& [ms, valore] : cambi) {
      EXPECT_TRUE(Scrivi_Cella(plc, letto, valore));
      registrazione.Campiona(ms, plc);
    }
    return numero;
  }
};

}  // namespace tavorno::prova
