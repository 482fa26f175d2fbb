// SPDX-License-Identifier: GPL-3.0-or-later
#include "cpu.h"

namespace tavorno::prova {

namespace {

/// Run, Stop, Cont, Ciclo, Step, CmdStep, cmdRest, and the page in front.
std::string Stato(const Plc& plc) {
  const Comandi& c = plc.Attivi;
  std::string testo;
  for (const bool attivo :
       {c.mnuPlcRun, c.mnuPlcStop, c.mnuPlcCont, c.mnuPlcCiclo, c.mnuPlcStep, c.CmdStep, c.cmdRest})
    testo += attivo ? '1' : '0';
  return testo + " " + std::to_string(c.SSTb3);
}

const std::vector<std::string> tre_righe = {"LD SM0.0", "= Q0.0", "NOP"};

}  // namespace

/// A CPU with a program of three lines and MEND, and a log of `PC` at each yield.
class RunLoop : public Cpu {
 protected:
  RunLoop() { Carica(tre_righe); }

  /// Calls `fai` in the n-th yield, from 1 on.
  template <class Fai>
  void Alla_Cessione(int n, Fai fai, int righe = 1) {
    cessione = plc.Hook.Ascolta_Cedi(
        [this, n, fai] {
          passi.push_back(plc.PC);
          if (static_cast<int>(passi.size()) == n) fai();
          if (passi.size() > 1000) plc.Ferma = -1;  // no test hangs
        },
        righe);
  }

  std::vector<int> passi;
  Iscrizione cessione;
};

// ---- commands that can be given -----------------------------------------------------------------

TEST_F(RunLoop, CommandsBeforeTheFirstRun) {
  EXPECT_EQ(Stato(plc), "1011100 0");
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_EQ(plc.PC, 0);
}

TEST_F(RunLoop, CommandsDuringARunInCont) {
  std::string dentro;
  Alla_Cessione(1, [&] {
    dentro = Stato(plc);
    plc.mnuPlcStop();
  });
  plc.mnuPlcRun();
  EXPECT_EQ(dentro, "0110000 0");
  EXPECT_EQ(Stato(plc), "1011100 0");
}

TEST_F(RunLoop, CommandsDuringARunInCiclo) {
  std::string dentro;
  Alla_Cessione(1, [&] {
    dentro = Stato(plc);
    plc.mnuPlcStop();
  });
  plc.mnuPlcCiclo();
  EXPECT_EQ(Stato(plc), "1011100 1");
  plc.mnuPlcRun();
  EXPECT_EQ(dentro, "0101100 1");
  EXPECT_EQ(Stato(plc), "1011100 1");
}

TEST_F(RunLoop, CommandsDuringARunInStep) {
  plc.mnuPlcStep();
  EXPECT_EQ(Stato(plc), "1011100 2");
  plc.mnuPlcRun();
  EXPECT_EQ(Stato(plc), "0101110 2");
  plc.mnuPlcStop();
  EXPECT_EQ(Stato(plc), "1011100 2");
}

TEST_F(RunLoop, CommandsAtAPauseAndAfterItsResumption) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.mnuPlcRun();
  EXPECT_EQ(Stato(plc), "0101111 1");
  std::string dentro;
  Alla_Cessione(1, [&] { dentro = Stato(plc); });
  plc.cmdRest();
  EXPECT_EQ(dentro, "0101101 1");
  EXPECT_EQ(Stato(plc), "0101111 1");
}

TEST_F(RunLoop, StopAtAPauseTakesTheResumptionAway) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.mnuPlcRun();
  plc.mnuPlcStop();
  EXPECT_EQ(Stato(plc), "1011100 1");
}

// ---- Run ----------------------------------------------------------------------------------------

