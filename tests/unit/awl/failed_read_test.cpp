// SPDX-License-Identifier: GPL-3.0-or-later
// What a read that is given up leaves behind, and what it tells.
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

const std::string avviso_formato =
    "Errore!: Impossibile Caricare il progetto per errori nel formato!";
const std::string avviso_righe = "Errore!: Il progetto supera le 300 righe di istruzioni!";

std::string Sessantacinque_Procedure() {
  std::string byte;
  for (int i = 0; i < 65; ++i) {
    const std::string n = std::to_string(i);
    byte += "SUBROUTINE_BLOCK SBR_" + n + ":SBR" + n + "\r\n";
  }
  return byte;
}

}  // namespace

struct Caso_Rifiuto {
  std::string nome;
  std::string byte;
  int riga;           ///< of the file, 0 for the file as a whole
  std::string testo;  ///< of that line, UTF-8
  std::string avviso = avviso_formato;
};

class FailedRead : public Banco_Progetto, public testing::WithParamInterface<Caso_Rifiuto> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(Apri(File_Main({"NOT", "NOP"}) +
                     Righe({"SUBROUTINE_BLOCK SBR_0:SBR0", "NOT", "END_SUBROUTINE_BLOCK"})));
    ASSERT_TRUE(progetto.Crea_Progetto());
    progetto.Gestione_Voci(1);
    progetto.Modificato = -1;
    progetto.Compilato = -1;
    progetto.stB[0] = "File: prova.AWL";
  }

  void Aspetta_Vuoto() {
    EXPECT_EQ(progetto.Err_Lettura, -1);
    EXPECT_EQ(progetto.Num_SBR, 0);
    EXPECT_EQ(progetto.CPU.NRighe, 0);
    EXPECT_EQ(progetto.TabSP, Lista{""});
    EXPECT_EQ(progetto.File_Progetto, "");
    EXPECT_EQ(progetto.Testo_Main, "");
    EXPECT_EQ(progetto.txtList, "");
    EXPECT_EQ(progetto.txtP, "");
    EXPECT_EQ(progetto.stB,
              (std::array<std::string, 3>{"File:", "List: 0   SBR: 0", "Read Error"}));
    EXPECT_FALSE(progetto.Comandi_Attivi);
    EXPECT_FALSE(progetto.cmdDelP);
    EXPECT_EQ(progetto.Modificato, 0);
    EXPECT_EQ(progetto.Compilato, 0);
    EXPECT_EQ(progetto.NRighe_Prog, 0);
    EXPECT_EQ(progetto.etNR[2], "0");
  }
};

TEST_P(FailedRead, EmptiesTheProjectAndTellsWhere) {
  ASSERT_NE(progetto.NRighe_Prog, 0);
  ASSERT_TRUE(progetto.Comandi_Attivi);
  EXPECT_FALSE(Apri(GetParam().byte));
  Aspetta_Vuoto();
  EXPECT_EQ(progetto.Dettaglio.Riga, GetParam().riga);
  EXPECT_EQ(progetto.Dettaglio.Testo, GetParam().testo);
  EXPECT_NE(progetto.Dettaglio.Motivo, "");
}

TEST_P(FailedRead, ShowsItsBoxLastWhenAFileIsOpened) {
  Scrivi("altro.AWL", GetParam().byte);
  scelte = {"altro.AWL"};
  progetto.mnuFileOpen();
  Aspetta_Vuoto();
  ASSERT_FALSE(avvisi.empty());
  EXPECT_EQ(Testi_Avvisi().back(), GetParam().avviso);
}

