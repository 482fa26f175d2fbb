// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "checked_line.h"
#include "plc/memory.h"

// How a line ends, worked out from its texts and the memory before it, with none of the CPU's code.
namespace tavorno::prova {

enum class Ending { Ok, RunTimeError, Fatal, Unforeseen, Inconsistent };

struct Outcome {
  Ending ending = Ending::Ok;
  std::optional<double> destination;        ///< value of the cell written, when it matters
  std::optional<std::array<int, 2>> stack;  ///< top and second cell
  std::optional<std::array<int, 4>> flags;  ///< SM1.0..SM1.3

  bool operator==(const Outcome&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  static constexpr std::array names = {"ok", "run-time error", "fatal", "unknown", "inconsistent"};
  out << names[static_cast<std::size_t>(outcome.ending)];
  if (outcome.destination) out << ", destination " << *outcome.destination;
  if (outcome.stack) out << ", stack " << (*outcome.stack)[0] << ' ' << (*outcome.stack)[1];
  if (outcome.flags) {
    out << ", SM1.0-3 ";
    for (const int flag : *outcome.flags) out << flag;
  }
  return out;
}

/// Whether a list of words with blanks between them has this one.
inline bool IsIn(std::string_view word, std::string_view list) {
  if (word.empty()) return false;
  for (std::size_t at = list.find(word); at != std::string_view::npos;
       at = list.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    if ((at == 0 || list[at - 1] == ' ') && (end == list.size() || list[end] == ' ')) return true;
  }
  return false;
}

/// Last row of an area's table, -1 for an area without one.
inline int LastRow(const std::string& area) {
  static const std::map<std::string, int> rows = {
      {"I", 1},  {"IB", 1},  {"IW", 1},  {"Q", 1},    {"QB", 1},   {"QW", 1},  {"M", 4},
      {"MB", 4}, {"MW", 4},  {"S", 4},   {"SM", 30},  {"SMB", 30}, {"T", 40},  {"C", 20},
      {"AC", 4}, {"AIW", 4}, {"AQW", 2}, {"VB", 100}, {"VW", 100}, {"VD", 100}};
  const auto found = rows.find(area);
  return found == rows.end() ? -1 : found->second;
}

/// What a move or an arithmetic line leaves in its destination.
inline std::optional<double> CellValue(const Memoria& m, const std::string& mnemonic,
                                       const Operand& cell) {
  const int n = cell.num;
  if (n < 0 || n > LastRow(cell.area)) return {};
  if (cell.area == "VB") return m.Mem_VB[n];
  if (cell.area == "VW") return m.Mem_VW[n];
  if (cell.area == "VD") return m.Mem_VD[n];
  if (cell.area == "AC") return m.Mem_AC[n];
  if (cell.area == "AQW") return m.Mem_AQW[n];
  if (cell.area == "QB") return m.IP_Q[n].Val_B;
  // A preset is what BTI writes; all others mean the value.
  if (cell.area == "T") return mnemonic == "BTI" ? m.Mem_T[n].PT : m.Mem_T[n].Val;
  if (cell.area == "C") return mnemonic == "BTI" ? m.Mem_C[n].PV : m.Mem_C[n].Val;
  return {};
}

class Oracle {
 public:
  Oracle(const Memoria& before, int enabled)
      : m(before), enable(enabled), top(before.Stak[0]), flow((before.Stak[0] & enabled) == 1) {}

