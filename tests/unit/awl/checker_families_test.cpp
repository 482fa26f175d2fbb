// SPDX-License-Identifier: GPL-3.0-or-later
// Every mnemonic with operand rules against every area and number in either place.
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "checked_line.h"
#include "expected_rules.h"

namespace tavorno::prova {
namespace {

constexpr std::array Campioni = {-32768, -1, 0,  1,  2,  3,  4,  5,  6,   20,  21,  28,  29,
                                 30,     34, 35, 36, 40, 41, 63, 64, 100, 101, 255, 256, 32767};

/// A number that the area has, and where it has bounds one that it has not.
const std::vector<Operando_Scritto>& Buoni_E_Cattivi() {
  static const std::vector<Operando_Scritto> operandi = [] {
    std::vector<Operando_Scritto> lista;
    for (const std::string& area : Tutte_Le_Aree()) {
      lista.push_back({area, area == "SMB" ? 28 : 0});
      const bool limitata = Numero_Massimo().contains(area) || area == "K" || area == "SMB" ||
                            area == "AIW" || area == "AQW";
      if (limitata) lista.push_back({area, 257});
    }
    return lista;
  }();
  return operandi;
}

/// Every area with every number.
std::vector<Operando_Scritto> Tutti_Gli_Operandi() {
  std::vector<Operando_Scritto> lista;
  for (const std::string& area : Tutte_Le_Aree()) {
    for (const int numero : Campioni) {
      lista.push_back({area, numero});
      if (area.empty()) break;  // without an area there is no number
    }
  }
  return lista;
}

class FamilyRule : public ::testing::TestWithParam<std::string>, protected Banco_Righe {
 protected:
  const std::string& mnemonico = GetParam();
  const Regola_Attesa& regola = Regola_Di(mnemonico);

  void Aspetta(const std::vector<Operando_Scritto>& operandi) {
    std::vector<std::string> testi;
    std::string linea = mnemonico;
    for (const Operando_Scritto& operando : operandi) {
      testi.push_back(operando.Come_Testo());
      linea += " " + testi.back();
    }
    ASSERT_EQ(Controlla(Riga_Di(mnemonico, testi)), regola.Giudica(operandi)) << linea;
  }

  /// An operand that is accepted there.
  static Operando_Scritto Buono(const std::optional<Posto_Atteso>& posto) {
    if (!posto || posto->accettate.empty()) return {"K", 100};
    const auto& [area, limite] = *posto->accettate.begin();
    return {area, limite.solo.empty() ? 0 : limite.solo.front()};
  }
  std::vector<Operando_Scritto> Con(const Operando_Scritto& op1) const {
    return regola.operandi == 1 ? std::vector{op1} : std::vector{op1, Buono(regola.op2)};
  }
};

TEST_P(FamilyRule, TakesItsOwnNumberOfOperandsOnly) {
  const Operando_Scritto buono = Buono(regola.op1);
  const Operando_Scritto cattivo{"ZZ", 5};
  for (const Operando_Scritto& op1 : {buono, cattivo}) {
    Aspetta({});
    Aspetta({op1});
    for (const Operando_Scritto& op2 : {buono, cattivo, Buono(regola.op2)}) {
      Aspetta({op1, op2});
      Aspetta({op1, op2, buono});
      Aspetta({op1, op2, cattivo});
    }
  }
  const std::vector<Operando_Scritto> tre(3, buono);
  for (const std::size_t quanti : {0U, 1U, 2U, 3U}) {
    if (quanti == regola.operandi) continue;
    const std::vector<Operando_Scritto> dati(tre.begin(), tre.begin() + static_cast<int>(quanti));
    EXPECT_EQ(regola.Giudica(dati), regola.se_diverso);
  }
}

TEST_P(FamilyRule, JudgesEveryAreaAndNumberOfTheFirstOperand) {
  for (const Operando_Scritto& op1 : Tutti_Gli_Operandi()) Aspetta(Con(op1));
}

TEST_P(FamilyRule, JudgesEveryAreaAndNumberOfTheSecondOperand) {
  if (regola.operandi != 2) {
    Aspetta({Buono(regola.op1), Buono({})});
    return;
  }
  for (const Operando_Scritto& op2 : Tutti_Gli_Operandi()) Aspetta({Buono(regola.op1), op2});
}

TEST_P(FamilyRule, KeepsTheLaterOfTwoFaults) {
  for (const Operando_Scritto& op1 : Buoni_E_Cattivi()) {
    for (const Operando_Scritto& op2 : Buoni_E_Cattivi()) Aspetta({op1, op2});
  }
}

TEST_P(FamilyRule, TestsTheBitOfTheFirstOperandLastOrNotAtAll) {
  for (Operando_Scritto op1 : Buoni_E_Cattivi()) {
    for (const int bit : {-1, 0, 7, 8, 9, 32767}) {
      op1.bit = bit;
      Aspetta({op1});
      for (const Operando_Scritto& op2 :
           {Buono(regola.op2), Operando_Scritto{"ZZ", 5}, Operando_Scritto{"VB", 0, 9}}) {
        Aspetta({op1, op2});
        Aspetta({op1, op2, op2});
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, FamilyRule, ::testing::ValuesIn(Mnemonici_Con_Regola()),
                         [](const auto& caso) { return Nome_Prova(caso.param); });

}  // namespace
}  // namespace tavorno::prova
