// SPDX-License-Identifier: GPL-3.0-or-later
// A program and the same program drawn and written again compute the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>
#include <set>

#include "awl/checker.h"
#include "ladder/project_ladder.h"
#include "ladder/to_list.h"
#include "random_program.h"
#include "recorder/session.h"

namespace tavorno::prova {

namespace {

/// Instructions that may stand in a network, and how often each kind is drawn: what joins contacts
/// more often than the many boxes.
class Autore {
 public:
  explicit Autore(Caso caso) : caso_(std::move(caso)) {
    for (const Istruzione& istruzione : Tabella_Istruzioni()) {
      const bool chiude = istruzione.Nome == "SBR" || istruzione.Nome == "INT" ||
                          istruzione.Nome == "MEND" || istruzione.Nome == "RET" ||
                          istruzione.Nome == "NETW" || istruzione.Nome == "RETI" ||
                          istruzione.Nome == "XORD";
      if (istruzione.Trattamento == Gruppo::Non_Supportata || chiude) continue;
      per_famiglia_[istruzione.Gruppo_Manuale].push_back(&istruzione);
    }
  }

  std::string Programma() {
    std::string testo = "ORGANIZATION_BLOCK MAIN:OB1\nTITLE=\nBEGIN\n";
    const unsigned reti = 1 + caso_(5);
    for (unsigned n = 1; n <= reti; ++n) testo += Rete(n);
    testo += "END_ORGANIZATION_BLOCK\n";
    for (const char* procedura : {"P0:SBR0", "P1:SBR1"})
      testo += std::string("SUBROUTINE_BLOCK ") + procedura + "\nTITLE=\nBEGIN\n" + Rete(1) +
               "END_SUBROUTINE_BLOCK\n";
    return testo;
  }

 private:
  std::string Rete(unsigned numero) {
    std::string testo = "NETWORK " + std::to_string(numero) + "\n";
    if (caso_(2) != 0) return testo + Rete_Ordinata();
    const unsigned righe = 1 + caso_(9);
    for (unsigned n = 0; n < righe; ++n) testo += Riga(n == 0 && caso_(15) != 0);
    return testo;
  }

  /// As somebody writes who knows what the stack is for: a block, then coils, some of them behind
  /// further contacts.
  std::string Rete_Ordinata() {
    std::string testo = Blocco(2);
    if (caso_(2) == 0) testo += "LPS\n" + Contatto("A") + Bobina() + "LPP\n";
    testo += Bobina();
    if (caso_(2) == 0) testo += Contatto("A") + Bobina();
    return testo;
  }

  std::string Blocco(unsigned profondita) {
    static const char* const giunzioni[] = {"ALD\n", "OLD\n"};
    static const char* const trasformazioni[] = {"NOT\n", "EU\n", "ED\n"};
    std::string testo = Contatto("LD");
    const unsigned pezzi = caso_(3);
    for (unsigned n = 0; n < pezzi; ++n) {
      const unsigned quale = caso_(9);
      if (quale == 0)
        testo += trasformazioni[caso_(2)];
      else if (quale < 4 && profondita > 0)
        testo += Blocco(profondita - 1) + giunzioni[caso_(1)];
      else
        testo += Contatto(quale % 2 == 0 ? "A" : "O");
    }
    return testo;
  }

  std::string Contatto(const std::string& attacco) {
    static const char* const aree[] = {"I0.", "M0.", "M1.", "Q0.", "S0."};
    return attacco + (caso_(2) == 0 ? "N " : " ") + aree[caso_(4)] + std::to_string(caso_(3)) +
           "\n";
  }

  std::string Bobina() {
    const std::string bit = std::to_string(caso_(3));
    switch (caso_(4)) {
      case 0:
        return "S M0." + bit + " 1\n";
      case 1:
        return "R M0." + bit + " 1\n";
      case 2:
        return "TON T" + bit + " +" + std::to_string(caso_(5)) + "\n";
      case 3:
        return "= M1." + bit + "\n";
      default:
        return "= Q0." + bit + "\n";
    }
  }

  std::string Riga(bool inizio) {
    static const std::vector<Famiglia> scelte = {
        Famiglia::Contatti,       Famiglia::Contatti,  Famiglia::Contatti,
        Famiglia::Contatti,       Famiglia::Contatti,  Famiglia::Pila,
        Famiglia::Pila,           Famiglia::Uscite,    Famiglia::Uscite,
        Famiglia::Temporizzatori, Famiglia::Contatori, Famiglia::Confronti,
        Famiglia::Programma,      Famiglia::Sequenze,  Famiglia::Trasferimenti,
        Famiglia::Aritmetica};
    while (true) {
      const auto& famiglia =
          per_famiglia_[inizio ? Famiglia::Contatti
                               : scelte[caso_(static_cast<unsigned>(scelte.size()) - 1)]];
      const Istruzione& istruzione = *famiglia[caso_(static_cast<unsigned>(famiglia.size()) - 1)];
      if (inizio && !istruzione.Nome.starts_with("LD")) continue;
      const Riga_Src riga = Riga_Casuale(istruzione, caso_);
      Riga_PLC compilata;
      Riempi_Riga(compilata, riga);
      if (Controlla_Riga(compilata, riga).Stato != 0) continue;
      std::string testo = riga.Istr;
      for (const std::string* operando : {&riga.Op1, &riga.Op2})
        if (!operando->empty()) testo += " " + *operando;
      return testo + "\n";
    }
  }

