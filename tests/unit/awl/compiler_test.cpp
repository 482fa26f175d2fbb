// SPDX-License-Identifier: GPL-3.0-or-later
// Guards, loop and report of the compile, and the load.
#include <sstream>

#include "plc/instructions.h"
#include "project_bed.h"

namespace tavorno::prova {

namespace {

using Lista = std::vector<std::string>;

const std::string avviso_formato =
    "Attenzione!: Il progetto non è formattato correttamente!\r\n"
    "Occorre salvare il file prima della compilazione.";
const std::string avviso_modifica =
    "Attenzione!: Il codice è stato modificato! Occorre salvare il file prima della compilazione.";
const std::string avviso_lettura =
    "Errore!: Impossibile Caricare il progetto per errori nel formato!";
const std::string avviso_carica = "Errori!: Impossibile caricare nella CPU";

std::string Successo(int righe) {
  return "Attenzione!:  " + std::to_string(righe) + " Righe compilate con successo!";
}

std::string Errori(int righe, int errori) {
  return "Attenzione!:  " + std::to_string(righe) + " Righe compilate con  " +
         std::to_string(errori) + " Errori!!";
}

std::string A22(std::string testo) {
  testo.resize(22, ' ');
  return testo;
}

/// Every field that a compile fills, readable when a comparison fails.
std::string Descrivi(const Riga_PLC& r) {
  std::ostringstream testo;
  testo << r.Istr << " NOper " << int{r.NOper} << " Ha_Bit " << r.Ha_Bit << " [" << r.Area1 << ' '
        << r.Num1 << '.' << r.Bit1 << "] [" << r.Area2 << ' ' << r.Num2 << '.' << r.Bit2 << "] ["
        << r.Area3 << ' ' << r.Num3 << '.' << r.Bit3 << "] Salto " << r.Salto << " Fronte "
        << r.Fronte << " SCR " << r.Abil_SCR << ' ' << r.SCR_Prima << ' ' << r.SCR_Ultima;
  for (const std::int16_t timer : r.Lista_T) testo << " T" << timer;
  return testo.str();
}

struct Op {
  std::string Area = "";
  std::int16_t Num = 0;
  std::int16_t Bit = -1;
};

Riga_PLC Riga(const std::string& istr, std::uint8_t noper, const Op& uno = {}, const Op& due = {},
              const Op& tre = {}) {
  Riga_PLC riga;
  riga.Istr = istr;
  riga.NOper = noper;
  riga.Area1 = uno.Area, riga.Num1 = uno.Num, riga.Bit1 = uno.Bit;
  riga.Area2 = due.Area, riga.Num2 = due.Num, riga.Bit2 = due.Bit;
  riga.Area3 = tre.Area, riga.Num3 = tre.Num, riga.Bit3 = tre.Bit;
  return riga;
}

Riga_PLC Con_Bit(Riga_PLC riga) {
  riga.Ha_Bit = -1;
  return riga;
}

}  // namespace

// ---- filling a record ---------------------------------------------------------------------------

struct Caso_Riempi {
  std::string nome;
  std::string riga;
  Riga_PLC atteso;
};

class FillTable : public Banco_Progetto, public testing::WithParamInterface<Caso_Riempi> {};

TEST_P(FillTable, FillsTheWholeRecordAndClearsTheOld) {
  ASSERT_TRUE(Apri(File_Main({GetParam().riga})));
  // What an earlier compile or run may have left.
  Riga_PLC& riga = progetto.CPU.Prog[0];
  riga = Con_Bit(Riga("XX", 9, {"A", 1, 2}, {"B", 3, 4}, {"C", 5, 6}));
  riga.Salto = 7;
  riga.Fronte = 8;
  Decodifica(riga);

  progetto.mnuPlcCompile();
  Riga_PLC attesa = GetParam().atteso;
  Decodifica(attesa);
  EXPECT_EQ(Descrivi(progetto.CPU.Prog[0]), Descrivi(attesa));
  EXPECT_TRUE(progetto.CPU.Prog[0] == attesa) << "decoded fields";
}

INSTANTIATE_TEST_SUITE_P(
    AllLines, FillTable,
    testing::Values(Caso_Riempi{"Subroutine", "SBR7 Pompa 2.1", Riga("SBR7", 1, {"Pompa 2.1"})},
                    Caso_Riempi{"Call", "CALL SBR_0", Riga("CALL", 1, {"SBR_0"})},
                    Caso_Riempi{"CallOfANameWithADot", "CALL P.1", Riga("CALL", 1, {"P.1"})},
                    Caso_Riempi{"Interrupt", "INT0 INT_0.1", Riga("INT0", 1, {"INT_0.1"})},
                    Caso_Riempi{"NoOperand", "NOT", Riga("NOT", 0)},
                    Caso_Riempi{"Network", "NETWORK 1 //a", Riga("NETWORK 1       //A", 0)},
                    Caso_Riempi{"Bit", "LD I0.3", Con_Bit(Riga("LD", 1, {"I", 0, 3}))},
                    Caso_Riempi{"Word", "INCW VW10", Riga("INCW", 1, {"VW", 10})},
                    Caso_Riempi{"SignedConstant", "LBL +100", Riga("LBL", 1, {"K", 100})},
                    Caso_Riempi{"Constant", "LBL 5", Riga("LBL", 1, {"K", 5})},
                    Caso_Riempi{"NegativeConstant", "LBL -5", Riga("LBL", 1, {"K", -5})},
                    Caso_Riempi{"RoundedNumber", "LD I0.3.7", Con_Bit(Riga("LD", 1, {"I", 0, 4}))},
                    Caso_Riempi{"NoNumber", "LD X", Riga("LD", 1)},
                    Caso_Riempi{"TwoOperands", "MOVW VW1 AC2",
                                Riga("MOVW", 2, {"VW", 1}, {"AC", 2})},
                    Caso_Riempi{"TwoOperandsWithABit", "S Q0.1 2",
                                Con_Bit(Riga("S", 2, {"Q", 0, 1}, {"K", 2}))},
                    Caso_Riempi{"ABitInTheSecondIsNoHaBit", "MOVB VB1 Q0.2",
                                Riga("MOVB", 2, {"VB", 1}, {"Q", 0, 2})},
                    Caso_Riempi{"AnEmptyFirstOperand", "LD  I0.3", Riga("LD", 2, {}, {"I", 0, 3})},
                    Caso_Riempi{"ThreeOperands", "FILL VW1 VW2.3 4",
                                Riga("FILL", 3, {"VW", 1}, {"VW", 2, 3}, {"K", 4})},
                    Caso_Riempi{"FourOperands", "FILL A1 B2 C3 D4", Riga("FILL", 4)}),
    [](const auto& caso) { return caso.param.nome; });

// ---- report -------------------------------------------------------------------------------------

class Compiler : public Banco_Progetto {
 protected:
  /// Types this Main text into a project that is to be saved as this file.
  void Digita(const std::string& testo) {
    progetto.Scrivi_Main(testo);
    scelte = {"uscita.AWL"};
  }
};

TEST_F(Compiler, NumbersTheListingByRowsFromZero) {
  ASSERT_TRUE(Apri(File_Main({"// a", "NETWORK 1 //b", "LD I0.0 //c", "FOO", "LD I2.0"}) +
                   Righe({"SUBROUTINE_BLOCK Sub:SBR0", "NOT", "END_SUBROUTINE_BLOCK"})));
  progetto.mnuPlcCompile();
  const std::string fine = "\r\r\n";
  EXPECT_EQ(progetto.Lista_Comp,
            "0000 [Ok!   ]: NETWORK 1 " + fine + "0001 [Ok!   ]: " + A22("LD     I0.0") + " " +
                fine + "0002 [Err. 3]: " + A22("FOO") + " -> Istruzione non riconosciuta" + fine +
                "0003 [Err. 6]: " + A22("LD     I2.0") + " -> Indirizzo non supportato" + fine +
                "0004 [Ok!   ]: " + A22("MEND") + " " + fine + "0005 [Ok!   ]: SBR0 Sub " + fine +
                "0006 [Ok!   ]: " + A22("NOT") + " " + fine + "0007 [Ok!   ]: " + A22("RET") + " " +
                fine);
  EXPECT_EQ(Testi_Avvisi(), Lista{Errori(7, 2)});
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  EXPECT_EQ(progetto.etNR[0], "7");
  EXPECT_EQ(progetto.etNR[1], "2");
  EXPECT_EQ(progetto.stB[2], "Errori: 2");
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Pagina, 3);
}