  Outcome Of(const std::string& mnemonic, const Operand& op1, const Operand& op2) {
    outcome = {};
    try {
      if (IsIn(mnemonic, "RETI INT INT0 XORD"))
        outcome.ending = Ending::Unforeseen;
      else if (mnemonic == "LSCR")
        Bit(4, op1.num, op1.bit);
      else if (IsIn(mnemonic, "LD LDN LDI LDNI A AN AI ANI O ON OI ONI"))
        Contact(mnemonic, op1);
      else if (IsIn(mnemonic, "= =I S R SI RI"))
        Output(mnemonic, op1, op2);
      else if (IsIn(mnemonic, "TON TOF TONR"))
        Timer(op1, op2);
      else if (IsIn(mnemonic, "CTU CTD CTUD"))
        Counter(mnemonic, op1, op2);
      else if (IsIn(mnemonic, "MOVB MOVW MOVD BIR BIW BTI"))
        Move(mnemonic, op1, op2);
      else if (IsIn(mnemonic, "+I -I *I /I +D -D *D /D"))
        Arithmetic(mnemonic, op1, op2);
      else if (IsIn(mnemonic, "INCB DECB INCW DECW INCD DECD"))
        Step(mnemonic, op1);
      else if (std::string("=<>").find(mnemonic.back()) != std::string::npos)
        Comparison(mnemonic, op1, op2);
    } catch (Ending ending) {
      outcome = {ending, {}, {}, {}};
    }
    return outcome;
  }

 private:
  using Value = std::optional<long long>;  ///< empty: the soft error of a read

  static void Index(int number, int last) {
    if (number < 0 || number > last) throw Ending::Fatal;
  }
  static void Bit(int lastRow, int row, int bit) {
    Index(row, lastRow);
    Index(bit, 8);
  }
  static long long Fit(long long value, int bits) {
    const long long limit = 1LL << (bits - 1);
    if (value < -limit || value >= limit) throw Ending::Fatal;
    return value;
  }
  static void SoftError(bool failed) {
    if (failed) throw Ending::RunTimeError;
  }

  // ---- reading --------------------------------------------------------------------------------

  /// Rounded to the nearest integer, a half to the even one.
  long long Ac(int number) const {
    Index(number, 4);
    const double value = m.Mem_AC[number];
    double below = std::floor(value);
    const double rest = value - below;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0)) below += 1;
    if (std::fabs(below) > 1e10) throw Ending::Fatal;
    return Fit(static_cast<long long>(below), 32);
  }
  static long long Text(const std::string& text) {
    if (text.empty()) throw Ending::Fatal;
    return std::stoll(text);
  }

  Value Byte(const Operand& op, bool special) const {
    if (op.area == "K") return op.num;
    if (op.area == "AC") return Ac(op.num);
    if (!IsIn(op.area, special ? "VB IB QB MB SMB" : "VB IB QB MB")) return {};
    Index(op.num, LastRow(op.area));
    if (op.area == "VB") return m.Mem_VB[op.num];
    if (op.area == "IB") return m.IP_I[op.num].Val_B;
    if (op.area == "QB") return m.IP_Q[op.num].Val_B;
    if (op.area == "MB") return m.Mem_M[op.num].Val_B;
    return m.Mem_SM[op.num].Val_B;
  }
  Value Word(const Operand& op) const {
    if (op.area == "K") return op.num;
    if (op.area == "AC") return Ac(op.num);
    if (!IsIn(op.area, "VW IW QW MW AIW T C")) return {};
    Index(op.num, LastRow(op.area));
    if (op.area == "VW") return m.Mem_VW[op.num];
    if (op.area == "IW") return Text(m.IP_I[op.num].Txt_B);
    if (op.area == "QW") return Text(m.IP_Q[op.num].Txt_B);
    if (op.area == "MW") return Text(m.Mem_M[op.num].Txt_B);
    if (op.area == "AIW") return m.Mem_AIW[op.num];
    if (op.area == "T") return m.Mem_T[op.num].Val;
    return m.Mem_C[op.num].Val;
  }
  Value Double(const Operand& op) const {
    if (op.area == "K") return op.num;
    if (op.area == "AC") return Ac(op.num);
    if (op.area != "VD") return {};
    Index(op.num, 100);
    return m.Mem_VD[op.num];
  }
  /// With the upper limit of the width; below it a 16-bit result does not hold the value.
  Value Limited(char width, const Operand& op) const {
    if (width == 'D') return Double(op);
    const Value value = width == 'B' ? Byte(op, false) : Word(op);
    if (!value || *value > (width == 'B' ? 255 : 32767)) return {};
    return Fit(*value, 16);
  }

