// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants/exercises.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>

namespace tavorno::prova {

using ::testing::ElementsAre;

struct Atteso_Esercizio {
  const char *Voce, *Host, *Nome, *Classe, *Pagina, *Titolo, *Testo_I, *Testo_Q;
  int Altezza_Chiusa, Altezza_Aperta;
};

// clang-format off
constexpr Atteso_Esercizio attesi[] = {
    {"00-Marcia/Arresto M.A.T.",
     "frmMA", "MA", "KM", "US-00.htm",
     " 00-Marcia/arresto M.A.T.",
     "MA_Stato_I", "MA_Stato_Q", 3495, 5445},
    {"01-Inversione di Marcia M.A.T.",
     "frmInversione", "INV", "INV", "US-01.htm",
     " 01-Inversione di Marcia M.A.T.",
     "INV_StatoI", "INV_StatoQ", 4350, 6405},
    {"02-Avviatore Stella-Triangolo",
     "frmSteTri", "ST", "ST", "US-02.htm",
     " 02-Teleavviatore Stella/Triangolo per M.A.T.",
     "ST_StatoI", "ST_StatoQ", 4110, 6210},
    {"03-Ciclo Automatico di due unità",
     "frmSTC", "ST", "ST2", "US-03.htm",
     " 03-Ciclo automatico per due unità operatrici.",
     "ST_StatoI", "ST_StatoQ", 4230, 6345},
    {"04-Ciclo Elettropneumatico con un cilindro e valvola bistabile",
     "frm1P", "S1", "Pist_1", "US-04.htm",
     " 04-Ciclo elettropneumatico con un cilindro.",
     "ME_StatoI", "ME_StatoQ", 4575, 6645},
    {"05-Ciclo Elettropneumatico con due cilindri e valvole bistabili",
     "frmCicloQ", "P1", "CicloQ", "US-05.htm",
     " 05-Ciclo Elettropneumatico con due cilindri.",
     "ME_StatoI", "ME_StatoQ", 4575, 6645},
    {"06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili",
     "frm3P", "P3", "Pist_3", "US-06.htm",
     " 06-Ciclo Elettropneumatico con tre cilindri e valvole bistabili.",
     "ME_StatoI", "ME_StatoQ", 3780, 5820},
    {"07-Ciclo elettropneumatico con 4 cilindri e valvole bistabili",
     "frm4P", "P4", "Pist_4", "US-07.htm",
     " 07-Ciclo Elettropneumatico con quattro cilindri.",
     "ME_StatoI", "ME_StatoQ", 5955, 8010},
    {"08-Controllo Livello serbatoio",
     "frmLivello", "LV", "Ctr_Level0", "US-08.htm",
     " 08-Controllo Livello Serbatoio.",
     "ME_StatoI", "ME_StatoQ", 3765, 5775},
    {"09-Cancello Automatico",
     "frmCancello", "CA", "Ctr_Canc", "US-09.htm",
     " 09-Automazione Cancello Elettrico.",
     "ME_StatoI", "ME_StatoQ", 3555, 5565},
    {"10-Miscelatore di due liquidi con controllo temperatura",
     "frmMiscela", "ML", "ctr_Misc", "US-10.htm",
     " 10-Miscelatore di due liquidi con controllo temperatura.",
     "ME_StatiI", "ME_StatoQ", 5400, 7425},
    {"11-Garage Automatico",
     "frmGar", "GA", "ctr_Garage", "US-11.htm",
     " 11-Garage automatico.",
     "ME_StatoI", "ME_StatoQ", 6210, 8310},
    {"12-Miscelatore di due liquidi ",
     "frmMisc2", "ML", "ctr_Mis2", "US-12.htm",
     " 12-Miscelatore di due liquidi",
     "ME_StatoI", "ME_StatoQ", 3795, 5865},
    {"13-Miscelatore a quattro ingressi",
     "frmMisc4", "MS", "ctr_Mis4", "US-13.htm",
     " 13-Miscelatore di liquidi a quattro ingressi.",
     "ME_StatoI", "ME_StatoQ", 4305, 6375},
    {"14-Ascensore didattico",
     "frmAsc", "MS", "ctr_Ascensore", "US-14.htm",
     " 14-Ascensore didattico a quattro piani.",
     "ME_StatoI", "ME_StatoQ", 5955, 8025},
    {"15-Ciclo elettropneumatico con tre cilindri e valvole monostabili",
     "frmPist32", "MS", "ctr_Pist_32", "US-15.htm",
     " 15-Ciclo elettropneumatico con tre cilindri e valvole monostabili.",
     "ME_StatoI", "ME_StatoQ", 3600, 5685},
    {"16-Semaforo Pedonale",
     "frmSemaf1", "CA", "ctr_Semaf1", "US-16.htm",
     " 16-Semaforo Pedonale.",
     "ME_StatoI", "ME_StatoQ", 2865, 4725},
    {"17-Controllo analogico di posizione",
     "frmAssi", "MS", "ctr_Assi", "US-17.htm",
     " 17-Controllo di Posizione.",
     "ME_StatoI", "ME_StatoQ", 4095, 6210},
};
// clang-format on

class ExerciseRow : public ::testing::TestWithParam<int> {};

TEST_P(ExerciseRow, HasItsTextsAndHeights) {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  const Atteso_Esercizio& atteso = attesi[GetParam()];
  EXPECT_EQ(esercizio.Indice, GetParam());
  EXPECT_STREQ(esercizio.Voce, atteso.Voce);
  EXPECT_STREQ(esercizio.Host, atteso.Host);
  EXPECT_STREQ(esercizio.Nome, atteso.Nome);
  EXPECT_STREQ(esercizio.Classe, atteso.Classe);
  EXPECT_STREQ(esercizio.Pagina, atteso.Pagina);
  EXPECT_STREQ(esercizio.Titolo, atteso.Titolo);
  EXPECT_STREQ(esercizio.Testo_I, atteso.Testo_I);
  EXPECT_STREQ(esercizio.Testo_Q, atteso.Testo_Q);
  EXPECT_EQ(esercizio.Altezza_Chiusa, atteso.Altezza_Chiusa);
  EXPECT_EQ(esercizio.Altezza_Aperta, atteso.Altezza_Aperta);
}

TEST_P(ExerciseRow, HasCaptionsThatItsWindowMayBear) {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  const std::set<std::string> ammesse = {"Assegn. I/O", "Assegnazione I/O", "Assegnazione  I/O",
                                         "Ass. I/O", "Ass.  I/O"};
  EXPECT_TRUE(ammesse.contains(esercizio.Voce_IO)) << esercizio.Voce_IO;
  EXPECT_STREQ(esercizio.Scheda_2, GetParam() == 0 ? "Ipostazioni" : "Impostazioni");
}

TEST_P(ExerciseRow, SendsAnalogValuesWhereThePlantHasThem) {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  const std::set<std::string> con_analogici = {"frmMiscela", "frmMisc2", "frmMisc4", "frmAsc"};
  EXPECT_EQ(esercizio.Analogici, con_analogici.contains(esercizio.Host));
}

TEST_P(ExerciseRow, ListensToChkSimExceptTheCrossing) {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  EXPECT_EQ(esercizio.Ascolta_chkSim, GetParam() != 16);
}

TEST_P(ExerciseRow, OnlyTheAxisIsSwitchedOnByItsHost) {
  const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(GetParam())];
  EXPECT_EQ(esercizio.Attivare ? std::string(esercizio.Attivare) : "",
            GetParam() == 17 ? "Enabled" : "");
}

