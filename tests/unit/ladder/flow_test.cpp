// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/flow.h"

#include <gtest/gtest.h>

#include <random>

#include "list_bed.h"
#include "recorder/session.h"

namespace tavorno::prova {

namespace {

/// A compiled network, rows 1 and on, and its drawing.
struct Banco_Flusso {
  explicit Banco_Flusso(const std::string& lista) {
    EXPECT_TRUE(seduta.Leggi("ORGANIZATION_BLOCK MAIN:OB1\nTITLE=\nBEGIN\nNETWORK 1\n" + lista +
                             "END_ORGANIZATION_BLOCK\n"));
    seduta.progetto.Compila();
    EXPECT_TRUE(seduta.progetto.Compilato) << lista;
    passi = Rete(lista);
    for (Passo_Scala& passo : passi) ++passo.Riga;
    disegno = Impagina(std::get<Diagramma>(Disegna(passi)));
  }

  Flusso_Rete Flusso() { return Flusso_Di(disegno, plc); }
  bool Attivo(std::size_t riquadro) { return Flusso().Attivi[riquadro]; }
  bool Arriva(std::size_t riquadro) {
    return Flusso().Vivi[static_cast<std::size_t>(disegno.Riquadri[riquadro].Prima)];
  }
  void Ingresso(const std::string& bit) { plc.SI[0].Stato_I(bit); }
  void Avvia() {
    plc.mnuPlcStep();
    plc.mnuPlcRun();
  }
  void Scansione() {
    const auto finite = plc.N_Cicli;
    while (plc.N_Cicli == finite) plc.Esegui_Riga();
  }

