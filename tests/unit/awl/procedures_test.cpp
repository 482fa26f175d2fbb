// SPDX-License-Identifier: GPL-3.0-or-later
// Procedures come and go, and networks are added.
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

std::string Testa(const std::string& nome) {
  return Banco_Progetto::Righe({"// " + nome, "//COMMENTI DEL SOTTOPROGRAMMA", "//", ""});
}

std::string Network(int numero) {
  return Banco_Progetto::Righe(
      {"NETWORK " + std::to_string(numero) + "       //TITOLO DEL SEGMENTO (una riga)", "//",
       "//COMMENTI DEL SEGMENTO", "//"});
}

}  // namespace

class Procedures : public Banco_Progetto {
 protected:
  Lista Nomi() {
    Lista nomi;
    for (int i = 1; i <= progetto.Num_SBR; ++i) nomi.push_back(progetto.Tab_SBR[i].Nome);
    return nomi;
  }
  void Nuove(int quante) {
    for (int i = 0; i < quante; ++i) progetto.New_Sub();
  }
};

TEST_F(Procedures, BeginWithTheDefaultText) {
  progetto.TabSP = {""};
  progetto.New_Sub();
  EXPECT_EQ(progetto.Num_SBR, 1);
  EXPECT_EQ(progetto.Tab_SBR[1], (Riga_SBR{1, "SBR_0", "SBR0", 1, Testa("SBR_0") + Network(1)}));
  EXPECT_EQ(progetto.txtP, Testa("SBR_0") + Network(1));
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  EXPECT_EQ(progetto.Scheda, 1);
  EXPECT_TRUE(progetto.cmdDelP);
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(Procedures, AreNumberedOn) {
  Nuove(3);
  EXPECT_EQ(progetto.Tab_SBR[3], (Riga_SBR{3, "SBR_2", "SBR2", 3, Testa("SBR_2") + Network(1)}));
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  EXPECT_EQ(progetto.Scheda, 3);
}

TEST_F(Procedures, FillTheGapOfARemovedOne) {
  Nuove(3);
  progetto.Scegli_Procedura(2);
  progetto.Remove_Sub();
  EXPECT_EQ(Nomi(), (Lista{"SBR_0", "SBR_2"}));
  EXPECT_EQ(progetto.Tab_SBR[1].Num, 1);
  EXPECT_EQ(progetto.Tab_SBR[2].Num, 3);

  const Riga_SBR ultima = progetto.Tab_SBR[2];
  progetto.New_Sub();
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  EXPECT_EQ(progetto.Tab_SBR[2], (Riga_SBR{2, "SBR_1", "SBR1", 2, Testa("SBR_1") + Network(1)}));
  EXPECT_EQ(progetto.Tab_SBR[3], ultima);  // all five fields move
  EXPECT_EQ(progetto.Scheda, 2);
}

TEST_F(Procedures, FillAGapAtTheBeginning) {
  Nuove(2);
  progetto.Scegli_Procedura(1);
  progetto.Remove_Sub();
  progetto.New_Sub();
  EXPECT_EQ(Nomi(), (Lista{"SBR_0", "SBR_1"}));
  EXPECT_EQ(progetto.Scheda, 1);
}

TEST_F(Procedures, EndAtSixtyFourWithABox) {
  Nuove(64);
  EXPECT_TRUE(avvisi.empty());
  const Lista nomi = Nomi();
  const std::string testo = progetto.txtP;
  progetto.New_Sub();
  EXPECT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(progetto.New_SubTxt("x"), 0);
  EXPECT_EQ(avvisi.size(), 2U);
  EXPECT_EQ(progetto.Num_SBR, 64);
  EXPECT_EQ(Nomi(), nomi);
  EXPECT_EQ(progetto.TabSP, nomi);
  EXPECT_EQ(progetto.Scheda, 64);
  EXPECT_EQ(progetto.txtP, testo);
}

TEST_F(Procedures, FromATextHaveTheShortHead) {
  progetto.TabSP = {""};
  EXPECT_EQ(progetto.New_SubTxt("LD I0.0"), 1);
  EXPECT_EQ(progetto.Tab_SBR[1], (Riga_SBR{1, "SBR_0", "SBR0", 1, Testa("SBR_0") + "LD I0.0"}));
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  EXPECT_EQ(progetto.txtP, "");  // shown by the caller
}

TEST_F(Procedures, FromATextFillAGapToo) {
  Nuove(3);
  progetto.Scegli_Procedura(2);
  progetto.Remove_Sub();
  EXPECT_EQ(progetto.New_SubTxt("x"), 2);
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_0", "SBR_1", "SBR_2"}));
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, Testa("SBR_1") + "x");
}

TEST_F(Procedures, RemovingNoneShowsABox) {
  progetto.Remove_Sub();
  EXPECT_EQ(Testi_Avvisi(), Lista{"Attenzione!: Nessuna procedura inserita!"});
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
}

