// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <string>
#include <vector>

#include "one_line.h"

namespace tavorno::prova {
namespace {

class ProgramFlow : public Una_Riga {
 protected:
  ProgramFlow() {
    for (Riga_Timer& timer : plc.Mem_T) timer.Conta = -1;
    for (std::int16_t& parola : plc.Mem_VW) parola = 0;  // the programs below count in words
    for (int cella = 0; cella <= 7; ++cella)
      plc.Stak_Rit[cella] = static_cast<std::int16_t>(3 + cella);
  }

  std::vector<int> Ritorni() const { return {plc.Stak_Rit.begin(), plc.Stak_Rit.end()}; }
};

// ---- the return stack ---------------------------------------------------------------------------

TEST_F(ProgramFlow, ReturnStackCodesDoAsTheirRowsSay) {
  using Celle = std::vector<int>;
  plc.Rit_Stak(Op_Ritorni::Spingi, 77);
  EXPECT_EQ(Ritorni(), (Celle{77, 3, 4, 5, 6, 7, 8, 9}));
  plc.Rit_Stak(Op_Ritorni::Togli_Due, 99);  // two levels at once, and the bottom stays
  EXPECT_EQ(Ritorni(), (Celle{4, 5, 6, 7, 8, 9, 0, 9}));
  plc.Rit_Stak(static_cast<Op_Ritorni>(3), 99);
  EXPECT_EQ(Ritorni(), (Celle{4, 5, 6, 7, 8, 9, 0, 9}));
  plc.Rit_Stak(Op_Ritorni::Azzera, 99);
  EXPECT_EQ(Ritorni(), (Celle{0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(ProgramFlow, PushBeyondEightLevelsLosesTheOldest) {
  plc.Rit_Stak(Op_Ritorni::Azzera);
  for (std::int16_t linea = 11; linea <= 19; ++linea) plc.Rit_Stak(Op_Ritorni::Spingi, linea);
  EXPECT_EQ(Ritorni(), (std::vector<int>{19, 18, 17, 16, 15, 14, 13, 12}));
}

TEST_F(ProgramFlow, RunLeavesTheReturnStack) {
  Carica({"NOP"});
  const auto prima = plc.Stak_Rit;
  Run_Step();
  EXPECT_EQ(plc.Stak_Rit, prima);
}

// ---- one call of the interpreter ----------------------------------------------------------------

struct Passaggio {
  const char* nome;
  const char* riga;  // stands at row 2 of the program below
  int cima;
  int pc_dopo;
  void (*dopo)(Memoria&);  // nothing else changes when empty
};

void Ferma_T5_T6(Memoria& m) {
  m.Mem_T[5].Conta = m.Mem_T[6].Conta = 0;
}
void Ferma_T7_T8_T9(Memoria& m) {
  m.Mem_T[7].Conta = m.Mem_T[8].Conta = m.Mem_T[9].Conta = 0;
}
void Ritorna(Memoria& m) {
  for (int cella = 0; cella <= 5; ++cella) m.Stak_Rit[cella] = m.Stak_Rit[cella + 2];
  m.Stak_Rit[6] = 0;
}
void Chiama(Memoria& m) {
  for (int cella = 7; cella >= 1; --cella) m.Stak_Rit[cella] = m.Stak_Rit[cella - 1];
  m.Stak_Rit[0] = 3;
}

// The lines are rows 2 of this program; a taken jump executes the LBL or SBR that it meets.
std::vector<std::string> Programma_Con(const char* riga) {
  return {"NOP",  "TON T4, +5", riga,          "TON T5, +5", "TOF T6, +5", "LBL 3", "TON T10, +5",
          "MEND", "SBR0 UNO",   "TONR T7, +5", "TON T8, +5", "TOF T9, +5", "RET",   "TON T11, +5"};
}

const Passaggio passaggi[] = {
    {"TakenJmpStopsTheTimersItSkips", "JMP 3", 1, 6, Ferma_T5_T6},
    {"JmpNotTakenDoesNothing", "JMP 3", 0, 3, nullptr},
    {"TakenCallRemembersItsLine", "CALL UNO", 1, 9, Chiama},
    {"CallNotTakenStopsTheTimersOfItsProcedure", "CALL UNO", 0, 3, Ferma_T7_T8_T9},
    {"CallFindsItsProcedureWhateverTheCase", "CALL Uno", 1, 9, Chiama},
    {"RetGoesBack", "RET", 0, 4, Ritorna},
    {"RetGoesBackWithTheTopOn", "RET", 1, 4, Ritorna},
    {"CretGoesBackWithTheTopOn", "CRET", 1, 4, Ritorna},
    {"CretDoesNothingWithTheTopOff", "CRET", 0, 3, nullptr},
    {"NetworkDoesNothing", "NETWORK 12", 1, 3, nullptr},
    {"SbrDoesNothing", "SBR1 DUE", 1, 3, nullptr},
    {"SbrWithoutANumberDoesNothing", "SBR DUE", 1, 3, nullptr},
    {"LblDoesNothing", "LBL 9", 1, 3, nullptr},
    {"ScreDoesNothing", "SCRE", 1, 3, nullptr},
    {"NopDoesNothing", "NOP", 1, 3, nullptr},
    {"EndDoesNothing", "END", 1, 3, nullptr},
    {"StopDoesNothing", "STOP", 1, 3, nullptr},
    {"CretiDoesNothing", "CRETI", 1, 3, nullptr},
    {"EniDoesNothing", "ENI", 1, 3, nullptr},
    {"DisiDoesNothing", "DISI", 1, 3, nullptr},
    {"AtchDoesNothing", "ATCH 0, 1", 1, 3, nullptr},
    {"ItbDoesNothing", "ITB VW0, VB0", 1, 3, nullptr},
    {"BcdiDoesNothing", "BCDI VW0", 1, 3, nullptr},
    {"IbcdDoesNothing", "IBCD VW0", 1, 3, nullptr},
    {"DivDoesNothing", "DIV VW0, VD0", 1, 3, nullptr},
};

class FlowLine : public ProgramFlow, public ::testing::WithParamInterface<Passaggio> {};

TEST_P(FlowLine, DoesAsItsRowSaysWhateverTheLineEnable) {
  const Passaggio& caso = GetParam();
  for (const int abilitata : {0, 1}) {
    for (std::int16_t cella = 0; cella <= 7; ++cella)
      plc.Stak_Rit[cella] = static_cast<std::int16_t>(3 + cella);
    for (Riga_Timer& timer : plc.Mem_T) timer.Conta = -1;
    Prepara(Programma_Con(caso.riga), 2, {caso.cima, abilitata});
    Memoria atteso = plc;
    // The return leads to row 3, a line of its own that runs in the same call.
    if (caso.dopo == Ritorna) plc.Prog[3] = atteso.Prog[3] = Riga("NOP");
    if (caso.dopo) caso.dopo(atteso);
    Attendi(atteso, caso.pc_dopo);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, FlowLine, ::testing::ValuesIn(passaggi),
                         [](const auto& riga) { return std::string(riga.param.nome); });

TEST_F(ProgramFlow, MendEndsTheScan) {
  Prepara("MEND");
  plc.Primo_Ciclo = -1;
  plc.Mem_SM[0].Bit[1] = 1;
  plc.N_Cicli = 4;
  plc.T_Inizio = 0;
  orologio.Avanza(30);
  for (Riga_IP& uscite : plc.IP_Q) {
    for (std::uint8_t& bit : uscite.Bit_Dir) bit = 0;  // the end of a scan lights them
  }
  Memoria atteso = plc;
  atteso.Mem_SM[0].Bit[1] = 0;
  atteso.Mem_SM[0].Bit[6] = 1;
  for (Riga_IP& uscite : atteso.IP_Q) {
    for (int bit = 0; bit <= 7; ++bit) uscite.Bit_Dir[bit] = 1;
    uscite.Txt_B = "11111111";
    uscite.Val_B = 255;
  }
  Attendi(atteso, 0);
  EXPECT_EQ(plc.N_Cicli, 5);
  EXPECT_EQ(plc.Primo_Ciclo, 0);
  EXPECT_EQ(plc.Tempo_Ciclo, 30);
  EXPECT_EQ(plc.SQ[0].Stato_Q(), "11111111");
}

// ---- mnemonics without a branch -----------------------------------------------------------------

TEST_F(ProgramFlow, MnemonicWithoutABranchStopsTheRunBehindItself) {
  for (const char* istr :
       {"XORD", "RETI", "INT",  "INT0", "INT12",  "FOR",  "NEXT",  "SCRT",  "WDR",  "DTCH",
        "HDEF", "HSC",  "PLS",  "ITD",  "DTI",    "DTR",  "ROUND", "TRUNC", "ITA",  "DTA",
        "RTA",  "DECO", "ENCO", "ATH",  "HTA",    "SEG",  "BMB",   "BMW",   "BMD",  "SWAP",
        "+R",   "-R",   "*R",   "/R",   "MUL",    "SQRT", "SIN",   "COS",   "TAN",  "LN",
        "EXP",  "PID",  "INVB", "INVW", "INVD",   "ANDB", "ANDW",  "ANDD",  "ORB",  "ORW",
        "ORD",  "XORB", "XORW", "SLB",  "SLW",    "SLD",  "SRB",   "SRW",   "SRD",  "RLB",
        "RLW",  "RLD",  "RRB",  "RRW",  "RRD",    "SHRB", "LDR=",  "AR<>",  "OR>=", "LDR<=",
        "AR>",  "OR<",  "FOO",  "ld",   "NETWORK"}) {
    SCOPED_TRACE(istr);
    plc.IP_Q[0].Val_B = 255;
    Prepara(istr);
    Memoria atteso = plc;
    atteso.PC = 2;
    Uscite_Spente(atteso);
    plc.Ferma = 0;
    plc.Esegui_Riga();
    EXPECT_TRUE(plc == atteso);
    EXPECT_FALSE(plc.PLC_Acceso);
    EXPECT_TRUE(plc.Ferma);
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_EQ(avvisi[0].Titolo, "Errore in Esecuzione!");
    EXPECT_EQ(avvisi[0].Simbolo, Icona::Critica);
    EXPECT_EQ(avvisi[0].Testo, std::string("Riga 1 : <") + istr +
                                   ">--> Istruzione non riconosciuta!\n"
                                   "Il Programma verrà terminato.");
    avvisi.clear();
  }
}

// ---- jumps and calls in a program ---------------------------------------------------------------

TEST_F(ProgramFlow, StepOnATakenJumpExecutesTheLabelTooAndStopsBehindIt) {
  Carica({"LD SM0.0", "JMP 1", "= Q0.0", "LBL 1", "= Q0.1"});
  Run_Step();
  plc.CmdStep();
  plc.CmdStep();
  EXPECT_EQ(plc.PC, 4);
  EXPECT_EQ(plc.etPc, 4);
  plc.CmdStep();
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[0], 0);
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[1], 1);
}

TEST_F(ProgramFlow, SkippedTimerFreezesAndGoesOnFromItsValue) {
  Carica({"LD I0.0", "JMP 1", "LD SM0.0", "TON T37, +50", "LBL 1"});
  Run_Step();
  Scansione();
  orologio.Avanza(1000);
  Ingresso(0, 0, true);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 50, 0, 0}));
  orologio.Avanza(1000);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 50, 0, 0}));
  Ingresso(0, 0, false);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 50, 0, -1}));
  orologio.Avanza(500);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{15, 50, 0, -1}));
}

