// SPDX-License-Identifier: GPL-3.0-or-later
// What each bench has once: its texts, air valve, commands, lamps and captions.
#include "pneumatic_bed.h"

namespace tavorno::prova {

using ::testing::ElementsAreArray;

/// A bench as its sheet tells it.
struct Prova_Banco {
  const char* Nome;
  const Schema_Pneumatico* Schema;
  const char* Stato_I;
  float Altezza;  // of the picture
  int Uscita_Aria;
  float Aria_Aperta, Aria_Chiusa;
  const char *Voce_Aria, *Voce_Set, *Voce_Reset;
  int Selettore, Emergenza;
  std::vector<Prova_Pulsante> Pulsanti;
  /// In the order in which the outputs act: position, figure, picture.
  std::vector<std::tuple<int, const char*, const char*>> Lampade;
};

// clang-format off
const std::vector<Prova_Banco> banchi = {
    {"Us04", &Schema_Pist_1, "0100010100000000", 3575, 1, 810, 540,
     "Apri Valvola", "Set Manuale", "Reset Manuale", 1, 8,
     {{"imgSB1", 4, '1', '0', "imgVON", "imgVOFF"}, {"imgSB2", 5, '1', '0', "imgPBON", "imgPBOF"},
      {"imgSB3", 6, '0', '1', "imgPGr1", "imgPGr0"}, {"imgSB4", 7, '1', '0', "imgPBON", "imgPBOF"}},
     {{5, "imgHL2", "imgLV"}, {4, "imgHL1", "imgLB"}}},
    {"Us05", &Schema_CicloQ, "0100101011000000", 3575, 1, 2260, 1980,
     "Apri Distributore", "Set Valvola", "Reset Valvola", 1, 9,
     {{"imgSB3", 2, '0', '1', "imgPGr1", "imgPGr0"}, {"imgSB1", 3, '1', '0', "imgVON", "imgVOFF"},
      {"imgSB2", 4, '1', '0', "imgPBON", "imgPBOF"}, {"imgSB4", 10, '0', '1', "imgPBON", "imgPBOF"}},
     {{6, "imgLM2", "imgLB"}, {7, "imgLS2", "imgLV"}}},
    {"Us06", &Schema_Pist_3, "1010100001110000", 2780, 1, 750, 480,
     "Apri Valvola", "Apri Valvola", "Chiudi Valvola", 7, 12,
     {{"imgSB1", 8, '1', '0', "imgVON", "imgVOFF"}, {"imgSB2", 9, '1', '0', "imgPBON", "imgPBOF"},
      {"imgSB3", 10, '0', '1', "imgPGr1", "imgPGr0"}, {"imgSB4", 11, '0', '1', "imgPBON", "imgPBOF"}},
     {{8, "imgL1", "imgLB"}, {9, "imgL2", "imgLV"}, {10, "imgL3", "imgLV"},
      {11, "imgL4", "imgLB"}, {12, "imgL5", "imgLV"}, {13, "imgL6", "imgLR"}}},
    {"Us07", &Schema_Pist_4, "1010101000101000", 4955, 9, 880, 600,
     "Apri Valvola", "Apri Valvola", "Chiudi Valvola", 14, 13,
     {{"imgSB1", 9, '1', '0', "imgVON", "imgVOFF"}, {"imgSB2", 10, '1', '0', "imgPBON", "imgPBOF"},
      {"imgSB3", 11, '0', '1', "imgPGr1", "imgPGr0"}, {"imgSB4", 12, '1', '0', "imgPBON", "imgPBOF"}},
     {{10, "imgL1", "imgLB"}, {11, "imgL2", "imgLV"}, {12, "imgL3", "imgLV"}}},
    {"Us15", &Schema_ctr_Pist_32, "1010100001010000", 2780, 1, 750, 480,
     "Apri Valvola", "Apri Valvola", "", 7, 12,
     {{"imgSB1", 8, '1', '0', "imgVON", "imgVOFF"}, {"imgSB2", 9, '1', '0', "imgPBON", "imgPBOF"},
      {"imgSB3", 10, '0', '1', "imgPGr1", "imgPGr0"}, {"imgSB4", 11, '1', '0', "imgPBON", "imgPBOF"}},
     {{5, "imgL1", "imgLB"}, {6, "imgL2", "imgLV"}, {7, "imgL3", "imgLV"},
      {8, "imgL4", "imgLB"}, {9, "imgL5", "imgLR"}, {10, "imgL6", "imgLR"}}},
};
// clang-format on

class PneumaticBench : public ::testing::TestWithParam<Prova_Banco> {
 public:
  const Prova_Banco& atteso = GetParam();
  Banco_Aria banco{*atteso.Schema};
  Banco_Pneumatico& macchina = banco.Macchina;