  // ---- bits -----------------------------------------------------------------------------------

  int BitValue(const Operand& op, bool immediate) const {
    if (immediate) {
      Bit(1, op.num, op.bit);
      return m.IP_I[op.num].Bit_Dir[op.bit];
    }
    Index(op.num, LastRow(op.area));
    if (op.area == "T") return m.Mem_T[op.num].Uscita;
    if (op.area == "C") return m.Mem_C[op.num].Uscita;
    Index(op.bit, 8);
    if (op.area == "I") return m.IP_I[op.num].Bit_Img[op.bit];
    if (op.area == "Q") return m.IP_Q[op.num].Bit_Img[op.bit];
    if (op.area == "M") return m.Mem_M[op.num].Bit[op.bit];
    if (op.area == "SM") return m.Mem_SM[op.num].Bit[op.bit];
    return m.Mem_S[op.num].Bit[op.bit];
  }
  void Join(const std::string& mnemonic, int value) {
    if (mnemonic.starts_with("LD"))
      outcome.stack = {value, top};
    else if (mnemonic.starts_with("A"))
      outcome.stack = {top & value, m.Stak[1]};
    else
      outcome.stack = {top | value, m.Stak[1]};
  }
  void Contact(const std::string& mnemonic, const Operand& op) {
    const int value = BitValue(op, mnemonic.back() == 'I');
    const bool negated = mnemonic.find('N') != std::string::npos;
    Join(mnemonic, negated ? 1 - value : value);
  }

  void Output(const std::string& mnemonic, const Operand& op, const Operand& count) {
    if (mnemonic == "=" || mnemonic == "=I") {
      Bit(LastRow(op.area), op.num, op.bit);
      return;
    }
    const bool element = IsIn(op.area, "T C");
    const int first = element ? op.num : op.bit;
    const bool inclusive = mnemonic == "SI" || mnemonic == "RI";
    const long long last = Fit(first + count.num - (inclusive ? 0 : 1), 16);
    if (!flow || first > last) return;
    if (element) {
      Index(op.num, LastRow(op.area));  // every round means the element named
    } else if (mnemonic == "R" && op.area == "M") {
      Bit(4, op.num, first);
      SoftError(last > 7 && op.num == 4);
    } else {
      Bit(LastRow(op.area), op.num, first);
      Index(static_cast<int>(last), 8);
    }
  }

  // ---- timers and counters --------------------------------------------------------------------

  void Timer(const Operand& op, const Operand& preset) const {
    if (preset.area == "VW")
      Index(preset.num, 100);
    else if (preset.area == "AC")
      Fit(Ac(preset.num), 16);
    else
      SoftError(preset.area != "K");
    Index(op.num, 40);
  }
  void Counter(const std::string& mnemonic, const Operand& op, const Operand& preset) const {
    if (preset.area == "VW") Index(preset.num, 100);
    Index(op.num, 20);
    if (mnemonic == "CTD") return;  // it stops at 0
    const bool reset = enable == 1 && top != 0;
    long long value = reset ? 0 : m.Mem_C[op.num].Val;
    const bool up = enable == 1 && m.Stak[mnemonic == "CTU" ? 1 : 2] == 1;
    if (up) value = Fit(value + 1, 16);
    if (mnemonic == "CTUD" && enable == 1 && m.Stak[1] == 1) Fit(value - 1, 16);
  }

  // ---- moves and comparisons ------------------------------------------------------------------

