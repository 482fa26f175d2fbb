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

bool HasBits(const std::string& area) {
  return IsIn(area, "I Q M SM S");
}

/// The number with which an area is first offered to the checker.
Operand Home(const std::string& area) {
  return {area, area == "SMB" ? 28 : 0, HasBits(area) ? 0 : -1};
}

/// Where values are tried out: the highest number of the area.
int LastNumber(const std::string& area) {
  if (area == "AIW") return 4;
  if (area == "AQW") return 2;
  if (area == "SMB") return 29;
  const auto found = HighestNumber().find(area);
  return found == HighestNumber().end() ? 0 : found->second;
}

/// Numbers on both sides of the bounds; those that the checker refuses for a line drop out there.
std::vector<Operand> Numbers(const std::string& area, bool bits) {
  if (area.empty()) return {{area}};
  std::vector<int> numbers = {0, -1};
  if (area == "K")
    numbers = {0, 1, 2, 9, 255, 256, 32767, -1, -32768};
  else if (area == "SMB")
    numbers = {28, 29, 34, 35};
  else if (LastRow(area) >= 0)
    numbers = {0, LastNumber(area), 41, 63, 101, -1};
  std::vector<Operand> operands;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i == 1 && numbers[1] == numbers[0]) continue;
    operands.push_back({area, numbers[i]});
    if (!bits) continue;
    for (const int bit : {0, 7}) operands.push_back({area, numbers[i], bit});
  }
  return operands;
}

std::vector<double> Values(const std::string& area) {
  if (HasBits(area)) return {0, 1};
  if (IsIn(area, "IB QB MB SMB")) return {1, 0, 255, 256, 32767, -1};
  if (IsIn(area, "IW QW MW")) return {101, 0, 11111111, 32767, 100000, -1};  // -1: no text yet
  if (IsIn(area, "VB VW T C")) return {1, 0, -1, 255, 256, 32767, -32768};
  if (area == "AIW") return {1, 0, -1, 32767, 32768, -32768, -32769};
  if (area == "VD") return {1, 0, -1, 32767, 32768, -40000, 2147483647, -2147483648.0};
  if (area == "AC")
    return {0.5,    1.5,    2.5,   -0.5, -1,   255,          256,           32767,
            -32768, -32769, 40000, 3e9,  -3e9, 2147483520.0, -2147483648.0, 1e20};
  return {0};
}

void SetCell(Memoria& m, const Operand& cell, double value) {
  const int n = cell.num;
  if (n < 0 || n > LastRow(cell.area)) return;
  const auto word = [&] { return static_cast<std::int16_t>(value); };
  const auto text = [&] {
    std::array<char, 16> digits{};
    if (value >= 0) std::snprintf(digits.data(), digits.size(), "%08d", static_cast<int>(value));
    return std::string(digits.data());
  };
  const std::string& area = cell.area;
  if (area == "VB") m.Mem_VB[n] = word();
  if (area == "VW") m.Mem_VW[n] = word();
  if (area == "VD") m.Mem_VD[n] = static_cast<std::int32_t>(value);
  if (area == "AC") m.Mem_AC[n] = static_cast<float>(value);
  if (area == "AIW") m.Mem_AIW[n] = static_cast<std::int32_t>(value);
  if (area == "IB") m.IP_I[n].Val_B = word();
  if (area == "QB") m.IP_Q[n].Val_B = word();
  if (area == "MB") m.Mem_M[n].Val_B = word();
  if (area == "SMB") m.Mem_SM[n].Val_B = word();
  if (area == "IW") m.IP_I[n].Txt_B = text();
  if (area == "QW") m.IP_Q[n].Txt_B = text();
  if (area == "MW") m.Mem_M[n].Txt_B = text();
  const std::uint8_t bit = value == 1 ? 1 : 0;
  if (area == "T") m.Mem_T[n] = {word(), 0, bit, 0};
  if (area == "C") m.Mem_C[n] = {word(), 0, bit, 0, 0};
  if (!HasBits(area) || cell.bit < 0) return;
  if (area == "I") m.IP_I[n].Bit_Img[cell.bit] = m.IP_I[n].Bit_Dir[cell.bit] = bit;
  if (area == "Q") m.IP_Q[n].Bit_Img[cell.bit] = bit;
  if (area == "M") m.Mem_M[n].Bit[cell.bit] = bit;
  if (area == "S") m.Mem_S[n].Bit[cell.bit] = bit;
  if (area == "SM") m.Mem_SM[n].Bit[cell.bit] = bit;
}