TEST_P(ExerciseRow, TableGroupsInputsBeforeOutputsInOrderOfAddress) {
  const std::regex cella("[IQ][01]\\.[0-7]|A[IQ]W[024]");
  std::set<std::string> simboli;
  std::string prima;
  for (const Riga_IO& riga : Tabella_Esercizi()[static_cast<std::size_t>(GetParam())].Righe_IO) {
    const std::string indirizzo = riga.Indirizzo;
    EXPECT_TRUE(std::regex_match(indirizzo, cella)) << indirizzo;
    EXPECT_TRUE(simboli.insert(riga.Simbolo).second) << riga.Simbolo;
    if (indirizzo.starts_with("A")) continue;  // analog words stand where the sheet has them
    EXPECT_GT(indirizzo, prima);
    prima = indirizzo;
  }
  EXPECT_FALSE(simboli.empty());
}

INSTANTIATE_TEST_SUITE_P(All, ExerciseRow,
                         ::testing::Range(0, static_cast<int>(std::size(attesi))));

TEST(ExerciseTable, MakesFreshPlants) {
  Orologio orologio;
  Plc plc(orologio);
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    ASSERT_NE(esercizio.Crea, nullptr) << esercizio.Classe;
    const auto impianto = esercizio.Crea(plc);
    EXPECT_EQ(impianto->Stato_I().size(), 16U) << esercizio.Classe;
    EXPECT_EQ(impianto->Stato_Q(), "0000000000000000") << esercizio.Classe;
    std::set<std::string> nomi;
    for (const Figura& figura : impianto->Disegno)
      EXPECT_TRUE(nomi.insert(figura.Nome).second) << esercizio.Classe << " " << figura.Nome;
    EXPECT_FALSE(nomi.empty()) << esercizio.Classe;
  }
}

