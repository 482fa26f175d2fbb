// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/link.h"

#include <gmock/gmock.h>

#include "link_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A plant that moves by itself, has analog values and properties, and speaks twice.
class Cilindro : public Impianto {
 public:
  explicit Cilindro(Orologio& orologio)
      : Impianto({}, "1000000000000010", Invio::Doppio), passo(orologio, 40, [this] {
          Ingresso(2, Stato_I()[1] == '1' ? '0' : '1');
          Invia();
        }) {
    ME_AIW0 = 2.5F;
    ME_AIW4 = 7.5F;
    for (const char* nome : {"ME_Uno", "ME_Due", "Enabled"}) {
      Regolatori[nome] = {[this, nome](double valore) {
        scritti.push_back(nome + (" " + std::to_string(static_cast<int>(valore))));
      }};
    }
  }

  std::vector<std::string> scritti;  ///< properties, as they are written
  std::vector<std::string> uscite;   ///< output texts, as they come

 private:
  void Applica_Uscite() override {
    uscite.push_back(Stato_Q());
    passo.Enabled(Uscita(1) == "1");
  }
  Temporizzatore passo;
};

std::unique_ptr<Impianto> Crea_Cilindro(Plc& plc) {
  return std::make_unique<Cilindro>(plc.Tempo);
}

constexpr Cursore cursori[] = {
    {"slid1(0)", "Uno", 1, 10, 1, 2, 3, true, "ME_Uno", 0, 10},
    {"slid1(1)", "Nulla", 10, 50, 1, 10, 10, false, nullptr, 0, 0},
    {"slid1(2)", "Due", 1, 6, 1, 2, 4, true, "ME_Due", 700, -100},
};

Esercizio Di_Prova() {
  Esercizio esercizio = Tabella_Esercizi()[14];
  esercizio.Cursori = {};
  esercizio.Crea = Crea_Cilindro;
  return esercizio;
}

struct Link : Banco_Impianto {
  const Esercizio prova = Di_Prova();
  Cilindro& Cil() { return static_cast<Cilindro&>(Macchina()); }
};

TEST_F(Link, NothingIsOpenAtFirst) {
  EXPECT_EQ(stato.Impianto_Aperto, 0);
  EXPECT_EQ(stato.Impianto_Nr, 0);
}

TEST_F(Link, TheDefaultInputsReachTheBarsOnOpening) {
  Apri(0);
  EXPECT_EQ(Ingressi(), "1001100000000000");
  EXPECT_EQ(plc.SI[0].Accesi(), 0b00011001);
  EXPECT_EQ(plc.SI[1].Accesi(), 0);
  for (int bit = 0; bit < 8; ++bit)
    EXPECT_EQ(plc.IP_I[0].Bit_Dir[bit], bit == 0 || bit == 3 || bit == 4) << bit;
}

TEST_F(Link, OpeningResetsTheBarsBeforeThePlantSpeaks) {
  plc.SI[1].Stato_I("11111111");
  plc.SQ[0].Stato_Q("11110000");
  plc.SQ[1].INT_ON = false;
  std::vector<std::string> visti;
  const Iscrizione ascolto_1 =
      plc.SI[0].Change.Ascolta([&] { visti.push_back("SI0 " + plc.SI[0].Stato_I()); });
  const Iscrizione ascolto_2 =
      plc.SI[1].Change.Ascolta([&] { visti.push_back("SI1 " + plc.SI[1].Stato_I()); });
  const Iscrizione ascolto_3 =
      plc.SQ[0].Change.Ascolta([&] { visti.push_back("SQ0 " + plc.SQ[0].Stato_Q()); });
  const auto aperto =
      std::make_unique<Collegamento>(plc, stato, Tabella_Esercizi()[1], [&](Modo_Sportello modo) {
        visti.push_back("door " + std::to_string(static_cast<int>(modo)) +
                        (stato.Impianto_Aperto ? " open" : ""));
      });
  visti.push_back("window");
  EXPECT_EQ(stato.Impianto_Aperto, -1);
  EXPECT_EQ(stato.Impianto_Nr, 1);
  EXPECT_TRUE(plc.SQ[1].INT_ON);
  aperto->Carica();
  EXPECT_THAT(visti,
              ElementsAre("SI1 00000000", "SQ0 00000000", "door 2", "window", "SI0 01000110"));
}

