// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <regex>

#include "bench/speed.h"
#include "command_bed.h"
#include "recorder/session.h"

namespace tavorno::prova {

using ::testing::HasSubstr;
using SpeedCommand = Banco_Comandi;

TEST_F(SpeedCommand, PrintsLinesAndScansASecond) {
  EXPECT_EQ(Comando({"misura", Progetto_Con({"LD SM0.0", "= Q0.0"}), "--ms", "1"}), 0) << out;
  // The test library's own patterns know no sets on every system.
  const std::regex due_righe(
      "3 righe: [0-9]+,[0-9] milioni di righe al secondo, "
      "[0-9]+,[0-9] ns per riga, [0-9]+,[0-9] mila scansioni al secondo\\.\n"
      "Tempo di processore: [0-9]+,[0-9] ns per riga, [0-9]+,[0-9] % del tempo\\.\n");
  EXPECT_TRUE(std::regex_match(out, due_righe)) << out;
}

TEST_F(SpeedCommand, CountsEveryLineOfEveryScan) {
  Seduta seduta;
  ASSERT_TRUE(seduta.Apri(Progetto_Con({"LD SM0.0", "= Q0.0"})));
  seduta.progetto.Compila();
  const Velocita velocita = Misura(seduta.plc, std::chrono::milliseconds(2));
  EXPECT_EQ(velocita.Righe, velocita.Scansioni * 3 + seduta.plc.PC);
  EXPECT_GT(velocita.Scansioni, 0);
  EXPECT_GE(velocita.Secondi, 0.002);
  EXPECT_GE(velocita.Secondi_Processore, 0);
  EXPECT_LT(velocita.Secondi_Processore, velocita.Secondi + 0.1);
}

TEST_F(SpeedCommand, SaysWhyAProgramStopped) {
  EXPECT_EQ(Comando({"misura", Progetto_Con({"NOP", "LDB= SMB28 +0"})}), 1);
  EXPECT_EQ(out,
            "Run Time Error: Run Time Error! Il programma sarà terminato!\n"
            "Interrotto: la CPU si è fermata alla riga 1.\n");
  EXPECT_EQ(Comando({"misura", Progetto_Con({"LD SM0.0", "S M0.7 5"})}), 1);
  EXPECT_THAT(out, HasSubstr("Errore fatale: Indice fuori dalla tabella"));
  EXPECT_EQ(Comando({"misura", Progetto_Con({"FOO"})}), 1);
  EXPECT_THAT(err, HasSubstr("-> Istruzione non riconosciuta"));
  EXPECT_EQ(Comando({"misura", (cartella / "manca.AWL").string()}), 2);
}

// Without MEND's end of the scan, only the time ends it.
TEST_F(SpeedCommand, AProgramInACircleEndsWithTheTime) {
  EXPECT_EQ(Comando({"misura", Progetto_Con({"LBL 1", "LD SM0.0", "JMP 1"}), "--ms", "1"}), 0);
  EXPECT_THAT(out, HasSubstr(" 0,0 mila scansioni al secondo"));
}

}  // namespace tavorno::prova
