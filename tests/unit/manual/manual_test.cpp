// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "manual/manuals.h"
#include "plants/exercises.h"

namespace tavorno {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr Opzione_Manuale opzioni[] = {
    {{"--ms T"}, {"quanto\ndura", "how long it takes"}},
    {{"--mani LISTA", "--mani LIST"}, {"la mano:\n\"1:clic:x\"  un clic", "the hand"}},
};
constexpr Comando_Manuale comandi[] = {
    {{"prova FILE [opzioni]", "prova FILE [options]"},
     {"Prova\nil file.", "Tries the file."},
     opzioni},
    {{"prova altro"}, {"Vedi altrove."}, {}, true},
};
constexpr Manuale prova = {
    "prova", {"prova una cosa", "tries a thing"},    {"Uno.\n\nDue.", "One."},
    comandi, {"0 bene,\n1 male.", "0 good, 1 bad."}, {}};

std::string Pagina(Lingua lingua, const Manuale& manuale = prova) {
  return Pagina_Man(manuale, {}, {}, "altro(1)", lingua, {"1.2.3", "2026-11-21"});
}

TEST(Help, IndentsTextsAndOptions) {
  EXPECT_EQ(Aiuto(prova),
            "prova: prova una cosa.\n\nUso:\n"
            "  prova FILE [opzioni]\n"
            "      Prova\n"
            "      il file.\n"
            "      --ms T             quanto\n"
            "                         dura\n"
            "      --mani LISTA       la mano:\n"
            "                         \"1:clic:x\"  un clic\n"
            "\n"
            "  prova altro\n"
            "      Vedi altrove.\n"
            "\nStato di uscita: 0 bene,\n1 male.\n");
}

TEST(Help, TellsTheNumbersOfTheExercises) {
  const std::string numeri = "(0.." + std::to_string(Tabella_Esercizi().size() - 1) + ")";
  for (const Manuale* manuale : {&Manuale_Banco(), &Manuale_Prova(), &Manuale_Classe()}) {
    EXPECT_THAT(Aiuto(*manuale), HasSubstr(numeri)) << manuale->Nome;
    EXPECT_THAT(Aiuto(*manuale), Not(HasSubstr("{"))) << manuale->Nome;
    for (const Lingua lingua : {Lingua::Italiano, Lingua::Inglese}) {
      EXPECT_THAT(Pagina(lingua, *manuale), HasSubstr(numeri)) << manuale->Nome;
      EXPECT_THAT(Pagina(lingua, *manuale), Not(HasSubstr("{"))) << manuale->Nome;
    }
  }
}

TEST(ManPage, HasHeadNameAndBothLanguages) {
  EXPECT_THAT(Pagina(Lingua::Inglese),
              HasSubstr(".TH PROVA 1 2026-11-21 \"Tavorno 1.2.3\" \"User Commands\"\n.SH NAME\n"
                        "prova \\- tries a thing\n"));
  EXPECT_THAT(Pagina(Lingua::Italiano), HasSubstr(".SH NOME\nprova \\- prova una cosa\n"));
  EXPECT_THAT(Pagina(Lingua::Inglese), EndsWith(".SH SEE ALSO\naltro(1)\n"));
}

TEST(ManPage, DividesParagraphsAndKeepsQuotedLinesApart) {
  EXPECT_THAT(Pagina(Lingua::Italiano), HasSubstr("Uno.\n.PP\nDue.\n"));
  EXPECT_THAT(Pagina(Lingua::Italiano),
              HasSubstr(".TP\n.B \\-\\-mani LISTA\nla mano:\n.br\n\"1:clic:x\"  un clic\n"));
  EXPECT_THAT(Pagina(Lingua::Inglese), HasSubstr(".TP\n.B \\-\\-mani LIST\nthe hand\n"));
}

TEST(ManPage, LeavesOutWhatOnlyPointsElsewhere) {
  EXPECT_THAT(Pagina(Lingua::Italiano), Not(HasSubstr("Vedi altrove")));
}

TEST(ManPage, NoTextIsTakenForACommand) {
  const Manuale punto = {"x", {"x"}, {".de x\n'in 3\nC:\\x"}, {}, {"0"}, {}};
  EXPECT_THAT(Pagina(Lingua::Italiano, punto), HasSubstr("\n\\&.de x\n\\&'in 3\nC:\\ex\n"));
}

/// What a translation would have to differ in.
bool Parole(const char* testo) {
  return std::string(testo).find_first_of("abcdefghijklmnopqrstuvwxyz") != std::string::npos;
}

class Programs : public ::testing::TestWithParam<const Manuale* (*)()> {};

TEST_P(Programs, EveryTextIsThereInBothLanguages) {
  const Manuale& manuale = *GetParam()();
  EXPECT_THAT(Aiuto(manuale), StartsWith(std::string(manuale.Nome) + ": "));
  EXPECT_NE(manuale.Stati.Inglese, nullptr);
  for (const Comando_Manuale& comando : manuale.Comandi) {
    if (comando.Rimando) continue;
    EXPECT_NE(comando.Testo.Inglese, nullptr) << comando.Uso.Italiano;
    EXPECT_EQ(std::string(comando.Uso.In(Lingua::Inglese)).find("opzioni"), std::string::npos);
    for (const Opzione_Manuale& opzione : comando.Opzioni) {
      EXPECT_NE(opzione.Testo.Inglese, nullptr) << opzione.Nome.Italiano;
      EXPECT_TRUE(Parole(opzione.Testo.Italiano)) << opzione.Nome.Italiano;
    }
  }
  for (const Opzione_Manuale& file : manuale.File)
    EXPECT_NE(file.Testo.Inglese, nullptr) << file.Nome.Italiano;
}

INSTANTIATE_TEST_SUITE_P(All, Programs,
                         ::testing::Values([] { return &Manuale_Tavorno(); },
                                           [] { return &Manuale_Banco(); },
                                           [] { return &Manuale_Prova(); },
                                           [] { return &Manuale_Classe(); }));

}  // namespace

}  // namespace tavorno
