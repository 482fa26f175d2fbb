// SPDX-License-Identifier: GPL-3.0-or-later
// The wires between a machine and the CPU are live as their terminals are, whatever happens.
#include <gtest/gtest.h>

#include <random>

#include "plants/exercises.h"
#include "plc/plc.h"

namespace tavorno::prova {
namespace {

class Wires : public ::testing::TestWithParam<int> {
 protected:
  Orologio orologio;
  Plc plc{orologio};
  std::unique_ptr<Impianto> macchina =
      Tabella_Esercizi()[static_cast<std::size_t>(GetParam())].Crea(plc);

  /// The number of wires that there are, each seen in the colour of its terminal.
  int Guarda() {
    int quanti = 0;
    for (std::size_t n = 0; n < 16; ++n) {
      const std::string numero = '(' + std::to_string(n) + ')';
      const auto guarda = [&](const std::string& nome, char stato) {
        Figura* filo = macchina->Disegno.Trova(nome);
        if (filo == nullptr) return;
        ++quanti;
        EXPECT_EQ(filo->FillColor(), Tavolozza(stato == '1' ? 12 : 15)) << nome;
      };
      guarda("filoI" + numero, macchina->Stato_I()[n]);
      guarda("filoQ" + numero, macchina->Stato_Q()[n]);
    }
    return quanti;
  }
};

TEST_P(Wires, FollowTheirTerminals) {
  ASSERT_GE(Guarda(), 4);
  std::mt19937 caso(11);  // always the same
  std::vector<std::string> nomi;
  for (const Figura& figura : macchina->Disegno) nomi.push_back(figura.Nome);
  for (int giro = 0; giro < 400 && !HasFailure(); ++giro) {
    const std::string& nome = nomi[caso() % nomi.size()];
    macchina->Premi(nome);
    Guarda();
    macchina->Rilascia(nome);
    macchina->Clic(nome);
    if (caso() % 3 == 0) macchina->Doppio_Clic(nome);
    Guarda();
    std::string uscite(16, '0');
    for (char& bit : uscite) bit = caso() % 2 ? '1' : '0';
    macchina->Stato_Q(uscite);
    Guarda();
    orologio.Avanza(static_cast<int>(caso() % 500));
    Guarda();
  }
}
INSTANTIATE_TEST_SUITE_P(Exercises, Wires, ::testing::Values(0, 4, 7));

}  // namespace
}  // namespace tavorno::prova