TEST_F(RunLoop, RunInContStartsFromLineZeroInAFirstScan) {
  plc.PC = 2;
  plc.N_Cicli = 7;
  plc.Tempo_Ciclo = 9;
  plc.Ferma = -1;
  plc.etTime = "00009";
  plc.etPc = 5;
  Alla_Cessione(1, [&] {
    EXPECT_EQ(plc.PLC_Acceso, -1);
    EXPECT_EQ(plc.N_Cicli, 0);
    EXPECT_EQ(plc.Tempo_Ciclo, 0);
    EXPECT_EQ(plc.Primo_Ciclo, -1);
    EXPECT_EQ(plc.Ferma, 0);
    EXPECT_EQ(plc.etTime, "0");
    EXPECT_EQ(plc.etPc, 0);
    EXPECT_EQ(plc.Lista_Scelta, 0);
    plc.Ferma = -1;
  });
  plc.mnuPlcRun();
  EXPECT_EQ(passi, std::vector<int>{0});
}

TEST_F(RunLoop, RunInStepLeavesTheFirstScanUnmarkedAndExecutesNothing) {
  plc.PC = 2;
  plc.Tempo_Ciclo = 9;
  Alla_Cessione(1, [] { FAIL() << "a loop was started"; });
  Run_Step();
  EXPECT_EQ(plc.PC, 0);
  EXPECT_EQ(plc.Primo_Ciclo, 0);
  EXPECT_EQ(plc.Tempo_Ciclo, 9);
  EXPECT_EQ(plc.N_Cicli, 0);
  EXPECT_EQ(plc.Ferma, 0);
  EXPECT_EQ(plc.PLC_Acceso, -1);
}

TEST_F(RunLoop, RunLetsTheFirstOutputBarSpeakAgain) {
  plc.SQ[0].INT_ON = plc.SQ[1].INT_ON = false;
  Run_Step();
  EXPECT_TRUE(plc.SQ[0].INT_ON);
  EXPECT_FALSE(plc.SQ[1].INT_ON);
}

TEST_F(RunLoop, LoopYieldsBeforeEachLineAndEndsBehindTheLineInProgress) {
  Alla_Cessione(6, [&] { plc.Ferma = -1; });
  plc.mnuPlcRun();
  EXPECT_EQ(passi, (std::vector<int>{0, 1, 2, 3, 0, 1}));
  EXPECT_EQ(plc.PC, 2);
  EXPECT_EQ(plc.PLC_Acceso, -1);
  EXPECT_TRUE(plc.T100m.Enabled());
}

TEST_F(RunLoop, StopInAYieldEndsTheLoopBehindTheLineInProgress) {
  Alla_Cessione(3, [&] { plc.mnuPlcStop(); });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 3);
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_EQ(plc.Lista_Scelta, 2);
}

TEST_F(RunLoop, RunTimeErrorEndsTheLoop) {
  Carica({"NOP", "= T5"});
  Alla_Cessione(0, [] {});
  plc.mnuPlcRun();
  EXPECT_EQ(passi, (std::vector<int>{0, 1}));
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(avvisi.size(), 1U);
}

TEST_F(RunLoop, LoopWorksWithoutAYield) {
  Carica({"NOP", "= T5"});
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 1);
}

// ---- stop conditions of Ciclo -------------------------------------------------------------------

TEST_F(RunLoop, StopAfterOneScanMarksTheLastLineThoughPcIsZero) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.Scelte.txtNC = 1;
  Alla_Cessione(0, [] {});
  plc.mnuPlcRun();
  EXPECT_EQ(passi.size(), 4U);
  EXPECT_EQ(plc.Lista_Scelta, plc.NRighe);
  EXPECT_EQ(plc.PC, 0);
  EXPECT_EQ(plc.N_Cicli, 1);
  EXPECT_EQ(plc.PLC_Acceso, -1);
  EXPECT_TRUE(plc.tim1.Enabled());
}

TEST_F(RunLoop, StopAtLineZeroComesAtTheFirstMend) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkStop = true;
  plc.Scelte.txtStop = 0;
  Alla_Cessione(0, [] {});
  plc.mnuPlcRun();
  EXPECT_EQ(passi.size(), 4U);
  EXPECT_EQ(plc.PC, 0);
  EXPECT_EQ(plc.Lista_Scelta, 0);
}

