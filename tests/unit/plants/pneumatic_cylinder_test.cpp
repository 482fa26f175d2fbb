// SPDX-License-Identifier: GPL-3.0-or-later
// Air, valves and manual overrides, on every cylinder of every bench.
#include "pneumatic_bed.h"

namespace tavorno::prova {

struct PneumaticCylinder : Ogni_Cilindro {
  Banco_Pneumatico& macchina = banco.Macchina;
  const int n = riga.Numero;
};

TEST_P(PneumaticCylinder, StartsRetractedWithItsValveReset) {
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Reset);
  EXPECT_EQ(macchina.Stato(n), Banco_Pneumatico::Arretrato);
  EXPECT_FALSE(macchina.Valvola(n));
  EXPECT_EQ(Micro(), "10");
  EXPECT_EQ(Spie(), "imgLON imgLOF");
  EXPECT_EQ(banco.Linea(Linee_Piu()), rosso);
  EXPECT_EQ(banco.Linea(Linee_Meno()), rosso);
}

TEST_P(PneumaticCylinder, AirOnARetractedCylinderStartsNothing) {
  Ascolto ascolto(macchina);
  macchina.Aria("1");
  EXPECT_EQ(banco.Linea(Linee_Piu()), rosso);
  EXPECT_EQ(banco.Linea(Linee_Meno()), verde);
  Tick(50);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_TRUE(ascolto.Sentiti.empty());
}

TEST_P(PneumaticCylinder, AirOnAnExtendedCylinderStartsNothing) {
  Fuori();
  Tick(34);
  ASSERT_EQ(Micro(), "01");
  macchina.Aria("0");
  Ascolto ascolto(macchina);
  macchina.Aria("1");
  Tick(50);
  EXPECT_TRUE(ascolto.Sentiti.empty());
  EXPECT_EQ(banco.Linea(Linee_Piu()), verde);
  EXPECT_EQ(banco.Linea(Linee_Meno()), rosso);
}

TEST_P(PneumaticCylinder, TheSetCoilMovesTheValveAndThePiston) {
  Fuori();
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Set);
  EXPECT_TRUE(macchina.Valvola(n));
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(1)");
  EXPECT_EQ(banco.Linea(Linee_Piu()), verde);
  EXPECT_EQ(banco.Linea(Linee_Meno()), rosso);
  EXPECT_EQ(Micro(), "10") << "the switch opens with the first tick";
  Tick();
  EXPECT_EQ(Micro(), "00");
}

TEST_P(PneumaticCylinder, AnEmptyOrOtherTextIsNotEnergised) {
  macchina.Aria("1");
  for (const char* testo : {"", "0", "2", "11"}) {
    macchina.Set_Valvola(n, testo);
    EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Reset) << testo;
    EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(0)") << testo;
  }
}

TEST_P(PneumaticCylinder, ABistableValveStaysAndAMonostableReturnsWhenTheCoilDrops) {
  Fuori();
  Tick(5);
  banco.Eccita({riga.Aria});
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(0)");
  EXPECT_EQ(macchina.Valvola(n), Bistabile());
  EXPECT_EQ(banco.Left(riga.Valvola), Bistabile() ? riga.Left_Set : riga.Left_Reset);
  EXPECT_EQ(banco.Linea(Linee_Piu()), Bistabile() ? verde : rosso);
  EXPECT_EQ(banco.Linea(Linee_Meno()), Bistabile() ? rosso : verde);
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + (Bistabile() ? 120 : 80));
}

TEST_P(PneumaticCylinder, TheResetCoilIsTheMirrorImage) {
  if (!Bistabile()) return;
  Fuori();
  Tick(34);
  Dentro();
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Reset);
  EXPECT_FALSE(macchina.Valvola(n));
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(0)");
  EXPECT_EQ(banco.Vede(riga.Cmd_Reset), "imgP1(2)");
  EXPECT_EQ(banco.Linea(Linee_Piu()), rosso);
  EXPECT_EQ(banco.Linea(Linee_Meno()), verde);
  Tick();
  EXPECT_EQ(Posizione(), riga.Esteso - 20);
  banco.Eccita({riga.Aria});
  EXPECT_EQ(banco.Vede(riga.Cmd_Reset), "imgP1(3)");
  Tick();
  EXPECT_EQ(Posizione(), riga.Esteso - 40);
}

TEST_P(PneumaticCylinder, WithBothCoilsOnResetWins) {
  if (!Bistabile()) return;
  banco.Eccita({riga.Aria, riga.Set, riga.Reset});
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Reset);
  EXPECT_FALSE(macchina.Valvola(n));
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(1)");
  EXPECT_EQ(banco.Vede(riga.Cmd_Reset), "imgP1(2)");
  EXPECT_EQ(banco.Linea(Linee_Meno()), verde);
  Tick(40);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(Micro(), "10");
}

TEST_P(PneumaticCylinder, AirLossStopsAStrokeBetweenTheLimits) {
  Fuori();
  Tick(10);
  macchina.Aria("0");
  EXPECT_EQ(banco.Linea(Linee_Piu()), rosso);
  EXPECT_EQ(banco.Linea(Linee_Meno()), rosso);
  Tick(50);
  EXPECT_EQ(Posizione(), riga.Arretrato + 200);
  EXPECT_EQ(Micro(), "00");
  EXPECT_EQ(Spie(), "imgLOF imgLOF");
  EXPECT_EQ(macchina.Stato(n), Banco_Pneumatico::In_Moto);
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Set);
}

TEST_P(PneumaticCylinder, ReturningAirResumesTheStrokeWithoutAPulse) {
  Fuori();
  Tick(10);
  macchina.Aria("0");
  Tick(3);
  macchina.Aria("1");
  EXPECT_EQ(banco.Linea(Linee_Piu()), verde);
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + 220);
  Tick(23);
  EXPECT_EQ(Micro(), "01");
}

