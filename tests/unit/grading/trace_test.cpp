// SPDX-License-Identifier: GPL-3.0-or-later
// Value change dumps and timing diagrams, read back.
#include "trace/trace.h"

#include <gmock/gmock.h>

#include <map>

#include "grading_bed.h"
#include "plants/exercises.h"
#include "xml_reader.h"

namespace tavorno::prova {

using ::testing::HasSubstr;

/// A value change dump as a reader understands it.
struct Vcd {
  std::map<std::string, std::string> Tipi;                             // name: type
  std::map<std::string, std::vector<std::pair<long, double>>> Valori;  // name: time and value
  long Ultimo = -1;
  std::string Unita;

  explicit Vcd(const std::string& testo) {
    std::istringstream parole(testo);
    std::map<std::string, std::string> nomi;  // by short name
    std::string parola;
    long adesso = -1;
    while (parole >> parola) {
      if (parola == "$timescale") {
        Unita = Fino_A_Fine(parole);
      } else if (parola == "$var") {
        std::string tipo, lungo, sigla, nome, fine;
        parole >> tipo >> lungo >> sigla >> nome >> fine;
        EXPECT_EQ(fine, "$end");
        EXPECT_TRUE(Tipi.emplace(nome, tipo).second) << nome;
        EXPECT_TRUE(nomi.emplace(sigla, nome).second) << sigla;
      } else if (parola[0] == '$') {
        Fino_A_Fine(parole);
      } else if (parola[0] == '#') {
        const long istante = std::stol(parola.substr(1));
        EXPECT_GT(istante, adesso);
        adesso = Ultimo = istante;
      } else if (parola[0] == 'r' || parola[0] == 'b') {
        std::string sigla;
        parole >> sigla;
        const std::string cifre = parola.substr(1);
        Valori[nomi.at(sigla)].emplace_back(
            adesso, parola[0] == 'r' ? std::stod(cifre)
                                     : static_cast<double>(std::stol(cifre, nullptr, 2)));
      } else {
        EXPECT_TRUE(parola[0] == '0' || parola[0] == '1') << parola;
        Valori[nomi.at(parola.substr(1))].emplace_back(adesso, parola[0] - '0');
      }
    }
  }

  static std::string Fino_A_Fine(std::istream& parole) {
    std::string testo, parola;
    while (parole >> parola && parola != "$end") testo += (testo.empty() ? "" : " ") + parola;
    return testo;
  }
};

using Coppie = std::vector<std::pair<long, double>>;

class Trace : public Banco_Esami {
 public:
  Vcd Registra(const std::vector<std::string>& righe, const std::string& script,
               const std::string& impianto) {
    std::vector<std::string> parole = {Progetto_Con(righe),
                                       File("s.lua", script),
                                       "--vcd",
                                       (cartella / "x.vcd").string(),
                                       "--svg",
                                       (cartella / "x.svg").string()};
    if (!impianto.empty()) {
      parole.emplace_back("--impianto");
      parole.push_back(impianto);
    }
    EXPECT_EQ(Prova(parole), 0) << out << err;
    svg = Leggi_Byte(cartella / "x.svg");
    return Vcd(Leggi_Byte(cartella / "x.vcd"));
  }
  std::string svg;
};

TEST_F(Trace, HasTheSymbolsOfThePlantAndEveryEdge) {
  const Vcd vcd = Registra({"LD I0.1", "= Q0.0"}, R"(
    prova("uno", function() run() attendi(50) premi("imgStart") attendi(100) end)
    prova("due", function() run() attendi(9) end))",
                           "0");
  EXPECT_EQ(vcd.Unita, "1 ms");
  EXPECT_EQ(vcd.Tipi.size(), 1 + Tabella_Esercizi()[0].Righe_IO.size());
  EXPECT_EQ(vcd.Tipi.at("SB2_I0_1"), "wire");
  EXPECT_EQ(vcd.Tipi.at("caso"), "integer");
  EXPECT_EQ(vcd.Valori.at("SB2_I0_1"), (Coppie{{0, 0}, {50, 1}, {151, 0}}));
  EXPECT_EQ(vcd.Valori.at("KM_Q0_0"), (Coppie{{0, 0}, {51, 1}, {151, 0}}));
  EXPECT_EQ(vcd.Valori.at("SB1_I0_0"), (Coppie{{0, 1}, {151, 1}}));
  EXPECT_EQ(vcd.Valori.at("caso"), (Coppie{{0, 1}, {151, 2}}));
  EXPECT_EQ(vcd.Ultimo, 160);
}