INSTANTIATE_TEST_SUITE_P(
    AllCauses, FailedRead,
    testing::Values(
        Caso_Rifiuto{"InterruptBlock",
                     Banco_Progetto::File_Main({}) + "INTERRUPT_BLOCK INT_0:INT0\r\n", 6,
                     "INTERRUPT_BLOCK INT_0:INT0"},
        Caso_Rifiuto{"TwentyThreeCharacters",
                     Banco_Progetto::File_Main({"// a", "LD 1234567890123456 //\xE0"}), 5,
                     "LD 1234567890123456 //à"},
        Caso_Rifiuto{"MnemonicOfEightCharacters", Banco_Progetto::File_Main({"ABCDEFGH I0.0"}), 4,
                     "ABCDEFGH I0.0"},
        Caso_Rifiuto{"LongNetworkHead", Banco_Progetto::File_Main({"NETWORK 123456789 //a"}), 4,
                     "NETWORK 123456789 //a"},
        Caso_Rifiuto{"FifthBlank", Banco_Progetto::File_Main({"A B C D E F"}), 4, "A B C D E F"},
        Caso_Rifiuto{"LongLineInAProcedure",
                     "SUBROUTINE_BLOCK SBR_0:SBR0\nNOT\n12345678901234567890123\n", 3,
                     "12345678901234567890123"},
        Caso_Rifiuto{"ARowPastTheTable", Banco_Progetto::File_Main(Lista(302, "NOT")), 305, "NOT",
                     avviso_righe},
        Caso_Rifiuto{"TheClosingRowPastTheTable", Banco_Progetto::File_Main(Lista(301, "NOT")), 305,
                     "END_ORGANIZATION_BLOCK", avviso_righe},
        Caso_Rifiuto{"ProcedureRowPastTheTable",
                     Banco_Progetto::File_Main(Lista(300, "NOT")) +
                         "SUBROUTINE_BLOCK SBR_0:SBR0\r\nEND_SUBROUTINE_BLOCK\r\n",
                     306, "SUBROUTINE_BLOCK SBR_0:SBR0", avviso_righe},
        Caso_Rifiuto{"BlockLineWithoutColon",
                     Banco_Progetto::File_Main({}) + "SUBROUTINE_BLOCK SBR_0\r\n", 6,
                     "SUBROUTINE_BLOCK SBR_0"},
        Caso_Rifiuto{"BareBlockKeyword", "SUBROUTINE_BLOCK", 1, "SUBROUTINE_BLOCK"},
        Caso_Rifiuto{"ColonInsideTheFirst17Characters", "SUBROUTINE_BLOCK:SBR0\r\n", 1,
                     "SUBROUTINE_BLOCK:SBR0"},
        Caso_Rifiuto{"SixtyFifthProcedure", Sessantacinque_Procedure(), 65,
                     "SUBROUTINE_BLOCK SBR_64:SBR64"},
        Caso_Rifiuto{"NoBlock", "\r\nLD I0.0\r\nNOT\r\n", 2, "LD I0.0"},
        Caso_Rifiuto{"Zip", "PK\x03\x04\r\n" + Banco_Progetto::File_Main({"NOT"}), 0, ""},
        Caso_Rifiuto{"Picture", "\x89PNG\r\n\x1A\n", 0, ""},
        Caso_Rifiuto{"EmptyLines", "\r\n\r\n", 0, ""}, Caso_Rifiuto{"EmptyFile", "", 0, ""},
        Caso_Rifiuto{"SeventeenMegabytes",
                     "ORGANIZATION_BLOCK\nNOT\n" + std::string(17U << 20U, '/'), 0, ""}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(FailedRead, OfAMissingFileEmptiesTheProject) {
  progetto.File_Progetto = Percorso("manca.AWL");
  progetto.LeggiTxt();
  Aspetta_Vuoto();
  EXPECT_EQ(progetto.Dettaglio.Riga, 0);
  EXPECT_NE(progetto.Dettaglio.Motivo, "");
}

TEST_F(FailedRead, OfAFolderEmptiesTheProject) {
  progetto.File_Progetto = cartella.string();
  progetto.LeggiTxt();
  Aspetta_Vuoto();
  EXPECT_EQ(progetto.Dettaglio.Riga, 0);
  EXPECT_NE(progetto.Dettaglio.Motivo, "");
}

TEST_F(FailedRead, PutsLineAndReasonInTheDetailsOfTheBox) {
  Scrivi("altro.AWL", File_Main({"A B C D E F"}));
  scelte = {"altro.AWL"};
  progetto.mnuFileOpen();
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  EXPECT_EQ(avvisi[0].Dettagli, "Riga 4: A B C D E F\n" + progetto.Dettaglio.Motivo);
}

TEST_F(FailedRead, IsForgottenByTheNextGoodOne) {
  EXPECT_FALSE(Apri("NOT"));
  EXPECT_TRUE(Apri(File_Main({"NOT"})));
  EXPECT_EQ(progetto.Err_Lettura, 0);
  EXPECT_EQ(progetto.Dettaglio.Riga, 0);
  EXPECT_EQ(progetto.Dettaglio.Motivo, "");
  EXPECT_EQ(progetto.CPU.NRighe, 1);
}

// The boxes of bad operands do not end the read.
TEST_F(FailedRead, IsNotCausedByThreeOrFourOperands) {
  EXPECT_TRUE(Apri(File_Main({"A B C D", "A B C D E", "NOT"})));
  EXPECT_EQ(progetto.CPU.NRighe, 3);
  EXPECT_EQ(Testi_Avvisi(),
            (Lista{"Attenzione: Il simulatore non supporta istruzioni con tre operandi!",
                   "Errore!: Errori nella lettura degli operandi!"}));
}

}  // namespace tavorno::prova
