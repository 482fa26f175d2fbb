// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/clock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tavorno::prova {

/// Timers that write their letter and the time of the tick into a log.
class Clock : public ::testing::Test {
 protected:
  std::unique_ptr<Temporizzatore> Fai(char lettera, int intervallo) {
    return std::make_unique<Temporizzatore>(orologio, intervallo, [this, lettera] {
      registro += lettera + std::to_string(orologio.Adesso()) + " ";
    });
  }
  std::string Prendi() { return std::exchange(registro, ""); }

  Orologio orologio;
  std::string registro;
};

TEST_F(Clock, TimerIsOffWhenItIsMade) {
  const auto a = Fai('a', 10);
  EXPECT_FALSE(a->Enabled());
  EXPECT_EQ(orologio.Prossimo(), Orologio::Mai);
  orologio.Avanza(100);
  EXPECT_EQ(registro, "");
  EXPECT_EQ(orologio.Adesso(), 100);
}

TEST_F(Clock, TicksOncePerPeriodWhateverTheSteps) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  EXPECT_EQ(orologio.Prossimo(), 10);
  orologio.Avanza(9);
  EXPECT_EQ(Prendi(), "");
  orologio.Avanza(1);
  EXPECT_EQ(Prendi(), "a10 ");
  EXPECT_EQ(orologio.Prossimo(), 20);
  orologio.Avanza(0);
  EXPECT_EQ(Prendi(), "");
  orologio.Avanza(35);
  EXPECT_EQ(Prendi(), "a20 a30 a40 ");
  EXPECT_EQ(orologio.Adesso(), 45);
  EXPECT_EQ(orologio.Prossimo(), 50);
}

TEST_F(Clock, TellsWhenTheFirstOfSomeTimersIsDue) {
  const auto a = Fai('a', 10);
  const auto b = Fai('b', 25);
  EXPECT_EQ(orologio.Prossimo({a.get()}), Orologio::Mai);
  a->Enabled(true);
  b->Enabled(true);
  EXPECT_EQ(orologio.Prossimo({}), 10);
  EXPECT_EQ(orologio.Prossimo({nullptr, b.get()}), 10);
  EXPECT_EQ(orologio.Prossimo({a.get()}), 25);
  EXPECT_EQ(orologio.Prossimo({a.get(), b.get()}), Orologio::Mai);
}

TEST_F(Clock, EnablingAnEnabledTimerChangesNothing) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Avanza(7);
  a->Enabled(true);
  orologio.Avanza(3);
  EXPECT_EQ(registro, "a10 ");
}

TEST_F(Clock, DisablingAndEnablingStartsANewPeriod) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Avanza(7);
  a->Enabled(false);
  EXPECT_FALSE(a->Enabled());
  EXPECT_EQ(orologio.Prossimo(), Orologio::Mai);
  a->Enabled(true);
  orologio.Avanza(20);
  EXPECT_EQ(registro, "a17 a27 ");
}

TEST_F(Clock, DisablingADisabledTimerChangesNothing) {
  const auto a = Fai('a', 10);
  a->Enabled(false);
  orologio.Avanza(20);
  EXPECT_EQ(registro, "");
}

TEST_F(Clock, DifferentIntervalStartsANewPeriod) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Avanza(7);
  a->Interval(20);
  EXPECT_EQ(a->Interval(), 20);
  orologio.Avanza(40);
  EXPECT_EQ(Prendi(), "a27 a47 ");
  a->Interval(5);
  orologio.Avanza(5);
  EXPECT_EQ(registro, "a52 ");
}

TEST_F(Clock, SameIntervalChangesNothing) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Avanza(7);
  a->Interval(10);
  orologio.Avanza(3);
  EXPECT_EQ(registro, "a10 ");
}

TEST_F(Clock, IntervalOfATimerThatIsOffDoesNotStartIt) {
  const auto a = Fai('a', 10);
  a->Interval(20);
  EXPECT_FALSE(a->Enabled());
  a->Enabled(true);
  orologio.Avanza(20);
  EXPECT_EQ(registro, "a20 ");
}