TEST_F(Link, ThePlantsInputsReplaceBothBytes) {
  Apri(3);
  plc.SI[0].Stato_I("11111111");
  plc.SI[1].Stato_I("11111111");
  Macchina().Clic("imgRt2");
  EXPECT_EQ(Ingressi(), "1000010010000000");
}

TEST_F(Link, ThermalContactsOfTheTwoUnitsAreBitsOfI1) {
  Apri(3);
  EXPECT_EQ(plc.SI[1].Stato_I(), "11000000");
  Macchina().Clic("imgRt");
  EXPECT_EQ(plc.SI[1].Stato_I(), "01000000");
  Macchina().Clic("imgRt2");
  EXPECT_EQ(plc.SI[1].Stato_I(), "00000000");
  EXPECT_EQ(plc.SI[0].Stato_I(), "10000100");
}

TEST_F(Link, OutputsReachThePlantOneByteAtATime) {
  Apri(prova);
  plc.SQ[0].Stato_Q("00000001");
  plc.SQ[1].Stato_Q("10000000");
  plc.SQ[1].Stato_Q("10000000");
  EXPECT_THAT(Cil().uscite, ElementsAre("0000000100000000", "0000000110000000"));
}

TEST_F(Link, OutputsAreNotHeardWhenNothingIsOpen) {
  Apri(prova);
  filo->Chiudi();
  const auto sentite = Cil().uscite.size();
  plc.SQ[0].Stato_Q("10000000");
  EXPECT_EQ(Cil().uscite.size(), sentite);
}

// As where a figure is held down while its window is closed.
TEST_F(Link, AHandThatLetsGoAfterTheEndIsNoEntry) {
  Apri(prova);
  filo->Chiudi();
  int entrate = 0;
  const Iscrizione ascolto = plc.Hook.Entra.Ascolta([&](const Atto&) { ++entrate; });
  EXPECT_FALSE(filo->Entra({.Che = Cosa::Rilascia, .Testo = "imgStart"}));
  EXPECT_EQ(entrate, 0);
}

TEST_F(Link, ClearingChkSimBringsBackTheWholeTextOfThePlant) {
  Apri(0);
  filo->chkSim(true);
  EXPECT_TRUE(filo->chkSim());
  plc.SI[0].Stato_I("01000000");  // the switches write
  plc.SI[1].Stato_I("00000011");
  EXPECT_EQ(Ingressi(), "0100000000000011");
  filo->chkSim(false);
  EXPECT_EQ(Ingressi(), "1001100000000000");
  EXPECT_THAT(sportello, ElementsAre(2, 3, 2));
}

TEST_F(Link, WithChkSimThePlantMovesUnheard) {
  Apri(prova);
  filo->chkSim(true);
  plc.SQ[0].Stato_Q("10000000");
  orologio.Avanza(40);
  EXPECT_EQ(Macchina().Stato_I(), "1100000000000010");
  EXPECT_EQ(Ingressi(), "1000000000000010");
  filo->chkSim(false);
  EXPECT_EQ(Ingressi(), "1100000000000010");
}

TEST_F(Link, TheCrossingHasNoHandlerOfChkSim) {
  Esercizio semaforo = Tabella_Esercizi()[16];
  semaforo.Crea = Crea_Cilindro;
  Apri(semaforo);
  filo->chkSim(true);
  plc.SI[0].Stato_I("00000000");
  filo->chkSim(false);
  EXPECT_THAT(sportello, ElementsAre(2));
  EXPECT_EQ(plc.SI[0].Stato_I(), "00000000");
}