TEST_P(PneumaticCylinder, ReturningAirResumesARetractionToo) {
  Fuori();
  Tick(34);
  Dentro();
  Tick(10);
  macchina.Aria("0");
  Tick(3);
  ASSERT_EQ(Posizione(), riga.Esteso - 200);
  macchina.Aria("1");
  Tick(24);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(Micro(), "10");
}

TEST_P(PneumaticCylinder, APulseWithoutAirMovesTheValveOnly) {
  macchina.Set_Valvola(n, "1");
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Set);
  EXPECT_EQ(banco.Linea(Linee_Piu()), rosso);
  if (Bistabile()) macchina.Set_Valvola(n, "0");
  Tick(50);
  EXPECT_EQ(Posizione(), riga.Arretrato);
  EXPECT_EQ(Micro(), "10");
  macchina.Aria("1");
  EXPECT_EQ(banco.Linea(Linee_Piu()), verde);
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + 20);
}

TEST_P(PneumaticCylinder, ALetWithTheCoilStillOnRunsOneTickAtTheLimit) {
  Fuori();
  Tick(34);
  ASSERT_EQ(Micro(), "01");
  Ascolto ascolto(macchina);
  Fuori();
  EXPECT_EQ(macchina.Stato(n), Banco_Pneumatico::Esteso);
  Tick();
  EXPECT_EQ(ascolto.Sentiti.size(), 2U * static_cast<unsigned>(Avviati()));
  EXPECT_EQ(Micro(), "01");
  EXPECT_EQ(Spie(), "imgLOF imgLON");
  EXPECT_EQ(Posizione(), riga.Esteso);
  EXPECT_EQ(macchina.Stato(n), Banco_Pneumatico::Esteso);
  Tick(5);
  EXPECT_EQ(ascolto.Sentiti.size(), 2U * static_cast<unsigned>(Avviati()));
}

TEST_P(PneumaticCylinder, AtTheFastestSpeedBothSwitchesChangeInOneEvent) {
  if (!riga.Schema->UpDP) return;
  macchina.Regola("ME_Speed", 10);
  macchina.Regola("UpDP(" + std::to_string(2 * n) + ")", 9);
  std::string prima = macchina.Stato_I();
  Fuori();
  Ascolto ascolto(macchina);
  Tick();
  std::string dopo = prima;
  dopo[static_cast<std::size_t>(riga.Ingresso_Meno - 1)] = '0';
  dopo[static_cast<std::size_t>(riga.Ingresso_Piu - 1)] = '1';
  EXPECT_EQ(ascolto.Sentiti, (std::vector<std::string>{dopo, dopo}));
}

TEST_P(PneumaticCylinder, ManualSetActsWhileHeldOrForGood) {
  macchina.Aria("1");
  EXPECT_TRUE(macchina.Premi(riga.Cmd_Set));
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(1)");
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Set);
  Tick(5);
  EXPECT_EQ(Posizione(), riga.Arretrato + 100);
  EXPECT_TRUE(macchina.Rilascia(riga.Cmd_Set));
  EXPECT_EQ(banco.Vede(riga.Cmd_Set), "imgP1(0)");
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + (Bistabile() ? 120 : 80));
}

TEST_P(PneumaticCylinder, ManualResetActsOnTheBistableValveOnly) {
  if (!Bistabile()) {
    EXPECT_EQ(macchina.Disegno.Trova("cmdV1b"), nullptr);
    return;
  }
  Fuori();
  Tick(34);
  EXPECT_TRUE(macchina.Premi(riga.Cmd_Reset));
  EXPECT_EQ(banco.Vede(riga.Cmd_Reset), "imgP1(2)");
  EXPECT_EQ(banco.Left(riga.Valvola), riga.Left_Reset);
  EXPECT_TRUE(macchina.Rilascia(riga.Cmd_Reset));
  EXPECT_EQ(banco.Vede(riga.Cmd_Reset), "imgP1(3)");
  Tick(34);
  EXPECT_EQ(Micro(), "10");
}

TEST_P(PneumaticCylinder, StopOfTheCpuLeavesItStandingAndTheNextAirMovesItToItsValve) {
  Fuori();
  Tick(10);
  // the two output bytes fall one after the other
  macchina.Stato_Q("00000000" + macchina.Stato_Q().substr(8));
  macchina.Stato_Q("0000000000000000");
  EXPECT_EQ(macchina.Valvola(n), Bistabile());
  EXPECT_FALSE(macchina.Aria());
  Tick(20);
  EXPECT_EQ(Posizione(), riga.Arretrato + 200);
  EXPECT_EQ(Micro(), "00");
  macchina.Aria("1");
  Tick();
  EXPECT_EQ(Posizione(), riga.Arretrato + (Bistabile() ? 220 : 180));
}

TEST_P(PneumaticCylinder, DoubleClicksDoNothing) {
  macchina.Aria("1");
  const auto prima = Aspetto(macchina);
  for (const Figura& figura : macchina.Disegno)
    EXPECT_FALSE(macchina.Doppio_Clic(figura.Nome)) << figura.Nome;
  EXPECT_EQ(Aspetto(macchina), prima);
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticCylinder, ::testing::ValuesIn(cilindri), Nome_Cilindro);

TEST(PneumaticCylinders, OneThatTheBenchLacksIsFatal) {
  Banco_Aria banco(Schema_CicloQ);
  EXPECT_ANY_THROW(banco.Macchina.Set_Valvola(2, "1"));
  EXPECT_ANY_THROW(banco.Macchina.Reset_Valvola(-1, "1"));
}

}  // namespace tavorno::prova