TEST_F(Compiler, ReportsSuccess) {
  ASSERT_TRUE(Apri(File_Main({"LD I0.0", "= Q0.0"})));
  progetto.Pagina = 1;
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), Lista{Successo(2)});
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Nessuna);
  EXPECT_EQ(progetto.etNR[0], "2");
  EXPECT_EQ(progetto.etNR[1], "0");
  EXPECT_EQ(progetto.stB[2], "Errori: 0");
  EXPECT_EQ(progetto.Compilato, -1);
  EXPECT_EQ(progetto.Pagina, 1);
  for (const Riga_PLC& riga : progetto.CPU.Prog) EXPECT_EQ(riga.Abil_SCR, 1);
}

TEST_F(Compiler, StartsItsListingAndCountAnew) {
  ASSERT_TRUE(Apri(File_Main({"FOO"})));
  progetto.mnuPlcCompile();
  const std::string lista = progetto.Lista_Comp;
  progetto.mnuPlcCompile();
  EXPECT_EQ(progetto.Lista_Comp, lista);
  EXPECT_EQ(Testi_Avvisi(), (Lista{Errori(1, 1), Errori(1, 1)}));
}

TEST_F(Compiler, FailingClearsAnEarlierSuccess) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  progetto.mnuPlcCompile();
  EXPECT_EQ(progetto.Compilato, -1);
  Digita("FOO");
  progetto.mnuPlcCompile();
  EXPECT_EQ(progetto.Compilato, 0);
}

