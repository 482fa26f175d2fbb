// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/command_line.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavorno {

namespace {

struct CommandLine : ::testing::Test {
  Riga_Di_Comando Leggi(const std::vector<std::string>& parole) {
    return Leggi_Riga_Di_Comando(parole, out, err);
  }
  std::ostringstream out, err;
};

TEST_F(CommandLine, WithoutWordsOpensNothing) {
  const Riga_Di_Comando riga = Leggi({});
  EXPECT_FALSE(riga.Stato);
  EXPECT_EQ(riga.File, "");
}

TEST_F(CommandLine, OneWordIsTheProject) {
  EXPECT_EQ(Leggi({"città.AWL"}).File, "città.AWL");
  EXPECT_EQ(Leggi({"--", "-strano.AWL"}).File, "-strano.AWL");
  EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(CommandLine, HelpAndVersionEndTheProgramAtOnce) {
  EXPECT_TRUE(Solo_Domande({"a.AWL", "--help"}));
  EXPECT_TRUE(Solo_Domande({"--version"}));
  EXPECT_FALSE(Solo_Domande({"a.AWL"}));
  EXPECT_EQ(Leggi({"--help"}).Stato, 0);
  EXPECT_EQ(out.str().rfind("tavorno: simulatore didattico di un piccolo PLC.\n\nUso:\n", 0), 0U);
}

TEST_F(CommandLine, WrongUseSaysWhat) {
  EXPECT_EQ(Leggi({"--xml"}).Stato, 64);
  EXPECT_EQ(Leggi({"a.AWL", "b.AWL"}).Stato, 64);
  EXPECT_EQ(err.str(),
            "tavorno: opzione sconosciuta: --xml (tavorno --help per l'aiuto)\n"
            "tavorno: troppi file: \"b.AWL\" (tavorno --help per l'aiuto)\n");
  EXPECT_EQ(out.str(), "");
}

}  // namespace

}  // namespace tavorno