TEST_F(Link, AnalogValuesGoWithTheInputsAsFarAsThePlantHasThem) {
  plc.Volt_AI[1] = 1.25F;
  Apri(prova);
  EXPECT_EQ(plc.Volt_AI[0], 2.5F);
  EXPECT_EQ(plc.Volt_AI[1], 1.25F);
  EXPECT_EQ(plc.Volt_AI[2], 7.5F);
  filo->chkSim(true);
  Macchina().ME_AIW0 = 9.0F;
  Cil().Change();
  EXPECT_EQ(plc.Volt_AI[0], 2.5F);
  filo->chkSim(false);
  EXPECT_EQ(plc.Volt_AI[0], 9.0F);
}

TEST_F(Link, AnalogValuesBecomeWordsByTheRangeOfThePanel) {
  Apri(prova);
  Macchina().ME_AIW0 = 5.0F;
  Cil().Change();
  Esegui({"NETWORK 1", "LD SM0.0", "= Q0.7"});
  Passa(20);
  EXPECT_EQ(plc.Mem_AIW[0], 16000);
  EXPECT_EQ(plc.Mem_AIW[4], 24000);
  plc.Scelte.opzAI = Scala::mA_20;
  Passa(20);
  EXPECT_EQ(plc.Mem_AIW[0], 8000);
}

TEST_F(Link, AnalogValuesOfOtherExercisesStayAtHome) {
  Esercizio altro = prova;
  altro.Analogici = false;
  Apri(altro);
  EXPECT_EQ(plc.Volt_AI[0], 0.0F);
}

TEST_F(Link, AMovingPlantIsAliveWithoutAProgram) {
  Apri(prova);
  plc.SQ[0].Stato_Q("10000000");
  orologio.Avanza(80);
  EXPECT_EQ(Ingressi(), "1000000000000010");
  orologio.Avanza(40);
  EXPECT_EQ(Ingressi(), "1100000000000010");
}

TEST_F(Link, ARepeatedTextIsHeardOnlyOnceFurtherDown) {
  Apri(prova);
  int uditi = 0;
  const Iscrizione ascolto_4 = plc.SI[0].Change.Ascolta([&] { ++uditi; });
  plc.SQ[0].Stato_Q("10000000");
  orologio.Avanza(40);
  EXPECT_EQ(uditi, 1);
}

TEST_F(Link, ClosingResetsTheBarsWithThePlantStillWired) {
  Apri(3);
  plc.SQ[0].Stato_Q("10000000");
  ASSERT_EQ(plc.SI[0].Stato_I(), "10100100");
  std::vector<std::string> visti;
  const Iscrizione ascolto_5 =
      plc.SI[0].Change.Ascolta([&] { visti.push_back("SI0 " + plc.SI[0].Stato_I()); });
  const Iscrizione ascolto_6 =
      plc.SI[1].Change.Ascolta([&] { visti.push_back("SI1 " + plc.SI[1].Stato_I()); });
  filo->Chiudi();
  // the contactor that falls with Q0 makes the plant write its inputs once more
  EXPECT_THAT(visti, ElementsAre("SI0 00000000", "SI1 00000000", "SI0 10000100", "SI1 11000000"));
  EXPECT_EQ(Uscite(), "0000000000000000");
  EXPECT_THAT(sportello, ElementsAre(2, 3));
  EXPECT_EQ(stato.Impianto_Aperto, 0);
  EXPECT_EQ(stato.Impianto_Nr, 0);
}

TEST_F(Link, ClosingAPlantAtRestLeavesTheBarsDark) {
  Apri(3);
  filo->Chiudi();
  EXPECT_EQ(Ingressi(), "0000000000000000");
}

TEST_F(Link, AClosedPlantIsNotHeard) {
  Apri(0);
  filo->Chiudi();
  Macchina().Premi("imgStart");
  EXPECT_EQ(Ingressi(), "0000000000000000");
}