TEST_F(Clock, IntervalsBelowOneMillisecondCountAsOne) {
  const auto a = Fai('a', 0);
  const auto b = Fai('b', 10);
  b->Interval(-5);
  EXPECT_EQ(a->Interval(), 1);
  EXPECT_EQ(b->Interval(), 1);
  a->Enabled(true);
  orologio.Avanza(2);
  EXPECT_EQ(registro, "a1 a2 ");
}

TEST_F(Clock, TimersDueTogetherTickInTheOrderOfTheirMaking) {
  const auto a = Fai('a', 30);
  const auto b = Fai('b', 10);
  const auto c = Fai('c', 15);
  for (const auto& timer : {&c, &b, &a}) (*timer)->Enabled(true);
  orologio.Avanza(30);
  EXPECT_EQ(registro, "b10 c15 b20 a30 b30 c30 ");
}

TEST_F(Clock, NoTickRunsInsideAnother) {
  int dentro = 0;
  int massimo = 0;
  const auto tick = [&] {
    massimo = std::max(massimo, ++dentro);
    orologio.Avanza(50);
    orologio.Porta_A(500);
    --dentro;
  };
  Temporizzatore a(orologio, 10, tick);
  Temporizzatore b(orologio, 10, tick);
  a.Enabled(true);
  b.Enabled(true);
  orologio.Avanza(10);
  EXPECT_EQ(massimo, 1);
  EXPECT_EQ(orologio.Adesso(), 10);
}

TEST_F(Clock, TimerCanEndItselfInItsTick) {
  int n = 0;
  std::unique_ptr<Temporizzatore> a;
  a = std::make_unique<Temporizzatore>(orologio, 10, [&] {
    ++n;
    a.reset();
    ++n;  // what the tick carries is still there
  });
  a->Enabled(true);
  orologio.Avanza(100);
  EXPECT_EQ(n, 2);
  EXPECT_EQ(orologio.Prossimo(), Orologio::Mai);
}

TEST_F(Clock, TimerCanEndAnotherThatIsDueAtTheSameTime) {
  std::unique_ptr<Temporizzatore> b;
  Temporizzatore a(orologio, 10, [&] { b.reset(); });
  b = Fai('b', 10);
  a.Enabled(true);
  b->Enabled(true);
  orologio.Avanza(10);
  EXPECT_EQ(registro, "");
}

TEST_F(Clock, TimerMadeAndStartedInATickTakesPartAtOnce) {
  std::unique_ptr<Temporizzatore> b;
  Temporizzatore a(orologio, 10, [&] {
    if (b) return;
    b = Fai('b', 4);
    b->Enabled(true);
  });
  a.Enabled(true);
  orologio.Avanza(20);
  EXPECT_EQ(registro, "b14 b18 ");
}

TEST_F(Clock, TimerCanSwitchItselfOffAndChangeItsIntervalInItsTick) {
  int n = 0;
  std::unique_ptr<Temporizzatore> a;
  a = std::make_unique<Temporizzatore>(orologio, 10, [&] {
    registro += std::to_string(orologio.Adesso()) + " ";
    if (++n == 1) a->Interval(3);
    if (n == 3) a->Enabled(false);
  });
  a->Enabled(true);
  orologio.Avanza(100);
  EXPECT_EQ(registro, "10 13 16 ");
}

TEST_F(Clock, DestroyedTimerLeavesItsClock) {
  auto a = Fai('a', 10);
  const auto b = Fai('b', 25);
  a->Enabled(true);
  b->Enabled(true);
  a.reset();
  EXPECT_EQ(orologio.Prossimo(), 25);
  orologio.Avanza(30);
  EXPECT_EQ(registro, "b25 ");
}

