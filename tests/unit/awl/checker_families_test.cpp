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

/// "LDB<=" as "LDB_lt_eq": test names take letters and digits only.
std::string TestName(const ::testing::TestParamInfo<std::string>& info) {
  std::string name;
  for (const char c : info.param) {
    switch (c) {
      case '=':
        name += "_eq";
        break;
      case '<':
        name += "_lt";
        break;
      case '>':
        name += "_gt";
        break;
      case '+':
        name += "Add_";
        break;
      case '-':
        name += "Sub_";
        break;
      case '*':
        name += "Mul_";
        break;
      case '/':
        name += "Div_";
        break;
      default:
        name += c;
    }
  }
  return name;
}

constexpr std::array Samples = {-32768, -1, 0,  1,  2,  3,  4,  5,  6,   20,  21,  28,  29,
                                30,     34, 35, 36, 40, 41, 63, 64, 100, 101, 255, 256, 32767};

/// A number that the area has, and where it has bounds one that it has not.
const std::vector<Operand>& GoodAndBad() {
  static const std::vector<Operand> operands = [] {
    std::vector<Operand> list;
    for (const std::string& area : AllAreas()) {
      list.push_back({area, area == "SMB" ? 28 : 0});
      const bool bounded = HighestNumber().contains(area) || area == "K" || area == "SMB" ||
                           area == "AIW" || area == "AQW";
      if (bounded) list.push_back({area, 257});
    }
    return list;
  }();
  return operands;
}

/// Every area with every number.
std::vector<Operand> AllOperands() {
  std::vector<Operand> list;
  for (const std::string& area : AllAreas()) {
    for (const int number : Samples) {
      list.push_back({area, number});
      if (area.empty()) break;  // without an area there is no number
    }
  }
  return list;
}

class FamilyRule : public ::testing::TestWithParam<std::string>, protected LineChecker {
 protected:
  const std::string& mnemonic = GetParam();
  const Rule& rule = RuleOf(mnemonic);

  void Expect(const std::vector<Operand>& operands) {
    std::vector<std::string> texts;
    std::string line = mnemonic;
    for (const Operand& operand : operands) {
      texts.push_back(operand.Text());
      line += " " + texts.back();
    }
    ASSERT_EQ(Check(Source(mnemonic, texts)), rule.Judge(operands)) << line;
  }

  /// An operand that is accepted there.
  static Operand Good(const std::optional<Place>& place) {
    if (!place || place->accepted.empty()) return {"K", 100};
    const auto& [area, limit] = *place->accepted.begin();
    return {area, limit.only.empty() ? 0 : limit.only.front()};
  }
  std::vector<Operand> With(const Operand& op1) const {
    return rule.operands == 1 ? std::vector{op1} : std::vector{op1, Good(rule.op2)};
  }
};

TEST_P(FamilyRule, TakesItsOwnNumberOfOperandsOnly) {
  const Operand good = Good(rule.op1);
  const Operand bad{"ZZ", 5};
  for (const Operand& op1 : {good, bad}) {
    Expect({});
    Expect({op1});
    for (const Operand& op2 : {good, bad, Good(rule.op2)}) {
      Expect({op1, op2});
      Expect({op1, op2, good});
      Expect({op1, op2, bad});
    }
  }
  const std::vector<Operand> three(3, good);
  for (const std::size_t count : {0U, 1U, 2U, 3U}) {
    if (count == rule.operands) continue;
    const std::vector<Operand> given(three.begin(), three.begin() + static_cast<int>(count));
    EXPECT_EQ(rule.Judge(given), rule.wrongCount);
  }
}

TEST_P(FamilyRule, JudgesEveryAreaAndNumberOfTheFirstOperand) {
  for (const Operand& op1 : AllOperands()) Expect(With(op1));
}

TEST_P(FamilyRule, JudgesEveryAreaAndNumberOfTheSecondOperand) {
  if (rule.operands != 2) {
    Expect({Good(rule.op1), Good({})});
    return;
  }
  for (const Operand& op2 : AllOperands()) Expect({Good(rule.op1), op2});
}

TEST_P(FamilyRule, KeepsTheLaterOfTwoFaults) {
  for (const Operand& op1 : GoodAndBad()) {
    for (const Operand& op2 : GoodAndBad()) Expect({op1, op2});
  }
}

TEST_P(FamilyRule, TestsTheBitOfTheFirstOperandLastOrNotAtAll) {
  for (Operand op1 : GoodAndBad()) {
    for (const int bit : {-1, 0, 7, 8, 9, 32767}) {
      op1.bit = bit;
      Expect({op1});
      for (const Operand& op2 : {Good(rule.op2), Operand{"ZZ", 5}, Operand{"VB", 0, 9}}) {
        Expect({op1, op2});
        Expect({op1, op2, op2});
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, FamilyRule, ::testing::ValuesIn(MnemonicsWithRules()), TestName);

}  // namespace
}  // namespace tavorno::prova