struct Caso_Collega {
  std::string nome;
  Lista righe;
  Lista avvisi;
  int errori;
};

class LinkReport : public Banco_Progetto, public testing::WithParamInterface<Caso_Collega> {};

TEST_P(LinkReport, ShowsItsBoxesInOrder) {
  ASSERT_TRUE(Apri(File_Main(GetParam().righe)));
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), GetParam().avvisi);
  EXPECT_EQ(progetto.etNR[1], std::to_string(GetParam().errori));
  EXPECT_EQ(progetto.stB[2], "Errori: " + std::to_string(GetParam().errori));
  EXPECT_EQ(progetto.Compilato, GetParam().errori == 0 ? -1 : 0);
}

const std::string salti = "Errore!: Controllo Salti con Errori!";
const std::string procedure = "Errore!: Controllo Procedure con Errori!";
const std::string scr = "Errore!: Controllo SCR con Errori!";

INSTANTIATE_TEST_SUITE_P(
    AllFaults, LinkReport,
    testing::Values(
        Caso_Collega{"JumpWithoutLabelStillCompiles", {"JMP 5"}, {salti, Successo(1)}, 0},
        Caso_Collega{"TwoLabelsForOneJumpStillCompile",
                     {"LBL 5", "LBL 5", "JMP 5"},
                     {salti, Successo(3)},
                     0},
        Caso_Collega{"CallWithoutProcedureStillCompiles", {"CALL X"}, {procedure, Successo(1)}, 0},
        Caso_Collega{"OpenSectionIsTheOnlyError", {"LSCR S0.0"}, {scr, Errori(1, 1)}, 1},
        Caso_Collega{"OpenSectionReplacesTheCountOfBadLines",
                     {"FOO", "FOO", "LSCR S0.0"},
                     {scr, Errori(3, 1)},
                     1},
        Caso_Collega{
            "JumpFaultAddsNothingToBadLines", {"FOO", "FOO", "JMP 5"}, {salti, Errori(3, 2)}, 2},
        Caso_Collega{"AllThreeInOrder",
                     {"LSCR S0.0", "JMP 1", "CALL X", "SCRE"},
                     {salti, procedure, scr, Errori(4, 1)},
                     1},
        Caso_Collega{"None", {"LSCR S0.0", "SCRE", "JMP 1", "LBL 1"}, {Successo(4)}, 0}),
    [](const auto& caso) { return caso.param.nome; });

