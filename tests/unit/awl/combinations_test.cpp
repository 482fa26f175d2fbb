// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the checker lets through must end at run time as it is due: with its result, with the
// soft error, or fatally. All admitted combinations of operand areas are tried.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "checked_line.h"
#include "combinations_oracle.h"
#include "expected_rules.h"
#include "plc/instructions.h"

namespace tavorno::prova {
namespace {

// ---- operands and values ----------------------------------------------------------------------

bool Ha_I_Bit(const std::string& area) {
  return Sta_In(area, "I Q M SM S");
}

/// The number with which an area is first offered to the checker.
Operando_Scritto Primo_Offerto(const std::string& area) {
  return {area, area == "SMB" ? 28 : 0, Ha_I_Bit(area) ? 0 : -1};
}

/// Where values are tried out: the highest number of the area.
int Ultimo_Numero(const std::string& area) {
  if (area == "AIW") return 4;
  if (area == "AQW") return 2;
  if (area == "SMB") return 29;
  const auto trovato = Numero_Massimo().find(area);
  return trovato == Numero_Massimo().end() ? 0 : trovato->second;
}

/// Numbers on both sides of the bounds; those that the checker refuses for a line drop out there.
std::vector<Operando_Scritto> Numeri_Di(const std::string& area, bool con_bit) {
  if (area.empty()) return {{area}};
  std::vector<int> numeri = {0, -1};
  if (area == "K")
    numeri = {0, 1, 2, 9, 255, 256, 32767, -1, -32768};
  else if (area == "SMB")
    numeri = {28, 29, 34, 35};
  else if (Ultima_Riga(area) >= 0)
    numeri = {0, Ultimo_Numero(area), 41, 63, 101, -1};
  std::vector<Operando_Scritto> operandi;
  for (std::size_t i = 0; i < numeri.size(); ++i) {
    if (i == 1 && numeri[1] == numeri[0]) continue;
    operandi.push_back({area, numeri[i]});
    if (!con_bit) continue;
    for (const int bit : {0, 7}) operandi.push_back({area, numeri[i], bit});
  }
  return operandi;
}

std::vector<double> Valori_Di(const std::string& area) {
  if (Ha_I_Bit(area)) return {0, 1};
  if (Sta_In(area, "IB QB MB SMB")) return {1, 0, 255, 256, 32767, -1};
  if (Sta_In(area, "IW QW MW")) return {101, 0, 11111111, 32767, 100000, -1};  // -1: no text yet
  if (Sta_In(area, "VB VW T C")) return {1, 0, -1, 255, 256, 32767, -32768};
  if (area == "AIW") return {1, 0, -1, 32767, 32768, -32768, -32769};
  if (area == "VD") return {1, 0, -1, 32767, 32768, -40000, 2147483647, -2147483648.0};
  if (area == "AC")
    return {0.5,    1.5,    2.5,   -0.5, -1,   255,          256,           32767,
            -32768, -32769, 40000, 3e9,  -3e9, 2147483520.0, -2147483648.0, 1e20};
  return {0};
}

void Metti_Cella(Memoria& m, const Operando_Scritto& cella, double valore) {
  const int n = cella.numero;
  if (n < 0 || n > Ultima_Riga(cella.area)) return;
  const auto parola = [&] { return static_cast<std::int16_t>(valore); };
  const auto testo = [&] {
    std::array<char, 16> cifre{};
    if (valore >= 0) std::snprintf(cifre.data(), cifre.size(), "%08d", static_cast<int>(valore));
    return std::string(cifre.data());
  };
  const std::string& area = cella.area;
  if (area == "VB") m.Mem_VB[n] = parola();
  if (area == "VW") m.Mem_VW[n] = parola();
  if (area == "VD") m.Mem_VD[n] = static_cast<std::int32_t>(valore);
  if (area == "AC") m.Mem_AC[n] = static_cast<float>(valore);
  if (area == "AIW") m.Mem_AIW[n] = static_cast<std::int32_t>(valore);
  if (area == "IB") m.IP_I[n].Val_B = parola();
  if (area == "QB") m.IP_Q[n].Val_B = parola();
  if (area == "MB") m.Mem_M[n].Val_B = parola();
  if (area == "SMB") m.Mem_SM[n].Val_B = parola();
  if (area == "IW") m.IP_I[n].Txt_B = testo();
  if (area == "QW") m.IP_Q[n].Txt_B = testo();
  if (area == "MW") m.Mem_M[n].Txt_B = testo();
  const std::uint8_t bit = valore == 1 ? 1 : 0;
  if (area == "T") m.Mem_T[n] = {parola(), 0, bit, 0};
  if (area == "C") m.Mem_C[n] = {parola(), 0, bit, 0, 0};
  if (!Ha_I_Bit(area) || cella.bit < 0) return;
  if (area == "I") m.IP_I[n].Bit_Img[cella.bit] = m.IP_I[n].Bit_Dir[cella.bit] = bit;
  if (area == "Q") m.IP_Q[n].Bit_Img[cella.bit] = bit;
  if (area == "M") m.Mem_M[n].Bit[cella.bit] = bit;
  if (area == "S") m.Mem_S[n].Bit[cella.bit] = bit;
  if (area == "SM") m.Mem_SM[n].Bit[cella.bit] = bit;
}

// ---- one execution ----------------------------------------------------------------------------

struct Corrente {
  std::int16_t cima, abilitata;
};
constexpr std::array<Corrente, 3> Correnti = {{{1, 1}, {0, 1}, {1, 0}}};  // on, off, SCR-disabled

/// Executes the line on a fresh CPU; `atteso` is what the oracle says of it.
struct Esecuzione {
  Effetto atteso, avuto;

