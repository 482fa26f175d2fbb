// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "awl/listing.h"
#include "awl/program.h"
#include "checked_line.h"
#include "expected_rules.h"
#include "plc/instructions.h"

namespace tavorno::prova {
namespace {

struct CheckedLine : ::testing::Test, Banco_Righe {};

// ---- vocabulary -------------------------------------------------------------------------------

const std::vector<std::vector<std::string>> Operandi_Vari = {
    {}, {"I0.0"}, {"I0.9"}, {"ZZ999"}, {"AC0", "AC1"}, {"+5", "XY"}, {"VW0", "VW1", "VW2"}};

TEST_F(CheckedLine, IsAcceptedWhateverItsOperandsInTheFirstGroup) {
  std::vector<std::string> mnemonici = Parole(Accettate_Senza_Prova);
  for (const char* testo : {"NETWORK 1", "NETWORKX", "SBR0", "SBRX", "SBR63", "INT0", "INTEGER"})
    mnemonici.emplace_back(testo);
  for (const std::string& mnemonico : mnemonici) {
    for (const auto& operandi : Operandi_Vari)
      EXPECT_EQ(Controlla(Riga_Di(mnemonico, operandi)), Verdetto_Riga{})
          << mnemonico << " with " << operandi.size() << " operands";
  }
}

TEST_F(CheckedLine, IsRefusedForAnyOperandInTheSecondGroup) {
  const std::vector<std::string> mnemonici = Parole(Accettate_Senza_Operandi);
  for (const std::string& mnemonico : mnemonici) {
    for (const auto& operandi : Operandi_Vari)
      EXPECT_EQ(Controlla(Riga_Di(mnemonico, operandi)),
                operandi.empty() ? Verdetto_Riga{} : Operandi_Non_Supportati)
          << mnemonico << " with " << operandi.size() << " operands";
  }
}

TEST_F(CheckedLine, IsRefusedWhateverItsOperandsInTheThirdGroup) {
  const std::vector<std::string> mnemonici = Parole(Non_Supportate);
  for (const std::string& mnemonico : mnemonici) {
    for (const auto& operandi : Operandi_Vari)
      EXPECT_EQ(Controlla(Riga_Di(mnemonico, operandi)), Non_Supportata)
          << mnemonico << " with " << operandi.size() << " operands";
  }
}

TEST_F(CheckedLine, IsUnknownWithAnyOtherMnemonic) {
  for (const char* mnemonico :
       {"",      "FOO",   "L",    "LDX",  "ldn",   "Ld",   "NETWORK", "NETW1", "NET",
        "SB",    "IN",    "sbr0", "int0", "MEND ", " LD",  "LDB",     "LDB==", "LDB=<",
        "LDB=>", "LDB><", "LDI=", "ANB=", "ONW<",  "OLDB", "LDRR",    "AR",    "OR",
        "LDR",   "+",     "+B",   "==",   "=S",    "R0",   "TOFF",    "CTUX",  "MOV",
        "MOVBB", "INC",   "DEC",  "XOR",  "XORDD", "RETN", "MEN",     "BTIX"})
    for (const auto& operandi : Operandi_Vari)
      EXPECT_EQ(Controlla(Riga_Di(mnemonico, operandi)), Non_Riconosciuta)
          << '"' << mnemonico << "\" with " << operandi.size() << " operands";
}

// The reader always gives capitals; the letters of NETWORK count in any case all the same.
TEST_F(CheckedLine, IsANetworkInSmallLettersToo) {
  EXPECT_EQ(Controlla(Riga_Di("network 1", {})), Verdetto_Riga{});
}

TEST_F(CheckedLine, KnowsNoMnemonicBeyondTheseGroups) {
  std::set<std::string> attese;
  for (const auto& gruppo : {Parole(Accettate_Senza_Prova), Parole(Accettate_Senza_Operandi),
                             Parole(Non_Supportate), Mnemonici_Con_Regola()}) {
    EXPECT_FALSE(gruppo.empty());
    for (const std::string& mnemonico : gruppo)
      EXPECT_TRUE(attese.insert(mnemonico).second) << mnemonico << " is told twice";
  }
  std::set<std::string> note;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) note.insert(istruzione.Nome);
  EXPECT_EQ(note, attese);
}

// ---- the order of the faults, word by word ----------------------------------------------------

TEST_F(CheckedLine, LosesTheFaultOfOp1ToThatOfOp2) {
  EXPECT_EQ(Controlla("MOVB VB101, VB0"), Indirizzo_Op1);
  EXPECT_EQ(Controlla("MOVB VB0, VB101"), Indirizzo_Op2);
  EXPECT_EQ(Controlla("MOVB VB101, VB101"), Indirizzo_Op2);
  EXPECT_EQ(Controlla("MOVB VB101, QB0"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("BIR QB0, VW0"), Area_In_Op2);
  EXPECT_EQ(Controlla("BIR QB0, VB0"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("BTI AC0, VB0"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("BTI AC0, VW0"), Area_In_Op1);
  EXPECT_EQ(Controlla("LDB= +256, VW0"), Area_Op2);
  EXPECT_EQ(Controlla("LDB= VW0, +256"), Troppo_Grande_Op2);
  EXPECT_EQ(Controlla("LDB= VW0, +255"), Area_Op1);
}

TEST_F(CheckedLine, OfATimerPutsTheAreaBeforeTheNumber) {
  EXPECT_EQ(Controlla("TON T63, +1"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("TON T64, +1"), Indirizzo_Timer);
  EXPECT_EQ(Controlla("TON VW64, +1"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("TON VW0, +1"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("TON T64, T1"), Area_Non_Supportata);
  EXPECT_EQ(Controlla("TON SM63.0, VD0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("TON I64.9, +1"), Indirizzo_Timer);
  EXPECT_EQ(Controlla("TON I0.9, +1"), Verdetto_Riga{});
}

TEST_F(CheckedLine, PutsTheBitBeforeEveryOtherFault) {
  EXPECT_EQ(Controlla("LD I9.8"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("LD ZZ0.8"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("LD VW0.8"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("LD I0.8, I0.0"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("LD I0.0, I0.8"), Quanti_Operandi_Ld);
  EXPECT_EQ(Controlla("LD"), Quanti_Operandi_Ld);
  EXPECT_EQ(Controlla("S Q0.8"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("S Q0.7, Q0.9"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("R T5.8, 1"), Bit_Non_Ammesso);
  EXPECT_EQ(Controlla("MOVB VB0.9, VB0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("LD I0.40000"), Bit_Non_Ammesso);
}

// ---- numbers that no cell holds ---------------------------------------------------------------

TEST_F(CheckedLine, IsRefusedForANumberBeyondSixteenBits) {
  EXPECT_EQ(Controlla("MOVW +32767, VW0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("MOVW -32768, VW0"), Verdetto_Riga{});
  for (const char* numero : {"+32768", "-32769", "+40000", "65536", "99999999999"}) {
    EXPECT_EQ(Controlla(std::string("MOVW ") + numero + ", VW0"), Troppo_Grande_Op1) << numero;
    EXPECT_EQ(Controlla(std::string("TON T1, ") + numero), Troppo_Grande_Op2) << numero;
    EXPECT_EQ(Controlla(std::string("JMP ") + numero), Troppo_Grande_Op1) << numero;
    EXPECT_EQ(Controlla(std::string("XORD AC0, ") + numero), Troppo_Grande_Op2) << numero;
  }
  EXPECT_EQ(Controlla("MOVW VW-40000, VW0"), Troppo_Grande_Op1);
  EXPECT_EQ(Controlla("MOVW VW0, VW65536"), Troppo_Grande_Op2);
  EXPECT_EQ(Controlla("MOVW +40000, +40000"), Troppo_Grande_Op2);
  EXPECT_EQ(Controlla("MOVW +40000, VB0"), Troppo_Grande_Op1);
  EXPECT_EQ(Controlla("BIW +40000, QB0"), Troppo_Grande_Op1);
  EXPECT_EQ(Controlla("BIR QB0, VB40000"), Troppo_Grande_Op2);
  EXPECT_EQ(Controlla("S Q0.0, 40000"), Troppo_Grande_Op2);
  EXPECT_EQ(Controlla("LD I40000.0"), Troppo_Grande_Op1);
  EXPECT_EQ(Controlla("LD I40000.8"), Troppo_Grande_Op1);
  EXPECT_EQ(Controlla("LD ZZ40000"), Troppo_Grande_Op1);
}

TEST_F(CheckedLine, KeepsTheGraverFaultOfANumberBeyondSixteenBits) {
  EXPECT_EQ(Controlla("NOT +40000"), Operandi_Non_Supportati);
  EXPECT_EQ(Controlla("FOO +40000"), Non_Riconosciuta);
  EXPECT_EQ(Controlla("SIN +40000"), Non_Supportata);
  EXPECT_EQ(Controlla("MOVW +40000"), Quanti_Operandi);
  EXPECT_EQ(Controlla("LD I40000.0, I0.0"), Quanti_Operandi_Ld);
}

TEST_F(CheckedLine, TakesTheNameOfAProcedureForNoNumber) {
  for (const char* mnemonico : {"CALL", "SBR0", "INT0"})
    EXPECT_EQ(Controlla(Riga_Di(mnemonico, {"PUMP40000"})), Verdetto_Riga{}) << mnemonico;
}

// ---- the listing ------------------------------------------------------------------------------

TEST_F(CheckedLine, IsListedByteForByte) {
  struct Elencata {
    int riga;
    const char* linea;
    const char* testo;
    int stato;
    const char* elenco;
  };
  const std::vector<Elencata> casi = {
      {0, "LD I0.0", "LD     I0.0", 0, "0000 [Ok!   ]: LD     I0.0 "},
      {0, "NETWORK 1", "", 0, "0000 [Ok!   ]:  "},
      {0, "END", "END   ", 2, "0000 [Err. 2]: END    -> Istruzione non supportata"},
      {12, "FOO", "FOO", 3, "0012 [Err. 3]: FOO -> Istruzione non riconosciuta"},
      {12, "NOT I0.0", "NOT", 3, "0012 [Err. 3]: NOT -> Operandi non supportati"},
      {12, "MOVB VB200, AC1", "MOVB   VB200, AC1      ", 6,
       "0012 [Err. 6]: MOVB   VB200, AC1       -> Indirizzo Byte OP1 non supportato"},
      {300, "LD", "LD", 5, "0300 [Err. 5]: LD -> Numero di operandi errarto"},
      {300, "LD I0.8", "LD I0.8", 9, "0300 [Err. 9]: LD I0.8 -> Indirizzo Bit OP1 non ammesso"},
      {300, "MEND", "MEND", 0, "0300 [Ok!   ]: MEND "},
      {9, "MEND", "\xE0 ", 0, "0009 [Ok!   ]: \xE0  "},
      {100, "MEND", "MEND", 0, "0100 [Ok!   ]: MEND "},
  };
  for (const Elencata& attesa : casi) {
    // Rows in front of it stand in for those of a project.
    std::vector<Riga_Src> righe(static_cast<std::size_t>(attesa.riga) + 1, Riga_Di("MEND"));
    righe.back() = Riga_Di(attesa.linea);
    righe.back().Testo_CPU = attesa.testo;
    righe.back().Testo_Lista = "not this one";
    EXPECT_EQ(Stato_Riga(righe.back(), attesa.riga), attesa.stato) << attesa.linea;
    const Compilazione compilata = Compila_Righe(righe);
    EXPECT_EQ(compilata.Errori, attesa.stato == 0 ? 0 : 1);
    const std::vector<Riga_Listato> elenco = Listato(righe, compilata.Rilievi);
    EXPECT_EQ(elenco.back().Come_Testo(), attesa.elenco);
    EXPECT_EQ(elenco.back().Errata, attesa.stato != 0);
    EXPECT_TRUE(Testo_Listato(elenco).ends_with(std::string(attesa.elenco) + "\r\r\n"));
  }
}

TEST_F(CheckedLine, IsListedBehindTheLinesBeforeIt) {
  const std::vector<Riga_Src> righe = {Riga_Di("FOO"), Riga_Di("MEND")};
  EXPECT_EQ(Testo_Listato(Listato(righe, Compila_Righe(righe).Rilievi)),
            "0000 [Err. 3]:  -> Istruzione non riconosciuta\r\r\n0001 [Ok!   ]:  \r\r\n");
}

// ---- the table of messages --------------------------------------------------------------------

const std::vector<std::pair<Verdetto_Riga, const char*>> Tabella_Messaggi = {
    {{2, "-> Istruzione non supportata"}, "FOR"},
    {{3, "-> Istruzione non riconosciuta"}, "FOO"},
    {{3, "-> Operandi non supportati"}, "EU I0.0"},
    {{5, "-> Numero Operandi non supportati"}, "MOVB VB0"},
    {{5, "-> Numero di operandi errarto"}, "LD"},
    {{6, "-> Codice elemento non supportato"}, "MOVW VB0, VW0"},
    {{6, "-> Codice elemento non riconosciuto"}, "= VW0"},
    {{6, "-> Codice elemento in OP1 non supportato"}, "BTI VW0, VW0"},
    {{6, "-> Codice elemento in OP2 non supportato"}, "BIW VB0, VB0"},
    {{6, "-> Codice elemento non supportato in OP1"}, "AW= MW0, VW0"},
    {{6, "-> Codice elemento non supportato in OP2"}, "AW= VW0, MW0"},
    {{6, "-> Indirizzo non supportato"}, "LD T41"},
    {{6, "-> Indirizzo non supportato dal Timer"}, "TOF T64, +1"},
    {{6, "-> Indirizzo Byte non supportato"}, "= M5.0"},
    {{6, "-> Indirizzo Byte OP1 non supportato"}, "INCW VW101"},
    {{6, "-> Indirizzo Byte OP2 non supportato"}, "BIW VB0, QB2"},
    {{6, "-> Operando non supportato"}, "LD L0.0"},
    {{6, "-> Valore OP1 troppo Grande"}, "BIW +256, QB0"},
    {{6, "-> Valore troppo Grande in OP1"}, "MOVD +256, VD0"},
    {{6, "-> Valore troppo Grande in OP2"}, "LDB= VB0, +256"},
    {{9, "-> Indirizzo Bit OP1 non ammesso"}, "LD I0.8"},
    {{9, "-> Codice operando non riconosciuto"}, "LD VW0"},
};

TEST_F(CheckedLine, GivesEachMessageOfTheTable) {
  for (const auto& [messaggio, linea] : Tabella_Messaggi)
    EXPECT_EQ(Controlla(linea), messaggio) << linea;
}

// "-> Valore troppo grande in OP1" with a small g stands in the list of messages too, but no rule
// gives it.
TEST_F(CheckedLine, GivesNoMessageOutsideTheTable) {
  std::set<std::pair<int, std::string>> detti;
  const auto annota = [&](const std::string& mnemonico, std::vector<std::string> operandi) {
    const Verdetto_Riga verdetto = Controlla(Riga_Di(mnemonico, std::move(operandi)));
    if (verdetto.stato != 0) detti.emplace(verdetto.stato, verdetto.testo);
  };
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    annota(istruzione.Nome, {});
    for (const std::string& area : Tutte_Le_Aree()) {
      for (const int numero : {0, 28, 64, 300}) {
        const std::string testo = Operando_Scritto{area, numero}.Come_Testo();
        annota(istruzione.Nome, {testo});
        annota(istruzione.Nome, {testo + ".8"});
        for (const char* altro : {"+5", "AC0", "VW0", "VB0", "C0", "QB0"}) {
          annota(istruzione.Nome, {testo, altro});
          annota(istruzione.Nome, {altro, testo});
        }
      }
    }
  }
  annota("FOO", {});
  std::set<std::pair<int, std::string>> tabella;
  for (const auto& [messaggio, linea] : Tabella_Messaggi)
    tabella.emplace(messaggio.stato, messaggio.testo);
  EXPECT_EQ(detti, tabella);
  EXPECT_FALSE(detti.contains({6, "-> Valore troppo grande in OP1"}));
}

// ---- lines worth a name of their own ----------------------------------------------------------

TEST_F(CheckedLine, OfAContactHasBoundsForByteAndBit) {
  EXPECT_EQ(Controlla("LD I1.7"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("LD I2.0"), (Verdetto_Riga{6, "-> Indirizzo non supportato"}));
  EXPECT_EQ(Controlla("LD I0.8"), (Verdetto_Riga{9, "-> Indirizzo Bit OP1 non ammesso"}));
}

TEST_F(CheckedLine, OfAContactMayLackTheDot) {
  EXPECT_EQ(Controlla("LD I0"), Verdetto_Riga{});
}

TEST_F(CheckedLine, OfAContactTakesNoVMemoryAndNoConstant) {
  EXPECT_EQ(Controlla("LD V0.0"), (Verdetto_Riga{6, "-> Operando non supportato"}));
  EXPECT_EQ(Controlla("LD K1"), (Verdetto_Riga{9, "-> Codice operando non riconosciuto"}));
}

TEST_F(CheckedLine, OfAnOutputTakesNoInput) {
  EXPECT_EQ(Controlla("= I0.0"), (Verdetto_Riga{6, "-> Codice elemento non supportato"}));
  EXPECT_EQ(Controlla("= Q1.0"), Verdetto_Riga{});
}

TEST_F(CheckedLine, OfASetNeedsACountButDoesNotLookAtIt) {
  EXPECT_EQ(Controlla("S Q0.0, 1"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("S Q0.0, 9999"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("S Q0.0, ZZ9999"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("S Q0.0"), (Verdetto_Riga{5, "-> Numero Operandi non supportati"}));
}

TEST_F(CheckedLine, OfATimerHasItsOwnBoundAndNoWordPreset) {
  EXPECT_EQ(Controlla("TON T37, +100"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("TON T64, +100"),
            (Verdetto_Riga{6, "-> Indirizzo non supportato dal Timer"}));
  EXPECT_EQ(Controlla("TON T37, IW0"), (Verdetto_Riga{6, "-> Codice elemento non supportato"}));
  EXPECT_EQ(Controlla("LD T63"), (Verdetto_Riga{6, "-> Indirizzo non supportato"}));
}

TEST_F(CheckedLine, OfACounterHasABound) {
  EXPECT_EQ(Controlla("CTU C20, +1"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("CTU C21, +1"), (Verdetto_Riga{6, "-> Indirizzo Byte non supportato"}));
}

TEST_F(CheckedLine, OfAByteMoveTakesTheListedSpecialBytesAndSmallConstants) {
  EXPECT_EQ(Controlla("MOVB SMB30, VB0"),
            (Verdetto_Riga{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Controlla("MOVB SMB34, VB0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("LDB= SMB34, VB0"),
            (Verdetto_Riga{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Controlla("MOVB +300, VB0"), (Verdetto_Riga{6, "-> Valore troppo Grande in OP1"}));
}

TEST_F(CheckedLine, OfAWordMoveTakesTheListedAnalogWords) {
  EXPECT_EQ(Controlla("MOVW AIW1, VW0"),
            (Verdetto_Riga{6, "-> Indirizzo Byte OP1 non supportato"}));
  EXPECT_EQ(Controlla("MOVW AIW2, VW0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("MOVW VW0, AQW2"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("MOVW VW0, AQW4"),
            (Verdetto_Riga{6, "-> Indirizzo Byte OP2 non supportato"}));
}

TEST_F(CheckedLine, OfTheWordLogicIsAcceptedForXordAlone) {
  EXPECT_EQ(Controlla("XORD AC0, AC1"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("XORW AC0, AC1"), (Verdetto_Riga{2, "-> Istruzione non supportata"}));
}

TEST_F(CheckedLine, IsRefusedInOneOfThreeWays) {
  EXPECT_EQ(Controlla("NOT I0.0"), (Verdetto_Riga{3, "-> Operandi non supportati"}));
  EXPECT_EQ(Controlla("END"), (Verdetto_Riga{2, "-> Istruzione non supportata"}));
  EXPECT_EQ(Controlla("FOO"), (Verdetto_Riga{3, "-> Istruzione non riconosciuta"}));
}

TEST_F(CheckedLine, HasBoundsThatAreNotUniform) {
  EXPECT_EQ(Controlla("MOVD +255, VD0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("MOVD +256, VD0"), (Verdetto_Riga{6, "-> Valore troppo Grande in OP1"}));
  EXPECT_EQ(Controlla("MOVW +256, VW0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("MOVW MW3, VW0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("LDW= MW3, VW0"),
            (Verdetto_Riga{6, "-> Codice elemento non supportato in OP1"}));
  EXPECT_EQ(Controlla("LDW= IW0, QW0"), Verdetto_Riga{});
  EXPECT_EQ(Controlla("BTI AC0, VW0"),
            (Verdetto_Riga{6, "-> Codice elemento in OP1 non supportato"}));
  EXPECT_EQ(Controlla("MOVB VB-1, VB-5"), Verdetto_Riga{});
}

}  // namespace
}  // namespace tavorno::prova
