// SPDX-License-Identifier: GPL-3.0-or-later
// A stroke tick by tick. The numbers are worked out by hand: 660 twips, in the benches of one and
// two cylinders, are 33 steps of 20, and the piston that lands on its limit needs one more tick;
// 670 twips are 34 steps, of which the last would go beyond.
#include "pneumatic_bed.h"

namespace tavorno::prova {

struct PneumaticStroke : Ogni_Cilindro {
  /// A whole stroke: at every tick one step, both switches open, until tick `quanti` closes the
  /// far one. Between two ticks nothing moves.
  void Verifica_Corsa(bool esce, float passo, int quanti) {
    const float da = esce ? riga.Arretrato : riga.Esteso;
    const float a = esce ? riga.Esteso : riga.Arretrato;
    ASSERT_EQ(Posizione(), da);
    if (esce)
      Fuori();
    else
      Dentro();
    for (int n = 1; n < quanti; ++n) {
      const float prima = Posizione();
      banco.Tempo.Avanza(riga.Periodo - 1);
      EXPECT_EQ(Posizione(), prima) << "tick " << n;
      banco.Tempo.Avanza(1);
      EXPECT_EQ(Posizione(), da + (esce ? passo : -passo) * static_cast<float>(n)) << "tick " << n;
      EXPECT_EQ(Micro(), "00") << "tick " << n;
      EXPECT_EQ(Spie(), "imgLOF imgLOF") << "tick " << n;
      EXPECT_EQ(banco.Macchina.Stato(riga.Numero), Banco_Pneumatico::In_Moto) << "tick " << n;
    }
    Tick();
    EXPECT_EQ(Posizione(), a);
    EXPECT_EQ(Micro(), esce ? "01" : "10");
    EXPECT_EQ(Spie(), esce ? "imgLOF imgLON" : "imgLON imgLOF");
    EXPECT_EQ(banco.Macchina.Stato(riga.Numero),
              esce ? Banco_Pneumatico::Esteso : Banco_Pneumatico::Arretrato);
    Ascolto ascolto(banco.Macchina);
    Tick(3);
    EXPECT_EQ(Posizione(), a);
    EXPECT_TRUE(ascolto.Sentiti.empty()) << "the timer has stopped";
  }

  void Velocita(double velocita, double regolatori) {
    banco.Macchina.Regola("ME_Speed", velocita);
    for (int n = 0; n < 8; ++n)
      banco.Macchina.Regola("UpDP(" + std::to_string(n) + ")", regolatori);
  }
};

TEST_P(PneumaticStroke, TakesThirtyFourTicksAtTheSlowestSpeed) {
  Verifica_Corsa(true, 20, 34);
  Verifica_Corsa(false, 20, 34);
}

TEST_P(PneumaticStroke, TakesOneTickOrFourAtTheFastestSpeed) {
  Velocita(10, 9);
  if (riga.Schema->UpDP) {
    Verifica_Corsa(true, 1800, 1);
    Verifica_Corsa(false, 1800, 1);
  } else {
    Verifica_Corsa(true, 200, 4);
    Verifica_Corsa(false, 200, 4);
  }
}

TEST_P(PneumaticStroke, TakesSevenTicksAtSpeedFive) {
  Velocita(5, 1);
  Verifica_Corsa(true, 100, 7);
  Verifica_Corsa(false, 100, 7);
}

TEST_P(PneumaticStroke, LandingOnTheLimitNeedsOneMoreTick) {
  // 335 of 670 and 330 of 660 twips: the second tick lands exactly on the limit
  const float corsa = riga.Esteso - riga.Arretrato;
  banco.Macchina.Regola("ME_Speed", static_cast<double>(corsa) / 2 / 20);
  Fuori();
  Tick(2);
  EXPECT_EQ(Posizione(), riga.Esteso);
  EXPECT_EQ(Micro(), "00");
  EXPECT_EQ(banco.Macchina.Stato(riga.Numero), Banco_Pneumatico::In_Moto);
  Tick();
  EXPECT_EQ(Posizione(), riga.Esteso);
  EXPECT_EQ(Micro(), "01");
  Dentro();
  Tick(2);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(Micro(), "00");
  Tick();
  EXPECT_EQ(Micro(), "10");
}

TEST_P(PneumaticStroke, EveryTickIsHeardTwice) {
  Fuori();
  Ascolto ascolto(banco.Macchina);
  Tick();
  ASSERT_EQ(ascolto.Sentiti.size(), 2U * static_cast<unsigned>(Avviati()));
  EXPECT_EQ(ascolto.Sentiti.back(), banco.Macchina.Stato_I());
  ascolto.Sentiti.clear();
  Tick(33);
  EXPECT_EQ(ascolto.Sentiti.size(), 66U);
}

TEST_P(PneumaticStroke, AReversalReturnsFromWhereThePistonIs) {
  Fuori();
  Tick(10);
  ASSERT_EQ(Posizione(), riga.Arretrato + 200);
  Dentro();
  EXPECT_EQ(Posizione(), riga.Arretrato + 200);
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + 180);
  Tick(9);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(Micro(), "00");
  Tick();
  EXPECT_EQ(Micro(), "10");
}