TEST_F(Link, ClosingTwiceDoesNotCloseTheNextPlant) {
  Apri(0);
  filo->Chiudi();
  auto vecchio = std::move(filo);
  Apri(2);
  vecchio.reset();
  EXPECT_EQ(stato.Impianto_Aperto, -1);
  EXPECT_EQ(stato.Impianto_Nr, 2);
  plc.SQ[0].Stato_Q("10000000");
  EXPECT_EQ(Macchina().Stato_Q(), "1000000000000000");
}

TEST_F(Link, GoingAwayCloses) {
  int altri = 0;
  const Iscrizione ascolto_7 = plc.SQ[0].Change.Ascolta([&] { ++altri; });
  Apri(0);
  plc.SQ[0].Stato_Q("10000000");
  EXPECT_EQ(altri, 1);
  filo.reset();
  EXPECT_EQ(altri, 2);
  EXPECT_EQ(stato.Impianto_Aperto, 0);
  plc.SQ[0].Stato_Q("01000000");
  EXPECT_EQ(altri, 3);
}

TEST_F(Link, EveryOpeningStartsFromDefaults) {
  Apri(0);
  Macchina().Clic("ImgTer");
  plc.SQ[0].Stato_Q("10000000");
  filo.reset();
  Apri(0);
  EXPECT_EQ(Ingressi(), "1001100000000000");
  EXPECT_EQ(Macchina().Disegno["imgKM"].Picture(), "imgKMOF");
  EXPECT_EQ(Macchina().Disegno["ImgTer"].Picture(), "ImgRTOF");
}

TEST_F(Link, TheMotorOfTheFirstWindowIsCalledM1) {
  Apri(0);
  EXPECT_EQ(Macchina().Disegno["etM"].Caption(), "M1");
  filo.reset();
  Apri(1);
  EXPECT_EQ(Macchina().Disegno["etM"].Caption(), "Nastro Due");
}

TEST_F(Link, WorksWithoutADoor) {
  filo = std::make_unique<Collegamento>(plc, stato, Tabella_Esercizi()[0]);
  filo->Carica();
  filo->chkSim(true);
  filo->Chiudi();
  EXPECT_EQ(stato.Impianto_Aperto, 0);
}

TEST_F(Link, AnExerciseWithoutAPlantCannotBeOpened) {
  Esercizio vuoto = prova;
  vuoto.Crea = nullptr;
  EXPECT_THROW(Apri(vuoto), std::invalid_argument);
  EXPECT_EQ(stato.Impianto_Aperto, 0);
}

TEST_F(Link, SlidersAreWrittenOnLoadAndAllTogether) {
  Esercizio con_cursori = prova;
  con_cursori.Cursori = cursori;
  con_cursori.Attivare = "Enabled";
  Apri(con_cursori);
  EXPECT_THAT(Cil().scritti, ElementsAre("Enabled 1", "ME_Uno 30", "ME_Due 300"));
  Cil().scritti.clear();
  filo->Muovi(2, 6);
  EXPECT_THAT(Cil().scritti, ElementsAre("ME_Due 100"));
  filo->Muovi(0, 99);
  filo->Muovi(1, 20);
  EXPECT_THAT(Cil().scritti, ElementsAre("ME_Due 100", "ME_Uno 100"));
  EXPECT_EQ(filo->Valore(0), 10);
  EXPECT_EQ(filo->Valore(1), 20);
  EXPECT_EQ(filo->Valore(2), 6);
}

TEST_F(Link, SlidersThatTellOfMovesOnlyAreSilentOnLoad) {
  static constexpr Cursore silenziosi[] = {
      {"Slid(0)", "Uno", 1, 6, 1, 2, 3, false, "ME_Uno", 700, -100},
      {"Slid(1)", "Due", 1, 6, 1, 2, 3, false, "ME_Due", 700, -100},
  };
  Esercizio con_cursori = prova;
  con_cursori.Cursori = silenziosi;
  Apri(con_cursori);
  EXPECT_THAT(Cil().scritti, IsEmpty());
  filo->Muovi(0, 6);
  EXPECT_THAT(Cil().scritti, ElementsAre("ME_Uno 100", "ME_Due 400"));
}

}  // namespace tavorno::prova