  Caso caso_;
  std::map<Famiglia, std::vector<const Istruzione*>> per_famiglia_;
};

/// The project with every network that can be drawn written from its drawing.
std::string Riscritto(const std::vector<Blocco_Scala>& blocchi, int& disegnate, int& cambiate) {
  std::string testo;
  for (const Blocco_Scala& blocco : blocchi) {
    const bool main = blocco.Nome == "MAIN";
    testo += main ? "ORGANIZATION_BLOCK MAIN:OB1\nTITLE=\nBEGIN\n"
                  : "SUBROUTINE_BLOCK " + blocco.Nome + ":SBR" + blocco.Nome.substr(1) +
                        "\nTITLE=\nBEGIN\n";
    for (const Rete_Scala& rete : blocco.Reti) {
      testo += rete.Titolo + "\n";
      std::vector<Passo_Scala> passi = rete.Passi;
      if (const auto* diagramma = std::get_if<Diagramma>(&rete.Forma)) {
        ++disegnate;
        passi = *Elenca(*diagramma);
        if (passi != rete.Passi) ++cambiate;
      }
      for (const Passo_Scala& passo : passi) testo += Come_Testo(passo) + "\n";
    }
    testo += main ? "END_ORGANIZATION_BLOCK\n" : "END_SUBROUTINE_BLOCK\n";
  }
  return testo;
}

/// All that a program computes; the stack and the program itself are the way there.
Memoria Risultati(const Plc& plc) {
  Memoria memoria = plc;
  memoria.Stak.Azzera();
  memoria.Stak_Rit = Memoria{}.Stak_Rit;
  memoria.Prog.Ridimensiona(1);
  memoria.Prog[0] = {};
  memoria.NRighe = memoria.PC = 0;
  return memoria;
}

/// One scan; false for a program that runs in a circle and never comes to its end.
bool Scansione(Plc& plc) {
  const auto finite = plc.N_Cicli;
  for (int righe = 0; righe < 3000 && plc.PLC_Acceso && plc.N_Cicli == finite;)
    righe += plc.Esegui_Righe(100);
  return !plc.PLC_Acceso || plc.N_Cicli != finite;
}

bool Compila(Seduta& seduta, const std::string& testo) {
  if (!seduta.Leggi(testo)) return false;
  seduta.progetto.Compila();
  return seduta.progetto.Compilato != 0 && seduta.progetto.Passi_Errati.empty();
}

}  // namespace

/// A number of the environment, for longer runs than those of every day:
/// TAVORNO_RANDOM_NETWORKS=1000000 TAVORNO_RANDOM_SEED=7 ladder_test --gtest_filter=Equivalenza.*
long long Da_Fuori(const char* nome, long long senza) {
  const char* testo = std::getenv(nome);
  return testo == nullptr ? senza : std::atoll(testo);
}

TEST(Equivalenza, ADrawnProgramComputesWhatTheListComputes) {
  std::mt19937 generatore(static_cast<std::uint32_t>(Da_Fuori("TAVORNO_RANDOM_SEED", 20261122)));
  // A program has two procedures and one to six networks beside them.
  constexpr int reti_per_programma = 5;
  const long long quante =
      Da_Fuori("TAVORNO_RANDOM_NETWORKS", TAVORNO_RANDOM_PROGRAMS * reti_per_programma);
  long long reti = 0;
  const Caso caso = [&](unsigned massimo) {
    return static_cast<unsigned>(generatore() % (std::uint64_t{massimo} + 1));
  };
  Autore autore(caso);
  static const std::vector<std::string> ingressi = {"00000000", "11111111", "10101010", "01100110",
                                                    "00011110"};
  int disegnate = 0;
  int cambiate = 0;
  while (reti < quante) {
    const std::string testo = autore.Programma();
    Seduta lista;
    if (!Compila(lista, testo)) continue;
    const auto blocchi = Scala_Di(std::span(lista.progetto.Righe_Src.begin(),
                                            static_cast<std::size_t>(lista.plc.NRighe) + 1));
    for (const Blocco_Scala& blocco : blocchi) reti += std::ssize(blocco.Reti);
    const std::string riscritto = Riscritto(blocchi, disegnate, cambiate);
    Seduta scala;
    ASSERT_TRUE(Compila(scala, riscritto)) << testo << "-->\n" << riscritto;
    for (Seduta* seduta : {&lista, &scala}) {
      seduta->plc.mnuPlcStep();
      seduta->plc.mnuPlcRun();
    }
    for (int scansione = 0; scansione < 12; ++scansione) {
      const std::string& bit = ingressi[caso(static_cast<unsigned>(ingressi.size()) - 1)];
      const unsigned passo = caso(250);
      const unsigned byte = caso(1);
      std::vector<std::string> fatali(2);
      bool finite = true;
      for (Seduta* seduta : {&lista, &scala}) {
        seduta->plc.SI[byte].Stato_I(bit);
        try {
          finite = Scansione(seduta->plc) && finite;
          seduta->orologio.Avanza(passo);
        } catch (const Fatale& fatale) {
          fatali[seduta == &scala] = fatale.what();
        }
      }
      ASSERT_EQ(fatali[0], fatali[1]) << testo << "-->\n" << riscritto;
      if (!fatali[0].empty() || !finite) break;
      ASSERT_TRUE(Risultati(lista.plc) == Risultati(scala.plc)) << testo << "-->\n" << riscritto;
      ASSERT_EQ(lista.plc.PLC_Acceso, scala.plc.PLC_Acceso) << testo << "-->\n" << riscritto;
      if (!lista.plc.PLC_Acceso) break;
    }
  }
  RecordProperty("networks", std::to_string(reti));
  RecordProperty("drawn", disegnate);
  RecordProperty("rewritten", cambiate);
  EXPECT_GT(disegnate, reti / reti_per_programma);
  EXPECT_GT(cambiate, reti / reti_per_programma / 20);
}

}  // namespace tavorno::prova
