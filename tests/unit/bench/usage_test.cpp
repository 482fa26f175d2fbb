// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_bed.h"

namespace tavorno::prova {

using Usage = Banco_Comandi;

TEST_F(Usage, HelpNamesEveryCommandAndOption) {
  for (const auto& parole : std::vector<std::vector<std::string>>{
           {"--help"}, {"-h"}, {"compila", "--help"}, {"esegui", "--help"}}) {
    EXPECT_EQ(Comando(parole), 0);
    for (const char* parola :
         {"compila", "esegui", "prova", "misura", "--vcd", "--svg", "--json", "--ms", "--scansione",
          "--ingressi", "--impianto", "--mani",
          "premi:", "rilascia:", "clic:", "doppio:", "regola:", "Stato di uscita"})
      EXPECT_NE(out.find(parola), std::string::npos) << parola;
  }
}

struct Errato {
  std::vector<std::string> parole;
  const char* motivo;
};

class WrongUse : public Banco_Comandi, public ::testing::WithParamInterface<Errato> {};

TEST_P(WrongUse, ExitsWithSixtyFourAndOneLineThatSaysWhat) {
  EXPECT_EQ(Comando(GetParam().parole), 64);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, std::string("tavorno-banco: ") + GetParam().motivo +
                     " (tavorno-banco --help per l'aiuto)\n");
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, WrongUse,
    ::testing::Values(
        Errato{{}, "manca il comando"}, Errato{{"corri"}, "comando sconosciuto: corri"},
        Errato{{"compila"}, "manca il file del progetto"},
        Errato{{"compila", "a", "b"}, "troppi file: \"b\""},
        Errato{{"compila", "a", "--xml"}, "opzione sconosciuta: --xml"},
        Errato{{"compila", "a", "--json=1"}, "opzione sconosciuta: --json=1"},
        Errato{{"esegui", "a", "--ms"}, "manca il valore dell'opzione --ms"},
        Errato{{"esegui", "a", "--ms", "dieci"},
               "il valore di --ms deve essere un numero intero tra 1 e 86400000"},
        Errato{{"esegui", "a", "--ms", "0"},
               "il valore di --ms deve essere un numero intero tra 1 e 86400000"},
        Errato{{"esegui", "a", "--ms", "86400001"},
               "il valore di --ms deve essere un numero intero tra 1 e 86400000"},
        Errato{{"esegui", "a", "--ms", "99999999999999999999"},
               "il valore di --ms deve essere un numero intero tra 1 e 86400000"},
        Errato{{"esegui", "a", "--scansione", "10001"},
               "il valore di --scansione deve essere un numero intero tra 1 e 10000"},
        Errato{{"misura"}, "manca il file del progetto"},
        Errato{{"misura", "a", "--ms", "60001"},
               "il valore di --ms deve essere un numero intero tra 1 e 60000"},
        Errato{{"misura", "a", "--impianto", "0"}, "opzione sconosciuta: --impianto"},
        Errato{{"esegui", "a", "--ingressi", "5:I2.0=1"},
               "ingresso non valido \"5:I2.0=1\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"},
        Errato{{"esegui", "a", "--ingressi", "5:I0.8=1"},
               "ingresso non valido \"5:I0.8=1\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"},
        Errato{{"esegui", "a", "--ingressi", "-5:I0.0=1"},
               "ingresso non valido \"-5:I0.0=1\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"},
        Errato{{"esegui", "a", "--ingressi", "5:I0.0=2"},
               "ingresso non valido \"5:I0.0=2\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"},
        Errato{{"esegui", "a", "--ingressi", "5:AI3=1"},
               "ingresso non valido \"5:AI3=1\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"},
        Errato{{"esegui", "a", "--ingressi", "5:I0.0=1,"},
               "ingresso non valido \"\": si scrive 500:I0.1=1 oppure 500:AI0=2.5"}));

TEST_F(Usage, WordsBehindTwoDashesAreFiles) {
  EXPECT_EQ(Comando({"compila", "--", "--json"}), 2);
  EXPECT_NE(err.find("--json: impossibile leggere il progetto."), std::string::npos);
}

struct Illeggibile {
  const char* nome;
  std::string byte;
  const char* motivo;
};

class Unreadable : public Banco_Comandi, public ::testing::WithParamInterface<Illeggibile> {};

TEST_P(Unreadable, ExitsWithTwoAndTheReason) {
  const std::string file = File("strano.AWL", GetParam().byte);
  for (const char* comando : {"compila", "esegui"}) {
    EXPECT_EQ(Comando({comando, file}), 2);
    EXPECT_EQ(out, "");
    EXPECT_NE(err.find(GetParam().motivo), std::string::npos) << err;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, Unreadable,
    ::testing::Values(Illeggibile{"Empty", "", "il file non contiene nessun blocco di programma"},
                      Illeggibile{"Binary",
                                  std::string("\x7F"
                                              "ELF\0\0\1\2\r\n\xFF\xFE",
                                              12),
                                  "il file non contiene nessun blocco di programma"},
                      Illeggibile{"Huge", std::string(17U << 20U, 'x'),
                                  "il file è troppo grande per un progetto"},
                      Illeggibile{"TooManyRows",
                                  "ORGANIZATION_BLOCK\n" +
                                      [] {
                                        std::string righe;
                                        for (int i = 0; i < 400; ++i) righe += "NOP\n";
                                        return righe;
                                      }(),
                                  "Il progetto supera le 300 righe di istruzioni!"}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST_F(Usage, MissingFilesAndFoldersAreUnreadable) {
  EXPECT_EQ(Comando({"compila", (cartella / "manca.AWL").string()}), 2);
  EXPECT_NE(err.find("il file o la cartella non esiste"), std::string::npos);
  EXPECT_EQ(Comando({"compila", cartella.string()}), 2);
  EXPECT_NE(err.find("il percorso è una cartella"), std::string::npos);
}

}  // namespace tavorno::prova