TEST_P(PneumaticStroke, AReversalKeepsTheTicksWhereTheyWere) {
  Fuori();
  banco.Tempo.Avanza(riga.Periodo + riga.Periodo / 2);
  Dentro();
  banco.Tempo.Avanza(riga.Periodo / 2 - 1);
  EXPECT_EQ(Posizione(), riga.Arretrato + 20);
  banco.Tempo.Avanza(1);
  EXPECT_EQ(Posizione(), riga.Arretrato);
}

TEST_P(PneumaticStroke, OtherCylindersStandStill) {
  const auto prima = banco.Macchina.Stato_I();
  Fuori();
  Tick(34);
  std::string atteso = prima;
  atteso[static_cast<std::size_t>(riga.Ingresso_Meno - 1)] = '0';
  atteso[static_cast<std::size_t>(riga.Ingresso_Piu - 1)] = '1';
  EXPECT_EQ(banco.Macchina.Stato_I(), atteso);
  for (const Prova_Cilindro& altro : cilindri) {
    if (altro.Schema == riga.Schema && altro.Numero != riga.Numero) {
      EXPECT_EQ(banco.Left(altro.Pistone), altro.Arretrato);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticStroke, ::testing::ValuesIn(cilindri), Nome_Cilindro);

TEST(PneumaticStrokes, AllCylindersOfABenchMoveTogether) {
  Banco_Aria banco(Schema_Pist_4);
  banco.Eccita({9, 1, 3, 5, 7});
  banco.Tempo.Avanza(33 * 80);
  EXPECT_EQ(banco.Macchina.Stato_I(), "0000000000101000");
  banco.Tempo.Avanza(80);
  EXPECT_EQ(banco.Macchina.Stato_I(), "0101010100101000");
}

// ---- regulators ---------------------------------------------------------------------------------

class PneumaticRegulator : public ::testing::TestWithParam<int> {};

TEST_P(PneumaticRegulator, SetsItsOwnStepAndShowsIt) {
  const int indice = GetParam();
  const std::string numero = "(" + std::to_string(indice) + ")";
  Banco_Aria banco(Schema_CicloQ);
  Banco_Pneumatico& macchina = banco.Macchina;
  const Figura& etichetta = macchina.Disegno["EtP" + numero];
  EXPECT_EQ(etichetta.Caption(), "1");
  EXPECT_EQ(macchina.Disegno["UpDP" + numero].ToolTip(), "Regolatore Pressione");
  for (int valore = 1; valore <= 9; ++valore) {
    EXPECT_TRUE(macchina.Regola("UpDP" + numero, valore));
    EXPECT_EQ(etichetta.Caption(), std::to_string(valore));
    for (int altro = 0; altro < 4; ++altro)
      EXPECT_EQ(macchina.Passo(altro), altro == indice ? static_cast<float>(20 * valore) : 20.0F);
  }
  macchina.Regola("UpDP" + numero, 10);
  EXPECT_EQ(etichetta.Caption(), "9");
  macchina.Regola("UpDP" + numero, 0);
  EXPECT_EQ(etichetta.Caption(), "1");
  const Regolatore* regolatore = macchina.Trova_Regolatore("UpDP" + numero);
  ASSERT_NE(regolatore, nullptr);
  EXPECT_EQ(regolatore->Passo, 1);
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticRegulator, ::testing::Range(0, 4));

TEST(PneumaticRegulators, StepsAreRegulatorTimesTwentyTimesAirPressure) {
  Banco_Aria banco(Schema_CicloQ);
  Banco_Pneumatico& macchina = banco.Macchina;
  macchina.Regola("UpDP(0)", 2);
  macchina.Regola("UpDP(3)", 9);
  macchina.Regola("ME_Speed", 10);
  EXPECT_EQ(macchina.Passo(0), 400);
  EXPECT_EQ(macchina.Passo(1), 200);
  EXPECT_EQ(macchina.Passo(2), 200);
  EXPECT_EQ(macchina.Passo(3), 1800);
  macchina.Regola("UpDP(1)", 3);
  EXPECT_EQ(macchina.Passo(1), 600);
}

TEST(PneumaticRegulators, EachActsOnItsCylinderAndDirection) {
  Banco_Aria banco(Schema_CicloQ);
  for (int n = 0; n < 4; ++n) banco.Macchina.Regola("UpDP(" + std::to_string(n) + ")", n + 2);
  banco.Eccita({1, 2, 4});
  banco.Tempo.Avanza(40);
  EXPECT_EQ(banco.Left("imgPA"), 420 + 40);
  EXPECT_EQ(banco.Left("imgP2"), 2490 + 80);
  banco.Tempo.Avanza(1000);
  banco.Eccita({1, 3, 5});
  banco.Tempo.Avanza(40);
  EXPECT_EQ(banco.Left("imgPA"), 1080 - 60);
  EXPECT_EQ(banco.Left("imgP2"), 3150 - 100);
}

TEST(PneumaticRegulators, BenchOfOneCylinderHasTwo) {
  Banco_Aria banco(Schema_Pist_1);
  EXPECT_EQ(banco.Macchina.Disegno["UpDP(0)"].ToolTip(), "Velocità Pistone");
  EXPECT_TRUE(banco.Macchina.Regola("UpDP(1)", 4));
  EXPECT_EQ(banco.Macchina.Passo(0), 20);
  EXPECT_EQ(banco.Macchina.Passo(1), 80);
  EXPECT_FALSE(banco.Macchina.Regola("UpDP(2)", 4));
}

TEST(PneumaticRegulators, BenchesOfThreeAndFourHaveNone) {
  for (const Schema_Pneumatico* schema : {&Schema_Pist_3, &Schema_Pist_4, &Schema_ctr_Pist_32}) {
    Banco_Aria banco(*schema);
    EXPECT_FALSE(banco.Macchina.Regola("UpDP(0)", 2));
    EXPECT_EQ(banco.Macchina.Disegno.Trova("EtP(0)"), nullptr);
    EXPECT_TRUE(banco.Macchina.Regola("ME_Speed", 7));
    EXPECT_EQ(banco.Macchina.Passo(0), 140);
    EXPECT_EQ(banco.Macchina.Passo(5), 140);
  }
}

TEST(PneumaticRegulators, ASpeedGivenDuringAStrokeCountsFromTheNextTick) {
  Banco_Aria due(Schema_CicloQ);
  due.Eccita({1, 2, 4});
  due.Tempo.Avanza(40);
  due.Macchina.Regola("ME_Speed", 3);
  due.Tempo.Avanza(40);
  EXPECT_EQ(due.Left("imgPA"), 420 + 20 + 60);
  EXPECT_EQ(due.Left("imgP2"), 2490 + 20 + 60);
  due.Macchina.Regola("UpDP(0)", 2);
  due.Tempo.Avanza(40);
  EXPECT_EQ(due.Left("imgPA"), 500 + 120);
  EXPECT_EQ(due.Left("imgP2"), 2570 + 60);

  Banco_Aria tre(Schema_Pist_3);
  tre.Eccita({1, 2, 4, 6});
  tre.Tempo.Avanza(40);
  tre.Macchina.Regola("ME_Speed", 3);
  tre.Tempo.Avanza(40);
  EXPECT_EQ(tre.Left("imgV1"), 360 + 80);
  EXPECT_EQ(tre.Left("imgV2"), 2580 + 80);
  EXPECT_EQ(tre.Left("imgV3"), 4800 + 80);
}

}  // namespace tavorno::prova
