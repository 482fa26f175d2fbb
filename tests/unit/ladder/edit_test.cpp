// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/edit.h"

#include <gtest/gtest.h>

#include <random>

#include "ladder/edit_walk.h"
#include "ladder/layout.h"
#include "ladder/symbols.h"
#include "list_bed.h"

namespace tavorno::prova {

namespace {

Diagramma Da(const std::string& lista) {
  return std::get<Diagramma>(Disegna(Rete(lista)));
}
Passo_Scala Uno(const std::string& riga) {
  Passo_Scala passo = Rete(riga).front();
  passo.Riga = -1;
  return passo;
}
std::string Lista(const Modifica& modifica) {
  return modifica.Fatta() ? Testo(*Elenca(modifica.Nuovo)) : "[" + modifica.Motivo + "]";
}

struct Caso_Inserzione {
  const char* Nome;
  const char* Prima;
  int Quale, Fino;
  Verso Dove;
  const char* Passo;
  const char* Dopo;  ///< the list, or part of the reason in brackets
  int Scelto;
};

void PrintTo(const Caso_Inserzione& caso, std::ostream* out) {
  *out << caso.Nome;
}

class Inserzioni : public testing::TestWithParam<Caso_Inserzione> {};

TEST_P(Inserzioni, ChangeTheListSo) {
  const Caso_Inserzione& caso = GetParam();
  const Diagramma prima = Da(caso.Prima);
  const Modifica modifica = Inserisci(prima, caso.Quale, caso.Fino, caso.Dove, Uno(caso.Passo));
  const std::string atteso = caso.Dopo;
  if (atteso.starts_with('[')) {
    EXPECT_NE(modifica.Motivo.find(atteso.substr(1, atteso.size() - 2)), std::string::npos)
        << Lista(modifica);
    EXPECT_EQ(modifica.Nuovo, prima);
    EXPECT_EQ(modifica.Scelto, caso.Quale);
    return;
  }
  EXPECT_EQ(Lista(modifica), atteso);
  EXPECT_EQ(modifica.Scelto, caso.Scelto);
  const Passo_Scala scelto = Simbolo_Numero(modifica.Nuovo, modifica.Scelto);
  EXPECT_EQ(scelto.Operandi, Uno(caso.Passo).Operandi);
  EXPECT_EQ(scelto.Riga, -1);
}

constexpr const char* serie = "LD I0.0\nA I0.1\n= Q0.0\n";
constexpr const char* vuoto = "LD ?\n= ?\n";

INSTANTIATE_TEST_SUITE_P(
    Contatti, Inserzioni,
    testing::Values(
        Caso_Inserzione{"first", serie, 0, 0, Verso::Prima, "A I0.5",
                        "LD I0.5\nA I0.0\nA I0.1\n= Q0.0\n", 0},
        Caso_Inserzione{"behind", serie, 0, 0, Verso::Dopo, "AN I0.5",
                        "LD I0.0\nAN I0.5\nA I0.1\n= Q0.0\n", 1},
        Caso_Inserzione{"before the coil", serie, 2, 2, Verso::Prima, "AW> VW0 +1",
                        "LD I0.0\nA I0.1\nAW> VW0 +1\n= Q0.0\n", 2},
        Caso_Inserzione{"beside one", serie, 0, 0, Verso::Sotto, "O Q0.0",
                        "LD I0.0\nO Q0.0\nA I0.1\n= Q0.0\n", 1},
        Caso_Inserzione{"beside two", serie, 1, 0, Verso::Sotto, "ON Q0.0",
                        "LD I0.0\nA I0.1\nON Q0.0\n= Q0.0\n", 2},
        Caso_Inserzione{"beside the second", serie, 1, 1, Verso::Sotto, "O I0.2",
                        "LD I0.0\nLD I0.1\nO I0.2\nALD\n= Q0.0\n", 2},
        Caso_Inserzione{"beside all before the coil", serie, 2, 2, Verso::Sotto, "O Q0.0",
                        "LD I0.0\nA I0.1\nO Q0.0\n= Q0.0\n", 2},
        Caso_Inserzione{"a third branch", "LD I0.0\nO I0.1\n= Q0.0\n", 1, 1, Verso::Sotto, "O I0.2",
                        "LD I0.0\nO I0.1\nO I0.2\n= Q0.0\n", 2},
        Caso_Inserzione{"longer branch", "LD I0.0\nO I0.1\n= Q0.0\n", 1, 1, Verso::Dopo, "A I0.2",
                        "LD I0.0\nLD I0.1\nA I0.2\nOLD\n= Q0.0\n", 2},
        Caso_Inserzione{"in the place of nothing", vuoto, 0, 0, Verso::Dopo, "AN I0.0",
                        "LDN I0.0\n= ?\n", 0},
        Caso_Inserzione{"at once before the coil", vuoto, 1, 1, Verso::Prima, "LD I0.0",
                        "LD I0.0\n= ?\n", 0},
        Caso_Inserzione{"before one of two coils", "LD I0.0\n= Q0.0\n= Q0.1\n", 2, 2, Verso::Prima,
                        "A I0.1", "LD I0.0\n= Q0.0\nA I0.1\n= Q0.1\n", 2},
        Caso_Inserzione{"before the first of two coils", "LD I0.0\n= Q0.0\n= Q0.1\n", 1, 1,
                        Verso::Prima, "A I0.1", "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\n= Q0.1\n", 1},
        Caso_Inserzione{"an edge", serie, 1, 1, Verso::Dopo, "EU", "LD I0.0\nA I0.1\nEU\n= Q0.0\n",
                        2},
        Caso_Inserzione{"a wire of a counter", "LD I0.0\nLD I0.1\nCTU C1 +3\n", 1, 1, Verso::Dopo,
                        "A I0.2", "LD I0.0\nLD I0.1\nA I0.2\nCTU C1 +3\n", 2},
        Caso_Inserzione{"below a label", "LBL 1\n", 0, 0, Verso::Dopo, "LD I0.0",
                        "LBL 1\nLD I0.0\n= ?\n", 1},
        Caso_Inserzione{"into nothing", "", -1, -1, Verso::Dopo, "LD I0.0", "LD I0.0\n= ?\n", 0},
        Caso_Inserzione{"NOT at the rail", serie, 0, 0, Verso::Prima, "NOT",
                        "[cominciano con un contatto]", 0},
        Caso_Inserzione{"NOT inside a block", "LD I0.0\nLD I0.1\nO I0.2\nALD\n= Q0.0\n", 2, 2,
                        Verso::Dopo, "NOT", "[NOT, EU o ED]", 0},
        Caso_Inserzione{"two wires at once", "LD I0.0\nO I0.1\nA I0.2\n= Q0.0\n", 0, 2,
                        Verso::Sotto, "O I0.3", "[stesso filo]", 0},
        Caso_Inserzione{"a stack instruction", serie, 0, 0, Verso::Dopo, "ALD",
                        "[nasce dal disegno]", 0}));

INSTANTIATE_TEST_SUITE_P(
    Uscite, Inserzioni,
    testing::Values(
        Caso_Inserzione{"in the place of nothing", "LD I0.0\n= ?\n", 1, 1, Verso::Dopo, "S Q0.0 1",
                        "LD I0.0\nS Q0.0 1\n", 1},
        Caso_Inserzione{"in the place of nothing, from a contact", "LD I0.0\nA I0.1\n= ?\n", 0, 0,
                        Verso::Dopo, "TON T37 +5", "LD I0.0\nA I0.1\nTON T37 +5\n", 2},
        Caso_Inserzione{"below a coil", serie, 2, 2, Verso::Dopo, "= Q0.1",
                        "LD I0.0\nA I0.1\n= Q0.0\n= Q0.1\n", 3},
        Caso_Inserzione{"above a coil", serie, 2, 2, Verso::Prima, "= Q0.1",
                        "LD I0.0\nA I0.1\n= Q0.1\n= Q0.0\n", 2},
        Caso_Inserzione{"behind the last contact", serie, 1, 1, Verso::Dopo, "= Q0.1",
                        "LD I0.0\nA I0.1\n= Q0.0\n= Q0.1\n", 3},
        Caso_Inserzione{"half way", serie, 0, 0, Verso::Dopo, "= Q0.1",
                        "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\n= Q0.1\n", 3},
        Caso_Inserzione{"below a coil of a branch",
                        "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\nA I0.2\n= Q0.1\n", 2, 2, Verso::Dopo,
                        "= Q0.2", "LD I0.0\nLPS\nA I0.1\n= Q0.0\n= Q0.2\nLPP\nA I0.2\n= Q0.1\n", 3},
        Caso_Inserzione{"half way of a branch",
                        "LD I0.0\nLPS\nA I0.1\nA I0.3\n= Q0.0\nLPP\nA I0.2\n= Q0.1\n", 1, 1,
                        Verso::Dopo, "= Q0.2",
                        "LD I0.0\nLPS\nA I0.1\nLPS\nA I0.3\n= Q0.0\nLPP\n= Q0.2\nLPP\nA I0.2\n= "
                        "Q0.1\n",
                        4},
        Caso_Inserzione{"inside a parallel", "LD I0.0\nO I0.1\n= Q0.0\n", 1, 1, Verso::Dopo,
                        "= Q0.1", "[dentro un parallelo]", 0},
        Caso_Inserzione{"a counter on a rung without output", "LD I0.0\n= ?\n", 1, 1, Verso::Dopo,
                        "CTU C1 +3", "LD I0.0\nLD ?\nCTU C1 +3\n", 2},
        Caso_Inserzione{"a counter of its own", serie, 2, 2, Verso::Dopo, "CTUD C1 +3",
                        "LD I0.0\nA I0.1\n= Q0.0\nLD ?\nLD ?\nLD ?\nCTUD C1 +3\n", 6},
        Caso_Inserzione{"a label", serie, 0, 0, Verso::Prima, "LBL 3",
                        "LBL 3\nLD I0.0\nA I0.1\n= Q0.0\n", 0},
        Caso_Inserzione{"a step in the place of nothing", vuoto, 0, 0, Verso::Dopo, "LSCR S0.1",
                        "LSCR S0.1\n", 0},
        Caso_Inserzione{"a coil into nothing", "", -1, -1, Verso::Dopo, "= Q0.0", "LD ?\n= Q0.0\n",
                        1}));

struct Caso_Taglio {
  const char* Nome;
  const char* Prima;
  int Quale;
  const char* Dopo;
  int Scelto;
};

void PrintTo(const Caso_Taglio& caso, std::ostream* out) {
  *out << caso.Nome;
}

class Tagli : public testing::TestWithParam<Caso_Taglio> {};

TEST_P(Tagli, ChangeTheListSo) {
  const Modifica modifica = Cancella(Da(GetParam().Prima), GetParam().Quale);
  EXPECT_EQ(Lista(modifica), GetParam().Dopo);
  EXPECT_EQ(modifica.Scelto, GetParam().Scelto);
}

INSTANTIATE_TEST_SUITE_P(
    Tutti, Tagli,
    testing::Values(Caso_Taglio{"a contact", serie, 1, "LD I0.0\n= Q0.0\n", 0},
                    Caso_Taglio{"the first contact", serie, 0, "LD I0.1\n= Q0.0\n", 0},
                    Caso_Taglio{"the only contact", "LD I0.0\n= Q0.0\n", 0, "LD ?\n= Q0.0\n", 0},
                    Caso_Taglio{"the only coil", serie, 2, "LD I0.0\nA I0.1\n= ?\n", 2},
                    Caso_Taglio{"a branch", "LD I0.0\nO I0.1\nA I0.2\n= Q0.0\n", 1,
                                "LD I0.0\nA I0.2\n= Q0.0\n", 0},
                    Caso_Taglio{"one of three branches", "LD I0.0\nO I0.1\nO I0.2\n= Q0.0\n", 1,
                                "LD I0.0\nO I0.2\n= Q0.0\n", 0},
                    Caso_Taglio{"what parted two blocks",
                                "LD I0.0\nLD I0.1\nLD I0.2\nO I0.3\nALD\nOLD\n= Q0.0\n", 1,
                                "LD I0.0\nO I0.2\nO I0.3\n= Q0.0\n", 0},
                    Caso_Taglio{"a coil of a branch",
                                "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\nA I0.2\n= Q0.1\n", 2,
                                "LD I0.0\nA I0.2\n= Q0.1\n", 1},
                    Caso_Taglio{"nothing of a rung", vuoto, 1, "", -1},
                    Caso_Taglio{"a counter", "LD I0.0\nLD I0.1\nCTU C1 +3\nLD C1\n= Q0.0\n", 2,
                                "LD C1\n= Q0.0\n", 0},
                    Caso_Taglio{"a label", "LBL 1\nLD I0.0\n= Q0.0\n", 0, "LD I0.0\n= Q0.0\n", 0}));

struct Caso_Cambio {
  const char* Prima;
  int Quale;
  const char* Passo;
  const char* Dopo;
};

void PrintTo(const Caso_Cambio& caso, std::ostream* out) {
  *out << caso.Passo;
}

class Cambi : public testing::TestWithParam<Caso_Cambio> {};

TEST_P(Cambi, KeepThePlace) {
  const Diagramma prima = Da(GetParam().Prima);
  const Modifica modifica = Cambia(prima, GetParam().Quale, Uno(GetParam().Passo));
  if (modifica.Fatta()) {
    EXPECT_EQ(Lista(modifica), GetParam().Dopo);
    EXPECT_EQ(Simbolo_Numero(modifica.Nuovo, GetParam().Quale).Riga,
              Simbolo_Numero(prima, GetParam().Quale).Riga);
  } else {
    EXPECT_EQ(std::string(GetParam().Dopo), "[no]") << modifica.Motivo;
    EXPECT_EQ(modifica.Nuovo, prima);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tutti, Cambi,
    testing::Values(Caso_Cambio{serie, 1, "AN I1.1", "LD I0.0\nAN I1.1\n= Q0.0\n"},
                    Caso_Cambio{serie, 0, "AN I1.1", "LDN I1.1\nA I0.1\n= Q0.0\n"},
                    Caso_Cambio{serie, 1, "EU", "LD I0.0\nEU\n= Q0.0\n"},
                    Caso_Cambio{serie, 2, "S Q0.0 1", "LD I0.0\nA I0.1\nS Q0.0 1\n"},
                    Caso_Cambio{serie, 2, "TON T37 +5", "LD I0.0\nA I0.1\nTON T37 +5\n"},
                    Caso_Cambio{"LD I0.0\nLD I0.1\nCTU C1 +3\n", 2, "CTD C2 +4",
                                "LD I0.0\nLD I0.1\nCTD C2 +4\n"},
                    Caso_Cambio{"LBL 1\n", 0, "LSCR S0.1", "LSCR S0.1\n"},
                    Caso_Cambio{serie, 1, "= Q0.0", "[no]"},
                    Caso_Cambio{serie, 2, "A I0.0", "[no]"}, Caso_Cambio{serie, 0, "NOT", "[no]"},
                    Caso_Cambio{serie, 2, "CTU C1 +3", "[no]"},
                    Caso_Cambio{"LD I0.0\nLD I0.1\nCTU C1 +3\n", 2, "CTUD C1 +3", "[no]"}));

TEST(Pioli, ComeBehindTheOneChosenAndGoAsAWhole) {
  const Diagramma prima = Da("LD I0.0\n= Q0.0\nLD I0.1\n= Q0.1\n");
  const Modifica nuovo = Nuovo_Piolo(prima, 0);
  EXPECT_EQ(Lista(nuovo), "LD I0.0\n= Q0.0\nLD ?\n= ?\nLD I0.1\n= Q0.1\n");
  EXPECT_EQ(nuovo.Scelto, 2);
  EXPECT_EQ(Lista(Nuovo_Piolo(prima, -1)), "LD I0.0\n= Q0.0\nLD I0.1\n= Q0.1\nLD ?\n= ?\n");
  const Modifica senza = Cancella_Piolo(nuovo.Nuovo, 1);
  EXPECT_EQ(Lista(senza), "LD ?\n= ?\nLD I0.1\n= Q0.1\n");
  EXPECT_EQ(senza.Scelto, 0);
  EXPECT_EQ(Cancella_Piolo(Da(vuoto), 0).Scelto, -1);
}

// ---- whatever is done, in whatever order -------------------------------------------------------

TEST(Modifiche, AreDrawnAgainAsTheyAreAndCanBeTakenBack) {
  std::mt19937 generatore(4);
  const auto caso = [&](std::size_t quanti) { return static_cast<int>(generatore() % quanti); };
  static const std::vector<std::string> passi = {
      "A I0.0",   "AN I0.1",    "O M0.0",      "AB= VB0 +1", "NOT",   "EU",     "= Q0.0",
      "S Q0.1 1", "TON T37 +5", "MOVB +1 VB0", "CTU C1 +3",  "LBL 1", "LD I0.5"};
  int fatte = 0;
  int rifiutate = 0;
  for (int storia = 0; storia < 150; ++storia) {
    Diagramma ora;
    for (int n = 0; n < 25; ++n) {
      const int simboli = Quanti_Simboli(ora);
      const int quale = simboli == 0 ? -1 : caso(static_cast<std::size_t>(simboli));
      const int fino =
          caso(4) == 0 && simboli > 0 ? caso(static_cast<std::size_t>(simboli)) : quale;
      const auto verso = static_cast<Verso>(caso(3));
      const Passo_Scala passo = Uno(passi[static_cast<std::size_t>(caso(passi.size()))]);
      const bool taglia = quale >= 0 && caso(6) == 0;
      Modifica modifica = taglia ? Cancella(ora, quale) : Inserisci(ora, quale, fino, verso, passo);
      if (!modifica.Fatta()) {
        ++rifiutate;
        ASSERT_EQ(modifica.Nuovo, ora);
        continue;
      }
      ++fatte;
      const Diagramma& nuovo = modifica.Nuovo;
      const std::string lista = Testo(*Elenca(nuovo));
      ASSERT_EQ(Da(lista), nuovo) << lista;
      const Disegno disegno = Impagina(nuovo);
      ASSERT_EQ(std::ssize(disegno.Riquadri), Quanti_Simboli(nuovo)) << lista;
      for (std::size_t k = 0; k < disegno.Riquadri.size(); ++k)
        ASSERT_EQ(disegno.Riquadri[k].Passo, Simbolo_Numero(nuovo, static_cast<int>(k))) << lista;
      const std::string prima = Testo(*Elenca(ora));
      if (!taglia) {
        const Passo_Scala scelto = Simbolo_Numero(nuovo, modifica.Scelto);
        ASSERT_EQ(scelto.Operandi, passo.Operandi) << lista;
        // Where nothing was filled in, and where a contact brought its rung along, there is
        // something more to take back.
        const bool solo_lui =
            prima.find('?') == std::string::npos && Quanti_Simboli(nuovo) == simboli + 1;
        if (solo_lui) {
          ASSERT_EQ(Cancella(nuovo, modifica.Scelto).Nuovo, ora) << prima << lista;
        }
      }
      ora = nuovo;
    }
  }
  EXPECT_GT(fatte, 2000);
  EXPECT_GT(rifiutate, 50);
}

}  // namespace
}  // namespace tavorno::prova
