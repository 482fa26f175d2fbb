// SPDX-License-Identifier: GPL-3.0-or-later
// Hand-ins as students write them: right ones in any style are full, those that lack something the
// page asks for are not, and whoever would hurt somebody does not pass.
#include <gtest/gtest.h>

#include "tests/grading/exercise_bed.h"

namespace tavorno::prova {

namespace {

std::string In_Breve(const Esito_Progetto& esito) {
  return std::filesystem::path(esito.Progetto).filename().string() + ": " +
         Testo_Punti(esito.Punti()) + " su " + Testo_Punti(esito.Massimo()) + ", " +
         esito.Primo_Rilievo() + "\n";
}

}  // namespace

class StudentsOf : public ::testing::TestWithParam<Esempio> {};

TEST_P(StudentsOf, GetTheMarksThatTheyDeserve) {
  const Verifiche verifiche = Con_Lo_Script(GetParam());
  std::vector<std::string> giuste = GetParam().Consegne("solutions");
  const std::vector<std::string> sbagliate = GetParam().Consegne("wrong");
  std::string sbagli;
  if (giuste.size() < 2) sbagli += "fewer than two solutions of other styles\n";
  if (sbagliate.size() < 5) sbagli += "fewer than five wrong students\n";
  giuste.push_back(GetParam().Soluzione().string());
  for (const Esito_Progetto& esito : Esamina_Insieme(giuste, verifiche)) {
    ASSERT_TRUE(esito.Compilato) << In_Breve(esito);
    if (!esito.Superato() || Quota(esito) < 1) sbagli += "right, but " + In_Breve(esito);
  }
  for (const Esito_Progetto& esito : Esamina_Insieme(sbagliate, verifiche)) {
    ASSERT_TRUE(esito.Compilato) << In_Breve(esito);
    if (esito.Superato()) sbagli += "wrong, but " + In_Breve(esito);
    const bool pericoloso = esito.Progetto.find("_pericoloso") != std::string::npos;
    if (pericoloso && Quota(esito) >= sufficienza) sbagli += "dangerous, but " + In_Breve(esito);
  }
  EXPECT_EQ(sbagli, "");
}

INSTANTIATE_TEST_SUITE_P(Exercises, StudentsOf, ::testing::ValuesIn(Esempi()),
                         [](const auto& caso) { return caso.param.Nome(); });

}  // namespace tavorno::prova
