// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "bench/plant_options.h"
#include "command_bed.h"
#include "recorder/hands.h"
#include "recorder/session.h"

namespace tavorno::prova {

using ::testing::HasSubstr;
using ::testing::Not;

class PlantRun : public Banco_Comandi {
 public:
  /// Runs these rows against a plant; true when the run reached its end.
  bool Esegui(const std::string& impianto, const std::string& ms, const std::string& mani,
              const std::vector<std::string>& righe) {
    std::vector<std::string> parole = {"esegui", Progetto_Con(righe), "--ms",
                                       ms,       "--impianto",        impianto};
    if (!mani.empty()) parole.insert(parole.end(), {"--mani", mani});
    return Comando(parole) == 0;
  }
  /// Time of the first line that ends with this; -1 without one.
  int Ms_Di(const std::string& fine) const {
    std::istringstream righe(out);
    for (std::string riga; std::getline(righe, riga);) {
      if (riga.ends_with(fine)) return std::stoi(riga);
    }
    return -1;
  }
};

const std::vector<std::string> autoritenuta = {"LD I0.1", "O I0.2", "A I0.0", "A I0.3", "= Q0.0"};

TEST_F(PlantRun, TheInputsAtRestReachTheCpuAndBearTheirSymbols) {
  EXPECT_TRUE(Esegui("0", "5", "", {"NOP"}));
  EXPECT_EQ(out,
            "       0 ms  I0.0 SB1 = 1\n"
            "       0 ms  I0.3 FR = 1\n"
            "       0 ms  I0.4 SB3 = 1\n"
            "Fine: 5 ms, 5 scansioni.\n");
}

TEST_F(PlantRun, AHeldStartClosesTheContactorWhichHoldsItselfAfterTheRelease) {
  EXPECT_TRUE(Esegui("0", "400", "100:premi:imgStart,200:rilascia:imgStart,300:premi:imgStop",
                     autoritenuta));
  EXPECT_EQ(out.substr(out.find("     100")),
            "     100 ms  I0.1 SB2 = 1\n"
            "     100 ms  Q0.0 KM = 1\n"
            "     100 ms  I0.2 KMa = 1\n"
            "     200 ms  I0.1 SB2 = 0\n"
            "     300 ms  I0.0 SB1 = 0\n"
            "     300 ms  Q0.0 KM = 0\n"
            "     300 ms  I0.2 KMa = 0\n"
            "Fine: 400 ms, 400 scansioni.\n");
}

TEST_F(PlantRun, ABrokenWireOfAStopDropsTheContactor) {
  EXPECT_TRUE(Esegui("0", "400",
                     "100:premi:imgStart,150:rilascia:imgStart,200:guasto:filo(I0.0)=1,"
                     "300:guasto:filo(I0.0)=0",
                     autoritenuta));
  EXPECT_EQ(out.substr(out.find("     200")),
            "     200 ms  I0.0 SB1 = 0\n"
            "     200 ms  Q0.0 KM = 0\n"
            "     200 ms  I0.2 KMa = 0\n"
            "     300 ms  I0.0 SB1 = 1\n"
            "Fine: 400 ms, 400 scansioni.\n");
}

TEST_F(PlantRun, AFaultThatCannotComeNowIsTold) {
  EXPECT_TRUE(Esegui("0", "20", "10:guasto:imgKM=1", {"NOP"}));
  EXPECT_THAT(out + err, HasSubstr("guasto:imgKM=1"));
}

TEST_F(PlantRun, AClickTripsTheRelayAndTheNextOneResetsIt) {
  EXPECT_TRUE(Esegui("0", "100", "30:clic:ImgTer,60:clic:ImgTer", {"NOP"}));
  EXPECT_THAT(out, HasSubstr("      30 ms  I0.3 FR = 0\n      60 ms  I0.3 FR = 1\nFine"));
}

TEST_F(PlantRun, ADoubleClickForcesAContactor) {
  EXPECT_TRUE(
      Esegui("0", "100", "10:premi:imgStart,20:rilascia:imgStart,50:doppio:imgKM", autoritenuta));
  EXPECT_THAT(out, HasSubstr("      50 ms  I0.2 KMa = 0\n      50 ms  Q0.0 KM = 0\nFine"));
}

TEST_F(PlantRun, BothBytesBearSymbolsAndAPointOutsideTheTableStandsAlone) {
  EXPECT_TRUE(Esegui("3", "50", "20:clic:imgRt,30:clic:imgRt2",
                     {"LDN I1.0", "= Q1.0", "= Q1.7", "LDN I1.1", "= Q1.1"}));
  EXPECT_EQ(out.substr(out.find("      20")),
            "      20 ms  I1.0 FR1 = 0\n"
            "      20 ms  Q1.0 HL1 = 1\n"
            "      20 ms  Q1.7 = 1\n"
            "      30 ms  I1.1 FR2 = 0\n"
            "      30 ms  Q1.1 HL4 = 1\n"
            "Fine: 50 ms, 50 scansioni.\n");
}

TEST_F(PlantRun, WithoutAPlantTheLinesHaveNoSymbols) {
  Comando({"esegui", Progetto_Con({"LD I0.1", "= Q0.0"}), "--ms", "5", "--ingressi", "1:I0.1=1"});
  EXPECT_EQ(out, "       1 ms  I0.1 = 1\n       1 ms  Q0.0 = 1\nFine: 5 ms, 5 scansioni.\n");
}

TEST_F(PlantRun, HandsAtTheSameTimeActInTheOrderOfTheList) {
  EXPECT_TRUE(Esegui("0", "20",
                     "10:premi:imgStart,5:premi:imgStop,10:rilascia:imgStop,12:rilascia:imgStart",
                     {"NOP"}));
  EXPECT_EQ(out.substr(out.find("       5")),
            "       5 ms  I0.0 SB1 = 0\n"
            "      10 ms  I0.1 SB2 = 1\n"
            "      10 ms  I0.0 SB1 = 1\n"
            "      12 ms  I0.1 SB2 = 0\n"
            "Fine: 20 ms, 20 scansioni.\n");
}

TEST_F(PlantRun, AHandAtTimeZeroActsBeforeTheFirstScan) {
  EXPECT_TRUE(Esegui("0", "5", "0:premi:imgStart", {"LD SM0.1", "A I0.1", "= Q0.1"}));
  EXPECT_THAT(out, HasSubstr("       0 ms  I0.1 SB2 = 1\n       0 ms  Q0.1 HL2 = 1\n"));
}

TEST_F(PlantRun, HandsWaitForTheEndOfALongScan) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"NOP"}), "--ms", "1200", "--scansione", "400",
                     "--impianto", "0", "--mani", "500:premi:imgStart"}),
            0);
  EXPECT_EQ(Ms_Di("I0.1 SB2 = 1"), 800);
}