TEST_F(RunLoop, StopAtALineLeavesThatLineToBeExecuted) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkStop = true;
  plc.Scelte.txtStop = 1;
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(plc.Lista_Scelta, 1);
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[0], 0);
}

class StopAfterScans : public RunLoop, public ::testing::WithParamInterface<int> {};

TEST_P(StopAfterScans, CountsWholeScans) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkSol = true;
  plc.Scelte.txtNC = GetParam();
  Alla_Cessione(0, [] {});
  plc.mnuPlcRun();
  EXPECT_EQ(plc.N_Cicli, GetParam());
  EXPECT_EQ(passi.size(), static_cast<std::size_t>(4 * GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Some, StopAfterScans, ::testing::Values(1, 2, 5, 30));

TEST_F(RunLoop, ConditionsMeanNothingWhenTheyAreNotTicked) {
  plc.mnuPlcCiclo();
  plc.Scelte.txtStop = 1;
  plc.Scelte.txtNC = 1;
  Alla_Cessione(11, [&] { plc.Ferma = -1; });
  plc.mnuPlcRun();
  EXPECT_EQ(passi.size(), 11U);
  EXPECT_FALSE(plc.Attivi.cmdRest);
}

TEST_F(RunLoop, ConditionsMeanNothingInCont) {
  plc.Scelte.chkStop = plc.Scelte.chkSol = true;
  plc.Scelte.txtStop = 1;
  Alla_Cessione(11, [&] { plc.Ferma = -1; });
  plc.mnuPlcRun();
  EXPECT_EQ(passi.size(), 11U);
}

TEST_F(RunLoop, StopBeatsACondition) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkStop = true;
  plc.Scelte.txtStop = 1;
  Alla_Cessione(1, [&] { plc.mnuPlcStop(); });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 1);
  EXPECT_FALSE(plc.Attivi.cmdRest);
  EXPECT_EQ(plc.Lista_Scelta, 0);
}

TEST_F(RunLoop, ResumptionCountsTheScansAnewFromThePresentLine) {
  plc.mnuPlcCiclo();
  plc.Scelte.chkStop = true;
  plc.Scelte.txtStop = 2;
  plc.mnuPlcRun();
  plc.Scelte.chkStop = false;
  plc.Scelte.chkSol = true;
  plc.Scelte.txtNC = 2;
  plc.N_Cicli = 40;
  plc.Ferma = -1;
  Alla_Cessione(1, [&] { EXPECT_EQ(plc.Ferma, 0); });
  plc.cmdRest();
  EXPECT_EQ(passi, (std::vector<int>{2, 3, 0, 1, 2, 3}));
  EXPECT_EQ(plc.N_Cicli, 2);
}

// ---- changing mode ------------------------------------------------------------------------------

TEST_F(RunLoop, StepDuringACicloEndsTheLoopAndTheClocksRunOn) {
  plc.mnuPlcCiclo();
  Alla_Cessione(2, [&] { plc.mnuPlcStep(); });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PC, 2);
  EXPECT_EQ(plc.PLC_Acceso, -1);
  EXPECT_EQ(plc.Modo_Run, Modo::Step);
  EXPECT_EQ(Stato(plc), "0101110 2");
  for (const auto* timer : {&plc.T100m, &plc.tim1, &plc.tim2, &plc.timIO})
    EXPECT_TRUE(timer->Enabled());
  plc.CmdStep();
  EXPECT_EQ(plc.PC, 3);
}

TEST_F(RunLoop, CicloDuringAStepRunStartsNoLoop) {
  Run_Step();
  Alla_Cessione(1, [] { FAIL() << "a loop was started"; });
  plc.mnuPlcCiclo();
  EXPECT_EQ(plc.Modo_Run, Modo::Ciclo);
  EXPECT_EQ(Stato(plc), "0101110 1");
}

