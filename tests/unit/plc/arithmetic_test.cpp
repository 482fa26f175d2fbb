// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "one_line.h"

namespace tavorno::prova {
namespace {

/// Timers and counters are words to arithmetic, by their values.
void Scrivi(Memoria& m, std::string_view area, int n, double valore) {
  Metti(m, area, n, valore);
  const auto corto = static_cast<std::int16_t>(static_cast<long long>(valore));
  if (area == "T") m.Mem_T[n].Val = corto;
  if (area == "C") m.Mem_C[n].Val = corto;
}

/// SM1.0 zero, SM1.1 overflow, SM1.2 negative; SM1.3, the division by zero, stands apart.
struct Flag {
  int Z, V, N;
};
constexpr Flag zero{1, 0, 0}, positivo{0, 0, 0}, negativo{0, 0, 1}, overflow{0, 1, 0};

void Metti_Flag(Memoria& m, const Flag& flag) {
  m.Mem_SM[1].Bit[0] = static_cast<std::uint8_t>(flag.Z);
  m.Mem_SM[1].Bit[1] = static_cast<std::uint8_t>(flag.V);
  m.Mem_SM[1].Bit[2] = static_cast<std::uint8_t>(flag.N);
}

Flag Flag_Di(long long valore) {
  return valore == 0 ? zero : valore < 0 ? negativo : positivo;
}

/// Gate, and every special bit before.
constexpr std::pair<Porta, std::uint8_t> prove[] = {
    {aperta, 0}, {aperta, 1}, {chiuse[0], 1}, {chiuse[1], 1}, {chiuse[2], 1}};

class Arithmetic : public Una_Riga {
 protected:
  /// Rows 1 hold operands IN, rows 2 operands OUT; every special bit is `speciali`.
  void Semina(std::uint8_t speciali = 0) {
    Una_Riga::Semina();
    for (Riga_SM& riga : plc.Mem_SM) {
      for (std::uint8_t& bit : riga.Bit) bit = speciali;
    }
    for (const int i : {0, 1, 2, 3}) {
      plc.Mem_T[i] = {7, 70, 1, -1};
      plc.Mem_C[i] = {7, 70, 1, 1, 1};
      plc.Mem_VB[i] = plc.Mem_VW[i] = 7;
      plc.Mem_VD[i] = plc.Mem_AIW[i] = 7;
      plc.Mem_AC[i] = 7;
    }
  }
};

// ---- two operands: every instruction and area ---------------------------------------------------

struct Operazione {
  const char* istr;
  const char* nome;
  std::string_view IN, OUT;
  bool IN_ignota_errore, OUT_ignota_errore;  // else an unknown area counts as 0
};

constexpr std::string_view IN_interi = " VW AC K AIW T C ", OUT_interi = " VW AC T C ";
constexpr std::string_view IN_doppie = " VD AC K ", OUT_doppie = " VD AC ";
const Operazione operazioni[] = {
    {"+I", "AddI", IN_interi, OUT_interi, true, true},
    {"-I", "SubI", IN_interi, OUT_interi, true, true},
    {"*I", "MulI", IN_interi, OUT_interi, false, false},
    {"/I", "DivI", IN_interi, OUT_interi, false, false},
    {"+D", "AddD", IN_doppie, OUT_doppie, true, false},
    {"-D", "SubD", IN_doppie, OUT_doppie, true, false},
    {"*D", "MulD", IN_doppie, OUT_doppie, false, false},
    {"/D", "DivD", IN_doppie, OUT_doppie, false, false},
};

using Coppia = std::tuple<Operazione, const char*>;
class ArithmeticTable : public Arithmetic, public ::testing::WithParamInterface<Coppia> {};

TEST_P(ArithmeticTable, WritesItsSecondOperandAndFlagsUnderPowerFlowOnly) {
  const auto& [operazione, in] = GetParam();
  const bool in_letta = Elencata(operazione.IN, in);
  const int valore_in = !in_letta ? 0 : std::string_view(in) == "K" ? 1 : 7;
  for (const char* out : aree) {
    const bool out_letta = Elencata(operazione.OUT, out);
    const int valore_out = out_letta ? 60 : 0;
    for (const auto& [porta, speciali] : prove) {
      SCOPED_TRACE(std::string(out) + " top " + std::to_string(porta.cima) + " enable " +
                   std::to_string(porta.abilitata) + " flags " + std::to_string(speciali));
      Semina(speciali);
      Prepara(std::string(operazione.istr) + " " + Operando_Di(in, 1) + ", " + Operando_Di(out, 2),
              porta);
      Scrivi(plc, out, 2, 60);
      Memoria atteso = plc;
      if (!porta.Flusso()) {
        Attendi(atteso);
        continue;
      }
      if ((!in_letta && operazione.IN_ignota_errore) ||
          (!out_letta && operazione.OUT_ignota_errore)) {
        Attendi_Errore();
        continue;
      }
      const char segno = operazione.istr[0];
      if (segno == '/' && valore_in == 0) {
        atteso.Mem_SM[1].Bit[3] = 1;
      } else {
        const int risultato = segno == '+'   ? valore_out + valore_in
                              : segno == '-' ? valore_out - valore_in
                              : segno == '*' ? valore_out * valore_in
                                             : valore_out / valore_in;
        Metti_Flag(atteso, Flag_Di(risultato));
        if (out_letta) Scrivi(atteso, out, 2, risultato);
      }
      Attendi(atteso);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Of, ArithmeticTable,
                         ::testing::Combine(::testing::ValuesIn(operazioni),
                                            ::testing::ValuesIn(aree)),
                         [](const auto& riga) {
                           return std::string(std::get<0>(riga.param).nome) + "Of" +
                                  std::get<1>(riga.param);
                         });

// ---- values and flags ---------------------------------------------------------------------------

struct Operando {
  const char* area = "";  // none
  double valore = 0;      // of a constant, its number
};

struct Calcolo {
  const char* istr;
  const char* nome;
  Operando in, out;
  Fine fine;
  std::optional<double> dopo;  // OUT afterwards; nothing when it keeps its value
  Flag flag;
};

const Calcolo calcoli[] = {
    {"+I", "SumsNegatives", {"VW", -5}, {"VW", -6}, Bene, -11, negativo},
    {"+I", "SumsToZero", {"VW", -5}, {"VW", 5}, Bene, 0, zero},
    {"+I", "SumsToTheTop", {"K", 1}, {"VW", 32766}, Bene, 32767, positivo},
    {"+I", "SumsToTheBottom", {"K", -1}, {"VW", -32767}, Bene, -32768, negativo},
    {"+I", "SumAboveTheTopIsNotWritten", {"K", 1}, {"VW", 32767}, Bene, {}, overflow},
    {"+I", "SumBelowTheBottomIsNotWritten", {"K", -1}, {"VW", -32768}, Bene, {}, overflow},
    {"+I", "SumAboveTheTopOfAnAccumulator", {"K", 9}, {"AC", 32760}, Bene, {}, overflow},
    {"+I", "SumIsWrittenToATimer", {"K", 1}, {"T", 9}, Bene, 10, positivo},
    {"+I", "SumIsWrittenToACounter", {"K", -1}, {"C", 0}, Bene, -1, negativo},
    {"+I", "SumRoundsToTheEvenNeighbour", {"AC", 2.5}, {"AC", 3.5}, Bene, 6, positivo},
    {"+I", "ReadAtTheWordLimit", {"AIW", 32767}, {"VW", -1}, Bene, 32766, positivo},
    {"+I", "ReadAboveTheWordLimitIsAnError", {"AIW", 32768}, {"VW", -1}, Errore, {}, {}},
    {"+I", "AccumulatorAboveTheLimitIsAnError", {"AC", 32768}, {"VW", -1}, Errore, {}, {}},
    {"+I", "OutAboveTheWordLimitIsAnError", {"K", -1}, {"AC", 32768}, Errore, {}, {}},
    {"+I", "ReadBelowTheWordBottomIsNoError", {"K", 1}, {"AC", -32769}, Bene, -32768, negativo},
    {"+I", "BelowThirtyTwoBitsIsFatal", {"AC", INT32_MIN}, {"VW", -1}, Crollo, {}, {}},
    {"-I", "SubtractsTheFirstFromTheSecond", {"VW", 5}, {"VW", 3}, Bene, -2, negativo},
    {"-I", "DifferenceIsZero", {"VW", 5}, {"VW", 5}, Bene, 0, zero},
    {"-I", "DifferenceAtTheBottom", {"K", 1}, {"VW", -32767}, Bene, -32768, negativo},
    {"-I", "DifferenceAboveTheTopIsNotWritten", {"K", -9}, {"VW", 32760}, Bene, {}, overflow},
    {"-I", "DifferenceBelowTheBottomIsNotWritten", {"K", 1}, {"VW", -32768}, Bene, {}, overflow},
    {"-I", "ReadAboveTheWordLimitIsAnError", {"AIW", 32768}, {"VW", 7}, Errore, {}, {}},
    {"-I", "OutAboveTheWordLimitIsAnError", {"K", 9}, {"AC", 32768}, Errore, {}, {}},
    {"-I", "BeyondThirtyTwoBitsIsFatal", {"AC", INT32_MIN}, {"VW", 0}, Crollo, {}, {}},
    {"*I", "ProductIsNegative", {"VW", -5}, {"VW", 3}, Bene, -15, negativo},
    {"*I", "ProductIsZero", {"VW", 0}, {"VW", -3}, Bene, 0, zero},
    {"*I", "ProductAtTheBottom", {"VW", 2}, {"VW", -16384}, Bene, -32768, negativo},
    {"*I", "ProductAboveIsWrittenAsTheTop", {"K", 300}, {"VW", 300}, Bene, 32767, overflow},
    {"*I", "ProductBelowIsWrittenAsTheTop", {"K", 300}, {"VW", -300}, Bene, 32767, overflow},
    {"*I", "ProductBelowTheBottomByOne", {"K", 3}, {"VW", -10923}, Bene, 32767, overflow},
    {"*I", "ReadsAboveTheWordLimit", {"AIW", 32768}, {"VW", -1}, Bene, -32768, negativo},
    {"*I", "ReadsTheSecondAboveTheWordLimit", {"K", 1}, {"AC", 40000}, Bene, 32767, overflow},
    {"*I", "ProductBeyondThirtyTwoBitsIsFatal", {"AC", 65536}, {"AC", 32768}, Crollo, {}, {}},
    {"*I", "ProductAtTheThirtyTwoBitBottom", {"AC", 65536}, {"AC", -32768}, Bene, 32767, overflow},
    {"/I", "QuotientIsTruncated", {"K", 2}, {"VW", 7}, Bene, 3, positivo},
    {"/I", "NegativeQuotientIsTruncatedTowardsZero", {"K", 2}, {"VW", -7}, Bene, -3, negativo},
    {"/I", "SmallQuotientIsZero", {"K", -8}, {"VW", 7}, Bene, 0, zero},
    {"/I", "QuotientAboveIsWrittenAsTheTop", {"K", -1}, {"VW", -32768}, Bene, 32767, overflow},
    {"/I", "QuotientBelowIsWrittenAsTheTop", {"K", 1}, {"AC", -32769}, Bene, 32767, overflow},
    {"/I", "ReadsAboveTheWordLimit", {"AIW", 40000}, {"AC", 80000}, Bene, 2, positivo},
    {"/I", "RoundsItsDivisor", {"AC", 1.5}, {"VW", 8}, Bene, 4, positivo},
    {"/I", "BeyondThirtyTwoBitsIsFatal", {"K", -1}, {"AC", INT32_MIN}, Crollo, {}, {}},
    {"+D", "SumIsNegative", {"K", 5}, {"VD", -40000}, Bene, -39995, negativo},
    {"+D", "SumIsZero", {"K", 5}, {"VD", -5}, Bene, 0, zero},
    {"+D", "SumAtTheWordTop", {"K", 1}, {"VD", 32766}, Bene, 32767, positivo},
    {"+D", "SumAboveTheWordTopIsLimited", {"K", 1}, {"VD", 32767}, Bene, 32767, overflow},
    {"+D", "SumFarAboveTheWordTopIsLimited", {"K", 1}, {"VD", 40000}, Bene, 32767, overflow},
    {"+D", "SumIsLimitedInAnAccumulatorToo", {"VD", 30000}, {"AC", 30000}, Bene, 32767, overflow},
    {"+D", "SumAtTheBottom", {"K", -1}, {"VD", -2147483647}, Bene, INT32_MIN, negativo},
    {"+D", "SumAboveThirtyTwoBitsIsFatal", {"K", 1}, {"VD", INT32_MAX}, Crollo, {}, {}},
    {"+D", "SumBelowThirtyTwoBitsIsFatal", {"K", -1}, {"VD", INT32_MIN}, Crollo, {}, {}},
    {"+D", "RoundsToTheEvenNeighbour", {"AC", 2.5}, {"AC", 3.5}, Bene, 6, positivo},
    {"-D", "DifferenceIsNotLimited", {"K", 1}, {"VD", 100000}, Bene, 99999, positivo},
    {"-D", "DifferenceIsZero", {"VD", 70000}, {"VD", 70000}, Bene, 0, zero},
    {"-D", "DifferenceIsNegative", {"VD", 70000}, {"VD", 0}, Bene, -70000, negativo},
    {"-D", "DifferenceAboveThirtyTwoBitsIsFatal", {"K", -1}, {"VD", INT32_MAX}, Crollo, {}, {}},
    {"-D", "DifferenceBelowThirtyTwoBitsIsFatal", {"K", 1}, {"VD", INT32_MIN}, Crollo, {}, {}},
    {"*D", "ProductIsNotLimited", {"VD", 300}, {"VD", 300}, Bene, 90000, positivo},
    {"*D", "ProductIsNegative", {"VD", -300}, {"VD", 300}, Bene, -90000, negativo},
    {"*D", "ProductIsZero", {"VD", 0}, {"VD", 300}, Bene, 0, zero},
    {"*D", "ProductBeyondThirtyTwoBitsIsFatal", {"VD", 65536}, {"VD", 32768}, Crollo, {}, {}},
    {"/D", "QuotientIsTruncatedTowardsZero", {"K", 2}, {"VD", -100001}, Bene, -50000, negativo},
    {"/D", "QuotientIsZero", {"VD", 70000}, {"VD", 69999}, Bene, 0, zero},
    {"/D", "QuotientIsNotLimited", {"K", 1}, {"VD", 70000}, Bene, 70000, positivo},
    {"/D", "QuotientBeyondThirtyTwoBitsIsFatal", {"K", -1}, {"VD", INT32_MIN}, Crollo, {}, {}},
    // One operand: the value is written before its range is looked at.
    {"INCB", "OverTheByteTop", {}, {"VB", 127}, Bene, 128, overflow},
    {"INCB", "AtTheByteTop", {}, {"VB", 126}, Bene, 127, positivo},
    {"INCB", "FarOverTheByteTop", {}, {"VB", 255}, Bene, 256, overflow},
    {"INCB", "ToZero", {}, {"VB", -1}, Bene, 0, zero},
    {"INCB", "StillNegative", {}, {"VB", -2}, Bene, -1, negativo},
    {"INCB", "BelowTheByteBottom", {}, {"VB", -130}, Bene, -129, overflow},
    {"INCB", "OfAnAccumulatorOverTheByteTop", {}, {"AC", 127}, Bene, 128, overflow},
    {"INCB", "OverTheCellIsFatal", {}, {"VB", 32767}, Crollo, {}, {}},
    {"DECB", "AtTheByteBottom", {}, {"VB", -127}, Bene, -128, negativo},
    {"DECB", "UnderTheByteBottom", {}, {"VB", -128}, Bene, -129, overflow},
    {"DECB", "ToZero", {}, {"VB", 1}, Bene, 0, zero},
    {"DECB", "UnderTheCellIsFatal", {}, {"VB", -32768}, Crollo, {}, {}},
    {"INCW", "AtTheWordTop", {}, {"VW", 32766}, Bene, 32767, positivo},
    {"INCW", "OverTheWordTopIsFatal", {}, {"VW", 32767}, Crollo, {}, {}},
    {"INCW", "OfAnAccumulatorOverTheWordTop", {}, {"AC", 32767}, Bene, 32768, overflow},
    {"INCW", "OfAHalfRoundsFirst", {}, {"AC", 2.5}, Bene, 3, positivo},
    {"INCW", "ToZero", {}, {"VW", -1}, Bene, 0, zero},
    {"DECW", "AtTheWordBottom", {}, {"VW", -32767}, Bene, -32768, negativo},
    {"DECW", "UnderTheWordBottomIsFatal", {}, {"VW", -32768}, Crollo, {}, {}},
    {"DECW", "OfAnAccumulatorUnderTheWordBottom", {}, {"AC", -32768}, Bene, -32769, overflow},
    {"INCD", "OverTheWordTop", {}, {"VD", 32767}, Bene, 32768, positivo},
    {"INCD", "ToZero", {}, {"VD", -1}, Bene, 0, zero},
    {"INCD", "AtTheTop", {}, {"VD", 2147483646}, Bene, INT32_MAX, positivo},
    {"INCD", "OverTheTopIsFatal", {}, {"VD", INT32_MAX}, Crollo, {}, {}},
    {"INCD", "OfAnAccumulatorLosesItsLowDigit", {}, {"AC", 16777216}, Bene, 16777216, positivo},
    {"DECD", "UnderTheWordBottom", {}, {"VD", -32768}, Bene, -32769, negativo},
    {"DECD", "UnderTheBottomIsFatal", {}, {"VD", INT32_MIN}, Crollo, {}, {}},
    {"DECD", "OfAnAccumulatorUnderTheBottomIsFatal", {}, {"AC", INT32_MIN}, Crollo, {}, {}},
};

class Calculation : public Arithmetic, public ::testing::WithParamInterface<Calcolo> {};

TEST_P(Calculation, LeavesValueAndFlagsAsItsRowSays) {
  const auto& [istr, nome, in, out, fine, dopo, flag] = GetParam();
  const std::string_view area = in.area;
  const int numero = area == "K" ? static_cast<int>(in.valore) : 1;
  const std::string primo = area.empty() ? "" : Operando_Di(area, numero) + ", ";
  for (const std::uint8_t speciali : {std::uint8_t{0}, std::uint8_t{1}}) {
    Semina(speciali);
    Prepara(std::string(istr) + " " + primo + Operando_Di(out.area, 2));
    Scrivi(plc, area, 1, in.valore);
    Scrivi(plc, out.area, 2, out.valore);
    Memoria atteso = plc;
    if (fine == Bene) Metti_Flag(atteso, flag);
    if (dopo) Scrivi(atteso, out.area, 2, *dopo);
    Attendi(fine, atteso);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Calculation, ::testing::ValuesIn(calcoli), [](const auto& riga) {
  for (const Operazione& operazione : operazioni) {
    if (std::string_view(operazione.istr) == riga.param.istr)
      return std::string(operazione.nome) + riga.param.nome;
  }
  return std::string(riga.param.istr) + riga.param.nome;
});

TEST_F(Arithmetic, DivisionByZeroSetsItsFlagAndNothingElse) {
  for (const char* riga : {"/I +0, VW2", "/I AC1, VW2", "/D +0, VD2", "/D AC1, VD2"}) {
    for (const std::uint8_t speciali : {std::uint8_t{0}, std::uint8_t{1}}) {
      SCOPED_TRACE(riga);
      Semina(speciali);
      Prepara(riga);
      plc.Mem_AC[1] = 0.5F;  // rounds to 0
      Memoria atteso = plc;
      atteso.Mem_SM[1].Bit[3] = 1;
      Attendi(atteso);
    }
  }
}

TEST_F(Arithmetic, DivisionFlagOutlivesGoodDivisionsAndRun) {
  Semina();
  Carica({"LD SM0.1", "/I +0, VW0", "LD SM0.0", "/I +2, VW1", "/D +2, VD1", "+I +1, VW2"});
  for (int run = 0; run < 2; ++run) {
    Run_Step();
    for (int scansione = 0; scansione < 3; ++scansione) {
      Scansione();
      EXPECT_EQ(plc.Mem_SM[1].Bit[3], 1);
    }
    plc.mnuPlcStop();
    plc.Prog[1] = Riga("NOP");  // the second run divides by nothing
  }
  EXPECT_EQ(plc.Mem_VW[0], 7);
  EXPECT_EQ(plc.Mem_VW[1], 0);
}

TEST_F(Arithmetic, FlagStaysUntilTheNextArithmeticLineUnderPowerFlow) {
  Semina();
  Carica({"LD SM0.0", "+I +32767, VW0", "MOVW +5, VW1", "LD SM0.2", "+I +1, VW1", "INCW VW1",
          "LD SM0.0", "+I +1, VW1"});
  Run_Step();
  plc.CmdStep();
  for (int riga = 1; riga <= 6; ++riga) {
    plc.CmdStep();
    EXPECT_EQ(plc.Mem_SM[1].Bit[1], 1) << riga;
  }
  plc.CmdStep();
  EXPECT_EQ(plc.Mem_SM[1].Bit[1], 0);
  EXPECT_EQ(plc.Mem_VW[1], 6);
  EXPECT_EQ(plc.Mem_VW[0], 7);
}

// ---- INC and DEC: every area --------------------------------------------------------------------

struct Passo {
  const char* istr;
  std::string_view area;  // besides AC
  int passo;
};
const Passo passi[] = {{"INCB", "VB", 1},  {"DECB", "VB", -1}, {"INCW", "VW", 1},
                       {"DECW", "VW", -1}, {"INCD", "VD", 1},  {"DECD", "VD", -1}};

using Passo_Di_Area = std::tuple<Passo, const char*>;
class StepTable : public Arithmetic, public ::testing::WithParamInterface<Passo_Di_Area> {};

TEST_P(StepTable, ChangesItsOperandByOneUnderPowerFlowOnly) {
  const auto& [passo, area] = GetParam();
  const bool nota = area == passo.area || std::string_view(area) == "AC";
  for (const auto& [porta, speciali] : prove) {
    Semina(speciali);
    Prepara(std::string(passo.istr) + " " + Operando_Di(area, 1), porta);
    Memoria atteso = plc;
    if (porta.Flusso() && nota) {
      Scrivi(atteso, area, 1, 7 + passo.passo);
      Metti_Flag(atteso, positivo);
    }
    Attendi(porta.Flusso() && !nota ? Errore : Bene, atteso);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, StepTable,
                         ::testing::Combine(::testing::ValuesIn(passi), ::testing::ValuesIn(aree)),
                         [](const auto& riga) {
                           return std::string(std::get<0>(riga.param).istr) + "Of" +
                                  std::get<1>(riga.param);
                         });

}  // namespace
}  // namespace tavorno::prova
