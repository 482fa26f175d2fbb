// SPDX-License-Identifier: GPL-3.0-or-later
// The solved projects of the pneumatic benches, run against their machines.
#include <algorithm>
#include <filesystem>

#include "link_bed.h"

namespace tavorno::prova {

struct Prova_Ciclo {
  int Esercizio;
  const char* Progetto;
  const char* Ciclo;     ///< limit switches in the order in which one cycle closes them
  const char* Cmd_A;     ///< a hand on the valve of A against the program
  bool Riprende;         ///< a lamp changes when A is back, and that let acts on the coil again
  int Aria, Automatico;  ///< outputs of the air valve and of the lamp of the automatic cycle
};

// clang-format off
const std::vector<Prova_Ciclo> cicli = {
    { 4, "us04.AWL", "a1 a0 ",                   "cmdV1b", false, 1,  5},
    { 5, "us05.AWL", "a1 b1 b0 a0 ",             "cmdV1b", false, 1,  7},
    { 6, "us06.AWL", "a1 b1 b0 c1 c0 a0 ",       "cmdV1b", true,  1,  9},
    { 7, "us07.AWL", "a1 b1 c1 d1 c0 d0 b0 a0 ", "cmdV1b", true,  9, 11},
    {15, "us15.AWL", "a1 b1 b0 c1 c0 a0 ",       "CmdV1a", true,  1,  6},
};
// clang-format on

class PneumaticProgram : public Banco_Impianto, public ::testing::WithParamInterface<Prova_Ciclo> {
 public:
  static constexpr int Scansione = 10;  // ms

  void SetUp() override {
    Apri(caso.Esercizio);
    const std::filesystem::path file = std::filesystem::path(TAVORNO_EXAMPLES) / caso.Progetto;
    progetto.File_Progetto = file.string();
    progetto.File_Titolo = file.filename().string();
    progetto.LeggiTxt();
    ASSERT_FALSE(progetto.Err_Lettura);
    progetto.Compila();
    ASSERT_TRUE(progetto.Compilato);
    plc.mnuPlcStep();
    plc.mnuPlcRun();
    riposo = Macchina().Stato_I();
    Corri(100);
  }

  /// Runs for a time, and writes down the limit switches as they close.
  void Corri(int ms) {
    for (int t = 0; t < ms; t += Scansione) {
      const std::string prima = Ingressi();
      orologio.Avanza(Scansione);
      const auto scansione = plc.N_Cicli;
      while (plc.N_Cicli == scansione && plc.PLC_Acceso) plc.CmdStep();
      for (const Riga_IO& riga : filo->Tabella().Righe_IO) {
        const std::string simbolo = riga.Simbolo;
        if (riga.Indirizzo[0] != 'I' || simbolo.size() != 2 || simbolo[0] < 'a') continue;
        const std::size_t posto = std::size_t{8} * (riga.Indirizzo[1] == '1') +
                                  static_cast<std::size_t>(riga.Indirizzo[3] - '0');
        if (prima.at(posto) == '0' && Ingressi().at(posto) == '1') visti += simbolo + " ";
      }
    }
    ASSERT_TRUE(plc.PLC_Acceso) << "the program has stopped";
  }

  /// Runs until so many limit switches have closed, at most two minutes.
  void Corri_Fino_A(int chiusi) {
    for (int giri = 0; giri < 12000 && Chiusi() < chiusi; ++giri) Corri(Scansione);
    ASSERT_GE(Chiusi(), chiusi) << visti;
  }
  int Chiusi() const { return static_cast<int>(std::ranges::count(visti, ' ')); }
  int Lungo() const { return static_cast<int>(std::ranges::count(std::string(caso.Ciclo), ' ')); }

  void Premi_Breve(const char* nome) {
    Macchina().Premi(nome);
    Corri(100);
    Macchina().Rilascia(nome);
    Corri(50);
  }
  void Aria() {
    Macchina().Clic("imgCom");
    Corri(50);
  }
  bool Eccitata(int posizione) const {
    return Uscite()[static_cast<std::size_t>(posizione - 1)] == '1';
  }
  /// Where all pistons stand.
  std::vector<float> Pistoni() {
    std::vector<float> dove;
    const bool pochi = caso.Esercizio <= 5;  // in the larger benches imgV1 is a piston
    for (const char* nome :
         pochi ? std::vector{"imgPA", "imgP2"} : std::vector{"imgV1", "imgV2", "imgV3", "imgV4"})
      if (const Figura* figura = Macchina().Disegno.Trova(nome)) dove.push_back(figura->Left);
    return dove;
  }
  /// The limit switches as at first: all cylinders in.
  void Verifica_A_Riposo() {
    std::string atteso = riposo;
    for (std::size_t n = 0; n < atteso.size(); ++n)
      if (atteso[n] != Macchina().Stato_I()[n]) {
        EXPECT_STREQ(filo->Tabella().Righe_IO[n].Simbolo, "SA");
      }
  }
  std::string Ciclo(int volte) const {
    std::string testo;
    for (int n = 0; n < volte; ++n) testo += caso.Ciclo;
    return testo;
  }