// ---- guards -------------------------------------------------------------------------------------

TEST_F(Compiler, OfAnUntouchedNewProjectEndsWithTheCancelledSave) {
  progetto.mnuFileNew(false);
  const std::string testo = progetto.txtList;
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), Lista{avviso_formato});
  EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
  ASSERT_EQ(richieste.size(), 1U);
  EXPECT_EQ(richieste[0].Proposta, "NoName.AWL");
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(progetto.Formattato, 0);
  EXPECT_EQ(progetto.Modificato, -1);
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Lista_Comp, "");
  EXPECT_EQ(progetto.txtList, testo);
  EXPECT_EQ(progetto.stB[2], "Errori: ----");
}

TEST_F(Compiler, OfAnUnformattedProjectSavesReadsAndAsksOnce) {
  Digita("//a\r\nld i0.0");  // edited as well, but the second box does not come
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), (Lista{avviso_formato, Successo(1)}));
  EXPECT_EQ(richieste.size(), 1U);
  EXPECT_EQ(progetto.Formattato, -1);
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(progetto.File_Progetto, Percorso("uscita.AWL"));
  EXPECT_EQ(progetto.Righe_Src[0].Op1, "I0.0");
}

TEST_F(Compiler, OfAnEditedProjectSavesAndReadsOnOk) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  Digita("NOT\r\nNOP");
  risposte = {Risposta::Ok};
  progetto.Annulla = -1;  // of an earlier dialog
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), (Lista{avviso_modifica, Successo(2)}));
  EXPECT_EQ(avvisi[0].Scelte, Tasti::Ok_Annulla);
  EXPECT_EQ(progetto.Modificato, 0);
  EXPECT_EQ(progetto.File_Progetto, Percorso("uscita.AWL"));
}

TEST_F(Compiler, OfAnEditedProjectEndsOnAnyOtherAnswer) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  Digita("NOT\r\nNOP");
  for (const Risposta risposta : {Risposta::Annulla, Risposta::No, Risposta::Si}) {
    avvisi.clear();
    risposte = {risposta};
    progetto.mnuPlcCompile();
    EXPECT_EQ(Testi_Avvisi(), Lista{avviso_modifica});
    EXPECT_TRUE(richieste.empty());
    EXPECT_EQ(progetto.Modificato, -1);
    EXPECT_EQ(progetto.Lista_Comp, "");
  }
}

TEST_F(Compiler, OfAnEditedProjectEndsWithTheCancelledSave) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  progetto.Scrivi_Main("NOT\r\nNOP");
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), Lista{avviso_modifica});
  EXPECT_EQ(richieste.size(), 1U);
  EXPECT_EQ(progetto.Annulla, -1);
  EXPECT_EQ(progetto.Modificato, -1);
  EXPECT_EQ(progetto.Lista_Comp, "");
}

TEST_F(Compiler, OfAnEmptyProjectEndsWithTheBoxOfTheSave) {
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(),
            (Lista{avviso_formato, "Attenzione: Nessuna riga di codice inserita!"}));
  EXPECT_TRUE(richieste.empty());
  EXPECT_EQ(progetto.Lista_Comp, "");
}

TEST_F(Compiler, OfAReadProjectAsksNothing) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  progetto.mnuPlcCompile();
  EXPECT_TRUE(richieste.empty());
}

