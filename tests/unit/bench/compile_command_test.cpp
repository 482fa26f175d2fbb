// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>
#include <nlohmann/json.hpp>

#include "command_bed.h"

namespace tavorno::prova {

using CompileCommand = Banco_Comandi;

TEST_F(CompileCommand, PrintsTheListingAndTheBoxesOfAGoodProject) {
  EXPECT_EQ(Comando({"compila", Progetto_Con({"LD I0.0", "= Q0.0"})}), 0);
  EXPECT_EQ(out,
            "0000 [Ok!   ]: LD     I0.0            \n"
            "0001 [Ok!   ]: =      Q0.0            \n"
            "0002 [Ok!   ]: MEND                   \n"
            "Attenzione!:  2 Righe compilate con successo!\n");
  EXPECT_EQ(err, "");
}

TEST_F(CompileCommand, ExitsWithOneOnABadLine) {
  EXPECT_EQ(Comando({"compila", Progetto_Con({"LD I2.0"})}), 1);
  EXPECT_NE(out.find("0000 [Err. 6]: LD     I2.0            -> Indirizzo non supportato\n"),
            std::string::npos);
  EXPECT_NE(out.find("Attenzione!:  1 Righe compilate con  1 Errori!!\n"), std::string::npos);
}

TEST_F(CompileCommand, AJumpWithoutLabelIsShownAndCountsAsCompiled) {
  EXPECT_EQ(Comando({"compila", Progetto_Con({"LD I0.0", "JMP 5"})}), 0);
  EXPECT_NE(out.find("Errore!: Controllo Salti con Errori!\n"), std::string::npos);
}

TEST_F(CompileCommand, ExitsWithTwoAndTellsTheLineOfAnUnreadableProject) {
  EXPECT_EQ(Comando({"compila", Progetto_Con({"LD I0.0", "MOVW VW10000000000 VW2"})}), 2);
  EXPECT_EQ(out, "");
  EXPECT_NE(err.find("Riga 5: MOVW VW10000000000 VW2\n"), std::string::npos);
}

TEST_F(CompileCommand, ReportsTheThreeOperandBoxBeforeTheResult) {
  EXPECT_EQ(Comando({"compila", Progetto_Con({"MOVB 1 2 3"})}), 1);
  EXPECT_NE(out.find("Attenzione: Il simulatore non supporta istruzioni con tre operandi!\n"),
            std::string::npos);
}

TEST_F(CompileCommand, GivesEveryFieldOfEveryRowAsJson) {
  EXPECT_EQ(Comando({"compila", "--json",
                     Progetto_Con({"LD I0.3", "JMP 1", "TON T37 +10", "LBL 1", "LSCR S0.1",
                                   "MOVW VW0 VW2", "SCRE"})}),
            0);
  const auto json = nlohmann::json::parse(out);
  EXPECT_EQ(json.size(), 5);
  EXPECT_EQ(json["diagnostics"], nlohmann::json::array());
  EXPECT_EQ(json["errors"], 0);
  EXPECT_EQ(json["boxes"], nlohmann::json::parse(R"([{"title": "Attenzione!",
            "text": " 7 Righe compilate con successo!"}])"));
  EXPECT_EQ(json["listing"].get<std::string>().substr(0, 41),
            "0000 [Ok!   ]: LD     I0.3            \r\r\n");
  ASSERT_EQ(json["prog"].size(), 8);
  EXPECT_EQ(json["prog"][0], nlohmann::json::parse(R"({"Istr": "LD", "Area1": "I", "Area2": "",
      "Area3": "", "Num1": 0, "Num2": 0, "Num3": 0, "Bit1": 3, "Bit2": -1, "Bit3": -1, "Fronte": 0,
      "Salto": 0, "NOper": 1, "Ha_Bit": -1, "Lista_T": [], "Abil_SCR": 1, "SCR_Prima": 0,
      "SCR_Ultima": 0})"));
  EXPECT_EQ(json["prog"][1]["Salto"], 3);
  EXPECT_EQ(json["prog"][1]["Lista_T"], (std::vector<int>{0, 37}));
  EXPECT_EQ(json["prog"][4]["SCR_Prima"], 5);
  EXPECT_EQ(json["prog"][4]["SCR_Ultima"], 5);
  EXPECT_EQ(json["prog"][5]["Area2"], "VW");
  EXPECT_EQ(json["prog"][7]["Istr"], "MEND");
}

TEST_F(CompileCommand, GivesEveryDiagnosticAsJson) {
  EXPECT_EQ(
      Comando({"compila", "--json", Progetto_Con({"NOT", "//\xE0", "MOVB VB200 AC1", "JMP 5"})}),
      1);
  EXPECT_EQ(nlohmann::json::parse(out)["diagnostics"], nlohmann::json::parse(R"([
      {"severity": "error", "block": "MAIN", "line": 4, "column": 8, "length": 5, "row": 1,
       "status": 6, "text": "MOVB   VB200, AC1", "message": "Indirizzo Byte OP1 non supportato"},
      {"severity": "warning", "block": "MAIN", "line": 5, "column": 1, "length": 8, "row": 2,
       "status": 1, "text": "JMP    5", "message": "Manca l'etichetta LBL 5"}])"));
}

TEST_F(CompileCommand, WarnsOfUtf8WithoutAMarkAndConvertsNothing) {
  EXPECT_EQ(Comando({"compila", "--json", Progetto_Con({"NETWORK 1 //perch\xC3\xA9"})}), 0);
  const auto json = nlohmann::json::parse(out);
  EXPECT_TRUE(err.ends_with(
      ": Il file sembra scritto in UTF-8 e viene letto com'è: \"perché\" diventa \"perchÃ©\".\n"))
      << err;
  EXPECT_EQ(json["boxes"].size(), 1U) << "no box of the machine tells it";
  EXPECT_EQ(json["prog"][0]["Istr"], "NETWORK 1       //PERCHÃ©");
}

TEST_F(CompileCommand, WarnsOfLinesOutsideOfAllBlocks) {
  const std::string file = Progetto_Con({"NOT"});
  const auto compila = [&](const std::string& byte) {
    std::ofstream(file, std::ios::binary) << byte;
    EXPECT_EQ(Comando({"compila", file}), 0);
    return err;
  };
  const std::string intero = "ORGANIZATION_BLOCK MAIN:OB1\r\nNOT\r\nEND_ORGANIZATION_BLOCK\r\n";
  EXPECT_EQ(compila("// di Anna\r\n\r\n" + intero + "\r\n"), "");
  EXPECT_NE(compila("di Anna\r\n" + intero).find(": La riga 1 (\"di Anna\") non viene letta"),
            std::string::npos)
      << err;
  EXPECT_NE(compila("// \r\nLD I0.0\r\n= Q0.0\r\nEND_ORGANIZATION_BLOCK\r\n")
                .find(": Righe che non vengono lette: 2, dalla riga 2 (\"LD I0.0\")"),
            std::string::npos)
      << err;
}

TEST_F(CompileCommand, WritesNamesOfTheCodePageAsUtf8) {
  EXPECT_EQ(Comando({"compila", "--json", Progetto_Con({"NETWORK 1 //perch\xE9"})}), 0);
  EXPECT_EQ(nlohmann::json::parse(out)["prog"][0]["Istr"], "NETWORK 1       //PERCHÉ");
}

}  // namespace tavorno::prova