TEST_F(ProgramFlow, CallWithTheTopOffStopsTheTimersOfTheProcedureAndWithTheTopOnLeavesThem) {
  Carica({"LD I0.0", "CALL UNO", "MEND", "SBR0 UNO", "LD SM0.0", "TON T37, +50", "RET"});
  Run_Step();
  Ingresso(0, 0, true);
  Scansione();
  orologio.Avanza(1000);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 50, 0, -1}));
  Ingresso(0, 0, false);
  Scansione();
  EXPECT_EQ(plc.Mem_T[37], (Riga_Timer{10, 50, 0, 0}));
}

TEST_F(ProgramFlow, CalledProcedureFindsTheTopOnAndTheCallerWhatItLeft) {
  Carica({"LD SM0.0", "LD SM0.2", "LD SM0.0", "CALL UNO", "= Q0.1", "MEND", "SBR0 UNO", "= Q0.0",
          "LD SM0.2", "RET"});
  Run_Step();
  for (int riga = 0; riga <= 3; ++riga) plc.CmdStep();
  EXPECT_EQ(plc.PC, 7);
  EXPECT_EQ(Pila(), (std::vector<int>{1, 0, 1, 0, 0, 0, 0, 0}));
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 1);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[1], 0);
  EXPECT_EQ(Pila(), (std::vector<int>{0, 1, 0, 1, 0, 0, 0, 0}));
}