TEST_F(Procedures, RemovingOneShowsTheNextWithoutAQuestion) {
  Nuove(3);
  progetto.Scegli_Procedura(1);
  const Riga_SBR seconda = progetto.Tab_SBR[2];
  const Riga_SBR terza = progetto.Tab_SBR[3];
  progetto.Remove_Sub();
  EXPECT_TRUE(avvisi.empty());
  EXPECT_EQ(progetto.Num_SBR, 2);
  EXPECT_EQ(progetto.Tab_SBR[1], seconda);
  EXPECT_EQ(progetto.Tab_SBR[2], terza);
  EXPECT_EQ(progetto.TabSP, (Lista{"SBR_1", "SBR_2"}));
  EXPECT_EQ(progetto.txtP, seconda.Testo);
  EXPECT_TRUE(progetto.cmdDelP);
}

TEST_F(Procedures, RemovingTheLastOfSomeLeavesItsTextOnScreen) {
  Nuove(2);
  progetto.Scrivi_Procedura("NOT");
  progetto.Remove_Sub();
  EXPECT_EQ(Nomi(), Lista{"SBR_0"});
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  EXPECT_EQ(progetto.txtP, "NOT");
  progetto.Scrivi_Procedura("NOP");  // belongs to no procedure
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, Testa("SBR_0") + Network(1));
  progetto.Remove_Sub();  // and neither does a second command
  EXPECT_EQ(Nomi(), Lista{"SBR_0"});
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
  progetto.Scegli_Procedura(1);
  EXPECT_EQ(progetto.txtP, Testa("SBR_0") + Network(1));
}

TEST_F(Procedures, RemovingTheOnlyOneEmptiesThePage) {
  progetto.New_Sub();
  progetto.CmdNet_1 = true;
  progetto.Remove_Sub();
  EXPECT_EQ(progetto.Num_SBR, 0);
  EXPECT_EQ(progetto.txtP, "");
  EXPECT_FALSE(progetto.cmdDelP);
  EXPECT_FALSE(progetto.CmdNet_1);
  progetto.New_Sub();
  EXPECT_EQ(progetto.TabSP, Lista{"SBR_0"});
}

// ---- texts and networks -------------------------------------------------------------------------

TEST_F(Procedures, TypingStoresTheTextOfTheSelectedRow) {
  Nuove(2);
  progetto.Scegli_Procedura(1);
  progetto.Modificato = 0;
  progetto.Scrivi_Procedura("NOT");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, "NOT");
  EXPECT_EQ(progetto.Tab_SBR[2].Testo, Testa("SBR_1") + Network(1));
  EXPECT_EQ(progetto.Modificato, -1);
}

TEST_F(Procedures, TypingWithoutProceduresStoresNothing) {
  progetto.Scrivi_Procedura("NOT");
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(progetto.Tab_SBR[0].Testo, "");
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, "");
}

TEST_F(Procedures, MerelySelectingOneCountsAsAChange) {
  Nuove(2);
  progetto.Modificato = 0;
  progetto.Scegli_Procedura(1);
  EXPECT_EQ(progetto.txtP, Testa("SBR_0") + Network(1));
  EXPECT_EQ(progetto.Modificato, -1);
}

struct Caso_Network {
  std::string nome;
  std::string testo;
  int numero;
};

class AddedNetwork : public Banco_Progetto, public testing::WithParamInterface<Caso_Network> {};

TEST_P(AddedNetwork, TakesTheCountOfNetworksPlusOne) {
  progetto.Scrivi_Main(GetParam().testo);
  progetto.Modificato = 0;
  progetto.CmdNet(0);
  EXPECT_EQ(progetto.txtList, GetParam().testo + Network(GetParam().numero));
  EXPECT_EQ(progetto.Testo_Main, progetto.txtList);
  EXPECT_EQ(progetto.Modificato, -1);

  progetto.New_Sub();
  progetto.Scrivi_Procedura(GetParam().testo);
  progetto.CmdNet(1);
  EXPECT_EQ(progetto.txtP, GetParam().testo + Network(GetParam().numero));
  EXPECT_EQ(progetto.Tab_SBR[1].Testo, progetto.txtP);
}

INSTANTIATE_TEST_SUITE_P(
    AllTexts, AddedNetwork,
    testing::Values(Caso_Network{"Empty", "", 1}, Caso_Network{"NoNetwork", "//a\r\nNOT\r\n", 1},
                    Caso_Network{"Two", "NETWORK 1\r\nNOT\r\nNETWORK 7 //a\r\n", 3},
                    Caso_Network{"ALastLineWithoutCrIsNotCounted", "NETWORK 1\r\nNETWORK 2", 2},
                    Caso_Network{"AnIndentedLineIsNotCounted", " NETWORK 1\r\n//NETWORK\r\n", 1},
                    Caso_Network{"LowerCaseIsNotCounted", "network 1\r\n", 1},
                    Caso_Network{"LoneCrEndsALine", "NETWORK 1\rNETWORK 2\r", 3}),
    [](const auto& caso) { return caso.param.nome; });

}  // namespace tavorno::prova
