// SPDX-License-Identifier: GPL-3.0-or-later
// The run in real time. Each test ends when what it waits for has happened.
#include "panel/run_driver.h"

#include <gtest/gtest.h>

#include "recorder/session.h"
#include "tests/support/temporary_folder.h"

namespace tavorno::prova {

class RunDriver : public ::testing::Test {
 public:
  void Carica(const std::vector<std::string>& righe) {
    const Cartella_Temporanea cartella;
    Scrivi_Byte(cartella / "prova.AWL", Byte_Di_Progetto(righe));
    ASSERT_TRUE(seduta.Apri((cartella / "prova.AWL").string()));
    seduta.progetto.Compila();
    ASSERT_EQ(seduta.progetto.Errori, 0) << seduta.progetto.Lista_Comp;
  }

  Seduta seduta;
  Plc& plc = seduta.plc;
  QObject corsa_ferma;  // ends what waits for too long
  int aggiornamenti = 0;
  std::function<void()> al_terzo = [] {};
  Guida_Corsa corsa{plc, [this] {
                      if (++aggiornamenti == 3) al_terzo();
                    }};
};

TEST_F(RunDriver, RefreshesTheScreenDuringARunAndScansAtMostOnceAMillisecond) {
  Carica({"NOP"});
  al_terzo = [this] { plc.mnuPlcStop(); };
  plc.mnuPlcRun();
  EXPECT_EQ(aggiornamenti, 3);
  EXPECT_GT(plc.N_Cicli, 1);
  EXPECT_LE(plc.N_Cicli, seduta.orologio.Adesso() + 1);
}

TEST_F(RunDriver, WithoutTheWaitTheWindowLivesToo) {
  Carica({"NOP"});
  corsa.Attesa = false;
  al_terzo = [this] { plc.mnuPlcStop(); };
  plc.mnuPlcRun();
  EXPECT_EQ(aggiornamenti, 3);
}

// What never reaches the end of a scan must still be stopped by a click.
class Circle : public RunDriver, public ::testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(Circle, CanBeStopped) {
  Carica(GetParam());
  QTimer::singleShot(0, [this] { plc.mnuPlcStop(); });
  plc.mnuPlcRun();
  EXPECT_EQ(plc.PLC_Acceso, 0);
  EXPECT_EQ(plc.N_Cicli, 0);
}

INSTANTIATE_TEST_SUITE_P(Programs, Circle,
                         ::testing::Values(std::vector<std::string>{"LBL 1", "LD SM0.0", "JMP 1"},
                                           std::vector<std::string>{"RET"},
                                           std::vector<std::string>{"NOP", "LD SM0.0", "RET"}));

TEST(ScanClock, CountsTheTimeBetweenYieldsOnly) {
  using std::chrono::nanoseconds;
  Cronometro_Scansioni cronometro;
  cronometro.Arriva(nanoseconds{5}, true);  // nothing has begun
  cronometro.Riparte(nanoseconds{10}, true);
  cronometro.Arriva(nanoseconds{40}, false);  // 30, then a yield of 100
  cronometro.Riparte(nanoseconds{140}, false);
  cronometro.Arriva(nanoseconds{150}, true);
  EXPECT_EQ(cronometro.Misurati().Quante, 1);
  EXPECT_EQ(cronometro.Misurati().Ultima, nanoseconds{40});
  cronometro.Riparte(nanoseconds{1000}, true);
  cronometro.Arriva(nanoseconds{1020}, true);
  const Tempo_Scansioni due = cronometro.Misurati();
  EXPECT_EQ(due.Quante, 2);
  EXPECT_EQ(due.Ultima, nanoseconds{20});
  EXPECT_EQ(due.Massima, nanoseconds{40});
  EXPECT_EQ(due.Media(), nanoseconds{30});
  cronometro.Riparte(nanoseconds{2000}, true);
  cronometro.Interrompi();
  cronometro.Arriva(nanoseconds{9000}, true);
  EXPECT_EQ(cronometro.Misurati().Quante, 2);
  cronometro.Da_Capo();
  EXPECT_EQ(cronometro.Misurati().Quante, 0);
  EXPECT_EQ(cronometro.Misurati().Media(), nanoseconds{0});
}

TEST_F(RunDriver, MeasuresEachScanFromRunOn) {
  Carica({"NOP"});
  corsa.Attesa = false;
  al_terzo = [this] { plc.mnuPlcStop(); };
  plc.mnuPlcRun();
  const Tempo_Scansioni durate = corsa.Scansioni();
  // Of the first scan no yield tells the end, and Stop may come before the last one's.
  EXPECT_LE(durate.Quante, plc.N_Cicli);
  EXPECT_GE(durate.Quante, plc.N_Cicli - 1);
  EXPECT_GT(durate.Quante, 0);
  EXPECT_GT(durate.Totale.count(), 0);
  EXPECT_LE(durate.Media(), durate.Massima);
  EXPECT_LE(durate.Ultima, durate.Massima);
  aggiornamenti = 0;
  const auto prima = durate.Quante;
  al_terzo = [this] { plc.mnuPlcStop(); };
  plc.mnuPlcRun();
  EXPECT_LE(corsa.Scansioni().Quante, plc.N_Cicli) << "the run before, of " << prima << ", counts";
}

// A diagram, too, shows clocks and timers that no line reads.
TEST_F(RunDriver, WhoLooksOnSeesWhatChangesWhileTheProgramRests) {
  Carica({"LD I0.0", "= Q0.0"});
  int cambi = 0, prima = 0;
  const Iscrizione occhio = plc.Hook.Ascolta_Cedi(
      [&] {
        const int adesso = plc.Mem_SM[0].Bit[5];
        cambi += adesso != std::exchange(prima, adesso) ? 1 : 0;
        if (cambi == 3) plc.mnuPlcStop();
      },
      1'000'000);
  QTimer::singleShot(std::chrono::seconds{60}, &corsa_ferma, [this] { plc.mnuPlcStop(); });
  plc.mnuPlcRun();
  EXPECT_EQ(cambi, 3);
}

TEST_F(RunDriver, TakesItsYieldWithIt) {
  {
    Orologio orologio;
    Plc altra(orologio);
    {
      const Guida_Corsa breve(altra, [] {});
    }
    EXPECT_FALSE(altra.Hook.Cedi_Ascoltato());
  }
  EXPECT_TRUE(plc.Hook.Cedi_Ascoltato());
}

}  // namespace tavorno::prova
