// SPDX-License-Identifier: GPL-3.0-or-later
// A text on its way to the CPU as a value: no file, no box, no window.
#include <gtest/gtest.h>

#include "awl/listing.h"
#include "awl/program.h"
#include "awl/reader.h"
#include "awl/writer.h"

namespace tavorno::prova {

namespace {

constexpr const char* due_blocchi =
    "ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\nNETWORK 1 //uno\r\n"
    "ld i0.0 //marcia\r\nCALL Pompa\r\nEND_ORGANIZATION_BLOCK\r\n\r\n"
    "SUBROUTINE_BLOCK Pompa:SBR3\r\nTITLE=\r\n// nota\r\n= Q0.0\r\nEND_SUBROUTINE_BLOCK\r\n\r\n";

std::string Main(const std::string& righe) {
  return "ORGANIZATION_BLOCK MAIN:OB1\nTITLE=\n" + righe + "END_ORGANIZATION_BLOCK\n";
}

Compilazione Compila_Testo(const std::string& byte) {
  const Lettura lettura = Leggi_Sorgente(byte);
  EXPECT_TRUE(lettura.Riuscita()) << lettura.Rifiuto.Come_Testo();
  return Compila_Sorgente(lettura.Letta);
}

}  // namespace

TEST(SourceValue, HoldsBlocksTitlesAndRowsWithTheirPlace) {
  const Lettura lettura = Leggi_Sorgente(due_blocchi);
  ASSERT_TRUE(lettura.Riuscita());
  const Sorgente& letta = lettura.Letta;
  EXPECT_EQ(letta.Main,
            "//Prova\r\nNETWORK 1       //uno\r\n"
            "LD     I0.0                         //marcia\r\n"
            "CALL   POMPA                        \r\n");
  ASSERT_EQ(letta.Procedure.size(), 1U);
  EXPECT_EQ(letta.Procedure[0].Nome, "Pompa");
  EXPECT_EQ(letta.Procedure[0].Num, 4);
  EXPECT_EQ(letta.Righe_Lette, 14);
  std::vector<std::pair<std::string, Posto_Riga>> posti;
  for (const Riga_Src& riga : letta.Righe) posti.emplace_back(riga.Istr, riga.Posto);
  const std::vector<std::pair<std::string, Posto_Riga>> attesi = {{"NETWORK 1       //UNO", {0, 1}},
                                                                  {"LD", {0, 2}},
                                                                  {"CALL", {0, 3}},
                                                                  {"MEND", {0, 4}},
                                                                  {"SBR3", {1, 0}},
                                                                  {"=", {1, 2}},
                                                                  {"RET", {1, 3}}};
  EXPECT_EQ(posti, attesi);
}

TEST(SourceValue, ComesBackFromItsBytes) {
  const Sorgente letta = Leggi_Sorgente(due_blocchi).Letta;
  const Sorgente riletta = Leggi_Sorgente(Byte_Di(letta)).Letta;
  // Each text ends in a line end, which is written as one more empty line.
  EXPECT_EQ(riletta.Main, letta.Main + "\r\n");
  EXPECT_EQ(riletta.Procedure[0].Testo, letta.Procedure[0].Testo + "\r\n");
  ASSERT_EQ(riletta.Righe.size(), letta.Righe.size());
  EXPECT_EQ(riletta.Righe[1], letta.Righe[1]);
}

TEST(SourceValue, OrTheReasonWhyNotWithItsLine) {
  const Lettura lettura = Leggi_Sorgente(Main("NOT\nA B C D E F\n"));
  EXPECT_FALSE(lettura.Riuscita());
  EXPECT_EQ(lettura.Rifiuto.Riga, 4);
  EXPECT_EQ(lettura.Rifiuto.Testo, "A B C D E F");
  EXPECT_EQ(lettura.Rifiuto.Perche, Causa::Formato);
  EXPECT_EQ(Leggi_Sorgente("INTERRUPT_BLOCK INT_0:INT0\n").Rifiuto.Perche, Causa::Interrupt);
  std::string troppe;
  for (int i = 0; i < 302; ++i) troppe += "NOT\n";
  EXPECT_EQ(Leggi_Sorgente(Main(troppe)).Rifiuto.Perche, Causa::Capienza);
}

TEST(SourceValue, ThatCannotBeWrittenTellsWhy) {
  Sorgente sorgente;
  sorgente.Main = "//a\r\nMOVW 1,2,3,4,5,6";
  const Scrittura scrittura = Scrivi_Sorgente(sorgente);
  EXPECT_FALSE(scrittura.Riuscita());
  EXPECT_EQ(scrittura.Rifiuto.Testo, "MOVW 1,2,3,4,5,6");
  EXPECT_THROW(Byte_Di(sorgente), Riga_Rifiutata);
}

// ---- findings -----------------------------------------------------------------------------------

struct Caso_Rilievo {
  std::string nome;
  std::string righe;  ///< of the Main, behind its title
  Genere di;
  Gravita grado;
  int linea, colonna, lunghezza;
  int riga, stato;
  std::string testo, messaggio;
};

class Finding : public testing::TestWithParam<Caso_Rilievo> {};

TEST_P(Finding, TellsAllOfIt) {
  const Caso_Rilievo& caso = GetParam();
  const Compilazione esito = Compila_Testo(Main(caso.righe));
  ASSERT_EQ(esito.Rilievi.size(), 1U);
  const Diagnosi attesa{.Grado = caso.grado,
                        .Di = caso.di,
                        .Posto = {0, caso.linea},
                        .Colonna = caso.colonna,
                        .Lunghezza = caso.lunghezza,
                        .Riga = caso.riga,
                        .Stato = caso.stato,
                        .Testo = caso.testo,
                        .Messaggio = caso.messaggio};
  const Diagnosi& trovata = esito.Rilievi[0];
  EXPECT_EQ(trovata, attesa) << trovata.Posto.Linea << ' ' << trovata.Colonna << ' '
                             << trovata.Lunghezza << ' ' << trovata.Riga << ' ' << trovata.Testo
                             << ' ' << trovata.Messaggio;
}

INSTANTIATE_TEST_SUITE_P(
    All, Finding,
    testing::Values(
        Caso_Rilievo{"Mnemonic", "//a\nNOT\nxyz i0.0 //c\n", Genere::Riga, Gravita::Errore, 3, 0,
                     11, 1, 3, "XYZ    I0.0                         //c",
                     "-> Istruzione non riconosciuta"},
        Caso_Rilievo{"FirstOperand", "MOVB VB200 AC1\n", Genere::Riga, Gravita::Errore, 1, 7, 5, 0,
                     6, "MOVB   VB200, AC1", "-> Indirizzo Byte OP1 non supportato"},
        Caso_Rilievo{"SecondOperand", "MOVW VW0 AQW4\n", Genere::Riga, Gravita::Errore, 1, 12, 4, 0,
                     6, "MOVW   VW0, AQW4", "-> Indirizzo Byte OP2 non supportato"},
        Caso_Rilievo{"Bit", "LD I0.8\n", Genere::Riga, Gravita::Errore, 1, 7, 4, 0, 9,
                     "LD     I0.8", "-> Indirizzo Bit OP1 non ammesso"},
        Caso_Rilievo{"TooManyOperands", "NOT I0.0\n", Genere::Riga, Gravita::Errore, 1, 0, 11, 0, 3,
                     "NOT    I0.0", "-> Operandi non supportati"},
        Caso_Rilievo{"JumpWithoutALabel", "NOT\n// a\nJMP 5\n", Genere::Salti,
                     Gravita::Avvertimento, 3, 0, 8, 1, 1, "JMP    5", "Manca l'etichetta LBL 5"},
        Caso_Rilievo{"JumpToTwoLabels", "JMP 5\nLBL 5\nLBL 5\n", Genere::Salti,
                     Gravita::Avvertimento, 1, 0, 8, 0, 1, "JMP    5",
                     "l'etichetta LBL 5 c'è 2 volte: vale l'ultima"},
        Caso_Rilievo{"CallOfNobody", "NOT\nCALL Pompa\n", Genere::Procedure, Gravita::Avvertimento,
                     2, 0, 12, 1, 1, "CALL   POMPA", "Manca la procedura di nome \"POMPA\""},
        Caso_Rilievo{"OpenSection", "NOT\nLSCR S0.0\nNOT\n", Genere::Sezioni, Gravita::Errore, 2, 0,
                     11, 1, 1, "LSCR   S0.0", "Manca SCRE, che chiude la sezione"},
        Caso_Rilievo{"LabelInASection", "LSCR S0.0\nNOT\nLBL 3\nSCRE\n", Genere::Sezioni,
                     Gravita::Errore, 3, 0, 8, 2, 1, "LBL    3",
                     "LBL e JMP non possono stare tra LSCR e SCRE"}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Findings, OfAProcedureNameItsText) {
  const Compilazione esito =
      Compila_Testo(std::string(due_blocchi) +
                    "SUBROUTINE_BLOCK b:SBR5\nTITLE=\n//\nHSC 1\nJMP 7\nEND_SUBROUTINE_BLOCK\n");
  ASSERT_EQ(esito.Rilievi.size(), 2U);
  EXPECT_EQ(esito.Rilievi[0].Posto, (Posto_Riga{2, 2}));
  EXPECT_EQ(esito.Rilievi[0].Stato, 2);
  EXPECT_EQ(esito.Rilievi[1].Posto, (Posto_Riga{2, 3}));
  EXPECT_EQ(esito.Rilievi[1].Di, Genere::Salti);
}

// The passes count; what makes up for each other is no fault of theirs, but two faults in the text.
TEST(Findings, AreToldWhereTheLinkPassSeesNone) {
  const Compilazione esito = Compila_Testo(Main("JMP 1\nJMP 2\nLBL 2\nLBL 2\n"));
  EXPECT_TRUE(esito.Passi_Errati.empty());
  ASSERT_EQ(esito.Rilievi.size(), 2U);
  EXPECT_EQ(esito.Rilievi[0].Riga, 0);
  EXPECT_EQ(esito.Rilievi[1].Riga, 1);
}

TEST(Findings, OfTheReaderAreTheBoxesOfTheReader) {
  const Lettura lettura = Leggi_Sorgente(Main("NOT\nA B C D\nA B C D E\n"));
  ASSERT_TRUE(lettura.Riuscita());
  ASSERT_EQ(lettura.Rilievi.size(), 2U);
  EXPECT_EQ(lettura.Rilievi[0].Di, Genere::Tre_Operandi);
  EXPECT_EQ(lettura.Rilievi[0].Posto, (Posto_Riga{0, 2}));
  EXPECT_EQ(lettura.Rilievi[0].Riga, 1);
  EXPECT_EQ(Avviso_Di(lettura.Rilievi[0]).Titolo, "Attenzione");
  EXPECT_EQ(lettura.Rilievi[1].Di, Genere::Quattro_Operandi);
  EXPECT_EQ(Avviso_Di(lettura.Rilievi[1]).Titolo, "Errore!");
}

// ---- programs -----------------------------------------------------------------------------------

TEST(ProgramValue, IsTheTableOfTheCpuOnceItIsLoaded) {
  const Compilazione esito = Compila_Testo(due_blocchi);
  EXPECT_EQ(esito.Errori, 0);
  EXPECT_TRUE(esito.Rilievi.empty());
  Memoria cpu;
  Carica(esito.Prodotto, cpu);
  EXPECT_EQ(cpu.NRighe, 6);
  ASSERT_EQ(cpu.Prog.Righe(), 7);
  for (int i = 0; i <= cpu.NRighe; ++i)
    EXPECT_EQ(cpu.Prog[i], esito.Prodotto.Righe[static_cast<std::size_t>(i)]);
  EXPECT_EQ(cpu.Prog[2].Salto, 4);
}

TEST(ProgramValue, LeavesTheEnablesThatItsLinkPassDidNotReach) {
  Memoria cpu;
  cpu.Prog.Ridimensiona(4);
  for (Riga_PLC& riga : cpu.Prog) riga.Abil_SCR = 0;
  Carica(Compila_Testo(Main("NOT\nLSCR S0.0\nLBL 1\n")).Prodotto, cpu);
  const std::vector<int> attese = {1, 1, 0, 0};
  for (int i = 0; i <= 3; ++i) EXPECT_EQ(cpu.Prog[i].Abil_SCR, attese[static_cast<std::size_t>(i)]);
}

}  // namespace tavorno::prova