// ---- one execution ----------------------------------------------------------------------------

struct Power {
  std::int16_t top, enabled;
};
constexpr std::array<Power, 3> Powers = {{{1, 1}, {0, 1}, {1, 0}}};  // on, off, SCR-disabled

/// Executes the line on a fresh CPU; `expected` is what the oracle says of it.
struct Execution {
  Outcome expected, actual;

  Execution(const Riga_PLC& line, const std::string& mnemonic, const Operand& op1,
            const Operand& op2, double value1, double value2, Power power, bool pattern) {
    Orologio clock;
    Plc plc(clock);
    plc.Prog.Ridimensiona(3);
    plc.Prog[1] = line;
    plc.Prog[1].Abil_SCR = power.enabled;
    for (const int row : {0, 2}) {
      plc.Prog[row].Istr = "NOP";
      Decodifica(plc.Prog[row]);
    }
    plc.NRighe = 2;
    plc.PC = 1;
    plc.PLC_Acceso = -1;
    // Both states of the flags and of the third cell, so that a write shows.
    for (int flag = 0; flag <= 3; ++flag)
      plc.Mem_SM[1].Bit[flag] = pattern || flag % 2 == 0 ? 1 : 0;
    SetCell(plc, op1, value1);
    SetCell(plc, op2, value2);
    plc.Stak[0] = power.top;
    plc.Stak[1] = 1;
    plc.Stak[2] = pattern ? 1 : 0;
    std::vector<std::string> boxes;
    const Iscrizione ascolto =
        plc.Hook.Mostra.Ascolta([&](const Avviso& box) { boxes.push_back(box.Titolo); });

    expected = Oracle(plc, power.enabled).Of(mnemonic, op1, op2);
    try {
      plc.Esegui_Riga();
      actual.ending = EndingOf(plc, boxes);
    } catch (const Fatale&) {
      actual.ending = boxes.empty() ? Ending::Fatal : Ending::Inconsistent;
    }
    if (expected.destination)
      actual.destination = CellValue(
          plc, mnemonic, mnemonic.starts_with("INC") || mnemonic.starts_with("DEC") ? op1 : op2);
    if (expected.stack) actual.stack = {plc.Stak[0], plc.Stak[1]};
    if (expected.flags) {
      const auto& bits = plc.Mem_SM[1].Bit;
      actual.flags = {bits[0], bits[1], bits[2], bits[3]};
    }
  }

 private:
  static Ending EndingOf(const Plc& plc, const std::vector<std::string>& boxes) {
    const bool stopped = plc.PLC_Acceso == 0 && plc.Ferma == -1;
    if (boxes.empty()) return plc.PLC_Acceso == -1 ? Ending::Ok : Ending::Inconsistent;
    if (boxes.size() > 1 || !stopped) return Ending::Inconsistent;
    if (boxes[0] == "Run Time Error" && plc.PC == 1) return Ending::RunTimeError;
    if (boxes[0] == "Errore in Esecuzione!" && plc.PC == 2) return Ending::Unforeseen;
    return Ending::Inconsistent;
  }
};

// ---- all combinations -------------------------------------------------------------------------

struct Combination {
  std::vector<std::string> areas;  ///< of its operands
};

class Combinations : public ::testing::Test, protected LineChecker {
 protected:
  /// The combinations of areas with which the checker accepts a mnemonic.
  std::vector<Combination> Admitted(const std::string& mnemonic, std::size_t mostOperands = 2) {
    std::vector<Combination> admitted;
    const auto offer = [&](const std::vector<std::string>& areas) {
      std::vector<std::string> texts;
      for (const std::string& area : areas) texts.push_back(Home(area).Text());
      if (CheckRow(Source(mnemonic, texts)) == 0) admitted.push_back({areas});
    };
    offer({});
    for (const std::string& first : AllAreas()) {
      offer({first});
      for (const std::string& second : AllAreas()) {
        if (mostOperands == 2) offer({first, second});
      }
    }
    return admitted;
  }

