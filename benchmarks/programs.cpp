// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/programs.h"

#include <random>

#include "awl/link.h"
#include "awl/source_line.h"

namespace tavorno::misura {

namespace {

/// Repeats `giro` up to `righe` lines.
Programma Ripeti(const Programma& giro, int righe) {
  Programma programma;
  while (static_cast<int>(programma.size()) < righe)
    programma.push_back(giro[programma.size() % giro.size()]);
  return programma;
}

class Caso {
 public:
  int Fino_A(int massimo) {
    return static_cast<int>(generatore_() % (static_cast<unsigned>(massimo) + 1));
  }
  std::string Bit(std::initializer_list<const char*> aree) {
    const char* area = *(aree.begin() + Fino_A(static_cast<int>(aree.size()) - 1));
    return std::string(area) + std::to_string(Fino_A(1)) + "." + std::to_string(Fino_A(7));
  }

 private:
  std::mt19937 generatore_{20240229};
};

}  // namespace

Programma Bit_Regolare(int righe) {
  return Ripeti(
      {"LD I0.0", "A I0.1", "O M0.0", "AN I0.2", "= M0.0", "LDN M0.0", "A I0.3", "= Q0.0"}, righe);
}

Programma Bit_Casuale(int righe) {
  Caso caso;
  Programma programma;
  while (static_cast<int>(programma.size()) < righe) {
    static const char* const contatti[] = {"LD", "LDN", "A", "AN", "O", "ON"};
    static const char* const pila[] = {"NOT", "ALD", "OLD", "LPS", "LRD", "LPP", "EU", "ED"};
    switch (caso.Fino_A(9)) {
      case 0:
      case 1:
        programma.push_back("= " + caso.Bit({"Q", "M"}));
        break;
      case 2:
        programma.emplace_back(pila[caso.Fino_A(7)]);
        break;
      case 3:
        programma.push_back((caso.Fino_A(1) ? "S " : "R ") + caso.Bit({"Q", "M", "S"}) + " 1");
        break;
      default:
        programma.push_back(std::string(contatti[caso.Fino_A(5)]) + " " +
                            caso.Bit({"I", "Q", "M", "S", "SM"}));
    }
  }
  return programma;
}

Programma Temporizzatori(int righe) {
  Programma giro;
  for (int t = 0; t < 30; ++t) {
    static const char* const tipi[] = {"TON", "TOF", "TONR"};
    giro.push_back("LD I0." + std::to_string(t % 8));
    giro.push_back(std::string(tipi[t % 3]) + " T" + std::to_string(t) + " +" +
                   std::to_string(5 + t));
    giro.push_back("LD T" + std::to_string(t));
    giro.emplace_back("= Q0." + std::to_string(t % 8));
  }
  return Ripeti(giro, righe);
}

Programma Aritmetica(int righe) {
  return Ripeti({"LD SM0.0", "MOVW +1 VW0", "+I +2 VW0", "*I +3 VW0", "-I VW0 VW2", "/I +7 VW2",
                 "MOVD +5 VD0", "+D +9 VD0", "INCW VW4", "DECW VW4", "MOVB MB0 VB0", "INCD VD2",
                 "DECD VD2", "+I VW0 AC0", "MOVW +0 AC0", "MOVW +0 VW2"},
                righe);
}

Programma Confronti(int righe) {
  return Ripeti({"LDW>= VW0 +10", "AW< VW2 +20", "OW= T0 +5", "LDB<> MB0 +3", "AB<= VB1 +9",
                 "OD> VD0 +7", "LDD= VD1 +0", "AD>= VD2 VD3", "= M0.0"},
                righe);
}

Programma Salti(int righe) {
  Programma programma;
  for (int n = 0; static_cast<int>(programma.size()) + 6 <= righe; ++n) {
    const std::string etichetta = std::to_string(n);
    for (const std::string& riga :
         {std::string("LD I0.0"), "JMP " + etichetta, std::string("LD I0.1"), std::string("= Q0.1"),
          "LBL " + etichetta, std::string("NOP")})
      programma.push_back(riga);
  }
  programma.resize(static_cast<std::size_t>(righe), "NOP");
  return programma;
}

Programma Misto(int righe) {
  Caso caso;
  Programma programma;
  int etichetta = 0;
  const auto aggiungi = [&](const Programma& gruppo) {
    if (static_cast<int>(programma.size() + gruppo.size()) <= righe)
      programma.insert(programma.end(), gruppo.begin(), gruppo.end());
    else
      programma.emplace_back("NOP");
  };
  while (static_cast<int>(programma.size()) < righe) {
    const auto vw = [&] { return "VW" + std::to_string(caso.Fino_A(50)); };
    switch (caso.Fino_A(9)) {
      case 0:
        aggiungi(
            {"LD " + caso.Bit({"I", "M"}), "TON T" + std::to_string(caso.Fino_A(40)) + " +50"});
        break;
      case 1: {
        const std::string c = "C" + std::to_string(caso.Fino_A(20));
        aggiungi({"LD " + caso.Bit({"I"}), "LD " + c, "CTU " + c + " +10"});
        break;
      }
      case 2:
        aggiungi({"LDW>= " + vw() + " +100", "A " + caso.Bit({"I"}), "= " + caso.Bit({"Q"})});
        break;
      case 3:
        aggiungi({"LD " + caso.Bit({"I"}), "MOVW +7 " + vw(), "MOVW " + vw() + " AC1"});
        break;
      case 4:
        aggiungi({"LD SM0.0", "MOVW +3 VW60", "+I +1 VW60"});
        break;
      case 5: {
        const std::string n = std::to_string(etichetta++);
        aggiungi({"LD " + caso.Bit({"I"}), "JMP " + n, "LD " + caso.Bit({"M"}),
                  "= " + caso.Bit({"Q"}), "LBL " + n});
        break;
      }
      default:
        aggiungi({"LD " + caso.Bit({"I", "M"}), "O " + caso.Bit({"Q"}), "AN " + caso.Bit({"I"}),
                  "EU", "= " + caso.Bit({"Q", "M"})});
    }
  }
  return programma;
}

void Carica(Plc& plc, Programma programma) {
  programma.emplace_back("MEND");
  plc.NRighe = static_cast<std::int16_t>(programma.size() - 1);
  plc.Prog.Ridimensiona(plc.NRighe + 1);
  for (int i = 0; i <= plc.NRighe; ++i) {
    Riga_Src sorgente;
    std::string* const campi[] = {&sorgente.Istr, &sorgente.Op1, &sorgente.Op2};
    for (const char c : programma[static_cast<std::size_t>(i)]) {
      if (c == ' ')
        ++sorgente.NOp;
      else
        *campi[sorgente.NOp] += c;
    }
    Riempi_Riga(plc.Prog[i], sorgente);
  }
  Assegna_JMP(plc.Prog);
  Assegna_SBR(plc.Prog);
  Assegna_SCR(plc.Prog);
  plc.SI[0].Stato_I("10110010");
  plc.mnuPlcStep();
  plc.mnuPlcRun();
  plc.Modo_Run = Modo::Cont;  // as a continuous run leaves it; the loop itself is the benchmark's
}

}  // namespace tavorno::misura