  void Move(const std::string& mnemonic, const Operand& from, const Operand& to) {
    outcome.destination = CellValue(m, mnemonic, to);
    // MOVB and MOVD do not look at the line enable.
    if (!(IsIn(mnemonic, "MOVB MOVD") ? top == 1 : flow)) return;
    Value value;
    if (mnemonic == "MOVW") {
      value = Word(from);
      SoftError(!value || *value > 32767);
    } else if (mnemonic == "MOVD") {
      value = Double(from);
    } else {
      value = Byte(from, IsIn(mnemonic, "MOVB BTI"));
      SoftError(!value || (mnemonic != "BTI" && *value > 255));
      SoftError(mnemonic == "BIW" && to.area != "QB");
    }
    if (mnemonic == "MOVW" && IsIn(to.area, "T C")) return;  // ignored without a word
    Store(to, *value);
  }

  void Comparison(const std::string& mnemonic, const Operand& op1, const Operand& op2) {
    const std::size_t width = mnemonic.starts_with("LD") ? 2 : 1;
    const std::string relation = mnemonic.substr(width + 1);
    const Value second = Limited(mnemonic[width], op2);
    const Value first = Limited(mnemonic[width], op1);
    SoftError(!first || !second);
    const bool holds = relation == "="    ? *first == *second
                       : relation == "<>" ? *first != *second
                       : relation == "<"  ? *first < *second
                       : relation == "<=" ? *first <= *second
                       : relation == ">"  ? *first > *second
                                          : *first >= *second;
    Join(mnemonic, holds ? 1 : 0);
  }

  // ---- arithmetic -----------------------------------------------------------------------------

  void Store(const Operand& to, long long value) {
    Index(to.num, LastRow(to.area));
    if (to.area == "AC")
      outcome.destination = static_cast<float>(value);
    else
      outcome.destination = static_cast<double>(Fit(value, IsIn(to.area, "VD AQW") ? 32 : 16));
  }
  std::array<int, 4> FlagsNow() const {
    const auto& bits = m.Mem_SM[1].Bit;
    return {bits[0], bits[1], bits[2], bits[3]};
  }
  void SetFlags(long long result, bool overflow) {
    outcome.flags = {!overflow && result == 0, overflow, !overflow && result < 0, FlagsNow()[3]};
  }

  void Arithmetic(const std::string& mnemonic, const Operand& in, const Operand& out) {
    outcome.destination = CellValue(m, mnemonic, out);
    outcome.flags = FlagsNow();
    if (!flow) return;
    const char operation = mnemonic[0];
    const bool integer = mnemonic[1] == 'I';
    const long long a = integer ? *Word(in) : *Double(in);
    const long long b = integer ? *Word(out) : *Double(out);
    const bool sum = operation == '+' || operation == '-';
    SoftError(integer && sum && (a > 32767 || b > 32767));
    if (operation == '/' && a == 0) {
      (*outcome.flags)[3] = 1;
      return;
    }
    const long long result = Fit(operation == '+'   ? b + a
                                 : operation == '-' ? b - a
                                 : operation == '*' ? b * a
                                                    : b / a,
                                 32);
    // Each way of overflow is a trait of its own: not written, written as 32767, or not known.
    const bool overflow = integer            ? result < -32768 || result > 32767
                          : operation == '+' ? result > 32767
                                             : false;
    SetFlags(result, overflow);
    if (overflow && integer && sum) return;
    Store(out, overflow ? 32767 : result);
  }

  void Step(const std::string& mnemonic, const Operand& op) {
    outcome.destination = CellValue(m, mnemonic, op);
    outcome.flags = FlagsNow();
    if (!flow) return;
    const char width = mnemonic.back();
    const long long step = mnemonic.starts_with("INC") ? 1 : -1;
    const long long value = width == 'B'   ? *Byte(op, false)
                            : width == 'W' ? *Word(op)
                                           : *Double(op);
    const long long result = Fit(value + step, 32);
    Store(op, result);
    const long long limit = width == 'B' ? 128 : 32768;
    SetFlags(result, width != 'D' && (result < -limit || result >= limit));
  }

  const Memoria& m;
  int enable;
  int top;
  bool flow;
  Outcome outcome;
};

}  // namespace tavorno::prova
