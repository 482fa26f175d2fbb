// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {
namespace {

void Scrivi_Bit(Memoria& memoria, int riga, int valore) {
  for (int bit = 0; bit <= 7; ++bit) {
    const auto cella = static_cast<std::uint8_t>(valore >> bit & 1);
    memoria.IP_Q[riga].Bit_Img[bit] = memoria.IP_Q[riga].Bit_Dir[bit] = cella;
  }
}

class Moves : public Una_Riga {
 protected:
  Moves() { Semina(); }

  /// Outputs with bits of both kinds, since moves write them to either.
  void Semina() {
    Una_Riga::Semina();
    for (const int i : {0, 1}) Scrivi_Bit(plc, i, 0xA5);
  }
};

// ---- every instruction, source and destination --------------------------------------------------

struct Regola_Run {
  const char* istr;
  bool con_flusso;  // gate: power flow, else the top alone
  std::string_view sorgenti, destinazioni;
  bool altra_destinazione_errore;
};

const Regola_Run regole_run[] = {
    {"MOVB", false, " IB QB MB VB SMB K AC ", " VB AC ", false},
    {"MOVW", true, " IW QW MW VW T C AIW K AC ", " VW AQW AC ", false},
    {"MOVD", false, " VD K AC ", " VD AC ", false},
    {"MOVR", false, " VD K AC ", " VD AC ", false},
    {"BIR", true, " I Q M S SM T C IB QB MB SMB VB IW QW MW VW AIW AQW VD AC K V ", " VB AC ",
     true},
    {"BIW", true, " VB AC IB QB MB K ", " QB ", true},
    {"BTI", true, " VB IB QB MB SMB AC K ", " VW T C AC ", true},
};

/// The value of a source with the number 1 as the seed set it.
int Valore_Di(const Memoria& m, std::string_view istr, std::string_view area) {
  if (istr == "BIR" || area == "IB") return m.IP_I[1].Val_B;  // BIR reads inputs for any area
  if (area == "QB") return m.IP_Q[1].Val_B;
  if (area == "MB") return m.Mem_M[1].Val_B;
  if (area == "SMB") return m.Mem_SM[1].Val_B;
  if (area == "VB") return m.Mem_VB[1];
  if (area == "VW") return m.Mem_VW[1];
  if (area == "VD") return m.Mem_VD[1];
  if (area == "AC") return static_cast<int>(m.Mem_AC[1]);
  if (area == "IW") return 1011;
  if (area == "QW") return 1100;
  if (area == "MW") return 1101;
  if (area == "T") return m.Mem_T[1].Val;
  if (area == "C") return m.Mem_C[1].Val;
  if (area == "AIW") return m.Mem_AIW[1];
  return 1;  // K
}

/// Puts a value into a cell as a destination takes it; limits below set their sources with it too.
void Scrivi(Memoria& m, std::string_view area, int n, double valore) {
  Metti(m, area, n, valore);
  const auto lungo = static_cast<std::int32_t>(static_cast<long long>(valore));
  const auto corto = static_cast<std::int16_t>(lungo);
  if (area == "AQW") m.Mem_AQW[n] = lungo;
  if (area == "IB") m.IP_I[n].Val_B = corto;
  if (area == "SMB") m.Mem_SM[n].Val_B = corto;
  if (area == "T") m.Mem_T[n].PT = corto;
  if (area == "C") m.Mem_C[n].PV = corto;
  if (area == "QB") {
    m.IP_Q[n].Val_B = corto;
    Scrivi_Bit(m, n, lungo);
  }
}

using Coppia = std::tuple<Regola_Run, const char*>;
class MoveTable : public Moves, public ::testing::WithParamInterface<Coppia> {};

TEST_P(MoveTable, MovesToEveryDestinationAsItsRowSaysAndOnlyThroughItsGate) {
  const auto& [regola, sorgente] = GetParam();
  for (const char* destinazione : aree) {
    for (const Porta& porta : {aperta, chiuse[0], chiuse[1], chiuse[2]}) {
      SCOPED_TRACE(std::string(destinazione) + " top " + std::to_string(porta.cima) + " enable " +
                   std::to_string(porta.abilitata));
      Semina();
      Prepara(std::string(regola.istr) + " " + Operando_Di(sorgente, 1) + ", " +
                  Operando_Di(destinazione, 0),
              porta);
      Memoria atteso = plc;
      Fine fine = Bene;
      if (regola.con_flusso ? porta.Flusso() : porta.cima == 1) {
        if (!Elencata(regola.sorgenti, sorgente))
          fine = Errore;
        else if (Elencata(regola.destinazioni, destinazione))
          Scrivi(atteso, destinazione, 0, Valore_Di(plc, regola.istr, sorgente));
        else if (regola.altra_destinazione_errore)
          fine = Errore;
      }
      Attendi(fine, atteso);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, MoveTable, ::testing::Combine(::testing::ValuesIn(regole_run), ::testing::ValuesIn(aree)),
    [](const auto& riga) {
      return std::string(std::get<0>(riga.param).istr) + "From" + std::get<1>(riga.param);
    });

// ---- limits and values --------------------------------------------------------------------------

struct Operando_Limite {
  const char* area;
  int numero;  // of a constant, its value
};

struct Limite {
  const char* istr;
  const char* nome;
  Operando_Limite sorgente;
  double valore;  // of the source before; a constant has its own
  Operando_Limite destinazione;
  Fine fine;
  double dopo;  // value of the destination, if the line ends well
};

const Limite limiti[] = {
    {"MOVB", "AtTheByteLimit", {"VB", 1}, 255, {"VB", 0}, Bene, 255},
    {"MOVB", "AboveTheByteLimit", {"VB", 1}, 256, {"VB", 0}, Errore, 0},
    {"MOVB", "OfANegativeValue", {"VB", 1}, -300, {"AC", 0}, Bene, -300},
    {"MOVB", "OfAConstantAtTheByteLimit", {"K", 255}, 0, {"VB", 0}, Bene, 255},
    {"MOVB", "OfAConstantAboveTheByteLimit", {"K", 256}, 0, {"VB", 0}, Errore, 0},
    {"MOVB", "OfAnInputByteAboveTheByteLimit", {"IB", 1}, 256, {"VB", 0}, Errore, 0},
    {"MOVB", "OfASpecialByteAboveTheByteLimit", {"SMB", 1}, 256, {"VB", 0}, Errore, 0},
    {"MOVB", "OfAPotentiometer", {"SMB", 28}, 200, {"VB", 0}, Bene, 200},
    {"MOVB", "RoundsUnderTheLimit", {"AC", 1}, 254.5, {"VB", 0}, Bene, 254},
    {"MOVB", "RoundsOverTheLimit", {"AC", 1}, 255.5, {"VB", 0}, Errore, 0},
    {"MOVB", "AtTheBottomOfTheCell", {"AC", 1}, -32768, {"VB", 0}, Bene, -32768},
    {"MOVB", "BelowTheCell", {"AC", 1}, -32769, {"VB", 0}, Crollo, 0},
    {"MOVB", "BelowTheCellIntoAnAccumulator", {"AC", 1}, -32769, {"AC", 0}, Bene, -32769},
    {"MOVB", "AboveTheLimitToAnIgnoredDestination", {"K", 256}, 0, {"VW", 0}, Errore, 0},

    {"MOVW", "AtTheWordLimit", {"AIW", 2}, 32767, {"VW", 0}, Bene, 32767},
    {"MOVW", "AboveTheWordLimit", {"AIW", 2}, 32768, {"VW", 0}, Errore, 0},
    {"MOVW", "AboveTheWordLimitIntoAnOutputWord", {"AIW", 2}, 32768, {"AQW", 0}, Errore, 0},
    {"MOVW", "OfANegativeWord", {"VW", 1}, -32768, {"AQW", 0}, Bene, -32768},
    {"MOVW", "OfANegativeConstant", {"K", -7}, 0, {"VW", 0}, Bene, -7},
    {"MOVW", "RoundsUnderTheLimit", {"AC", 1}, 32766.5, {"VW", 0}, Bene, 32766},
    {"MOVW", "RoundsOverTheLimit", {"AC", 1}, 32767.5, {"VW", 0}, Errore, 0},
    {"MOVW", "AtTheBottomOfTheCell", {"AC", 1}, -32768, {"VW", 0}, Bene, -32768},
    {"MOVW", "BelowTheCell", {"AC", 1}, -32769, {"VW", 0}, Crollo, 0},
    {"MOVW", "BelowTheCellIntoAnOutputWord", {"AC", 1}, -40000, {"AQW", 0}, Bene, -40000},
    {"MOVW", "BelowTheCellIntoAnAccumulator", {"AC", 1}, -40000, {"AC", 0}, Bene, -40000},

    {"MOVD", "OfTheLargestDoubleWord", {"VD", 1}, INT32_MAX, {"VD", 0}, Bene, INT32_MAX},
    {"MOVD", "OfTheSmallestDoubleWord", {"VD", 1}, INT32_MIN, {"AC", 0}, Bene, INT32_MIN},
    {"MOVD", "IntoAnAccumulator", {"K", 5}, 0, {"AC", 1}, Bene, 5},
    {"MOVD", "FromAnAccumulator", {"AC", 1}, 5, {"VD", 0}, Bene, 5},
    {"MOVD", "UpToTwentyFourBitsIsExact", {"VD", 1}, 16777215, {"AC", 0}, Bene, 16777215},
    {"MOVD", "AboveLosesItsLowDigitDownwards", {"VD", 1}, 16777217, {"AC", 0}, Bene, 16777216},
    {"MOVD", "AboveLosesItsLowDigitUpwards", {"VD", 1}, 16777219, {"AC", 0}, Bene, 16777220},
    {"MOVD", "BetweenAccumulatorsRounds", {"AC", 1}, 2.75, {"AC", 0}, Bene, 3},
    {"MOVD", "OfAnAccumulatorBeyondItsCell", {"AC", 1}, 2147483648.0, {"VD", 0}, Crollo, 0},
    {"MOVD", "OfAnAccumulatorFarBeyondItsCell", {"AC", 1}, 4.0e10, {"VD", 0}, Crollo, 0},
    {"MOVD", "OfAnAccumulatorAtItsBottom", {"AC", 1}, INT32_MIN, {"VD", 0}, Bene, INT32_MIN},

    {"BIR", "AtTheByteLimit", {"IB", 1}, 255, {"VB", 0}, Bene, 255},
    {"BIR", "AboveTheByteLimit", {"IB", 1}, 256, {"VB", 0}, Errore, 0},

    {"BIW", "AtTheByteLimit", {"VB", 1}, 255, {"QB", 1}, Bene, 255},
    {"BIW", "AboveTheByteLimit", {"VB", 1}, 256, {"QB", 1}, Errore, 0},
    {"BIW", "OfANegativeValueLightsItsLowBits", {"VB", 1}, -2, {"QB", 0}, Bene, -2},
    {"BIW", "OfZeroDarkensTheByte", {"K", 0}, 0, {"QB", 0}, Bene, 0},
    {"BIW", "BelowTheCell", {"AC", 1}, -32769, {"QB", 0}, Crollo, 0},
    {"BIW", "ToAnAccumulatorIsAnError", {"VB", 1}, 5, {"AC", 0}, Errore, 0},

    {"BTI", "HasNoByteLimit", {"VB", 1}, 256, {"VW", 0}, Bene, 256},
    {"BTI", "OfANegativeValue", {"VB", 1}, -1, {"T", 1}, Bene, -1},
    {"BTI", "OfALargeAccumulator", {"AC", 1}, 70000, {"AC", 0}, Bene, 70000},
    {"BTI", "AboveTheCellOfAWord", {"AC", 1}, 32768, {"VW", 0}, Crollo, 0},
    {"BTI", "BelowTheCellOfAWord", {"AC", 1}, -32769, {"VW", 0}, Crollo, 0},
    {"BTI", "BelowTheCellOfATimer", {"AC", 1}, -32769, {"T", 0}, Crollo, 0},
    {"BTI", "BelowTheCellOfACounter", {"AC", 1}, -32769, {"C", 0}, Crollo, 0},
    {"BTI", "SetsThePresetOfATimer", {"K", 50}, 0, {"T", 37}, Bene, 50},
    {"BTI", "SetsThePresetOfACounter", {"K", 50}, 0, {"C", 20}, Bene, 50},
};

class MoveLimit : public Moves, public ::testing::WithParamInterface<Limite> {};

TEST_P(MoveLimit, EndsAsItsRowSays) {
  const auto& [istr, nome, sorgente, valore, destinazione, fine, dopo] = GetParam();
  Prepara(std::string(istr) + " " + Operando_Di(sorgente.area, sorgente.numero) + ", " +
          Operando_Di(destinazione.area, destinazione.numero));
  Scrivi(plc, sorgente.area, sorgente.numero, valore);
  Memoria atteso = plc;
  if (fine == Bene) Scrivi(atteso, destinazione.area, destinazione.numero, dopo);
  Attendi(fine, atteso);
}

INSTANTIATE_TEST_SUITE_P(Line, MoveLimit, ::testing::ValuesIn(limiti), [](const auto& riga) {
  return std::string(riga.param.istr) + riga.param.nome;
});

class MoveOfAText : public Moves, public ::testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(From, MoveOfAText, ::testing::Values("IW1", "QW1", "MW1"),
                         [](const auto& riga) { return std::string(riga.param); });

TEST_P(MoveOfAText, TakesBitsZeroToFourAndRefusesTheOthersAndAnEmptyText) {
  for (const auto& [testo, fine, parola] : {std::tuple{"00000000", Bene, 0},
                                            {"00000101", Bene, 101},
                                            {"00011111", Bene, 11111},
                                            {"00100000", Errore, 0},
                                            {"10000000", Errore, 0},
                                            {"11111111", Errore, 0},
                                            {"", Crollo, 0}}) {
    SCOPED_TRACE(testo);
    Semina();
    Prepara(std::string("MOVW ") + GetParam() + ", VW0");
    plc.IP_I[1].Txt_B = plc.IP_Q[1].Txt_B = plc.Mem_M[1].Txt_B = testo;
    Memoria atteso = plc;
    if (fine == Bene) atteso.Mem_VW[0] = static_cast<std::int16_t>(parola);
    Attendi(fine, atteso);
  }
}

TEST_F(Moves, AccumulatorIsReadToTheNearestIntegerAndAHalfToTheEvenOne) {
  for (const auto& [ac, intero] : {std::pair{0.5F, 0},
                                   {1.5F, 2},
                                   {2.5F, 2},
                                   {2.51F, 3},
                                   {2.49F, 2},
                                   {-0.5F, 0},
                                   {-1.5F, -2},
                                   {-2.5F, -2},
                                   {-2.51F, -3}}) {
    Prepara("MOVD AC1, VD0");
    plc.Mem_AC[1] = ac;
    Memoria atteso = plc;
    atteso.Mem_VD[0] = intero;
    Attendi(atteso);
  }
}

// ---- in a program -------------------------------------------------------------------------------

TEST_F(Moves, WordOfInputsIsTheirTextTakenAsADecimalNumber) {
  Carica({"LD SM0.0", "MOVW IW0, VW0"});
  Run_Step();
  for (const auto& [bit1, bit0, parola] :
       {std::tuple{false, true, 1}, {true, false, 10}, {true, true, 11}}) {
    Ingresso(0, 0, bit0);
    Ingresso(0, 1, bit1);
    Scansione();
    EXPECT_EQ(plc.Mem_VW[0], parola);
  }
  EXPECT_TRUE(avvisi.empty());
}

TEST_F(Moves, WordOfMarkersWithBitSevenOnStopsTheRun) {
  Carica({"LD SM0.0", "S M0.7, 1", "MOVW MW0, VW0"});
  Run_Step();
  plc.Mem_VW[0] = 77;
  Scansione();
  EXPECT_EQ(plc.PC, 2);
  EXPECT_EQ(plc.Mem_VW[0], 77);
  EXPECT_FALSE(plc.PLC_Acceso);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Titolo, "Run Time Error");
  EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
}

TEST_F(Moves, ByteAndDoubleMovesRunInADisabledSectionAndWordMovesDoNot) {
  for (int bit = 0; bit <= 7; ++bit) plc.Mem_S[0].Bit[bit] = 0;
  Carica({"LD SM0.0", "LSCR S0.1", "MOVB +1, VB0", "MOVD +2, VD0", "MOVW +3, VW0", "SCRE"});
  Run_Step();
  plc.Mem_VW[0] = 77;
  Scansione();
  EXPECT_EQ(plc.Mem_VB[0], 1);
  EXPECT_EQ(plc.Mem_VD[0], 2);
  EXPECT_EQ(plc.Mem_VW[0], 77);
}

TEST_F(Moves, BiwLightsItsOutputsBeforeTheScanEnds) {
  Carica({"LD SM0.0", "BIW +5, QB0"});
  plc.Scelte.chkIP = true;
  Run_Step();
  plc.CmdStep();
  plc.CmdStep();
  EXPECT_EQ(plc.N_Cicli, 0);
  for (int bit = 0; bit <= 7; ++bit) {
    EXPECT_EQ(plc.IP_Q[0].Bit_Dir[bit], bit == 0 || bit == 2 ? 1 : 0);
    EXPECT_EQ(plc.IP_Q[0].Bit_Img[bit], bit == 0 || bit == 2 ? 1 : 0);
  }
  EXPECT_EQ(plc.IP_Q[0].Val_B, 5);
  EXPECT_EQ(plc.etIPQ[0], "00000101");
}

TEST_F(Moves, BirBehindTheInputsIsFatal) {
  Prepara("BIR IB2, VB0");
  Attendi(Crollo, plc);
}

TEST_F(Moves, BirSeesAnInputThatTheImageDoesNotShowYet) {
  Carica({"LD SM0.0", "BIR IB0, VB0"});
  Run_Step();
  plc.CmdStep();
  Ingresso(0, 3, true);
  plc.CmdStep();
  EXPECT_EQ(plc.Mem_VB[0], 8);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[3], 0);
}

}  // namespace
}  // namespace tavorno::prova