TEST_F(Clock, GoesOnAfterATickThatThrows) {
  bool lancia = true;
  Temporizzatore a(orologio, 10, [&] {
    if (lancia) throw std::runtime_error("tick");
    registro += "a" + std::to_string(orologio.Adesso());
  });
  a.Enabled(true);
  EXPECT_THROW(orologio.Avanza(10), std::runtime_error);
  lancia = false;
  orologio.Avanza(10);
  EXPECT_EQ(registro, "a20");
}

// ---- real time ----------------------------------------------------------------------------------

TEST_F(Clock, RealTimeDropsTheTicksItSleptThrough) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Porta_A(95);
  EXPECT_EQ(Prendi(), "a95 ");
  EXPECT_EQ(orologio.Adesso(), 95);
  orologio.Porta_A(100);
  EXPECT_EQ(Prendi(), "a100 ");
  orologio.Porta_A(200);
  EXPECT_EQ(Prendi(), "a200 ");
}

TEST_F(Clock, RealTimeTicksEachTimerOnceAndInOrder) {
  const auto a = Fai('a', 100);
  const auto b = Fai('b', 30);
  const auto c = Fai('c', 50);
  const auto d = Fai('d', 300);
  for (const auto& timer : {&a, &b, &c, &d}) (*timer)->Enabled(true);
  orologio.Porta_A(250);
  EXPECT_EQ(Prendi(), "a250 b250 c250 ");
  orologio.Porta_A(300);
  EXPECT_EQ(Prendi(), "a300 b300 c300 d300 ");
}

TEST_F(Clock, RealTimeWithoutSleepLosesNothing) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  for (int i = 1; i <= 30; ++i) orologio.Porta_A(i);
  EXPECT_EQ(registro, "a10 a20 a30 ");
}

TEST_F(Clock, RealTimeDoesNotRunBackwards) {
  const auto a = Fai('a', 10);
  a->Enabled(true);
  orologio.Porta_A(25);
  orologio.Porta_A(5);
  EXPECT_EQ(orologio.Adesso(), 25);
  EXPECT_EQ(registro, "a25 ");
}

TEST_F(Clock, ATimerStartedInALateTickWaitsForItsFirstPeriod) {
  const auto b = Fai('b', 10);
  Temporizzatore a(orologio, 1000, [&] { b->Enabled(true); });
  a.Enabled(true);
  orologio.Porta_A(1900);
  EXPECT_EQ(registro, "");
  orologio.Porta_A(1910);
  EXPECT_EQ(registro, "b1910 ");
}

TEST_F(Clock, RealTimeMovesAClockWithoutTimers) {
  orologio.Porta_A(25);
  EXPECT_EQ(orologio.Adesso(), 25);
}

// ---- determinism --------------------------------------------------------------------------------

TEST_F(Clock, SameRunGivesTheSameTicksInWhateverStepsItIsDriven) {
  const auto corsa = [](const std::vector<int>& passi) {
    Orologio tempo;
    std::string visti;
    std::vector<std::unique_ptr<Temporizzatore>> timer;
    for (const int intervallo : {7, 3, 12, 3}) {
      const std::size_t numero = timer.size();
      timer.push_back(std::make_unique<Temporizzatore>(tempo, intervallo, [&, numero] {
        visti += std::to_string(numero) + "@" + std::to_string(tempo.Adesso()) + " ";
        if (numero == 2) timer[0]->Enabled(!timer[0]->Enabled());
        if (numero == 0) timer[3]->Interval(timer[3]->Interval() == 3 ? 5 : 3);
      }));
      timer.back()->Enabled(true);
    }
    for (const int passo : passi) tempo.Avanza(passo);
    return visti;
  };
  const std::string intera = corsa({600});
  EXPECT_GT(intera.size(), 1000U);
  EXPECT_EQ(corsa({600}), intera);
  EXPECT_EQ(corsa(std::vector<int>(600, 1)), intera);
  EXPECT_EQ(corsa({1, 0, 199, 50, 350}), intera);
}

}  // namespace tavorno::prova