TEST_F(Trace, WithoutAPlantHasAllPointsAndAnalogValuesAsReals) {
  const Vcd vcd = Registra({"NOP"}, R"(
    prova("x", function() run() attendi(10) analogico(0, 2.5) ingresso("I1.7", 1) attendi(5) end))",
                           "");
  EXPECT_EQ(vcd.Tipi.size(), 1 + 32 + 5);
  EXPECT_EQ(vcd.Tipi.at("AIW0"), "real");
  EXPECT_EQ(vcd.Valori.at("AIW0"), (Coppie{{0, 0}, {10, 2.5}}));
  EXPECT_EQ(vcd.Valori.at("I1_7"), (Coppie{{0, 0}, {10, 1}}));
}

TEST_F(Trace, EveryExerciseHasNamesThatDiffer) {
  for (const Esercizio& esercizio : Tabella_Esercizi()) {
    const Vcd vcd(Testo_Vcd(Traccia(esercizio.Righe_IO)));
    EXPECT_EQ(vcd.Tipi.size(), 1 + esercizio.Righe_IO.size()) << esercizio.Indice;
  }
}

TEST_F(Trace, TheDiagramNamesSignalsCasesAndTimes) {
  Registra({"LD I0.1", "= Q0.0"}, R"(
    prova("parte & gira", function() run() attendi(2000) premi("imgStart") attendi(3000) end))",
           "0");
  for (const char* parte : {">SB2</text>", ">I0.1</text>", ">KM</text>", ">consegna.AWL</text>",
                            ">parte &amp; gira</text>", ">0 s</text>", ">5 s</text>"})
    EXPECT_THAT(svg, HasSubstr(parte));
  EXPECT_THAT(svg, ::testing::Not(HasSubstr("AIW")));
}

TEST_F(Trace, TheDiagramOfBareInputsShowsOnlyWhatHappens) {
  Registra({"LD I0.1", "= Q0.0"}, R"(
    prova("x", function() run() ingresso("I0.1", 1) analogico(2, 4) attendi(1000) end))",
           "");
  for (const char* parte : {">I0.1</text>", ">Q0.0</text>", ">AIW4</text>"})
    EXPECT_THAT(svg, HasSubstr(parte));
  for (const char* parte : {">I0.2</text>", ">Q0.1</text>", ">AIW0</text>"})
    EXPECT_THAT(svg, ::testing::Not(HasSubstr(parte)));
}

TEST_F(Trace, LongTimesAreMinutesAndShortOnesFractions) {
  Registra({"NOP"}, "prova('x', function() attendi(4 * 3600000) end)", "");
  for (const char* parte : {">0 min</text>", ">240 min</text>"}) EXPECT_THAT(svg, HasSubstr(parte));
  Registra({"NOP"}, "prova('x', function() attendi(3) end)", "");
  EXPECT_THAT(svg, HasSubstr(">0,003 s</text>"));
}

TEST_F(Trace, TheLastTimeStandsInsideTheDiagram) {
  Registra({"NOP"}, "prova('x', function() attendi(3000000) end)", "");
  const Elemento_Xml disegno = Lettore_Xml(svg).Leggi();
  for (const Elemento_Xml& figlio : disegno.Figli) {
    if (figlio.Nome != "text" || figlio.Attributi.at("text-anchor") != "middle") continue;
    const double mezza = static_cast<double>(figlio.Testo.size()) * 3.6;
    EXPECT_LT(std::stod(figlio.Attributi.at("x")) + mezza, std::stod(disegno.Attributi.at("width")))
        << figlio.Testo;
  }
}

TEST_F(Trace, ACurveThatGoesBelowZeroHasItsZeroLine) {
  Registra({"NOP"}, "prova('x', function() run() analogico(0, -5) attendi(500) end)", "");
  EXPECT_THAT(svg, HasSubstr(">-5</text>"));
  EXPECT_THAT(svg, HasSubstr(">0</text>"));
  Registra({"NOP"}, "prova('x', function() run() analogico(0, 5) attendi(500) end)", "");
  EXPECT_THAT(svg, ::testing::Not(HasSubstr(">-5</text>")));
}

TEST_F(Trace, AnEmptyOneIsStillAFile) {
  const Traccia traccia(Righe_Di(nullptr));
  EXPECT_THAT(Diagramma_Svg(traccia, "x"), HasSubstr("</svg>"));
  EXPECT_EQ(Vcd(Testo_Vcd(traccia)).Ultimo, 0);
}

}  // namespace tavorno::prova