TEST_F(ProgramFlow, OneLevelOfCallsReturnsBehindEachCall) {
  plc.Rit_Stak(Op_Ritorni::Azzera);
  Carica({"LD SM0.0", "CALL UNO", "INCW VW0", "CALL DUE", "INCW VW1", "MEND", "SBR0 UNO",
          "INCW VW2", "CRET", "INCW VW9", "RET", "SBR1 DUE", "INCW VW3", "RET"});
  Run_Step();
  Scansione();
  Scansione();
  for (const int parola : {0, 1, 2, 3}) EXPECT_EQ(plc.Mem_VW[parola], 2);
  EXPECT_EQ(plc.Mem_VW[9], 0);
  EXPECT_EQ(plc.N_Cicli, 2);
}

TEST_F(ProgramFlow, SecondReturnOfTwoNestedCallsRestartsTheProgramWithoutAnEndOfScan) {
  plc.Rit_Stak(Op_Ritorni::Azzera);
  Carica({"INCW VW0", "LDN M0.0", "CALL UNO", "LD SM0.0", "INCW VW1", "MEND", "SBR0 UNO",
          "CALL DUE", "INCW VW2", "S M0.0, 1", "RET", "SBR1 DUE", "= Q0.0", "INCW VW3", "RET"});
  Run_Step();
  plc.Stak[0] = 1;
  for (int passo = 0; passo < 20 && plc.PC != 10; ++passo) plc.CmdStep();
  EXPECT_EQ(plc.Mem_VW[3], 1);  // the inner procedure ran
  EXPECT_EQ(plc.Mem_VW[2], 1);  // and came back behind its call
  EXPECT_EQ(Ritorni(), (std::vector<int>(8, 0)));
  Ingresso(0, 1, true);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[1], 0);
  orologio.Avanza(40);
  plc.CmdStep();  // the outer RET, and line 0 in the same call
  EXPECT_EQ(plc.PC, 1);
  EXPECT_EQ(plc.Mem_VW[0], 2);
  EXPECT_EQ(plc.Mem_VW[1], 0);  // the line behind the outer call was not reached
  EXPECT_EQ(plc.IP_I[0].Bit_Img[1], 1);
  EXPECT_EQ(plc.T_Inizio, 40);
  EXPECT_EQ(plc.N_Cicli, 0);
  EXPECT_EQ(plc.IP_Q[0].Bit_Img[0], 1);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 0);  // outputs were not refreshed
  Scansione();
  EXPECT_EQ(plc.N_Cicli, 1);
  EXPECT_EQ(plc.Mem_VW[1], 1);
}

