// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "command_bed.h"
#include "ladder/project_ladder.h"
#include "ladder/to_list.h"
#include "recorder/session.h"

namespace tavorno::prova {

namespace {

namespace fs = std::filesystem;

std::string Esempio(const std::string& nome) {
  return std::string(TAVORNO_EXAMPLES) + "/" + nome;
}

std::string Contenuto(const std::string& file) {
  std::ifstream flusso(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(flusso), {}};
}

}  // namespace

using Scala_Dal_Banco = Banco_Comandi;

TEST_F(Scala_Dal_Banco, PrintsTheDrawingWithThePlantsSymbols) {
  ASSERT_EQ(Comando({"scala", Esempio("us00.AWL"), "--impianto", "0"}), 0) << err;
  EXPECT_TRUE(out.starts_with("<svg ")) << out.substr(0, 80);
  EXPECT_NE(out.find("class=\"foglio\""), std::string::npos) << "a sheet, also where none is shown";
  EXPECT_NE(out.find(">Q0.0<"), std::string::npos);
  EXPECT_NE(out.find(">KM<"), std::string::npos);
  EXPECT_NE(out.find("Programma principale"), std::string::npos);
}

TEST_F(Scala_Dal_Banco, WritesAFileAndTellsWhatStaysAList) {
  const std::string svg = (cartella / "scala.svg").string();
  const std::string progetto = (cartella / "prova.AWL").string();
  Scrivi_Byte(progetto, Byte_Di_Progetto({"NETWORK 1 //Marcia", "LD I0.0", "= Q0.0",
                                          "NETWORK 2 //In parallelo a una bobina", "LD I0.0",
                                          "= Q0.1", "O I0.1", "= Q0.2"}));
  ASSERT_EQ(Comando({"scala", progetto, "--svg", svg}), 0) << err;
  EXPECT_NE(out.find("MAIN, NETWORK 2, riga 6: "), std::string::npos) << out;
  EXPECT_NE(out.find("resta in lista, perché mette in parallelo a un punto"), std::string::npos)
      << out;
  EXPECT_NE(out.find("Segmenti disegnati: 1 su 2."), std::string::npos) << out;
  EXPECT_NE(Contenuto(svg).find("Resta in lista: "), std::string::npos);
}

TEST_F(Scala_Dal_Banco, WrongUseAndUnreadableFilesAreToldApart) {
  EXPECT_EQ(Comando({"scala"}), 64);
  EXPECT_EQ(Comando({"scala", "non_esiste.AWL"}), 2);
  EXPECT_EQ(Comando({"scala", Esempio("us00.AWL"), "--ms", "3"}), 64);
}

/// Every network of the examples is drawn, and written back line for line.
TEST(Scala_Degli_Esempi, ComeBackLineForLine) {
  int disegnati = 0;
  std::string in_lista;
  for (const fs::directory_entry& voce : fs::directory_iterator(TAVORNO_EXAMPLES)) {
    if (voce.path().extension() != ".AWL") continue;
    Seduta seduta;
    ASSERT_TRUE(seduta.Apri(voce.path().string())) << voce.path();
    const auto righe = static_cast<std::size_t>(seduta.plc.NRighe) + 1;
    for (const Blocco_Scala& blocco : Scala_Di({seduta.progetto.Righe_Src.begin(), righe})) {
      for (const Rete_Scala& rete : blocco.Reti) {
        const auto* diagramma = std::get_if<Diagramma>(&rete.Forma);
        if (!diagramma) {
          in_lista += voce.path().filename().string() + ", " + rete.Titolo + "\n";
          continue;
        }
        ++disegnati;
        EXPECT_EQ(Elenca(*diagramma), rete.Passi) << voce.path() << " " << rete.Titolo;
      }
    }
  }
  EXPECT_GT(disegnati, 200);
  EXPECT_EQ(in_lista, "");
}

}  // namespace tavorno::prova