  const Prova_Ciclo caso = GetParam();
  std::string riposo, visti;
};

TEST_P(PneumaticProgram, NothingMovesWithoutAir) {
  Premi_Breve("imgSB2");
  Premi_Breve("imgSB1");
  Corri(3000);
  EXPECT_EQ(visti, "");
  EXPECT_FALSE(Eccitata(caso.Aria));
  EXPECT_EQ(Macchina().Stato_I(), riposo);
}

TEST_P(PneumaticProgram, SingleCycleRunsOnceHoweverLongItsButtonIsHeld) {
  Aria();
  EXPECT_TRUE(Eccitata(caso.Aria));
  Macchina().Premi("imgSB2");
  Corri_Fino_A(Lungo());
  Corri(5000);
  EXPECT_EQ(visti, Ciclo(1));
  Macchina().Rilascia("imgSB2");
  Corri(1000);
  EXPECT_EQ(visti, Ciclo(1));
  Verifica_A_Riposo();
}

TEST_P(PneumaticProgram, AutomaticCycleRunsUntilStopAndEndsWithTheCycle) {
  Aria();
  Premi_Breve("imgSB1");
  EXPECT_TRUE(Eccitata(caso.Automatico));
  Corri_Fino_A(2 * Lungo() + 1);
  EXPECT_TRUE(Eccitata(caso.Automatico));
  Premi_Breve("imgSB3");
  EXPECT_FALSE(Eccitata(caso.Automatico));
  Corri_Fino_A(3 * Lungo());
  Corri(5000);
  EXPECT_EQ(visti, Ciclo(3));
  Verifica_A_Riposo();
}

TEST_P(PneumaticProgram, AutomaticCycleOutlastsTheTimeThatOneCycleMayTake) {
  Aria();
  Premi_Breve("imgSB1");
  Corri(60000);
  EXPECT_TRUE(Eccitata(caso.Automatico));
  EXPECT_TRUE(Ciclo(40).starts_with(visti)) << visti;
}

TEST_P(PneumaticProgram, LostAirHoldsTheCycleAndReturningAirContinuesIt) {
  Aria();
  Premi_Breve("imgSB2");
  Corri_Fino_A(1);
  Corri(60);
  Macchina().Clic("imgCom");
  Corri(50);
  const auto fermi = Pistoni();
  Corri(20000);
  EXPECT_EQ(Pistoni(), fermi);
  Macchina().Clic("imgCom");
  Corri_Fino_A(Lungo());
  Corri(2000);
  EXPECT_EQ(visti, Ciclo(1));
}

TEST_P(PneumaticProgram, EmergencyHoldsAllAndRestoreBringsTheCylindersHome) {
  Aria();
  Premi_Breve("imgSB1");
  Corri_Fino_A(Lungo() / 2);
  Corri(60);
  Macchina().Clic("ImgEm");
  Corri(50);
  EXPECT_FALSE(Eccitata(caso.Aria));
  EXPECT_FALSE(Eccitata(caso.Automatico));
  const auto fermi = Pistoni();
  Premi_Breve("imgSB4");
  Premi_Breve("imgSB1");
  Premi_Breve("imgSB2");
  Corri(2000);
  EXPECT_EQ(Pistoni(), fermi) << "nothing helps while the mushroom is in";
  Macchina().Clic("ImgEm");
  Premi_Breve("imgSB1");
  Premi_Breve("imgSB2");
  Corri(2000);
  EXPECT_EQ(Pistoni(), fermi) << "the emergency stays until it is reset";
  EXPECT_FALSE(Eccitata(caso.Aria));
  visti.clear();
  Premi_Breve("imgSB4");
  EXPECT_TRUE(Eccitata(caso.Aria));
  Corri(6000);
  Verifica_A_Riposo();
  EXPECT_EQ(visti.find('1'), std::string::npos) << visti;
  visti.clear();
  Premi_Breve("imgSB2");
  Corri_Fino_A(Lungo());
  EXPECT_EQ(visti, Ciclo(1));
}

TEST_P(PneumaticProgram, EmergencyBeforeTheFirstMoveLeavesNoStrokeForLater) {
  Aria();
  Macchina().Premi("imgSB2");
  Corri(Scansione);  // the valve has moved, the piston has not
  Macchina().Rilascia("imgSB2");
  Macchina().Clic("ImgEm");
  Corri(100);
  Macchina().Clic("ImgEm");
  Corri(100);
  Premi_Breve("imgSB4");
  const auto fermi = Pistoni();
  Corri(3000);
  EXPECT_EQ(Pistoni(), fermi);
  EXPECT_EQ(visti, "");
}

TEST_P(PneumaticProgram, AirShutByHandEndsInTheTimeLimitAndRestoreHelps) {
  Aria();
  Premi_Breve("imgSB2");
  Macchina().Premi("cmdDis");
  Macchina().Rilascia("cmdDis");
  const auto fermi = Pistoni();
  Corri(40000);
  EXPECT_EQ(Pistoni(), fermi);
  EXPECT_FALSE(Eccitata(caso.Aria));
  Premi_Breve("imgSB4");
  Corri(3000);
  EXPECT_EQ(visti, "a0 ");
  EXPECT_TRUE(Eccitata(caso.Aria));
  visti.clear();
  Premi_Breve("imgSB2");
  Corri_Fino_A(Lungo());
  EXPECT_EQ(visti, Ciclo(1));
}

TEST_P(PneumaticProgram, AValveMovedByHandIsMovedAgainOrEndsInTheTimeLimit) {
  Aria();
  Premi_Breve("imgSB2");
  Macchina().Premi(caso.Cmd_A);
  Macchina().Rilascia(caso.Cmd_A);
  Corri(40000);
  EXPECT_EQ(visti, caso.Riprende ? "a0 " + Ciclo(1) : "a0 ");
  EXPECT_EQ(Eccitata(caso.Aria), caso.Riprende);
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticProgram, ::testing::ValuesIn(cicli), [](const auto& riga) {
  return std::string(riga.param.Progetto).substr(0, 4);
});

// ---- what each project does besides -------------------------------------------------------------

struct Us04Program : PneumaticProgram {};
INSTANTIATE_TEST_SUITE_P(Us04, Us04Program, ::testing::Values(cicli[0]));

TEST_P(Us04Program, WaitsASecondOutside) {
  Aria();
  Premi_Breve("imgSB2");
  Corri_Fino_A(1);
  const auto fuori = Pistoni();
  Corri(850);
  EXPECT_EQ(Pistoni(), fuori);
  Corri(300);
  EXPECT_NE(Pistoni(), fuori);
}

struct Us15Program : PneumaticProgram {};
INSTANTIATE_TEST_SUITE_P(Us15, Us15Program, ::testing::Values(cicli[4]));

TEST_P(Us15Program, TheBenchOpensAtSpeedFive) {
  EXPECT_EQ(Macchina().Trova_Regolatore("ME_Speed")->Valore, 5);
}

TEST_P(Us15Program, KeepsTheCoilOfAUntilTheOthersAreDone) {
  Aria();
  Premi_Breve("imgSB2");
  for (int n = 0; n < 10000 && Chiusi() < 5; ++n) {
    EXPECT_TRUE(Eccitata(2)) << visti;
    Corri(Scansione);
  }
  Corri(Scansione);
  EXPECT_FALSE(Eccitata(2));
}

TEST_P(Us15Program, LampsTellCycleHomeAndFaults) {
  EXPECT_TRUE(Eccitata(8)) << "home";
  Aria();
  EXPECT_TRUE(Eccitata(5)) << "air";
  Premi_Breve("imgSB2");
  EXPECT_TRUE(Eccitata(7)) << "cycle";
  EXPECT_FALSE(Eccitata(8));
  Macchina().Clic("ImgEm");
  Corri(50);
  EXPECT_TRUE(Eccitata(9)) << "emergency";
  EXPECT_FALSE(Eccitata(10)) << "no time limit";
  EXPECT_FALSE(Eccitata(7));
}

}  // namespace tavorno::prova
