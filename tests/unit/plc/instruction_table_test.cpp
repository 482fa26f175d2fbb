// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "plc/instructions.h"
#include "plc/memory.h"

namespace tavorno::prova {

namespace {

using Nomi = std::set<std::string>;

const Nomi accettate = {"NETW", "MEND", "RET",  "RETI", "SBR",  "INT", "JMP",
                        "LBL",  "CALL", "LSCR", "SCRE", "CRET", "XORD"};

const Nomi senza_operandi = {"NOT", "EU", "ED", "ALD", "OLD", "NOP", "LPP", "LPS", "LRD"};

const Nomi non_supportate = {
    "LDS",  "AENO",  "HDEF", "HSC",   "PLS",   "MOVR", "BMB",  "BMW",  "BMD",   "SWAP",  "ITB",
    "ITD",  "DTI",   "DTR",  "ROUND", "TRUNC", "BCDI", "IBCD", "ITA",  "DTA",   "RTA",   "DECO",
    "ENCO", "ATH",   "HTA",  "SEG",   "DIV",   "MUL",  "+R",   "-R",   "*R",    "/R",    "SQRT",
    "SIN",  "COS",   "TAN",  "LN",    "EXP",   "PID",  "INVB", "INVW", "INVD",  "ANDB",  "ANDW",
    "ANDD", "ORB",   "ORW",  "ORD",   "XORB",  "XORW", "FOR",  "NEXT", "SCRT",  "END",   "STOP",
    "WDR",  "CRETI", "ENI",  "DISI",  "ATCH",  "DTCH", "SLB",  "SLW",  "SLD",   "SRB",   "SRW",
    "SRD",  "RLB",   "RLW",  "RLD",   "RRB",   "RRW",  "RRD",  "LDR=", "LDR<>", "LDR>=", "LDR<=",
    "LDR>", "LDR<",  "AR=",  "AR<>",  "AR>=",  "AR<=", "AR>",  "AR<",  "OR=",   "OR<>",  "OR>=",
    "OR<=", "OR>",   "OR<",  "SHRB"};

const Nomi con_regola_senza_confronti = {
    "LD",  "LDN",  "A",    "AN",   "O",    "ON",   "LDI",  "LDNI", "AI",   "ANI",  "OI",
    "ONI", "=",    "=I",   "S",    "SI",   "RI",   "R",    "TON",  "TOF",  "TONR", "CTU",
    "CTD", "CTUD", "MOVB", "MOVW", "MOVD", "BIR",  "BIW",  "BTI",  "+I",   "-I",   "*I",
    "/I",  "+D",   "-D",   "*D",   "/D",   "INCB", "DECB", "INCW", "DECW", "INCD", "DECD"};

struct Confronto_Atteso {
  Connessione Unione;
  Relazione Confronto;
};

/// The 54 comparisons by their mnemonic.
std::vector<std::pair<std::string, Confronto_Atteso>> Confronti_Attesi() {
  const std::pair<const char*, Connessione> connessioni[] = {
      {"LD", Connessione::LD}, {"A", Connessione::A}, {"O", Connessione::O}};
  const std::pair<const char*, Relazione> relazioni[] = {
      {"=", Relazione::Uguale},   {"<>", Relazione::Diverso},
      {"<", Relazione::Minore},   {"<=", Relazione::Minore_Uguale},
      {">", Relazione::Maggiore}, {">=", Relazione::Maggiore_Uguale}};
  std::vector<std::pair<std::string, Confronto_Atteso>> attesi;
  for (const auto& [sigla, unione] : connessioni) {
    for (const char* larghezza : {"B", "W", "D"}) {
      for (const auto& [segno, relazione] : relazioni)
        attesi.push_back({std::string(sigla) + larghezza + segno, {unione, relazione}});
    }
  }
  return attesi;
}

Nomi Del_Gruppo(Gruppo gruppo) {
  Nomi nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    if (istruzione.Trattamento == gruppo) nomi.insert(istruzione.Nome);
  }
  return nomi;
}

}  // namespace

TEST(InstructionTable, HoldsNoMnemonicTwice) {
  Nomi nomi;
  for (const Istruzione& istruzione : Tabella_Istruzioni())
    EXPECT_TRUE(nomi.insert(istruzione.Nome).second) << istruzione.Nome;
}

