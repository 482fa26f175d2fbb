// SPDX-License-Identifier: GPL-3.0-or-later
// What a user does to a diagram, without a window.
#include "trace/diagram.h"

#include "run_bed.h"
#include "trace/drawing.h"

namespace tavorno::prova {
namespace {

using Cursore = Diagramma_Tempi::Cursore;

class Diagram : public Banco_Tracce {
 public:
  void SetUp() override {
    for (const char* nome : {"Q0.0", "VW0", "I0.0", "M0.0"})
      diagramma.Aggiungi(Fai_Segnale(nome, nome));
    // M0.0 high 100-200 and 400-500; VW0 counts tens of ms; nothing else moves.
    for (int ms = 0; ms <= 1000; ms += 10) {
      plc.Mem_M[0].Bit[0] = (ms >= 100 && ms < 200) || (ms >= 400 && ms < 500) ? 1 : 0;
      plc.Mem_VW[0] = static_cast<std::int16_t>(ms / 10);
      registrazione.Campiona(ms, plc);
    }
    diagramma.Scegli({});
    diagramma.Larga(500);
    diagramma.Mostra_Tutto();
  }
  std::vector<std::string> Righe() const {
    std::vector<std::string> righe;
    for (const Riga_Diagramma& riga : diagramma.Righe())
      righe.push_back(riga.Titolo() ? diagramma.Gruppi()[riga.Gruppo].Nome
                                    : "  " + diagramma.Segnale_Di(riga)->Nome);
    return righe;
  }
  void Scegli(const std::string& nome) {
    const auto righe = Righe();
    diagramma.Scegli(
        static_cast<std::size_t>(std::ranges::find(righe, "  " + nome) - righe.begin()));
    ASSERT_TRUE(diagramma.Riga_Scelta()) << nome;
  }
  bool In_Vista(std::int64_t ms) const {
    const double x = diagramma.Vista.X(static_cast<double>(ms));
    return x >= 0 && x <= diagramma.Vista.Larga;
  }