  /// Executes every combination of these mnemonics and returns how many there are.
  std::size_t ExecuteAll(const std::vector<std::string>& mnemonics, std::size_t mostOperands = 2) {
    std::size_t count = 0;
    for (const std::string& mnemonic : mnemonics) {
      for (const Combination& combination : Admitted(mnemonic, mostOperands)) {
        Execute(mnemonic, combination);
        ++count;
      }
    }
    return count;
  }

 private:
  void Execute(const std::string& mnemonic, const Combination& combination) {
    const auto& areas = combination.areas;
    const bool bits = IsIn(mnemonic, "LD LDN LDI LDNI A AN AI ANI O ON OI ONI = =I S R SI RI LSCR");
    const bool timer = IsIn(mnemonic, "TON TOF TONR");
    const bool counted = IsIn(mnemonic, "S R SI RI");
    const std::vector<Operand> none = {{}};
    std::size_t executed = 0;
    for (const Operand& op1 : areas.empty() ? none : Numbers(areas[0], bits)) {
      for (const Operand& op2 : areas.size() < 2 ? none : Numbers(areas[1], false)) {
        // A count is a number and nothing more: the constants try it out for all areas.
        if (counted && op2.area != "K" && op2.num > 1 && op2.area != "SMB") continue;
        std::vector<std::string> texts;
        if (!areas.empty()) texts.push_back(op1.Text());
        if (areas.size() == 2) texts.push_back(op2.Text());
        if (CheckRow(Source(mnemonic, texts)) != 0) continue;
        // Two faults at once have a test of their own.
        if (timer && (op1.num < 0 || op1.num > 40) && !IsIn(op2.area, "K VW AC")) continue;
        std::string line = mnemonic;
        for (const std::string& text : texts) line += " " + text;
        if (!ExecuteLine(line, mnemonic, op1, op2)) return;
        ++executed;
      }
    }
    EXPECT_GT(executed, 0U) << mnemonic;
  }

  /// Values vary while both operands are constants or at the last number of their areas.
  static std::vector<double> ValuesAt(const Operand& op, const Operand& other) {
    const auto varies = [](const Operand& o) {
      return o.area == "K" || o.num == LastNumber(o.area);
    };
    std::vector<double> values = Values(op.area);
    if (!varies(op) || !varies(other)) values.resize(1);
    return values;
  }

  /// Every value with every power; comparisons, which do not look at the power, with fewer.
  bool ExecuteLine(const std::string& line, const std::string& mnemonic, const Operand& op1,
                   const Operand& op2) {
    const Riga_PLC compiled = plc.Prog[0];
    const bool comparison = Widths.contains(mnemonic);
    bool pattern = false;
    for (const double value1 : ValuesAt(op1, op2)) {
      for (const double value2 : ValuesAt(op2, op1)) {
        for (std::size_t p = 0; p < Powers.size(); ++p) {
          if (comparison && p > 0 && value2 != Values(op2.area).front()) continue;
          for (int round = 0; round < (comparison ? 1 : 2); ++round) {
            pattern = !pattern;
            const Execution run(compiled, mnemonic, op1, op2, value1, value2, Powers[p], pattern);
            if (run.actual == run.expected) continue;
            ADD_FAILURE() << line << "\n  values " << value1 << ", " << value2 << "; top "
                          << Powers[p].top << ", line enable " << Powers[p].enabled
                          << "\n  expected: " << run.expected << "\n  actual: " << run.actual;
            return false;
          }
        }
      }
    }
    return true;
  }

  /// The comparisons.
  const std::set<std::string> Widths = [] {
    const std::vector<std::string> all =
        Words(Comparisons("B") + " " + Comparisons("W") + " " + Comparisons("D"));
    return std::set<std::string>(all.begin(), all.end());
  }();
};

// The counts are areas of op1 times areas of op2 times mnemonics; an operand that is not tested
// counts all 28 areas.

TEST_F(Combinations, OfContactsEndAsDue) {
  EXPECT_EQ(ExecuteAll(Words("LD LDN A AN O ON")), 7U * 6);
  EXPECT_EQ(ExecuteAll(Words("LDI LDNI AI ANI OI ONI")), 1U * 6);
}