  Esecuzione(const Riga_PLC& linea, const std::string& mnemonico, const Operando_Scritto& op1,
             const Operando_Scritto& op2, double valore1, double valore2, Corrente corrente,
             bool alterno) {
    Orologio orologio;
    Plc plc(orologio);
    plc.Prog.Ridimensiona(3);
    plc.Prog[1] = linea;
    plc.Prog[1].Abil_SCR = corrente.abilitata;
    for (const int riga : {0, 2}) {
      plc.Prog[riga].Istr = "NOP";
      Decodifica(plc.Prog[riga]);
    }
    plc.NRighe = 2;
    plc.PC = 1;
    plc.PLC_Acceso = -1;
    // Both states of the flags and of the third cell, so that a write shows.
    for (int flag = 0; flag <= 3; ++flag)
      plc.Mem_SM[1].Bit[flag] = alterno || flag % 2 == 0 ? 1 : 0;
    Metti_Cella(plc, op1, valore1);
    Metti_Cella(plc, op2, valore2);
    plc.Stak[0] = corrente.cima;
    plc.Stak[1] = 1;
    plc.Stak[2] = alterno ? 1 : 0;
    std::vector<std::string> avvisi;
    const Iscrizione ascolto =
        plc.Hook.Mostra.Ascolta([&](const Avviso& avviso) { avvisi.push_back(avviso.Titolo); });

    atteso = Oracolo(plc, corrente.abilitata).Di(mnemonico, op1, op2);
    try {
      plc.Esegui_Riga();
      avuto.fine = Fine_Di(plc, avvisi);
    } catch (const Fatale&) {
      avuto.fine = avvisi.empty() ? Fine::Fatale : Fine::Incoerente;
    }
    if (atteso.destinazione)
      avuto.destinazione = Valore_Cella(plc, mnemonico, op2.area.empty() ? op1 : op2);
    if (atteso.pila) avuto.pila = {plc.Stak[0], plc.Stak[1]};
    if (atteso.flag) {
      const auto& bit = plc.Mem_SM[1].Bit;
      avuto.flag = {bit[0], bit[1], bit[2], bit[3]};
    }
  }