  Diagramma_Tempi diagramma{registrazione};
};

using Testi = std::vector<std::string>;

TEST_F(Diagram, GroupsItsSignalsByTheirArea) {
  EXPECT_EQ(Righe(), (Testi{"Ingressi", "  I0.0", "Uscite", "  Q0.0", "Marker", "  M0.0",
                            "Memoria V e accumulatori", "  VW0"}));
  diagramma.Aggiungi(Fai_Segnale("T37", "T37"));
  EXPECT_EQ(Righe()[6], "Temporizzatori");
  EXPECT_EQ(diagramma.Scelta(), 7U) << "what comes is selected";
  diagramma.Aggiungi(Fai_Segnale("I0.0", "I0.0"));
  EXPECT_EQ(Righe().size(), 10U) << "it is there already";
  EXPECT_EQ(diagramma.Scelta(), 1U);
}

TEST_F(Diagram, RowsStandOneBelowTheOther) {
  double y = 0;
  for (const Riga_Diagramma& riga : diagramma.Righe()) {
    EXPECT_EQ(riga.Y, y);
    EXPECT_EQ(diagramma.Riga_A(riga.Y + 1)->Voce, riga.Voce);
    y += riga.Alta;
  }
  EXPECT_EQ(diagramma.Alto(), y);
  EXPECT_FALSE(diagramma.Riga_A(y + 1));
  EXPECT_FALSE(diagramma.Riga_A(-1));
}

TEST_F(Diagram, AGroupFoldsAndItsTitleIsSelected) {
  Scegli("Q0.0");
  diagramma.Piega();
  EXPECT_EQ(Righe()[2], "Uscite");
  EXPECT_EQ(Righe()[3], "Marker");
  EXPECT_EQ(diagramma.Scelta(), 2U);
  diagramma.Piega();
  EXPECT_EQ(Righe()[3], "  Q0.0");
}

TEST_F(Diagram, SignalsAndGroupsCanBeMovedAndTakenAway) {
  diagramma.Aggiungi(Fai_Segnale("I0.1", "I0.1"));
  diagramma.Sposta_Scelta(-1);
  EXPECT_EQ(Righe()[1], "  I0.1");
  EXPECT_EQ(diagramma.Scelta(), 1U);
  diagramma.Sposta_Scelta(-1);
  EXPECT_EQ(Righe()[1], "  I0.1") << "not out of its group";
  diagramma.Scegli(0);
  diagramma.Sposta_Scelta(1);
  EXPECT_EQ(Righe()[0], "Uscite");
  EXPECT_EQ(Righe()[2], "Ingressi");
  EXPECT_EQ(diagramma.Scelta(), 2U);
  diagramma.Togli_Scelta();
  EXPECT_EQ(Righe()[2], "Marker");
  EXPECT_FALSE(registrazione.Cerca("I0.0")) << "it costs nothing any more";
  Scegli("Q0.0");
  diagramma.Togli_Scelta();
  EXPECT_EQ(Righe()[0], "Marker") << "the group goes with its last signal";
}

TEST_F(Diagram, ShownAnewKeepsWhatIsStillShown) {
  diagramma.Mostra_Solo({Fai_Segnale("M0.0", "M0.0"), Fai_Segnale("C1", "C1")});
  EXPECT_EQ(Righe(), (Testi{"Marker", "  M0.0", "Contatori", "  C1"}));
  EXPECT_FALSE(registrazione.Cerca("Q0.0"));
  EXPECT_EQ(registrazione.Quando(*registrazione.Cerca("M0.0")).Cambi(), 5U);
  EXPECT_EQ(diagramma.Mostrati().size(), 2U);
}

TEST_F(Diagram, AValueIsACurveOrBoxes) {
  Scegli("VW0");
  EXPECT_EQ(diagramma.Voce(*diagramma.Riga_Scelta())->Come, Forma::Valori);
  const double prima = diagramma.Alto();
  diagramma.Cambia_Forma();
  EXPECT_EQ(diagramma.Voce(*diagramma.Riga_Scelta())->Come, Forma::Curva);
  EXPECT_GT(diagramma.Alto(), prima);
  Scegli("M0.0");
  diagramma.Cambia_Forma();
  EXPECT_EQ(diagramma.Voce(*diagramma.Riga_Scelta())->Come, Forma::Bit);
}

// ---- time ---------------------------------------------------------------------------------------

TEST_F(Diagram, ZoomKeepsTheMomentUnderTheMouse) {
  const double ms = diagramma.Vista.Ms(123);
  for (const double fattore : {0.5, 0.25, 4.0, 1.7}) {
    diagramma.Zoom(fattore, 123);
    EXPECT_NEAR(diagramma.Vista.Ms(123), ms, 1e-6);
  }
}

TEST_F(Diagram, ZoomGoesFromAnHourToAScan) {
  for (int n = 0; n < 60; ++n) diagramma.Zoom(2, 250);
  EXPECT_GE(diagramma.Vista.A() - diagramma.Vista.Da, 3'600'000);
  for (int n = 0; n < 60; ++n) diagramma.Zoom(0.5, 250);
  EXPECT_LE(diagramma.Vista.A() - diagramma.Vista.Da, 3);
}

TEST_F(Diagram, LiveFollowsThePresentUntilSomebodyLooksElsewhere) {
  diagramma.In_Diretta = true;
  diagramma.Vista.Per_Punto = 1;
  diagramma.Segui();
  EXPECT_TRUE(In_Vista(1000));
  EXPECT_FALSE(In_Vista(400));
  registrazione.Campiona(5000, plc);
  diagramma.Segui();
  EXPECT_TRUE(In_Vista(5000));
  diagramma.Sposta(-1000);
  EXPECT_FALSE(diagramma.In_Diretta);
  const double da = diagramma.Vista.Da;
  registrazione.Campiona(9000, plc);
  diagramma.Segui();
  EXPECT_EQ(diagramma.Vista.Da, da);
  diagramma.Sposta(1e9);
  EXPECT_TRUE(In_Vista(9000)) << "nobody gets lost where nothing is";
  diagramma.Sposta(-1e9);
  EXPECT_TRUE(In_Vista(0));
}

TEST_F(Diagram, AllIsSeen) {
  EXPECT_TRUE(In_Vista(0) && In_Vista(1000));
  EXPECT_LT(diagramma.Vista.Per_Punto, 2.5);
}

// ---- cursors ------------------------------------------------------------------------------------

TEST_F(Diagram, TheCursorGoesFromEdgeToEdgeOfTheSelectedSignal) {
  Scegli("M0.0");
  diagramma.Metti(Cursore::A, 0);
  std::vector<std::int64_t> posti;
  while (diagramma.Al_Fronte(1)) posti.push_back(*diagramma.A);
  EXPECT_EQ(posti, (std::vector<std::int64_t>{100, 200, 400, 500}));
  posti.clear();
  while (diagramma.Al_Fronte(-1)) posti.push_back(*diagramma.A);
  EXPECT_EQ(posti, (std::vector<std::int64_t>{400, 200, 100}));
  EXPECT_FALSE(diagramma.B);
}

TEST_F(Diagram, WithoutASelectionAllThatIsSeenCounts) {
  diagramma.Metti(Cursore::A, 100);
  EXPECT_TRUE(diagramma.Al_Fronte(1));
  EXPECT_EQ(diagramma.A, 110) << "the word counts on";
  Scegli("VW0");
  diagramma.Piega();
  diagramma.Scegli({});
  EXPECT_TRUE(diagramma.Al_Fronte(1));
  EXPECT_EQ(diagramma.A, 200) << "but not in a folded group";
}

TEST_F(Diagram, AnEdgeOutOfSightIsBroughtIntoIt) {
  Scegli("M0.0");
  diagramma.Vista.Per_Punto = 0.1;
  diagramma.Vista.Da = 0;
  diagramma.Metti(Cursore::A, 200);
  EXPECT_TRUE(diagramma.Al_Fronte(1));
  EXPECT_TRUE(In_Vista(400));
}

TEST_F(Diagram, ACursorSnapsToTheEdgesOfItsRow) {
  Scegli("M0.0");
  const auto riga = diagramma.Riga_Scelta();
  const double x = diagramma.Vista.X(200);
  EXPECT_EQ(diagramma.Aggancia(x + 4, riga, 6), 200);
  EXPECT_EQ(diagramma.Aggancia(x - 5, riga, 6), 200);
  EXPECT_NE(diagramma.Aggancia(x + 9, riga, 6), 200);
  EXPECT_NE(diagramma.Aggancia(x + 4, {}, 6), 200) << "there is no row";
  EXPECT_NE(diagramma.Aggancia(x + 4, riga, 0), 200) << "it need not";
}

TEST_F(Diagram, TwoCursorsShowTwoValues) {
  Scegli("VW0");
  const auto riga = *diagramma.Riga_Scelta();
  EXPECT_EQ(diagramma.Valore_A(riga, Cursore::A), "100") << "the present";
  diagramma.Metti(Cursore::A, 55);
  diagramma.Metti(Cursore::B, 777);
  EXPECT_EQ(diagramma.Valore_A(riga, Cursore::A), "5");
  EXPECT_EQ(diagramma.Valore_A(riga, Cursore::B), "77");
  EXPECT_EQ(diagramma.Attivo, Cursore::B);
  diagramma.Passo_Cursore(-10);
  EXPECT_EQ(diagramma.B, 767);
  diagramma.Metti(Cursore::B, 99999);
  EXPECT_EQ(diagramma.B, 1000) << "not into the future";
  diagramma.Togli_Cursori();
  EXPECT_FALSE(diagramma.A || diagramma.B);
}

// ---- search and trigger -------------------------------------------------------------------------

Condizione Cosa(const std::string& testo) {
  std::string errore;
  return *Leggi_Condizione(testo, {}, errore);
}

TEST_F(Diagram, ASearchGoesFromTheCursor) {
  diagramma.Metti(Cursore::A, 0);
  EXPECT_TRUE(diagramma.Cerca(Cosa("M0.0 scende e VW0 > 30"), 1));
  EXPECT_EQ(diagramma.A, 500);
  EXPECT_EQ(diagramma.Trovato, 500);
  EXPECT_FALSE(diagramma.Cerca(Cosa("M0.0 scende e VW0 > 30"), 1));
  EXPECT_EQ(diagramma.A, 500) << "it stays";
  EXPECT_TRUE(diagramma.Cerca(Cosa("M0.0 sale"), -1));
  EXPECT_EQ(diagramma.A, 400);
  EXPECT_FALSE(diagramma.Cerca(Cosa("C3 sale"), 1));
  EXPECT_TRUE(registrazione.Cerca("C3")) << "from now on it is recorded";
}

TEST_F(Diagram, ATriggerStopsTheWindowWhereItGoesOff) {
  diagramma.Vista.Per_Punto = 1;
  diagramma.Arma(Cosa("M0.0 sale"));
  EXPECT_TRUE(diagramma.Armato());
  EXPECT_TRUE(diagramma.In_Diretta);
  plc.Mem_M[0].Bit[0] = 0;
  registrazione.Campiona(1100, plc);
  diagramma.Segui();
  EXPECT_TRUE(diagramma.Armato()) << "what came before does not count";
  plc.Mem_M[0].Bit[0] = 1;
  registrazione.Campiona(1200, plc);
  registrazione.Campiona(1900, plc);
  diagramma.Segui();
  EXPECT_FALSE(diagramma.Armato());
  EXPECT_EQ(diagramma.Scattato, 1200);
  EXPECT_FALSE(diagramma.In_Diretta);
  EXPECT_TRUE(In_Vista(1200));
  const double da = diagramma.Vista.Da;
  registrazione.Campiona(9000, plc);
  diagramma.Segui();
  EXPECT_EQ(diagramma.Vista.Da, da);
}

// ---- the drawing --------------------------------------------------------------------------------

using Tipo = Pezzo_Disegno::Tipo;

std::size_t Conta(const Disegno_Tempi& disegno, const std::string& testo) {
  return static_cast<std::size_t>(
      std::ranges::count_if(disegno, [&](const auto& pezzo) { return pezzo.Testo == testo; }));
}

TEST_F(Diagram, TheDrawingNamesSignalsGroupsAndTimes) {
  diagramma.Metti(Cursore::A, 100);
  const Misura_Disegno misura{.Larga = 800, .Alta = 500, .Nomi = 300};
  const Disegno_Tempi disegno = Disegna(diagramma, misura);
  for (const char* testo : {"I0.0", "M0.0", "Uscite  (1)", "A  0,100 s", "0,4 s", "in A"})
    EXPECT_EQ(Conta(disegno, testo), 1U) << testo;
  const std::string svg = Come_Svg(disegno, misura, "una <prova>");
  EXPECT_THAT(svg, ::testing::HasSubstr(">una &lt;prova&gt;</text>"));
  EXPECT_THAT(svg, ::testing::HasSubstr(">Uscite  (1)</text>"));
}

TEST_F(Diagram, ShadedHighsStandWhereTheBitIsHigh) {
  const Misura_Disegno misura{.Larga = 800, .Alta = 500, .Nomi = 300};
  const Disegno_Tempi disegno = Disegna(diagramma, misura);
  const auto alti = std::ranges::find_if(disegno, [](const Pezzo_Disegno& pezzo) {
    return pezzo.Cosa == Tipo::Rettangoli && pezzo.Tinta == Tinta_Tempi::Memoria_Chiaro;
  });
  ASSERT_NE(alti, disegno.end());
  ASSERT_EQ(alti->Punti.size(), 4U) << "two of them";
  for (const auto& [posto, ms] : {std::pair{0U, 100}, {1U, 200}, {2U, 400}, {3U, 500}})
    EXPECT_NEAR(alti->Punti[posto].X, 300 + diagramma.Vista.X(ms), 0.01);
}

TEST_F(Diagram, NothingIsDrawnBesideItsSheet) {
  diagramma.Metti(Cursore::A, 450);
  for (const double per_punto : {0.005, 0.3, 7.0, 1000.0}) {
    for (const double da : {-5000.0, 0.0, 450.0, 999.0}) {
      diagramma.Vista.Per_Punto = per_punto;
      diagramma.Vista.Da = da;
      const Misura_Disegno misura{.Larga = 800, .Alta = 500, .Nomi = 300};
      for (const Pezzo_Disegno& pezzo : Disegna(diagramma, misura)) {
        for (const Punto_Disegno& punto : pezzo.Punti) {
          ASSERT_GE(punto.X, 0) << per_punto << ' ' << da;
          ASSERT_LE(punto.X, misura.Larga + 0.01) << per_punto << ' ' << da;
        }
      }
    }
  }
}

TEST_F(Diagram, ManyEdgesAreAsManyStrokesAsPixels) {
  for (int ms = 1001; ms < 200'000; ++ms) {
    plc.Mem_M[0].Bit[0] ^= 1U;
    registrazione.Campiona(ms, plc);
  }
  diagramma.Mostra_Tutto();
  const Misura_Disegno misura{.Larga = 800, .Alta = 500, .Nomi = 300};
  std::size_t punti = 0;
  for (const Pezzo_Disegno& pezzo : Disegna(diagramma, misura)) punti += pezzo.Punti.size();
  EXPECT_LT(punti, 6000U);
}

}  // namespace
}  // namespace tavorno::prova
