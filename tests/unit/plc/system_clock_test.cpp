// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <limits>

#include "cpu.h"

namespace tavorno::prova {

using SystemClock = Cpu;

TEST_F(SystemClock, NoneRunsBeforeRunAndAfterStop) {
  const auto accesi = [this] {
    int n = 0;
    for (const auto* timer : {&plc.T100m, &plc.tim1, &plc.tim2, &plc.timIO}) n += timer->Enabled();
    return n;
  };
  EXPECT_EQ(accesi(), 0);
  Run_Step();
  EXPECT_EQ(accesi(), 4);
  plc.mnuPlcStop();
  EXPECT_EQ(accesi(), 0);
  EXPECT_EQ(orologio.Prossimo(), Orologio::Mai);
}

TEST_F(SystemClock, IntervalsAreThoseOfTheMachine) {
  EXPECT_EQ(plc.Clock_T, 100);
  EXPECT_EQ(plc.T100m.Interval(), 100);
  EXPECT_EQ(plc.tim1.Interval(), 500);
  EXPECT_EQ(plc.tim2.Interval(), 30000);
  EXPECT_EQ(plc.timIO.Interval(), 20);
}

// ---- tick of the timers -------------------------------------------------------------------------

namespace {
struct Conteggio {
  int Val, Conta, Ticchettii, Dopo;
};
}  // namespace

class TimerTick : public Cpu, public ::testing::WithParamInterface<Conteggio> {};

TEST_P(TimerTick, AddsOneToEveryTimerThatCountsUpToTheCeiling) {
  const auto& [val, conta, ticchettii, dopo] = GetParam();
  Run_Step();
  for (const int numero : {0, 20, 40})
    plc.Mem_T[numero] = {static_cast<std::int16_t>(val), 7, 1, static_cast<std::int16_t>(conta)};
  Memoria attesa = plc;
  for (const int numero : {0, 20, 40}) attesa.Mem_T[numero].Val = static_cast<std::int16_t>(dopo);
  // The words of the analog inputs and SM0.5 belong to other clocks.
  plc.timIO.Enabled(false);
  plc.tim1.Enabled(false);
  orologio.Avanza(100 * ticchettii - 1);
  EXPECT_TRUE(ticchettii > 1 || plc.Mem_T[0].Val == val);
  orologio.Avanza(1);
  EXPECT_TRUE(attesa == plc);
  EXPECT_EQ(plc.Mem_T[40].Val, dopo);
}

INSTANTIATE_TEST_SUITE_P(
    Table, TimerTick,
    ::testing::Values(Conteggio{0, -1, 1, 1}, Conteggio{0, 1, 1, 1}, Conteggio{0, 0, 1, 0},
                      Conteggio{5, -1, 12, 17}, Conteggio{-3, -1, 2, -1}, Conteggio{5, 0, 12, 5},
                      Conteggio{32758, -1, 1, 32759}, Conteggio{32759, -1, 1, 32760},
                      Conteggio{32759, -1, 5, 32760}, Conteggio{32760, -1, 1, 32760},
                      Conteggio{32765, -1, 1, 32760}));

class TimerPeriod : public Cpu, public ::testing::WithParamInterface<int> {};

TEST_P(TimerPeriod, IsThatOfTheSetting) {
  plc.T100m.Interval(GetParam());
  Run_Step();
  plc.Mem_T[3].Conta = -1;
  orologio.Avanza(1000);
  EXPECT_EQ(plc.Mem_T[3].Val, 1000 / GetParam());
}

INSTANTIATE_TEST_SUITE_P(Settings, TimerPeriod, ::testing::Values(100, 50, 10));

TEST_F(SystemClock, TimersStandStillWhenThePlcIsStopped) {
  Run_Step();
  plc.Mem_T[3].Conta = -1;
  orologio.Avanza(250);
  plc.mnuPlcStop();
  orologio.Avanza(1000);
  EXPECT_EQ(plc.Mem_T[3].Val, 2);
}

// ---- blinking bits ------------------------------------------------------------------------------

TEST_F(SystemClock, Sm05TogglesEveryHalfSecond) {
  Run_Step();
  orologio.Avanza(499);
  EXPECT_EQ(plc.Mem_SM[0].Bit[5], 0);
  orologio.Avanza(1);
  for (const int valore : {1, 0, 1, 0}) {
    EXPECT_EQ(plc.Mem_SM[0].Bit[5], valore);
    orologio.Avanza(500);
  }
}

TEST_F(SystemClock, Sm04TogglesEveryHalfMinute) {
  Run_Step();
  orologio.Avanza(29999);
  EXPECT_EQ(plc.Mem_SM[0].Bit[4], 0);
  orologio.Avanza(1);
  for (const int valore : {1, 0, 1}) {
    EXPECT_EQ(plc.Mem_SM[0].Bit[4], valore);
    orologio.Avanza(30000);
  }
}

namespace {
struct Lampeggio {
  int Bit, Periodo;
};
}  // namespace

class BlinkState : public Cpu, public ::testing::WithParamInterface<Lampeggio> {};

TEST_P(BlinkState, SurvivesStopAndTheSpecialBitDoesNot) {
  const auto& [bit, periodo] = GetParam();
  Run_Step();
  orologio.Avanza(periodo);
  EXPECT_EQ(plc.Mem_SM[0].Bit[bit], 1);
  plc.mnuPlcStop();
  EXPECT_EQ(plc.Mem_SM[0].Bit[bit], 1);
  orologio.Avanza(periodo / 2);
  Run_Step();
  EXPECT_EQ(plc.Mem_SM[0].Bit[bit], 0);
  orologio.Avanza(periodo - 1);
  plc.Mem_SM[0].Bit[bit] = 7;  // the tick copies its own state, it does not toggle the cell
  orologio.Avanza(1);
  EXPECT_EQ(plc.Mem_SM[0].Bit[bit], 0);
  orologio.Avanza(periodo);
  EXPECT_EQ(plc.Mem_SM[0].Bit[bit], 1);
}

INSTANTIATE_TEST_SUITE_P(Both, BlinkState,
                         ::testing::Values(Lampeggio{5, 500}, Lampeggio{4, 30000}));

// ---- analog exchange ----------------------------------------------------------------------------

namespace {
struct Ingresso_Analogico {
  Scala Portata;
  float Valore;
  int Parola;
};
struct Uscita_Analogica {
  Scala Portata;
  int Parola;
  float Valore;
};
constexpr int intatta = 12345;  // what stands in the words before
}  // namespace

class AnalogInput : public Cpu, public ::testing::WithParamInterface<Ingresso_Analogico> {};

TEST_P(AnalogInput, BecomesAWordRoundedDown) {
  const auto& [portata, valore, parola] = GetParam();
  plc.Scelte.opzAI = portata;
  for (std::int32_t& cella : plc.Mem_AIW) cella = intatta;
  Run_Step();
  orologio.Avanza(19);
  for (int n = 0; n <= 2; ++n) {
    EXPECT_EQ(plc.Mem_AIW[2 * n], intatta);
    for (float& altro : plc.Volt_AI) altro = 0;
    plc.Volt_AI[n] = valore;
    orologio.Avanza(n == 0 ? 1 : 20);
    std::array<std::int32_t, 5> attese = {intatta, intatta, intatta, intatta, intatta};
    if (portata != Scala::Nessuna) attese[0] = attese[2] = attese[4] = 0;
    attese[static_cast<std::size_t>(2 * n)] = parola;
    for (int i = 0; i <= 4; ++i) EXPECT_EQ(plc.Mem_AIW[i], attese[static_cast<std::size_t>(i)]);
    for (std::int32_t& cella : plc.Mem_AIW) cella = intatta;
  }
}

INSTANTIATE_TEST_SUITE_P(Table, AnalogInput,
                         ::testing::Values(Ingresso_Analogico{Scala::Volt_10, 0.0F, 0},
                                           Ingresso_Analogico{Scala::Volt_10, 5.0F, 16000},
                                           Ingresso_Analogico{Scala::Volt_10, 10.0F, 32000},
                                           Ingresso_Analogico{Scala::Volt_10, 2.5F, 8000},
                                           Ingresso_Analogico{Scala::Volt_10, 0.000244140625F, 0},
                                           Ingresso_Analogico{Scala::Volt_10, 0.00048828125F, 1},
                                           Ingresso_Analogico{Scala::Volt_10, -0.000244140625F,
                                                              -1},  // down, not towards zero
                                           Ingresso_Analogico{Scala::Volt_10, 9.99951171875F,
                                                              31998},
                                           Ingresso_Analogico{Scala::Volt_10, 20.0F, 64000},
                                           Ingresso_Analogico{Scala::mA_20, 0.0F, 0},
                                           Ingresso_Analogico{Scala::mA_20, 4.0F, 6400},
                                           Ingresso_Analogico{Scala::mA_20, 12.0F, 19200},
                                           Ingresso_Analogico{Scala::mA_20, 20.0F, 32000},
                                           Ingresso_Analogico{Scala::mA_20, 0.00048828125F, 0},
                                           Ingresso_Analogico{Scala::mA_20, -0.00048828125F, -1},
                                           Ingresso_Analogico{Scala::Nessuna, 5.0F, intatta}));

class AnalogOutput : public Cpu, public ::testing::WithParamInterface<Uscita_Analogica> {};

TEST_P(AnalogOutput, BecomesVoltsOrMilliamperes) {
  const auto& [portata, parola, valore] = GetParam();
  plc.Scelte.opzAQ = portata;
  plc.Mem_AQW[1] = 9999;
  Run_Step();
  for (int n = 0; n <= 1; ++n) {
    plc.Mem_AQW[2 * n] = parola;
    plc.Mem_AQW[2 - 2 * n] = 0;
    orologio.Avanza(20);
    EXPECT_EQ(plc.Volt_AQ[n], valore);
    EXPECT_EQ(plc.Volt_AQ[1 - n], 0.0F);
    EXPECT_EQ(plc.Mem_AQW[2 * n], parola);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, AnalogOutput,
                         ::testing::Values(Uscita_Analogica{Scala::Volt_10, 0, 0.0F},
                                           Uscita_Analogica{Scala::Volt_10, 16000, 5.0F},
                                           Uscita_Analogica{Scala::Volt_10, 32000, 10.0F},
                                           Uscita_Analogica{Scala::Volt_10, 1, 10.0F / 32000.0F},
                                           Uscita_Analogica{Scala::Volt_10, -32000, -10.0F},
                                           Uscita_Analogica{Scala::Volt_10, 100000, 31.25F},
                                           Uscita_Analogica{Scala::mA_20, 6400, 4.0F},
                                           Uscita_Analogica{Scala::mA_20, 32000, 20.0F},
                                           Uscita_Analogica{Scala::mA_20, 1, 20.0F / 32000.0F},
                                           // without a choice the wider range counts
                                           Uscita_Analogica{Scala::Nessuna, 32000, 20.0F}));

TEST_F(SystemClock, AnalogOutputBeyondThirtyTwoBitsIsFatal) {
  Run_Step();
  plc.Mem_AQW[2] = std::numeric_limits<std::int32_t>::max() / 10;
  EXPECT_NO_THROW(orologio.Avanza(20));
  plc.Mem_AQW[2] += 1;
  EXPECT_THROW(orologio.Avanza(20), Fatale);
}

TEST_F(SystemClock, AnalogExchangeLeavesTheRestOfTheMemoryAlone) {
  Run_Step();
  plc.Volt_AI[1] = 1.0F;
  plc.Mem_AQW[2] = 3200;
  Memoria attesa = plc;
  attesa.Mem_AIW[2] = 3200;
  attesa.Volt_AQ[1] = 1.0F;
  orologio.Avanza(20);
  EXPECT_TRUE(attesa == plc);
}

}  // namespace tavorno::prova