 private:
  static Fine Fine_Di(const Plc& plc, const std::vector<std::string>& avvisi) {
    const bool fermato = plc.PLC_Acceso == 0 && plc.Ferma == -1;
    if (avvisi.empty()) return plc.PLC_Acceso == -1 ? Fine::Regolare : Fine::Incoerente;
    if (avvisi.size() > 1 || !fermato) return Fine::Incoerente;
    if (avvisi[0] == "Run Time Error" && plc.PC == 1) return Fine::Errore;
    if (avvisi[0] == "Errore in Esecuzione!" && plc.PC == 2) return Fine::Imprevisto;
    return Fine::Incoerente;
  }
};

// ---- all combinations -------------------------------------------------------------------------

struct Combinazione {
  std::vector<std::string> aree;  ///< of its operands
};

class Combinations : public ::testing::Test, protected Banco_Righe {
 protected:
  /// The combinations of areas with which the checker accepts a mnemonic.
  std::vector<Combinazione> Ammesse(const std::string& mnemonico,
                                    std::size_t operandi_massimi = 2) {
    std::vector<Combinazione> ammesse;
    const auto offri = [&](const std::vector<std::string>& aree) {
      std::vector<std::string> testi;
      for (const std::string& area : aree) testi.push_back(Primo_Offerto(area).Come_Testo());
      if (Stato_Riga(Riga_Di(mnemonico, testi)) == 0) ammesse.push_back({aree});
    };
    offri({});
    for (const std::string& prima : Tutte_Le_Aree()) {
      offri({prima});
      for (const std::string& seconda : Tutte_Le_Aree()) {
        if (operandi_massimi == 2) offri({prima, seconda});
      }
    }
    return ammesse;
  }

  /// Executes every combination of these mnemonics and returns how many there are.
  std::size_t Esegui_Tutte(const std::vector<std::string>& mnemonici,
                           std::size_t operandi_massimi = 2) {
    std::size_t quanti = 0;
    for (const std::string& mnemonico : mnemonici) {
      for (const Combinazione& combinazione : Ammesse(mnemonico, operandi_massimi)) {
        Esegui(mnemonico, combinazione);
        ++quanti;
      }
    }
    return quanti;
  }

 private:
  void Esegui(const std::string& mnemonico, const Combinazione& combinazione) {
    const auto& aree = combinazione.aree;
    const bool con_bit = mnemonico == "LSCR" || Vuole_Un_Bit(mnemonico);
    const bool timer = Sta_In(mnemonico, "TON TOF TONR");
    const bool contata = Sta_In(mnemonico, "S R SI RI");
    const std::vector<Operando_Scritto> nessuno = {{}};
    std::size_t eseguite = 0;
    for (const Operando_Scritto& op1 : aree.empty() ? nessuno : Numeri_Di(aree[0], con_bit)) {
      for (const Operando_Scritto& op2 : aree.size() < 2 ? nessuno : Numeri_Di(aree[1], false)) {
        // A count is a number and nothing more: the constants try it out for all areas.
        if (contata && op2.area != "K" && op2.numero > 1 && op2.area != "SMB") continue;
        std::vector<std::string> testi;
        if (!aree.empty()) testi.push_back(op1.Come_Testo());
        if (aree.size() == 2) testi.push_back(op2.Come_Testo());
        if (Stato_Riga(Riga_Di(mnemonico, testi)) != 0) continue;
        // Two faults at once have a test of their own.
        if (timer && (op1.numero < 0 || op1.numero > 40) && !Sta_In(op2.area, "K VW AC")) continue;
        std::string linea = mnemonico;
        for (const std::string& testo : testi) linea += " " + testo;
        if (!Esegui_Linea(linea, mnemonico, op1, op2)) return;
        ++eseguite;
      }
    }
    EXPECT_GT(eseguite, 0U) << mnemonico;
  }

  /// Values vary while both operands are constants or at the last number of their areas.
  static std::vector<double> Valori_In(const Operando_Scritto& op, const Operando_Scritto& altro) {
    const auto varia = [](const Operando_Scritto& uno) {
      return uno.area == "K" || uno.numero == Ultimo_Numero(uno.area);
    };
    std::vector<double> valori = Valori_Di(op.area);
    if (!varia(op) || !varia(altro)) valori.resize(1);
    return valori;
  }