TEST(InstructionTable, HoldsExactlyTheMnemonicsOfTheFourGroups) {
  Nomi con_regola = con_regola_senza_confronti;
  for (const auto& [nome, confronto] : Confronti_Attesi()) con_regola.insert(nome);
  EXPECT_EQ(Del_Gruppo(Gruppo::Accettata), accettate);
  EXPECT_EQ(Del_Gruppo(Gruppo::Senza_Operandi), senza_operandi);
  EXPECT_EQ(Del_Gruppo(Gruppo::Non_Supportata), non_supportate);
  EXPECT_EQ(Del_Gruppo(Gruppo::Con_Regola), con_regola);
}

TEST(InstructionTable, ExplainsEveryRow) {
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    EXPECT_FALSE(istruzione.Nome.empty());
    EXPECT_GT(istruzione.Aiuto.size(), 3U) << istruzione.Nome;
    EXPECT_EQ(istruzione.Aiuto.find('\n'), std::string::npos) << istruzione.Nome;
    EXPECT_FALSE(Nome_Famiglia(istruzione.Gruppo_Manuale).empty()) << istruzione.Nome;
  }
}

TEST(InstructionTable, HasARuleExactlyWhereOperandsAreChecked) {
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    EXPECT_EQ(istruzione.Operandi != nullptr, istruzione.Trattamento == Gruppo::Con_Regola)
        << istruzione.Nome;
    if (istruzione.Operandi != nullptr) {
      EXPECT_GE(istruzione.Operandi->Operandi, 1) << istruzione.Nome;
      EXPECT_LE(istruzione.Operandi->Operandi, 2) << istruzione.Nome;
      EXPECT_FALSE(istruzione.Operandi->Aiuto.empty()) << istruzione.Nome;
    }
  }
}

TEST(InstructionTable, HasABranchForEveryAcceptedRowButThree) {
  Nomi senza_ramo;
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    for (const Riga_Area& area : tabella_aree)
      EXPECT_TRUE(istruzione.Esegui[area.Codice] != nullptr) << istruzione.Nome << area.Nome;
    if (istruzione.Trattamento != Gruppo::Non_Supportata && istruzione.Esegui == Ramo_Assente())
      senza_ramo.insert(istruzione.Nome);
  }
  EXPECT_EQ(senza_ramo, (Nomi{"INT", "RETI", "XORD"}));
}

TEST(InstructionTable, HoldsTheFiftyFourComparisonsWithConnectionAndRelation) {
  const auto attesi = Confronti_Attesi();
  EXPECT_EQ(attesi.size(), 54U);
  for (const auto& [nome, atteso] : attesi) {
    const Istruzione* istruzione = Cerca_Istruzione(nome);
    ASSERT_NE(istruzione, nullptr) << nome;
    EXPECT_EQ(istruzione->Unione, atteso.Unione) << nome;
    EXPECT_EQ(istruzione->Confronto, atteso.Confronto) << nome;
    EXPECT_EQ(istruzione->Gruppo_Manuale, Famiglia::Confronti) << nome;
  }
}

TEST(InstructionTable, ComparisonsOfOneWidthShareRuleAndBranchAndThoseOfOthersDoNot) {
  const Istruzione* byte = Cerca_Istruzione("LDB=");
  const Istruzione* parola = Cerca_Istruzione("LDW=");
  const Istruzione* doppia = Cerca_Istruzione("LDD=");
  EXPECT_NE(byte->Esegui, parola->Esegui);
  EXPECT_NE(parola->Esegui, doppia->Esegui);
  EXPECT_NE(byte->Operandi, parola->Operandi);
  EXPECT_NE(parola->Operandi, doppia->Operandi);
  for (const auto& [nome, atteso] : Confronti_Attesi()) {
    const Istruzione* istruzione = Cerca_Istruzione(nome);
    const char larghezza = nome[nome.find_first_of("=<>") - 1];
    const Istruzione* modello = larghezza == 'B' ? byte : larghezza == 'W' ? parola : doppia;
    EXPECT_EQ(istruzione->Esegui, modello->Esegui) << nome;
    EXPECT_EQ(istruzione->Operandi, modello->Operandi) << nome;
  }
}

TEST(InstructionTable, OnlyComparisonsHaveARelation) {
  Nomi confronti;
  for (const auto& [nome, atteso] : Confronti_Attesi()) confronti.insert(nome);
  for (const Istruzione& istruzione : Tabella_Istruzioni()) {
    EXPECT_EQ(istruzione.Confronto != Relazione::Nessuna, confronti.contains(istruzione.Nome))
        << istruzione.Nome;
  }
}

