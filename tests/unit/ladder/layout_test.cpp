// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "ladder/shapes.h"
#include "list_bed.h"

namespace tavorno::prova {

namespace {

Disegno Impaginata(const std::string& lista) {
  return Impagina(std::get<Diagramma>(Disegna(Rete(lista))));
}

const Riquadro& Di(const Disegno& disegno, const std::string& operando) {
  return *std::ranges::find_if(disegno.Riquadri, [&](const Riquadro& riquadro) {
    return !riquadro.Passo.Operandi.empty() && riquadro.Passo.Operandi.front() == operando;
  });
}

std::string Posti(const Disegno& disegno) {
  std::string testo;
  for (const Riquadro& r : disegno.Riquadri)
    testo += r.Passo.Operandi.front() + "@" + std::to_string(r.Colonna) + "," +
             std::to_string(r.Riga) + " ";
  return testo;
}

}  // namespace

TEST(Impagina, ContactsStandInColumnsAndCoilsAtTheRight) {
  const Disegno disegno = Impaginata("LD I0.0\nA I0.1\n= Q0.0\n= Q0.1\n");
  EXPECT_EQ(disegno.Colonne, 4);
  EXPECT_EQ(disegno.Righe, 2);
  EXPECT_EQ(Posti(disegno), "I0.0@0,0 I0.1@1,0 Q0.0@3,0 Q0.1@3,1 ");
}

TEST(Impagina, BranchesStandOneBelowTheOther) {
  const Disegno disegno =
      Impaginata("LD I0.0\nA I0.1\nO I0.2\nLD I0.3\nO I0.4\nALD\nA I0.5\n= Q0.0\n");
  EXPECT_EQ(Posti(disegno), "I0.0@0,0 I0.1@1,0 I0.2@0,1 I0.3@2,0 I0.4@2,1 I0.5@3,0 Q0.0@4,0 ");
  EXPECT_EQ(disegno.Righe, 2);
}

TEST(Impagina, ABoxHasTwoRowsAndACounterOneForEachWire) {
  const Disegno timer = Impaginata("LD I0.0\nTON T37 +10\n= Q0.0\n");
  EXPECT_EQ(Di(timer, "T37").Altezza, 2);
  EXPECT_EQ(Di(timer, "Q0.0").Riga, 2);
  const Disegno contatore = Impaginata("LD I0.0\nLD I0.1\nO I0.2\nLD I0.3\nCTUD C1 +3\n");
  const Riquadro& scatola = Di(contatore, "C1");
  EXPECT_EQ(scatola.Altezza, 4);
  ASSERT_EQ(scatola.Entrate.size(), 3U);
  EXPECT_EQ(scatola.Entrate[2].Riga, 3);
  EXPECT_EQ(contatore.Righe, 4);
}

TEST(Impagina, NoTwoSymbolsShareACell) {
  for (const char* lista :
       {"LD I0.0\nLPS\nLD I0.1\nO I0.2\nALD\nTON T37 +5\nLRD\nA I0.3\nLPS\nA I0.4\n= Q0.0\nLPP\n"
        "TON T38 +5\nLPP\n= Q0.1\n",
        "LD I0.0\nA I0.1\nLD I0.2\nLD I0.3\nO I0.4\nO I0.5\nALD\nOLD\nTON T37 +1\n= Q0.0\nLD I0.6\n"
        "LD I0.7\nCTU C1 +2\nLBL 3\n"}) {
    const Disegno disegno = Impaginata(lista);
    std::map<std::pair<int, int>, int> celle;
    for (const Riquadro& r : disegno.Riquadri) {
      EXPECT_LE(r.Colonna + r.Larghezza, disegno.Colonne) << lista;
      EXPECT_LE(r.Riga + r.Altezza, disegno.Righe) << lista;
      for (int x = 0; x < r.Larghezza; ++x)
        for (int y = 0; y < r.Altezza; ++y)
          EXPECT_EQ((celle[{r.Colonna + x, r.Riga + y}]++), 0) << lista;
    }
  }
}

// ---- power flow ---------------------------------------------------------------------------------

struct Caso_Corrente {
  const char* Lista;
  std::vector<std::string> Chiusi;  ///< contacts that let power pass
  std::vector<std::string> Vivi;    ///< outputs that get some
};

void PrintTo(const Caso_Corrente& caso, std::ostream* out) {
  *out << caso.Lista;
}

class Corrente : public testing::TestWithParam<Caso_Corrente> {};

TEST_P(Corrente, ReachesWhatItShould) {
  const Disegno disegno = Impaginata(GetParam().Lista);
  const std::vector<bool> vivi = Correnti(disegno, [&](const Riquadro& riquadro, bool arriva) {
    if (riquadro.Passo.Istr == "NOT") return !arriva;
    return arriva && std::ranges::count(GetParam().Chiusi, riquadro.Passo.Operandi.front()) > 0;
  });
  std::vector<std::string> accesi;
  for (const Riquadro& r : disegno.Riquadri)
    if (r.Come.Cosa == Ruolo::Bobina && vivi[static_cast<std::size_t>(r.Prima)])
      accesi.push_back(r.Passo.Operandi.front());
  EXPECT_EQ(accesi, GetParam().Vivi);
}

constexpr const char* rete_con_rami =
    "LD I0.0\nA I0.1\nO I0.2\nLPS\nA I0.3\n= Q0.0\nLPP\nNOT\n= Q0.1\n";
INSTANTIATE_TEST_SUITE_P(Reti, Corrente,
                         testing::Values(Caso_Corrente{rete_con_rami, {}, {"Q0.1"}},
                                         Caso_Corrente{rete_con_rami, {"I0.0"}, {"Q0.1"}},
                                         Caso_Corrente{rete_con_rami, {"I0.0", "I0.1"}, {}},
                                         Caso_Corrente{rete_con_rami, {"I0.2"}, {}},
                                         Caso_Corrente{rete_con_rami, {"I0.2", "I0.3"}, {"Q0.0"}},
                                         Caso_Corrente{rete_con_rami, {"I0.3"}, {"Q0.1"}}));

TEST(Correnti, APointIsLiveWhenOneOfItsBranchesIs) {
  const Disegno disegno = Impaginata("LD I0.0\nO I0.1\n= Q0.0\n");
  const std::vector<bool> vivi = Correnti(disegno, [](const Riquadro& riquadro, bool arriva) {
    return arriva && riquadro.Passo.Operandi.front() == "I0.1";
  });
  EXPECT_FALSE(vivi[static_cast<std::size_t>(Di(disegno, "I0.0").Dopo)]);
  EXPECT_TRUE(vivi[static_cast<std::size_t>(Di(disegno, "Q0.0").Prima)]);
  // The wire that joins the branches belongs to the point behind them.
  const auto filo = std::ranges::find_if(
      disegno.Fili, [](const Filo& uno) { return uno.Colonna == 1 && uno.Riga != uno.Riga_Fine; });
  ASSERT_NE(filo, disegno.Fili.end());
  EXPECT_TRUE(vivi[static_cast<std::size_t>(filo->Nodo)]);
}

// ---- the drawing --------------------------------------------------------------------------------

TEST(Traccia_Forme, EveryAddressStandsBesideItsSymbolAndThePlantsNameAboveIt) {
  const Disegno disegno = Impaginata("LD I0.0\nAW>= VW1 +20\nS Q0.0 2\n");
  const Tratteggio_Rete forme = Traccia_Forme(
      disegno, [](const std::string& operando) { return operando == "I0.0" ? "SB1" : ""; });
  std::vector<std::string> testi;
  for (const Scritta& scritta : forme.Scritte) testi.push_back(scritta.Testo);
  std::ranges::sort(testi);
  EXPECT_EQ(testi,
            (std::vector<std::string>{"+20", "2", ">=W", "I0.0", "Q0.0", "S", "SB1", "VW1"}));
}

/// Two coils behind two branches: the second branch meets the wire of the second coil.
TEST(Traccia_Forme, WiresOfOnePointThatCrossAreJoinedByADot) {
  const Tratteggio_Rete forme =
      Traccia_Forme(Impaginata("LD I0.0\nO I0.1\n= Q0.0\nS M0.0 1\nR M0.1 1\n"), {});
  ASSERT_EQ(forme.Giunti.size(), 1);
  EXPECT_EQ(forme.Giunti[0].X, margine_forme + larghezza_cella);
  EXPECT_EQ(forme.Giunti[0].Y, altezza_cella + quota_filo);
  EXPECT_NE(Come_Svg(forme, {}).find("<circle "), std::string::npos);
  // Where a wire only turns off nothing can be mistaken.
  EXPECT_TRUE(Traccia_Forme(Impaginata("LD I0.0\nO I0.1\n= Q0.0\n"), {}).Giunti.empty());
}

TEST(Traccia_Forme, NoUprightWireIsDrawnTwice) {
  const Tratteggio_Rete forme =
      Traccia_Forme(Impaginata("LD I0.0\nO I0.1\n= Q0.0\nS M0.0 1\nR M0.1 1\n"), {});
  const auto diritta = [&](double x) {
    return std::ranges::count_if(forme.Tratti, [x](const Asta& asta) {
      return asta.Riquadro < 0 && asta.X1 == x && asta.X2 == x;
    });
  };
  EXPECT_EQ(diritta(margine_forme), 1);
  EXPECT_EQ(diritta(margine_forme + larghezza_cella), 1);
}

TEST(Traccia_Forme, ABoxStaysInItsRowsAndNamesItsOperands) {
  const Disegno disegno = Impaginata("LD I0.0\nMOVW AIW0 VW2\nLD I0.1\n= Q0.0\n");
  const Tratteggio_Rete forme = Traccia_Forme(
      disegno, [](const std::string& operando) { return operando == "AIW0" ? "Pos" : ""; });
  ASSERT_EQ(forme.Cornici.size(), 1);
  const Cornice& scatola = forme.Cornici[0];
  const double fondo = scatola.Y + scatola.Altezza;
  EXPECT_LT(fondo, 2 * altezza_cella);
  const auto trova = [&](const char* testo) {
    return *std::ranges::find(forme.Scritte, testo, &Scritta::Testo);
  };
  const Scritta nome = trova("Pos");
  EXPECT_EQ(nome.X, trova("AIW0").X);
  EXPECT_LT(nome.Y, trova("AIW0").Y);
  EXPECT_LT(trova("AIW0").Y, trova("VW2").Y);
  EXPECT_GT(nome.Y, trova("EN").Y + 12);
}

TEST(Traccia_Forme, ABoxNamesItsOperandsByWhatBecomesOfThem) {
  const auto piedini = [](const std::string& riga) {
    std::string nomi;
    for (const Scritta& scritta : Traccia_Forme(Impaginata("LD I0.0\n" + riga + "\n"), {}).Scritte)
      if (scritta.Stile == Stile_Scritta::Piedino) nomi += scritta.Testo + " ";
    return nomi;
  };
  EXPECT_EQ(piedini("TON T37 +10"), "IN PT ");
  EXPECT_EQ(piedini("BIR IB0 VB0"), "EN OUT IN ");
  EXPECT_EQ(piedini("+I VW0 VW2"), "EN IN2=OUT IN1 ");
  EXPECT_EQ(piedini("/D VD0 VD2"), "EN IN2=OUT IN1 ");
  EXPECT_EQ(piedini("DECB VB0"), "EN IN=OUT ");
  EXPECT_EQ(piedini("INCD VD0"), "EN IN=OUT ");
  EXPECT_EQ(piedini("XORD AC0 AC1"), "EN OUT IN ");
}

TEST(Come_Svg, LiveWiresHaveTheirClass) {
  const Disegno disegno = Impaginata("LD I0.0\n= Q0.0\n");
  const Tratteggio_Rete forme = Traccia_Forme(disegno, {});
  EXPECT_EQ(Come_Svg(forme, {}).find("vivo"), std::string::npos);
  EXPECT_NE(Come_Svg(forme, {true, true}).find("vivo"), std::string::npos);
}

}  // namespace tavorno::prova
