// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

#include "cpu.h"

namespace tavorno::prova {

using Memory = Cpu;

namespace {

// ---- element widths -----------------------------------------------------------------------------

template <auto Tavola>
using Elemento = std::remove_cvref_t<decltype((std::declval<Memoria&>().*Tavola)[0])>;
template <auto Celle, class Riga>
using Cella = std::remove_cvref_t<decltype((std::declval<Riga&>().*Celle)[0])>;
template <class T, class U>
constexpr bool uguali = std::is_same_v<T, U>;

static_assert(uguali<Cella<&Riga_IP::Bit_Dir, Riga_IP>, std::uint8_t>);
static_assert(uguali<Cella<&Riga_IP::Bit_Img, Riga_IP>, std::uint8_t>);
static_assert(uguali<decltype(Riga_IP::Val_B), std::int16_t>);
static_assert(uguali<Cella<&Riga_M::Bit, Riga_M>, std::uint8_t>);
static_assert(uguali<decltype(Riga_M::Val_B), std::int16_t>);
static_assert(uguali<Cella<&Riga_S::Bit, Riga_S>, std::int16_t>);
static_assert(uguali<Cella<&Riga_SM::Bit, Riga_SM>, std::uint8_t>);
static_assert(uguali<decltype(Riga_SM::Val_B), std::int16_t>);
static_assert(uguali<Elemento<&Memoria::Mem_VB>, std::int16_t>);
static_assert(uguali<Elemento<&Memoria::Mem_VW>, std::int16_t>);
static_assert(uguali<Elemento<&Memoria::Mem_VD>, std::int32_t>);
static_assert(uguali<Elemento<&Memoria::Mem_AC>, float>);
static_assert(uguali<Elemento<&Memoria::Mem_AIW>, std::int32_t>);
static_assert(uguali<Elemento<&Memoria::Mem_AQW>, std::int32_t>);
static_assert(uguali<Elemento<&Memoria::Volt_AI>, float>);
static_assert(uguali<Elemento<&Memoria::Volt_AQ>, float>);
static_assert(uguali<Elemento<&Memoria::Stak>, std::int16_t>);
static_assert(uguali<Elemento<&Memoria::Stak_Rit>, std::int16_t>);
static_assert(uguali<decltype(Riga_Timer::Val), std::int16_t>);
static_assert(uguali<decltype(Riga_Timer::PT), std::int16_t>);
static_assert(uguali<decltype(Riga_Timer::Uscita), std::uint8_t>);
static_assert(uguali<decltype(Riga_Timer::Conta), std::int16_t>);
static_assert(uguali<decltype(Riga_Contatore::Val), std::int16_t>);
static_assert(uguali<decltype(Riga_Contatore::PV), std::int16_t>);
static_assert(uguali<decltype(Riga_Contatore::Uscita), std::uint8_t>);
static_assert(uguali<decltype(Riga_Contatore::Front_A), std::uint8_t>);
static_assert(uguali<decltype(Riga_Contatore::Front_B), std::uint8_t>);
static_assert(uguali<decltype(Memoria::PC), std::int16_t>);
static_assert(uguali<decltype(Memoria::NRighe), std::int16_t>);

// ---- bounds -------------------------------------------------------------------------------------

struct Tavola {
  const char* Nome;
  int Ultimo;
  void (*Scrivi)(Memoria&, int);
  void (*Leggi)(const Memoria&, int);
};

void PrintTo(const Tavola& tavola, std::ostream* os) {
  *os << tavola.Nome;
}

template <auto Membro>
Tavola Di(const char* nome, int ultimo) {
  return {nome, ultimo, [](Memoria& m, int i) { (m.*Membro)[i] = {}; },
          [](const Memoria& m, int i) { (void)(m.*Membro)[i]; }};
}
/// A table of cells inside the last row of another.
template <auto Membro, int Riga, auto Celle>
Tavola Di_Celle(const char* nome) {
  return {nome, 8, [](Memoria& m, int i) { ((m.*Membro)[Riga].*Celle)[i] = 1; },
          [](const Memoria& m, int i) { (void)((m.*Membro)[Riga].*Celle)[i]; }};
}

const std::vector<Tavola>& Tavole() {
  static const std::vector<Tavola> tavole = {
      Di<&Memoria::IP_I>("IP_I", 1),
      Di<&Memoria::IP_Q>("IP_Q", 1),
      Di<&Memoria::Mem_M>("Mem_M", 4),
      Di<&Memoria::Mem_S>("Mem_S", 4),
      Di<&Memoria::Mem_SM>("Mem_SM", 30),
      Di<&Memoria::Mem_VB>("Mem_VB", 100),
      Di<&Memoria::Mem_VW>("Mem_VW", 100),
      Di<&Memoria::Mem_VD>("Mem_VD", 100),
      Di<&Memoria::Mem_AC>("Mem_AC", 4),
      Di<&Memoria::Mem_T>("Mem_T", 40),
      Di<&Memoria::Mem_C>("Mem_C", 20),
      Di<&Memoria::Mem_AIW>("Mem_AIW", 4),
      Di<&Memoria::Mem_AQW>("Mem_AQW", 2),
      Di<&Memoria::Volt_AI>("Volt_AI", 2),
      Di<&Memoria::Volt_AQ>("Volt_AQ", 1),
      Di<&Memoria::Stak>("Stak", 7),
      Di<&Memoria::Stak_Rit>("Stak_Rit", 7),
      Di<&Memoria::Prog>("Prog", 2),
      Di_Celle<&Memoria::IP_I, 1, &Riga_IP::Bit_Dir>("Bit_Dir"),
      Di_Celle<&Memoria::IP_I, 1, &Riga_IP::Bit_Img>("Bit_Img"),
      Di_Celle<&Memoria::IP_Q, 1, &Riga_IP::Bit_Dir>("Bit_Dir"),
      Di_Celle<&Memoria::IP_Q, 1, &Riga_IP::Bit_Img>("Bit_Img"),
      Di_Celle<&Memoria::Mem_M, 4, &Riga_M::Bit>("Mem_M.Bit"),
      Di_Celle<&Memoria::Mem_S, 4, &Riga_S::Bit>("Mem_S.Bit"),
      Di_Celle<&Memoria::Mem_SM, 30, &Riga_SM::Bit>("Mem_SM.Bit"),
  };
  return tavole;
}

}  // namespace

class TableBounds : public ::testing::TestWithParam<Tavola> {};

TEST_P(TableBounds, EveryRowIsThereAndAnyOtherIndexIsFatal) {
  const Tavola& tavola = GetParam();
  Memoria memoria;
  memoria.Prog.Ridimensiona(3);
  for (int i = 0; i <= tavola.Ultimo; ++i) {
    EXPECT_NO_THROW(tavola.Scrivi(memoria, i)) << i;
    EXPECT_NO_THROW(tavola.Leggi(memoria, i)) << i;
  }
  const Memoria prima = memoria;
  for (const int fuori : {-1, tavola.Ultimo + 1, std::numeric_limits<std::int16_t>::min() + 0,
                          std::numeric_limits<std::int16_t>::max() + 0}) {
    for (const bool scrivi : {false, true}) {
      try {
        scrivi ? tavola.Scrivi(memoria, fuori) : tavola.Leggi(memoria, fuori);
        ADD_FAILURE() << "index " << fuori << " was accepted";
      } catch (const Fatale& fatale) {
        EXPECT_EQ(fatale.Tabella(), tavola.Nome);
        EXPECT_EQ(fatale.Indice(), fuori);
        EXPECT_THAT(fatale.what(), ::testing::HasSubstr(tavola.Nome));
      }
    }
  }
  EXPECT_TRUE(prima == memoria);
}

INSTANTIATE_TEST_SUITE_P(All, TableBounds, ::testing::ValuesIn(Tavole()));

// ---- blank state --------------------------------------------------------------------------------

TEST_F(Memory, StartsWithZeroesAndEmptyTexts) {
  const Memoria m;
  EXPECT_EQ(m.IP_I[1].Bit_Dir[7] + m.IP_I[1].Bit_Img[7] + m.IP_I[1].Val_B, 0);
  for (const auto* tabella : {&m.IP_I, &m.IP_Q}) {
    for (const Riga_IP& riga : *tabella) EXPECT_TRUE(riga == Riga_IP{} && riga.Txt_B.empty());
  }
  for (const Riga_M& riga : m.Mem_M) EXPECT_TRUE(riga == Riga_M{} && riga.Txt_B.empty());
  for (const Riga_Timer& timer : m.Mem_T) EXPECT_EQ(timer, (Riga_Timer{0, 0, 0, 0}));
  for (const Riga_Contatore& c : m.Mem_C) EXPECT_EQ(c, (Riga_Contatore{0, 0, 0, 0, 0}));
  for (const auto cella : m.Mem_VB) EXPECT_EQ(cella, 0);
  for (const auto cella : m.Mem_VW) EXPECT_EQ(cella, 0);
  for (const auto cella : m.Mem_VD) EXPECT_EQ(cella, 0);
  for (const auto cella : m.Mem_AC) EXPECT_EQ(cella, 0.0F);
  for (const auto cella : m.Volt_AI) EXPECT_EQ(cella, 0.0F);
  for (const auto cella : m.Stak_Rit) EXPECT_EQ(cella, 0);
  EXPECT_EQ(m.PC, 0);
  EXPECT_EQ(m.Prog.Righe(), 0);
}

TEST_F(Memory, CompiledLineIsBlankBeforeItIsFilled) {
  const Riga_PLC riga;
  for (const auto* testo : {&riga.Istr, &riga.Area1, &riga.Area2, &riga.Area3})
    EXPECT_EQ(*testo, "");
  for (const int numero : {riga.Num1, riga.Num2, riga.Num3, riga.Fronte, riga.Salto, riga.Ha_Bit,
                           riga.SCR_Prima, riga.SCR_Ultima})
    EXPECT_EQ(numero, 0);
  for (const int bit : {riga.Bit1, riga.Bit2, riga.Bit3}) EXPECT_EQ(bit, -1);
  EXPECT_EQ(riga.NOper, 0);
  EXPECT_EQ(riga.Abil_SCR, 1);
  EXPECT_TRUE(riga.Lista_T.empty());
  EXPECT_EQ(riga.Esegui, Ramo_Assente());
}

TEST_F(Memory, ResizedProgramHoldsBlankLines) {
  Memoria m;
  m.Prog.Ridimensiona(2);
  m.Prog[1].Istr = "LD";
  m.Prog.Ridimensiona(3);
  EXPECT_EQ(m.Prog.Righe(), 3);
  for (const Riga_PLC& riga : m.Prog) EXPECT_TRUE(riga == Riga_PLC{});
}

TEST_F(Memory, BitOfAnOperandWithoutADotIsMinusOne) {
  for (const char* testo : {"LD T37", "LD C5", "MOVW VW3, VW4"}) {
    EXPECT_EQ(Riga(testo).Bit1, -1) << testo;
    EXPECT_EQ(Riga(testo).Ha_Bit, 0) << testo;
  }
  EXPECT_EQ(Riga("LD I0.3").Bit1, 3);
  EXPECT_EQ(Riga("LD I0.3").Num1, 0);
  EXPECT_NE(Riga("LD I0.3").Ha_Bit, 0);
}

// ---- byte values and texts ----------------------------------------------------------------------

class MarkerByte : public Cpu, public ::testing::WithParamInterface<int> {};

TEST_P(MarkerByte, IsRecomputedFromItsEightCellsInEveryRow) {
  const int valore = GetParam();
  for (int riga = 0; riga <= 4; ++riga) {
    plc.Mem_M[riga].Val_B = -1;
    plc.Mem_M[riga].Bit[8] = 1;  // carries no bit
    for (int bit = 0; bit <= 7; ++bit)
      plc.Mem_M[riga].Bit[bit] = static_cast<std::uint8_t>((valore + riga) >> bit & 1);
  }
  plc.Setta_Marker();
  for (int riga = 0; riga <= 4; ++riga) {
    const int byte = (valore + riga) % 256;
    std::string testo;
    for (int bit = 7; bit >= 0; --bit) testo += (byte >> bit & 1) != 0 ? '1' : '0';
    EXPECT_EQ(plc.Mem_M[riga].Val_B, byte);
    EXPECT_EQ(plc.Mem_M[riga].Txt_B, testo);
  }
}

class OutputByte : public Cpu, public ::testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(OutputByte, IsWrittenToImageAndPhysicalPointsAndShown) {
  const auto& [valore, riga] = GetParam();
  plc.Scelte.chkIP = true;
  for (std::uint8_t& cella : plc.IP_Q[riga].Bit_Img) cella = (valore & 1) == 0;
  Memoria attesa = plc;
  std::string testo;
  for (int bit = 7; bit >= 0; --bit) {
    const auto cella = static_cast<std::uint8_t>(valore >> bit & 1);
    attesa.IP_Q[riga].Bit_Img[bit] = attesa.IP_Q[riga].Bit_Dir[bit] = cella;
    testo += cella != 0 ? '1' : '0';
  }
  plc.Byte_Bit(valore, riga);
  EXPECT_TRUE(attesa == plc);
  EXPECT_EQ(plc.etIPQ[static_cast<std::size_t>(riga)], testo);
}

INSTANTIATE_TEST_SUITE_P(AllValues, MarkerByte, ::testing::Range(0, 256));
INSTANTIATE_TEST_SUITE_P(AllValues, OutputByte,
                         ::testing::Combine(::testing::Range(0, 256), ::testing::Values(0, 1)));

TEST_F(Memory, OutputByteOutsideTheTwoRowsIsFatal) {
  EXPECT_THROW(plc.Byte_Bit(1, 2), Fatale);
  EXPECT_THROW(plc.Byte_Bit(1, -1), Fatale);
}

// ---- word reads of bit areas --------------------------------------------------------------------

class WordThroughText
    : public Cpu,
      public ::testing::WithParamInterface<std::tuple<Area, std::pair<const char*, int>>> {};

TEST_P(WordThroughText, IsTheReadingOrderTextTakenAsADecimalNumber) {
  const auto& [area, caso] = GetParam();
  const auto& [testo, valore] = caso;
  plc.IP_I[1].Txt_B = plc.IP_Q[1].Txt_B = plc.Mem_M[1].Txt_B = "00000011";  // the neighbour
  (area == Area::IW   ? plc.IP_I[0].Txt_B
   : area == Area::QW ? plc.IP_Q[0].Txt_B
                      : plc.Mem_M[0].Txt_B) = testo;
  std::int16_t err = 0;
  EXPECT_EQ(plc.Leggi_W(area, 0, err), valore < 0 ? 0 : valore);
  EXPECT_EQ(err, valore < 0 ? -1 : 0);
  err = 0;
  EXPECT_EQ(plc.Leggi_W(area, 1, err), 11);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WordThroughText,
    ::testing::Combine(::testing::Values(Area::IW, Area::QW, Area::MW),
                       ::testing::Values(std::pair{"00000000", 0}, std::pair{"00000101", 101},
                                         std::pair{"00011111", 11111}, std::pair{"00010000", 10000},
                                         // -1: a number that the reading instruction refuses
                                         std::pair{"00100000", -1}, std::pair{"01000000", -1},
                                         std::pair{"10000000", -1}, std::pair{"11111111", -1})));

TEST_F(Memory, WordReadOfAnEmptyTextIsFatal) {
  struct Caso {
    const char* Riga;
    const char* Tabella;
    int Indice;
  };
  for (const Caso& caso :
       {Caso{"MOVW IW0, VW0", "IP_I.Txt_B", 0}, Caso{"MOVW QW1, VW0", "IP_Q.Txt_B", 1},
        Caso{"MOVW MW4, VW0", "Mem_M.Txt_B", 4}}) {
    plc.Stak[0] = 1;
    try {
      Esegui(caso.Riga);
      ADD_FAILURE() << caso.Riga;
    } catch (const Fatale& fatale) {
      EXPECT_EQ(fatale.Tabella(), caso.Tabella);
      EXPECT_EQ(fatale.Indice(), caso.Indice);
    }
  }
  EXPECT_TRUE(avvisi.empty());
}

TEST_F(Memory, VB2AndVW2AndVD2HoldThreeValuesAtTheSameTime) {
  plc.Stak[0] = 1;
  for (const char* riga : {"MOVB 11, VB2", "MOVW 222, VW2", "MOVD 33, VD2"}) Esegui(riga);
  EXPECT_EQ(plc.Mem_VB[2], 11);
  EXPECT_EQ(plc.Mem_VW[2], 222);
  EXPECT_EQ(plc.Mem_VD[2], 33);
}

TEST_F(Memory, MarkersZeroAndTwoReadAsByte5AndWord101) {
  plc.Stak[0] = 1;
  for (const char* riga : {"S M0.0, 1", "S M0.2, 1", "MOVB MB0, VB0", "MOVW MW0, VW0"})
    Esegui(riga);
  EXPECT_EQ(plc.Mem_VB[0], 5);
  EXPECT_EQ(plc.Mem_VW[0], 101);
}

TEST_F(Memory, Marker7MakesTheWordReadARunTimeError) {
  plc.Stak[0] = 1;
  Esegui("S M0.7, 1");
  Esegui("MOVW MW0, VW0");
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_EQ(avvisi[0].Testo, Errore_Run_Time);
  EXPECT_EQ(plc.Mem_VW[0], 0);
}

TEST_F(Memory, WordReadOfTheOutputsShowsTheEndOfThePreviousScan) {
  Carica({"LD SM0.1", "= Q0.1", "LD SM0.0", "MOVW QW0, VW0", "LDN SM0.1", "= Q0.0"});
  plc.Setta_Uscite();
  Run_Step();
  Scansione();
  EXPECT_EQ(plc.Mem_VW[0], 0);  // Q0.1 was set before the read
  Scansione();
  EXPECT_EQ(plc.Mem_VW[0], 10);
  Scansione();
  EXPECT_EQ(plc.Mem_VW[0], 1);
}

TEST_F(Memory, InputBytesAndWordsAreLiveWithinAScan) {
  Carica({"NOP", "MOVB IB0, VB0", "MOVW IW0, VW0"});
  plc.Stak[0] = 1;
  plc.Esegui_Riga();
  Ingresso(0, 1, true);
  plc.Esegui_Riga();
  plc.Esegui_Riga();
  EXPECT_EQ(plc.Mem_VB[0], 2);
  EXPECT_EQ(plc.Mem_VW[0], 10);
  EXPECT_EQ(plc.IP_I[0].Bit_Img[1], 0);
  EXPECT_EQ(plc.IP_I[0].Bit_Dir[1], 1);
}

}  // namespace tavorno::prova
