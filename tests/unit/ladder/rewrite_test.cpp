// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/rewrite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <set>

#include "awl/line_words.h"
#include "awl/screen_rows.h"
#include "ladder/edit.h"
#include "ladder/edit_walk.h"
#include "ladder/to_list.h"
#include "ladder/typed.h"
#include "list_bed.h"
#include "recorder/session.h"

namespace tavorno::prova {

namespace {

/// Lines joined as on the screen.
std::string A_Capo(std::string testo) {
  for (std::size_t n = 0; (n = testo.find('\n', n)) != std::string::npos; n += 2)
    testo.insert(n, "\r");
  return testo;
}

/// A Main text on screen, and one of its networks changed by `cambia`.
template <class Cambia>
std::string Riscritto(const std::string& testo, std::size_t rete, Cambia cambia) {
  Seduta seduta;
  seduta.progetto.Scrivi_Main(A_Capo(testo));
  const auto righe = Righe_A_Schermo(seduta.progetto);
  const auto blocchi = Scala_Di(righe);
  const Rete_Scala& vecchia = blocchi[0].Reti[rete];
  const Modifica modifica = cambia(std::get<Diagramma>(vecchia.Forma));
  EXPECT_TRUE(modifica.Fatta()) << modifica.Motivo;
  std::string nuovo =
      Riscrivi_Rete(seduta.progetto.txtList, vecchia, righe, *Elenca(modifica.Nuovo));
  std::erase(nuovo, '\r');
  return nuovo;
}

Modifica Metti(const Diagramma& diagramma, int quale, Verso verso, const char* testo) {
  return Inserisci(diagramma, quale, quale, verso, *Leggi_Battuta(testo).Passo);
}

constexpr const char* testo =
    "//Prova\n"
    "\n"
    "NETWORK 1       //Marcia\n"
    "//due righe\n"
    "ld   i0.0          //start\n"
    "A\tI0.1\n"
    "\n"
    "//qui si comanda\n"
    "=      Q0.0                         //motore\n"
    "NETWORK 2       //Vuoto\n"
    "//niente\n"
    "\n"
    "NETWORK 3\n"
    "LDN    I0.7\n"
    "=      Q0.7";

}  // namespace

TEST(Riscrivi_Rete, ANewInstructionIsANewLineAndNothingElse) {
  const std::string nuovo =
      Riscritto(testo, 0, [](const Diagramma& d) { return Metti(d, 0, Verso::Sotto, "o q0.0"); });
  std::string atteso = testo;
  atteso.insert(atteso.find("A\tI0.1"), "O      Q0.0\n");
  EXPECT_EQ(nuovo, atteso);
}

TEST(Riscrivi_Rete, AnotherOperandKeepsTheComment) {
  const std::string nuovo = Riscritto(
      testo, 0, [](const Diagramma& d) { return Cambia(d, 2, *Leggi_Battuta("s q0.1 1").Passo); });
  std::string atteso = testo;
  const std::string vecchia = "=      Q0.0                         //motore";
  atteso.replace(atteso.find(vecchia), vecchia.size(),
                 "S      Q0.1, 1                      //motore");
  EXPECT_EQ(nuovo, atteso);
}

TEST(Riscrivi_Rete, AContactInFrontChangesOneLineAndAddsOne) {
  const std::string nuovo =
      Riscritto(testo, 0, [](const Diagramma& d) { return Metti(d, 0, Verso::Prima, "/i1.0"); });
  std::string atteso = testo;
  const std::string vecchia = "ld   i0.0          //start";
  atteso.replace(atteso.find(vecchia), vecchia.size(), "LDN    I1.0\nA      I0.0        //start");
  EXPECT_EQ(nuovo, atteso);
}

TEST(Riscrivi_Rete, WhatIsDeletedTakesItsLineAlong) {
  const std::string nuovo = Riscritto(testo, 0, [](const Diagramma& d) { return Cancella(d, 1); });
  std::string atteso = testo;
  atteso.erase(atteso.find("A\tI0.1\n"), 7);
  EXPECT_EQ(nuovo, atteso);
}

TEST(Riscrivi_Rete, AnEmptyNetworkBeginsBelowItsComments) {
  const std::string nuovo =
      Riscritto(testo, 1, [](const Diagramma& d) { return Metti(d, -1, Verso::Dopo, "ld i0.0"); });
  std::string atteso = testo;
  atteso.insert(atteso.find("//niente\n") + 9, "LD     I0.0\n=      ?\n");
  EXPECT_EQ(nuovo, atteso);
}

TEST(Riscrivi_Rete, BehindTheLastLineComesALineEnd) {
  const std::string nuovo =
      Riscritto(testo, 2, [](const Diagramma& d) { return Metti(d, 1, Verso::Dopo, "= q1.0"); });
  EXPECT_EQ(nuovo, std::string(testo) + "\n=      Q1.0\n");
}

TEST(Riscrivi_Rete, BranchesKeepTheLinesOfTheStackThatStay) {
  const std::string rami =
      "NETWORK 1\nLD I0.0\nLPS //tiene\nA I0.1\n= Q0.0\nLPP //rende\nA I0.2\n= Q0.1\n";
  const std::string nuovo =
      Riscritto(rami, 0, [](const Diagramma& d) { return Metti(d, 4, Verso::Dopo, "= q0.2"); });
  EXPECT_EQ(nuovo, rami + "=      Q0.2\n");
}

TEST(Riscrivi_Rete, WhatIsReadAgainIsWhatWasDrawn) {
  const std::string nuovo =
      Riscritto(testo, 0, [](const Diagramma& d) { return Metti(d, 0, Verso::Dopo, "= q1.1"); });
  Seduta seduta;
  seduta.progetto.Scrivi_Main(A_Capo(nuovo));
  const auto blocchi = Scala_Di(Righe_A_Schermo(seduta.progetto));
  EXPECT_EQ(Testo(blocchi[0].Reti[0].Passi), "LD I0.0\nLPS\nA I0.1\n= Q0.0\nLPP\n= Q1.1\n");
}

// ---- any change of any example ------------------------------------------------------------------

namespace {

std::vector<std::string> Esempi() {
  std::vector<std::string> file;
  for (const auto& voce : std::filesystem::directory_iterator(TAVORNO_EXAMPLES))
    if (voce.path().extension() == ".AWL") file.push_back(voce.path().string());
  std::ranges::sort(file);
  return file;
}

/// The lines of a block but for those of one network's instructions.
std::vector<std::string> Altre_Linee(const std::string& intero, const Rete_Scala& rete,
                                     const std::vector<Riga_Src>& righe) {
  std::set<int> sue;
  for (const Passo_Scala& passo : rete.Passi)
    sue.insert(righe[static_cast<std::size_t>(passo.Riga)].Posto.Linea);
  std::vector<std::string> altre;
  int n = 0;
  for (const std::string_view linea : Linee(intero))
    if (!sue.contains(n++)) altre.emplace_back(linea);
  return altre;
}

class Esempi_Cambiati : public testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(Esempi_Cambiati, ReadAsTheyWereDrawnAndKeepEveryOtherLine) {
  static const std::vector<std::string> battute = {"a i0.0", "on m0.7",   "= m1.7", "ton t40 +5",
                                                   "eu",     "ctu c9 +3", "lbl 9",  "/q0.0"};
  std::mt19937 generatore(7);
  const auto caso = [&](std::size_t quanti) { return static_cast<int>(generatore() % quanti); };
  Seduta seduta;
  ASSERT_TRUE(seduta.Apri(GetParam()));
  Progetto& progetto = seduta.progetto;
  int fatte = 0;
  for (int n = 0; n < 60; ++n) {
    const auto righe = Righe_A_Schermo(progetto);
    const auto blocchi = Scala_Di(righe);
    const auto blocco = static_cast<std::size_t>(caso(blocchi.size()));
    if (blocchi[blocco].Reti.empty()) continue;
    const auto quale = static_cast<std::size_t>(caso(blocchi[blocco].Reti.size()));
    const Rete_Scala& rete = blocchi[blocco].Reti[quale];
    const auto* diagramma = std::get_if<Diagramma>(&rete.Forma);
    if (!diagramma) continue;
    const int simboli = Quanti_Simboli(*diagramma);
    const int simbolo = simboli == 0 ? -1 : caso(static_cast<std::size_t>(simboli));
    const bool taglia = simbolo >= 0 && caso(3) == 0;
    const Modifica modifica =
        taglia ? Cancella(*diagramma, simbolo)
               : Inserisci(
                     *diagramma, simbolo, simbolo, static_cast<Verso>(caso(3)),
                     *Leggi_Battuta(battute[static_cast<std::size_t>(caso(battute.size()))]).Passo);
    if (!modifica.Fatta()) continue;
    ++fatte;
    const int blocco_testo = righe[static_cast<std::size_t>(rete.Riga)].Posto.Testo;
    const std::string prima = Testo_A_Schermo(progetto, blocco_testo);
    const std::string dopo = Riscrivi_Rete(prima, rete, righe, *Elenca(modifica.Nuovo));
    if (blocco_testo == 0) {
      progetto.Scrivi_Main(dopo);
    } else {
      progetto.Scheda = blocco_testo;
      progetto.Scrivi_Procedura(dopo);
    }
    const auto nuove_righe = Righe_A_Schermo(progetto);
    const auto nuovi = Scala_Di(nuove_righe);
    ASSERT_EQ(nuovi.size(), blocchi.size());
    for (std::size_t b = 0; b < blocchi.size(); ++b) {
      ASSERT_EQ(nuovi[b].Reti.size(), blocchi[b].Reti.size()) << dopo;
      for (std::size_t r = 0; r < blocchi[b].Reti.size(); ++r) {
        const auto atteso =
            b == blocco && r == quale ? *Elenca(modifica.Nuovo) : blocchi[b].Reti[r].Passi;
        ASSERT_EQ(nuovi[b].Reti[r].Passi, atteso) << dopo;
      }
    }
    std::vector<std::string> rimaste = Altre_Linee(dopo, nuovi[blocco].Reti[quale], nuove_righe);
    const std::vector<std::string> di_prima = Altre_Linee(prima, rete, righe);
    // Behind a last line that had no end there is a new, empty one.
    if (rimaste.size() == di_prima.size() + 1 && rimaste.back().empty()) rimaste.pop_back();
    ASSERT_EQ(rimaste, di_prima);
  }
  EXPECT_GT(fatte, 10);
}

INSTANTIATE_TEST_SUITE_P(Tutti, Esempi_Cambiati, testing::ValuesIn(Esempi()), [](const auto& caso) {
  return std::filesystem::path(caso.param).stem().string();
});

// ---- rows on the screen -------------------------------------------------------------------------

TEST(Righe_A_Schermo, AreTheRowsThatAReadGives) {
  Seduta seduta;
  ASSERT_TRUE(
      seduta.Leggi("ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=Prova\r\nBEGIN\r\n"
                   "NETWORK 1 //uno\r\nLD I0.0 //x\r\nTON T37 +5\r\nCALL Altra\r\n"
                   "END_ORGANIZATION_BLOCK\r\nSUBROUTINE_BLOCK Altra:SBR0\r\nTITLE=\r\n"
                   "BEGIN\r\nNETWORK 1\r\nLD SM0.0\r\n=I Q0.0\r\n"
                   "END_SUBROUTINE_BLOCK\r\n"));
  Progetto& progetto = seduta.progetto;
  const auto righe = Righe_A_Schermo(progetto);
  ASSERT_EQ(std::ssize(righe), seduta.plc.NRighe + 1);
  for (int n = 0; n <= seduta.plc.NRighe; ++n) {
    const Riga_Src& letta = progetto.Righe_Src[n];
    const Riga_Src& vista = righe[static_cast<std::size_t>(n)];
    EXPECT_EQ(vista.Istr, letta.Istr) << n;
    EXPECT_EQ(vista.Op1, letta.Op1) << n;
    EXPECT_EQ(vista.Op2, letta.Op2) << n;
    EXPECT_EQ(vista.Posto, letta.Posto) << n;
  }
}

TEST(Righe_A_Schermo, WhatTheReaderWouldRefuseIsARowAllTheSame) {
  Seduta seduta;
  seduta.progetto.Scrivi_Main("NETWORK 1\r\nLD I0.0 I0.1 I0.2 I0.3 I0.4 I0.5 I0.6\r\n= Q0.0");
  const auto righe = Righe_A_Schermo(seduta.progetto);
  ASSERT_EQ(righe.size(), 4U);
  EXPECT_EQ(righe[1].Istr, "LD");
  EXPECT_EQ(righe[2].Op1, "Q0.0");
}

// ---- what is typed ------------------------------------------------------------------------------

struct Caso_Battuta {
  const char* Testo;
  const char* Istr;
  const char* Passo;      ///< "" while there is none
  const char* Messaggio;  ///< part of it; "" for none
};

void PrintTo(const Caso_Battuta& caso, std::ostream* out) {
  *out << caso.Testo;
}

class Battute : public testing::TestWithParam<Caso_Battuta> {};

TEST_P(Battute, AreReadAsALineWouldBe) {
  const Battuta battuta = Leggi_Battuta(GetParam().Testo, GetParam().Istr);
  EXPECT_EQ(battuta.Passo ? Come_Testo(*battuta.Passo) : "", GetParam().Passo);
  if (*GetParam().Messaggio == '\0')
    EXPECT_EQ(battuta.Messaggio, "");
  else
    EXPECT_NE(battuta.Messaggio.find(GetParam().Messaggio), std::string::npos) << battuta.Messaggio;
}

INSTANTIATE_TEST_SUITE_P(
    Tutte, Battute,
    testing::Values(
        Caso_Battuta{"an i0.1", "", "AN I0.1", ""},
        Caso_Battuta{"  ton  t37 ,+50 ", "", "TON T37 +50", ""},
        Caso_Battuta{"ton t37 +50", "", "TON T37 +50", ""}, Caso_Battuta{"i0.1", "", "A I0.1", ""},
        Caso_Battuta{"/i0.1", "", "AN I0.1", ""}, Caso_Battuta{"q0.3", "=", "= Q0.3", ""},
        Caso_Battuta{"t38 +7", "TON", "TON T38 +7", ""},
        Caso_Battuta{"aw>= vw0 +3", "", "AW>= VW0 +3", ""},
        Caso_Battuta{"/i +2 vw0", "", "/I +2 VW0", ""}, Caso_Battuta{"not", "", "NOT", ""},
        Caso_Battuta{"call lavoro", "", "CALL LAVORO", ""},
        Caso_Battuta{"a i0.9", "", "A I0.9", "Bit"},
        Caso_Battuta{"a ?", "", "A ?", "operando non riconosciuto"},
        Caso_Battuta{"a i9.0", "", "A I9.0", "Indirizzo non supportato"},
        Caso_Battuta{"ton t37", "", "TON T37", "Operandi"},
        Caso_Battuta{"xyz", "", "", "non riconosciuta"}, Caso_Battuta{"", "", "", ""},
        Caso_Battuta{" , ", "", "", ""}));

}  // namespace tavorno::prova
