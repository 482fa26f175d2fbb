// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside the lines of the program.
#include "trace/line_state.h"

#include "run_bed.h"

namespace tavorno::prova {
namespace {

class Line_State : public Banco_Tracce {
 public:
  std::string Testi() {
    std::string testi;
    for (int riga = 0; riga <= plc.NRighe; ++riga)
      testi += (riga > 0 ? "|" : "") + Leggi_Operandi(plc, plc.Prog[riga]).Testo;
    return testi;
  }
  std::string Flussi(const Flusso_Righe& flusso) {
    std::string flussi;
    for (int riga = 0; riga <= plc.NRighe; ++riga)
      flussi += flusso.Di(riga) == Flusso_Riga::Ignoto   ? '.'
                : flusso.Di(riga) == Flusso_Riga::Acceso ? '1'
                                                         : '0';
    return flussi;
  }
  /// A run that is stopped after so many scans; `fai` is called in a yield of each.
  void Corri(int scansioni, const std::function<void()>& fai) {
    int numero = 0;
    const Iscrizione mani = plc.Hook.Ascolta_Cedi([&] {
      if (plc.PC != 0) return;
      seduta.orologio.Avanza(1);
      fai();
      if (++numero > scansioni) plc.mnuPlcStop();
    });
    plc.mnuPlcRun();
  }
};

TEST_F(Line_State, OperandsShowWhatTheProgramReads) {
  Carica({"LD I0.1", "TON T37, +50", "LDW>= T37, VW10", "MOVW +7 VW10", "MOVB IB0 VB2", "LD C3",
          "NOT", "MOVW +1 AC1", "CALL SBR0"});
  plc.IP_I[0].Bit_Img[1] = 1;
  plc.IP_I[0].Val_B = 200;
  plc.Mem_T[37] = {23, 50, 0, 0};
  plc.Mem_VW[10] = -12;
  plc.Mem_VB[2] = 9;
  plc.Mem_C[3].Uscita = 1;
  plc.Mem_C[3].Val = 4;
  plc.Mem_C[3].PV = 3;
  plc.Mem_AC[1] = 2.5F;
  EXPECT_EQ(Testi(), "|1|0  23/50|0  23/50  -12|-12|200  9|1  4/3||2,5||");
  EXPECT_TRUE(Leggi_Operandi(plc, plc.Prog[1]).Acceso);
  EXPECT_FALSE(Leggi_Operandi(plc, plc.Prog[2]).Acceso);
  EXPECT_FALSE(Leggi_Operandi(plc, plc.Prog[8]).Acceso) << "a word is no bit";
}

TEST_F(Line_State, AnOperandOutsideItsAreaShowsNothing) {
  Carica({"LD I0.1"});
  plc.Prog[1].Num1 = 99;
  EXPECT_EQ(Testi(), "||");
  plc.Prog[1].Num1 = 0;
  plc.Prog[1].Bit1 = 12;
  EXPECT_EQ(Testi(), "||");
}

TEST_F(Line_State, PowerIsWatchedForOneScanOfARun) {
  Carica({"LD SM0.0", "A I0.0", "= Q0.0", "LDN I0.0", "= Q0.1"});
  Flusso_Righe flusso(plc);
  EXPECT_EQ(Flussi(flusso), ".......");
  int scansione = 0;
  Corri(6, [&] {
    if (++scansione == 2) flusso.Chiedi();
  });
  EXPECT_FALSE(flusso.In_Ascolto());
  EXPECT_FALSE(plc.Hook.Cedi_Ascoltato()) << "a scan, and no more";
  EXPECT_EQ(Flussi(flusso), ".10011.");
  plc.SI[0].Stato_I("10000000");
  Corri(6, [&] { flusso.Chiedi(); });
  flusso.Fermo();
  EXPECT_EQ(Flussi(flusso), ".11100.");
  flusso.Dimentica();
  EXPECT_EQ(Flussi(flusso), ".......");
}

TEST_F(Line_State, LinesThatAreJumpedOverAreUnknown) {
  Carica({"LD SM0.0", "JMP 1", "LD I0.0", "= Q0.0", "LBL 1", "LD SM0.0", "= Q0.1"});
  Flusso_Righe flusso(plc);
  Corri(5, [&] { flusso.Chiedi(); });
  flusso.Fermo();
  EXPECT_EQ(Flussi(flusso), ".11...11.");
}

TEST_F(Line_State, InStepEachLineIsKnownOnceItWasExecuted) {
  Carica({"LD SM0.0", "A I0.0", "= Q0.0", "LD SM0.0"});
  Flusso_Righe flusso(plc);
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  const std::vector<std::string> attesi = {"......", ".1....", ".10...", ".100..",
                                           ".1001.", ".1001.", "......"};
  for (const std::string& atteso : attesi) {
    plc.CmdStep();
    flusso.Passo();
    EXPECT_EQ(Flussi(flusso), atteso) << plc.PC;
  }
}

TEST_F(Line_State, InASectionThatIsOffThereIsNoPower) {
  Carica({"LSCR S0.1", "LD SM0.0", "= Q0.0", "SCRE"});
  Flusso_Righe flusso(plc);
  Corri(5, [&] { flusso.Chiedi(); });
  flusso.Fermo();
  EXPECT_EQ(Flussi(flusso), "..00..");
  plc.Mem_S[0].Bit[1] = 1;
  Corri(5, [&] { flusso.Chiedi(); });
  flusso.Fermo();
  EXPECT_EQ(Flussi(flusso), "..11..");
}

}  // namespace
}  // namespace tavorno::prova