  std::vector<Prova_Cilindro> Cilindri() const {
    std::vector<Prova_Cilindro> suoi;
    for (const Prova_Cilindro& riga : cilindri)
      if (riga.Schema == atteso.Schema) suoi.push_back(riga);
    return suoi;
  }
};

TEST_P(PneumaticBench, StartsWithItsDefaults) {
  EXPECT_EQ(macchina.Stato_I(), atteso.Stato_I);
  EXPECT_EQ(macchina.Stato_Q(), "0000000000000000");
  EXPECT_FALSE(macchina.Aria());
  ASSERT_NE(macchina.Trova_Regolatore("ME_Speed"), nullptr);
  EXPECT_EQ(macchina.Trova_Regolatore("ME_Speed")->Valore, 1);
  for (int n = 0; n < 2 * static_cast<int>(Cilindri().size()); ++n)
    EXPECT_EQ(macchina.Passo(n), 20);
  EXPECT_EQ(atteso.Schema->Cilindri.size(), Cilindri().size());
}

TEST_P(PneumaticBench, FitsItsWindow) {
  Verifica_Geometria(macchina, 9000, atteso.Altezza);
  macchina.Stato_Q("1111111111111111");
  banco.Tempo.Avanza(10000);
  Verifica_Geometria(macchina, 9000, atteso.Altezza);
}

TEST_P(PneumaticBench, AirValveShowsItselfAndColoursTheTrunk) {
  EXPECT_EQ(banco.Left("imgV0"), atteso.Aria_Chiusa);
  EXPECT_EQ(banco.Vede("imgV0"), "imgV0OF");
  EXPECT_EQ(banco.Vede("cmdDis"), "imgP1(0)");
  EXPECT_EQ(banco.Linea("linT"), rosso);
  banco.Eccita({atteso.Uscita_Aria});
  EXPECT_TRUE(macchina.Aria());
  EXPECT_EQ(banco.Left("imgV0"), atteso.Aria_Aperta);
  EXPECT_EQ(banco.Vede("imgV0"), "imgV0ON");
  EXPECT_EQ(banco.Vede("cmdDis"), "imgP1(1)");
  EXPECT_EQ(banco.Linea("linT"), verde);
  banco.Eccita({});
  EXPECT_FALSE(macchina.Aria());
  EXPECT_EQ(banco.Left("imgV0"), atteso.Aria_Chiusa);
  EXPECT_EQ(banco.Vede("imgV0"), "imgV0OF");
  EXPECT_EQ(banco.Vede("cmdDis"), "imgP1(0)");
  EXPECT_EQ(banco.Linea("linT"), rosso);
}

TEST_P(PneumaticBench, ManualAirIsOpenWhileHeldWhateverTheOutputSays) {
  EXPECT_TRUE(macchina.Premi("cmdDis"));
  EXPECT_TRUE(macchina.Aria());
  EXPECT_EQ(macchina.Stato_Q(), "0000000000000000");
  EXPECT_TRUE(macchina.Rilascia("cmdDis"));
  EXPECT_FALSE(macchina.Aria());

  banco.Eccita({atteso.Uscita_Aria});
  macchina.Premi("cmdDis");
  macchina.Rilascia("cmdDis");
  EXPECT_FALSE(macchina.Aria()) << "the release shuts the air although the coil is on";
  banco.Eccita({atteso.Uscita_Aria});
  EXPECT_TRUE(macchina.Aria()) << "the next let applies the coil again";
}

TEST_P(PneumaticBench, CommandsCarryTheirCaptions) {
  EXPECT_EQ(macchina.Disegno["cmdDis"].Caption(), atteso.Voce_Aria);
  for (const Prova_Cilindro& riga : Cilindri()) {
    EXPECT_EQ(macchina.Disegno[riga.Cmd_Set].Caption(), atteso.Voce_Set);
    if (riga.Reset) {
      EXPECT_EQ(macchina.Disegno[riga.Cmd_Reset].Caption(), atteso.Voce_Reset);
    }
  }
}

TEST_P(PneumaticBench, PushButtonsActWhileHeld) {
  ASSERT_EQ(atteso.Schema->Pulsanti.size(), atteso.Pulsanti.size());
  for (const Prova_Pulsante& pulsante : atteso.Pulsanti) {
    const std::string riposo = macchina.Stato_I();
    std::string premuto = riposo;
    premuto[static_cast<std::size_t>(pulsante.Posizione - 1)] = pulsante.Giu;
    Ascolto ascolto(macchina);
    EXPECT_EQ(Ingresso(macchina, pulsante.Posizione), pulsante.Su) << pulsante.Nome;
    EXPECT_TRUE(macchina.Premi(pulsante.Nome));
    EXPECT_EQ(banco.Vede(pulsante.Nome), pulsante.Picture_Giu);
    EXPECT_TRUE(macchina.Rilascia(pulsante.Nome));
    EXPECT_EQ(banco.Vede(pulsante.Nome), pulsante.Picture_Su);
    EXPECT_THAT(ascolto.Sentiti, ElementsAreArray({premuto, premuto, riposo, riposo}))
        << pulsante.Nome;
  }
}

TEST_P(PneumaticBench, SelectorChangesOverAtEachClick) {
  EXPECT_EQ(banco.Vede("imgCom"), "imgCS");
  EXPECT_EQ(Ingresso(macchina, atteso.Selettore), '0');
  EXPECT_TRUE(macchina.Clic("imgCom"));
  EXPECT_EQ(banco.Vede("imgCom"), "imgCD");
  EXPECT_EQ(Ingresso(macchina, atteso.Selettore), '1');
  EXPECT_TRUE(macchina.Clic("imgCom"));
  EXPECT_EQ(banco.Vede("imgCom"), "imgCS");
  EXPECT_EQ(macchina.Stato_I(), atteso.Stato_I);
  EXPECT_FALSE(macchina.Aria()) << "opening the air is the program's work";
}

TEST_P(PneumaticBench, EmergencyLatchesAtAClickAndIsFreedByTheNext) {
  ASSERT_EQ(Ingresso(macchina, atteso.Emergenza), '1');
  EXPECT_EQ(banco.Vede("imgCEM"), "imgCC");
  EXPECT_EQ(banco.Vede("ImgEm"), "imgROFF");
  const auto Clic = [&] {
    macchina.Premi("ImgEm");
    EXPECT_EQ(banco.Vede("ImgEm"), "imgRON");
    macchina.Rilascia("ImgEm");
    EXPECT_EQ(banco.Vede("ImgEm"), "imgROFF");
    macchina.Clic("ImgEm");
  };
  Ascolto ascolto(macchina);
  Clic();
  EXPECT_EQ(Ingresso(macchina, atteso.Emergenza), '0');
  EXPECT_EQ(banco.Vede("imgCEM"), "imgCA");
  EXPECT_EQ(ascolto.Sentiti.size(), 2U);
  Clic();
  EXPECT_EQ(macchina.Stato_I(), atteso.Stato_I);
  EXPECT_EQ(banco.Vede("imgCEM"), "imgCC");
  EXPECT_EQ(ascolto.Sentiti.size(), 4U);
}

TEST_P(PneumaticBench, LampsFollowTheirOutputsAlone) {
  for (const auto& [posizione, nome, picture] : atteso.Lampade)
    Verifica_Lampada(macchina, posizione, nome, picture);
}

TEST_P(PneumaticBench, OutputsActInTheirOrder) {
  // all at once; each figure is noted when it first changes
  macchina.Disegno.Prendi_Cambiate();
  macchina.Stato_Q("1111111111111111");
  std::vector<std::string> visti;
  for (const Figura* figura : macchina.Disegno.Prendi_Cambiate())
    if (!figura->Nome.starts_with("lin") && !Filo_Del_Plc(*figura)) visti.push_back(figura->Nome);
  std::vector<std::string> attesi = {"imgV0", "cmdDis"};
  for (const Prova_Cilindro& riga : Cilindri()) {
    attesi.insert(attesi.end(), {riga.Cmd_Set, riga.Valvola});
    if (riga.Reset) attesi.emplace_back(riga.Cmd_Reset);
  }
  for (const auto& [posizione, nome, picture] : atteso.Lampade) attesi.emplace_back(nome);
  EXPECT_THAT(visti, ElementsAreArray(attesi));
}

TEST_P(PneumaticBench, OutputsWithoutUseChangeNothing) {
  std::string altri = "1111111111111111";
  const auto Spegni = [&](int posizione) {
    if (posizione) altri[static_cast<std::size_t>(posizione - 1)] = '0';
  };
  Spegni(atteso.Uscita_Aria);
  for (const Prova_Cilindro& riga : Cilindri()) {
    Spegni(riga.Set);
    Spegni(riga.Reset);
  }
  for (const auto& una : atteso.Lampade) Spegni(std::get<0>(una));
  const auto prima = Aspetto(macchina);
  macchina.Stato_Q(altri);
  EXPECT_EQ(Aspetto(macchina), prima);
  EXPECT_EQ(macchina.Stato_I(), atteso.Stato_I);
}

INSTANTIATE_TEST_SUITE_P(All, PneumaticBench, ::testing::ValuesIn(banchi),
                         [](const auto& riga) { return std::string(riga.param.Nome); });

}  // namespace tavorno::prova