TEST_F(Combinations, OfOutputsEndAsDue) {
  EXPECT_EQ(ExecuteAll({"="}), 3U);
  EXPECT_EQ(ExecuteAll({"=I"}), 1U);
  EXPECT_EQ(ExecuteAll({"S"}), 3U * 28);
  EXPECT_EQ(ExecuteAll({"SI", "RI"}), 1U * 28 * 2);
  EXPECT_EQ(ExecuteAll({"R"}), 5U * 28);
}

TEST_F(Combinations, OfTimersAndCountersEndAsDue) {
  EXPECT_EQ(ExecuteAll({"TON", "TOF", "TONR"}), 7U * 21 * 3);
  EXPECT_EQ(ExecuteAll({"CTU", "CTD", "CTUD"}), 1U * 2 * 3);
}

TEST_F(Combinations, OfMovesEndAsDue) {
  EXPECT_EQ(ExecuteAll({"MOVB"}), 7U * 2);
  EXPECT_EQ(ExecuteAll({"MOVW"}), 9U * 5);
  EXPECT_EQ(ExecuteAll({"MOVD"}), 3U * 2);
  EXPECT_EQ(ExecuteAll({"BIR"}), 1U * 2);
  EXPECT_EQ(ExecuteAll({"BIW"}), 2U * 2);
  EXPECT_EQ(ExecuteAll({"BTI"}), 6U * 4);
}

TEST_F(Combinations, OfArithmeticEndAsDue) {
  EXPECT_EQ(ExecuteAll({"+I", "-I", "*I", "/I"}), 6U * 4 * 4);
  EXPECT_EQ(ExecuteAll({"+D", "-D", "*D", "/D"}), 3U * 2 * 4);
  EXPECT_EQ(ExecuteAll({"INCB", "DECB", "INCW", "DECW", "INCD", "DECD"}), 2U * 6);
}

TEST_F(Combinations, OfByteComparisonsEndAsDue) {
  EXPECT_EQ(ExecuteAll(Words(Comparisons("B"))), 7U * 7 * 18);
}

TEST_F(Combinations, OfWordComparisonsEndAsDue) {
  EXPECT_EQ(ExecuteAll(Words(Comparisons("W"))), 8U * 8 * 18);
}

TEST_F(Combinations, OfDoubleWordComparisonsEndAsDue) {
  EXPECT_EQ(ExecuteAll(Words(Comparisons("D"))), 3U * 3 * 18);
}

// The operands of the first list are not looked at: none, and each area as the only one.
TEST_F(Combinations, OfTheOtherInstructionsEndAsDue) {
  EXPECT_EQ(ExecuteAll({"NETWORK 1", "NETW", "MEND", "RET", "RETI", "SBR", "SBR0", "INT", "INT0",
                        "JMP", "LBL", "CALL", "LSCR", "SCRE", "CRET", "XORD"},
                       1),
            29U * 16);
  EXPECT_EQ(ExecuteAll(Words(AcceptedWithoutOperands)), 9U);
}

TEST_F(Combinations, AreSoManyInAll) {
  std::size_t count = 0;
  for (const Istruzione& instruction : Tabella_Istruzioni()) {
    const bool untested = IsIn(instruction.Nome, AcceptedWithoutTest);
    count += Admitted(instruction.Nome, untested ? 1 : 2).size();
  }
  EXPECT_EQ(count, 3588U);
}

// Setting the preset is the first thing a timer does, so its fault is met before the timer's.
TEST_F(Combinations, OfAnUnreadablePresetAndATimerBeyondTheTableEndSoftly) {
  for (const char* mnemonic : {"TON", "TOF", "TONR"}) {
    ASSERT_EQ(CheckRow(Source(mnemonic, {"T63", "IB0"})), 0);
    const Execution run(plc.Prog[0], mnemonic, {"T", 63}, {"IB", 0}, 0, 0, Powers[0], false);
    EXPECT_EQ(run.expected.ending, Ending::RunTimeError);
    EXPECT_EQ(run.actual, run.expected) << mnemonic << " T63, IB0";
  }
}

}  // namespace
}  // namespace tavorno::prova