/// What line 0 does with all switches off.
void Ingressi_Letti(Memoria& m) {
  for (Riga_IP& ingressi : m.IP_I) {
    ingressi.Txt_B = "00000000";
    ingressi.Val_B = 0;
  }
}

TEST_F(ProgramFlow, ReturnWithAnEmptyStackGoesToLineZero) {
  plc.Rit_Stak(Op_Ritorni::Azzera);
  Prepara({"NOP", "NOP", "RET"}, 2, {0, 1});
  Memoria atteso = plc;
  Ingressi_Letti(atteso);
  Attendi(atteso, 1);
}

TEST_F(ProgramFlow, JumpThatWasNotLinkedGoesToLineZero) {
  Prepara({"NOP", "NOP", "JMP 1", "TON T5, +5"}, 2);
  Memoria atteso = plc;
  Ingressi_Letti(atteso);
  Attendi(atteso, 1);
}

TEST_F(ProgramFlow, ProgramWithoutAnEndFailsBehindItsLastLine) {
  Carica({"MEND", "NOP"});
  plc.PC = 1;
  plc.Esegui_Riga();
  EXPECT_THROW(plc.Esegui_Riga(), Fatale);
}

// ---- sequence control ---------------------------------------------------------------------------

TEST_F(ProgramFlow, LscrCopiesItsBitToTheLinesOfItsSectionOnly) {
  for (const std::int16_t bit : {std::int16_t{0}, std::int16_t{1}}) {
    for (const int cima : {0, 1}) {
      for (const int abilitata : {0, 1}) {
        Prepara({"NOP", "LSCR S1.3", "= Q0.0", "NOP", "SCRE", "LSCR S0.0", "NOP", "SCRE"}, 1,
                {cima, abilitata});
        for (const int riga : {0, 2, 3, 4, 6}) plc.Prog[riga].Abil_SCR = bit == 0 ? 1 : 0;
        plc.Mem_S[1].Bit[3] = bit;
        Memoria atteso = plc;
        atteso.Prog[2].Abil_SCR = atteso.Prog[3].Abil_SCR = bit;
        Attendi(atteso);
      }
    }
  }
}