TEST_F(PlantRun, TheReleaseOfAFigureThatListensToAClickIsAClick) {
  EXPECT_TRUE(Esegui("4", "100", "30:premi:ImgEm,60:rilascia:ImgEm", {"NOP"}));
  EXPECT_EQ(Ms_Di("I0.7 SB5 = 0"), 60) << out;
}

TEST_F(PlantRun, AFigureThatIsHiddenNowFeelsNothing) {
  EXPECT_TRUE(Esegui("11", "20", "5:clic:imgM(3)", {"NOP"}));
  EXPECT_THAT(out,
              HasSubstr("       5 ms  clic:imgM(3): nessun effetto, la figura ora è nascosta\n"));
}

TEST_F(PlantRun, ASliderMakesTheCylinderFaster) {
  const std::vector<std::string> avanti = {"LD SM0.0", "= Q0.0", "= Q0.1"};
  EXPECT_TRUE(Esegui("4", "20000", "", avanti));
  const int lento = Ms_Di("I0.2 a1 = 1");
  EXPECT_TRUE(Esegui("4", "20000", "0:regola:SlidP=10", avanti));
  const int veloce = Ms_Di("I0.2 a1 = 1");
  EXPECT_GT(veloce, 0);
  EXPECT_GT(lento, 2 * veloce);
}

TEST_F(PlantRun, AnUpDownFeedsItsAnalogInput) {
  EXPECT_TRUE(Esegui("14", "200", "50:regola:UpD1=3", {"LDW= AIW0 +9600", "= Q1.7"}));
  EXPECT_EQ(Ms_Di("Q1.7 = 1"), 60) << out;
}

TEST_F(PlantRun, AnalogInputsMayBeGivenBesideAPlant) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LDW= AIW4 +8000", "= Q1.7"}), "--ms", "100",
                     "--impianto", "0", "--ingressi", "30:AI2=2.5"}),
            0);
  EXPECT_EQ(Ms_Di("Q1.7 = 1"), 40);
}

TEST_F(PlantRun, APlantThatStopsTheProgramIsLetGo) {
  EXPECT_FALSE(Esegui("0", "50", "", {"LD SM0.0", "= Q0.0", "S M0.7 5"}));
  EXPECT_THAT(out, HasSubstr("Errore fatale: Indice fuori dalla tabella"));
}