TEST_F(Compiler, AsksAgainAfterAProcedureWasMerelySelected) {
  ASSERT_TRUE(
      Apri(File_Main({"NOT"}) + Righe({"SUBROUTINE_BLOCK SBR_0:SBR0", "END_SUBROUTINE_BLOCK"})));
  progetto.Scegli_Procedura(1);
  risposte = {Risposta::Annulla};
  progetto.mnuPlcCompile();
  EXPECT_EQ(Testi_Avvisi(), Lista{avviso_modifica});
}

// ---- saving and reading back --------------------------------------------------------------------

TEST_F(Compiler, SaveReadWritesAndReadsTheSameFile) {
  progetto.Scrivi_Main("//a\r\nld i0.0");
  scelte = {"uscita.AWL"};
  progetto.Save_Read();
  EXPECT_EQ(Leggi("uscita.AWL"), Righe({"ORGANIZATION_BLOCK MAIN:OB1", "TITLE=a", "ld i0.0",
                                        "END_ORGANIZATION_BLOCK", "", ""}));
  EXPECT_EQ(progetto.File_Titolo, "NoName.AWL");
  EXPECT_EQ(progetto.File_Progetto, Percorso("uscita.AWL"));
  EXPECT_EQ(progetto.File_Salva, Percorso("uscita.AWL"));
  EXPECT_EQ(progetto.Formattato, -1);
  EXPECT_EQ(progetto.CPU.NRighe, 1);
  EXPECT_TRUE(avvisi.empty());
}

TEST_F(Compiler, SaveReadKeepsATitle) {
  progetto.Scrivi_Main("NOT");
  progetto.File_Titolo = "mio.AWL";
  scelte = {"uscita.AWL"};
  progetto.Save_Read();
  EXPECT_EQ(progetto.File_Titolo, "mio.AWL");
  EXPECT_EQ(richieste[0].Proposta, "mio.AWL");
}

TEST_F(Compiler, SaveReadShowsTheFailedReadAndFormatsNothing) {
  progetto.Scrivi_Main("//a\r\nA B C D E F G");
  scelte = {"uscita.AWL"};
  progetto.Save_Read();
  EXPECT_EQ(Testi_Avvisi(), Lista{avviso_lettura});
  EXPECT_EQ(progetto.Formattato, 0);
  EXPECT_EQ(progetto.Err_Lettura, -1);
}

// ---- loading ------------------------------------------------------------------------------------

TEST_F(Compiler, LoadsAProjectWithoutErrors) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  progetto.mnuPlcCarica();
  EXPECT_EQ(Testi_Avvisi(), Lista{Successo(1)});
  EXPECT_EQ(progetto.Carica_CPU, 1);
}

TEST_F(Compiler, RefusesToLoadAProjectWithErrors) {
  ASSERT_TRUE(Apri(File_Main({"FOO"})));
  progetto.mnuPlcCarica();
  EXPECT_EQ(Testi_Avvisi(), (Lista{Errori(1, 1), avviso_carica}));
  EXPECT_EQ(avvisi.back().Simbolo, Icona::Critica);
  EXPECT_EQ(progetto.Carica_CPU, 0);
}

TEST_F(Compiler, RefusesToLoadANewProjectWhoseSaveIsCancelled) {
  progetto.mnuFileNew(false);
  progetto.mnuPlcCarica();
  EXPECT_EQ(Testi_Avvisi(), (Lista{avviso_formato, avviso_carica}));
  EXPECT_EQ(progetto.Carica_CPU, 0);
}

// The rows of the earlier good compile are gone with the failed read.
TEST_F(Compiler, RefusesToLoadAfterAReadThatFailed) {
  ASSERT_TRUE(Apri(File_Main({"NOT"})));
  progetto.mnuPlcCompile();
  ASSERT_EQ(progetto.Compilato, -1);
  avvisi.clear();
  Digita("//a\r\nA B C D E F G");
  progetto.mnuPlcCarica();
  EXPECT_EQ(Testi_Avvisi(), (Lista{avviso_modifica, avviso_lettura, avviso_carica}));
  EXPECT_EQ(progetto.Compilato, 0);
  EXPECT_EQ(progetto.Carica_CPU, 0);
}

}  // namespace tavorno::prova
