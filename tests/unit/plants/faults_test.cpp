// SPDX-License-Identifier: GPL-3.0-or-later
// The faults of all exercises: those of the plants and those of the wires.
#include "plants/faults.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "link_bed.h"
#include "plant_bed.h"
#include "plc/number_text.h"

namespace tavorno::prova {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Faults : public Banco_Impianto, public ::testing::WithParamInterface<int> {
 public:
  Faults() {
    if (GetParam() >= 0) Apri(GetParam());
  }
  std::vector<Guasto_Impianto> Tutti() const {
    return Guasti_Di(filo->Tabella(), filo->Ingressi_A_Riposo());
  }
};

TEST_P(Faults, HaveNamesOfTheirOwnAndTellWhatTheyDo) {
  std::set<std::string> nomi;
  for (const Guasto_Impianto& guasto : Tutti()) {
    EXPECT_TRUE(nomi.insert(guasto.Nome).second) << guasto.Nome;
    EXPECT_FALSE(guasto.Parte.empty()) << guasto.Nome;
    EXPECT_FALSE(guasto.Titolo.empty()) << guasto.Nome;
    EXPECT_GT(guasto.In_Officina.size(), 40U) << guasto.Nome;
    EXPECT_EQ(guasto.Nome.find(','), std::string::npos) << "commas part the hands of a list";
    EXPECT_FALSE(Attivo(guasto, *filo)) << guasto.Nome << ": nothing is out of order at first";
    if (guasto.Come == Mano_Guasto::Filo) continue;
    EXPECT_NE(Macchina().Disegno.Trova(guasto.Nome), nullptr) << guasto.Nome;
    EXPECT_NE(Macchina().Disegno.Trova(guasto.Testimone), nullptr) << guasto.Testimone;
  }
}

TEST_P(Faults, OfThePlantComeAndGo) {
  for (const Guasto_Impianto& guasto : Tutti()) {
    if (guasto.Come == Mano_Guasto::Filo) continue;
    SCOPED_TRACE(guasto.Nome);
    const bool da_comandare = guasto.Come == Mano_Guasto::Colpo;
    plc.SQ[0].Stato_Q("00000000");
    plc.SQ[1].Stato_Q("00000000");
    if (da_comandare) {
      EXPECT_FALSE(Metti(guasto, true, *filo)) << "there is nothing to fail yet";
      const std::string uscite = prova::Uscite({guasto.Uscita});
      plc.SQ[0].Stato_Q(uscite.substr(0, 8));
      plc.SQ[1].Stato_Q(uscite.substr(8));
    }
    EXPECT_TRUE(Metti(guasto, true, *filo));
    EXPECT_TRUE(Attivo(guasto, *filo));
    EXPECT_TRUE(Metti(guasto, true, *filo)) << "it is there already";
    EXPECT_TRUE(Attivo(guasto, *filo));
    EXPECT_EQ(Metti(guasto, false, *filo), !da_comandare);
    if (da_comandare) {
      plc.SQ[0].Stato_Q("00000000");
      plc.SQ[1].Stato_Q("00000000");
    }
    EXPECT_FALSE(Attivo(guasto, *filo));
  }
}

TEST_P(Faults, OfWiresChangeTheirTerminalAndNotThePlant) {
  const std::string fermo = Ingressi();
  const std::string dell_impianto = Macchina().Stato_I();
  const std::vector<std::string> aspetto = Aspetto(Macchina());
  std::size_t digitali = 0;
  for (const Guasto_Impianto& guasto : Tutti()) {
    const auto nome = Leggi_Nome_Filo(guasto.Nome);
    if (!nome || nome->Analogico) continue;
    ++digitali;
    SCOPED_TRACE(guasto.Nome);
    std::string attesi = fermo;
    attesi[nome->Posto] = nome->Cosa == Guasto_Filo::Interrotto ? '0' : '1';
    EXPECT_TRUE(Metti(guasto, true, *filo));
    EXPECT_EQ(Ingressi(), attesi);
    EXPECT_TRUE(Attivo(guasto, *filo));
    EXPECT_EQ(Macchina().Stato_I(), dell_impianto);
    EXPECT_EQ(Aspetto(Macchina()), aspetto);
    EXPECT_TRUE(Metti(guasto, false, *filo));
    EXPECT_EQ(Ingressi(), fermo);
  }
  const auto righe = filo->Tabella().Righe_IO;
  EXPECT_EQ(digitali, 2U * static_cast<std::size_t>(std::ranges::count_if(
                               righe, [](const Riga_IO& riga) { return *riga.Indirizzo == 'I'; })));
}

TEST_P(Faults, DangerousOnesSayWhetherTheContactOpensOrWelds) {
  for (const Guasto_Impianto& guasto : Tutti()) {
    if (guasto.Come != Mano_Guasto::Filo) continue;
    const auto nome = Leggi_Nome_Filo(guasto.Nome);
    // A stop that the table of the exercise calls normally closed fails safe when its wire breaks.
    const auto riga = std::ranges::find_if(filo->Tabella().Righe_IO, [&](const Riga_IO& una) {
      return guasto.Nome.find(una.Indirizzo) != std::string::npos;
    });
    const std::string commento = riga->Commento;
    if (nome->Analogico || commento.find("mergenza") == std::string::npos) continue;
    if (filo->Ingressi_A_Riposo()[nome->Posto] != '1') continue;
    EXPECT_THAT(
        guasto.In_Officina,
        HasSubstr(nome->Cosa == Guasto_Filo::Interrotto ? "guasto sicuro" : "Guasto pericoloso"))
        << guasto.Nome;
  }
}

INSTANTIATE_TEST_SUITE_P(Exercises, Faults,
                         ::testing::Range(0, static_cast<int>(Tabella_Esercizi().size())));

class WireFaults : public Banco_Impianto {};

TEST_F(WireFaults, ABrokenWireStaysBrokenWhateverItsContactDoes) {
  Apri(0);
  EXPECT_TRUE(filo->Guasta("filo(I0.1)", true));
  Macchina().Premi("imgStart");
  EXPECT_EQ(Ingressi()[1], '0');
  EXPECT_TRUE(filo->Guasta("incollato(I0.1)", true));
  EXPECT_EQ(Ingressi()[1], '0') << "voltage does not pass a broken wire";
  EXPECT_TRUE(filo->Guasta("filo(I0.1)", false));
  EXPECT_EQ(Ingressi()[1], '1');
  Macchina().Rilascia("imgStart");
  EXPECT_EQ(Ingressi()[1], '1') << "welded";
  EXPECT_TRUE(filo->Guasta("incollato(I0.1)", false));
  EXPECT_EQ(Ingressi()[1], '0') << "what the contact says at last";
}

TEST_F(WireFaults, AnAnalogWireThatIsBrokenCarriesNoVoltage) {
  Apri(14);
  Macchina().Regola("UpD1", 7);
  EXPECT_EQ(plc.Volt_AI[0], 7.0F);
  EXPECT_TRUE(filo->Guasta("filo(AIW0)", true));
  EXPECT_EQ(plc.Volt_AI[0], 0.0F);
  EXPECT_EQ(plc.Volt_AI[1], 2.0F) << "the other channel is whole";
  EXPECT_TRUE(filo->Guasta("filo(AIW0)", false));
  EXPECT_EQ(plc.Volt_AI[0], 7.0F);
}

TEST_F(WireFaults, AnAxisWithoutItsPositionRunsOnAndIsBelievedToStandAtZero) {
  Apri(17);
  const auto regola = [this](const char* nome, double valore) {
    return filo->Entra({.Che = Cosa::Regola, .Valore = valore, .Testo = nome});
  };
  Macchina().Premi("cmdV1");
  Passa(3000);
  ASSERT_GT(plc.Volt_AI[0], 0.05F) << "the axis travels";
  EXPECT_TRUE(filo->Guasta("filo(AIW0)", true));
  const float prima = Macchina().Disegno["ShIndP"].Left;
  Passa(3000);
  EXPECT_GT(Macchina().Disegno["ShIndP"].Left, prima) << "the plant does not know";
  EXPECT_LT(plc.Volt_AI[0], 1e-30F);
  Macchina().Rilascia("cmdV1");

  EXPECT_TRUE(filo->Guasta("filo(AIW2)", true));
  EXPECT_LT(plc.Volt_AI[1], 1e-30F);
  EXPECT_TRUE(regola("UpD1", 0));
  EXPECT_TRUE(regola("UpD1", 30));
  EXPECT_LT(plc.Volt_AI[1], 1e-30F) << "what is set meanwhile does not arrive either";
  EXPECT_EQ(plc.Volt_AI[2], 0.005F) << "the third channel is whole";

  for (const char* nome : {"filo(AIW0)", "filo(AIW2)"}) EXPECT_TRUE(filo->Guasta(nome, false));
  EXPECT_GT(plc.Volt_AI[0], 0.05F) << "mended, it tells at once where the axis stands";
  EXPECT_EQ(Formato(plc.Volt_AI[0], "#0.00"), Macchina().Disegno["EtPos"].Caption());
  EXPECT_EQ(plc.Volt_AI[1], 3.0F);
}

TEST_F(WireFaults, AZeroThatIsSetBehindABrokenWireStaysAZero) {
  Apri(17);
  EXPECT_TRUE(filo->Guasta("filo(AIW2)", true));
  filo->Entra({.Che = Cosa::Regola, .Valore = 0, .Testo = "UpD1"});
  EXPECT_TRUE(filo->Guasta("filo(AIW2)", false));
  EXPECT_EQ(plc.Volt_AI[1], 0.0F);
}

TEST_F(WireFaults, TheSwitchesOfThePanelHaveNoWireToBreak) {
  Apri(0);
  filo->chkSim(true);
  plc.SI[0].Stato_I("10101010");
  EXPECT_TRUE(filo->Guasta("filo(I0.0)", true));
  EXPECT_EQ(plc.SI[0].Stato_I(), "10101010");
  filo->chkSim(false);
  EXPECT_EQ(Ingressi()[0], '0');
}

TEST_F(WireFaults, AnOpenedPlantHasWholeWiresAgain) {
  Apri(0);
  filo->Guasta("filo(I0.0)", true);
  filo->Chiudi();
  filo.reset();
  Apri(0);
  EXPECT_FALSE(filo->Guastato("filo(I0.0)"));
  EXPECT_EQ(Ingressi()[0], '1');
}

class WireNames : public Banco_Impianto, public ::testing::WithParamInterface<const char*> {};

TEST_P(WireNames, ThatTheExerciseDoesNotHaveAreRefused) {
  Apri(0);
  const std::string prima = Ingressi();
  EXPECT_FALSE(filo->Guasta(GetParam(), true));
  EXPECT_FALSE(filo->Guastato(GetParam()));
  EXPECT_EQ(Ingressi(), prima);
}

INSTANTIATE_TEST_SUITE_P(All, WireNames,
                         ::testing::Values("", "filo", "filo()", "filo(I0.5)", "filo(I1.0)",
                                           "filo(I2.0)", "filo(I0.8)", "filo(I0.0", "filo(Q0.0)",
                                           "filo(i0.0)", "rotto(I0.0)", "filo(AIW0)", "filo(AIW6)",
                                           "filo(AIW1)", "incollato(AIW0)", "filo(I0.0) ",
                                           "incollato(I0.00)"));

TEST(FaultWords, FollowTheWiringWhereTheTableCallsAButtonOtherwise) {
  // In this exercise SB1 and SB2 are told crosswise: what rests closed is the stop.
  const std::string riposo = "1000011000000000";
  const std::vector<Guasto_Impianto> guasti = Guasti_Di(Tabella_Esercizi()[2], riposo);
  const auto sb1 = std::ranges::find(guasti, "filo(I0.0)", &Guasto_Impianto::Nome);
  EXPECT_THAT(sb1->In_Officina, StartsWith("Come se qualcuno tenesse premuto"));
}

}  // namespace tavorno::prova