  Seduta seduta;
  Plc& plc = seduta.plc;
  std::vector<Passo_Scala> passi;
  Disegno disegno;
};

/// A contact, what makes it pass, and what does not.
struct Caso_Contatto {
  const char* Contatto;
  void (*Chiudi)(Plc&);
  void (*Apri)(Plc&);
};

void PrintTo(const Caso_Contatto& caso, std::ostream* out) {
  *out << caso.Contatto;
}

class Contatti : public testing::TestWithParam<Caso_Contatto> {};

TEST_P(Contatti, PassAsTheirOperandSays) {
  Banco_Flusso banco(std::string(GetParam().Contatto) + "\n= Q1.7\n");
  GetParam().Chiudi(banco.plc);
  EXPECT_TRUE(banco.Attivo(0));
  EXPECT_TRUE(banco.Arriva(1));
  EXPECT_TRUE(banco.Attivo(1));
  GetParam().Apri(banco.plc);
  EXPECT_FALSE(banco.Attivo(0));
  EXPECT_FALSE(banco.Arriva(1));
  EXPECT_FALSE(banco.Attivo(1));
}

INSTANTIATE_TEST_SUITE_P(
    Tutti, Contatti,
    testing::Values(Caso_Contatto{"LD I0.3", [](Plc& p) { p.IP_I[0].Bit_Img[3] = 1; },
                                  [](Plc& p) { p.IP_I[0].Bit_Img[3] = 0; }},
                    Caso_Contatto{"LDN Q0.1", [](Plc& p) { p.IP_Q[0].Bit_Img[1] = 0; },
                                  [](Plc& p) { p.IP_Q[0].Bit_Img[1] = 1; }},
                    Caso_Contatto{"LD M2.5", [](Plc& p) { p.Mem_M[2].Bit[5] = 1; },
                                  [](Plc& p) { p.Mem_M[2].Bit[5] = 0; }},
                    Caso_Contatto{"LDN S0.1", [](Plc& p) { p.Mem_S[0].Bit[1] = 0; },
                                  [](Plc& p) { p.Mem_S[0].Bit[1] = 1; }},
                    Caso_Contatto{"LD SM0.5", [](Plc& p) { p.Mem_SM[0].Bit[5] = 1; },
                                  [](Plc& p) { p.Mem_SM[0].Bit[5] = 0; }},
                    Caso_Contatto{"LD T37", [](Plc& p) { p.Mem_T[37].Uscita = 1; },
                                  [](Plc& p) { p.Mem_T[37].Uscita = 0; }},
                    Caso_Contatto{"LDN C3", [](Plc& p) { p.Mem_C[3].Uscita = 0; },
                                  [](Plc& p) { p.Mem_C[3].Uscita = 1; }},
                    // The immediate ones read the point and not the image.
                    Caso_Contatto{"LDI I0.2", [](Plc& p) { p.IP_I[0].Bit_Dir[2] = 1; },
                                  [](Plc& p) {
                                    p.IP_I[0].Bit_Dir[2] = 0;
                                    p.IP_I[0].Bit_Img[2] = 1;
                                  }},
                    Caso_Contatto{"LDNI I0.2",
                                  [](Plc& p) {
                                    p.IP_I[0].Bit_Dir[2] = 0;
                                    p.IP_I[0].Bit_Img[2] = 1;
                                  },
                                  [](Plc& p) { p.IP_I[0].Bit_Dir[2] = 1; }},
                    Caso_Contatto{"LDB= VB0 +12", [](Plc& p) { p.Mem_VB[0] = 12; },
                                  [](Plc& p) { p.Mem_VB[0] = 13; }},
                    Caso_Contatto{"LDW>= VW2 VW4",
                                  [](Plc& p) {
                                    p.Mem_VW[2] = -3;
                                    p.Mem_VW[4] = -3;
                                  },
                                  [](Plc& p) { p.Mem_VW[4] = -2; }},
                    Caso_Contatto{"LDD< VD0 VD1",
                                  [](Plc& p) {
                                    p.Mem_VD[0] = -70000;
                                    p.Mem_VD[1] = 70000;
                                  },
                                  [](Plc& p) { p.Mem_VD[1] = -70000; }},
                    // Too large for its comparison, which the CPU would stop at.
                    Caso_Contatto{"LDB<> VB0 +1", [](Plc& p) { p.Mem_VB[0] = 255; },
                                  [](Plc& p) { p.Mem_VB[0] = 256; }},
                    // A word of bits without a text, at which the CPU would end.
                    Caso_Contatto{"LDW= QW0 +101", [](Plc& p) { p.IP_Q[0].Txt_B = "00000101"; },
                                  [](Plc& p) { p.IP_Q[0].Txt_B.clear(); }}));

}  // namespace

TEST(Flusso, NotTurnsWhatArrivesAround) {
  Banco_Flusso banco("LD I0.0\nNOT\n= Q0.0\n");
  EXPECT_TRUE(banco.Attivo(1));
  EXPECT_TRUE(banco.Attivo(2));
  banco.plc.IP_I[0].Bit_Img[0] = 1;
  EXPECT_FALSE(banco.Attivo(1));
  EXPECT_FALSE(banco.Attivo(2));
}

TEST(Flusso, AnEdgeShowsWhatItLastGaveOut) {
  Banco_Flusso banco("LD I0.0\nEU\n= Q0.0\nLD I0.0\nED\n= Q0.1\n");
  banco.Avvia();
  banco.Scansione();
  banco.Ingresso("10000000");
  EXPECT_FALSE(banco.Attivo(1)) << "before it has run";
  banco.Scansione();
  EXPECT_TRUE(banco.Attivo(1));
  EXPECT_TRUE(banco.Attivo(2));
  EXPECT_FALSE(banco.Attivo(4));
  banco.Scansione();
  EXPECT_FALSE(banco.Attivo(1));
  banco.Ingresso("00000000");
  banco.Scansione();
  EXPECT_TRUE(banco.Attivo(4));
  banco.plc.mnuPlcStop();
  banco.Avvia();
  EXPECT_FALSE(banco.Attivo(4)) << "a new run begins";
}

TEST(Flusso, ACoilInASectionThatIsOffGetsPowerAndDoesNotAct) {
  Banco_Flusso banco("LSCR S0.1\nLD SM0.0\n= Q0.0\nSCRE\n");
  banco.Avvia();
  banco.Scansione();
  EXPECT_TRUE(banco.Arriva(2));
  EXPECT_FALSE(banco.Attivo(2));
  banco.plc.Mem_S[0].Bit[1] = 1;
  banco.Scansione();
  EXPECT_TRUE(banco.Attivo(2));
}

TEST(Flusso, WritesNothing) {
  Banco_Flusso banco("LD I0.0\nAW> VW0 +3\nEU\nTON T37 VW2\nLD I0.1\nLD I0.2\nCTU C1 +3\n");
  const Memoria prima = banco.plc;
  banco.Flusso();
  EXPECT_TRUE(prima == banco.plc);
}

// ---- the interpreter finds the same -------------------------------------------------------------

TEST(Flusso, AnOutputIsLiveExactlyWhenTheStackSaysSo) {
  std::mt19937 generatore(22);
  const auto caso = [&](unsigned massimo) {
    return static_cast<int>(generatore() % (massimo + 1));
  };
  // Contacts read what no output of the program writes, so that the memory at an output is the one
  // that its contacts saw.
  const auto contatto = [&](const char* attacco) {
    static const char* const code[] = {"", "N", "", "N", "B>=", "W<"};
    const int coda = caso(5);
    const std::string bit = std::to_string(caso(5));
    std::string testo = std::string(attacco) + code[coda] + " ";
    if (coda < 4) return testo + (caso(1) ? "I0." : "M0.") + bit + "\n";
    return testo + (coda == 4 ? "VB1 +" : "VW1 +") + bit + "\n";
  };
  int vivi = 0;
  int provati = 0;
  for (int rete = 0; rete < 300; ++rete) {
    std::string lista = contatto("LD");
    const int pezzi = caso(4);
    for (int n = 0; n < pezzi; ++n) {
      switch (caso(5)) {
        case 0:
          lista += contatto("LD") + contatto("A") + "OLD\n";
          break;
        case 1:
          lista += contatto("LD") + contatto("O") + "ALD\n";
          break;
        case 2:
          lista += caso(1) ? "EU\n" : caso(1) ? "ED\n" : "NOT\n";
          break;
        default:
          lista += contatto(caso(1) ? "A" : "O");
      }
    }
    lista += "LPS\n" + contatto("A") + "= Q0.0\nLPP\n= Q0.1\n" + contatto("A") + "= Q0.2\n";
    Banco_Flusso banco(lista);
    banco.Avvia();
    for (int scansione = 0; scansione < 8; ++scansione) {
      std::string bit(8, '0');
      for (char& cifra : bit) cifra = caso(1) ? '1' : '0';
      banco.Ingresso(bit);
      for (int n = 0; n < 6; ++n) banco.plc.Mem_M[0].Bit[n] = static_cast<std::uint8_t>(caso(1));
      banco.plc.Mem_VB[1] = static_cast<std::int16_t>(caso(5));
      banco.plc.Mem_VW[1] = static_cast<std::int16_t>(caso(5));
      const auto finite = banco.plc.N_Cicli;
      while (banco.plc.N_Cicli == finite) {
        for (const Riquadro& riquadro : banco.disegno.Riquadri) {
          if (riquadro.Passo.Riga != banco.plc.PC || riquadro.Come.Cosa != Ruolo::Bobina) continue;
          const bool vivo = banco.Flusso().Vivi[static_cast<std::size_t>(riquadro.Prima)];
          ASSERT_EQ(vivo, banco.plc.Stak[0] == 1) << lista << "row " << banco.plc.PC;
          ++provati;
          vivi += vivo;
        }
        banco.plc.Esegui_Riga();
      }
    }
  }
  EXPECT_GT(vivi, provati / 10);
  EXPECT_LT(vivi, provati * 9 / 10);
}

// ---- values -------------------------------------------------------------------------------------

TEST(Valore_Di, BoxesAndComparisonsShowTheirNumbers) {
  Banco_Flusso banco("LD I0.0\nAW> VW0 +3\nTON T37 VW2\nMOVW VW0 AC1\nS Q0.0 2\n");
  banco.plc.Mem_VW[0] = -7;
  banco.plc.Mem_VW[2] = 50;
  banco.plc.Mem_T[37].Val = 12;
  banco.plc.Mem_AC[1] = 9;
  const auto valore = [&](std::size_t riquadro, std::size_t operando) {
    return Valore_Di(banco.disegno.Riquadri[riquadro], operando, banco.plc);
  };
  EXPECT_EQ(valore(0, 0), "");
  EXPECT_EQ(valore(1, 0), "-7");
  EXPECT_EQ(valore(1, 1), "");
  EXPECT_EQ(valore(2, 0), "12");
  EXPECT_EQ(valore(2, 1), "50");
  EXPECT_EQ(valore(3, 1), "9");
  EXPECT_EQ(valore(4, 1), "");
  banco.plc.Mem_AC[1] = 3e12F;
  EXPECT_EQ(valore(3, 1), "") << "no number of the CPU";
}

TEST(Flusso_Di, ANetworkThatIsStillEmptyHasNoFlow) {
  Banco_Flusso banco("LD I0.0\n= Q0.0\n");
  const Flusso_Rete flusso = Flusso_Di(Disegno(), banco.plc);
  EXPECT_TRUE(flusso.Vivi.empty());
  EXPECT_TRUE(flusso.Attivi.empty());
}

// ---- the same program -------------------------------------------------------------------------

TEST(In_Cpu, OnlyTheVeryInstructionsCount) {
  Banco_Flusso banco("LD I0.0\nTON T37 +50\nCALL P\n");
  EXPECT_TRUE(In_Cpu(banco.passi, banco.plc));
  for (const std::size_t riga : {0U, 1U, 2U}) {
    std::vector<Passo_Scala> altri = banco.passi;
    altri[riga].Operandi.back() = "I0.1";
    EXPECT_FALSE(In_Cpu(altri, banco.plc)) << riga;
  }
  std::vector<Passo_Scala> altri = banco.passi;
  altri[0].Istr = "LDN";
  EXPECT_FALSE(In_Cpu(altri, banco.plc));
  altri = banco.passi;
  altri[2].Riga = 900;
  EXPECT_FALSE(In_Cpu(altri, banco.plc));
}

}  // namespace tavorno::prova