TEST(InstructionTable, FindsEveryRowByItsMnemonic) {
  for (const Istruzione& istruzione : Tabella_Istruzioni())
    EXPECT_EQ(Cerca_Istruzione(istruzione.Nome), &istruzione) << istruzione.Nome;
}

// ---- search -------------------------------------------------------------------------------------

namespace {
struct Ricerca {
  const char* Testo;
  const char* Nome;  // nullptr: unknown
};
void PrintTo(const Ricerca& ricerca, std::ostream* os) {
  *os << '"' << ricerca.Testo << '"';
}
}  // namespace

class InstructionSearch : public ::testing::TestWithParam<Ricerca> {};

TEST_P(InstructionSearch, FindsTheRowOrNone) {
  const Istruzione* trovata = Cerca_Istruzione(GetParam().Testo);
  ASSERT_EQ(trovata != nullptr, GetParam().Nome != nullptr);
  if (trovata != nullptr) {
    EXPECT_EQ(trovata->Nome, GetParam().Nome);
  }
}

INSTANTIATE_TEST_SUITE_P(Numbered, InstructionSearch,
                         ::testing::Values(Ricerca{"NETWORK 1", "NETW"},
                                           Ricerca{"NETWORK12", "NETW"},
                                           Ricerca{"NETWORK ", "NETW"}, Ricerca{"NETWORK", nullptr},
                                           Ricerca{"NETW", "NETW"}, Ricerca{"NETWO", nullptr},
                                           Ricerca{"SBR", "SBR"}, Ricerca{"SBR0", "SBR"},
                                           Ricerca{"SBR63", "SBR"}, Ricerca{"SBRX", "SBR"},
                                           Ricerca{"SB", nullptr}, Ricerca{"INT", "INT"},
                                           Ricerca{"INT0", "INT"}, Ricerca{"IN", nullptr}));
INSTANTIATE_TEST_SUITE_P(Exact, InstructionSearch,
                         ::testing::Values(Ricerca{"", nullptr}, Ricerca{"ld", nullptr},
                                           Ricerca{"LD ", nullptr}, Ricerca{" LD", nullptr},
                                           Ricerca{"FOO", nullptr}, Ricerca{"LDB", nullptr},
                                           Ricerca{"LDB==", nullptr}, Ricerca{"LDB=>", nullptr},
                                           Ricerca{"OR", nullptr}, Ricerca{"O", "O"},
                                           Ricerca{"OR<>", "OR<>"}, Ricerca{"MEND", "MEND"}));

// ---- decoding of a line -------------------------------------------------------------------------

TEST(InstructionTable, LineIsDecodedFromItsTexts) {
  Riga_PLC riga;
  riga.Istr = "AW<=";
  riga.Area1 = "VW";
  riga.Area2 = "K";
  Decodifica(riga);
  EXPECT_EQ(riga.Esegui, Cerca_Istruzione("AW<=")->Esegui[Area::VW]);
  EXPECT_EQ(riga.Unione, Connessione::A);
  EXPECT_EQ(riga.Confronto, Relazione::Minore_Uguale);
  EXPECT_EQ(riga.Codice1, Area::VW);
  EXPECT_EQ(riga.Codice2, Area::K);
  riga.Istr = "FOO";
  riga.Area1 = "";
  riga.Area2 = "vw";
  Decodifica(riga);
  EXPECT_EQ(riga.Esegui, Ramo_Assente());
  EXPECT_EQ(riga.Confronto, Relazione::Nessuna);
  EXPECT_EQ(riga.Codice1, Area::Nessuna);
  EXPECT_EQ(riga.Codice2, Area::Ignota);
}

TEST(InstructionTable, AreaTextsComeBackFromTheirCodes) {
  for (const char* testo :
       {"I",  "Q",   "M",  "SM", "S",  "T",  "C",   "VB",  "VW", "VD", "IB", "QB",
        "MB", "SMB", "IW", "QW", "MW", "AC", "AIW", "AQW", "K",  "V",  "L"}) {
    EXPECT_NE(Cerca_Area(testo), Area::Ignota) << testo;
    EXPECT_EQ(Testo_Area(Cerca_Area(testo)), testo);
  }
  EXPECT_EQ(Testo_Area(Area::Nessuna), "");
  EXPECT_EQ(Testo_Area(Area::Ignota), "");
}

}  // namespace tavorno::prova