TEST_F(RunLoop, ContDuringAStepRunGoesOnFromThePresentLine) {
  Run_Step();
  plc.CmdStep();
  plc.CmdStep();
  plc.mnuPlcStep();  // leaves `Ferma` set
  plc.Scelte.chkList = false;
  std::string dentro;
  Alla_Cessione(3, [&] {
    dentro = Stato(plc);
    plc.Ferma = -1;
  });
  plc.mnuPlcCont();
  EXPECT_EQ(passi, (std::vector<int>{2, 3, 0}));
  EXPECT_EQ(plc.Modo_Run, Modo::Cont);
  EXPECT_TRUE(plc.Scelte.chkList);
  EXPECT_EQ(dentro, "0101100 0");
}

TEST_F(RunLoop, YieldsAtTheTopOfEachScanAndEverySoManyLines) {
  Alla_Cessione(
      5, [this] { plc.Ferma = -1; }, 3);
  plc.mnuPlcRun();
  EXPECT_EQ(passi, (std::vector<int>{0, 3, 0, 3, 0}));
  EXPECT_EQ(plc.PC, 1);
}

TEST_F(RunLoop, ManyLinesAtATimeStopWhereOneWould) {
  const struct {
    bool a_una_riga;  // else after so many scans
    int numero, pc, cicli, scelta;
  } casi[] = {{true, 2, 2, 0, 2}, {false, 2, 0, 2, 3}, {false, 0, 1, 0, 3}};
  plc.mnuPlcCiclo();
  for (const auto& [a_una_riga, numero, pc, cicli, scelta] : casi) {
    SCOPED_TRACE(numero);
    passi.clear();
    Alla_Cessione(
        -1, [] {}, 100);
    plc.Scelte.chkStop = a_una_riga;
    plc.Scelte.chkSol = !a_una_riga;
    plc.Scelte.txtStop = plc.Scelte.txtNC = numero;
    plc.mnuPlcRun();
    EXPECT_EQ(plc.PC, pc);
    EXPECT_EQ(plc.N_Cicli, cicli);
    EXPECT_EQ(plc.Lista_Scelta, scelta);
    plc.mnuPlcStop();
  }
}

TEST_F(RunLoop, ContOnAStoppedPlcOnlyChoosesTheMode) {
  plc.mnuPlcStep();
  plc.Scelte.chkList = false;
  Alla_Cessione(1, [] { FAIL() << "a loop was started"; });
  plc.mnuPlcCont();
  EXPECT_EQ(Stato(plc), "1011100 0");
  EXPECT_TRUE(plc.Scelte.chkList);
  EXPECT_EQ(plc.Modo_Run, Modo::Cont);
}

class SecondLoop : public RunLoop, public ::testing::WithParamInterface<void (Plc::*)()> {};

TEST_P(SecondLoop, IsNotStartedFromInsideTheYield) {
  for (const bool ciclo : {false, true}) {
    passi.clear();
    ciclo ? plc.mnuPlcCiclo() : plc.mnuPlcCont();
    bool tornato = false;
    const Iscrizione ascolto = plc.Hook.Ascolta_Cedi([&] {
      passi.push_back(plc.PC);
      const bool ultimo = passi.size() == 4;
      if (passi.size() == 2) {
        (plc.*GetParam())();
        tornato = true;
        EXPECT_EQ(passi.size(), 2U);
      }
      if (ultimo || passi.size() > 100) plc.Ferma = -1;
    });
    plc.mnuPlcRun();
    EXPECT_TRUE(tornato);
    EXPECT_EQ(passi, (std::vector<int>{0, 1, 2, 3}));
    plc.mnuPlcStop();
  }
}

INSTANTIATE_TEST_SUITE_P(Commands, SecondLoop,
                         ::testing::Values(&Plc::mnuPlcCont, &Plc::cmdRest, &Plc::Cicla,
                                           &Plc::Cicla_Ciclo));

TEST_F(RunLoop, LoopCanBeStartedAgainAfterAFatalEnd) {
  Alla_Cessione(2, [&] { plc.PC = 99; });
  EXPECT_THROW(plc.mnuPlcRun(), Fatale);
  passi.clear();
  Alla_Cessione(2, [&] { plc.Ferma = -1; });
  plc.mnuPlcRun();
  EXPECT_EQ(passi.size(), 2U);
}

}  // namespace tavorno::prova
