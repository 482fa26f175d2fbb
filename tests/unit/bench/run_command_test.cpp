// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "command_bed.h"

namespace tavorno::prova {

using ::testing::HasSubstr;
using RunCommand = Banco_Comandi;

TEST_F(RunCommand, PrintsEveryChangeWithItsVirtualTime) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LD I0.1", "= Q1.7"}), "--ms", "20", "--ingressi",
                     "5:I0.1=1,9:I0.1=0"}),
            0);
  EXPECT_EQ(out,
            "       5 ms  I0.1 = 1\n"
            "       5 ms  Q1.7 = 1\n"
            "       9 ms  I0.1 = 0\n"
            "       9 ms  Q1.7 = 0\n"
            "Fine: 20 ms, 20 scansioni.\n");
}

TEST_F(RunCommand, TakesTheInputsInTheOrderOfTime) {
  Comando({"esegui", Progetto_Con({"NOP"}), "--ms=3", "--ingressi=2:I1.0=1,1:I0.0=1,2:I1.0=0"});
  EXPECT_EQ(out,
            "       1 ms  I0.0 = 1\n"
            "       2 ms  I1.0 = 1\n"
            "       2 ms  I1.0 = 0\n"
            "Fine: 3 ms, 3 scansioni.\n");
}

TEST_F(RunCommand, AScanMayTakeLonger) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LD SM0.5", "= Q0.0"}), "--ms", "1200", "--scansione",
                     "400"}),
            0);
  EXPECT_EQ(out, "     800 ms  Q0.0 = 1\nFine: 1200 ms, 3 scansioni.\n");
}

TEST_F(RunCommand, SetsAnalogChannelsInVolts) {
  Comando({"esegui", Progetto_Con({"LDW= AIW4 +8000", "= Q0.0"}), "--ms", "100", "--ingressi",
           "30:AI2=2.5"});
  EXPECT_EQ(out, "      40 ms  Q0.0 = 1\nFine: 100 ms, 100 scansioni.\n");
}

TEST_F(RunCommand, RecordsInputsAndOutputs) {
  const std::string vcd = (cartella / "x.vcd").string(), svg = (cartella / "x.svg").string();
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LD I0.1", "= Q0.0"}), "--ms", "20", "--ingressi",
                     "5:I0.1=1", "--vcd", vcd, "--svg", svg}),
            0);
  const std::string cambi = Leggi_Byte(vcd);
  const std::string ingresso = cambi.substr(cambi.find(" I0_1 $end") - 1, 1);
  const std::string uscita = cambi.substr(cambi.find(" Q0_0 $end") - 1, 1);
  EXPECT_THAT(cambi, HasSubstr("#5\n1" + ingresso + "\n1" + uscita + "\n#20\n"));
  EXPECT_THAT(Leggi_Byte(svg), HasSubstr(">consegna.AWL</text>"));
}

TEST_F(RunCommand, SaysWhenARecordCannotBeWritten) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"NOP"}), "--ms", "5", "--vcd",
                     (cartella / "manca" / "x.vcd").string()}),
            1);
  EXPECT_THAT(err, HasSubstr("impossibile scrivere"));
}

TEST_F(RunCommand, ReportsARunTimeErrorAndExitsWithOne) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LDB= SMB28 +0"}), "--ms", "50"}), 1);
  EXPECT_EQ(out,
            "       0 ms  Run Time Error: Run Time Error! Il programma sarà terminato!\n"
            "Interrotto: la CPU si è fermata alla riga 0.\n");
}

TEST_F(RunCommand, ReportsAnInstructionWithoutABranch) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"XORD AC0 AC1"}), "--ms", "50"}), 1);
  EXPECT_NE(out.find("Errore in Esecuzione!: Riga 0 : <XORD>--> Istruzione non riconosciuta!\n"),
            std::string::npos);
}

TEST_F(RunCommand, ReportsAFatalEndWithTableIndexAndLine) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"LD SM0.0", "S M0.7 5"}), "--ms", "50"}), 1);
  EXPECT_EQ(out,
            "Errore fatale: Indice fuori dalla tabella\nTabella o operazione: Mem_M.Bit\n"
            "Indice o valore: 9\nRiga: 1  S M0.7, 5\n");
}

// Each would run for ever without a limit: in a circle over many lines, within one call, and by a
// return that restarts the program without the end of the scan.
class Circle : public Banco_Comandi,
               public ::testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(Circle, IsReportedAndNotWaitedFor) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con(GetParam())}), 1);
  EXPECT_NE(out.find("Interrotto: il programma non raggiunge MEND"), std::string::npos) << out;
}

INSTANTIATE_TEST_SUITE_P(Programs, Circle,
                         ::testing::Values(std::vector<std::string>{"LBL 1", "LD SM0.0", "JMP 1"},
                                           std::vector<std::string>{"RET"},
                                           std::vector<std::string>{"NOP", "LD SM0.0", "RET"}));

TEST_F(RunCommand, DoesNotRunAProjectWithErrors) {
  EXPECT_EQ(Comando({"esegui", Progetto_Con({"FOO"})}), 1);
  EXPECT_EQ(out, "");
  EXPECT_NE(err.find("-> Istruzione non riconosciuta"), std::string::npos);
}

TEST_F(RunCommand, ProgramWithoutMendEndsFatally) {
  const std::string file = File("aperto.AWL", "SUBROUTINE_BLOCK A:SBR0\r\nBEGIN\r\nNOP\r\n");
  EXPECT_EQ(Comando({"esegui", file}), 1);
  EXPECT_NE(out.find("Tabella o operazione: Prog\nIndice o valore: 2\n"), std::string::npos) << out;
}

TEST_F(RunCommand, TwoRunsPrintTheSameBytes) {
  const std::string file = Progetto_Con({"LD SM0.5", "TON T3 +7", "LD T3", "= Q0.3"});
  Comando({"esegui", file, "--ms", "60000"});
  const std::string prima = out;
  Comando({"esegui", file, "--ms", "60000"});
  EXPECT_EQ(out, prima);
}

}  // namespace tavorno::prova
