// SPDX-License-Identifier: GPL-3.0-or-later
// Who did not do the exercise earns next to nothing.
#include "tests/grading/hostile_hand_ins.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

class HostileHandIn : public ::testing::TestWithParam<Esempio> {};

TEST_P(HostileHandIn, EarnsNextToNothing) {
  const Cartella_Temporanea cartella;
  const std::vector<Ostile> consegne = Consegne_Ostili(GetParam(), cartella);
  std::vector<std::string> file;
  for (const Ostile& consegna : consegne) file.push_back(consegna.File);
  const std::vector<Esito_Progetto> esiti = Esamina_Insieme(file, Con_Lo_Script(GetParam()));
  ASSERT_EQ(esiti.size(), consegne.size());
  std::string troppi;
  for (std::size_t n = 0; n < esiti.size(); ++n) {
    ASSERT_TRUE(esiti[n].Compilato) << consegne[n].Nome;
    ASSERT_GT(esiti[n].Massimo(), 0);
    if (esiti[n].Massimo() != esiti[0].Massimo()) troppi += "another maximum for ";
    if (Quota(esiti[n]) > consegne[n].Limite || esiti[n].Massimo() != esiti[0].Massimo())
      troppi += consegne[n].Nome + ": " + Testo_Punti(esiti[n].Punti()) + " su " +
                Testo_Punti(esiti[n].Massimo()) + "\n";
  }
  EXPECT_EQ(troppi, "");
}

INSTANTIATE_TEST_SUITE_P(Exercises, HostileHandIn, ::testing::ValuesIn(Esempi()),
                         [](const auto& caso) { return caso.param.Nome(); });

}  // namespace tavorno::prova