TEST(Hand, IsWrittenAsOnTheCommandLine) {
  std::string errore;
  const std::string lista = "1:premi:A(0),2:rilascia:A(0),3:clic:B,4:doppio:C,5:regola:D=-2.5";
  std::string scritta;
  for (const Gesto& gesto : Leggi_Mani(lista, errore))
    scritta += (scritta.empty() ? "" : ",") + std::to_string(gesto.Ms) + ":" + gesto.Come_Testo();
  EXPECT_EQ(errore, "");
  EXPECT_EQ(scritta, lista);
}

// ---- every plant --------------------------------------------------------------------------------

std::vector<int> Impianti_Presenti() {
  std::vector<int> presenti;
  for (const Esercizio& esercizio : Tabella_Esercizi())
    if (esercizio.Crea) presenti.push_back(esercizio.Indice);
  return presenti;
}

class EveryPlant : public PlantRun, public ::testing::WithParamInterface<int> {
 public:
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  Seduta seduta;
  std::unique_ptr<Impianto> macchina = esercizio.Crea(seduta.plc);
};

TEST_P(EveryPlant, ShowsItsInputsAtRestFirst) {
  EXPECT_TRUE(Esegui(std::to_string(GetParam()), "1", "", {"NOP"}));
  std::string attese;
  for (int n = 0; n < 16; ++n) {
    if (macchina->Stato_I()[static_cast<std::size_t>(n)] == '1')
      attese += "       0 ms  " + Nome_Punto('I', n / 8, n % 8, &esercizio) + " = 1\n";
  }
  EXPECT_TRUE(out.starts_with(attese)) << out << "instead of\n" << attese;
}

/// Every output on and off, every figure clicked, pressed and forced, every control at its top.
TEST_P(EveryPlant, TwoRunsPrintTheSameBytes) {
  std::string mani;
  auto Aggiungi = [&mani, ms = 100](const std::string& gesto) mutable {
    mani += (mani.empty() ? "" : ",") + std::to_string(ms += 70) + ":" + gesto;
  };
  for (const Figura& figura : macchina->Disegno) {
    if (figura.Premi || figura.Rilascia) {
      Aggiungi("premi:" + figura.Nome);
      Aggiungi("rilascia:" + figura.Nome);
    }
    if (figura.Clic) Aggiungi("clic:" + figura.Nome);
    if (figura.Doppio_Clic) Aggiungi("doppio:" + figura.Nome);
  }
  for (const Cursore& cursore : esercizio.Cursori)
    Aggiungi("regola:" + std::string(cursore.Nome) + "=" + std::to_string(cursore.Massimo));
  std::vector<std::string> righe;
  for (int n = 0; n < 16; ++n) {
    righe.emplace_back(n % 2 == 0 ? "LD SM0.5" : "LDN SM0.5");
    righe.push_back("= Q" + std::to_string(n / 8) + "." + std::to_string(n % 8));
  }
  ASSERT_TRUE(Esegui(std::to_string(GetParam()), "15000", mani, righe)) << out << err;
  const std::string prima = out;
  EXPECT_THAT(prima, HasSubstr("Q1.7"));
  ASSERT_TRUE(Esegui(std::to_string(GetParam()), "15000", mani, righe));
  EXPECT_EQ(out, prima);
}

/// A hand on each thing that the messages name as possible is accepted.
TEST_P(EveryPlant, TakesEveryNameThatItsMessagesList) {
  for (const char* azione : {"premi", "clic", "doppio", "regola"}) {
    const std::string coda = std::string(azione) == "regola" ? "=1" : "";
    EXPECT_FALSE(
        Esegui(std::to_string(GetParam()), "1", std::string("0:") + azione + ":?" + coda, {"NOP"}));
    const std::size_t inizio = err.find("ma ha: ");
    if (inizio == std::string::npos) {
      EXPECT_THAT(err, HasSubstr("non ha niente"));
      continue;
    }
    std::istringstream nomi(err.substr(inizio + 7, err.find(" (tavorno") - inizio - 7));
    for (std::string nome; std::getline(nomi >> std::ws, nome, ',');) {
      Esegui(std::to_string(GetParam()), "1", std::string("0:") + azione + ":" + nome + coda,
             {"NOP"});
      EXPECT_THAT(err, Not(HasSubstr("non ha"))) << nome;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Plants, EveryPlant, ::testing::ValuesIn(Impianti_Presenti()));

}  // namespace tavorno::prova
