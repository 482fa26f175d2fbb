// SPDX-License-Identifier: GPL-3.0-or-later
// Every exercise with its solved project, opened, run and closed again and again in one process.
#include <gtest/gtest.h>

#include "plants/link.h"
#include "recorder/session.h"
#include "recorder/virtual_run.h"

namespace tavorno {
namespace {

std::string Progetto_Di(const Esercizio& esercizio) {
  const std::string numero = std::to_string(esercizio.Indice);
  return std::string(TAVORNO_EXAMPLES) + "/us" + (numero.size() == 1 ? "0" : "") + numero + ".AWL";
}

struct Exercise : ::testing::TestWithParam<int> {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
};

TEST_P(Exercise, ASolvedProjectCompilesAndRunsAHundredTimes) {
  ASSERT_NE(esercizio.Crea, nullptr);
  Seduta seduta;
  ASSERT_TRUE(seduta.Apri(Progetto_Di(esercizio))) << seduta.progetto.Dettaglio.Come_Testo();
  seduta.progetto.Compila();
  ASSERT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
  Stato_Impianto stato;
  std::string primi_ingressi;
  for (int giro = 0; giro < 100; ++giro) {
    Collegamento impianto(seduta.plc, stato, esercizio);
    EXPECT_EQ(stato.Impianto_Aperto, -1);
    Corsa corsa(seduta.plc, Limiti{.Durata = 200});
    corsa.Impianto_Collegato = &impianto;
    ASSERT_EQ(corsa.Esegui(), Fine_Corsa::Tempo) << corsa.Rapporto();
    const std::string ingressi = impianto.Macchina().Stato_I();
    if (giro == 0) primi_ingressi = ingressi;
    EXPECT_EQ(ingressi, primi_ingressi) << "an exercise starts from its defaults each time";
    impianto.Chiudi();
    EXPECT_EQ(stato.Impianto_Aperto, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(All, Exercise,
                         ::testing::Range(0, static_cast<int>(Tabella_Esercizi().size())));

}  // namespace
}  // namespace tavorno