TEST(ExerciseTable, HasTheRowsToldHereAndNoOther) {
  EXPECT_EQ(Tabella_Esercizi().size(), std::size(attesi));
  EXPECT_STREQ(Scheda_1, " Assegnazioni I/0");
}

struct Atteso_Cursore {
  int Esercizio;
  const char *Nome, *Cornice;
  int Minimo, Massimo, Passo_Grande, Inizio;
  const char* Scrive;         ///< "" for none
  int Al_Minimo, Al_Massimo;  ///< property at the ends of the slider
};

// clang-format off
constexpr Atteso_Cursore cursori_attesi[] = {
    {4,  "SlidP", "Pressione Aria", 1, 10, 5, 1, "ME_Speed", 1, 10},
    {5,  "SlidP", "Pressione Aria", 1, 10, 5, 1, "ME_Speed", 1, 10},
    {6,  "SlidP", "Pressione Aria", 1, 10, 5, 1, "ME_Speed", 1, 10},
    {7,  "SlidP", "Pressione Aria", 1, 10, 2, 1, "ME_Speed", 1, 10},
    {10, "Slid(0)", "Portata Pompa P1", 1, 6, 2, 3, "ME_Speed1", 600, 100},
    {10, "Slid(1)", "Portata Pompa P2", 1, 6, 2, 3, "ME_Speed2", 600, 100},
    {10, "Slid(2)", "Portata Pompa P3", 1, 6, 2, 3, "ME_SpeedS", 600, 100},
    {11, "slid1(0)", "Velocità Azioni", 1, 10, 2, 8, "ME_Speed", 10, 100},
    {11, "slid1(2)", "Velocità Carico", 10, 50, 10, 10, "", 0, 0},
    {12, "Slid(0)", "Portata Pompa P1", 1, 6, 2, 5, "ME_SpedP1", 600, 100},
    {12, "Slid(1)", "Portata Pompa P2", 1, 6, 2, 5, "ME_SpedP2", 600, 100},
    {12, "Slid(2)", "Portata Scarico", 1, 6, 2, 6, "ME_SpedS", 600, 100},
    {13, "slid1(0)", "Velocità Carico", 10, 50, 10, 30, "ME_SpedP", 500, 100},
    {13, "slid1(1)", "Velocità Scarico", 10, 50, 10, 20, "ME_SpedS", 500, 100},
    {14, "slid1(0)", "Velocità Cabina", 1, 5, 2, 2, "ME_DeltaS", 10, 50},
    {14, "slid1(1)", "Isteresi FC Piani", 1, 20, 5, 5, "ME_DeltaP", 10, 200},
    {15, "slid1", "Pressione Aria", 1, 10, 2, 5, "ME_Speed", 1, 10},
};
// clang-format on

TEST(ExerciseTable, SlidersAreThese) {
  std::size_t visti = 0;
  std::map<int, std::size_t> posto;
  for (const Atteso_Cursore& atteso : cursori_attesi) {
    const Esercizio& esercizio = Tabella_Esercizi()[static_cast<std::size_t>(atteso.Esercizio)];
    const std::size_t n = posto[atteso.Esercizio]++;
    ASSERT_LT(n, esercizio.Cursori.size()) << atteso.Esercizio;
    const Cursore& cursore = esercizio.Cursori[n];
    EXPECT_STREQ(cursore.Nome, atteso.Nome);
    EXPECT_STREQ(cursore.Cornice, atteso.Cornice);
    EXPECT_EQ(cursore.Minimo, atteso.Minimo) << atteso.Cornice;
    EXPECT_EQ(cursore.Massimo, atteso.Massimo) << atteso.Cornice;
    EXPECT_EQ(cursore.Passo_Piccolo, 1) << atteso.Cornice;
    EXPECT_EQ(cursore.Passo_Grande, atteso.Passo_Grande) << atteso.Cornice;
    EXPECT_EQ(cursore.Inizio, atteso.Inizio) << atteso.Cornice;
    EXPECT_EQ(cursore.Scrive ? std::string(cursore.Scrive) : "", atteso.Scrive);
    EXPECT_EQ(cursore.Zero + cursore.Pendenza * atteso.Minimo, atteso.Al_Minimo) << atteso.Cornice;
    EXPECT_EQ(cursore.Zero + cursore.Pendenza * atteso.Massimo, atteso.Al_Massimo)
        << atteso.Cornice;
    ++visti;
  }
  std::size_t tutti = 0;
  for (const Esercizio& esercizio : Tabella_Esercizi()) tutti += esercizio.Cursori.size();
  EXPECT_EQ(visti, tutti);
}

}  // namespace tavorno::prova
