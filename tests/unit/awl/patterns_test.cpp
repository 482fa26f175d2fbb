// SPDX-License-Identifier: GPL-3.0-or-later
// Skeletons of networks: each is a good program as it is put in.
#include "awl/patterns.h"

#include <gtest/gtest.h>

#include <set>

#include "awl/hints.h"
#include "awl/line_words.h"
#include "awl/program.h"
#include "awl/reader.h"
#include "awl/templates.h"
#include "awl/writer.h"
#include "plc/codepage.h"

namespace tavorno::prova {

namespace {

Sorgente Con_Main(const std::string& testo) {
  Sorgente testi;
  testi.Main = testo;
  return testi;
}

/// Without the blanks at the ends of lines.
std::vector<std::string> Senza_Fondo(const std::string& testo) {
  std::vector<std::string> linee;
  for (const std::string_view linea : Linee(testo))
    linee.emplace_back(linea.substr(0, linea.find_last_not_of(' ') + 1));
  while (!linee.empty() && linee.back().empty()) linee.pop_back();
  return linee;
}

std::string Messo(const Schema& schema, const std::string& testo, int linea) {
  return Con_Cambio(testo, Metti_Schema(schema, testo, linea, Riferimenti(Con_Main(testo))));
}

}  // namespace

class Pattern : public testing::TestWithParam<Schema> {};

TEST_P(Pattern, CompilesAsItIs) {
  const std::string nuovo = Testo_Nuovo_Main();
  const std::string testo = Messo(GetParam(), nuovo, static_cast<int>(Linee(nuovo).size()) - 1);
  const Sorgente testi = Con_Main(testo);
  EXPECT_TRUE(Suggerimenti(testi).empty()) << Suggerimenti(testi).front().Messaggio;
  const Lettura letta = Leggi_Sorgente(Byte_Di(testi));
  ASSERT_TRUE(letta.Riuscita()) << testo;
  const Compilazione compilata = Compila_Sorgente(letta.Letta);
  EXPECT_EQ(compilata.Errori, 0) << testo;
  EXPECT_TRUE(compilata.Rilievi.empty());
  // A save and a read leave its lines as they were put in, but for blanks at their ends.
  EXPECT_EQ(Senza_Fondo(letta.Letta.Main), Senza_Fondo(testo));
}

TEST_P(Pattern, LeavesTheOperandsOfTheProjectAlone) {
  const std::string prima =
      "NETWORK 1\r\nS Q0.0, 4\r\nLD I0.0\r\nTON T37, +5\r\nLD C0\r\nS M0.0, 1\r\n"
      "MOVW VW0, VW2\r\nS S0.0, 2\r\n";
  const auto usati = Riferimenti(Con_Main(prima));
  const Cambio_Linee cambio = Metti_Schema(GetParam(), prima, 7, usati);
  std::string nuovo;
  for (const std::string& linea : cambio.Nuove) nuovo += linea + "\r\n";
  for (const Riferimento& suo : Riferimenti(Con_Main(nuovo))) {
    if (suo.Di.Nome.starts_with("SM") || suo.Di.Nome.starts_with("AIW")) continue;
    for (const Riferimento& usato : usati) EXPECT_FALSE(Tocca(usato, suo.Di)) << suo.Di.Nome;
  }
}

INSTANTIATE_TEST_SUITE_P(Table, Pattern,
                         testing::ValuesIn(Tabella_Schemi().begin(), Tabella_Schemi().end()),
                         [](const auto& caso) { return "Row" + std::to_string(caso.index); });

TEST(Patterns, HaveDifferentNamesAndAccessKeys) {
  std::set<std::string> voci, tasti;
  for (const Schema& schema : Tabella_Schemi()) {
    const std::string voce = schema.Voce;
    EXPECT_TRUE(voci.insert(voce).second) << voce;
    const std::size_t e = voce.find('&');
    ASSERT_NE(e, std::string::npos) << voce;
    EXPECT_TRUE(tasti.insert(Maiuscole(voce.substr(e + 1, 1))).second) << voce;
  }
}

TEST(Patterns, GoIntoAnEmptyNetworkOrBeginTheirOwn) {
  const Schema& schema = Tabella_Schemi()[0];
  const std::string vuoto = "NETWORK 1\r\n//x\r\n\r\nNETWORK 2\r\nNOT\r\n";
  EXPECT_TRUE(Messo(schema, vuoto, 2).starts_with("NETWORK 1\r\n//x\r\nLD     I0.0"));
  EXPECT_TRUE(Messo(schema, vuoto, 1).starts_with("NETWORK 1\r\n//x\r\nLD     I0.0"));
  const std::string dopo = Messo(schema, vuoto, 4);
  EXPECT_NE(dopo.find("NOT\r\nNETWORK 3       //Marcia e arresto\r\nLD     I0.0"),
            std::string::npos)
      << dopo;
}

TEST(Patterns, GiveOutTheFirstOperandsWhereAllAreTaken) {
  const std::string pieno = "NETWORK 1\r\nS Q0.0, 16\r\n";
  EXPECT_NE(Messo(Tabella_Schemi()[3], pieno, 2).find("Q0.1"), std::string::npos);
}

}  // namespace tavorno::prova