TEST_F(ProgramFlow, EmptySectionEnablesNothing) {
  Prepara({"NOP", "LSCR S1.3", "SCRE", "NOP"}, 1);
  Attendi(plc);
}

TEST_F(ProgramFlow, DisabledSectionWorksOnTheStackAndWritesZero) {
  Carica({"LSCR S0.0", "LD SM0.0", "= Q0.0", "S Q0.1, 1", "A SM0.0", "= M0.0", "SCRE", "= Q0.2"});
  Run_Step();
  plc.IP_Q[0].Bit_Img[0] = 1;
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 0);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[1], 0);
  EXPECT_EQ(plc.Mem_M[0].Bit[0], 0);
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[2], 1);  // the stack is the same behind the section
  plc.Mem_S[0].Bit[0] = 1;
  Scansione();
  for (const int bit : {0, 1, 2}) EXPECT_EQ(plc.IP_Q[0].Bit_Dir[bit], 1);
}

TEST_F(ProgramFlow, SequenceBitSetInItsSectionActsAtTheNextLscr) {
  Carica({"LSCR S0.0", "LD SM0.0", "= Q0.0", "= S0.0", "SCRE", "LD SM0.0", "= S0.0"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 0);
  EXPECT_EQ(plc.Mem_S[0].Bit[0], 1);
  EXPECT_EQ(plc.Prog[2].Abil_SCR, 0);
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 1);
  // The last line of an enabled section resets its own bit: the section ends a scan later.
  Carica({"LSCR S0.0", "LD SM0.0", "= Q0.0", "R S0.0, 1", "SCRE"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 1);
  EXPECT_EQ(plc.Mem_S[0].Bit[0], 0);
  EXPECT_EQ(plc.Prog[2].Abil_SCR, 1);
  Scansione();
  EXPECT_EQ(plc.IP_Q[0].Bit_Dir[0], 0);
}

TEST_F(ProgramFlow, SectionUnderAJumpKeepsItsEnable) {
  Carica({"LD I0.0", "JMP 1", "LSCR S0.0", "= Q0.0", "SCRE", "LBL 1"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.Prog[3].Abil_SCR, 0);
  plc.Mem_S[0].Bit[0] = 1;
  Ingresso(0, 0, true);
  Scansione();
  EXPECT_EQ(plc.Prog[3].Abil_SCR, 0);
  Ingresso(0, 0, false);
  Scansione();
  EXPECT_EQ(plc.Prog[3].Abil_SCR, 1);
}

TEST_F(ProgramFlow, CallInADisabledSectionStillGoes) {
  Carica({"LSCR S0.0", "LD SM0.0", "CALL UNO", "SCRE", "MEND", "SBR0 UNO", "INCW VW0", "RET"});
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.Mem_VW[0], 1);
}

}  // namespace
}  // namespace tavorno::prova