  /// Every value with every power; comparisons, which do not look at the power, with fewer.
  bool Esegui_Linea(const std::string& linea, const std::string& mnemonico,
                    const Operando_Scritto& op1, const Operando_Scritto& op2) {
    const Riga_PLC compilata = plc.Prog[0];
    const bool confronto = tutti_i_confronti.contains(mnemonico);
    bool alterno = false;
    for (const double valore1 : Valori_In(op1, op2)) {
      for (const double valore2 : Valori_In(op2, op1)) {
        for (std::size_t p = 0; p < Correnti.size(); ++p) {
          if (confronto && p > 0 && valore2 != Valori_Di(op2.area).front()) continue;
          for (int giro = 0; giro < (confronto ? 1 : 2); ++giro) {
            alterno = !alterno;
            const Esecuzione corsa(compilata, mnemonico, op1, op2, valore1, valore2, Correnti[p],
                                   alterno);
            if (corsa.avuto == corsa.atteso) continue;
            ADD_FAILURE() << linea << "\n  values " << valore1 << ", " << valore2 << "; top "
                          << Correnti[p].cima << ", line enable " << Correnti[p].abilitata
                          << "\n  expected: " << corsa.atteso << "\n  actual: " << corsa.avuto;
            return false;
          }
        }
      }
    }
    return true;
  }

  /// The comparisons.
  const std::set<std::string> tutti_i_confronti = [] {
    const std::vector<std::string> tutti =
        Parole(Confronti("B") + " " + Confronti("W") + " " + Confronti("D"));
    return std::set<std::string>(tutti.begin(), tutti.end());
  }();
};

/// With how many combinations of areas a rule is kept, as expected of the checker.
std::size_t Quante_Tenute(const Regola_Attesa& regola) {
  const auto tenuta = [&](const std::vector<Operando_Scritto>& operandi) {
    return regola.Giudica(operandi) == Verdetto_Riga{} ? 1U : 0U;
  };
  std::size_t quante = 0;
  for (const std::string& prima : Tutte_Le_Aree()) {
    const Operando_Scritto op1 = Primo_Offerto(prima);
    if (regola.operandi == 1) {
      quante += tenuta({op1});
      continue;
    }
    for (const std::string& seconda : Tutte_Le_Aree())
      quante += tenuta({op1, Primo_Offerto(seconda)});
  }
  return quante;
}

class RuleCombinations : public Combinations,
                         public ::testing::WithParamInterface<Regola_Attesa> {};

TEST_P(RuleCombinations, EndAsDue) {
  const std::size_t quante = Quante_Tenute(GetParam());
  EXPECT_GT(quante, 0U);
  for (const std::string& mnemonico : Parole(GetParam().mnemonici))
    EXPECT_EQ(Esegui_Tutte({mnemonico}), quante) << mnemonico;
}

INSTANTIATE_TEST_SUITE_P(Of, RuleCombinations, ::testing::ValuesIn(Regole_Attese()),
                         [](const auto& caso) {
                           return Nome_Prova(Parole(caso.param.mnemonici)[0]);
                         });

// The operands of the first group are not looked at: none, and each area as the only one.
TEST_F(Combinations, OfTheOtherInstructionsEndAsDue) {
  std::vector<std::string> mnemonici = Parole(Accettate_Senza_Prova);
  for (const char* scritto : {"NETWORK 1", "SBR0", "INT0"}) mnemonici.emplace_back(scritto);
  EXPECT_EQ(Esegui_Tutte(mnemonici, 1), mnemonici.size() * (1 + Tutte_Le_Aree().size()));
  const std::vector<std::string> nudi = Parole(Accettate_Senza_Operandi);
  EXPECT_EQ(Esegui_Tutte(nudi), nudi.size());
}

TEST_F(Combinations, OfRefusedInstructionsThereAreNone) {
  for (const std::string& mnemonico : Parole(Non_Supportate))
    EXPECT_TRUE(Ammesse(mnemonico).empty()) << mnemonico;
}

// Setting the preset is the first thing a timer does, so its fault is met before the timer's.
TEST_F(Combinations, OfAnUnreadablePresetAndATimerBeyondTheTableEndSoftly) {
  for (const char* mnemonico : {"TON", "TOF", "TONR"}) {
    ASSERT_EQ(Stato_Riga(Riga_Di(mnemonico, {"T63", "IB0"})), 0);
    const Esecuzione corsa(plc.Prog[0], mnemonico, {"T", 63}, {"IB", 0}, 0, 0, Correnti[0], false);
    EXPECT_EQ(corsa.atteso.fine, Fine::Errore);
    EXPECT_EQ(corsa.avuto, corsa.atteso) << mnemonico << " T63, IB0";
  }
}

}  // namespace
}  // namespace tavorno::prova
