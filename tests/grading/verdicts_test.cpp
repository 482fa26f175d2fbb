// SPDX-License-Identifier: GPL-3.0-or-later
// The window and the bench say the same of every solution and of every mutant of it, record by
// record: cases, demands, findings, marks and times.
#include <gtest/gtest.h>

#include <cstdlib>

#include "grading/verification.h"
#include "recorder/session.h"
#include "tests/grading/exercise_bed.h"
#include "tests/grading/mutants.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

namespace {

/// What the window says of a project: from the program in a CPU that has run it for a while.
/// Nothing for one that does not compile, which the window does not get to see.
std::optional<std::vector<Caso>> Nella_Finestra(const std::string& progetto, Verifiche verifiche) {
  Seduta seduta;
  if (!seduta.Apri(progetto)) return {};
  seduta.progetto.Compila();
  if (!seduta.progetto.Compilato) return {};
  try {
    seduta.plc.SI[0].Stato_I("11010110");
    seduta.plc.mnuPlcStep();
    seduta.plc.mnuPlcRun();
    for (int riga = 0; riga < 3000 && seduta.plc.PLC_Acceso; ++riga) seduta.plc.CmdStep();
  } catch (const Fatale&) {  // as far as it came
  }
  Verifica_In_Corso lavoro(Copia_Programma(seduta.plc), std::move(verifiche));
  lavoro.Aspetta();
  std::vector<Caso> mostrati;
  for (Caso_Verificato& caso : lavoro.Prendi()) {
    EXPECT_EQ(caso.Film.has_value(), !caso.Esito.Superato()) << caso.Esito.Nome;
    EXPECT_EQ(caso.Diagramma.empty(), caso.Esito.Superato()) << caso.Esito.Nome;
    mostrati.push_back(std::move(caso.Esito));
  }
  EXPECT_EQ(mostrati, lavoro.Esito().Casi);
  return mostrati;
}

class Verdetti : public ::testing::TestWithParam<Esempio> {
 protected:
  static std::vector<std::string> Soluzioni() {
    std::vector<std::string> tutte = GetParam().Consegne("solutions");
    tutte.push_back(GetParam().Soluzione().string());
    return tutte;
  }
};

TEST_P(Verdetti, OfAllSolutions) {
  const Verifiche verifiche = Con_Lo_Script(GetParam());
  for (const std::string& soluzione : Soluzioni()) {
    const auto casi = Nella_Finestra(soluzione, verifiche);
    ASSERT_TRUE(casi) << soluzione;
    EXPECT_EQ(*casi, Esamina(soluzione, verifiche).Casi) << soluzione;
  }
}

/// Every so many mutants: 1 with TAVORNO_ALL_MUTANTS set, which takes a quarter of an hour.
std::size_t Passo() {
  constexpr std::size_t ogni_giorno = 16;
  return std::getenv("TAVORNO_ALL_MUTANTS") != nullptr ? 1 : ogni_giorno;
}

/// Up to the first case that fails, which is where a mutant differs.
TEST_P(Verdetti, OfMutants) {
  Verifiche verifiche = Con_Lo_Script(GetParam());
  verifiche.Basta_Un_Errore = true;
  const Cartella_Temporanea cartella;
  const std::string file = (cartella / "mutante.AWL").string();
  std::size_t confrontati = 0;
  const std::vector<Mutante> mutanti = Mutanti(Leggi_Byte(GetParam().Soluzione()));
  for (std::size_t n = 0; n < mutanti.size(); n += Passo()) {
    const Mutante& mutante = mutanti[n];
    Scrivi_Byte(file, mutante.Testo);
    const auto casi = Nella_Finestra(file, verifiche);
    if (!casi) continue;
    ++confrontati;
    EXPECT_EQ(*casi, Esamina(file, verifiche).Casi) << "line " << mutante.Riga << ": " << mutante.A;
  }
  EXPECT_GE(confrontati * Passo(), mutanti.size() / 2);
}

INSTANTIATE_TEST_SUITE_P(Esercizi, Verdetti, ::testing::ValuesIn(Esempi()),
                         [](const auto& caso) { return caso.param.Nome(); });

}  // namespace

}  // namespace tavorno::prova
